// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>
#include <optional>

/// The lists of files that file managers put on the clipboard: `text/uri-list` (RFC 2483) and the desktop's own
/// companion that tells a copy from a cut. Pure; any thread. Hostile lists cost time in proportion to their size,
/// nothing more.
namespace vellumry::filelist {

inline const QString uriList = QStringLiteral("text/uri-list");
inline const QString copiedFiles = QStringLiteral("x-special/gnome-copied-files");
/// KDE's way of telling a cut from a copy: "1" beside the list of files.
inline const QString cutSelection = QStringLiteral("application/x-kde-cutselection");

/// What one list holds, byte for byte: the URLs of files on this machine, the first web address, and the addresses of
/// files elsewhere (sftp, smb, mtp, the trash), which the file manager's own services reach.
struct Entries {
    QByteArrayList files;
    std::optional<QByteArray> webAddress;
    QByteArrayList elsewhere;
    [[nodiscard]] bool isEmpty() const { return files.isEmpty() && !webAddress && elsewhere.isEmpty(); }
    /// What stands for the list where it holds no files: the web address, or the addresses elsewhere, one a line.
    [[nodiscard]] std::optional<QByteArray> urls() const {
        if (webAddress || elsewhere.isEmpty())
            return webAddress;
        return elsewhere.join('\n');
    }
    bool operator==(const Entries&) const = default;
};

/// True for the names of file lists.
[[nodiscard]] bool isFileList(const QString& target);

/// Reads either kind of list. Comments, blank lines, remote hosts, broken escapes and what is no URL are left out.
[[nodiscard]] Entries parse(const QByteArray& list);

/// `text/uri-list` bytes: each entry ended by CR LF.
[[nodiscard]] QByteArray asUriList(const QByteArrayList& urls);

/// `x-special/gnome-copied-files` bytes: the operation, then one URL a line. The operation is that of `original`, the
/// bytes of a list or of `cutSelection`, where it names one, else a copy.
[[nodiscard]] QByteArray asCopiedFiles(const QByteArrayList& urls, const QByteArray& original);

/// The bytes of a representation that tells a cut from a copy, telling of a copy; those of any other type as they are.
[[nodiscard]] QByteArray withoutCut(const QString& type, const QByteArray& bytes);

/// The paths of the files, one a line, as text.
[[nodiscard]] QByteArray asPaths(const QByteArrayList& urls);

} // namespace vellumry::filelist
