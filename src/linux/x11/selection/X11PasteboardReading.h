// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/PasteboardThread.h"
#include "platform/display/Pasteboard.h"

#include <memory>

namespace vellumry {

/// Reads what another program offers: its targets under our names for them, a list of files as one item a file. Main
/// thread.
///
/// `types` declares a list of files as `public.file-url` before it is read; a list that turns out to hold web addresses
/// gives one item with `public.url`, and one that holds addresses of files elsewhere the same with all of them, one a
/// line, beside the list itself.
class ForeignReading final : public PasteboardReading {
public:
    ForeignReading(std::weak_ptr<PasteboardThread> thread, std::shared_ptr<const SelectionOffer> offer,
                   qint64 maxFileListBytes);
    ~ForeignReading() override;

    [[nodiscard]] QStringList types() const override;
    [[nodiscard]] QCoro::Task<std::vector<QStringList>> itemTypes() override;
    [[nodiscard]] QCoro::Task<std::optional<QByteArray>> data(qsizetype item, QString type, qint64 maxBytes) override;
    [[nodiscard]] bool wasLarger() const override;
    [[nodiscard]] bool isCurrent() const override;

    struct State;

private:
    const std::shared_ptr<State> m_state; ///< outlives the reading while an answer is awaited
};

/// Reads back what we hold ourselves, without a word to the server. Main thread.
class OwnReading final : public PasteboardReading {
public:
    OwnReading(std::weak_ptr<PasteboardThread> thread, std::shared_ptr<const OfferedContents> contents,
               qint64 changeCount);

    [[nodiscard]] QStringList types() const override;
    [[nodiscard]] QCoro::Task<std::vector<QStringList>> itemTypes() override;
    [[nodiscard]] QCoro::Task<std::optional<QByteArray>> data(qsizetype item, QString type, qint64 maxBytes) override;
    [[nodiscard]] bool wasLarger() const override { return m_wasLarger; }
    [[nodiscard]] bool isCurrent() const override;

private:
    const std::weak_ptr<PasteboardThread> m_thread;
    const std::shared_ptr<const OfferedContents> m_contents;
    const qint64 m_changeCount;
    bool m_wasLarger = false;
};

} // namespace vellumry
