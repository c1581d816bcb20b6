// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "panel/PreviewContent.h"
#include "panel/PreviewLists.h"
#include "panel/PreviewPicture.h"
#include "panel/PreviewText.h"

#include <QCoroTask>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <qqmlregistration.h>

namespace vellumry {

class ImageCodec;
class PanelModel;
class PasteStack;

/// The right-hand side of the panel as its QML sees it: what `previewContent` makes of the selection, what is loaded
/// for it, and the buttons handed back to the panel model. While the panel is hidden it lies dormant and holds
/// nothing. Main thread.
class PreviewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the panel's controller")
    Q_PROPERTY(Body body READ body NOTIFY contentChanged)
    Q_PROPERTY(QAbstractItemModel* lines READ lines CONSTANT)
    Q_PROPERTY(bool isFixedWidth READ isFixedWidth NOTIFY contentChanged)
    Q_PROPERTY(QString text READ text NOTIFY contentChanged)
    Q_PROPERTY(QString markedText READ markedText NOTIFY marksChanged)
    Q_PROPERTY(QString textUpToHit READ textUpToHit NOTIFY marksChanged)
    Q_PROPERTY(QString markedWords READ markedWords NOTIFY marksChanged)
    Q_PROPERTY(QString wordsUpToHit READ wordsUpToHit NOTIFY marksChanged)
    Q_PROPERTY(int hitRow READ hitRow NOTIFY hitChanged)
    Q_PROPERTY(QString host READ host NOTIFY contentChanged)
    Q_PROPERTY(QString swatch READ swatch NOTIFY contentChanged)
    Q_PROPERTY(QStringList notations READ notations NOTIFY contentChanged)
    Q_PROPERTY(QAbstractItemModel* entries READ entries CONSTANT)
    Q_PROPERTY(QString heading READ heading NOTIFY contentChanged)
    Q_PROPERTY(QString more READ more NOTIFY contentChanged)
    Q_PROPERTY(QString note READ note NOTIFY contentChanged)
    Q_PROPERTY(QString details READ details NOTIFY contentChanged)
    Q_PROPERTY(QString textInImage READ textInImage NOTIFY contentChanged)
    Q_PROPERTY(bool isReadingText READ isReadingText NOTIFY contentChanged)
    Q_PROPERTY(bool offersReading READ offersReading NOTIFY contentChanged)
    Q_PROPERTY(bool showsTransforms READ showsTransforms NOTIFY contentChanged)
    Q_PROPERTY(QAbstractItemModel* buttons READ buttons CONSTANT)
    Q_PROPERTY(QString thumbnail READ thumbnail NOTIFY contentChanged)
    Q_PROPERTY(QString picture READ picture NOTIFY pictureChanged)
    Q_PROPERTY(int pictureWidth READ pictureWidth NOTIFY pictureChanged)
    Q_PROPERTY(int pictureHeight READ pictureHeight NOTIFY pictureChanged)
    Q_PROPERTY(bool hasNoPicture READ hasNoPicture NOTIFY pictureChanged)
    Q_PROPERTY(QString countdown READ countdown NOTIFY countdownChanged)

public:
    enum class Body : quint8 { None, Text, Link, Image, Color, File, Sensitive, Several };
    Q_ENUM(Body)

    /// What the preview needs of the shell.
    struct Hooks {
        ImageCodec* images = nullptr; ///< without one, pictures are shown by their thumbnails
        std::function<bool(const QUuid&)> isReadingText = [](const QUuid&) { return false; };
        std::function<void(const QUuid&)> readText = [](const QUuid&) {}; ///< the words in a picture file
        Clock clock = currentDate;
    };

    /// `model` must outlive this.
    PreviewModel(PanelModel& model, Hooks hooks, QObject* parent = nullptr);
    ~PreviewModel() override;

    /// Does what that button does: one of PreviewContent::Action.
    Q_INVOKABLE void perform(int action);
    Q_INVOKABLE void readText();
    /// The pixels that there are for a picture.
    Q_INVOKABLE void setRoom(int width, int height);

