<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Es wird nach Updates gesucht …</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
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
        <translation>Die Aktualisierung konnte nicht abgeschlossen werden</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>Sie verwenden die neueste Version.</translation>
    </message>
    <message>
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Diese Anwendung gibt nicht an, wo ihre Updates veröffentlicht werden. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>Die Adresse des Update-Feeds ist keine gültige Adresse. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>Die Adresse des Update-Feeds ist von einer nicht erlaubten Art. Sie muss mit https beginnen.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>Die Adresse des Update-Feeds ist nicht sicher. Sie muss mit https beginnen.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>Der Update-Server wurde nicht gefunden. Prüfen Sie die Internetverbindung, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>Der Update-Server hat die Verbindung abgelehnt. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>Der Update-Server ist aus diesem Netzwerk nicht erreichbar. Prüfen Sie die Verbindung, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>Der Update-Server hat die Verbindung nicht rechtzeitig angenommen. Prüfen Sie die Verbindung, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>Die Verbindung zum Update-Server ist fehlgeschlagen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>Der Netzwerk-Proxy hat die Verbindung nicht durchgelassen. Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>Der Update-Server hat zu lange für die Antwort gebraucht. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>Der Update-Server antwortet zu langsam. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>Das Zertifikat des Update-Servers ist nur von ihm selbst signiert, seine Identität ist also nicht bewiesen. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>Das Zertifikat des Update-Servers stammt von einer Zertifizierungsstelle, die dieser Computer nicht kennt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Das Zertifikat des Update-Servers ist abgelaufen. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Das Zertifikat des Update-Servers ist noch nicht gültig. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>Das Zertifikat des Update-Servers wurde für einen anderen Server ausgestellt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>Das Zertifikat des Update-Servers ist nicht annehmbar. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>Es kam keine sichere Verbindung zum Update-Server zustande, weil er keine ausreichend starke anbietet. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Dieser Computer kann keine sicheren Verbindungen herstellen. Installieren Sie die OpenSSL-Bibliothek.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>Der Update-Server hat die Verbindung geschlossen, bevor er geantwortet hat. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>Der Update-Feed ist unvollständig angekommen. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>Die Antwort des Update-Servers hat zu viele Kopfzeilen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>Der Update-Feed ist zu groß. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>Die Antwort des Update-Servers ist kein korrektes HTTP. Versuchen Sie es in einem anderen Netzwerk.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Der Update-Server macht widersprüchliche Angaben zur Länge des Feeds. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>Der Update-Server hat mehr gesendet als angekündigt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>Die Antwort des Update-Servers ist in ihren Teilen beschädigt. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>Der Update-Server überträgt den Feed auf eine Weise, die nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>Der Update-Server hat den Feed komprimiert gesendet, was nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>Der Update-Server hat mit dem Status %1 geantwortet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>Der Update-Server verweist auf eine weniger sichere Adresse. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>Der Update-Server verweist auf eine Adresse von einer nicht erlaubten Art. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>Der Update-Server verweist auf etwas, das keine Adresse ist. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>Der Update-Server verweist auf eine andere Adresse, ohne sie zu nennen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>Der Update-Server verweist endlos von Adresse zu Adresse. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>Die Datei mit dem Update-Feed gibt es nicht. Prüfen Sie ihre Adresse.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>Die Adresse des Update-Feeds nennt einen Ordner oder ein Gerät. Sie muss eine Datei nennen.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>Die Datei mit dem Update-Feed ist zu groß. Prüfen Sie ihre Adresse.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>Die Datei mit dem Update-Feed kann nicht gelesen werden. Prüfen Sie ihre Zugriffsrechte.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>Der Update-Feed ist eine Datei eines anderen Computers. Kopieren Sie sie auf diesen.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>Der Update-Feed kann nicht gelesen werden. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>Anstelle des Update-Feeds kam eine Webseite. Melden Sie sich in diesem Netzwerk an, wenn es das verlangt, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>Die Anwendung hat ein Update gewählt, das nicht im Feed steht. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>Die Anwendung hat beim Prüfen der Updates versagt. Starten Sie sie neu, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>Der Feed nennt eine Länge des Updates, die nicht stimmen kann. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>Das Update auf dem Server ist nicht so lang, wie der Feed angibt. Versuchen Sie es später noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>Der Update-Server hat einen anderen Teil des Updates gesendet als verlangt. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Der Update-Server hat die doppelte Größe des Updates gesendet, aber nie das ganze Update. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>Die Verbindung zum Update-Server ist zu oft abgebrochen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Das Herunterladen des Updates hat zu lange gedauert und wurde beendet. Versuchen Sie es mit einer schnelleren Verbindung noch einmal.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>Das Update ist noch nicht vollständig heruntergeladen. Die nächste Suche setzt den Download fort.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Eine andere Instanz der Anwendung lädt dieses Update gerade. Warten Sie, bis sie fertig ist.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>Der Ordner für geladene Updates kann nicht verwendet werden. Prüfen Sie seine Zugriffsrechte und seinen Datenträger.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>Der Ordner für geladene Updates gehört nicht Ihnen allein. Entfernen Sie ihn, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>Das Update braucht noch %1 auf dem Datenträger, auf dem %2 frei sind. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>Das Update braucht %1 mehr, als Ihr Kontingent auf dem Datenträger mit %2 freiem Platz zulässt. Entfernen Sie eigene Dateien, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>Das Update ist als Datei größer, als der Datenträger für geladene Updates aufnehmen kann. Bitten Sie um Hilfe.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>Der Datenträger hat versagt, während das Update darauf geschrieben wurde. Prüfen Sie den Datenträger, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>Der Computer hat zu wenig Arbeitsspeicher oder zu viele offene Dateien für den Download. Schließen Sie andere Anwendungen, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>Der Ordner der Anwendung wurde nicht gefunden, sie kann also nicht aktualisiert werden. Starten Sie sie von dort, wo sie installiert ist.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>Die Anwendung wurde über eine Verknüpfung gestartet, sie kann also nicht aktualisiert werden. Starten Sie sie aus dem Ordner, auf den die Verknüpfung zeigt.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>Die Anwendung wurde von %1 installiert und wird auch von dort aktualisiert. Verwenden Sie den Befehl „%2“.</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>Die Anwendung läuft aus einer Image-Datei. Ersetzen Sie die Datei %1 durch die der neuen Version.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>Die Anwendung liegt auf einem Datenträger, der nicht beschrieben werden kann. Kopieren Sie sie in einen anderen Ordner, und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>Der Ordner der Anwendung ist ein eigener Datenträger und kann deshalb nicht ersetzt werden. Kopieren Sie ihn in einen anderen Ordner, und starten Sie die Anwendung dort.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>Die Anwendung ist gegen jede Änderung geschützt. Bitten Sie die Person, die sie geschützt hat, das Dateiattribut „immutable“ oder „append only“ zu entfernen.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>Die Anwendung gehört einer anderen Person an diesem Computer. Bitten Sie diese Person oder die Systemverwaltung, sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>Sie dürfen den Ordner der Anwendung nicht ändern. Bitten Sie die Systemverwaltung, sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>Andere Personen an diesem Computer könnten den Ordner der Anwendung ändern, deshalb wird sie dort nicht aktualisiert. Bitten Sie die Systemverwaltung, die Zugriffsrechte zu berichtigen.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>Für das Update ist kein Platz: Es braucht %1, und %2 sind frei. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>Updates dieser Anwendung sind abgeschaltet. Wenden Sie sich an die Person, die diesen Computer verwaltet.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>Die letzten Suchen nach Updates sind fehlgeschlagen, deshalb wartet die nächste. Suchen Sie von Hand, um es sofort zu versuchen.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>Die Aktualisierung wurde abgebrochen. Suchen Sie nach Updates, um neu zu beginnen.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Diese Anwendung gibt ihre Kennung und Version nicht an, daher kann ihr kein Update zugeordnet werden. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>Das Programm, das Updates installiert, wurde unerwartet beendet. Versuchen Sie es noch einmal, und installieren Sie die Anwendung neu, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>Der Feed nennt als Adresse des Updates etwas, das keine Adresse ist. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>Die Adresse des Updates ist von einer nicht erlaubten Art und nicht https. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>Die Adresse des Updates ist nicht sicher, weil sie nicht mit https beginnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>Die Verbindung brach ab, während das Update geladen wurde. Versuchen Sie es noch einmal, es geht dort weiter.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Der Update-Server macht widersprüchliche Angaben zur Länge des Updates. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>Der Update-Server überträgt das Update auf eine Weise, die nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>Der Update-Server hat das Update komprimiert gesendet, was nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Zeile %1 des Feeds ist kein wohlgeformtes XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
        <translation>Zeile %1 des Feeds hat eine Dokumenttyp-Deklaration, die ein Feed nicht haben darf.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>Zeile %1 des Feeds verschachtelt Elemente mehr als %2 Ebenen tief.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>Zeile %1 des Feeds hat ein Tag mit mehr als %2 Attributen.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>Zeile %1 des Feeds hat ein Tag mit mehr als %2 Bytes.</translation>
    </message>
    <message>
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>Zeile %1 des Feeds überschreitet die %2 Elemente und Attribute, die ein Feed haben darf.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>Zeile %1 des Feeds hat den Eintrag Nummer %2, aber nur %3 sind erlaubt.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>In Zeile %1 des Feeds sind mehr als %2 Namensräume deklariert.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>In Zeile %1 des Feeds beginnt eine Webseite, wo ein Feed erwartet wurde.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>Zeile %1 des Feeds hat einen unbekannten Fehler.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>Die Anwendung wurde von der Paketverwaltung des Systems installiert und wird auch von dort aktualisiert. Verwenden Sie den Befehl „%1“.</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>Das Update konnte nicht installiert werden. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>Das Programm, das Updates installiert, hat seinen Auftrag nicht verstanden. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>Das Programm, das Updates installiert, konnte die übergebenen Dateien nicht verwenden. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>Das Programm, das Updates installiert, fehlt oder könnte von anderen verändert werden. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>Das Update konnte nicht, wie es sein muss, in einem abgeschotteten Prozess entpackt werden. Teilen Sie dem Herausgeber mit, welches System dies ist.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Diese Anwendung hat keinen öffentlichen Schlüssel unter SUPublicEDKey, daher lässt sich die Echtheit von Updates nicht beweisen. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Der öffentliche Schlüssel dieser Anwendung unter SUPublicEDKey ist beschädigt, daher lässt sich die Echtheit von Updates nicht beweisen. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>Das Update ist nicht signiert und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>Die Signatur des Updates ist keine Signatur, und das Update wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>Das Update wurde nicht vom Herausgeber dieser Anwendung signiert oder unterwegs beschädigt und wird abgelehnt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>Auf diesem Computer können keine Signaturen überprüft werden. Installieren Sie die libsodium-Bibliothek neu.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>Das geladene Update ist leer. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>Das geladene Update kann nicht vom Datenträger gelesen werden. Prüfen Sie den Datenträger, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>Das geladene Update ist länger oder kürzer, als der Feed angibt. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Ein anderes Programm hat das geladene Update verändert, während es überprüft wurde. Schließen Sie es, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>Das Update ist auf eine unbekannte Weise gepackt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>Das Archiv des Updates ist beschädigt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>Das Archiv des Updates lässt sich auf mehr als eine Weise lesen und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>Das Archiv des Updates ist verschlüsselt und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>Das Archiv des Updates ist auf eine unbekannte Weise komprimiert. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>Das Update enthält eine Datei mit einem nicht erlaubten Namen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>Das Update enthält eine Datei mit einem zu langen Namen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>Das Update enthält eine Datei, die außerhalb der Anwendung landen würde, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>Die Ordner des Updates sind zu tief verschachtelt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>Das Update enthält etwas, das weder Datei noch Ordner noch Verknüpfung ist, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>Das Update enthält einen Hardlink und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>Das Update enthält eine Datei mit Lücken und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>Das Update enthält eine Datei ohne Größenangabe und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>Das Update enthält dieselbe Datei zweimal und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>Das Update enthält Dateien, deren Namen sich nur in Groß- und Kleinschreibung oder Akzenten unterscheiden, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>Das Update enthält eine Datei unterhalb von etwas, das kein Ordner ist, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung mit einem nicht erlaubten Ziel. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung, die aus der Anwendung hinausführt, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung, die ins Leere führt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung, die auf sich selbst zurückführt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>Das Update enthält zu viele Dateien. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>Das Update enthält zu viele Verknüpfungen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>Das Update ist entpackt zu groß. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>Die installierte Anwendung wurde verändert, sodass das kleine Update nicht zu ihr passt. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>Was das kleine Update aus der Anwendung gemacht hat, ist nicht, was es sein soll. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>Das Update enthält keine Anwendung. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>Das Update enthält mehr als eine Anwendung. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>Die Anwendung im Update ist kein Ordner. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>Die Anwendung im Update beschreibt sich nicht. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>Die Beschreibung der Anwendung im Update ist zu groß. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>Die Beschreibung der Anwendung im Update kann nicht gelesen werden. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>Das Update nennt ein Programm außerhalb seines Ordners. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>Das Update gehört zu einer anderen Anwendung und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>Das Update hat eine andere Version, als der Feed angibt, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>Das Update ist nicht neuer als die installierte Anwendung und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>Die Anwendung im Update hat keinen öffentlichen Schlüssel, sodass sie nie wieder aktualisiert werden könnte. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>Der Inhalt des Updates passt nicht zu seinem Dateinamen. Wenden Sie sich an den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>Die Anwendung im Update hat kein Programm, das gestartet werden kann. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>Das Programm im Update darf nicht gestartet werden. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>Das Programm im Update ist für eine andere Art von Computer bestimmt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>Das Update ist ein eigenes Programm, was diese Anwendung nicht erlaubt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>Das mit dem Update gelieferte Programm ist nicht gestartet. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>Das mit dem Update gelieferte Programm hat es nicht installiert. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>Das mit dem Update gelieferte Programm hat zu lange gebraucht und wurde beendet. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>Auf dem Datenträger ist nicht genug Platz für das Update. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>Der Ordner, in dem die Anwendung liegt, darf von Ihnen nicht geändert werden. Wenden Sie sich an die Person, die sie installiert hat.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>Der Datenträger hat einen Fehler gemeldet. Prüfen Sie ihn, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>Die Anwendung wurde nicht beendet, deshalb wurde das Update nicht installiert. Sichern Sie Ihre Arbeit, suchen Sie noch einmal nach Updates, und lassen Sie die Anwendung sich beenden.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>Ein anderes Update dieser Anwendung wird gerade installiert. Warten Sie, bis es fertig ist.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>Die installierte Anwendung ist nicht mehr dort, wo sie zu Beginn der Aktualisierung war. Starten Sie sie von ihrem Platz aus, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>Die installierte Anwendung wurde verändert, während das Update vorbereitet wurde. Starten Sie sie neu, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>Das vorbereitete Update wurde vor der Installation verändert und deshalb verworfen. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>Das vorbereitete Update und die Anwendung liegen auf verschiedenen Datenträgern. Versuchen Sie es noch einmal, und installieren Sie die Anwendung neu, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>Die neue Version konnte nicht an die Stelle der alten gesetzt werden, die unverändert ist. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>Der Datenträger hat nicht bestätigt, dass er das Update gespeichert hat. Prüfen Sie ihn, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>Die Anwendung, die nach der Aktualisierung gestartet werden soll, darf nicht gestartet werden. Starten Sie die Anwendung von Hand.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>Die aktualisierte Anwendung ist nicht gestartet. Starten Sie die Anwendung von Hand.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>Die Anwendung läuft in einem Container, der den Besitzer des Ordners „%1“ verbirgt. Starten Sie die Anwendung außerhalb des Containers, um sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>Das Update würde ändern, wer die Anwendung öffnen darf, und wurde nicht installiert. Bitten Sie die Person, die die Anwendung installiert hat, sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>Die neue Version ist nicht gestartet, und die vorherige ist wieder da. Informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>Die Installation des Updates wurde unterbrochen. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>Am Speicherort der Anwendung lassen sich keine Dateien sperren: Verschieben Sie sie in einen Ordner auf einem lokalen Laufwerk.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>Das Laufwerk, auf dem die Anwendung liegt, speichert keine Dateirechte: Verschieben Sie die Anwendung auf ein anderes Laufwerk.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>Andere Benutzer dürfen den Ordner ändern, in dem die Anwendung liegt: Verschieben Sie die Anwendung in einen eigenen Ordner.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dieses System bietet pidfd_open nicht, das für Updates nötig ist: Installieren Sie einen neueren Kernel oder erlauben Sie den Aufruf im Container oder in der Sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dieses System bietet memfd_create nicht, das für Updates nötig ist: Installieren Sie einen neueren Kernel oder erlauben Sie den Aufruf im Container oder in der Sandbox.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Jeder Benutzer dieses Computers darf in den Ordner %1 schreiben, in dem die Anwendung liegt: Verschieben Sie die Anwendung in einen eigenen Ordner und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>Die Mitglieder der Gruppe „%1“ dürfen den Ordner der Anwendung ändern: Verwenden Sie den Befehl „%2“.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>Die Anwendung liegt in %1, wo sich keine Dateien sperren lassen: Verschieben Sie sie in einen Ordner auf einem lokalen Laufwerk und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>Die Anwendung in %1 gehört zu einer Schicht des Dateisystems, die nicht ersetzt werden kann: Kopieren Sie sie in einen anderen Ordner und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>Der Update-Feed ist nicht signiert, wie es diese Anwendung verlangt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>Der Update-Feed geht hinter seiner Signatur weiter und wird abgelehnt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>Der Update-Feed hat mehr als eine Signatur und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Dem Update-Feed wurde nach seiner Signatur etwas hinzugefügt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>Die Zeilenenden des Update-Feeds wurden umgeschrieben, sodass seine Signatur nicht passt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>Der Update-Feed ist auf eine Weise signiert, die diese Version nicht kennt. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>Die Signatur des Update-Feeds ist beschädigt. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>Der Update-Feed wurde nicht vom Herausgeber dieser Anwendung signiert oder nachträglich verändert. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>Der Update-Feed hat keine brauchbare laufende Nummer. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>Der Update-Feed gibt nicht an, wie lange er gilt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>Der Update-Feed ist älter als ein früher empfangener. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Der Update-Feed ist abgelaufen. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>Der Update-Server verweist auf eine Adresse in Ihrem eigenen Computer oder Netzwerkanschluss. Wenden Sie sich an den Herausgeber.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>Der Netzwerk-Proxy verweigert die Verbindung zum Update-Server. Fragen Sie den Administrator Ihres Netzwerks.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>Der Netzwerk-Proxy nimmt Ihren Benutzernamen und Ihr Passwort nicht an. Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>Der Update-Feed sagt nicht, welche Schlüssel gültig sind. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed ist beschädigt. Informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed stammt nicht vom Herausgeber dieser Anwendung. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed gilt für eine andere Anwendung. Informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed ist älter als eine frühere. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed ist abgelaufen. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>Der Stammschlüssel dieser Anwendung ist beschädigt. Installieren Sie die Anwendung neu vom Herausgeber.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Noch etwa %Ln Sekunde</numerusform>
            <numerusform>Noch etwa %Ln Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Noch etwa %Ln Minute</numerusform>
            <numerusform>Noch etwa %Ln Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Noch etwa %Ln Stunde</numerusform>
            <numerusform>Noch etwa %Ln Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 wird geladen …</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 wird überprüft und entpackt …</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Fortschritt der Aktualisierung</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Warten auf den Server …</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Bereit zur Installation</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 wurde geladen und überprüft. Zur Installation wird %1 beendet und neu geöffnet.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Installieren und neu starten</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Alles auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 ist derzeit die neueste verfügbare Version.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>Eine neue Version von %1 ist verfügbar!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 ist jetzt verfügbar; installiert ist %3. Möchten Sie die neue Version jetzt laden?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Diese Aktualisierung ist wichtig: Sie sollte bald installiert werden.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Größe des Downloads: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Versions&amp;hinweise im Browser anzeigen</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>Diese Version ü&amp;berspringen</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Später erinnern</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>Update &amp;installieren</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Ein Teil dieser Anwendung, den Updates brauchen, fehlt oder ist beschädigt. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Es läuft bereits eine Aktualisierung. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Eine neue Version von %1 %2 kann installiert werden</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>Das Update %1 %2 wurde geladen und wartet auf Ihre Zustimmung. Möchten Sie es jetzt installieren und %1 neu starten?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installieren und neu starten</translation>
    </message>
</context>
</TS>
