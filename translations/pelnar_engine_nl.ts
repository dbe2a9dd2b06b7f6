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
