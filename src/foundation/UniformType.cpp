// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"

#include <QHash>
#include <QSet>
#include <array>
#include <span>

namespace vellumry::uniformtype {

namespace {

/// One name under which programs of the desktop offer a uniform type, in the order of preference for reading.
struct Target {
    const QString* uniformType;
    const char16_t* name;
    bool isOffered; ///< whether we offer it too; the others are older or differ in their bytes
};

constexpr bool offered = true;
constexpr bool readOnly = false;

std::span<const Target> targets() {
    static const std::array table{
        Target{&utf8PlainText, u"UTF8_STRING", offered},
        Target{&utf8PlainText, u"text/plain;charset=utf-8", offered},
        Target{&utf8PlainText, u"text/plain", offered},
        Target{&utf8PlainText, u"STRING", offered},
        Target{&utf8PlainText, u"TEXT", offered},
        Target{&utf8PlainText, u"COMPOUND_TEXT", offered},
        Target{&utf16PlainText, u"text/plain;charset=utf-16", offered},
        Target{&rtf, u"text/rtf", offered},
        Target{&rtf, u"text/richtext", offered},
        Target{&rtf, u"application/rtf", offered},
        Target{&html, u"text/html", offered},
        Target{&html, u"text/html;charset=utf-8", readOnly},
        Target{&png, u"image/png", offered},
        Target{&tiff, u"image/tiff", offered},
        Target{&jpeg, u"image/jpeg", offered},
        Target{&jpeg, u"image/jpg", readOnly},
        Target{&heic, u"image/heic", offered},
        Target{&heic, u"image/heif", readOnly},
        Target{&icns, u"image/icns", offered},
        Target{&icns, u"image/x-icns", readOnly},
        Target{&pdf, u"application/pdf", offered},
        Target{&sourceUrl, u"chromium/x-source-url", offered},
        Target{&sourceUrl, u"text/x-moz-url-priv", readOnly}, // UTF-16 where the other is UTF-8
        Target{&color, u"application/x-color", offered},
        Target{&concealed, u"x-kde-passwordManagerHint", offered},
    };
    return table;
}

/// The form in which names are compared: programs differ in case and in spaces around parameters.
QString comparable(const QString& target) {
    QString result = target.toLower();
    result.remove(u' ');
    result.remove(u'"');
    return result;
}

bool isHousekeeping(const QString& target) {
    static const QSet<QString> names{QStringLiteral("TARGETS"), QStringLiteral("MULTIPLE"), QStringLiteral("TIMESTAMP"),
                                     QStringLiteral("SAVE_TARGETS"), QStringLiteral("DELETE")};
    return names.contains(target) || target.startsWith(u"INSERT_");
}

/// Names whose bytes mean something inside the offering program only.
bool isProcessLocal(const QString& target) {
    static const std::array<QStringView, 4> prefixes{u"GTK_TEXT_BUFFER_CONTENTS", u"chromium/x-internal-",
                                                     u"application/x-libreoffice-internal-id-",
                                                     u"application/x-openoffice-link"};
    for (const QStringView prefix : prefixes) {
        if (target.startsWith(prefix, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

/// Markers of other programs that look like junk by their form.
bool isMarkerName(const QString& target) {
    return target == u"Pasteboard generator type";
}

const QSet<QString>& imageExtensions() {
    static const QSet<QString> extensions = [] {
        QSet<QString> result;
        const QString all =
            QStringLiteral("png apng jpg jpeg jpe jfif heic heif heics heifs hif avif avifs tif tiff gif bmp dib webp "
                           "ico cur icns svg svgz "
                           "jp2 j2k jpf jpx jxl tga exr hdr pbm pgm ppm pnm pam xbm xpm pcx psd psb dds "
                           "dng cr2 cr3 crw nef nrw arw sr2 srf orf raf rw2 pef srw raw rwl 3fr iiq");
        for (const QString& extension : all.split(u' '))
            result.insert(extension);
        return result;
    }();
    return extensions;
}

} // namespace

std::optional<QString> fromTarget(const QString& target) {
    if (target.isEmpty() || isHousekeeping(target) || isProcessLocal(target))
        return std::nullopt;
    static const QHash<QString, QString> known = [] {
        QHash<QString, QString> result;
        for (const Target& entry : targets())
            result.insert(comparable(QString::fromUtf16(entry.name)), *entry.uniformType);
        return result;
    }();
    if (const auto entry = known.constFind(comparable(target)); entry != known.constEnd())
        return *entry;
    const bool isIdentifier = target.contains(u'/') || target.contains(u'.');
    if (!isIdentifier && !isMarkerName(target))
        return std::nullopt;
    return target;
}

QStringList targetsFor(const QString& uniformType) {
    QStringList result;
    for (const Target& entry : targets()) {
        if (entry.isOffered && *entry.uniformType == uniformType)
            result.append(QString::fromUtf16(entry.name));
    }
    if (result.isEmpty())
        result.append(uniformType);
    return result;
}

std::optional<QString> preferredTarget(const QString& uniformType, const QStringList& offeredTargets) {
    for (const Target& entry : targets()) {
        if (*entry.uniformType != uniformType)
            continue;
        const QString wanted = comparable(QString::fromUtf16(entry.name));
        for (const QString& target : offeredTargets) {
            if (comparable(target) == wanted)
                return target;
        }
    }
    for (const QString& target : offeredTargets) {
        if (fromTarget(target) == uniformType)
            return target;
    }
    return std::nullopt;
}

bool isImageExtension(const QString& extension) {
    return imageExtensions().contains(extension.toLower());
}

std::optional<QString> imageTypeOfExtension(const QString& extension) {
    const QString lower = extension.toLower();
    if (lower == u"png")
        return png;
    if (lower == u"jpg" || lower == u"jpeg" || lower == u"jpe")
        return jpeg;
    if (lower == u"heic")
        return heic;
    if (lower == u"tif" || lower == u"tiff")
        return tiff;
    return std::nullopt;
}

} // namespace vellumry::uniformtype
