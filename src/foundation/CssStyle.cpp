// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/CssStyle.h"

#include <QHash>
#include <algorithm>
#include <array>

namespace vellumry::css {

namespace {

constexpr float leastSize = 1;
constexpr float mostSize = 400;

bool is(QStringView value, QLatin1String word) {
    return value.compare(word, Qt::CaseInsensitive) == 0;
}

bool has(QStringView value, QLatin1String word) {
    return value.contains(word, Qt::CaseInsensitive);
}

/// The number at the beginning of a value, and what follows it.
std::optional<std::pair<float, QStringView>> measureOf(QStringView value) {
    qsizetype length = 0;
    while (length < value.size() &&
           (value[length].isDigit() || value[length] == u'.' || value[length] == u'-' || value[length] == u'+'))
        ++length;
    bool isNumber = false;
    const float number = value.first(length).toFloat(&isNumber);
    return isNumber ? std::optional(std::pair(number, value.sliced(length).trimmed())) : std::nullopt;
}

std::optional<float> sizeOf(QStringView value, float inherited) {
    static const QHash<QString, float> words{{QStringLiteral("xx-small"), 9.0F}, {QStringLiteral("x-small"), 10.0F},
                                             {QStringLiteral("small"), 13.0F},   {QStringLiteral("medium"), usualSize},
                                             {QStringLiteral("large"), 18.0F},   {QStringLiteral("x-large"), 24.0F},
                                             {QStringLiteral("xx-large"), 32.0F}};
    constexpr float pixelsOfPoint = 4.0F / 3;
    constexpr float step = 1.2F;
    if (is(value, QLatin1String("larger")))
        return inherited * step;
    if (is(value, QLatin1String("smaller")))
        return inherited / step;
    if (const auto word = words.constFind(value.toString().toLower()); word != words.constEnd())
        return *word;
    const auto measure = measureOf(value);
    if (!measure)
        return std::nullopt;
    const auto [number, unit] = *measure;
    if (is(unit, QLatin1String("px")))
        return number;
    if (is(unit, QLatin1String("pt")))
        return number * pixelsOfPoint;
    if (is(unit, QLatin1String("em")))
        return number * inherited;
    if (is(unit, QLatin1String("rem")))
        return number * usualSize;
    return unit == u'%' ? std::optional(number * inherited / 100) : std::nullopt;
}

void applyWeight(QStringView value, TextStyle& style) {
    constexpr float semiBold = 600;
    if (const auto measure = measureOf(value))
        style.isBold = measure->first >= semiBold;
    else if (is(value, QLatin1String("bold")) || is(value, QLatin1String("bolder")))
        style.isBold = true;
    else if (is(value, QLatin1String("normal")) || is(value, QLatin1String("lighter")))
        style.isBold = false;
}

void applyLines(QStringView value, TextStyle& style) {
    const bool isNone = has(value, QLatin1String("none"));
    style.isUnderlined = !isNone && (style.isUnderlined || has(value, QLatin1String("underline")));
    style.isStruck = !isNone && (style.isStruck || has(value, QLatin1String("line-through")));
}

void applyOne(QStringView name, QStringView value, TextStyle& style, Flow& flow) {
    if (is(name, QLatin1String("font-weight"))) {
        applyWeight(value, style);
    } else if (is(name, QLatin1String("font-style"))) {
        style.isItalic = is(value, QLatin1String("italic")) || has(value, QLatin1String("oblique"));
    } else if (is(name, QLatin1String("text-decoration")) || is(name, QLatin1String("text-decoration-line"))) {
        applyLines(value, style);
    } else if (is(name, QLatin1String("color"))) {
        if (const auto color = colorOf(value))
            style.color = color;
    } else if (is(name, QLatin1String("font-family"))) {
        style.isFixedWidth = isFixedWidth(value);
    } else if (is(name, QLatin1String("font-size"))) {
        if (const auto size = sizeOf(value, style.size))
            style.size = std::clamp(*size, leastSize, mostSize);
    } else if (is(name, QLatin1String("display"))) {
        flow.isHidden = flow.isHidden || is(value, QLatin1String("none"));
    } else if (is(name, QLatin1String("white-space"))) {
        flow.keepsBlanks = has(value, QLatin1String("pre")) && !is(value, QLatin1String("pre-line"));
    }
}

/// "#fff" and "#ffffff".
std::optional<quint32> hexColor(QStringView value) {
    bool isRead = false;
    const quint32 number = value.sliced(1).toUInt(&isRead, 16);
    if (!isRead)
        return std::nullopt;
    if (value.size() == 7)
        return number;
    const quint32 wide = (number & 0xF00U) << 8 | (number & 0xF0U) << 4 | (number & 0xFU);
    return value.size() == 4 ? std::optional(wide | wide << 4) : std::nullopt;
}

/// "rgb(…)" and "rgba(…)" with commas, blanks or a slash between the numbers.
std::optional<quint32> rgbColor(QStringView value) {
    const qsizetype open = value.indexOf(u'(');
    if (open < 0)
        return std::nullopt;
    std::array<float, 4> parts{0, 0, 0, 1};
    std::size_t count = 0;
    QString inside = value.sliced(open + 1, value.size() - open - 2).toString();
    inside.replace(u',', u' ').replace(u'/', u' ');
    for (const QStringView part : QStringView(inside).tokenize(u' ', Qt::SkipEmptyParts)) {
        const auto measure = measureOf(part);
        if (!measure || count == parts.size())
            return std::nullopt;
        parts[count++] = measure->first;
    }
    // Nearly clear, it was not meant to be read.
    if (count < 3 || parts[3] <= 0.1F)
        return std::nullopt;
    quint32 color = 0;
    for (std::size_t index = 0; index < 3; ++index)
        color = color << 8 | static_cast<quint32>(std::clamp(parts[index], 0.0F, 255.0F));
    return color;
}

std::optional<quint32> namedColor(QStringView value) {
    static const QHash<QString, quint32> names{
        {QStringLiteral("black"), 0x000000},    {QStringLiteral("silver"), 0xc0c0c0},
        {QStringLiteral("gray"), 0x808080},     {QStringLiteral("grey"), 0x808080},
        {QStringLiteral("white"), 0xffffff},    {QStringLiteral("maroon"), 0x800000},
        {QStringLiteral("red"), 0xff0000},      {QStringLiteral("purple"), 0x800080},
        {QStringLiteral("fuchsia"), 0xff00ff},  {QStringLiteral("magenta"), 0xff00ff},
        {QStringLiteral("green"), 0x008000},    {QStringLiteral("lime"), 0x00ff00},
        {QStringLiteral("olive"), 0x808000},    {QStringLiteral("yellow"), 0xffff00},
        {QStringLiteral("navy"), 0x000080},     {QStringLiteral("blue"), 0x0000ff},
        {QStringLiteral("teal"), 0x008080},     {QStringLiteral("aqua"), 0x00ffff},
        {QStringLiteral("cyan"), 0x00ffff},     {QStringLiteral("orange"), 0xffa500},
        {QStringLiteral("brown"), 0xa52a2a},    {QStringLiteral("crimson"), 0xdc143c},
        {QStringLiteral("darkblue"), 0x00008b}, {QStringLiteral("darkgreen"), 0x006400},
        {QStringLiteral("darkred"), 0x8b0000}};
    const auto found = names.constFind(value.toString().toLower());
    return found == names.constEnd() ? std::nullopt : std::optional(*found);
}

} // namespace

void apply(QStringView declarations, TextStyle& style, Flow& flow) {
    for (const QStringView declaration : declarations.tokenize(u';')) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon < 0)
            continue;
        QStringView value = declaration.sliced(colon + 1).trimmed();
        if (const qsizetype important = value.indexOf(u'!'); important >= 0)
            value = value.first(important).trimmed();
        applyOne(declaration.first(colon).trimmed(), value, style, flow);
    }
}

std::optional<quint32> colorOf(QStringView notation) {
    const QStringView value = notation.trimmed();
    if (value.startsWith(u'#'))
        return hexColor(value);
    if (value.startsWith(QLatin1String("rgb"), Qt::CaseInsensitive) && value.endsWith(u')'))
        return rgbColor(value);
    return namedColor(value);
}

std::optional<float> fontElementSize(QStringView value) {
    constexpr std::array<float, 7> sizes{10, 13, usualSize, 18, 24, 32, 48};
    constexpr int usualStep = 3;
    bool isNumber = false;
    int step = value.trimmed().toInt(&isNumber);
    if (!isNumber)
        return std::nullopt;
    if (value.trimmed().startsWith(u'+') || step < 0)
        step = std::clamp(step, -usualStep, int(sizes.size())) + usualStep;
    return sizes[static_cast<std::size_t>(std::clamp(step, 1, int(sizes.size())) - 1)];
}

bool isFixedWidth(QStringView families) {
    for (const char* word : {"mono", "courier", "consolas", "menlo", "monaco", "typewriter"}) {
        if (has(families, QLatin1String(word)))
            return true;
    }
    return false;
}

} // namespace vellumry::css
