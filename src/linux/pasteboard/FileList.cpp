// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/pasteboard/FileList.h"

#include "foundation/FileUrl.h"

#include <algorithm>
#include <cctype>

namespace vellumry::filelist {

namespace {

/// A scheme (RFC 3986, 3.1), a colon and something; not one of those that the other lists of `Entries` are for.
bool isAddressElsewhere(const QByteArray& entry) {
    const qsizetype colon = entry.indexOf(':');
    const QByteArray scheme = entry.left(std::max<qsizetype>(colon, 0)).toLower();
    // A single letter is a drive of another system.
    const bool isScheme = scheme.size() > 1 && std::isalpha(static_cast<unsigned char>(scheme.front())) != 0 &&
                          std::ranges::all_of(scheme, [](char letter) {
                              return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '+' ||
                                     letter == '-' || letter == '.';
                          });
    return isScheme && colon + 1 < entry.size() && scheme != "file" && scheme != "http" && scheme != "https";
}

bool isWebAddress(const QByteArray& entry) {
    const QByteArray start = entry.left(8).toLower();
    return start.startsWith("http://") || start.startsWith("https://");
}

} // namespace

bool isFileList(const QString& target) {
    return target == uriList || target == copiedFiles;
}

Entries parse(const QByteArray& list) {
    Entries entries;
    for (qsizetype start = 0; start < list.size();) {
        qsizetype end = list.indexOf('\n', start);
        if (end < 0)
            end = list.size();
        QByteArray entry = list.sliced(start, end - start);
        start = end + 1;
        // pcmanfm ends its lists with a NUL.
        while (entry.endsWith('\0') || entry.endsWith('\r'))
            entry.chop(1);
        if (entry.isEmpty() || entry.startsWith('#'))
            continue;
        if (fileurl::pathOf(entry))
            entries.files.append(entry);
        else if (!entries.webAddress && isWebAddress(entry))
            entries.webAddress = entry;
        else if (isAddressElsewhere(entry))
            entries.elsewhere.append(entry);
    }
    return entries;
}

QByteArray asUriList(const QByteArrayList& urls) {
    QByteArray list;
    for (const QByteArray& url : urls)
        list += url + "\r\n";
    return list;
}

QByteArray asCopiedFiles(const QByteArrayList& urls, const QByteArray& original) {
    const bool isCut = original == "cut" || original.startsWith("cut\n") || original.startsWith('1');
    return (isCut ? "cut\n" : "copy\n") + urls.join('\n');
}

QByteArray withoutCut(const QString& type, const QByteArray& bytes) {
    if (type == cutSelection)
        return bytes.isEmpty() ? bytes : QByteArray("0");
    const bool tellsOperation = type.startsWith(u"x-special/") && type.endsWith(u"-copied-files");
    if (tellsOperation && bytes.startsWith("cut\n"))
        return "copy" + bytes.sliced(3);
    return bytes;
}

QByteArray asPaths(const QByteArrayList& urls) {
    QStringList paths;
    for (const QByteArray& url : urls) {
        if (const std::optional<QString> path = fileurl::pathOf(url))
            paths.append(*path);
    }
    return paths.join(u'\n').toUtf8();
}

} // namespace vellumry::filelist
