// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ThumbnailProvider.h"

#include <QBuffer>
#include <QImage>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

QByteArray png(const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace

TEST(ThumbnailProvider, IsAskedOnceForAPictureThatStaysOnTheScreen) {
    const QUuid id = QUuid::createUuid();
    int requests = 0;
    ThumbnailProvider thumbnails([&](const QUuid& wanted) -> std::optional<QByteArray> {
        EXPECT_EQ(wanted, id);
        ++requests;
        return png({64, 64});
    });
    for (int count = 0; count < 3; ++count) {
        QSize size;
        const QImage image = thumbnails.requestImage(id.toString(QUuid::WithoutBraces), &size, QSize(32, 32));
        EXPECT_EQ(size, QSize(32, 32));
        EXPECT_EQ(image.pixelColor(16, 16), QColor(Qt::blue));
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "its corners are round";
    }
    EXPECT_EQ(requests, 1);
}

TEST(ThumbnailProvider, ShowsNothingForAClipWithoutAPictureAndForBytesThatAreNone) {
    for (const auto& answer : {std::optional<QByteArray>(), std::optional(QByteArray("no picture"))}) {
        ThumbnailProvider thumbnails([&](const QUuid&) { return answer; });
        EXPECT_TRUE(thumbnails.requestImage(QUuid::createUuid().toString(), nullptr, QSize(32, 32)).isNull());
    }
}
