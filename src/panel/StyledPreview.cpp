// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/StyledPreview.h"

#include "foundation/RichText.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"
#include "panel/TextSlices.h"

namespace vellumry::styledpreview {

namespace {

constexpr qsizetype largestDocument = 4 * 1024 * 1024;

const QByteArray* documentOf(const PasteboardItem& item, const QString& type) {
    const auto found = item.representations.find(type);
    const bool isFit = found != item.representations.end() && found->second.size() <= largestDocument;
    return isFit ? &found->second : nullptr;
}

std::optional<StyledText> styledTextOf(const PasteboardItem& item) {
    if (const QByteArray* rtf = documentOf(item, uniformtype::rtf)) {
        if (auto styled = styledRtf(*rtf))
            return styled;
    }
    if (const QByteArray* html = documentOf(item, uniformtype::html))
        return styledHtml(*html);
    return std::nullopt;
}

/// The runs of a text, counted in the bytes of its UTF-8.
PreviewTextModel::Content inBytes(const StyledText& styled) {
    PreviewTextModel::Content content;
    qsizetype place = 0;
    const auto addUpTo = [&](qsizetype end) {
        content.text += QStringView(styled.text).sliced(place, end - place).toUtf8();
        place = end;
    };
    for (const StyledRun& run : styled.runs) {
        addUpTo(run.start);
        const qsizetype start = content.text.size();
        addUpTo(run.start + run.length);
        content.runs.push_back({start, content.text.size() - start, run.style});
    }
    addUpTo(styled.text.size());
    content.starts = textslices::startsOf(content.text);
    return content;
}

} // namespace

std::optional<PreviewTextModel::Content> contentOf(const std::vector<PasteboardItem>& items) {
    if (items.empty())
        return std::nullopt;
    const auto styled = styledTextOf(items.front());
    return styled && !text::isBlank(styled->text) ? std::optional(inBytes(*styled)) : std::nullopt;
}

} // namespace vellumry::styledpreview
