// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelDrag.h"

#include "history/clips/ClipStore.h"
#include "panel/DragContents.h"
#include "panel/PanelModel.h"

#include <QLineF>
#include <QPointer>
#include <utility>

namespace vellumry {

PanelDrag::PanelDrag(PanelModel& model)
    : m_model(&model) {}

void PanelDrag::press(const QUuid& clip, QPointF place) {
    cancel();
    m_hasStarted = false;
    m_clips.clear();
    m_pressedAt.reset();
    if (m_source == nullptr)
        return;
    if (m_model->selectedCount() >= 2 && m_model->isSelected(clip))
        m_clips = m_model->selectedClipsInCopyOrder();
    else if (const ClipRef one = m_model->store().find(clip))
        m_clips = {one};
    m_pressedAt = place;
    for (const ClipRef& each : m_clips) {
        if (!m_payloads.contains(each->id))
            preload(each->id);
    }
}

QCoro::Task<void> PanelDrag::preload(QUuid id) {
    const QPointer<PanelDrag> self(this);
    const int era = m_era;
    auto loading = m_model->store().payload(id);
    auto payload = co_await loading;
    if (!self || era != m_era || !payload)
        co_return;
    std::erase(m_order, id);
    m_order.push_back(id);
    m_payloads.insert(id, std::move(*payload));
    while (qsizetype(m_order.size()) > mostPreloaded) {
        m_payloads.remove(m_order.front());
        m_order.erase(m_order.begin());
    }
}

void PanelDrag::move(QPointF place) {
    if (m_isActive) {
        m_source->move();
        onMoved();
        return;
    }
    if (m_hasStarted || !m_pressedAt || QLineF(*m_pressedAt, place).length() <= leastDistance)
        return;
    begin();
}

/// What is still being fetched is tried again when the pointer moves on.
void PanelDrag::begin() {
    DragSource::Content content = dragContents(m_clips, m_payloads, m_model->fileStatuses());
    if (content.items.empty() && content.files.empty())
        return;
    const QPointer<PanelDrag> self(this);
    m_hasStarted = true;
    m_isActive = true;
    const auto ended = [self](DragSource::End end) {
        if (!self || !std::exchange(self->m_isActive, false))
            return;
        self->onPhase(end == DragSource::End::dropped ? Phase::dropped : Phase::cancelled);
    };
    if (m_source->begin(std::move(content), ended)) {
        if (m_isActive)
            onPhase(Phase::began);
    } else {
        m_isActive = false;
    }
}

void PanelDrag::release() {
    m_pressedAt.reset();
    if (m_isActive)
        m_source->release();
}

void PanelDrag::cancel() {
    m_pressedAt.reset();
    if (m_isActive)
        m_source->cancel();
}

void PanelDrag::forget() {
    ++m_era;
    m_payloads.clear();
    m_order.clear();
    m_clips.clear();
}

} // namespace vellumry
