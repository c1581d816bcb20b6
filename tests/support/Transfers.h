// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"
#include "support/FakePeerHistories.h"
#include "transfer/HistoryExport.h"
#include "transfer/HistoryImport.h"
#include "transfer/TransferModel.h"

#include <QTemporaryDir>

namespace vellumry {

/// Imports and exports for windows that show them: a history in memory, other programs as a test fills them in.
struct Transfers {
    QTemporaryDir home;
    FakePeerHistories peers;
    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
    ClipStore store{RetentionPolicy()};
    HistoryImport import{store, &peers, DraftBuilder(bookmarks, images), {}};
    HistoryExport exporting{store};
    TransferModel model{import, exporting, {.home = home.path()}};
};

} // namespace vellumry
