// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/PeerHistories.h"

namespace vellumry {

/// The histories of CopyQ, GPaste, Klipper and the two clipmans, where these programs keep them.
class LinuxPeerHistories : public PeerHistories {
public:
    /// The user's folders, as the XDG base directories name them, and one for what lies there for a moment.
    struct Folders {
        QString data;
        QString config;
        QString cache;
        QString scratch;
        [[nodiscard]] static Folders ofUser();
    };

    explicit LinuxPeerHistories(Folders folders = Folders::ofUser())
        : m_folders(std::move(folders)) {}

    [[nodiscard]] std::vector<PeerHistory> find() override;
    [[nodiscard]] std::unique_ptr<PeerReading> open(const QString& identifier) override;

private:
    Folders m_folders;
};

} // namespace vellumry
