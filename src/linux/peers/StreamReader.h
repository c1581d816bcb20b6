// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <concepts>
#include <optional>

namespace vellumry {

/// Reads what Qt's data streams write (QDataStream, big-endian) off a source with `read`, `skip` and `left`. Each
/// answer is nothing where the bytes end or are none of that kind; no length is believed before the bytes are there.
template <typename Source>
class StreamReader {
public:
    explicit StreamReader(Source& source)
        : m_source(&source) {}

    template <std::integral Number>
    [[nodiscard]] std::optional<Number> number() {
        const auto bytes = m_source->read(sizeof(Number));
        if (!bytes)
            return std::nullopt;
        std::make_unsigned_t<Number> value = 0;
        for (const char byte : *bytes)
            value = static_cast<std::make_unsigned_t<Number>>((value << 8) | static_cast<unsigned char>(byte));
        return static_cast<Number>(value);
    }

    /// Of a QByteArray with more than `most` bytes it is known that it is there, and its bytes are passed over.
    struct Bytes {
        QByteArray bytes;
        bool isTooLarge = false;
    };
    [[nodiscard]] std::optional<Bytes> bytes(qint64 most) {
        const auto length = number<quint32>();
        if (!length)
            return std::nullopt;
        if (*length == nullLength)
            return Bytes();
        if (*length > most)
            return m_source->skip(*length) ? std::optional(Bytes{{}, true}) : std::nullopt;
        auto read = m_source->read(*length);
        return read ? std::optional(Bytes{std::move(*read), false}) : std::nullopt;
    }

    /// A QString of at most `most` bytes (two for each unit).
    [[nodiscard]] std::optional<QString> string(qint64 most) {
        const auto read = bytes(most);
        if (!read || read->isTooLarge || read->bytes.size() % 2 != 0)
            return std::nullopt;
        QString text(read->bytes.size() / 2, Qt::Uninitialized);
        for (qsizetype i = 0; i < text.size(); ++i) {
            const auto high = static_cast<unsigned char>(read->bytes[2 * i]);
            const auto low = static_cast<unsigned char>(read->bytes[2 * i + 1]);
            text[i] = QChar(static_cast<char16_t>((high << 8) | low));
        }
        return text;
    }

private:
    static constexpr quint32 nullLength = 0xffffffff;

    Source* m_source;
};

} // namespace vellumry
