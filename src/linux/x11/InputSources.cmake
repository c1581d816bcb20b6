# Keys, focus and windows on X11, and the applications that windows belong to.
pkg_check_modules(X11_INPUT REQUIRED IMPORTED_TARGET x11 xi xtst xfixes xext xcb xkbcommon)

target_sources(
  vellumry_linux
  PRIVATE
    desktop/ApplicationIdentifiers.cpp
    desktop/ApplicationIdentifiers.h
    desktop/DesktopEntries.cpp
    desktop/DesktopEntries.h
    desktop/DesktopEntryIndex.cpp
    desktop/DesktopEntryIndex.h
    x11/InjectedPresses.cpp
    x11/InjectedPresses.h
    x11/KeyCodes.cpp
    x11/KeyCodes.h
    x11/KeyPositions.cpp
    x11/KeyPositions.h
    x11/TerminalApps.cpp
    x11/TerminalApps.h
    x11/X11Focus.cpp
    x11/X11Focus.h
    x11/X11FrontmostApplication.cpp
    x11/X11FrontmostApplication.h
    x11/X11HotKeys.cpp
    x11/X11HotKeys.h
    x11/X11KeyboardLayout.cpp
    x11/X11KeyboardLayout.h
    x11/X11Keymap.cpp
    x11/X11Keymap.h
    x11/X11PanelSurface.cpp
    x11/X11PanelSurface.h
    x11/X11PassiveGrabs.cpp
    x11/X11PassiveGrabs.h
    x11/X11PasteKeyGrab.cpp
    x11/X11PasteKeyGrab.h
    x11/X11PasteKeys.cpp
    x11/X11PasteKeys.h
    x11/X11PasteTarget.cpp
    x11/X11PasteTarget.h
    x11/X11Screens.cpp
    x11/X11Screens.h
    x11/XErrorTrap.cpp
    x11/XErrorTrap.h
    x11/XWindowProperties.cpp
    x11/XWindowProperties.h
    x11/XSettings.cpp
    x11/XSettings.h
    x11/XlibConnection.cpp
    x11/XlibConnection.h)

target_link_libraries(
  vellumry_linux
  PUBLIC Qt6::Gui QCoro6::Core
  PRIVATE PkgConfig::X11_INPUT)
