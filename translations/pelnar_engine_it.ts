<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca di aggiornamenti in corso…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Aggiornamento software</translation>
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
        <translation>Impossibile completare l’aggiornamento</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>È in uso la versione più recente.</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Questa applicazione non indica dove vengono pubblicati i suoi aggiornamenti. Reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>L’indirizzo del feed degli aggiornamenti non è un indirizzo valido. Reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>L’indirizzo del feed degli aggiornamenti è di un tipo non consentito. Deve iniziare con https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>L’indirizzo del feed degli aggiornamenti non è sicuro. Deve iniziare con https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>Il server degli aggiornamenti non è stato trovato. Controllare la connessione a Internet e riprovare.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>Il server degli aggiornamenti ha rifiutato la connessione. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>Il server degli aggiornamenti non è raggiungibile da questa rete. Controllare la connessione e riprovare.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>Il server degli aggiornamenti non ha accettato in tempo la connessione. Controllare la connessione e riprovare.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>La connessione al server degli aggiornamenti non è riuscita. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>Il proxy di rete non ha lasciato passare la connessione. Controllare le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>Il server degli aggiornamenti ha impiegato troppo tempo a rispondere. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>Il server degli aggiornamenti risponde troppo lentamente. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>Il certificato del server degli aggiornamenti è firmato solo da sé stesso, quindi la sua identità non è provata. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>Il certificato del server degli aggiornamenti proviene da un’autorità che questo computer non conosce. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Il certificato del server degli aggiornamenti è scaduto. Controllare l’orologio di questo computer e, se è esatto, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>Il certificato del server degli aggiornamenti non è ancora valido. Controllare l’orologio di questo computer e, se è esatto, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>Il certificato del server degli aggiornamenti è stato emesso per un altro server. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>Il certificato del server degli aggiornamenti non è accettabile. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>Il server degli aggiornamenti non supporta una connessione sicura (TLS 1.2 o successivo). Informare il produttore.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Questo computer non può stabilire connessioni sicure. Installare la libreria OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>Il server degli aggiornamenti ha chiuso la connessione prima di rispondere. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>Il feed degli aggiornamenti è arrivato incompleto. Riprovare.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>La risposta del server degli aggiornamenti ha troppe intestazioni. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>Il feed degli aggiornamenti è troppo grande. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>La risposta del server degli aggiornamenti non è HTTP corretto. Provare con un’altra rete.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti indica la lunghezza del feed in modo contraddittorio. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti ha inviato più di quanto annunciato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>Il server degli aggiornamenti ha inviato una risposta non valida. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti trasferisce il feed in un modo che non era richiesto. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti ha inviato il feed compresso, cosa che non era richiesta. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>Il server degli aggiornamenti ha risposto con lo stato %1. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un indirizzo meno sicuro. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un indirizzo di un tipo non consentito. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a qualcosa che non è un indirizzo. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un altro indirizzo senza indicarlo. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda da un indirizzo all’altro senza fine. Informare il produttore.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>Il file con il feed degli aggiornamenti non esiste. Controllarne l’indirizzo.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>L’indirizzo del feed degli aggiornamenti indica una cartella o un dispositivo. Deve indicare un file.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>Il file con il feed degli aggiornamenti è troppo grande. Controllarne l’indirizzo.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Il file con il feed degli aggiornamenti non può essere letto. Controllarne i permessi.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>Il feed degli aggiornamenti è un file di un altro computer. Copiarlo su questo.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>Il feed degli aggiornamenti non può essere letto. Informare il produttore.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Al posto del feed degli aggiornamenti è arrivata una pagina web. Accedere a questa rete, se lo richiede, e riprovare.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>L’applicazione ha scelto un aggiornamento che non è nel feed. Reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>L’applicazione non è riuscita a esaminare gli aggiornamenti. Riavviarla e riprovare.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>Il feed indica per l’aggiornamento una lunghezza impossibile. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>L’aggiornamento sul server non ha la lunghezza indicata dal feed. Riprovare più tardi e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>Il server degli aggiornamenti ha inviato una parte dell’aggiornamento diversa da quella richiesta. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Il server degli aggiornamenti ha inviato il doppio della dimensione dell&apos;aggiornamento, ma mai l&apos;aggiornamento completo. Riprovi più tardi.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>La connessione al server degli aggiornamenti si è interrotta troppe volte. Riprovi più tardi.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Il download dell&apos;aggiornamento ha richiesto troppo tempo ed è stato interrotto. Riprovi con una connessione più veloce.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>L&apos;aggiornamento non è ancora stato scaricato completamente. Il prossimo controllo continuerà il download.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Un’altra copia dell’applicazione sta scaricando questo aggiornamento. Attendere che finisca.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>La cartella degli aggiornamenti scaricati non è utilizzabile. Controllarne i permessi e il disco.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>La cartella degli aggiornamenti scaricati non appartiene solo a questo utente. Rimuoverla e riprovare.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>L’aggiornamento richiede altri %1 sul disco, dove sono liberi %2. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>La quota sul disco non basta per l’aggiornamento, che richiede %1. Rimuovere alcuni dei propri file e riprovare.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>L’aggiornamento è un file troppo grande per il disco degli aggiornamenti scaricati. Rivolgersi a chi gestisce questo computer.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>Il disco non ha funzionato durante la scrittura dell’aggiornamento. Controllare il disco e riprovare.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>Il computer ha troppa poca memoria o troppi file aperti per lo scaricamento. Chiudere altre applicazioni e riprovare.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>La cartella dell’applicazione non è stata trovata, quindi non è possibile aggiornarla. Aprirla dal punto in cui è installata.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>L’applicazione è stata aperta tramite un collegamento, quindi non è possibile aggiornarla. Aprirla dalla cartella a cui porta il collegamento.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>L’applicazione è stata installata da %1, che provvede anche ad aggiornarla. Usare il comando «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>L’applicazione è eseguita da un file immagine. Sostituire il file %1 con quello della nuova versione.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>L’applicazione si trova su un disco di sola lettura. Copiarla in un’altra cartella e aprirla da lì.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>La cartella dell’applicazione è un disco a sé o ne contiene uno, quindi non può essere sostituita. Copiarla in un’altra cartella e aprire l’applicazione da lì.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>L’applicazione è protetta da ogni modifica. Chiedere a chi l’ha protetta di rimuovere l’attributo del file «immutable» o «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>L’applicazione appartiene a un altro utente di questo computer. Chiedere a lui o all’amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>Non si dispone dei permessi per modificare la cartella dell’applicazione. Chiedere all’amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Altri utenti di questo computer potrebbero modificare la cartella dell’applicazione, quindi non viene aggiornata lì. Chiedere all’amministratore di correggerne i permessi.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>L’aggiornamento richiede %1 di spazio, ma sono liberi solo %2. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Gli aggiornamenti di questa applicazione sono disattivati. Rivolgersi a chi gestisce questo computer.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>Le ultime ricerche di aggiornamenti non sono riuscite, quindi la prossima attende. Cercarli manualmente per riprovare subito.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>L’aggiornamento è stato annullato. Cercare gli aggiornamenti per ricominciare.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Questa applicazione non indica il proprio identificatore e la propria versione, quindi nessun aggiornamento può esserle associato. Reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>Il programma che installa gli aggiornamenti si è chiuso inaspettatamente. Riprovare e, se il problema persiste, reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>La ricerca di aggiornamenti non è riuscita. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>Il feed indica per l’aggiornamento un indirizzo che non è tale. Informare il produttore.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>L’indirizzo dell’aggiornamento è di un tipo non consentito, diverso da https. Informare il produttore.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>L’indirizzo dell’aggiornamento non è sicuro, perché non inizia con https. Informare il produttore.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>La connessione si è interrotta durante lo scaricamento dell’aggiornamento. Riprovare, riprenderà da lì.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti indica la lunghezza dell’aggiornamento in modo contraddittorio. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti trasferisce l’aggiornamento in un modo che non era richiesto. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti ha inviato l’aggiornamento compresso, cosa che non era richiesta. Informare il produttore.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>La riga %1 del feed non è XML ben formato.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>La riga %1 del feed contiene una dichiarazione del tipo di documento, che un feed non può avere.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>La riga %1 del feed annida elementi per più di %2 livelli.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>La riga %1 del feed contiene un tag con più di %2 attributi.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>La riga %1 del feed contiene un tag di più di %2 byte.</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>La riga %1 del feed supera i %2 elementi e attributi che un feed può avere.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>La riga %1 del feed contiene la voce numero %3, ma ne sono consentite solo %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>La riga %1 del feed dichiara più di %2 spazi dei nomi.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>Alla riga %1 del feed inizia una pagina web dove era atteso un feed.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>L’applicazione è stata installata dal gestore di pacchetti del sistema, che provvede anche ad aggiornarla. Usare il comando «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>Non è stato possibile installare l’aggiornamento. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>Il programma che installa gli aggiornamenti non ha capito che cosa gli era richiesto. Reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>Il programma che installa gli aggiornamenti non ha potuto usare i file ricevuti. Riprovare.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>Il programma che installa gli aggiornamenti manca o potrebbe essere modificato da altri. Reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>Non è stato possibile estrarre l’aggiornamento in un processo isolato, come è necessario. Comunicare al produttore qual è questo sistema.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Questa applicazione non ha una chiave pubblica in SUPublicEDKey, quindi l’autenticità degli aggiornamenti non può essere provata. Reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>La chiave pubblica di questa applicazione in SUPublicEDKey è danneggiata, quindi l’autenticità degli aggiornamenti non può essere provata. Reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>L’aggiornamento non è firmato e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>L’aggiornamento viene rifiutato perché la sua firma non è valida. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>L’aggiornamento non è stato firmato dal produttore di questa applicazione o si è danneggiato durante il trasferimento, e viene rifiutato. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>Su questo computer non è possibile verificare le firme. Reinstallare la libreria libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>L’aggiornamento scaricato è vuoto. Riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>L’aggiornamento scaricato non può essere letto dal disco. Controllare il disco e riprovare.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>L’aggiornamento scaricato è più lungo o più corto di quanto indicato dal feed. Riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Un altro programma ha modificato l’aggiornamento scaricato durante la verifica. Chiuderlo e riprovare.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>L’aggiornamento è impacchettato in un modo sconosciuto. Informare il produttore.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>L’archivio dell’aggiornamento è danneggiato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>L’archivio dell’aggiornamento può essere letto in più di un modo e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>L’archivio dell’aggiornamento è cifrato e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>L’archivio dell’aggiornamento è compresso in un modo sconosciuto. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un file con un nome non consentito. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un file con un nome troppo lungo. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un file che finirebbe fuori dall’applicazione e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>Le cartelle dell’aggiornamento sono troppo annidate. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>L’aggiornamento contiene qualcosa che non è né file né cartella né collegamento e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento fisico e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un file con buchi e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un file senza dimensione e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>L’aggiornamento contiene due volte lo stesso file e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>L’aggiornamento contiene file i cui nomi differiscono solo per maiuscole o accenti e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un file sotto qualcosa che non è una cartella e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento a un nome non consentito. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento che porta fuori dall’applicazione e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento che non porta da nessuna parte. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento che riporta a sé stesso. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>L’aggiornamento contiene troppi file. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>L’aggiornamento contiene troppi collegamenti. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>L’aggiornamento è troppo grande una volta estratto. Informare il produttore.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>L’applicazione installata è stata modificata, quindi l’aggiornamento ridotto non le si adatta. Reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>L’aggiornamento ridotto ha dato un risultato errato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>L’aggiornamento non contiene alcuna applicazione. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>L’aggiornamento contiene più di un’applicazione. Informare il produttore.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non è una cartella. Informare il produttore.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non ha un file di informazioni. Informare il produttore.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>Il file di informazioni dell’applicazione nell’aggiornamento è troppo grande. Informare il produttore.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Il file di informazioni dell’applicazione nell’aggiornamento non può essere letto. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>L’aggiornamento indica un programma fuori dalla sua cartella. Informa l’editore.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>L’aggiornamento è di un’altra applicazione e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>L’aggiornamento è di una versione diversa da quella indicata dal feed e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>L’aggiornamento non è più recente dell’applicazione installata e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non ha una chiave pubblica, quindi non potrebbe mai più essere aggiornata. Informare il produttore.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>Il contenuto dell&apos;aggiornamento non corrisponde al nome del file. Contatti l&apos;editore.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non ha un programma da avviare. Informare il produttore.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>Il programma nell’aggiornamento non può essere avviato. Informare il produttore.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>Il programma nell’aggiornamento è fatto per un altro tipo di computer. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>L’aggiornamento è un programma a sé, cosa che questa applicazione non consente. Informare il produttore.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>Il programma fornito con l’aggiornamento non si è avviato. Riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>Il programma fornito con l’aggiornamento non lo ha installato. Riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>Il programma fornito con l’aggiornamento ha impiegato troppo tempo ed è stato chiuso. Riprovare.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>Sul disco non c’è abbastanza spazio per l’aggiornamento. Liberarne e riprovare.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>La cartella che contiene l’applicazione non può essere modificata da questo utente. Rivolgersi a chi l’ha installata.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>Il disco ha segnalato un errore. Controllarlo e riprovare.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>L’applicazione non si è chiusa, quindi l’aggiornamento non è stato installato. Salvare il lavoro, cercare di nuovo gli aggiornamenti e lasciare che si chiuda.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>È in corso l’installazione di un altro aggiornamento di questa applicazione. Attendere che finisca.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>L’applicazione installata non è più dov’era all’inizio dell’aggiornamento. Aprirla dalla sua posizione e riprovare.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>L’applicazione installata è stata modificata durante la preparazione dell’aggiornamento. Riavviarla e riprovare.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>L’aggiornamento preparato è stato modificato prima dell’installazione ed è stato scartato. Riprovare.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>L’aggiornamento preparato e l’applicazione sono su dischi diversi. Riprovare e, se il problema persiste, reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>Non è stato possibile mettere la nuova versione al posto della precedente, che è rimasta com’era. Riprovare.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>Il disco non ha confermato di contenere l’aggiornamento. Controllarlo e riprovare.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>L’applicazione da aprire dopo l’aggiornamento non può essere aperta. Aprirla manualmente.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>L’applicazione aggiornata non si è aperta. Aprirla manualmente.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>L’applicazione è in esecuzione in un contenitore che nasconde il proprietario della cartella «%1». Avviarla fuori dal contenitore per aggiornarla.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>La quota sul disco non basta per l’aggiornamento. Rimuovere alcuni dei propri file e riprovare.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>L’utente “%1” può modificare la cartella dell’applicazione. Usa il comando “%2”.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>L’aggiornamento non può mantenere chi può aprire l’applicazione e non è stato installato. Chiedere alla persona che ha installato l’applicazione di aggiornarla.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>La nuova versione non si è avviata ed è stata ripristinata quella precedente. Informare il produttore.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>L’installazione dell’aggiornamento è stata interrotta. Cercare di nuovo gli aggiornamenti.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>Nel luogo in cui è installata l’applicazione non è possibile bloccare i file. Spostala in una cartella su un disco locale.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>Il disco che contiene l’applicazione non conserva i permessi dei file. Sposta l’applicazione su un altro disco.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Altri utenti possono modificare la cartella che contiene l’applicazione. Sposta l’applicazione in una cartella tua.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Questo sistema non offre pidfd_open, necessario per gli aggiornamenti. Installa un kernel più recente o consenti la chiamata nel container o nella sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Questo sistema non offre memfd_create, necessario per gli aggiornamenti. Installa un kernel più recente o consenti la chiamata nel container o nella sandbox.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Tutti gli utenti di questo computer possono scrivere nella cartella %1, che contiene l’applicazione. Sposta l’applicazione in una cartella tua e avviala da lì.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>I membri del gruppo “%1” possono modificare la cartella dell’applicazione. Usa il comando “%2”.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>L’applicazione è installata in %1, dove non è possibile bloccare i file. Spostala in una cartella su un disco locale e avviala da lì.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>L’applicazione in %1 appartiene a un livello del file system che non può essere sostituito. Copiala in un’altra cartella e avviala da lì.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>Il feed degli aggiornamenti non è firmato, come richiede questa applicazione. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>Il feed degli aggiornamenti prosegue dopo la sua firma e viene rifiutato. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>Il feed degli aggiornamenti ha più di una firma e viene rifiutato. Informare il produttore.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Al feed degli aggiornamenti è stato aggiunto qualcosa dopo la firma. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>I fine riga del feed degli aggiornamenti sono stati riscritti, quindi la sua firma non corrisponde. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>Il feed degli aggiornamenti è firmato in un modo che questa versione non conosce. Reinstallare l’applicazione dal sito del produttore.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>La firma del feed degli aggiornamenti è danneggiata. Riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Il feed degli aggiornamenti non è stato firmato dal produttore di questa applicazione o è stato modificato in seguito. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>Il feed degli aggiornamenti non ha un numero di serie utilizzabile. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>Il feed degli aggiornamenti non indica fino a quando è valido. Informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Il feed degli aggiornamenti è meno recente di uno già ricevuto. Provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Il feed degli aggiornamenti è scaduto. Controllare l’orologio di questo computer e, se è esatto, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un indirizzo interno al tuo computer o al tuo collegamento di rete. Contatta l’editore.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>Il proxy di rete rifiuta la connessione al server degli aggiornamenti. Chiedi all’amministratore della tua rete.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>Il proxy di rete non accetta il tuo nome utente e la tua password. Controlla le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>Il feed degli aggiornamenti non indica quali chiavi sono valide. Provi un’altra rete e informi l’editore se non basta.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è danneggiato. Informi l’editore.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti non proviene dall’editore di questa applicazione. Provi un’altra rete e informi l’editore se non basta.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è per un’altra applicazione. Informi l’editore.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è più vecchio di uno precedente. Provi un’altra rete e informi l’editore se non basta.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è scaduto. Controlli l’orologio di questo computer e informi l’editore se è giusto.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>La chiave radice di questa applicazione è danneggiata. Reinstalli l’applicazione dal suo editore.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>Il feed degli aggiornamenti è vuoto. Riprovare più tardi o informare il produttore.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>L’aggiornamento richiede più memoria, file o processi di quanti ne consenta questo sistema. Chiuda altre applicazioni e riprovi.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>La cartella per le registrazioni degli aggiornamenti non è utilizzabile. Controllarne i permessi e il disco.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>Alla riga %1 del feed inizia un documento che non è un feed.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Questa rete richiede l’accesso. Accedere e riprovare.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Circa %Ln secondo rimanente</numerusform>
            <numerusform>Circa %Ln secondi rimanenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Circa %Ln minuto rimanente</numerusform>
            <numerusform>Circa %Ln minuti rimanenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Circa %Ln ora rimanente</numerusform>
            <numerusform>Circa %Ln ore rimanenti</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Scaricamento di %1 %2 in corso…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Verifica ed estrazione di %1 %2 in corso…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Avanzamento dell’aggiornamento</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>In attesa del server…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Pronto per l’installazione</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 è stato scaricato e verificato. Per installarlo, %1 verrà chiuso e riaperto.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Più tardi</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Installa e riavvia</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>È tutto aggiornato!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 è attualmente la versione più recente disponibile.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>È disponibile una nuova versione di %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 è ora disponibile; la versione installata è la %3. Scaricare subito l’aggiornamento?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Questo aggiornamento è importante: si consiglia di installarlo presto.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Dimensione del download: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Note di rilascio</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Mostra le &amp;note di rilascio nel browser</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Salta questa versione</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>&amp;Installa aggiornamento</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 è ora disponibile; la versione installata è %3. La sua pagina spiega come ottenerla.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;Apri la pagina</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Una parte di questa applicazione necessaria agli aggiornamenti manca o è danneggiata. Reinstalla l’applicazione.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>È già in corso un aggiornamento. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Una nuova versione di %1 %2 è pronta per l’installazione</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>L’aggiornamento %1 %2 è stato scaricato ed è in attesa di approvazione. Installare l’aggiornamento e riavviare %1 adesso?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installa e riavvia</translation>
    </message>
</context>
</TS>
