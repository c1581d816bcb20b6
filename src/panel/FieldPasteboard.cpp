// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/FieldPasteboard.h"

#include "foundation/UniformType.h"
#include "platform/display/Pasteboard.h"

namespace vellumry {

namespace {

constexpr qint64 mostBytes = 8 * 1024 * 1024;

QString firstLine(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    qsizetype start = 0;
    while (start < text.size() && text.at(start).isSpace())
        ++start;
    qsizetype end = start;
    while (end < text.size() && text.at(end) != QLatin1Char('\n') && text.at(end) != QLatin1Char('\r'))
        ++end;
    QString line = text.mid(start, std::min(end - start, FieldPasteboard::longest));
    if (!line.isEmpty() && line.back().isHighSurrogate())
        line.chop(1);
    return line.trimmed();
}

} // namespace

FieldPasteboard::FieldPasteboard(Pasteboard& pasteboard)
    : m_pasteboard(&pasteboard) {}

QCoro::Task<QString> FieldPasteboard::text() {
    auto beginning = m_pasteboard->beginReading();
    const std::shared_ptr<PasteboardReading> reading = co_await beginning;
    if (!reading || !reading->types().contains(uniformtype::utf8PlainText))
        co_return QString();
    auto asking = reading->data(0, uniformtype::utf8PlainText, mostBytes);
    const std::optional<QByteArray> bytes = co_await asking;
    co_return bytes ? firstLine(*bytes) : QString();
}

void FieldPasteboard::setText(const QString& text) {
    PasteboardItem item;
    item.representations[uniformtype::utf8PlainText] = text.toUtf8();
    item.order = QStringList{uniformtype::utf8PlainText};
    std::vector<PasteboardItem> items;
    items.push_back(std::move(item));
    (void)m_pasteboard->write(std::move(items));
}

} // namespace vellumry
