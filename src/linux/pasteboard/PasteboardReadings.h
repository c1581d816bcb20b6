// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/ForeignOffer.h"
#include "linux/pasteboard/OfferedContents.h"
#include "platform/display/Pasteboard.h"

#include <functional>
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
    ForeignReading(std::shared_ptr<const ForeignOffer> offer, qint64 maxFileListBytes);
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
    OwnReading(std::shared_ptr<const OfferedContents> contents, std::function<bool()> isCurrent);

    [[nodiscard]] QStringList types() const override;
    [[nodiscard]] QCoro::Task<std::vector<QStringList>> itemTypes() override;
    [[nodiscard]] QCoro::Task<std::optional<QByteArray>> data(qsizetype item, QString type, qint64 maxBytes) override;
    [[nodiscard]] bool wasLarger() const override { return m_wasLarger; }
    [[nodiscard]] bool isCurrent() const override { return m_isCurrent(); }

private:
    const std::shared_ptr<const OfferedContents> m_contents;
    const std::function<bool()> m_isCurrent;
    bool m_wasLarger = false;
};

} // namespace vellumry
