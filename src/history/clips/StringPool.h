// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <array>
#include <utility>

namespace vellumry {

/// Makes equal strings share their characters. For the few names that thousands of clips repeat.
class StringPool {
public:
    [[nodiscard]] QString shared(const QString& string) {
        const auto found = m_strings.constFind(string);
        return found == m_strings.constEnd() ? *m_strings.insert(string, string) : *found;
    }

    /// As `shared`, for ASCII bytes; makes no string for bytes it has seen before.
    [[nodiscard]] QString sharedAscii(QByteArrayView ascii) {
        if (ascii.isEmpty())
            return QStringLiteral("");
        // Most names are among a few, which this tells apart without the hash of all their characters.
        const auto place = static_cast<std::size_t>(ascii.size() + ascii.front() + ascii.back());
        auto& [recent, string] = m_recent[place % m_recent.size()];
        if (recent != ascii) {
            string = lookedUp(ascii);
            recent = ascii.toByteArray();
        }
        return string;
    }

private:
    [[nodiscard]] QString lookedUp(QByteArrayView ascii) {
        const QByteArray key = QByteArray::fromRawData(ascii.data(), ascii.size());
        const auto found = m_ascii.constFind(key);
        if (found != m_ascii.constEnd())
            return *found;
        return *m_ascii.insert(ascii.toByteArray(), shared(QString::fromLatin1(ascii)));
    }

    QHash<QString, QString> m_strings;
    QHash<QByteArray, QString> m_ascii;
    std::array<std::pair<QByteArray, QString>, 64> m_recent;
};

} // namespace vellumry
