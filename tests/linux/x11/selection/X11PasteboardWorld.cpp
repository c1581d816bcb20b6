// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/X11PasteboardWorld.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <csignal>
#include <poll.h>
#include <sys/prctl.h>

namespace vellumry {

namespace {

constexpr int startMilliseconds = 15000;

} // namespace

void X11PasteboardWorld::SetUp() {
    // A test that dies takes the server along.
    m_server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                    QStringLiteral("640x480x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                    QStringLiteral("-ac"), QStringLiteral("-noreset")});
    QByteArray number;
    while (!number.contains('\n') && m_server.waitForReadyRead(startMilliseconds))
        number += m_server.readAllStandardOutput();
    ASSERT_FALSE(number.trimmed().isEmpty()) << "no X server";
    display = ":" + number.trimmed();
    pasteboard = X11Pasteboard::create(display).value();
    ASSERT_NE(pasteboard, nullptr);
}

void X11PasteboardWorld::TearDown() {
    pasteboard.reset();
    m_peers.clear();
    m_server.terminate();
    m_server.waitForFinished(startMilliseconds);
}

HostileOwner& X11PasteboardWorld::peer() {
    m_peers.push_back(std::make_unique<HostileOwner>(display));
    EXPECT_TRUE(m_peers.back()->isConnected());
    return *m_peers.back();
}

bool X11PasteboardWorld::waitUntil(const std::function<bool()>& condition, int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents();
        std::vector<pollfd> descriptors;
        for (const auto& client : m_peers) {
            client->pump();
            if (client->isConnected())
                descriptors.push_back({client->fileDescriptor(), POLLIN, 0});
        }
        if (condition())
            return true;
        poll(descriptors.data(), descriptors.size(), 1);
    }
    return condition();
}

bool X11PasteboardWorld::waitForChange(qint64 count) {
    return waitUntil([this, count] { return pasteboard->changeCount() != count; });
}

HostileOwner& X11PasteboardWorld::copied(std::vector<HostileOwner::Offer> offers) {
    HostileOwner& owner = peer();
    const qint64 count = pasteboard->changeCount();
    EXPECT_TRUE(owner.own("CLIPBOARD", std::move(offers)));
    EXPECT_TRUE(waitForChange(count));
    return owner;
}

QByteArray patternOf(qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 0x9e3779b9;
    for (char& byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

} // namespace vellumry
