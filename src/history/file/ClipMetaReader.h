// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/ClipMeta.h"

namespace vellumry {

class StringPool;

/// Nothing for bytes that are no property list, and for one that lacks title, searchText or files or holds another type
/// than a field's own. Keys that it does not know are passed over. Source names are taken from `pool` when there is
/// one.
[[nodiscard]] std::optional<ClipMeta> decodeMeta(QByteArrayView bytes, StringPool* pool = nullptr);

/// Reads a clip's meta straight out of the bytes of a binary property list, without building the list: a start with a
/// hundred thousand clips does nothing else. It answers only for lists of the shape that `ClipMeta::encoded` writes.
/// Nothing means "not such a list", which says nothing about whether the list is sound; the general reader decides
/// that.
[[nodiscard]] std::optional<ClipMeta> readPlainMeta(QByteArrayView bytes, StringPool* pool);

} // namespace vellumry
