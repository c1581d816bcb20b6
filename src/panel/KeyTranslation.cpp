// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/KeyTranslation.h"

#include "paste/Shortcut.h"

namespace vellumry {

namespace {

using Command = PanelModel::Command;

/// The keys of the chords by what they type: the letter counts, wherever the layout has it.
std::optional<KeyCode> chordKeyCode(int key) {
    if (key >= Qt::Key_1 && key <= Qt::Key_9)
        return keyCodeOfDigit(key - Qt::Key_0);
    switch (key) {
    case Qt::Key_Backspace:
        return KeyCode::backspace;
    case Qt::Key_Delete:
        return KeyCode::forwardDelete;
    case Qt::Key_Z:
        return KeyCode::z;
    case Qt::Key_P:
        return KeyCode::p;
    case Qt::Key_M:
        return KeyCode::m;
    case Qt::Key_Q:
        return KeyCode::q;
    case Qt::Key_W:
        return KeyCode::w;
    case Qt::Key_C:
        return KeyCode::c;
    case Qt::Key_T:
        return KeyCode::t;
    default:
        return std::nullopt;
    }
}

/// French keyboards type digits with Shift only, and Russian ones no Latin letters: there the key's place counts.
std::optional<KeyCode> placedKeyCode(int key, const std::function<std::optional<KeyCode>()>& place) {
    constexpr int lastOfLatin1 = 0xFF;
    if (!place || key >= Qt::Key_Escape) // from there on keys type nothing
        return std::nullopt;
    const std::optional<KeyCode> keyCode = place();
    if (keyCode && key <= lastOfLatin1 && !digitOfKeyCode(*keyCode))
        return std::nullopt;
    return keyCode;
}

std::optional<Command> plainCommand(int key, bool isFieldEmpty) {
    switch (key) {
    case Qt::Key_Up:
        return Command::up;
    case Qt::Key_Down:
        return Command::down;
    case Qt::Key_PageUp:
        return Command::pageUp;
    case Qt::Key_PageDown:
        return Command::pageDown;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Command::enter;
    case Qt::Key_Escape:
        return Command::escape;
    case Qt::Key_Tab:
        return Command::nextFilter;
    case Qt::Key_Left:
        return isFieldEmpty ? std::optional(Command::previousFilter) : std::nullopt;
    case Qt::Key_Right:
        return isFieldEmpty ? std::optional(Command::nextFilter) : std::nullopt;
    case Qt::Key_Home:
        return Command::home;
    case Qt::Key_End:
        return Command::end;
    default:
        return std::nullopt;
    }
}

std::optional<Command> shiftedCommand(int key) {
    switch (key) {
    case Qt::Key_Up:
        return Command::extendUp;
    case Qt::Key_Down:
        return Command::extendDown;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Command::enterPlain;
    case Qt::Key_Backtab:
    case Qt::Key_Tab:
        return Command::previousFilter;
    default:
        return std::nullopt;
    }
}

std::optional<Command> controlledCommand(int key) {
    switch (key) {
    case Qt::Key_Home:
    case Qt::Key_Up:
        return Command::home;
    case Qt::Key_End:
    case Qt::Key_Down:
        return Command::end;
    default:
        return std::nullopt;
    }
}

} // namespace

KeyMeaning meaningOf(int key, Qt::KeyboardModifiers held, bool isFieldEmpty,
                     const std::function<std::optional<KeyCode>()>& place) {
    Modifiers modifiers = modifiersOf(held);
    // Quick fingers choose while the keys of the shortcut that opened the panel are still down.
    if (modifiers.testFlag(Modifier::control))
        modifiers &= ~(Modifier::control | Modifier::command);
    KeyMeaning meaning;
    if (!modifiers)
        meaning.command = plainCommand(key, isFieldEmpty);
    else if (modifiers == Modifier::shift)
        meaning.command = shiftedCommand(key);
    else if (modifiers == Modifier::command)
        meaning.command = controlledCommand(key);
    else if (modifiers == Modifier::option && (key == Qt::Key_Return || key == Qt::Key_Enter))
        meaning.command = Command::enterPlain;
    if (!modifiers && key == Qt::Key_Delete && isFieldEmpty)
        meaning.chord = KeyMeaning::Chord{KeyCode::forwardDelete, Modifier::command};
    const bool rubsOutWord = key == Qt::Key_Backspace && !isFieldEmpty;
    if (!meaning.command && !rubsOutWord && modifiers.testFlag(Modifier::command)) {
        std::optional<KeyCode> keyCode = chordKeyCode(key);
        if (!keyCode)
            keyCode = placedKeyCode(key, place);
        if (keyCode)
            meaning.chord = KeyMeaning::Chord{*keyCode, modifiers};
    }
    return meaning;
}

} // namespace vellumry
