// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/reader/ReaderTextReader.h"

#include "reader/HeifBytes.h"
#include "reader/PictureBytes.h"
#include "support/Awaited.h"
#include "support/LoggedLines.h"

#include <QGuiApplication>
#include <QPainter>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace std::chrono_literals;
using Mode = TextReader::Mode;
using Outcome = TextReader::Outcome;

const QString realReader = QStringLiteral(VELLUMRY_READER);
const QString fakeReader = QStringLiteral(VELLUMRY_FAKE_READER);
constexpr int usual = 8192;

QByteArray pictureOf(const QByteArray& word, QRgb ground, QRgb ink) {
    return picturebytes::encode(picturebytes::drawnWord(word, ground, ink), "PNG");
}

TEST(ReaderTextReader, ReadsInTheSealedReaderInBothModes) {
    ReaderTextReader reader(realReader);
    for (const Mode mode : {Mode::fast, Mode::accurate}) {
        const auto reading = awaited(reader.read(pictureOf("HOTEL", 0xFFFFFFFF, 0xFF000000), mode, usual, 60s));
        EXPECT_EQ(reading.outcome, Outcome::text);
        EXPECT_EQ(reading.text.trimmed(), QStringLiteral("HOTEL"));
    }
}

TEST(ReaderTextReader, ReadsAHeicPicture) {
    ReaderTextReader reader(realReader);
    const QByteArray file = heifbytes::encode(picturebytes::drawnWord("HOTEL", 0xFFFFFFFF, 0xFF000000));
    const auto reading = awaited(reader.read(file, Mode::fast, usual, 60s));
    EXPECT_EQ(reading.outcome, Outcome::text);
    EXPECT_EQ(reading.text.trimmed(), QStringLiteral("HOTEL"));
}

TEST(ReaderTextReader, ReadsLightOnDark) {
    ReaderTextReader reader(realReader);
    const auto reading = awaited(reader.read(pictureOf("HOTEL", 0xFF202030, 0xFFC0D0A0), Mode::fast, usual, 60s));
    EXPECT_EQ(reading.text.trimmed(), QStringLiteral("HOTEL"));
}

TEST(ReaderTextReader, APictureWithoutTextIsRead) {
    ReaderTextReader reader(realReader);
    const auto file = picturebytes::encode(picturebytes::twoColours(200, 100), "PNG");
    EXPECT_EQ(awaited(reader.read(file, Mode::fast, usual, 60s)), (TextReader::Reading{Outcome::text, QString()}));
}

TEST(ReaderTextReader, WhatIsNoPictureIsToldApartFromWhatFailed) {
    ReaderTextReader reader(realReader);
    EXPECT_EQ(awaited(reader.read("no picture", Mode::fast, usual, 60s)).outcome, Outcome::undecodable);
    EXPECT_EQ(awaited(reader.read(QByteArray(), Mode::fast, usual, 60s)).outcome, Outcome::undecodable);
}

TEST(ReaderTextReader, AComputerWithoutAnEngineIsToldApart) {
    ReaderTextReader reader(fakeReader);
    EXPECT_EQ(awaited(reader.read("blind", Mode::fast, usual, 60s)).outcome, Outcome::unavailable);
    EXPECT_EQ(awaited(reader.read("words", Mode::fast, usual, 60s)).outcome, Outcome::text);
}

TEST(ReaderTextReader, AHangingReaderIsEndedAtTheLimitAndTheNextPictureIsRead) {
    ReaderTextReader reader(fakeReader);
    EXPECT_EQ(awaited(reader.read("hang", Mode::accurate, usual, 50ms)).outcome, Outcome::tooSlow);
    EXPECT_EQ(awaited(reader.read("words", Mode::accurate, usual, 60s)).text, QStringLiteral("words"));
}

TEST(ReaderTextReader, ACrashCostsOnePicture) {
    ReaderTextReader reader(fakeReader);
    const LoggedLines log;
    EXPECT_EQ(awaited(reader.read("crash", Mode::accurate, usual, 60s)).outcome, Outcome::failed);
    EXPECT_EQ(log.count(QtWarningMsg, u"the reader of pictures died of one"), 1);
    EXPECT_EQ(awaited(reader.read("words", Mode::fast, usual, 60s)).text, QStringLiteral("words"));
}

TEST(ReaderTextReader, TheReaderFindsItsLibrariesWhereTheProgramFoundThem) {
    qputenv("LD_LIBRARY_PATH", "/there/lib");
    ReaderTextReader reader(QStringLiteral(VELLUMRY_FAKE_READER));
    const QString text = awaited(reader.read("environment", Mode::fast, usual, 60s)).text;
    qunsetenv("LD_LIBRARY_PATH");
    EXPECT_TRUE(text.contains(QStringLiteral("LD_LIBRARY_PATH=/there/lib"))) << text.toStdString();
}

TEST(ReaderTextReader, TheReaderIsToldNoMoreOfTheEnvironmentThanItNeeds) {
    qputenv("VELLUMRY_TEST_TOKEN", "secret of the session");
    ReaderTextReader reader(fakeReader);
    const QString text = awaited(reader.read("environment", Mode::fast, usual, 60s)).text;
    qunsetenv("VELLUMRY_TEST_TOKEN");
    EXPECT_TRUE(text.contains(QStringLiteral("OMP_THREAD_LIMIT=1"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("PATH="))) << qPrintable(text);
    EXPECT_FALSE(text.contains(QStringLiteral("secret"))) << qPrintable(text);
    EXPECT_FALSE(text.contains(QStringLiteral("HOME="))) << qPrintable(text);
}

TEST(ReaderTextReader, WithoutAReaderReadingFails) {
    ReaderTextReader reader(QStringLiteral("/no/such/reader"));
    EXPECT_EQ(awaited(reader.read("words", Mode::fast, usual, 60s)).outcome, Outcome::failed);
}

TEST(ReaderTextReader, GoingAwayEndsAReadingAtOnce) {
    auto reader = std::make_unique<ReaderTextReader>(fakeReader);
    auto reading = reader->read("hang", Mode::accurate, usual, std::chrono::hours(1));
    reader.reset();
    EXPECT_EQ(awaited(std::move(reading)).outcome, Outcome::failed);
}

} // namespace
} // namespace vellumry
