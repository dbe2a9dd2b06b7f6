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
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Diese Anwendung gibt nicht an, wo ihre Updates veröffentlicht werden. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>Die Adresse des Update-Feeds ist keine gültige Adresse. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>Die Adresse des Update-Feeds ist von einer nicht erlaubten Art. Sie muss mit https beginnen.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>Die Adresse des Update-Feeds ist nicht sicher. Sie muss mit https beginnen.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>Der Update-Server wurde nicht gefunden. Prüfen Sie die Internetverbindung, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>Der Update-Server hat die Verbindung abgelehnt. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>Der Update-Server ist aus diesem Netzwerk nicht erreichbar. Prüfen Sie die Verbindung, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>Der Update-Server hat die Verbindung nicht rechtzeitig angenommen. Prüfen Sie die Verbindung, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>Die Verbindung zum Update-Server ist fehlgeschlagen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>Der Netzwerk-Proxy hat die Verbindung nicht durchgelassen. Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>Der Update-Server hat zu lange für die Antwort gebraucht. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>Der Update-Server antwortet zu langsam. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>Das Zertifikat des Update-Servers ist nur von ihm selbst signiert, seine Identität ist also nicht bewiesen. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>Das Zertifikat des Update-Servers stammt von einer Zertifizierungsstelle, die dieser Computer nicht kennt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Das Zertifikat des Update-Servers ist abgelaufen. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>Das Zertifikat des Update-Servers ist noch nicht gültig. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>Das Zertifikat des Update-Servers wurde für einen anderen Server ausgestellt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>Das Zertifikat des Update-Servers ist nicht annehmbar. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>Der Update-Server unterstützt keine sichere Verbindung (TLS 1.2 oder neuer). Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Dieser Computer kann keine sicheren Verbindungen herstellen. Installieren Sie die OpenSSL-Bibliothek.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>Der Update-Server hat die Verbindung geschlossen, bevor er geantwortet hat. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>Der Update-Feed ist unvollständig angekommen. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>Die Antwort des Update-Servers hat zu viele Kopfzeilen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>Der Update-Feed ist zu groß. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>Die Antwort des Update-Servers ist kein korrektes HTTP. Versuchen Sie es in einem anderen Netzwerk.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>Der Update-Server macht widersprüchliche Angaben zur Länge des Feeds. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>Der Update-Server hat mehr gesendet als angekündigt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>Der Update-Server hat eine ungültige Antwort gesendet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>Der Update-Server überträgt den Feed auf eine Weise, die nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>Der Update-Server hat den Feed komprimiert gesendet, was nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>Der Update-Server hat mit dem Status %1 geantwortet. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>Der Update-Server verweist auf eine weniger sichere Adresse. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>Der Update-Server verweist auf eine Adresse von einer nicht erlaubten Art. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>Der Update-Server verweist auf etwas, das keine Adresse ist. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>Der Update-Server verweist auf eine andere Adresse, ohne sie zu nennen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>Der Update-Server verweist endlos von Adresse zu Adresse. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>Die Datei mit dem Update-Feed gibt es nicht. Prüfen Sie ihre Adresse.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>Die Adresse des Update-Feeds nennt einen Ordner oder ein Gerät. Sie muss eine Datei nennen.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>Die Datei mit dem Update-Feed ist zu groß. Prüfen Sie ihre Adresse.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Die Datei mit dem Update-Feed kann nicht gelesen werden. Prüfen Sie ihre Zugriffsrechte.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>Der Update-Feed ist eine Datei eines anderen Computers. Kopieren Sie sie auf diesen.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>Der Update-Feed kann nicht gelesen werden. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Anstelle des Update-Feeds kam eine Webseite. Melden Sie sich in diesem Netzwerk an, wenn es das verlangt, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>Die Anwendung hat ein Update gewählt, das nicht im Feed steht. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>Die Anwendung hat beim Prüfen der Updates versagt. Starten Sie sie neu, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>Der Feed nennt eine Länge des Updates, die nicht stimmen kann. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>Das Update auf dem Server ist nicht so lang, wie der Feed angibt. Versuchen Sie es später noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
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
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Eine andere Instanz der Anwendung lädt dieses Update gerade. Warten Sie, bis sie fertig ist.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>Der Ordner für geladene Updates kann nicht verwendet werden. Prüfen Sie seine Zugriffsrechte und seinen Datenträger.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>Der Ordner für geladene Updates gehört nicht Ihnen allein. Entfernen Sie ihn, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>Das Update braucht noch %1 auf dem Datenträger, auf dem %2 frei sind. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Ihr Kontingent auf dem Datenträger reicht für das Update nicht aus, das %1 braucht. Entfernen Sie eigene Dateien, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>Das Update ist als Datei größer, als der Datenträger für geladene Updates aufnehmen kann. Wenden Sie sich an die Person, die diesen Computer verwaltet.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>Der Datenträger hat versagt, während das Update darauf geschrieben wurde. Prüfen Sie den Datenträger, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>Der Computer hat zu wenig Arbeitsspeicher oder zu viele offene Dateien für den Download. Schließen Sie andere Anwendungen, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>Der Ordner der Anwendung wurde nicht gefunden, sie kann also nicht aktualisiert werden. Starten Sie sie von dort, wo sie installiert ist.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>Die Anwendung wurde über eine Verknüpfung gestartet, sie kann also nicht aktualisiert werden. Starten Sie sie aus dem Ordner, auf den die Verknüpfung zeigt.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>Die Anwendung wurde von %1 installiert und wird auch von dort aktualisiert. Verwenden Sie den Befehl „%2“.</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>Die Anwendung läuft aus einer Image-Datei. Ersetzen Sie die Datei %1 durch die der neuen Version.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>Die Anwendung liegt auf einem Datenträger, der nicht beschrieben werden kann. Kopieren Sie sie in einen anderen Ordner, und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>Der Ordner der Anwendung ist ein eigener Datenträger oder enthält einen und kann deshalb nicht ersetzt werden. Kopieren Sie ihn in einen anderen Ordner, und starten Sie die Anwendung dort.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>Die Anwendung ist gegen jede Änderung geschützt. Bitten Sie die Person, die sie geschützt hat, das Dateiattribut „immutable“ oder „append only“ zu entfernen.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>Die Anwendung gehört einer anderen Person an diesem Computer. Bitten Sie diese Person oder die Systemverwaltung, sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>Sie dürfen den Ordner der Anwendung nicht ändern. Bitten Sie die Systemverwaltung, sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Andere Personen an diesem Computer könnten den Ordner der Anwendung ändern, deshalb wird sie dort nicht aktualisiert. Bitten Sie die Systemverwaltung, die Zugriffsrechte zu berichtigen.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>Das Update braucht %1 auf dem Datenträger, frei sind aber nur %2. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Updates dieser Anwendung sind abgeschaltet. Wenden Sie sich an die Person, die diesen Computer verwaltet.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>Die letzten Suchen nach Updates sind fehlgeschlagen, deshalb wartet die nächste. Suchen Sie von Hand, um es sofort zu versuchen.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>Die Aktualisierung wurde abgebrochen. Suchen Sie nach Updates, um neu zu beginnen.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Diese Anwendung gibt ihre Kennung und Version nicht an, daher kann ihr kein Update zugeordnet werden. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>Das Programm, das Updates installiert, wurde unerwartet beendet. Versuchen Sie es noch einmal, und installieren Sie die Anwendung neu, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>Die Suche nach Updates ist fehlgeschlagen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>Der Feed nennt als Adresse des Updates etwas, das keine Adresse ist. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>Die Adresse des Updates ist von einer nicht erlaubten Art und nicht https. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>Die Adresse des Updates ist nicht sicher, weil sie nicht mit https beginnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>Die Verbindung brach ab, während das Update geladen wurde. Versuchen Sie es noch einmal, es geht dort weiter.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>Der Update-Server macht widersprüchliche Angaben zur Länge des Updates. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>Der Update-Server überträgt das Update auf eine Weise, die nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>Der Update-Server hat das Update komprimiert gesendet, was nicht verlangt war. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Zeile %1 des Feeds ist kein wohlgeformtes XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
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
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>Zeile %1 des Feeds überschreitet die %2 Elemente und Attribute, die ein Feed haben darf.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>Zeile %1 des Feeds hat den Eintrag Nummer %3, aber nur %2 sind erlaubt.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>In Zeile %1 des Feeds sind mehr als %2 Namensräume deklariert.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>In Zeile %1 des Feeds beginnt eine Webseite, wo ein Feed erwartet wurde.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>Die Anwendung wurde von der Paketverwaltung des Systems installiert und wird auch von dort aktualisiert. Verwenden Sie den Befehl „%1“.</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>Das Update konnte nicht installiert werden. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>Das Programm, das Updates installiert, hat seinen Auftrag nicht verstanden. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>Das Programm, das Updates installiert, konnte die übergebenen Dateien nicht verwenden. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>Das Programm, das Updates installiert, fehlt oder könnte von anderen verändert werden. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>Das Update konnte nicht, wie es sein muss, in einem abgeschotteten Prozess entpackt werden. Teilen Sie dem Herausgeber mit, welches System dies ist.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Diese Anwendung hat keinen öffentlichen Schlüssel unter SUPublicEDKey, daher lässt sich die Echtheit von Updates nicht beweisen. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Der öffentliche Schlüssel dieser Anwendung unter SUPublicEDKey ist beschädigt, daher lässt sich die Echtheit von Updates nicht beweisen. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>Das Update ist nicht signiert und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>Das Update wurde abgelehnt, weil seine Signatur ungültig ist. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Das Update wurde nicht vom Herausgeber dieser Anwendung signiert oder unterwegs beschädigt und wird abgelehnt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>Auf diesem Computer können keine Signaturen überprüft werden. Installieren Sie die libsodium-Bibliothek neu.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>Das geladene Update ist leer. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>Das geladene Update kann nicht vom Datenträger gelesen werden. Prüfen Sie den Datenträger, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>Das geladene Update ist länger oder kürzer, als der Feed angibt. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Ein anderes Programm hat das geladene Update verändert, während es überprüft wurde. Schließen Sie es, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>Das Update ist auf eine unbekannte Weise gepackt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>Das Archiv des Updates ist beschädigt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>Das Archiv des Updates lässt sich auf mehr als eine Weise lesen und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>Das Archiv des Updates ist verschlüsselt und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>Das Archiv des Updates ist auf eine unbekannte Weise komprimiert. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>Das Update enthält eine Datei mit einem nicht erlaubten Namen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>Das Update enthält eine Datei mit einem zu langen Namen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>Das Update enthält eine Datei, die außerhalb der Anwendung landen würde, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>Die Ordner des Updates sind zu tief verschachtelt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>Das Update enthält etwas, das weder Datei noch Ordner noch Verknüpfung ist, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>Das Update enthält einen Hardlink und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>Das Update enthält eine Datei mit Lücken und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>Das Update enthält eine Datei ohne Größenangabe und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>Das Update enthält dieselbe Datei zweimal und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>Das Update enthält Dateien, deren Namen sich nur in Groß- und Kleinschreibung oder Akzenten unterscheiden, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>Das Update enthält eine Datei unterhalb von etwas, das kein Ordner ist, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung mit einem nicht erlaubten Ziel. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung, die aus der Anwendung hinausführt, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung, die ins Leere führt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>Das Update enthält eine Verknüpfung, die auf sich selbst zurückführt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>Das Update enthält zu viele Dateien. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>Das Update enthält zu viele Verknüpfungen. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>Das Update ist entpackt zu groß. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>Die installierte Anwendung wurde verändert, sodass das kleine Update nicht zu ihr passt. Installieren Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>Das kleine Update hat ein falsches Ergebnis geliefert. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>Das Update enthält keine Anwendung. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>Das Update enthält mehr als eine Anwendung. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>Die Anwendung im Update ist kein Ordner. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>Der Anwendung im Update fehlt die Informationsdatei. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>Die Informationsdatei der Anwendung im Update ist zu groß. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Die Informationsdatei der Anwendung im Update kann nicht gelesen werden. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>Das Update nennt ein Programm außerhalb seines Ordners. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>Das Update gehört zu einer anderen Anwendung und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>Das Update hat eine andere Version, als der Feed angibt, und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>Das Update ist nicht neuer als die installierte Anwendung und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>Die Anwendung im Update hat keinen öffentlichen Schlüssel, sodass sie nie wieder aktualisiert werden könnte. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>Der Inhalt des Updates passt nicht zu seinem Dateinamen. Wenden Sie sich an den Herausgeber.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>Die Anwendung im Update hat kein Programm, das gestartet werden kann. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>Das Programm im Update darf nicht gestartet werden. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>Das Programm im Update ist für eine andere Art von Computer bestimmt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>Das Update ist ein eigenes Programm, was diese Anwendung nicht erlaubt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>Das mit dem Update gelieferte Programm ist nicht gestartet. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>Das mit dem Update gelieferte Programm hat es nicht installiert. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>Das mit dem Update gelieferte Programm hat zu lange gebraucht und wurde beendet. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>Auf dem Datenträger ist nicht genug Platz für das Update. Schaffen Sie Platz, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>Der Ordner, in dem die Anwendung liegt, darf von Ihnen nicht geändert werden. Wenden Sie sich an die Person, die sie installiert hat.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>Der Datenträger hat einen Fehler gemeldet. Prüfen Sie ihn, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>Die Anwendung wurde nicht beendet, deshalb wurde das Update nicht installiert. Sichern Sie Ihre Arbeit, suchen Sie noch einmal nach Updates, und lassen Sie die Anwendung sich beenden.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Ein anderes Update dieser Anwendung wird gerade installiert. Warten Sie, bis es fertig ist.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>Die installierte Anwendung ist nicht mehr dort, wo sie zu Beginn der Aktualisierung war. Starten Sie sie von ihrem Platz aus, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>Die installierte Anwendung wurde verändert, während das Update vorbereitet wurde. Starten Sie sie neu, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>Das vorbereitete Update wurde vor der Installation verändert und deshalb verworfen. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>Das vorbereitete Update und die Anwendung liegen auf verschiedenen Datenträgern. Versuchen Sie es noch einmal, und installieren Sie die Anwendung neu, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>Die neue Version konnte nicht an die Stelle der alten gesetzt werden, die unverändert ist. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>Der Datenträger hat nicht bestätigt, dass er das Update gespeichert hat. Prüfen Sie ihn, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>Die Anwendung, die nach der Aktualisierung gestartet werden soll, darf nicht gestartet werden. Starten Sie die Anwendung von Hand.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>Die aktualisierte Anwendung ist nicht gestartet. Starten Sie die Anwendung von Hand.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>Die Anwendung läuft in einem Container, der den Besitzer des Ordners „%1“ verbirgt. Starten Sie die Anwendung außerhalb des Containers, um sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Ihr Kontingent auf dem Datenträger reicht für das Update nicht aus. Entfernen Sie eigene Dateien, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Der Benutzer „%1“ darf den Ordner der Anwendung ändern. Verwenden Sie den Befehl „%2“.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>Das Update würde ändern, wer die Anwendung öffnen darf, und wurde nicht installiert. Bitten Sie die Person, die die Anwendung installiert hat, sie zu aktualisieren.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>Die neue Version ist nicht gestartet, und die vorherige ist wieder da. Informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>Die Installation des Updates wurde unterbrochen. Suchen Sie erneut nach Updates.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>Am Speicherort der Anwendung lassen sich keine Dateien sperren. Verschieben Sie sie in einen Ordner auf einem lokalen Laufwerk.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>Das Laufwerk, auf dem die Anwendung liegt, speichert keine Dateirechte. Verschieben Sie die Anwendung auf ein anderes Laufwerk.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Andere Benutzer dürfen den Ordner ändern, in dem die Anwendung liegt. Verschieben Sie die Anwendung in einen eigenen Ordner.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dieses System bietet pidfd_open nicht, das für Updates nötig ist. Installieren Sie einen neueren Kernel oder erlauben Sie den Aufruf im Container oder in der Sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dieses System bietet memfd_create nicht, das für Updates nötig ist. Installieren Sie einen neueren Kernel oder erlauben Sie den Aufruf im Container oder in der Sandbox.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Jeder Benutzer dieses Computers darf in den Ordner %1 schreiben, in dem die Anwendung liegt. Verschieben Sie die Anwendung in einen eigenen Ordner und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Die Mitglieder der Gruppe „%1“ dürfen den Ordner der Anwendung ändern. Verwenden Sie den Befehl „%2“.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>Die Anwendung liegt in %1, wo sich keine Dateien sperren lassen. Verschieben Sie sie in einen Ordner auf einem lokalen Laufwerk und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>Die Anwendung in %1 gehört zu einer Schicht des Dateisystems, die nicht ersetzt werden kann. Kopieren Sie sie in einen anderen Ordner und starten Sie sie dort.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>Der Update-Feed ist nicht signiert, wie es diese Anwendung verlangt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>Der Update-Feed geht hinter seiner Signatur weiter und wird abgelehnt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>Der Update-Feed hat mehr als eine Signatur und wird abgelehnt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Dem Update-Feed wurde nach seiner Signatur etwas hinzugefügt. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>Die Zeilenenden des Update-Feeds wurden umgeschrieben, sodass seine Signatur nicht passt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>Der Update-Feed ist auf eine Weise signiert, die diese Version nicht kennt. Installieren Sie die Anwendung aus der Quelle des Herausgebers neu.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>Die Signatur des Update-Feeds ist beschädigt. Versuchen Sie es noch einmal, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Der Update-Feed wurde nicht vom Herausgeber dieser Anwendung signiert oder nachträglich verändert. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>Der Update-Feed hat keine brauchbare laufende Nummer. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>Der Update-Feed gibt nicht an, wie lange er gilt. Bitte informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Der Update-Feed ist älter als ein früher empfangener. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn es dabei bleibt.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
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
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>Der Netzwerk-Proxy nimmt Ihren Benutzernamen und Ihr Passwort nicht an. Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>Der Update-Feed sagt nicht, welche Schlüssel gültig sind. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed ist beschädigt. Informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed stammt nicht vom Herausgeber dieser Anwendung. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed gilt für eine andere Anwendung. Informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed ist älter als eine frühere. Versuchen Sie es in einem anderen Netzwerk, und informieren Sie den Herausgeber, wenn das nicht hilft.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Die Liste der gültigen Schlüssel im Update-Feed ist abgelaufen. Prüfen Sie die Uhr dieses Computers, und informieren Sie den Herausgeber, wenn sie richtig geht.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>Der Stammschlüssel dieser Anwendung ist beschädigt. Installieren Sie die Anwendung neu vom Herausgeber.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>Der Update-Feed ist leer. Versuchen Sie es später noch einmal, oder informieren Sie den Herausgeber.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>Das Update benötigt mehr Speicher, Dateien oder Prozesse, als dieses System erlaubt. Schließen Sie andere Anwendungen, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>Der Ordner für Aufzeichnungen über Updates kann nicht verwendet werden. Prüfen Sie seine Zugriffsrechte und seinen Datenträger.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>In Zeile %1 des Feeds beginnt ein Dokument, das kein Feed ist.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Dieses Netzwerk verlangt eine Anmeldung. Melden Sie sich an und versuchen Sie es noch einmal.</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 ist jetzt verfügbar, Sie haben %3. Die Seite dieser Version beschreibt, wie Sie sie erhalten.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>Seite ö&amp;ffnen</translation>
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
