<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>%1 para pegar esto en cualquier lugar</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>Otra aplicación ya usa %1. Elija otro atajo.</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 está libre.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>%1 por pegar</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Siguiente: %1</translation>
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
            <numerusform>%n carácter</numerusform>
            <numerusform>%n caracteres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>%n elemento eliminado</numerusform>
            <numerusform>%n elementos eliminados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>%n elemento seleccionado</numerusform>
            <numerusform>%n elementos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n elemento · Capturando</numerusform>
            <numerusform>%n elementos · Capturando</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n elemento · Sin guardar: se conserva hasta salir</numerusform>
            <numerusform>%n elementos · Sin guardar: se conservan hasta salir</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n elemento · En pausa</numerusform>
            <numerusform>%n elementos · En pausa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n elemento · En pausa hasta las %1</numerusform>
            <numerusform>%n elementos · En pausa hasta las %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n elemento · cifrado en este equipo</numerusform>
            <numerusform>%n elementos · cifrados en este equipo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n día</numerusform>
            <numerusform>%n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>%n gestor de contraseñas más (como Bitwarden, LastPass o Dashlane) también se omite en cuanto se instala.</numerusform>
            <numerusform>%n gestores de contraseñas más (Bitwarden, LastPass, Dashlane…) también se omiten en cuanto se instalan.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 día</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mes</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 semana</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 año</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>Añadir aplicaciones…</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>Añadir a la pila de pegado</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>Después de %n hora</numerusform>
            <numerusform>Después de %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>Después de %n minuto</numerusform>
            <numerusform>Después de %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>Después de %n segundo</numerusform>
            <numerusform>Después de %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>%n pegado</numerusform>
            <numerusform>Los %n pegados</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>Permitir pegar…</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>Permitir que Vellumry pegue por usted</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>Puede pulsar teclas</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>Permitido. Los archivos de estas carpetas se pegan con normalidad.</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>Permitido. Vellumry puede pegar por usted.</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Permitir…</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>Siempre activo</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>Otro programa está usando su historial</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>Lo que una aplicación marca como secreto o temporal nunca se guarda.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>Aplicaciones que pegan de otra forma</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>Eliminar automáticamente números de tarjeta, códigos y claves de API</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>Tarjeta •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Comprobar ahora</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Compruebe los permisos de %1. Hasta entonces, los elementos solo se conservan hasta que salga de Vellumry.</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>Busca una vez al día</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>Elegir aplicaciones</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Elegidos</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Vaciar el historial</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>Vaciar y conservar los fijados</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Vaciar el historial…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Vaciar el historial</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>¿Vaciar el historial del portapapeles?</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Vaciar…</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>Pulse un atajo con el ratón y después las teclas nuevas. Retroceso recupera el original, Esc cancela.</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Elementos</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copied from %1</source>
        <translation>Copiado de %1</translation>
    </message>
    <message>
        <source>Copied from an unknown app</source>
        <translation>Copiado de una aplicación desconocida</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>Copiado. Pulse Ctrl+V para pegar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>Copie una vez. Encuéntrelo siempre.</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>Copie algo. Aparecerá aquí.</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>Copie esto</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>Copie lo que necesite y pulse Ctrl+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>No se han podido combinar estos elementos</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>No se ha podido pegar este elemento</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>Depósito de claves predeterminado</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>Eliminar %n</numerusform>
            <numerusform>Eliminar %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>Eliminar %n elemento</numerusform>
            <numerusform>Eliminar %n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Eliminar (Ctrl+Supr)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>«Eliminar todo» también quita los elementos fijados. Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>Eliminarlos</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>Arrastre el panel por un lugar vacío para moverlo. La próxima vez se abrirá ahí.</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>Cada pegado toma el elemento siguiente.</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>Soporte por correo</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>Historial cifrado</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>Se detecta cada copia.</translation>
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
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>Los archivos de Escritorio, Documentos y Descargas se pegan con normalidad.</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>Archivos que copie en su gestor de archivos</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>Lo encuentra con un par de teclas</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>Durante 1 hora</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>Durante 5 minutos</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>Para el atajo, añada esto a %1</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>Para el atajo, asígnelos en la configuración de su escritorio</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>Saludos de Vellumry 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>Oculto · se eliminará pronto</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>Oculto. Se eliminará en %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>Mantenga pulsada Ctrl, Alt o Súper junto con la tecla.</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>Icono en la bandeja del sistema</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>Ignorar la próxima copia</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>Imagen %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>Imagen · Captura de pantalla</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>Imágenes y archivos ocupan hasta</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>Las imágenes no se pueden combinar. Arrástrelas fuera</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>Las imágenes no se pueden combinar. Arrástrelas fuera o péguelas una a una con la pila.</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>En la papelera</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>En todas las aplicaciones</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>En la papelera. Se puede pegar hasta que se vacíe</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>En el panel</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>Instale Tesseract y los datos de su idioma.</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>No entrega, o no guarda, la clave de su historial del portapapeles. Permítalo en la configuración del depósito de claves. Hasta entonces, los elementos solo se conservan hasta que salga de Vellumry.</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>Usa el archivo de %1. Cuando termine, su historial volverá por sí solo, con lo que haya copiado hasta entonces.</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>Conservar como máximo</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>Conservar los elementos</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>Conservar los elementos fijados o eliminar todo.</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>Última comprobación hace %n día</numerusform>
            <numerusform>Última comprobación hace %n días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>Última comprobación hace %n hora</numerusform>
            <numerusform>Última comprobación hace %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>Última comprobación hace %n minuto</numerusform>
            <numerusform>Última comprobación hace %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>Última comprobación ahora mismo</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>Deje que Vellumry pegue por usted</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>Como un terminal</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>Como otras aplicaciones</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>Combinar y pegar</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>Combinar y pegar</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>Combinar y pegar</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>Combinar en un solo elemento</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>Combinar los une en un solo elemento, uno por línea, en el orden en que los copió.</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>Combinar crea un elemento con todos estos archivos.</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>Combinado</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>%n elemento combinado</numerusform>
            <numerusform>%n elementos combinados en uno</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>Mover al centro</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>Necesita su permiso para pulsar teclas</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>No guardar nunca</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>No guardar nunca de</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>Las nuevas capturas de pantalla se guardarán en Vellumry</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>Los más recientes primero. Pulse para los más antiguos primero</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>Filtro siguiente · cerrar</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>No se han encontrado aplicaciones</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>Ningún elemento coincide con «%1»</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>En esta sesión no responde ningún depósito de claves, y la clave de su historial del portapapeles se guarda en uno. Inicie GNOME Keyring, KWallet o KeePassXC: su historial volverá por sí solo, con lo que haya copiado hasta entonces. Sin depósito de claves, los elementos solo se conservan hasta que salga de Vellumry.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>No instalada</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>Ahora no, pulsaré Ctrl+V yo</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Aún no hay nada</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>Aún no hay nada fijado en Súper+Alt+%1. Fije un elemento con Ctrl+P</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>Desactivado = Vellumry copia y usted pulsa Ctrl+V.</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>Desactivadas en las versiones de desarrollo</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>Desactivado: usted pulsa Ctrl+V</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>Los más antiguos primero. Pulse para los más recientes primero</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>Los elementos sin fijar más antiguos salen primero. Los fijados se conservan siempre.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>En «%1», que no está conectado</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>Abrirlo por mí</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Abrir el enlace</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Pedir permiso</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>Abrir Vellumry</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>Abrir Vellumry al iniciar sesión</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>Opcional. Vellumry prueba Escritorio, Documentos y Descargas una vez.</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>Posición del panel</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>Pegar el nombre del archivo</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>Pegar uno a uno (pila de pegado)</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>Pila de pegado</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>No se ha podido iniciar la pila de pegado. Otro programa se reserva Ctrl+V</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>La pila de pegado necesita «Permitir que Vellumry pegue por usted»</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>Pila de pegado: copie varias cosas y cada Ctrl+V pega la siguiente (Súper+Ctrl+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>Pegar el texto de la imagen</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>Pegar transformado</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>Pegar como texto sin formato</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>Pegar siempre como texto sin formato</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>Pegar el elemento 1–9</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>Pegar directamente en la aplicación</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>Pegar nombre</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>Pegar archivos de Escritorio, Documentos y Descargas</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>Volver a pegar en esta aplicación como siempre</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>Pegar uno a uno</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>Pegar elementos fijados con Súper+Alt+1 … Súper+Alt+9</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>Pegarlos uno a uno: cada Ctrl+V pega el siguiente (pila de pegado)</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>Pegar transformado</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>Pegar · pegar sin formato</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>Pegado</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>Pega como texto sin formato. Su elemento queda como está.</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>Pega por usted</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>Pega el texto de esta imagen</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>Pegado</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>Pegar por usted</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>Pausar la captura</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>En pausa. Nada de lo que copie se guardará hasta que reanude</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>Elija un elemento y llegará justo donde estaba escribiendo. Algunos escritorios le piden permiso una vez.</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>Elija en su lugar los elementos uno a uno en el panel.</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fijar</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>Fijar %n elemento</numerusform>
            <numerusform>Fijar %n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>Fijar (Ctrl+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>Fijar %n</numerusform>
            <numerusform>Fijar los %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>Fijar · eliminar · copiar</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fijados</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>Fijado</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>Los elementos fijados se conservan. Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Sin formato</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>Pulse %1 en cualquier momento para abrir Vellumry.</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>Pulse Intro para pegar aquí</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>Pulse el nuevo atajo…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>Permiso para pulsar teclas</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>Privado y cifrado</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>Salir de Vellumry</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>Leer el texto de esta imagen</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>Leyendo el texto de esta imagen…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>Elementos recientes en el menú</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>Recordar lo que copia</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>Recuerda todo lo que copia</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>Quitar saltos de línea</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>Reiniciar para actualizar a %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>Reanudar la captura</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>Reanudado. Lo que copie se guarda de nuevo</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>Guardar nuevas capturas de pantalla</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>Volver a guardar de esta aplicación</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>Guardar nuevas capturas de pantalla</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de pantalla</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>Captura de pantalla del %1 a las %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Capturas de pantalla</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>También se añaden las capturas de pantalla que guarde, y se puede buscar en su texto. Vellumry debe poder leer la carpeta en la que están.</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>Las capturas de pantalla que guarde también se añaden a Vellumry, y se puede buscar en su texto.</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Buscar aplicaciones</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Buscar elementos</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>Secretos</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>Seleccionar varios · combinar</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>Confidencial · se elimina solo</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>Mayúscula inicial</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>Cree, en la configuración del teclado de su escritorio, un atajo que ejecute: vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>Atajos en todas las aplicaciones</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en Archivos</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>Mostrar…</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>Omitir contraseñas de los gestores de contraseñas</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>Se ha omitido un archivo eliminado</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>Omitido. Esa copia no se ha guardado</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>Para que la búsqueda la encuentre por sus palabras. El sistema puede pedirle una vez acceso a esta carpeta.</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>Sonido al pegar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>Iniciar / detener la pila de pegado</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>Inicie GNOME Keyring, KWallet o KeePassXC. Hasta entonces, los elementos se conservan hasta salir.</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>Iniciar la pila de pegado</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>Empezar a usar Vellumry</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>Inicie Vellumry de nuevo para abrir la configuración, o instale una extensión de bandeja para su escritorio.</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>Detener la pila de pegado</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>Detener la pila de pegado (queda %n)</numerusform>
            <numerusform>Detener la pila de pegado (quedan %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>Detener la pila de pegado (Súper+Ctrl+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>Permita que Vellumry pulse teclas cuando su escritorio lo pregunte. Esta pantalla se actualiza sola.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>Los terminales pegan con otras teclas. Vellumry conoce la mayoría; añada el suyo si al pegar no ocurre nada.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>Texto de la imagen</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>Texto en imágenes</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>Textos, enlaces, imágenes, archivos y colores.</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>Eso es todo. Todo lo que copie está ahora a un atajo de distancia.</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>El archivo de %1 se ha dejado como estaba. Compruebe sus permisos y el disco. Vellumry lo intenta de nuevo; hasta entonces, los elementos solo se conservan hasta que salga.</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>El historial no se puede guardar ahora. Vellumry lo intenta de nuevo</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>Contiene la clave de su historial del portapapeles. Desbloquee el depósito: su historial volverá por sí solo, con lo que haya copiado hasta entonces. Mientras esté bloqueado, los elementos solo se conservan hasta que salga de Vellumry.</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>La clave de su historial está dañada</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>Lo próximo que copie no se guarda en Vellumry. Úselo antes de copiar una contraseña u otro texto privado.</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>No se ha podido descargar la actualización. Nada ha cambiado</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>Este elemento ya no se puede copiar</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>Este escritorio no informa a Vellumry de las copias. Entre en otra sesión, como X11.</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>Este campo no deja pegar a las aplicaciones. Pulse Ctrl+V</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>Este archivo se ha eliminado</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>Esta es una sesión de Wayland: Vellumry ve lo que copian las aplicaciones X11 y lo que el escritorio comparte con ellas. Pueden faltar algunas copias</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>Esto es todo lo que es Vellumry. No volverá a perder una copia.</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>Este enlace no se puede abrir</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>Mayúscula En Cada Palabra</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>Para pegar archivos de %1, dé permiso a Vellumry para leer esa carpeta</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>Transformar</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>Transformar (Ctrl+T)</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>Transformaciones</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>Solo se puede transformar texto</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>Quitar espacios sobrantes</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>Pruébelo: lleva 5 segundos</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>Escriba dos letras. Incluso el texto de las capturas de pantalla.</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>MAYÚSCULAS</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>Aplicación desconocida</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Desbloquear…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Desfijar</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>Desfijar %n elemento</numerusform>
            <numerusform>Desfijar %n elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>Desfijar (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>Desfijar todos (Ctrl+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Hasta que la reanude</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>Actualizar a Vellumry %1…</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usarlo</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>Vellumry %1 está listo para instalarse</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>Configuración de Vellumry</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>Sitio web de Vellumry</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry no puede abrir ese archivo. Dele permiso para leer la carpeta</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry no puede abrir su carpeta de capturas de pantalla. Dele permiso para leerla</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>Vellumry no puede abrir su carpeta de capturas de pantalla. Dele permiso para leerla.</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>Vellumry no puede acceder a su depósito de claves</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>Vellumry no puede leer su historial</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>Vellumry no puede iniciarse en esta sesión</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>Vellumry no puede escribir en su carpeta</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>Vellumry copia y usted pulsa Ctrl+V. Permítale pulsar teclas si su escritorio lo pregunta.</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>Vellumry está actualizado</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>Vellumry guarda un enlace a los archivos que copia, no una copia, por lo que un archivo eliminado no se puede pegar. Los archivos movidos o renombrados se siguen automáticamente.</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>Vellumry guarda ahí la clave de su historial cifrado. Su escritorio le pedirá la contraseña del depósito. Hasta entonces, los elementos se conservan hasta salir.</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>Vellumry está en la bandeja del sistema. Pulse el atajo en cualquier momento.</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>Vellumry necesita una pantalla X11 y no ha encontrado ninguna. En una sesión de Wayland, active Xwayland, o entre en una sesión X11.</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>Vellumry solo pulsa Ctrl+V por usted. Nunca lee su pantalla ni lo que escribe.</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>Vellumry pulsa por usted las teclas de pegar.</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>Vellumry ha empezado un historial nuevo</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>Vellumry se actualiza mientras no está usted ante el equipo. Desactivado = pregunta antes.</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>El menú de Vellumry está ahí.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>Le damos la bienvenida a Vellumry</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>Qué funciona en este escritorio</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Lo que su depósito guarda como «Vellumry history key» no es una clave. Restáurela, o quítela para empezar un historial nuevo. Hasta entonces, los elementos solo se conservan hasta que salga de Vellumry.</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>Donde un gestor de paquetes mantiene Vellumry, también lo actualiza.</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>Se encuentran las palabras de las imágenes.</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>Funciona en todas las aplicaciones, sin abrir Vellumry.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>Todo listo</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>Su equipo está casi lleno. Por ahora, Vellumry solo guarda texto</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>No se puede abrir su historial del portapapeles. Haga sitio en el disco: volverá por sí solo, con lo que haya copiado hasta entonces.</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>Sus elementos nunca salen de este equipo.</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>Su escritorio puede pedirle la contraseña del depósito de claves. En él está la clave de su historial</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>Su disco está lleno</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>Su historial no está abierto. Desbloquee el depósito de claves: volverá por sí solo.</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>Su depósito de claves está bloqueado</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>Su depósito de claves guarda la clave.</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>Su depósito de claves ha rechazado a Vellumry</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>Su próxima copia se guardará</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>Su próxima copia no se guardará</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>Aquí llega lo que pegue</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>Su historial anterior no se ha podido leer en este equipo, así que se ha empezado uno nuevo. El antiguo se conserva como copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>Sus atajos llegan a Vellumry esté donde esté.</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 kB</translation>
    </message>
    <message>
        <source>en</source>
        <translation>es</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>minúsculas</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>Vellumry solo abre un archivo cuando usted lo pega o lo copia.</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>Su escritorio no lo ha permitido. Revise su configuración de programas al inicio.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>Vellumry no puede leer %1. Dese permiso para leer esa carpeta.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>Vellumry no puede leer %1. Dese permiso para leer esa carpeta.</translation>
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
        <translation>Inicio</translation>
    </message>
    <message>
        <source>↘</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>↩</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>⇞</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>⇟</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>⇥</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Mayús+</translation>
    </message>
    <message>
        <source>⇧↑  ⇧↓</source>
        <translation>Mayús+↑  Mayús+↓</translation>
    </message>
    <message>
        <source>⇧↩</source>
        <translation>Mayús+Intro</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Súper+</translation>
    </message>
    <message>
        <source>⌃⌘S</source>
        <translation>Súper+Ctrl+S</translation>
    </message>
    <message>
        <source>⌃⌘V</source>
        <translation>Súper+Ctrl+V</translation>
    </message>
    <message>
        <source>⌃⌥%1</source>
        <translation>Súper+Alt+%1</translation>
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
        <translation>Ctrl+Supr</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>⌫</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>%1 can't be written to. Choose another folder.</source>
        <translation>No se puede escribir en %1. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>%1 no contiene ninguna exportación terminada de Vellumry.</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>%1 no está vacía. Elija una carpeta nueva.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n elemento supera los límites de su historial.</numerusform>
            <numerusform>%n elementos superan los límites de su historial.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n elemento está ahora en %1, y ahí no está cifrado.</numerusform>
            <numerusform>%n elementos están ahora en %1, y ahí no están cifrados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>No se ha podido leer %n elemento.</numerusform>
            <numerusform>No se han podido leer %n elementos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>Se ha omitido %n elemento que se elimina solo.</numerusform>
            <numerusform>Se han omitido %n elementos que se eliminan solos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>Se ha importado %n elemento.</numerusform>
            <numerusform>Se han importado %n elementos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n elemento ya estaba en su historial.</numerusform>
            <numerusform>%n elementos ya estaban en su historial.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>Se ha omitido %n elemento, porque no se guarda nada de su aplicación.</numerusform>
            <numerusform>Se han omitido %n elementos, porque no se guarda nada de sus aplicaciones.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>%n entrada no contenía nada que se pueda conservar.</numerusform>
            <numerusform>%n entradas no contenían nada que se pueda conservar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n elemento</numerusform>
            <numerusform>%n elementos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n elemento, %1 de ellos imágenes</numerusform>
            <numerusform>%n elementos, %1 de ellos imágenes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n elemento, una imagen</numerusform>
            <numerusform>%n elementos, uno de ellos una imagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>Se ha omitido %n contraseña, código o clave.</numerusform>
            <numerusform>Se han omitido %n contraseñas, códigos o claves.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>Se ha omitido %n imagen, porque su disco está casi lleno.</numerusform>
            <numerusform>Se han omitido %n imágenes, porque su disco está casi lleno.</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>Una carpeta exportada por Vellumry</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>Traiga sus elementos</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>Dañado. Lo que se puede leer: %1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>Dañado: no se puede leer nada</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Soporte por correo</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>Cifrado: no se puede leer nada</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>Exportar todo</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message>
        <source>Exporting… %1</source>
        <translation>Exportando… %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Folder to import from</source>
        <translation>Carpeta desde la que importar</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>De otra aplicación de portapapeles, o de una carpeta exportada por Vellumry.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importar de nuevo</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importar carpeta</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>Importar elementos</translation>
    </message>
    <message>
        <source>Importing %1 of %2…</source>
        <translation>Importando %1 de %2…</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importando…</translation>
    </message>
    <message>
        <source>Importing… %1</source>
        <translation>Importando… %1</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>It can't be opened</source>
        <translation>No se puede abrir</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>Está dañado: se ha revisado lo que se podía leer.</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>Buscando otras aplicaciones de portapapeles…</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>No se ha encontrado ningún historial de CopyQ, GPaste, Klipper o Clipman.</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>Otras aplicaciones</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>Detenido. No ha quedado nada en %1.</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>Deshaciendo…</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Condiciones</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>Los textos, imágenes y listas de archivos se convierten en archivos corrientes, con un índice de sus fechas, títulos y fijados. Ahí no están cifrados: quien pueda leer la carpeta puede leer sus elementos. Los elementos que se eliminan solos se omiten.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>El disco está lleno. No ha quedado nada en %1.</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>Se ha deshecho la importación.</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>Los archivos de la otra aplicación solo se leen. Se omiten contraseñas, códigos y claves, y los elementos que ya tiene.</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>El resto no se ha revisado, porque lo ha detenido.</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>Aquí ya no hay nada que importar.</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>A una carpeta de archivos corrientes.</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>Demasiado grande para leerse</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>Deshacer importación</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>Cargando el historial…</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>GNOME no activó la extensión. Busque Vellumry en la aplicación Extensiones.</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>La extensión estará activa desde su próximo inicio de sesión. Cierre la sesión y vuelva a entrar para usarla.</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>La extensión está activada. Vellumry se inicia de nuevo con ella.</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>La extensión de Vellumry para GNOME está desactivada</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>Con ella no se pierde ninguna copia, los atajos funcionan en todas partes y Vellumry pega por usted.</translation>
    </message>
</context>
</TS>
