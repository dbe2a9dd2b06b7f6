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
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>Esta aplicación no indica dónde se publican sus actualizaciones: vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>La dirección del canal de actualizaciones no es una dirección válida: vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>La dirección del canal de actualizaciones es de un tipo no permitido: debe empezar por https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>La dirección del canal de actualizaciones no es segura: debe empezar por https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>No se encontró el servidor de actualizaciones: compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>El servidor de actualizaciones rechazó la conexión: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>No se puede acceder al servidor de actualizaciones desde esta red: compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>El servidor de actualizaciones no aceptó la conexión a tiempo: compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>La conexión con el servidor de actualizaciones falló: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>El proxy de la red no dejó pasar la conexión: compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>El servidor de actualizaciones tardó demasiado en responder: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>El servidor de actualizaciones responde con demasiada lentitud: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>El certificado del servidor de actualizaciones está firmado solo por él mismo, así que su identidad no está demostrada: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>El certificado del servidor de actualizaciones procede de una autoridad que este equipo no conoce: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>El certificado del servidor de actualizaciones ha caducado: compruebe el reloj de este equipo e informe al editor si está en hora.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>El certificado del servidor de actualizaciones aún no es válido: compruebe el reloj de este equipo e informe al editor si está en hora.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>El certificado del servidor de actualizaciones se emitió para otro servidor: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>El certificado del servidor de actualizaciones no es aceptable: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>No se pudo establecer una conexión segura con el servidor de actualizaciones, ya que no ofrece ninguna lo bastante fuerte: informe al editor.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>Este equipo no puede establecer conexiones seguras: instale su biblioteca OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>El servidor de actualizaciones cerró la conexión antes de responder: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>El canal de actualizaciones llegó incompleto: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>La respuesta del servidor de actualizaciones tiene demasiados encabezados: informe al editor.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>El canal de actualizaciones es demasiado grande: informe al editor.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>La respuesta del servidor de actualizaciones no es HTTP correcto: pruebe con otra red.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>El servidor de actualizaciones indica la longitud del canal de formas contradictorias: informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>El servidor de actualizaciones envió más de lo anunciado: informe al editor.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>La respuesta del servidor de actualizaciones está dañada: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>El servidor de actualizaciones transfiere el canal de una forma que no se pidió: informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>El servidor de actualizaciones envió el canal comprimido, lo que no se pidió: informe al editor.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>El servidor de actualizaciones respondió con el estado %1: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>El servidor de actualizaciones remite a una dirección menos segura: informe al editor.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>El servidor de actualizaciones remite a una dirección de un tipo no permitido: informe al editor.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>El servidor de actualizaciones remite a algo que no es una dirección: informe al editor.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>El servidor de actualizaciones remite a otra dirección sin nombrarla: informe al editor.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>El servidor de actualizaciones remite de dirección en dirección sin fin: informe al editor.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>El archivo del canal de actualizaciones no existe: compruebe su dirección.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>La dirección del canal de actualizaciones señala una carpeta o un dispositivo: debe señalar un archivo.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>El archivo del canal de actualizaciones es demasiado grande: compruebe su dirección.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>No se puede leer el archivo del canal de actualizaciones: compruebe sus permisos.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>El canal de actualizaciones es un archivo de otro equipo: cópielo a este.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>No se puede leer el canal de actualizaciones: informe al editor.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>Llegó una página web en lugar del canal de actualizaciones: inicie sesión en esta red si lo pide e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>La aplicación eligió una actualización que no está en el canal: vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>La aplicación falló al examinar las actualizaciones: reiníciela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>El canal indica para la actualización una longitud imposible: informe al editor.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>La actualización del servidor no tiene la longitud que indica el canal: inténtelo de nuevo más tarde e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>El servidor de actualizaciones envió una parte de la actualización distinta de la que se pidió: inténtelo de nuevo más tarde.</translation>
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
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>Otra copia de la aplicación está descargando esta actualización: espere a que termine.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>No se puede usar la carpeta de actualizaciones descargadas: compruebe sus permisos y su disco.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>La carpeta de actualizaciones descargadas no es solo suya: elimínela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>La actualización necesita %1 más en el disco, donde hay %2 libres: libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>La actualización necesita %1 más de lo que permite su cuota en el disco, donde hay %2 libres: elimine archivos suyos e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>La actualización es un archivo demasiado grande para el disco de las actualizaciones descargadas: pida ayuda.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>El disco falló al escribir la actualización: compruebe el disco e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>El equipo tiene muy poca memoria o demasiados archivos abiertos para la descarga: cierre otras aplicaciones e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>No se encontró la carpeta de la aplicación, así que no se puede actualizar: ábrala desde donde está instalada.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>La aplicación se abrió a través de un enlace, así que no se puede actualizar: ábrala desde la carpeta a la que lleva el enlace.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>La aplicación fue instalada por %1, que también la actualiza: use la orden «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>La aplicación se ejecuta desde un archivo de imagen: sustituya el archivo %1 por el de la nueva versión.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>La aplicación está en un disco en el que no se puede escribir: cópiela a otra carpeta y ábrala allí.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>La carpeta de la aplicación es un disco independiente, así que no se puede sustituir: cópiela a otra carpeta y abra la aplicación allí.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>La aplicación está protegida contra cualquier cambio: pida a quien la protegió que quite el atributo de archivo «immutable» o «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>La aplicación pertenece a otro usuario de este equipo: pídale a él o al administrador que la actualice.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>No tiene permiso para cambiar la carpeta de la aplicación: pida al administrador que la actualice.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>Otros usuarios de este equipo podrían cambiar la carpeta de la aplicación, así que no se actualiza allí: pida al administrador que corrija sus permisos.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>No hay espacio para la actualización: necesita %1 y hay %2 libres. Libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>Las actualizaciones de esta aplicación están desactivadas: consulte a quien administra este equipo.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>Las últimas búsquedas de actualizaciones fallaron, así que la siguiente espera: búsquelas usted para intentarlo ahora mismo.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>La actualización se canceló: busque actualizaciones para empezar de nuevo.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>Esta aplicación no indica su identificador ni su versión, así que no se le puede asociar ninguna actualización: vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>El programa que instala las actualizaciones terminó de forma inesperada: inténtelo de nuevo y, si el problema continúa, vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>La búsqueda de actualizaciones falló: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>El canal indica para la actualización una dirección que no lo es: informe al editor.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>La dirección de la actualización es de un tipo no permitido, distinto de https: informe al editor.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>La dirección de la actualización no es segura, ya que no empieza por https: informe al editor.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>La conexión se cortó durante la descarga de la actualización: inténtelo de nuevo y continuará desde ahí.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>El servidor de actualizaciones indica la longitud de la actualización de formas contradictorias: informe al editor.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>El servidor de actualizaciones transfiere la actualización de una forma que no se pidió: informe al editor.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>El servidor de actualizaciones envió la actualización comprimida, lo que no se pidió: informe al editor.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>La línea %1 del canal no es XML bien formado.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
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
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>La línea %1 del canal supera los %2 elementos y atributos que puede tener un canal.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>La línea %1 del canal tiene el artículo número %2, pero solo se permiten %3.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>La línea %1 del canal declara más de %2 espacios de nombres.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>La línea %1 del canal empieza una página web donde se esperaba un canal.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>La línea %1 del canal tiene un error desconocido.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>La aplicación fue instalada por el gestor de paquetes del sistema, que también la actualiza: use la orden «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>No se pudo instalar la actualización: inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>El programa que instala las actualizaciones no entendió lo que se le pidió: vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>El programa que instala las actualizaciones no pudo usar los archivos que recibió: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>El programa que instala las actualizaciones falta o podría ser modificado por otros: vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>La actualización no se pudo desempaquetar en un proceso aislado, como es necesario: informe al editor de qué sistema es este.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>Esta aplicación no tiene clave pública en SUPublicEDKey, así que no se puede demostrar que una actualización sea auténtica: vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>La clave pública de esta aplicación en SUPublicEDKey está dañada, así que no se puede demostrar que una actualización sea auténtica: vuelva a instalarla desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>La actualización no está firmada y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>La firma de la actualización no es una firma, y la actualización se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>La actualización no fue firmada por el editor de esta aplicación o se dañó por el camino, y se rechaza: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>En este equipo no se pueden verificar firmas: vuelva a instalar su biblioteca libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>La actualización descargada está vacía: inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>La actualización descargada no se puede leer del disco: compruebe el disco e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>La actualización descargada es más larga o más corta de lo que indica el canal: inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>Otro programa cambió la actualización descargada mientras se verificaba: ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>La actualización está empaquetada de una forma desconocida: informe al editor.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>El archivo comprimido de la actualización está dañado: informe al editor.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>El archivo comprimido de la actualización se puede leer de más de una forma y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>El archivo comprimido de la actualización está cifrado y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>El archivo comprimido de la actualización usa una compresión desconocida: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>La actualización contiene un archivo con un nombre no permitido: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>La actualización contiene un archivo con un nombre demasiado largo: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>La actualización contiene un archivo que quedaría fuera de la aplicación y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>Las carpetas de la actualización son demasiado profundas: informe al editor.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>La actualización contiene algo que no es archivo, carpeta ni enlace, y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>La actualización contiene un enlace físico y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>La actualización contiene un archivo con huecos y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>La actualización contiene un archivo sin tamaño y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>La actualización contiene dos veces el mismo archivo y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>La actualización contiene archivos cuyos nombres solo se distinguen por las mayúsculas o los acentos y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>La actualización contiene un archivo dentro de algo que no es una carpeta y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>La actualización contiene un enlace a un nombre no permitido: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>La actualización contiene un enlace que lleva fuera de la aplicación y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>La actualización contiene un enlace que no lleva a ninguna parte: informe al editor.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>La actualización contiene un enlace que vuelve a sí mismo: informe al editor.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>La actualización contiene demasiados archivos: informe al editor.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>La actualización contiene demasiados enlaces: informe al editor.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>La actualización es demasiado grande una vez desempaquetada: informe al editor.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>La aplicación instalada fue modificada, así que la actualización pequeña no encaja con ella: vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>Lo que la actualización pequeña hizo de la aplicación no es lo que debería ser: informe al editor.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>La actualización no contiene ninguna aplicación: informe al editor.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>La actualización contiene más de una aplicación: informe al editor.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>La aplicación de la actualización no es una carpeta: informe al editor.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>La aplicación de la actualización no se describe a sí misma: informe al editor.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>La descripción de la aplicación de la actualización es demasiado grande: informe al editor.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>La descripción de la aplicación de la actualización no se puede leer: informe al editor.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>La actualización indica un programa fuera de su carpeta: avise al editor.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>La actualización es de otra aplicación y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>La actualización es de una versión distinta de la que indica el canal y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>La actualización no es más reciente que la aplicación instalada y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>La aplicación de la actualización no tiene clave pública, así que nunca más se podría actualizar: informe al editor.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>El contenido de la actualización no coincide con su nombre de archivo. Póngase en contacto con el editor.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>La aplicación de la actualización no tiene ningún programa que abrir: informe al editor.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>El programa de la actualización no tiene permiso para ejecutarse: informe al editor.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>El programa de la actualización está hecho para otro tipo de equipo: informe al editor.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>La actualización es un programa por sí misma, lo que esta aplicación no permite: informe al editor.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>El programa que acompaña a la actualización no se inició: inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>El programa que acompaña a la actualización no la instaló: inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>El programa que acompaña a la actualización tardó demasiado y se detuvo: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>No hay suficiente espacio en el disco para la actualización: libere espacio e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>Este usuario no puede cambiar la carpeta que contiene la aplicación: consulte a quien la instaló.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>El disco comunicó un error: compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>La aplicación no se cerró, así que la actualización no se instaló: guarde su trabajo, busque actualizaciones de nuevo y deje que se cierre.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>Se está instalando otra actualización de esta aplicación: espere a que termine.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>La aplicación instalada no está donde estaba al empezar la actualización: ábrala desde su lugar e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>La aplicación instalada se modificó mientras se preparaba la actualización: ábrala otra vez e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>La actualización preparada se modificó antes de poder instalarse y se descartó: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>La actualización preparada y la aplicación están en discos distintos: inténtelo de nuevo y, si el problema continúa, vuelva a instalar la aplicación.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>La nueva versión no se pudo poner en el lugar de la anterior, que sigue como estaba: inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>El disco no confirmó que contiene la actualización: compruébelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>La aplicación que debe abrirse tras la actualización no tiene permiso para abrirse: ábrala a mano.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>La aplicación actualizada no se abrió: ábrala a mano.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>La aplicación se ejecuta en un contenedor que oculta el propietario de la carpeta «%1»: iníciela fuera del contenedor para actualizarla.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>La actualización no puede conservar quién puede abrir la aplicación y no se instaló. Pida a la persona que instaló la aplicación que la actualice.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>La nueva versión no se inició y se ha restaurado la anterior. Informe al editor.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>La instalación de la actualización se interrumpió. Busque actualizaciones de nuevo.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>En el lugar donde está instalada la aplicación no se pueden bloquear archivos: muévala a una carpeta de un disco local.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>El disco que contiene la aplicación no conserva los permisos de los archivos: mueva la aplicación a otro disco.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>Otros usuarios pueden modificar la carpeta que contiene la aplicación: mueva la aplicación a una carpeta propia.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema no ofrece pidfd_open, que las actualizaciones necesitan: instale un núcleo más reciente o permita la llamada en el contenedor o en el entorno aislado.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Este sistema no ofrece memfd_create, que las actualizaciones necesitan: instale un núcleo más reciente o permita la llamada en el contenedor o en el entorno aislado.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>Todos los usuarios de este equipo pueden escribir en la carpeta %1, que contiene la aplicación: mueva la aplicación a una carpeta propia e iníciela allí.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>Los miembros del grupo «%1» pueden modificar la carpeta de la aplicación: use la orden «%2».</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>La aplicación está instalada en %1, donde no se pueden bloquear archivos: muévala a una carpeta de un disco local e iníciela allí.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>La aplicación de %1 pertenece a una capa del sistema de archivos que no se puede reemplazar: cópiela a otra carpeta e iníciela allí.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>El canal de actualizaciones no está firmado, como exige esta aplicación: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>El canal de actualizaciones continúa después de su firma y se rechaza: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>El canal de actualizaciones tiene más de una firma y se rechaza: informe al editor.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>Se añadió algo al canal de actualizaciones después de su firma: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>Se reescribieron los finales de línea del canal de actualizaciones, así que su firma no coincide: informe al editor.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>El canal de actualizaciones está firmado de una forma que esta versión no conoce: vuelva a instalar la aplicación desde el sitio de su editor.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>La firma del canal de actualizaciones está dañada: inténtelo de nuevo e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>El canal de actualizaciones no fue firmado por el editor de esta aplicación o se modificó después: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>El canal de actualizaciones no tiene un número de serie utilizable: informe al editor.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>El canal de actualizaciones no indica hasta cuándo es válido: informe al editor.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>El canal de actualizaciones es más antiguo que otro recibido antes: pruebe con otra red e informe al editor si el problema continúa.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>El canal de actualizaciones ha caducado: compruebe el reloj de este equipo e informe al editor si está en hora.</translation>
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
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>El proxy de red no acepta su nombre de usuario y contraseña. Compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>El canal de actualizaciones no indica qué claves son válidas. Pruebe con otra red e informe al editor si eso no ayuda.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones está dañada. Informe al editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>La lista de claves válidas del canal de actualizaciones no procede del editor de esta aplicación. Pruebe con otra red e informe al editor si eso no ayuda.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>La lista de claves válidas del canal de actualizaciones es de otra aplicación. Informe al editor.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>La lista de claves válidas del canal de actualizaciones es más antigua que una anterior. Pruebe con otra red e informe al editor si eso no ayuda.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>La lista de claves válidas del canal de actualizaciones ha caducado. Compruebe el reloj de este equipo e informe al editor si es correcto.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>La clave raíz de esta aplicación está dañada. Vuelva a instalar la aplicación desde su editor.</translation>
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
