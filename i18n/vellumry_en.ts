<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Vellumry</name>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>So search can find it by its words. The system may ask you to allow access to this folder once.</translation>
    </message>
    <message>
        <source>⌘M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>en</source>
        <translation>en</translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n clip · encrypted on this computer</numerusform>
            <numerusform>%n clips · encrypted on this computer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n clip · Not saved: kept until you quit</numerusform>
            <numerusform>%n clips · Not saved: kept until you quit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>Pin %n Clip</numerusform>
            <numerusform>Pin %n Clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>Unpin %n Clip</numerusform>
            <numerusform>Unpin %n Clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>Delete %n Clip</numerusform>
            <numerusform>Delete %n Clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>%n clip deleted</numerusform>
            <numerusform>%n clips deleted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>%n clip selected</numerusform>
            <numerusform>%n clips selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>Pin all %n</numerusform>
            <numerusform>Pin all %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>Delete %n</numerusform>
            <numerusform>Delete %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%n character</numerusform>
            <numerusform>%n characters</numerusform>
        </translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>Your computer is almost full. Vellumry saves text only for now</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>To paste files from %1, give Vellumry permission to read that folder</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>Paste Stack couldn't start. Another program keeps Ctrl+V to itself</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>This field blocks pasting from apps. Press Ctrl+V</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>Copied. Press Ctrl+V to paste</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Shift+</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>Nothing pinned at Super+Alt+%1 yet. Pin a clip with Ctrl+P</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>Press %1 anytime to open Vellumry.</translation>
    </message>
    <message>
        <source>↩</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>⇥</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>⌫</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>↘</source>
        <translation>End</translation>
    </message>
    <message>
        <source>⇞</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>⇟</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>⇧↩</source>
        <translation>Shift+Enter</translation>
    </message>
    <message>
        <source>⌘⌫</source>
        <translation>Ctrl+Del</translation>
    </message>
    <message>
        <source>⌘T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>⌘P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>⌘C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>Paste Stack: copy several things, every Ctrl+V pastes the next (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>Stop Paste Stack (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>Transform (Ctrl+T)</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Show in Files</translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>Pin (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>Unpin (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>Unpin all (Ctrl+P)</translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Delete (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>Paste them one by one: every Ctrl+V pastes the next (Paste Stack)</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry can't open that file. Give it permission to read the folder</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry can't open your screenshots folder. Give it permission to read the folder</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>Vellumry can't open your screenshots folder. Give it permission to read the folder.</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>Vellumry can't reach your keyring</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>Screenshots you save are added to Vellumry too, and their text becomes searchable.</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>Your desktop didn't allow it. Check its settings for programs that start at login.</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>Off = Vellumry copies and you press Ctrl+V.</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>Allowed to press keys</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>Needs your OK to press keys</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>Screenshots you save are added too, and their text becomes searchable. Vellumry must be able to read the folder they're saved in.</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>Paste pinned clips with Super+Alt+1 … Super+Alt+9</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>Vellumry updates itself while you're away from your computer. Off = it asks first.</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>Your clips never leave this computer.</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>Permission to press keys</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>Allow Vellumry to press keys when your desktop asks. This screen updates by itself.</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Ask for permission</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>Not now, I'll press Ctrl+V myself</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>Vellumry only presses Ctrl+V for you. It never reads your screen or what you type.</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>Files you copy in your file manager</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>Optional. Vellumry tries Desktop, Documents and Downloads once.</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>Vellumry lives in your system tray. Press the shortcut anytime.</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>Off: you press Ctrl+V</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>Copy what you need, then Ctrl+V</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Super+Alt+%1</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Ctrl+%1</translation>
    </message>
    <message>
        <source>⌃⌘V</source>
        <translation>Super+Ctrl+V</translation>
    </message>
    <message>
        <source>⌃⌘S</source>
        <translation>Super+Ctrl+S</translation>
    </message>
    <message>
        <source>⌘,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n clip · Capturing</numerusform>
            <numerusform>%n clips · Capturing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n clip · Paused</numerusform>
            <numerusform>%n clips · Paused</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n clip · Paused until %1</numerusform>
            <numerusform>%n clips · Paused until %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>Stop Paste Stack (%n left)</numerusform>
            <numerusform>Stop Paste Stack (%n left)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>%n more password manager (such as Bitwarden, LastPass or Dashlane) is skipped too as soon as it's installed.</numerusform>
            <numerusform>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n clip</numerusform>
            <numerusform>%n clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>After %n second</numerusform>
            <numerusform>After %n seconds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>After %n minute</numerusform>
            <numerusform>After %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>After %n hour</numerusform>
            <numerusform>After %n hours</numerusform>
        </translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>Click a shortcut, then press the new keys. Backspace puts the original back, Esc cancels.</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>Vellumry only opens a file when you paste or copy it.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>%1 is closed to Vellumry. Give yourself permission to read that folder.</translation>
    </message>
    <message>
        <source>⇧↑  ⇧↓</source>
        <translation>Shift+↑  Shift+↓</translation>
    </message>
    <message>
        <source>⌘1 … ⌘9</source>
        <translation>Ctrl+1 … Ctrl+9</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>Last checked %n minute ago</numerusform>
            <numerusform>Last checked %n minutes ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>Last checked %n hour ago</numerusform>
            <numerusform>Last checked %n hours ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>Last checked %n day ago</numerusform>
            <numerusform>Last checked %n days ago</numerusform>
        </translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>Pick a clip and it lands right where you were typing. Some desktops ask you to allow this once.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>%1 is closed to Vellumry. Give yourself permission to read that folder.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>All %n pasted</numerusform>
            <numerusform>All %n pasted</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>Merged %n clip into one</numerusform>
            <numerusform>Merged %n clips into one</numerusform>
        </translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>Pinned</translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n item, a picture</numerusform>
            <numerusform>%n items, one of them a picture</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n item, %1 of them pictures</numerusform>
            <numerusform>%n items, %1 of them pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>%n clip was imported.</numerusform>
            <numerusform>%n clips were imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n clip was in your history already.</numerusform>
            <numerusform>%n clips were in your history already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>%n password, code or key was left out.</numerusform>
            <numerusform>%n passwords, codes or keys were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>%n clip was left out, as nothing is saved from its app.</numerusform>
            <numerusform>%n clips were left out, as nothing is saved from their apps.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n clip is beyond the limits of your history.</numerusform>
            <numerusform>%n clips are beyond the limits of your history.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>%n picture was left out, as your disk is almost full.</numerusform>
            <numerusform>%n pictures were left out, as your disk is almost full.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>%n entry had nothing in it that can be kept.</numerusform>
            <numerusform>%n entries had nothing in them that can be kept.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n clip is in %1 now, and not encrypted there.</numerusform>
            <numerusform>%n clips are in %1 now, and not encrypted there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>%n clip that deletes itself was left out.</numerusform>
            <numerusform>%n clips that delete themselves were left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>%n clip could not be read.</numerusform>
            <numerusform>%n clips could not be read.</numerusform>
        </translation>
    </message>
</context>
</TS>
