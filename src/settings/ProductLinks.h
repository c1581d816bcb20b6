// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Where the product's makers are found.
namespace vellumry::productlinks {

inline const QString website = QStringLiteral("https://vellumry.com");
inline const QString support = QStringLiteral("mailto:support@vellumry.com");
inline const QString privacy = QStringLiteral("https://vellumry.com/privacy");
inline const QString terms = QStringLiteral("https://vellumry.com/terms");

} // namespace vellumry::productlinks
