// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/DataControlService.h"

#include <chrono>
#include <utility>

namespace vellumry {

namespace {

class DataControlOffer final : public ForeignOffer {
public:
    DataControlOffer(std::weak_ptr<DataControlThread> thread,
                     std::shared_ptr<const DataControlEngine::OfferedTypes> offer)
        : m_thread(std::move(thread))
        , m_offer(std::move(offer)) {}

    [[nodiscard]] const QStringList& targets() const override { return m_offer->targets; }
    [[nodiscard]] bool isCurrent() const override {
        const std::shared_ptr<DataControlThread> running = m_thread.lock();
        return running && running->engine().changeCount() == m_offer->changeCount &&
               std::chrono::steady_clock::now() < m_offer->deadline;
    }
    [[nodiscard]] QCoro::Task<std::shared_ptr<const GivenBytes>> read(QString target, QString uniformType,
                                                                      qint64 maxBytes) const override {
        const DataControlEngine::BytesResult result;
        if (const std::shared_ptr<DataControlThread> thread = m_thread.lock()) {
            thread->post([offer = m_offer, target, uniformType, maxBytes, result](DataControlEngine& engine, auto now) {
                engine.read(*offer, target, uniformType, maxBytes, result, now);
            });
        } else {
            result.deliver(nullptr);
        }
        std::shared_ptr<const GivenBytes> bytes = co_await result;
        co_return bytes;
    }

private:
    const std::weak_ptr<DataControlThread> m_thread;
    const std::shared_ptr<const DataControlEngine::OfferedTypes> m_offer;
};

} // namespace

OrReason<std::unique_ptr<DataControlService>> DataControlService::create(std::unique_ptr<SelectionControl> control,
                                                                         const PasteboardLimits& limits,
                                                                         PasteboardNotices notices) {
    auto thread =
        DataControlThread::create(std::make_unique<DataControlEngine>(std::move(control), limits, std::move(notices)));
    if (!thread)
        return std::unexpected(std::move(thread.error()));
    return std::unique_ptr<DataControlService>(new DataControlService(std::move(*thread)));
}

void DataControlService::claim(PasteboardClaim claim) {
    m_thread->post([claim = std::move(claim)](DataControlEngine& engine, auto) { engine.claim(claim); });
}

void DataControlService::catchUp(OneShot<bool> result) {
    m_thread->post([result](DataControlEngine& engine, auto) { engine.catchUp(result); });
}

void DataControlService::disown(std::shared_ptr<const OfferedContents> contents) {
    m_thread->post([contents = std::move(contents)](DataControlEngine& engine, auto) { engine.disown(contents); });
}

QCoro::Task<std::shared_ptr<const ForeignOffer>> DataControlService::readOffer() {
    const std::weak_ptr<DataControlThread> thread = m_thread;
    const DataControlEngine::OfferResult result;
    m_thread->post([result](DataControlEngine& engine, auto now) { engine.readOffer(result, now); });
    const std::shared_ptr<const DataControlEngine::OfferedTypes> offer = co_await result;
    std::shared_ptr<const ForeignOffer> wrapped;
    if (offer)
        wrapped = std::make_shared<DataControlOffer>(thread, offer);
    co_return wrapped;
}

} // namespace vellumry
