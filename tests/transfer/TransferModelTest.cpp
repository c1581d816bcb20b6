// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/TransferModel.h"

#include "transfer/TransferWorld.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QSemaphore>

namespace vellumry {
namespace {

class TransferModelTest : public TransferWorld {
protected:
    [[nodiscard]] TransferModel::Hooks hooks() {
        TransferModel::Hooks hooks;
        hooks.imported = [this] { return imported; };
        hooks.noteImported = [this](const QString& identifier) { imported.append(identifier); };
        hooks.onImported = [this] { ++arrivals; };
        hooks.home = disk.path();
        return hooks;
    }
    void settle() {
        runUntil([this] { return !model.isBusy() && !model.isLooking(); });
    }
    [[nodiscard]] QVariant shown(int line, int role) {
        return model.histories()->data(model.histories()->index(line), role);
    }

    QStringList imported;
    int arrivals = 0;
    TransferModel model{*import, exporting, hooks()};
};

TEST_F(TransferModelTest, SaysWhatEachHistoryHoldsBeforeItIsImported) {
    const QAbstractItemModelTester tester(model.histories());
    peers.add(QStringLiteral("peer"), {entry("a"), entry("b")}, now - 10);
    model.look();
    EXPECT_TRUE(model.isLooking());
    settle();
    ASSERT_EQ(model.historyCount(), 1);
    EXPECT_EQ(shown(0, HistoryListModel::ProgramRole), QStringLiteral("PEER"));
    EXPECT_EQ(shown(0, HistoryListModel::ContentsRole), QStringLiteral("2 items"));
    EXPECT_EQ(shown(0, HistoryListModel::IsDoneRole), false);
    EXPECT_TRUE(store->clips().empty()) << "nothing is taken unasked";
    model.importHistory(0);
    EXPECT_TRUE(model.isBusy());
    settle();
    EXPECT_EQ(model.message(), QStringLiteral("2 clips were imported."));
    EXPECT_EQ(imported, QStringList{QStringLiteral("peer")});
    EXPECT_EQ(shown(0, HistoryListModel::IsDoneRole), true);
    EXPECT_EQ(arrivals, 1);
    ASSERT_TRUE(model.canUndo());
    model.undoImport();
    settle();
    EXPECT_TRUE(store->clips().empty());
    EXPECT_FALSE(model.canUndo());
}

TEST_F(TransferModelTest, ContentsAreWholeSentencesWhateverTheState) {
    using State = PeerHistory::State;
    const auto contents = [](State state, int clips, int pictures) {
        return HistoryListModel::contentsOf({QString(), QString(), state, clips, pictures});
    };
    EXPECT_EQ(contents(State::whole, 1204, 3), QStringLiteral("1204 items, 3 of them pictures"));
    EXPECT_EQ(contents(State::whole, 9, 1), QStringLiteral("9 items, one of them a picture"));
    EXPECT_EQ(contents(State::damaged, 4, 0), QStringLiteral("Damaged. What can be read: 4 items"));
    EXPECT_EQ(contents(State::damaged, 0, 0), QStringLiteral("Damaged: nothing in it can be read"));
    EXPECT_EQ(contents(State::locked, 0, 0), QStringLiteral("Encrypted: nothing in it can be read"));
}

TEST_F(TransferModelTest, WhatComesDuringASearchIsFoundByTheNext) {
    QSemaphore isRead;
    QSemaphore goOn;
    peers.onFound = [&isRead, &goOn] {
        isRead.release();
        goOn.acquire();
    };
    model.look();
    isRead.acquire();
    peers.add(QStringLiteral("peer"), {entry("a")}, now - 10);
    model.look();
    goOn.release(2);
    settle();
    EXPECT_FALSE(model.isLooking());
    EXPECT_EQ(model.historyCount(), 1);
}

TEST_F(TransferModelTest, OneThingAtATime) {
    peers.add(QStringLiteral("peer"), {entry("a")}, now - 10);
    model.look();
    settle();
    model.importHistory(0);
    model.exportTo(QStringLiteral("out"));
    model.importHistory(-1);
    model.importHistory(1);
    settle();
    EXPECT_FALSE(QFileInfo::exists(path("out")));
    EXPECT_EQ(store->clips().size(), 1U);
}

TEST_F(TransferModelTest, AFolderIsNamedFromTheHomeFolder) {
    awaited(store->add(drafts::text(QStringLiteral("a")), now - 10));
    const QString suggested = model.suggestedFolder();
    EXPECT_TRUE(suggested.startsWith(disk.path()));
    QDir().mkpath(suggested);
    EXPECT_NE(model.suggestedFolder(), suggested);
    model.exportTo(QStringLiteral(" ~/out "));
    settle();
    EXPECT_TRUE(QFileInfo::exists(path("out/index.json")));
    model.exportTo(QStringLiteral("  "));
    EXPECT_FALSE(model.isBusy());
    awaited(store->clearHistory(false));
    model.importFolder(QStringLiteral("out"));
    settle();
    EXPECT_EQ(store->clips().size(), 1U);
    model.importFolder(QStringLiteral("elsewhere"));
    settle();
    EXPECT_EQ(model.message(), path("elsewhere") + QStringLiteral(" holds no finished export of Vellumry."));
    model.forgetMessage();
    EXPECT_TRUE(model.message().isEmpty());
}

} // namespace
} // namespace vellumry
