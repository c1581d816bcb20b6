// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StartupAlert.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace vellumry;

TEST(StartupAlert, EachReasonHasItsOwnWordsAndNothingLeftToFillIn) {
    QSet<QString> titles;
    QSet<QString> texts;
    for (int i = 0; i <= static_cast<int>(HistoryFailure::fileBusy); ++i) {
        const StartupAlert alert = memoryOnlyAlert(static_cast<HistoryFailure>(i), QStringLiteral("/folder"));
        EXPECT_FALSE(alert.title.isEmpty() || alert.text.isEmpty());
        EXPECT_FALSE(alert.text.contains(u'%')) << alert.text.toStdString();
        titles.insert(alert.title);
        texts.insert(alert.text);
    }
    EXPECT_EQ(titles.size(), 8);
    EXPECT_EQ(texts.size(), 8);
}

TEST(StartupAlert, AHistoryPutAsideIsToldWithItsPlace) {
    EXPECT_EQ(backupAlert({}), std::nullopt);
    const auto alert = backupAlert({QStringLiteral("/old"), QStringLiteral("/new")});
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->title, QStringLiteral("Vellumry started a fresh history"));
    EXPECT_TRUE(alert->text.endsWith(QStringLiteral("/new")));
}
