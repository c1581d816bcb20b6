// SPDX-License-Identifier: GPL-3.0-or-later
#include "wayland/WaylandPeer.h"

#include "linux/gnome/ShellSelection.h"
#include "linux/wayland/selection/DataControl.h"
#include "linux/wayland/selection/WaylandPasteboard.h"
#include "wayland/MutterSelection.h"

#include <QProcess>
#include <gtest/gtest.h>
#include <poll.h>
#include <stdexcept>

namespace vellumry {

std::unique_ptr<WaylandPasteboard> pasteboardOfSession(const PasteboardLimits& limits) {
    if (auto created = WaylandPasteboard::create(QByteArray(), limits))
        return std::move(*created);
    return std::move(*WaylandPasteboard::createOn(std::move(*ShellSelection::create()), limits));
}

void pressKey(const char* key) {
    QStringList command = qEnvironmentVariable("VELLUMRY_TYPE").split(u' ');
    const QString typist = command.takeFirst();
    command.append(QString::fromLatin1(key));
    ASSERT_EQ(QProcess::execute(typist, command), 0);
}

WaylandPeer::WaylandPeer() {
    if (auto created = DataControl::create({}))
        m_control = std::move(*created);
    else
        m_control = MutterSelection::create();
    m_hasKeeper = dynamic_cast<MutterSelection*>(m_control.get()) != nullptr;
    if (!m_control)
        throw std::runtime_error("the compositor lets no program see its clipboard");
    m_control->onSelection = [this](std::unique_ptr<SelectionControl::Offer> offer) {
        m_offer = std::move(offer);
        ++m_changes;
    };
    m_control->roundTrip();
    m_changes = 0;
}

void WaylandPeer::turn() {
    std::vector<pollfd> descriptors;
    m_control->prepareWait(descriptors);
    (void)poll(descriptors.data(), descriptors.size(), 0);
    m_control->finishWait(descriptors);
    m_control->flush();
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

void WaylandPeer::answerLate(const QByteArray& bytes) {
    for (const Descriptor& pipe : std::exchange(m_unanswered, {}))
        ASSERT_EQ(write(pipe.get(), bytes.constData(), std::size_t(bytes.size())), bytes.size());
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
    m_control->flush();
    return pipe;
}

QByteArray WaylandPeer::paste(const QString& type) {
    return pasted(askOnly(type));
}

QByteArray WaylandPeer::pasted(const Descriptor& pipe) {
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
