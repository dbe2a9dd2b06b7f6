<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Проверка обновлений…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>LTR</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Обновление программы</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;ОК</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ErrorWindow</name>
    <message>
        <source>The update could not be completed</source>
        <translation>Не удалось завершить обновление</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>У вас установлена последняя версия.</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>В программе не указано, где публикуются её обновления. Установите её заново с сайта издателя.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>Адрес ленты обновлений недействителен. Установите программу заново.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>Адрес ленты обновлений имеет недопустимый вид. Он должен начинаться с https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>Адрес ленты обновлений небезопасен. Он должен начинаться с https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>Сервер обновлений не найден. Проверьте подключение к интернету и повторите попытку.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>Сервер обновлений отклонил соединение. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>Сервер обновлений недоступен из этой сети. Проверьте подключение и повторите попытку.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>Сервер обновлений не принял соединение вовремя. Проверьте подключение и повторите попытку.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>Не удалось соединиться с сервером обновлений. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>Прокси-сервер не пропустил соединение. Проверьте его настройки.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>Сервер обновлений слишком долго не отвечал. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>Сервер обновлений отвечает слишком медленно. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>Сертификат сервера обновлений подписан только им самим, поэтому его подлинность не доказана. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>Сертификат сервера обновлений выдан центром, который неизвестен этому компьютеру. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Срок действия сертификата сервера обновлений истёк. Проверьте часы этого компьютера; если они идут верно, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>Сертификат сервера обновлений ещё не действителен. Проверьте часы этого компьютера; если они идут верно, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>Сертификат сервера обновлений выдан для другого сервера. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>Сертификат сервера обновлений неприемлем. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>Сервер обновлений не поддерживает безопасное соединение (TLS 1.2 или новее). Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>Этот компьютер не может устанавливать безопасные соединения. Установите библиотеку OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>Сервер обновлений закрыл соединение, не ответив. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>Лента обновлений получена не полностью. Повторите попытку.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>В ответе сервера обновлений слишком много заголовков. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>Лента обновлений слишком велика. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>Ответ сервера обновлений не соответствует протоколу HTTP. Попробуйте другую сеть.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>Сервер обновлений указывает противоречивую длину ленты. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>Сервер обновлений прислал больше данных, чем объявил. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>Сервер обновлений прислал неправильный ответ. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>Сервер обновлений передаёт ленту способом, который не запрашивался. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>Сервер обновлений прислал ленту в сжатом виде, хотя это не запрашивалось. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>Сервер обновлений ответил кодом состояния %1. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>Сервер обновлений перенаправляет на менее безопасный адрес. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>Сервер обновлений перенаправляет на адрес недопустимого вида. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>Сервер обновлений перенаправляет на то, что не является адресом. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>Сервер обновлений перенаправляет на другой адрес, не называя его. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>Сервер обновлений бесконечно перенаправляет с адреса на адрес. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>Файл ленты обновлений не существует. Проверьте его адрес.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>Адрес ленты обновлений указывает на папку или устройство. Он должен указывать на файл.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>Файл ленты обновлений слишком велик. Проверьте его адрес.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>Не удалось прочитать файл ленты обновлений. Проверьте права доступа к нему.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>Лента обновлений — это файл другого компьютера. Скопируйте его на этот.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>Не удалось прочитать ленту обновлений. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>Вместо ленты обновлений получена веб-страница. Войдите в эту сеть, если она этого требует, и повторите попытку.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>Программа выбрала обновление, которого нет в ленте. Установите программу заново.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>Произошёл сбой программы при просмотре обновлений. Перезапустите её и повторите попытку.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>В ленте указана невозможная длина обновления. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>Длина обновления на сервере отличается от указанной в ленте. Повторите попытку позже, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>Сервер обновлений прислал не ту часть обновления, которая запрашивалась. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>Сервер обновлений отправил вдвое больше данных, чем занимает обновление, но так и не отправил его целиком. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>Соединение с сервером обновлений прерывалось слишком часто. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>Загрузка обновления длилась слишком долго и была остановлена. Повторите попытку при более быстром соединении.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>Обновление ещё не загружено полностью. Следующая проверка продолжит загрузку.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>Другая копия программы загружает это обновление. Дождитесь окончания.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>Папку загруженных обновлений нельзя использовать. Проверьте права доступа к ней и её диск.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>Папка загруженных обновлений принадлежит не только вам. Удалите её и повторите попытку.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>Для обновления нужно ещё %1 на диске, где свободно %2. Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>Вашей квоты на диске не хватает для обновления, которому нужно %1. Удалите часть своих файлов и повторите попытку.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>Файл обновления слишком велик для диска загруженных обновлений. Обратитесь к тому, кто управляет этим компьютером.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>Произошёл сбой диска при записи обновления. Проверьте диск и повторите попытку.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>Для загрузки не хватает памяти или открыто слишком много файлов. Закройте другие программы и повторите попытку.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>Папка программы не найдена, поэтому обновить её нельзя. Запустите программу оттуда, где она установлена.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>Программа запущена по ссылке, поэтому обновить её нельзя. Запустите её из папки, на которую указывает ссылка.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>Программу установил %1, он же её и обновляет. Используйте команду «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>Программа работает из файла образа. Замените файл %1 файлом новой версии.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>Программа находится на диске, недоступном для записи. Скопируйте её в другую папку и запустите оттуда.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>Папка программы является отдельным диском или содержит его, поэтому заменить её нельзя. Скопируйте её в другую папку и запустите программу оттуда.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>Программа защищена от любых изменений. Попросите того, кто её защитил, снять атрибут файла «immutable» или «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>Программа принадлежит другому пользователю этого компьютера. Попросите его или администратора обновить её.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>У вас нет прав на изменение папки программы. Попросите администратора обновить её.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>Другие пользователи этого компьютера могут изменить папку программы, поэтому там она не обновляется. Попросите администратора исправить права доступа.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>Для обновления нужно %1, а свободно только %2. Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>Обновления этой программы отключены. Обратитесь к тому, кто управляет этим компьютером.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>Последние проверки обновлений не удались, поэтому следующая отложена. Проверьте обновления вручную, чтобы не ждать.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>Обновление отменено. Проверьте обновления, чтобы начать заново.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>В программе не указаны её идентификатор и версия, поэтому подобрать для неё обновление нельзя. Установите её заново с сайта издателя.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>Программа установки обновлений неожиданно завершилась. Повторите попытку, а если это не поможет, установите программу заново.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>Не удалось проверить обновления. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>В ленте вместо адреса обновления указано то, что адресом не является. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>Адрес обновления имеет недопустимый вид, не https. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>Адрес обновления небезопасен, так как не начинается с https. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>Соединение прервалось при загрузке обновления. Повторите попытку, загрузка продолжится с того же места.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>Сервер обновлений указывает противоречивую длину обновления. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>Сервер обновлений передаёт обновление способом, который не запрашивался. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>Сервер обновлений прислал обновление в сжатом виде, хотя это не запрашивалось. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>Строка %1 ленты не является правильно построенным XML.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>Строка %1 ленты содержит объявление типа документа, недопустимое в ленте.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>Строка %1 ленты содержит элементы с глубиной вложенности больше %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>Строка %1 ленты содержит тег с числом атрибутов больше %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>Строка %1 ленты содержит тег длиной больше %2 байт.</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>Строка %1 ленты превышает допустимое число элементов и атрибутов: %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>Строка %1 ленты содержит элемент номер %3, но допустимо только %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>Строка %1 ленты объявляет больше пространств имён, чем %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>В строке %1 ленты начинается веб-страница, хотя ожидалась лента.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>Программу установил системный менеджер пакетов, он же её и обновляет. Используйте команду «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>Не удалось установить обновление. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>Программа установки обновлений не поняла задание. Установите программу заново.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>Программа установки обновлений не смогла использовать переданные ей файлы. Повторите попытку.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>Программа установки обновлений отсутствует или может быть изменена другими. Установите программу заново.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>Обновление не удалось распаковать в изолированном процессе, как это необходимо. Сообщите издателю, какая это система.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>В программе нет открытого ключа SUPublicEDKey, поэтому подлинность обновлений доказать нельзя. Установите её заново с сайта издателя.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>Открытый ключ программы SUPublicEDKey повреждён, поэтому подлинность обновлений доказать нельзя. Установите её заново с сайта издателя.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>Обновление не подписано и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>Обновление отклонено, так как его подпись недействительна. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Обновление не подписано издателем этой программы или повреждено при передаче и отклонено. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>На этом компьютере нельзя проверять подписи. Установите заново библиотеку libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>Загруженное обновление пусто. Повторите попытку, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>Не удалось прочитать загруженное обновление с диска. Проверьте диск и повторите попытку.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>Загруженное обновление длиннее или короче, чем указано в ленте. Повторите попытку, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>Другая программа изменила загруженное обновление во время проверки. Закройте её и повторите попытку.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>Обновление упаковано неизвестным способом. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>Архив обновления повреждён. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>Архив обновления можно прочитать несколькими способами, он отклонён. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>Архив обновления зашифрован, он отклонён. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>Архив обновления сжат неизвестным способом. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>Обновление содержит файл с недопустимым именем. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>Обновление содержит файл со слишком длинным именем. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>Обновление содержит файл, который оказался бы за пределами программы, и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>Папки обновления вложены слишком глубоко. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>Обновление содержит то, что не является ни файлом, ни папкой, ни ссылкой, и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>Обновление содержит жёсткую ссылку и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>Обновление содержит файл с пропусками и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>Обновление содержит файл без размера и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>Обновление содержит один и тот же файл дважды и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>Обновление содержит файлы, имена которых отличаются только регистром или диакритическими знаками, и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>Обновление содержит файл внутри того, что не является папкой, и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>Обновление содержит ссылку на недопустимое имя. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>Обновление содержит ссылку, ведущую за пределы программы, и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>Обновление содержит ссылку, ведущую в никуда. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>Обновление содержит ссылку, ведущую на саму себя. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>Обновление содержит слишком много файлов. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>Обновление содержит слишком много ссылок. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>Обновление после распаковки слишком велико. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>Установленная программа была изменена, поэтому малое обновление к ней не подходит. Установите программу заново.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>Малое обновление дало неверный результат. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>Обновление не содержит программы. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>Обновление содержит более одной программы. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>Программа в обновлении не является папкой. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>У программы в обновлении нет файла сведений. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>Файл сведений программы в обновлении слишком велик. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>Не удалось прочитать файл сведений программы в обновлении. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>В обновлении указана программа вне его папки. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>Обновление предназначено для другой программы и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>Версия обновления отличается от указанной в ленте, обновление отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>Обновление не новее установленной программы и отклонено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>У программы в обновлении нет открытого ключа, её больше никогда нельзя было бы обновить. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>Содержимое обновления не соответствует имени его файла. Обратитесь к издателю.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>В программе из обновления нечего запускать. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>Программу из обновления нельзя запускать. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>Программа в обновлении предназначена для компьютеров другого типа. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>Обновление — это отдельная программа, что здесь не разрешено. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>Программа из комплекта обновления не запустилась. Повторите попытку, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>Программа из комплекта обновления не установила его. Повторите попытку, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>Программа из комплекта обновления работала слишком долго и была завершена. Повторите попытку.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>На диске недостаточно места для обновления. Освободите место и повторите попытку.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>Этот пользователь не может изменять папку, в которой находится программа. Обратитесь к тому, кто её установил.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>Диск сообщил об ошибке. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>Программа не закрылась, поэтому обновление не установлено. Сохраните свою работу, снова проверьте обновления и дайте программе закрыться.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>Устанавливается другое обновление этой программы. Дождитесь окончания.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>Установленная программа находится не там, где была в начале обновления. Запустите её с её места и повторите попытку.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>Установленная программа была изменена во время подготовки обновления. Запустите её снова и повторите попытку.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>Подготовленное обновление было изменено до установки и отброшено. Повторите попытку.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>Подготовленное обновление и программа находятся на разных дисках. Повторите попытку, а если это не поможет, установите программу заново.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>Не удалось поставить новую версию на место старой; старая осталась без изменений. Повторите попытку.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>Диск не подтвердил, что обновление записано. Проверьте его и повторите попытку.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>Программу, которая должна запуститься после обновления, запускать нельзя. Запустите её вручную.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>Обновлённая программа не запустилась. Запустите её вручную.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>Приложение работает в контейнере, который скрывает владельца папки «%1». Чтобы обновить приложение, запустите его вне контейнера.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>Вашей квоты на диске не хватает для обновления. Удалите часть своих файлов и повторите попытку.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Пользователь «%1» может изменять папку приложения. Используйте команду «%2».</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>Обновление не может сохранить права на открытие приложения и не установлено. Попросите того, кто установил приложение, обновить его.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>Новая версия не запустилась, и восстановлена предыдущая. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>Установка обновления была прервана. Проверьте наличие обновлений ещё раз.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>Там, где установлено приложение, нельзя блокировать файлы. Переместите его в папку на локальном диске.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>Диск, на котором находится приложение, не хранит права доступа к файлам. Переместите приложение на другой диск.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>Другие пользователи могут изменять папку, в которой находится приложение. Переместите приложение в собственную папку.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Эта система не предоставляет pidfd_open, необходимый для обновлений. Установите более новое ядро или разрешите этот вызов в контейнере или песочнице.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>Эта система не предоставляет memfd_create, необходимый для обновлений. Установите более новое ядро или разрешите этот вызов в контейнере или песочнице.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>Любой пользователь этого компьютера может записывать в папку %1, в которой находится приложение. Переместите приложение в собственную папку и запустите его оттуда.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>Участники группы «%1» могут изменять папку приложения. Используйте команду «%2».</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>Приложение установлено в %1, где нельзя блокировать файлы. Переместите его в папку на локальном диске и запустите оттуда.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>Приложение в %1 относится к слою файловой системы, который нельзя заменить. Скопируйте его в другую папку и запустите оттуда.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>Лента обновлений не подписана, как того требует эта программа. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>Лента обновлений продолжается после своей подписи и отклонена. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>Лента обновлений содержит больше одной подписи и отклонена. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>В ленту обновлений что-то добавлено после подписания. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>Окончания строк ленты обновлений переписаны, поэтому её подпись не подходит. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>Лента обновлений подписана способом, неизвестным этой версии. Установите программу заново с сайта издателя.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>Подпись ленты обновлений повреждена. Повторите попытку, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Лента обновлений не подписана издателем этой программы или изменена после подписания. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>В ленте обновлений нет пригодного порядкового номера. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>В ленте обновлений не указан срок её действия. Сообщите об этом издателю.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Лента обновлений старше полученной ранее. Попробуйте другую сеть, а если это не поможет, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Срок действия ленты обновлений истёк. Проверьте часы этого компьютера; если они идут верно, сообщите издателю.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>Сервер обновлений ведёт на адрес внутри вашего компьютера или сетевого подключения. Обратитесь к издателю.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>Сетевой прокси отказывается подключаться к серверу обновлений. Обратитесь к администратору сети.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>Сетевой прокси не принимает ваши имя пользователя и пароль. Проверьте настройки прокси.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>В ленте обновлений не указано, какие ключи действительны. Попробуйте другую сеть и сообщите издателю, если это не поможет.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>Список действительных ключей в ленте обновлений повреждён. Сообщите издателю.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>Список действительных ключей в ленте обновлений создан не издателем этого приложения. Попробуйте другую сеть и сообщите издателю, если это не поможет.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>Список действительных ключей в ленте обновлений относится к другому приложению. Сообщите издателю.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>Список действительных ключей в ленте обновлений старее полученного ранее. Попробуйте другую сеть и сообщите издателю, если это не поможет.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>Срок действия списка ключей в ленте обновлений истёк. Проверьте часы этого компьютера и сообщите издателю, если они верны.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>Корневой ключ этого приложения повреждён. Установите приложение заново от его издателя.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>Лента обновлений пуста. Повторите попытку позже или обратитесь к издателю.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>Обновлению нужно больше памяти, файлов или процессов, чем разрешает эта система. Закройте другие приложения и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>Папку для записей об обновлениях нельзя использовать. Проверьте права доступа к ней и её диск.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>В строке %1 ленты начинается документ, который не является лентой.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>Эта сеть требует входа. Войдите и повторите попытку.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/с</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>Осталась примерно %Ln секунда</numerusform>
            <numerusform>Осталось примерно %Ln секунды</numerusform>
            <numerusform>Осталось примерно %Ln секунд</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>Осталась примерно %Ln минута</numerusform>
            <numerusform>Осталось примерно %Ln минуты</numerusform>
            <numerusform>Осталось примерно %Ln минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>Остался примерно %Ln час</numerusform>
            <numerusform>Осталось примерно %Ln часа</numerusform>
            <numerusform>Осталось примерно %Ln часов</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Загрузка %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>Проверка и распаковка %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>Ход обновления</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Ожидание ответа сервера…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>Готово к установке</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2: загрузка и проверка завершены. Для установки программа %1 будет закрыта и открыта снова.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Позже</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;Установить и перезапустить</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>У вас последняя версия!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 — самая новая из доступных версий.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>Доступна новая версия %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>Доступна версия %1 %2; у вас установлена %3. Загрузить её сейчас?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>Это важное обновление: его следует установить в ближайшее время.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>Размер загрузки: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Описание изменений</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>Показать описание изменений в &amp;браузере</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Пропустить эту версию</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Напомнить позже</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>&amp;Установить обновление</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>Доступна версия %2 программы %1; у вас установлена %3. На её странице сказано, как её получить.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;Открыть страницу</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>Часть этого приложения, нужная для обновлений, отсутствует или повреждена. Переустановите приложение.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>Обновление уже выполняется. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>Новая версия %1 %2 готова к установке</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>Обновление %1 %2 загружено и ожидает вашего подтверждения. Установить обновление и перезапустить %1 сейчас?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>Установить и перезапустить</translation>
    </message>
</context>
</TS>
