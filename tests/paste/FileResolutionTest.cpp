// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/FileResolution.h"
#include "support/Drafts.h"

#include <QTemporaryDir>
#include <future>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

namespace {

const QString one = QStringLiteral("/home/u/one.txt");
const QString two = QStringLiteral("/home/u/two.txt");

std::vector<PasteboardItem> twoFilesAndText() {
    auto items = drafts::files({one, two}).payload.items;
    items.push_back(drafts::text(QStringLiteral("text")).payload.items.front());
    return items;
}

} // namespace

TEST(FileResolution, AsksForEachFileByTheReferenceThatTheClipKept) {
    const FileRef kept{two, QStringLiteral("two.txt"), QByteArray("bookmark")};
    const auto asked = fileresolution::references(twoFilesAndText(), {kept});
    EXPECT_EQ(asked, (std::vector<FileRef>{{one, QStringLiteral("one.txt"), std::nullopt}, kept}));
}

TEST(FileResolution, KeepsWhatIsNoFileAndDropsFilesThatAreGone) {
    const auto moved = QStringLiteral("/home/u/else where/one.txt");
    const auto items = fileresolution::resolved(twoFilesAndText(), {FileStatus::moved(moved), FileStatus::missing()});
    ASSERT_TRUE(items);
    EXPECT_EQ(items->size(), 2u);
    EXPECT_EQ(fileresolution::paths(*items), QStringList{moved});
}

TEST(FileResolution, TextAloneDoesNotStandForFilesThatAreGone) {
    EXPECT_FALSE(fileresolution::resolved(
        twoFilesAndText(), {FileStatus::missing(), FileStatus::volumeUnavailable(QStringLiteral("Stick"))}));
    EXPECT_FALSE(fileresolution::resolved(drafts::text(QStringLiteral("text")).payload.items, {}));
    EXPECT_FALSE(fileresolution::resolved({}, {}));
}

TEST(FileResolution, WaitsForTheDiskWhenAskedToDoItNow) {
    const auto gone = [](const FileRef& file) {
        return file.path == one ? FileStatus::missing() : FileStatus::available(file.path);
    };
    const auto items =
        fileresolution::resolveNow(drafts::files({one, two}).payload.items, {}, gone, std::chrono::minutes(1));
    ASSERT_TRUE(items);
    EXPECT_EQ(fileresolution::paths(*items), QStringList{two});
}

TEST(FileResolution, TakesFilesToBeWhereTheyWereWhenTheDiskHangs) {
    const auto answer = std::make_shared<std::promise<void>>();
    const auto isOver = std::make_shared<std::promise<void>>();
    const auto hanging = [wait = answer->get_future().share(), isOver](const FileRef&) {
        wait.wait();
        isOver->set_value();
        return FileStatus::missing();
    };
    const auto given = drafts::files({one}).payload.items;
    EXPECT_EQ(fileresolution::resolveNow(given, {}, hanging, std::chrono::milliseconds(1)), given);
    answer->set_value();
    isOver->get_future().wait(); // the thread that was left behind ends within the test
}

TEST(FileResolution, TheLooksForMissingFilesHaveOneBudgetAndTheOthersAreFound) {
    QTemporaryDir folder;
    std::vector<FileRef> files;
    for (int index = 0; index < 300; ++index)
        files.push_back({folder.filePath(QString::number(index)), QString::number(index), std::nullopt});
    QFile last(files.back().path);
    ASSERT_TRUE(last.open(QIODevice::WriteOnly));
    std::chrono::steady_clock::time_point now;
    int looks = 0;
    const auto check = [&](const FileRef& file) {
        ++looks;
        if (QFile::exists(file.path))
            return FileStatus::available(file.path);
        now += std::chrono::milliseconds(20);
        return FileStatus::missing();
    };
    const auto statuses =
        fileresolution::statusesOf(files, check, std::chrono::milliseconds(100), [&now] { return now; });
    ASSERT_EQ(statuses.size(), files.size());
    EXPECT_EQ(looks, 6) << "the one that is there, and five that are not";
    EXPECT_EQ(statuses.back(), FileStatus::available(files.back().path));
    EXPECT_EQ(statuses.front(), FileStatus::missing());
}

} // namespace vellumry
