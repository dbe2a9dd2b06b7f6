<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ErrorWindow</name>
    <message>
        <source>The update could not be completed</source>
        <translation>No se ha podido completar la actualización</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>Está usando la versión más reciente.</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>Esta aplicación no indica dónde se publican sus actualizaciones. Vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>La dirección del canal de actualizaciones no es una dirección válida. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>La dirección del canal de actualizaciones es de un tipo no permitido. Debe empezar por https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>La dirección del canal de actualizaciones no es segura. Debe empezar por https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>No se encontró el servidor de actualizaciones. Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>El servidor de actualizaciones rechazó la conexión. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>No se puede acceder al servidor de actualizaciones desde esta red. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>El servidor de actualizaciones no aceptó la conexión a tiempo. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>La conexión con el servidor de actualizaciones falló. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>El proxy de la red no dejó pasar la conexión. Compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>El servidor de actualizaciones tardó demasiado en responder. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>El servidor de actualizaciones responde con demasiada lentitud. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>El certificado del servidor de actualizaciones está firmado solo por él mismo, así que su identidad no está demostrada. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>El certificado del servidor de actualizaciones procede de una autoridad que este equipo no conoce. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>El certificado del servidor de actualizaciones ha caducado. Compruebe el reloj de este equipo e informe al editor si está en hora.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>El certificado del servidor de actualizaciones aún no es válido. Compruebe el reloj de este equipo e informe al editor si está en hora.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>El certificado del servidor de actualizaciones se emitió para otro servidor. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>El certificado del servidor de actualizaciones no es aceptable. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>El servidor de actualizaciones no admite una conexión segura (TLS 1.2 o posterior). Informe al editor.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Este equipo no puede establecer conexiones seguras. Instale su biblioteca OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>El servidor de actualizaciones cerró la conexión antes de responder. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>El canal de actualizaciones llegó incompleto. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>La respuesta del servidor de actualizaciones tiene demasiados encabezados. Informe al editor.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>El canal de actualizaciones es demasiado grande. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>La respuesta del servidor de actualizaciones no es HTTP correcto. Pruebe con otra red.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>El servidor de actualizaciones indica la longitud del canal de formas contradictorias. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>El servidor de actualizaciones envió más de lo anunciado. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>El servidor de actualizaciones envió una respuesta no válida. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>El servidor de actualizaciones transfiere el canal de una forma que no se pidió. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>El servidor de actualizaciones envió el canal comprimido, lo que no se pidió. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>El servidor de actualizaciones respondió con el estado %1. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>El servidor de actualizaciones remite a una dirección menos segura. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>El servidor de actualizaciones remite a una dirección de un tipo no permitido. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>El servidor de actualizaciones remite a algo que no es una dirección. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>El servidor de actualizaciones remite a otra dirección sin nombrarla. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>El servidor de actualizaciones remite de dirección en dirección sin fin. Informe al editor.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>El archivo del canal de actualizaciones no existe. Compruebe su dirección.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>La dirección del canal de actualizaciones señala una carpeta o un dispositivo. Debe señalar un archivo.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>El archivo del canal de actualizaciones es demasiado grande. Compruebe su dirección.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>No se puede leer el archivo del canal de actualizaciones. Compruebe sus permisos.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>El canal de actualizaciones es un archivo de otro equipo. Cópielo a este.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>No se puede leer el canal de actualizaciones. Informe al editor.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Llegó una página web en lugar del canal de actualizaciones. Inicie sesión en esta red si lo pide e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>La aplicación eligió una actualización que no está en el canal. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>La aplicación falló al examinar las actualizaciones. Reiníciela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>El canal indica para la actualización una longitud imposible. Informe al editor.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>La actualización del servidor no tiene la longitud que indica el canal. Inténtelo de nuevo más tarde e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>El servidor de actualizaciones envió una parte de la actualización distinta de la que se pidió. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>El servidor de actualizaciones envió el doble del tamaño de la actualización, pero nunca la actualización completa. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>La conexión con el servidor de actualizaciones se interrumpió demasiadas veces. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>La descarga de la actualización tardó demasiado y se detuvo. Inténtelo de nuevo con una conexión más rápida.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>La actualización aún no se ha descargado por completo. La próxima comprobación continuará la descarga.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Otra copia de la aplicación está descargando esta actualización. Espere a que termine.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>No se puede usar la carpeta de actualizaciones descargadas. Compruebe sus permisos y su disco.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>La carpeta de actualizaciones descargadas no es solo suya. Elimínela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>La actualización necesita %1 más en el disco, donde hay %2 libres. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Su cuota de disco no alcanza para la actualización, que necesita %1. Elimine algunos de sus archivos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>La actualización es un archivo demasiado grande para el disco de las actualizaciones descargadas. Consulte a quien administra este equipo.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>El disco falló al escribir la actualización. Compruebe el disco e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>El equipo tiene muy poca memoria o demasiados archivos abiertos para la descarga. Cierre otras aplicaciones e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>No se encontró la carpeta de la aplicación, así que no se puede actualizar. Ábrala desde donde está instalada.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>La aplicación se abrió a través de un enlace, así que no se puede actualizar. Ábrala desde la carpeta a la que lleva el enlace.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>La aplicación fue instalada por %1, que también la actualiza. Use la orden «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>La aplicación se ejecuta desde un archivo de imagen. Sustituya el archivo %1 por el de la nueva versión.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>La aplicación está en un disco en el que no se puede escribir. Cópiela a otra carpeta y ábrala allí.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>La carpeta de la aplicación es un disco independiente o contiene uno, así que no se puede sustituir. Cópiela a otra carpeta y abra la aplicación allí.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>La aplicación está protegida contra cualquier cambio. Pida a quien la protegió que quite el atributo de archivo «immutable» o «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>La aplicación pertenece a otro usuario de este equipo. Pídale a él o al administrador que la actualice.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>No tiene permiso para cambiar la carpeta de la aplicación. Pida al administrador que la actualice.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Otros usuarios de este equipo podrían cambiar la carpeta de la aplicación, así que no se actualiza allí. Pida al administrador que corrija sus permisos.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>La actualización necesita %1 de espacio y solo hay %2 libres. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Las actualizaciones de esta aplicación están desactivadas. Consulte a quien administra este equipo.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>Las últimas búsquedas de actualizaciones fallaron, así que la siguiente espera. Búsquelas usted para intentarlo ahora mismo.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>La actualización se canceló. Busque actualizaciones para empezar de nuevo.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>Esta aplicación no indica su identificador ni su versión, así que no se le puede asociar ninguna actualización. Vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>El programa que instala las actualizaciones terminó de forma inesperada. Inténtelo de nuevo y, si el problema continúa, vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>La búsqueda de actualizaciones falló. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>El canal indica para la actualización una dirección que no lo es. Informe al editor.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>La dirección de la actualización es de un tipo no permitido, distinto de https. Informe al editor.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>La dirección de la actualización no es segura, ya que no empieza por https. Informe al editor.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>La conexión se cortó durante la descarga de la actualización. Inténtelo de nuevo y continuará desde ahí.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>El servidor de actualizaciones indica la longitud de la actualización de formas contradictorias. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>El servidor de actualizaciones transfiere la actualización de una forma que no se pidió. Informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>El servidor de actualizaciones envió la actualización comprimida, lo que no se pidió. Informe al editor.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>La línea %1 del canal no es XML bien formado.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>La línea %1 del canal tiene una declaración de tipo de documento, que un canal no puede tener.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>La línea %1 del canal anida elementos a más de %2 niveles de profundidad.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>La línea %1 del canal tiene una etiqueta con más de %2 atributos.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>La línea %1 del canal tiene una etiqueta de más de %2 bytes.</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>La línea %1 del canal supera los %2 elementos y atributos que puede tener un canal.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>La línea %1 del canal tiene el artículo número %3, pero solo se permiten %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>La línea %1 del canal declara más de %2 espacios de nombres.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>La línea %1 del canal empieza una página web donde se esperaba un canal.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>La aplicación fue instalada por el gestor de paquetes del sistema, que también la actualiza. Use la orden «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>No se pudo instalar la actualización. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>El programa que instala las actualizaciones no entendió lo que se le pidió. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>El programa que instala las actualizaciones no pudo usar los archivos que recibió. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>El programa que instala las actualizaciones falta o podría ser modificado por otros. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>La actualización no se pudo desempaquetar en un proceso aislado, como es necesario. Informe al editor de qué sistema es este.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Esta aplicación no tiene clave pública en SUPublicEDKey, así que no se puede demostrar que una actualización sea auténtica. Vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>La clave pública de esta aplicación en SUPublicEDKey está dañada, así que no se puede demostrar que una actualización sea auténtica. Vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>La actualización no está firmada y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>La actualización se rechaza porque su firma no es válida. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>La actualización no fue firmada por el editor de esta aplicación o se dañó por el camino, y se rechaza. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>En este equipo no se pueden verificar firmas. Vuelva a instalar su biblioteca libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>La actualización descargada está vacía. Inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>La actualización descargada no se puede leer del disco. Compruebe el disco e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>La actualización descargada es más larga o más corta de lo que indica el canal. Inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Otro programa cambió la actualización descargada mientras se verificaba. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>La actualización está empaquetada de una forma desconocida. Informe al editor.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>El archivo comprimido de la actualización está dañado. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>El archivo comprimido de la actualización se puede leer de más de una forma y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>El archivo comprimido de la actualización está cifrado y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>El archivo comprimido de la actualización usa una compresión desconocida. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>La actualización contiene un archivo con un nombre no permitido. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>La actualización contiene un archivo con un nombre demasiado largo. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>La actualización contiene un archivo que quedaría fuera de la aplicación y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>Las carpetas de la actualización son demasiado profundas. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>La actualización contiene algo que no es archivo, carpeta ni enlace, y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>La actualización contiene un enlace físico y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>La actualización contiene un archivo con huecos y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>La actualización contiene un archivo sin tamaño y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>La actualización contiene dos veces el mismo archivo y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>La actualización contiene archivos cuyos nombres solo se distinguen por las mayúsculas o los acentos y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>La actualización contiene un archivo dentro de algo que no es una carpeta y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>La actualización contiene un enlace a un nombre no permitido. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>La actualización contiene un enlace que lleva fuera de la aplicación y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>La actualización contiene un enlace que no lleva a ninguna parte. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>La actualización contiene un enlace que vuelve a sí mismo. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>La actualización contiene demasiados archivos. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>La actualización contiene demasiados enlaces. Informe al editor.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>La actualización es demasiado grande una vez desempaquetada. Informe al editor.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>La aplicación instalada fue modificada, así que la actualización pequeña no encaja con ella. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>La actualización pequeña dio un resultado incorrecto. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>La actualización no contiene ninguna aplicación. Informe al editor.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>La actualización contiene más de una aplicación. Informe al editor.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>La aplicación de la actualización no es una carpeta. Informe al editor.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>La aplicación de la actualización no tiene archivo de información. Informe al editor.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>El archivo de información de la aplicación de la actualización es demasiado grande. Informe al editor.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>El archivo de información de la aplicación de la actualización no se puede leer. Informe al editor.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>La actualización indica un programa fuera de su carpeta. Avise al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>La actualización es de otra aplicación y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>La actualización es de una versión distinta de la que indica el canal y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>La actualización no es más reciente que la aplicación instalada y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>La aplicación de la actualización no tiene clave pública, así que nunca más se podría actualizar. Informe al editor.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>El contenido de la actualización no coincide con su nombre de archivo. Póngase en contacto con el editor.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>La aplicación de la actualización no tiene ningún programa que abrir. Informe al editor.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>El programa de la actualización no tiene permiso para ejecutarse. Informe al editor.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>El programa de la actualización está hecho para otro tipo de equipo. Informe al editor.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>La actualización es un programa por sí misma, lo que esta aplicación no permite. Informe al editor.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>El programa que acompaña a la actualización no se inició. Inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>El programa que acompaña a la actualización no la instaló. Inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>El programa que acompaña a la actualización tardó demasiado y se detuvo. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>No hay suficiente espacio en el disco para la actualización. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>Este usuario no puede cambiar la carpeta que contiene la aplicación. Consulte a quien la instaló.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>El disco comunicó un error. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>La aplicación no se cerró, así que la actualización no se instaló. Guarde su trabajo, busque actualizaciones de nuevo y deje que se cierre.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Se está instalando otra actualización de esta aplicación. Espere a que termine.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>La aplicación instalada no está donde estaba al empezar la actualización. Ábrala desde su lugar e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>La aplicación instalada se modificó mientras se preparaba la actualización. Ábrala otra vez e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>La actualización preparada se modificó antes de poder instalarse y se descartó. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>La actualización preparada y la aplicación están en discos distintos. Inténtelo de nuevo y, si el problema continúa, vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>La nueva versión no se pudo poner en el lugar de la anterior, que sigue como estaba. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>El disco no confirmó que contiene la actualización. Compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>La aplicación que debe abrirse tras la actualización no tiene permiso para abrirse. Ábrala a mano.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>La aplicación actualizada no se abrió. Ábrala a mano.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>La aplicación se ejecuta en un contenedor que oculta el propietario de la carpeta «%1». Iníciela fuera del contenedor para actualizarla.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Su cuota de disco no alcanza para la actualización. Elimine algunos de sus archivos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>El usuario «%1» puede modificar la carpeta de la aplicación. Use la orden «%2».</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>La actualización no puede conservar quién puede abrir la aplicación y no se instaló. Pida a la persona que instaló la aplicación que la actualice.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>La nueva versión no se inició y se ha restaurado la anterior. Informe al editor.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>La instalación de la actualización se interrumpió. Busque actualizaciones de nuevo.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>En el lugar donde está instalada la aplicación no se pueden bloquear archivos. Muévala a una carpeta de un disco local.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>El disco que contiene la aplicación no conserva los permisos de los archivos. Mueva la aplicación a otro disco.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Otros usuarios pueden modificar la carpeta que contiene la aplicación. Mueva la aplicación a una carpeta propia.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema no ofrece pidfd_open, que las actualizaciones necesitan. Instale un núcleo más reciente o permita la llamada en el contenedor o en el entorno aislado.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema no ofrece memfd_create, que las actualizaciones necesitan. Instale un núcleo más reciente o permita la llamada en el contenedor o en el entorno aislado.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Todos los usuarios de este equipo pueden escribir en la carpeta %1, que contiene la aplicación. Mueva la aplicación a una carpeta propia e iníciela allí.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Los miembros del grupo «%1» pueden modificar la carpeta de la aplicación. Use la orden «%2».</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>La aplicación está instalada en %1, donde no se pueden bloquear archivos. Muévala a una carpeta de un disco local e iníciela allí.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>La aplicación de %1 pertenece a una capa del sistema de archivos que no se puede reemplazar. Cópiela a otra carpeta e iníciela allí.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>El canal de actualizaciones no está firmado, como exige esta aplicación. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>El canal de actualizaciones continúa después de su firma y se rechaza. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>El canal de actualizaciones tiene más de una firma y se rechaza. Informe al editor.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>Se añadió algo al canal de actualizaciones después de su firma. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>Se reescribieron los finales de línea del canal de actualizaciones, así que su firma no coincide. Informe al editor.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>El canal de actualizaciones está firmado de una forma que esta versión no conoce. Vuelva a instalar la aplicación desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>La firma del canal de actualizaciones está dañada. Inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>El canal de actualizaciones no fue firmado por el editor de esta aplicación o se modificó después. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>El canal de actualizaciones no tiene un número de serie utilizable. Informe al editor.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>El canal de actualizaciones no indica hasta cuándo es válido. Informe al editor.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>El canal de actualizaciones es más antiguo que otro recibido antes. Pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>El canal de actualizaciones ha caducado. Compruebe el reloj de este equipo e informe al editor si está en hora.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>El servidor de actualizaciones remite a una dirección de su propio equipo o de su enlace de red. Póngase en contacto con el editor.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>El proxy de red se niega a conectar con el servidor de actualizaciones. Consulte al administrador de su red.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>El proxy de red no acepta su nombre de usuario y contraseña. Compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>El canal de actualizaciones no indica qué claves son válidas. Pruebe con otra red e informe al editor si eso no ayuda.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones está dañada. Informe al editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones no procede del editor de esta aplicación. Pruebe con otra red e informe al editor si eso no ayuda.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones es de otra aplicación. Informe al editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones es más antigua que una anterior. Pruebe con otra red e informe al editor si eso no ayuda.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones ha caducado. Compruebe el reloj de este equipo e informe al editor si es correcto.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>La clave raíz de esta aplicación está dañada. Vuelva a instalar la aplicación desde su editor.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>El canal de actualizaciones está vacío. Inténtelo más tarde o póngase en contacto con el editor.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>La actualización necesita más memoria, archivos o procesos de los que permite este sistema. Cierre otras aplicaciones e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>No se puede usar la carpeta para los registros de actualizaciones. Compruebe sus permisos y su disco.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>La línea %1 del canal empieza un documento que no es un canal.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Esta red pide que inicie sesión. Inicie sesión e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/s</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Queda aproximadamente %Ln segundo</numerusform>
            <numerusform>Quedan aproximadamente %Ln segundos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Queda aproximadamente %Ln minuto</numerusform>
            <numerusform>Quedan aproximadamente %Ln minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Queda aproximadamente %Ln hora</numerusform>
            <numerusform>Quedan aproximadamente %Ln horas</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Descargando %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Verificando y descomprimiendo %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Progreso de la actualización</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Esperando al servidor…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Listo para instalar</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 se ha descargado y verificado. Para instalarlo, %1 se cerrará y se volverá a abrir.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Instalar y reiniciar</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>¡Todo está actualizado!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 es actualmente la versión más reciente disponible.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>¡Hay una nueva versión de %1 disponible!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 ya está disponible; usted tiene la versión %3. ¿Desea descargarla ahora?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Esta actualización es importante: conviene instalarla pronto.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Tamaño de la descarga: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Mostrar las &amp;notas de la versión en el navegador</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Omitir esta versión</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Recordármelo más tarde</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>&amp;Instalar actualización</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 ya está disponible; usted tiene la versión %3. Su página explica cómo obtenerla.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;Abrir su página</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Falta o está dañada una parte de esta aplicación que necesitan las actualizaciones. Vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Ya hay una actualización en curso. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Una nueva versión de %1 %2 está lista para instalarse</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>La actualización %1 %2 se ha descargado y espera su aprobación. ¿Desea instalarla y reiniciar %1 ahora?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Instalar y reiniciar</translation>
    </message>
</context>
</TS>
