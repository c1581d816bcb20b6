// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/DesktopLook.h"
#include "views/ThemeColors.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QAccessibleInterface;
class QQmlEngine;
class QQuickView;

namespace vellumry {

/// What all windows of the program are drawn with: one QML engine, made when the first window needs it, and the look
/// that the user and the desktop have chosen. QML sees it as `Views`. Outlives every window that it made. Main thread.
class ViewEngine : public QObject {
    Q_OBJECT

public:
    enum class Appearance { system, light, dark };

    ViewEngine();
    ~ViewEngine() override;

    /// A window without a view yet, drawn by the common engine. `title` is what screen readers and task switchers say.
    [[nodiscard]] std::unique_ptr<QQuickView> makeWindow(const QString& title);
    /// The same with the program's sign, for what stands in task bars. On X11 a desktop that does not know our desktop
    /// file, as where the program was not installed, has no other.
    [[nodiscard]] std::unique_ptr<QQuickView> makeOrdinaryWindow(const QString& title);
    [[nodiscard]] QQmlEngine& engine();
    /// Lets go of a window that has been closed, and of what only its view needed. From its own events too: it goes
    /// with the next turn of the event loop.
    void discard(std::unique_ptr<QQuickView> window);

    void setAppearance(Appearance appearance);
    /// What the desktop says of its look; followed by all windows at once.
    void setDesktopLook(const DesktopLook& look);
    /// The clipboard as the fields of all windows use it: Qt's own would wait for its owner. Set by the owner.
    std::function<void(const QString& text)> copyText = [](const QString&) {};
    using Deliver = std::function<void(const QString& text)>;
    std::function<void(Deliver deliver)> readText = [](const Deliver&) {};
    /// The keys work on another row of a list; for assistive technology.
    std::function<void(QAccessibleInterface& row)> tellActiveRow = [](QAccessibleInterface&) {};
    /// The user wants less motion.
    std::function<bool()> reducesMotion = [] { return false; };

    /// The user's choice, else the desktop's.
    [[nodiscard]] bool isDark() const { return m_choice.isDark; }
    [[nodiscard]] const ThemeColors& colors() const { return m_colors; }
    /// Of all texts; from 0.8 to 3.
    [[nodiscard]] double textScale() const;
    /// The user wants less motion: by the hook, or by the desktop's look.
    [[nodiscard]] bool isStill() const { return m_look.reducesMotion || reducesMotion(); }

Q_SIGNALS:
    void lookChanged();

protected:
    /// Follows the colours of Qt's own theme, where nothing else says what the desktop's are.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void resolve();

    std::unique_ptr<QQmlEngine> m_engine;
    std::vector<QPointer<QQuickView>> m_discarded; ///< null where they have gone
    Appearance m_appearance = Appearance::system;
    DesktopLook m_look;
    ColorChoice m_choice;
    ThemeColors m_colors = ThemeColors::of({});
};

} // namespace vellumry
