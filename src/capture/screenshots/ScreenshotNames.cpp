// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotNames.h"

#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace vellumry::screenshotnames {

namespace {

/// Names are compared composed, in lower case, with plain spaces and apostrophes: file systems and translations differ
/// in these.
QString comparable(const QString& name) {
    QString result = name.normalized(QString::NormalizationForm_KC).toLower();
    result.replace(QChar(0x2019), u'\'');
    return result;
}

/// What desktops of the world call a screenshot; longer forms and plurals begin alike.
const QStringList& words() {
    static const QStringList list = [] {
        QStringList result;
        for (const char* word : {"screenshot",
                                 "screen shot",
                                 "bildschirmfoto",
                                 "bildschirmphoto",
                                 "capture d'écran",
                                 "captures d'écran",
                                 "captura de pantalla",
                                 "capturas de pantalla",
                                 "captura de ecrã",
                                 "captura de tela",
                                 "capturas de tela",
                                 "capturas de ecrã",
                                 "captura de ecran",
                                 "captură de ecran",
                                 "captura del escritorio",
                                 "schermata",
                                 "schermafdruk",
                                 "schermafbeelding",
                                 "skärmbild",
                                 "skärmdump",
                                 "skjermbilde",
                                 "skjermdump",
                                 "skærmbillede",
                                 "skærmaftryk",
                                 "kuvakaappaus",
                                 "ruutukaappaus",
                                 "zrzut ekranu",
                                 "snímek obrazovky",
                                 "snímka obrazovky",
                                 "képernyőkép",
                                 "posnetek zaslona",
                                 "snimka zaslona",
                                 "slika zaslona",
                                 "снимок экрана",
                                 "знімок екрана",
                                 "снимка на екрана",
                                 "снимак екрана",
                                 "ekran görüntüsü",
                                 "ekran alıntısı",
                                 "στιγμιότυπο",
                                 "ekraanipilt",
                                 "ekrānattēls",
                                 "ekrano nuotrauka",
                                 "ekrano kopija",
                                 "tangkapan layar",
                                 "ảnh chụp màn hình",
                                 "لقطة شاشة",
                                 "صورة للشاشة",
                                 "צילום מסך",
                                 "نماگرفت",
                                 "स्क्रीनशॉट",
                                 "ภาพหน้าจอ",
                                 "スクリーンショット",
                                 "屏幕截图",
                                 "截图",
                                 "螢幕擷圖",
                                 "截圖",
                                 "螢幕快照",
                                 "스크린샷",
                                 "화면 갈무리"})
            result.append(comparable(QString::fromUtf8(word)));
        return result;
    }();
    return list;
}

bool hasWord(const QString& name) {
    return std::ranges::any_of(words(), [&name](const QString& word) { return name.contains(word); });
}

/// Tools that sign the names they give.
bool hasTool(const QString& name) {
    static const QRegularExpression tools(QStringLiteral(
        "(^|[^a-z])(scrot|grim|hyprshot|flameshot|satty|swappy|ksnip|maim|spectacle|shutter)([^a-z]|$)"));
    return tools.match(name).hasMatch();
}

/// A day: 2026-03-09, 2026.03.09, 20260309.
bool hasDate(const QString& name) {
    static const QRegularExpression date(
        QStringLiteral("(^|\\D)20\\d\\d([-._]?)(0[1-9]|1[0-2])\\2(0[1-9]|[12]\\d|3[01])"));
    return date.match(name).hasMatch();
}

/// A day and a time and nothing else, or behind words without a digit: with separators in the day, which the names of
/// cameras and telephones have not.
bool isMomentAlone(const QString& stem) {
    static const QRegularExpression moment(QStringLiteral(
        "^(\\D*[\\s_])?20\\d\\d-(0[1-9]|1[0-2])-(0[1-9]|[12]\\d|3[01])[\\s_-]([01]\\d|2[0-3])[-_.:h]?[0-5]\\d"
        "([-_.:m]?[0-5]\\d)?s?([-_\\s]\\(?\\d{1,3}\\)?)?$"));
    return moment.match(stem).hasMatch();
}

} // namespace

bool isScreenshotName(const QString& fileName) {
    const QString name = comparable(fileName);
    if (hasDate(name) && (hasWord(name) || hasTool(name)))
        return true;
    return name.endsWith(u".png") && isMomentAlone(name.chopped(4));
}

bool isScreenshotFolderName(const QString& folderName) {
    return hasWord(comparable(folderName));
}

} // namespace vellumry::screenshotnames
