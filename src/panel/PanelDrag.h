// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QCoroTask>
#include <QHash>
#include <QObject>
#include <QPointF>
#include <QSet>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

class DragSource;
class PanelModel;

/// A drag of clips out of the panel, from the press on a row to its end. The press already fetches what the drag would
/// carry. Main thread.
class PanelDrag : public QObject {
    Q_OBJECT

public:
    enum class Phase : quint8 { began, dropped, cancelled };
    /// How far the pointer goes before a press becomes a drag.
    static constexpr double leastDistance = 4;
    /// Clips whose payloads are kept for the next drag, beside those that this one would carry.
    static constexpr qsizetype mostPreloaded = 12;

    /// `model` must outlive this.
    explicit PanelDrag(PanelModel& model);

    /// Without a source nothing is ever dragged. It must outlive this.
    void setSource(DragSource* source) { m_source = source; }
    /// A button went down on a row. The drag carries the selection where the row is one of several selected.
    void press(const QUuid& clip, QPointF place);
    void move(QPointF place);
    /// The button is up: a drag drops.
    void release();
    /// The drag ends with nothing dropped. Nothing without one.
    void cancel();
    /// Lets go of what was fetched.
    void forget();

    /// The pointer carries clips.
    [[nodiscard]] bool isActive() const { return m_isActive; }
    /// A drag has begun since the last press, or will as soon as its content is there.
    [[nodiscard]] bool hasStarted() const { return m_hasStarted || m_dropsAtOnce; }
    /// What the drag carries.
    [[nodiscard]] const std::vector<ClipRef>& clips() const { return m_clips; }
    /// How many payloads are at hand.
    [[nodiscard]] qsizetype preloaded() const { return m_payloads.size(); }

    std::function<void(Phase)> onPhase = [](Phase) {};
    std::function<void()> onMoved = [] {};

private:
    QCoro::Task<void> preload(QUuid id);
    void keep(const QUuid& id, ClipPayload payload);
    void dropOldest();
    [[nodiscard]] bool carries(const QUuid& id) const;
    [[nodiscard]] bool isWaiting() const;
    void catchUp();
    void begin();

    PanelModel* m_model;
    DragSource* m_source = nullptr;
    std::optional<QPointF> m_pressedAt;
    bool m_isFar = false;       ///< enough for a drag, if there were something to drag
    bool m_dropsAtOnce = false; ///< when there is: the button is up already
    std::vector<ClipRef> m_clips;
    bool m_hasStarted = false;
    bool m_isActive = false;
    QHash<QUuid, ClipPayload> m_payloads;
    QSet<QUuid> m_fetched;      ///< being fetched
    std::vector<QUuid> m_order; ///< of `m_payloads`, the oldest first
    int m_era = 0;              ///< grows when what was fetched is let go of
};

} // namespace vellumry
