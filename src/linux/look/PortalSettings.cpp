// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/PortalSettings.h"

#include "linux/portal/PortalIntroduction.h"
#include "linux/portal/PortalNames.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <array>
#include <cmath>
#include <utility>

namespace vellumry {

namespace {

const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");

/// Three shares of red, green and blue; anything else says that there is no accent.
std::optional<quint32> colorOf(const QVariant& value) {
    if (!value.canConvert<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return std::nullopt;
    std::array<double, 3> shares{};
    argument.beginStructure();
    for (double& share : shares)
        argument >> share;
    argument.endStructure();
    quint32 color = 0;
    for (const double share : shares) {
        if (!(share >= 0 && share <= 1))
            return std::nullopt;
        color = color << 8 | static_cast<quint32>(std::lround(share * 255));
    }
    return color;
}

} // namespace

PortalSettings::PortalSettings(std::shared_ptr<PortalIntroduction> introduction, std::function<void()> onChanged)
    : m_introduction(std::move(introduction))
    , m_onChanged(std::move(onChanged)) {
    // No sender is named: the bus would be asked for its owner, and would have to answer first.
    m_introduction->bus().connect(QString(), portal::path, settings, QStringLiteral("SettingChanged"), this,
                                  SLOT(settingChanged(QDBusMessage)));
    connect(m_introduction.get(), &PortalIntroduction::introduced, this, &PortalSettings::ask);
    if (!m_introduction->portal().isEmpty())
        ask();
}

PortalSettings::~PortalSettings() = default;

void PortalSettings::ask() {
    QDBusMessage call =
        QDBusMessage::createMethodCall(m_introduction->portal(), portal::path, settings, QStringLiteral("ReadAll"));
    call.setArguments({QStringList{appearance, gnome, gnomeAccess}});
    auto* watcher = new QDBusPendingCallWatcher(m_introduction->bus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusMessage reply = finished->reply();
        if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("a{sa{sv}}"))
            take(qdbus_cast<Values>(reply.arguments().constFirst()));
    });
}

/// A name space, a key and a value. Taken as a message: a slot with a variant is not found before QtDBus has met one.
void PortalSettings::settingChanged(const QDBusMessage& message) {
    if (message.signature() != QLatin1String("ssv"))
        return;
    const QVariantList arguments = message.arguments();
    const QString space = arguments[0].toString();
    if (space != appearance && space != gnome && space != gnomeAccess)
        return;
    Values values = m_values;
    values[space][arguments[1].toString()] = arguments[2].value<QDBusVariant>().variant();
    take(values);
}

void PortalSettings::take(const Values& values) {
    m_values = values;
    const SaidLook said = lookOf(values);
    if (std::exchange(m_said, said) != said)
        m_onChanged();
}

SaidLook PortalSettings::lookOf(const Values& values) {
    constexpr uint dark = 1;
    constexpr uint light = 2;
    const QVariantMap common = values.value(appearance);
    const QVariantMap own = values.value(gnome);
    SaidLook said;
    const uint scheme = common.value(QStringLiteral("color-scheme")).toUInt();
    if (scheme == dark || scheme == light)
        said.isDark = scheme == dark;
    said.accent = colorOf(common.value(QStringLiteral("accent-color")));
    const QVariant contrast = common.value(QStringLiteral("contrast"));
    const QVariant ownContrast = values.value(gnomeAccess).value(QStringLiteral("high-contrast"));
    if (contrast.isValid())
        said.isHighContrast = contrast.toUInt() == 1;
    else if (ownContrast.isValid())
        said.isHighContrast = ownContrast.toBool();
    const QVariant motion = common.value(QStringLiteral("reduced-motion"));
    const QVariant animations = own.value(QStringLiteral("enable-animations"));
    if (motion.isValid())
        said.reducesMotion = motion.toUInt() == 1;
    else if (animations.isValid())
        said.reducesMotion = !animations.toBool();
    const QVariant scale = own.value(QStringLiteral("text-scaling-factor"));
    if (scale.isValid() && scale.toDouble() > 0)
        said.textScale = scale.toDouble();
    return said;
}

} // namespace vellumry
