// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PanelWindowWorld.h"

#include <QKeyEvent>
#include <QPointer>
#include <QSignalSpy>

using namespace vellumry;

namespace {

/// Keys that arrive while the program is busy: each is delivered, and only then the event loop turns.
class PanelTypingTest : public PanelWindowWorld {
protected:
    void SetUp() override {
        addText("aaa");
        addText("abc");
        open();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
    void typeWaitingKeys(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) {
            const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
            const QString text = isLetter ? QString(QChar(key)).toLower() : QString();
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(view(), &press);
        }
    }
    static void turn() { QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); }
};

} // namespace

TEST_F(PanelTypingTest, KeysThatWaitAreSearchedForTogether) {
    const QSignalSpy searches(&panel.model(), &PanelModel::sectionsChanged);
    typeWaitingKeys({Qt::Key_A, Qt::Key_B, Qt::Key_X, Qt::Key_Backspace, Qt::Key_C});
    EXPECT_EQ(searches.count(), 0);
    turn();
    EXPECT_EQ(searches.count(), 1);
    EXPECT_EQ(panel.model().query(), QStringLiteral("abc"));
    EXPECT_TRUE(texts().contains(QStringLiteral("<b>abc</b>")));
    EXPECT_FALSE(texts().contains(QStringLiteral("aaa")));
    turn();
    EXPECT_EQ(searches.count(), 1);
}

TEST_F(PanelTypingTest, KeysThatDoNotWaitAreSearchedForOneByOne) {
    const QSignalSpy searches(&panel.model(), &PanelModel::sectionsChanged);
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_B}) {
        typeWaitingKeys({key});
        turn();
    }
    EXPECT_EQ(searches.count(), 2);
}

TEST_F(PanelTypingTest, ACommandIsMeantForWhatWasTypedBeforeIt) {
    typeWaitingKeys({Qt::Key_A, Qt::Key_A, Qt::Key_Down});
    EXPECT_EQ(panel.model().query(), QStringLiteral("aa"));
    EXPECT_EQ(panel.model().visibleClips().size(), 1U);
}

TEST_F(PanelTypingTest, EscapeTakesBackWhatWasNotYetSearchedFor) {
    typeWaitingKeys({Qt::Key_A, Qt::Key_Escape});
    turn();
    EXPECT_EQ(panel.model().query(), QString());
    EXPECT_TRUE(panel.isVisible());
}

TEST_F(PanelTypingTest, AFilterChosenWhileTypingKeepsWhatWasTyped) {
    typeWaitingKeys({Qt::Key_A, Qt::Key_B});
    QTest::mouseClick(view(), Qt::LeftButton, {}, middleOf(itemWithText(localised("Images"))));
    turn();
    EXPECT_EQ(panel.model().query(), QStringLiteral("ab"));
    EXPECT_EQ(panel.model().filter(), ClipFilter::images);
}

TEST_F(PanelTypingTest, WhatWasTypedIsForgottenWhenThePanelHasClosed) {
    typeWaitingKeys({Qt::Key_A, Qt::Key_B});
    turn();
    const QPointer<QQuickItem> field = view()->activeFocusItem();
    ASSERT_EQ(field->property("text").toString(), QStringLiteral("ab"));
    panel.hide();
    // The field goes with what it would undo.
    runUntil([&] { return !field && panel.model().query().isEmpty(); });
    open();
    ASSERT_TRUE(view()->activeFocusItem());
    EXPECT_EQ(view()->activeFocusItem()->property("text").toString(), QString());
    typeWaitingKeys({Qt::Key_C});
    turn();
    EXPECT_EQ(panel.model().query(), QStringLiteral("c"));
}

TEST_F(PanelTypingTest, WhatIsTypedIntoAPanelThatWasOpenedAgainAtOnceStays) {
    panel.hide();
    open();
    typeWaitingKeys({Qt::Key_A, Qt::Key_B});
    turn();
    const QPointer<QQuickItem> field = view()->activeFocusItem();
    QCoreApplication::processEvents();
    EXPECT_TRUE(field);
    EXPECT_EQ(panel.model().query(), QStringLiteral("ab"));
}
