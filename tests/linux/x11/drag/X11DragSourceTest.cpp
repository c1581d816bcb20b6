// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/X11DragSource.h"

#include "foundation/UniformType.h"
#include "linux/x11/drag/DropTarget.h"
#include "linux/x11/selection/X11PasteboardWorld.h"
#include "support/Eventually.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

using namespace vellumry;

namespace {

/// A drag over two windows of other programs; the pointer begins beside both.
class X11DragSourceTest : public X11PasteboardWorld {
protected:
    void SetUp() override {
        X11PasteboardWorld::SetUp();
        QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
        left = std::make_unique<DropTarget>(display, qint16(0));
        right = std::make_unique<DropTarget>(display, qint16(200));
        source = std::make_unique<X11DragSource>(display);
    }
    bool begin(DragSource::Content content) {
        return source->begin(std::move(content), [this](DragSource::End end) { ends.push_back(end); });
    }
    bool beginText(const QByteArray& text = "dragged") {
        return begin({{PasteboardItem{{{uniformtype::utf8PlainText, text}}, std::nullopt}}, {}});
    }
    bool until(const std::function<bool()>& condition) {
        return eventually([&] {
            left->work();
            right->work();
            return condition();
        });
    }
    void dropWhereItIsReadButNotAccepted() {
        left->accepts = false;
        ASSERT_TRUE(beginText());
        pointAt(50, 50);
        EXPECT_EQ(ask(peer(), "UTF8_STRING", "XdndSelection").bytes, "dragged");
        source->release();
    }
    void pointAt(qint16 x, qint16 y) {
        left->point(x, y);
        source->move();
    }
    [[nodiscard]] bool isServing() { return left->hasOwner("XdndSelection"); }
    [[nodiscard]] QStringList folders() const {
        return QDir(runtime.path()).entryList({QStringLiteral("vellumry-drag-*")}, QDir::Dirs);
    }
    [[nodiscard]] static DragSource::Content picture() {
        return {{PasteboardItem{{{uniformtype::png, "bytes"}}, std::nullopt}}, {{QStringLiteral("a b.png"), "bytes"}}};
    }

    QTemporaryDir runtime;
    std::unique_ptr<DropTarget> left;
    std::unique_ptr<DropTarget> right;
    std::vector<DragSource::End> ends; // a source that goes ends its drag
    std::unique_ptr<X11DragSource> source;
};

} // namespace

TEST_F(X11DragSourceTest, TheWindowBelowIsToldWhatComesAndGetsItWhenItIsDropped) {
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    EXPECT_EQ(left->version, 5U);
    EXPECT_TRUE(left->types.contains("UTF8_STRING"));
    EXPECT_TRUE(left->types.contains("text/plain"));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::dropped});
    EXPECT_EQ(ask(peer(), "UTF8_STRING", "XdndSelection").bytes, "dragged");
    left->finish();
    EXPECT_TRUE(until([&] { return !isServing(); })) << "nothing is kept once it has been read";
    EXPECT_TRUE(right->heard.isEmpty());
}

