// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/file/BinaryListWriter.h"

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

namespace vellumry {

class StringPool;

/// The sealed part of a history row: what must not lie in the file for all to read.
struct ClipMeta {
    QString title;
    StoredText searchText;
    std::optional<QString> sourceBundleID;
    std::optional<QString> sourceAppName;
    std::vector<FileRef> files;
    std::optional<QByteArray> thumbnail;
    std::optional<QString> imageText;
    std::optional<bool>
        imageTextIsAccurate; ///< rows of before this field existed lack it and the next; both read as false
    std::optional<bool> isScreenshot;

    [[nodiscard]] static ClipMeta of(const Clip& clip);
    /// Puts the fields into the clip, absent booleans as false.
    void applyTo(Clip& clip) &&;

    /// A binary property list: one dictionary under the names of the fields, absent optionals left out.
    [[nodiscard]] QByteArray encoded(BinaryListWriter::Margins margins = {}) const;
    /// Nothing for bytes that are no property list, and for one that lacks title, searchText or files or holds another
    /// type than a field's own. Keys that it does not know are passed over. Source names are taken from `pool` when
    /// there is one.
    [[nodiscard]] static std::optional<ClipMeta> decode(QByteArrayView bytes, StringPool* pool = nullptr);

    bool operator==(const ClipMeta&) const = default;
};

} // namespace vellumry
