pkg_check_modules(X11_INPUT_TESTS REQUIRED IMPORTED_TARGET x11 xi xtst xfixes)

vellumry_test(
  vellumry_x11_input_tests
  SOURCES
    ApplicationIdentifiersTest.cpp
    DesktopEntriesTest.cpp
    KeyCodesTest.cpp
    TerminalAppsTest.cpp
    X11FrontmostApplicationTest.cpp
    X11HotKeysTest.cpp
    X11InputTestMain.cpp
    X11KeyboardLayoutTest.cpp
    X11PanelSurfaceTest.cpp
    X11PasteKeyGrabTest.cpp
    X11PasteKeysTest.cpp
    X11PasteKeysWorld.h
    X11PasteTargetTest.cpp
    X11ScreensTest.cpp
    XClient.cpp
    XClient.h
    XSession.cpp
    XSettingsTest.cpp
    XSession.h
  LINKS vellumry_linux PkgConfig::X11_INPUT_TESTS)
