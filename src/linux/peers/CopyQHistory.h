// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/peers/ForeignFile.h"
#include "platform/files/PeerHistories.h"

#include <QStringList>

namespace vellumry {

/// The tabs of CopyQ, one file each: `copyq_tab_NAME.dat` in its settings folder, in QDataStream's coding of Qt 4.7. A
/// tab is the number of its items; an item is -2 and the number of its forms, each a MIME type whose first letter
/// stands for a common beginning, a flag for zlib, and bytes; or, up to version 2, the number of forms, each a type and
/// compressed bytes. Newest first. As written by CopyQ 3 to 6, from whose files and published source it was learnt.
class CopyQHistory : public PeerReading {
public:
    /// Files of the tabs of one settings folder, the clipboard's own first.
    [[nodiscard]] static QStringList tabs(const QString& folder);

    explicit CopyQHistory(QStringList tabs);

    [[nodiscard]] std::optional<PeerClip> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_isDamaged; }
    [[nodiscard]] Date newest() const override { return m_newest; }
    /// Every tab there is has a password.
    [[nodiscard]] bool isLocked() const { return m_lockedTabs > 0 && m_openTabs == 0; }

private:
    [[nodiscard]] bool openNext();
    [[nodiscard]] std::optional<PeerClip> readItem();

    QStringList m_tabs;
    std::optional<ForeignFile> m_file;
    qint32 m_left = 0; ///< items of the open tab that were not read yet
    bool m_isDamaged = false;
    int m_openTabs = 0;
    int m_lockedTabs = 0;
    Date m_newest = 0;
};

} // namespace vellumry