TEST_F(X11DragSourceTest, AWindowThatThePointerLeavesIsTold) {
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    pointAt(250, 50);
    ASSERT_TRUE(until([&] { return right->hears("XdndPosition"); }));
    EXPECT_TRUE(until([&] { return left->hears("XdndLeave"); }));
    source->cancel();
    EXPECT_TRUE(until([&] { return right->hears("XdndLeave"); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::refused});
    EXPECT_TRUE(until([&] { return !isServing(); }));
}

TEST_F(X11DragSourceTest, AWindowThatDoesNotWantItRefuses) {
    left->accepts = false;
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    EXPECT_TRUE(until([&] { return !ends.empty(); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::refused});
    EXPECT_FALSE(left->hears("XdndDrop"));
}

TEST_F(X11DragSourceTest, WhereNoWindowTakesDropsItIsRefusedAtOnce) {
    ASSERT_TRUE(beginText());
    pointAt(150, 300);
    source->release();
    EXPECT_EQ(ends, std::vector{DragSource::End::refused});
}

TEST_F(X11DragSourceTest, AWindowThatSpeaksAnOlderVersionIsSpokenToInIt) {
    left = std::make_unique<DropTarget>(display, qint16(0), 4);
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndEnter"); }));
    EXPECT_EQ(left->version, 4U);
    source->cancel();
}

TEST_F(X11DragSourceTest, AWindowThatNeverAnswersDoesNotKeepTheDrag) {
    left->answers = false;
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    source->release();
    EXPECT_TRUE(ends.empty()) << "it may answer yet";
    EXPECT_TRUE(until([&] { return !ends.empty(); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::refused});
}

TEST_F(X11DragSourceTest, TheDropWaitsForAnAnswerThatIsUnderWay) {
    left->answers = false;
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    pointAt(60, 60);
    source->release();
    left->answers = true;
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::dropped});
}

TEST_F(X11DragSourceTest, AWindowThatReadsBeforeItAcceptsIsAskedAgain) {
    ASSERT_NO_FATAL_FAILURE(dropWhereItIsReadButNotAccepted());
    ASSERT_TRUE(until([&] { return left->heard.count("XdndPosition") > 1; }));
    EXPECT_TRUE(ends.empty()) << "it has read what it is offered, and may take it";
    left->accepts = true;
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::dropped});
}

TEST_F(X11DragSourceTest, AWindowThatReadsAndNeverAcceptsDoesNotKeepTheDrag) {
    ASSERT_NO_FATAL_FAILURE(dropWhereItIsReadButNotAccepted());
    EXPECT_TRUE(until([&] { return !ends.empty(); }));
    EXPECT_EQ(ends, std::vector{DragSource::End::refused});
    EXPECT_FALSE(left->hears("XdndDrop"));
}

TEST_F(X11DragSourceTest, LongContentsGoInIncrements) {
    const QByteArray pattern = patternOf(3'000'000).toHex();
    ASSERT_TRUE(beginText(pattern));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    EXPECT_EQ(ask(peer(), "UTF8_STRING", "XdndSelection").bytes, pattern);
}

TEST_F(X11DragSourceTest, AFileInMemoryLiesInAPrivateFolderAndGoesWhenItIsRefused) {
    ASSERT_TRUE(begin(picture()));
    ASSERT_EQ(folders().size(), 1);
    const QString folder = runtime.filePath(folders().first());
    EXPECT_EQ(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QFile file(folder + QStringLiteral("/a b.png"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "bytes");
    const QByteArray list = ask(peer(), "text/uri-list", "XdndSelection").bytes;
    EXPECT_EQ(list.trimmed(), QUrl::fromLocalFile(file.fileName()).toEncoded());
    EXPECT_EQ(ask(peer(), "image/png", "XdndSelection").bytes, "bytes");
    source->cancel();
    EXPECT_TRUE(folders().isEmpty());
}

TEST_F(X11DragSourceTest, AFileThatWasDroppedStaysForAWhileAndGoesWithTheProgram) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    left->finish();
    ASSERT_TRUE(until([&] { return !isServing(); }));
    EXPECT_EQ(folders().size(), 1);
    source.reset();
    EXPECT_TRUE(folders().isEmpty());
}

TEST_F(X11DragSourceTest, AWindowMaySayWhereTheFileIsToBeSaved) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    EXPECT_EQ(left->types.first(), "XdndDirectSave0");
    EXPECT_EQ(left->offeredName(), "a b.png");
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    const QString saved = runtime.filePath(QStringLiteral("saved here.png"));
    left->askToSave(QUrl::fromLocalFile(saved).toEncoded());
    ASSERT_TRUE(until([&] { return !left->saveAnswer().isEmpty(); }));
    EXPECT_EQ(left->saveAnswer(), "S");
    QFile file(saved);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "bytes");
}

