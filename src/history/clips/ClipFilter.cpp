// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipFilter.h"

namespace vellumry {

bool passes(const Clip& clip, ClipFilter filter) {
    switch (filter) {
    case ClipFilter::all:
        return true;
    case ClipFilter::text:
        return clip.kind == ClipKind::text || clip.kind == ClipKind::richText;
    case ClipFilter::links:
        return clip.kind == ClipKind::link;
    case ClipFilter::images:
        return clip.kind == ClipKind::image || clip.isImageFile();
    case ClipFilter::files:
        return clip.kind == ClipKind::file;
    case ClipFilter::colors:
        return clip.kind == ClipKind::color;
    case ClipFilter::pinned:
        return clip.isPinned;
    }
    return false;
}

QString rawValue(ClipFilter filter) {
    switch (filter) {
    case ClipFilter::all:
        return QStringLiteral("all");
    case ClipFilter::text:
        return QStringLiteral("text");
    case ClipFilter::links:
        return QStringLiteral("links");
    case ClipFilter::images:
        return QStringLiteral("images");
    case ClipFilter::files:
        return QStringLiteral("files");
    case ClipFilter::colors:
        return QStringLiteral("colors");
    case ClipFilter::pinned:
        return QStringLiteral("pinned");
    }
    return {};
}

} // namespace vellumry
