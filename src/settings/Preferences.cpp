// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Preferences.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vellumry {

namespace {

constexpr qint64 mostDays = 1'000'000;
constexpr qint64 mostSeconds = 1'000'000'000;
constexpr qint64 shortestSensitiveSeconds = 10;
/// More do not fit on a screen.
constexpr qint64 mostInMenu = 100;
/// More would not fit into the number of their bytes.
constexpr qint64 mostMegabytes = std::numeric_limits<qint64>::max() >> 20;

const QString panelPositionsKey = QStringLiteral("panelPositions");

QVariantMap registeredDefaults() {
    return {
        {QStringLiteral("recentInMenu"), 10},
        {QStringLiteral("keepForDays"), 0},
        {QStringLiteral("keepAtMost"), 5000},
        {QStringLiteral("mediaLimitMB"), 1024},
        {QStringLiteral("sensitiveSeconds"), 60},
        {QStringLiteral("ignoredApps"), Preferences::defaultIgnoredApps()},
        {QStringLiteral("pasteDirectly"), true},
        {QStringLiteral("plainTextByDefault"), false},
        {QStringLiteral("saveNewScreenshots"), false},
        {QStringLiteral("onboardingDone"), false},
        {QStringLiteral("pinnedShortcutsEnabled"), true},
        {QStringLiteral("soundWhenPasting"), false},
        {QStringLiteral("appearance"), QStringLiteral("system")},
        {QStringLiteral("terminalApps"), QStringList()},
    };
}

bool isNumber(const QVariant& value) {
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::LongLong;
}

bool isListOfNumbers(const QVariant& value) {
    const QVariantList items = value.toList();
    const bool isList = value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
    return isList && std::ranges::all_of(items, isNumber);
}

/// The remembered places of all displays; none when anything but lists of numbers stands there.
QVariantMap storedPositions(const UserDefaults& defaults) {
    const QVariantMap positions = defaults.object(panelPositionsKey).toMap();
    return std::ranges::all_of(positions, isListOfNumbers) ? positions : QVariantMap();
}

std::optional<Preferences::PanelPosition> positionFrom(const QVariant& entry) {
    const QVariantList numbers = entry.toList();
    if (numbers.size() != 2)
        return std::nullopt;
    double values[2];
    for (int index = 0; index < 2; ++index) {
        values[index] = numbers[index].toDouble();
        if (!std::isfinite(values[index]) || values[index] < 0.0 || values[index] > 1.0)
            return std::nullopt;
    }
    return Preferences::PanelPosition{values[0], values[1]};
}

} // namespace

Preferences::Preferences(UserDefaults& defaults)
    : m_defaults(&defaults) {
    m_defaults->registerDefaults(registeredDefaults());
}

const QStringList& Preferences::defaultIgnoredApps() {
    static const QStringList secretStores{
        QStringLiteral("com.1password.1password"),
        QStringLiteral("com.agilebits.onepassword7"),
        QStringLiteral("com.bitwarden.desktop"),
        QStringLiteral("com.apple.keychainaccess"),
        QStringLiteral("com.apple.Passwords"),
        QStringLiteral("com.lastpass.lastpassmacdesktop"),
        QStringLiteral("com.dashlane.dashlanephonefinal"),
        QStringLiteral("in.sinew.Enpass-Desktop"),
        QStringLiteral("org.keepassxc.keepassxc"),
    };
    return secretStores;
}

RetentionPolicy Preferences::retentionPolicy() const {
    RetentionPolicy policy;
    if (const qint64 days = keepForDays(); days >= 1)
        policy.maxAge = static_cast<double>(days) * 86'400.0;
    policy.maxCount = keepAtMost();
    policy.maxMediaBytes = mediaLimitMB() << 20;
    return policy;
}

qint64 Preferences::keepForDays() const {
    return std::max<qint64>(0, m_defaults->integer(QStringLiteral("keepForDays"), -mostDays, mostDays));
}

// A value that is none must not cost the user the history: it is the default, not the floor.
qint64 Preferences::keepAtMost() const {
    return m_defaults->integer(QStringLiteral("keepAtMost"), 1, std::numeric_limits<qint64>::max());
}

qint64 Preferences::mediaLimitMB() const {
    return m_defaults->integer(QStringLiteral("mediaLimitMB"), 1, mostMegabytes);
}

qint64 Preferences::sensitiveSeconds() const {
    return std::max(shortestSensitiveSeconds,
                    m_defaults->integer(QStringLiteral("sensitiveSeconds"), -mostSeconds, mostSeconds));
}

qint64 Preferences::recentInMenu(const UserDefaults& defaults) {
    return defaults.integer(QStringLiteral("recentInMenu"), 0, mostInMenu);
}

QStringList Preferences::ignoredApps() const {
    return m_defaults->stringArray(QStringLiteral("ignoredApps")).value_or(QStringList());
}

Preferences::Appearance Preferences::appearance() const {
    const QString stored = m_defaults->string(QStringLiteral("appearance")).value_or(QString());
    if (stored == QLatin1String("light"))
        return Appearance::light;
    if (stored == QLatin1String("dark"))
        return Appearance::dark;
    if (stored != QLatin1String("system"))
        m_defaults->refuse(QStringLiteral("appearance"));
    return Appearance::system;
}

QStringList Preferences::terminalApps(const UserDefaults& defaults) {
    return defaults.stringArray(QStringLiteral("terminalApps")).value_or(QStringList());
}

void Preferences::setIgnoredApps(const QStringList& identifiers) {
    m_defaults->setObject(QStringLiteral("ignoredApps"), identifiers);
}

std::optional<Shortcut> Preferences::shortcut(const QString& key) const {
    return Shortcut::fromStored(m_defaults->object(key));
}

void Preferences::setShortcut(const Shortcut& shortcut, const Shortcut& fallback, const QString& key) {
    if (shortcut == fallback)
        m_defaults->removeObject(key);
    else
        m_defaults->setObject(key, shortcut.toJson());
}

std::optional<Preferences::PanelPosition> Preferences::panelPosition(const QString& key) const {
    return positionFrom(storedPositions(*m_defaults).value(key));
}

void Preferences::setPanelPosition(std::optional<PanelPosition> position, const QString& key) {
    QVariantMap positions = storedPositions(*m_defaults);
    if (position)
        positions.insert(key, QVariantList{position->first, position->second});
    else
        positions.remove(key);
    if (positions.isEmpty())
        m_defaults->removeObject(panelPositionsKey);
    else
        m_defaults->setObject(panelPositionsKey, positions);
}

bool Preferences::hasPanelPositions() const {
    return !storedPositions(*m_defaults).isEmpty();
}

void Preferences::resetPanelPositions() {
    m_defaults->removeObject(panelPositionsKey);
}

} // namespace vellumry
