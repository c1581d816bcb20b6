// SPDX-License-Identifier: GPL-3.0-or-later
#include "wayland/WaylandPeer.h"

#include <poll.h>
#include <stdexcept>

namespace vellumry {

WaylandPeer::WaylandPeer() {
    auto created = DataControl::create({});
    if (!created)
        throw std::runtime_error(created.error().text.toStdString());
    m_control = std::move(*created);
    m_control->onSelection = [this](std::unique_ptr<DataControl::Offer> offer) {
        m_offer = std::move(offer);
        ++m_changes;
    };
    m_control->roundTrip();
    m_changes = 0;
}

void WaylandPeer::turn() {
    wl_display* display = m_control->display();
    while (wl_display_prepare_read(display) != 0)
        wl_display_dispatch_pending(display);
    wl_display_flush(display);
    pollfd descriptor{wl_display_get_fd(display), POLLIN, 0};
    if (poll(&descriptor, 1, 0) > 0)
        wl_display_read_events(display);
    else
        wl_display_cancel_read(display);
    wl_display_dispatch_pending(display);
    wl_display_flush(display);
}

void WaylandPeer::until(const std::function<bool()>& isDone) {
    runUntil([&] {
        turn();
        return isDone();
    });
}

void WaylandPeer::copy(const std::map<QString, std::optional<QByteArray>>& contents) {
    QStringList types;
    for (const auto& [type, bytes] : contents)
        types.append(type);
    auto source = m_control->makeSource(types);
    source->onSend = [this, contents](const QString& type, Descriptor pipe) {
        ++m_sends;
        const auto& bytes = contents.at(type);
        if (!bytes) {
            m_unanswered.push_back(std::move(pipe));
            return;
        }
        for (qsizetype at = 0; at < bytes->size();) {
            const ssize_t written = write(pipe.get(), bytes->constData() + at, std::size_t(bytes->size() - at));
            if (written < 0)
                return;
            at += written;
        }
    };
    m_control->setSelection(source.get());
    m_source = std::move(source);
    m_control->roundTrip();
}

void WaylandPeer::letGo() {
    m_source.reset();
    m_control->roundTrip();
}

QStringList WaylandPeer::types() {
    m_control->roundTrip();
    return m_offer ? m_offer->mimeTypes() : QStringList();
}

int WaylandPeer::changes() {
    m_control->roundTrip();
    return m_changes;
}

Descriptor WaylandPeer::askOnly(const QString& type) {
    m_control->roundTrip();
    Descriptor pipe = m_offer ? m_offer->receive(type) : Descriptor();
    wl_display_flush(m_control->display());
    return pipe;
}

QByteArray WaylandPeer::paste(const QString& type) {
    const Descriptor pipe = askOnly(type);
    QByteArray pasted;
    bool hasEnded = !pipe.isOpen();
    until([&] {
        char buffer[65536];
        while (!hasEnded) {
            const ssize_t got = read(pipe.get(), buffer, sizeof buffer);
            if (got < 0)
                break;
            hasEnded = got == 0;
            pasted.append(buffer, got);
        }
        return hasEnded;
    });
    return pasted;
}

} // namespace vellumry
