// SPDX-License-Identifier: GPL-3.0-or-later
// The two interfaces of /com/vellumry/GnomeShell on the session bus. Each answers the owner of one bus name only.

/** For the owner of com.vellumry.Vellumry.Clipboard. */
export const CLIPBOARD_INTERFACE = `
<node>
  <interface name="com.vellumry.GnomeShell.Clipboard">
    <!-- Tells of the clipboard from now on. OwnerChanged for what is there comes before the answer. -->
    <method name="Follow"/>
    <!-- Has the owner write a type of the clipboard into a pipe, which is closed in the end, after ten seconds at the
         latest. Refused when the clipboard has changed since \`serial\`. -->
    <method name="Read">
      <arg name="serial" type="u" direction="in"/>
      <arg name="type" type="s" direction="in"/>
      <arg name="pipe" type="h" direction="in"/>
    </method>
    <!-- Makes the clipboard the caller's, with these types. Answered when it is. -->
    <method name="Own">
      <arg name="types" type="as" direction="in"/>
    </method>
    <!-- Empties the clipboard if it is the caller's, GNOME's own copy of it included. -->
    <method name="Disown"/>
    <!-- The pipe that a type is to be written into, after Wanted. -->
    <method name="Take">
      <arg name="request" type="u" direction="in"/>
      <arg name="pipe" type="h" direction="out"/>
    </method>
    <!-- Puts a text on the primary selection. -->
    <method name="OwnPrimary">
      <arg name="text" type="ay" direction="in"/>
    </method>
    <method name="DisownPrimary"/>
    <!-- Answers when all calls before it are done, and what came of them has been told. -->
    <method name="Sync"/>
    <!-- \`kind\`: 0 another program's, 1 the caller's, 2 what GNOME kept of a copy whose program has gone. Without types the
         clipboard is empty. -->
    <signal name="OwnerChanged">
      <arg name="serial" type="u"/>
      <arg name="types" type="as"/>
      <arg name="kind" type="u"/>
    </signal>
    <!-- A program wants a type of what the caller owns; \`isKeeper\`: GNOME itself does, which keeps a copy of what is new. -->
    <signal name="Wanted">
      <arg name="type" type="s"/>
      <arg name="request" type="u"/>
      <arg name="isKeeper" type="b"/>
    </signal>
    <!-- The clipboard cannot be owned any more, or again. -->
    <signal name="Lost"/>
  </interface>
</node>`;

/** For the owner of com.vellumry.Vellumry.Desktop. */
export const DESKTOP_INTERFACE = `
<node>
  <interface name="com.vellumry.GnomeShell.Desktop">
    <!-- Tells of the window that has the keyboard from now on; the first FocusChanged comes before the answer. -->
    <method name="Watch"/>
    <!-- Holds a key for the caller, whatever window has the keyboard; KeyPressed tells of it. False when another has it. -->
    <method name="GrabKey">
      <arg name="id" type="u" direction="in"/>
      <arg name="accelerator" type="s" direction="in"/>
      <arg name="isOurs" type="b" direction="out"/>
    </method>
    <method name="ReleaseKey">
      <arg name="id" type="u" direction="in"/>
    </method>
    <!-- Presses keys (evdev codes) one after the other and lets go of them in the other direction, once the user holds no
         modifier. -->
    <method name="PressKeys">
      <arg name="codes" type="au" direction="in"/>
    </method>
    <!-- Where the caller's window of that title stands, above all others, on every workspace: now, or when it comes. Without
         \`wantsKeyboard\` it never gets the keyboard. -->
    <method name="Place">
      <arg name="title" type="s" direction="in"/>
      <arg name="x" type="i" direction="in"/>
      <arg name="y" type="i" direction="in"/>
      <arg name="wantsKeyboard" type="b" direction="in"/>
    </method>
    <!-- The display that has the pointer, and its part that panels and docks leave free: x, y, width, height. -->
    <method name="PointerPlace">
      <arg name="frame" type="(iiii)" direction="out"/>
      <arg name="visible" type="(iiii)" direction="out"/>
    </method>
    <!-- \`window\` is 0 while none has the keyboard. -->
    <signal name="FocusChanged">
      <arg name="window" type="t"/>
      <arg name="application" type="s"/>
      <arg name="process" type="u"/>
    </signal>
    <signal name="WindowClosed">
      <arg name="window" type="t"/>
    </signal>
    <signal name="KeyPressed">
      <arg name="id" type="u"/>
    </signal>
  </interface>
</node>`;
