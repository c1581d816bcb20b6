// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/tray/TrayPictures.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QList>

namespace vellumry {

/// "(sa(iiay)ss)": what is shown beside the icon while the pointer rests on it.
struct TrayToolTip {
    QString icon{};
    QList<TrayPixmap> pixmaps{};
    QString title{};
    QString text{};
};
QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& tip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& tip);

/// The program's icon for the desktop's panel: org.kde.StatusNotifierItem, as panels know it today (the draft of
/// freedesktop.org's Status Notifier Item 0.1 with KDE's names). It is a menu and nothing else, so it has no methods:
/// a panel that tries them on a click learns so, and opens the menu. Lives as long as the object it is attached to.
class StatusNotifierInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconThemePath READ iconThemePath CONSTANT)
    Q_PROPERTY(QString IconName READ iconName CONSTANT)
    Q_PROPERTY(QList<vellumry::TrayPixmap> IconPixmap READ iconPixmap CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(QString IconAccessibleDesc READ title CONSTANT)
    Q_PROPERTY(vellumry::TrayToolTip ToolTip READ toolTip CONSTANT)
    Q_PROPERTY(bool ItemIsMenu READ isMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)

public:
    /// What the panel is told about the icon. Without a name the pixmaps are all there is.
    struct Look {
        QString iconName{};
        QString iconThemePath{}; ///< the folder of an icon theme that has it; empty where all themes are looked for
        QList<TrayPixmap> pixmaps{};
    };

    StatusNotifierInterface(QObject* parent, Look look, QString menuPath);

    [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] QString id() const { return QStringLiteral("com.vellumry.Vellumry"); }
    [[nodiscard]] QString title() const { return QStringLiteral("Vellumry"); }
    /// Also while capture is paused: a passive icon is put out of sight.
    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
    [[nodiscard]] int windowId() const { return 0; }
    [[nodiscard]] QString iconThemePath() const { return m_look.iconThemePath; }
    [[nodiscard]] QString iconName() const { return m_look.iconName; }
    [[nodiscard]] QList<TrayPixmap> iconPixmap() const { return m_look.pixmaps; }
    [[nodiscard]] QString none() const { return {}; }
    [[nodiscard]] TrayToolTip toolTip() const { return {.title = title()}; }
    [[nodiscard]] bool isMenu() const { return true; }
    [[nodiscard]] QDBusObjectPath menu() const { return QDBusObjectPath(m_menuPath); }

Q_SIGNALS:
    // Declared because panels ask for them by name.
    void NewTitle();
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString& status);

private:
    Look m_look;
    QString m_menuPath;
};

} // namespace vellumry

Q_DECLARE_METATYPE(vellumry::TrayToolTip)
