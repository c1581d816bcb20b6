// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/PropertyList.h"

#include <QXmlStreamReader>

namespace vellumry {

/// Reads one list in the XML coding (`<plist version="1.0">`). Any thread; used once.
class XmlPropertyListReader {
public:
    explicit XmlPropertyListReader(const QByteArray& bytes)
        : m_xml(bytes) {}
    [[nodiscard]] std::optional<PropertyList> read();

private:
    [[nodiscard]] std::optional<PropertyList> valueOf(int depth);
    [[nodiscard]] std::optional<PropertyList> arrayOf(int depth);
    [[nodiscard]] std::optional<PropertyList> dictionaryOf(int depth);
    [[nodiscard]] std::optional<PropertyList> leafOf(const QString& name, const QString& text) const;

    QXmlStreamReader m_xml;
};

} // namespace vellumry
