// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/TextRecognizer.h"

#include "support/Awaited.h"
#include "support/FakeTextReader.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace std::chrono_literals;
using Reader = TextRecognizer::Reader;
using Outcome = TextReader::Outcome;

class TextRecognizerTest : public testing::Test {
protected:
    /// What comes of a reading that is answered with `outcome`, without waiting.
    std::optional<QString> readWith(Outcome outcome, Reader mode, const QString& text = {}) {
        reader.readings.push_back({outcome, text});
        const auto result = atOnce(recognizer.read("picture", mode));
        EXPECT_TRUE(result.has_value()) << "the task waits for something";
        return result.value_or(std::nullopt);
    }

    FakeTextReader reader;
    TextRecognizer recognizer{reader};
};

TEST_F(TextRecognizerTest, GivesTheLinesWithoutBlanksAroundThem) {
    EXPECT_EQ(readWith(Outcome::text, Reader::fast, QStringLiteral("  one \n\n\t two words\t\n \n")),
              QStringLiteral("one\ntwo words"));
}

TEST_F(TextRecognizerTest, APictureWithoutTextGivesTheEmptyText) {
    const std::optional<QString> text = readWith(Outcome::text, Reader::fast, QStringLiteral(" \n \n"));
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(*text, QString());
}

TEST_F(TextRecognizerTest, AsksWithTheLimitsOfTheMode) {
    (void)readWith(Outcome::text, Reader::fast);
    (void)readWith(Outcome::text, Reader::accurate);
    const std::vector<FakeTextReader::Request> expected{{"picture", Reader::fast, 8192, 30s},
                                                        {"picture", Reader::accurate, 8192, 150s}};
    EXPECT_EQ(reader.requests, expected);
}

TEST_F(TextRecognizerTest, WhatWentWrongGivesNothing) {
    for (const Outcome outcome : {Outcome::undecodable, Outcome::tooSlow, Outcome::failed})
        EXPECT_EQ(readWith(outcome, Reader::fast, QStringLiteral("half a line")), std::nullopt);
}

TEST_F(TextRecognizerTest, AComputerWithoutAnEngineIsKnownAfterTheFirstPicture) {
    EXPECT_TRUE(recognizer.isAvailable());
    EXPECT_EQ(readWith(Outcome::failed, Reader::fast), std::nullopt);
    EXPECT_TRUE(recognizer.isAvailable());
    EXPECT_EQ(readWith(Outcome::unavailable, Reader::fast), std::nullopt);
    EXPECT_FALSE(recognizer.isAvailable());
}

TEST_F(TextRecognizerTest, AReaderThatStaysSilentIsGivenUpAtTheLimit) {
    EXPECT_EQ(awaited(recognizer.read("picture", Reader::accurate, 0.01)), std::nullopt);
    reader.answer({Outcome::text, QStringLiteral("too late")});
    EXPECT_EQ(readWith(Outcome::text, Reader::fast, QStringLiteral("the next one")), QStringLiteral("the next one"));
}

TEST_F(TextRecognizerTest, ThreeAccurateFailuresInARowEndTheAccurateMode) {
    (void)readWith(Outcome::tooSlow, Reader::accurate);
    (void)readWith(Outcome::failed, Reader::accurate);
    EXPECT_TRUE(recognizer.isAccurateUsable());
    (void)readWith(Outcome::tooSlow, Reader::accurate);
    EXPECT_FALSE(recognizer.isAccurateUsable());
}

TEST_F(TextRecognizerTest, ASuccessInBetweenStartsTheCountAfresh) {
    (void)readWith(Outcome::tooSlow, Reader::accurate);
    (void)readWith(Outcome::tooSlow, Reader::accurate);
    (void)readWith(Outcome::text, Reader::accurate);
    (void)readWith(Outcome::tooSlow, Reader::accurate);
    (void)readWith(Outcome::tooSlow, Reader::accurate);
    EXPECT_TRUE(recognizer.isAccurateUsable());
}

TEST_F(TextRecognizerTest, ATimeOutOfItsOwnCountsToo) {
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(awaited(recognizer.read("picture", Reader::accurate, 0.01)), std::nullopt);
        reader.answer({Outcome::text, QStringLiteral("too late to count")});
    }
    EXPECT_FALSE(recognizer.isAccurateUsable());
}

TEST_F(TextRecognizerTest, FastReadingsAndWhatIsNoPictureDoNotCount) {
    for (int time = 0; time < 4; ++time) {
        (void)readWith(Outcome::tooSlow, Reader::fast);
        (void)readWith(Outcome::undecodable, Reader::accurate);
    }
    EXPECT_TRUE(recognizer.isAccurateUsable());
}

} // namespace
} // namespace vellumry
