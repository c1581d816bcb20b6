// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/peers/ForeignFile.h"
#include "platform/files/PeerHistories.h"

#include <QStringList>

namespace vellumry {

/// A history of GPaste: `NAME.xml` with one item after the other, the newest first, and a folder `images` beside it. In
/// the text of an item (a CDATA section) only "&" and ">" are escaped, which is no XML; control characters of terminals
/// stand there as they are. So it is scanned, not parsed. As written by GPaste 3 to 45, learnt from its files.
class GPasteHistory : public PeerReading {
public:
    /// `bytes` is the file; `folder` has `images` in it.
    GPasteHistory(QByteArray bytes, Date modified, QString folder);

    [[nodiscard]] std::optional<PeerClip> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_isDamaged; }
    [[nodiscard]] Date newest() const override { return m_modified; }

private:
    [[nodiscard]] std::vector<PasteboardItem> itemsOf(const QByteArray& kind, const QByteArray& value) const;

    QByteArray m_bytes;
    Date m_modified;
    QString m_folder;
    qsizetype m_position = 0;
    bool m_isDamaged = false;
};

} // namespace vellumry
