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
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Questa applicazione non indica dove vengono pubblicati i suoi aggiornamenti: reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>L’indirizzo del feed degli aggiornamenti non è un indirizzo valido: reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>L’indirizzo del feed degli aggiornamenti è di un tipo non consentito: deve iniziare con https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>L’indirizzo del feed degli aggiornamenti non è sicuro: deve iniziare con https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>Il server degli aggiornamenti non è stato trovato: controllare la connessione a Internet e riprovare.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>Il server degli aggiornamenti ha rifiutato la connessione: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>Il server degli aggiornamenti non è raggiungibile da questa rete: controllare la connessione e riprovare.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>Il server degli aggiornamenti non ha accettato in tempo la connessione: controllare la connessione e riprovare.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>La connessione al server degli aggiornamenti non è riuscita: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>Il proxy di rete non ha lasciato passare la connessione: controllare le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>Il server degli aggiornamenti ha impiegato troppo tempo a rispondere: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>Il server degli aggiornamenti risponde troppo lentamente: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>Il certificato del server degli aggiornamenti è firmato solo da sé stesso, quindi la sua identità non è provata: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>Il certificato del server degli aggiornamenti proviene da un’autorità che questo computer non conosce: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Il certificato del server degli aggiornamenti è scaduto: controllare l’orologio di questo computer e, se è esatto, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Il certificato del server degli aggiornamenti non è ancora valido: controllare l’orologio di questo computer e, se è esatto, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>Il certificato del server degli aggiornamenti è stato emesso per un altro server: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>Il certificato del server degli aggiornamenti non è accettabile: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>Non è stato possibile stabilire una connessione sicura con il server degli aggiornamenti, perché non ne offre una abbastanza robusta: informare il produttore.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Questo computer non può stabilire connessioni sicure: installare la libreria OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>Il server degli aggiornamenti ha chiuso la connessione prima di rispondere: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>Il feed degli aggiornamenti è arrivato incompleto: riprovare.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>La risposta del server degli aggiornamenti ha troppe intestazioni: informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>Il feed degli aggiornamenti è troppo grande: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>La risposta del server degli aggiornamenti non è HTTP corretto: provare con un’altra rete.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Il server degli aggiornamenti indica la lunghezza del feed in modo contraddittorio: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>Il server degli aggiornamenti ha inviato più di quanto annunciato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>La risposta del server degli aggiornamenti è danneggiata: riprovare.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>Il server degli aggiornamenti trasferisce il feed in un modo che non era richiesto: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>Il server degli aggiornamenti ha inviato il feed compresso, cosa che non era richiesta: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>Il server degli aggiornamenti ha risposto con lo stato %1: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un indirizzo meno sicuro: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un indirizzo di un tipo non consentito: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a qualcosa che non è un indirizzo: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda a un altro indirizzo senza indicarlo: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>Il server degli aggiornamenti rimanda da un indirizzo all’altro senza fine: informare il produttore.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>Il file con il feed degli aggiornamenti non esiste: controllarne l’indirizzo.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>L’indirizzo del feed degli aggiornamenti indica una cartella o un dispositivo: deve indicare un file.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>Il file con il feed degli aggiornamenti è troppo grande: controllarne l’indirizzo.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>Il file con il feed degli aggiornamenti non può essere letto: controllarne i permessi.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>Il feed degli aggiornamenti è un file di un altro computer: copiarlo su questo.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>Il feed degli aggiornamenti non può essere letto: informare il produttore.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>Al posto del feed degli aggiornamenti è arrivata una pagina web: accedere a questa rete, se lo richiede, e riprovare.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>L’applicazione ha scelto un aggiornamento che non è nel feed: reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>L’applicazione non è riuscita a esaminare gli aggiornamenti: riavviarla e riprovare.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>Il feed indica per l’aggiornamento una lunghezza impossibile: informare il produttore.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>L’aggiornamento sul server non ha la lunghezza indicata dal feed: riprovare più tardi e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>Il server degli aggiornamenti ha inviato una parte dell’aggiornamento diversa da quella richiesta: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Il server degli aggiornamenti ha inviato il doppio della dimensione dell'aggiornamento, ma mai l'aggiornamento completo. Riprovi più tardi.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>La connessione al server degli aggiornamenti si è interrotta troppe volte. Riprovi più tardi.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Il download dell'aggiornamento ha richiesto troppo tempo ed è stato interrotto. Riprovi con una connessione più veloce.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>L'aggiornamento non è ancora stato scaricato completamente. Il prossimo controllo continuerà il download.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Un’altra copia dell’applicazione sta scaricando questo aggiornamento: attendere che finisca.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>La cartella degli aggiornamenti scaricati non è utilizzabile: controllarne i permessi e il disco.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>La cartella degli aggiornamenti scaricati non appartiene solo a questo utente: rimuoverla e riprovare.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>L’aggiornamento richiede altri %1 sul disco, dove sono liberi %2: liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>L’aggiornamento richiede %1 in più di quanto consenta la quota sul disco, dove sono liberi %2: rimuovere alcuni dei propri file e riprovare.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>L’aggiornamento è un file troppo grande per il disco degli aggiornamenti scaricati: chiedere assistenza.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>Il disco non ha funzionato durante la scrittura dell’aggiornamento: controllare il disco e riprovare.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>Il computer ha troppa poca memoria o troppi file aperti per lo scaricamento: chiudere altre applicazioni e riprovare.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>La cartella dell’applicazione non è stata trovata, quindi non è possibile aggiornarla: aprirla dal punto in cui è installata.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>L’applicazione è stata aperta tramite un collegamento, quindi non è possibile aggiornarla: aprirla dalla cartella a cui porta il collegamento.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>L’applicazione è stata installata da %1, che provvede anche ad aggiornarla: usare il comando «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>L’applicazione è eseguita da un file immagine: sostituire il file %1 con quello della nuova versione.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>L’applicazione si trova su un disco di sola lettura: copiarla in un’altra cartella e aprirla da lì.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>La cartella dell’applicazione è un disco a sé, quindi non può essere sostituita: copiarla in un’altra cartella e aprire l’applicazione da lì.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>L’applicazione è protetta da ogni modifica: chiedere a chi l’ha protetta di rimuovere l’attributo del file «immutable» o «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>L’applicazione appartiene a un altro utente di questo computer: chiedere a lui o all’amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>Non si dispone dei permessi per modificare la cartella dell’applicazione: chiedere all’amministratore di aggiornarla.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>Altri utenti di questo computer potrebbero modificare la cartella dell’applicazione, quindi non viene aggiornata lì: chiedere all’amministratore di correggerne i permessi.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>Non c’è spazio per l’aggiornamento: richiede %1 e sono liberi %2. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>Gli aggiornamenti di questa applicazione sono disattivati: rivolgersi a chi gestisce questo computer.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>Le ultime ricerche di aggiornamenti non sono riuscite, quindi la prossima attende: cercarli manualmente per riprovare subito.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>L’aggiornamento è stato annullato: cercare gli aggiornamenti per ricominciare.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Questa applicazione non indica il proprio identificatore e la propria versione, quindi nessun aggiornamento può esserle associato: reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>Il programma che installa gli aggiornamenti si è chiuso inaspettatamente: riprovare e, se il problema persiste, reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>La ricerca di aggiornamenti non è riuscita: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>Il feed indica per l’aggiornamento un indirizzo che non è tale: informare il produttore.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>L’indirizzo dell’aggiornamento è di un tipo non consentito, diverso da https: informare il produttore.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>L’indirizzo dell’aggiornamento non è sicuro, perché non inizia con https: informare il produttore.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>La connessione si è interrotta durante lo scaricamento dell’aggiornamento: riprovare, riprenderà da lì.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Il server degli aggiornamenti indica la lunghezza dell’aggiornamento in modo contraddittorio: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>Il server degli aggiornamenti trasferisce l’aggiornamento in un modo che non era richiesto: informare il produttore.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>Il server degli aggiornamenti ha inviato l’aggiornamento compresso, cosa che non era richiesta: informare il produttore.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>La riga %1 del feed non è XML ben formato.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
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
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>La riga %1 del feed supera i %2 elementi e attributi che un feed può avere.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>La riga %1 del feed contiene la voce numero %2, ma ne sono consentite solo %3.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>La riga %1 del feed dichiara più di %2 spazi dei nomi.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>Alla riga %1 del feed inizia una pagina web dove era atteso un feed.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>La riga %1 del feed contiene un errore sconosciuto.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>L’applicazione è stata installata dal gestore di pacchetti del sistema, che provvede anche ad aggiornarla: usare il comando «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>Non è stato possibile installare l’aggiornamento: riprovare più tardi.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>Il programma che installa gli aggiornamenti non ha capito che cosa gli era richiesto: reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>Il programma che installa gli aggiornamenti non ha potuto usare i file ricevuti: riprovare.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>Il programma che installa gli aggiornamenti manca o potrebbe essere modificato da altri: reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>Non è stato possibile estrarre l’aggiornamento in un processo isolato, come è necessario: comunicare al produttore qual è questo sistema.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Questa applicazione non ha una chiave pubblica in SUPublicEDKey, quindi l’autenticità degli aggiornamenti non può essere provata: reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>La chiave pubblica di questa applicazione in SUPublicEDKey è danneggiata, quindi l’autenticità degli aggiornamenti non può essere provata: reinstallarla dal sito del produttore.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento non è firmato e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>La firma dell’aggiornamento non è una firma, e l’aggiornamento viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>L’aggiornamento non è stato firmato dal produttore di questa applicazione o si è danneggiato durante il trasferimento, e viene rifiutato: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>Su questo computer non è possibile verificare le firme: reinstallare la libreria libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>L’aggiornamento scaricato è vuoto: riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>L’aggiornamento scaricato non può essere letto dal disco: controllare il disco e riprovare.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>L’aggiornamento scaricato è più lungo o più corto di quanto indicato dal feed: riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Un altro programma ha modificato l’aggiornamento scaricato durante la verifica: chiuderlo e riprovare.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>L’aggiornamento è impacchettato in un modo sconosciuto: informare il produttore.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>L’archivio dell’aggiornamento è danneggiato: informare il produttore.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>L’archivio dell’aggiornamento può essere letto in più di un modo e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>L’archivio dell’aggiornamento è cifrato e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>L’archivio dell’aggiornamento è compresso in un modo sconosciuto: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>L’aggiornamento contiene un file con un nome non consentito: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>L’aggiornamento contiene un file con un nome troppo lungo: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene un file che finirebbe fuori dall’applicazione e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>Le cartelle dell’aggiornamento sono troppo annidate: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene qualcosa che non è né file né cartella né collegamento e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento fisico e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene un file con buchi e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene un file senza dimensione e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene due volte lo stesso file e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene file i cui nomi differiscono solo per maiuscole o accenti e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene un file sotto qualcosa che non è una cartella e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento a un nome non consentito: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento che porta fuori dall’applicazione e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento che non porta da nessuna parte: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>L’aggiornamento contiene un collegamento che riporta a sé stesso: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>L’aggiornamento contiene troppi file: informare il produttore.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>L’aggiornamento contiene troppi collegamenti: informare il produttore.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>L’aggiornamento è troppo grande una volta estratto: informare il produttore.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>L’applicazione installata è stata modificata, quindi l’aggiornamento ridotto non le si adatta: reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>Il risultato dell’aggiornamento ridotto non è quello che dovrebbe essere: informare il produttore.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>L’aggiornamento non contiene alcuna applicazione: informare il produttore.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>L’aggiornamento contiene più di un’applicazione: informare il produttore.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non è una cartella: informare il produttore.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non descrive sé stessa: informare il produttore.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>La descrizione dell’applicazione nell’aggiornamento è troppo grande: informare il produttore.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>La descrizione dell’applicazione nell’aggiornamento non può essere letta: informare il produttore.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>L’aggiornamento indica un programma fuori dalla sua cartella: informa l’editore.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento è di un’altra applicazione e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento è di una versione diversa da quella indicata dal feed e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>L’aggiornamento non è più recente dell’applicazione installata e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non ha una chiave pubblica, quindi non potrebbe mai più essere aggiornata: informare il produttore.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>Il contenuto dell'aggiornamento non corrisponde al nome del file. Contatti l'editore.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>L’applicazione nell’aggiornamento non ha un programma da avviare: informare il produttore.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>Il programma nell’aggiornamento non può essere avviato: informare il produttore.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>Il programma nell’aggiornamento è fatto per un altro tipo di computer: informare il produttore.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>L’aggiornamento è un programma a sé, cosa che questa applicazione non consente: informare il produttore.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>Il programma fornito con l’aggiornamento non si è avviato: riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>Il programma fornito con l’aggiornamento non lo ha installato: riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>Il programma fornito con l’aggiornamento ha impiegato troppo tempo ed è stato chiuso: riprovare.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>Sul disco non c’è abbastanza spazio per l’aggiornamento: liberarne e riprovare.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>La cartella che contiene l’applicazione non può essere modificata da questo utente: rivolgersi a chi l’ha installata.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>Il disco ha segnalato un errore: controllarlo e riprovare.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>L’applicazione non si è chiusa, quindi l’aggiornamento non è stato installato: salvare il lavoro, cercare di nuovo gli aggiornamenti e lasciare che si chiuda.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>È in corso l’installazione di un altro aggiornamento di questa applicazione: attendere che finisca.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>L’applicazione installata non è più dov’era all’inizio dell’aggiornamento: aprirla dalla sua posizione e riprovare.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>L’applicazione installata è stata modificata durante la preparazione dell’aggiornamento: riavviarla e riprovare.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>L’aggiornamento preparato è stato modificato prima dell’installazione ed è stato scartato: riprovare.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>L’aggiornamento preparato e l’applicazione sono su dischi diversi: riprovare e, se il problema persiste, reinstallare l’applicazione.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>Non è stato possibile mettere la nuova versione al posto della precedente, che è rimasta com’era: riprovare.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>Il disco non ha confermato di contenere l’aggiornamento: controllarlo e riprovare.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>L’applicazione da aprire dopo l’aggiornamento non può essere aperta: aprirla manualmente.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>L’applicazione aggiornata non si è aperta: aprirla manualmente.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>L’applicazione è in esecuzione in un contenitore che nasconde il proprietario della cartella «%1»: avviarla fuori dal contenitore per aggiornarla.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>L’aggiornamento non può mantenere chi può aprire l’applicazione e non è stato installato. Chiedere alla persona che ha installato l’applicazione di aggiornarla.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>La nuova versione non si è avviata ed è stata ripristinata quella precedente. Informare il produttore.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>L’installazione dell’aggiornamento è stata interrotta. Cercare di nuovo gli aggiornamenti.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>Nel luogo in cui è installata l’applicazione non è possibile bloccare i file: spostala in una cartella su un disco locale.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>Il disco che contiene l’applicazione non conserva i permessi dei file: sposta l’applicazione su un altro disco.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>Altri utenti possono modificare la cartella che contiene l’applicazione: sposta l’applicazione in una cartella tua.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Questo sistema non offre pidfd_open, necessario per gli aggiornamenti: installa un kernel più recente o consenti la chiamata nel container o nella sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Questo sistema non offre memfd_create, necessario per gli aggiornamenti: installa un kernel più recente o consenti la chiamata nel container o nella sandbox.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Tutti gli utenti di questo computer possono scrivere nella cartella %1, che contiene l’applicazione: sposta l’applicazione in una cartella tua e avviala da lì.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>I membri del gruppo “%1” possono modificare la cartella dell’applicazione: usa il comando “%2”.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>L’applicazione è installata in %1, dove non è possibile bloccare i file: spostala in una cartella su un disco locale e avviala da lì.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>L’applicazione in %1 appartiene a un livello del file system che non può essere sostituito: copiala in un’altra cartella e avviala da lì.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>Il feed degli aggiornamenti non è firmato, come richiede questa applicazione: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>Il feed degli aggiornamenti prosegue dopo la sua firma e viene rifiutato: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>Il feed degli aggiornamenti ha più di una firma e viene rifiutato: informare il produttore.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Al feed degli aggiornamenti è stato aggiunto qualcosa dopo la firma: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>I fine riga del feed degli aggiornamenti sono stati riscritti, quindi la sua firma non corrisponde: informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>Il feed degli aggiornamenti è firmato in un modo che questa versione non conosce: reinstallare l’applicazione dal sito del produttore.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>La firma del feed degli aggiornamenti è danneggiata: riprovare e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>Il feed degli aggiornamenti non è stato firmato dal produttore di questa applicazione o è stato modificato in seguito: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>Il feed degli aggiornamenti non ha un numero di serie utilizzabile: informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>Il feed degli aggiornamenti non indica fino a quando è valido: informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>Il feed degli aggiornamenti è meno recente di uno già ricevuto: provare con un’altra rete e, se il problema persiste, informare il produttore.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Il feed degli aggiornamenti è scaduto: controllare l’orologio di questo computer e, se è esatto, informare il produttore.</translation>
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
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>Il proxy di rete non accetta il tuo nome utente e la tua password. Controlla le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>Il feed degli aggiornamenti non indica quali chiavi sono valide. Provi un’altra rete e informi l’editore se non basta.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è danneggiato. Informi l’editore.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti non proviene dall’editore di questa applicazione. Provi un’altra rete e informi l’editore se non basta.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è per un’altra applicazione. Informi l’editore.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è più vecchio di uno precedente. Provi un’altra rete e informi l’editore se non basta.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>L’elenco delle chiavi valide nel feed degli aggiornamenti è scaduto. Controlli l’orologio di questo computer e informi l’editore se è giusto.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>La chiave radice di questa applicazione è danneggiata. Reinstalli l’applicazione dal suo editore.</translation>
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
