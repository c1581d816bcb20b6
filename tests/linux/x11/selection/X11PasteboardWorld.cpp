// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/X11PasteboardWorld.h"

#include "foundation/UniformType.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <sys/prctl.h>

namespace vellumry {

namespace {

constexpr int startMilliseconds = 60'000;

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

bool X11PasteboardWorld::eventually(const std::function<bool()>& condition, int milliseconds) {
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
    return eventually([this, count] { return pasteboard->changeCount() != count; });
}

void X11PasteboardWorld::catchUp() {
    (void)resultOf([](X11Pasteboard& board) -> QCoro::Task<bool> {
        co_await board.catchUp();
        co_return true;
    }(*pasteboard));
}

void X11PasteboardWorld::setLimits(const PasteboardLimits& limits) {
    pasteboard = X11Pasteboard::create(display, limits).value();
    ASSERT_NE(pasteboard, nullptr);
}

HostileOwner& X11PasteboardWorld::copied(std::vector<HostileOwner::Offer> offers) {
    HostileOwner& owner = peer();
    const qint64 count = pasteboard->changeCount();
    EXPECT_TRUE(owner.own("CLIPBOARD", std::move(offers)));
    EXPECT_TRUE(waitForChange(count));
    return owner;
}

HostileOwner::Answer X11PasteboardWorld::ask(HostileOwner& requestor, const QByteArray& target,
                                             const QByteArray& selection) {
    requestor.answers.erase(target);
    requestor.ask(selection, target);
    EXPECT_TRUE(eventually([&] { return requestor.answers.contains(target); })) << target.constData();
    return requestor.answers[target];
}

QByteArrayList X11PasteboardWorld::targetsOf(HostileOwner& requestor, const QByteArray& selection) {
    const HostileOwner::Answer answer = ask(requestor, "TARGETS", selection);
    QByteArrayList names;
    for (qsizetype at = 0; at + 4 <= answer.bytes.size(); at += 4) {
        quint32 atom = 0;
        std::memcpy(&atom, answer.bytes.constData() + at, sizeof atom);
        names.append(requestor.atomName(atom));
    }
    return names;
}

PasteboardItem X11PasteboardWorld::file(const QByteArray& url) {
    return {{{uniformtype::fileUrl, url}}, std::nullopt};
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
