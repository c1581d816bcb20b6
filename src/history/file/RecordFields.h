// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/PropertyList.h"

#include <QString>

/// Reading the fields of a coded record out of a property list, for the record types of this folder.
namespace vellumry::recordfields {

/// A field that must be there and of its type.
template <typename Value>
[[nodiscard]] bool require(const PropertyList& record, const QString& key, const Value* (PropertyList::*as)() const,
                           Value& field) {
    const PropertyList* const value = record.find(key);
    const Value* const typed = value ? (value->*as)() : nullptr;
    if (!typed)
        return false;
    field = *typed;
    return true;
}

/// A field that may be missing; one of another type still spoils the record.
template <typename Value>
[[nodiscard]] bool allow(const PropertyList& record, const QString& key, const Value* (PropertyList::*as)() const,
                         std::optional<Value>& field) {
    const PropertyList* const value = record.find(key);
    if (!value)
        return true;
    const Value* const typed = (value->*as)();
    if (!typed)
        return false;
    field = *typed;
    return true;
}

} // namespace vellumry::recordfields
