// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

typedef struct _XDisplay Display;

namespace vellumry {

/// While one lives, errors that the X server reports for requests made on `display` by this thread are kept here.
/// Windows of other programs vanish at any time, so a request about one may always fail. Outside of a trap errors are
/// ignored: Xlib's own answer would be to end the process. Traps nest; the innermost of a display counts.
class XErrorTrap {
public:
    explicit XErrorTrap(Display* display);
    /// Waits for the server's verdict on what was asked so far.
    ~XErrorTrap();
    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

    /// Waits for the server's verdict. The first error's code, 0 when all went well.
    [[nodiscard]] int finish();

    /// Puts the process-wide handler in place; any number of times.
    static void install();

private:
    void settle();
    friend int handleXError(Display* display, unsigned long serial, int code);
    Display* m_display;
    XErrorTrap* m_outer;
    unsigned long m_firstSerial;
    int m_error = 0;
};

} // namespace vellumry
