// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/FileResolution.h"

#include "foundation/FileUrl.h"
#include "foundation/RunDetached.h"
#include "foundation/UniformType.h"

#include <QFileInfo>
#include <QHash>
#include <algorithm>

namespace vellumry::fileresolution {

namespace {

std::optional<QString> filePathOf(const PasteboardItem& item) {
    const auto url = item.representations.find(uniformtype::fileUrl);
    if (url == item.representations.end())
        return std::nullopt;
    return fileurl::pathOf(url->second);
}

} // namespace

std::vector<FileRef> references(const std::vector<PasteboardItem>& items, const std::vector<FileRef>& files) {
    // The first of two references to one file counts. Lists of 100,000 files occur.
    QHash<QString, const FileRef*> known;
    for (const FileRef& file : files) {
        if (!known.contains(file.path))
            known.insert(file.path, &file);
    }
    std::vector<FileRef> result;
    for (const auto& item : items) {
        const auto path = filePathOf(item);
        if (!path)
            continue;
        const FileRef* const file = known.value(*path);
        result.push_back(file ? *file : FileRef{*path, fileurl::lastPathComponent(*path), std::nullopt});
    }
    return result;
}

std::vector<FileStatus> statusesOf(const std::vector<FileRef>& files,
                                   const std::function<FileStatus(const FileRef&)>& check,
                                   std::chrono::milliseconds budget,
                                   const std::function<std::chrono::steady_clock::time_point()>& now) {
    const auto end = now() + budget;
    std::vector<FileStatus> statuses(files.size());
    std::vector<std::size_t> gone;
    for (std::size_t index = 0; index < files.size(); ++index) {
        if (QFileInfo::exists(files[index].path))
            statuses[index] = check(files[index]);
        else
            gone.push_back(index);
    }
    for (const std::size_t index : gone) {
        statuses[index] = check(files[index]);
        if (now() >= end)
            break;
    }
    return statuses;
}

std::optional<std::vector<PasteboardItem>> resolved(std::vector<PasteboardItem> items,
                                                    const std::vector<FileStatus>& statuses) {
    std::vector<PasteboardItem> result;
    bool hasLiveFile = false;
    auto status = statuses.begin();
    for (auto& item : items) {
        if (const auto recorded = filePathOf(item)) {
            if (status == statuses.end())
                return std::nullopt;
            const auto present = (status++)->path();
            if (!present)
                continue;
            // Where it is where it was, its address stays as it came: names that are not UTF-8 have no other.
            if (*present != *recorded)
                item.representations.insert_or_assign(uniformtype::fileUrl, fileurl::urlOf(*present));
            hasLiveFile = true;
        }
        result.push_back(std::move(item));
    }
    if (!hasLiveFile)
        return std::nullopt;
    return result;
}

QStringList paths(const std::vector<PasteboardItem>& items) {
    QStringList result;
    for (const auto& item : items) {
        if (const auto path = filePathOf(item))
            result.append(*path);
    }
    return result;
}

std::optional<std::vector<PasteboardItem>> resolveNow(std::vector<PasteboardItem> items,
                                                      const std::vector<FileRef>& files,
                                                      const std::function<FileStatus(const FileRef&)>& status,
                                                      std::chrono::milliseconds limit) {
    auto statuses = runDetachedNow(
        [status, budget = limit / 2, asked = references(items, files)] { return statusesOf(asked, status, budget); },
        limit);
    if (!statuses)
        return items;
    return resolved(std::move(items), *statuses);
}

} // namespace vellumry::fileresolution
