// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/PeerHistories.h"

#include <QByteArray>

namespace vellumry {

/// The history of Klipper up to Plasma 6.2: `history2.lst`, in QDataStream's coding: a CRC-32, then a QByteArray with
/// the version and one entry after the other, the newest first: "string" and a text; "url", the addresses, a map and
/// whether they were cut; "image" and a PNG. Learnt from its files and its published source.
class KlipperListHistory : public PeerReading {
public:
    KlipperListHistory(QByteArray file, Date modified);

    [[nodiscard]] std::optional<PeerClip> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_isDamaged; }
    [[nodiscard]] Date newest() const override { return m_modified; }

    /// What `StreamReader` reads from.
    [[nodiscard]] std::optional<QByteArray> read(qint64 count);
    [[nodiscard]] bool skip(qint64 count);

private:
    [[nodiscard]] std::optional<PeerClip> readEntry();
    [[nodiscard]] std::optional<QByteArray> readAddresses();
    [[nodiscard]] std::optional<QByteArray> readPicture();
    [[nodiscard]] bool isAtEnd() const { return m_position >= m_bytes.size(); }

    QByteArray m_bytes;
    Date m_modified;
    qint64 m_position = 0;
    bool m_isDamaged = false;
};

} // namespace vellumry
