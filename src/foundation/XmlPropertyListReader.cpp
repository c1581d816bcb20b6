// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/XmlPropertyListReader.h"

#include <QDateTime>

namespace vellumry {

namespace {

constexpr int deepest = 64;
/// 2001-01-01 00:00:00 UTC in milliseconds since 1970.
constexpr qint64 epochOf2001 = 978'307'200'000;

std::optional<PropertyList> dateOf(const QString& text) {
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    if (!date.isValid())
        return std::nullopt;
    return PropertyList(PropertyList::DateValue{static_cast<double>(date.toMSecsSinceEpoch() - epochOf2001) / 1000});
}

std::optional<PropertyList> integerOf(const QString& text) {
    bool isNumber = false;
    const bool isHexadecimal = text.startsWith(u"0x") || text.startsWith(u"0X");
    const qint64 value = text.toLongLong(&isNumber, isHexadecimal ? 16 : 10);
    return isNumber ? std::optional(PropertyList(value)) : std::nullopt;
}

std::optional<PropertyList> realOf(const QString& text) {
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? std::optional(PropertyList(value)) : std::nullopt;
}

std::optional<PropertyList> dataOf(QString text) {
    text.removeIf([](QChar unit) { return unit.isSpace(); });
    const auto decoded = QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(PropertyList(decoded.decoded)) : std::nullopt;
}

} // namespace

std::optional<PropertyList> XmlPropertyListReader::read() {
    if (!m_xml.readNextStartElement() || m_xml.name() != u"plist" || !m_xml.readNextStartElement())
        return std::nullopt;
    std::optional<PropertyList> value = valueOf(0);
    // Nothing but the end may follow.
    if (!value || m_xml.readNextStartElement() || m_xml.hasError())
        return std::nullopt;
    return value;
}

std::optional<PropertyList> XmlPropertyListReader::valueOf(int depth) {
    if (depth > deepest)
        return std::nullopt;
    const QString name = m_xml.name().toString();
    if (name == u"array")
        return arrayOf(depth);
    if (name == u"dict")
        return dictionaryOf(depth);
    const QString text = m_xml.readElementText();
    return m_xml.hasError() ? std::nullopt : leafOf(name, text);
}

std::optional<PropertyList> XmlPropertyListReader::leafOf(const QString& name, const QString& text) const {
    if (name == u"string")
        return PropertyList(text);
    if (name == u"true" || name == u"false")
        return PropertyList(name == u"true");
    if (name == u"integer")
        return integerOf(text.trimmed());
    if (name == u"real")
        return realOf(text.trimmed());
    if (name == u"date")
        return dateOf(text.trimmed());
    if (name == u"data")
        return dataOf(text);
    return std::nullopt;
}

std::optional<PropertyList> XmlPropertyListReader::arrayOf(int depth) {
    PropertyList::Array array;
    while (m_xml.readNextStartElement()) {
        std::optional<PropertyList> element = valueOf(depth + 1);
        if (!element)
            return std::nullopt;
        array.push_back(std::move(*element));
    }
    return m_xml.hasError() ? std::nullopt : std::optional(PropertyList(std::move(array)));
}

std::optional<PropertyList> XmlPropertyListReader::dictionaryOf(int depth) {
    PropertyList::Dictionary dictionary;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() != u"key")
            return std::nullopt;
        const QString key = m_xml.readElementText();
        std::optional<PropertyList> value = m_xml.readNextStartElement() ? valueOf(depth + 1) : std::nullopt;
        if (!value)
            return std::nullopt;
        dictionary.insert_or_assign(key, std::move(*value));
    }
    return m_xml.hasError() ? std::nullopt : std::optional(PropertyList(std::move(dictionary)));
}

} // namespace vellumry
