// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/GlobalAccelHotKeys.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QKeySequence>

namespace vellumry {

namespace {

constexpr int serviceMilliseconds = 1000;
constexpr quint32 setPresent = 2;
constexpr quint32 noAutoloading = 4;

const QString service = QStringLiteral("org.kde.kglobalaccel");
const QString component = QStringLiteral("com.vellumry.Vellumry");

/// One key sequence as the service has it: four keys, the unused ones 0.
struct Keys {
    QList<int> keys;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Keys& sequence) {
    argument.beginStructure();
    argument << sequence.keys;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Keys& sequence) {
    argument.beginStructure();
    argument >> sequence.keys;
    argument.endStructure();
    return argument;
}

QDBusMessage asked(const QDBusConnection& bus, const QString& method, const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/kglobalaccel"),
                                                       QStringLiteral("org.kde.KGlobalAccel"), method);
    call.setArguments(arguments);
    return bus.call(call, QDBus::Block, serviceMilliseconds);
}

QStringList actionID(const QString& action) {
    return {component, action, QStringLiteral("Vellumry"), action};
}

} // namespace

} // namespace vellumry

Q_DECLARE_METATYPE(vellumry::Keys)

namespace vellumry {

GlobalAccelHotKeys::GlobalAccelHotKeys(QDBusConnection bus, std::shared_ptr<WaylandKeymap> keymap)
    : m_bus(std::move(bus))
    , m_keymap(std::move(keymap)) {
    qDBusRegisterMetaType<Keys>();
    qDBusRegisterMetaType<QList<Keys>>();
}

GlobalAccelHotKeys::~GlobalAccelHotKeys() {
    for (const quint32 id : m_actions.keys())
        release(id);
}

bool GlobalAccelHotKeys::isThere(const QDBusConnection& bus) {
    if (!bus.isConnected())
        return false;
    return bus.interface()->isServiceRegistered(service) ||
           bus.interface()->activatableServiceNames().value().contains(service);
}

int GlobalAccelHotKeys::qtKeyOf(KeyCode keyCode, Modifiers modifiers) const {
    const auto evdevCode = m_keymap->positions().evdevCode(keyCode);
    const auto characters = evdevCode ? m_keymap->charactersFor(*evdevCode) : std::nullopt;
    // What Qt calls a key of a Latin letter or digit is its upper-case character.
    if (!characters || characters->size() != 1)
        return 0;
    const QKeySequence sequence = QKeySequence::fromString(characters->toUpper(), QKeySequence::PortableText);
    int key = sequence.isEmpty() ? 0 : sequence[0].key();
    if (key == 0)
        return 0;
    for (const auto& [modifier, qtBit] :
         {std::pair(Modifier::command, Qt::CTRL), std::pair(Modifier::shift, Qt::SHIFT),
          std::pair(Modifier::option, Qt::ALT), std::pair(Modifier::control, Qt::META)}) {
        if (modifiers.testFlag(modifier))
            key |= int(qtBit);
    }
    return key;
}

bool GlobalAccelHotKeys::listen() {
    if (m_isListening)
        return true;
    const QDBusMessage answer = asked(m_bus, QStringLiteral("getComponent"), {component});
    const auto path = answer.arguments().value(0).value<QDBusObjectPath>();
    m_isListening =
        !path.path().isEmpty() &&
        m_bus.connect(service, path.path(), QStringLiteral("org.kde.kglobalaccel.Component"),
                      QStringLiteral("globalShortcutPressed"), this, SLOT(pressed(QString, QString, qlonglong)));
    return m_isListening;
}

bool GlobalAccelHotKeys::grab(quint32 id, KeyCode keyCode, Modifiers modifiers) {
    const int key = qtKeyOf(keyCode, modifiers);
    if (key == 0)
        return false;
    const QString action = QKeySequence(key).toString(QKeySequence::PortableText);
    const QStringList names = actionID(action);
    asked(m_bus, QStringLiteral("doRegister"), {names});
    const QList<Keys> wanted{Keys{{key, 0, 0, 0}}};
    asked(m_bus, QStringLiteral("setShortcutKeys"), {names, QVariant::fromValue(wanted), setPresent | noAutoloading});
    // A key that another component holds is not given, without an error.
    const QDBusMessage answer = asked(m_bus, QStringLiteral("shortcutKeys"), {names});
    const auto given = qdbus_cast<QList<Keys>>(answer.arguments().value(0));
    const bool isOurs = !given.isEmpty() && given.front().keys.value(0) == key;
    if (!isOurs || !listen()) {
        asked(m_bus, QStringLiteral("unregister"), {component, action});
        return false;
    }
    m_actions.insert(id, action);
    return true;
}

void GlobalAccelHotKeys::release(quint32 id) {
    const QString action = m_actions.take(id);
    if (!action.isEmpty())
        asked(m_bus, QStringLiteral("unregister"), {component, action});
}

void GlobalAccelHotKeys::pressed(const QString&, const QString& action, qlonglong) {
    const quint32 id = m_actions.key(action, 0);
    if (id != 0 && onPressed)
        onPressed(id);
}

} // namespace vellumry
