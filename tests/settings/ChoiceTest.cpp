// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Choice.h"

#include "settings/SettingsLabels.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

QString plain(qint64 value) {
    return QString::number(value);
}

TEST(Choice, AValueWrittenByHandIsListedInItsPlace) {
    Choice choice({1, 7, 30, 0}, plain, [](qint64) {});
    choice.setValue(14);
    EXPECT_EQ(choice.labels(), QStringList({QStringLiteral("1"), QStringLiteral("7"), QStringLiteral("14"),
                                            QStringLiteral("30"), QStringLiteral("0")}));
    EXPECT_EQ(choice.index(), 2);
    choice.setValue(90);
    EXPECT_EQ(choice.index(), 3) << "before the 0, which means no limit";
    choice.setValue(30);
    EXPECT_EQ(choice.labels().size(), 4);
}

TEST(Choice, ChoosingAsksForTheValueAndChangesNothingByItself) {
    qint64 chosen = -1;
    Choice choice({1, 7, 0}, plain, [&chosen](qint64 value) { chosen = value; });
    choice.choose(1);
    EXPECT_EQ(chosen, 7);
    EXPECT_EQ(choice.index(), 0);
    chosen = -1;
    choice.choose(3);
    choice.choose(-1);
    EXPECT_EQ(chosen, -1);
}

struct Labelled {
    QString (*label)(qint64);
    qint64 value;
    const char* words;
};

TEST(SettingsLabels, EachValueHasWords) {
    // Without a catalogue there is one form of what counts.
    for (const Labelled& row : {Labelled{settingslabels::days, 0, "Forever"},
                                {settingslabels::days, 1, "1 day"},
                                {settingslabels::days, 7, "1 week"},
                                {settingslabels::days, 30, "1 month"},
                                {settingslabels::days, 90, "3 months"},
                                {settingslabels::days, 365, "1 year"},
                                {settingslabels::days, 14, "14 days"},
                                {settingslabels::lifetime, 59, "After 59 seconds"},
                                {settingslabels::lifetime, 300, "After 5 minutes"},
                                {settingslabels::lifetime, 3599, "After 59 minutes"},
                                {settingslabels::lifetime, 9000, "After 2 hours"},
                                {settingslabels::clips, 5000, "5000 clips"},
                                {settingslabels::megabytes, 250, "250 MB"},
                                {settingslabels::megabytes, 1024, "1 GB"},
                                {settingslabels::megabytes, 1500, "1,500 MB"},
                                {settingslabels::recent, 0, "None"},
                                {settingslabels::recent, 20, "20"},
                                {settingslabels::appearance, 0, "System"},
                                {settingslabels::appearance, 2, "Dark"}})
        EXPECT_EQ(row.label(row.value), QString::fromUtf8(row.words));
    EXPECT_EQ(settingslabels::lastChecked(-5), QStringLiteral("Last checked just now"));
    EXPECT_EQ(settingslabels::lastChecked(300), QStringLiteral("Last checked 5 minutes ago"));
    EXPECT_EQ(settingslabels::lastChecked(7200), QStringLiteral("Last checked 2 hours ago"));
    EXPECT_EQ(settingslabels::lastChecked(900'000), QStringLiteral("Last checked 10 days ago"));
}

} // namespace
} // namespace vellumry
