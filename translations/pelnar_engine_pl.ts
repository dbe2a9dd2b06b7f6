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
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Ta aplikacja nie podaje, gdzie są publikowane jej aktualizacje. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>Adres kanału aktualizacji nie jest prawidłowym adresem. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>Adres kanału aktualizacji jest niedozwolonego rodzaju. Musi zaczynać się od https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>Adres kanału aktualizacji nie jest bezpieczny. Musi zaczynać się od https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>Nie znaleziono serwera aktualizacji. Sprawdź połączenie z internetem i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>Serwer aktualizacji odrzucił połączenie. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>Serwer aktualizacji jest nieosiągalny z tej sieci. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>Serwer aktualizacji nie przyjął połączenia na czas. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>Połączenie z serwerem aktualizacji nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>Sieciowy serwer proxy nie przepuścił połączenia. Sprawdź ustawienia serwera proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>Serwer aktualizacji zbyt długo nie odpowiadał. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>Serwer aktualizacji odpowiada zbyt wolno. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>Certyfikat serwera aktualizacji jest podpisany tylko przez niego samego, więc jego tożsamość nie jest potwierdzona. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>Certyfikat serwera aktualizacji pochodzi od urzędu, którego ten komputer nie zna. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Certyfikat serwera aktualizacji wygasł. Sprawdź zegar tego komputera, a jeśli jest dobrze ustawiony, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Certyfikat serwera aktualizacji nie jest jeszcze ważny. Sprawdź zegar tego komputera, a jeśli jest dobrze ustawiony, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>Certyfikat serwera aktualizacji wystawiono dla innego serwera. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>Certyfikat serwera aktualizacji jest nie do przyjęcia. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>Nie nawiązano bezpiecznego połączenia z serwerem aktualizacji, ponieważ nie oferuje on wystarczająco silnego. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Ten komputer nie może nawiązywać bezpiecznych połączeń. Zainstaluj bibliotekę OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>Serwer aktualizacji zamknął połączenie, zanim odpowiedział. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>Kanał aktualizacji dotarł niekompletny. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>Odpowiedź serwera aktualizacji ma zbyt wiele nagłówków. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>Kanał aktualizacji jest zbyt duży. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>Odpowiedź serwera aktualizacji nie jest prawidłowym HTTP. Spróbuj w innej sieci.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Serwer aktualizacji podaje sprzeczne długości kanału. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>Serwer aktualizacji przysłał więcej, niż zapowiedział. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>Odpowiedź serwera aktualizacji jest uszkodzona. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>Serwer aktualizacji przesyła kanał w sposób, o który nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>Serwer aktualizacji przysłał skompresowany kanał, o co nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>Serwer aktualizacji odpowiedział kodem stanu %1. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod mniej bezpieczny adres. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod adres niedozwolonego rodzaju. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>Serwer aktualizacji kieruje do czegoś, co nie jest adresem. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>Serwer aktualizacji kieruje pod inny adres, ale go nie podaje. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>Serwer aktualizacji bez końca kieruje z adresu na adres. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>Plik z kanałem aktualizacji nie istnieje. Sprawdź jego adres.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>Adres kanału aktualizacji wskazuje folder lub urządzenie. Musi wskazywać plik.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>Plik z kanałem aktualizacji jest zbyt duży. Sprawdź jego adres.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>Nie można odczytać pliku z kanałem aktualizacji. Sprawdź jego uprawnienia.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>Kanał aktualizacji jest plikiem na innym komputerze. Skopiuj go na ten komputer.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>Nie można odczytać kanału aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>Zamiast kanału aktualizacji nadeszła strona internetowa. Zaloguj się do tej sieci, jeśli tego wymaga, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>Aplikacja wybrała aktualizację, której nie ma w kanale. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>Aplikacja zawiodła podczas przeglądania aktualizacji. Uruchom ją ponownie i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>Kanał podaje niemożliwą długość aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>Aktualizacja na serwerze nie ma długości podanej w kanale. Spróbuj ponownie później, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
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
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Inna kopia aplikacji pobiera tę aktualizację. Poczekaj, aż skończy.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>Nie można użyć folderu pobranych aktualizacji. Sprawdź jego uprawnienia i dysk.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>Folder pobranych aktualizacji nie należy tylko do Ciebie. Usuń go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>Aktualizacja potrzebuje jeszcze %1 na dysku, na którym jest wolne %2. Zwolnij miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>Aktualizacja potrzebuje o %1 więcej, niż pozwala Twój limit na dysku, na którym jest wolne %2. Usuń swoje pliki i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>Aktualizacja jest plikiem zbyt dużym dla dysku pobranych aktualizacji. Poproś o pomoc.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>Dysk zawiódł podczas zapisywania aktualizacji. Sprawdź dysk i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>Komputer ma za mało pamięci lub zbyt wiele otwartych plików, aby pobierać. Zamknij inne aplikacje i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>Nie znaleziono folderu aplikacji, więc nie można jej zaktualizować. Uruchom ją z miejsca, w którym jest zainstalowana.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>Aplikację uruchomiono przez dowiązanie, więc nie można jej zaktualizować. Uruchom ją z folderu, na który wskazuje dowiązanie.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>Aplikację zainstalował %1, który też ją aktualizuje. Użyj polecenia „%2”.</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>Aplikacja działa z pliku obrazu. Zastąp plik %1 plikiem nowej wersji.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>Aplikacja znajduje się na dysku, na którym nie można zapisywać. Skopiuj ją do innego folderu i tam uruchom.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>Folder aplikacji jest osobnym dyskiem, więc nie można go zastąpić. Skopiuj go do innego folderu i tam uruchom aplikację.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>Aplikacja jest chroniona przed wszelkimi zmianami. Poproś osobę, która ją chroni, o usunięcie atrybutu pliku „immutable” lub „append only”.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>Aplikacja należy do innego użytkownika tego komputera. Poproś tę osobę lub administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>Nie masz prawa zmieniać folderu aplikacji. Poproś administratora o jej zaktualizowanie.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>Inni użytkownicy tego komputera mogliby zmienić folder aplikacji, więc nie jest tam aktualizowana. Poproś administratora o poprawienie uprawnień.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>Nie ma miejsca na aktualizację. Potrzeba %1, a wolne jest %2. Zwolnij miejsce i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>Aktualizacje tej aplikacji są wyłączone. Zapytaj osobę, która zarządza tym komputerem.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>Ostatnie sprawdzania aktualizacji nie powiodły się, więc następne czeka. Sprawdź ręcznie, aby spróbować od razu.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>Aktualizacja została anulowana. Sprawdź aktualizacje, aby zacząć od nowa.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Ta aplikacja nie podaje swojego identyfikatora i wersji, więc nie można do niej dopasować żadnej aktualizacji. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>Program instalujący aktualizacje nieoczekiwanie zakończył działanie. Spróbuj ponownie, a jeśli problem nie zniknie, zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>Sprawdzanie aktualizacji nie powiodło się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>Kanał podaje adres aktualizacji, który nie jest adresem. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>Adres aktualizacji jest niedozwolonego rodzaju, innego niż https. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>Adres aktualizacji nie jest bezpieczny, ponieważ nie zaczyna się od https. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>Połączenie zostało przerwane podczas pobierania aktualizacji. Spróbuj ponownie, a pobieranie będzie kontynuowane.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Serwer aktualizacji podaje sprzeczne długości aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>Serwer aktualizacji przesyła aktualizację w sposób, o który nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>Serwer aktualizacji przysłał skompresowaną aktualizację, o co nie proszono. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Wiersz %1 kanału nie jest poprawnie sformułowanym XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
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
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>Wiersz %1 kanału przekracza liczbę %2 elementów i atrybutów, które kanał może mieć.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>Wiersz %1 kanału ma pozycję numer %2, a dozwolonych jest tylko %3.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>Wiersz %1 kanału deklaruje więcej przestrzeni nazw niż %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>W wierszu %1 kanału zaczyna się strona internetowa, a oczekiwano kanału.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>Wiersz %1 kanału zawiera nieznany błąd.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>Aplikację zainstalował menedżer pakietów systemu, który też ją aktualizuje. Użyj polecenia „%1”.</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>Nie udało się zainstalować aktualizacji. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>Program instalujący aktualizacje nie zrozumiał, o co go poproszono. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>Program instalujący aktualizacje nie mógł użyć otrzymanych plików. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>Brakuje programu instalującego aktualizacje lub mógłby go zmienić ktoś inny. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>Nie udało się rozpakować aktualizacji w odizolowanym procesie, jak to konieczne. Poinformuj wydawcę, jaki to system.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Ta aplikacja nie ma klucza publicznego SUPublicEDKey, więc nie można potwierdzić autentyczności żadnej aktualizacji. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Klucz publiczny SUPublicEDKey tej aplikacji jest uszkodzony, więc nie można potwierdzić autentyczności żadnej aktualizacji. Zainstaluj ją ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>Aktualizacja nie jest podpisana i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>Podpis aktualizacji nie jest podpisem, a aktualizacja została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>Aktualizacja nie została podpisana przez wydawcę tej aplikacji lub uszkodziła się po drodze i została odrzucona. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>Na tym komputerze nie można weryfikować podpisów. Zainstaluj ponownie bibliotekę libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>Pobrana aktualizacja jest pusta. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>Nie można odczytać pobranej aktualizacji z dysku. Sprawdź dysk i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>Pobrana aktualizacja jest dłuższa lub krótsza, niż podaje kanał. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Inny program zmienił pobraną aktualizację podczas jej weryfikowania. Zamknij go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>Aktualizacja jest spakowana w nieznany sposób. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>Archiwum aktualizacji jest uszkodzone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>Archiwum aktualizacji można odczytać na więcej niż jeden sposób i zostało odrzucone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>Archiwum aktualizacji jest zaszyfrowane i zostało odrzucone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>Archiwum aktualizacji jest skompresowane w nieznany sposób. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>Aktualizacja zawiera plik o niedozwolonej nazwie. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>Aktualizacja zawiera plik o zbyt długiej nazwie. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera plik, który znalazłby się poza aplikacją, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>Foldery aktualizacji są zbyt głęboko zagnieżdżone. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera coś, co nie jest plikiem, folderem ani dowiązaniem, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie twarde i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera plik z dziurami i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera plik bez rozmiaru i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera dwa razy ten sam plik i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera pliki, których nazwy różnią się tylko wielkością liter lub akcentami, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera plik pod czymś, co nie jest folderem, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie do niedozwolonej nazwy. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie prowadzące poza aplikację i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie prowadzące donikąd. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>Aktualizacja zawiera dowiązanie prowadzące z powrotem do siebie. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>Aktualizacja zawiera zbyt wiele plików. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>Aktualizacja zawiera zbyt wiele dowiązań. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>Aktualizacja jest po rozpakowaniu zbyt duża. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>Zainstalowana aplikacja została zmieniona, więc mała aktualizacja do niej nie pasuje. Zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>Mała aktualizacja nie zrobiła z aplikacji tego, co powinna. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>Aktualizacja nie zawiera aplikacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>Aktualizacja zawiera więcej niż jedną aplikację. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>Aplikacja w aktualizacji nie jest folderem. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>Aplikacja w aktualizacji nie zawiera swojego opisu. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>Opis aplikacji w aktualizacji jest zbyt duży. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>Nie można odczytać opisu aplikacji w aktualizacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>Aktualizacja wskazuje program spoza swojego folderu. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>Aktualizacja dotyczy innej aplikacji i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>Aktualizacja jest w innej wersji, niż podaje kanał, i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>Aktualizacja nie jest nowsza niż zainstalowana aplikacja i została odrzucona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>Aplikacja w aktualizacji nie ma klucza publicznego, więc już nigdy nie można by jej zaktualizować. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>Zawartość aktualizacji nie zgadza się z nazwą jej pliku. Skontaktuj się z wydawcą.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>Aplikacja w aktualizacji nie ma programu do uruchomienia. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>Programu w aktualizacji nie wolno uruchomić. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>Program w aktualizacji jest przeznaczony dla innego rodzaju komputera. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>Aktualizacja jest osobnym programem, na co ta aplikacja nie pozwala. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>Program dołączony do aktualizacji nie uruchomił się. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>Program dołączony do aktualizacji nie zainstalował jej. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>Program dołączony do aktualizacji działał zbyt długo i został zakończony. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>Na dysku nie ma dość miejsca na aktualizację. Zwolnij trochę i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>Ten użytkownik nie może zmieniać folderu, w którym jest aplikacja. Zapytaj osobę, która ją zainstalowała.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>Dysk zgłosił błąd. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>Aplikacja nie zamknęła się, więc aktualizacja nie została zainstalowana. Zapisz swoją pracę, sprawdź aktualizacje ponownie i pozwól aplikacji się zamknąć.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>Trwa instalowanie innej aktualizacji tej aplikacji. Poczekaj na jego koniec.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>Zainstalowanej aplikacji nie ma tam, gdzie była na początku aktualizacji. Uruchom ją z jej miejsca i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>Zainstalowana aplikacja została zmieniona podczas przygotowywania aktualizacji. Uruchom ją ponownie i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>Przygotowana aktualizacja została zmieniona przed instalacją i ją odrzucono. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>Przygotowana aktualizacja i aplikacja są na różnych dyskach. Spróbuj ponownie, a jeśli problem nie zniknie, zainstaluj aplikację ponownie.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>Nowej wersji nie udało się umieścić w miejscu starej, która pozostała bez zmian. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>Dysk nie potwierdził, że zawiera aktualizację. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>Aplikacji, która ma się uruchomić po aktualizacji, nie wolno uruchomić. Uruchom ją ręcznie.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>Zaktualizowana aplikacja nie uruchomiła się. Uruchom ją ręcznie.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>Aplikacja działa w kontenerze, który ukrywa właściciela folderu „%1”. Uruchom ją poza kontenerem, aby ją zaktualizować.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>Aktualizacja nie może zachować uprawnień do otwierania aplikacji i nie została zainstalowana. Poproś osobę, która zainstalowała aplikację, o jej aktualizację.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>Nowa wersja nie uruchomiła się i przywrócono poprzednią. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>Instalacja aktualizacji została przerwana. Sprawdź ponownie dostępność aktualizacji.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>W miejscu instalacji aplikacji nie można blokować plików: przenieś ją do folderu na dysku lokalnym.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>Dysk, na którym znajduje się aplikacja, nie przechowuje uprawnień plików: przenieś aplikację na inny dysk.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>Inni użytkownicy mogą zmieniać folder, w którym znajduje się aplikacja: przenieś aplikację do własnego folderu.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ten system nie udostępnia pidfd_open, którego wymagają aktualizacje: zainstaluj nowsze jądro lub zezwól na to wywołanie w kontenerze lub piaskownicy.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ten system nie udostępnia memfd_create, którego wymagają aktualizacje: zainstaluj nowsze jądro lub zezwól na to wywołanie w kontenerze lub piaskownicy.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Każdy użytkownik tego komputera może zapisywać w folderze %1, w którym znajduje się aplikacja: przenieś aplikację do własnego folderu i uruchom ją stamtąd.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>Członkowie grupy „%1” mogą zmieniać folder aplikacji: użyj polecenia „%2”.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>Aplikacja jest zainstalowana w %1, gdzie nie można blokować plików: przenieś ją do folderu na dysku lokalnym i uruchom stamtąd.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>Aplikacja w %1 należy do warstwy systemu plików, której nie można zastąpić: skopiuj ją do innego folderu i uruchom stamtąd.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>Kanał aktualizacji nie jest podpisany, czego wymaga ta aplikacja. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>Kanał aktualizacji ma dalszy ciąg za swoim podpisem i został odrzucony. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>Kanał aktualizacji ma więcej niż jeden podpis i został odrzucony. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Do kanału aktualizacji dodano coś po jego podpisaniu. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>Końce wierszy kanału aktualizacji zostały zmienione, więc jego podpis się nie zgadza. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>Kanał aktualizacji jest podpisany w sposób, którego ta wersja nie zna. Zainstaluj aplikację ponownie ze strony wydawcy.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>Podpis kanału aktualizacji jest uszkodzony. Spróbuj ponownie, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>Kanał aktualizacji nie został podpisany przez wydawcę tej aplikacji lub został później zmieniony. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>Kanał aktualizacji nie ma użytecznego numeru seryjnego. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>Kanał aktualizacji nie podaje, jak długo jest ważny. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>Kanał aktualizacji jest starszy niż wcześniej otrzymany. Spróbuj w innej sieci, a jeśli problem nie zniknie, powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
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
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>Serwer proxy nie przyjmuje Twojej nazwy użytkownika i hasła. Sprawdź ustawienia serwera proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>Kanał aktualizacji nie podaje, które klucze są ważne. Spróbuj w innej sieci i powiadom wydawcę, jeśli to nie pomoże.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji jest uszkodzona. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji nie pochodzi od wydawcy tej aplikacji. Spróbuj w innej sieci i powiadom wydawcę, jeśli to nie pomoże.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji dotyczy innej aplikacji. Powiadom wydawcę.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji jest starsza niż poprzednia. Spróbuj w innej sieci i powiadom wydawcę, jeśli to nie pomoże.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Lista ważnych kluczy w kanale aktualizacji wygasła. Sprawdź zegar tego komputera i powiadom wydawcę, jeśli jest ustawiony prawidłowo.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>Klucz główny tej aplikacji jest uszkodzony. Zainstaluj aplikację ponownie od jej wydawcy.</translation>
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
