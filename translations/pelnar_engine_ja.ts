<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ErrorWindow</name>
    <message>
        <source>The update could not be completed</source>
        <translation>アップデートを完了できませんでした</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/秒</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>残り約 %Ln 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>残り約 %Ln 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>残り約 %Ln 時間</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 をダウンロードしています…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 を検証して展開しています…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>アップデートの進行状況</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>サーバーの応答を待っています…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>インストールの準備ができました</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 のダウンロードと検証が完了しました。インストールするために %1 を終了し、もう一度開きます。</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>後で(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>インストールして再起動(&amp;I)</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 は現在入手できる最新バージョンです。</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>%1 の新しいバージョンがあります</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 が入手できるようになりました（現在のバージョンは %3）。今すぐダウンロードしますか？</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>これは重要なアップデートです。早めにインストールしてください。</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>ダウンロードサイズ: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>リリースノートをブラウザーで表示(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>このバージョンをスキップ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>後で通知(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>アップデートをインストール(&amp;I)</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>アップデートはすでに実行中です。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>%1 %2 の新しいバージョンをインストールできます</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>%1 %2 のアップデートがダウンロードされ、承認を待っています。今すぐアップデートをインストールして %1 を再起動しますか？</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>インストールして再起動</translation>
    </message>
</context>
</TS>
