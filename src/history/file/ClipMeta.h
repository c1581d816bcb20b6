// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/BinaryListWriter.h"
#include "history/clips/Clip.h"

#include <QByteArray>
#include <optional>

namespace vellumry {

/// The sealed part of a history row: what must not lie in the file for all to read.
struct ClipMeta {
    StoredText title; ///< shares its bytes with `searchText` where both are the same
    StoredText searchText;
    std::optional<QString> sourceBundleID;
    std::optional<QString> sourceAppName;
    std::vector<FileRef> files;
    std::optional<QByteArray> thumbnail;
    std::optional<StoredText> imageText;
    std::optional<bool> imageTextIsAccurate; ///< absent, as is the next, in rows written before the field existed
    std::optional<bool> isScreenshot;

    [[nodiscard]] static ClipMeta of(const Clip& clip);
    /// Puts the fields into the clip, absent booleans as false.
    void applyTo(Clip& clip) &&;

    /// A binary property list: one dictionary under the names of the fields, absent optionals left out.
    [[nodiscard]] QByteArray encoded(BinaryListWriter::Margins margins = {}) const;

    bool operator==(const ClipMeta&) const = default;
};

} // namespace vellumry
