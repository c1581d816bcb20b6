// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XPeer.h"

#include <QByteArray>
#include <QByteArrayList>
#include <chrono>
#include <deque>
#include <map>
#include <optional>
#include <utility>
#include <vector>
#include <xcb/xcb.h>

namespace vellumry {

/// A client of the X server that owns selections and asks for them, written against ICCCM alone so that it shares
/// nothing with what it tests. It keeps the rules or breaks them as told. It works only inside `pump`.
class HostileOwner : public XPeer {
public:
    enum class Manner {
        whole,          ///< in one property
        increments,     ///< INCR, `chunkBytes` at a time
        refusal,        ///< no
        silence,        ///< never answers
        endless,        ///< INCR without an end
        deathHalfWay,   ///< INCR, leaves the server after some chunks
        silenceHalfWay, ///< INCR, stops after some chunks
    };
    struct Offer {
        QByteArray target;
        QByteArray bytes;
        Manner manner = Manner::whole;
        QByteArray type = {}; ///< empty: that of the target
        int format = 8;
        std::optional<quint32> announced = {}; ///< what INCR says; absent: the truth
        std::chrono::milliseconds work{0};     ///< how long it takes to be made; what is asked next waits for it
    };
    struct Answer {
        QByteArray type; ///< empty for a refusal
        int format = 0;
        QByteArray bytes;
        bool wasIncremental = false;
    };

    using XPeer::XPeer;

    /// Takes the selection with the server's time. True when it is ours afterwards.
    bool own(const QByteArray& selection, std::vector<Offer> offers);
    /// Gives the selection up on purpose.
    void clear(const QByteArray& selection);

    /// Asks for one target; the answer arrives in `answers`, under the target.
    void ask(const QByteArray& selection, const QByteArray& target);
    /// Asks, then destroys the window that was to get the answer.
    void askAndVanish(const QByteArray& selection, const QByteArray& target);
    /// MULTIPLE for several targets; their answers arrive like those of `ask`.
    void askForMany(const QByteArray& selection, const QByteArrayList& targets);
    /// Asks, and never takes a chunk.
    void askAndStall(const QByteArray& selection, const QByteArray& target);
    /// True while somebody else wants to know what happens to our window, as in the middle of a transfer.
    [[nodiscard]] bool isWatched();

    /// Shows the window and gives it the keyboard; false when it did not get it.
    [[nodiscard]] bool takeFocus();
    /// Answers now what it kept silent about.
    void breakSilence();

    [[nodiscard]] xcb_timestamp_t serverTime();
    /// Does what is due.
    void pump();

    std::map<QByteArray, Answer> answers;
    QByteArrayList requests; ///< the targets that were asked of us, in order
    std::optional<Manner> targetsManner;
    std::chrono::milliseconds targetsWork{0};        ///< as `Offer::work`, for the list of them
    std::optional<std::vector<quint32>> targetAtoms; ///< in place of the truth
    qsizetype chunkBytes = 64 * 1024;
    int chunksSent = 0;
    bool lostClipboard = false;

private:
    struct Outgoing {
        Offer offer;
        qsizetype offset = 0;
        int chunks = 0;
    };

    struct Incoming {
        QByteArray target;
        Answer collected = {}; ///< what came in increments so far
    };

    using Instant = std::chrono::steady_clock::time_point;
    struct Due {
        xcb_selection_request_event_t request;
        Instant at;
    };

    void handleRequest(const xcb_selection_request_event_t& request);
    [[nodiscard]] std::chrono::milliseconds workFor(const xcb_selection_request_event_t& request);
    void doWork();
    bool answerRequest(const xcb_selection_request_event_t& request);
    void sendChunk(Destination destination);
    void handleNotify(const xcb_selection_notify_event_t& notify);
    void handleProperty(const xcb_property_notify_event_t& change);
    [[nodiscard]] Answer takeProperty(xcb_atom_t property);
    void handle(const xcb_generic_event_t& event);

    std::map<xcb_atom_t, std::vector<Offer>> m_offers;
    std::map<Destination, Outgoing> m_outgoing;
    std::map<xcb_atom_t, Incoming> m_incoming; ///< by property
    std::deque<Due> m_work;                    ///< asked and not done yet
    std::vector<xcb_selection_request_event_t> m_silenced;
    int m_asked = 0;
};

} // namespace vellumry
