// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <vector>

typedef struct _XDisplay Display;

namespace vellumry {

/// Another program on the display, as far as our program can tell: a connection of its own, perhaps a window, perhaps a
/// hand on the keyboard. Shares no code with what is tested.
class XClient {
public:
    /// A key that the window was sent.
    struct Key {
        bool isPress = false;
        unsigned long symbol = 0;
        unsigned int state = 0;
        bool operator==(const Key&) const = default;
    };

    XClient();
    ~XClient();
    XClient(const XClient&) = delete;
    XClient& operator=(const XClient&) = delete;

    /// Shows a window and waits until it has the keyboard; false when it did not get it.
    [[nodiscard]] bool open(const char* instance, const char* className, long process = 0);
    void close();
    /// Takes the window off the screen, as a program does that goes on in the tray.
    void hide();
    /// Asks the window manager to put the window there.
    void moveTo(int x, int y);
    /// Takes the keyboard as a click on the window would.
    void focus();
    [[nodiscard]] bool hasFocus() const;
    [[nodiscard]] unsigned long window() const { return m_window; }
    [[nodiscard]] Display* display() const { return m_display; }
    /// The keys that came since the last call.
    [[nodiscard]] std::vector<Key> takeKeys();

    /// A real key of the keyboard, by its evdev code.
    void press(unsigned int evdevCode);
    void release(unsigned int evdevCode);
    /// Presses all in order, releases them in reverse.
    void chord(const std::vector<unsigned int>& evdevCodes);
    void movePointer(int x, int y);
    void click(unsigned int button);
    /// The child of the root that a click would hit.
    [[nodiscard]] unsigned long windowUnderPointer() const;

    /// True when the whole keyboard could be taken; `ungrabKeyboard` gives it back.
    [[nodiscard]] bool grabKeyboard();
    void ungrabKeyboard();
    /// A passive core grab; false when it is taken.
    [[nodiscard]] bool grabKey(unsigned int evdevCode, unsigned int mask);
    void own(const char* selection);
    void disown(const char* selection);
    void setRootProperty(const char* name, unsigned long value);

private:
    Display* m_display;
    unsigned long m_window = 0;
};

} // namespace vellumry
