// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/wayland/selection/SelectionControl.h"
#include "support/Awaited.h"

#include <map>

namespace vellumry {

class WaylandPasteboard;

/// The pasteboard of the session, as the program has it: by data control, else by our extension of GNOME's shell.
[[nodiscard]] std::unique_ptr<WaylandPasteboard> pasteboardOfSession(const PasteboardLimits& limits = {});

/// A key of the user's, by $VELLUMRY_TYPE.
void pressKey(const char* key);

/// Another program of the session, which copies and pastes whichever window has the keyboard, well-behaved or not.
class WaylandPeer {
public:
    WaylandPeer();

    /// Takes the clipboard with these contents. A type without bytes is offered and never given.
    void copy(const std::map<QString, std::optional<QByteArray>>& contents);
    void copyText(const QByteArray& text) { copy({{QStringLiteral("text/plain;charset=utf-8"), text}}); }
    /// Gives what was asked for of a type that it had no bytes for.
    void answerLate(const QByteArray& bytes);
    /// Copies, and ends before anybody has asked.
    void letGo();

    /// What the clipboard offers now.
    [[nodiscard]] QStringList types();
    /// The bytes of a type of the clipboard, as another program's paste gets them.
    [[nodiscard]] QByteArray paste(const QString& type = QStringLiteral("text/plain;charset=utf-8"));
    /// Asks for a type, for `pasted` to read, or for nothing.
    [[nodiscard]] Descriptor askOnly(const QString& type);
    /// All that comes out of the pipe of a type that was asked for.
    [[nodiscard]] QByteArray pasted(const Descriptor& pipe);
    /// How often the clipboard has changed its owner since this program began.
    [[nodiscard]] int changes();
    /// Lets the main thread and this program run until it is true; throws when it does not come true.
    void until(const std::function<bool()>& isDone);
    [[nodiscard]] int sends() const { return m_sends; }
    /// How often the compositor itself reads what is new: GNOME keeps a copy of it.
    [[nodiscard]] int keepersReadings() const { return m_hasKeeper ? 1 : 0; }

private:
    void turn();

    std::unique_ptr<SelectionControl> m_control;
    std::unique_ptr<SelectionControl::Offer> m_offer;
    std::unique_ptr<SelectionControl::Source> m_source;
    std::vector<Descriptor> m_unanswered;
    int m_changes = 0;
    int m_sends = 0;
    bool m_hasKeeper = false;
};

} // namespace vellumry
