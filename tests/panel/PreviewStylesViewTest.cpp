// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewWindowWorld.h"

#include <QQmlEngine>
#include <QQmlNetworkAccessManagerFactory>

using namespace vellumry;

namespace {

class PreviewStylesViewTest : public PreviewWindowWorld {
protected:
    ClipRef addStyled(const char* plain, const QByteArray& html) {
        ClipDraft draft = drafts::text(QString::fromUtf8(plain));
        draft.kind = ClipKind::richText;
        draft.payload.items.front().representations[uniformtype::html] = html;
        return add(std::move(draft));
    }
    /// The slices that are laid out.
    [[nodiscard]] std::vector<QQuickItem*> slices() const {
        std::vector<QQuickItem*> found;
        QQuickItem* list = child("text");
        for (int row = 0; row < list->property("count").toInt(); ++row) {
            QQuickItem* item = nullptr;
            QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
            if (item != nullptr)
                found.push_back(item);
        }
        return found;
    }
    [[nodiscard]] QString markup() const {
        QString all;
        for (const QQuickItem* slice : slices())
            all += slice->property("markup").toString();
        return all;
    }
    void type(const char* text) {
        for (const char* letter = text; *letter != 0; ++letter)
            QTest::keyClick(view(), *letter);
        layOut();
    }
};

class NoNetwork : public QQmlNetworkAccessManagerFactory {
public:
    QNetworkAccessManager* create(QObject*) override {
        ++asked;
        return nullptr;
    }
    int asked = 0;
};

} // namespace

TEST_F(PreviewStylesViewTest, AStyledClipIsDrawnWithItsStyles) {
    addStyled("Title words", "<h1>Title</h1><p><b>bold</b> and <i>slanted</i></p>");
    open();
    ASSERT_TRUE(eventually([this] {
        layOut();
        return markup().contains(QStringLiteral("font-size:xx-large"));
    })) << qUtf8Printable(markup());
    EXPECT_TRUE(markup().contains(QStringLiteral("font-weight:600;\">bold</span> and")));
    const QQuickItem* slice = slices().front();
    EXPECT_EQ(slice->property("slice").toString(), QStringLiteral("Title\n\nbold and slanted")) << "for screen readers";
    EXPECT_GT(slice->height(), 3 * 13 * 1.5) << "the title is larger than the text";
}

TEST_F(PreviewStylesViewTest, NothingThatAStyledClipNamesIsFetched) {
    NoNetwork network;
    views.engine().setNetworkAccessManagerFactory(&network);
    addStyled("words",
              "<link rel=stylesheet href='http://example.org/a.css'><style>@import url(http://example.org/b)</style>"
              "<body background='http://example.org/c.png'><img src='http://example.org/d.png' alt='a cat'>"
              "<script src='http://example.org/e.js'>f()</script><b style='background:url(file:///etc/passwd)'>w</b>");
    open();
    ASSERT_TRUE(eventually([this] {
        layOut();
        return markup().contains(QStringLiteral("a cat"));
    }));
    EXPECT_FALSE(markup().contains(QStringLiteral("example.org")));
    EXPECT_FALSE(markup().contains(QStringLiteral("url(")));
    EXPECT_EQ(network.asked, 0);
    views.engine().setNetworkAccessManagerFactory(nullptr);
}

TEST_F(PreviewStylesViewTest, WhatIsSearchedForIsMarkedAndTheMarkGoesWithTheSearch) {
    addText("the roof of the house");
    open();
    layOut();
    EXPECT_EQ(markup(), QString());
    type("ROOF");
    ASSERT_TRUE(eventually([this] {
        layOut();
        return markup().contains(QStringLiteral("\">roof</span> of the house"));
    })) << qUtf8Printable(markup());
    for (int count = 0; count < 4; ++count)
        press(Qt::Key_Backspace);
    layOut();
    EXPECT_EQ(markup(), QString());
}

TEST_F(PreviewStylesViewTest, TheFirstHitIsScrolledIntoSight) {
    const QByteArray text = QByteArray("a line of other words\n").repeated(1'000) + "here is the walrus\n" +
                            QByteArray("and more of the kind\n").repeated(1'000);
    addText(text.constData());
    open();
    layOut();
    type("walrus");
    ASSERT_TRUE(eventually([this] { return preview().hitRow() > 0; }));
    layOut();
    const QQuickItem* list = child("text");
    const std::vector<QQuickItem*> seen = slices();
    const auto hit = std::ranges::find_if(seen, [](const QQuickItem* slice) {
        return slice->property("markup").toString().contains(QStringLiteral("walrus"));
    });
    ASSERT_NE(hit, seen.end());
    // As high as its share of the slice's lines tells.
    const QString slice = (*hit)->property("slice").toString();
    const double share =
        double(slice.left(slice.indexOf(QStringLiteral("walrus"))).count(u'\n') + 0.5) / (slice.count(u'\n') + 1);
    const double place = (*hit)->mapToItem(list, QPointF(0, (*hit)->height() * share)).y();
    EXPECT_GT(place, 0);
    EXPECT_LT(place, list->height());
    for (int count = 0; count < 6; ++count)
        press(Qt::Key_Backspace);
    ASSERT_TRUE(eventually([this] { return preview().hitRow() < 0; }));
    layOut();
    EXPECT_EQ(list->property("contentY").toReal(), list->property("originY").toReal()) << "back at the beginning";
}

TEST_F(PreviewStylesViewTest, AHitInATextThatIsSearchedElsewhereComesIntoSight) {
    const QByteArray text = QByteArray("a line of many words\n").repeated(8'000) + "the walrus at last";
    addText(text.constData());
    open();
    layOut();
    type("walrus");
    ASSERT_TRUE(eventually([this] {
        layOut();
        return markup().contains(QStringLiteral("walrus</span>"));
    }));
}

TEST_F(PreviewStylesViewTest, WordsOfAPictureAreMarked) {
    const ClipRef clip = add(drafts::image(QByteArray("png")));
    awaited(store.setImageText(clip->id, QStringLiteral("Trail 4 over the hills"), true));
    open();
    type("hills");
    layOut();
    EXPECT_TRUE(preview().markedWords().contains(QStringLiteral("\">hills</span>")));
    EXPECT_EQ(shown().filter(QStringLiteral("\">hills</span>")).size(), 1);
}

TEST_F(PreviewStylesViewTest, MarksFollowTheChoiceBetweenLightAndDark) {
    addText("the roof");
    open();
    type("roof");
    views.setAppearance(ViewEngine::Appearance::light);
    layOut();
    const QString light = markup();
    views.setAppearance(ViewEngine::Appearance::dark);
    layOut();
    EXPECT_NE(markup(), light);
    EXPECT_TRUE(markup().contains(views.colors().selected.name()));
}

TEST_F(PreviewStylesViewTest, TransformedTextIsPlain) {
    addStyled("some words", "<b>some words</b>");
    open();
    ASSERT_TRUE(eventually([this] {
        layOut();
        return markup().contains(QStringLiteral("some words"));
    }));
    panel.model().toggleTransforms();
    ASSERT_TRUE(eventually([this] {
        layOut();
        return markup().isEmpty();
    }));
}
