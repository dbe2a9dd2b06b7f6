<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie dostępności aktualizacji…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Aktualizacja oprogramowania</translation>
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
        <translation>Nie udało się ukończyć aktualizacji</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>Używasz najnowszej wersji.</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Ta aplikacja nie podaje, gdzie są publikowane jej aktualizacje. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>Adres kanału aktualizacji nie jest prawidłowym adresem. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>Adres kanału aktualizacji jest niedozwolonego rodzaju. Musi zaczynać się od https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>Adres kanału aktualizacji nie jest bezpieczny. Musi zaczynać się od https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>Nie znaleziono serwera aktualizacji. Sprawdź połączenie z internetem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>Serwer aktualizacji odrzucił połączenie. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>Serwer aktualizacji jest nieosiągalny z tej sieci. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>Serwer aktualizacji nie przyjął połączenia na czas. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>Połączenie z serwerem aktualizacji nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>Sieciowy serwer proxy nie przepuścił połączenia. Sprawdź ustawienia serwera proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>Serwer aktualizacji zbyt długo nie odpowiadał. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>Serwer aktualizacji odpowiada zbyt wolno. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>Certyfikat serwera aktualizacji jest podpisany tylko przez niego samego, więc jego tożsamość nie jest potwierdzona. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>Certyfikat serwera aktualizacji pochodzi od urzędu, którego ten komputer nie zna. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Certyfikat serwera aktualizacji wygasł. Sprawdź zegar tego komputera, a jeśli jest dobrze ustawiony, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>Certyfikat serwera aktualizacji nie jest jeszcze ważny. Sprawdź zegar tego komputera, a jeśli jest dobrze ustawiony, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>Certyfikat serwera aktualizacji wystawiono dla innego serwera. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>Certyfikat serwera aktualizacji jest nie do przyjęcia. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>Serwer aktualizacji nie obsługuje bezpiecznego połączenia (TLS 1.2 lub nowszy). Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Ten komputer nie może nawiązywać bezpiecznych połączeń. Zainstaluj bibliotekę OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>Serwer aktualizacji zamknął połączenie, zanim odpowiedział. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>Kanał aktualizacji dotarł niekompletny. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>Odpowiedź serwera aktualizacji ma zbyt wiele nagłówków. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>Kanał aktualizacji jest zbyt duży. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>Odpowiedź serwera aktualizacji nie jest prawidłowym HTTP. Spróbuj w innej sieci.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>Serwer aktualizacji podaje sprzeczne długości kanału. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>Serwer aktualizacji przysłał więcej, niż zapowiedział. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>Serwer aktualizacji wysłał nieprawidłową odpowiedź. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>Serwer aktualizacji przesyła kanał w sposób, o który nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>Serwer aktualizacji przysłał skompresowany kanał, o co nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>Serwer aktualizacji odpowiedział kodem stanu %1. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod mniej bezpieczny adres. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod adres niedozwolonego rodzaju. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>Serwer aktualizacji kieruje do czegoś, co nie jest adresem. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod inny adres, ale go nie podaje. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>Serwer aktualizacji bez końca kieruje z adresu na adres. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>Plik z kanałem aktualizacji nie istnieje. Sprawdź jego adres.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>Adres kanału aktualizacji wskazuje folder lub urządzenie. Musi wskazywać plik.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>Plik z kanałem aktualizacji jest zbyt duży. Sprawdź jego adres.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Nie można odczytać pliku z kanałem aktualizacji. Sprawdź jego uprawnienia.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>Kanał aktualizacji jest plikiem na innym komputerze. Skopiuj go na ten komputer.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>Nie można odczytać kanału aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Zamiast kanału aktualizacji nadeszła strona internetowa. Zaloguj się do tej sieci, jeśli tego wymaga, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>Aplikacja wybrała aktualizację, której nie ma w kanale. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>Aplikacja zawiodła podczas przeglądania aktualizacji. Uruchom ją ponownie i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>Kanał podaje niemożliwą długość aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>Aktualizacja na serwerze nie ma długości podanej w kanale. Spróbuj ponownie później, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>Serwer aktualizacji przysłał inną część aktualizacji, niż proszono. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Serwer aktualizacji wysłał dwukrotność rozmiaru aktualizacji, ale nigdy całej aktualizacji. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>Połączenie z serwerem aktualizacji zostało przerwane zbyt wiele razy. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Pobieranie aktualizacji trwało zbyt długo i zostało zatrzymane. Spróbuj ponownie przez szybsze łącze.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>Aktualizacja nie została jeszcze w całości pobrana. Następne sprawdzenie będzie kontynuować pobieranie.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Inna kopia aplikacji pobiera tę aktualizację. Poczekaj, aż skończy.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>Nie można użyć folderu pobranych aktualizacji. Sprawdź jego uprawnienia i dysk.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>Folder pobranych aktualizacji nie należy tylko do Ciebie. Usuń go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>Aktualizacja potrzebuje jeszcze %1 na dysku, na którym jest wolne %2. Zwolnij miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Twój limit na dysku nie wystarcza na aktualizację, która potrzebuje %1. Usuń część swoich plików i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>Aktualizacja jest plikiem zbyt dużym dla dysku pobranych aktualizacji. Zapytaj osobę, która zarządza tym komputerem.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>Dysk zawiódł podczas zapisywania aktualizacji. Sprawdź dysk i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>Komputer ma za mało pamięci lub zbyt wiele otwartych plików, aby pobierać. Zamknij inne aplikacje i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>Nie znaleziono folderu aplikacji, więc nie można jej zaktualizować. Uruchom ją z miejsca, w którym jest zainstalowana.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>Aplikację uruchomiono przez dowiązanie, więc nie można jej zaktualizować. Uruchom ją z folderu, na który wskazuje dowiązanie.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>Aplikację zainstalował %1, który też ją aktualizuje. Użyj polecenia „%2”.</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>Aplikacja działa z pliku obrazu. Zastąp plik %1 plikiem nowej wersji.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>Aplikacja znajduje się na dysku, na którym nie można zapisywać. Skopiuj ją do innego folderu i tam uruchom.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>Folder aplikacji jest osobnym dyskiem lub zawiera taki dysk, więc nie można go zastąpić. Skopiuj go do innego folderu i tam uruchom aplikację.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>Aplikacja jest chroniona przed wszelkimi zmianami. Poproś osobę, która ją chroni, o usunięcie atrybutu pliku „immutable” lub „append only”.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>Aplikacja należy do innego użytkownika tego komputera. Poproś tę osobę lub administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>Nie masz prawa zmieniać folderu aplikacji. Poproś administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Inni użytkownicy tego komputera mogliby zmienić folder aplikacji, więc nie jest tam aktualizowana. Poproś administratora o poprawienie uprawnień.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>Aktualizacja potrzebuje %1 miejsca, a wolne jest tylko %2. Zwolnij miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Aktualizacje tej aplikacji są wyłączone. Zapytaj osobę, która zarządza tym komputerem.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>Ostatnie sprawdzania aktualizacji nie powiodły się, więc następne czeka. Sprawdź ręcznie, aby spróbować od razu.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>Aktualizacja została anulowana. Sprawdź aktualizacje, aby zacząć od nowa.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Ta aplikacja nie podaje swojego identyfikatora i wersji, więc nie można do niej dopasować żadnej aktualizacji. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>Program instalujący aktualizacje nieoczekiwanie zakończył działanie. Spróbuj ponownie, a jeśli problem nie zniknie, zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>Sprawdzanie aktualizacji nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>Kanał podaje adres aktualizacji, który nie jest adresem. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>Adres aktualizacji jest niedozwolonego rodzaju, innego niż https. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>Adres aktualizacji nie jest bezpieczny, ponieważ nie zaczyna się od https. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>Połączenie zostało przerwane podczas pobierania aktualizacji. Spróbuj ponownie, a pobieranie będzie kontynuowane.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>Serwer aktualizacji podaje sprzeczne długości aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>Serwer aktualizacji przesyła aktualizację w sposób, o który nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>Serwer aktualizacji przysłał skompresowaną aktualizację, o co nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Wiersz %1 kanału nie jest poprawnie sformułowanym XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>Wiersz %1 kanału ma deklarację typu dokumentu, której kanał mieć nie może.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>Wiersz %1 kanału zagnieżdża elementy głębiej niż na %2 poziomów.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>Wiersz %1 kanału ma znacznik z większą liczbą atrybutów niż %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>Wiersz %1 kanału ma znacznik dłuższy niż %2 bajtów.</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>Wiersz %1 kanału przekracza liczbę %2 elementów i atrybutów, które kanał może mieć.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>Wiersz %1 kanału ma pozycję numer %3, a dozwolonych jest tylko %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>Wiersz %1 kanału deklaruje więcej przestrzeni nazw niż %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>W wierszu %1 kanału zaczyna się strona internetowa, a oczekiwano kanału.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>Aplikację zainstalował menedżer pakietów systemu, który też ją aktualizuje. Użyj polecenia „%1”.</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>Nie udało się zainstalować aktualizacji. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>Program instalujący aktualizacje nie zrozumiał, o co go poproszono. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>Program instalujący aktualizacje nie mógł użyć otrzymanych plików. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>Brakuje programu instalującego aktualizacje lub mógłby go zmienić ktoś inny. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>Nie udało się rozpakować aktualizacji w odizolowanym procesie, jak to konieczne. Poinformuj wydawcę, jaki to system.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Ta aplikacja nie ma klucza publicznego SUPublicEDKey, więc nie można potwierdzić autentyczności żadnej aktualizacji. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Klucz publiczny SUPublicEDKey tej aplikacji jest uszkodzony, więc nie można potwierdzić autentyczności żadnej aktualizacji. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>Aktualizacja nie jest podpisana i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>Aktualizacja została odrzucona, ponieważ jej podpis jest nieprawidłowy. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Aktualizacja nie została podpisana przez wydawcę tej aplikacji lub uszkodziła się po drodze i została odrzucona. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>Na tym komputerze nie można weryfikować podpisów. Zainstaluj ponownie bibliotekę libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>Pobrana aktualizacja jest pusta. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>Nie można odczytać pobranej aktualizacji z dysku. Sprawdź dysk i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>Pobrana aktualizacja jest dłuższa lub krótsza, niż podaje kanał. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Inny program zmienił pobraną aktualizację podczas jej weryfikowania. Zamknij go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>Aktualizacja jest spakowana w nieznany sposób. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>Archiwum aktualizacji jest uszkodzone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>Archiwum aktualizacji można odczytać na więcej niż jeden sposób i zostało odrzucone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>Archiwum aktualizacji jest zaszyfrowane i zostało odrzucone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>Archiwum aktualizacji jest skompresowane w nieznany sposób. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>Aktualizacja zawiera plik o niedozwolonej nazwie. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>Aktualizacja zawiera plik o zbyt długiej nazwie. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>Aktualizacja zawiera plik, który znalazłby się poza aplikacją, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>Foldery aktualizacji są zbyt głęboko zagnieżdżone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>Aktualizacja zawiera coś, co nie jest plikiem, folderem ani dowiązaniem, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie twarde i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>Aktualizacja zawiera plik z dziurami i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>Aktualizacja zawiera plik bez rozmiaru i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>Aktualizacja zawiera dwa razy ten sam plik i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>Aktualizacja zawiera pliki, których nazwy różnią się tylko wielkością liter lub akcentami, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>Aktualizacja zawiera plik pod czymś, co nie jest folderem, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie do niedozwolonej nazwy. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie prowadzące poza aplikację i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie prowadzące donikąd. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie prowadzące z powrotem do siebie. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>Aktualizacja zawiera zbyt wiele plików. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>Aktualizacja zawiera zbyt wiele dowiązań. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>Aktualizacja jest po rozpakowaniu zbyt duża. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>Zainstalowana aplikacja została zmieniona, więc mała aktualizacja do niej nie pasuje. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>Mała aktualizacja dała nieprawidłowy wynik. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>Aktualizacja nie zawiera aplikacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>Aktualizacja zawiera więcej niż jedną aplikację. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>Aplikacja w aktualizacji nie jest folderem. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>Aplikacja w aktualizacji nie ma pliku informacyjnego. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>Plik informacyjny aplikacji w aktualizacji jest zbyt duży. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Nie można odczytać pliku informacyjnego aplikacji w aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>Aktualizacja wskazuje program spoza swojego folderu. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>Aktualizacja dotyczy innej aplikacji i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>Aktualizacja jest w innej wersji, niż podaje kanał, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>Aktualizacja nie jest nowsza niż zainstalowana aplikacja i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>Aplikacja w aktualizacji nie ma klucza publicznego, więc już nigdy nie można by jej zaktualizować. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>Zawartość aktualizacji nie zgadza się z nazwą jej pliku. Skontaktuj się z wydawcą.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>Aplikacja w aktualizacji nie ma programu do uruchomienia. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>Programu w aktualizacji nie wolno uruchomić. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>Program w aktualizacji jest przeznaczony dla innego rodzaju komputera. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>Aktualizacja jest osobnym programem, na co ta aplikacja nie pozwala. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>Program dołączony do aktualizacji nie uruchomił się. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>Program dołączony do aktualizacji nie zainstalował jej. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>Program dołączony do aktualizacji działał zbyt długo i został zakończony. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>Na dysku nie ma dość miejsca na aktualizację. Zwolnij trochę i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>Ten użytkownik nie może zmieniać folderu, w którym jest aplikacja. Zapytaj osobę, która ją zainstalowała.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>Dysk zgłosił błąd. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>Aplikacja nie zamknęła się, więc aktualizacja nie została zainstalowana. Zapisz swoją pracę, sprawdź aktualizacje ponownie i pozwól aplikacji się zamknąć.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Trwa instalowanie innej aktualizacji tej aplikacji. Poczekaj na jego koniec.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>Zainstalowanej aplikacji nie ma tam, gdzie była na początku aktualizacji. Uruchom ją z jej miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>Zainstalowana aplikacja została zmieniona podczas przygotowywania aktualizacji. Uruchom ją ponownie i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>Przygotowana aktualizacja została zmieniona przed instalacją i ją odrzucono. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>Przygotowana aktualizacja i aplikacja są na różnych dyskach. Spróbuj ponownie, a jeśli problem nie zniknie, zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>Nowej wersji nie udało się umieścić w miejscu starej, która pozostała bez zmian. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>Dysk nie potwierdził, że zawiera aktualizację. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>Aplikacji, która ma się uruchomić po aktualizacji, nie wolno uruchomić. Uruchom ją ręcznie.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>Zaktualizowana aplikacja nie uruchomiła się. Uruchom ją ręcznie.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>Aplikacja działa w kontenerze, który ukrywa właściciela folderu „%1”. Uruchom ją poza kontenerem, aby ją zaktualizować.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Twój limit na dysku nie wystarcza na aktualizację. Usuń część swoich plików i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Użytkownik „%1” może zmieniać folder aplikacji. Użyj polecenia „%2”.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>Aktualizacja nie może zachować uprawnień do otwierania aplikacji i nie została zainstalowana. Poproś osobę, która zainstalowała aplikację, o jej aktualizację.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>Nowa wersja nie uruchomiła się i przywrócono poprzednią. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>Instalacja aktualizacji została przerwana. Sprawdź ponownie dostępność aktualizacji.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>W miejscu instalacji aplikacji nie można blokować plików. Przenieś ją do folderu na dysku lokalnym.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>Dysk, na którym znajduje się aplikacja, nie przechowuje uprawnień plików. Przenieś aplikację na inny dysk.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Inni użytkownicy mogą zmieniać folder, w którym znajduje się aplikacja. Przenieś aplikację do własnego folderu.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ten system nie udostępnia pidfd_open, którego wymagają aktualizacje. Zainstaluj nowsze jądro lub zezwól na to wywołanie w kontenerze lub piaskownicy.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ten system nie udostępnia memfd_create, którego wymagają aktualizacje. Zainstaluj nowsze jądro lub zezwól na to wywołanie w kontenerze lub piaskownicy.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Każdy użytkownik tego komputera może zapisywać w folderze %1, w którym znajduje się aplikacja. Przenieś aplikację do własnego folderu i uruchom ją stamtąd.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Członkowie grupy „%1” mogą zmieniać folder aplikacji. Użyj polecenia „%2”.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>Aplikacja jest zainstalowana w %1, gdzie nie można blokować plików. Przenieś ją do folderu na dysku lokalnym i uruchom stamtąd.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>Aplikacja w %1 należy do warstwy systemu plików, której nie można zastąpić. Skopiuj ją do innego folderu i uruchom stamtąd.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>Kanał aktualizacji nie jest podpisany, czego wymaga ta aplikacja. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>Kanał aktualizacji ma dalszy ciąg za swoim podpisem i został odrzucony. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>Kanał aktualizacji ma więcej niż jeden podpis i został odrzucony. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Do kanału aktualizacji dodano coś po jego podpisaniu. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>Końce wierszy kanału aktualizacji zostały zmienione, więc jego podpis się nie zgadza. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>Kanał aktualizacji jest podpisany w sposób, którego ta wersja nie zna. Zainstaluj aplikację ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>Podpis kanału aktualizacji jest uszkodzony. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Kanał aktualizacji nie został podpisany przez wydawcę tej aplikacji lub został później zmieniony. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>Kanał aktualizacji nie ma użytecznego numeru seryjnego. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>Kanał aktualizacji nie podaje, jak długo jest ważny. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Kanał aktualizacji jest starszy niż wcześniej otrzymany. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Kanał aktualizacji stracił ważność. Sprawdź zegar tego komputera, a jeśli jest dobrze ustawiony, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod adres wewnątrz Twojego komputera lub łącza sieciowego. Skontaktuj się z wydawcą.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>Serwer proxy odmawia połączenia z serwerem aktualizacji. Zwróć się do administratora sieci.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>Serwer proxy nie przyjmuje Twojej nazwy użytkownika i hasła. Sprawdź ustawienia serwera proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>Kanał aktualizacji nie podaje, które klucze są ważne. Spróbuj w innej sieci i powiadom wydawcę, jeśli to nie pomoże.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji jest uszkodzona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji nie pochodzi od wydawcy tej aplikacji. Spróbuj w innej sieci i powiadom wydawcę, jeśli to nie pomoże.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji dotyczy innej aplikacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji jest starsza niż poprzednia. Spróbuj w innej sieci i powiadom wydawcę, jeśli to nie pomoże.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji wygasła. Sprawdź zegar tego komputera i powiadom wydawcę, jeśli jest ustawiony prawidłowo.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>Klucz główny tej aplikacji jest uszkodzony. Zainstaluj aplikację ponownie od jej wydawcy.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>Kanał aktualizacji jest pusty. Spróbuj ponownie później lub powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>Aktualizacja wymaga więcej pamięci, plików lub procesów, niż pozwala ten system. Zamknij inne aplikacje i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>Nie można użyć folderu na zapisy o aktualizacjach. Sprawdź jego uprawnienia i dysk.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>W wierszu %1 kanału zaczyna się dokument, który nie jest kanałem.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Ta sieć wymaga zalogowania. Zaloguj się i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Pozostała około %Ln sekunda</numerusform>
            <numerusform>Pozostały około %Ln sekundy</numerusform>
            <numerusform>Pozostało około %Ln sekund</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Pozostała około %Ln minuta</numerusform>
            <numerusform>Pozostały około %Ln minuty</numerusform>
            <numerusform>Pozostało około %Ln minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Pozostała około %Ln godzina</numerusform>
            <numerusform>Pozostały około %Ln godziny</numerusform>
            <numerusform>Pozostało około %Ln godzin</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Pobieranie %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Weryfikowanie i rozpakowywanie %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Postęp aktualizacji</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Oczekiwanie na serwer…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Gotowe do instalacji</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Pobrano i zweryfikowano %1 %2. Na czas instalacji aplikacja %1 zostanie zamknięta i ponownie otwarta.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Później</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Zainstaluj i uruchom ponownie</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Masz najnowszą wersję!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 to obecnie najnowsza dostępna wersja.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>Dostępna jest nowa wersja aplikacji %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>Dostępna jest aplikacja %1 %2; zainstalowana wersja to %3. Czy pobrać ją teraz?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Ta aktualizacja jest ważna: należy ją wkrótce zainstalować.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Rozmiar pobierania: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wydaniu</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Pokaż i&amp;nformacje o wydaniu w przeglądarce</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>Po&amp;miń tę wersję</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>P&amp;rzypomnij później</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>&amp;Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>Dostępna jest wersja %2 programu %1; zainstalowana wersja to %3. Na jej stronie opisano, jak ją uzyskać.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;Otwórz stronę</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Brakuje części tej aplikacji potrzebnej do aktualizacji albo jest ona uszkodzona. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Aktualizacja już trwa. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Nowa wersja aplikacji %1 %2 jest gotowa do instalacji</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>Aktualizacja %1 %2 została pobrana i czeka na zatwierdzenie. Czy zainstalować ją i ponownie uruchomić aplikację %1 teraz?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Zainstaluj i uruchom ponownie</translation>
    </message>
</context>
</TS>
