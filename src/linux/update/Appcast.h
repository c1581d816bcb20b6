// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QByteArray>
#include <QUrl>
#include <QVersionNumber>
#include <vector>

namespace vellumry {

/// One version that a feed offers.
struct AppcastItem {
    QVersionNumber version{};
    QString displayVersion{};
    bool isCritical = false;
    QUrl url{};
    qint64 length = 0;
    QByteArray signature{}; ///< Ed25519, of the file

    bool operator==(const AppcastItem&) const = default;
};

/// A feed of versions: RSS 2.0 whose items have an `enclosure` with `url`, `length` and `edSignature`, and `version`,
/// `shortVersionString` and `criticalUpdate` beside it or in it, by their local names. Its last line is a comment,
/// `<!-- signature: BASE64 -->`, with the Ed25519 signature of all bytes before that line: a feed that was not signed
/// as a whole could name an old file with a new version.
///
/// The newest item last. Fails for a feed that is not signed, not well-formed, or holds an item that could not be
/// used; nothing of it is then to be believed. `publicKey` has 32 bytes. Pure; any thread.
[[nodiscard]] OrReason<std::vector<AppcastItem>> readAppcast(const QByteArray& feed, const QByteArray& publicKey);

/// The number of a version such as "1.10.2"; null for anything else.
[[nodiscard]] QVersionNumber versionNumber(const QString& text);

} // namespace vellumry
