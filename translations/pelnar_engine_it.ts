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
