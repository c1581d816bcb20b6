// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewContent.h"

#include <gtest/gtest.h>

using namespace vellumry;
using Action = PreviewContent::Action;
using Body = PreviewContent::Body;

namespace {

std::shared_ptr<Clip> clipOf(ClipKind kind, const char* text) {
    auto clip = std::make_shared<Clip>();
    clip->id = QUuid::createUuid();
    clip->kind = kind;
    clip->title = QString::fromUtf8(text);
    clip->searchText = QString::fromUtf8(text);
    clip->sourceAppName = QStringLiteral("Writer");
    return clip;
}

std::shared_ptr<Clip> filesOf(const QStringList& paths) {
    auto clip = clipOf(ClipKind::file, "files");
    for (const QString& path : paths)
        clip->files.push_back({path, path.section(u'/', -1), std::nullopt});
    return clip;
}

PreviewContent preview(std::vector<ClipRef> clips, std::vector<FileStatus> statuses = {}) {
    PreviewSources sources;
    sources.clips = std::move(clips);
    sources.files = [statuses = std::move(statuses)](const QUuid&) { return statuses; };
    return previewContent(sources);
}

std::vector<Action> actionsOf(const PreviewContent& content) {
    std::vector<Action> actions;
    for (const auto& button : content.buttons)
        actions.push_back(button.action);
    return actions;
}

const PreviewContent::Button* button(const PreviewContent& content, Action action) {
    const auto found = std::ranges::find(content.buttons, action, &PreviewContent::Button::action);
    return found == content.buttons.end() ? nullptr : &*found;
}

} // namespace

TEST(PreviewContent, WithoutASelectionIsEmpty) {
    EXPECT_EQ(preview({}), PreviewContent());
}

TEST(PreviewContent, OfATextSaysWhereItCameFromAndHowLongItIs) {
    const auto clip = clipOf(ClipKind::text, "grün");
    clip->isPinned = true;
    const auto content = preview({clip});
    EXPECT_EQ(content.body, Body::text);
    EXPECT_EQ(content.text, QString::fromUtf8("grün"));
    EXPECT_EQ(content.details, QString::fromUtf8("Copied from Writer · 4 characters · Pinned clip"));
}

TEST(PreviewContent, OfAnUnknownSourceSaysSo) {
    const auto clip = clipOf(ClipKind::link, "https://example.org");
    clip->sourceAppName.reset();
    EXPECT_EQ(preview({clip}).details, QStringLiteral("Copied from an unknown app"));
}

TEST(PreviewContent, ALongTextIsCountedElsewhere) {
    const auto clip = clipOf(ClipKind::text, "");
    clip->searchText = QString(countedAtOnce + 1, u'a');
    EXPECT_EQ(preview({clip}).details, QStringLiteral("Copied from Writer"));
    PreviewSources sources;
    sources.clips = {clip};
    sources.characters = countedAtOnce + 1;
    EXPECT_EQ(previewContent(sources).details, QString::fromUtf8("Copied from Writer · 20001 characters"));
}

TEST(PreviewContent, TextOfATerminalIsInAFixedWidthFont) {
    const auto clip = clipOf(ClipKind::richText, "ls -l");
    EXPECT_FALSE(preview({clip}).isFixedWidth);
    clip->sourceBundleID = QStringLiteral("com.apple.Terminal");
    EXPECT_TRUE(preview({clip}).isFixedWidth);
    clip->sourceBundleID = QStringLiteral("com.jetbrains.clion");
    EXPECT_TRUE(preview({clip}).isFixedWidth);
}

TEST(PreviewContent, ASensitiveClipIsHiddenWhateverItsKind) {
    for (const ClipKind kind : {ClipKind::text, ClipKind::image, ClipKind::file}) {
        const auto clip = clipOf(kind, "4111 1111 1111 1111");
        clip->expiresAt = 1000;
        clip->imageText = QStringLiteral("4111");
        const auto content = preview({clip});
        EXPECT_EQ(content.body, Body::sensitive);
        EXPECT_EQ(content.text, QString::fromUtf8("Sensitive · deletes itself"));
        EXPECT_EQ(content.expiresAt, std::optional<Date>(1000));
        EXPECT_TRUE(content.textInImage.isEmpty());
        EXPECT_FALSE(content.details.contains(QStringLiteral("characters")));
        EXPECT_FALSE(button(content, Action::transform));
        EXPECT_FALSE(button(content, Action::pasteTextInImage));
    }
}

