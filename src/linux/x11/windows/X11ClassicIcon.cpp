// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11ClassicIcon.h"

#include "foundation/Logging.h"
#include "linux/x11/windows/XErrorTrap.h"
#include "linux/x11/windows/XWindowProperties.h"

#include <QPainter>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <array>
#include <memory>

namespace vellumry {

namespace {

constexpr int usualSide = 24;
constexpr long requestDock = 0;
constexpr unsigned long isMappedFlag = 1;

/// The visual of that number, where it has 32 bits, as a tray with a translucent panel names it.
std::optional<XVisualInfo> translucentVisual(Display* display, unsigned long number) {
    XVisualInfo wanted{};
    wanted.visualid = number;
    int count = 0;
    const std::unique_ptr<XVisualInfo, int (*)(void*)> found(XGetVisualInfo(display, VisualIDMask, &wanted, &count),
                                                             &XFree);
    if (!found || count == 0 || found->depth != 32)
        return std::nullopt;
    return *found;
}

} // namespace

X11ClassicIcon::X11ClassicIcon(std::shared_ptr<XlibConnection> connection, Draw draw)
    : m_connection(std::move(connection))
    , m_draw(std::move(draw))
    , m_selection(m_connection->atom(
          QByteArray("_NET_SYSTEM_TRAY_S" + QByteArray::number(m_connection->screen())).constData())) {
    connect(m_connection.get(), &XlibConnection::eventArrived, this, &X11ClassicIcon::handleEvent);
    // A tray that comes says so on the root window.
    m_connection->listen(m_connection->root(), StructureNotifyMask);
}

X11ClassicIcon::~X11ClassicIcon() {
    leave();
    m_connection->ignore(m_connection->root(), StructureNotifyMask);
}

void X11ClassicIcon::setWanted(bool isWanted) {
    if (isWanted == m_isWanted)
        return;
    m_isWanted = isWanted;
    if (isWanted)
        lookForTray();
    else
        leave();
}

void X11ClassicIcon::lookForTray() {
    if (!m_isWanted || m_window != 0)
        return;
    const XWindow tray = XGetSelectionOwner(m_connection->display(), m_selection);
    if (tray == 0)
        return;
    m_tray = tray;
    m_connection->listen(m_tray, StructureNotifyMask);
    // It may have gone before anybody listened.
    if (XGetSelectionOwner(m_connection->display(), m_selection) != m_tray) {
        leave();
        return;
    }
    makeWindow();
    askToBeTaken();
}

void X11ClassicIcon::makeWindow() {
    Display* display = m_connection->display();
    const auto numbers = windowproperties::numbers(*m_connection, m_tray, "_NET_SYSTEM_TRAY_VISUAL");
    const auto visual = numbers.empty() ? std::nullopt : translucentVisual(display, numbers.front());
    XSetWindowAttributes attributes{};
    attributes.event_mask = ExposureMask | StructureNotifyMask | ButtonReleaseMask;
    unsigned long mask = CWEventMask;
    m_isTranslucent = visual.has_value();
    m_visual = visual ? visual->visual : DefaultVisual(display, m_connection->screen());
    m_depth = visual ? visual->depth : DefaultDepth(display, m_connection->screen());
    if (visual) {
        m_colours = XCreateColormap(display, m_connection->root(), visual->visual, AllocNone);
        attributes.colormap = m_colours;
        mask |= CWColormap | CWBackPixel | CWBorderPixel;
    } else {
        attributes.background_pixmap = ParentRelative;
        mask |= CWBackPixmap;
    }
    m_window = XCreateWindow(display, m_connection->root(), 0, 0, usualSide, usualSide, 0, m_depth, InputOutput,
                             static_cast<Visual*>(m_visual), mask, &attributes);
    XStoreName(display, m_window, "Vellumry icon");
    std::array<char, 9> name{"vellumry"};
    std::array<char, 9> className{"Vellumry"};
    XClassHint hint{name.data(), className.data()};
    XSetClassHint(display, m_window, &hint);
    XSizeHints size{};
    size.flags = PMinSize;
    size.min_width = usualSide;
    size.min_height = usualSide;
    XSetWMNormalHints(display, m_window, &size);
    const XAtom info = m_connection->atom("_XEMBED_INFO");
    const std::array<unsigned long, 2> version{0, isMappedFlag};
    XChangeProperty(display, m_window, info, info, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(version.data()), static_cast<int>(version.size()));
}

void X11ClassicIcon::askToBeTaken() {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = m_tray;
    event.xclient.message_type = m_connection->atom("_NET_SYSTEM_TRAY_OPCODE");
    event.xclient.format = 32;
    event.xclient.data.l[0] = CurrentTime;
    event.xclient.data.l[1] = requestDock;
    event.xclient.data.l[2] = static_cast<long>(m_window);
    const XErrorTrap trap(m_connection->display());
    XSendEvent(m_connection->display(), m_tray, False, NoEventMask, &event);
}

/// Takes the window away; the tray is looked for anew by the next that comes.
void X11ClassicIcon::leave() {
    Display* display = m_connection->display();
    if (m_tray != 0)
        m_connection->ignore(std::exchange(m_tray, 0), StructureNotifyMask);
    if (m_window != 0) {
        const XErrorTrap trap(display);
        XDestroyWindow(display, std::exchange(m_window, 0));
    }
    if (m_colours != 0)
        XFreeColormap(display, std::exchange(m_colours, 0));
    m_connection->flush();
    setShown(false);
}

void X11ClassicIcon::handleEvent(XEvent* event) {
    if (event->type == ClientMessage && event->xclient.window == m_connection->root() &&
        event->xclient.message_type == m_connection->atom("MANAGER") &&
        static_cast<XAtom>(event->xclient.data.l[1]) == m_selection) {
        // One that takes the place of another.
        leave();
        lookForTray();
    } else if (m_tray != 0 && event->type == DestroyNotify && event->xdestroywindow.window == m_tray) {
        leave();
        lookForTray();
    } else if (m_window != 0 && event->xany.window == m_window) {
        handleOwn(*event);
    }
}

void X11ClassicIcon::handleOwn(const XEvent& event) {
    switch (event.type) {
    case ReparentNotify:
        setShown(event.xreparent.parent != m_connection->root());
        if (m_isShown) {
            // A tray may leave it to us to be seen.
            const XErrorTrap trap(m_connection->display());
            XMapWindow(m_connection->display(), m_window);
        }
        break;
    case Expose:
        if (event.xexpose.count == 0)
            paint();
        break;
    case ConfigureNotify:
        paint();
        break;
    case ButtonRelease:
        // The wheel is a row of buttons too.
        if (event.xbutton.button <= Button3)
            onClicked();
        break;
    case DestroyNotify:
        m_window = 0;
        leave();
        break;
    default:
        break;
    }
}

/// What is behind the mark: the panel, where windows are not translucent.
QImage X11ClassicIcon::ground(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (m_isTranslucent)
        return image;
    Display* display = m_connection->display();
    XErrorTrap trap(display);
    const std::unique_ptr<XImage, void (*)(XImage*)> seen(XGetImage(display, m_window, 0, 0,
                                                                    static_cast<unsigned>(width),
                                                                    static_cast<unsigned>(height), AllPlanes, ZPixmap),
                                                          [](XImage* of) {
                                                              if (of)
                                                                  XDestroyImage(of);
                                                          });
    for (int y = 0; seen && y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, 0xff000000U | static_cast<QRgb>(XGetPixel(seen.get(), x, y)));
    }
    return image;
}

