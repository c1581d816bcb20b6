<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Vellumry</name>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>%1 fügt dies überall ein</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>%1 wird schon von einer anderen Anwendung benutzt. Wählen Sie ein anderes Tastenkürzel.</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 ist frei.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>%1 einzufügen</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Als Nächstes: %1</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message numerus="yes">
        <source>%n characters</source>
        <translation>
            <numerusform>%n Zeichen</numerusform>
            <numerusform>%n Zeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>%n Eintrag gelöscht</numerusform>
            <numerusform>%n Einträge gelöscht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>%n Eintrag ausgewählt</numerusform>
            <numerusform>%n Einträge ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n Eintrag · Aufzeichnung läuft</numerusform>
            <numerusform>%n Einträge · Aufzeichnung läuft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n Eintrag · Nicht gespeichert: nur bis zum Beenden</numerusform>
            <numerusform>%n Einträge · Nicht gespeichert: nur bis zum Beenden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n Eintrag · Pausiert</numerusform>
            <numerusform>%n Einträge · Pausiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n Eintrag · Pausiert bis %1</numerusform>
            <numerusform>%n Einträge · Pausiert bis %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n Eintrag · auf diesem Rechner verschlüsselt</numerusform>
            <numerusform>%n Einträge · auf diesem Rechner verschlüsselt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weiterer</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>%n weiterer Passwortmanager (wie Bitwarden, LastPass oder Dashlane) wird auch übergangen, sobald er installiert ist.</numerusform>
            <numerusform>%n weitere Passwortmanager (Bitwarden, LastPass, Dashlane …) werden auch übergangen, sobald sie installiert sind.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 Monat</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 Woche</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 Jahr</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 Monate</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>Anwendungen hinzufügen …</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>Zum Einfügestapel hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>Nach %n Stunde</numerusform>
            <numerusform>Nach %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>Nach %n Minute</numerusform>
            <numerusform>Nach %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>Nach %n Sekunde</numerusform>
            <numerusform>Nach %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>%n eingefügt</numerusform>
            <numerusform>Alle %n eingefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>Einfügen erlauben …</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>Vellumry das Einfügen erlauben</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>Darf Tasten drücken</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>Erlaubt. Dateien aus diesen Ordnern lassen sich normal einfügen.</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>Erlaubt. Vellumry kann für Sie einfügen.</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Erlauben …</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>Immer an</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>Ein anderes Programm benutzt Ihren Verlauf</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>Was eine Anwendung als geheim oder vorübergehend kennzeichnet, wird nie gespeichert.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>Anwendungen, die anders einfügen</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>Kartennummern, Codes und API-Schlüssel automatisch löschen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>Karte •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt prüfen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Prüfen Sie die Zugriffsrechte von %1. Bis dahin bleiben Einträge nur erhalten, bis Sie Vellumry beenden.</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>Sucht einmal täglich</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>Anwendungen auswählen</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Ausgewählt</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf leeren</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>Leeren, Angeheftete behalten</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Verlauf leeren …</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Verlauf leeren</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>Verlauf der Zwischenablage leeren?</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Leeren …</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>Klicken Sie auf ein Tastenkürzel und drücken Sie die neuen Tasten. Die Rücktaste stellt das ursprüngliche wieder her, Esc bricht ab.</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copied from %1</source>
        <translation>Kopiert aus %1</translation>
    </message>
    <message>
        <source>Copied from an unknown app</source>
        <translation>Kopiert aus einer unbekannten Anwendung</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>Kopiert. Mit Strg+V einfügen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>Einmal kopieren. Jederzeit finden.</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>Kopieren Sie etwas. Es erscheint dann hier.</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>Kopieren Sie dies</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>Kopieren Sie, was Sie brauchen, dann Strg+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>Diese Einträge ließen sich nicht zusammenführen</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>Dieser Eintrag ließ sich nicht einfügen</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>Standard-Schlüsselbund</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>%n löschen</numerusform>
            <numerusform>%n löschen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>%n Eintrag löschen</numerusform>
            <numerusform>%n Einträge löschen</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Löschen (Strg+Entf)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>„Alles löschen“ entfernt auch angeheftete Einträge. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>Ziehen Sie das Fenster an einer leeren Stelle, um es zu verschieben. Beim nächsten Mal öffnet es sich dort.</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>Jedes Einfügen nimmt den nächsten Eintrag.</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>Support per E-Mail</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>Verschlüsselter Verlauf</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>Jede Kopie wird bemerkt.</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>F10</source>
        <translation>F10</translation>
    </message>
    <message>
        <source>F11</source>
        <translation>F11</translation>
    </message>
    <message>
        <source>F12</source>
        <translation>F12</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>F4</source>
        <translation>F4</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>F6</source>
        <translation>F6</translation>
    </message>
    <message>
        <source>F7</source>
        <translation>F7</translation>
    </message>
    <message>
        <source>F8</source>
        <translation>F8</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>Dateien aus „Schreibtisch“, „Dokumente“ und „Downloads“ lassen sich normal einfügen.</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>Dateien, die Sie im Dateiverwalter kopieren</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>Findet es mit wenigen Tasten</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>Für 1 Stunde</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>Für 5 Minuten</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>Für das Tastenkürzel fügen Sie dies in %1 ein</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>Für das Tastenkürzel belegen Sie diese in den Einstellungen Ihres Desktops</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Für immer</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>Hallo von Vellumry 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Verborgen</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>Verborgen · löscht sich bald selbst</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>Verborgen. Löscht sich in %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>Halten Sie dazu Strg, Alt oder Super gedrückt.</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>Symbol im Benachrichtigungsfeld</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>Nächste Kopie ignorieren</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>Bild %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>Bild · Bildschirmfoto</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>Bilder und Dateien belegen bis zu</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>Bilder lassen sich nicht zusammenführen. Ziehen Sie sie stattdessen heraus</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>Bilder lassen sich nicht zusammenführen. Ziehen Sie sie heraus, oder fügen Sie sie mit dem Stapel einzeln ein.</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>Im Papierkorb</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>In jeder Anwendung</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>Im Papierkorb. Lässt sich einfügen, bis er geleert wird</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>Im Fenster</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>Installieren Sie Tesseract und die Daten für Ihre Sprache.</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Aktualisierungen automatisch installieren</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Er gibt den Schlüssel zu Ihrem Verlauf nicht heraus oder speichert ihn nicht. Erlauben Sie es in den Einstellungen des Schlüsselbunds. Bis dahin bleiben Einträge nur erhalten, bis Sie Vellumry beenden.</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>Es benutzt die Datei in %1. Sobald es fertig ist, kommt Ihr Verlauf von selbst zurück, mitsamt dem, was Sie bis dahin kopiert haben.</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>Höchstens behalten</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>Einträge behalten</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>Angeheftete Einträge behalten oder alles löschen.</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>Zuletzt vor %n Tag gesucht</numerusform>
            <numerusform>Zuletzt vor %n Tagen gesucht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>Zuletzt vor %n Stunde gesucht</numerusform>
            <numerusform>Zuletzt vor %n Stunden gesucht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>Zuletzt vor %n Minute gesucht</numerusform>
            <numerusform>Zuletzt vor %n Minuten gesucht</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>Gerade eben gesucht</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>Lassen Sie Vellumry für Sie einfügen</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>Wie ein Terminal</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>Wie andere Anwendungen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>Zusammenführen und einfügen</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>Zusammenführen und einfügen</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>Zusammenführen und einfügen</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>Zu einem Eintrag zusammenführen</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>Zusammenführen macht daraus einen Eintrag, zeilenweise und in der Reihenfolge, in der Sie kopiert haben.</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>Zusammenführen macht einen Eintrag mit allen diesen Dateien.</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>Zusammengeführt</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>%n Eintrag zusammengeführt</numerusform>
            <numerusform>%n Einträge zu einem zusammengeführt</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>In die Mitte</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>Braucht Ihre Erlaubnis, Tasten zu drücken</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>Nie speichern</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>Nie speichern aus</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>Neue Bildschirmfotos werden in Vellumry gespeichert</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>Neueste zuerst. Klicken für älteste zuerst</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>Nächster Filter · schließen</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>Keine Anwendungen gefunden</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>Keine Einträge passen zu „%1“</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>In dieser Sitzung antwortet kein Schlüsselbund, und der Schlüssel zu Ihrem Verlauf wird in einem aufbewahrt. Starten Sie GNOME Keyring, KWallet oder KeePassXC: Ihr Verlauf kommt dann von selbst zurück, mitsamt dem, was Sie bis dahin kopiert haben. Ohne Schlüsselbund bleiben Einträge nur erhalten, bis Sie Vellumry beenden.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>Jetzt nicht, ich drücke selbst Strg+V</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Noch nichts da</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>An Super+Alt+%1 ist noch nichts angeheftet. Heften Sie mit Strg+P einen Eintrag an</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>Aus = Vellumry kopiert, und Sie drücken Strg+V.</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>In Entwicklerversionen aus</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>Aus: Sie drücken Strg+V</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>Älteste zuerst. Klicken für neueste zuerst</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>Die ältesten nicht angehefteten Einträge gehen zuerst. Angeheftete bleiben immer.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>Auf „%1“, nicht verbunden</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>Für mich öffnen</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Link öffnen</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Um Erlaubnis fragen</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>Vellumry öffnen</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>Vellumry beim Anmelden öffnen</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>Freiwillig. Vellumry probiert Schreibtisch, Dokumente und Downloads einmal aus.</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>Fensterposition</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>Dateinamen einfügen</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>Einzeln einfügen (Einfügestapel)</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>Einfügestapel</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>Der Einfügestapel konnte nicht starten. Ein anderes Programm hält Strg+V besetzt</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>Der Einfügestapel braucht „Vellumry das Einfügen erlauben“</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>Einfügestapel: mehreres kopieren, jedes Strg+V fügt das Nächste ein (Super+Strg+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>Text im Bild einfügen</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>Umgewandelt einfügen</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>Als einfachen Text einfügen</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>Immer als einfachen Text einfügen</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>Eintrag 1–9 einfügen</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>Direkt in die Anwendung einfügen</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>Namen einfügen</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>Dateien aus Schreibtisch, Dokumente und Downloads einfügen</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>In diese Anwendung wieder wie gewohnt einfügen</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>Einzeln einfügen</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>Angeheftete Einträge mit Super+Alt+1 … Super+Alt+9 einfügen</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>Einzeln einfügen: jedes Strg+V fügt den nächsten ein (Einfügestapel)</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>Umgewandelt einfügen</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>Einfügen · als einfachen Text einfügen</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>Eingefügt</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>Fügt als einfachen Text ein. Ihr Eintrag bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>Fügt für Sie ein</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>Fügt den Text in diesem Bild ein</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>Für Sie einfügen</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>Aufzeichnung pausieren</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>Pausiert. Was Sie kopieren, wird erst wieder gespeichert, wenn Sie fortsetzen</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>Wählen Sie einen Eintrag, und er landet genau da, wo Sie gerade schreiben. Manche Desktops fragen Sie einmal um Erlaubnis.</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>Wählen Sie stattdessen Einträge im Fenster einzeln aus.</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Anheften</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>%n Eintrag anheften</numerusform>
            <numerusform>%n Einträge anheften</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>Anheften (Strg+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>%n anheften</numerusform>
            <numerusform>%n anheften</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>Anheften · löschen · kopieren</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>Angeheftet</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>Angeheftete Einträge bleiben. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Einfacher Text</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>%1 öffnet Vellumry jederzeit.</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>Drücken Sie die Eingabetaste, um hier einzufügen</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>Neues Tastenkürzel drücken …</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>Erlaubnis, Tasten zu drücken</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>Privat und verschlüsselt</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>Vellumry beenden</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>Text in diesem Bild lesen</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>Der Text in diesem Bild wird gelesen …</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>Letzte Einträge im Menü</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>Merken, was Sie kopieren</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>Merkt sich alles, was Sie kopieren</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>Zeilenumbrüche entfernen</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>Neu starten und auf %1 aktualisieren</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>Aufzeichnung fortsetzen</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>Fortgesetzt. Was Sie kopieren, wird wieder gespeichert</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>Neue Bildschirmfotos speichern</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>Einträge aus dieser Anwendung wieder speichern</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>Neue Bildschirmfotos speichern</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>Bildschirmfoto %1 um %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Bildschirmfotos</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>Bildschirmfotos, die Sie speichern, kommen auch dazu, und ihr Text wird durchsuchbar. Vellumry muss den Ordner lesen können, in dem sie liegen.</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>Bildschirmfotos, die Sie speichern, kommen auch in Vellumry, und ihr Text wird durchsuchbar.</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Anwendungen suchen</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Einträge suchen</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>Geheimes</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>Mehrere auswählen · zusammenführen</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>Vertraulich · löscht sich selbst</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>Satzanfang groß</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>Legen Sie in den Tastatureinstellungen Ihres Desktops ein Tastenkürzel an, das dies ausführt: vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>Tastenkürzel in jeder Anwendung</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>In Dateiverwaltung anzeigen</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>Anzeigen …</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>Passwörter aus Passwortmanagern übergehen</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>Eine gelöschte Datei wurde übersprungen</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>Übergangen. Diese Kopie wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>Damit die Suche es an seinen Wörtern findet. Das System fragt Sie vielleicht einmal, ob Vellumry diesen Ordner lesen darf.</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>Ton beim Einfügen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>Einfügestapel starten / beenden</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>Starten Sie GNOME Keyring, KWallet oder KeePassXC. Bis dahin bleiben Einträge nur bis zum Beenden.</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>Einfügestapel starten</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>Vellumry benutzen</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>Starten Sie Vellumry noch einmal, um die Einstellungen zu öffnen, oder installieren Sie eine Erweiterung, die Ihrem Desktop ein Benachrichtigungsfeld gibt.</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>Einfügestapel beenden</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>Einfügestapel beenden (noch %n)</numerusform>
            <numerusform>Einfügestapel beenden (noch %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>Einfügestapel beenden (Super+Strg+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicherplatz</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>Erlauben Sie Vellumry, Tasten zu drücken, wenn Ihr Desktop fragt. Diese Ansicht aktualisiert sich selbst.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>Terminals fügen mit anderen Tasten ein. Vellumry kennt die meisten; fügen Sie Ihres hinzu, wenn das Einfügen darin nichts bewirkt.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>Text im Bild</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>Text in Bildern</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>Text, Links, Bilder, Dateien und Farben.</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>Das war’s. Alles, was Sie kopieren, ist jetzt ein Tastenkürzel entfernt.</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>Die Datei in %1 blieb, wie sie war. Prüfen Sie ihre Zugriffsrechte und den Datenträger. Vellumry versucht es weiter; bis dahin bleiben Einträge nur erhalten, bis Sie es beenden.</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>Der Verlauf kann gerade nicht gespeichert werden. Vellumry versucht es weiter</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>Darin liegt der Schlüssel zu Ihrem Verlauf. Entsperren Sie den Schlüsselbund: Ihr Verlauf kommt dann von selbst zurück, mitsamt dem, was Sie bis dahin kopiert haben. Solange er gesperrt ist, bleiben Einträge nur erhalten, bis Sie Vellumry beenden.</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>Der Schlüssel zu Ihrem Verlauf ist beschädigt</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>Was Sie als Nächstes kopieren, wird nicht in Vellumry gespeichert. Nützlich, bevor Sie ein Passwort oder anderen privaten Text kopieren.</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>Die Aktualisierung ließ sich nicht laden. Nichts wurde geändert</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>Dieser Eintrag lässt sich nicht mehr kopieren</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>Dieser Desktop teilt Vellumry Kopien nicht mit. Melden Sie sich in einer anderen Sitzung an, etwa X11.</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>Dieses Feld lässt kein Einfügen durch Anwendungen zu. Drücken Sie Strg+V</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>Diese Datei wurde gelöscht</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>Dies ist eine Wayland-Sitzung: Vellumry sieht, was X11-Anwendungen kopieren und was der Desktop mit ihnen teilt. Manche Kopien können fehlen</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>Mehr ist Vellumry nicht. Sie verlieren nie wieder eine Kopie.</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>Dieser Link lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>Jedes Wort Groß</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>Um Dateien aus %1 einzufügen, geben Sie Vellumry Leserechte für diesen Ordner</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>Umwandeln (Strg+T)</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>Umwandlungen</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>Umwandeln lässt sich nur Text</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>Leerraum am Rand entfernen</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>Probieren Sie es aus: dauert 5 Sekunden</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>Tippen Sie zwei Buchstaben. Selbst Text in Bildschirmfotos.</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>Unbekannte Anwendung</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Entsperren …</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Lösen</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>%n Eintrag lösen</numerusform>
            <numerusform>%n Einträge lösen</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>Lösen (Strg+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>Alle lösen (Strg+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Bis ich fortsetze</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>Auf Vellumry %1 aktualisieren …</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 benutzen</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Benutzen</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>Vellumry %1 kann installiert werden</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>Vellumry-Einstellungen</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>Vellumry im Web</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry kann diese Datei nicht öffnen. Geben Sie ihm Leserechte für den Ordner</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry kann Ihren Ordner für Bildschirmfotos nicht öffnen. Geben Sie ihm Leserechte für den Ordner</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>Vellumry kann Ihren Ordner für Bildschirmfotos nicht öffnen. Geben Sie ihm Leserechte für den Ordner.</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>Vellumry erreicht Ihren Schlüsselbund nicht</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>Vellumry kann seinen Verlauf nicht lesen</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>Vellumry kann in dieser Sitzung nicht starten</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>Vellumry kann nicht in seinen Ordner schreiben</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>Vellumry kopiert, und Sie drücken Strg+V. Erlauben Sie ihm, Tasten zu drücken, falls Ihr Desktop fragt.</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>Vellumry ist auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>Vellumry merkt sich einen Verweis auf kopierte Dateien, keine Kopie der Datei. Eine gelöschte Datei lässt sich also nicht einfügen. Verschobene oder umbenannte Dateien werden von selbst wiedergefunden.</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>Vellumry bewahrt dort den Schlüssel zu Ihrem verschlüsselten Verlauf auf. Ihr Desktop fragt nach dem Passwort des Schlüsselbunds. Bis dahin bleiben Einträge nur bis zum Beenden.</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>Vellumry wohnt in Ihrem Benachrichtigungsfeld. Drücken Sie jederzeit das Tastenkürzel.</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>Vellumry braucht eine X11-Anzeige und fand keine. Schalten Sie in einer Wayland-Sitzung Xwayland ein, oder melden Sie sich in einer X11-Sitzung an.</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>Vellumry drückt nur Strg+V für Sie. Es liest nie Ihren Bildschirm oder was Sie tippen.</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>Vellumry drückt die Tasten zum Einfügen für Sie.</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>Vellumry hat einen neuen Verlauf begonnen</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>Vellumry aktualisiert sich, während Sie nicht am Rechner sind. Aus = es fragt vorher.</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>Dort ist Vellumrys Menü.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>Willkommen bei Vellumry</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>Was auf diesem Desktop funktioniert</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Was Ihr Schlüsselbund als „Vellumry history key“ aufbewahrt, ist kein Schlüssel. Stellen Sie ihn wieder her, oder entfernen Sie ihn, um einen neuen Verlauf zu beginnen. Bis dahin bleiben Einträge nur erhalten, bis Sie Vellumry beenden.</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>Wo eine Paketverwaltung Vellumry verwaltet, aktualisiert sie es auch.</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>Wörter in Bildern werden gefunden.</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>Funktioniert in jeder Anwendung, ohne Vellumry zu öffnen.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>Alles bereit</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>Ihr Rechner ist fast voll. Vellumry speichert vorerst nur Text</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>Ihr Verlauf lässt sich nicht öffnen. Schaffen Sie Platz auf dem Datenträger: Er kommt dann von selbst zurück, mitsamt dem, was Sie bis dahin kopiert haben.</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>Ihre Einträge verlassen diesen Rechner nie.</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>Ihr Desktop fragt vielleicht nach dem Passwort Ihres Schlüsselbunds. Darin liegt der Schlüssel zu Ihrem Verlauf</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>Ihr Datenträger ist voll</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>Ihr Verlauf ist nicht geöffnet. Entsperren Sie Ihren Schlüsselbund: Er kommt dann von selbst zurück.</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>Ihr Schlüsselbund ist gesperrt</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>Ihr Schlüsselbund bewahrt den Schlüssel auf.</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>Ihr Schlüsselbund hat Vellumry abgewiesen</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>Ihre nächste Kopie wird gespeichert</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>Ihre nächste Kopie wird nicht gespeichert</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>Hier landet, was Sie einfügen</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>Ihr bisheriger Verlauf ließ sich auf diesem Rechner nicht lesen, deshalb wurde ein neuer begonnen. Der alte bleibt als Sicherung erhalten: %1</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>Ihre Tastenkürzel erreichen Vellumry überall.</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 kB</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>kleinbuchstaben</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>Vellumry öffnet eine Datei nur, wenn Sie sie einfügen oder kopieren.</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>Ihr Desktop hat es nicht erlaubt. Sehen Sie in seinen Einstellungen für Startprogramme nach.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>%1 ist für Vellumry gesperrt. Geben Sie sich Leserechte für diesen Ordner.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>%1 ist für Vellumry gesperrt. Geben Sie sich Leserechte für diesen Ordner.</translation>
    </message>
    <message>
        <source>←</source>
        <translation>←</translation>
    </message>
    <message>
        <source>↑</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>→</source>
        <translation>→</translation>
    </message>
    <message>
        <source>↓</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>↖</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>↘</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>↩</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>⇞</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>⇟</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>⇥</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Umschalt+</translation>
    </message>
    <message>
        <source>⇧↑  ⇧↓</source>
        <translation>Umschalt+↑  Umschalt+↓</translation>
    </message>
    <message>
        <source>⇧↩</source>
        <translation>Umschalt+Eingabe</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>⌃⌘S</source>
        <translation>Super+Strg+S</translation>
    </message>
    <message>
        <source>⌃⌘V</source>
        <translation>Super+Strg+V</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Super+Alt+%1</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Strg+</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Strg+%1</translation>
    </message>
    <message>
        <source>⌘,</source>
        <translation>Strg+,</translation>
    </message>
    <message>
        <source>⌘1 … ⌘9</source>
        <translation>Strg+1 … Strg+9</translation>
    </message>
    <message>
        <source>⌘C</source>
        <translation>Strg+C</translation>
    </message>
    <message>
        <source>⌘M</source>
        <translation>Strg+M</translation>
    </message>
    <message>
        <source>⌘P</source>
        <translation>Strg+P</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Strg+Q</translation>
    </message>
    <message>
        <source>⌘T</source>
        <translation>Strg+T</translation>
    </message>
    <message>
        <source>⌘⌫</source>
        <translation>Strg+Entf</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>⌫</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>%1 can't be written to. Choose another folder.</source>
        <translation>In %1 kann nicht geschrieben werden. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>%1 enthält keinen abgeschlossenen Export von Vellumry.</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>%1 ist nicht leer. Wählen Sie einen neuen Ordner.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n Eintrag überschreitet die Grenzen Ihres Verlaufs.</numerusform>
            <numerusform>%n Einträge überschreiten die Grenzen Ihres Verlaufs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n Eintrag liegt jetzt in %1 und ist dort nicht verschlüsselt.</numerusform>
            <numerusform>%n Einträge liegen jetzt in %1 und sind dort nicht verschlüsselt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>%n Eintrag ließ sich nicht lesen.</numerusform>
            <numerusform>%n Einträge ließen sich nicht lesen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>%n Eintrag, der sich selbst löscht, wurde ausgelassen.</numerusform>
            <numerusform>%n Einträge, die sich selbst löschen, wurden ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>%n Eintrag wurde importiert.</numerusform>
            <numerusform>%n Einträge wurden importiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n Eintrag war schon in Ihrem Verlauf.</numerusform>
            <numerusform>%n Einträge waren schon in Ihrem Verlauf.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>%n Eintrag wurde ausgelassen, weil aus seiner Anwendung nichts gespeichert wird.</numerusform>
            <numerusform>%n Einträge wurden ausgelassen, weil aus ihren Anwendungen nichts gespeichert wird.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>In %n Datensatz war nichts, was sich behalten lässt.</numerusform>
            <numerusform>In %n Datensätzen war nichts, was sich behalten lässt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n Eintrag, davon Bilder: %1</numerusform>
            <numerusform>%n Einträge, davon %1 Bilder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n Eintrag, ein Bild</numerusform>
            <numerusform>%n Einträge, davon ein Bild</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>%n Passwort, Code oder Schlüssel wurde ausgelassen.</numerusform>
            <numerusform>%n Passwörter, Codes oder Schlüssel wurden ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>%n Bild wurde ausgelassen, weil Ihr Datenträger fast voll ist.</numerusform>
            <numerusform>%n Bilder wurden ausgelassen, weil Ihr Datenträger fast voll ist.</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>Ein Ordner, den Vellumry exportiert hat</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>Bringen Sie Ihre Einträge mit</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>Beschädigt. Lesbar: %1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>Beschädigt: nichts darin ist lesbar</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Support per E-Mail</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>Verschlüsselt: nichts darin ist lesbar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>Alles exportieren</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Wird exportiert …</translation>
    </message>
    <message>
        <source>Exporting… %1</source>
        <translation>Wird exportiert … %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Folder to import from</source>
        <translation>Ordner, aus dem importiert wird</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>Aus einer anderen Zwischenablage-Anwendung oder aus einem Ordner, den Vellumry exportiert hat.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Erneut importieren</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Ordner importieren</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>Einträge importieren</translation>
    </message>
    <message>
        <source>Importing %1 of %2…</source>
        <translation>%1 von %2 werden importiert …</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Wird importiert …</translation>
    </message>
    <message>
        <source>Importing… %1</source>
        <translation>Wird importiert … %1</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>It can't be opened</source>
        <translation>Lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>Er ist beschädigt: Was lesbar war, wurde durchgesehen.</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>Andere Zwischenablage-Anwendungen werden gesucht …</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>Kein Verlauf von CopyQ, GPaste, Klipper oder Clipman wurde gefunden.</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>Andere Anwendungen</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>Pfad des Ordners</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>Angehalten. In %1 blieb nichts zurück.</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>Wird zurückgenommen …</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>Texte, Bilder und Dateilisten werden gewöhnliche Dateien, mit einem Verzeichnis ihrer Zeiten, Titel und Anheftungen. Sie sind dort nicht verschlüsselt: Wer den Ordner lesen kann, kann Ihre Einträge lesen. Einträge, die sich selbst löschen, werden ausgelassen.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>Der Datenträger ist voll. In %1 blieb nichts zurück.</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>Der Import wurde zurückgenommen.</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>Die Dateien der anderen Anwendung werden nur gelesen. Passwörter, Codes und Schlüssel werden ausgelassen, ebenso Einträge, die Sie schon haben.</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>Der Rest wurde nicht durchgesehen, weil Sie angehalten haben.</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>Hier gibt es nichts mehr zu importieren.</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>In einen Ordner mit gewöhnlichen Dateien.</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>Zu groß, um gelesen zu werden</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>Import zurücknehmen</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>Verlauf wird geladen …</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>GNOME hat die Erweiterung nicht eingeschaltet. Suchen Sie Vellumry in der Anwendung „Erweiterungen“.</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>Die Erweiterung wirkt ab Ihrer nächsten Anmeldung. Melden Sie sich ab und wieder an, um sie zu nutzen.</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>Die Erweiterung ist eingeschaltet. Vellumry startet mit ihr neu.</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>Vellumrys Erweiterung für GNOME ist ausgeschaltet</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>Mit ihr entgeht Vellumry keine Kopie, die Tastenkürzel wirken überall, und Vellumry fügt für Sie ein.</translation>
    </message>
</context>
</TS>
