// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/KeyTranslation.h"

#include "paste/Shortcut.h"

#include <limits>

namespace vellumry {

namespace {

using Command = PanelModel::Command;

/// The key codes of the chords by what the key types: the letter counts, wherever the layout has it.
std::optional<quint16> chordKeyCode(int key) {
    if (key >= Qt::Key_1 && key <= Qt::Key_9)
        return keyCodeOfDigit(key - Qt::Key_0);
    switch (key) {
    case Qt::Key_Backspace:
        return 51;
    case Qt::Key_Delete:
        return 117;
    case Qt::Key_Z:
        return 6;
    case Qt::Key_P:
        return 35;
    case Qt::Key_M:
        return 46;
    case Qt::Key_Q:
        return 12;
    case Qt::Key_W:
        return 13;
    case Qt::Key_C:
        return 8;
    case Qt::Key_T:
        return 17;
    default:
        return std::nullopt;
    }
}

/// French keyboards type digits with Shift only, and Russian ones no Latin letters: there the key's place counts.
std::optional<quint16> placedKeyCode(int key, const std::function<std::optional<quint32>()>& place) {
    constexpr int lastOfLatin1 = 0xFF;
    if (!place || key >= Qt::Key_Escape) // from there on keys type nothing
        return std::nullopt;
    const std::optional<quint32> keyCode = place();
    if (!keyCode || *keyCode > std::numeric_limits<quint16>::max())
        return std::nullopt;
    if (key <= lastOfLatin1 && !digitOfKeyCode(quint16(*keyCode)))
        return std::nullopt;
    return quint16(*keyCode);
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

quint32 eventFlags(Qt::KeyboardModifiers modifiers) {
    quint32 flags = 0;
    if (modifiers & Qt::ControlModifier)
        flags |= eventflag::command;
    if (modifiers & Qt::MetaModifier)
        flags |= eventflag::control;
    if (modifiers & Qt::AltModifier)
        flags |= eventflag::option;
    if (modifiers & Qt::ShiftModifier)
        flags |= eventflag::shift;
    return flags;
}

KeyMeaning meaningOf(int key, Qt::KeyboardModifiers modifiers, bool isFieldEmpty,
                     const std::function<std::optional<quint32>()>& place) {
    quint32 flags = eventFlags(modifiers);
    // Quick fingers choose while the keys of the shortcut that opened the panel are still down.
    if ((flags & eventflag::control) != 0)
        flags &= ~(eventflag::control | eventflag::command);
    KeyMeaning meaning;
    if (flags == 0)
        meaning.command = plainCommand(key, isFieldEmpty);
    else if (flags == eventflag::shift)
        meaning.command = shiftedCommand(key);
    else if (flags == eventflag::command)
        meaning.command = controlledCommand(key);
    else if (flags == eventflag::option && (key == Qt::Key_Return || key == Qt::Key_Enter))
        meaning.command = Command::enterPlain;
    constexpr quint16 forwardDelete = 117;
    if (flags == 0 && key == Qt::Key_Delete && isFieldEmpty)
        meaning.chord = KeyMeaning::Chord{forwardDelete, eventflag::command};
    const bool rubsOutWord = key == Qt::Key_Backspace && !isFieldEmpty;
    if (!meaning.command && !rubsOutWord && (flags & eventflag::command) != 0) {
        std::optional<quint16> keyCode = chordKeyCode(key);
        if (!keyCode)
            keyCode = placedKeyCode(key, place);
        if (keyCode)
            meaning.chord = KeyMeaning::Chord{*keyCode, flags};
    }
    return meaning;
}

} // namespace vellumry
