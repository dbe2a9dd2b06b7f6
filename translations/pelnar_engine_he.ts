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
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>מותקנת אצלך הגרסה החדשה ביותר.</translation>
    </message>
    <message>
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>היישום אינו מציין היכן מתפרסמים העדכונים שלו. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>הכתובת של ערוץ העדכונים אינה כתובת תקינה. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>הכתובת של ערוץ העדכונים היא מסוג שאינו מותר. עליה להתחיל ב-https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>הכתובת של ערוץ העדכונים אינה מאובטחת. עליה להתחיל ב-https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>שרת העדכונים לא נמצא. יש לבדוק את החיבור לאינטרנט ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>שרת העדכונים סירב לחיבור. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>אי אפשר להגיע לשרת העדכונים מהרשת הזאת. יש לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>שרת העדכונים לא קיבל את החיבור בזמן. יש לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>החיבור לשרת העדכונים נכשל. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>שרת ה-Proxy של הרשת לא העביר את החיבור. יש לבדוק את הגדרותיו.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>שרת העדכונים השתהה זמן רב מדי בתשובתו. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>שרת העדכונים עונה לאט מדי. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>אישור האבטחה של שרת העדכונים חתום רק על ידו, ולכן זהותו אינה מוכחת. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>אישור האבטחה של שרת העדכונים הונפק על ידי רשות שהמחשב הזה אינו מכיר. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>תוקף אישור האבטחה של שרת העדכונים פג. יש לבדוק את שעון המחשב, ואם הוא מדויק להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>אישור האבטחה של שרת העדכונים עדיין אינו בתוקף. יש לבדוק את שעון המחשב, ואם הוא מדויק להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>אישור האבטחה של שרת העדכונים הונפק לשרת אחר. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>אישור האבטחה של שרת העדכונים אינו קביל. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>שרת העדכונים אינו תומך בחיבור מאובטח (TLS 1.2 ומעלה). יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>המחשב הזה אינו יכול ליצור חיבורים מאובטחים. יש להתקין את ספריית OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>שרת העדכונים סגר את החיבור לפני שענה. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>ערוץ העדכונים הגיע חלקי. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>בתשובת שרת העדכונים יש יותר מדי כותרות. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>ערוץ העדכונים גדול מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>תשובת שרת העדכונים אינה HTTP תקין. יש לנסות ברשת אחרת.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>שרת העדכונים מציין את אורך הערוץ באופן סותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>שרת העדכונים שלח יותר ממה שהודיע. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>שרת העדכונים שלח תשובה לא תקינה. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>שרת העדכונים מעביר את הערוץ בדרך שלא התבקשה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>שרת העדכונים שלח את הערוץ דחוס, אף שלא התבקש. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>שרת העדכונים ענה בקוד מצב %1. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת מאובטחת פחות. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת מסוג שאינו מותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>שרת העדכונים מפנה לדבר שאינו כתובת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת אחרת בלי לציין אותה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>שרת העדכונים מפנה מכתובת לכתובת בלי סוף. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>קובץ ערוץ העדכונים אינו קיים. יש לבדוק את כתובתו.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>הכתובת של ערוץ העדכונים מצביעה על תיקייה או על התקן. עליה להצביע על קובץ.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>קובץ ערוץ העדכונים גדול מדי. יש לבדוק את כתובתו.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>אי אפשר לקרוא את קובץ ערוץ העדכונים. יש לבדוק את ההרשאות שלו.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>ערוץ העדכונים הוא קובץ במחשב אחר. יש להעתיק אותו למחשב הזה.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>אי אפשר לקרוא את ערוץ העדכונים. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>במקום ערוץ העדכונים הגיע דף אינטרנט. יש להתחבר לרשת הזאת אם היא דורשת זאת, ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>היישום בחר עדכון שאינו נמצא בערוץ. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>היישום נכשל בעת בדיקת העדכונים. יש להפעיל אותו מחדש ולנסות שוב.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>הערוץ מציין אורך עדכון שאינו יכול להיות נכון. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>אורך העדכון בשרת אינו זה שהערוץ מציין. יש לנסות שוב מאוחר יותר, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
        <translation>שרת העדכונים שלח חלק אחר של העדכון מזה שהתבקש. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>שרת העדכונים שלח כמות כפולה מגודל העדכון, אך מעולם לא את העדכון השלם. נסו שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>החיבור לשרת העדכונים נותק פעמים רבות מדי. נסו שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>הורדת העדכון נמשכה זמן רב מדי והופסקה. נסו שוב בחיבור מהיר יותר.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>העדכון עדיין לא הורד במלואו. הבדיקה הבאה תמשיך את ההורדה.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>עותק אחר של היישום מוריד את העדכון הזה. יש להמתין עד שיסיים.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>אי אפשר להשתמש בתיקיית העדכונים שהורדו. יש לבדוק את ההרשאות שלה ואת הכונן.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>תיקיית העדכונים שהורדו אינה שלך בלבד. יש להסיר אותה ולנסות שוב.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>לעדכון דרושים עוד %1 בכונן, שבו פנויים %2. יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>מכסת הכונן שלך אינה מספיקה לעדכון, שדורש %1. יש להסיר קבצים שלך ולנסות שוב.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>קובץ העדכון גדול מכפי שהכונן של העדכונים שהורדו יכול להכיל. יש לפנות למי שמנהל את המחשב הזה.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>הכונן נכשל בעת כתיבת העדכון. יש לבדוק את הכונן ולנסות שוב.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>למחשב אין די זיכרון או שיש בו יותר מדי קבצים פתוחים להורדה. יש לסגור יישומים אחרים ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>תיקיית היישום לא נמצאה, ולכן אי אפשר לעדכן אותו. יש להפעיל אותו מהמקום שבו הוא מותקן.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>היישום הופעל דרך קישור, ולכן אי אפשר לעדכן אותו. יש להפעיל אותו מהתיקייה שהקישור מצביע עליה.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>היישום הותקן באמצעות %1, שגם מעדכן אותו. יש להשתמש בפקודה &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>היישום פועל מקובץ תמונת דיסק. יש להחליף את הקובץ %1 בקובץ של הגרסה החדשה.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>היישום נמצא בכונן שאי אפשר לכתוב בו. יש להעתיק אותו לתיקייה אחרת ולהפעיל אותו משם.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>תיקיית היישום היא כונן בפני עצמו או מכילה כונן כזה, ולכן אי אפשר להחליף אותה. יש להעתיק אותה לתיקייה אחרת ולהפעיל את היישום משם.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>היישום מוגן מפני כל שינוי. יש לבקש ממי שהגן עליו להסיר את מאפיין הקובץ &quot;immutable&quot; או &quot;append only&quot;.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>היישום שייך למשתמש אחר במחשב הזה. יש לבקש ממנו או ממנהל המערכת לעדכן אותו.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>אין לך הרשאה לשנות את תיקיית היישום. יש לבקש ממנהל המערכת לעדכן אותו.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>משתמשים אחרים במחשב הזה עלולים לשנות את תיקיית היישום, ולכן הוא אינו מתעדכן שם. יש לבקש ממנהל המערכת לתקן את ההרשאות.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>לעדכון דרוש שטח של %1, ופנויים רק %2. יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>העדכונים של היישום הזה כבויים. יש לפנות למי שמנהל את המחשב הזה.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>הבדיקות האחרונות לאיתור עדכונים נכשלו, ולכן הבדיקה הבאה נדחתה. כדי לנסות מיד יש לבדוק ידנית.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>העדכון בוטל. כדי להתחיל מחדש יש לבדוק אם יש עדכונים.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>היישום אינו מציין את המזהה ואת הגרסה שלו, ולכן אי אפשר להתאים לו עדכון. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>התוכנית שמתקינה עדכונים הסתיימה באופן בלתי צפוי. יש לנסות שוב, ואם הבעיה נמשכת להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>הבדיקה לאיתור עדכונים נכשלה. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>הערוץ מציין כתובת עדכון שאינה כתובת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>כתובת העדכון היא מסוג שאינו מותר, ולא https. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>כתובת העדכון אינה מאובטחת, כי אינה מתחילה ב-https. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>החיבור נותק בעת הורדת העדכון. יש לנסות שוב, וההורדה תימשך מאותה נקודה.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>שרת העדכונים מציין את אורך העדכון באופן סותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>שרת העדכונים מעביר את העדכון בדרך שלא התבקשה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>שרת העדכונים שלח את העדכון דחוס, אף שלא התבקש. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>שורה %1 של הערוץ אינה XML בנוי כהלכה.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
        <translation>בשורה %1 של הערוץ יש הצהרת סוג מסמך, שאסורה בערוץ.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>בשורה %1 של הערוץ יש רכיבים מקוננים בעומק של יותר מ-%2 רמות.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>בשורה %1 של הערוץ יש תגית עם יותר מ-%2 מאפיינים.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>בשורה %1 של הערוץ יש תגית של יותר מ-%2 בתים.</translation>
    </message>
    <message>
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>שורה %1 של הערוץ חורגת מ-%2 הרכיבים והמאפיינים המותרים בערוץ.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>בשורה %1 של הערוץ נמצא פריט מספר %3, אך מותרים רק %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>בשורה %1 של הערוץ מוצהרים יותר מ-%2 מרחבי שמות.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>בשורה %1 של הערוץ מתחיל דף אינטרנט במקום ערוץ.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>היישום הותקן באמצעות מנהל החבילות של המערכת, שגם מעדכן אותו. יש להשתמש בפקודה &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>לא ניתן היה להתקין את העדכון. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>התוכנית שמתקינה עדכונים לא הבינה מה התבקשה לעשות. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>התוכנית שמתקינה עדכונים לא הצליחה להשתמש בקבצים שקיבלה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>התוכנית שמתקינה עדכונים חסרה או שאחרים עלולים לשנות אותה. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>לא ניתן היה לפרוס את העדכון בתהליך מבודד, כנדרש. יש להודיע ליצרן התוכנה מהי המערכת.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>ליישום הזה אין מפתח ציבורי תחת SUPublicEDKey, ולכן אי אפשר להוכיח שעדכון כלשהו מקורי. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>המפתח הציבורי של היישום הזה תחת SUPublicEDKey פגום, ולכן אי אפשר להוכיח שעדכון כלשהו מקורי. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>העדכון אינו חתום ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>העדכון נדחה כי החתימה שלו אינה תקינה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>העדכון לא נחתם על ידי יצרן היישום, או שניזוק בדרך, ולכן נדחה. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>אי אפשר לאמת חתימות במחשב הזה. יש להתקין מחדש את ספריית libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>העדכון שהורד ריק. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>אי אפשר לקרוא מהכונן את העדכון שהורד. יש לבדוק את הכונן ולנסות שוב.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>העדכון שהורד ארוך או קצר מכפי שהערוץ מציין. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>תוכנית אחרת שינתה את העדכון שהורד בזמן האימות. יש לסגור אותה ולנסות שוב.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>העדכון ארוז בדרך לא מוכרת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>ארכיון העדכון פגום. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>את ארכיון העדכון אפשר לקרוא ביותר מדרך אחת ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>ארכיון העדכון מוצפן ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>ארכיון העדכון דחוס בדרך לא מוכרת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>בעדכון יש קובץ ששמו אינו מותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>בעדכון יש קובץ ששמו ארוך מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>בעדכון יש קובץ שיימצא מחוץ ליישום, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>תיקיות העדכון עמוקות מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>בעדכון יש דבר שאינו קובץ, תיקייה או קישור, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>בעדכון יש קישור קשיח, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>בעדכון יש קובץ עם חורים, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>בעדכון יש קובץ ללא גודל, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>בעדכון אותו קובץ מופיע פעמיים, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>בעדכון יש קבצים ששמותיהם נבדלים רק ברישיות או בסימני ניקוד, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>בעדכון יש קובץ מתחת לדבר שאינו תיקייה, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>בעדכון יש קישור לשם שאינו מותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>בעדכון יש קישור שמוביל אל מחוץ ליישום, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>בעדכון יש קישור שאינו מוביל לשום מקום. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>בעדכון יש קישור שחוזר אל עצמו. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>בעדכון יש יותר מדי קבצים. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>בעדכון יש יותר מדי קישורים. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>העדכון גדול מדי לאחר הפריסה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>היישום המותקן השתנה, ולכן העדכון הקטן אינו מתאים לו. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>העדכון הקטן נתן תוצאה שגויה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>העדכון אינו מכיל יישום. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>העדכון מכיל יותר מיישום אחד. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>היישום שבעדכון אינו תיקייה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>ליישום שבעדכון אין קובץ מידע. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>קובץ המידע של היישום שבעדכון גדול מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>אי אפשר לקרוא את קובץ המידע של היישום שבעדכון. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>העדכון מציין תוכנית מחוץ לתיקייה שלו. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>העדכון שייך ליישום אחר ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>גרסת העדכון אינה זו שהערוץ מציין, והעדכון נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>העדכון אינו חדש מהיישום המותקן ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>ליישום שבעדכון אין מפתח ציבורי, ולכן לא ניתן יהיה לעדכן אותו שוב לעולם. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>תוכן העדכון אינו תואם את שם הקובץ שלו. פנו למפיץ.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>ביישום שבעדכון אין תוכנית להפעלה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>אסור להפעיל את התוכנית שבעדכון. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>התוכנית שבעדכון מיועדת למחשב מסוג אחר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>העדכון הוא תוכנית בפני עצמה, דבר שהיישום אינו מתיר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>התוכנית שמצורפת לעדכון לא הופעלה. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>התוכנית שמצורפת לעדכון לא התקינה אותו. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>התוכנית שמצורפת לעדכון פעלה זמן רב מדי והופסקה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>אין די מקום בכונן לעדכון. יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>המשתמש הזה אינו רשאי לשנות את התיקייה שבה נמצא היישום. יש לפנות למי שהתקין אותו.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>הכונן דיווח על שגיאה. יש לבדוק אותו ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>היישום לא נסגר, ולכן העדכון לא הותקן. יש לשמור את העבודה, לבדוק שוב אם יש עדכונים ולאפשר ליישום להיסגר.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>עדכון אחר של היישום מותקן כעת. יש להמתין לסיומו.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>היישום המותקן אינו במקום שבו היה בתחילת העדכון. יש להפעיל אותו ממקומו ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>היישום המותקן השתנה בזמן הכנת העדכון. יש להפעיל אותו שוב ולנסות שוב.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>העדכון שהוכן השתנה לפני ההתקנה ולכן בוטל. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>העדכון שהוכן והיישום נמצאים בכוננים שונים. יש לנסות שוב, ואם הבעיה נמשכת להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>לא ניתן היה להציב את הגרסה החדשה במקום הישנה, שנותרה כפי שהייתה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>הכונן לא אישר שהעדכון נשמר בו. יש לבדוק אותו ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>אסור להפעיל את היישום שאמור לפעול לאחר העדכון. יש להפעיל אותו ידנית.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>היישום המעודכן לא הופעל. יש להפעיל אותו ידנית.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>היישום פועל במכולה שמסתירה את הבעלים של התיקייה ”%1”. כדי לעדכן אותו, יש להפעיל אותו מחוץ למכולה.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>מכסת הכונן שלך אינה מספיקה לעדכון. יש להסיר קבצים שלך ולנסות שוב.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>המשתמש &quot;%1&quot; רשאי לשנות את תיקיית היישום. השתמשו בפקודה &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>העדכון אינו יכול לשמור על ההרשאות לפתיחת היישום, ולכן לא הותקן. יש לבקש ממי שהתקין את היישום לעדכן אותו.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>הגרסה החדשה לא הופעלה, והגרסה הקודמת שוחזרה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>התקנת העדכון הופסקה. יש לחפש עדכונים שוב.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>לא ניתן לנעול קבצים במקום שבו היישום מותקן. העבירו אותו לתיקייה בכונן מקומי.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>הכונן שבו נמצא היישום אינו שומר הרשאות קבצים. העבירו את היישום לכונן אחר.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>משתמשים אחרים רשאים לשנות את התיקייה שבה נמצא היישום. העבירו את היישום לתיקייה משלכם.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>מערכת זו אינה מספקת את pidfd_open, שנחוץ לעדכונים. התקינו ליבה חדשה יותר, או אפשרו את הקריאה במכולה או בארגז החול.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>מערכת זו אינה מספקת את memfd_create, שנחוץ לעדכונים. התקינו ליבה חדשה יותר, או אפשרו את הקריאה במכולה או בארגז החול.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>כל משתמש במחשב זה רשאי לכתוב לתיקייה %1, שבה נמצא היישום. העבירו את היישום לתיקייה משלכם והפעילו אותו משם.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>חברי הקבוצה &quot;%1&quot; רשאים לשנות את תיקיית היישום. השתמשו בפקודה &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>היישום מותקן ב־%1, שם לא ניתן לנעול קבצים. העבירו אותו לתיקייה בכונן מקומי והפעילו אותו משם.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>היישום שב־%1 שייך לשכבה של מערכת הקבצים שלא ניתן להחליף. העתיקו אותו לתיקייה אחרת והפעילו אותו משם.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>ערוץ העדכונים אינו חתום, כפי שהיישום דורש. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>ערוץ העדכונים נמשך אחרי החתימה שלו ולכן נדחה. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>לערוץ העדכונים יש יותר מחתימה אחת, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>משהו נוסף לערוץ העדכונים אחרי שנחתם. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>סופי השורות של ערוץ העדכונים שוכתבו, ולכן חתימתו אינה תואמת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>ערוץ העדכונים חתום בדרך שהגרסה הזאת אינה מכירה. יש להתקין את היישום מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>החתימה של ערוץ העדכונים פגומה. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>ערוץ העדכונים לא נחתם על ידי יצרן היישום, או ששונה אחר כך. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>לערוץ העדכונים אין מספר סידורי שמיש. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>ערוץ העדכונים אינו מציין עד מתי הוא תקף. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>ערוץ העדכונים ישן מערוץ שהתקבל קודם. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>תוקף ערוץ העדכונים פג. יש לבדוק את שעון המחשב, ואם הוא מדויק להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת בתוך המחשב שלך או בקישור הרשת שלך. יש לפנות למפרסם.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>פרוקסי הרשת מסרב להתחבר לשרת העדכונים. יש לפנות למנהל הרשת.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>פרוקסי הרשת אינו מקבל את שם המשתמש והסיסמה שלך. יש לבדוק את הגדרות הפרוקסי.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>הזנת העדכונים אינה מציינת אילו מפתחות תקפים. יש לנסות רשת אחרת, ולהודיע למפיץ אם זה לא עוזר.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים פגומה. יש להודיע למפיץ.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים אינה של מפיץ היישום הזה. יש לנסות רשת אחרת, ולהודיע למפיץ אם זה לא עוזר.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים מיועדת ליישום אחר. יש להודיע למפיץ.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים ישנה מרשימה קודמת. יש לנסות רשת אחרת, ולהודיע למפיץ אם זה לא עוזר.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>תוקפה של רשימת המפתחות בהזנת העדכונים פג. יש לבדוק את שעון המחשב, ולהודיע למפיץ אם הוא מדויק.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>מפתח השורש של היישום הזה פגום. יש להתקין את היישום מחדש מהמפיץ.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>ערוץ העדכונים ריק. יש לנסות שוב מאוחר יותר או להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>העדכון זקוק ליותר זיכרון, קבצים או תהליכים ממה שהמערכת הזו מאפשרת. יש לסגור יישומים אחרים ולנסות שוב.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>אי אפשר להשתמש בתיקייה של רישומי העדכונים. יש לבדוק את ההרשאות שלה ואת הכונן.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>בשורה %1 של הערוץ מתחיל מסמך שאינו ערוץ.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>הרשת הזאת דורשת התחברות. יש להתחבר ולנסות שוב.</translation>
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
            <numerusform>נותרה כשנייה אחת</numerusform>
            <numerusform>נותרו בערך %Ln שניות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>נותרה כדקה אחת</numerusform>
            <numerusform>נותרו בערך %Ln דקות</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>נותרה כשעה אחת</numerusform>
            <numerusform>נותרו בערך %Ln שעות</numerusform>
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
        <translation>%1 %2 הורד ואומת. לצורך ההתקנה, %1 ייסגר וייפתח מחדש.</translation>
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
        <translation>%1 %2 היא הגרסה החדשה ביותר שזמינה כרגע.</translation>
    </message>
</context>
<context>
    <name>PelnarEngine_UpdateWindow</name>
    <message>
        <source>A new version of %1 is available!</source>
        <comment>%1 is the application&apos;s name</comment>
        <translation>יש גרסה חדשה של %1!</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>%1 %2 זמינה כעת; הגרסה שלך היא %3. בדף הגרסה מוסבר כיצד לקבל אותה.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;פתיחת הדף</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>חלק מהיישום הדרוש לעדכונים חסר או פגום. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>כבר מתבצע עדכון. נא לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>גרסה חדשה של %1 %2 מוכנה להתקנה</translation>
    </message>
    <message>
        <source>The %1 %2 update has been downloaded and is waiting for your approval. Would you like to install the update and relaunch %1 now?</source>
        <translation>עדכון %1 %2 הורד וממתין לאישורך. האם להתקין את העדכון ולהפעיל מחדש את %1 עכשיו?</translation>
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
