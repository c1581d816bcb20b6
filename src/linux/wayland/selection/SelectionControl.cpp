// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/SelectionControl.h"

#include <fcntl.h>

namespace vellumry {

namespace {

/// As for the targets of an X11 selection: the longest lists that were seen have some fifty.
constexpr qsizetype mostTypes = 32 * 1024;
constexpr int pipeBytes = 1024 * 1024;

} // namespace

void SelectionControl::Offer::addType(const QString& name) {
    if (m_mimeTypes.size() == mostTypes)
        m_isTooLong = true;
    else if (!name.isEmpty())
        m_mimeTypes.append(name);
}

SelectionControl::Pipe SelectionControl::makePipe() {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        return Pipe{Descriptor(), Descriptor()};
    Pipe pipe{Descriptor(ends[0]), Descriptor(ends[1])};
    // Our end alone: owners need not expect that writing fails for a moment.
    fcntl(pipe.reading.get(), F_SETFL, O_NONBLOCK);
    (void)fcntl(pipe.reading.get(), F_SETPIPE_SZ, pipeBytes);
    return pipe;
}

} // namespace vellumry
