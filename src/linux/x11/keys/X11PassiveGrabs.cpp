// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PassiveGrabs.h"

#include "linux/x11/windows/XErrorTrap.h"

#include <array>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>

namespace vellumry::passivegrabs {

namespace {

std::vector<XIGrabModifiers> grabModifiers(const Combination& combination) {
    std::vector<XIGrabModifiers> modifiers;
    for (const unsigned int lock : combination.locks)
        modifiers.push_back({int(combination.mask | lock), 0});
    return modifiers;
}

/// The server marks its XTEST devices with a property of that name.
bool isTestDevice(XlibConnection& connection, int device) {
    XAtom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    XErrorTrap trap(connection.display());
    const int status = XIGetProperty(connection.display(), device, connection.atom("XTEST Device"), 0, 1, False,
                                     XA_INTEGER, &type, &format, &count, &rest, &data);
    const bool isMarked = status == Success && format == 8 && count == 1 && data[0] != 0;
    if (data != nullptr)
        XFree(data);
    return isMarked;
}

} // namespace

int masterKeyboard(XlibConnection& connection) {
    // A client has a pointer of its own only where it was given one; all others go by the first.
    int pointer = 0;
    const bool isAssigned = XIGetClientPointer(connection.display(), 0, &pointer) && pointer != 0;
    int keyboard = XIAllMasterDevices;
    int count = 0;
    XIDeviceInfo* devices = XIQueryDevice(connection.display(), XIAllMasterDevices, &count);
    for (int index = count - 1; devices != nullptr && index >= 0; --index) {
        const XIDeviceInfo& device = devices[index];
        if (device.use == XIMasterKeyboard && (!isAssigned || device.attachment == pointer))
            keyboard = device.deviceid;
    }
    if (devices != nullptr)
        XIFreeDeviceInfo(devices);
    return keyboard;
}

std::vector<int> testKeyboards(XlibConnection& connection) {
    std::vector<int> result;
    int count = 0;
    XIDeviceInfo* devices = XIQueryDevice(connection.display(), XIAllDevices, &count);
    for (int index = 0; devices != nullptr && index < count; ++index) {
        if (devices[index].use == XISlaveKeyboard && isTestDevice(connection, devices[index].deviceid))
            result.push_back(devices[index].deviceid);
    }
    if (devices != nullptr)
        XIFreeDeviceInfo(devices);
    return result;
}

bool isFreeOfCoreGrabs(XlibConnection& connection, const Combination& combination) {
    Display* display = connection.display();
    bool isFree = false;
    {
        XErrorTrap trap(display);
        for (const unsigned int lock : combination.locks)
            XGrabKey(display, int(combination.keycode), combination.mask | lock, connection.root(), False,
                     GrabModeAsync, GrabModeAsync);
        isFree = trap.finish() == 0;
    }
    for (const unsigned int lock : combination.locks)
        XUngrabKey(display, int(combination.keycode), combination.mask | lock, connection.root());
    // Those that were granted are gone when the refusal is told.
    if (!isFree)
        XSync(display, False);
    return isFree;
}

bool hold(XlibConnection& connection, int keyboard, const Combination& combination, Mode mode) {
    auto modifiers = grabModifiers(combination);
    std::array<unsigned char, XIMaskLen(XI_LASTEVENT)> bits{};
    XISetMask(bits.data(), XI_KeyPress);
    XISetMask(bits.data(), XI_KeyRelease);
    XIEventMask mask{keyboard, int(bits.size()), bits.data()};
    XErrorTrap trap(connection.display());
    const int failures = XIGrabKeycode(connection.display(), keyboard, int(combination.keycode), connection.root(),
                                       mode == Mode::hold ? XIGrabModeSync : XIGrabModeAsync, XIGrabModeAsync, False,
                                       &mask, int(modifiers.size()), modifiers.data());
    if (failures == 0 && trap.finish() == 0)
        return true;
    letGo(connection, keyboard, combination);
    return false;
}

void letGo(XlibConnection& connection, int keyboard, const Combination& combination) {
    auto modifiers = grabModifiers(combination);
    XErrorTrap trap(connection.display());
    XIUngrabKeycode(connection.display(), keyboard, int(combination.keycode), connection.root(), int(modifiers.size()),
                    modifiers.data());
}

} // namespace vellumry::passivegrabs
