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
</context>
<context>
    <name>SparkleUpdater</name>
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
