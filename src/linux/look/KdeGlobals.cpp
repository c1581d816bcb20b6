// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/KdeGlobals.h"

#include "foundation/RunDetached.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringList>
#include <array>
#include <chrono>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr auto readingLimit = 5s;
constexpr qint64 longestFile = 256 * 1024;

/// "group/key" to the value; a key may carry flags in brackets, which restrict changes.
QHash<QString, QString> entriesOf(const QByteArray& text) {
    QHash<QString, QString> entries;
    QString group;
    for (const QByteArray& raw : text.split('\n')) {
        const QString line = QString::fromUtf8(raw).trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'[') && line.endsWith(u']'))
            group = line.mid(1, line.size() - 2);
        else if (equals > 0)
            entries.insert(group + u'/' + line.left(equals).section(u'[', 0, 0).trimmed(),
                           line.mid(equals + 1).trimmed());
    }
    return entries;
}

/// "61,174,233", with the opacity behind it or not; or "#3daee9".
std::optional<quint32> colorOf(const QString& text) {
    bool isNumber = false;
    if (text.startsWith(u'#') && text.size() == 7) {
        const quint32 color = text.mid(1).toUInt(&isNumber, 16);
        return isNumber ? std::optional(color) : std::nullopt;
    }
    const QStringList parts = text.split(u',');
    if (parts.size() < 3 || parts.size() > 4)
        return std::nullopt;
    quint32 color = 0;
    for (int index = 0; index < 3; ++index) {
        const uint part = parts[index].trimmed().toUInt(&isNumber);
        if (!isNumber || part > 255)
            return std::nullopt;
        color = color << 8 | part;
    }
    return color;
}

bool isDark(quint32 color) {
    const quint32 sum = 299 * (color >> 16 & 0xFF) + 587 * (color >> 8 & 0xFF) + 114 * (color & 0xFF);
    return sum < 128'000;
}

QByteArray textOf(const QString& path) {
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.read(longestFile) : QByteArray();
}

} // namespace

KdeGlobals::KdeGlobals(QString folder, FolderWatching& folders, std::function<void()> onChanged)
    : m_file(folder + QStringLiteral("/kdeglobals"))
    , m_onChanged(std::move(onChanged))
    , m_watch(folders.watch({std::move(folder)}, [this] { read(); })) {
    read();
}

KdeGlobals::~KdeGlobals() = default;

QCoro::Task<void> KdeGlobals::read() {
    const std::weak_ptr<bool> life = m_life;
    const quint64 number = ++m_readings;
    auto reading = runDetached([file = m_file] { return textOf(file); }, readingLimit);
    const std::optional<QByteArray> text = co_await reading;
    // Readings run on threads of their own, so an earlier one may end last.
    if (life.expired() || number != m_readings || !text)
        co_return;
    const SaidLook said = lookOf(*text);
    if (std::exchange(m_said, said) != said)
        m_onChanged();
}

SaidLook KdeGlobals::lookOf(const QByteArray& text) {
    const QHash<QString, QString> entries = entriesOf(text);
    const auto value = [&entries](const char* name) { return entries.value(QString::fromLatin1(name)); };
    SaidLook said;
    if (const auto window = colorOf(value("Colors:Window/BackgroundNormal")))
        said.isDark = isDark(*window);
    said.accent = colorOf(value("General/AccentColor"));
    if (!said.accent)
        said.accent = colorOf(value("Colors:Selection/BackgroundNormal"));
    bool isNumber = false;
    const double duration = value("KDE/AnimationDurationFactor").toDouble(&isNumber);
    if (isNumber)
        said.reducesMotion = duration <= 0;
    // "Noto Sans,12,-1,5,50,0,0,0,0,0"
    const double points = value("General/font").section(u',', 1, 1).toDouble(&isNumber);
    if (isNumber)
        said.textScale = textScaleOf(points);
    return said;
}

} // namespace vellumry
