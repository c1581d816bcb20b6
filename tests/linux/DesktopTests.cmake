add_executable(second_copy SecondCopy.cpp)
vellumry_target_defaults(second_copy)
target_link_libraries(second_copy PRIVATE vellumry_linux)

vellumry_test(
  vellumry_desktop_tests
  SOURCES
    DBusSingleInstanceTest.cpp
    FileStatusOnDiskTest.cpp
    InotifyFolderWatchingTest.cpp
    KeychainKeyStoreTest.cpp
    MemoryReturnTest.cpp
    MountTableTest.cpp
    PasswordFocusTest.cpp
    PosixFileBookmarksTest.cpp
    PrivateBus.cpp
    PrivateBus.h
    ProcessHardeningTest.cpp
    ThemeSoundsTest.cpp
    TimerfdDateTimerTest.cpp
  LINKS vellumry_linux vellumry_capture)
add_library(fake_canberra MODULE FakeCanberra.cpp)
vellumry_target_defaults(fake_canberra)
add_dependencies(vellumry_desktop_tests second_copy fake_canberra)
target_compile_definitions(vellumry_desktop_tests PRIVATE VELLUMRY_SECOND_COPY="$<TARGET_FILE:second_copy>"
                                                          VELLUMRY_FAKE_CANBERRA="$<TARGET_FILE:fake_canberra>")
if(VELLUMRY_INSPECTABLE OR VELLUMRY_SANITIZE)
  target_compile_definitions(vellumry_desktop_tests PRIVATE VELLUMRY_INSPECTABLE)
endif()