void X11ClassicIcon::paint() {
    Display* display = m_connection->display();
    XErrorTrap trap(display);
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display, m_window, &attributes) == 0 || attributes.width < 1 || attributes.height < 1)
        return;
    XClearWindow(display, m_window);
    QImage image = ground(attributes.width, attributes.height);
    const int side = std::min(attributes.width, attributes.height);
    QPainter painter(&image);
    painter.drawImage((attributes.width - side) / 2, (attributes.height - side) / 2, m_draw(QSize(side, side)));
    painter.end();
    const std::unique_ptr<XImage, int (*)(void*)> pixels(
        XCreateImage(display, static_cast<Visual*>(m_visual), static_cast<unsigned>(m_depth), ZPixmap, 0,
                     reinterpret_cast<char*>(image.bits()), static_cast<unsigned>(image.width()),
                     static_cast<unsigned>(image.height()), 32, static_cast<int>(image.bytesPerLine())),
        &XFree);
    if (!pixels || pixels->bits_per_pixel != 32)
        return;
    const GC context = XCreateGC(display, m_window, 0, nullptr);
    XPutImage(display, m_window, context, pixels.get(), 0, 0, 0, 0, static_cast<unsigned>(image.width()),
              static_cast<unsigned>(image.height()));
    XFreeGC(display, context);
}

void X11ClassicIcon::setShown(bool isShown) {
    if (isShown == m_isShown)
        return;
    m_isShown = isShown;
    qCInfo(logging::process) << (isShown ? "the icon is in the X11 tray" : "the icon has left the X11 tray");
    onShownChanged();
}

} // namespace vellumry
