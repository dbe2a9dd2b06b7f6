<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Zoeken naar updates…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuleren</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Software-update</translation>
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
        <translation>De update kon niet worden voltooid</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>U gebruikt de nieuwste versie.</translation>
    </message>
    <message>
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Deze app vermeldt niet waar zijn updates worden gepubliceerd: installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>Het adres van de updatefeed is geen geldig adres: installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>Het adres van de updatefeed is van een soort die niet is toegestaan: het moet met https beginnen.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>Het adres van de updatefeed is niet veilig: het moet met https beginnen.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>De updateserver is niet gevonden: controleer de internetverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>De updateserver heeft de verbinding geweigerd: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>De updateserver is vanaf dit netwerk niet bereikbaar: controleer de verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>De updateserver heeft de verbinding niet op tijd geaccepteerd: controleer de verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>De verbinding met de updateserver is mislukt: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>De netwerkproxy heeft de verbinding niet doorgelaten: controleer de proxyinstellingen.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>De updateserver deed er te lang over om te antwoorden: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>De updateserver antwoordt te langzaam: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>Het certificaat van de updateserver is alleen door hemzelf ondertekend, waardoor zijn identiteit niet is bewezen: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>Het certificaat van de updateserver komt van een autoriteit die deze computer niet kent: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Het certificaat van de updateserver is verlopen: controleer de klok van deze computer en informeer de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Het certificaat van de updateserver is nog niet geldig: controleer de klok van deze computer en informeer de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>Het certificaat van de updateserver is voor een andere server gemaakt: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>Het certificaat van de updateserver is niet aanvaardbaar: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>Er kwam geen veilige verbinding met de updateserver tot stand, omdat hij er geen biedt die sterk genoeg is: informeer de uitgever.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Deze computer kan geen veilige verbindingen maken: installeer de OpenSSL-bibliotheek.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>De updateserver heeft de verbinding verbroken voordat hij antwoordde: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>De updatefeed is onvolledig aangekomen: probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>Het antwoord van de updateserver heeft te veel kopregels: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>De updatefeed is te groot: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>Het antwoord van de updateserver is geen correct HTTP: probeer een ander netwerk.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>De updateserver geeft de lengte van de feed op tegenstrijdige manieren op: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>De updateserver heeft meer verzonden dan aangekondigd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>Het antwoord van de updateserver is beschadigd: probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>De updateserver verzendt de feed op een manier waar niet om is gevraagd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>De updateserver heeft de feed gecomprimeerd verzonden, waar niet om is gevraagd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>De updateserver antwoordde met status %1: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>De updateserver verwijst naar een minder veilig adres: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>De updateserver verwijst naar een adres van een soort die niet is toegestaan: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>De updateserver verwijst naar iets wat geen adres is: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>De updateserver verwijst naar een ander adres zonder het te noemen: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>De updateserver verwijst eindeloos van adres naar adres: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>Het bestand met de updatefeed bestaat niet: controleer het adres.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>Het adres van de updatefeed wijst naar een map of een apparaat: het moet naar een bestand wijzen.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>Het bestand met de updatefeed is te groot: controleer het adres.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>Het bestand met de updatefeed kan niet worden gelezen: controleer de toegangsrechten.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>De updatefeed is een bestand van een andere computer: kopieer het naar deze computer.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>De updatefeed kan niet worden gelezen: informeer de uitgever.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>In plaats van de updatefeed kwam er een webpagina: meld u aan bij dit netwerk als het daarom vraagt en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>De app heeft een update gekozen die niet in de feed staat: installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>De app faalde bij het bekijken van de updates: start hem opnieuw en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>De feed vermeldt een lengte van de update die niet kan kloppen: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>De update op de server is niet zo lang als de feed vermeldt: probeer het later opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>De updateserver heeft een ander deel van de update verzonden dan gevraagd: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>De updateserver heeft tweemaal de grootte van de update gestuurd, maar nooit de hele update. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>De verbinding met de updateserver is te vaak verbroken. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Het downloaden van de update duurde te lang en is gestopt. Probeer het opnieuw met een snellere verbinding.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>De update is nog niet volledig gedownload. De volgende controle gaat verder met downloaden.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Een ander exemplaar van de app downloadt deze update: wacht tot het klaar is.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>De map voor gedownloade updates kan niet worden gebruikt: controleer de toegangsrechten en de schijf.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>De map voor gedownloade updates is niet van u alleen: verwijder hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>De update heeft nog %1 nodig op de schijf, waar %2 vrij is: maak ruimte en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>De update heeft %1 meer nodig dan uw quotum op de schijf toelaat, waar %2 vrij is: verwijder eigen bestanden en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>De update is een groter bestand dan de schijf voor gedownloade updates kan bevatten: vraag om hulp.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>De schijf faalde terwijl de update erop werd geschreven: controleer de schijf en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>De computer heeft te weinig geheugen of te veel geopende bestanden voor de download: sluit andere apps en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>De map van de app is niet gevonden, dus hij kan niet worden bijgewerkt: open hem vanaf de plek waar hij is geïnstalleerd.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>De app is via een koppeling geopend, dus hij kan niet worden bijgewerkt: open hem vanuit de map waarnaar de koppeling verwijst.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>De app is geïnstalleerd door %1, dat hem ook bijwerkt: gebruik de opdracht “%2”.</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>De app draait vanuit een imagebestand: vervang het bestand %1 door dat van de nieuwe versie.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>De app staat op een schijf waarop niet kan worden geschreven: kopieer hem naar een andere map en open hem daar.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>De map van de app is een schijf op zich, dus hij kan niet worden vervangen: kopieer hem naar een andere map en open de app daar.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>De app is tegen elke wijziging beveiligd: vraag wie hem heeft beveiligd om het bestandskenmerk “immutable” of “append only” te verwijderen.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>De app is van een andere gebruiker van deze computer: vraag die of de beheerder om hem bij te werken.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>U mag de map van de app niet wijzigen: vraag de beheerder om hem bij te werken.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>Andere gebruikers van deze computer kunnen de map van de app wijzigen, dus hij wordt daar niet bijgewerkt: vraag de beheerder om de toegangsrechten te herstellen.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>Er is geen ruimte voor de update: hij heeft %1 nodig en er is %2 vrij. Maak ruimte en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>Updates van deze app zijn uitgeschakeld: neem contact op met wie deze computer beheert.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>De laatste controles op updates zijn mislukt, dus de volgende wacht: controleer zelf om het meteen te proberen.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>De update is geannuleerd: controleer op updates om opnieuw te beginnen.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Deze app vermeldt zijn ID en versie niet, zodat er geen update aan kan worden gekoppeld: installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>Het programma dat updates installeert is onverwacht gestopt: probeer het opnieuw en installeer de app opnieuw als het probleem blijft.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>De controle op updates is mislukt: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>De feed vermeldt voor de update een adres dat er geen is: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>Het adres van de update is van een soort die niet is toegestaan, geen https: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>Het adres van de update is niet veilig, omdat het niet met https begint: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>De verbinding werd verbroken terwijl de update werd gedownload: probeer het opnieuw, de download gaat daar verder.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>De updateserver geeft de lengte van de update op tegenstrijdige manieren op: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>De updateserver verzendt de update op een manier waar niet om is gevraagd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>De updateserver heeft de update gecomprimeerd verzonden, waar niet om is gevraagd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Regel %1 van de feed is geen welgevormde XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
        <translation>Regel %1 van de feed heeft een documenttypedeclaratie, die een feed niet mag hebben.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>Regel %1 van de feed nest elementen meer dan %2 niveaus diep.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>Regel %1 van de feed heeft een tag met meer dan %2 attributen.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>Regel %1 van de feed heeft een tag van meer dan %2 bytes.</translation>
    </message>
    <message>
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>Regel %1 van de feed overschrijdt de %2 elementen en attributen die een feed mag hebben.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>Regel %1 van de feed heeft item nummer %2, maar er zijn er maar %3 toegestaan.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>Regel %1 van de feed declareert meer dan %2 naamruimten.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>Op regel %1 van de feed begint een webpagina waar een feed werd verwacht.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>Regel %1 van de feed heeft een onbekende fout.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>De app is geïnstalleerd door het pakketbeheer van het systeem, dat hem ook bijwerkt: gebruik de opdracht “%1”.</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>De update kon niet worden geïnstalleerd: probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>Het programma dat updates installeert begreep niet wat het moest doen: installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>Het programma dat updates installeert kon de bestanden die het kreeg niet gebruiken: probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>Het programma dat updates installeert ontbreekt of kan door anderen worden gewijzigd: installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>De update kon niet in een afgeschermd proces worden uitgepakt, zoals moet: laat de uitgever weten welk systeem dit is.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Deze app heeft geen openbare sleutel onder SUPublicEDKey, zodat van geen update kan worden bewezen dat hij echt is: installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>De openbare sleutel van deze app onder SUPublicEDKey is beschadigd, zodat van geen update kan worden bewezen dat hij echt is: installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>De update is niet ondertekend en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>De handtekening van de update is geen handtekening, en de update wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>De update is niet door de uitgever van deze app ondertekend, of is onderweg beschadigd, en wordt geweigerd: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>Op deze computer kunnen geen handtekeningen worden gecontroleerd: installeer de libsodium-bibliotheek opnieuw.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>De gedownloade update is leeg: probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>De gedownloade update kan niet van de schijf worden gelezen: controleer de schijf en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>De gedownloade update is langer of korter dan de feed vermeldt: probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Een ander programma heeft de gedownloade update gewijzigd tijdens de controle: sluit het en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>De update is op een onbekende manier ingepakt: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>Het archief van de update is beschadigd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>Het archief van de update kan op meer dan één manier worden gelezen en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>Het archief van de update is versleuteld en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>Het archief van de update is op een onbekende manier gecomprimeerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>De update bevat een bestand met een naam die niet is toegestaan: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>De update bevat een bestand met een te lange naam: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>De update bevat een bestand dat buiten de app terecht zou komen en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>De mappen van de update zijn te diep: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>De update bevat iets wat geen bestand, map of koppeling is en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>De update bevat een harde koppeling en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>De update bevat een bestand met gaten en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>De update bevat een bestand zonder grootte en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>De update bevat hetzelfde bestand twee keer en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>De update bevat bestanden waarvan de namen alleen in hoofdletters of accenten verschillen en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>De update bevat een bestand onder iets wat geen map is en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>De update bevat een koppeling naar een naam die niet is toegestaan: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>De update bevat een koppeling die buiten de app leidt en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>De update bevat een koppeling die nergens heen leidt: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>De update bevat een koppeling die naar zichzelf terugleidt: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>De update bevat te veel bestanden: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>De update bevat te veel koppelingen: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>De update is uitgepakt te groot: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>De geïnstalleerde app is gewijzigd, zodat de kleine update er niet op past: installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>Wat de kleine update van de app heeft gemaakt, is niet wat het moet zijn: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>De update bevat geen app: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>De update bevat meer dan één app: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>De app in de update is geen map: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>De app in de update beschrijft zichzelf niet: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>De beschrijving van de app in de update is te groot: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>De beschrijving van de app in de update kan niet worden gelezen: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>De update noemt een programma buiten de eigen map: meld dit aan de uitgever.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>De update is van een andere app en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>De update is van een andere versie dan de feed vermeldt en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>De update is niet nieuwer dan de geïnstalleerde app en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>De app in de update heeft geen openbare sleutel, zodat hij nooit meer kan worden bijgewerkt: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>De inhoud van de update past niet bij de bestandsnaam. Neem contact op met de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>De app in de update heeft geen programma om te starten: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>Het programma in de update mag niet worden gestart: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>Het programma in de update is voor een ander soort computer gemaakt: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>De update is een programma op zich, wat deze app niet toestaat: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>Het programma dat bij de update hoort, is niet gestart: probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>Het programma dat bij de update hoort, heeft hem niet geïnstalleerd: probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>Het programma dat bij de update hoort, deed er te lang over en is gestopt: probeer het opnieuw.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>Er is niet genoeg ruimte op de schijf voor de update: maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>De map met de app mag door deze gebruiker niet worden gewijzigd: neem contact op met wie hem heeft geïnstalleerd.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>De schijf meldde een fout: controleer hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>De app is niet gesloten, zodat de update niet is geïnstalleerd: bewaar uw werk, controleer opnieuw op updates en laat de app sluiten.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>Er wordt een andere update van deze app geïnstalleerd: wacht tot die klaar is.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>De geïnstalleerde app staat niet meer waar hij stond toen de update begon: open hem vanaf zijn plek en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>De geïnstalleerde app is gewijzigd terwijl de update werd voorbereid: start hem opnieuw en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>De voorbereide update is gewijzigd voordat hij kon worden geïnstalleerd, en is verwijderd: probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>De voorbereide update en de app staan op verschillende schijven: probeer het opnieuw en installeer de app opnieuw als het probleem blijft.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>De nieuwe versie kon niet op de plaats van de oude worden gezet, die ongewijzigd is: probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>De schijf heeft niet bevestigd dat hij de update bevat: controleer hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>De app die na de update moet worden geopend, mag niet worden geopend: open hem met de hand.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>De bijgewerkte app is niet geopend: open hem met de hand.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>De toepassing draait in een container die de eigenaar van de map ‘%1’ verbergt: start de toepassing buiten de container om deze bij te werken.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>De update kan niet behouden wie de toepassing mag openen en is niet geïnstalleerd. Vraag de persoon die de toepassing heeft geïnstalleerd om deze bij te werken.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>De nieuwe versie is niet gestart en de vorige is teruggezet. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>De installatie van de update is onderbroken. Zoek opnieuw naar updates.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>Op de plaats waar het programma staat kunnen geen bestanden worden vergrendeld: verplaats het naar een map op een lokale schijf.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>De schijf waarop het programma staat bewaart geen bestandsrechten: verplaats het programma naar een andere schijf.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>Andere gebruikers mogen de map wijzigen waarin het programma staat: verplaats het programma naar een eigen map.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dit systeem biedt pidfd_open niet, dat voor updates nodig is: installeer een nieuwere kernel of sta de aanroep toe in de container of sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dit systeem biedt memfd_create niet, dat voor updates nodig is: installeer een nieuwere kernel of sta de aanroep toe in de container of sandbox.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Elke gebruiker van deze computer mag schrijven in de map %1, waarin het programma staat: verplaats het programma naar een eigen map en start het daar.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>De leden van de groep ‘%1’ mogen de map van het programma wijzigen: gebruik de opdracht ‘%2’.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>Het programma staat in %1, waar geen bestanden kunnen worden vergrendeld: verplaats het naar een map op een lokale schijf en start het daar.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>Het programma in %1 hoort bij een laag van het bestandssysteem die niet kan worden vervangen: kopieer het naar een andere map en start het daar.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>De updatefeed is niet ondertekend, zoals deze app vereist: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>De updatefeed gaat door na zijn handtekening en wordt geweigerd: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>De updatefeed heeft meer dan één handtekening en wordt geweigerd: informeer de uitgever.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Er is na de ondertekening iets aan de updatefeed toegevoegd: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>De regeleinden van de updatefeed zijn herschreven, zodat zijn handtekening niet klopt: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>De updatefeed is ondertekend op een manier die deze versie niet kent: installeer de app opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>De handtekening van de updatefeed is beschadigd: probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>De updatefeed is niet door de uitgever van deze app ondertekend, of is daarna gewijzigd: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>De updatefeed heeft geen bruikbaar volgnummer: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>De updatefeed vermeldt niet hoelang hij geldig is: informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>De updatefeed is ouder dan een eerder ontvangen feed: probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>De updatefeed is verlopen: controleer de klok van deze computer en informeer de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>De updateserver verwijst naar een adres in uw eigen computer of netwerkverbinding. Neem contact op met de uitgever.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>De netwerkproxy weigert verbinding te maken met de updateserver. Vraag het de beheerder van uw netwerk.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>De netwerkproxy accepteert uw gebruikersnaam en wachtwoord niet. Controleer de proxy-instellingen.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>De updatefeed vermeldt niet welke sleutels geldig zijn. Probeer een ander netwerk en meld het aan de uitgever als dat niet helpt.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is beschadigd. Meld het aan de uitgever.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>De lijst met geldige sleutels in de updatefeed komt niet van de uitgever van deze toepassing. Probeer een ander netwerk en meld het aan de uitgever als dat niet helpt.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is voor een andere toepassing. Meld het aan de uitgever.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is ouder dan een eerdere. Probeer een ander netwerk en meld het aan de uitgever als dat niet helpt.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is verlopen. Controleer de klok van deze computer en meld het aan de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>De hoofdsleutel van deze toepassing is beschadigd. Installeer de toepassing opnieuw via de uitgever.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Nog ongeveer %Ln seconde</numerusform>
            <numerusform>Nog ongeveer %Ln seconden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Nog ongeveer %Ln minuut</numerusform>
            <numerusform>Nog ongeveer %Ln minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Nog ongeveer %Ln uur</numerusform>
            <numerusform>Nog ongeveer %Ln uur</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 downloaden…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 controleren en uitpakken…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Voortgang van de update</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Wachten op de server…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Klaar om te installeren</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 is gedownload en gecontroleerd. Om te installeren wordt %1 gesloten en opnieuw geopend.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Installeer en herstart</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Alles is up-to-date!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 is momenteel de nieuwste beschikbare versie.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>Er is een nieuwe versie van %1 beschikbaar!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 is nu beschikbaar; u hebt versie %3. Wilt u de nieuwe versie nu downloaden?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Deze update is belangrijk: installeer hem binnenkort.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Downloadgrootte: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Release-opmerkingen</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Release-&amp;opmerkingen in browser tonen</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>Deze versie over&amp;slaan</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>Herinner mij &amp;later</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>Update &amp;installeren</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Een onderdeel van deze toepassing dat nodig is voor updates ontbreekt of is beschadigd. Installeer de toepassing opnieuw.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Er wordt al een update uitgevoerd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Een nieuwe versie van %1 %2 is klaar om te worden geïnstalleerd</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>De update %1 %2 is gedownload en wacht op uw goedkeuring. Wilt u de update nu installeren en %1 herstarten?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Deze versie overslaan</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Herinner mij later</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installeer en herstart</translation>
    </message>
</context>
</TS>
