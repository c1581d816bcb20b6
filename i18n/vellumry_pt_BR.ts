<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>%1 para colar isto em qualquer lugar</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 bytes</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>%1 já é usado por outro aplicativo. Escolha outro atalho.</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 está livre.</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>%1 para colar</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>Próximo: %1</translation>
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
            <numerusform>%n caractere</numerusform>
            <numerusform>%n caracteres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n itens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>%n item excluído</numerusform>
            <numerusform>%n itens excluídos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>%n item selecionado</numerusform>
            <numerusform>%n itens selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n item · Capturando</numerusform>
            <numerusform>%n itens · Capturando</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n item · Não salvo: mantido até você sair</numerusform>
            <numerusform>%n itens · Não salvos: mantidos até você sair</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n item · Em pausa</numerusform>
            <numerusform>%n itens · Em pausa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n item · Em pausa até %1</numerusform>
            <numerusform>%n itens · Em pausa até %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n item · criptografado neste computador</numerusform>
            <numerusform>%n itens · criptografados neste computador</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n dia</numerusform>
            <numerusform>%n dias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>mais %n</numerusform>
            <numerusform>mais %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>Mais %n gerenciador de senhas (como Bitwarden, LastPass ou Dashlane) também é ignorado assim que for instalado.</numerusform>
            <numerusform>Mais %n gerenciadores de senhas (Bitwarden, LastPass, Dashlane…) também são ignorados assim que forem instalados.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 dia</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 mês</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 semana</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 ano</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 meses</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>Adicionar aplicativos…</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>Adicionar à pilha de colagem</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>Após %n hora</numerusform>
            <numerusform>Após %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>Após %n minuto</numerusform>
            <numerusform>Após %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>Após %n segundo</numerusform>
            <numerusform>Após %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tudo</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>%n colado</numerusform>
            <numerusform>Todos os %n colados</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>Permitir colar…</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>Permitir que o Vellumry cole por você</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>Tem permissão para pressionar teclas</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>Permitido. Os arquivos dessas pastas são colados normalmente.</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>Permitido. O Vellumry pode colar por você.</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Permitir…</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>Sempre ativo</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>Outro programa está usando seu histórico</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>O que um aplicativo marca como secreto ou temporário nunca é salvo.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>Aplicativos que colam de outro jeito</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>Excluir automaticamente números de cartão, códigos e chaves de API</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>Cartão •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Verificar agora</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Verifique as permissões de %1. Até lá, os itens só são mantidos até você sair do Vellumry.</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>Verifica uma vez por dia</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>Escolher aplicativos</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>Escolhidos</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>Limpar e manter os fixados</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>Limpar histórico…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>Limpar o histórico da área de transferência?</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Limpar…</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>Clique em um atalho e pressione as novas teclas. Backspace restaura o original, Esc cancela.</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Itens</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Cores</translation>
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
        <translation>Copiado de um aplicativo desconhecido</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>Copiado. Pressione Ctrl+V para colar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>Copie uma vez. Encontre quando quiser.</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>Copie alguma coisa. Ela aparece aqui.</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>Copie isto</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>Copie o que precisar e pressione Ctrl+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>Não foi possível mesclar estes itens</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>Não foi possível colar este item</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>Chaveiro padrão</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>Excluir %n</numerusform>
            <numerusform>Excluir %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>Excluir %n item</numerusform>
            <numerusform>Excluir %n itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>Excluir (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>Excluir tudo</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>“Excluir tudo” remove também os itens fixados. Isso não pode ser desfeito.</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>Excluí-los</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Área de trabalho</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>Arraste o painel por um ponto vazio para movê-lo. Ele abrirá ali da próxima vez.</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>Cada colagem pega o próximo item.</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>Suporte por e-mail</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>Histórico criptografado</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>Toda cópia é percebida.</translation>
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
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>Os arquivos de Área de trabalho, Documentos e Downloads são colados normalmente.</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>Arquivos que você copia no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>Encontra com poucas teclas</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>Por 1 hora</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>Por 5 minutos</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>Para o atalho, adicione isto a %1</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>Para o atalho, associe-os nas configurações do seu ambiente</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Para sempre</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>Olá do Vellumry 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>Oculto · será excluído em breve</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>Oculto. Será excluído em %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>Segure Ctrl, Alt ou Super junto com a tecla.</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>Ícone na bandeja do sistema</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>Ignorar a próxima cópia</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>Imagem %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>Imagem · Captura de tela</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imagens</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>Imagens e arquivos ocupam até</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>Imagens não podem ser mescladas. Arraste-as para fora</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>Imagens não podem ser mescladas. Arraste-as para fora ou cole-as uma a uma com a pilha.</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>Na lixeira</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>Em todos os aplicativos</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>Na lixeira. Pode ser colado até ela ser esvaziada</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>No painel</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>Instale o Tesseract e os dados do seu idioma.</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar atualizações automaticamente</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>Ele não entrega, ou não guarda, a chave do seu histórico da área de transferência. Permita isso nas configurações do chaveiro. Até lá, os itens só são mantidos até você sair do Vellumry.</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>Ele usa o arquivo em %1. Quando terminar, seu histórico volta sozinho, com o que você copiou até lá.</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>Manter no máximo</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>Manter os itens por</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>Manter os itens fixados ou excluir tudo.</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>Última verificação há %n dia</numerusform>
            <numerusform>Última verificação há %n dias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>Última verificação há %n hora</numerusform>
            <numerusform>Última verificação há %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>Última verificação há %n minuto</numerusform>
            <numerusform>Última verificação há %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>Última verificação agora mesmo</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>Deixe o Vellumry colar por você</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>Como um terminal</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>Como outros aplicativos</translation>
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
        <translation>Menu</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>Mesclar e colar</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>Mesclar e colar</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>Mesclar e colar</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>Mesclar em um só item</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>Mesclar junta tudo em um só item, um por linha, na ordem em que você copiou.</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>Mesclar cria um item com todos estes arquivos.</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>Mesclado</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>%n item mesclado</numerusform>
            <numerusform>%n itens mesclados em um</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>Mover para o centro</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>Precisa da sua permissão para pressionar teclas</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>Nunca salvar</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>Nunca salvar de</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>Novas capturas de tela serão salvas no Vellumry</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>Mais recentes primeiro. Clique para os mais antigos primeiro</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>Próximo filtro · fechar</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>Nenhum aplicativo encontrado</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>Nenhum item corresponde a “%1”</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>Nenhum chaveiro responde nesta sessão, e a chave do seu histórico da área de transferência fica guardada em um. Inicie o GNOME Keyring, o KWallet ou o KeePassXC: seu histórico volta sozinho, com o que você copiou até lá. Sem um chaveiro, os itens só são mantidos até você sair do Vellumry.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Não instalado</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>Agora não, eu mesmo pressiono Ctrl+V</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Nada aqui ainda</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>Ainda não há nada fixado em Super+Alt+%1. Fixe um item com Ctrl+P</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>Desativado = o Vellumry copia e você pressiona Ctrl+V.</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>Desativadas em versões de desenvolvimento</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>Desativado: você pressiona Ctrl+V</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>Mais antigos primeiro. Clique para os mais recentes primeiro</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>Os itens não fixados mais antigos saem primeiro. Os fixados são sempre mantidos.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>Em “%1”, que não está conectado</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>Abrir para mim</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>Abrir link</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>Pedir permissão</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>Abrir o Vellumry</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>Abrir o Vellumry ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>Opcional. O Vellumry testa Área de trabalho, Documentos e Downloads uma vez.</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>Posição do painel</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>Colar o nome do arquivo</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>Colar um a um (pilha de colagem)</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>Pilha de colagem</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>Não foi possível iniciar a pilha de colagem. Outro programa reserva Ctrl+V para si</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>A pilha de colagem precisa de “Permitir que o Vellumry cole por você”</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>Pilha de colagem: copie várias coisas, cada Ctrl+V cola a próxima (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>Colar o texto da imagem</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>Colar transformado</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>Colar como texto sem formatação</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>Colar sempre como texto sem formatação</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>Colar o item 1–9</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>Colar diretamente no aplicativo</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>Colar nome</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>Colar arquivos de Área de trabalho, Documentos e Downloads</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>Voltar a colar normalmente neste aplicativo</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>Colar um a um</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>Colar itens fixados com Super+Alt+1 … Super+Alt+9</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>Colar um a um: cada Ctrl+V cola o próximo (pilha de colagem)</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>Colar transformado</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>Colar · colar sem formatação</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>Colado</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>Cola como texto sem formatação. Seu item fica como está.</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>Cola por você</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>Cola o texto desta imagem</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>Colagem</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>Colar por você</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>Pausar captura</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>Em pausa. Nada do que você copia é salvo até você retomar</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>Escolha um item e ele vai parar bem onde você estava digitando. Alguns ambientes pedem permissão uma vez.</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>Em vez disso, escolha os itens um a um no painel.</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>Fixar</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>Fixar %n item</numerusform>
            <numerusform>Fixar %n itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>Fixar (Ctrl+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>Fixar %n</numerusform>
            <numerusform>Fixar os %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>Fixar · excluir · copiar</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>Fixados</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>Fixado</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>Os itens fixados são mantidos. Isso não pode ser desfeito.</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>Sem formatação</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>Pressione %1 a qualquer momento para abrir o Vellumry.</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>Pressione Enter para colar aqui</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>Pressione o novo atalho…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>Permissão para pressionar teclas</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>Política de privacidade</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>Privado e criptografado</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>Sair do Vellumry</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>Ler o texto desta imagem</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>Lendo o texto desta imagem…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>Itens recentes no menu</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>Lembrar o que você copia</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>Lembra de tudo o que você copia</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>Remover quebras de linha</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>Reiniciar para atualizar para %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>Retomar captura</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>Retomado. O que você copia é salvo de novo</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>Salvar novas capturas de tela</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>Voltar a salvar deste aplicativo</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>Salvar novas capturas de tela</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura de tela</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>Captura de tela de %1 às %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>Capturas de tela</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>As capturas de tela que você salva também são adicionadas, e é possível pesquisar o texto delas. O Vellumry precisa poder ler a pasta em que estão.</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>As capturas de tela que você salva também são adicionadas ao Vellumry, e é possível pesquisar o texto delas.</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>Pesquisar aplicativos</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>Pesquisar itens</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>Segredos</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>Selecionar vários · mesclar</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>Sensível · exclui-se sozinho</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>Maiúscula no início da frase</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>Crie, nas configurações de teclado do seu ambiente, um atalho que execute: vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>Atalhos em todos os aplicativos</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar em Arquivos</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>Mostrar…</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>Ignorar senhas de gerenciadores de senhas</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>Um arquivo excluído foi pulado</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>Ignorado. Essa cópia não foi salva</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>Para que a pesquisa a encontre pelas palavras. O sistema pode pedir uma vez acesso a esta pasta.</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>Som ao colar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Pilha</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>Iniciar / parar a pilha de colagem</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>Inicie o GNOME Keyring, o KWallet ou o KeePassXC. Até lá, os itens são mantidos até você sair.</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>Iniciar a pilha de colagem</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>Começar a usar o Vellumry</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>Inicie o Vellumry de novo para abrir as configurações, ou instale uma extensão de bandeja para o seu ambiente.</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>Parar a pilha de colagem</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>Parar a pilha de colagem (resta %n)</numerusform>
            <numerusform>Parar a pilha de colagem (restam %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>Parar a pilha de colagem (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>Permita que o Vellumry pressione teclas quando o seu ambiente perguntar. Esta tela se atualiza sozinha.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>Terminais colam com outras teclas. O Vellumry conhece a maioria deles; adicione o seu se colar nele não fizer nada.</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>Texto da imagem</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>Texto em imagens</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>Textos, links, imagens, arquivos e cores.</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>É só isso. Tudo o que você copiar está agora a um atalho de distância.</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>O arquivo em %1 foi deixado como estava. Verifique as permissões dele e o disco. O Vellumry tenta de novo; até lá, os itens só são mantidos até você sair.</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>O histórico não pode ser salvo agora. O Vellumry tenta de novo</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>A chave do seu histórico da área de transferência está nele. Desbloqueie o chaveiro: seu histórico volta sozinho, com o que você copiou até lá. Enquanto ele estiver bloqueado, os itens só são mantidos até você sair do Vellumry.</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>A chave do seu histórico está danificada</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>O que você copiar a seguir não será salvo no Vellumry. Use antes de copiar uma senha ou outro texto particular.</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>Não foi possível baixar a atualização. Nada mudou</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>Este item não pode mais ser copiado</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>Este ambiente não informa ao Vellumry sobre as cópias. Entre em outra sessão, como X11.</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>Este campo não deixa aplicativos colarem. Pressione Ctrl+V</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>Este arquivo foi excluído</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>Esta é uma sessão Wayland: o Vellumry vê o que os aplicativos X11 copiam e o que o ambiente compartilha com eles. Algumas cópias podem faltar</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>O Vellumry é só isso. Você nunca mais perde uma cópia.</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>Este link não pode ser aberto</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>Maiúscula Em Cada Palavra</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>Para colar arquivos de %1, dê ao Vellumry permissão para ler essa pasta</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
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
        <translation>Transformações</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>Só é possível transformar texto</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>Remover espaços nas pontas</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>Experimente: leva 5 segundos</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>Digite duas letras. Até o texto das capturas de tela.</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>MAIÚSCULAS</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>Aplicativo desconhecido</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>Desbloquear…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>Desafixar</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>Desafixar %n item</numerusform>
            <numerusform>Desafixar %n itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>Desafixar (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>Desafixar todos (Ctrl+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>Até eu retomar</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>Atualizar para o Vellumry %1…</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>O Vellumry %1 está pronto para ser instalado</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>Configurações do Vellumry</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>Site do Vellumry</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>O Vellumry não consegue abrir esse arquivo. Dê permissão para ler a pasta</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>O Vellumry não consegue abrir sua pasta de capturas de tela. Dê permissão para lê-la</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>O Vellumry não consegue abrir sua pasta de capturas de tela. Dê permissão para lê-la.</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>O Vellumry não consegue acessar seu chaveiro</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>O Vellumry não consegue ler seu histórico</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>O Vellumry não pode iniciar nesta sessão</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>O Vellumry não consegue gravar na pasta dele</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>O Vellumry copia e você pressiona Ctrl+V. Permita que ele pressione teclas se o seu ambiente perguntar.</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>O Vellumry está atualizado</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>O Vellumry guarda um link para os arquivos que você copia, não uma cópia; por isso, um arquivo excluído não pode ser colado. Arquivos movidos ou renomeados são acompanhados automaticamente.</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>O Vellumry guarda ali a chave do seu histórico criptografado. Seu ambiente pedirá a senha do chaveiro. Até lá, os itens são mantidos até você sair.</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>O Vellumry fica na bandeja do sistema. Pressione o atalho a qualquer momento.</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>O Vellumry precisa de uma tela X11 e não encontrou nenhuma. Em uma sessão Wayland, ative o Xwayland, ou entre em uma sessão X11.</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>O Vellumry só pressiona Ctrl+V por você. Ele nunca lê sua tela nem o que você digita.</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>O Vellumry pressiona as teclas de colar por você.</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>O Vellumry começou um novo histórico</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>O Vellumry se atualiza enquanto você está longe do computador. Desativado = ele pergunta antes.</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>O menu do Vellumry está ali.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>Boas-vindas ao Vellumry</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>O que funciona neste ambiente</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>O que seu chaveiro guarda como “Vellumry history key” não é uma chave. Restaure-a, ou remova-a para começar um novo histórico. Até lá, os itens só são mantidos até você sair do Vellumry.</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>Onde um gerenciador de pacotes cuida do Vellumry, ele também o atualiza.</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>As palavras nas imagens são encontradas.</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>Funciona em todos os aplicativos, sem abrir o Vellumry.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>Tudo pronto</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>Seu computador está quase cheio. Por enquanto, o Vellumry só salva texto</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>Seu histórico da área de transferência não pode ser aberto. Libere espaço no disco: ele volta sozinho, com o que você copiou até lá.</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>Seus itens nunca saem deste computador.</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>Seu ambiente pode pedir a senha do chaveiro. A chave do seu histórico está nele</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>Seu disco está cheio</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>Seu histórico não está aberto. Desbloqueie o chaveiro: ele volta sozinho.</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>Seu chaveiro está bloqueado</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>Seu chaveiro guarda a chave.</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>Seu chaveiro recusou o Vellumry</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>Sua próxima cópia será salva</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>Sua próxima cópia não será salva</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>O que você colar aparece aqui</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>Seu histórico anterior não pôde ser lido neste computador, por isso um novo foi iniciado. O antigo foi mantido como backup: %1</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>Seus atalhos alcançam o Vellumry onde você estiver.</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 kB</translation>
    </message>
    <message>
        <source>en</source>
        <translation>pt_BR</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>minúsculas</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>O Vellumry só abre um arquivo quando você o cola ou copia.</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>Seu ambiente não permitiu. Verifique as configurações de aplicativos iniciados com a sessão.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>O Vellumry não consegue ler %1. Dê a si mesmo permissão para ler essa pasta.</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>O Vellumry não consegue ler %1. Dê a si mesmo permissão para ler essa pasta.</translation>
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
        <translation>Home</translation>
    </message>
    <message>
        <source>↘</source>
        <translation>End</translation>
    </message>
    <message>
        <source>↩</source>
        <translation>Enter</translation>
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
        <source>⇥</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Shift+</translation>
    </message>
    <message>
        <source>⇧↑  ⇧↓</source>
        <translation>Shift+↑  Shift+↓</translation>
    </message>
    <message>
        <source>⇧↩</source>
        <translation>Shift+Enter</translation>
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
        <translation>Ctrl+Del</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>⌫</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>%1 can't be written to. Choose another folder.</source>
        <translation>Não é possível gravar em %1. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>%1 não contém uma exportação concluída do Vellumry.</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>%1 não está vazia. Escolha uma pasta nova.</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n item ultrapassa os limites do seu histórico.</numerusform>
            <numerusform>%n itens ultrapassam os limites do seu histórico.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n item está agora em %1, e ali não está criptografado.</numerusform>
            <numerusform>%n itens estão agora em %1, e ali não estão criptografados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>Não foi possível ler %n item.</numerusform>
            <numerusform>Não foi possível ler %n itens.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>%n item que se exclui sozinho foi deixado de fora.</numerusform>
            <numerusform>%n itens que se excluem sozinhos foram deixados de fora.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>%n item foi importado.</numerusform>
            <numerusform>%n itens foram importados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n item já estava no seu histórico.</numerusform>
            <numerusform>%n itens já estavam no seu histórico.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>%n item foi deixado de fora, pois nada é salvo do aplicativo dele.</numerusform>
            <numerusform>%n itens foram deixados de fora, pois nada é salvo dos aplicativos deles.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>%n entrada não tinha nada que possa ser mantido.</numerusform>
            <numerusform>%n entradas não tinham nada que possa ser mantido.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n itens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n item, %1 deles imagens</numerusform>
            <numerusform>%n itens, %1 deles imagens</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n item, uma imagem</numerusform>
            <numerusform>%n itens, um deles uma imagem</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>%n senha, código ou chave foi deixada de fora.</numerusform>
            <numerusform>%n senhas, códigos ou chaves foram deixados de fora.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>%n imagem foi deixada de fora, pois seu disco está quase cheio.</numerusform>
            <numerusform>%n imagens foram deixadas de fora, pois seu disco está quase cheio.</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>Uma pasta exportada pelo Vellumry</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>Traga seus itens</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>Danificado. O que pode ser lido: %1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>Danificado: nada nele pode ser lido</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>Suporte por e-mail</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>Criptografado: nada nele pode ser lido</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>Exportar tudo</translation>
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
        <translation>Pasta de onde importar</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>De outro aplicativo de área de transferência, ou de uma pasta exportada pelo Vellumry.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>Importar de novo</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>Importar pasta</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>Importar itens</translation>
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
        <translation>Não pode ser aberto</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>Está danificado: o que podia ser lido foi examinado.</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>Procurando outros aplicativos de área de transferência…</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>Nenhum histórico do CopyQ, GPaste, Klipper ou Clipman foi encontrado.</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>Outros aplicativos</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>Política de privacidade</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>Interrompido. Nada foi deixado em %1.</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>Desfazendo…</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Termos</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>Textos, imagens e listas de arquivos viram arquivos comuns, com um índice de suas datas, títulos e fixações. Ali eles não são criptografados: quem puder ler a pasta pode ler seus itens. Itens que se excluem sozinhos são deixados de fora.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>O disco está cheio. Nada foi deixado em %1.</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>A importação foi desfeita.</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>Os arquivos do outro aplicativo são apenas lidos. Senhas, códigos e chaves são deixados de fora, assim como os itens que você já tem.</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>O resto não foi examinado, pois você interrompeu.</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>Não há mais nada para importar aqui.</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>Para uma pasta de arquivos comuns.</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>Grande demais para ser lido</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>Desfazer importação</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>Carregando o histórico…</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>O GNOME não ativou a extensão. Procure o Vellumry no aplicativo Extensões.</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>Ativar</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>A extensão estará ativa a partir da sua próxima sessão. Saia e entre de novo para usá-la.</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>A extensão está ativada. O Vellumry reinicia com ela.</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>A extensão do Vellumry para o GNOME está desativada</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>Com ela, nenhuma cópia se perde, os atalhos funcionam em todo lugar e o Vellumry cola para você.</translation>
    </message>
</context>
</TS>
