// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Text.h"

#include <QByteArray>
#include <QString>

namespace vellumry {

/// Text that is kept long and read seldom: UTF-8, implicitly shared, half the size of a QString for most of what people
/// copy. A value; any thread.
class StoredText {
public:
    StoredText() = default;
    /// Not explicit: text is assigned to it.
    StoredText(const QString& text)
        : m_utf8(utf8Of(text)) {}
    [[nodiscard]] static StoredText fromUtf8(QByteArray utf8) {
        StoredText text;
        text.m_utf8 = std::move(utf8);
        return text;
    }

    /// Where both are the same, this one keeps no bytes of its own.
    void shareWith(const StoredText& other) {
        if (m_utf8 == other.m_utf8)
            m_utf8 = other.m_utf8;
    }
    [[nodiscard]] QString toString() const { return QString::fromUtf8(m_utf8); }
    [[nodiscard]] const QByteArray& utf8() const { return m_utf8; }
    [[nodiscard]] bool isEmpty() const { return m_utf8.isEmpty(); }

    bool operator==(const StoredText&) const = default;

private:
    static QByteArray utf8Of(const QString& text) {
        if (text::isAscii(text))
            return text.toLatin1();
        QByteArray utf8 = text.toUtf8();
        // The conversion leaves room for three bytes a character, which would be kept as long as the text.
        utf8.squeeze();
        return utf8;
    }

    QByteArray m_utf8;
};

} // namespace vellumry
