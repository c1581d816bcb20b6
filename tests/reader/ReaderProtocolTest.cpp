// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderProtocol.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace readerprotocol;

QByteArray withoutLength(const QByteArray& message) {
    EXPECT_EQ(messageLength(message.constData()), static_cast<quint32>(message.size() - lengthBytes));
    return message.sliced(lengthBytes);
}

TEST(ReaderProtocol, ARequestComesBackAsItWas) {
    const Request request{0x1122334455667788, Operation::summarise, 160};
    EXPECT_EQ(decodeRequest(withoutLength(encode(request))), request);
}

TEST(ReaderProtocol, RepliesComeBackAsTheyWere) {
    const Reply full{7, QSize(3, 100'000), QByteArray("png\0bytes", 9), true, std::nullopt};
    EXPECT_EQ(decodeReply(withoutLength(*encode(full))), full);
    const Reply reading{9, QSize(3, 4), std::nullopt, false, QStringLiteral("ein Wort: Öl")};
    EXPECT_EQ(decodeReply(withoutLength(*encode(reading))), reading);
    const Reply empty{8, std::nullopt, std::nullopt, false, std::nullopt};
    EXPECT_EQ(decodeReply(withoutLength(*encode(empty))), empty);
    const Reply blind{10, std::nullopt, std::nullopt, false, std::nullopt, true};
    EXPECT_EQ(decodeReply(withoutLength(*encode(blind))), blind);
}

TEST(ReaderProtocol, AnUnknownOperationIsRefused) {
    QByteArray message = withoutLength(encode(Request{1, Operation::summarise, 160}));
    message[8] = 99;
    EXPECT_EQ(decodeRequest(message), std::nullopt);
}

TEST(ReaderProtocol, AThumbnailOfNoOrAbsurdSizeIsRefused) {
    for (const qint32 pixels : {0, -1, maxPixels + 1})
        EXPECT_EQ(decodeRequest(withoutLength(encode(Request{1, Operation::summarise, pixels}))), std::nullopt)
            << pixels;
}

TEST(ReaderProtocol, AnEmptySizeIsRefused) {
    EXPECT_EQ(decodeReply(withoutLength(*encode(Reply{1, QSize(0, 5), std::nullopt, false, {}}))), std::nullopt);
}

TEST(ReaderProtocol, TruncatedAndOverlongMessagesAreRefused) {
    const QByteArray request = withoutLength(encode(Request{1, Operation::summarise, 160}));
    for (qsizetype length = 0; length < request.size(); ++length)
        EXPECT_EQ(decodeRequest(request.first(length)), std::nullopt) << length;
    EXPECT_EQ(decodeRequest(request + 'x'), std::nullopt);
    const QByteArray reply = withoutLength(*encode(Reply{1, QSize(2, 2), QByteArray("png"), true, {}}));
    for (qsizetype length = 0; length < reply.size(); ++length)
        EXPECT_EQ(decodeReply(reply.first(length)), std::nullopt) << length;
    EXPECT_EQ(decodeReply(reply + 'x'), std::nullopt);
}

TEST(ReaderProtocol, AThumbnailTooLargeToBelieveIsNotSent) {
    EXPECT_EQ(encode(Reply{1, QSize(2, 2), QByteArray(maxReplyBytes, 'x'), false, {}}), std::nullopt);
}

} // namespace
} // namespace vellumry
