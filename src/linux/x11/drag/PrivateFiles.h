// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/DragSource.h"

#include <QStringList>
#include <QTemporaryDir>
#include <memory>
#include <vector>

namespace vellumry {

/// Files of a drag in a folder that only the user can enter, in the session's own memory; both go with this.
class PrivateFiles {
public:
    /// Null when they cannot be written.
    [[nodiscard]] static std::unique_ptr<PrivateFiles> write(const std::vector<DragSource::File>& files);

    [[nodiscard]] const QStringList& paths() const { return m_paths; }

private:
    explicit PrivateFiles(const QString& folder)
        : m_folder(folder) {}

    QTemporaryDir m_folder;
    QStringList m_paths;
};

} // namespace vellumry
