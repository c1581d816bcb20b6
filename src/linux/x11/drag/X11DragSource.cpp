// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/X11DragSource.h"

#include "foundation/FileUrl.h"
#include "foundation/UniformType.h"

#include <QPointer>
#include <QTimer>
#include <utility>

namespace vellumry {

struct X11DragSource::Drag {
    std::unique_ptr<XdndSession> session;
    std::unique_ptr<PrivateFiles> files;
    std::function<void(End)> onEnd;
};

X11DragSource::X11DragSource(QByteArray displayName)
    : m_displayName(std::move(displayName)) {}

X11DragSource::~X11DragSource() {
    cancel();
}

bool X11DragSource::begin(Content content, std::function<void(End)> onEnd) {
    cancel();
    const auto drag = std::make_shared<Drag>();
    drag->onEnd = std::move(onEnd);
    if (!content.files.empty()) {
        drag->files = PrivateFiles::write(content.files);
        if (!drag->files)
            return false;
        for (const QString& path : drag->files->paths())
            content.items.push_back({{{uniformtype::fileUrl, fileurl::urlOf(path)}}, std::nullopt});
    }
    std::optional<File> saved;
    if (content.files.size() == 1 && content.items.size() <= 2)
        saved = std::move(content.files.front());
    auto contents = OfferedContents::of(std::move(content.items));
    if (contents->targets().isEmpty())
        return false;
    drag->session = XdndSession::create(m_displayName, std::move(contents), std::move(saved));
    if (!drag->session)
        return false;
    // The session is let go of from the event loop: it calls these itself.
    drag->session->onDecided = [this, weak = std::weak_ptr(drag)](End result) {
        if (const auto ended = weak.lock())
            end(ended, result);
    };
    drag->session->onDone = [self = QPointer(this), drag] {
        drag->session.release()->deleteLater();
        if (self && drag->files)
            self->keep(std::move(drag->files));
    };
    m_drag = drag;
    drag->session->move();
    return true;
}

void X11DragSource::keep(std::unique_ptr<PrivateFiles> files) {
    const std::shared_ptr<PrivateFiles> kept(std::move(files));
    m_kept.push_back(kept);
    QTimer::singleShot(fileTime, this, [this, weak = std::weak_ptr(kept)] { std::erase(m_kept, weak.lock()); });
}

void X11DragSource::end(const std::shared_ptr<Drag>& drag, End end) {
    if (m_drag == drag)
        m_drag.reset();
    if (end == End::refused)
        drag->files.reset();
    if (const auto onEnd = std::exchange(drag->onEnd, nullptr))
        onEnd(end);
}

void X11DragSource::move() {
    if (const auto drag = m_drag)
        drag->session->move();
}

void X11DragSource::release() {
    if (const auto drag = m_drag)
        drag->session->release();
}

void X11DragSource::cancel() {
    if (const auto drag = m_drag)
        drag->session->cancel();
}

} // namespace vellumry
