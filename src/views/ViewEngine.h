// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

class QQmlEngine;
class QQuickView;

namespace vellumry {

/// What all windows of the program are drawn with: one QML engine, made when the first window needs it, and the choice
/// between light and dark. QML sees it as `Views`. Outlives every window that it made. Main thread.
class ViewEngine : public QObject {
    Q_OBJECT

public:
    enum class Appearance { system, light, dark };

    ViewEngine();
    ~ViewEngine() override;

    /// A window without a view yet, drawn by the common engine. `title` is what screen readers and task switchers say.
    [[nodiscard]] std::unique_ptr<QQuickView> makeWindow(const QString& title);
    [[nodiscard]] QQmlEngine& engine();

    void setAppearance(Appearance appearance);
    /// The clipboard as the fields of all windows use it: Qt's own would wait for its owner. Set by the owner.
    std::function<void(const QString& text)> copyText = [](const QString&) {};
    using Deliver = std::function<void(const QString& text)>;
    std::function<void(Deliver deliver)> readText = [](const Deliver&) {};
    /// The user wants less motion.
    std::function<bool()> reducesMotion = [] { return false; };

    /// The user's choice, else the desktop's.
    [[nodiscard]] bool isDark() const { return m_isDark; }

Q_SIGNALS:
    void darkChanged();

protected:
    /// Follows the desktop's colours.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void resolve();

    std::unique_ptr<QQmlEngine> m_engine;
    Appearance m_appearance = Appearance::system;
    bool m_isDark = false;
};

} // namespace vellumry
