// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XSettingsLook.h"

#include "XClient.h"
#include "XSession.h"
#include "support/Eventually.h"

#include <QtEndian>
#include <gtest/gtest.h>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace vellumry {

namespace {

QByteArray padded(QByteArray text) {
    return text.append(QByteArray(-text.size() & 3, '\0'));
}

template <typename Number>
QByteArray bytes(Number value) {
    const Number little = qToLittleEndian(value);
    return {reinterpret_cast<const char*>(&little), sizeof little};
}

QByteArray text(const QByteArray& name, const QByteArray& value) {
    return QByteArray("\1\0", 2) + bytes(quint16(name.size())) + padded(name) + bytes(quint32(0)) +
           bytes(quint32(value.size())) + padded(value);
}

QByteArray number(const QByteArray& name, qint32 value) {
    return QByteArray("\0\0", 2) + bytes(quint16(name.size())) + padded(name) + bytes(quint32(0)) + bytes(value);
}

/// A settings manager of the session.
class Manager {
public:
    Manager() { m_window = XCreateSimpleWindow(display(), DefaultRootWindow(display()), -10, -10, 1, 1, 0, 0, 0); }

    void tell(const QList<QByteArray>& settings) {
        const QByteArray property =
            QByteArray("\0\0\0\0", 4) + bytes(quint32(++m_serial)) + bytes(quint32(settings.size())) + settings.join();
        const Atom name = XInternAtom(display(), "_XSETTINGS_SETTINGS", 0);
        XChangeProperty(display(), m_window, name, name, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(property.constData()), int(property.size()));
        XSync(display(), 0);
    }
    void begin() {
        const Atom selection = XInternAtom(display(), "_XSETTINGS_S0", 0);
        XSetSelectionOwner(display(), selection, m_window, CurrentTime);
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = DefaultRootWindow(display());
        event.xclient.message_type = XInternAtom(display(), "MANAGER", 0);
        event.xclient.format = 32;
        event.xclient.data.l[1] = long(selection);
        event.xclient.data.l[2] = long(m_window);
        XSendEvent(display(), DefaultRootWindow(display()), 0, StructureNotifyMask, &event);
        XSync(display(), 0);
    }
    void end() {
        XDestroyWindow(display(), m_window);
        XSync(display(), 0);
    }

private:
    [[nodiscard]] Display* display() const { return m_client.display(); }

    XClient m_client;
    unsigned long m_window = 0;
    quint32 m_serial = 0;
};

} // namespace

TEST(XSettingsLook, TellsTheThemeTheFontAndMotionAndFollowsThem) {
    Manager manager;
    manager.tell(
        {text("Net/ThemeName", "Greybird-dark"), text("Gtk/FontName", "Sans 22"), number("Gtk/EnableAnimations", 0)});
    manager.begin();
    SaidLook said;
    const XSettingsLook look(XlibConnection::create().value(), [&said](const SaidLook& now) { said = now; });
    EXPECT_EQ(said.isDark, true) << "known at once";
    EXPECT_EQ(said.textScale, 2.0);
    EXPECT_EQ(said.reducesMotion, true);
    manager.tell({text("Net/ThemeName", "HighContrast"), number("Gtk/EnableAnimations", 1)});
    EXPECT_TRUE(eventually([&] { return said.isHighContrast == true; }));
    EXPECT_EQ(said.isDark, false);
    EXPECT_EQ(said.reducesMotion, false);
    EXPECT_EQ(said.textScale, std::nullopt);
    manager.end();
    EXPECT_TRUE(eventually([&] { return said == SaidLook(); }));
}

TEST(XSettingsLook, AManagerThatComesLaterIsHeard) {
    SaidLook said;
    const XSettingsLook look(XlibConnection::create().value(), [&said](const SaidLook& now) { said = now; });
    EXPECT_EQ(said, SaidLook());
    Manager manager;
    manager.tell({text("Net/ThemeName", "Adwaita-dark")});
    manager.begin();
    EXPECT_TRUE(eventually([&] { return said.isDark == true; }));
}

} // namespace vellumry
