// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/Shortcut.h"
#include "shell/AppWorld.h"

namespace vellumry {

/// One run of the environment after the other, on one computer.
class AppEnvironmentWorld : public AppWorld {
protected:
    /// A task that waits for good would outlive the test.
    void TearDown() override {
        if (!textReader || !textReader->isSilent())
            return;
        textReader->readings.assign(2, TextReader::Reading());
        textReader->answer(TextReader::Reading());
    }
    /// Ends the run that may be under way and begins the next.
    void launch() {
        environment.reset();
        platform = makePlatform();
        environment = AppEnvironment::launch(platform);
    }
    /// The same, until the history is there or is known not to be.
    void start() {
        launch();
        environment->start();
        runUntil([this] { return environment->opening()->hasSettled(); }, 60'000);
    }
    [[nodiscard]] ClipStore& store() const { return environment->store(); }
    /// Another program copies; the watcher looks.
    void copy(const QString& type, const QByteArray& bytes) {
        pasteboard->copy(type, bytes);
        environment->watcher().tick(time.clock()());
    }
    void copyText(const char* text) { copy(uniformtype::utf8PlainText, text); }
    /// As `copyText`, until it is on the disk.
    void keep(const char* text) {
        copyText(text);
        awaited(store().markUsed(store().clips().front()->id, time.clock()()));
    }
    void keepPinned(const char* text) {
        keep(text);
        awaited(store().setPinned(store().clips().front()->id, true, time.clock()()));
    }
    bool press(const Shortcut& shortcut) { return hotKeys->press({shortcut.keyCode, shortcut.modifiers}); }
    /// The time between two rounds of maintenance has passed.
    void maintain() const { maintenance->pass(std::chrono::seconds(15)); }

    Platform platform;
    std::unique_ptr<AppEnvironment> environment;
};

} // namespace vellumry
