// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RichText.h"

#include "foundation/RtfParser.h"

namespace vellumry {

std::optional<QString> textOfRtf(const QByteArray& rtf) {
    return RtfParser(rtf).text();
}

} // namespace vellumry
