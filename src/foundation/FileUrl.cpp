// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileUrl.h"

#include <QStringList>
#include <array>
#include <climits>
#include <unistd.h>

namespace vellumry::fileurl {

namespace {

bool isThisMachine(const QByteArray& host) {
    if (host.isEmpty() || host.compare("localhost", Qt::CaseInsensitive) == 0)
        return true;
    std::array<char, HOST_NAME_MAX + 1> name{};
    return gethostname(name.data(), name.size() - 1) == 0 && host.compare(name.data(), Qt::CaseInsensitive) == 0;
}

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char lower = static_cast<char>(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The bytes behind percent escapes; nothing for a broken escape and for a NUL, which no path can hold.
std::optional<QByteArray> percentDecoded(const QByteArray& encoded) {
    QByteArray result;
    result.reserve(encoded.size());
    for (qsizetype i = 0; i < encoded.size(); ++i) {
        char byte = encoded[i];
        if (byte == '%') {
            const int high = i + 2 < encoded.size() ? hexValue(encoded[i + 1]) : -1;
            const int low = i + 2 < encoded.size() ? hexValue(encoded[i + 2]) : -1;
            if (high < 0 || low < 0)
                return std::nullopt;
            byte = static_cast<char>(high << 4 | low);
            i += 2;
        }
        if (byte == 0)
            return std::nullopt;
        result.append(byte);
    }
    return result;
}

bool hasControlBytes(const QByteArray& bytes) {
    for (const char byte : bytes) {
        if (static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F)
            return true;
    }
    return false;
}

} // namespace

std::optional<QString> pathOf(const QByteArray& url) {
    constexpr qsizetype schemeLength = 5;
    if (url.size() <= schemeLength || url.first(schemeLength).compare("file:", Qt::CaseInsensitive) != 0)
        return std::nullopt;
    if (hasControlBytes(url))
        return std::nullopt;
    QByteArray path = url.sliced(schemeLength);
    if (path.startsWith("//")) {
        const qsizetype slash = path.indexOf('/', 2);
        if (slash < 0 || !isThisMachine(path.sliced(2, slash - 2)))
            return std::nullopt;
        path = path.sliced(slash);
    }
    for (const char delimiter : {'#', '?'}) {
        if (const qsizetype at = path.indexOf(delimiter); at >= 0)
            path.truncate(at);
    }
    const std::optional<QByteArray> decoded = percentDecoded(path);
    if (!decoded || !decoded->startsWith('/'))
        return std::nullopt;
    return standardized(QString::fromUtf8(*decoded));
}

std::optional<QString> nameOf(const QByteArray& url) {
    const std::optional<QString> path = pathOf(url);
    if (!path)
        return std::nullopt;
    return lastPathComponent(*path);
}

QByteArray urlOf(const QString& path) {
    // What RFC 3986 allows in a path segment stays readable, as the desktop's own programs write it.
    return "file://" + path.toUtf8().toPercentEncoding("/!$&'()*+,=:@");
}

QString standardized(const QString& path) {
    const bool absolute = path.startsWith(u'/');
    QStringList kept;
    const QStringList parts = path.split(u'/', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part == u".")
            continue;
        if (part != u"..")
            kept.append(part);
        else if (!kept.isEmpty() && kept.constLast() != u"..")
            kept.removeLast();
        else if (!absolute)
            kept.append(part);
    }
    return (absolute ? QStringLiteral("/") : QString()) + kept.join(u'/');
}

QString lastPathComponent(const QString& path) {
    qsizetype end = path.size();
    while (end > 0 && path[end - 1] == u'/')
        --end;
    if (end == 0)
        return path.isEmpty() ? QString() : QStringLiteral("/");
    const qsizetype slash = path.lastIndexOf(u'/', end - 1);
    return path.mid(slash + 1, end - slash - 1);
}

QString pathExtension(const QString& path) {
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? QString() : name.mid(dot + 1);
}

} // namespace vellumry::fileurl
