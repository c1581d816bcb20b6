// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelDrag.h"

#include "history/clips/ClipStore.h"
#include "panel/DragContents.h"
#include "panel/PanelModel.h"

#include <QLineF>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace vellumry {

PanelDrag::PanelDrag(PanelModel& model)
    : m_model(&model) {}

void PanelDrag::press(const QUuid& clip, QPointF place) {
    cancel();
    m_hasStarted = false;
    m_isFar = false;
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
        if (!m_payloads.contains(each->id) && !m_fetched.contains(each->id))
            preload(each->id);
    }
    dropOldest();
}

QCoro::Task<void> PanelDrag::preload(QUuid id) {
    const QPointer<PanelDrag> self(this);
    const int era = m_era;
    m_fetched.insert(id);
    auto loading = m_model->store().payload(id);
    auto payload = co_await loading;
    if (!self || era != m_era)
        co_return;
    m_fetched.remove(id);
    if (payload)
        keep(id, std::move(*payload));
    catchUp();
}

/// A quick hand is where it goes, and may have let go, before the content is here.
void PanelDrag::catchUp() {
    if (isWaiting() || m_hasStarted || !m_isFar || (!m_pressedAt && !m_dropsAtOnce))
        return;
    begin();
    if (std::exchange(m_dropsAtOnce, false) && m_isActive)
        m_source->release();
}

void PanelDrag::keep(const QUuid& id, ClipPayload payload) {
    std::erase(m_order, id);
    m_order.push_back(id);
    m_payloads.insert(id, std::move(payload));
    dropOldest();
}

/// What the drag carries stays, however much that is: nothing of it may be missing where it is dropped.
void PanelDrag::dropOldest() {
    for (std::size_t index = 0; index < m_order.size() && qsizetype(m_order.size()) > mostPreloaded;) {
        if (carries(m_order[index])) {
            ++index;
            continue;
        }
        m_payloads.remove(m_order[index]);
        m_order.erase(m_order.begin() + std::ptrdiff_t(index));
    }
}

bool PanelDrag::carries(const QUuid& id) const {
    return std::ranges::any_of(m_clips, [&](const ClipRef& clip) { return clip->id == id; });
}

bool PanelDrag::isWaiting() const {
    return std::ranges::any_of(m_clips, [this](const ClipRef& clip) {
        return clip->kind != ClipKind::file && m_fetched.contains(clip->id); // files are where they are
    });
}

void PanelDrag::move(QPointF place) {
    if (m_isActive) {
        m_source->move();
        onMoved();
        return;
    }
    if (m_hasStarted || !m_pressedAt || QLineF(*m_pressedAt, place).length() <= leastDistance)
        return;
    m_isFar = true;
    begin();
}

/// With everything that it carries: while something is being fetched, that calls it again.
void PanelDrag::begin() {
    if (isWaiting())
        return;
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
    m_dropsAtOnce = m_pressedAt && m_isFar && !m_hasStarted && isWaiting();
    m_pressedAt.reset();
    if (m_isActive)
        m_source->release();
}

void PanelDrag::cancel() {
    m_pressedAt.reset();
    m_dropsAtOnce = false;
    if (m_isActive)
        m_source->cancel();
}

void PanelDrag::forget() {
    ++m_era;
    m_dropsAtOnce = false;
    m_fetched.clear();
    m_payloads.clear();
    m_order.clear();
    m_clips.clear();
}

} // namespace vellumry
