// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Where our shell extension and the program find each other on the session bus.
namespace vellumry::shell {

inline constexpr const char* service = "com.vellumry.GnomeShell";
inline constexpr const char* path = "/com/vellumry/GnomeShell";
/// The extension answers the owners of these two only, one for each of its interfaces.
inline constexpr const char* clipboardPeer = "com.vellumry.Vellumry.Clipboard";
inline constexpr const char* desktopPeer = "com.vellumry.Vellumry.Desktop";
inline constexpr const char* extension = "clipboard@vellumry.com";

} // namespace vellumry::shell
