vellumry_test(
  vellumry_panel_model_tests
  SOURCES
    PanelModelActionsTest.cpp
    PanelModelCalendarTest.cpp
    PanelModelCommandsTest.cpp
    PanelModelExcerptTest.cpp
    PanelModelListTest.cpp
    PanelModelSelectionTest.cpp
    PanelModelShowTest.cpp
    PanelModelWorld.h
  LINKS vellumry_panel Qt6::Test)
