// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/Clip.h"
#include "history/clips/TextTransform.h"
#include "panel/PreviewTextModel.h"

#include <QCoroTask>
#include <QObject>
#include <memory>
#include <optional>

namespace vellumry {

class ClipStore;

/// The text of the clip that the preview shows. What the clip itself holds is there at once; the rest of a long text is
/// loaded, transformed and counted on another thread, one text at a time, and joins it; so is the text with its styles
/// that takes its place where the clip has one. Main thread.
class PreviewText : public QObject {
    Q_OBJECT

public:
    /// `store` must outlive this.
    explicit PreviewText(ClipStore& store, QObject* parent = nullptr);
    ~PreviewText() override;

    /// Shows the text of `clip`, as `transform` would paste it. `tabWidth`: as textslices::shown has it.
    void show(const ClipRef& clip, std::optional<TextTransform> transform, int tabWidth);
    /// Lets go of everything.
    void clear();
    /// What is marked in the text, and brought into sight where it occurs first.
    void setQuery(const QString& query);
    void setLook(const markup::Look& look) { m_lines.setLook(look); }

    [[nodiscard]] PreviewTextModel& lines() { return m_lines; }
    /// How many characters the clip shown has, once they were counted.
    [[nodiscard]] std::optional<qsizetype> characters() const { return m_characters; }
    /// The first row of the lines that holds a hit; -1 without one.
    [[nodiscard]] int hitRow() const { return m_hitRow; }
    /// That row up to the end of its first hit, as markup.
    [[nodiscard]] QString upToHit() const { return m_lines.upToHit(m_hitRow); }

Q_SIGNALS:
    void charactersChanged();
    /// The hits were looked for in another text or with another query.
    void hitChanged();

private:
    struct Wanted {
        ClipRef clip;
        std::optional<TextTransform> transform;
        bool operator==(const Wanted&) const = default;
    };
    struct Prepared {
        PreviewTextModel::Content content;
        QByteArray plain;       ///< what is counted
        bool continues = false; ///< begins with what is shown already
    };

    void showBeginning(const Wanted& wanted, int tabWidth);
    [[nodiscard]] bool isWanted(const Wanted& wanted) const { return m_wanted == wanted; }
    QCoro::Task<void> work();
    QCoro::Task<void> load(Wanted wanted);
    [[nodiscard]] static Prepared prepare(const std::vector<PasteboardItem>& items, const Wanted& wanted,
                                          const QByteArray& shown);
    void showPrepared(Prepared prepared);
    void findHit();
    QCoro::Task<void> findHitElsewhere();
    void setHit(int row);
    [[nodiscard]] SerialExecutor& executor();

    ClipStore* m_store;
    PreviewTextModel m_lines;
    std::optional<Wanted> m_wanted; ///< what is shown, as far as it has been loaded
    std::optional<Wanted> m_loaded;
    std::optional<qsizetype> m_characters;
    QString m_query;
    int m_hitRow = -1;
    bool m_isWorking = false;
    int m_tabWidth = 0;
    std::unique_ptr<SerialExecutor> m_executor; ///< made for the first text that needs it
};

} // namespace vellumry
