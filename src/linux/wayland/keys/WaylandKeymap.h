// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyPositions.h"
#include "linux/wayland/WaylandConnection.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <memory>
#include <optional>

struct xkb_keymap;

namespace vellumry {

/// The keyboard map of the seat: what keys type without modifiers in each of the user's layouts. A US keyboard's as
/// long as there is no keyboard. Follows changes. Main thread.
class WaylandKeymap final : public QObject {
    Q_OBJECT
public:
    explicit WaylandKeymap(std::shared_ptr<WaylandConnection> connection);
    ~WaylandKeymap() override;

    /// The map as text (XKB, version 1).
    [[nodiscard]] QByteArray text() const;
    /// What the key types in the layout that shortcuts go by, in lower case: the first with Latin letters, else the
    /// first.
    [[nodiscard]] std::optional<QString> charactersFor(quint32 evdevCode) const;
    [[nodiscard]] KeyPositions positions() const;
    /// The key that types the letter in that layout, else the one in its place on a US keyboard.
    [[nodiscard]] quint32 keyTyping(char16_t letter, quint32 place) const;
    /// The number of that layout.
    [[nodiscard]] quint32 layout() const { return m_layout; }

private:
    struct Listeners;
    void takeCapabilities(quint32 capabilities);
    void takeKeymap(int descriptor, quint32 size);
    void use(xkb_keymap* keymap);
    [[nodiscard]] std::optional<char16_t> typed(quint32 evdevCode, quint32 layout) const;

    std::shared_ptr<WaylandConnection> m_connection;
    WaylandPointer<wl_keyboard> m_keyboard;
    WaylandPointer<xkb_keymap> m_keymap;
    quint32 m_layout = 0;
};

} // namespace vellumry