TEST(PreviewContent, TheCountdownCountsMinutesAndSeconds) {
    EXPECT_EQ(countdownText(0.2), QStringLiteral("Hidden. Deletes itself in 1 s"));
    EXPECT_EQ(countdownText(59.0), QStringLiteral("Hidden. Deletes itself in 59 s"));
    EXPECT_EQ(countdownText(61.0), QStringLiteral("Hidden. Deletes itself in 1:01"));
    EXPECT_EQ(countdownText(-3), QStringLiteral("Hidden. Deletes itself in 0 s"));
}

TEST(PreviewContent, AScreenshotIsLabelled) {
    const auto clip = clipOf(ClipKind::image, "Image");
    clip->isScreenshot = true;
    EXPECT_TRUE(preview({clip}).details.startsWith(QString::fromUtf8("Image · Screenshot")));
}

TEST(PreviewContent, APictureThatWaitsToBeReadSaysSo) {
    const auto clip = clipOf(ClipKind::image, "Image");
    PreviewSources sources;
    sources.clips = {clip};
    sources.isReading = [](const QUuid&) { return true; };
    EXPECT_TRUE(previewContent(sources).isReadingText);
    clip->imageText = QStringLiteral("words");
    const auto content = previewContent(sources);
    EXPECT_FALSE(content.isReadingText);
    EXPECT_EQ(content.textInImage, QStringLiteral("words"));
    EXPECT_TRUE(button(content, Action::pasteTextInImage));
}

TEST(PreviewContent, OffersToReadTheTextOfAPictureFile) {
    const auto picture = filesOf({QStringLiteral("/a/b.png")});
    EXPECT_TRUE(preview({picture}).offersReading);
    picture->imageText = QString();
    EXPECT_FALSE(preview({picture}).offersReading);
    EXPECT_FALSE(preview({filesOf({QStringLiteral("/a/b.txt")})}).offersReading);
    EXPECT_FALSE(preview({clipOf(ClipKind::image, "Image")}).offersReading);
}

TEST(PreviewContent, FilesSayWhereTheyAreNow) {
    const auto clip = filesOf({QStringLiteral("/a/1"), QStringLiteral("/a/2"), QStringLiteral("/a/3"),
                               QStringLiteral("/a/4"), QStringLiteral("/a/5")});
    const auto content =
        preview({clip}, {FileStatus::available(QStringLiteral("/a/1")), FileStatus::moved(QStringLiteral("/b/2")),
                         FileStatus::inTrash(QStringLiteral("/t/3")),
                         FileStatus::volumeUnavailable(QStringLiteral("Stick")), FileStatus::missing()});
    ASSERT_EQ(content.entries.size(), 5U);
    EXPECT_EQ(content.entries[0].symbol, QStringLiteral("doc"));
    EXPECT_TRUE(content.entries[0].note.isEmpty());
    EXPECT_EQ(content.entries[1].symbol, QStringLiteral("arrow.turn.down.right"));
    EXPECT_EQ(content.entries[1].place, QStringLiteral("/b"));
    EXPECT_EQ(content.entries[2].note, QStringLiteral("In the Trash. Pastes until the Trash is emptied"));
    EXPECT_TRUE(content.entries[3].note.contains(QStringLiteral("Stick")));
    EXPECT_TRUE(content.entries[4].isMissing);
    EXPECT_TRUE(content.note.startsWith(QStringLiteral("Vellumry keeps a link to files you copy")));
    EXPECT_TRUE(button(content, Action::showFiles));
}

TEST(PreviewContent, FilesThatAreAllGoneArePastedByName) {
    const auto content = preview({filesOf({QStringLiteral("/a/1")})}, {FileStatus::missing()});
    EXPECT_EQ(actionsOf(content), (std::vector{Action::pasteFileName, Action::togglePin, Action::remove}));
    EXPECT_TRUE(content.buttons.front().isProminent);
}

TEST(PreviewContent, ALongListOfFilesIsCut) {
    QStringList paths;
    for (int index = 0; index < previewListLength + 3; ++index)
        paths.append(QStringLiteral("/a/%1").arg(index));
    const auto content = preview({filesOf(paths)});
    EXPECT_EQ(qsizetype(content.entries.size()), previewListLength);
    EXPECT_EQ(content.more, QStringLiteral("3 more"));
}

TEST(PreviewContent, AColourIsWrittenInEachWay) {
    const auto color = preview({clipOf(ClipKind::color, "#3f7fd9")}).color;
    EXPECT_EQ(color.text, QStringLiteral("#3f7fd9"));
    EXPECT_EQ(color.hex, QStringLiteral("#3f7fd9"));
    EXPECT_EQ(color.rgb, QStringLiteral("rgb(63, 127, 217)"));
    EXPECT_EQ(color.hsl, QStringLiteral("hsl(215, 67%, 55%)"));
}

