// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/RowAppearance.h"

#include "capture/ContentDetection.h"
#include "foundation/Localisation.h"

#include <QColor>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <cmath>

namespace vellumry::row {

namespace {

QString hiddenTitle(const QString& title) {
    QString digits;
    for (const QChar character : title) {
        if (character.isNumber())
            digits += character;
    }
    if (isCardNumber(title) && digits.size() >= 4)
        return localised("Card •••• %1").arg(digits.right(4));
    return localised("Hidden");
}

/// An angle as a share of the circle, from 0 up to but without 1.
double turn(double degrees) {
    const double rest = std::fmod(degrees, 360.0);
    return (rest < 0 ? rest + 360.0 : rest) / 360.0;
}

/// "rgb(…)", "rgba(…)", "hsl(…)" and "hsla(…)" of CSS.
QColor functionalColor(const QString& text) {
    static const QRegularExpression numbers(QStringLiteral("(-?[0-9.]+)(%?)"));
    std::vector<std::pair<double, bool>> parts;
    for (auto match = numbers.globalMatch(text); match.hasNext();) {
        const auto part = match.next();
        parts.emplace_back(part.captured(1).toDouble(), !part.captured(2).isEmpty());
    }
    if (parts.size() < 3)
        return {};
    const auto share = [&](std::size_t index, double whole) {
        return std::clamp(parts[index].first / (parts[index].second ? 100.0 : whole), 0.0, 1.0);
    };
    const double alpha = parts.size() > 3 ? share(3, 1.0) : 1.0;
    if (text.startsWith(QLatin1String("hsl"), Qt::CaseInsensitive))
        return QColor::fromHslF(
            static_cast<float>(turn(parts[0].first)), static_cast<float>(std::clamp(parts[1].first / 100.0, 0.0, 1.0)),
            static_cast<float>(std::clamp(parts[2].first / 100.0, 0.0, 1.0)), static_cast<float>(alpha));
    return QColor::fromRgbF(static_cast<float>(share(0, 255.0)), static_cast<float>(share(1, 255.0)),
                            static_cast<float>(share(2, 255.0)), static_cast<float>(alpha));
}

} // namespace

QString titleOf(const Clip& clip) {
    if (clip.isSensitive())
        return hiddenTitle(clip.title.toString());
    QString title = clip.title.toString();
    return title.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QString symbolOf(const Clip& clip) {
    if (clip.isSensitive())
        return QStringLiteral("lock.fill");
    switch (clip.kind) {
    case ClipKind::text:
        return clip.sourceBundleID && isCodeApp(*clip.sourceBundleID)
                   ? QStringLiteral("chevron.left.forwardslash.chevron.right")
                   : QStringLiteral("text.alignleft");
    case ClipKind::richText:
        return QStringLiteral("doc.richtext");
    case ClipKind::link:
        return QStringLiteral("link");
    case ClipKind::image:
        return QStringLiteral("photo");
    case ClipKind::file:
        return clip.files.size() > 1 ? QStringLiteral("doc.on.doc") : QStringLiteral("doc");
    case ClipKind::color:
        return QStringLiteral("paintpalette");
    }
    return QString();
}

QString swatchOf(const Clip& clip) {
    if (clip.kind != ClipKind::color || clip.isSensitive())
        return QString();
    const QString text = clip.title.toString().trimmed();
    QColor color;
    if (text.size() == 9 && text.startsWith(QLatin1Char('#')))
        color = QColor(QLatin1Char('#') + text.mid(7) + text.mid(1, 6)); // CSS puts alpha last, Qt first
    else if (text.startsWith(QLatin1Char('#')))
        color = QColor(text);
    else
        color = functionalColor(text);
    return color.isValid() ? color.name(QColor::HexArgb) : QString();
}

QString thumbnailOf(const Clip& clip) {
    return clip.thumbnail && !clip.isSensitive()
               ? QStringLiteral("image://thumbnail/") + clip.id.toString(QUuid::WithoutBraces)
               : QString();
}

bool isCodeApp(const QString& identifier) {
    static const QSet<QString> codeApps{
        QStringLiteral("com.apple.Terminal"),
        QStringLiteral("com.googlecode.iterm2"),
        QStringLiteral("com.microsoft.VSCode"),
        QStringLiteral("com.apple.dt.Xcode"),
        QStringLiteral("dev.warp.Warp-Stable"),
        QStringLiteral("com.sublimetext.4"),
        QStringLiteral("com.todesktop.230313mzl4w4u92"),
        QStringLiteral("com.brennhaldt.ghostty"),
        QStringLiteral("dev.zed.Zed"),
        QStringLiteral("com.panic.Nova"),
    };
    // What has no identifier of its own in that list, by its desktop entry or window class.
    static const QSet<QString> linuxApps{
        QStringLiteral("alacritty"),
        QStringLiteral("cmake-gui"),
        QStringLiteral("codeblocks"),
        QStringLiteral("com.gexperts.tilix"),
        QStringLiteral("com.raggesilver.blackbox"),
        QStringLiteral("contour"),
        QStringLiteral("cool-retro-term"),
        QStringLiteral("deepin-terminal"),
        QStringLiteral("eclipse"),
        QStringLiteral("emacs"),
        QStringLiteral("foot"),
        QStringLiteral("geany"),
        QStringLiteral("gnome-terminal"),
        QStringLiteral("gnome-terminal-server"),
        QStringLiteral("guake"),
        QStringLiteral("gvim"),
        QStringLiteral("kitty"),
        QStringLiteral("konsole"),
        QStringLiteral("lxterminal"),
        QStringLiteral("mate-terminal"),
        QStringLiteral("neovide"),
        QStringLiteral("nvim"),
        QStringLiteral("org.codeblocks.codeblocks"),
        QStringLiteral("org.contourterminal.contour"),
        QStringLiteral("org.geany.geany"),
        QStringLiteral("org.gnome.builder"),
        QStringLiteral("org.gnome.console"),
        QStringLiteral("org.gnome.ptyxis"),
        QStringLiteral("org.gnome.terminal"),
        QStringLiteral("org.gnu.emacs"),
        QStringLiteral("org.kde.kate"),
        QStringLiteral("org.kde.kdevelop"),
        QStringLiteral("org.kde.konsole"),
        QStringLiteral("org.kde.yakuake"),
        QStringLiteral("org.qt-project.qtcreator"),
        QStringLiteral("org.vim.vim"),
        QStringLiteral("org.wezfurlong.wezterm"),
        QStringLiteral("qterminal"),
        QStringLiteral("rxvt"),
        QStringLiteral("sakura"),
        QStringLiteral("st"),
        QStringLiteral("st-256color"),
        QStringLiteral("terminator"),
        QStringLiteral("terminology"),
        QStringLiteral("tilda"),
        QStringLiteral("tilix"),
        QStringLiteral("urxvt"),
        QStringLiteral("uxterm"),
        QStringLiteral("vim"),
        QStringLiteral("xfce4-terminal"),
        QStringLiteral("xterm"),
        QStringLiteral("yakuake"),
    };
    const QString lower = identifier.toLower();
    return codeApps.contains(identifier) || linuxApps.contains(lower) ||
           lower.startsWith(QLatin1String("jetbrains-")) || identifier.startsWith(QLatin1String("com.jetbrains."));
}

QString sourceOf(const Clip& clip) {
    return clip.sourceAppName.value_or(localised("Unknown app"));
}

} // namespace vellumry::row
