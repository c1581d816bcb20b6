// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StartMessages.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

QStringList textsOf(const StartNews& news) {
    QStringList texts;
    for (const ToastMessage& message : startMessages(news))
        texts.append(message.text);
    return texts;
}

TEST(StartMessages, AnOrdinaryStartIsSilent) {
    EXPECT_EQ(textsOf({}), QStringList());
    StartNews wayland;
    wayland.isWaylandSession = true;
    EXPECT_EQ(textsOf(wayland), QStringList()) << "that was told at the first start";
}

TEST(StartMessages, TheFirstStartNamesTheKeysThatOpenThePanel) {
    StartNews news;
    news.isFirstStart = true;
    news.openPanelKeys = QStringLiteral("Super+Ctrl+V");
    EXPECT_EQ(textsOf(news),
              QStringList{QStringLiteral("Vellumry remembers what you copy. Press Super+Ctrl+V to see it")});
}

TEST(StartMessages, ATakenShortcutIsToldAtEachStartAndNotRecommended) {
    StartNews news;
    news.shortcutProblems = QStringList{QStringLiteral("taken")};
    EXPECT_EQ(textsOf(news), QStringList{QStringLiteral("taken")});
    news.isFirstStart = true;
    EXPECT_EQ(textsOf(news), QStringList{QStringLiteral("taken")});
}

TEST(StartMessages, AWaylandSessionIsToldOfOnceWhatWorks) {
    StartNews news;
    news.isFirstStart = true;
    news.isWaylandSession = true;
    const QStringList texts = textsOf(news);
    ASSERT_EQ(texts.size(), 2);
    EXPECT_TRUE(texts[1].contains(QStringLiteral("Wayland")));
}

} // namespace
} // namespace vellumry
