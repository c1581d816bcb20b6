// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/ComposedKeys.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWindow>
#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace vellumry {

namespace {

/// A field as an input method sees it; what reaches it is its text.
class Field : public QObject {
public:
    bool takesText = true;
    QString text;

    bool event(QEvent* event) override {
        if (event->type() == QEvent::InputMethodQuery)
            static_cast<QInputMethodQueryEvent*>(event)->setValue(Qt::ImEnabled, takesText);
        else if (event->type() == QEvent::InputMethod)
            text += static_cast<QInputMethodEvent*>(event)->commitString();
        else
            return QObject::event(event);
        return true;
    }
};

class Window : public QWindow {
public:
    Field* field = nullptr;
    [[nodiscard]] QObject* focusObject() const override { return field; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (field)
            field->text += event->text();
    }
};

class ComposedKeysTest : public testing::Test {
protected:
    ComposedKeysTest() {
        window.field = &field;
        QCoreApplication::instance()->installEventFilter(&keys);
    }
    void press(quint32 symbol, const QString& text = {}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, 0, symbol, 0, text);
        QCoreApplication::sendEvent(&window, &event);
    }

    ComposedKeys keys{QByteArrayLiteral("en_US.UTF-8")};
    Field field;
    Window window;
};

} // namespace

TEST_F(ComposedKeysTest, AnAccentWaitsForItsLetterAndComesBehindWhatWasTyped) {
    press(XKB_KEY_n, QStringLiteral("n"));
    press(XKB_KEY_dead_acute);
    EXPECT_EQ(field.text, QStringLiteral("n"));
    press(XKB_KEY_e, QStringLiteral("e"));
    press(XKB_KEY_s, QStringLiteral("s"));
    EXPECT_EQ(field.text, QStringLiteral("n\u00e9s"));
}

TEST_F(ComposedKeysTest, ShiftDoesNotBreakASequence) {
    press(XKB_KEY_dead_acute);
    press(XKB_KEY_Shift_L);
    press(XKB_KEY_E, QStringLiteral("E"));
    EXPECT_EQ(field.text, QStringLiteral("\u00c9"));
}

TEST_F(ComposedKeysTest, AComposeSequenceHasSeveralKeys) {
    press(XKB_KEY_Multi_key);
    press(XKB_KEY_s, QStringLiteral("s"));
    EXPECT_EQ(field.text, QString());
    press(XKB_KEY_s, QStringLiteral("s"));
    EXPECT_EQ(field.text, QStringLiteral("\u00df"));
}

TEST_F(ComposedKeysTest, AKeyThatEndsNoSequenceIsTypedAsItIs) {
    press(XKB_KEY_Multi_key);
    press(XKB_KEY_Down);
    press(XKB_KEY_x, QStringLiteral("x"));
    EXPECT_EQ(field.text, QStringLiteral("x"));
}

TEST_F(ComposedKeysTest, WhatTakesNoTextGetsItsKeys) {
    field.takesText = false;
    press(XKB_KEY_dead_acute);
    press(XKB_KEY_e, QStringLiteral("e"));
    EXPECT_EQ(field.text, QStringLiteral("e"));
}

TEST_F(ComposedKeysTest, AnotherFieldBeginsAnew) {
    press(XKB_KEY_dead_acute);
    Field other;
    window.field = &other;
    press(XKB_KEY_e, QStringLiteral("e"));
    EXPECT_EQ(other.text, QStringLiteral("e"));
    EXPECT_EQ(field.text, QString());
}

TEST_F(ComposedKeysTest, AWindowWithoutAFieldIsLeftAlone) {
    window.field = nullptr;
    press(XKB_KEY_dead_acute);
    window.field = &field;
    press(XKB_KEY_e, QStringLiteral("e"));
    EXPECT_EQ(field.text, QStringLiteral("e"));
}

TEST(ComposedKeys, TheyStandInForQtsOwnInputMethodOnly) {
    for (const char* own : {"", "compose", "xim"})
        EXPECT_TRUE(ComposedKeys::standInFor(own)) << own;
    for (const char* other : {"ibus", "fcitx", "fcitx5", "none", "qtvirtualkeyboard"})
        EXPECT_FALSE(ComposedKeys::standInFor(other)) << other;
}

} // namespace vellumry
