// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelController.h"
#include "support/FakeImageCodec.h"
#include "support/FakePanelSurface.h"
#include "support/PasteWorld.h"
#include "support/ShownTexts.h"

#include <QMap>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <gtest/gtest.h>

namespace vellumry {

/// The panel over a world in memory, on a display that is not there.
class PanelWindowWorld : public ::testing::Test, public PasteWorld {
protected:
    /// The native scan code of the second digit.
    static constexpr quint32 placeOfTwo = 11;

    PanelWindowWorld() { now = currentDate() - 60; }

    PanelController::Hooks panelHooks() {
        PanelController::Hooks hooks;
        hooks.position = [this](const QString& display) {
            const auto found = positions.constFind(display);
            return found == positions.constEnd() ? std::nullopt : std::optional(*found);
        };
        hooks.setPosition = [this](std::optional<placement::Fractions> position, const QString& display) {
            ++savings;
            positions.remove(display);
            if (position)
                positions.insert(display, *position);
        };
        hooks.keyCodeOf = [](quint32 scanCode) {
            return scanCode == placeOfTwo ? std::optional(KeyCode::digit2) : std::nullopt;
        };
        hooks.openPanelKeys = [] { return QStringLiteral("Super+V"); };
        hooks.requestAccessibility = [this] { ++accessRequests; };
        hooks.showToast = [this](const ToastMessage& toast) { toasts.push_back(toast); };
        hooks.preview.images = &codec;
        hooks.preview.isReadingText = [this](const QUuid& id) { return beingRead.contains(id); };
        hooks.preview.readText = [this](const QUuid& id) { beingRead.insert(id); };
        hooks.settleDelay = std::chrono::milliseconds(0);
        hooks.forgetDelay = std::chrono::milliseconds(0);
        return hooks;
    }

    [[nodiscard]] QQuickView* view() const {
        return surface.adopted.isEmpty() ? nullptr : qobject_cast<QQuickView*>(surface.adopted.first());
    }
    void open() {
        panel.show();
        (void)QTest::qWaitForWindowExposed(view());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(view(), key, modifiers);
    }

    /// The texts that can be seen, top to bottom as the items stand in the tree.
    [[nodiscard]] QStringList texts() const { return shownTexts(view()->rootObject()); }
    [[nodiscard]] QQuickItem* itemWithText(const QString& text) const { return find(view()->rootObject(), text); }
    [[nodiscard]] static QPoint middleOf(const QQuickItem* item) {
        return item->mapToScene(QPointF(20, item->height() / 2)).toPoint();
    }

    FakePanelSurface surface;
    FakeImageCodec codec;
    QSet<QUuid> beingRead; ///< pictures whose words are being read
    ViewEngine views;
    QMap<QString, placement::Fractions> positions;
    int savings = 0;
    int accessRequests = 0;
    std::vector<ToastMessage> toasts;
    PanelController panel{store, *engine, pasteboard, surface, views, panelHooks()};

private:
    static QQuickItem* find(QQuickItem* item, const QString& text) {
        if (!item->isVisible())
            return nullptr;
        if (item->inherits("QQuickText") && item->property("text").toString() == text)
            return item;
        for (QQuickItem* child : item->childItems()) {
            if (QQuickItem* found = find(child, text))
                return found;
        }
        return nullptr;
    }
};

} // namespace vellumry
