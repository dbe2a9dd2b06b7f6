<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ErrorWindow</name>
    <message>
        <source>The update could not be completed</source>
        <translation>无法完成更新</translation>
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
            <numerusform>大约剩余 %Ln 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>大约剩余 %Ln 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>大约剩余 %Ln 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>正在下载 %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>正在验证并解压 %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>更新进度</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>正在等待服务器…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>已准备好安装</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 已下载并通过验证。安装时将关闭并重新打开 %1。</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>稍后(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>安装并重新启动(&amp;I)</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>已是最新版本！</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 是目前可用的最新版本。</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>%1 有新版本可用！</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 现已可用，您当前的版本是 %3。要现在下载吗？</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>此更新很重要，请尽快安装。</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>下载大小：%1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>在浏览器中显示发行说明(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>跳过此版本(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>稍后提醒我(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>安装更新(&amp;I)</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>更新已在进行中。请稍后再试。</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>%1 %2 的新版本已准备好安装</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>%1 %2 更新已下载，正在等待您的批准。要现在安装更新并重新启动 %1 吗？</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒我</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>安装并重新启动</translation>
    </message>
</context>
</TS>
