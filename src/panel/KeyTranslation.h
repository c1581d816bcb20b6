// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelModel.h"

#include <Qt>
#include <functional>
#include <optional>

namespace vellumry {

/// What a key pressed in the search field means to the panel: one of its commands, or a chord that the model knows by
/// key and modifiers. Neither: the key belongs to the text.
struct KeyMeaning {
    struct Chord {
        KeyCode keyCode{};
        Modifiers modifiers;
        bool operator==(const Chord&) const = default;
    };
    std::optional<PanelModel::Command> command;
    std::optional<Chord> chord;

    bool operator==(const KeyMeaning&) const = default;
};

/// With Super held, Super and Ctrl count as left over from the shortcut that opened the panel. `isFieldEmpty`: nothing
/// is typed, so the arrows to the sides choose filters instead of moving the caret, and Delete and Ctrl+Backspace mean
/// the clip instead of the text. `place` answers where the key
/// is; it is asked for keys only whose letter no chord has.
[[nodiscard]] KeyMeaning meaningOf(int key, Qt::KeyboardModifiers held, bool isFieldEmpty,
                                   const std::function<std::optional<KeyCode>()>& place = nullptr);

} // namespace vellumry
