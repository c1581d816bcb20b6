// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileUrl.h"

#include <array>
#include <climits>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {

namespace {

struct PathRow {
    const char* name;
    const char* url;
    std::optional<QString> path;
};

class FileUrlPath : public testing::TestWithParam<PathRow> {};

} // namespace

TEST_P(FileUrlPath, IsWhatTheUrlSays) {
    EXPECT_EQ(fileurl::pathOf(GetParam().url), GetParam().path);
}

INSTANTIATE_TEST_SUITE_P(Urls, FileUrlPath,
                         testing::Values(PathRow{"Plain", "file:///home/a/b.txt", QStringLiteral("/home/a/b.txt")},
                                         PathRow{"NoAuthority", "file:/home/a", QStringLiteral("/home/a")},
                                         PathRow{"Localhost", "file://localhost/a", QStringLiteral("/a")},
                                         PathRow{"UpperCaseScheme", "FILE:///a", QStringLiteral("/a")},
                                         PathRow{"Escapes", "file:///a%20b/%C3%A9", QStringLiteral("/a b/é")},
                                         PathRow{"RawUtf8", "file:///\xC3\xA9", QStringLiteral("/é")},
                                         PathRow{"TrailingSlash", "file:///home/a/", QStringLiteral("/home/a")},
                                         PathRow{"Root", "file:///", QStringLiteral("/")},
                                         PathRow{"Dots", "file:///a/./b/../c", QStringLiteral("/a/c")},
                                         PathRow{"DotsAboveRoot", "file:///../a", QStringLiteral("/a")},
                                         PathRow{"QueryAndFragment", "file:///a?b#c", QStringLiteral("/a")},
                                         PathRow{"EscapedHash", "file:///a%23b", QStringLiteral("/a#b")},
                                         PathRow{"NotUtf8", "file:///a%FFb", QStringLiteral("/a\uFFFDb")},
                                         PathRow{"OtherHost", "file://elsewhere.example/a", std::nullopt},
                                         PathRow{"OtherScheme", "https:///a", std::nullopt},
                                         PathRow{"RelativePath", "file:a/b", std::nullopt},
                                         PathRow{"NoPath", "file://", std::nullopt},
                                         PathRow{"BarePath", "/home/a", std::nullopt},
                                         PathRow{"Empty", "", std::nullopt},
                                         PathRow{"BrokenEscape", "file:///a%2", std::nullopt},
                                         PathRow{"EscapedNul", "file:///a%00b", std::nullopt},
                                         PathRow{"LineFeed", "file:///a\nb", std::nullopt}),
                         [](const auto& row) { return row.param.name; });

TEST(FileUrl, ThisMachinesNameIsAHostToo) {
    std::array<char, HOST_NAME_MAX + 1> name{};
    ASSERT_EQ(gethostname(name.data(), name.size() - 1), 0);
    EXPECT_EQ(fileurl::pathOf(QByteArray("file://") + name.data() + "/a"), QStringLiteral("/a"));
}

TEST(FileUrl, NameIsTheLastComponent) {
    EXPECT_EQ(fileurl::nameOf("file:///a/b%20c.txt"), QStringLiteral("b c.txt"));
    EXPECT_EQ(fileurl::nameOf("file:///a/folder/"), QStringLiteral("folder"));
    EXPECT_FALSE(fileurl::nameOf("https://example.org/x"));
}

TEST(FileUrl, APathSurvivesItsUrl) {
    const QString path = QStringLiteral("/tmp/a b/ü#?%/(1) [2]; 'x' ~.txt");
    const QByteArray url = fileurl::urlOf(path);
    EXPECT_EQ(url, "file:///tmp/a%20b/%C3%BC%23%3F%25/(1)%20%5B2%5D%3B%20'x'%20~.txt");
    EXPECT_EQ(fileurl::pathOf(url), path);
}

TEST(FileUrl, StandardizingKeepsRelativePathsRelative) {
    EXPECT_EQ(fileurl::standardized(QStringLiteral("/a//b/./c/../d/")), QStringLiteral("/a/b/d"));
    EXPECT_EQ(fileurl::standardized(QStringLiteral("/..")), QStringLiteral("/"));
    EXPECT_EQ(fileurl::standardized(QStringLiteral("../a/..")), QStringLiteral(".."));
    EXPECT_EQ(fileurl::standardized(QStringLiteral("a/b")), QStringLiteral("a/b"));
}

TEST(FileUrl, LastPathComponent) {
    EXPECT_EQ(fileurl::lastPathComponent(QStringLiteral("/a/b.c")), QStringLiteral("b.c"));
    EXPECT_EQ(fileurl::lastPathComponent(QStringLiteral("/a/b/")), QStringLiteral("b"));
    EXPECT_EQ(fileurl::lastPathComponent(QStringLiteral("/")), QStringLiteral("/"));
    EXPECT_EQ(fileurl::lastPathComponent(QStringLiteral("name")), QStringLiteral("name"));
    EXPECT_EQ(fileurl::lastPathComponent(QString()), QString());
}

TEST(FileUrl, PathExtension) {
    EXPECT_EQ(fileurl::pathExtension(QStringLiteral("/a/b.tar.gz")), QStringLiteral("gz"));
    EXPECT_EQ(fileurl::pathExtension(QStringLiteral("/a.d/b")), QString());
    EXPECT_EQ(fileurl::pathExtension(QStringLiteral("/a/.bashrc")), QString());
    EXPECT_EQ(fileurl::pathExtension(QStringLiteral("/a/b.")), QString());
    EXPECT_EQ(fileurl::pathExtension(QStringLiteral("/a/b.PNG/")), QStringLiteral("PNG"));
}

} // namespace vellumry
