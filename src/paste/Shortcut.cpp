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

constexpr std::array<quint16, 9> digitKeyCodes{18, 19, 20, 21, 23, 22, 26, 28, 25};

// Both Command, Shift, Option and Control keys, Caps Lock and Function.
constexpr std::array<quint16, 10> modifierKeyCodes{55, 54, 56, 60, 58, 61, 59, 62, 57, 63};

constexpr std::array<std::pair<quint32, const char*>, 26> keyNames{{
    {36, "↩"},   {48, "⇥"},  {49, "Space"}, {51, "⌫"},   {53, "⎋"},    {96, "F5"},   {97, "F6"},
    {98, "F7"},  {99, "F3"}, {100, "F8"},   {101, "F9"}, {103, "F11"}, {109, "F10"}, {111, "F12"},
    {115, "↖"},  {116, "⇞"}, {117, "⌦"},    {118, "F4"}, {119, "↘"},   {120, "F2"},  {121, "⇟"},
    {122, "F1"}, {123, "←"}, {124, "→"},    {125, "↓"},  {126, "↑"},
}};

QString keyName(quint32 keyCode, const KeyboardLayout& layout) {
    const auto named = std::ranges::find(keyNames, keyCode, &std::pair<quint32, const char*>::first);
    if (named != keyNames.end())
        return localised(named->second);
    const auto characters = layout.charactersFor(keyCode);
    if (characters && !characters->trimmed().isEmpty())
        return characters->toUpper();
    return u'#' + QString::number(keyCode);
}

std::optional<quint32> unsigned32(const QJsonValue& value) {
    const auto number = value.toInteger(-1);
    if (!value.isDouble() || number < 0 || number > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return quint32(number);
}

} // namespace

std::optional<Shortcut> Shortcut::create(quint16 keyCode, quint32 flags) {
    // Shift alone would take a letter away from typing.
    if (!(flags & (eventflag::control | eventflag::option | eventflag::command)))
        return std::nullopt;
    if (std::ranges::find(modifierKeyCodes, keyCode) != modifierKeyCodes.end())
        return std::nullopt;

    Shortcut shortcut{keyCode, 0};
    if (flags & eventflag::command)
        shortcut.modifiers |= shortcutmodifier::command;
    if (flags & eventflag::control)
        shortcut.modifiers |= shortcutmodifier::control;
    if (flags & eventflag::option)
        shortcut.modifiers |= shortcutmodifier::option;
    if (flags & eventflag::shift)
        shortcut.modifiers |= shortcutmodifier::shift;
    return shortcut;
}

Shortcut Shortcut::openPanelDefault() {
    return {9, shortcutmodifier::control | shortcutmodifier::command};
}

Shortcut Shortcut::pasteStackDefault() {
    return {1, shortcutmodifier::control | shortcutmodifier::command};
}

Shortcut Shortcut::pinned(int number) {
    return {keyCodeOfDigit(number), shortcutmodifier::control | shortcutmodifier::option};
}

QByteArray Shortcut::toJson() const {
    const QJsonObject object{{QStringLiteral("keyCode"), qint64(keyCode)},
                             {QStringLiteral("modifiers"), qint64(modifiers)}};
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
    return Shortcut{*keyCode, *modifiers};
}

QString Shortcut::display(const KeyboardLayout& layout) const {
    QString text;
    if (modifiers & shortcutmodifier::control)
        text += localised("⌃");
    if (modifiers & shortcutmodifier::option)
        text += localised("⌥");
    if (modifiers & shortcutmodifier::shift)
        text += localised("⇧");
    if (modifiers & shortcutmodifier::command)
        text += localised("⌘");
    return text + keyName(keyCode, layout);
}

quint16 keyCodeOfDigit(int number) {
    return digitKeyCodes.at(std::size_t(number - 1));
}

std::optional<int> digitOfKeyCode(quint16 keyCode) {
    const auto found = std::ranges::find(digitKeyCodes, keyCode);
    if (found == digitKeyCodes.end())
        return std::nullopt;
    return int(found - digitKeyCodes.begin()) + 1;
}

} // namespace vellumry
