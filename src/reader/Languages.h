// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QStringList>
#include <vector>

/// Which of the installed languages a picture is read in. Pure functions; any thread.
namespace vellumry::languages {

/// The languages in which one script is written, the likeliest first.
struct Script {
    QByteArrayList languages;

    bool operator==(const Script&) const = default;
};

/// `installed` (names of the recognition library: "eng", "deu", "jpn", …) by script: the Latin one first, if there is
/// one, then those of `wanted` (language tags of the user's settings: "el-GR", …), then the rest. Within a script the
/// wanted ones come first, then English, then the rest by name. What is no language ("osd", "equ") and vertical
/// variants are left out.
[[nodiscard]] std::vector<Script> byScript(const QStringList& installed, const QStringList& wanted);

} // namespace vellumry::languages
