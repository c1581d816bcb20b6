// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/X11PasteboardService.h"

#include <chrono>
#include <utility>

namespace vellumry {

namespace {

class X11Offer final : public ForeignOffer {
public:
    X11Offer(std::weak_ptr<PasteboardThread> thread, std::shared_ptr<const SelectionOffer> offer)
        : m_thread(std::move(thread))
        , m_offer(std::move(offer)) {}

    [[nodiscard]] const QStringList& targets() const override { return m_offer->targets; }
    [[nodiscard]] bool isCurrent() const override {
        const std::shared_ptr<PasteboardThread> running = m_thread.lock();
        return running && running->engine().changeCount() == m_offer->moment.changeCount &&
               std::chrono::steady_clock::now() < m_offer->moment.deadline;
    }
    [[nodiscard]] QCoro::Task<std::shared_ptr<const GivenBytes>> read(QString target, QString uniformType,
                                                                      qint64 maxBytes) const override {
        const OneShot<std::shared_ptr<const GivenBytes>> result;
        if (const std::shared_ptr<PasteboardThread> thread = m_thread.lock()) {
            thread->post([offer = m_offer, target, uniformType, maxBytes, result](PasteboardEngine& engine, auto now) {
                engine.read(offer, target, uniformType, maxBytes, result, now);
            });
        } else {
            result.deliver(nullptr);
        }
        std::shared_ptr<const GivenBytes> bytes = co_await result;
        co_return bytes;
    }

private:
    const std::weak_ptr<PasteboardThread> m_thread;
    const std::shared_ptr<const SelectionOffer> m_offer;
};

} // namespace

OrReason<std::unique_ptr<X11PasteboardService>>
X11PasteboardService::create(const QByteArray& displayName, const PasteboardLimits& limits, PasteboardNotices notices) {
    auto connection = XcbConnection::create(displayName);
    if (!connection)
        return std::unexpected(std::move(connection.error()));
    auto thread = PasteboardThread::create(
        std::make_unique<PasteboardEngine>(std::move(*connection), limits, std::move(notices)));
    if (!thread)
        return std::unexpected(std::move(thread.error()));
    return std::unique_ptr<X11PasteboardService>(new X11PasteboardService(std::move(*thread)));
}

void X11PasteboardService::claim(PasteboardClaim claim) {
    m_thread->post([claim = std::move(claim)](PasteboardEngine& engine, auto) { engine.claim(claim); });
}

void X11PasteboardService::catchUp(OneShot<bool> result) {
    m_thread->post([result](PasteboardEngine& engine, auto) { engine.catchUp(result); });
}

void X11PasteboardService::disown(std::shared_ptr<const OfferedContents> contents) {
    m_thread->post([contents = std::move(contents)](PasteboardEngine& engine, auto) { engine.disown(contents); });
}

QCoro::Task<std::shared_ptr<const ForeignOffer>> X11PasteboardService::readOffer() {
    const std::weak_ptr<PasteboardThread> thread = m_thread;
    const OneShot<std::shared_ptr<const SelectionOffer>> result;
    m_thread->post([result](PasteboardEngine& engine, auto now) { engine.readOffer(result, now); });
    const std::shared_ptr<const SelectionOffer> offer = co_await result;
    std::shared_ptr<const ForeignOffer> wrapped;
    if (offer)
        wrapped = std::make_shared<X11Offer>(thread, offer);
    co_return wrapped;
}

void X11PasteboardService::settle(qint64 count, bool wasKept) {
    m_thread->post([count, wasKept](PasteboardEngine& engine, auto) { engine.settle(count, wasKept); });
}

} // namespace vellumry
