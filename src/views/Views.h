// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "views/ThemeColors.h"

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace vellumry {

class ViewEngine;

/// The view engine as the views know it: what they all follow, and the words of the user's language. Made by the QML
/// engine, which belongs to the view engine.
class Views : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY lookChanged)
    Q_PROPERTY(vellumry::ThemeColors colors READ colors NOTIFY lookChanged)
    Q_PROPERTY(double textScale READ textScale NOTIFY lookChanged)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft CONSTANT)
    Q_PROPERTY(QString family READ family CONSTANT)
    Q_PROPERTY(QString fixedFamily READ fixedFamily CONSTANT)

public:
    explicit Views(const ViewEngine& engine);
    static Views* create(QQmlEngine* engine, QJSEngine*);

    [[nodiscard]] bool isDark() const;
    [[nodiscard]] ThemeColors colors() const;
    /// How much larger texts are than at the usual setting.
    [[nodiscard]] double textScale() const;
    /// Our words are written from right to left, so all is laid out that way.
    [[nodiscard]] bool isRightToLeft() const;
    /// The user wants less motion; asked anew at each use.
    Q_INVOKABLE [[nodiscard]] bool reducesMotion() const;
    /// The font of the desktop's windows.
    [[nodiscard]] QString family() const;
    /// The font whose letters are all as wide, as the desktop has it.
    [[nodiscard]] QString fixedFamily() const;
    /// `key` in the user's language.
    Q_INVOKABLE [[nodiscard]] QString words(const QString& key) const;
    /// In the digits of the language that the words are in.
    Q_INVOKABLE [[nodiscard]] QString number(int value) const;
    /// Tells screen readers that `item` was selected, or is not any more: Qt tells no change of that state by itself.
    Q_INVOKABLE void tellSelected(QQuickItem* item) const;
    /// Tells screen readers that `item` is what the keys now work on, though the keyboard stays in a field: Qt tells it
    /// of items that have the keyboard only.
    Q_INVOKABLE void tellFocused(QQuickItem* item) const;
    /// Lets screen readers find the children of `content`, which a list made in any order, from top to bottom.
    Q_INVOKABLE void orderForReading(QQuickItem* content) const;
    /// Copies the text that is selected in a field, as any application does; nothing when there is none.
    Q_INVOKABLE void copy(const QString& text) const;
    /// Asks for the text on the clipboard; `pasted` brings it, if there is any.
    Q_INVOKABLE void pasteInto(QQuickItem* field);

Q_SIGNALS:
    void lookChanged();
    void pasted(QQuickItem* into, const QString& text);

private:
    const ViewEngine* m_engine;
};

} // namespace vellumry
