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
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Deze app vermeldt niet waar zijn updates worden gepubliceerd. Installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>Het adres van de updatefeed is geen geldig adres. Installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>Het adres van de updatefeed is van een soort die niet is toegestaan. Het moet met https beginnen.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>Het adres van de updatefeed is niet veilig. Het moet met https beginnen.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>De updateserver is niet gevonden. Controleer de internetverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>De updateserver heeft de verbinding geweigerd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>De updateserver is vanaf dit netwerk niet bereikbaar. Controleer de verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>De updateserver heeft de verbinding niet op tijd geaccepteerd. Controleer de verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>De verbinding met de updateserver is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>De netwerkproxy heeft de verbinding niet doorgelaten. Controleer de proxyinstellingen.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>De updateserver deed er te lang over om te antwoorden. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>De updateserver antwoordt te langzaam. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>Het certificaat van de updateserver is alleen door hemzelf ondertekend, waardoor zijn identiteit niet is bewezen. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>Het certificaat van de updateserver komt van een autoriteit die deze computer niet kent. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Het certificaat van de updateserver is verlopen. Controleer de klok van deze computer en informeer de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>Het certificaat van de updateserver is nog niet geldig. Controleer de klok van deze computer en informeer de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>Het certificaat van de updateserver is voor een andere server gemaakt. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>Het certificaat van de updateserver is niet aanvaardbaar. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>De updateserver ondersteunt geen beveiligde verbinding (TLS 1.2 of nieuwer). Informeer de uitgever.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Deze computer kan geen veilige verbindingen maken. Installeer de OpenSSL-bibliotheek.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>De updateserver heeft de verbinding verbroken voordat hij antwoordde. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>De updatefeed is onvolledig aangekomen. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>Het antwoord van de updateserver heeft te veel kopregels. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>De updatefeed is te groot. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>Het antwoord van de updateserver is geen correct HTTP. Probeer een ander netwerk.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>De updateserver geeft de lengte van de feed op tegenstrijdige manieren op. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>De updateserver heeft meer verzonden dan aangekondigd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>De updateserver heeft een ongeldig antwoord gestuurd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>De updateserver verzendt de feed op een manier waar niet om is gevraagd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>De updateserver heeft de feed gecomprimeerd verzonden, waar niet om is gevraagd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>De updateserver antwoordde met status %1. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>De updateserver verwijst naar een minder veilig adres. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>De updateserver verwijst naar een adres van een soort die niet is toegestaan. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>De updateserver verwijst naar iets wat geen adres is. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>De updateserver verwijst naar een ander adres zonder het te noemen. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>De updateserver verwijst eindeloos van adres naar adres. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>Het bestand met de updatefeed bestaat niet. Controleer het adres.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>Het adres van de updatefeed wijst naar een map of een apparaat. Het moet naar een bestand wijzen.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>Het bestand met de updatefeed is te groot. Controleer het adres.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Het bestand met de updatefeed kan niet worden gelezen. Controleer de toegangsrechten.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>De updatefeed is een bestand van een andere computer. Kopieer het naar deze computer.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>De updatefeed kan niet worden gelezen. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>In plaats van de updatefeed kwam er een webpagina. Meld u aan bij dit netwerk als het daarom vraagt en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>De app heeft een update gekozen die niet in de feed staat. Installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>De app faalde bij het bekijken van de updates. Start hem opnieuw en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>De feed vermeldt een lengte van de update die niet kan kloppen. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>De update op de server is niet zo lang als de feed vermeldt. Probeer het later opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>De updateserver heeft een ander deel van de update verzonden dan gevraagd. Probeer het later opnieuw.</translation>
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
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Een ander exemplaar van de app downloadt deze update. Wacht tot het klaar is.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>De map voor gedownloade updates kan niet worden gebruikt. Controleer de toegangsrechten en de schijf.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>De map voor gedownloade updates is niet van u alleen. Verwijder hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>De update heeft nog %1 nodig op de schijf, waar %2 vrij is. Maak ruimte en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Uw schijfquotum is te klein voor de update, die %1 nodig heeft. Verwijder eigen bestanden en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>De update is een groter bestand dan de schijf voor gedownloade updates kan bevatten. Neem contact op met wie deze computer beheert.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>De schijf faalde terwijl de update erop werd geschreven. Controleer de schijf en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>De computer heeft te weinig geheugen of te veel geopende bestanden voor de download. Sluit andere apps en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>De map van de app is niet gevonden, dus hij kan niet worden bijgewerkt. Open hem vanaf de plek waar hij is geïnstalleerd.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>De app is via een koppeling geopend, dus hij kan niet worden bijgewerkt. Open hem vanuit de map waarnaar de koppeling verwijst.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>De app is geïnstalleerd door %1, dat hem ook bijwerkt. Gebruik de opdracht “%2”.</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>De app draait vanuit een imagebestand. Vervang het bestand %1 door dat van de nieuwe versie.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>De app staat op een schijf waarop niet kan worden geschreven. Kopieer hem naar een andere map en open hem daar.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>De map van de app is een schijf op zich of bevat er een, dus hij kan niet worden vervangen. Kopieer hem naar een andere map en open de app daar.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>De app is tegen elke wijziging beveiligd. Vraag wie hem heeft beveiligd om het bestandskenmerk “immutable” of “append only” te verwijderen.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>De app is van een andere gebruiker van deze computer. Vraag die of de beheerder om hem bij te werken.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>U mag de map van de app niet wijzigen. Vraag de beheerder om hem bij te werken.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Andere gebruikers van deze computer kunnen de map van de app wijzigen, dus hij wordt daar niet bijgewerkt. Vraag de beheerder om de toegangsrechten te herstellen.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>De update heeft %1 ruimte nodig, maar er is maar %2 vrij. Maak ruimte en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Updates van deze app zijn uitgeschakeld. Neem contact op met wie deze computer beheert.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>De laatste controles op updates zijn mislukt, dus de volgende wacht. Controleer zelf om het meteen te proberen.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>De update is geannuleerd. Controleer op updates om opnieuw te beginnen.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Deze app vermeldt zijn ID en versie niet, zodat er geen update aan kan worden gekoppeld. Installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>Het programma dat updates installeert is onverwacht gestopt. Probeer het opnieuw en installeer de app opnieuw als het probleem blijft.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>De controle op updates is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>De feed vermeldt voor de update een adres dat er geen is. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>Het adres van de update is van een soort die niet is toegestaan, geen https. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>Het adres van de update is niet veilig, omdat het niet met https begint. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>De verbinding werd verbroken terwijl de update werd gedownload. Probeer het opnieuw, de download gaat daar verder.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>De updateserver geeft de lengte van de update op tegenstrijdige manieren op. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>De updateserver verzendt de update op een manier waar niet om is gevraagd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>De updateserver heeft de update gecomprimeerd verzonden, waar niet om is gevraagd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Regel %1 van de feed is geen welgevormde XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
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
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>Regel %1 van de feed overschrijdt de %2 elementen en attributen die een feed mag hebben.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>Regel %1 van de feed heeft item nummer %3, maar er zijn er maar %2 toegestaan.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>Regel %1 van de feed declareert meer dan %2 naamruimten.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>Op regel %1 van de feed begint een webpagina waar een feed werd verwacht.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>De app is geïnstalleerd door het pakketbeheer van het systeem, dat hem ook bijwerkt. Gebruik de opdracht “%1”.</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>De update kon niet worden geïnstalleerd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>Het programma dat updates installeert begreep niet wat het moest doen. Installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>Het programma dat updates installeert kon de bestanden die het kreeg niet gebruiken. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>Het programma dat updates installeert ontbreekt of kan door anderen worden gewijzigd. Installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>De update kon niet in een afgeschermd proces worden uitgepakt, zoals moet. Laat de uitgever weten welk systeem dit is.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Deze app heeft geen openbare sleutel onder SUPublicEDKey, zodat van geen update kan worden bewezen dat hij echt is. Installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>De openbare sleutel van deze app onder SUPublicEDKey is beschadigd, zodat van geen update kan worden bewezen dat hij echt is. Installeer hem opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>De update is niet ondertekend en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>De update wordt geweigerd omdat de handtekening niet geldig is. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>De update is niet door de uitgever van deze app ondertekend, of is onderweg beschadigd, en wordt geweigerd. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>Op deze computer kunnen geen handtekeningen worden gecontroleerd. Installeer de libsodium-bibliotheek opnieuw.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>De gedownloade update is leeg. Probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>De gedownloade update kan niet van de schijf worden gelezen. Controleer de schijf en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>De gedownloade update is langer of korter dan de feed vermeldt. Probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Een ander programma heeft de gedownloade update gewijzigd tijdens de controle. Sluit het en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>De update is op een onbekende manier ingepakt. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>Het archief van de update is beschadigd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>Het archief van de update kan op meer dan één manier worden gelezen en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>Het archief van de update is versleuteld en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>Het archief van de update is op een onbekende manier gecomprimeerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>De update bevat een bestand met een naam die niet is toegestaan. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>De update bevat een bestand met een te lange naam. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>De update bevat een bestand dat buiten de app terecht zou komen en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>De mappen van de update zijn te diep. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>De update bevat iets wat geen bestand, map of koppeling is en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>De update bevat een harde koppeling en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>De update bevat een bestand met gaten en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>De update bevat een bestand zonder grootte en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>De update bevat hetzelfde bestand twee keer en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>De update bevat bestanden waarvan de namen alleen in hoofdletters of accenten verschillen en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>De update bevat een bestand onder iets wat geen map is en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>De update bevat een koppeling naar een naam die niet is toegestaan. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>De update bevat een koppeling die buiten de app leidt en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>De update bevat een koppeling die nergens heen leidt. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>De update bevat een koppeling die naar zichzelf terugleidt. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>De update bevat te veel bestanden. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>De update bevat te veel koppelingen. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>De update is uitgepakt te groot. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>De geïnstalleerde app is gewijzigd, zodat de kleine update er niet op past. Installeer de app opnieuw.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>De kleine update gaf een verkeerd resultaat. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>De update bevat geen app. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>De update bevat meer dan één app. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>De app in de update is geen map. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>De app in de update heeft geen informatiebestand. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>Het informatiebestand van de app in de update is te groot. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Het informatiebestand van de app in de update kan niet worden gelezen. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>De update noemt een programma buiten de eigen map. Meld dit aan de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>De update is van een andere app en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>De update is van een andere versie dan de feed vermeldt en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>De update is niet nieuwer dan de geïnstalleerde app en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>De app in de update heeft geen openbare sleutel, zodat hij nooit meer kan worden bijgewerkt. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>De inhoud van de update past niet bij de bestandsnaam. Neem contact op met de uitgever.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>De app in de update heeft geen programma om te starten. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>Het programma in de update mag niet worden gestart. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>Het programma in de update is voor een ander soort computer gemaakt. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>De update is een programma op zich, wat deze app niet toestaat. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>Het programma dat bij de update hoort, is niet gestart. Probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>Het programma dat bij de update hoort, heeft hem niet geïnstalleerd. Probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>Het programma dat bij de update hoort, deed er te lang over en is gestopt. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>Er is niet genoeg ruimte op de schijf voor de update. Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>De map met de app mag door deze gebruiker niet worden gewijzigd. Neem contact op met wie hem heeft geïnstalleerd.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>De schijf meldde een fout. Controleer hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>De app is niet gesloten, zodat de update niet is geïnstalleerd. Bewaar uw werk, controleer opnieuw op updates en laat de app sluiten.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Er wordt een andere update van deze app geïnstalleerd. Wacht tot die klaar is.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>De geïnstalleerde app staat niet meer waar hij stond toen de update begon. Open hem vanaf zijn plek en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>De geïnstalleerde app is gewijzigd terwijl de update werd voorbereid. Start hem opnieuw en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>De voorbereide update is gewijzigd voordat hij kon worden geïnstalleerd, en is verwijderd. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>De voorbereide update en de app staan op verschillende schijven. Probeer het opnieuw en installeer de app opnieuw als het probleem blijft.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>De nieuwe versie kon niet op de plaats van de oude worden gezet, die ongewijzigd is. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>De schijf heeft niet bevestigd dat hij de update bevat. Controleer hem en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>De app die na de update moet worden geopend, mag niet worden geopend. Open hem met de hand.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>De bijgewerkte app is niet geopend. Open hem met de hand.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>De toepassing draait in een container die de eigenaar van de map ‘%1’ verbergt. Start de toepassing buiten de container om deze bij te werken.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Uw schijfquotum is te klein voor de update. Verwijder eigen bestanden en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>De gebruiker ‘%1’ mag de map van het programma wijzigen. Gebruik de opdracht ‘%2’.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>De update kan niet behouden wie de toepassing mag openen en is niet geïnstalleerd. Vraag de persoon die de toepassing heeft geïnstalleerd om deze bij te werken.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>De nieuwe versie is niet gestart en de vorige is teruggezet. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>De installatie van de update is onderbroken. Zoek opnieuw naar updates.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>Op de plaats waar het programma staat kunnen geen bestanden worden vergrendeld. Verplaats het naar een map op een lokale schijf.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>De schijf waarop het programma staat bewaart geen bestandsrechten. Verplaats het programma naar een andere schijf.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Andere gebruikers mogen de map wijzigen waarin het programma staat. Verplaats het programma naar een eigen map.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dit systeem biedt pidfd_open niet, dat voor updates nodig is. Installeer een nieuwere kernel of sta de aanroep toe in de container of sandbox.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Dit systeem biedt memfd_create niet, dat voor updates nodig is. Installeer een nieuwere kernel of sta de aanroep toe in de container of sandbox.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Elke gebruiker van deze computer mag schrijven in de map %1, waarin het programma staat. Verplaats het programma naar een eigen map en start het daar.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>De leden van de groep ‘%1’ mogen de map van het programma wijzigen. Gebruik de opdracht ‘%2’.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>Het programma staat in %1, waar geen bestanden kunnen worden vergrendeld. Verplaats het naar een map op een lokale schijf en start het daar.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>Het programma in %1 hoort bij een laag van het bestandssysteem die niet kan worden vervangen. Kopieer het naar een andere map en start het daar.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>De updatefeed is niet ondertekend, zoals deze app vereist. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>De updatefeed gaat door na zijn handtekening en wordt geweigerd. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>De updatefeed heeft meer dan één handtekening en wordt geweigerd. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Er is na de ondertekening iets aan de updatefeed toegevoegd. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>De regeleinden van de updatefeed zijn herschreven, zodat zijn handtekening niet klopt. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>De updatefeed is ondertekend op een manier die deze versie niet kent. Installeer de app opnieuw vanaf de site van de uitgever.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>De handtekening van de updatefeed is beschadigd. Probeer het opnieuw en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>De updatefeed is niet door de uitgever van deze app ondertekend, of is daarna gewijzigd. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>De updatefeed heeft geen bruikbaar volgnummer. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>De updatefeed vermeldt niet hoelang hij geldig is. Informeer de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>De updatefeed is ouder dan een eerder ontvangen feed. Probeer een ander netwerk en informeer de uitgever als het probleem blijft.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>De updatefeed is verlopen. Controleer de klok van deze computer en informeer de uitgever als die goed staat.</translation>
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
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>De netwerkproxy accepteert uw gebruikersnaam en wachtwoord niet. Controleer de proxy-instellingen.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>De updatefeed vermeldt niet welke sleutels geldig zijn. Probeer een ander netwerk en meld het aan de uitgever als dat niet helpt.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is beschadigd. Meld het aan de uitgever.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed komt niet van de uitgever van deze toepassing. Probeer een ander netwerk en meld het aan de uitgever als dat niet helpt.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is voor een andere toepassing. Meld het aan de uitgever.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is ouder dan een eerdere. Probeer een ander netwerk en meld het aan de uitgever als dat niet helpt.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>De lijst met geldige sleutels in de updatefeed is verlopen. Controleer de klok van deze computer en meld het aan de uitgever als die goed staat.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>De hoofdsleutel van deze toepassing is beschadigd. Installeer de toepassing opnieuw via de uitgever.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>De updatefeed is leeg. Probeer het later opnieuw of neem contact op met de uitgever.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>De update heeft meer geheugen, bestanden of processen nodig dan dit systeem toestaat. Sluit andere toepassingen en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>De map voor gegevens over updates kan niet worden gebruikt. Controleer de toegangsrechten en de schijf.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>Op regel %1 van de feed begint een document dat geen feed is.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Dit netwerk vraagt om aanmelding. Meld u aan en probeer het opnieuw.</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 is nu beschikbaar; u hebt %3. De pagina van deze versie vertelt hoe u die krijgt.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>Pa&amp;gina openen</translation>
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
