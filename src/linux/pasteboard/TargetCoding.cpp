// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/pasteboard/TargetCoding.h"

#include "foundation/UniformType.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace vellumry::targetcoding {

namespace {

QByteArray withoutFinalNul(const QByteArray& bytes) {
    // GTK 4 and the file managers count the NUL of a C string as content.
    return bytes.endsWith('\0') ? bytes.chopped(1) : bytes;
}

std::optional<QByteArray> decodeText(const QString& target, const QString& propertyType, const QByteArray& raw) {
    const QByteArray bytes = withoutFinalNul(raw);
    // TEXT leaves the choice to the owner, and some answer STRING with UTF-8: the type of the property decides.
    const bool isNamed =
        propertyType == u"UTF8_STRING" || propertyType == u"STRING" || propertyType == u"COMPOUND_TEXT";
    const QString encoding = isNamed ? propertyType : target;
    if (encoding == u"UTF8_STRING")
        return bytes;
    if (encoding == u"STRING")
        return QString::fromLatin1(bytes).toUtf8();
    if (encoding == u"COMPOUND_TEXT") {
        // Without an escape sequence compound text is Latin-1; every program that needs more offers UTF-8 as well.
        if (bytes.contains('\x1b'))
            return std::nullopt;
        return QString::fromLatin1(bytes).toUtf8();
    }
    // text/plain does not name its encoding: UTF-8 where it can be that.
    if (bytes.isValidUtf8())
        return bytes;
    return QString::fromLatin1(bytes).toUtf8();
}

std::optional<QByteArray> latin1(const QByteArray& utf8) {
    QStringEncoder encoder(QStringConverter::Latin1);
    const QByteArray encoded = encoder.encode(QString::fromUtf8(utf8));
    if (encoder.hasError())
        return std::nullopt;
    return encoded;
}

} // namespace

std::optional<QByteArray> decode(const QString& uniformType, const QString& target, const QString& propertyType,
                                 const QByteArray& bytes) {
    if (uniformType == uniformtype::utf8PlainText)
        return decodeText(target, propertyType, bytes);
    if (target.compare(u"text/x-moz-url-priv", Qt::CaseInsensitive) == 0) {
        QStringDecoder decoder(QStringConverter::Utf16LE);
        const QString decoded = decoder.decode(bytes);
        return withoutFinalNul(decoded.toUtf8());
    }
    if (uniformType == uniformtype::sourceUrl || target.startsWith(u"x-special/"))
        return withoutFinalNul(bytes);
    return bytes;
}

std::optional<QByteArray> encode(const QString& uniformType, const QString& target, const QByteArray& bytes) {
    // Compound text without escape sequences is Latin-1 too.
    if (uniformType == uniformtype::utf8PlainText && (target == u"STRING" || target == u"COMPOUND_TEXT"))
        return latin1(bytes);
    return bytes;
}

bool isMadeOnDemand(const QString& target) {
    return target.startsWith(u"image/", Qt::CaseInsensitive) || uniformtype::isKnownTarget(target);
}

QString propertyTypeOf(const QString& target) {
    return target == u"TEXT" ? QStringLiteral("UTF8_STRING") : target;
}

} // namespace vellumry::targetcoding
