# The X11 pasteboard: a connection and a thread of its own.
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb xcb-xfixes)
target_link_libraries(vellumry_linux PRIVATE PkgConfig::XCB)
target_sources(
  vellumry_linux
  PRIVATE
    x11/FileList.cpp x11/FileList.h
    x11/OfferedContents.cpp x11/OfferedContents.h
    x11/PasteboardEngine.cpp x11/PasteboardEngine.h
    x11/PasteboardLimits.h
    x11/PasteboardThread.cpp x11/PasteboardThread.h
    x11/PendingResult.h
    x11/SelectionBytes.cpp x11/SelectionBytes.h
    x11/SelectionOffer.cpp x11/SelectionOffer.h
    x11/SelectionOwner.cpp x11/SelectionOwner.h
    x11/SelectionReader.cpp x11/SelectionReader.h
    x11/TargetCoding.cpp x11/TargetCoding.h
    x11/X11Pasteboard.cpp x11/X11Pasteboard.h
    x11/X11PasteboardReading.cpp x11/X11PasteboardReading.h
    x11/XcbBuffers.cpp x11/XcbBuffers.h
    x11/XcbConnection.cpp x11/XcbConnection.h)
