// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/UniformType.h"
#include "support/Drafts.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"
#include "support/FakePeerHistories.h"
#include "support/TemporaryHistory.h"
#include "transfer/HistoryExport.h"
#include "transfer/HistoryImport.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {

/// A history, other programs, and a disk to export to.
class TransferWorld : public ::testing::Test {
protected:
    static constexpr Date now = 1795000000;

    TransferWorld() {
        store->setClock([] { return now; });
        HistoryImport::Hooks hooks;
        hooks.clock = [] { return now; };
        hooks.hasRoomForImages = [this] { return hasRoom; };
        hooks.ignoredApps = [] { return QStringList{QStringLiteral("org.example.Ignored")}; };
        import = std::make_unique<HistoryImport>(*store, &peers, DraftBuilder(bookmarks, images), std::move(hooks));
    }
    static std::vector<PasteboardItem> text(const QByteArray& utf8) {
        return {{{{uniformtype::utf8PlainText, utf8}}, QStringList{uniformtype::utf8PlainText}}};
    }
    static PeerClip entry(const QByteArray& utf8, std::optional<Date> copiedAt = std::nullopt) {
        return {text(utf8), copiedAt};
    }
    ImportOutcome importPeer(const char* identifier) {
        return awaited(import->importPeer(QString::fromUtf8(identifier)));
    }
    ImportOutcome importFolder(const QString& folder) { return awaited(import->importFolder(folder)); }
    ExportOutcome exportTo(const QString& folder) { return awaited(exporting.run(folder)); }
    [[nodiscard]] QStringList titles() const {
        QStringList titles;
        for (const ClipRef& clip : store->clips())
            titles.append(clip->title.toString());
        return titles;
    }
    [[nodiscard]] QString path(const char* name) const { return disk.filePath(QString::fromUtf8(name)); }

    QTemporaryDir disk;
    TemporaryHistory history;
    std::unique_ptr<ClipStore> store = history.openStore();
    FakePeerHistories peers;
    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
    bool hasRoom = true;
    std::unique_ptr<HistoryImport> import;
    HistoryExport exporting{*store};
};

} // namespace vellumry
