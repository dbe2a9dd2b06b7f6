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
