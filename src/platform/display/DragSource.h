// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteboardItem.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <vector>

namespace vellumry {

/// Drags things out of a window of ours into other programs, while a button that went down there is held. The window
/// that was pressed keeps hearing of the pointer and tells it here. Main thread; nothing waits for another program.
class DragSource {
public:
    /// A file that is in memory only. Programs that take files get one of that name.
    struct File {
        QString name;
        QByteArray bytes;
    };
    struct Content {
        std::vector<PasteboardItem> items; ///< as the pasteboard would have them
        std::vector<File> files;
    };
    enum class End : quint8 {
        dropped, ///< something took it; its bytes may be asked for some time yet
        refused  ///< nothing did, or the drag was cancelled
    };

    virtual ~DragSource() = default;
    /// False when the display server does not let us; `onEnd` is then never called, else once.
    virtual bool begin(Content content, std::function<void(End)> onEnd) = 0;
    /// The pointer has moved, to wherever it is now.
    virtual void move() = 0;
    /// The button was released: drops, or ends as refused; what lies below may take a moment to say which.
    virtual void release() = 0;
    /// Ends the drag as refused. Nothing without one.
    virtual void cancel() = 0;
};

} // namespace vellumry
