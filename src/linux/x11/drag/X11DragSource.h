// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/drag/PrivateFiles.h"
#include "linux/x11/drag/XdndSession.h"
#include "platform/display/DragSource.h"

#include <QObject>
#include <chrono>
#include <memory>
#include <vector>

namespace vellumry {

/// Drags by XDND. Each drag has a connection of its own, so that one whose bytes are still read is no concern of the
/// next; without a nested event loop and without a grab: the window that was pressed has the pointer.
class X11DragSource : public QObject, public DragSource {
    Q_OBJECT

public:
    /// How long files that were dropped stay: programs read them when they like, mail programs at the sending.
    static constexpr std::chrono::minutes fileTime{10};

    /// An empty name is the session's display.
    explicit X11DragSource(QByteArray displayName = {});
    ~X11DragSource() override;

    bool begin(Content content, std::function<void(End)> onEnd) override;
    void move() override;
    void release() override;
    void cancel() override;

private:
    struct Drag;
    void end(const std::shared_ptr<Drag>& drag, End end);
    void keep(std::unique_ptr<PrivateFiles> files);

    QByteArray m_displayName;
    std::shared_ptr<Drag> m_drag;                      ///< under the pointer
    std::vector<std::shared_ptr<PrivateFiles>> m_kept; ///< that were dropped
};

} // namespace vellumry
