<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Procurando atualizações…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
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
        <translation>Não foi possível concluir a atualização</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>Você está usando a versão mais recente.</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Este aplicativo não informa onde suas atualizações são publicadas. Instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>O endereço do feed de atualizações não é um endereço válido. Instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>O endereço do feed de atualizações é de um tipo não permitido. Ele deve começar com https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>O endereço do feed de atualizações não é seguro. Ele deve começar com https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>O servidor de atualizações não foi encontrado. Verifique a conexão com a Internet e tente novamente.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>O servidor de atualizações recusou a conexão. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>Não é possível acessar o servidor de atualizações a partir desta rede. Verifique a conexão e tente novamente.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>O servidor de atualizações não aceitou a conexão a tempo. Verifique a conexão e tente novamente.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>A conexão com o servidor de atualizações falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>O proxy da rede não deixou a conexão passar. Verifique as configurações do proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>O servidor de atualizações demorou demais para responder. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>O servidor de atualizações responde com lentidão demais. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>O certificado do servidor de atualizações é assinado apenas por ele mesmo, portanto sua identidade não está comprovada. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>O certificado do servidor de atualizações vem de uma autoridade que este computador não conhece. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>O certificado do servidor de atualizações expirou. Verifique o relógio deste computador e, se estiver certo, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>O certificado do servidor de atualizações ainda não é válido. Verifique o relógio deste computador e, se estiver certo, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>O certificado do servidor de atualizações foi emitido para outro servidor. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>O certificado do servidor de atualizações não é aceitável. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>O servidor de atualizações não oferece suporte a conexões seguras (TLS 1.2 ou posterior). Avise o fornecedor.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Este computador não consegue fazer conexões seguras. Instale a biblioteca OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>O servidor de atualizações fechou a conexão antes de responder. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>O feed de atualizações chegou incompleto. Tente novamente.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>A resposta do servidor de atualizações tem cabeçalhos demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>O feed de atualizações é grande demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>A resposta do servidor de atualizações não é HTTP correto. Tente outra rede.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>O servidor de atualizações informa o tamanho do feed de formas contraditórias. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>O servidor de atualizações enviou mais do que anunciou. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>O servidor de atualizações enviou uma resposta inválida. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>O servidor de atualizações transfere o feed de uma forma que não foi pedida. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>O servidor de atualizações enviou o feed compactado, o que não foi pedido. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>O servidor de atualizações respondeu com o status %1. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>O servidor de atualizações aponta para um endereço menos seguro. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>O servidor de atualizações aponta para um endereço de um tipo não permitido. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>O servidor de atualizações aponta para algo que não é um endereço. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>O servidor de atualizações aponta para outro endereço sem informá-lo. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>O servidor de atualizações aponta de endereço em endereço sem fim. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>O arquivo com o feed de atualizações não existe. Verifique seu endereço.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>O endereço do feed de atualizações indica uma pasta ou um dispositivo. Ele deve indicar um arquivo.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>O arquivo com o feed de atualizações é grande demais. Verifique seu endereço.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Não é possível ler o arquivo com o feed de atualizações. Verifique suas permissões.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>O feed de atualizações é um arquivo de outro computador. Copie-o para este.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>Não é possível ler o feed de atualizações. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Uma página da web chegou no lugar do feed de atualizações. Entre nesta rede, se ela pedir, e tente novamente.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>O aplicativo escolheu uma atualização que não está no feed. Instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>O aplicativo falhou ao examinar as atualizações. Reinicie-o e tente novamente.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>O feed informa um tamanho da atualização que não pode estar certo. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>A atualização no servidor não tem o tamanho que o feed informa. Tente novamente mais tarde e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>O servidor de atualizações enviou uma parte da atualização diferente da que foi pedida. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>O servidor de atualizações enviou o dobro do tamanho da atualização, mas nunca a atualização inteira. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>A conexão com o servidor de atualizações caiu vezes demais. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>O download da atualização demorou demais e foi interrompido. Tente novamente com uma conexão mais rápida.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>A atualização ainda não foi baixada por completo. A próxima verificação continuará o download.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Outra cópia do aplicativo está baixando esta atualização. Espere até que ela termine.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>Não é possível usar a pasta de atualizações baixadas. Verifique suas permissões e seu disco.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>A pasta de atualizações baixadas não é só sua. Remova-a e tente novamente.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>A atualização precisa de mais %1 no disco, onde %2 estão livres. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Sua cota no disco não é suficiente para a atualização, que precisa de %1. Remova alguns dos seus arquivos e tente novamente.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>A atualização é um arquivo maior do que o disco das atualizações baixadas comporta. Fale com quem administra este computador.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>O disco falhou enquanto a atualização era gravada. Verifique o disco e tente novamente.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>O computador tem pouca memória ou arquivos abertos demais para o download. Feche outros aplicativos e tente novamente.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>A pasta do aplicativo não foi encontrada, portanto ele não pode ser atualizado. Abra-o a partir de onde está instalado.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>O aplicativo foi aberto por um link, portanto não pode ser atualizado. Abra-o a partir da pasta para a qual o link aponta.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>O aplicativo foi instalado pelo %1, que também o atualiza. Use o comando “%2”.</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>O aplicativo é executado a partir de um arquivo de imagem. Substitua o arquivo %1 pelo da nova versão.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>O aplicativo está em um disco que não permite gravação. Copie-o para outra pasta e abra-o lá.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>A pasta do aplicativo é um disco próprio ou contém um, portanto não pode ser substituída. Copie-a para outra pasta e abra o aplicativo lá.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>O aplicativo está protegido contra qualquer alteração. Peça a quem o protegeu que retire o atributo de arquivo “immutable” ou “append only”.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>O aplicativo pertence a outro usuário deste computador. Peça a ele ou ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>Você não pode alterar a pasta do aplicativo. Peça ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Outros usuários deste computador poderiam alterar a pasta do aplicativo, portanto ele não é atualizado lá. Peça ao administrador que corrija as permissões.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>A atualização precisa de %1 de espaço, mas só %2 estão livres. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>As atualizações deste aplicativo estão desativadas. Fale com quem administra este computador.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>As últimas verificações de atualizações falharam, portanto a próxima espera. Verifique manualmente para tentar agora.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>A atualização foi cancelada. Verifique se há atualizações para recomeçar.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Este aplicativo não informa seu identificador e sua versão, portanto nenhuma atualização pode ser associada a ele. Instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>O programa que instala atualizações terminou inesperadamente. Tente novamente e, se o problema continuar, instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>A verificação de atualizações falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>O feed informa um endereço da atualização que não é um endereço. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>O endereço da atualização é de um tipo não permitido, diferente de https. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>O endereço da atualização não é seguro, pois não começa com https. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>A conexão caiu durante o download da atualização. Tente novamente, ele continuará de onde parou.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>O servidor de atualizações informa o tamanho da atualização de formas contraditórias. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>O servidor de atualizações transfere a atualização de uma forma que não foi pedida. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>O servidor de atualizações enviou a atualização compactada, o que não foi pedido. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>A linha %1 do feed não é XML bem formado.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>A linha %1 do feed tem uma declaração de tipo de documento, que um feed não pode ter.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>A linha %1 do feed aninha elementos em mais de %2 níveis.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>A linha %1 do feed tem uma tag com mais de %2 atributos.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>A linha %1 do feed tem uma tag com mais de %2 bytes.</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>A linha %1 do feed ultrapassa os %2 elementos e atributos que um feed pode ter.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>A linha %1 do feed tem o item número %3, mas apenas %2 são permitidos.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>A linha %1 do feed declara mais de %2 namespaces.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>A linha %1 do feed começa uma página da web onde se esperava um feed.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>O aplicativo foi instalado pelo gerenciador de pacotes do sistema, que também o atualiza. Use o comando “%1”.</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>Não foi possível instalar a atualização. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>O programa que instala atualizações não entendeu o que lhe foi pedido. Instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>O programa que instala atualizações não conseguiu usar os arquivos que recebeu. Tente novamente.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>O programa que instala atualizações está ausente ou poderia ser alterado por outros. Instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>A atualização não pôde ser descompactada em um processo isolado, como é necessário. Informe ao fornecedor qual é este sistema.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Este aplicativo não tem chave pública em SUPublicEDKey, portanto nenhuma atualização pode ser comprovada como autêntica. Instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>A chave pública deste aplicativo em SUPublicEDKey está danificada, portanto nenhuma atualização pode ser comprovada como autêntica. Instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>A atualização não está assinada e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>A atualização foi recusada porque sua assinatura não é válida. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>A atualização não foi assinada pelo fornecedor deste aplicativo ou foi danificada no caminho e foi recusada. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>Não é possível verificar assinaturas neste computador. Instale novamente a biblioteca libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>A atualização baixada está vazia. Tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>Não é possível ler do disco a atualização baixada. Verifique o disco e tente novamente.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>A atualização baixada é maior ou menor do que o feed informa. Tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Outro programa alterou a atualização baixada enquanto ela era verificada. Feche-o e tente novamente.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>A atualização está empacotada de uma forma desconhecida. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>O pacote compactado da atualização está danificado. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>O pacote compactado da atualização pode ser lido de mais de uma forma e foi recusado. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>O pacote compactado da atualização está criptografado e foi recusado. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>O pacote da atualização está compactado de uma forma desconhecida. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>A atualização contém um arquivo com um nome não permitido. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>A atualização contém um arquivo com um nome longo demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>A atualização contém um arquivo que ficaria fora do aplicativo e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>As pastas da atualização são profundas demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>A atualização contém algo que não é arquivo, pasta nem link e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>A atualização contém um link físico e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>A atualização contém um arquivo com lacunas e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>A atualização contém um arquivo sem tamanho e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>A atualização contém o mesmo arquivo duas vezes e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>A atualização contém arquivos cujos nomes diferem apenas em maiúsculas ou acentos e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>A atualização contém um arquivo abaixo de algo que não é uma pasta e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>A atualização contém um link para um nome não permitido. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>A atualização contém um link que leva para fora do aplicativo e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>A atualização contém um link que não leva a lugar nenhum. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>A atualização contém um link que volta a si mesmo. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>A atualização contém arquivos demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>A atualização contém links demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>A atualização é grande demais depois de descompactada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>O aplicativo instalado foi alterado, portanto a atualização pequena não serve para ele. Instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>A atualização pequena produziu um resultado incorreto. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>A atualização não contém nenhum aplicativo. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>A atualização contém mais de um aplicativo. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>O aplicativo na atualização não é uma pasta. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>O aplicativo na atualização não tem arquivo de informações. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>O arquivo de informações do aplicativo na atualização é grande demais. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Não é possível ler o arquivo de informações do aplicativo na atualização. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>A atualização indica um programa fora da sua pasta. Avise o editor.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>A atualização é de outro aplicativo e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>A atualização é de uma versão diferente da que o feed informa e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>A atualização não é mais recente do que o aplicativo instalado e foi recusada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>O aplicativo na atualização não tem chave pública, portanto nunca mais poderia ser atualizado. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>O conteúdo da atualização não corresponde ao nome do arquivo. Entre em contato com o editor.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>O aplicativo na atualização não tem programa para iniciar. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>O programa na atualização não tem permissão para ser iniciado. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>O programa na atualização é feito para outro tipo de computador. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>A atualização é um programa à parte, o que este aplicativo não permite. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>O programa que acompanha a atualização não iniciou. Tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>O programa que acompanha a atualização não a instalou. Tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>O programa que acompanha a atualização demorou demais e foi encerrado. Tente novamente.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>Não há espaço suficiente no disco para a atualização. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>A pasta que contém o aplicativo não pode ser alterada por este usuário. Fale com quem o instalou.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>O disco relatou um erro. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>O aplicativo não fechou, portanto a atualização não foi instalada. Salve seu trabalho, verifique novamente se há atualizações e deixe-o fechar.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Outra atualização deste aplicativo está sendo instalada. Espere até que termine.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>O aplicativo instalado não está onde estava quando a atualização começou. Abra-o a partir do seu lugar e tente novamente.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>O aplicativo instalado foi alterado enquanto a atualização era preparada. Abra-o de novo e tente novamente.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>A atualização preparada foi alterada antes de ser instalada e foi descartada. Tente novamente.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>A atualização preparada e o aplicativo estão em discos diferentes. Tente novamente e, se o problema continuar, instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>A nova versão não pôde ser colocada no lugar da antiga, que continua como estava. Tente novamente.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>O disco não confirmou que contém a atualização. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>O aplicativo que deveria ser aberto após a atualização não pode ser aberto. Abra-o manualmente.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>O aplicativo atualizado não abriu. Abra-o manualmente.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>O aplicativo está em execução em um contêiner que oculta o proprietário da pasta “%1”. Inicie-o fora do contêiner para atualizá-lo.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Sua cota no disco não é suficiente para a atualização. Remova alguns dos seus arquivos e tente novamente.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>O usuário “%1” pode alterar a pasta do aplicativo. Use o comando “%2”.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>A atualização não pode manter quem pode abrir o aplicativo e não foi instalada. Peça à pessoa que instalou o aplicativo que o atualize.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>A nova versão não iniciou e a anterior foi restaurada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>A instalação da atualização foi interrompida. Procure atualizações novamente.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>Não é possível bloquear arquivos no local em que o aplicativo está instalado. Mova-o para uma pasta em um disco local.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>O disco que contém o aplicativo não guarda permissões de arquivos. Mova o aplicativo para outro disco.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Outros usuários podem alterar a pasta que contém o aplicativo. Mova o aplicativo para uma pasta sua.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema não oferece pidfd_open, de que as atualizações precisam. Instale um kernel mais recente ou permita a chamada no contêiner ou na sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema não oferece memfd_create, de que as atualizações precisam. Instale um kernel mais recente ou permita a chamada no contêiner ou na sandbox.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Todos os usuários deste computador podem gravar na pasta %1, que contém o aplicativo. Mova o aplicativo para uma pasta sua e inicie-o ali.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Os membros do grupo “%1” podem alterar a pasta do aplicativo. Use o comando “%2”.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>O aplicativo está instalado em %1, onde não é possível bloquear arquivos. Mova-o para uma pasta em um disco local e inicie-o ali.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>O aplicativo em %1 pertence a uma camada do sistema de arquivos que não pode ser substituída. Copie-o para outra pasta e inicie-o ali.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>O feed de atualizações não está assinado, como este aplicativo exige. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>O feed de atualizações continua depois da sua assinatura e foi recusado. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>O feed de atualizações tem mais de uma assinatura e foi recusado. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Algo foi acrescentado ao feed de atualizações depois da sua assinatura. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>Os finais de linha do feed de atualizações foram reescritos, portanto sua assinatura não confere. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>O feed de atualizações está assinado de uma forma que esta versão não conhece. Instale o aplicativo novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>A assinatura do feed de atualizações está danificada. Tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>O feed de atualizações não foi assinado pelo fornecedor deste aplicativo ou foi alterado depois. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>O feed de atualizações não tem um número de série utilizável. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>O feed de atualizações não informa até quando é válido. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>O feed de atualizações é mais antigo do que um recebido antes. Tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>O feed de atualizações expirou. Verifique o relógio deste computador e, se estiver certo, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>O servidor de atualizações aponta para um endereço dentro do seu próprio computador ou enlace de rede. Entre em contato com o fornecedor.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>O proxy de rede recusa a conexão com o servidor de atualizações. Fale com o administrador da sua rede.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>O proxy de rede não aceita seu nome de usuário e sua senha. Verifique as configurações do proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>O feed de atualizações não informa quais chaves são válidas. Tente outra rede e avise o editor se isso não ajudar.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações está danificada. Avise o editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações não é do editor deste aplicativo. Tente outra rede e avise o editor se isso não ajudar.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações é de outro aplicativo. Avise o editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações é mais antiga que uma anterior. Tente outra rede e avise o editor se isso não ajudar.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações expirou. Verifique o relógio deste computador e avise o editor se ele estiver certo.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>A chave raiz deste aplicativo está danificada. Instale o aplicativo novamente a partir do editor.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>O feed de atualizações está vazio. Tente novamente mais tarde ou avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>A atualização precisa de mais memória, arquivos ou processos do que este sistema permite. Feche outros aplicativos e tente novamente.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>Não é possível usar a pasta para os registros de atualizações. Verifique suas permissões e seu disco.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>A linha %1 do feed começa um documento que não é um feed.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Esta rede pede que você entre. Entre e tente novamente.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Resta cerca de %Ln segundo</numerusform>
            <numerusform>Restam cerca de %Ln segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Resta cerca de %Ln minuto</numerusform>
            <numerusform>Restam cerca de %Ln minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Resta cerca de %Ln hora</numerusform>
            <numerusform>Restam cerca de %Ln horas</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Baixando %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Verificando e descompactando %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Progresso da atualização</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Aguardando o servidor…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Pronto para instalar</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>O %1 %2 foi baixado e verificado. Para instalá-lo, o %1 será fechado e aberto novamente.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Mais tarde</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Instalar e reiniciar</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Tudo está atualizado!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 é atualmente a versão mais recente disponível.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>Uma nova versão do %1 está disponível!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>O %1 %2 já está disponível; você tem a versão %3. Deseja baixá-lo agora?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Esta atualização é importante: convém instalá-la em breve.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Tamanho do download: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Mostrar as &amp;notas da versão no navegador</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Pular esta versão</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Lembrar mais tarde</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>&amp;Instalar atualização</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 já está disponível; você tem a versão %3. A página dela explica como obtê-la.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;Abrir a página</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Uma parte deste aplicativo necessária para as atualizações está ausente ou danificada. Reinstale o aplicativo.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Já há uma atualização em andamento. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Uma nova versão do %1 %2 está pronta para ser instalada</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>A atualização %1 %2 foi baixada e aguarda sua aprovação. Deseja instalá-la e reiniciar o %1 agora?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Instalar e reiniciar</translation>
    </message>
</context>
</TS>
