// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileStatus.h"
#include "history/clips/Clip.h"
#include "history/clips/TextTransform.h"

#include <QString>
#include <optional>
#include <vector>

namespace vellumry {

/// What the right-hand side of the panel shows for the selection, as values: a pure function of the selected clips and
/// of what is known about them. The view draws it and decides nothing.
struct PreviewContent {
    enum class Body : quint8 { none, text, link, image, color, file, sensitive, several };

    /// What a button of the preview does.
    enum class Action : quint8 {
        paste,
        pasteFileName,
        pastePlain,
        pasteTextInImage,
        pasteTransformed,
        transform,
        closeTransforms,
        showFiles,
        openLink,
        togglePin,
        remove,
        mergeAndPaste,
        pasteOneByOne,
        stopStack,
        readText,
    };

    struct Button {
        Action action = Action::paste;
        QString title{}; ///< empty for a button that is only a symbol
        QString help{};
        QString symbol{};
        bool isProminent = false;
        bool operator==(const Button&) const = default;
    };

    /// One of the files, or one of several clips.
    struct Entry {
        QString name{};
        QString symbol{};    ///< "arrow.turn.down.right" for a moved file, else that of its kind
        QString thumbnail{}; ///< where QML finds it; empty without one
        QString swatch{};    ///< "#aarrggbb" of a colour
        QString place{};     ///< the folder of a moved file, its name abbreviated
        QString size{};      ///< of a file, where it is known
        QString note{};      ///< what is wrong with it; may be empty
        bool isMissing = false;
        bool isFile = false;
        bool operator==(const Entry&) const = default;
    };

    /// A colour in the ways in which it is written.
    struct Color {
        QString swatch{}; ///< "#aarrggbb"; empty where the text could not be read
        QString text{};   ///< as it was copied
        QString hex{};    ///< "#rrggbb", "#rrggbbaa" when it is translucent
        QString rgb{};    ///< "rgb(r, g, b)", "rgba(r, g, b, a)"
        QString hsl{};    ///< "hsl(h, s%, l%)", "hsla(…)"
        bool operator==(const Color&) const = default;
    };

    Body body = Body::none;
    std::vector<QUuid> ids{}; ///< the clips that are shown
    QString heading{};        ///< of several: how many
    QString text{};           ///< text, link: what was copied; sensitive: the line beneath the lock
    QString host{};           ///< of a link; empty for one without
    bool isFixedWidth = false;
    Color color{};
    std::vector<Entry> entries{}; ///< the first few files, or the first few of several clips
    QString more{};               ///< "3 more" behind a list that was cut
    QString note{};               ///< what merging does, or why a file cannot be pasted
    QString details{};
    QString textInImage{};
    bool isReadingText = false;
    bool offersReading = false;
    std::optional<Date> expiresAt{}; ///< sensitive: when the clip goes
    bool showsTransforms = false;
    std::vector<Button> buttons{};

    bool operator==(const PreviewContent&) const = default;
};

/// What a look at the disk told of a file.
struct FileFacts {
    std::optional<qint64> size{}; ///< absent for a folder and for what is not there
    bool isFolder = false;
    bool operator==(const FileFacts&) const = default;
};

/// What is known beyond the clips.
struct PreviewSources {
    std::vector<ClipRef> clips{};                               ///< the selection in display order
    std::function<std::vector<FileStatus>(const QUuid&)> files; ///< empty while they are looked at
    std::function<std::vector<FileFacts>(const QUuid&)> facts;  ///< empty while they are looked at
    std::function<bool(const QUuid&)> isReading;                ///< the picture waits to be read
    bool isStackActive = false;
    bool showsTransforms = false;
    std::optional<qsizetype> characters{}; ///< of the one clip's text, where they were counted
};

[[nodiscard]] PreviewContent previewContent(const PreviewSources& sources);

/// "Hidden. Deletes itself in 42 s"; minutes and seconds from a minute on.
[[nodiscard]] QString countdownText(double secondsLeft);

/// How many clips and files the preview lists before it counts the others.
inline constexpr qsizetype previewListLength = 8;
/// Texts up to this length are counted when they are shown; longer ones elsewhere.
inline constexpr qsizetype countedAtOnce = 20'000;

} // namespace vellumry
