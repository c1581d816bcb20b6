// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewFacts.h"

#include "foundation/RunDetached.h"

#include <QFileInfo>

namespace vellumry {

namespace {

constexpr std::chrono::seconds longestLook{5};

FileFacts factsOf(const QString& path) {
    const QFileInfo file(path);
    FileFacts facts;
    if (path.isEmpty() || !file.exists())
        return facts;
    facts.isFolder = file.isDir();
    if (!facts.isFolder)
        facts.size = file.size();
    return facts;
}

} // namespace

QCoro::Task<std::optional<std::vector<FileFacts>>> fileFacts(QStringList paths) {
    const auto job = [paths] {
        std::vector<FileFacts> facts;
        for (const QString& path : paths)
            facts.push_back(factsOf(path));
        return facts;
    };
    auto looking = runDetached(job, longestLook);
    auto facts = co_await looking;
    co_return facts;
}

} // namespace vellumry
