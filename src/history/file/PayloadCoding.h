// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/BinaryListWriter.h"
#include "history/clips/Clip.h"

namespace vellumry {

/// A payload as a binary property list: "items", each with "representations" and, where known, "order". Any thread.
[[nodiscard]] QByteArray encodePayload(const ClipPayload& payload, BinaryListWriter::Margins margins = {});

/// Nothing for bytes that are no property list of that shape.
[[nodiscard]] std::optional<ClipPayload> decodePayload(const QByteArray& bytes);

} // namespace vellumry
