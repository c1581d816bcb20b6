# The window, its views and what they are fed with.
target_sources(
  vellumry_panel
  PRIVATE
    FieldPasteboard.cpp FieldPasteboard.h
    KeyTranslation.cpp KeyTranslation.h
    PanelController.cpp PanelController.h
    PanelFacade.cpp PanelFacade.h
    PanelListModel.cpp PanelListModel.h
    PanelPlacement.cpp PanelPlacement.h
    RowAppearance.cpp RowAppearance.h
    SymbolProvider.cpp SymbolProvider.h
    ThumbnailProvider.cpp ThumbnailProvider.h
    ViewEngine.cpp ViewEngine.h)
target_link_libraries(vellumry_panel PUBLIC Qt6::Quick PRIVATE Qt6::Svg)

set_source_files_properties(Look.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
qt_add_qml_module(
  vellumry_panel
  URI Vellumry.Panel
  VERSION 1.0
  RESOURCE_PREFIX /vellumry
  OUTPUT_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/Vellumry/Panel
  NO_PLUGIN
  QML_FILES
    ClipList.qml
    ClipRow.qml
    EmptyState.qml
    FilterChips.qml
    FooterBar.qml
    HelpBubble.qml
    HoverRest.qml
    Keycap.qml
    Look.qml
    PanelView.qml
    Pill.qml
    RowIcon.qml
    SearchField.qml
    StackButton.qml
    Symbol.qml
    TransformList.qml)

qt_add_resources(
  vellumry_panel vellumry_symbols
  PREFIX /vellumry
  FILES
    symbols/arrow.up.arrow.down.svg
    symbols/camera.viewfinder.svg
    symbols/checkmark.circle.fill.svg
    symbols/chevron.left.forwardslash.chevron.right.svg
    symbols/doc.on.clipboard.fill.svg
    symbols/doc.on.doc.svg
    symbols/doc.richtext.svg
    symbols/doc.svg
    symbols/exclamationmark.triangle.fill.svg
    symbols/externaldrive.badge.exclamationmark.svg
    symbols/eye.slash.fill.svg
    symbols/folder.badge.questionmark.svg
    symbols/hand.raised.fill.svg
    symbols/link.svg
    symbols/lock.doc.fill.svg
    symbols/lock.doc.svg
    symbols/lock.fill.svg
    symbols/magnifyingglass.svg
    symbols/paintpalette.svg
    symbols/photo.on.rectangle.svg
    symbols/photo.svg
    symbols/pin.fill.svg
    symbols/pin.svg
    symbols/square.stack.3d.up.svg
    symbols/square.stack.fill.svg
    symbols/text.alignleft.svg
    symbols/textformat.svg
    symbols/trash.fill.svg
    symbols/xmark.circle.fill.svg
    symbols/xmark.svg)
# The code that Qt generates from QML shadows its own parameters.
target_compile_options(vellumry_panel PRIVATE -Wno-shadow)
