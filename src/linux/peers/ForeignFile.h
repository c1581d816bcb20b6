// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "platform/files/PeerHistories.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <expected>
#include <memory>
#include <optional>

namespace vellumry {

/// A file of another program, read without a trace: it is never written, its times stay, and what is no regular file is
/// not opened. Any thread, one at a time.
class ForeignFile {
public:
    enum class Failure : quint8 { missing, unreadable, tooLarge };

    /// `mostBytes`: a longer file is not opened.
    [[nodiscard]] static std::expected<ForeignFile, Failure> open(const QString& path, qint64 mostBytes);

    /// Exactly `count` bytes; nothing when the file ends before, or the disk fails.
    [[nodiscard]] std::optional<QByteArray> read(qint64 count);
    /// False when the file ends before.
    [[nodiscard]] bool skip(qint64 count);
    /// Everything from here on.
    [[nodiscard]] QByteArray rest();
    [[nodiscard]] qint64 left() const { return m_size - m_position; }
    [[nodiscard]] Date modified() const { return m_modified; }

private:
    ForeignFile() = default;

    std::unique_ptr<QFile> m_file = std::make_unique<QFile>();
    qint64 m_size = 0;
    qint64 m_position = 0;
    Date m_modified = 0;
};

/// What the user is told of a history whose file cannot be opened.
[[nodiscard]] inline PeerHistory::State stateOf(ForeignFile::Failure failure) {
    using State = PeerHistory::State;
    return failure == ForeignFile::Failure::tooLarge ? State::tooLarge : State::unreadable;
}

} // namespace vellumry
