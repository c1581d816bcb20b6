<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Vellumry</name>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 他 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>%1 でどこにでも貼り付け</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>%1 は他のアプリで使われています。別のショートカットを選んでください。</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 は空いています。</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>残り %1 件</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>次: %1</translation>
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
            <numerusform>%n 文字</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>%n 件を削除しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>%n 件を選択中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n 件 · 記録中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n 件 · 保存されません: 終了するまで保持</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n 件 · 一時停止中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n 件 · %1 まで一時停止</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n 件 · このコンピューターで暗号化</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n 日</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>他に %n 個のパスワードマネージャー (Bitwarden、LastPass、Dashlane など) も、インストールされるとすぐに除外されます。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 バイト</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 日</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 か月</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 週間</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 年</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 か月</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>アプリを追加…</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>貼り付けスタックに追加</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>%n 時間後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>%n 分後</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>%n 秒後</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>%n 件すべて貼り付けました</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>貼り付けを許可…</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>Vellumry による貼り付けを許可</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>キー操作は許可されています</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>許可されています。これらのフォルダーのファイルは通常どおり貼り付けられます。</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>許可されています。Vellumry が代わりに貼り付けます。</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>許可…</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>常にオン</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>別のプログラムが履歴を使用しています</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>アプリが機密または一時的と示したものは保存されません。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>貼り付け方が異なるアプリ</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>カード番号、コード、API キーを自動的に削除</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>カード •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>%1 のアクセス権を確認してください。それまで項目は Vellumry を終了するまでしか保持されません。</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>1 日 1 回確認します</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>アプリを選択</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>選択した項目</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>ピン留めを残して消去</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>履歴を消去…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>クリップボードの履歴を消去しますか?</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>消去…</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>ショートカットをクリックし、新しいキーを押してください。Backspace で元に戻し、Esc でキャンセルします。</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copied from %1</source>
        <translation>%1 からコピー</translation>
    </message>
    <message>
        <source>Copied from an unknown app</source>
        <translation>不明なアプリからコピー</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>コピーしました。Ctrl+V で貼り付けます</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>一度コピー。いつでも見つかる。</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>何かコピーすると、ここに表示されます。</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>これをコピー</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>必要なものをコピーして Ctrl+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>これらの項目を結合できませんでした</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>この項目を貼り付けられませんでした</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>デフォルトのキーリング</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>%n 件を削除</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>%n 件を削除</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>削除 (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>「すべて削除」ではピン留めした項目も削除されます。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>削除のタイミング</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>パネルは何もない場所をドラッグすると移動できます。次回はそこに開きます。</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>貼り付けるたびに次の項目が使われます。</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>メールでのサポート</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>暗号化された履歴</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>コピーはすべて検知されます。</translation>
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
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>デスクトップ、ドキュメント、ダウンロードのファイルは通常どおり貼り付けられます。</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>ファイルマネージャーでコピーしたファイル</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>数回のキー入力で見つかる</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>1 時間</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>5 分間</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>ショートカットを使うには、これを %1 に追加してください</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>ショートカットを使うには、デスクトップの設定でこれらを割り当ててください</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>無期限</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>はじめる</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>Vellumry からこんにちは 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>非表示 · まもなく自動削除</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>非表示。%1 後に自動削除</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>Ctrl、Alt、Super のいずれかと一緒に押してください。</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>システムトレイのアイコン</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>次のコピーを無視</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>画像 %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>画像 · スクリーンショット</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>画像とファイルの上限</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>画像は結合できません。代わりにドラッグしてください</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>画像は結合できません。ドラッグするか、スタックで 1 つずつ貼り付けてください。</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>ゴミ箱の中</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>すべてのアプリで</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>ゴミ箱にあります。空にするまで貼り付けられます</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>パネル内</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>Tesseract と、お使いの言語のデータをインストールしてください。</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>アップデートを自動的にインストール</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>クリップボード履歴の鍵が渡されないか、保存されません。キーリングの設定で許可してください。それまで項目は Vellumry を終了するまでしか保持されません。</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>%1 のファイルが使用されています。使用が終わると、それまでにコピーしたものと一緒に履歴が自動的に戻ります。</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>保持する最大数</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>項目の保持期間</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>ピン留めした項目を残すか、すべて削除します。</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>最終確認: %n 日前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>最終確認: %n 時間前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>最終確認: %n 分前</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>最終確認: たった今</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>Vellumry に貼り付けをまかせる</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>端末と同じ</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>他のアプリと同じ</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>結合して貼り付け</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>結合して貼り付け</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>結合して貼り付け</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>1 つの項目に結合</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>結合すると、コピーした順に 1 行ずつ、1 つの項目にまとまります。</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>結合すると、これらのファイルすべてを含む 1 つの項目になります。</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>結合</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>%n 件を 1 つに結合しました</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>中央に移動</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>キー操作には許可が必要です</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>次のアプリからは保存しない</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>新しいスクリーンショットは Vellumry に保存されます</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>新しい順。クリックで古い順</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>次のフィルター · 閉じる</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>アプリが見つかりません</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>「%1」に一致する項目はありません</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>このセッションでは応答するキーリングがありませんが、クリップボード履歴の鍵はキーリングに保管されています。GNOME Keyring、KWallet、KeePassXC のいずれかを起動してください。それまでにコピーしたものと一緒に履歴が自動的に戻ります。キーリングがない間、項目は Vellumry を終了するまでしか保持されません。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未インストール</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>今はしない (自分で Ctrl+V を押す)</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>まだ何もありません</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>Super+Alt+%1 にはまだ何もピン留めされていません。Ctrl+P でピン留めします</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>オフの場合、Vellumry はコピーだけを行い、Ctrl+V は自分で押します。</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>開発版ではオフです</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>オフ: Ctrl+V は自分で押します</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>古い順。クリックで新しい順</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>ピン留めしていない古い項目から削除されます。ピン留めした項目は常に残ります。</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>「%1」にありますが、接続されていません</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>代わりに開く</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>リンクを開く</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>許可を求める</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>Vellumry を開く</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>ログイン時に Vellumry を開く</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>任意。デスクトップ、ドキュメント、ダウンロードを一度だけ確かめます。</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>パネルの位置</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>ファイル名を貼り付け</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>1 つずつ貼り付け (貼り付けスタック)</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>貼り付けスタック</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>貼り付けスタックを開始できませんでした。別のプログラムが Ctrl+V を占有しています</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>貼り付けスタックには「Vellumry による貼り付けを許可」が必要です</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>貼り付けスタック: いくつかコピーすると、Ctrl+V のたびに次のものを貼り付けます (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>画像内のテキストを貼り付け</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>変換して貼り付け</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>プレーンテキストとして貼り付け</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>常にプレーンテキストとして貼り付け</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>項目 1–9 を貼り付け</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>アプリに直接貼り付ける</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>名前を貼り付け</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>デスクトップ、ドキュメント、ダウンロードのファイルを貼り付け</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>このアプリには通常どおり貼り付ける</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>1 つずつ貼り付け</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>ピン留めした項目を Super+Alt+1 … Super+Alt+9 で貼り付け</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>1 つずつ貼り付け: Ctrl+V のたびに次の項目を貼り付けます (貼り付けスタック)</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>変換して貼り付け</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>貼り付け · プレーンテキスト</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>貼り付けました</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>プレーンテキストとして貼り付けます。項目はそのまま残ります。</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>代わりに貼り付け</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>この画像のテキストを貼り付けます</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>代わりに貼り付け</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>記録を一時停止</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>一時停止中。再開するまで、コピーしたものは保存されません</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>項目を選ぶと、入力していた場所にそのまま貼り付けられます。デスクトップによっては一度だけ許可を求められます。</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>代わりに、パネルで項目を 1 つずつ選んでください。</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>ピン留め</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>%n 件をピン留め</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>ピン留め (Ctrl+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>%n 件をピン留め</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>ピン留め · 削除 · コピー</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>ピン留め</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>ピン留め中</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>ピン留めした項目は残ります。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>プレーンテキスト</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>いつでも %1 で Vellumry を開けます。</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>Enter を押してここに貼り付け</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>新しいキーを押す…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>キー操作の許可</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>プライベートで暗号化</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>Vellumry を終了</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>この画像のテキストを読み取る</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>この画像のテキストを読み取っています…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近の項目</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>メニューに表示する最近の項目</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>コピーしたものを記憶</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>コピーしたものをすべて記憶</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>改行を削除</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>もう一度</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>今すぐ再起動</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>再起動して %1 に更新</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>検索結果</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>記録を再開</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>再開しました。コピーしたものは再び保存されます</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>新しいスクリーンショットを保存</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>このアプリからの項目を再び保存</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>新しいスクリーンショットを保存</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>スクリーンショット %1 %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>保存したスクリーンショットも追加され、その中のテキストを検索できます。Vellumry が保存先のフォルダーを読み取れる必要があります。</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>保存したスクリーンショットも Vellumry に追加され、その中のテキストを検索できます。</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>アプリを検索</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>項目を検索</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>機密情報</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>複数選択 · 結合</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>機密 · 自動削除</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>文頭を大文字に</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>デスクトップのキーボード設定で、次を実行するショートカットを設定してください: vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>すべてのアプリでのショートカット</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>表示…</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>パスワードマネージャーのパスワードを除外</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>削除されたファイルを飛ばしました</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>除外しました。そのコピーは保存されていません</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>画像内の言葉で検索できるようになります。このフォルダーへのアクセス許可を一度だけ求められることがあります。</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>貼り付け時に音を鳴らす</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>貼り付けスタックの開始 / 終了</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>GNOME Keyring、KWallet、KeePassXC のいずれかを起動してください。それまで項目は終了するまで保持されます。</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>貼り付けスタックを開始</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>Vellumry を使いはじめる</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>設定を開くには Vellumry をもう一度起動するか、お使いのデスクトップにトレイの拡張機能をインストールしてください。</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>貼り付けスタックを終了</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>貼り付けスタックを終了 (残り %n 件)</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>貼り付けスタックを終了 (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>デスクトップに尋ねられたら、Vellumry のキー操作を許可してください。この画面は自動的に更新されます。</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>端末では貼り付けのキーが異なります。Vellumry はほとんどの端末に対応していますが、貼り付けても何も起きない場合は追加してください。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>画像内のテキスト</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>画像内のテキスト</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>テキスト、リンク、画像、ファイル、色。</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>これだけです。コピーしたものは、すべてショートカット 1 つで呼び出せます。</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>%1 のファイルはそのまま残されました。アクセス権とディスクを確認してください。Vellumry は再試行します。それまで項目は終了するまでしか保持されません。</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>現在、履歴を保存できません。Vellumry は再試行します</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>クリップボード履歴の鍵が保管されています。キーリングのロックを解除してください。それまでにコピーしたものと一緒に履歴が自動的に戻ります。ロックされている間、項目は Vellumry を終了するまでしか保持されません。</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>履歴の鍵が壊れています</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>次にコピーするものは Vellumry に保存されません。パスワードなどの内密なテキストをコピーする前に使ってください。</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>アップデートをダウンロードできませんでした。何も変更されていません</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>この項目はもうコピーできません</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>このデスクトップではコピーが Vellumry に通知されません。X11 など別のセッションにログインしてください。</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>この欄ではアプリからの貼り付けができません。Ctrl+V を押してください</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>このファイルは削除されています</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>これは Wayland セッションです。Vellumry が認識できるのは、X11 アプリがコピーしたものと、デスクトップがそれらと共有するものです。一部のコピーは認識されないことがあります</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>Vellumry はこれだけです。もうコピーしたものを失うことはありません。</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>このリンクを開けません</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>単語の先頭を大文字に</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>%1 のファイルを貼り付けるには、Vellumry にそのフォルダーの読み取りを許可してください</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>変換 (Ctrl+T)</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>変換できるのはテキストだけです</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>前後の空白を削除</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>試してみましょう (5 秒で終わります)</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>2 文字入力するだけ。スクリーンショット内のテキストも。</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>すべて大文字に</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>不明なアプリ</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>ロック解除…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>ピン留めを外す</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>%n 件のピン留めを外す</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>ピン留めを外す (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>すべてのピン留めを外す (Ctrl+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>再開するまで</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>Vellumry %1 に更新…</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 を使う</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>これを使う</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>Vellumry %1 をインストールできます</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>Vellumry の設定</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>Vellumry の Web サイト</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry はそのファイルを開けません。フォルダーの読み取りを許可してください</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry はスクリーンショットのフォルダーを開けません。フォルダーの読み取りを許可してください</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>Vellumry はスクリーンショットのフォルダーを開けません。フォルダーの読み取りを許可してください。</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>Vellumry はキーリングにアクセスできません</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>Vellumry は履歴を読み取れません</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>このセッションでは Vellumry を起動できません</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>Vellumry は自身のフォルダーに書き込めません</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>Vellumry がコピーし、Ctrl+V は自分で押します。デスクトップに尋ねられたら、キー操作を許可してください。</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>Vellumry は最新です</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>Vellumry が保持するのはコピーしたファイルへのリンクで、ファイルの複製ではありません。そのため、削除されたファイルは貼り付けられません。移動や名前の変更は自動的に追跡されます。</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>暗号化された履歴の鍵はそこに保管されます。デスクトップがキーリングのパスワードを尋ねます。それまで項目は終了するまで保持されます。</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>Vellumry はシステムトレイにあります。いつでもショートカットを押してください。</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>Vellumry には X11 ディスプレイが必要ですが、見つかりませんでした。Wayland セッションでは Xwayland を有効にするか、X11 セッションにログインしてください。</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>Vellumry は代わりに Ctrl+V を押すだけです。画面や入力内容を読み取ることはありません。</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>Vellumry が代わりに貼り付けのキーを押します。</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>Vellumry は新しい履歴を開始しました</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>コンピューターを使っていない間に Vellumry が更新されます。オフの場合は先に確認します。</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>Vellumry のメニューはそこにあります。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>Vellumry へようこそ</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>このデスクトップで使える機能</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>キーリングに「Vellumry history key」として保管されているものは鍵ではありません。元に戻すか、削除して新しい履歴を開始してください。それまで項目は Vellumry を終了するまでしか保持されません。</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>パッケージマネージャーが Vellumry を管理している場合は、更新もそちらで行われます。</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>画像内の言葉が見つかります。</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>Vellumry を開かなくても、すべてのアプリで使えます。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>準備ができました</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>コンピューターの空き容量が残りわずかです。当面はテキストだけを保存します</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>クリップボードの履歴を開けません。ディスクの空き容量を増やしてください。それまでにコピーしたものと一緒に履歴が自動的に戻ります。</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>コピーした項目がこのコンピューターの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>デスクトップがキーリングのパスワードを尋ねることがあります。履歴の鍵がそこにあります</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>履歴が開かれていません。キーリングのロックを解除すると自動的に戻ります。</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>キーリングがロックされています</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>鍵はキーリングに保管されています。</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>キーリングが Vellumry を拒否しました</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>次のコピーは保存されます</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>次のコピーは保存されません</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>貼り付けたものがここに入ります</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>これまでの履歴をこのコンピューターで読み取れなかったため、新しい履歴を開始しました。古い履歴はバックアップとして残されています: %1</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>どこにいてもショートカットで Vellumry を呼び出せます。</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>en</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>すべて小文字に</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>Vellumry がファイルを開くのは、貼り付けまたはコピーのときだけです。</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>デスクトップに許可されませんでした。ログイン時に起動するプログラムの設定を確認してください。</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>Vellumry は %1 を読み取れません。そのフォルダーの読み取り権限を設定してください。</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>Vellumry は %1 を読み取れません。そのフォルダーの読み取り権限を設定してください。</translation>
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
        <translation>%1 に書き込めません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>%1 には、完了した Vellumry のエクスポートがありません。</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>%1 は空ではありません。新しいフォルダーを選んでください。</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n 件は履歴の上限を超えています。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n 件が %1 にあります。そこでは暗号化されていません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>%n 件を読み取れませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>自動削除される %n 件は除外されました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>%n 件をインポートしました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n 件はすでに履歴にありました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>%n 件は、保存しない設定のアプリからのものなので除外されました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>%n 件には保持できる内容がありませんでした。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n 件 (うち画像 %1 件)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n 件 (うち画像 1 件)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>パスワード、コード、キー %n 件は除外されました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>ディスクの空き容量が残りわずかなため、画像 %n 件は除外されました。</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>Vellumry がエクスポートしたフォルダー</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>項目を引き継ぐ</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>破損しています。読み取り可能: %1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>破損: 読み取れるものがありません</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>メールでのサポート</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>暗号化: 読み取れるものがありません</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>すべてエクスポート</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>エクスポート中…</translation>
    </message>
    <message>
        <source>Exporting… %1</source>
        <translation>エクスポート中… %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Folder to import from</source>
        <translation>インポート元のフォルダー</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>他のクリップボードアプリ、または Vellumry がエクスポートしたフォルダーから。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>もう一度インポート</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>フォルダーをインポート</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>項目をインポート</translation>
    </message>
    <message>
        <source>Importing %1 of %2…</source>
        <translation>%2 件中 %1 件目をインポート中…</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>インポート中…</translation>
    </message>
    <message>
        <source>Importing… %1</source>
        <translation>インポート中… %1</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>インポート…</translation>
    </message>
    <message>
        <source>It can't be opened</source>
        <translation>開けません</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>破損しています。読み取れたものだけを確認しました。</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>他のクリップボードアプリを探しています…</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>CopyQ、GPaste、Klipper、Clipman の履歴は見つかりませんでした。</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>他のアプリ</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>プライバシーポリシー</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>停止しました。%1 には何も残っていません。</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>取り消し中…</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>利用規約</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>テキスト、画像、ファイルの一覧が通常のファイルになり、日時、タイトル、ピン留めの索引が付きます。そこでは暗号化されません。フォルダーを読める人は誰でも項目を読めます。自動削除される項目は除外されます。</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>ディスクがいっぱいです。%1 には何も残っていません。</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>インポートを取り消しました。</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>他のアプリのファイルは読み取るだけです。パスワード、コード、キーと、すでにある項目は除外されます。</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>停止したため、残りは確認していません。</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>ここにはもうインポートするものがありません。</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>通常のファイルのフォルダーへ。</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>大きすぎて読み取れません</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>インポートを取り消す</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web サイト</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>履歴を読み込んでいます…</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>GNOME は拡張機能を有効にできませんでした。「拡張機能」アプリで Vellumry を探してください。</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>有効にする</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>拡張機能は次のログインから有効になります。使うには、ログアウトしてからもう一度ログインしてください。</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>拡張機能が有効になりました。Vellumry を再起動します。</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>GNOME 用の Vellumry 拡張機能が無効です</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>有効にすると、コピーを逃さず、ショートカットがどこでも働き、Vellumry が代わりに貼り付けます。</translation>
    </message>
</context>
</TS>
