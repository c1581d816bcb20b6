// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/FileList.h"

#include "foundation/FileUrl.h"

namespace vellumry::filelist {

namespace {

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

QByteArray asPaths(const QByteArrayList& urls) {
    QStringList paths;
    for (const QByteArray& url : urls) {
        if (const std::optional<QString> path = fileurl::pathOf(url))
            paths.append(*path);
    }
    return paths.join(u'\n').toUtf8();
}

} // namespace vellumry::filelist
