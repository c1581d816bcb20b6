// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/Descriptor.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <poll.h>
#include <vector>

namespace vellumry {

/// A connection to what keeps the selections of a session, in the terms of Wayland's data control. One thread.
class SelectionControl {
public:
    /// What another program, or this one, put on a selection.
    class Offer {
    public:
        virtual ~Offer() = default;
        [[nodiscard]] const QStringList& mimeTypes() const { return m_mimeTypes; }
        /// The list was so long that it was not kept: what was not looked at might refuse the copy.
        [[nodiscard]] bool isTooLong() const { return m_isTooLong; }
        /// Asks for the bytes of a type. The owner writes them into the pipe whose reading end this is; not open when
        /// the system has no pipe to give.
        [[nodiscard]] virtual Descriptor receive(const QString& mimeType) const = 0;

    protected:
        void addType(const QString& name);

    private:
        QStringList m_mimeTypes;
        bool m_isTooLong = false;
    };

    /// What we put on a selection, until it is destroyed. The callbacks are not called any more from then on.
    class Source {
    public:
        virtual ~Source() = default;
        /// Another client wants the bytes of a type.
        std::function<void(const QString& mimeType, Descriptor pipe)> onSend;
        /// During `onSend`: it is the session's own keeper, which copies what is new, as far as that is known.
        bool isForKeeper = false;
        /// Another source has taken its place.
        std::function<void()> onCancelled;
    };

    virtual ~SelectionControl() = default;

    /// The clipboard changed; null when it is empty now.
    std::function<void(std::unique_ptr<Offer> offer)> onSelection;

    [[nodiscard]] virtual bool isBroken() const = 0;
    /// False where the primary selection cannot be owned.
    [[nodiscard]] virtual bool hasPrimary() const = 0;
    /// False while there is no clipboard.
    [[nodiscard]] virtual bool hasDevice() const = 0;
    [[nodiscard]] virtual std::unique_ptr<Source> makeSource(const QStringList& mimeTypes) = 0;
    /// Null empties the selection. A source can be used once.
    virtual void setSelection(const Source* source) = 0;
    virtual void setPrimarySelection(const Source* source) = 0;
    /// Calls back when all that was asked before is done, and what came of it has been told.
    virtual void sync(std::function<void()> done) = 0;
    /// Waits for that, at the start. False when the connection broke.
    virtual bool roundTrip() = 0;

    /// To be called before poll(2): dispatches the events already read, flushes requests, and adds the descriptors to
    /// poll. `finishWait` must follow, whatever poll returned.
    virtual void prepareWait(std::vector<pollfd>& descriptors) = 0;
    /// To be called after poll(2): reads and dispatches new events.
    virtual void finishWait(const std::vector<pollfd>& descriptors) = 0;
    /// Flushes pending requests, before the connection is closed.
    virtual void flush() = 0;

protected:
    /// A pipe for the bytes of an offer: reading end and writing end; not open when the system has none to give.
    struct Pipe {
        Descriptor reading;
        Descriptor writing;
    };
    [[nodiscard]] static Pipe makePipe();
};

} // namespace vellumry
