<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>جارٍ البحث عن تحديثات…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;C)</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>RTL</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>تحديث البرنامج</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>حسنًا (&amp;O)</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ErrorWindow</name>
    <message>
        <source>The update could not be completed</source>
        <translation>تعذّر إكمال التحديث</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1/ث</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>أقل من ثانية متبقية</numerusform>
            <numerusform>ثانية واحدة متبقية تقريبًا</numerusform>
            <numerusform>ثانيتان متبقيتان تقريبًا</numerusform>
            <numerusform>%Ln ثوانٍ متبقية تقريبًا</numerusform>
            <numerusform>%Ln ثانية متبقية تقريبًا</numerusform>
            <numerusform>%Ln ثانية متبقية تقريبًا</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>أقل من دقيقة متبقية</numerusform>
            <numerusform>دقيقة واحدة متبقية تقريبًا</numerusform>
            <numerusform>دقيقتان متبقيتان تقريبًا</numerusform>
            <numerusform>%Ln دقائق متبقية تقريبًا</numerusform>
            <numerusform>%Ln دقيقة متبقية تقريبًا</numerusform>
            <numerusform>%Ln دقيقة متبقية تقريبًا</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>أقل من ساعة متبقية</numerusform>
            <numerusform>ساعة واحدة متبقية تقريبًا</numerusform>
            <numerusform>ساعتان متبقيتان تقريبًا</numerusform>
            <numerusform>%Ln ساعات متبقية تقريبًا</numerusform>
            <numerusform>%Ln ساعة متبقية تقريبًا</numerusform>
            <numerusform>%Ln ساعة متبقية تقريبًا</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>جارٍ تنزيل %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>جارٍ التحقق من %1 %2 وفك حزمته…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>تقدّم التحديث</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>في انتظار الخادم…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>جاهز للتثبيت</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>تم تنزيل %1 %2 والتحقق منه. لتثبيته، سيُغلق %1 ثم يُفتح من جديد.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>لاحقًا (&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>تثبيت وإعادة تشغيل (&amp;I)</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>لديك أحدث إصدار!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 هو أحدث إصدار متوفر حاليًا.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>يتوفر إصدار جديد من %1!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>يتوفر الآن %1 %2، والإصدار لديك هو %3. هل تريد تنزيله الآن؟</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>هذا التحديث مهم: يُستحسن تثبيته قريبًا.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>حجم التنزيل: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>ملاحظات الإصدار</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>عرض ملاحظات الإصدار في المتصفح (&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>تخطي هذا الإصدار (&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>تذكيري لاحقًا (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>تثبيت التحديث (&amp;I)</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>يوجد تحديث قيد التشغيل بالفعل. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>إصدار جديد من %1 %2 جاهز للتثبيت</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>تم تنزيل تحديث %1 %2 وهو في انتظار موافقتك. هل تريد تثبيت التحديث وإعادة تشغيل %1 الآن؟</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>تذكيري لاحقًا</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>تثبيت وإعادة تشغيل</translation>
    </message>
</context>
</TS>
