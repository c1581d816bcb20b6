// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/FileResolution.h"

#include "foundation/FileUrl.h"
#include "foundation/UniformType.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <memory>
#include <system_error>
#include <thread>

namespace vellumry::fileresolution {

namespace {

std::optional<QString> filePathOf(const PasteboardItem& item) {
    const auto url = item.representations.find(uniformtype::fileUrl);
    if (url == item.representations.end())
        return std::nullopt;
    return fileurl::pathOf(url->second);
}

FileRef referenceTo(const QString& path, const std::vector<FileRef>& files) {
    const auto known = std::ranges::find(files, path, &FileRef::path);
    return known != files.end() ? *known : FileRef{path, fileurl::lastPathComponent(path), std::nullopt};
}

} // namespace

std::vector<FileRef> references(const std::vector<PasteboardItem>& items, const std::vector<FileRef>& files) {
    std::vector<FileRef> result;
    for (const auto& item : items) {
        if (const auto path = filePathOf(item))
            result.push_back(referenceTo(*path, files));
    }
    return result;
}

std::optional<std::vector<PasteboardItem>> resolved(std::vector<PasteboardItem> items,
                                                    const std::vector<FileStatus>& statuses) {
    std::vector<PasteboardItem> result;
    bool hasLiveFile = false;
    auto status = statuses.begin();
    for (auto& item : items) {
        if (filePathOf(item)) {
            if (status == statuses.end())
                return std::nullopt;
            const auto present = (status++)->path();
            if (!present)
                continue;
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
                                                      int limitMilliseconds) {
    // The thread owns what it uses: on a disk that hangs it outlives this call.
    auto answer = std::make_shared<std::promise<std::vector<FileStatus>>>();
    auto future = answer->get_future();
    try {
        std::thread([answer, status, asked = references(items, files)] {
            std::vector<FileStatus> statuses;
            statuses.reserve(asked.size());
            for (const auto& file : asked)
                statuses.push_back(status(file));
            answer->set_value(std::move(statuses));
        }).detach();
    } catch (const std::system_error&) {
        return items;
    }
    if (future.wait_for(std::chrono::milliseconds(limitMilliseconds)) != std::future_status::ready)
        return items;
    return resolved(std::move(items), future.get());
}

} // namespace vellumry::fileresolution
