// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/PropertyList.h"

#include "foundation/BinaryListTree.h"
#include "foundation/XmlPropertyListReader.h"

namespace vellumry {

PropertyList::PropertyList(bool value)
    : m_value(value) {}
PropertyList::PropertyList(qint64 value)
    : m_value(value) {}
PropertyList::PropertyList(double value)
    : m_value(value) {}
PropertyList::PropertyList(QString value)
    : m_value(std::move(value)) {}
PropertyList::PropertyList(const char16_t* value)
    : m_value(QString::fromUtf16(value)) {}
PropertyList::PropertyList(QByteArray value)
    : m_value(std::move(value)) {}
PropertyList::PropertyList(Array value)
    : m_value(std::move(value)) {}
PropertyList::PropertyList(Dictionary value)
    : m_value(std::move(value)) {}
PropertyList::PropertyList(DateValue value)
    : m_value(value) {}
PropertyList::PropertyList(Uid value)
    : m_value(value) {}

const bool* PropertyList::boolean() const {
    return std::get_if<bool>(&m_value);
}
const qint64* PropertyList::integer() const {
    return std::get_if<qint64>(&m_value);
}
const double* PropertyList::real() const {
    return std::get_if<double>(&m_value);
}
const QString* PropertyList::string() const {
    return std::get_if<QString>(&m_value);
}
const QByteArray* PropertyList::data() const {
    return std::get_if<QByteArray>(&m_value);
}
const PropertyList::Array* PropertyList::array() const {
    return std::get_if<Array>(&m_value);
}
const PropertyList::Dictionary* PropertyList::dictionary() const {
    return std::get_if<Dictionary>(&m_value);
}
const PropertyList::DateValue* PropertyList::date() const {
    return std::get_if<DateValue>(&m_value);
}
const PropertyList::Uid* PropertyList::uid() const {
    return std::get_if<Uid>(&m_value);
}

const PropertyList* PropertyList::find(const QString& key) const {
    const Dictionary* entries = dictionary();
    if (!entries)
        return nullptr;
    const auto entry = entries->find(key);
    return entry == entries->end() ? nullptr : &entry->second;
}

std::optional<PropertyList> PropertyList::fromBytes(const QByteArray& bytes) {
    if (BinaryList::recognises(bytes))
        return BinaryListTree(bytes).read();
    return XmlPropertyListReader(bytes).read();
}

bool PropertyList::operator==(const PropertyList& other) const {
    return m_value == other.m_value;
}

} // namespace vellumry
