// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteboardItem.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace vellumry {

/// What we hold on the pasteboard: the items as they were written, and the same bytes under every name that other
/// programs ask for. Immutable once made, so the pasteboard thread serves it while the main thread does something else.
class OfferedContents {
public:
    /// What a list of files asks the file manager to do with them.
    enum class FileOperation {
        copy,    ///< whatever the list said when it was copied: a paste from the history never moves files
        asCopied ///< move them if they were cut
    };

    /// Shares the bytes of `items`; only other encodings of short texts and the list of files are new.
    [[nodiscard]] static std::shared_ptr<const OfferedContents> of(std::vector<PasteboardItem> items,
                                                                   FileOperation operation = FileOperation::copy);

    [[nodiscard]] const std::vector<PasteboardItem>& items() const { return m_items; }
    /// The types of one item: as `order` has them, then those it does not name.
    [[nodiscard]] static QStringList typesOf(const PasteboardItem& item);

    /// The names under which something is served, best first.
    [[nodiscard]] const QStringList& targets() const { return m_targets; }
    /// The bytes for one of `targets`, nothing for another. Text for STRING is encoded when it is asked for.
    [[nodiscard]] std::optional<QByteArray> data(const QString& target) const;

private:
    struct Source {
        QString uniformType;
        QByteArray bytes;
    };

    void offer(const QString& target, const QString& uniformType, const QByteArray& bytes);
    void offerFiles();
    void offerText();
    void offerAddressesAsText();
    void offerRepresentations();

    std::vector<PasteboardItem> m_items;
    FileOperation m_operation = FileOperation::copy;
    QStringList m_targets;
    QHash<QString, Source> m_sources;
};

} // namespace vellumry