TEST(PreviewContent, ATranslucentColourKeepsItsAlpha) {
    const auto color = preview({clipOf(ClipKind::color, "#ff000080")}).color;
    EXPECT_EQ(color.hex, QStringLiteral("#ff000080"));
    EXPECT_EQ(color.rgb, QStringLiteral("rgba(255, 0, 0, 0.502)"));
    EXPECT_EQ(color.hsl, QStringLiteral("hsla(0, 100%, 50%, 0.502)"));
}

TEST(PreviewContent, GreyHasNoHue) {
    EXPECT_EQ(preview({clipOf(ClipKind::color, "#808080")}).color.hsl, QStringLiteral("hsl(0, 0%, 50%)"));
}

TEST(PreviewContent, TheButtonsOfATextAndOfStyledText) {
    EXPECT_EQ(actionsOf(preview({clipOf(ClipKind::text, "a")})),
              (std::vector{Action::paste, Action::transform, Action::togglePin, Action::remove}));
    const auto styled = preview({clipOf(ClipKind::richText, "a")});
    EXPECT_EQ(actionsOf(styled),
              (std::vector{Action::paste, Action::pastePlain, Action::transform, Action::togglePin, Action::remove}));
    EXPECT_EQ(button(styled, Action::pastePlain)->help,
              QStringLiteral("Pastes as plain text. Your clip stays as it is."));
    EXPECT_TRUE(button(styled, Action::paste)->isProminent);
}

TEST(PreviewContent, TheTransformListReplacesTheButtons) {
    PreviewSources sources;
    sources.clips = {clipOf(ClipKind::text, "a")};
    sources.showsTransforms = true;
    const auto content = previewContent(sources);
    EXPECT_TRUE(content.showsTransforms);
    EXPECT_EQ(actionsOf(content), (std::vector{Action::pasteTransformed, Action::closeTransforms}));
    EXPECT_EQ(content.buttons[0].title, QStringLiteral("Paste transformed"));
    EXPECT_EQ(content.buttons[1].symbol, QStringLiteral("chevron.left"));
}

TEST(PreviewContent, SeveralTextsCanBeMerged) {
    std::vector<ClipRef> clips;
    for (int index = 0; index < int(previewListLength) + 2; ++index)
        clips.push_back(clipOf(ClipKind::text, "a"));
    const auto content = preview(clips);
    EXPECT_EQ(content.body, Body::several);
    EXPECT_EQ(content.heading, QStringLiteral("10 clips selected"));
    EXPECT_EQ(qsizetype(content.entries.size()), previewListLength);
    EXPECT_EQ(content.more, QStringLiteral("2 more"));
    EXPECT_EQ(content.note,
              QStringLiteral("Merge joins them into one clip, one per line, in the order you copied them."));
    EXPECT_EQ(actionsOf(content),
              (std::vector{Action::mergeAndPaste, Action::pasteOneByOne, Action::togglePin, Action::remove}));
    EXPECT_EQ(button(content, Action::togglePin)->title, QStringLiteral("Pin all 10"));
}

TEST(PreviewContent, SeveralWithAPictureCannotBeMerged) {
    const auto content = preview({clipOf(ClipKind::text, "a"), clipOf(ClipKind::image, "Image")});
    EXPECT_EQ(content.note,
              QStringLiteral("Images can't be merged. Drag them out, or paste them one by one with Stack."));
    EXPECT_FALSE(button(content, Action::mergeAndPaste));
}

TEST(PreviewContent, SeveralFilesBecomeOneClip) {
    const auto content = preview({filesOf({QStringLiteral("/a")}), filesOf({QStringLiteral("/b")})});
    EXPECT_EQ(content.note, QStringLiteral("Merge makes one clip with all these files."));
}

TEST(PreviewContent, SeveralPinsAreUnpinnedTogetherAndARunningStackIsStopped) {
    const auto first = clipOf(ClipKind::text, "a");
    const auto second = clipOf(ClipKind::text, "b");
    first->isPinned = second->isPinned = true;
    PreviewSources sources;
    sources.clips = {first, second};
    sources.isStackActive = true;
    const auto content = previewContent(sources);
    EXPECT_TRUE(button(content, Action::stopStack));
    EXPECT_FALSE(button(content, Action::pasteOneByOne));
    EXPECT_EQ(button(content, Action::togglePin)->symbol, QStringLiteral("pin.slash"));
}

TEST(PreviewContent, ASecretAmongSeveralIsNotShown) {
    const auto secret = clipOf(ClipKind::text, "ghp_secret");
    secret->expiresAt = 10;
    const auto content = preview({secret, clipOf(ClipKind::text, "b")});
    EXPECT_EQ(content.entries.front().name, QStringLiteral("Hidden"));
}