TEST_F(X11DragSourceTest, AFileThatCannotBeSavedIsToldSo) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    left->askToSave("file:///no/such/folder/file.png");
    ASSERT_TRUE(until([&] { return !left->saveAnswer().isEmpty(); }));
    EXPECT_EQ(left->saveAnswer(), "F");
}

TEST_F(X11DragSourceTest, OnAFullDiskNothingIsSavedNorLeftInPart) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    const FileSizeLimit full(0);
    const QString saved = runtime.filePath(QStringLiteral("saved here.png"));
    left->askToSave(QUrl::fromLocalFile(saved).toEncoded());
    ASSERT_TRUE(until([&] { return !left->saveAnswer().isEmpty(); }));
    EXPECT_EQ(left->saveAnswer(), "F");
    EXPECT_FALSE(QFile::exists(saved));
}

TEST_F(X11DragSourceTest, WithoutRoomForItsFileADragDoesNotBegin) {
    const FileSizeLimit full(0);
    EXPECT_FALSE(begin(picture())) << "a file in part would be dropped";
    EXPECT_TRUE(folders().isEmpty());
}

TEST_F(X11DragSourceTest, NothingIsSavedBeforeTheDrop) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    const QString wanted = runtime.filePath(QStringLiteral("too soon.png"));
    left->askToSave(QUrl::fromLocalFile(wanted).toEncoded());
    ASSERT_TRUE(until([&] { return !left->saveAnswer().isEmpty(); }));
    EXPECT_EQ(left->saveAnswer(), "F");
    EXPECT_FALSE(QFile::exists(wanted));
}

TEST_F(X11DragSourceTest, AWindowThatWasNotDroppedOnHasNothingSaved) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    const QString wanted = runtime.filePath(QStringLiteral("not yours.png"));
    right->askToSaveFrom(*left, QUrl::fromLocalFile(wanted).toEncoded());
    ASSERT_TRUE(until([&] { return !right->saveAnswer().isEmpty(); }));
    EXPECT_EQ(right->saveAnswer(), "F");
    EXPECT_FALSE(QFile::exists(wanted));
}

TEST_F(X11DragSourceTest, AFileThatIsThereIsNotReplaced) {
    ASSERT_TRUE(begin(picture()));
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return left->hears("XdndPosition"); }));
    source->release();
    ASSERT_TRUE(until([&] { return left->hears("XdndDrop"); }));
    QFile file(runtime.filePath(QStringLiteral("mine.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    left->askToSave(QUrl::fromLocalFile(file.fileName()).toEncoded());
    ASSERT_TRUE(until([&] { return !left->saveAnswer().isEmpty(); }));
    EXPECT_EQ(left->saveAnswer(), "F");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "mine");
}

TEST_F(X11DragSourceTest, ANewDragEndsTheOneBefore) {
    ASSERT_TRUE(beginText("first"));
    ASSERT_TRUE(beginText("second"));
    EXPECT_EQ(ends, std::vector{DragSource::End::refused});
    EXPECT_EQ(ask(peer(), "UTF8_STRING", "XdndSelection").bytes, "second");
}

TEST_F(X11DragSourceTest, AWindowsProxyHearsInItsPlace) {
    left->setProxy(*right);
    ASSERT_TRUE(beginText());
    pointAt(50, 50);
    ASSERT_TRUE(until([&] { return right->hears("XdndPosition"); }));
    EXPECT_TRUE(left->heard.isEmpty());
    source->release();
    EXPECT_TRUE(until([&] { return right->hears("XdndDrop"); }));
}

TEST(X11DragSource, WithoutAServerNothingIsDragged) {
    X11DragSource source(":4711");
    EXPECT_FALSE(source.begin({{PasteboardItem{{{uniformtype::utf8PlainText, "text"}}, std::nullopt}}, {}},
                              [](DragSource::End) { ADD_FAILURE(); }));
    source.move();
    source.release();
    source.cancel();
}
