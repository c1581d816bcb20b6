// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The functions that Qt generates to register the C++ types of a QML module. Nothing calls them, so a linker leaves
// them out of a static library unless they are named: code that shows a view of a module keeps its types.

void qml_register_types_Vellumry_Views();
void qml_register_types_Vellumry_Panel();
void qml_register_types_Vellumry_Onboarding();
void qml_register_types_Vellumry_Settings();
void qml_register_types_Vellumry_Shell();
void qml_register_types_Vellumry_Transfer();

namespace vellumry {

/// Keeps the registration `module` in the program.
inline void keepQmlModule(void (*module)()) {
    [[maybe_unused]] static void (*volatile kept)() = nullptr;
    kept = module;
}

} // namespace vellumry
