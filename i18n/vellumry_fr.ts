<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Vellumry</name>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>%1 pour coller ceci n’importe où</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 octets</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>%1 est déjà utilisé par une autre application. Choisissez un autre raccourci.</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 est libre.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>%1 à coller</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Ensuite : %1</translation>
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
            <numerusform>%n caractère</numerusform>
            <numerusform>%n caractères</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>%n élément supprimé</numerusform>
            <numerusform>%n éléments supprimés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>%n élément sélectionné</numerusform>
            <numerusform>%n éléments sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n élément · Capture en cours</numerusform>
            <numerusform>%n éléments · Capture en cours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n élément · Non enregistré : gardé jusqu’à la fermeture</numerusform>
            <numerusform>%n éléments · Non enregistrés : gardés jusqu’à la fermeture</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n élément · En pause</numerusform>
            <numerusform>%n éléments · En pause</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n élément · En pause jusqu’à %1</numerusform>
            <numerusform>%n éléments · En pause jusqu’à %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n élément · chiffré sur cet ordinateur</numerusform>
            <numerusform>%n éléments · chiffrés sur cet ordinateur</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n jour</numerusform>
            <numerusform>%n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n de plus</numerusform>
            <numerusform>%n de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>%n autre gestionnaire de mots de passe (comme Bitwarden, LastPass ou Dashlane) sera aussi ignoré dès qu’il sera installé.</numerusform>
            <numerusform>%n autres gestionnaires de mots de passe (Bitwarden, LastPass, Dashlane…) seront aussi ignorés dès qu’ils seront installés.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 octet</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 jour</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mois</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 semaine</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 an</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 mois</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>Ajouter des applications…</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>Ajouter à la pile de collage</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>Après %n heure</numerusform>
            <numerusform>Après %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>Après %n minute</numerusform>
            <numerusform>Après %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>Après %n seconde</numerusform>
            <numerusform>Après %n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>%n élément collé</numerusform>
            <numerusform>Les %n éléments sont collés</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>Autoriser le collage…</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>Autoriser Vellumry à coller pour vous</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>Autorisé à appuyer sur les touches</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>Autorisé. Les fichiers de ces dossiers se collent normalement.</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>Autorisé. Vellumry peut coller pour vous.</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Autoriser…</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>Toujours actif</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>Un autre programme utilise votre historique</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>Ce qu’une application marque comme secret ou temporaire n’est jamais enregistré.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>Applications qui collent autrement</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>Supprimer automatiquement numéros de carte, codes et clés d’API</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>Carte •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Vérifier maintenant</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Vérifiez les permissions de %1. D’ici là, les éléments ne sont gardés que jusqu’à ce que vous quittiez Vellumry.</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>Vérifie une fois par jour</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>Choisir des applications</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Choisis</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>Effacer sauf les éléments épinglés</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Effacer l’historique…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>Effacer l’historique du presse-papiers ?</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Effacer…</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>Cliquez sur un raccourci, puis appuyez sur les nouvelles touches. Retour arrière rétablit l’original, Échap annule.</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copied from %1</source>
        <translation>Copié depuis %1</translation>
    </message>
    <message>
        <source>Copied from an unknown app</source>
        <translation>Copié depuis une application inconnue</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>Copié. Appuyez sur Ctrl+V pour coller</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>Copiez une fois. Retrouvez à tout moment.</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>Copiez quelque chose. Cela apparaîtra ici.</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>Copiez ceci</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>Copiez ce qu’il vous faut, puis Ctrl+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>Impossible de fusionner ces éléments</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>Impossible de coller cet élément</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>Trousseau par défaut</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>Supprimer %n</numerusform>
            <numerusform>Supprimer %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>Supprimer %n élément</numerusform>
            <numerusform>Supprimer %n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Supprimer (Ctrl+Suppr)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>« Tout supprimer » retire aussi les éléments épinglés. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>Les supprimer</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>Faites glisser le panneau par un endroit vide pour le déplacer. Il s’ouvrira là la prochaine fois.</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>Chaque collage prend l’élément suivant.</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>Contacter l’assistance</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>Historique chiffré</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>Chaque copie est remarquée.</translation>
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
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>Les fichiers de Bureau, Documents et Téléchargements se collent normalement.</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>Fichiers que vous copiez dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>Retrouve tout en deux touches</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>Pendant 1 heure</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>Pendant 5 minutes</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>Pour le raccourci, ajoutez ceci à %1</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>Pour le raccourci, associez-les dans les paramètres de votre bureau</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Pour toujours</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>Bonjour de la part de Vellumry 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masqué</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>Masqué · se supprime bientôt</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>Masqué. Se supprime dans %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>Maintenez Ctrl, Alt ou Super avec la touche.</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>Icône dans la zone de notification</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>Ignorer la prochaine copie</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>Image %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>Image · Capture d’écran</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>Images et fichiers occupent au plus</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>Les images ne peuvent pas être fusionnées. Faites-les plutôt glisser</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>Les images ne peuvent pas être fusionnées. Faites-les glisser, ou collez-les une par une avec la pile.</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>À la corbeille</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>Dans toutes les applications</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>À la corbeille. Se colle tant qu’elle n’est pas vidée</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>Dans le panneau</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>Installez Tesseract et les données de votre langue.</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installer les mises à jour automatiquement</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Il ne donne pas, ou n’enregistre pas, la clé de votre historique du presse-papiers. Autorisez-le dans les paramètres du trousseau. D’ici là, les éléments ne sont gardés que jusqu’à ce que vous quittiez Vellumry.</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>Il utilise le fichier dans %1. Quand il aura terminé, votre historique reviendra de lui-même, avec ce que vous aurez copié d’ici là.</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>Garder au plus</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>Garder les éléments pendant</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>Garder les éléments épinglés, ou tout supprimer.</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>Dernière vérification il y a %n jour</numerusform>
            <numerusform>Dernière vérification il y a %n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>Dernière vérification il y a %n heure</numerusform>
            <numerusform>Dernière vérification il y a %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>Dernière vérification il y a %n minute</numerusform>
            <numerusform>Dernière vérification il y a %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>Vérifié à l’instant</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>Laissez Vellumry coller pour vous</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>Comme un terminal</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>Comme les autres applications</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>Fusionner et coller</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>Fusionner et coller</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>Fusionner et coller</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>Fusionner en un seul élément</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>La fusion les réunit en un seul élément, un par ligne, dans l’ordre où vous les avez copiés.</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>La fusion crée un élément avec tous ces fichiers.</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>Fusionné</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>%n élément fusionné</numerusform>
            <numerusform>%n éléments fusionnés en un seul</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>Recentrer</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>Nécessite votre accord pour appuyer sur les touches</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>Ne jamais enregistrer</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>Ne jamais enregistrer depuis</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>Les nouvelles captures d’écran seront enregistrées dans Vellumry</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>Les plus récents d’abord. Cliquez pour les plus anciens d’abord</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>Filtre suivant · fermer</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>Aucune application trouvée</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>Aucun élément ne correspond à « %1 »</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>Aucun trousseau ne répond dans cette session, et la clé de votre historique du presse-papiers y est conservée. Démarrez GNOME Keyring, KWallet ou KeePassXC : votre historique reviendra de lui-même, avec ce que vous aurez copié d’ici là. Sans trousseau, les éléments ne sont gardés que jusqu’à ce que vous quittiez Vellumry.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installée</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>Pas maintenant, j’appuierai moi-même sur Ctrl+V</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Rien pour l’instant</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>Rien n’est encore épinglé à Super+Alt+%1. Épinglez un élément avec Ctrl+P</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>Désactivé = Vellumry copie et vous appuyez sur Ctrl+V.</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>Désactivées dans les versions de développement</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>Désactivé : vous appuyez sur Ctrl+V</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Hors ligne</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>Les plus anciens d’abord. Cliquez pour les plus récents d’abord</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>Les éléments non épinglés les plus anciens partent d’abord. Les éléments épinglés sont toujours gardés.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>Sur « %1 », qui n’est pas connecté</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>Ouvrir à ma place</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Ouvrir le lien</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Demander l’autorisation</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>Ouvrir Vellumry</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>Ouvrir Vellumry à l’ouverture de session</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>Facultatif. Vellumry essaie une fois Bureau, Documents et Téléchargements.</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>Position du panneau</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>Coller le nom du fichier</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>Coller un par un (pile de collage)</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>Pile de collage</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>Impossible de démarrer la pile de collage. Un autre programme se réserve Ctrl+V</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>La pile de collage nécessite « Autoriser Vellumry à coller pour vous »</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>Pile de collage : copiez plusieurs choses, chaque Ctrl+V colle la suivante (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>Coller le texte de l’image</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>Coller après transformation</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>Coller en texte brut</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>Coller en texte brut par défaut</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>Coller l’élément 1–9</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>Coller directement dans l’application</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>Coller le nom</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>Coller des fichiers de Bureau, Documents et Téléchargements</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>Coller de nouveau normalement dans cette application</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>Coller un par un</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>Coller les éléments épinglés avec Super+Alt+1 … Super+Alt+9</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>Les coller un par un : chaque Ctrl+V colle le suivant (pile de collage)</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>Coller transformé</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>Coller · coller en texte brut</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>Collé</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>Colle en texte brut. Votre élément reste tel quel.</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>Colle pour vous</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>Colle le texte de cette image</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>Collage</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>Coller pour vous</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>Suspendre la capture</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>En pause. Rien de ce que vous copiez n’est enregistré jusqu’à la reprise</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>Choisissez un élément : il arrive là où vous étiez en train d’écrire. Certains bureaux vous demandent une fois l’autorisation.</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>Choisissez plutôt les éléments un par un dans le panneau.</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Épingler</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>Épingler %n élément</numerusform>
            <numerusform>Épingler %n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>Épingler (Ctrl+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>Épingler %n</numerusform>
            <numerusform>Épingler %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>Épingler · supprimer · copier</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Épinglés</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>Épinglé</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>Les éléments épinglés sont gardés. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Texte brut</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>Appuyez sur %1 à tout moment pour ouvrir Vellumry.</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>Appuyez sur Entrée pour coller ici</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>Tapez le nouveau raccourci…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>Autorisation d’appuyer sur les touches</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>Privé et chiffré</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>Quitter Vellumry</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>Lire le texte de cette image</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>Lecture du texte de cette image…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>Éléments récents dans le menu</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>Retenir ce que vous copiez</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>Retient tout ce que vous copiez</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>Supprimer les sauts de ligne</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Rejouer</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Redémarrer maintenant</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>Redémarrer pour passer à la version %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>Reprendre la capture</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>Reprise. Ce que vous copiez est de nouveau enregistré</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>Enregistrer les nouvelles captures d’écran</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>Enregistrer de nouveau depuis cette application</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>Enregistrer les nouvelles captures d’écran</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>Capture d’écran du %1 à %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Captures d’écran</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>Les captures d’écran que vous enregistrez sont aussi ajoutées, et leur texte devient consultable. Vellumry doit pouvoir lire le dossier où elles se trouvent.</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>Les captures d’écran que vous enregistrez sont aussi ajoutées à Vellumry, et leur texte devient consultable.</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Rechercher des applications</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>Secrets</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>Sélectionner plusieurs · fusionner</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>Sensible · se supprime de lui-même</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>Majuscule en début de phrase</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>Créez, dans les paramètres du clavier de votre bureau, un raccourci qui lance : vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>Raccourcis dans toutes les applications</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans Fichiers</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>Afficher…</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>Ignorer les mots de passe des gestionnaires de mots de passe</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>Un fichier supprimé a été passé</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>Ignoré. Cette copie n’a pas été enregistrée</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>Pour que la recherche la trouve par ses mots. Le système peut demander une fois l’accès à ce dossier.</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>Son lors du collage</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>Démarrer / arrêter la pile de collage</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>Démarrez GNOME Keyring, KWallet ou KeePassXC. D’ici là, les éléments ne sont gardés que jusqu’à la fermeture.</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>Démarrer la pile de collage</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>Commencer à utiliser Vellumry</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>Relancez Vellumry pour ouvrir les paramètres, ou installez une extension de zone de notification pour votre bureau.</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>Arrêter la pile de collage</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>Arrêter la pile de collage (%n restant)</numerusform>
            <numerusform>Arrêter la pile de collage (%n restants)</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>Arrêter la pile de collage (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>Autorisez Vellumry à appuyer sur les touches quand votre bureau le demande. Cet écran s’actualise de lui-même.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>Les terminaux collent avec d’autres touches. Vellumry connaît la plupart ; ajoutez le vôtre si le collage n’y fait rien.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>Texte de l’image</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>Texte dans les images</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>Textes, liens, images, fichiers et couleurs.</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>C’est tout. Tout ce que vous copiez est maintenant à un raccourci de distance.</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>Le fichier dans %1 a été laissé tel quel. Vérifiez ses permissions et le disque. Vellumry réessaie ; d’ici là, les éléments ne sont gardés que jusqu’à ce que vous le quittiez.</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>L’historique ne peut pas être enregistré pour le moment. Vellumry réessaie</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>Il contient la clé de votre historique du presse-papiers. Déverrouillez le trousseau : votre historique reviendra de lui-même, avec ce que vous aurez copié d’ici là. Tant qu’il est verrouillé, les éléments ne sont gardés que jusqu’à ce que vous quittiez Vellumry.</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>La clé de votre historique est endommagée</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>La prochaine chose que vous copierez ne sera pas enregistrée dans Vellumry. Utile avant de copier un mot de passe ou un autre texte privé.</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>La mise à jour n’a pas pu être téléchargée. Rien n’a changé</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>Cet élément ne peut plus être copié</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>Ce bureau ne signale pas les copies à Vellumry. Ouvrez une autre session, par exemple X11.</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>Ce champ bloque le collage par les applications. Appuyez sur Ctrl+V</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>Ce fichier a été supprimé</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>Ceci est une session Wayland : Vellumry voit ce que les applications X11 copient et ce que le bureau partage avec elles. Certaines copies peuvent manquer</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>Vellumry, c’est tout simplement cela. Vous ne perdrez plus jamais une copie.</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>Ce lien ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>Majuscule À Chaque Mot</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>Pour coller des fichiers de %1, donnez à Vellumry le droit de lire ce dossier</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformer</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>Transformer (Ctrl+T)</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>Transformations</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>Seul du texte peut être transformé</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>Retirer les espaces autour</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>Essayez : cela prend 5 secondes</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>Tapez deux lettres. Même le texte des captures d’écran.</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>MAJUSCULES</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>Application inconnue</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Déverrouiller…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Désépingler</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>Désépingler %n élément</numerusform>
            <numerusform>Désépingler %n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>Désépingler (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>Tout désépingler (Ctrl+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Jusqu’à ce que je reprenne</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>Mettre à jour vers Vellumry %1…</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>L’utiliser</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>Vellumry %1 est prêt à être installé</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>Paramètres de Vellumry</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>Site web de Vellumry</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry ne peut pas ouvrir ce fichier. Donnez-lui le droit de lire le dossier</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry ne peut pas ouvrir votre dossier de captures d’écran. Donnez-lui le droit de le lire</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>Vellumry ne peut pas ouvrir votre dossier de captures d’écran. Donnez-lui le droit de le lire.</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>Vellumry ne peut pas joindre votre trousseau</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>Vellumry ne peut pas lire son historique</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>Vellumry ne peut pas démarrer dans cette session</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>Vellumry ne peut pas écrire dans son dossier</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>Vellumry copie et vous appuyez sur Ctrl+V. Autorisez-le à appuyer sur les touches si votre bureau le demande.</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>Vellumry est à jour</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>Vellumry garde un lien vers les fichiers que vous copiez, pas une copie ; un fichier supprimé ne peut donc pas être collé. Les fichiers déplacés ou renommés sont suivis automatiquement.</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>Vellumry y garde la clé de votre historique chiffré. Votre bureau demandera le mot de passe du trousseau. D’ici là, les éléments ne sont gardés que jusqu’à la fermeture.</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>Vellumry se trouve dans la zone de notification. Utilisez le raccourci à tout moment.</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>Vellumry a besoin d’un affichage X11 et n’en a trouvé aucun. Dans une session Wayland, activez Xwayland, ou ouvrez une session X11.</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>Vellumry appuie seulement sur Ctrl+V à votre place. Il ne lit jamais votre écran ni ce que vous tapez.</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>Vellumry appuie pour vous sur les touches de collage.</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>Vellumry a commencé un nouvel historique</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>Vellumry se met à jour lorsque vous n’êtes pas devant votre ordinateur. Désactivé = il demande d’abord.</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>Le menu de Vellumry s’y trouve.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>Bienvenue dans Vellumry</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>Ce qui fonctionne sur ce bureau</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Ce que votre trousseau garde sous le nom « Vellumry history key » n’est pas une clé. Restaurez-la, ou retirez-la pour commencer un nouvel historique. D’ici là, les éléments ne sont gardés que jusqu’à ce que vous quittiez Vellumry.</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>Là où un gestionnaire de paquets gère Vellumry, il le met aussi à jour.</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>Les mots des images sont trouvés.</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>Fonctionne dans toutes les applications, sans ouvrir Vellumry.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>Votre ordinateur est presque plein. Vellumry n’enregistre que le texte pour l’instant</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>Votre historique du presse-papiers ne peut pas être ouvert. Libérez de l’espace sur le disque : il reviendra de lui-même, avec ce que vous aurez copié d’ici là.</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>Vos éléments ne quittent jamais cet ordinateur.</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>Votre bureau peut demander le mot de passe de votre trousseau. La clé de votre historique s’y trouve</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>Votre disque est plein</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>Votre historique n’est pas ouvert. Déverrouillez votre trousseau : il reviendra de lui-même.</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>Votre trousseau est verrouillé</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>Votre trousseau garde la clé.</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>Votre trousseau a refusé Vellumry</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>Votre prochaine copie sera enregistrée</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>Votre prochaine copie ne sera pas enregistrée</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>Ce que vous collez arrive ici</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>Votre historique précédent n’a pas pu être lu sur cet ordinateur ; un nouveau a donc été commencé. L’ancien est gardé comme sauvegarde : %1</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>Vos raccourcis atteignent Vellumry où que vous soyez.</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 ko</translation>
    </message>
    <message>
        <source>en</source>
        <translation>fr</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>minuscules</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>Vellumry n’ouvre un fichier que lorsque vous le collez ou le copiez.</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>Votre bureau ne l’a pas permis. Vérifiez ses paramètres des programmes lancés à l’ouverture de session.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>%1 est fermé à Vellumry. Donnez-vous le droit de lire ce dossier.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>%1 est fermé à Vellumry. Donnez-vous le droit de lire ce dossier.</translation>
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
        <translation>Début</translation>
    </message>
    <message>
        <source>↘</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>↩</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>⇞</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>⇟</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>⇥</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Maj+</translation>
    </message>
    <message>
        <source>⇧↑  ⇧↓</source>
        <translation>Maj+↑  Maj+↓</translation>
    </message>
    <message>
        <source>⇧↩</source>
        <translation>Maj+Entrée</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>⌃⌘S</source>
        <translation>Super+Ctrl+S</translation>
    </message>
    <message>
        <source>⌃⌘V</source>
        <translation>Super+Ctrl+V</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Super+Alt+%1</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>⌘%1</source>
        <translation>Ctrl+%1</translation>
    </message>
    <message>
        <source>⌘,</source>
        <translation>Ctrl+,</translation>
    </message>
    <message>
        <source>⌘1 … ⌘9</source>
        <translation>Ctrl+1 … Ctrl+9</translation>
    </message>
    <message>
        <source>⌘C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>⌘M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>⌘P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>⌘Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>⌘T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>⌘⌫</source>
        <translation>Ctrl+Suppr</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>⌫</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>%1 can't be written to. Choose another folder.</source>
        <translation>Impossible d’écrire dans %1. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>%1 ne contient pas d’exportation terminée de Vellumry.</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>%1 n’est pas vide. Choisissez un nouveau dossier.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n élément dépasse les limites de votre historique.</numerusform>
            <numerusform>%n éléments dépassent les limites de votre historique.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n élément se trouve maintenant dans %1, sans y être chiffré.</numerusform>
            <numerusform>%n éléments se trouvent maintenant dans %1, sans y être chiffrés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>%n élément n’a pas pu être lu.</numerusform>
            <numerusform>%n éléments n’ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>%n élément qui se supprime de lui-même a été laissé de côté.</numerusform>
            <numerusform>%n éléments qui se suppriment d’eux-mêmes ont été laissés de côté.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>%n élément a été importé.</numerusform>
            <numerusform>%n éléments ont été importés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n élément était déjà dans votre historique.</numerusform>
            <numerusform>%n éléments étaient déjà dans votre historique.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>%n élément a été laissé de côté, car rien n’est enregistré depuis son application.</numerusform>
            <numerusform>%n éléments ont été laissés de côté, car rien n’est enregistré depuis leurs applications.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>%n entrée ne contenait rien qui puisse être gardé.</numerusform>
            <numerusform>%n entrées ne contenaient rien qui puisse être gardé.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n élément, dont %1 images</numerusform>
            <numerusform>%n éléments, dont %1 images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n élément, une image</numerusform>
            <numerusform>%n éléments, dont une image</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>%n mot de passe, code ou clé a été laissé de côté.</numerusform>
            <numerusform>%n mots de passe, codes ou clés ont été laissés de côté.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>%n image a été laissée de côté, car votre disque est presque plein.</numerusform>
            <numerusform>%n images ont été laissées de côté, car votre disque est presque plein.</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>Un dossier exporté par Vellumry</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>Apportez vos éléments</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>Endommagé. Ce qui peut être lu : %1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>Endommagé : rien ne peut y être lu</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Contacter l’assistance</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>Chiffré : rien ne peut y être lu</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>Tout exporter</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportation…</translation>
    </message>
    <message>
        <source>Exporting… %1</source>
        <translation>Exportation… %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Folder to import from</source>
        <translation>Dossier à importer</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>Depuis une autre application de presse-papiers, ou depuis un dossier exporté par Vellumry.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importer de nouveau</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importer le dossier</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>Importer des éléments</translation>
    </message>
    <message>
        <source>Importing %1 of %2…</source>
        <translation>Importation de %1 sur %2…</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importation…</translation>
    </message>
    <message>
        <source>Importing… %1</source>
        <translation>Importation… %1</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>It can't be opened</source>
        <translation>Impossible à ouvrir</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>Il est endommagé : ce qui pouvait être lu a été examiné.</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>Recherche d’autres applications de presse-papiers…</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>Aucun historique de CopyQ, GPaste, Klipper ou Clipman n’a été trouvé.</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>Autres applications</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>Arrêté. Rien n’a été laissé dans %1.</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>Les textes, images et listes de fichiers deviennent des fichiers ordinaires, avec un index de leurs dates, titres et épingles. Ils n’y sont pas chiffrés : quiconque peut lire le dossier peut lire vos éléments. Les éléments qui se suppriment d’eux-mêmes sont laissés de côté.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>Le disque est plein. Rien n’a été laissé dans %1.</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>L’importation a été annulée.</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>Les fichiers de l’autre application sont seulement lus. Les mots de passe, codes et clés sont laissés de côté, ainsi que les éléments que vous avez déjà.</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>Le reste n’a pas été examiné, car vous avez arrêté.</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>Il n’y a plus rien à importer ici.</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>Vers un dossier de fichiers ordinaires.</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>Trop volumineux pour être lu</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>Annuler l’importation</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>Chargement de l’historique…</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>GNOME n’a pas activé l’extension. Cherchez Vellumry dans l’application Extensions.</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>L’extension sera active à votre prochaine connexion. Déconnectez-vous puis reconnectez-vous pour l’utiliser.</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>L’extension est activée. Vellumry redémarre avec elle.</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>L’extension de Vellumry pour GNOME est désactivée</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>Avec elle, aucune copie n’échappe à Vellumry, les raccourcis fonctionnent partout et Vellumry colle pour vous.</translation>
    </message>
</context>
</TS>
