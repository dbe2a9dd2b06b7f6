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
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Cette application n’indique pas où ses mises à jour sont publiées. Réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>L’adresse du flux de mises à jour n’est pas une adresse valide. Réinstallez l’application.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>L’adresse du flux de mises à jour est d’un type non autorisé. Elle doit commencer par https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>L’adresse du flux de mises à jour n’est pas sécurisée. Elle doit commencer par https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>Le serveur de mises à jour est introuvable. Vérifiez la connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>Le serveur de mises à jour a refusé la connexion. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>Le serveur de mises à jour n’est pas accessible depuis ce réseau. Vérifiez la connexion et réessayez.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>Le serveur de mises à jour n’a pas accepté la connexion à temps. Vérifiez la connexion et réessayez.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>La connexion au serveur de mises à jour a échoué. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>Le proxy du réseau n’a pas laissé passer la connexion. Vérifiez ses réglages.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>Le serveur de mises à jour a mis trop de temps à répondre. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>Le serveur de mises à jour répond trop lentement. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>Le certificat du serveur de mises à jour n’est signé que par lui-même, son identité n’est donc pas prouvée. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>Le certificat du serveur de mises à jour provient d’une autorité que cet ordinateur ne connaît pas. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Le certificat du serveur de mises à jour a expiré. Vérifiez l’horloge de cet ordinateur et, si elle est à l’heure, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>Le certificat du serveur de mises à jour n’est pas encore valide. Vérifiez l’horloge de cet ordinateur et, si elle est à l’heure, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>Le certificat du serveur de mises à jour a été établi pour un autre serveur. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>Le certificat du serveur de mises à jour n’est pas acceptable. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>Le serveur de mises à jour ne prend pas en charge les connexions sécurisées (TLS 1.2 ou ultérieur). Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Cet ordinateur ne peut pas établir de connexions sécurisées. Installez sa bibliothèque OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>Le serveur de mises à jour a fermé la connexion avant de répondre. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>Le flux de mises à jour est arrivé incomplet. Réessayez.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>La réponse du serveur de mises à jour a trop d’en-têtes. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>Le flux de mises à jour est trop volumineux. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>La réponse du serveur de mises à jour n’est pas du HTTP correct. Essayez un autre réseau.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>Le serveur de mises à jour indique la longueur du flux de façon contradictoire. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>Le serveur de mises à jour a envoyé plus que ce qu’il avait annoncé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>Le serveur de mises à jour a envoyé une réponse non valide. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>Le serveur de mises à jour transfère le flux d’une façon qui n’était pas demandée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>Le serveur de mises à jour a envoyé le flux compressé, ce qui n’était pas demandé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>Le serveur de mises à jour a répondu avec le statut %1. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers une adresse moins sûre. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers une adresse d’un type non autorisé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers quelque chose qui n’est pas une adresse. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>Le serveur de mises à jour renvoie vers une autre adresse sans la nommer. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>Le serveur de mises à jour renvoie sans fin d’adresse en adresse. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>Le fichier du flux de mises à jour n’existe pas. Vérifiez son adresse.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>L’adresse du flux de mises à jour désigne un dossier ou un périphérique. Elle doit désigner un fichier.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>Le fichier du flux de mises à jour est trop volumineux. Vérifiez son adresse.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Le fichier du flux de mises à jour est illisible. Vérifiez ses droits d’accès.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>Le flux de mises à jour est un fichier d’un autre ordinateur. Copiez-le sur celui-ci.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>Le flux de mises à jour est illisible. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Une page web est arrivée à la place du flux de mises à jour. Connectez-vous à ce réseau s’il le demande et réessayez.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>L’application a choisi une mise à jour qui n’est pas dans le flux. Réinstallez l’application.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>L’application a échoué en examinant les mises à jour. Relancez-la et réessayez.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>Le flux indique pour la mise à jour une longueur impossible. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>La mise à jour sur le serveur n’a pas la longueur indiquée par le flux. Réessayez plus tard et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>Le serveur de mises à jour a envoyé une autre partie de la mise à jour que celle demandée. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Le serveur de mises à jour a envoyé deux fois la taille de la mise à jour, mais jamais la mise à jour entière. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>La connexion au serveur de mises à jour s&apos;est interrompue trop souvent. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Le téléchargement de la mise à jour a duré trop longtemps et a été arrêté. Réessayez avec une connexion plus rapide.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>La mise à jour n&apos;est pas encore entièrement téléchargée. La prochaine vérification poursuivra le téléchargement.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Une autre instance de l’application télécharge cette mise à jour. Attendez qu’elle ait terminé.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>Le dossier des mises à jour téléchargées est inutilisable. Vérifiez ses droits d’accès et son disque.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>Le dossier des mises à jour téléchargées n’est pas à vous seul. Supprimez-le et réessayez.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>La mise à jour a besoin de %1 de plus sur le disque, où %2 sont libres. Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Votre quota sur le disque ne suffit pas pour la mise à jour, qui a besoin de %1. Supprimez quelques-uns de vos fichiers et réessayez.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>La mise à jour est un fichier trop volumineux pour le disque des mises à jour téléchargées. Adressez-vous à la personne qui gère cet ordinateur.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>Le disque a eu une défaillance pendant l’écriture de la mise à jour. Vérifiez le disque et réessayez.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>L’ordinateur a trop peu de mémoire ou trop de fichiers ouverts pour le téléchargement. Fermez d’autres applications et réessayez.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>Le dossier de l’application est introuvable, elle ne peut donc pas être mise à jour. Ouvrez-la depuis l’endroit où elle est installée.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>L’application a été ouverte par un lien, elle ne peut donc pas être mise à jour. Ouvrez-la depuis le dossier vers lequel mène le lien.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>L’application a été installée par %1, qui la met aussi à jour. Utilisez la commande «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>L’application s’exécute depuis un fichier image. Remplacez le fichier %1 par celui de la nouvelle version.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>L’application se trouve sur un disque en lecture seule. Copiez-la dans un autre dossier et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>Le dossier de l’application est un disque à part entière ou en contient un et ne peut donc pas être remplacé. Copiez-le dans un autre dossier et ouvrez l’application à cet endroit.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>L’application est protégée contre toute modification. Demandez à la personne qui l’a protégée de retirer l’attribut de fichier «&#xa0;immutable&#xa0;» ou «&#xa0;append only&#xa0;».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>L’application appartient à un autre utilisateur de cet ordinateur. Demandez-lui, ou à l’administrateur, de la mettre à jour.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>Vous n’avez pas le droit de modifier le dossier de l’application. Demandez à l’administrateur de la mettre à jour.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>D’autres utilisateurs de cet ordinateur pourraient modifier le dossier de l’application, elle n’y est donc pas mise à jour. Demandez à l’administrateur de corriger les droits d’accès.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>La mise à jour a besoin de %1 d’espace, mais seuls %2 sont libres. Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Les mises à jour de cette application sont désactivées. Adressez-vous à la personne qui gère cet ordinateur.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>Les dernières recherches de mises à jour ont échoué, la prochaine attend donc. Lancez-en une vous-même pour essayer tout de suite.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>La mise à jour a été annulée. Recherchez les mises à jour pour recommencer.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Cette application n’indique ni son identifiant ni sa version, aucune mise à jour ne peut donc lui être associée. Réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>Le programme qui installe les mises à jour s’est arrêté de façon inattendue. Réessayez et, si le problème persiste, réinstallez l’application.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>La recherche de mises à jour a échoué. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>Le flux indique pour la mise à jour une adresse qui n’en est pas une. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>L’adresse de la mise à jour est d’un type non autorisé, différent de https. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>L’adresse de la mise à jour n’est pas sécurisée, car elle ne commence pas par https. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>La connexion a été coupée pendant le téléchargement de la mise à jour. Réessayez, il reprendra là où il s’est arrêté.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>Le serveur de mises à jour indique la longueur de la mise à jour de façon contradictoire. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>Le serveur de mises à jour transfère la mise à jour d’une façon qui n’était pas demandée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>Le serveur de mises à jour a envoyé la mise à jour compressée, ce qui n’était pas demandé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>La ligne %1 du flux n’est pas du XML bien formé.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
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
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>La ligne %1 du flux dépasse les %2 éléments et attributs qu’un flux peut contenir.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>La ligne %1 du flux contient l’élément numéro %3, mais seuls %2 sont autorisés.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>La ligne %1 du flux déclare plus de %2 espaces de noms.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>La ligne %1 du flux commence une page web là où un flux était attendu.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>L’application a été installée par le gestionnaire de paquets du système, qui la met aussi à jour. Utilisez la commande «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>La mise à jour n’a pas pu être installée. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>Le programme qui installe les mises à jour n’a pas compris ce qui lui était demandé. Réinstallez l’application.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>Le programme qui installe les mises à jour n’a pas pu utiliser les fichiers qui lui ont été remis. Réessayez.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>Le programme qui installe les mises à jour est absent ou pourrait être modifié par d’autres. Réinstallez l’application.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>La mise à jour n’a pas pu être décompressée dans un processus confiné, comme il le faut. Indiquez à l’éditeur de quel système il s’agit.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Cette application n’a pas de clé publique sous SUPublicEDKey, aucune mise à jour ne peut donc être authentifiée. Réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>La clé publique de cette application sous SUPublicEDKey est endommagée, aucune mise à jour ne peut donc être authentifiée. Réinstallez-la depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>La mise à jour n’est pas signée et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>La mise à jour est refusée car sa signature n’est pas valide. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>La mise à jour n’a pas été signée par l’éditeur de cette application, ou a été endommagée en chemin, et est refusée. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>Les signatures ne peuvent pas être vérifiées sur cet ordinateur. Réinstallez sa bibliothèque libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>La mise à jour téléchargée est vide. Réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>La mise à jour téléchargée ne peut pas être lue sur le disque. Vérifiez le disque et réessayez.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>La mise à jour téléchargée est plus longue ou plus courte que ne l’indique le flux. Réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Un autre programme a modifié la mise à jour téléchargée pendant sa vérification. Fermez-le et réessayez.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>La mise à jour est empaquetée d’une façon inconnue. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>L’archive de la mise à jour est endommagée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>L’archive de la mise à jour peut être lue de plusieurs façons et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>L’archive de la mise à jour est chiffrée et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>L’archive de la mise à jour est compressée d’une façon inconnue. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>La mise à jour contient un fichier dont le nom n’est pas autorisé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>La mise à jour contient un fichier dont le nom est trop long. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>La mise à jour contient un fichier qui serait placé hors de l’application et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>Les dossiers de la mise à jour sont trop imbriqués. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>La mise à jour contient quelque chose qui n’est ni un fichier, ni un dossier, ni un lien, et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>La mise à jour contient un lien physique et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>La mise à jour contient un fichier à trous et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>La mise à jour contient un fichier sans taille et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>La mise à jour contient deux fois le même fichier et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>La mise à jour contient des fichiers dont les noms ne diffèrent que par la casse ou les accents et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>La mise à jour contient un fichier placé sous quelque chose qui n’est pas un dossier et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>La mise à jour contient un lien vers un nom non autorisé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>La mise à jour contient un lien qui mène hors de l’application et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>La mise à jour contient un lien qui ne mène nulle part. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>La mise à jour contient un lien qui ramène à lui-même. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>La mise à jour contient trop de fichiers. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>La mise à jour contient trop de liens. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>La mise à jour est trop volumineuse une fois décompressée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>L’application installée a été modifiée, la petite mise à jour ne lui convient donc pas. Réinstallez l’application.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>La petite mise à jour a donné un résultat incorrect. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>La mise à jour ne contient aucune application. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>La mise à jour contient plus d’une application. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>L’application de la mise à jour n’est pas un dossier. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>L’application de la mise à jour n’a pas de fichier d’informations. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>Le fichier d’informations de l’application de la mise à jour est trop volumineux. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Le fichier d’informations de l’application de la mise à jour est illisible. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>La mise à jour désigne un programme hors de son dossier . Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>La mise à jour est celle d’une autre application et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>La mise à jour est d’une autre version que celle indiquée par le flux et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>La mise à jour n’est pas plus récente que l’application installée et est refusée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>L’application de la mise à jour n’a pas de clé publique et ne pourrait donc plus jamais être mise à jour. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>Le contenu de la mise à jour ne correspond pas à son nom de fichier. Contactez l&apos;éditeur.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>L’application de la mise à jour n’a pas de programme à lancer. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>Le programme de la mise à jour n’a pas le droit d’être lancé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>Le programme de la mise à jour est fait pour un autre type d’ordinateur. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>La mise à jour est elle-même un programme, ce que cette application n’autorise pas. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>Le programme fourni avec la mise à jour n’a pas démarré. Réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>Le programme fourni avec la mise à jour ne l’a pas installée. Réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>Le programme fourni avec la mise à jour a mis trop de temps et a été arrêté. Réessayez.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>Il n’y a pas assez d’espace sur le disque pour la mise à jour. Libérez-en et réessayez.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>Le dossier qui contient l’application ne peut pas être modifié par cet utilisateur. Adressez-vous à la personne qui l’a installée.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>Le disque a signalé une erreur. Vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>L’application ne s’est pas fermée, la mise à jour n’a donc pas été installée. Enregistrez votre travail, recherchez de nouveau les mises à jour et laissez-la se fermer.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Une autre mise à jour de cette application est en cours d’installation. Attendez qu’elle soit terminée.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>L’application installée n’est plus là où elle était au début de la mise à jour. Ouvrez-la depuis sa place et réessayez.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>L’application installée a été modifiée pendant la préparation de la mise à jour. Relancez-la et réessayez.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>La mise à jour préparée a été modifiée avant d’être installée, et a été abandonnée. Réessayez.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>La mise à jour préparée et l’application sont sur des disques différents. Réessayez et, si le problème persiste, réinstallez l’application.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>La nouvelle version n’a pas pu être mise à la place de l’ancienne, qui est restée telle quelle. Réessayez.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>Le disque n’a pas confirmé qu’il contient la mise à jour. Vérifiez-le et réessayez.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>L’application à ouvrir après la mise à jour n’a pas le droit d’être ouverte. Ouvrez-la manuellement.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>L’application mise à jour ne s’est pas ouverte. Ouvrez-la manuellement.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>L’application s’exécute dans un conteneur qui masque le propriétaire du dossier « %1 » . Démarrez-la en dehors du conteneur pour la mettre à jour.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Votre quota sur le disque ne suffit pas pour la mise à jour. Supprimez quelques-uns de vos fichiers et réessayez.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>L’utilisateur «&#xa0;%1&#xa0;» peut modifier le dossier de l’application. Utilisez la commande «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>La mise à jour ne peut pas conserver les droits d’ouverture de l’application et n’a pas été installée. Demandez à la personne qui a installé l’application de la mettre à jour.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>La nouvelle version n’a pas démarré et la précédente a été rétablie. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>L’installation de la mise à jour a été interrompue. Recherchez de nouveau les mises à jour.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>Les fichiers ne peuvent pas être verrouillés là où l’application est installée. Déplacez-la dans un dossier d’un disque local.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>Le disque qui contient l’application ne conserve pas les droits des fichiers. Déplacez l’application sur un autre disque.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>D’autres utilisateurs peuvent modifier le dossier qui contient l’application. Déplacez l’application dans un dossier à vous.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ce système ne fournit pas pidfd_open, dont les mises à jour ont besoin. Installez un noyau plus récent ou autorisez cet appel dans le conteneur ou le bac à sable.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Ce système ne fournit pas memfd_create, dont les mises à jour ont besoin. Installez un noyau plus récent ou autorisez cet appel dans le conteneur ou le bac à sable.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Tous les utilisateurs de cet ordinateur peuvent écrire dans le dossier %1, qui contient l’application. Déplacez l’application dans un dossier à vous et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Les membres du groupe «&#xa0;%1&#xa0;» peuvent modifier le dossier de l’application. Utilisez la commande «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>L’application est installée dans %1, où les fichiers ne peuvent pas être verrouillés. Déplacez-la dans un dossier d’un disque local et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>L’application dans %1 fait partie d’une couche du système de fichiers qui ne peut pas être remplacée. Copiez-la dans un autre dossier et ouvrez-la à cet endroit.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>Le flux de mises à jour n’est pas signé, comme cette application l’exige. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>Le flux de mises à jour continue après sa signature et est refusé. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>Le flux de mises à jour a plus d’une signature et est refusé. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Quelque chose a été ajouté au flux de mises à jour après sa signature. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>Les fins de ligne du flux de mises à jour ont été réécrites, sa signature ne correspond donc plus. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>Le flux de mises à jour est signé d’une façon que cette version ne connaît pas. Réinstallez l’application depuis le site de son éditeur.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>La signature du flux de mises à jour est endommagée. Réessayez et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Le flux de mises à jour n’a pas été signé par l’éditeur de cette application, ou a été modifié ensuite. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>Le flux de mises à jour n’a pas de numéro de série utilisable. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>Le flux de mises à jour n’indique pas jusqu’à quand il est valable. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Le flux de mises à jour est plus ancien qu’un flux déjà reçu. Essayez un autre réseau et, si le problème persiste, prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Le flux de mises à jour a expiré. Vérifiez l’horloge de cet ordinateur et, si elle est à l’heure, prévenez l’éditeur.</translation>
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
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>Le proxy réseau n’accepte pas votre nom d’utilisateur et votre mot de passe. Vérifiez les réglages du proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>Le flux de mises à jour n’indique pas quelles clés sont valides. Essayez un autre réseau et prévenez l’éditeur si cela n’aide pas.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour est endommagée. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour ne provient pas de l’éditeur de cette application. Essayez un autre réseau et prévenez l’éditeur si cela n’aide pas.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour concerne une autre application. Prévenez l’éditeur.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour est plus ancienne qu’une précédente. Essayez un autre réseau et prévenez l’éditeur si cela n’aide pas.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>La liste des clés valides du flux de mises à jour a expiré. Vérifiez l’horloge de cet ordinateur et prévenez l’éditeur si elle est juste.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>La clé racine de cette application est endommagée. Réinstallez l’application depuis son éditeur.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>Le flux de mises à jour est vide. Réessayez plus tard ou contactez l’éditeur.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>La mise à jour a besoin de plus de mémoire, de fichiers ou de processus que ce système n’en autorise. Fermez d’autres applications et réessayez.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>Le dossier des enregistrements de mises à jour est inutilisable. Vérifiez ses droits d’accès et son disque.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>La ligne %1 du flux commence un document qui n’est pas un flux.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Ce réseau demande une connexion. Connectez-vous et réessayez.</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 est maintenant disponible ; vous avez la version %3. Sa page indique comment l’obtenir.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;Ouvrir sa page</translation>
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
