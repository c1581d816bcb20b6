// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery/MadeUpClips.h"

#include "foundation/UniformType.h"
#include "support/Drafts.h"

#include <QBuffer>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace vellumry::madeup {

QImage hills(QSize size) {
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(0x27, 0x3a, 0x6b));
    sky.setColorAt(0.6, QColor(0xe7, 0x8d, 0x72));
    sky.setColorAt(1, QColor(0xf7, 0xd0, 0x8a));
    painter.fillRect(image.rect(), sky);
    for (int hill = 0; hill < 4; ++hill) {
        QPainterPath outline(QPointF(0, size.height()));
        for (int x = 0; x <= size.width(); x += 4) {
            const double wave = std::sin(x * (0.004 + hill * 0.0016) + hill * 2.1) * (0.09 - hill * 0.012);
            outline.lineTo(x, size.height() * (0.55 + hill * 0.12 + wave));
        }
        outline.lineTo(size.width(), size.height());
        painter.fillPath(outline, QColor::fromHsl(228 + hill * 6, 70, 90 - hill * 20));
    }
    return image;
}

QByteArray png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

ClipDraft link(const char* address) {
    ClipDraft draft = drafts::text(QString::fromUtf8(address));
    draft.kind = ClipKind::link;
    return draft;
}

ClipDraft colour(const char* text) {
    ClipDraft draft = drafts::text(QString::fromUtf8(text));
    draft.kind = ClipKind::color;
    return draft;
}

ClipDraft rich() {
    ClipDraft draft = drafts::text(QStringLiteral("Minutes of the house meeting\n\n1. Roof: the offer of 12,400 is "
                                                  "taken.\n2. Bicycles: a second stand in the yard.\n3. Heating: "
                                                  "read the meters by the end of the month."));
    draft.kind = ClipKind::richText;
    draft.payload.items.front().representations[uniformtype::html] =
        "<h2>Minutes of the house meeting</h2><ol><li><b>Roof:</b> the offer of <u>12,400</u> is taken. "
        "<span style='color:#b3261e'>The crane comes on Tuesday.</span></li><li><b>Bicycles:</b> a second stand in "
        "the yard, see <a href='https://example.org'>the plan</a>.</li><li><b>Heating:</b> <i>read the meters</i> "
        "by the end of the month and enter them as <code>flat; reading</code>.</li></ol><p><s>Garden: "
        "postponed.</s></p>";
    return draft;
}

ClipDraft code() {
    ClipDraft draft = drafts::text(QStringLiteral(
        "#include <iostream>\n\n/// Greets as often as it is told.\nint main(int argc, char** argv) {\n\tconst int "
        "times = argc > 1 ? std::atoi(argv[1]) : 1;\n\tfor (int round = 0; round < times; ++round)\n\t\tstd::cout "
        "<< \"hello\\n\";\n\treturn 0;\n}"));
    draft.sourceBundleID = QStringLiteral("org.kde.konsole");
    return draft;
}

} // namespace vellumry::madeup
