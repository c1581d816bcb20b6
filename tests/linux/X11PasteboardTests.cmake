pkg_check_modules(X11_PASTEBOARD_TESTS REQUIRED IMPORTED_TARGET xcb)

vellumry_test(
  vellumry_x11_tests
  SOURCES
    HostileOwner.cpp
    HostileOwner.h
    HostileOwnerTest.cpp
    RecordedOffersTest.cpp
    X11PasteboardCodingTest.cpp
    X11PasteboardReadTest.cpp
    X11PasteboardWorld.cpp
    X11PasteboardWorld.h
    X11PasteboardWriteTest.cpp
    X11SnapshotTest.cpp
    XPeer.cpp
    XPeer.h
  LINKS vellumry_linux vellumry_capture PkgConfig::X11_PASTEBOARD_TESTS)
target_compile_definitions(vellumry_x11_tests
                           PRIVATE VELLUMRY_RECORDED_OFFERS="${PROJECT_SOURCE_DIR}/tests/capture/fixtures")
