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
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Este aplicativo não informa onde suas atualizações são publicadas: instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>O endereço do feed de atualizações não é um endereço válido: instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>O endereço do feed de atualizações é de um tipo não permitido: ele deve começar com https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>O endereço do feed de atualizações não é seguro: ele deve começar com https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>O servidor de atualizações não foi encontrado: verifique a conexão com a Internet e tente novamente.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>O servidor de atualizações recusou a conexão: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>Não é possível acessar o servidor de atualizações a partir desta rede: verifique a conexão e tente novamente.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>O servidor de atualizações não aceitou a conexão a tempo: verifique a conexão e tente novamente.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>A conexão com o servidor de atualizações falhou: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>O proxy da rede não deixou a conexão passar: verifique as configurações do proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>O servidor de atualizações demorou demais para responder: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>O servidor de atualizações responde com lentidão demais: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>O certificado do servidor de atualizações é assinado apenas por ele mesmo, portanto sua identidade não está comprovada: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>O certificado do servidor de atualizações vem de uma autoridade que este computador não conhece: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>O certificado do servidor de atualizações expirou: verifique o relógio deste computador e, se estiver certo, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>O certificado do servidor de atualizações ainda não é válido: verifique o relógio deste computador e, se estiver certo, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>O certificado do servidor de atualizações foi emitido para outro servidor: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>O certificado do servidor de atualizações não é aceitável: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o servidor de atualizações, pois ele não oferece nenhuma forte o bastante: avise o fornecedor.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Este computador não consegue fazer conexões seguras: instale a biblioteca OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>O servidor de atualizações fechou a conexão antes de responder: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>O feed de atualizações chegou incompleto: tente novamente.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>A resposta do servidor de atualizações tem cabeçalhos demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>O feed de atualizações é grande demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>A resposta do servidor de atualizações não é HTTP correto: tente outra rede.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>O servidor de atualizações informa o tamanho do feed de formas contraditórias: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>O servidor de atualizações enviou mais do que anunciou: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>A resposta do servidor de atualizações está danificada: tente novamente.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>O servidor de atualizações transfere o feed de uma forma que não foi pedida: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>O servidor de atualizações enviou o feed compactado, o que não foi pedido: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>O servidor de atualizações respondeu com o status %1: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>O servidor de atualizações aponta para um endereço menos seguro: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>O servidor de atualizações aponta para um endereço de um tipo não permitido: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>O servidor de atualizações aponta para algo que não é um endereço: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>O servidor de atualizações aponta para outro endereço sem informá-lo: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>O servidor de atualizações aponta de endereço em endereço sem fim: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>O arquivo com o feed de atualizações não existe: verifique seu endereço.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>O endereço do feed de atualizações indica uma pasta ou um dispositivo: ele deve indicar um arquivo.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>O arquivo com o feed de atualizações é grande demais: verifique seu endereço.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>Não é possível ler o arquivo com o feed de atualizações: verifique suas permissões.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>O feed de atualizações é um arquivo de outro computador: copie-o para este.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>Não é possível ler o feed de atualizações: avise o fornecedor.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>Uma página da web chegou no lugar do feed de atualizações: entre nesta rede, se ela pedir, e tente novamente.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>O aplicativo escolheu uma atualização que não está no feed: instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>O aplicativo falhou ao examinar as atualizações: reinicie-o e tente novamente.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>O feed informa um tamanho da atualização que não pode estar certo: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>A atualização no servidor não tem o tamanho que o feed informa: tente novamente mais tarde e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>O servidor de atualizações enviou uma parte da atualização diferente da que foi pedida: tente novamente mais tarde.</translation>
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
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Outra cópia do aplicativo está baixando esta atualização: espere até que ela termine.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>Não é possível usar a pasta de atualizações baixadas: verifique suas permissões e seu disco.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>A pasta de atualizações baixadas não é só sua: remova-a e tente novamente.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>A atualização precisa de mais %1 no disco, onde %2 estão livres: libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>A atualização precisa de %1 a mais do que sua cota no disco permite, onde %2 estão livres: remova arquivos seus e tente novamente.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>A atualização é um arquivo maior do que o disco das atualizações baixadas comporta: peça ajuda.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>O disco falhou enquanto a atualização era gravada: verifique o disco e tente novamente.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>O computador tem pouca memória ou arquivos abertos demais para o download: feche outros aplicativos e tente novamente.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>A pasta do aplicativo não foi encontrada, portanto ele não pode ser atualizado: abra-o a partir de onde está instalado.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>O aplicativo foi aberto por um link, portanto não pode ser atualizado: abra-o a partir da pasta para a qual o link aponta.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>O aplicativo foi instalado pelo %1, que também o atualiza: use o comando “%2”.</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>O aplicativo é executado a partir de um arquivo de imagem: substitua o arquivo %1 pelo da nova versão.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>O aplicativo está em um disco que não permite gravação: copie-o para outra pasta e abra-o lá.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>A pasta do aplicativo é um disco próprio, portanto não pode ser substituída: copie-a para outra pasta e abra o aplicativo lá.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>O aplicativo está protegido contra qualquer alteração: peça a quem o protegeu que retire o atributo de arquivo “immutable” ou “append only”.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>O aplicativo pertence a outro usuário deste computador: peça a ele ou ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>Você não pode alterar a pasta do aplicativo: peça ao administrador que o atualize.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>Outros usuários deste computador poderiam alterar a pasta do aplicativo, portanto ele não é atualizado lá: peça ao administrador que corrija as permissões.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>Não há espaço para a atualização: ela precisa de %1, e %2 estão livres. Libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>As atualizações deste aplicativo estão desativadas: fale com quem administra este computador.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>As últimas verificações de atualizações falharam, portanto a próxima espera: verifique manualmente para tentar agora.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>A atualização foi cancelada: verifique se há atualizações para recomeçar.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Este aplicativo não informa seu identificador e sua versão, portanto nenhuma atualização pode ser associada a ele: instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>O programa que instala atualizações terminou inesperadamente: tente novamente e, se o problema continuar, instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>A verificação de atualizações falhou: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>O feed informa um endereço da atualização que não é um endereço: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>O endereço da atualização é de um tipo não permitido, diferente de https: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>O endereço da atualização não é seguro, pois não começa com https: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>A conexão caiu durante o download da atualização: tente novamente, ele continuará de onde parou.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>O servidor de atualizações informa o tamanho da atualização de formas contraditórias: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>O servidor de atualizações transfere a atualização de uma forma que não foi pedida: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>O servidor de atualizações enviou a atualização compactada, o que não foi pedido: avise o fornecedor.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>A linha %1 do feed não é XML bem formado.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
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
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>A linha %1 do feed ultrapassa os %2 elementos e atributos que um feed pode ter.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>A linha %1 do feed tem o item número %2, mas apenas %3 são permitidos.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>A linha %1 do feed declara mais de %2 namespaces.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>A linha %1 do feed começa uma página da web onde se esperava um feed.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>A linha %1 do feed tem um erro desconhecido.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>O aplicativo foi instalado pelo gerenciador de pacotes do sistema, que também o atualiza: use o comando “%1”.</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>Não foi possível instalar a atualização: tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>O programa que instala atualizações não entendeu o que lhe foi pedido: instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>O programa que instala atualizações não conseguiu usar os arquivos que recebeu: tente novamente.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>O programa que instala atualizações está ausente ou poderia ser alterado por outros: instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>A atualização não pôde ser descompactada em um processo isolado, como é necessário: informe ao fornecedor qual é este sistema.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Este aplicativo não tem chave pública em SUPublicEDKey, portanto nenhuma atualização pode ser comprovada como autêntica: instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>A chave pública deste aplicativo em SUPublicEDKey está danificada, portanto nenhuma atualização pode ser comprovada como autêntica: instale-o novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>A atualização não está assinada e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>A assinatura da atualização não é uma assinatura, e a atualização foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>A atualização não foi assinada pelo fornecedor deste aplicativo ou foi danificada no caminho e foi recusada: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>Não é possível verificar assinaturas neste computador: instale novamente a biblioteca libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>A atualização baixada está vazia: tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>Não é possível ler do disco a atualização baixada: verifique o disco e tente novamente.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>A atualização baixada é maior ou menor do que o feed informa: tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Outro programa alterou a atualização baixada enquanto ela era verificada: feche-o e tente novamente.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>A atualização está empacotada de uma forma desconhecida: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>O pacote compactado da atualização está danificado: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>O pacote compactado da atualização pode ser lido de mais de uma forma e foi recusado: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>O pacote compactado da atualização está criptografado e foi recusado: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>O pacote da atualização está compactado de uma forma desconhecida: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>A atualização contém um arquivo com um nome não permitido: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>A atualização contém um arquivo com um nome longo demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>A atualização contém um arquivo que ficaria fora do aplicativo e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>As pastas da atualização são profundas demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>A atualização contém algo que não é arquivo, pasta nem link e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>A atualização contém um link físico e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>A atualização contém um arquivo com lacunas e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>A atualização contém um arquivo sem tamanho e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>A atualização contém o mesmo arquivo duas vezes e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>A atualização contém arquivos cujos nomes diferem apenas em maiúsculas ou acentos e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>A atualização contém um arquivo abaixo de algo que não é uma pasta e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>A atualização contém um link para um nome não permitido: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>A atualização contém um link que leva para fora do aplicativo e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>A atualização contém um link que não leva a lugar nenhum: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>A atualização contém um link que volta a si mesmo: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>A atualização contém arquivos demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>A atualização contém links demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>A atualização é grande demais depois de descompactada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>O aplicativo instalado foi alterado, portanto a atualização pequena não serve para ele: instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>O resultado da atualização pequena não é o que deveria ser: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>A atualização não contém nenhum aplicativo: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>A atualização contém mais de um aplicativo: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>O aplicativo na atualização não é uma pasta: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>O aplicativo na atualização não descreve a si mesmo: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>A descrição do aplicativo na atualização é grande demais: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>Não é possível ler a descrição do aplicativo na atualização: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>A atualização indica um programa fora da sua pasta: avise o editor.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>A atualização é de outro aplicativo e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>A atualização é de uma versão diferente da que o feed informa e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>A atualização não é mais recente do que o aplicativo instalado e foi recusada: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>O aplicativo na atualização não tem chave pública, portanto nunca mais poderia ser atualizado: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>O conteúdo da atualização não corresponde ao nome do arquivo. Entre em contato com o editor.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>O aplicativo na atualização não tem programa para iniciar: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>O programa na atualização não tem permissão para ser iniciado: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>O programa na atualização é feito para outro tipo de computador: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>A atualização é um programa à parte, o que este aplicativo não permite: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>O programa que acompanha a atualização não iniciou: tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>O programa que acompanha a atualização não a instalou: tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>O programa que acompanha a atualização demorou demais e foi encerrado: tente novamente.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>Não há espaço suficiente no disco para a atualização: libere espaço e tente novamente.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>A pasta que contém o aplicativo não pode ser alterada por este usuário: fale com quem o instalou.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>O disco relatou um erro: verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>O aplicativo não fechou, portanto a atualização não foi instalada: salve seu trabalho, verifique novamente se há atualizações e deixe-o fechar.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>Outra atualização deste aplicativo está sendo instalada: espere até que termine.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>O aplicativo instalado não está onde estava quando a atualização começou: abra-o a partir do seu lugar e tente novamente.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>O aplicativo instalado foi alterado enquanto a atualização era preparada: abra-o de novo e tente novamente.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>A atualização preparada foi alterada antes de ser instalada e foi descartada: tente novamente.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>A atualização preparada e o aplicativo estão em discos diferentes: tente novamente e, se o problema continuar, instale o aplicativo novamente.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>A nova versão não pôde ser colocada no lugar da antiga, que continua como estava: tente novamente.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>O disco não confirmou que contém a atualização: verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>O aplicativo que deveria ser aberto após a atualização não pode ser aberto: abra-o manualmente.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>O aplicativo atualizado não abriu: abra-o manualmente.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>O aplicativo está em execução em um contêiner que oculta o proprietário da pasta “%1”: inicie-o fora do contêiner para atualizá-lo.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>A atualização não pode manter quem pode abrir o aplicativo e não foi instalada. Peça à pessoa que instalou o aplicativo que o atualize.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>A nova versão não iniciou e a anterior foi restaurada. Avise o fornecedor.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>A instalação da atualização foi interrompida. Procure atualizações novamente.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>Não é possível bloquear arquivos no local em que o aplicativo está instalado: mova-o para uma pasta em um disco local.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>O disco que contém o aplicativo não guarda permissões de arquivos: mova o aplicativo para outro disco.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>Outros usuários podem alterar a pasta que contém o aplicativo: mova o aplicativo para uma pasta sua.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema não oferece pidfd_open, de que as atualizações precisam: instale um kernel mais recente ou permita a chamada no contêiner ou na sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema não oferece memfd_create, de que as atualizações precisam: instale um kernel mais recente ou permita a chamada no contêiner ou na sandbox.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Todos os usuários deste computador podem gravar na pasta %1, que contém o aplicativo: mova o aplicativo para uma pasta sua e inicie-o ali.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>Os membros do grupo “%1” podem alterar a pasta do aplicativo: use o comando “%2”.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>O aplicativo está instalado em %1, onde não é possível bloquear arquivos: mova-o para uma pasta em um disco local e inicie-o ali.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>O aplicativo em %1 pertence a uma camada do sistema de arquivos que não pode ser substituída: copie-o para outra pasta e inicie-o ali.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>O feed de atualizações não está assinado, como este aplicativo exige: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>O feed de atualizações continua depois da sua assinatura e foi recusado: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>O feed de atualizações tem mais de uma assinatura e foi recusado: avise o fornecedor.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Algo foi acrescentado ao feed de atualizações depois da sua assinatura: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>Os finais de linha do feed de atualizações foram reescritos, portanto sua assinatura não confere: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>O feed de atualizações está assinado de uma forma que esta versão não conhece: instale o aplicativo novamente a partir do site do fornecedor.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>A assinatura do feed de atualizações está danificada: tente novamente e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>O feed de atualizações não foi assinado pelo fornecedor deste aplicativo ou foi alterado depois: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>O feed de atualizações não tem um número de série utilizável: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>O feed de atualizações não informa até quando é válido: avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>O feed de atualizações é mais antigo do que um recebido antes: tente outra rede e, se o problema continuar, avise o fornecedor.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>O feed de atualizações expirou: verifique o relógio deste computador e, se estiver certo, avise o fornecedor.</translation>
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
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>O proxy de rede não aceita seu nome de usuário e sua senha. Verifique as configurações do proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>O feed de atualizações não informa quais chaves são válidas. Tente outra rede e avise o editor se isso não ajudar.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações está danificada. Avise o editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>A lista de chaves válidas no feed de atualizações não é do editor deste aplicativo. Tente outra rede e avise o editor se isso não ajudar.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>A lista de chaves válidas no feed de atualizações é de outro aplicativo. Avise o editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>A lista de chaves válidas no feed de atualizações é mais antiga que uma anterior. Tente outra rede e avise o editor se isso não ajudar.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>A lista de chaves válidas no feed de atualizações expirou. Verifique o relógio deste computador e avise o editor se ele estiver certo.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>A chave raiz deste aplicativo está danificada. Instale o aplicativo novamente a partir do editor.</translation>
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
