# What the Wayland part is made of. VELLUMRY_WAYLAND is true where all of it is there: Debian 13 has it, Debian 12 lacks LayerShellQt for
# Qt 6 and the description of ext-data-control.

# vellumry_find_protocol(VARIABLE NAME PATTERN…): the description of a protocol, as a package of the distribution holds it.
function(vellumry_find_protocol variable name)
  file(GLOB found ${ARGN})
  if(found)
    list(SORT found COMPARE NATURAL ORDER DESCENDING)
    list(GET found 0 newest)
    set(${variable} ${newest} PARENT_SCOPE)
  else()
    set(VELLUMRY_WAYLAND_LACKS ${VELLUMRY_WAYLAND_LACKS} ${name} PARENT_SCOPE)
  endif()
endfunction()

set(VELLUMRY_WAYLAND_LACKS "")
pkg_check_modules(WAYLAND IMPORTED_TARGET wayland-client)
pkg_get_variable(WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)
find_program(WAYLAND_SCANNER wayland-scanner)
find_package(LayerShellQt 6 QUIET)
if(NOT WAYLAND_FOUND OR NOT WAYLAND_SCANNER)
  list(APPEND VELLUMRY_WAYLAND_LACKS libwayland)
endif()
if(NOT LayerShellQt_FOUND)
  list(APPEND VELLUMRY_WAYLAND_LACKS "LayerShellQt for Qt 6")
endif()
vellumry_find_protocol(EXT_DATA_CONTROL_XML ext-data-control ${WAYLAND_PROTOCOLS}/staging/ext-data-control/ext-data-control-v1.xml)
vellumry_find_protocol(EXT_IDLE_NOTIFY_XML ext-idle-notify ${WAYLAND_PROTOCOLS}/staging/ext-idle-notify/ext-idle-notify-v1.xml)
# No other package of Debian's holds these two.
set(crates /usr/share/cargo/registry)
vellumry_find_protocol(FOREIGN_TOPLEVEL_XML wlr-foreign-toplevel-management
                       ${crates}/wayland-protocols-wlr-*/wlr-protocols/unstable/wlr-foreign-toplevel-management-unstable-v1.xml)
vellumry_find_protocol(VIRTUAL_KEYBOARD_XML virtual-keyboard
                       ${crates}/wayland-protocols-misc-*/protocols/virtual-keyboard-unstable-v1.xml
                       ${crates}/wayland-protocols-misc-*/misc/virtual-keyboard-unstable-v1.xml)
set(plasma /usr/share/plasma-wayland-protocols)
vellumry_find_protocol(FAKE_INPUT_XML fake-input ${plasma}/fake-input.xml)
vellumry_find_protocol(PLASMA_WINDOWS_XML plasma-window-management ${plasma}/plasma-window-management.xml)

if(VELLUMRY_WAYLAND_LACKS)
  list(JOIN VELLUMRY_WAYLAND_LACKS ", " lacks)
  message(STATUS "Without Wayland (the program works on X11 and Xwayland): this system lacks ${lacks}")
  set(VELLUMRY_WAYLAND OFF)
else()
  set(VELLUMRY_WAYLAND ON)
endif()

# vellumry_wayland_protocol(LIBRARY NAME XML): client code for one protocol, as NAME-client-protocol.h, added to a library of C code.
function(vellumry_wayland_protocol library name xml)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/protocols)
  file(MAKE_DIRECTORY ${folder})
  set(header ${folder}/${name}-client-protocol.h)
  set(code ${folder}/${name}-protocol.c)
  add_custom_command(
    OUTPUT ${header} ${code}
    COMMAND ${WAYLAND_SCANNER} client-header ${xml} ${header}
    COMMAND ${WAYLAND_SCANNER} private-code ${xml} ${code}
    DEPENDS ${xml}
    VERBATIM)
  target_sources(${library} PRIVATE ${header} ${code})
  target_include_directories(${library} SYSTEM PUBLIC ${folder})
endfunction()
