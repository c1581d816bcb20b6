# The X11 pasteboard: a connection and a thread of its own.
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-xfixes)
target_link_libraries(vellumry_linux PRIVATE PkgConfig::XCB)
