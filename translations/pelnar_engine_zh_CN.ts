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
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>您使用的已是最新版本。</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>此应用程序未指明更新的发布位置。请从发布者处获取并重新安装。</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>更新源的地址无效。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>更新源的地址类型不受允许。必须以 https 开头。</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>更新源的地址不安全。必须以 https 开头。</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>找不到更新服务器。请检查互联网连接，然后重试。</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>更新服务器拒绝了连接。请稍后再试。</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>无法从此网络访问更新服务器。请检查连接，然后重试。</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>更新服务器未及时接受连接。请检查连接，然后重试。</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>连接更新服务器失败。请稍后再试。</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>网络代理未放行该连接。请检查代理设置。</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>更新服务器响应时间过长。请稍后再试。</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>更新服务器响应过慢。请稍后再试。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>更新服务器的证书仅由其自身签名，身份无法证实。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>更新服务器的证书由此计算机不认识的机构签发。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>更新服务器的证书已过期。请检查此计算机的时钟；如果时间正确，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>更新服务器的证书尚未生效。请检查此计算机的时钟；如果时间正确，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>更新服务器的证书是为其他服务器签发的。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>更新服务器的证书不可接受。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>更新服务器不支持安全连接（TLS 1.2 或更高版本）。请告知发布者。</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>此计算机无法建立安全连接。请安装 OpenSSL 库。</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>更新服务器在响应之前关闭了连接。请稍后再试。</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>收到的更新源不完整。请重试。</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>更新服务器响应的标头过多。请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>更新源过大。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>更新服务器的响应不是正确的 HTTP。请换一个网络再试。</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>更新服务器给出的更新源长度自相矛盾。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>更新服务器发送的数据多于其声明的数量。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>更新服务器发送了无效的响应。请稍后再试。</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>更新服务器以未请求的方式传输更新源。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>更新服务器发送了未请求的压缩更新源。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>更新服务器返回了状态 %1。请稍后再试。</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>更新服务器指向一个安全性较低的地址。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>更新服务器指向一个类型不受允许的地址。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>更新服务器指向的内容不是地址。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>更新服务器指向另一个地址，但未给出该地址。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>更新服务器不断从一个地址指向另一个地址。请告知发布者。</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>更新源文件不存在。请检查其地址。</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>更新源的地址指向文件夹或设备。必须指向文件。</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>更新源文件过大。请检查其地址。</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>无法读取更新源文件。请检查其权限。</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>更新源是另一台计算机上的文件。请将其复制到此计算机。</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>无法读取更新源。请告知发布者。</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>收到的是网页，而不是更新源。如果此网络要求登录，请先登录，然后重试。</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>应用程序选择了更新源中没有的更新。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>应用程序在查看更新时出错。请重新启动应用程序，然后重试。</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>更新源给出的更新长度不可能正确。请告知发布者。</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>服务器上更新的长度与更新源所述不符。请稍后再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>更新服务器发送的不是所请求的那部分更新。请稍后再试。</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>更新服务器发送的数据量已达更新大小的两倍，但始终没有发送完整的更新。请稍后重试。</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>与更新服务器的连接中断次数过多。请稍后重试。</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>更新的下载耗时过长，已停止。请使用更快的连接重试。</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>更新尚未下载完成。下次检查时将继续下载。</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>应用程序的另一个副本正在下载此更新。请等待其完成。</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>无法使用存放已下载更新的文件夹。请检查其权限和所在磁盘。</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>存放已下载更新的文件夹并非您一人所有。请将其删除，然后重试。</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>更新还需要 %1 磁盘空间，目前可用空间为 %2。请释放空间，然后重试。</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>您的磁盘配额不足，更新需要 %1。请删除您的一些文件，然后重试。</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>更新文件过大，存放已下载更新的磁盘无法容纳。请咨询此计算机的管理者。</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>写入更新时磁盘出现故障。请检查磁盘，然后重试。</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>计算机内存不足或打开的文件过多，无法下载。请关闭其他应用程序，然后重试。</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>找不到应用程序的文件夹，无法更新。请从安装位置启动应用程序。</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>应用程序是通过链接启动的，无法更新。请从链接指向的文件夹启动应用程序。</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>应用程序由 %1 安装，也由其更新。请使用命令“%2”。</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>应用程序从映像文件运行。请将文件 %1 替换为新版本的文件。</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>应用程序位于无法写入的磁盘上。请将其复制到其他文件夹并从那里启动。</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>应用程序的文件夹是独立的磁盘或包含独立的磁盘，无法替换。请将其复制到其他文件夹并从那里启动应用程序。</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>应用程序受到保护，无法进行任何更改。请让设置保护的人移除文件属性“immutable”或“append only”。</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>应用程序属于此计算机的其他用户。请让该用户或管理员进行更新。</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>您无权更改应用程序的文件夹。请让管理员进行更新。</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>此计算机的其他用户可能更改应用程序的文件夹，因此不在该处更新。请让管理员修正其权限。</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>更新需要 %1 的空间，但可用空间只有 %2。请释放空间，然后重试。</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>此应用程序的更新已关闭。请咨询此计算机的管理者。</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>最近几次检查更新失败，因此下一次检查已推迟。如需立即尝试，请手动检查。</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>更新已取消。如需重新开始，请检查更新。</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>此应用程序未注明其标识符和版本，无法为其匹配更新。请从发布者处获取并重新安装。</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>安装更新的程序意外结束。请重试；如果问题仍然存在，请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>检查更新失败。请稍后再试。</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>更新源给出的更新地址不是地址。请告知发布者。</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>更新的地址类型不受允许，不是 https。请告知发布者。</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>更新的地址不以 https 开头，不安全。请告知发布者。</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>下载更新时连接中断。请重试，下载将从中断处继续。</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>更新服务器给出的更新长度自相矛盾。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>更新服务器以未请求的方式传输更新。请告知发布者。</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>更新服务器发送了未请求的压缩更新。请告知发布者。</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>更新源第 %1 行不是格式正确的 XML。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>更新源第 %1 行有文档类型声明，更新源中不允许使用。</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>更新源第 %1 行的元素嵌套超过 %2 层。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>更新源第 %1 行有一个标记的属性超过 %2 个。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>更新源第 %1 行有一个标记超过 %2 字节。</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>更新源第 %1 行超出了更新源允许的 %2 个元素和属性。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>更新源第 %1 行是第 %3 个项目，但只允许 %2 个。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>更新源第 %1 行声明的命名空间超过 %2 个。</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>更新源第 %1 行开始的是网页，而不是更新源。</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>应用程序由系统的软件包管理器安装，也由其更新。请使用命令“%1”。</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>无法安装更新。请稍后再试。</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>安装更新的程序未能理解所给的任务。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>安装更新的程序无法使用所给的文件。请重试。</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>安装更新的程序缺失，或可能被他人更改。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>更新必须在隔离的进程中解压，但未能做到。请告知发布者这是什么系统。</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>此应用程序在 SUPublicEDKey 下没有公钥，无法证明更新的真实性。请从发布者处获取并重新安装。</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>此应用程序在 SUPublicEDKey 下的公钥已损坏，无法证明更新的真实性。请从发布者处获取并重新安装。</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>更新没有签名，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>更新的签名无效，更新已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>更新不是由此应用程序的发布者签名的，或在传输中损坏，已被拒绝。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>此计算机无法验证签名。请重新安装 libsodium 库。</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>下载的更新是空的。请重试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>无法从磁盘读取下载的更新。请检查磁盘，然后重试。</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>下载的更新比更新源所述的更长或更短。请重试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>另一个程序在验证期间更改了下载的更新。请关闭该程序，然后重试。</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>更新的打包方式未知。请告知发布者。</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>更新的压缩包已损坏。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>更新的压缩包有多种读取方式，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>更新的压缩包已加密，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>更新的压缩包使用未知的压缩方式。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>更新中有文件的名称不受允许。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>更新中有文件的名称过长。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>更新中有文件会落到应用程序之外，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>更新的文件夹层级过深。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>更新中有既非文件、也非文件夹或链接的内容，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>更新中有硬链接，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>更新中有带空洞的文件，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>更新中有未注明大小的文件，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>更新中同一个文件出现两次，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>更新中有文件的名称仅大小写或重音符号不同，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>更新中有文件位于并非文件夹的内容之下，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>更新中有链接指向不受允许的名称。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>更新中有链接指向应用程序之外，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>更新中有链接没有目标。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>更新中有链接指回自身。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>更新中的文件过多。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>更新中的链接过多。请告知发布者。</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>更新解压后过大。请告知发布者。</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>已安装的应用程序被更改过，增量更新不适用。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>增量更新的结果不正确。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>更新中没有应用程序。请告知发布者。</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>更新中有多个应用程序。请告知发布者。</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>更新中的应用程序不是文件夹。请告知发布者。</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>更新中的应用程序没有信息文件。请告知发布者。</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>更新中应用程序的信息文件过大。请告知发布者。</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>无法读取更新中应用程序的信息文件。请告知发布者。</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>更新指定了其文件夹之外的程序。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>此更新属于另一个应用程序，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>更新的版本与更新源所述不符，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>更新不比已安装的应用程序新，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>更新中的应用程序没有公钥，以后将无法再更新。请告知发布者。</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>更新的内容与其文件名不符。请联系发布者。</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>更新中的应用程序没有可启动的程序。请告知发布者。</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>更新中的程序不允许启动。请告知发布者。</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>更新中的程序适用于其他类型的计算机。请告知发布者。</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>更新是一个独立的程序，此应用程序不允许这样的更新。请告知发布者。</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>更新附带的程序未能启动。请重试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>更新附带的程序未能安装更新。请重试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>更新附带的程序耗时过长，已被终止。请重试。</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>磁盘空间不足，无法更新。请释放空间，然后重试。</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>此用户无权更改应用程序所在的文件夹。请咨询安装它的人。</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>磁盘报告了错误。请检查磁盘，然后重试。</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>应用程序未关闭，因此未安装更新。请保存您的工作，再次检查更新，并让应用程序关闭。</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>正在安装此应用程序的另一个更新。请等待其完成。</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>已安装的应用程序不在更新开始时的位置。请从原位置启动，然后重试。</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>准备更新期间，已安装的应用程序被更改。请重新启动应用程序，然后重试。</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>准备好的更新在安装前被更改，已被丢弃。请重试。</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>准备好的更新与应用程序位于不同的磁盘上。请重试；如果问题仍然存在，请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>无法用新版本替换旧版本，旧版本保持不变。请重试。</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>磁盘未确认已保存更新。请检查磁盘，然后重试。</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>更新后应启动的应用程序不允许启动。请手动启动。</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>更新后的应用程序未能启动。请手动启动。</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>应用程序运行在一个隐藏文件夹“%1”所有者的容器中。请在容器外启动应用程序以进行更新。</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>您的磁盘配额不足以进行更新。请删除您的一些文件，然后重试。</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>用户“%1”可以更改应用程序的文件夹。请使用命令“%2”。</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>此更新无法保留谁可以打开该应用程序的设置，因此未安装。请让安装该应用程序的人来更新。</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>新版本无法启动，已恢复先前的版本。请告知发布者。</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>更新的安装被中断。请再次检查更新。</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>应用程序所在的位置无法锁定文件。请将其移动到本地磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>应用程序所在的磁盘不保存文件权限。请将应用程序移动到其他磁盘。</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>其他用户可以更改应用程序所在的文件夹。请将应用程序移动到您自己的文件夹。</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>此系统不提供更新所需的 pidfd_open。请安装较新的内核，或在容器或沙盒中允许此调用。</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>此系统不提供更新所需的 memfd_create。请安装较新的内核，或在容器或沙盒中允许此调用。</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>此计算机的所有用户都可以写入应用程序所在的文件夹 %1。请将应用程序移动到您自己的文件夹并从那里启动。</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>组“%1”的成员可以更改应用程序的文件夹。请使用命令“%2”。</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>应用程序安装在无法锁定文件的 %1 中。请将其移动到本地磁盘上的文件夹并从那里启动。</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>%1 中的应用程序属于文件系统中无法替换的层。请将其复制到其他文件夹并从那里启动。</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>更新源没有此应用程序所要求的签名。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>更新源在其签名之后还有内容，已被拒绝。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>更新源有多个签名，已被拒绝。请告知发布者。</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>更新源在签名之后被添加了内容。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>更新源的换行符被改写，签名不匹配。请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>更新源的签名方式是此版本所不知道的。请从发布者处获取并重新安装应用程序。</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>更新源的签名已损坏。请重试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>更新源不是由此应用程序的发布者签名的，或在签名后被更改。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>更新源没有可用的序列号。请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>更新源未注明有效期。请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>更新源比之前收到的更旧。请换一个网络再试；如果问题仍然存在，请告知发布者。</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>更新源已过期。请检查此计算机的时钟；如果时间正确，请告知发布者。</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>更新服务器指向了您自己的计算机或网络链路内部的地址。请联系发布者。</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>网络代理拒绝连接到更新服务器。请咨询您的网络管理员。</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>网络代理不接受您的用户名和密码。请检查代理设置。</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>更新源没有说明哪些密钥有效。请换一个网络重试，如果仍无法解决，请告知发布者。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>更新源中的有效密钥列表已损坏。请告知发布者。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>更新源中的有效密钥列表并非来自此应用程序的发布者。请换一个网络重试，如果仍无法解决，请告知发布者。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>更新源中的有效密钥列表属于另一个应用程序。请告知发布者。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>更新源中的有效密钥列表比之前的更旧。请换一个网络重试，如果仍无法解决，请告知发布者。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>更新源中的有效密钥列表已过期。请检查此计算机的时钟，如果时钟正确，请告知发布者。</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>此应用程序的根密钥已损坏。请从发布者处重新安装此应用程序。</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>更新源为空。请稍后重试，或联系发布者。</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>更新所需的内存、文件或进程超出了此系统允许的数量。请关闭其他应用程序，然后重试。</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>无法使用存放更新记录的文件夹。请检查其权限和磁盘。</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>更新源第 %1 行开始的文档不是更新源。</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>此网络要求登录。请登录后重试。</translation>
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
            <numerusform>大约还剩 %Ln 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>大约还剩 %Ln 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>大约还剩 %Ln 小时</numerusform>
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
        <translation>%1 %2 现已推出，您当前的版本是 %3。要现在下载吗？</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 现已可用，您当前的版本是 %3。其页面说明了获取方法。</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>打开页面(&amp;O)</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>更新所需的此应用程序的某个部分缺失或已损坏。请重新安装该应用程序。</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>已有更新正在进行。请稍后再试。</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>%1 %2 的新版本已准备好安装</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>%1 %2 更新已下载，正在等待您的确认。要现在安装更新并重新启动 %1 吗？</translation>
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