    /// While it lies dormant it follows nothing, holds nothing, and no timer runs.
    void setDormant(bool isDormant);
    /// What styles and marks are drawn with.
    void setLook(const markup::Look& look);
    /// The stack that its buttons start and stop; it need not outlive this.
    void setStack(PasteStack& stack);
    /// Something that the model does not tell may be different: whether a picture's words are being read.
    void refresh();
    [[nodiscard]] const PreviewContent& content() const { return m_content; }
    [[nodiscard]] bool isCounting() const { return m_tick.isActive(); }
    /// Gives QML the picture that is shown; the engine owns it. Null without a codec.
    [[nodiscard]] QQuickImageProvider* makePictureProvider();

    [[nodiscard]] Body body() const { return static_cast<Body>(m_content.body); }
    [[nodiscard]] QAbstractItemModel* lines() { return &m_text.lines(); }
    [[nodiscard]] bool isFixedWidth() const { return m_content.isFixedWidth; }
    [[nodiscard]] QString text() const;
    /// A link's address and the words of a picture with their hits marked; empty without hits.
    [[nodiscard]] QString markedText() const;
    [[nodiscard]] QString textUpToHit() const;
    [[nodiscard]] QString markedWords() const;
    [[nodiscard]] QString wordsUpToHit() const;
    /// The row of `lines` to scroll to: that of the first hit. -1 to show the beginning.
    [[nodiscard]] int hitRow() const { return m_text.hitRow(); }
    /// That row up to the end of its hit, to be measured.
    Q_INVOKABLE [[nodiscard]] QString rowUpToHit() const { return m_text.upToHit(); }
    [[nodiscard]] QString host() const { return m_content.host; }
    [[nodiscard]] QString swatch() const { return m_content.color.swatch; }
    [[nodiscard]] QStringList notations() const;
    [[nodiscard]] QAbstractItemModel* entries() { return &m_entries; }
    [[nodiscard]] QString heading() const { return m_content.heading; }
    [[nodiscard]] QString more() const { return m_content.more; }
    [[nodiscard]] QString note() const { return m_content.note; }
    [[nodiscard]] QString details() const { return m_content.details; }
    [[nodiscard]] QString textInImage() const { return m_content.textInImage; }
    [[nodiscard]] bool isReadingText() const { return m_content.isReadingText; }
    [[nodiscard]] bool offersReading() const { return m_content.offersReading; }
    [[nodiscard]] bool showsTransforms() const { return m_content.showsTransforms; }
    [[nodiscard]] QAbstractItemModel* buttons() { return &m_buttons; }
    [[nodiscard]] QString thumbnail() const { return m_thumbnail; }
    [[nodiscard]] QString picture() const;
    /// In pixels of the display.
    [[nodiscard]] int pictureWidth() const { return pictureSize().width(); }
    [[nodiscard]] int pictureHeight() const { return pictureSize().height(); }
    [[nodiscard]] bool hasNoPicture() const;
    [[nodiscard]] QString countdown() const { return m_countdown; }

Q_SIGNALS:
    void contentChanged();
    void pictureChanged();
    void countdownChanged();
    void marksChanged();
    void hitChanged();

private:
    [[nodiscard]] PreviewSources sources() const;
    [[nodiscard]] ClipRef shownClip() const;
    void show(PreviewContent content);
    void showBody();
    void performOnClip(PreviewContent::Action action, const ClipRef& clip);
    void tick();
    void lookAtFiles();
    QCoro::Task<void> findFacts(QUuid id, QStringList paths);
    [[nodiscard]] bool isPictureShown() const;
    [[nodiscard]] QSize pictureSize() const;

    PanelModel* m_model;
    Hooks m_hooks;
    QPointer<PasteStack> m_stack;
    PreviewContent m_content;
    PreviewText m_text;
    markup::Look m_look;
    QString m_query; ///< what is marked
    std::unique_ptr<PreviewPicture> m_picture;
    PreviewEntryModel m_entries;
    PreviewButtonModel m_buttons;
    QString m_thumbnail;
    QString m_countdown;
    QTimer m_tick; ///< runs while a countdown is shown
    std::optional<QUuid> m_factsOf;
    QStringList m_lookedAt; ///< the paths that `m_facts` are about
    std::vector<FileFacts> m_facts;
    bool m_isDormant = false;
};

} // namespace vellumry
