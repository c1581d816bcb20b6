// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ContentDetection.h"
#include "capture/SourceUrl.h"
#include "capture/TextClassification.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <cstdlib>

using namespace vellumry;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

namespace {

/// A copy whose representations are chosen by the first byte and all hold the rest.
ClipDraft draftOf(const QByteArray& bytes) {
    const QString types[] = {uniformtype::utf8PlainText, uniformtype::rtf,   uniformtype::html,      uniformtype::url,
                             uniformtype::sourceUrl,     uniformtype::color, uniformtype::webArchive};
    PasteboardItem item;
    const int chosen = bytes.isEmpty() ? 0 : static_cast<unsigned char>(bytes[0]);
    for (int bit = 0; bit < 7; ++bit) {
        if (chosen & (1 << bit))
            item.representations[types[bit]] = bytes.mid(1);
    }
    ClipDraft draft;
    draft.payload.items.push_back(item);
    return draft;
}

void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString string = QString::fromUtf8(bytes);
    const QString trimmed = text::trimmed(string);
    if (const auto link = detectLink(string))
        require(link->isValid() && (!link->host().isEmpty() || link->scheme() == u"mailto"));
    require(detectLink(string) == detectLink(trimmed));
    require(isSecretToken(string) == isSecretToken(trimmed));
    require(isCardNumber(string) == isCardNumber(trimmed));
    require(!isCardNumber(string) || !detectLink(string));
    // What counts from nowhere counts from a program for messages too.
    require(!isOneTimeCode(string, {}, {}) || isOneTimeCode(string, QStringLiteral("com.apple.mail"), {}));

    ClipDraft draft = draftOf(bytes);
    if (const auto page = sourceURL(draft.payload.items.front()))
        require(!page->host().isEmpty());
    if (classifyText(draft)) {
        require(!draft.title.isEmpty());
        require(!draft.isSensitive || draft.kind == ClipKind::text || draft.kind == ClipKind::richText);
        require(!text::hasMoreCharactersThan(draft.searchText, 200'000));
    }
    return 0;
}
