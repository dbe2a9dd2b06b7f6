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
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>היישום אינו מציין היכן מתפרסמים העדכונים שלו. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>הכתובת של ערוץ העדכונים אינה כתובת תקינה. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>הכתובת של ערוץ העדכונים היא מסוג שאינו מותר. עליה להתחיל ב-https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>הכתובת של ערוץ העדכונים אינה מאובטחת. עליה להתחיל ב-https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>שרת העדכונים לא נמצא. יש לבדוק את החיבור לאינטרנט ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>שרת העדכונים סירב לחיבור. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>אי אפשר להגיע לשרת העדכונים מהרשת הזאת. יש לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>שרת העדכונים לא קיבל את החיבור בזמן. יש לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>החיבור לשרת העדכונים נכשל. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>שרת ה-Proxy של הרשת לא העביר את החיבור. יש לבדוק את הגדרותיו.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>שרת העדכונים השתהה זמן רב מדי בתשובתו. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>שרת העדכונים עונה לאט מדי. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>אישור האבטחה של שרת העדכונים חתום רק על ידו, ולכן זהותו אינה מוכחת. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>אישור האבטחה של שרת העדכונים הונפק על ידי רשות שהמחשב הזה אינו מכיר. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>תוקף אישור האבטחה של שרת העדכונים פג. יש לבדוק את שעון המחשב, ואם הוא מדויק להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>אישור האבטחה של שרת העדכונים עדיין אינו בתוקף. יש לבדוק את שעון המחשב, ואם הוא מדויק להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>אישור האבטחה של שרת העדכונים הונפק לשרת אחר. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>אישור האבטחה של שרת העדכונים אינו קביל. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>לא נוצר חיבור מאובטח לשרת העדכונים, כי הוא אינו מציע חיבור חזק דיו. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>המחשב הזה אינו יכול ליצור חיבורים מאובטחים. יש להתקין את ספריית OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>שרת העדכונים סגר את החיבור לפני שענה. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>ערוץ העדכונים הגיע חלקי. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>בתשובת שרת העדכונים יש יותר מדי כותרות. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>ערוץ העדכונים גדול מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>תשובת שרת העדכונים אינה HTTP תקין. יש לנסות ברשת אחרת.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>שרת העדכונים מציין את אורך הערוץ באופן סותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>שרת העדכונים שלח יותר ממה שהודיע. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>תשובת שרת העדכונים פגומה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>שרת העדכונים מעביר את הערוץ בדרך שלא התבקשה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>שרת העדכונים שלח את הערוץ דחוס, אף שלא התבקש. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>שרת העדכונים ענה בקוד מצב %1. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת מאובטחת פחות. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת מסוג שאינו מותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>שרת העדכונים מפנה לדבר שאינו כתובת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>שרת העדכונים מפנה לכתובת אחרת בלי לציין אותה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>שרת העדכונים מפנה מכתובת לכתובת בלי סוף. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>קובץ ערוץ העדכונים אינו קיים. יש לבדוק את כתובתו.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>הכתובת של ערוץ העדכונים מצביעה על תיקייה או על התקן. עליה להצביע על קובץ.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>קובץ ערוץ העדכונים גדול מדי. יש לבדוק את כתובתו.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>אי אפשר לקרוא את קובץ ערוץ העדכונים. יש לבדוק את ההרשאות שלו.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>ערוץ העדכונים הוא קובץ במחשב אחר. יש להעתיק אותו למחשב הזה.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>אי אפשר לקרוא את ערוץ העדכונים. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>במקום ערוץ העדכונים הגיע דף אינטרנט. יש להתחבר לרשת הזאת אם היא דורשת זאת, ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>היישום בחר עדכון שאינו נמצא בערוץ. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>היישום נכשל בעת בדיקת העדכונים. יש להפעיל אותו מחדש ולנסות שוב.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>הערוץ מציין אורך עדכון שאינו יכול להיות נכון. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>אורך העדכון בשרת אינו זה שהערוץ מציין. יש לנסות שוב מאוחר יותר, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
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
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>עותק אחר של היישום מוריד את העדכון הזה. יש להמתין עד שיסיים.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>אי אפשר להשתמש בתיקיית העדכונים שהורדו. יש לבדוק את ההרשאות שלה ואת הכונן.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>תיקיית העדכונים שהורדו אינה שלך בלבד. יש להסיר אותה ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>לעדכון דרושים עוד %1 בכונן, שבו פנויים %2. יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>לעדכון דרושים %1 יותר מכפי שמתירה המכסה שלך בכונן, שבו פנויים %2. יש להסיר קבצים שלך ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>קובץ העדכון גדול מכפי שהכונן של העדכונים שהורדו יכול להכיל. יש לבקש עזרה.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>הכונן נכשל בעת כתיבת העדכון. יש לבדוק את הכונן ולנסות שוב.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>למחשב אין די זיכרון או שיש בו יותר מדי קבצים פתוחים להורדה. יש לסגור יישומים אחרים ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>תיקיית היישום לא נמצאה, ולכן אי אפשר לעדכן אותו. יש להפעיל אותו מהמקום שבו הוא מותקן.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>היישום הופעל דרך קישור, ולכן אי אפשר לעדכן אותו. יש להפעיל אותו מהתיקייה שהקישור מצביע עליה.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>היישום הותקן באמצעות %1, שגם מעדכן אותו. יש להשתמש בפקודה &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>היישום פועל מקובץ תמונת דיסק. יש להחליף את הקובץ %1 בקובץ של הגרסה החדשה.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>היישום נמצא בכונן שאי אפשר לכתוב בו. יש להעתיק אותו לתיקייה אחרת ולהפעיל אותו משם.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>תיקיית היישום היא כונן בפני עצמו, ולכן אי אפשר להחליף אותה. יש להעתיק אותה לתיקייה אחרת ולהפעיל את היישום משם.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>היישום מוגן מפני כל שינוי. יש לבקש ממי שהגן עליו להסיר את מאפיין הקובץ &quot;immutable&quot; או &quot;append only&quot;.</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>היישום שייך למשתמש אחר במחשב הזה. יש לבקש ממנו או ממנהל המערכת לעדכן אותו.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>אין לך הרשאה לשנות את תיקיית היישום. יש לבקש ממנהל המערכת לעדכן אותו.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>משתמשים אחרים במחשב הזה עלולים לשנות את תיקיית היישום, ולכן הוא אינו מתעדכן שם. יש לבקש ממנהל המערכת לתקן את ההרשאות.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>אין מקום לעדכון: דרושים %1, ופנויים %2. יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>העדכונים של היישום הזה כבויים. יש לפנות למי שמנהל את המחשב הזה.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>הבדיקות האחרונות לאיתור עדכונים נכשלו, ולכן הבדיקה הבאה נדחתה. כדי לנסות מיד יש לבדוק ידנית.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>העדכון בוטל. כדי להתחיל מחדש יש לבדוק אם יש עדכונים.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>היישום אינו מציין את המזהה ואת הגרסה שלו, ולכן אי אפשר להתאים לו עדכון. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>התוכנית שמתקינה עדכונים הסתיימה באופן בלתי צפוי. יש לנסות שוב, ואם הבעיה נמשכת להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>הבדיקה לאיתור עדכונים נכשלה. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>הערוץ מציין כתובת עדכון שאינה כתובת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>כתובת העדכון היא מסוג שאינו מותר, ולא https. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>כתובת העדכון אינה מאובטחת, כי אינה מתחילה ב-https. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>החיבור נותק בעת הורדת העדכון. יש לנסות שוב, וההורדה תימשך מאותה נקודה.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>שרת העדכונים מציין את אורך העדכון באופן סותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>שרת העדכונים מעביר את העדכון בדרך שלא התבקשה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>שרת העדכונים שלח את העדכון דחוס, אף שלא התבקש. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>שורה %1 של הערוץ אינה XML בנוי כהלכה.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
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
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>שורה %1 של הערוץ חורגת מ-%2 הרכיבים והמאפיינים המותרים בערוץ.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>בשורה %1 של הערוץ נמצא פריט מספר %2, אך מותרים רק %3.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>בשורה %1 של הערוץ מוצהרים יותר מ-%2 מרחבי שמות.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>בשורה %1 של הערוץ מתחיל דף אינטרנט במקום ערוץ.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>בשורה %1 של הערוץ יש שגיאה לא ידועה.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>היישום הותקן באמצעות מנהל החבילות של המערכת, שגם מעדכן אותו. יש להשתמש בפקודה &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>לא ניתן היה להתקין את העדכון. יש לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>התוכנית שמתקינה עדכונים לא הבינה מה התבקשה לעשות. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>התוכנית שמתקינה עדכונים לא הצליחה להשתמש בקבצים שקיבלה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>התוכנית שמתקינה עדכונים חסרה או שאחרים עלולים לשנות אותה. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>לא ניתן היה לפרוס את העדכון בתהליך מבודד, כנדרש. יש להודיע ליצרן התוכנה מהי המערכת.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>ליישום הזה אין מפתח ציבורי תחת SUPublicEDKey, ולכן אי אפשר להוכיח שעדכון כלשהו מקורי. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>המפתח הציבורי של היישום הזה תחת SUPublicEDKey פגום, ולכן אי אפשר להוכיח שעדכון כלשהו מקורי. יש להתקין אותו מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>העדכון אינו חתום ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>חתימת העדכון אינה חתימה, ולכן העדכון נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>העדכון לא נחתם על ידי יצרן היישום, או שניזוק בדרך, ולכן נדחה. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>אי אפשר לאמת חתימות במחשב הזה. יש להתקין מחדש את ספריית libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>העדכון שהורד ריק. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>אי אפשר לקרוא מהכונן את העדכון שהורד. יש לבדוק את הכונן ולנסות שוב.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>העדכון שהורד ארוך או קצר מכפי שהערוץ מציין. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>תוכנית אחרת שינתה את העדכון שהורד בזמן האימות. יש לסגור אותה ולנסות שוב.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>העדכון ארוז בדרך לא מוכרת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>ארכיון העדכון פגום. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>את ארכיון העדכון אפשר לקרוא ביותר מדרך אחת ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>ארכיון העדכון מוצפן ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>ארכיון העדכון דחוס בדרך לא מוכרת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>בעדכון יש קובץ ששמו אינו מותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>בעדכון יש קובץ ששמו ארוך מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קובץ שיימצא מחוץ ליישום, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>תיקיות העדכון עמוקות מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>בעדכון יש דבר שאינו קובץ, תיקייה או קישור, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קישור קשיח, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קובץ עם חורים, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קובץ ללא גודל, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>בעדכון אותו קובץ מופיע פעמיים, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קבצים ששמותיהם נבדלים רק ברישיות או בסימני ניקוד, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קובץ מתחת לדבר שאינו תיקייה, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>בעדכון יש קישור לשם שאינו מותר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>בעדכון יש קישור שמוביל אל מחוץ ליישום, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>בעדכון יש קישור שאינו מוביל לשום מקום. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>בעדכון יש קישור שחוזר אל עצמו. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>בעדכון יש יותר מדי קבצים. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>בעדכון יש יותר מדי קישורים. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>העדכון גדול מדי לאחר הפריסה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>היישום המותקן השתנה, ולכן העדכון הקטן אינו מתאים לו. יש להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>תוצאת העדכון הקטן אינה מה שהייתה צריכה להיות. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>העדכון אינו מכיל יישום. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>העדכון מכיל יותר מיישום אחד. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>היישום שבעדכון אינו תיקייה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>היישום שבעדכון אינו מתאר את עצמו. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>תיאור היישום שבעדכון גדול מדי. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>אי אפשר לקרוא את תיאור היישום שבעדכון. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>העדכון מציין תוכנית מחוץ לתיקייה שלו. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>העדכון שייך ליישום אחר ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>גרסת העדכון אינה זו שהערוץ מציין, והעדכון נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>העדכון אינו חדש מהיישום המותקן ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>ליישום שבעדכון אין מפתח ציבורי, ולכן לא ניתן יהיה לעדכן אותו שוב לעולם. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>תוכן העדכון אינו תואם את שם הקובץ שלו. פנו למפיץ.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>ביישום שבעדכון אין תוכנית להפעלה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>אסור להפעיל את התוכנית שבעדכון. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>התוכנית שבעדכון מיועדת למחשב מסוג אחר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>העדכון הוא תוכנית בפני עצמה, דבר שהיישום אינו מתיר. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>התוכנית שמצורפת לעדכון לא הופעלה. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>התוכנית שמצורפת לעדכון לא התקינה אותו. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>התוכנית שמצורפת לעדכון פעלה זמן רב מדי והופסקה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>אין די מקום בכונן לעדכון. יש לפנות מקום ולנסות שוב.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>המשתמש הזה אינו רשאי לשנות את התיקייה שבה נמצא היישום. יש לפנות למי שהתקין אותו.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>הכונן דיווח על שגיאה. יש לבדוק אותו ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>היישום לא נסגר, ולכן העדכון לא הותקן. יש לשמור את העבודה, לבדוק שוב אם יש עדכונים ולאפשר ליישום להיסגר.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>עדכון אחר של היישום מותקן כעת. יש להמתין לסיומו.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>היישום המותקן אינו במקום שבו היה בתחילת העדכון. יש להפעיל אותו ממקומו ולנסות שוב.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>היישום המותקן השתנה בזמן הכנת העדכון. יש להפעיל אותו שוב ולנסות שוב.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>העדכון שהוכן השתנה לפני ההתקנה ולכן בוטל. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>העדכון שהוכן והיישום נמצאים בכוננים שונים. יש לנסות שוב, ואם הבעיה נמשכת להתקין את היישום מחדש.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>לא ניתן היה להציב את הגרסה החדשה במקום הישנה, שנותרה כפי שהייתה. יש לנסות שוב.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>הכונן לא אישר שהעדכון נשמר בו. יש לבדוק אותו ולנסות שוב.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>אסור להפעיל את היישום שאמור לפעול לאחר העדכון. יש להפעיל אותו ידנית.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>היישום המעודכן לא הופעל. יש להפעיל אותו ידנית.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>היישום פועל במכולה שמסתירה את הבעלים של התיקייה ”%1”. כדי לעדכן אותו, יש להפעיל אותו מחוץ למכולה.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>העדכון אינו יכול לשמור על ההרשאות לפתיחת היישום, ולכן לא הותקן. יש לבקש ממי שהתקין את היישום לעדכן אותו.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>הגרסה החדשה לא הופעלה, והגרסה הקודמת שוחזרה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>התקנת העדכון הופסקה. יש לחפש עדכונים שוב.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>לא ניתן לנעול קבצים במקום שבו היישום מותקן: העבירו אותו לתיקייה בכונן מקומי.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>הכונן שבו נמצא היישום אינו שומר הרשאות קבצים: העבירו את היישום לכונן אחר.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>משתמשים אחרים רשאים לשנות את התיקייה שבה נמצא היישום: העבירו את היישום לתיקייה משלכם.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>מערכת זו אינה מספקת את pidfd_open, שנחוץ לעדכונים: התקינו ליבה חדשה יותר, או אפשרו את הקריאה במכולה או בארגז החול.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>מערכת זו אינה מספקת את memfd_create, שנחוץ לעדכונים: התקינו ליבה חדשה יותר, או אפשרו את הקריאה במכולה או בארגז החול.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>כל משתמש במחשב זה רשאי לכתוב לתיקייה %1, שבה נמצא היישום: העבירו את היישום לתיקייה משלכם והפעילו אותו משם.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>חברי הקבוצה &quot;%1&quot; רשאים לשנות את תיקיית היישום: השתמשו בפקודה &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>היישום מותקן ב־%1, שם לא ניתן לנעול קבצים: העבירו אותו לתיקייה בכונן מקומי והפעילו אותו משם.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>היישום שב־%1 שייך לשכבה של מערכת הקבצים שלא ניתן להחליף: העתיקו אותו לתיקייה אחרת והפעילו אותו משם.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>ערוץ העדכונים אינו חתום, כפי שהיישום דורש. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>ערוץ העדכונים נמשך אחרי החתימה שלו ולכן נדחה. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>לערוץ העדכונים יש יותר מחתימה אחת, ולכן נדחה. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>משהו נוסף לערוץ העדכונים אחרי שנחתם. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>סופי השורות של ערוץ העדכונים שוכתבו, ולכן חתימתו אינה תואמת. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>ערוץ העדכונים חתום בדרך שהגרסה הזאת אינה מכירה. יש להתקין את היישום מחדש מאתר היצרן.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>החתימה של ערוץ העדכונים פגומה. יש לנסות שוב, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>ערוץ העדכונים לא נחתם על ידי יצרן היישום, או ששונה אחר כך. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>לערוץ העדכונים אין מספר סידורי שמיש. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>ערוץ העדכונים אינו מציין עד מתי הוא תקף. יש להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>ערוץ העדכונים ישן מערוץ שהתקבל קודם. יש לנסות ברשת אחרת, ואם הבעיה נמשכת להודיע ליצרן התוכנה.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
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
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>פרוקסי הרשת אינו מקבל את שם המשתמש והסיסמה שלך. יש לבדוק את הגדרות הפרוקסי.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>הזנת העדכונים אינה מציינת אילו מפתחות תקפים. יש לנסות רשת אחרת, ולהודיע למפיץ אם זה לא עוזר.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים פגומה. יש להודיע למפיץ.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים אינה של מפיץ היישום הזה. יש לנסות רשת אחרת, ולהודיע למפיץ אם זה לא עוזר.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים מיועדת ליישום אחר. יש להודיע למפיץ.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>רשימת המפתחות התקפים בהזנת העדכונים ישנה מרשימה קודמת. יש לנסות רשת אחרת, ולהודיע למפיץ אם זה לא עוזר.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>תוקפה של רשימת המפתחות בהזנת העדכונים פג. יש לבדוק את שעון המחשב, ולהודיע למפיץ אם הוא מדויק.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>מפתח השורש של היישום הזה פגום. יש להתקין את היישום מחדש מהמפיץ.</translation>
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
