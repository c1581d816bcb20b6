// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/gnome/PolledBus.h"
#include "linux/wayland/selection/SelectionControl.h"

#include <QByteArray>

namespace vellumry {

/// The clipboard of a GNOME session for another program of a test, by Mutter's interface for remote sessions. It is
/// meant for GNOME's own parts only, and asks the user for nothing.
class MutterSelection final : public SelectionControl {
public:
    /// Null without Mutter.
    [[nodiscard]] static std::unique_ptr<SelectionControl> create();

    [[nodiscard]] bool isBroken() const override { return m_bus->isBroken(); }
    [[nodiscard]] bool hasPrimary() const override { return false; }
    [[nodiscard]] bool hasDevice() const override { return true; }
    [[nodiscard]] std::unique_ptr<Source> makeSource(const QStringList& mimeTypes) override;
    void setSelection(const Source* source) override;
    void setPrimarySelection(const Source*) override {}
    void sync(std::function<void()> done) override;
    bool roundTrip() override;
    void prepareWait(std::vector<pollfd>& descriptors) override { m_bus->prepareWait(descriptors); }
    void finishWait(const std::vector<pollfd>& descriptors) override { m_bus->finishWait(descriptors); }
    void flush() override { m_bus->flush(); }

private:
    class MutterOffer;
    struct MutterSource;

    explicit MutterSelection(std::unique_ptr<PolledBus> bus)
        : m_bus(std::move(bus)) {}
    [[nodiscard]] PolledBus::Object openSession();
    void hear(const char* name, GVariant* values);
    void send(const QString& type, quint32 serial);

    std::unique_ptr<PolledBus> m_bus;
    PolledBus::Object m_session;
    MutterSource* m_own = nullptr;
};

} // namespace vellumry
