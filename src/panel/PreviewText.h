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
/// loaded, transformed and counted on another thread, one text at a time, and joins it. Main thread.
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

    [[nodiscard]] PreviewTextModel& lines() { return m_lines; }
    /// How many characters the clip shown has, once they were counted.
    [[nodiscard]] std::optional<qsizetype> characters() const { return m_characters; }

Q_SIGNALS:
    void charactersChanged();

private:
    struct Wanted {
        ClipRef clip;
        std::optional<TextTransform> transform;
        bool operator==(const Wanted&) const = default;
    };
    struct Prepared {
        QByteArray text;
        std::vector<quint32> starts;
        bool continues = false; ///< begins with what is shown already
    };

    void showBeginning(const Wanted& wanted, int tabWidth);
    [[nodiscard]] bool isWanted(const Wanted& wanted) const { return m_wanted == wanted; }
    QCoro::Task<void> work();
    QCoro::Task<void> load(Wanted wanted);
    [[nodiscard]] SerialExecutor& executor();

    ClipStore* m_store;
    PreviewTextModel m_lines;
    std::optional<Wanted> m_wanted; ///< what is shown, as far as it has been loaded
    std::optional<Wanted> m_loaded;
    std::optional<qsizetype> m_characters;
    bool m_isWorking = false;
    int m_tabWidth = 0;
    std::unique_ptr<SerialExecutor> m_executor; ///< made for the first text that needs it
};

} // namespace vellumry
