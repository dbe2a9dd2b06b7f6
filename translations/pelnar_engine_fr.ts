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
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>Vous utilisez la version la plus récente.</translation>
    </message>
    <message>
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Cette application n’indique pas où ses mises à jour sont publiées&#xa0;: réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>L’adresse du flux de mises à jour n’est pas une adresse valide&#xa0;: réinstallez l’application.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>L’adresse du flux de mises à jour est d’un type non autorisé&#xa0;: elle doit commencer par https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>L’adresse du flux de mises à jour n’est pas sécurisée&#xa0;: elle doit commencer par https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>Le serveur de mises à jour est introuvable&#xa0;: vérifiez la connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>Le serveur de mises à jour a refusé la connexion&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>Le serveur de mises à jour n’est pas accessible depuis ce réseau&#xa0;: vérifiez la connexion et réessayez.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>Le serveur de mises à jour n’a pas accepté la connexion à temps&#xa0;: vérifiez la connexion et réessayez.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>La connexion au serveur de mises à jour a échoué&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>Le proxy du réseau n’a pas laissé passer la connexion&#xa0;: vérifiez ses réglages.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>Le serveur de mises à jour a mis trop de temps à répondre&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>Le serveur de mises à jour répond trop lentement&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>Le certificat du serveur de mises à jour n’est signé que par lui-même, son identité n’est donc pas prouvée&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>Le certificat du serveur de mises à jour provient d’une autorité que cet ordinateur ne connaît pas&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Le certificat du serveur de mises à jour a expiré&#xa0;: vérifiez l’horloge de cet ordinateur et, si elle est à l’heure, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Le certificat du serveur de mises à jour n’est pas encore valide&#xa0;: vérifiez l’horloge de cet ordinateur et, si elle est à l’heure, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>Le certificat du serveur de mises à jour a été établi pour un autre serveur&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>Le certificat du serveur de mises à jour n’est pas acceptable&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>Aucune connexion sécurisée au serveur de mises à jour n’a pu être établie, car il n’en propose pas d’assez forte&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Cet ordinateur ne peut pas établir de connexions sécurisées&#xa0;: installez sa bibliothèque OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>Le serveur de mises à jour a fermé la connexion avant de répondre&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>Le flux de mises à jour est arrivé incomplet&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>La réponse du serveur de mises à jour a trop d’en-têtes&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>Le flux de mises à jour est trop volumineux&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>La réponse du serveur de mises à jour n’est pas du HTTP correct&#xa0;: essayez un autre réseau.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Le serveur de mises à jour indique la longueur du flux de façon contradictoire&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>Le serveur de mises à jour a envoyé plus que ce qu’il avait annoncé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>La réponse du serveur de mises à jour est endommagée&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>Le serveur de mises à jour transfère le flux d’une façon qui n’était pas demandée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>Le serveur de mises à jour a envoyé le flux compressé, ce qui n’était pas demandé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>Le serveur de mises à jour a répondu avec le statut %1&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers une adresse moins sûre&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers une adresse d’un type non autorisé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers quelque chose qui n’est pas une adresse&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers une autre adresse sans la nommer&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>Le serveur de mises à jour renvoie sans fin d’adresse en adresse&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>Le fichier du flux de mises à jour n’existe pas&#xa0;: vérifiez son adresse.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>L’adresse du flux de mises à jour désigne un dossier ou un périphérique&#xa0;: elle doit désigner un fichier.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>Le fichier du flux de mises à jour est trop volumineux&#xa0;: vérifiez son adresse.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>Le fichier du flux de mises à jour est illisible&#xa0;: vérifiez ses droits d’accès.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>Le flux de mises à jour est un fichier d’un autre ordinateur&#xa0;: copiez-le sur celui-ci.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>Le flux de mises à jour est illisible&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>Une page web est arrivée à la place du flux de mises à jour&#xa0;: connectez-vous à ce réseau s’il le demande et réessayez.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>L’application a choisi une mise à jour qui n’est pas dans le flux&#xa0;: réinstallez l’application.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>L’application a échoué en examinant les mises à jour&#xa0;: relancez-la et réessayez.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>Le flux indique pour la mise à jour une longueur impossible&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>La mise à jour sur le serveur n’a pas la longueur indiquée par le flux&#xa0;: réessayez plus tard et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>Le serveur de mises à jour a envoyé une autre partie de la mise à jour que celle demandée&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Le serveur de mises à jour a envoyé deux fois la taille de la mise à jour, mais jamais la mise à jour entière. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>La connexion au serveur de mises à jour s'est interrompue trop souvent. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Le téléchargement de la mise à jour a duré trop longtemps et a été arrêté. Réessayez avec une connexion plus rapide.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>La mise à jour n'est pas encore entièrement téléchargée. La prochaine vérification poursuivra le téléchargement.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Une autre instance de l’application télécharge cette mise à jour&#xa0;: attendez qu’elle ait terminé.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>Le dossier des mises à jour téléchargées est inutilisable&#xa0;: vérifiez ses droits d’accès et son disque.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>Le dossier des mises à jour téléchargées n’est pas à vous seul&#xa0;: supprimez-le et réessayez.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>La mise à jour a besoin de %1 de plus sur le disque, où %2 sont libres&#xa0;: libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>La mise à jour a besoin de %1 de plus que ce que permet votre quota sur le disque, dont %2 sont libres&#xa0;: supprimez de vos fichiers et réessayez.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>La mise à jour est un fichier trop volumineux pour le disque des mises à jour téléchargées&#xa0;: demandez de l’aide.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>Le disque a eu une défaillance pendant l’écriture de la mise à jour&#xa0;: vérifiez le disque et réessayez.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>L’ordinateur a trop peu de mémoire ou trop de fichiers ouverts pour le téléchargement&#xa0;: fermez d’autres applications et réessayez.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>Le dossier de l’application est introuvable, elle ne peut donc pas être mise à jour&#xa0;: ouvrez-la depuis l’endroit où elle est installée.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>L’application a été ouverte par un lien, elle ne peut donc pas être mise à jour&#xa0;: ouvrez-la depuis le dossier vers lequel mène le lien.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>L’application a été installée par %1, qui la met aussi à jour&#xa0;: utilisez la commande «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>L’application s’exécute depuis un fichier image&#xa0;: remplacez le fichier %1 par celui de la nouvelle version.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>L’application se trouve sur un disque en lecture seule&#xa0;: copiez-la dans un autre dossier et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>Le dossier de l’application est un disque à part entière et ne peut donc pas être remplacé&#xa0;: copiez-le dans un autre dossier et ouvrez l’application à cet endroit.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>L’application est protégée contre toute modification&#xa0;: demandez à la personne qui l’a protégée de retirer l’attribut de fichier «&#xa0;immutable&#xa0;» ou «&#xa0;append only&#xa0;».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>L’application appartient à un autre utilisateur de cet ordinateur&#xa0;: demandez-lui, ou à l’administrateur, de la mettre à jour.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>Vous n’avez pas le droit de modifier le dossier de l’application&#xa0;: demandez à l’administrateur de la mettre à jour.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>D’autres utilisateurs de cet ordinateur pourraient modifier le dossier de l’application, elle n’y est donc pas mise à jour&#xa0;: demandez à l’administrateur de corriger les droits d’accès.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>Il n’y a pas de place pour la mise à jour&#xa0;: elle a besoin de %1, et %2 sont libres. Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>Les mises à jour de cette application sont désactivées&#xa0;: adressez-vous à la personne qui gère cet ordinateur.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>Les dernières recherches de mises à jour ont échoué, la prochaine attend donc&#xa0;: lancez-en une vous-même pour essayer tout de suite.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>La mise à jour a été annulée&#xa0;: recherchez les mises à jour pour recommencer.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Cette application n’indique ni son identifiant ni sa version, aucune mise à jour ne peut donc lui être associée&#xa0;: réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>Le programme qui installe les mises à jour s’est arrêté de façon inattendue&#xa0;: réessayez et, si le problème persiste, réinstallez l’application.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>La recherche de mises à jour a échoué&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>Le flux indique pour la mise à jour une adresse qui n’en est pas une&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>L’adresse de la mise à jour est d’un type non autorisé, différent de https&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>L’adresse de la mise à jour n’est pas sécurisée, car elle ne commence pas par https&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>La connexion a été coupée pendant le téléchargement de la mise à jour&#xa0;: réessayez, il reprendra là où il s’est arrêté.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>Le serveur de mises à jour indique la longueur de la mise à jour de façon contradictoire&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>Le serveur de mises à jour transfère la mise à jour d’une façon qui n’était pas demandée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>Le serveur de mises à jour a envoyé la mise à jour compressée, ce qui n’était pas demandé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>La ligne %1 du flux n’est pas du XML bien formé.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
        <translation>La ligne %1 du flux contient une déclaration de type de document, ce qui est interdit dans un flux.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>La ligne %1 du flux imbrique des éléments sur plus de %2 niveaux.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>La ligne %1 du flux contient une balise de plus de %2 attributs.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>La ligne %1 du flux contient une balise de plus de %2 octets.</translation>
    </message>
    <message>
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>La ligne %1 du flux dépasse les %2 éléments et attributs qu’un flux peut contenir.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>La ligne %1 du flux contient l’élément numéro %2, mais seuls %3 sont autorisés.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>La ligne %1 du flux déclare plus de %2 espaces de noms.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>La ligne %1 du flux commence une page web là où un flux était attendu.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>La ligne %1 du flux contient une erreur inconnue.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>L’application a été installée par le gestionnaire de paquets du système, qui la met aussi à jour&#xa0;: utilisez la commande «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>La mise à jour n’a pas pu être installée&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>Le programme qui installe les mises à jour n’a pas compris ce qui lui était demandé&#xa0;: réinstallez l’application.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>Le programme qui installe les mises à jour n’a pas pu utiliser les fichiers qui lui ont été remis&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>Le programme qui installe les mises à jour est absent ou pourrait être modifié par d’autres&#xa0;: réinstallez l’application.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>La mise à jour n’a pas pu être décompressée dans un processus confiné, comme il le faut&#xa0;: indiquez à l’éditeur de quel système il s’agit.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Cette application n’a pas de clé publique sous SUPublicEDKey, aucune mise à jour ne peut donc être authentifiée&#xa0;: réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>La clé publique de cette application sous SUPublicEDKey est endommagée, aucune mise à jour ne peut donc être authentifiée&#xa0;: réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>La mise à jour n’est pas signée et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>La signature de la mise à jour n’en est pas une, et la mise à jour est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>La mise à jour n’a pas été signée par l’éditeur de cette application, ou a été endommagée en chemin, et est refusée&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>Les signatures ne peuvent pas être vérifiées sur cet ordinateur&#xa0;: réinstallez sa bibliothèque libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>La mise à jour téléchargée est vide&#xa0;: réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>La mise à jour téléchargée ne peut pas être lue sur le disque&#xa0;: vérifiez le disque et réessayez.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>La mise à jour téléchargée est plus longue ou plus courte que ne l’indique le flux&#xa0;: réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Un autre programme a modifié la mise à jour téléchargée pendant sa vérification&#xa0;: fermez-le et réessayez.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>La mise à jour est empaquetée d’une façon inconnue&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>L’archive de la mise à jour est endommagée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>L’archive de la mise à jour peut être lue de plusieurs façons et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>L’archive de la mise à jour est chiffrée et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>L’archive de la mise à jour est compressée d’une façon inconnue&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>La mise à jour contient un fichier dont le nom n’est pas autorisé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>La mise à jour contient un fichier dont le nom est trop long&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient un fichier qui serait placé hors de l’application et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>Les dossiers de la mise à jour sont trop imbriqués&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient quelque chose qui n’est ni un fichier, ni un dossier, ni un lien, et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient un lien physique et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient un fichier à trous et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient un fichier sans taille et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient deux fois le même fichier et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient des fichiers dont les noms ne diffèrent que par la casse ou les accents et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient un fichier placé sous quelque chose qui n’est pas un dossier et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>La mise à jour contient un lien vers un nom non autorisé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>La mise à jour contient un lien qui mène hors de l’application et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>La mise à jour contient un lien qui ne mène nulle part&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>La mise à jour contient un lien qui ramène à lui-même&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>La mise à jour contient trop de fichiers&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>La mise à jour contient trop de liens&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>La mise à jour est trop volumineuse une fois décompressée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>L’application installée a été modifiée, la petite mise à jour ne lui convient donc pas&#xa0;: réinstallez l’application.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>Ce que la petite mise à jour a fait de l’application n’est pas ce qui était prévu&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>La mise à jour ne contient aucune application&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>La mise à jour contient plus d’une application&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>L’application de la mise à jour n’est pas un dossier&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>L’application de la mise à jour ne se décrit pas elle-même&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>La description de l’application de la mise à jour est trop volumineuse&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>La description de l’application de la mise à jour est illisible&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>La mise à jour désigne un programme hors de son dossier : prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>La mise à jour est celle d’une autre application et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>La mise à jour est d’une autre version que celle indiquée par le flux et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>La mise à jour n’est pas plus récente que l’application installée et est refusée&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>L’application de la mise à jour n’a pas de clé publique et ne pourrait donc plus jamais être mise à jour&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>Le contenu de la mise à jour ne correspond pas à son nom de fichier. Contactez l'éditeur.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>L’application de la mise à jour n’a pas de programme à lancer&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>Le programme de la mise à jour n’a pas le droit d’être lancé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>Le programme de la mise à jour est fait pour un autre type d’ordinateur&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>La mise à jour est elle-même un programme, ce que cette application n’autorise pas&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>Le programme fourni avec la mise à jour n’a pas démarré&#xa0;: réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>Le programme fourni avec la mise à jour ne l’a pas installée&#xa0;: réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>Le programme fourni avec la mise à jour a mis trop de temps et a été arrêté&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>Il n’y a pas assez d’espace sur le disque pour la mise à jour&#xa0;: libérez-en et réessayez.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>Le dossier qui contient l’application ne peut pas être modifié par cet utilisateur&#xa0;: adressez-vous à la personne qui l’a installée.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>Le disque a signalé une erreur&#xa0;: vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>L’application ne s’est pas fermée, la mise à jour n’a donc pas été installée&#xa0;: enregistrez votre travail, recherchez de nouveau les mises à jour et laissez-la se fermer.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>Une autre mise à jour de cette application est en cours d’installation&#xa0;: attendez qu’elle soit terminée.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>L’application installée n’est plus là où elle était au début de la mise à jour&#xa0;: ouvrez-la depuis sa place et réessayez.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>L’application installée a été modifiée pendant la préparation de la mise à jour&#xa0;: relancez-la et réessayez.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>La mise à jour préparée a été modifiée avant d’être installée, et a été abandonnée&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>La mise à jour préparée et l’application sont sur des disques différents&#xa0;: réessayez et, si le problème persiste, réinstallez l’application.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>La nouvelle version n’a pas pu être mise à la place de l’ancienne, qui est restée telle quelle&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>Le disque n’a pas confirmé qu’il contient la mise à jour&#xa0;: vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>L’application à ouvrir après la mise à jour n’a pas le droit d’être ouverte&#xa0;: ouvrez-la manuellement.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>L’application mise à jour ne s’est pas ouverte&#xa0;: ouvrez-la manuellement.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>L’application s’exécute dans un conteneur qui masque le propriétaire du dossier « %1 » : démarrez-la en dehors du conteneur pour la mettre à jour.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>La mise à jour ne peut pas conserver les droits d’ouverture de l’application et n’a pas été installée. Demandez à la personne qui a installé l’application de la mettre à jour.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>La nouvelle version n’a pas démarré et la précédente a été rétablie. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>L’installation de la mise à jour a été interrompue. Recherchez de nouveau les mises à jour.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>Les fichiers ne peuvent pas être verrouillés là où l’application est installée&#xa0;: déplacez-la dans un dossier d’un disque local.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>Le disque qui contient l’application ne conserve pas les droits des fichiers&#xa0;: déplacez l’application sur un autre disque.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>D’autres utilisateurs peuvent modifier le dossier qui contient l’application&#xa0;: déplacez l’application dans un dossier à vous.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ce système ne fournit pas pidfd_open, dont les mises à jour ont besoin&#xa0;: installez un noyau plus récent ou autorisez cet appel dans le conteneur ou le bac à sable.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ce système ne fournit pas memfd_create, dont les mises à jour ont besoin&#xa0;: installez un noyau plus récent ou autorisez cet appel dans le conteneur ou le bac à sable.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Tous les utilisateurs de cet ordinateur peuvent écrire dans le dossier %1, qui contient l’application&#xa0;: déplacez l’application dans un dossier à vous et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>Les membres du groupe «&#xa0;%1&#xa0;» peuvent modifier le dossier de l’application&#xa0;: utilisez la commande «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>L’application est installée dans %1, où les fichiers ne peuvent pas être verrouillés&#xa0;: déplacez-la dans un dossier d’un disque local et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>L’application dans %1 fait partie d’une couche du système de fichiers qui ne peut pas être remplacée&#xa0;: copiez-la dans un autre dossier et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>Le flux de mises à jour n’est pas signé, comme cette application l’exige&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>Le flux de mises à jour continue après sa signature et est refusé&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>Le flux de mises à jour a plus d’une signature et est refusé&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Quelque chose a été ajouté au flux de mises à jour après sa signature&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>Les fins de ligne du flux de mises à jour ont été réécrites, sa signature ne correspond donc plus&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>Le flux de mises à jour est signé d’une façon que cette version ne connaît pas&#xa0;: réinstallez l’application depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>La signature du flux de mises à jour est endommagée&#xa0;: réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>Le flux de mises à jour n’a pas été signé par l’éditeur de cette application, ou a été modifié ensuite&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>Le flux de mises à jour n’a pas de numéro de série utilisable&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>Le flux de mises à jour n’indique pas jusqu’à quand il est valable&#xa0;: prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>Le flux de mises à jour est plus ancien qu’un flux déjà reçu&#xa0;: essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>Le flux de mises à jour a expiré&#xa0;: vérifiez l’horloge de cet ordinateur et, si elle est à l’heure, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>Le serveur de mises à jour renvoie à une adresse située dans votre propre ordinateur ou votre lien réseau. Contactez l’éditeur.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>Le proxy réseau refuse la connexion au serveur de mises à jour. Adressez-vous à l’administrateur de votre réseau.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>Le proxy réseau n’accepte pas votre nom d’utilisateur et votre mot de passe. Vérifiez les réglages du proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>Le flux de mises à jour n’indique pas quelles clés sont valides. Essayez un autre réseau et prévenez l’éditeur si cela n’aide pas.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour est endommagée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>La liste des clés valides du flux de mises à jour ne provient pas de l’éditeur de cette application. Essayez un autre réseau et prévenez l’éditeur si cela n’aide pas.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour concerne une autre application. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>La liste des clés valides du flux de mises à jour est plus ancienne qu’une précédente. Essayez un autre réseau et prévenez l’éditeur si cela n’aide pas.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>La liste des clés valides du flux de mises à jour a expiré. Vérifiez l’horloge de cet ordinateur et prévenez l’éditeur si elle est juste.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>La clé racine de cette application est endommagée. Réinstallez l’application depuis son éditeur.</translation>
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
        <translation>Tout est à jour&#xa0;!</translation>
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
        <translation>Une nouvelle version de %1 est disponible&#xa0;!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 est maintenant disponible&#xa0;; vous avez la version %3. Voulez-vous la télécharger maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Cette mise à jour est importante&#xa0;: elle devrait être installée rapidement.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Taille du téléchargement&#xa0;: %1</translation>
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
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Une partie de cette application nécessaire aux mises à jour manque ou est endommagée. Réinstallez l’application.</translation>
    </message>
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
        <translation>La mise à jour %1 %2 a été téléchargée et attend votre accord. Voulez-vous l’installer et relancer %1 maintenant&#xa0;?</translation>
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
