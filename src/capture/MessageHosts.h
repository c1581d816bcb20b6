// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

namespace vellumry {

/// True for a program in which people read messages: short numbers copied there are codes.
[[nodiscard]] bool isMessageApp(const QString& bundleID);

/// True for a page of web mail or of a web messenger (http or https). Pure; any thread.
[[nodiscard]] bool isMessageURL(const QUrl& url);

} // namespace vellumry
