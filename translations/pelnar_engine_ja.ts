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
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>最新のバージョンを使用しています。</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>このアプリケーションにはアップデートの公開場所が設定されていません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>アップデートフィードのアドレスが正しくありません。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>アップデートフィードのアドレスの種類は許可されていません。https で始まる必要があります。</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>アップデートフィードのアドレスは安全ではありません。https で始まる必要があります。</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>アップデートサーバーが見つかりませんでした。インターネット接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>アップデートサーバーに接続を拒否されました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>このネットワークからアップデートサーバーに到達できません。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>アップデートサーバーが時間内に接続を受け付けませんでした。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>アップデートサーバーへの接続に失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>ネットワークプロキシが接続を通しませんでした。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>アップデートサーバーの応答に時間がかかりすぎました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>アップデートサーバーの応答が遅すぎます。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>アップデートサーバーの証明書は自己署名のみで、身元が証明されていません。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>アップデートサーバーの証明書は、このコンピューターの知らない認証局が発行したものです。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>アップデートサーバーの証明書の有効期限が切れています。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>アップデートサーバーの証明書はまだ有効ではありません。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>アップデートサーバーの証明書は別のサーバー用です。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>アップデートサーバーの証明書は受け入れられません。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>アップデートサーバーは安全な接続（TLS 1.2 以降）に対応していません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>このコンピューターでは安全な接続を行えません。OpenSSL ライブラリをインストールしてください。</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>アップデートサーバーが応答する前に接続を閉じました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>アップデートフィードが途中までしか届きませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>アップデートサーバーの応答のヘッダーが多すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>アップデートフィードが大きすぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>アップデートサーバーの応答は正しい HTTP ではありません。別のネットワークでお試しください。</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>アップデートサーバーが示すフィードの長さに矛盾があります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>アップデートサーバーが予告より多くのデータを送信しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>アップデートサーバーから無効な応答が返されました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>アップデートサーバーが要求していない方法でフィードを転送しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>アップデートサーバーが要求していないのにフィードを圧縮して送信しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>アップデートサーバーがステータス %1 を返しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>アップデートサーバーが安全性の低いアドレスに転送しようとしています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>アップデートサーバーが許可されていない種類のアドレスに転送しようとしています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>アップデートサーバーがアドレスではないものに転送しようとしています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>アップデートサーバーが転送先のアドレスを示していません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>アップデートサーバーの転送が際限なく続いています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>アップデートフィードのファイルが存在しません。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>アップデートフィードのアドレスがフォルダーまたはデバイスを指しています。ファイルを指す必要があります。</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>アップデートフィードのファイルが大きすぎます。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>アップデートフィードのファイルを読み取れません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>アップデートフィードは別のコンピューターのファイルです。このコンピューターにコピーしてください。</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>アップデートフィードを読み取れません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>アップデートフィードの代わりに Web ページが届きました。必要な場合はこのネットワークにサインインして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>アプリケーションがフィードにないアップデートを選択しました。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>アップデートの確認中にアプリケーションでエラーが発生しました。再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>フィードに示されたアップデートの長さが正しくありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>サーバー上のアップデートの長さがフィードの記載と異なります。しばらくしてからもう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>アップデートサーバーが要求と異なる部分を送信しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>アップデートサーバーはアップデートの2倍の量を送信しましたが、全体は一度も届きませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>アップデートサーバーとの接続が何度も切れました。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>アップデートのダウンロードに時間がかかりすぎたため、中止しました。より高速な接続でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>アップデートのダウンロードはまだ完了していません。次回の確認時に続きをダウンロードします。</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>アプリケーションの別のコピーがこのアップデートをダウンロードしています。完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>ダウンロードしたアップデート用のフォルダーを使用できません。アクセス権とディスクを確認してください。</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>ダウンロードしたアップデート用のフォルダーがほかのユーザーと共有されています。フォルダーを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>アップデートにはディスクの空き容量があと %1 必要ですが、空きは %2 です。空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>ディスクの割り当てが足りません（アップデートには %1 必要です）。自分のファイルを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>アップデートのファイルが大きすぎて、ダウンロード用のディスクに保存できません。このコンピューターの管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>アップデートの書き込み中にディスクで障害が発生しました。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>メモリが不足しているか、開いているファイルが多すぎるため、ダウンロードできません。ほかのアプリケーションを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>アプリケーションのフォルダーが見つからないため、アップデートできません。インストールされている場所から起動してください。</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>アプリケーションがリンクから起動されたため、アップデートできません。リンク先のフォルダーから起動してください。</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>アプリケーションは %1 によってインストールされ、アップデートもそれを通じて行われます。コマンド「%2」を使用してください。</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>アプリケーションはイメージファイルから実行されています。ファイル %1 を新しいバージョンのものに置き換えてください。</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>アプリケーションは書き込みできないディスクにあります。別のフォルダーにコピーして、そこから起動してください。</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>アプリケーションのフォルダーが独立したディスクであるか、そのようなディスクを含むため、置き換えられません。別のフォルダーにコピーして、そこから起動してください。</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>アプリケーションは変更できないように保護されています。保護した人に、ファイル属性「immutable」または「append only」の解除を依頼してください。</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>アプリケーションはこのコンピューターの別のユーザーのものです。そのユーザーまたは管理者にアップデートを依頼してください。</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>アプリケーションのフォルダーを変更する権限がありません。管理者にアップデートを依頼してください。</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>このコンピューターのほかのユーザーがアプリケーションのフォルダーを変更できるため、アップデートは行われません。管理者にアクセス権の修正を依頼してください。</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>アップデートには %1 の空き容量が必要ですが、空きは %2 しかありません。空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>このアプリケーションのアップデートは無効になっています。このコンピューターの管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>最近のアップデートの確認に失敗したため、次の確認は延期されています。すぐに試すには、手動で確認してください。</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>アップデートはキャンセルされました。やり直すには、アップデートを確認してください。</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>このアプリケーションには識別子とバージョンが設定されていないため、対応するアップデートを判別できません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>アップデートをインストールするプログラムが予期せず終了しました。もう一度お試しください。それでも解決しない場合は、アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>アップデートの確認に失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>フィードに示されたアップデートのアドレスはアドレスではありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>アップデートのアドレスの種類は許可されていません（https ではありません）。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>アップデートのアドレスは https で始まっていないため、安全ではありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>アップデートのダウンロード中に接続が切れました。もう一度お試しください。続きから再開されます。</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>アップデートサーバーが示すアップデートの長さに矛盾があります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>アップデートサーバーが要求していない方法でアップデートを転送しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>アップデートサーバーが要求していないのにアップデートを圧縮して送信しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>フィードの %1 行目は正しい形式の XML ではありません。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>フィードの %1 行目に、フィードでは許可されない文書型宣言があります。</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>フィードの %1 行目で、要素の入れ子が %2 階層を超えています。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>フィードの %1 行目に、属性が %2 個を超えるタグがあります。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>フィードの %1 行目に、%2 バイトを超えるタグがあります。</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>フィードの %1 行目で、フィードに許可される %2 個の要素と属性を超えています。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>フィードの %1 行目に %3 番目の項目がありますが、許可されるのは %2 個までです。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>フィードの %1 行目で、%2 個を超える名前空間が宣言されています。</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>フィードの %1 行目から、フィードではなく Web ページが始まっています。</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>アプリケーションはシステムのパッケージマネージャーによってインストールされ、アップデートもそれが行います。コマンド「%1」を使用してください。</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>アップデートをインストールできませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>アップデートをインストールするプログラムが指示を理解できませんでした。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>アップデートをインストールするプログラムが、渡されたファイルを使用できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>アップデートをインストールするプログラムがないか、ほかの人に変更されるおそれがあります。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>アップデートを必要な隔離プロセスで展開できませんでした。このシステムの種類を発行元に連絡してください。</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>このアプリケーションには SUPublicEDKey の公開鍵がないため、アップデートが本物であることを証明できません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>このアプリケーションの SUPublicEDKey の公開鍵が壊れているため、アップデートが本物であることを証明できません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>アップデートに署名がないため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>アップデートの署名が有効でないため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>アップデートがこのアプリケーションの発行元によって署名されていないか、転送中に壊れたため、拒否されました。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>このコンピューターでは署名を検証できません。libsodium ライブラリを再インストールしてください。</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>ダウンロードしたアップデートが空です。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>ダウンロードしたアップデートをディスクから読み取れません。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>ダウンロードしたアップデートの長さがフィードの記載と異なります。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>ダウンロードしたアップデートの検証中に、別のプログラムがそれを変更しました。そのプログラムを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>アップデートのパッケージ形式が不明です。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>アップデートのアーカイブが壊れています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>アップデートのアーカイブが複数の方法で読み取れるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>アップデートのアーカイブが暗号化されているため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>アップデートのアーカイブの圧縮方式が不明です。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>アップデートに、許可されていない名前のファイルがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>アップデートに、名前が長すぎるファイルがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>アップデートに、アプリケーションの外に置かれるファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>アップデートのフォルダーの階層が深すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>アップデートに、ファイル、フォルダー、リンクのいずれでもないものがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>アップデートにハードリンクがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>アップデートに穴のあるファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>アップデートにサイズのないファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>アップデートに同じファイルが二つあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>アップデートに、名前が大文字と小文字またはアクセントしか違わないファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>アップデートに、フォルダーではないものの下に置かれたファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>アップデートに、許可されていない名前を指すリンクがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>アップデートに、アプリケーションの外を指すリンクがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>アップデートに、リンク先のないリンクがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>アップデートに、自分自身に戻るリンクがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>アップデートのファイルが多すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>アップデートのリンクが多すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>展開後のアップデートが大きすぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>インストール済みのアプリケーションが変更されているため、差分アップデートを適用できません。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>差分アップデートの結果が正しくありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>アップデートにアプリケーションが含まれていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>アップデートに複数のアプリケーションが含まれています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>アップデートに含まれるアプリケーションがフォルダーではありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>アップデートに含まれるアプリケーションに情報ファイルがありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>アップデートに含まれるアプリケーションの情報ファイルが大きすぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>アップデートに含まれるアプリケーションの情報ファイルを読み取れません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>アップデートが自身のフォルダの外にあるプログラムを指定しています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>アップデートが別のアプリケーションのものであるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>アップデートのバージョンがフィードの記載と異なるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>アップデートがインストール済みのアプリケーションより新しくないため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>アップデートに含まれるアプリケーションに公開鍵がないため、以後アップデートできなくなります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>アップデートの内容がファイル名と一致しません。発行元にお問い合わせください。</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>アップデートに含まれるアプリケーションに、起動するプログラムがありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>アップデートに含まれるプログラムの起動が許可されていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>アップデートに含まれるプログラムは、別の種類のコンピューター用です。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>アップデートが独立したプログラムになっていますが、このアプリケーションでは許可されていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>アップデートに付属するプログラムが起動しませんでした。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>アップデートに付属するプログラムがインストールに失敗しました。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>アップデートに付属するプログラムは時間がかかりすぎたため、終了されました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>アップデートに必要なディスクの空き容量が足りません。空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>このユーザーは、アプリケーションのあるフォルダーを変更できません。インストールした人に問い合わせてください。</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>ディスクがエラーを報告しました。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>アプリケーションが終了しなかったため、アップデートはインストールされませんでした。作業を保存し、アップデートをもう一度確認して、アプリケーションを終了させてください。</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>このアプリケーションの別のアップデートをインストールしています。完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>インストール済みのアプリケーションが、アップデート開始時の場所にありません。元の場所から起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>アップデートの準備中に、インストール済みのアプリケーションが変更されました。起動し直して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>準備済みのアップデートがインストール前に変更されたため、破棄されました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>準備済みのアップデートとアプリケーションが別々のディスクにあります。もう一度お試しください。それでも解決しない場合は、アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>新しいバージョンに置き換えられませんでした。以前のバージョンはそのまま残っています。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>アップデートが保存されたことをディスクから確認できませんでした。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>アップデート後に起動するはずのアプリケーションの起動が許可されていません。手動で起動してください。</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>アップデートしたアプリケーションが起動しませんでした。手動で起動してください。</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>アプリケーションは、フォルダー「%1」の所有者を隠すコンテナーの中で動作しています。更新するには、コンテナーの外で起動してください。</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>アップデートに必要なディスクの割り当てが足りません。自分のファイルを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>ユーザー「%1」はアプリケーションのフォルダを変更できます。コマンド「%2」を使用してください。</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>アプリケーションを開ける人の設定を維持できないため、アップデートはインストールされませんでした。アプリケーションをインストールした人に更新を依頼してください。</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>新しいバージョンを起動できなかったため、前のバージョンに戻しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>アップデートのインストールが中断されました。もう一度アップデートを確認してください。</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>アプリケーションのインストール先ではファイルをロックできません。ローカルディスク上のフォルダに移動してください。</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>アプリケーションがあるディスクはファイルのアクセス権を保持しません。アプリケーションを別のディスクに移動してください。</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>アプリケーションがあるフォルダは他のユーザーも変更できます。アプリケーションを自分専用のフォルダに移動してください。</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>このシステムはアップデートに必要な pidfd_open を提供していません。新しいカーネルをインストールするか、コンテナまたはサンドボックスでこの呼び出しを許可してください。</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>このシステムはアップデートに必要な memfd_create を提供していません。新しいカーネルをインストールするか、コンテナまたはサンドボックスでこの呼び出しを許可してください。</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>アプリケーションがあるフォルダ %1 には、このコンピュータのすべてのユーザーが書き込めます。アプリケーションを自分専用のフォルダに移動し、そこから起動してください。</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>グループ「%1」のメンバーはアプリケーションのフォルダを変更できます。コマンド「%2」を使用してください。</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>アプリケーションは、ファイルをロックできない %1 にインストールされています。ローカルディスク上のフォルダに移動し、そこから起動してください。</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>%1 にあるアプリケーションは、置き換えることのできないファイルシステムのレイヤーに属しています。別のフォルダにコピーし、そこから起動してください。</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>このアプリケーションに必要な署名がアップデートフィードにありません。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>アップデートフィードが署名の後にも続いているため、拒否されました。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>アップデートフィードに複数の署名があるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>署名の後にアップデートフィードに何かが追加されました。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>アップデートフィードの改行が書き換えられたため、署名が一致しません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>アップデートフィードの署名方式はこのバージョンでは不明です。アプリケーションを発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>アップデートフィードの署名が壊れています。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>アップデートフィードがこのアプリケーションの発行元によって署名されていないか、後から変更されています。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>アップデートフィードに有効な通し番号がありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>アップデートフィードに有効期限が示されていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>アップデートフィードが以前に受信したものより古くなっています。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>アップデートフィードの有効期限が切れています。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>更新サーバーが、このコンピューター自身またはそのネットワークリンク内のアドレスを指しています。発行元にお問い合わせください。</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>ネットワークプロキシが更新サーバーへの接続を拒否しました。ネットワークの管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>ネットワークプロキシがユーザー名とパスワードを受け付けません。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>更新フィードに有効な鍵が示されていません。別のネットワークで試し、それでも解決しない場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧が壊れています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧は、このアプリケーションの発行元のものではありません。別のネットワークで試し、それでも解決しない場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧は、別のアプリケーションのものです。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧は、以前のものより古くなっています。別のネットワークで試し、それでも解決しない場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧の有効期限が切れています。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>このアプリケーションのルート鍵が壊れています。発行元から入手してアプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>アップデートフィードが空です。後でもう一度試すか、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>更新には、このシステムで許可されている以上のメモリ、ファイル、またはプロセスが必要です。ほかのアプリケーションを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>アップデートの記録用のフォルダーを使用できません。アクセス権とディスクを確認してください。</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>フィードの %1 行目から、フィードではない文書が始まっています。</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>このネットワークではサインインが必要です。サインインしてから、もう一度お試しください。</translation>
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
        <translation>%1 %2 を入手できます（現在のバージョンは %3）。今すぐダウンロードしますか？</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 が利用可能です（現在のバージョンは %3）。入手方法はこのバージョンのページに書かれています。</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>ページを開く(&amp;O)</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>更新に必要なこのアプリケーションの一部が見つからないか、破損しています。アプリケーションを再インストールしてください。</translation>
    </message>
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
