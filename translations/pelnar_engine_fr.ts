<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour logicielle</translation>
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
        <translation>La mise à jour n’a pas pu être effectuée</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Environ %Ln seconde restante</numerusform>
            <numerusform>Environ %Ln secondes restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Environ %Ln minute restante</numerusform>
            <numerusform>Environ %Ln minutes restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Environ %Ln heure restante</numerusform>
            <numerusform>Environ %Ln heures restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Téléchargement de %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Vérification et décompression de %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Progression de la mise à jour</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>En attente du serveur…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Prêt à installer</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 a été téléchargé et vérifié. Pour l’installer, %1 va être fermé puis rouvert.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Installer et relancer</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Tout est à jour !</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 est actuellement la version la plus récente disponible.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>Une nouvelle version de %1 est disponible !</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 est maintenant disponible ; vous avez la version %3. Voulez-vous la télécharger maintenant ?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Cette mise à jour est importante : elle devrait être installée rapidement.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Taille du téléchargement : %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Afficher les &amp;notes de version dans le navigateur</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Ignorer cette version</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>Me le &amp;rappeler plus tard</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>Ins&amp;taller la mise à jour</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Une mise à jour est déjà en cours. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Une nouvelle version de %1 %2 est prête à être installée</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>La mise à jour %1 %2 a été téléchargée et attend votre accord. Voulez-vous l’installer et relancer %1 maintenant ?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Installer et relancer</translation>
    </message>
</context>
</TS>
