// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/Shortcut.h"

#include "foundation/Localisation.h"
#include "platform/display/KeyboardLayout.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace vellumry {

namespace {

constexpr std::array digitKeyCodes{KeyCode::digit1, KeyCode::digit2, KeyCode::digit3, KeyCode::digit4, KeyCode::digit5,
                                   KeyCode::digit6, KeyCode::digit7, KeyCode::digit8, KeyCode::digit9};

constexpr std::array modifierKeyCodes{KeyCode::command,  KeyCode::rightCommand, KeyCode::shift,   KeyCode::rightShift,
                                      KeyCode::option,   KeyCode::rightOption,  KeyCode::control, KeyCode::rightControl,
                                      KeyCode::capsLock, KeyCode::function};

constexpr std::array<std::pair<KeyCode, const char*>, 26> keyNames{{
    {KeyCode::enter, "↩"},  {KeyCode::tab, "⇥"},      {KeyCode::space, "Space"}, {KeyCode::backspace, "⌫"},
    {KeyCode::escape, "⎋"}, {KeyCode::f1, "F1"},      {KeyCode::f2, "F2"},       {KeyCode::f3, "F3"},
    {KeyCode::f4, "F4"},    {KeyCode::f5, "F5"},      {KeyCode::f6, "F6"},       {KeyCode::f7, "F7"},
    {KeyCode::f8, "F8"},    {KeyCode::f9, "F9"},      {KeyCode::f10, "F10"},     {KeyCode::f11, "F11"},
    {KeyCode::f12, "F12"},  {KeyCode::home, "↖"},     {KeyCode::pageUp, "⇞"},    {KeyCode::forwardDelete, "⌦"},
    {KeyCode::end, "↘"},    {KeyCode::pageDown, "⇟"}, {KeyCode::left, "←"},      {KeyCode::right, "→"},
    {KeyCode::down, "↓"},   {KeyCode::up, "↑"},
}};

QString keyName(KeyCode keyCode, const KeyboardLayout& layout) {
    const auto named = std::ranges::find(keyNames, keyCode, &std::pair<KeyCode, const char*>::first);
    if (named != keyNames.end())
        return localised(named->second);
    const auto characters = layout.charactersFor(keyCode);
    if (characters && !characters->trimmed().isEmpty())
        return characters->toUpper();
    return u'#' + QString::number(std::to_underlying(keyCode));
}

std::optional<quint32> unsigned32(const QJsonValue& value) {
    const auto number = value.toInteger(-1);
    if (!value.isDouble() || number < 0 || number > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return quint32(number);
}

} // namespace

std::optional<Shortcut> Shortcut::create(KeyCode keyCode, Modifiers modifiers) {
    // Shift alone would take a letter away from typing.
    if (!(modifiers & (Modifier::control | Modifier::option | Modifier::command)))
        return std::nullopt;
    if (std::ranges::find(modifierKeyCodes, keyCode) != modifierKeyCodes.end())
        return std::nullopt;
    return Shortcut{keyCode, modifiers};
}

Shortcut Shortcut::openPanelDefault() {
    return {KeyCode::v, Modifier::control | Modifier::command};
}

Shortcut Shortcut::pasteStackDefault() {
    return {KeyCode::s, Modifier::control | Modifier::command};
}

Shortcut Shortcut::pinned(int number) {
    return {keyCodeOfDigit(number), Modifier::control | Modifier::option};
}

QByteArray Shortcut::toJson() const {
    const QJsonObject object{{QStringLiteral("keyCode"), qint64(std::to_underlying(keyCode))},
                             {QStringLiteral("modifiers"), qint64(modifiers.toInt())}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<Shortcut> Shortcut::fromStored(const QVariant& value) {
    // Data as the program writes it, text as a hand does.
    if (value.typeId() != QMetaType::QByteArray && value.typeId() != QMetaType::QString)
        return std::nullopt;
    const auto object = QJsonDocument::fromJson(value.toString().toUtf8()).object();
    const auto keyCode = unsigned32(object.value(u"keyCode"));
    const auto modifiers = unsigned32(object.value(u"modifiers"));
    if (!keyCode || !modifiers)
        return std::nullopt;
    // Numbers that are no key and bits that are no modifier stay in it, and only do nothing.
    return Shortcut{KeyCode(*keyCode), Modifiers::fromInt(*modifiers)};
}

QString Shortcut::display(const KeyboardLayout& layout) const {
    QString text;
    if (modifiers & Modifier::control)
        text += localised("⌃");
    if (modifiers & Modifier::option)
        text += localised("⌥");
    if (modifiers & Modifier::shift)
        text += localised("⇧");
    if (modifiers & Modifier::command)
        text += localised("⌘");
    return text + keyName(keyCode, layout);
}

KeyCode keyCodeOfDigit(int number) {
    return digitKeyCodes.at(std::size_t(number - 1));
}

std::optional<int> digitOfKeyCode(KeyCode keyCode) {
    const auto found = std::ranges::find(digitKeyCodes, keyCode);
    if (found == digitKeyCodes.end())
        return std::nullopt;
    return int(found - digitKeyCodes.begin()) + 1;
}

} // namespace vellumry
