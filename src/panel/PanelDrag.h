// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QCoroTask>
#include <QHash>
#include <QObject>
#include <QPointF>
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
    /// Clips whose payloads are kept for the next drag.
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
    /// A drag has begun since the last press.
    [[nodiscard]] bool hasStarted() const { return m_hasStarted; }
    /// What the drag carries.
    [[nodiscard]] const std::vector<ClipRef>& clips() const { return m_clips; }
    /// Whether that clip's payload is at hand.
    [[nodiscard]] bool isPreloaded(const QUuid& id) const { return m_payloads.contains(id); }

    std::function<void(Phase)> onPhase = [](Phase) {};
    std::function<void()> onMoved = [] {};

private:
    QCoro::Task<void> preload(QUuid id);
    void begin();

    PanelModel* m_model;
    DragSource* m_source = nullptr;
    std::optional<QPointF> m_pressedAt;
    std::vector<ClipRef> m_clips;
    bool m_hasStarted = false;
    bool m_isActive = false;
    QHash<QUuid, ClipPayload> m_payloads;
    std::vector<QUuid> m_order; ///< of `m_payloads`, the oldest first
    int m_era = 0;              ///< grows when what was fetched is let go of
};

} // namespace vellumry
