// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/HotKeyCenter.h"

#include "support/FakeHotKeyRegistrar.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

TEST(HotKeyCenter, CallsTheActionOfTheKeyThatWasPressed) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    QStringList called;
    EXPECT_TRUE(center.registerShortcut({9, 0x1100}, [&] { called.append(QStringLiteral("panel")); }));
    EXPECT_TRUE(center.registerShortcut({1, 0x1100}, [&] { called.append(QStringLiteral("stack")); }));
    EXPECT_TRUE(registrar.press({1, 0x1100}));
    EXPECT_TRUE(registrar.press({9, 0x1100}));
    EXPECT_EQ(called, (QStringList{QStringLiteral("stack"), QStringLiteral("panel")}));
}

TEST(HotKeyCenter, GivesNoIdForATakenKeyAndNeverUsesAnIdTwice) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    registrar.taken.insert({9, 0x1100});
    EXPECT_EQ(center.registerShortcut({9, 0x1100}, [] {}), std::nullopt);
    const auto id = center.registerShortcut({1, 0x1100}, [] {});
    ASSERT_TRUE(id);
    center.unregister(*id);
    center.unregister(*id);
    EXPECT_TRUE(center.registerShortcut({1, 0x1100}, [] {}));
    EXPECT_EQ(registrar.askedIDs, (std::vector<quint32>{1, 2, 3}));
}

TEST(HotKeyCenter, ALatePressOfAnOldRegistrationReachesNobody) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    int calls = 0;
    const auto old = center.registerShortcut({9, 0x1100}, [&] { ++calls; });
    center.unregister(*old);
    EXPECT_TRUE(center.registerShortcut({9, 0x1100}, [&] { ++calls; }));
    registrar.onPressed(*old);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(registrar.grabbed.size(), 1u);
}

TEST(HotKeyCenter, AnActionMayRegisterEverythingAnew) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    int calls = 0;
    std::optional<quint32> id;
    id = center.registerShortcut({9, 0x1100}, [&] {
        center.unregister(*id);
        ++calls;
    });
    registrar.press({9, 0x1100});
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(registrar.grabbed.empty());
}

TEST(HotKeyCenter, GivesTheKeysBackWhenItGoes) {
    FakeHotKeyRegistrar registrar;
    auto center = std::make_unique<HotKeyCenter>(registrar);
    EXPECT_TRUE(center->registerShortcut({9, 0x1100}, [] {}));
    center.reset();
    EXPECT_TRUE(registrar.grabbed.empty());
    EXPECT_FALSE(registrar.onPressed);
}

} // namespace vellumry
