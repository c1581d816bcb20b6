// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/PeerHistories.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QStringList>

namespace vellumry {

/// What the two programs named clipman keep. That of Xfce: a key file (GLib's GKeyFile) with the texts in one line, the
/// oldest first, and a PNG file for each picture, whose place among the texts is unknown: they come behind them. That
/// of Wayland: a list of texts in JSON, the oldest first. Learnt from their files.
class ClipmanHistory : public PeerReading {
public:
    [[nodiscard]] static ClipmanHistory ofXfce(const QByteArray& file, Date modified, QStringList pictures);
    [[nodiscard]] static ClipmanHistory ofWayland(const QByteArray& file, Date modified);

    [[nodiscard]] std::optional<PeerClip> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_isDamaged; }
    [[nodiscard]] Date newest() const override { return m_modified; }

private:
    QByteArrayList m_texts; ///< the newest last
    QStringList m_pictures; ///< files, the newest last
    Date m_modified = 0;
    bool m_isDamaged = false;
};

} // namespace vellumry
