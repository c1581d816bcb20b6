// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/IniValue.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace vellumry::inivalue {

namespace {

/// One element of a right-hand side.
struct Token {
    QString text;
    bool isQuoted = false;
};

bool isHexDigit(QChar unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

/// Reads the escape behind a backslash at `position` and moves behind it.
QString unescaped(const QString& text, qsizetype& position) {
    const QChar kind = text[position++];
    static const QString letters = QStringLiteral("abfnrtv0\"\\");
    static const QString meanings = QStringLiteral("\a\b\f\n\r\t\v") + QChar(0) + QStringLiteral("\"\\");
    if (const qsizetype index = letters.indexOf(kind); index >= 0)
        return meanings.mid(index, 1);
    if (kind != u'x')
        return QString();
    char16_t value = 0;
    while (position < text.size() && isHexDigit(text[position]))
        value = static_cast<char16_t>(value << 4 | QStringView(text).sliced(position++, 1).toUShort(nullptr, 16));
    return QString(QChar(value));
}

/// Parts a right-hand side at its commas. Spaces around bare words do not count; quoted stretches are taken as they
/// are.
std::vector<Token> tokens(const QString& text) {
    std::vector<Token> result(1);
    bool isInQuotes = false;
    qsizetype spaces = 0; // at the end of the present bare word; they count only when more follows
    for (qsizetype i = 0; i < text.size();) {
        const QChar unit = text[i++];
        Token& token = result.back();
        if (unit == u'"') {
            isInQuotes = !isInQuotes;
            token.isQuoted = true;
            spaces = 0;
        } else if (unit == u',' && !isInQuotes) {
            result.emplace_back();
            spaces = 0;
        } else if ((unit == u' ' || unit == u'\t') && !isInQuotes) {
            ++spaces;
        } else {
            if (!token.text.isEmpty() && !token.isQuoted)
                token.text.append(QString(spaces, u' '));
            spaces = 0;
            token.text.append(unit == u'\\' && i < text.size() ? unescaped(text, i) : QString(unit));
        }
    }
    return result;
}

QVariant fromNotation(const QString& text) {
    const auto inside = [&text](const char16_t* opening) -> std::optional<QString> {
        const QString prefix = QString::fromUtf16(opening);
        if (!text.startsWith(prefix) || !text.endsWith(u')'))
            return std::nullopt;
        return text.mid(prefix.size(), text.size() - prefix.size() - 1);
    };
    if (text.startsWith(u"@@"))
        return text.mid(1);
    if (const auto data = inside(u"@ByteArray("))
        return data->toLatin1();
    if (const auto json = inside(u"@Json(")) {
        const QJsonDocument document = QJsonDocument::fromJson(json->toUtf8());
        return document.isNull() ? QVariant() : normalized(document.toVariant());
    }
    return QVariant();
}

QVariant scalar(const Token& token) {
    const QString& text = token.text;
    if (text.startsWith(u'@'))
        return fromNotation(text);
    if (token.isQuoted)
        return text;
    if (text == u"true" || text == u"false")
        return text == u"true";
    bool isNumber = false;
    if (const qint64 integer = text.toLongLong(&isNumber); isNumber)
        return integer;
    if (const double real = text.toDouble(&isNumber); isNumber)
        return real;
    return text;
}

QVariant listOf(const std::vector<Token>& items) {
    QVariantList list;
    for (const Token& item : items)
        list.append(scalar(item));
    return normalized(list);
}

QString escaped(const QString& text) {
    QString result;
    bool lastWasHex = false;
    for (const QChar unit : text) {
        const bool isControl = unit < u' ' || unit == u'\x7F';
        if (isControl || (lastWasHex && isHexDigit(unit))) {
            result += QStringLiteral("\\x") + QString::number(unit.unicode(), 16);
            lastWasHex = true;
            continue;
        }
        if (unit == u'"' || unit == u'\\')
            result += u'\\';
        result += unit;
        lastWasHex = false;
    }
    return result;
}

bool isBareWord(const QString& text) {
    const auto isPlain = [](QChar unit) {
        return unit.isLetterOrNumber() || QStringLiteral("._/:+-@(){} ").contains(unit);
    };
    if (text.isEmpty() || text.startsWith(u' ') || text.endsWith(u' ') ||
        !std::all_of(text.begin(), text.end(), isPlain))
        return false;
    return text.startsWith(u'@') || scalar({text, false}).typeId() == QMetaType::QString;
}

QString formattedText(const QString& text) {
    return isBareWord(text) ? text : u'"' + escaped(text) + u'"';
}

QString formattedScalar(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::LongLong:
        return QString::number(value.toLongLong());
    case QMetaType::Double: {
        const QString text = QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
        const bool looksIntegral = std::isfinite(value.toDouble()) && !text.contains(u'.') && !text.contains(u'e');
        return looksIntegral ? text + QStringLiteral(".0") : text;
    }
    case QMetaType::QByteArray:
        return formattedText(QStringLiteral("@ByteArray(") + QString::fromLatin1(value.toByteArray()) + u')');
    case QMetaType::QString: {
        const QString text = value.toString();
        return formattedText(text.startsWith(u'@') ? u'@' + text : text);
    }
    default: {
        const QByteArray json = QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact);
        return formattedText(QStringLiteral("@Json(") + QString::fromUtf8(json) + u')');
    }
    }
}

} // namespace

QVariant normalized(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return value.toLongLong();
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QVariantList: {
        QVariantList list = value.toList();
        bool areTexts = true;
        for (QVariant& item : list) {
            item = normalized(item);
            areTexts = areTexts && item.typeId() == QMetaType::QString;
        }
        return areTexts ? QVariant(value.toStringList()) : QVariant(list);
    }
    case QMetaType::QVariantMap: {
        QVariantMap map = value.toMap();
        for (QVariant& item : map)
            item = normalized(item);
        return map;
    }
    default:
        return value;
    }
}

QVariant parsed(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes).trimmed();
    if (text.startsWith(u"@List(") && text.endsWith(u')')) {
        const QString inside = text.mid(6, text.size() - 7);
        return inside.isEmpty() ? QVariant(QStringList()) : listOf(tokens(inside));
    }
    const std::vector<Token> items = tokens(text);
    return items.size() == 1 ? scalar(items.front()) : listOf(items);
}

QByteArray formatted(const QVariant& value) {
    const QVariant kept = normalized(value);
    const bool isList = kept.typeId() == QMetaType::QStringList || kept.typeId() == QMetaType::QVariantList;
    if (!isList)
        return formattedScalar(kept).toUtf8();
    QStringList items;
    for (const QVariant& item : kept.toList())
        items.append(formattedScalar(item));
    const QString joined = items.join(QStringLiteral(", "));
    // A single element would read as itself.
    return (items.size() > 1 ? joined : QStringLiteral("@List(") + joined + u')').toUtf8();
}

} // namespace vellumry::inivalue
