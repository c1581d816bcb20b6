// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/PasteboardTypes.h"

#include "foundation/UniformType.h"

#include <QSet>

namespace vellumry::pasteboardtype {

using namespace uniformtype;

bool isEssential(const QString& type) {
    static const QSet<QString> essentialTypes{utf8PlainText, rtf,  rtfd, html,  url,  fileUrl, png,           tiff,
                                              jpeg,          heic, pdf,  color, icns, urlName, utf16PlainText};
    return essentialTypes.contains(type);
}

bool isLegacyAlias(const QString& type) {
    return type.startsWith(u"dyn.") || type.startsWith(u"CorePasteboardFlavorType") || type.startsWith(u"NeXT ") ||
           (type.startsWith(u"Apple ") && type.endsWith(u"pasteboard type")) ||
           (type.startsWith(u"NS") && type.endsWith(u"PboardType")) || type == u"com.apple.traditional-mac-plain-text";
}

const QStringList& imageTypes() {
    static const QStringList types{png, tiff, jpeg, heic};
    return types;
}

const QStringList& otherImageTypes() {
    static const QStringList types{QStringLiteral("image/webp"), QStringLiteral("image/bmp"),
                                   QStringLiteral("image/x-bmp"), QStringLiteral("image/x-MS-bmp"),
                                   QStringLiteral("image/gif")};
    return types;
}

bool makesClip(const QString& type) {
    static const QSet<QString> others{utf8PlainText, rtf, url, fileUrl, color};
    return others.contains(type) || imageTypes().contains(type);
}

ReadingTurn readingTurn(const QString& type) {
    static const QSet<QString> plain{utf8PlainText, fileUrl, sourceUrl};
    static const QSet<QString> texts{rtf, html, url, urlName, color, utf16PlainText};
    if (plain.contains(type))
        return ReadingTurn::plainText;
    if (texts.contains(type))
        return ReadingTurn::text;
    return isEssential(type) ? ReadingTurn::picture : ReadingTurn::unknown;
}

bool isScreenshotSource(const QString& bundleID) {
    static const QSet<QString> screenshotSources{
        QStringLiteral("com.apple.screencaptureui"),
        QStringLiteral("com.apple.screenshot.launcher"),
        QStringLiteral("com.apple.Screenshot"),
        QStringLiteral("com.apple.screencapture"),
    };
    return screenshotSources.contains(bundleID);
}

} // namespace vellumry::pasteboardtype
