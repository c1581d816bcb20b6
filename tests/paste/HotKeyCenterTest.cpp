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
    EXPECT_TRUE(center.registerShortcut({KeyCode::v, Modifier::control | Modifier::command},
                                        [&] { called.append(QStringLiteral("panel")); }));
    EXPECT_TRUE(center.registerShortcut({KeyCode::s, Modifier::control | Modifier::command},
                                        [&] { called.append(QStringLiteral("stack")); }));
    EXPECT_TRUE(registrar.press({KeyCode::s, Modifier::control | Modifier::command}));
    EXPECT_TRUE(registrar.press({KeyCode::v, Modifier::control | Modifier::command}));
    EXPECT_EQ(called, (QStringList{QStringLiteral("stack"), QStringLiteral("panel")}));
}

TEST(HotKeyCenter, GivesNoIdForATakenKeyAndNeverUsesAnIdTwice) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    registrar.taken.insert({KeyCode::v, Modifier::control | Modifier::command});
    EXPECT_EQ(center.registerShortcut({KeyCode::v, Modifier::control | Modifier::command}, [] {}), std::nullopt);
    const auto id = center.registerShortcut({KeyCode::s, Modifier::control | Modifier::command}, [] {});
    ASSERT_TRUE(id);
    center.unregister(*id);
    center.unregister(*id);
    EXPECT_TRUE(center.registerShortcut({KeyCode::s, Modifier::control | Modifier::command}, [] {}));
    EXPECT_EQ(registrar.askedIDs, (std::vector<quint32>{1, 2, 3}));
}

TEST(HotKeyCenter, ALatePressOfAnOldRegistrationReachesNobody) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    int calls = 0;
    const auto old = center.registerShortcut({KeyCode::v, Modifier::control | Modifier::command}, [&] { ++calls; });
    center.unregister(*old);
    EXPECT_TRUE(center.registerShortcut({KeyCode::v, Modifier::control | Modifier::command}, [&] { ++calls; }));
    registrar.onPressed(*old);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(registrar.grabbed.size(), 1u);
}

TEST(HotKeyCenter, AnActionMayRegisterEverythingAnew) {
    FakeHotKeyRegistrar registrar;
    HotKeyCenter center(registrar);
    int calls = 0;
    std::optional<quint32> id;
    id = center.registerShortcut({KeyCode::v, Modifier::control | Modifier::command}, [&] {
        center.unregister(*id);
        ++calls;
    });
    registrar.press({KeyCode::v, Modifier::control | Modifier::command});
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(registrar.grabbed.empty());
}

TEST(HotKeyCenter, GivesTheKeysBackWhenItGoes) {
    FakeHotKeyRegistrar registrar;
    auto center = std::make_unique<HotKeyCenter>(registrar);
    EXPECT_TRUE(center->registerShortcut({KeyCode::v, Modifier::control | Modifier::command}, [] {}));
    center.reset();
    EXPECT_TRUE(registrar.grabbed.empty());
    EXPECT_FALSE(registrar.onPressed);
}

} // namespace vellumry
