// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipFilter.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

Clip clipOfKind(ClipKind kind) {
    Clip clip;
    clip.kind = kind;
    return clip;
}

QStringList passedBy(const Clip& clip) {
    QStringList names;
    for (const ClipFilter filter : allClipFilters) {
        if (passes(clip, filter))
            names.append(rawValue(filter));
    }
    return names;
}

TEST(ClipFilter, EachKindPassesItsOwnFilter) {
    EXPECT_EQ(passedBy(clipOfKind(ClipKind::text)), (QStringList{u"all"_s, u"text"_s}));
    EXPECT_EQ(passedBy(clipOfKind(ClipKind::richText)), (QStringList{u"all"_s, u"text"_s}));
    EXPECT_EQ(passedBy(clipOfKind(ClipKind::link)), (QStringList{u"all"_s, u"links"_s}));
    EXPECT_EQ(passedBy(clipOfKind(ClipKind::image)), (QStringList{u"all"_s, u"images"_s}));
    EXPECT_EQ(passedBy(clipOfKind(ClipKind::file)), (QStringList{u"all"_s, u"files"_s}));
    EXPECT_EQ(passedBy(clipOfKind(ClipKind::color)), (QStringList{u"all"_s, u"colors"_s}));
}

TEST(ClipFilter, AnImageFileIsBothImageAndFile) {
    Clip clip = clipOfKind(ClipKind::file);
    clip.files = {{u"/a/b.png"_s, u"b.png"_s, std::nullopt}};
    clip.isPinned = true;
    EXPECT_EQ(passedBy(clip), (QStringList{u"all"_s, u"images"_s, u"files"_s, u"pinned"_s}));
}

} // namespace
} // namespace vellumry
