// SPDX-License-Identifier: GPL-3.0-or-later
// Another program of the session that copies and pastes in the background, as it is told on standard input:
//
//   copy WORDS      takes the clipboard with these words
//   clear           empties it
//   paste           prints "pasted WORDS", what a program gets that pastes now
//
// Prints "copied SECONDS" when the compositor has it, and "read SECONDS" when somebody asked for the words, by the
// clock of Python's time.monotonic().
#include "linux/wayland/selection/DataControl.h"
#include "wayland/MutterSelection.h"

#include <QByteArray>
#include <chrono>
#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace {

using namespace vellumry;

const QStringList textTypes{QStringLiteral("text/plain;charset=utf-8"), QStringLiteral("text/plain"),
                            QStringLiteral("UTF8_STRING")};

void tell(const char* what) {
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf("%s %.6f\n", what, now.count());
    std::fflush(stdout);
}

class Clipper {
public:
    explicit Clipper(std::unique_ptr<SelectionControl> control)
        : m_control(std::move(control)) {
        m_control->onSelection = [this](std::unique_ptr<SelectionControl::Offer> offer) { m_offer = std::move(offer); };
        m_control->roundTrip();
    }

    void run() {
        QByteArray asked;
        for (;;) {
            std::vector<pollfd> descriptors{{STDIN_FILENO, POLLIN, 0}};
            m_control->prepareWait(descriptors);
            (void)poll(descriptors.data(), descriptors.size(), -1);
            m_control->finishWait(descriptors);
            if (m_control->isBroken())
                return;
            char buffer[65536];
            if (descriptors[0].revents == 0)
                continue;
            const ssize_t got = read(STDIN_FILENO, buffer, sizeof buffer);
            if (got <= 0)
                return;
            asked.append(buffer, got);
            for (qsizetype end = 0; (end = asked.indexOf('\n')) >= 0; asked.remove(0, end + 1))
                obey(asked.left(end));
        }
    }

private:
    void obey(const QByteArray& line) {
        if (line == "paste")
            paste();
        else if (line == "clear")
            clear();
        else if (line.startsWith("copy "))
            copy(line.mid(5));
    }

    void copy(const QByteArray& words) {
        auto source = m_control->makeSource(textTypes);
        source->onSend = [words](const QString&, const Descriptor& pipe) {
            (void)!write(pipe.get(), words.constData(), std::size_t(words.size()));
            tell("read");
        };
        m_control->setSelection(source.get());
        // What stood there before goes once this has come.
        const auto before = std::exchange(m_source, std::move(source));
        m_control->roundTrip();
        tell("copied");
    }

    void clear() {
        m_control->setSelection(nullptr);
        m_control->roundTrip();
        tell("cleared");
    }

    void paste() {
        QByteArray words;
        if (m_offer) {
            const Descriptor pipe = m_offer->receive(textTypes.front());
            m_control->flush();
            pollfd descriptor{pipe.get(), POLLIN, 0};
            char buffer[65536];
            ssize_t got = 1;
            while (got > 0 && poll(&descriptor, 1, 10'000) > 0) {
                if ((got = read(pipe.get(), buffer, sizeof buffer)) > 0)
                    words.append(buffer, got);
            }
        }
        std::printf("pasted %s\n", words.constData());
        std::fflush(stdout);
    }

    std::unique_ptr<SelectionControl> m_control;
    std::unique_ptr<SelectionControl::Offer> m_offer;
    std::unique_ptr<SelectionControl::Source> m_source;
};

} // namespace

int main() {
    std::unique_ptr<vellumry::SelectionControl> control;
    if (auto created = vellumry::DataControl::create({}))
        control = std::move(*created);
    else
        control = vellumry::MutterSelection::create();
    if (!control) {
        std::fputs("clipper: the compositor lets no program see its clipboard\n", stderr);
        return 1;
    }
    Clipper(std::move(control)).run();
    return 0;
}
