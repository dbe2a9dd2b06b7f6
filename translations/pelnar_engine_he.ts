<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>PelnarEngine_CheckingWindow</name>
    <message>
        <source>Checking for updates…</source>
        <translation>מתבצע חיפוש עדכונים…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_EngineWindow</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;ביטול</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>Not shown: RTL in a language that is written from right to left, else LTR</comment>
        <translation>RTL</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>עדכון תוכנה</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;אישור</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ErrorWindow</name>
    <message>
        <source>The update could not be completed</source>
        <translation>לא ניתן היה להשלים את העדכון</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ProgressWindow</name>
    <message>
        <source>%1 of %2</source>
        <comment>Done and total size, for example: 1.5 MB of 40 MB</comment>
        <translation>%1 מתוך %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>A size per second, for example: 1.5 MB/s</comment>
        <translation>%1 לשנייה</translation>
    </message>
    <message numerus="yes">
        <source>About %Ln second(s) left</source>
        <translation>
            <numerusform>נותרה שנייה אחת בערך</numerusform>
            <numerusform>נותרו %Ln שניות בערך</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>נותרה דקה אחת בערך</numerusform>
            <numerusform>נותרו %Ln דקות בערך</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>נותרה שעה אחת בערך</numerusform>
            <numerusform>נותרו %Ln שעות בערך</numerusform>
        </translation>
    </message>
    <message>
        <source>Downloading %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>מתבצעת הורדה של %1 %2…</translation>
    </message>
    <message>
        <source>Verifying and unpacking %1 %2…</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>מתבצעים אימות ופריסה של %1 %2…</translation>
    </message>
    <message>
        <source>Progress of the update</source>
        <translation>התקדמות העדכון</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>ממתין לשרת…</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_ReadyWindow</name>
    <message>
        <source>Ready to install</source>
        <translation>מוכן להתקנה</translation>
    </message>
    <message>
        <source>%1 %2 has been downloaded and verified. To install it, %1 will be closed and opened again.</source>
        <comment>%1 is the application&apos;s name, %2 the new version</comment>
        <translation>%1 %2 הורד ואומת. כדי להתקין אותו, %1 ייסגר וייפתח מחדש.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;מאוחר יותר</translation>
    </message>
    <message>
        <source>&amp;Install and Relaunch</source>
        <translation>&amp;התקנה והפעלה מחדש</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpToDateWindow</name>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>הכול מעודכן!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <comment>%1 is the application&apos;s name, %2 its version</comment>
        <translation>%1 %2 היא כרגע הגרסה החדשה ביותר הזמינה.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>גרסה חדשה של %1 זמינה!</translation>
    </message>
    <message>
        <source>%1 %2 is now available; you have %3. Would you like to download it now?</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 זמין כעת; הגרסה המותקנת היא %3. האם להוריד אותו עכשיו?</translation>
    </message>
    <message>
        <source>This update is important: it should be installed soon.</source>
        <translation>העדכון הזה חשוב: כדאי להתקין אותו בהקדם.</translation>
    </message>
    <message>
        <source>Download size: %1</source>
        <comment>%1 is a size like 40 MB</comment>
        <translation>גודל ההורדה: %1</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>הערות שחרור</translation>
    </message>
    <message>
        <source>Show Release &amp;Notes in Browser</source>
        <translation>הצגת הערות ה&amp;שחרור בדפדפן</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;דילוג על גרסה זו</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;תזכורת מאוחר יותר</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>&amp;התקנת העדכון</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>עדכון כבר פועל. נא לנסות מאוחר יותר.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>גרסה חדשה של %1 %2 מוכנה להתקנה</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>העדכון %1 %2 הורד וממתין לאישורך. האם להתקין את העדכון ולהפעיל מחדש את %1 עכשיו?</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>דילוג על גרסה זו</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>תזכורת מאוחר יותר</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>התקנה והפעלה מחדש</translation>
    </message>
</context>
</TS>
