// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ApplicationLines.h"

#include "settings/Preferences.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace applicationlines;

const std::vector<InstalledApplication> installed{
    {QStringLiteral("org.example.Editor"), QStringLiteral("Editor"), QStringLiteral("/icons/editor.png"),
     QStringLiteral("Editor")},
    {QStringLiteral("org.keepassxc.keepassxc"), QStringLiteral("KeePassXC"), {}, QStringLiteral("KeePassXC")},
};

QStringList titles(const std::vector<FormLine>& lines) {
    QStringList found;
    for (const FormLine& line : lines)
        found.append(line.title);
    return found;
}

TEST(ApplicationLines, ShowNamesAndIconsAndLeaveUninstalledManagersOut) {
    const QStringList identifiers =
        Preferences::defaultIgnoredApps() +
        QStringList{QStringLiteral("org.example.Editor"), QStringLiteral("org.example.Gone")};
    const auto lines = ignored(identifiers, installed);
    EXPECT_EQ(titles(lines),
              QStringList({QStringLiteral("Editor"), QStringLiteral("KeePassXC"), QStringLiteral("org.example.Gone")}));
    EXPECT_EQ(lines[0].picture, QUrl(QStringLiteral("file:///icons/editor.png")));
    EXPECT_EQ(lines[0].detail, QString());
    EXPECT_EQ(lines[2].detail, QStringLiteral("Not installed"));
    EXPECT_EQ(notListed(identifiers, installed), 8);
    EXPECT_EQ(notListed({}, installed), 0) << "those that the user lets be saved are not covered";
}

TEST(ApplicationLines, TerminalsAreKnownByTheirWindows) {
    const auto lines = terminals({QStringLiteral("editor"), QStringLiteral("!strange")}, installed);
    EXPECT_EQ(titles(lines), QStringList({QStringLiteral("Editor"), QStringLiteral("strange")}));
    EXPECT_TRUE(lines[0].isChosen);
    EXPECT_FALSE(lines[1].isChosen);
    EXPECT_EQ(lines[1].identifier, QStringLiteral("!strange"));
}

TEST(ApplicationLines, AreFoundByPartsOfTheirNames) {
    EXPECT_EQ(titles(offered(installed, QStringLiteral(" pass"), {})), QStringList(QStringLiteral("KeePassXC")));
    const auto all = offered(installed, QString(), {QStringLiteral("org.example.Editor")});
    EXPECT_EQ(all.size(), 2U);
    EXPECT_TRUE(all[0].isChosen);
    EXPECT_FALSE(all[1].isChosen);
}

} // namespace
} // namespace vellumry
