// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/FakeAlarm.h"
#include "support/FakePanelSurface.h"
#include "support/ShownTexts.h"
#include "views/ViewEngine.h"

#include <QPropertyAnimation>
#include <QQuickItem>
#include <QQuickView>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

/// Small windows on a display that is not there, with time as a value.
class WindowWorld : public ::testing::Test {
protected:
    WindowWorld() { surface.blends = true; }

    [[nodiscard]] QQuickView* window() const {
        return surface.adopted.isEmpty() ? nullptr : qobject_cast<QQuickView*>(surface.adopted.first());
    }
    /// What is seen of the window: without the room for its shadow.
    [[nodiscard]] static QRect boardOf(const QQuickView& view, const QRect& geometry) {
        const int margin = view.rootObject()->property("shadowMargin").toInt();
        return geometry.adjusted(margin, margin, -margin, -margin);
    }
    [[nodiscard]] QRect board() const { return boardOf(*window(), window()->geometry()); }
    [[nodiscard]] QRect lastBoard() const { return boardOf(*window(), surface.frames.last()); }
    [[nodiscard]] double opacity() const { return window()->rootObject()->opacity(); }
    /// Time goes by for fades and alarms alike. The event loop, which moves fades otherwise, does not run.
    void pass(std::chrono::milliseconds time) {
        alarm->pass(time);
        auto* fade = window()->rootObject()->findChild<QPropertyAnimation*>();
        if (fade->state() == QAbstractAnimation::Running)
            fade->setCurrentTime(fade->currentTime() + static_cast<int>(time.count()));
    }

    [[nodiscard]] QStringList texts() const { return shownTexts(window()->rootObject()); }

    FakePanelSurface surface;
    ViewEngine views;
    FakeAlarm* alarm = new FakeAlarm; // the controller under test owns it
};

} // namespace vellumry
