<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
            <numerusform>%1 和另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 anywhere to paste this</source>
        <translation>按 %1 可在任何地方粘贴</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>%1 is already used by another app. Pick another shortcut.</source>
        <translation>%1 已被其他应用占用。请选择其他快捷键。</translation>
    </message>
    <message>
        <source>%1 is free.</source>
        <translation>%1 可用。</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 to paste</source>
        <translation>%1 项待粘贴</translation>
    </message>
    <message>
        <source>Next: %1</source>
        <translation>下一个：%1</translation>
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
            <numerusform>%n 个字符</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips</source>
        <translation>
            <numerusform>%n 个条目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips deleted</source>
        <translation>
            <numerusform>已删除 %n 个条目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips selected</source>
        <translation>
            <numerusform>已选择 %n 个条目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Capturing</source>
        <translation>
            <numerusform>%n 个条目 · 正在记录</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Not saved: kept until you quit</source>
        <translation>
            <numerusform>%n 个条目 · 未保存：仅保留到退出为止</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused</source>
        <translation>
            <numerusform>%n 个条目 · 已暂停</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · Paused until %1</source>
        <translation>
            <numerusform>%n 个条目 · 已暂停至 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips · encrypted on this Mac</source>
        <translation>
            <numerusform>%n 个条目 · 已在本机加密</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%n 天</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>还有 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're installed.</source>
        <translation>
            <numerusform>另有 %n 个密码管理器（Bitwarden、LastPass、Dashlane 等）一经安装也会被跳过。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 字节</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 天</translation>
    </message>
    <message>
        <source>1 month</source>
        <translation>1 个月</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 周</translation>
    </message>
    <message>
        <source>1 year</source>
        <translation>1 年</translation>
    </message>
    <message>
        <source>3 months</source>
        <translation>3 个月</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add Apps…</source>
        <translation>添加应用…</translation>
    </message>
    <message>
        <source>Add to Paste Stack</source>
        <translation>添加到粘贴队列</translation>
    </message>
    <message numerus="yes">
        <source>After %n hours</source>
        <translation>
            <numerusform>%n 小时后</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n minutes</source>
        <translation>
            <numerusform>%n 分钟后</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>After %n seconds</source>
        <translation>
            <numerusform>%n 秒后</numerusform>
        </translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message numerus="yes">
        <source>All %n pasted</source>
        <translation>
            <numerusform>%n 项已全部粘贴</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Pasting…</source>
        <translation>允许粘贴…</translation>
    </message>
    <message>
        <source>Allow Vellumry to paste for you</source>
        <translation>允许 Vellumry 为您粘贴</translation>
    </message>
    <message>
        <source>Allowed in Privacy &amp; Security → Accessibility</source>
        <translation>已允许模拟按键</translation>
    </message>
    <message>
        <source>Allowed. Files from these folders paste normally.</source>
        <translation>已允许。可以正常粘贴这些文件夹中的文件。</translation>
    </message>
    <message>
        <source>Allowed. Vellumry can paste for you.</source>
        <translation>已允许。Vellumry 可以为您粘贴。</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>允许…</translation>
    </message>
    <message>
        <source>Always on</source>
        <translation>始终开启</translation>
    </message>
    <message>
        <source>Another program holds your history</source>
        <translation>另一个程序正在使用您的历史记录</translation>
    </message>
    <message>
        <source>Anything an app marks as secret or temporary is never saved.</source>
        <translation>被应用标记为机密或临时的内容绝不会保存。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Apps that paste differently</source>
        <translation>粘贴方式不同的应用</translation>
    </message>
    <message>
        <source>Auto-delete card numbers, codes and API keys</source>
        <translation>自动删除卡号、验证码和 API 密钥</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Card •••• %1</source>
        <translation>卡号 •••• %1</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Check the permissions of %1. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>请检查 %1 的权限。在此之前，条目仅保留到您退出 Vellumry 为止。</translation>
    </message>
    <message>
        <source>Checks once a day</source>
        <translation>每天检查一次</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Choose apps</source>
        <translation>选择应用</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>清空历史记录</translation>
    </message>
    <message>
        <source>Clear History, Keep Pinned</source>
        <translation>清空，但保留固定的条目</translation>
    </message>
    <message>
        <source>Clear History…</source>
        <translation>清空历史记录…</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>清空历史记录</translation>
    </message>
    <message>
        <source>Clear your clipboard history?</source>
        <translation>要清空剪贴板历史记录吗？</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>清空…</translation>
    </message>
    <message>
        <source>Click a shortcut, then press the new keys. ⌫ puts the original back, Esc cancels.</source>
        <translation>点击快捷键，然后按下新的按键。退格键恢复默认，Esc 取消。</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copied from %1</source>
        <translation>复制自 %1</translation>
    </message>
    <message>
        <source>Copied from an unknown app</source>
        <translation>复制自未知应用</translation>
    </message>
    <message>
        <source>Copied. Press ⌘V to paste</source>
        <translation>已复制。按 Ctrl+V 粘贴</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy once. Find it anytime.</source>
        <translation>复制一次，随时找到。</translation>
    </message>
    <message>
        <source>Copy something. It shows up here.</source>
        <translation>复制一些内容，它就会出现在这里。</translation>
    </message>
    <message>
        <source>Copy this</source>
        <translation>复制这段文字</translation>
    </message>
    <message>
        <source>Copy what you need, then ⌘V</source>
        <translation>复制所需内容，然后按 Ctrl+V</translation>
    </message>
    <message>
        <source>Couldn't merge these clips</source>
        <translation>无法合并这些条目</translation>
    </message>
    <message>
        <source>Couldn't paste this clip</source>
        <translation>无法粘贴此条目</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Default keyring</source>
        <translation>默认密钥环</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message numerus="yes">
        <source>Delete %n</source>
        <translation>
            <numerusform>删除 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n Clips</source>
        <translation>
            <numerusform>删除 %n 个条目</numerusform>
        </translation>
    </message>
    <message>
        <source>Delete (⌘⌫)</source>
        <translation>删除 (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Delete Everything</source>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>Delete Everything removes pinned clips too. This can't be undone.</source>
        <translation>“全部删除”也会移除固定的条目。此操作无法撤销。</translation>
    </message>
    <message>
        <source>Delete them</source>
        <translation>删除时间</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Drag the panel by an empty spot to move it. It opens there next time.</source>
        <translation>拖动面板的空白处可移动它，下次会在那里打开。</translation>
    </message>
    <message>
        <source>Each paste takes the next clip.</source>
        <translation>每次粘贴取下一个条目。</translation>
    </message>
    <message>
        <source>Email Support</source>
        <translation>通过邮件获取支持</translation>
    </message>
    <message>
        <source>Encrypted history</source>
        <translation>加密的历史记录</translation>
    </message>
    <message>
        <source>Every copy is noticed.</source>
        <translation>每次复制都会被记录。</translation>
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
        <translation>文件</translation>
    </message>
    <message>
        <source>Files from Desktop, Documents and Downloads paste normally.</source>
        <translation>可以正常粘贴“桌面”“文档”和“下载”中的文件。</translation>
    </message>
    <message>
        <source>Files you copy in Finder</source>
        <translation>您在文件管理器中复制的文件</translation>
    </message>
    <message>
        <source>Finds it in a keystroke</source>
        <translation>按几个键就能找到</translation>
    </message>
    <message>
        <source>For 1 Hour</source>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>For 5 Minutes</source>
        <translation>5 分钟</translation>
    </message>
    <message>
        <source>For the shortcut, add this to %1</source>
        <translation>要使用快捷键，请将以下内容添加到 %1</translation>
    </message>
    <message>
        <source>For the shortcut, bind these in your desktop's settings</source>
        <translation>要使用快捷键，请在桌面设置中绑定以下命令</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>永久</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Get Started</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Hello from Vellumry 👋</source>
        <translation>来自 Vellumry 的问候 👋</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>已隐藏</translation>
    </message>
    <message>
        <source>Hidden · deletes itself soon</source>
        <translation>已隐藏 · 即将自动删除</translation>
    </message>
    <message>
        <source>Hidden. Deletes itself in %1</source>
        <translation>已隐藏，将在 %1 后自动删除</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Hold Ctrl, Alt or Super with the key.</source>
        <translation>请同时按住 Ctrl、Alt 或 Super。</translation>
    </message>
    <message>
        <source>Icon in the system tray</source>
        <translation>系统托盘图标</translation>
    </message>
    <message>
        <source>Ignore Next Copy</source>
        <translation>忽略下一次复制</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Image %1 × %2</source>
        <translation>图像 %1 × %2</translation>
    </message>
    <message>
        <source>Image · Screenshot</source>
        <translation>图像 · 截图</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Images and files take up to</source>
        <translation>图像和文件最多占用</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out instead</source>
        <translation>图像无法合并，请将它们拖出</translation>
    </message>
    <message>
        <source>Images can't be merged. Drag them out, or paste them one by one with Stack.</source>
        <translation>图像无法合并。请将它们拖出，或用队列逐个粘贴。</translation>
    </message>
    <message>
        <source>In Trash</source>
        <translation>在回收站</translation>
    </message>
    <message>
        <source>In every app</source>
        <translation>在所有应用中</translation>
    </message>
    <message>
        <source>In the Trash. Pastes until the Trash is emptied</source>
        <translation>在回收站中，清空之前仍可粘贴</translation>
    </message>
    <message>
        <source>In the panel</source>
        <translation>在面板中</translation>
    </message>
    <message>
        <source>Install Tesseract and its data for your language.</source>
        <translation>请安装 Tesseract 及您所用语言的数据。</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>自动安装更新</translation>
    </message>
    <message>
        <source>It does not give out, or does not store, the key to your clipboard history. Allow it in the keyring's settings. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>它没有给出或没有存储剪贴板历史记录的密钥。请在密钥环的设置中允许。在此之前，条目仅保留到您退出 Vellumry 为止。</translation>
    </message>
    <message>
        <source>It uses the file in %1. When it is done, your history comes back by itself, with what you copied until then.</source>
        <translation>它正在使用 %1 中的文件。使用完毕后，您的历史记录会自动恢复，包括在此期间复制的内容。</translation>
    </message>
    <message>
        <source>Keep at most</source>
        <translation>最多保留</translation>
    </message>
    <message>
        <source>Keep clips for</source>
        <translation>条目保留时间</translation>
    </message>
    <message>
        <source>Keep pinned clips, or delete everything.</source>
        <translation>保留固定的条目，或全部删除。</translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n days ago</source>
        <translation>
            <numerusform>上次检查：%n 天前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n hours ago</source>
        <translation>
            <numerusform>上次检查：%n 小时前</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Last checked %n minutes ago</source>
        <translation>
            <numerusform>上次检查：%n 分钟前</numerusform>
        </translation>
    </message>
    <message>
        <source>Last checked just now</source>
        <translation>上次检查：刚刚</translation>
    </message>
    <message>
        <source>Let Vellumry paste for you</source>
        <translation>让 Vellumry 为您粘贴</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Like a terminal</source>
        <translation>与终端相同</translation>
    </message>
    <message>
        <source>Like other apps</source>
        <translation>与其他应用相同</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Merge &amp; Paste</source>
        <translation>合并并粘贴</translation>
    </message>
    <message>
        <source>Merge &amp; paste</source>
        <translation>合并并粘贴</translation>
    </message>
    <message>
        <source>Merge and Paste</source>
        <translation>合并并粘贴</translation>
    </message>
    <message>
        <source>Merge into One Clip</source>
        <translation>合并为一个条目</translation>
    </message>
    <message>
        <source>Merge joins them into one clip, one per line, in the order you copied them.</source>
        <translation>合并会将它们按复制顺序逐行组成一个条目。</translation>
    </message>
    <message>
        <source>Merge makes one clip with all these files.</source>
        <translation>合并会生成一个包含所有这些文件的条目。</translation>
    </message>
    <message>
        <source>Merged</source>
        <translation>已合并</translation>
    </message>
    <message numerus="yes">
        <source>Merged %n clips into one</source>
        <translation>
            <numerusform>已将 %n 个条目合并为一个</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to Center</source>
        <translation>移到中央</translation>
    </message>
    <message>
        <source>Needs your OK in Privacy &amp; Security → Accessibility</source>
        <translation>需要您允许模拟按键</translation>
    </message>
    <message>
        <source>Never Save</source>
        <translation>从不保存</translation>
    </message>
    <message>
        <source>Never save clips from</source>
        <translation>从不保存来自以下应用的内容</translation>
    </message>
    <message>
        <source>New screenshots will be saved in Vellumry</source>
        <translation>新截图将保存到 Vellumry</translation>
    </message>
    <message>
        <source>Newest first. Click for oldest first</source>
        <translation>最新的在前。点击切换为最旧的在前</translation>
    </message>
    <message>
        <source>Next filter · close</source>
        <translation>下一个筛选 · 关闭</translation>
    </message>
    <message>
        <source>No apps found</source>
        <translation>未找到应用</translation>
    </message>
    <message>
        <source>No clips match “%1”</source>
        <translation>没有与“%1”匹配的条目</translation>
    </message>
    <message>
        <source>No keyring answers in this session, and the key to your clipboard history is kept in one. Start GNOME Keyring, KWallet or KeePassXC: your history then comes back by itself, with what you copied until then. Without a keyring, clips are only kept until you quit Vellumry.</source>
        <translation>此会话中没有密钥环响应，而剪贴板历史记录的密钥保存在密钥环中。请启动 GNOME Keyring、KWallet 或 KeePassXC：您的历史记录随后会自动恢复，包括在此期间复制的内容。没有密钥环时，条目仅保留到您退出 Vellumry 为止。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>Not now, I'll press ⌘V myself</source>
        <translation>暂不，我自己按 Ctrl+V</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>这里还没有内容</translation>
    </message>
    <message>
        <source>Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P</source>
        <translation>Super+Alt+%1 上还没有固定的条目。按 Ctrl+P 固定一个</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Off = Vellumry copies and you press ⌘V.</source>
        <translation>关闭时，Vellumry 只复制，由您按 Ctrl+V。</translation>
    </message>
    <message>
        <source>Off in developer builds</source>
        <translation>开发版本中已关闭</translation>
    </message>
    <message>
        <source>Off: you press ⌘V</source>
        <translation>已关闭：由您按 Ctrl+V</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Oldest first. Click for newest first</source>
        <translation>最旧的在前。点击切换为最新的在前</translation>
    </message>
    <message>
        <source>Oldest unpinned clips go first. Pinned clips are always kept.</source>
        <translation>最旧的未固定条目最先移除，固定的条目始终保留。</translation>
    </message>
    <message>
        <source>On</source>
        <translation>已开启</translation>
    </message>
    <message>
        <source>On “%1”, which isn't connected</source>
        <translation>位于“%1”，但它未连接</translation>
    </message>
    <message>
        <source>Open It for Me</source>
        <translation>替我打开</translation>
    </message>
    <message>
        <source>Open Link</source>
        <translation>打开链接</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>请求权限</translation>
    </message>
    <message>
        <source>Open Vellumry</source>
        <translation>打开 Vellumry</translation>
    </message>
    <message>
        <source>Open Vellumry at login</source>
        <translation>登录时打开 Vellumry</translation>
    </message>
    <message>
        <source>Optional. macOS asks once for Desktop, Documents and Downloads.</source>
        <translation>可选。Vellumry 会各试一次“桌面”“文档”和“下载”。</translation>
    </message>
    <message>
        <source>Panel position</source>
        <translation>面板位置</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Paste File Name</source>
        <translation>粘贴文件名</translation>
    </message>
    <message>
        <source>Paste One by One (Paste Stack)</source>
        <translation>逐个粘贴（粘贴队列）</translation>
    </message>
    <message>
        <source>Paste Stack</source>
        <translation>粘贴队列</translation>
    </message>
    <message>
        <source>Paste Stack couldn't start. Turn Vellumry on in Privacy &amp; Security → Accessibility</source>
        <translation>无法启动粘贴队列。另一个程序独占了 Ctrl+V</translation>
    </message>
    <message>
        <source>Paste Stack needs “Allow Vellumry to paste for you”</source>
        <translation>粘贴队列需要“允许 Vellumry 为您粘贴”</translation>
    </message>
    <message>
        <source>Paste Stack: copy several things, every ⌘V pastes the next (⌃⌘S)</source>
        <translation>粘贴队列：复制多项内容，每按一次 Ctrl+V 粘贴下一项 (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Paste Text in Image</source>
        <translation>粘贴图像中的文字</translation>
    </message>
    <message>
        <source>Paste Transformed</source>
        <translation>转换后粘贴</translation>
    </message>
    <message>
        <source>Paste as Plain Text</source>
        <translation>粘贴为纯文本</translation>
    </message>
    <message>
        <source>Paste as plain text by default</source>
        <translation>默认粘贴为纯文本</translation>
    </message>
    <message>
        <source>Paste clip 1–9</source>
        <translation>粘贴第 1–9 个条目</translation>
    </message>
    <message>
        <source>Paste directly into the app</source>
        <translation>直接粘贴到应用中</translation>
    </message>
    <message>
        <source>Paste file name</source>
        <translation>粘贴文件名</translation>
    </message>
    <message>
        <source>Paste files from Desktop, Documents and Downloads</source>
        <translation>粘贴“桌面”“文档”和“下载”中的文件</translation>
    </message>
    <message>
        <source>Paste into this app as usual again</source>
        <translation>恢复以常规方式粘贴到此应用</translation>
    </message>
    <message>
        <source>Paste one by one</source>
        <translation>逐个粘贴</translation>
    </message>
    <message>
        <source>Paste pinned clips with ⌃⌥1 … ⌃⌥9</source>
        <translation>用 Super+Alt+1 … Super+Alt+9 粘贴固定的条目</translation>
    </message>
    <message>
        <source>Paste them one by one: every ⌘V pastes the next (Paste Stack)</source>
        <translation>逐个粘贴：每按一次 Ctrl+V 粘贴下一个（粘贴队列）</translation>
    </message>
    <message>
        <source>Paste transformed</source>
        <translation>转换后粘贴</translation>
    </message>
    <message>
        <source>Paste · paste as plain text</source>
        <translation>粘贴 · 粘贴为纯文本</translation>
    </message>
    <message>
        <source>Pasted</source>
        <translation>已粘贴</translation>
    </message>
    <message>
        <source>Pastes as plain text. Your clip stays as it is.</source>
        <translation>以纯文本粘贴，条目本身不变。</translation>
    </message>
    <message>
        <source>Pastes for you</source>
        <translation>为您粘贴</translation>
    </message>
    <message>
        <source>Pastes the text in this image</source>
        <translation>粘贴此图像中的文字</translation>
    </message>
    <message>
        <source>Pasting</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Pasting for you</source>
        <translation>为您粘贴</translation>
    </message>
    <message>
        <source>Pause Capture</source>
        <translation>暂停记录</translation>
    </message>
    <message>
        <source>Paused. Nothing you copy is saved until you resume</source>
        <translation>已暂停。恢复之前，您复制的内容不会保存</translation>
    </message>
    <message>
        <source>Pick a clip and it lands right where you were typing. macOS asks you to allow this once.</source>
        <translation>选择一个条目，它就会出现在您正在输入的地方。某些桌面会请求您允许一次。</translation>
    </message>
    <message>
        <source>Pick clips in the panel one by one instead.</source>
        <translation>可改为在面板中逐个选择条目。</translation>
    </message>
    <message>
        <source>Pin</source>
        <translation>固定</translation>
    </message>
    <message numerus="yes">
        <source>Pin %n Clips</source>
        <translation>
            <numerusform>固定 %n 个条目</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin (⌘P)</source>
        <translation>固定 (Ctrl+P)</translation>
    </message>
    <message numerus="yes">
        <source>Pin all %n</source>
        <translation>
            <numerusform>固定 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Pin · delete · copy</source>
        <translation>固定 · 删除 · 复制</translation>
    </message>
    <message>
        <source>Pinned</source>
        <translation>已固定</translation>
    </message>
    <message>
        <source>Pinned clip</source>
        <translation>已固定</translation>
    </message>
    <message>
        <source>Pinned clips are kept. This can't be undone.</source>
        <translation>固定的条目会保留。此操作无法撤销。</translation>
    </message>
    <message>
        <source>Plain text</source>
        <translation>纯文本</translation>
    </message>
    <message>
        <source>Press %1 anytime to open Vellumry.</source>
        <translation>随时按 %1 打开 Vellumry。</translation>
    </message>
    <message>
        <source>Press Return to paste here</source>
        <translation>按回车键粘贴到这里</translation>
    </message>
    <message>
        <source>Press new shortcut…</source>
        <translation>请按新的快捷键…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>Privacy &amp; Security › Accessibility</source>
        <translation>模拟按键的权限</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <translation>隐私政策</translation>
    </message>
    <message>
        <source>Private and encrypted</source>
        <translation>私密且加密</translation>
    </message>
    <message>
        <source>Quit Vellumry</source>
        <translation>退出 Vellumry</translation>
    </message>
    <message>
        <source>Read text in this image</source>
        <translation>读取此图像中的文字</translation>
    </message>
    <message>
        <source>Reading the text in this image…</source>
        <translation>正在读取此图像中的文字…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Recent clips in the menu</source>
        <translation>菜单中的最近条目</translation>
    </message>
    <message>
        <source>Remembering what you copy</source>
        <translation>记住您复制的内容</translation>
    </message>
    <message>
        <source>Remembers everything you copy</source>
        <translation>记住您复制的一切</translation>
    </message>
    <message>
        <source>Remove Line Breaks</source>
        <translation>移除换行</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>重播</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>立即重启</translation>
    </message>
    <message>
        <source>Restart to Update to %1</source>
        <translation>重启以更新到 %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Resume Capture</source>
        <translation>恢复记录</translation>
    </message>
    <message>
        <source>Resumed. What you copy is saved again</source>
        <translation>已恢复。您复制的内容会重新保存</translation>
    </message>
    <message>
        <source>Save New Screenshots</source>
        <translation>保存新截图</translation>
    </message>
    <message>
        <source>Save clips from this app again</source>
        <translation>重新保存来自此应用的内容</translation>
    </message>
    <message>
        <source>Save new screenshots</source>
        <translation>保存新截图</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Screenshot %1 at %2</source>
        <translation>截图 %1 %2</translation>
    </message>
    <message>
        <source>Screenshots</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Screenshots saved with ⌘⇧3 / ⌘⇧4 are added too, and their text becomes searchable. macOS asks once to allow Vellumry to see the folder they're saved in.</source>
        <translation>您保存的截图也会添加进来，其中的文字可供搜索。Vellumry 必须能够读取保存截图的文件夹。</translation>
    </message>
    <message>
        <source>Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes searchable.</source>
        <translation>您保存的截图也会添加到 Vellumry，其中的文字可供搜索。</translation>
    </message>
    <message>
        <source>Search apps</source>
        <translation>搜索应用</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>搜索条目</translation>
    </message>
    <message>
        <source>Secrets</source>
        <translation>机密内容</translation>
    </message>
    <message>
        <source>Select several · merge</source>
        <translation>多选 · 合并</translation>
    </message>
    <message>
        <source>Sensitive · deletes itself</source>
        <translation>敏感 · 自动删除</translation>
    </message>
    <message>
        <source>Sentence case</source>
        <translation>句首字母大写</translation>
    </message>
    <message>
        <source>Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel</source>
        <translation>请在桌面的键盘设置中添加运行以下命令的快捷键：vellumry --action open-panel</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Shortcuts in every app</source>
        <translation>所有应用中的快捷键</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Show…</source>
        <translation>显示…</translation>
    </message>
    <message>
        <source>Skip passwords from password managers</source>
        <translation>跳过来自密码管理器的密码</translation>
    </message>
    <message>
        <source>Skipped a deleted file</source>
        <translation>已跳过一个被删除的文件</translation>
    </message>
    <message>
        <source>Skipped. That copy wasn't saved</source>
        <translation>已跳过，那次复制未保存</translation>
    </message>
    <message>
        <source>So search can find it by its words. macOS may ask you to allow access to this folder once.</source>
        <translation>这样搜索就能通过其中的文字找到它。系统可能会请求您允许访问此文件夹一次。</translation>
    </message>
    <message>
        <source>Sound when pasting</source>
        <translation>粘贴时播放声音</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>队列</translation>
    </message>
    <message>
        <source>Start / stop Paste Stack</source>
        <translation>开始 / 停止粘贴队列</translation>
    </message>
    <message>
        <source>Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.</source>
        <translation>请启动 GNOME Keyring、KWallet 或 KeePassXC。在此之前，条目仅保留到退出为止。</translation>
    </message>
    <message>
        <source>Start Paste Stack</source>
        <translation>开始粘贴队列</translation>
    </message>
    <message>
        <source>Start Using Vellumry</source>
        <translation>开始使用 Vellumry</translation>
    </message>
    <message>
        <source>Start Vellumry again to open Settings, or install a tray extension for your desktop.</source>
        <translation>再次启动 Vellumry 可打开设置，也可以为桌面安装托盘扩展。</translation>
    </message>
    <message>
        <source>Stop Paste Stack</source>
        <translation>停止粘贴队列</translation>
    </message>
    <message numerus="yes">
        <source>Stop Paste Stack (%n left)</source>
        <translation>
            <numerusform>停止粘贴队列（剩余 %n 项）</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop Paste Stack (⌃⌘S)</source>
        <translation>停止粘贴队列 (Super+Ctrl+S)</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Switch Vellumry on in System Settings. This screen updates by itself.</source>
        <translation>桌面询问时，请允许 Vellumry 模拟按键。此界面会自动更新。</translation>
    </message>
    <message>
        <source>System</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Terminals paste with other keys. Vellumry knows most of them; add yours if pasting into it does nothing.</source>
        <translation>终端使用其他按键粘贴。Vellumry 认识大多数终端；如果在您的终端中粘贴没有反应，请添加它。</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text in image</source>
        <translation>图像中的文字</translation>
    </message>
    <message>
        <source>Text in pictures</source>
        <translation>图像中的文字</translation>
    </message>
    <message>
        <source>Text, links, images, files and colors.</source>
        <translation>文本、链接、图像、文件和颜色。</translation>
    </message>
    <message>
        <source>That's it. Everything you copy is now one shortcut away.</source>
        <translation>就是这样。您复制的一切现在只需一个快捷键。</translation>
    </message>
    <message>
        <source>The file in %1 was left as it is. Check its permissions and the disk. Vellumry tries again; until then, clips are only kept until you quit it.</source>
        <translation>%1 中的文件保持原样。请检查其权限和磁盘。Vellumry 会重试；在此之前，条目仅保留到您退出为止。</translation>
    </message>
    <message>
        <source>The history can't be saved now. Vellumry tries again</source>
        <translation>暂时无法保存历史记录，Vellumry 会重试</translation>
    </message>
    <message>
        <source>The key to your clipboard history is in it. Unlock the keyring: your history then comes back by itself, with what you copied until then. While it is locked, clips are only kept until you quit Vellumry.</source>
        <translation>剪贴板历史记录的密钥就在其中。请解锁密钥环：您的历史记录随后会自动恢复，包括在此期间复制的内容。锁定期间，条目仅保留到您退出 Vellumry 为止。</translation>
    </message>
    <message>
        <source>The key to your history is damaged</source>
        <translation>历史记录的密钥已损坏</translation>
    </message>
    <message>
        <source>The next thing you copy isn't saved in Vellumry. Use it before copying a password or other private text.</source>
        <translation>您接下来复制的一项内容不会保存到 Vellumry。适合在复制密码或其他私密文字之前使用。</translation>
    </message>
    <message>
        <source>The update couldn't be loaded. Nothing has changed</source>
        <translation>无法下载更新，未作任何更改</translation>
    </message>
    <message>
        <source>This clip can't be copied anymore</source>
        <translation>此条目已无法复制</translation>
    </message>
    <message>
        <source>This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.</source>
        <translation>此桌面不会将复制操作告知 Vellumry。请登录其他会话，例如 X11。</translation>
    </message>
    <message>
        <source>This field blocks pasting from apps. Press ⌘V</source>
        <translation>此输入框不允许应用粘贴。请按 Ctrl+V</translation>
    </message>
    <message>
        <source>This file was deleted</source>
        <translation>此文件已被删除</translation>
    </message>
    <message>
        <source>This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with them. Some copies may be missing</source>
        <translation>这是 Wayland 会话：Vellumry 能看到 X11 应用复制的内容以及桌面与它们共享的内容，某些复制可能会缺失</translation>
    </message>
    <message>
        <source>This is all Vellumry is. You'll never lose a copy again.</source>
        <translation>Vellumry 就是这么简单。您再也不会丢失复制的内容。</translation>
    </message>
    <message>
        <source>This link can't be opened</source>
        <translation>无法打开此链接</translation>
    </message>
    <message>
        <source>Title Case</source>
        <translation>单词首字母大写</translation>
    </message>
    <message>
        <source>To paste files from %1, allow Vellumry in Privacy &amp; Security → Files and Folders</source>
        <translation>要粘贴 %1 中的文件，请授予 Vellumry 读取该文件夹的权限</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Transform</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Transform (⌘T)</source>
        <translation>转换 (Ctrl+T)</translation>
    </message>
    <message>
        <source>Transforms</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Transforms work on text clips</source>
        <translation>只能转换文本条目</translation>
    </message>
    <message>
        <source>Trim Spaces</source>
        <translation>去除首尾空格</translation>
    </message>
    <message>
        <source>Try it: takes 5 seconds</source>
        <translation>试一试：只需 5 秒</translation>
    </message>
    <message>
        <source>Type two letters. Even text inside screenshots.</source>
        <translation>输入两个字符即可，连截图中的文字也能找到。</translation>
    </message>
    <message>
        <source>UPPERCASE</source>
        <translation>全部大写</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Unknown app</source>
        <translation>未知应用</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>解锁…</translation>
    </message>
    <message>
        <source>Unpin</source>
        <translation>取消固定</translation>
    </message>
    <message numerus="yes">
        <source>Unpin %n Clips</source>
        <translation>
            <numerusform>取消固定 %n 个条目</numerusform>
        </translation>
    </message>
    <message>
        <source>Unpin (⌘P)</source>
        <translation>取消固定 (Ctrl+P)</translation>
    </message>
    <message>
        <source>Unpin all (⌘P)</source>
        <translation>全部取消固定 (Ctrl+P)</translation>
    </message>
    <message>
        <source>Until I Resume</source>
        <translation>直到我恢复</translation>
    </message>
    <message>
        <source>Update to Vellumry %1…</source>
        <translation>更新到 Vellumry %1…</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Vellumry %1 is ready to install</source>
        <translation>Vellumry %1 已可安装</translation>
    </message>
    <message>
        <source>Vellumry Settings</source>
        <translation>Vellumry 设置</translation>
    </message>
    <message>
        <source>Vellumry Website</source>
        <translation>Vellumry 网站</translation>
    </message>
    <message>
        <source>Vellumry can't open that file. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry 无法打开该文件。请授予读取该文件夹的权限</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders</source>
        <translation>Vellumry 无法打开您的截图文件夹。请授予读取该文件夹的权限</translation>
    </message>
    <message>
        <source>Vellumry can't open your screenshots folder. Allow it in Privacy &amp; Security → Files and Folders.</source>
        <translation>Vellumry 无法打开您的截图文件夹。请授予读取该文件夹的权限。</translation>
    </message>
    <message>
        <source>Vellumry can't reach your Keychain</source>
        <translation>Vellumry 无法访问您的密钥环</translation>
    </message>
    <message>
        <source>Vellumry can't read its history</source>
        <translation>Vellumry 无法读取其历史记录</translation>
    </message>
    <message>
        <source>Vellumry can't start in this session</source>
        <translation>Vellumry 无法在此会话中启动</translation>
    </message>
    <message>
        <source>Vellumry can't write to its folder</source>
        <translation>Vellumry 无法写入其文件夹</translation>
    </message>
    <message>
        <source>Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.</source>
        <translation>Vellumry 负责复制，由您按 Ctrl+V。如果桌面询问，请允许它模拟按键。</translation>
    </message>
    <message>
        <source>Vellumry is up to date</source>
        <translation>Vellumry 已是最新版本</translation>
    </message>
    <message>
        <source>Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file can't be pasted. Moved or renamed files are followed automatically.</source>
        <translation>Vellumry 只保留您所复制文件的链接，而不是文件的副本，因此已删除的文件无法粘贴。移动或重命名的文件会自动跟踪。</translation>
    </message>
    <message>
        <source>Vellumry keeps the key to your encrypted history there. Your desktop will ask for the keyring's password. Until then, clips are kept until you quit.</source>
        <translation>Vellumry 将加密历史记录的密钥保存在其中。您的桌面会询问密钥环的密码。在此之前，条目仅保留到退出为止。</translation>
    </message>
    <message>
        <source>Vellumry lives in your menu bar. Press the shortcut anytime.</source>
        <translation>Vellumry 位于系统托盘中，随时可按快捷键打开。</translation>
    </message>
    <message>
        <source>Vellumry needs an X11 display and found none. In a Wayland session, turn on Xwayland, or log in to an X11 session.</source>
        <translation>Vellumry 需要 X11 显示，但未找到。在 Wayland 会话中，请启用 Xwayland，或登录 X11 会话。</translation>
    </message>
    <message>
        <source>Vellumry only presses ⌘V for you. It never reads your screen or what you type.</source>
        <translation>Vellumry 只替您按 Ctrl+V，绝不会读取您的屏幕或输入的内容。</translation>
    </message>
    <message>
        <source>Vellumry presses the paste keys for you.</source>
        <translation>Vellumry 替您按下粘贴键。</translation>
    </message>
    <message>
        <source>Vellumry started a fresh history</source>
        <translation>Vellumry 已开始新的历史记录</translation>
    </message>
    <message>
        <source>Vellumry updates itself while you're away from your Mac. Off = it asks first.</source>
        <translation>Vellumry 会在您不使用电脑时自行更新。关闭时会先询问。</translation>
    </message>
    <message>
        <source>Vellumry's menu is there.</source>
        <translation>Vellumry 的菜单就在那里。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Welcome to Vellumry</source>
        <translation>欢迎使用 Vellumry</translation>
    </message>
    <message>
        <source>What works on this desktop</source>
        <translation>此桌面支持的功能</translation>
    </message>
    <message>
        <source>What your keyring keeps as “Vellumry history key” is not a key. Restore it, or remove it to begin a new history. Until then, clips are only kept until you quit Vellumry.</source>
        <translation>密钥环中名为“Vellumry history key”的内容不是密钥。请恢复它，或将其移除以开始新的历史记录。在此之前，条目仅保留到您退出 Vellumry 为止。</translation>
    </message>
    <message>
        <source>Where a package manager keeps Vellumry, it updates it too.</source>
        <translation>如果由软件包管理器管理 Vellumry，也由它来更新。</translation>
    </message>
    <message>
        <source>Words in pictures are found.</source>
        <translation>可以找到图像中的文字。</translation>
    </message>
    <message>
        <source>Works in every app, without opening Vellumry.</source>
        <translation>在所有应用中可用，无需打开 Vellumry。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>You're all set</source>
        <translation>一切就绪</translation>
    </message>
    <message>
        <source>Your Mac is almost full. Vellumry saves text only for now</source>
        <translation>您的电脑空间即将用尽。Vellumry 暂时只保存文本</translation>
    </message>
    <message>
        <source>Your clipboard history can't be opened. Make room on the disk: it then comes back by itself, with what you copied until then.</source>
        <translation>无法打开剪贴板历史记录。请腾出磁盘空间：它随后会自动恢复，包括在此期间复制的内容。</translation>
    </message>
    <message>
        <source>Your clips never leave this Mac.</source>
        <translation>您的条目绝不会离开这台电脑。</translation>
    </message>
    <message>
        <source>Your desktop may ask for your keyring's password. The key to your history is in it</source>
        <translation>您的桌面可能会询问密钥环的密码，历史记录的密钥就在其中</translation>
    </message>
    <message>
        <source>Your disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>Your history isn't open. Unlock your keyring: it then comes back by itself.</source>
        <translation>历史记录尚未打开。请解锁密钥环：它随后会自动恢复。</translation>
    </message>
    <message>
        <source>Your keyring is locked</source>
        <translation>您的密钥环已锁定</translation>
    </message>
    <message>
        <source>Your keyring keeps the key.</source>
        <translation>密钥由您的密钥环保管。</translation>
    </message>
    <message>
        <source>Your keyring refused Vellumry</source>
        <translation>您的密钥环拒绝了 Vellumry</translation>
    </message>
    <message>
        <source>Your next copy will be saved</source>
        <translation>您的下一次复制将会保存</translation>
    </message>
    <message>
        <source>Your next copy won't be saved</source>
        <translation>您的下一次复制不会保存</translation>
    </message>
    <message>
        <source>Your paste lands here</source>
        <translation>粘贴的内容会出现在这里</translation>
    </message>
    <message>
        <source>Your previous history couldn't be read on this computer, so a new one was started. The old one is kept as a backup: %1</source>
        <translation>无法在这台电脑上读取之前的历史记录，因此已开始新的历史记录。旧的历史记录已保留为备份：%1</translation>
    </message>
    <message>
        <source>Your shortcuts reach Vellumry wherever you are.</source>
        <translation>无论您在哪里，快捷键都能唤出 Vellumry。</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0 KB</translation>
    </message>
    <message>
        <source>en</source>
        <translation>zh_CN</translation>
    </message>
    <message>
        <source>lowercase</source>
        <translation>全部小写</translation>
    </message>
    <message>
        <source>macOS asks once per folder. Vellumry only opens a file when you paste or copy it.</source>
        <translation>只有在您粘贴或复制文件时，Vellumry 才会打开它。</translation>
    </message>
    <message>
        <source>macOS didn't allow it. Check System Settings → General → Login Items.</source>
        <translation>您的桌面不允许。请检查桌面的登录启动程序设置。</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed to Vellumry. Turn it on in Files and Folders.</source>
        <translation>Vellumry 无法读取 %1。请为自己授予读取该文件夹的权限。</translation>
    </message>
    <message>
        <source>macOS keeps %1 closed. Allow it in Files and Folders.</source>
        <translation>Vellumry 无法读取 %1。请为自己授予读取该文件夹的权限。</translation>
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
        <translation>退格键</translation>
    </message>
    <message>
        <source>⎋</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>%1 can't be written to. Choose another folder.</source>
        <translation>无法写入 %1。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>%1 holds no finished export of Vellumry.</source>
        <translation>%1 中没有 Vellumry 已完成的导出内容。</translation>
    </message>
    <message>
        <source>%1 is not empty. Choose a new folder.</source>
        <translation>%1 不是空文件夹。请选择新的文件夹。</translation>
    </message>
    <message numerus="yes">
        <source>%n clips are beyond the limits of your history.</source>
        <translation>
            <numerusform>%n 个条目超出历史记录的限制。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips are in %1 now, and not encrypted there.</source>
        <translation>
            <numerusform>%n 个条目现在位于 %1 中，在那里未加密。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips could not be read.</source>
        <translation>
            <numerusform>%n 个条目无法读取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips that delete themselves were left out.</source>
        <translation>
            <numerusform>已略过 %n 个会自动删除的条目。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were imported.</source>
        <translation>
            <numerusform>已导入 %n 个条目。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were in your history already.</source>
        <translation>
            <numerusform>%n 个条目已在历史记录中。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips were left out, as nothing is saved from their apps.</source>
        <translation>
            <numerusform>已略过 %n 个条目，因为不保存来自其应用的内容。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries had nothing in them that can be kept.</source>
        <translation>
            <numerusform>%n 条记录中没有可保留的内容。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n 个条目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, %1 of them pictures</source>
        <translation>
            <numerusform>%n 个条目，其中 %1 个是图像</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n items, one of them a picture</source>
        <translation>
            <numerusform>%n 个条目，其中 1 个是图像</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n passwords, codes or keys were left out.</source>
        <translation>
            <numerusform>已略过 %n 个密码、验证码或密钥。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n pictures were left out, as your disk is almost full.</source>
        <translation>
            <numerusform>已略过 %n 个图像，因为磁盘空间即将用尽。</numerusform>
        </translation>
    </message>
    <message>
        <source>A folder that Vellumry exported</source>
        <translation>Vellumry 导出的文件夹</translation>
    </message>
    <message>
        <source>Bring your clips along</source>
        <translation>带上您的条目</translation>
    </message>
    <message>
        <source>Damaged. What can be read: %1</source>
        <translation>已损坏。可读取的内容：%1</translation>
    </message>
    <message>
        <source>Damaged: nothing in it can be read</source>
        <translation>已损坏：其中没有可读取的内容</translation>
    </message>
    <message>
        <source>Email support</source>
        <translation>通过邮件获取支持</translation>
    </message>
    <message>
        <source>Encrypted: nothing in it can be read</source>
        <translation>已加密：其中没有可读取的内容</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export everything</source>
        <translation>全部导出</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>正在导出…</translation>
    </message>
    <message>
        <source>Exporting… %1</source>
        <translation>正在导出… %1</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Folder to import from</source>
        <translation>要导入的文件夹</translation>
    </message>
    <message>
        <source>From another clipboard app, or from a folder that Vellumry exported.</source>
        <translation>来自其他剪贴板应用，或来自 Vellumry 导出的文件夹。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import Again</source>
        <translation>重新导入</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>导入文件夹</translation>
    </message>
    <message>
        <source>Import clips</source>
        <translation>导入条目</translation>
    </message>
    <message>
        <source>Importing %1 of %2…</source>
        <translation>正在导入第 %1 个，共 %2 个…</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>正在导入…</translation>
    </message>
    <message>
        <source>Importing… %1</source>
        <translation>正在导入… %1</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>It can't be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>It is damaged: what could be read was looked at.</source>
        <translation>它已损坏：已查看可读取的内容。</translation>
    </message>
    <message>
        <source>Looking for other clipboard apps…</source>
        <translation>正在查找其他剪贴板应用…</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新文件夹</translation>
    </message>
    <message>
        <source>No history of CopyQ, GPaste, Klipper or Clipman was found.</source>
        <translation>未找到 CopyQ、GPaste、Klipper 或 Clipman 的历史记录。</translation>
    </message>
    <message>
        <source>Other apps</source>
        <translation>其他应用</translation>
    </message>
    <message>
        <source>Path of the folder</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Privacy policy</source>
        <translation>隐私政策</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stopped. Nothing was left in %1.</source>
        <translation>已停止。%1 中没有留下任何内容。</translation>
    </message>
    <message>
        <source>Taking it back…</source>
        <translation>正在撤销…</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>条款</translation>
    </message>
    <message>
        <source>Texts, pictures and lists of files become ordinary files, with an index of their times, titles and pins. They are not encrypted there: anybody who can read the folder can read your clips. Clips that delete themselves are left out.</source>
        <translation>文本、图像和文件列表会成为普通文件，并附有其时间、标题和固定状态的索引。它们在那里未加密：任何能读取该文件夹的人都能读取您的条目。会自动删除的条目将被略过。</translation>
    </message>
    <message>
        <source>The disk is full. Nothing was left in %1.</source>
        <translation>磁盘已满。%1 中没有留下任何内容。</translation>
    </message>
    <message>
        <source>The import was taken back.</source>
        <translation>已撤销导入。</translation>
    </message>
    <message>
        <source>The other app's files are only read. Passwords, codes and keys are left out, and clips that you have already.</source>
        <translation>只读取其他应用的文件。密码、验证码、密钥以及您已有的条目会被略过。</translation>
    </message>
    <message>
        <source>The rest was not looked at, as you stopped it.</source>
        <translation>由于您已停止，其余内容未查看。</translation>
    </message>
    <message>
        <source>There is nothing to import here any more.</source>
        <translation>这里已没有可导入的内容。</translation>
    </message>
    <message>
        <source>To a folder of ordinary files.</source>
        <translation>导出为包含普通文件的文件夹。</translation>
    </message>
    <message>
        <source>Too large to be read</source>
        <translation>太大，无法读取</translation>
    </message>
    <message>
        <source>Undo Import</source>
        <translation>撤销导入</translation>
    </message>
    <message>
        <source>Vellumry %1</source>
        <translation>Vellumry %1</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Loading the history…</source>
        <translation>正在载入历史记录…</translation>
    </message>
    <message>
        <source>GNOME did not switch the extension on. Look for Vellumry in the Extensions app.</source>
        <translation>GNOME 未能启用该扩展。请在“扩展”应用中查找 Vellumry。</translation>
    </message>
    <message>
        <source>Switch On</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>The extension is on from your next login. Log out and in again to use it.</source>
        <translation>扩展将在您下次登录后生效。请注销并重新登录以使用它。</translation>
    </message>
    <message>
        <source>The extension is on. Vellumry starts again with it.</source>
        <translation>扩展已启用。Vellumry 将随之重新启动。</translation>
    </message>
    <message>
        <source>Vellumry's extension for GNOME is off</source>
        <translation>Vellumry 的 GNOME 扩展已关闭</translation>
    </message>
    <message>
        <source>With it, no copy is missed, shortcuts work everywhere and Vellumry pastes for you.</source>
        <translation>启用后不会漏掉任何复制，快捷键处处可用，Vellumry 会为您粘贴。</translation>
    </message>
</context>
</TS>
