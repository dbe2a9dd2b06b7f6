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
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>このアプリケーションにはアップデートの公開場所が設定されていません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>アップデートフィードのアドレスが正しくありません。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>アップデートフィードのアドレスの種類は許可されていません。https で始まる必要があります。</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>アップデートフィードのアドレスは安全ではありません。https で始まる必要があります。</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>アップデートサーバーが見つかりませんでした。インターネット接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>アップデートサーバーに接続を拒否されました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>このネットワークからアップデートサーバーに到達できません。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>アップデートサーバーが時間内に接続を受け付けませんでした。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>アップデートサーバーへの接続に失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>ネットワークプロキシが接続を通しませんでした。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>アップデートサーバーの応答に時間がかかりすぎました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>アップデートサーバーの応答が遅すぎます。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートサーバーの証明書は自己署名のみで、身元が証明されていません。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートサーバーの証明書は、このコンピューターの知らない認証局が発行したものです。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>アップデートサーバーの証明書の有効期限が切れています。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>アップデートサーバーの証明書はまだ有効ではありません。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートサーバーの証明書は別のサーバー用です。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートサーバーの証明書は受け入れられません。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>アップデートサーバーが十分に強力な方式に対応していないため、安全な接続を確立できませんでした。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>このコンピューターでは安全な接続を行えません。OpenSSL ライブラリをインストールしてください。</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>アップデートサーバーが応答する前に接続を閉じました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>アップデートフィードが途中までしか届きませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>アップデートサーバーの応答のヘッダーが多すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>アップデートフィードが大きすぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>アップデートサーバーの応答は正しい HTTP ではありません。別のネットワークでお試しください。</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>アップデートサーバーが示すフィードの長さに矛盾があります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>アップデートサーバーが予告より多くのデータを送信しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>アップデートサーバーの応答が壊れています。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>アップデートサーバーが要求していない方法でフィードを転送しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>アップデートサーバーが要求していないのにフィードを圧縮して送信しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>アップデートサーバーがステータス %1 を返しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>アップデートサーバーが安全性の低いアドレスに転送しようとしています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>アップデートサーバーが許可されていない種類のアドレスに転送しようとしています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>アップデートサーバーがアドレスではないものに転送しようとしています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>アップデートサーバーが転送先のアドレスを示していません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>アップデートサーバーの転送が際限なく続いています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>アップデートフィードのファイルが存在しません。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>アップデートフィードのアドレスがフォルダーまたはデバイスを指しています。ファイルを指す必要があります。</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>アップデートフィードのファイルが大きすぎます。アドレスを確認してください。</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>アップデートフィードのファイルを読み取れません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>アップデートフィードは別のコンピューターのファイルです。このコンピューターにコピーしてください。</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>アップデートフィードを読み取れません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>アップデートフィードの代わりに Web ページが届きました。必要な場合はこのネットワークにサインインして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>アプリケーションがフィードにないアップデートを選択しました。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>アップデートの確認中にアプリケーションでエラーが発生しました。再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>フィードに示されたアップデートの長さが正しくありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>サーバー上のアップデートの長さがフィードの記載と異なります。しばらくしてからもう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
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
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>アプリケーションの別のコピーがこのアップデートをダウンロードしています。完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>ダウンロードしたアップデート用のフォルダーを使用できません。アクセス権とディスクを確認してください。</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>ダウンロードしたアップデート用のフォルダーがほかのユーザーと共有されています。フォルダーを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>アップデートにはディスクの空き容量があと %1 必要ですが、空きは %2 です。空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>アップデートにはディスクの割り当てを %1 超える容量が必要です（空きは %2）。自分のファイルを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>アップデートのファイルが大きすぎて、ダウンロード用のディスクに保存できません。管理者に相談してください。</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>アップデートの書き込み中にディスクで障害が発生しました。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>メモリが不足しているか、開いているファイルが多すぎるため、ダウンロードできません。ほかのアプリケーションを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>アプリケーションのフォルダーが見つからないため、アップデートできません。インストールされている場所から起動してください。</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>アプリケーションがリンクから起動されたため、アップデートできません。リンク先のフォルダーから起動してください。</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>アプリケーションは %1 によってインストールされ、アップデートもそれを通じて行われます。コマンド「%2」を使用してください。</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>アプリケーションはイメージファイルから実行されています。ファイル %1 を新しいバージョンのものに置き換えてください。</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>アプリケーションは書き込みできないディスクにあります。別のフォルダーにコピーして、そこから起動してください。</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>アプリケーションのフォルダーは独立したディスクのため、置き換えられません。別のフォルダーにコピーして、そこから起動してください。</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>アプリケーションは変更できないように保護されています。保護した人に、ファイル属性「immutable」または「append only」の解除を依頼してください。</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>アプリケーションはこのコンピューターの別のユーザーのものです。そのユーザーまたは管理者にアップデートを依頼してください。</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>アプリケーションのフォルダーを変更する権限がありません。管理者にアップデートを依頼してください。</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>このコンピューターのほかのユーザーがアプリケーションのフォルダーを変更できるため、アップデートは行われません。管理者にアクセス権の修正を依頼してください。</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>アップデートのための空き容量がありません。%1 必要ですが、空きは %2 です。空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>このアプリケーションのアップデートは無効になっています。このコンピューターの管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>最近のアップデートの確認に失敗したため、次の確認は延期されています。すぐに試すには、手動で確認してください。</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>アップデートはキャンセルされました。やり直すには、アップデートを確認してください。</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>このアプリケーションには識別子とバージョンが設定されていないため、対応するアップデートを判別できません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>アップデートをインストールするプログラムが予期せず終了しました。もう一度お試しください。それでも解決しない場合は、アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>アップデートの確認に失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>フィードに示されたアップデートのアドレスはアドレスではありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>アップデートのアドレスの種類は許可されていません（https ではありません）。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>アップデートのアドレスは https で始まっていないため、安全ではありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>アップデートのダウンロード中に接続が切れました。もう一度お試しください。続きから再開されます。</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>アップデートサーバーが示すアップデートの長さに矛盾があります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>アップデートサーバーが要求していない方法でアップデートを転送しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>アップデートサーバーが要求していないのにアップデートを圧縮して送信しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>フィードの %1 行目は正しい形式の XML ではありません。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
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
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>フィードの %1 行目で、フィードに許可される %2 個の要素と属性を超えています。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>フィードの %1 行目に %2 番目の項目がありますが、許可されるのは %3 個までです。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>フィードの %1 行目で、%2 個を超える名前空間が宣言されています。</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>フィードの %1 行目から、フィードではなく Web ページが始まっています。</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>フィードの %1 行目に不明なエラーがあります。</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>アプリケーションはシステムのパッケージマネージャーによってインストールされ、アップデートもそれが行います。コマンド「%1」を使用してください。</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>アップデートをインストールできませんでした。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>アップデートをインストールするプログラムが指示を理解できませんでした。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>アップデートをインストールするプログラムが、渡されたファイルを使用できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>アップデートをインストールするプログラムがないか、ほかの人に変更されるおそれがあります。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>アップデートを必要な隔離プロセスで展開できませんでした。このシステムの種類を発行元に連絡してください。</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>このアプリケーションには SUPublicEDKey の公開鍵がないため、アップデートが本物であることを証明できません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>このアプリケーションの SUPublicEDKey の公開鍵が壊れているため、アップデートが本物であることを証明できません。発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>アップデートに署名がないため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>アップデートの署名が署名の形式ではないため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートがこのアプリケーションの発行元によって署名されていないか、転送中に壊れたため、拒否されました。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>このコンピューターでは署名を検証できません。libsodium ライブラリを再インストールしてください。</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>ダウンロードしたアップデートが空です。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>ダウンロードしたアップデートをディスクから読み取れません。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>ダウンロードしたアップデートの長さがフィードの記載と異なります。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>ダウンロードしたアップデートの検証中に、別のプログラムがそれを変更しました。そのプログラムを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>アップデートのパッケージ形式が不明です。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>アップデートのアーカイブが壊れています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>アップデートのアーカイブが複数の方法で読み取れるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>アップデートのアーカイブが暗号化されているため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>アップデートのアーカイブの圧縮方式が不明です。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>アップデートに、許可されていない名前のファイルがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>アップデートに、名前が長すぎるファイルがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>アップデートに、アプリケーションの外に置かれるファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>アップデートのフォルダーの階層が深すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>アップデートに、ファイル、フォルダー、リンクのいずれでもないものがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>アップデートにハードリンクがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>アップデートに穴のあるファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>アップデートにサイズのないファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>アップデートに同じファイルが二つあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>アップデートに、名前が大文字と小文字またはアクセントしか違わないファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>アップデートに、フォルダーではないものの下に置かれたファイルがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>アップデートに、許可されていない名前を指すリンクがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>アップデートに、アプリケーションの外を指すリンクがあるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>アップデートに、リンク先のないリンクがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>アップデートに、自分自身に戻るリンクがあります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>アップデートのファイルが多すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>アップデートのリンクが多すぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>展開後のアップデートが大きすぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>インストール済みのアプリケーションが変更されているため、差分アップデートを適用できません。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>差分アップデートの適用結果が本来の内容と異なります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>アップデートにアプリケーションが含まれていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>アップデートに複数のアプリケーションが含まれています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>アップデートに含まれるアプリケーションがフォルダーではありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>アップデートに含まれるアプリケーションに説明情報がありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>アップデートに含まれるアプリケーションの説明情報が大きすぎます。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>アップデートに含まれるアプリケーションの説明情報を読み取れません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>アップデートが自身のフォルダの外にあるプログラムを指定しています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>アップデートが別のアプリケーションのものであるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>アップデートのバージョンがフィードの記載と異なるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>アップデートがインストール済みのアプリケーションより新しくないため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>アップデートに含まれるアプリケーションに公開鍵がないため、以後アップデートできなくなります。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>アップデートの内容がファイル名と一致しません。発行元にお問い合わせください。</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>アップデートに含まれるアプリケーションに、起動するプログラムがありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>アップデートに含まれるプログラムの起動が許可されていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>アップデートに含まれるプログラムは、別の種類のコンピューター用です。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>アップデートが独立したプログラムになっていますが、このアプリケーションでは許可されていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>アップデートに付属するプログラムが起動しませんでした。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>アップデートに付属するプログラムがインストールに失敗しました。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>アップデートに付属するプログラムは時間がかかりすぎたため、終了されました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>アップデートに必要なディスクの空き容量が足りません。空き容量を増やして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>このユーザーは、アプリケーションのあるフォルダーを変更できません。インストールした人に問い合わせてください。</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>ディスクがエラーを報告しました。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>アプリケーションが終了しなかったため、アップデートはインストールされませんでした。作業を保存し、アップデートをもう一度確認して、アプリケーションを終了させてください。</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>このアプリケーションの別のアップデートをインストールしています。完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>インストール済みのアプリケーションが、アップデート開始時の場所にありません。元の場所から起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>アップデートの準備中に、インストール済みのアプリケーションが変更されました。起動し直して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>準備済みのアップデートがインストール前に変更されたため、破棄されました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>準備済みのアップデートとアプリケーションが別々のディスクにあります。もう一度お試しください。それでも解決しない場合は、アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>新しいバージョンに置き換えられませんでした。以前のバージョンはそのまま残っています。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>アップデートが保存されたことをディスクから確認できませんでした。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>アップデート後に起動するはずのアプリケーションの起動が許可されていません。手動で起動してください。</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>アップデートしたアプリケーションが起動しませんでした。手動で起動してください。</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>アプリケーションは、フォルダー「%1」の所有者を隠すコンテナーの中で動作しています。更新するには、コンテナーの外で起動してください。</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>アプリケーションを開ける人の設定を維持できないため、アップデートはインストールされませんでした。アプリケーションをインストールした人に更新を依頼してください。</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>新しいバージョンを起動できなかったため、前のバージョンに戻しました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>アップデートのインストールが中断されました。もう一度アップデートを確認してください。</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>アプリケーションのインストール先ではファイルをロックできません: ローカルディスク上のフォルダに移動してください。</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>アプリケーションがあるディスクはファイルのアクセス権を保持しません: アプリケーションを別のディスクに移動してください。</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>アプリケーションがあるフォルダは他のユーザーも変更できます: アプリケーションを自分専用のフォルダに移動してください。</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>このシステムはアップデートに必要な pidfd_open を提供していません: 新しいカーネルをインストールするか、コンテナまたはサンドボックスでこの呼び出しを許可してください。</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>このシステムはアップデートに必要な memfd_create を提供していません: 新しいカーネルをインストールするか、コンテナまたはサンドボックスでこの呼び出しを許可してください。</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>アプリケーションがあるフォルダ %1 には、このコンピュータのすべてのユーザーが書き込めます: アプリケーションを自分専用のフォルダに移動し、そこから起動してください。</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>グループ「%1」のメンバーはアプリケーションのフォルダを変更できます: コマンド「%2」を使用してください。</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>アプリケーションは、ファイルをロックできない %1 にインストールされています: ローカルディスク上のフォルダに移動し、そこから起動してください。</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>%1 にあるアプリケーションは、置き換えることのできないファイルシステムのレイヤーに属しています: 別のフォルダにコピーし、そこから起動してください。</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>このアプリケーションに必要な署名がアップデートフィードにありません。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートフィードが署名の後にも続いているため、拒否されました。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>アップデートフィードに複数の署名があるため、拒否されました。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>署名の後にアップデートフィードに何かが追加されました。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>アップデートフィードの改行が書き換えられたため、署名が一致しません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>アップデートフィードの署名方式はこのバージョンでは不明です。アプリケーションを発行元から入手して再インストールしてください。</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>アップデートフィードの署名が壊れています。もう一度お試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートフィードがこのアプリケーションの発行元によって署名されていないか、後から変更されています。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>アップデートフィードに有効な通し番号がありません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>アップデートフィードに有効期限が示されていません。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>アップデートフィードが以前に受信したものより古くなっています。別のネットワークでお試しください。それでも解決しない場合は、発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
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
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>ネットワークプロキシがユーザー名とパスワードを受け付けません。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>更新フィードに有効な鍵が示されていません。別のネットワークで試し、それでも解決しない場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧が壊れています。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>更新フィードにある有効な鍵の一覧は、このアプリケーションの発行元のものではありません。別のネットワークで試し、それでも解決しない場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>更新フィードにある有効な鍵の一覧は、別のアプリケーションのものです。発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>更新フィードにある有効な鍵の一覧は、以前のものより古くなっています。別のネットワークで試し、それでも解決しない場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>更新フィードにある有効な鍵の一覧の有効期限が切れています。このコンピューターの時計を確認し、正しい場合は発行元に連絡してください。</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>このアプリケーションのルート鍵が壊れています。発行元から入手してアプリケーションを再インストールしてください。</translation>
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
