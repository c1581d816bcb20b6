// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/DesktopReport.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

DesktopState stateOf(std::vector<Capability> capabilities) {
    DesktopState state;
    state.capabilities = std::move(capabilities);
    return state;
}

Capability all(bool isFound) {
    const QString name = QStringLiteral("display");
    return (isFound ? Capability::found(name) : Capability::missing(name, QStringLiteral("it lacks something")))
        .serving({Feature::capture, Feature::shortcuts, Feature::paste, Feature::stack, Feature::keyring,
                  Feature::reading, Feature::tray});
}

TEST(DesktopReport, WhereAllIsThereNothingIsToBeDone) {
    const auto lines = desktopReport(stateOf({all(true)}));
    EXPECT_EQ(lines.size(), 7U);
    for (const FormLine& line : lines) {
        EXPECT_TRUE(line.isGood) << line.title.toStdString();
        EXPECT_FALSE(line.detail.isEmpty());
        EXPECT_EQ(line.note, QString());
    }
}

TEST(DesktopReport, WhatIsMissingComesWithAdviceAndTheReason) {
    const auto lines = desktopReport(stateOf({all(false)}));
    QStringList advice;
    for (const FormLine& line : lines) {
        EXPECT_FALSE(line.isGood);
        EXPECT_EQ(line.note, QStringLiteral("display: it lacks something"));
        advice.append(line.detail);
    }
    EXPECT_EQ(advice.removeDuplicates(), 0) << "each feature has its own";
}

TEST(DesktopReport, OnePartThatIsMissingIsEnough) {
    const auto lines = desktopReport(
        stateOf({Capability::found(QStringLiteral("one")).serving({Feature::reading}),
                 Capability::without(QStringLiteral("two"), QStringLiteral("none")).serving({Feature::reading})}));
    ASSERT_EQ(lines.size(), 1U) << "what nothing speaks of is left out";
    EXPECT_FALSE(lines[0].isGood);
    EXPECT_EQ(lines[0].note, QStringLiteral("two: none"));
}

TEST(DesktopReport, TakenShortcutsAndAClosedHistoryAreTroublesToo) {
    DesktopState state = stateOf({all(true)});
    state.shortcutProblems = {QStringLiteral("Super+Ctrl+V is taken.")};
    state.isMemoryOnly = true;
    state.isWaylandSession = true;
    const auto lines = desktopReport(state);
    EXPECT_EQ(std::ranges::count(lines, false, &FormLine::isGood), 3);
    EXPECT_EQ(lines[1].detail, QStringLiteral("Super+Ctrl+V is taken."));
}

} // namespace
} // namespace vellumry
