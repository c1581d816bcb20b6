# The desktop's services: keyring, bus, files, and the conversation with the reader process.
pkg_check_modules(LIBSECRET REQUIRED IMPORTED_TARGET libsecret-1)

option(VELLUMRY_INSPECTABLE "Leave the process open to debuggers of the same user" OFF)

target_sources(
  vellumry_linux
  PRIVATE
    desktop/AccessibilityBus.cpp desktop/AccessibilityBus.h
    desktop/ApplicationInterface.cpp desktop/ApplicationInterface.h
    desktop/CallDeadline.cpp desktop/CallDeadline.h
    desktop/DBusSingleInstance.cpp desktop/DBusSingleInstance.h
    desktop/FileIdentity.cpp desktop/FileIdentity.h
    desktop/FileSearch.cpp desktop/FileSearch.h
    desktop/GObjectPointer.h
    desktop/InotifyFolderWatching.cpp desktop/InotifyFolderWatching.h
    desktop/InotifyThread.cpp desktop/InotifyThread.h
    desktop/InstanceLock.cpp desktop/InstanceLock.h
    desktop/KeychainKeyStore.cpp desktop/KeychainKeyStore.h
    desktop/MemoryReturn.cpp desktop/MemoryReturn.h
    desktop/MountTable.cpp desktop/MountTable.h
    desktop/PasswordFocus.cpp desktop/PasswordFocus.h
    desktop/PosixFileBookmarks.cpp desktop/PosixFileBookmarks.h
    desktop/PrivateMainContext.h
    desktop/ProcessHardening.cpp desktop/ProcessHardening.h
    desktop/ReaderImageCodec.cpp desktop/ReaderImageCodec.h
    desktop/ReaderProcess.cpp desktop/ReaderProcess.h
    desktop/ReaderTextReader.cpp desktop/ReaderTextReader.h
    desktop/ReaderWorker.cpp desktop/ReaderWorker.h
    desktop/SecretServiceSession.cpp desktop/SecretServiceSession.h
    desktop/ThemeSounds.cpp desktop/ThemeSounds.h
    desktop/TimerfdDateTimer.cpp desktop/TimerfdDateTimer.h
    desktop/TrashFolders.cpp desktop/TrashFolders.h)
target_link_libraries(
  vellumry_linux
  PUBLIC Qt6::DBus vellumry_reader_protocol
  PRIVATE PkgConfig::LIBSECRET)

# Programs link it as a whole. A sanitizer brings an allocator of its own, which must see every block.
add_library(vellumry_wiping_free INTERFACE)
if(NOT VELLUMRY_SANITIZE)
  add_library(vellumry_wiping_free_object OBJECT desktop/WipingFree.cpp)
  vellumry_target_defaults(vellumry_wiping_free_object)
  target_link_libraries(vellumry_wiping_free INTERFACE $<TARGET_OBJECTS:vellumry_wiping_free_object>)
endif()

if(VELLUMRY_INSPECTABLE OR VELLUMRY_SANITIZE)
  set_source_files_properties(desktop/ProcessHardening.cpp PROPERTIES COMPILE_DEFINITIONS VELLUMRY_INSPECTABLE)
endif()
