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
    <name>PelnarEngine_Errors</name>
    <message>
        <source>You are running the newest version.</source>
        <translation>أنت تستخدم أحدث إصدار.</translation>
    </message>
    <message>
        <source>This application does not say where its updates are published: install it again from its publisher.</source>
        <translation>لا يذكر هذا التطبيق مكان نشر تحديثاته. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The address of the update feed is not a valid address: install the application again.</source>
        <translation>عنوان موجز التحديثات غير صالح. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The address of the update feed is of a kind that is not allowed: it must begin with https.</source>
        <translation>عنوان موجز التحديثات من نوع غير مسموح به. يجب أن يبدأ بـ https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure: it must begin with https.</source>
        <translation>عنوان موجز التحديثات غير آمن. يجب أن يبدأ بـ https.</translation>
    </message>
    <message>
        <source>The update server was not found: check the connection to the internet and try again.</source>
        <translation>لم يُعثر على خادم التحديثات. تحقق من الاتصال بالإنترنت ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server refused the connection: try again later.</source>
        <translation>رفض خادم التحديثات الاتصال. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network: check the connection and try again.</source>
        <translation>لا يمكن الوصول إلى خادم التحديثات من هذه الشبكة. تحقق من الاتصال ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time: check the connection and try again.</source>
        <translation>لم يقبل خادم التحديثات الاتصال في الوقت المناسب. تحقق من الاتصال ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The connection to the update server failed: try again later.</source>
        <translation>فشل الاتصال بخادم التحديثات. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through: check the proxy&apos;s settings.</source>
        <translation>لم يسمح وكيل الشبكة بمرور الاتصال. تحقق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The update server took too long to answer: try again later.</source>
        <translation>استغرق خادم التحديثات وقتًا طويلًا في الرد. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server answers too slowly: try again later.</source>
        <translation>يرد خادم التحديثات ببطء شديد. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is signed by itself only, so its identity is unproved: try another network, and tell the publisher if it stays so.</source>
        <translation>شهادة خادم التحديثات موقّعة منه وحده، فهويته غير مثبتة. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an authority that this computer does not know: try another network, and tell the publisher if it stays so.</source>
        <translation>شهادة خادم التحديثات صادرة عن جهة لا يعرفها هذا الحاسوب. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>انتهت صلاحية شهادة خادم التحديثات. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>شهادة خادم التحديثات ليست سارية بعد. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate was made for another server: try another network, and tell the publisher if it stays so.</source>
        <translation>شهادة خادم التحديثات صادرة لخادم آخر. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not acceptable: try another network, and tell the publisher if it stays so.</source>
        <translation>شهادة خادم التحديثات غير مقبولة. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server offers no secure connection that is strong enough: tell the publisher.</source>
        <translation>تعذّر إنشاء اتصال آمن بخادم التحديثات لأنه لا يقدّم اتصالًا قويًا بما يكفي. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections: install its OpenSSL library.</source>
        <translation>لا يستطيع هذا الحاسوب إنشاء اتصالات آمنة. ثبّت مكتبة OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it answered: try again later.</source>
        <translation>أغلق خادم التحديثات الاتصال قبل أن يرد. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update feed arrived incomplete: try again.</source>
        <translation>وصل موجز التحديثات ناقصًا. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer has too many headers: tell the publisher.</source>
        <translation>رد خادم التحديثات يحتوي على ترويسات كثيرة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed is too large: tell the publisher.</source>
        <translation>موجز التحديثات كبير جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is not proper HTTP: try another network.</source>
        <translation>رد خادم التحديثات ليس HTTP صحيحًا. جرّب شبكة أخرى.</translation>
    </message>
    <message>
        <source>The update server states the feed&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>يذكر خادم التحديثات طول الموجز بصورة متناقضة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent more than it announced: tell the publisher.</source>
        <translation>أرسل خادم التحديثات أكثر مما أعلن. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer is broken in its parts: try again.</source>
        <translation>رد خادم التحديثات تالف. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in a way that was not asked for: tell the publisher.</source>
        <translation>ينقل خادم التحديثات الموجز بطريقة لم تُطلب. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which was not asked for: tell the publisher.</source>
        <translation>أرسل خادم التحديثات الموجز مضغوطًا دون أن يُطلب ذلك. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server answered with status %1: try again later.</source>
        <translation>رد خادم التحديثات بالحالة %1. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server points to an address that is less secure: tell the publisher.</source>
        <translation>يحيل خادم التحديثات إلى عنوان أقل أمانًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server points to an address of a kind that is not allowed: tell the publisher.</source>
        <translation>يحيل خادم التحديثات إلى عنوان من نوع غير مسموح به. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server points to something that is not an address: tell the publisher.</source>
        <translation>يحيل خادم التحديثات إلى شيء ليس عنوانًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server points to another address without naming it: tell the publisher.</source>
        <translation>يحيل خادم التحديثات إلى عنوان آخر دون ذكره. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server points from address to address without end: tell the publisher.</source>
        <translation>يحيل خادم التحديثات من عنوان إلى آخر بلا نهاية. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist: check its address.</source>
        <translation>ملف موجز التحديثات غير موجود. تحقق من عنوانه.</translation>
    </message>
    <message>
        <source>The address of the update feed names a folder or a device: it must name a file.</source>
        <translation>عنوان موجز التحديثات يشير إلى مجلد أو جهاز. يجب أن يشير إلى ملف.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large: check its address.</source>
        <translation>ملف موجز التحديثات كبير جدًا. تحقق من عنوانه.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read: check its permissions.</source>
        <translation>تعذّرت قراءة ملف موجز التحديثات. تحقق من أذوناته.</translation>
    </message>
    <message>
        <source>The update feed is a file of another computer: copy it to this one.</source>
        <translation>موجز التحديثات ملف على حاسوب آخر. انسخه إلى هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The update feed cannot be read: tell the publisher.</source>
        <translation>تعذّرت قراءة موجز التحديثات. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>A web page came in place of the update feed: sign in to this network if it asks for it, and try again.</source>
        <translation>وصلت صفحة ويب بدلًا من موجز التحديثات. سجّل الدخول إلى هذه الشبكة إذا طلبت ذلك، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed: install the application again.</source>
        <translation>اختار التطبيق تحديثًا غير موجود في الموجز. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The application failed while it looked at the updates: restart it and try again.</source>
        <translation>تعطّل التطبيق أثناء فحص التحديثات. أعد تشغيله ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The feed gives a length of the update that cannot be right: tell the publisher.</source>
        <translation>يذكر الموجز طولًا للتحديث لا يمكن أن يكون صحيحًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update on the server is not as long as the feed says: try again later, and tell the publisher if it stays so.</source>
        <translation>طول التحديث على الخادم يختلف عما يذكره الموجز. أعد المحاولة لاحقًا، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server sent another part of the update than was asked for: try again later.</source>
        <translation>أرسل خادم التحديثات جزءًا من التحديث غير الجزء المطلوب. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server sent twice the size of the update, but never the whole update. Try again later.</source>
        <translation>أرسل خادم التحديثات ضعف حجم التحديث، لكنه لم يرسل التحديث كاملًا قط. حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>The connection to the update server broke too many times. Try again later.</source>
        <translation>انقطع الاتصال بخادم التحديثات مرات كثيرة جدًا. حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>The download of the update took too long and was stopped. Try again on a faster connection.</source>
        <translation>استغرق تنزيل التحديث وقتًا طويلًا جدًا فأُوقف. حاول مرة أخرى باتصال أسرع.</translation>
    </message>
    <message>
        <source>The update is not downloaded completely yet. The next check continues the download.</source>
        <translation>لم يكتمل تنزيل التحديث بعد. سيواصل الفحص التالي التنزيل.</translation>
    </message>
    <message>
        <source>Another copy of the application is downloading this update: wait until it has finished.</source>
        <translation>توجد نسخة أخرى من التطبيق تنزّل هذا التحديث. انتظر حتى تنتهي.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used: check its permissions and its disk.</source>
        <translation>لا يمكن استخدام مجلد التحديثات المنزّلة. تحقق من أذوناته ومن قرصه.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates is not yours alone: remove it, and try again.</source>
        <translation>مجلد التحديثات المنزّلة ليس لك وحدك. احذفه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update needs %1 more on the disk, where %2 are free: make room and try again.</source>
        <translation>يحتاج التحديث إلى %1 إضافية على القرص، والمساحة الحرة فيه %2. أخلِ مساحة ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update needs %1 more than your quota on the disk leaves, which has %2 free: remove files of yours and try again.</source>
        <translation>يحتاج التحديث إلى %1 أكثر مما تسمح به حصتك على القرص، والمساحة الحرة فيه %2. احذف بعض ملفاتك ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update is a larger file than the disk for downloaded updates can hold: ask for help.</source>
        <translation>ملف التحديث أكبر مما يتسع له قرص التحديثات المنزّلة. اطلب المساعدة.</translation>
    </message>
    <message>
        <source>The disk failed while the update was written to it: check the disk and try again.</source>
        <translation>تعطّل القرص أثناء كتابة التحديث عليه. افحص القرص ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files for the download: close other applications and try again.</source>
        <translation>ذاكرة الحاسوب قليلة جدًا أو الملفات المفتوحة كثيرة جدًا على التنزيل. أغلق تطبيقات أخرى ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated: start it from where it is installed.</source>
        <translation>لم يُعثر على مجلد التطبيق، فلا يمكن تحديثه. شغّله من مكان تثبيته.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated: start it from the folder that the link points to.</source>
        <translation>شُغّل التطبيق عبر رابط، فلا يمكن تحديثه. شغّله من المجلد الذي يشير إليه الرابط.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which updates it too: use the command &quot;%2&quot;.</source>
        <translation>ثُبّت التطبيق بواسطة %1، وهو الذي يحدّثه أيضًا. استخدم الأمر «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file: replace the file %1 by the new version&apos;s.</source>
        <translation>يعمل التطبيق من ملف صورة قرص. استبدل الملف %1 بملف الإصدار الجديد.</translation>
    </message>
    <message>
        <source>The application stands on a disk that cannot be written: copy it to another folder and start it there.</source>
        <translation>التطبيق موجود على قرص لا يمكن الكتابة عليه. انسخه إلى مجلد آخر وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own, so it cannot be replaced: copy it to another folder and start it there.</source>
        <translation>مجلد التطبيق قرص مستقل، فلا يمكن استبداله. انسخه إلى مجلد آخر وشغّل التطبيق من هناك.</translation>
    </message>
    <message>
        <source>The application is protected against every change: ask the person who protected it to take the file attribute &quot;immutable&quot; or &quot;append only&quot; away.</source>
        <translation>التطبيق محمي من أي تغيير. اطلب ممن حماه إزالة سمة الملف «immutable» أو «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer: ask them, or the administrator, to update it.</source>
        <translation>التطبيق ملك لمستخدم آخر لهذا الحاسوب. اطلب منه أو من المسؤول تحديثه.</translation>
    </message>
    <message>
        <source>You may not change the folder of the application: ask the administrator to update it.</source>
        <translation>لا يُسمح لك بتغيير مجلد التطبيق. اطلب من المسؤول تحديثه.</translation>
    </message>
    <message>
        <source>Other users of this computer could change the application&apos;s folder, so it is not updated there: ask the administrator to set its permissions right.</source>
        <translation>يستطيع مستخدمون آخرون لهذا الحاسوب تغيير مجلد التطبيق، ولذلك لا يُحدّث هناك. اطلب من المسؤول تصحيح أذوناته.</translation>
    </message>
    <message>
        <source>There is no room for the update: it needs %1, and %2 are free. Make room and try again.</source>
        <translation>لا توجد مساحة للتحديث: يحتاج إلى %1، والمساحة الحرة %2. أخلِ مساحة ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>Updates of this application are switched off: ask the administrator of this computer.</source>
        <translation>تحديثات هذا التطبيق معطّلة. اسأل من يدير هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits: check by hand to try at once.</source>
        <translation>فشلت آخر عمليات البحث عن تحديثات، ولذلك أُجّلت العملية التالية. ابحث بنفسك للمحاولة فورًا.</translation>
    </message>
    <message>
        <source>The update was cancelled: check for updates to begin again.</source>
        <translation>أُلغي التحديث. ابحث عن تحديثات للبدء من جديد.</translation>
    </message>
    <message>
        <source>This application does not say its identifier and version, so that no update can be matched to it: install it again from its publisher.</source>
        <translation>لا يذكر هذا التطبيق معرّفه وإصداره، فلا يمكن مطابقة أي تحديث معه. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly: try again, and install the application again if it stays so.</source>
        <translation>انتهى برنامج تثبيت التحديثات بصورة غير متوقعة. أعد المحاولة، وأعد تثبيت التطبيق إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The check for updates failed: try again later.</source>
        <translation>فشل البحث عن تحديثات. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid: tell the publisher.</source>
        <translation>يذكر الموجز عنوانًا للتحديث ليس عنوانًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The address of the update is of a kind that is not allowed, not https: tell the publisher.</source>
        <translation>عنوان التحديث من نوع غير مسموح به، وليس https. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The address of the update is not secure, since it does not begin with https: tell the publisher.</source>
        <translation>عنوان التحديث غير آمن لأنه لا يبدأ بـ https. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The connection broke while the update was downloaded: try again, it goes on from there.</source>
        <translation>انقطع الاتصال أثناء تنزيل التحديث. أعد المحاولة، وسيستمر التنزيل من حيث توقف.</translation>
    </message>
    <message>
        <source>The update server states the update&apos;s length in contradictory ways: tell the publisher.</source>
        <translation>يذكر خادم التحديثات طول التحديث بصورة متناقضة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server transfers the update in a way that was not asked for: tell the publisher.</source>
        <translation>ينقل خادم التحديثات التحديث بطريقة لم تُطلب. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which was not asked for: tell the publisher.</source>
        <translation>أرسل خادم التحديثات التحديث مضغوطًا دون أن يُطلب ذلك. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>السطر %1 من الموجز ليس XML سليم الصياغة.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which a feed may not have.</source>
        <translation>يحتوي السطر %1 من الموجز على تعريف نوع مستند، وهو غير مسموح به في الموجز.</translation>
    </message>
    <message>
        <source>Line %1 of the feed nests elements more than %2 levels deep.</source>
        <translation>تتداخل العناصر في السطر %1 من الموجز إلى عمق يتجاوز %2 من المستويات.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag with more than %2 attributes.</source>
        <translation>يحتوي السطر %1 من الموجز على وسم يتجاوز عدد سماته %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a tag of more than %2 bytes.</source>
        <translation>يحتوي السطر %1 من الموجز على وسم يتجاوز طوله %2 بايت.</translation>
    </message>
    <message>
        <source>Line %1 of the feed goes beyond the %2 elements and attributes that a feed may have.</source>
        <translation>يتجاوز السطر %1 من الموجز عدد العناصر والسمات المسموح به، وهو %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %2, but only %3 are allowed.</source>
        <translation>يحتوي السطر %1 من الموجز على العنصر رقم %2، والمسموح به %3 فقط.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>يعلن السطر %1 من الموجز عن مساحات أسماء يتجاوز عددها %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page where a feed was expected.</source>
        <translation>تبدأ في السطر %1 من الموجز صفحة ويب بدلًا من الموجز المتوقع.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has an unknown error.</source>
        <translation>يحتوي السطر %1 من الموجز على خطأ غير معروف.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which updates it too: use the command &quot;%1&quot;.</source>
        <translation>ثُبّت التطبيق بواسطة مدير حزم النظام، وهو الذي يحدّثه أيضًا. استخدم الأمر «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed: try again later.</source>
        <translation>تعذّر تثبيت التحديث. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand what it was asked for: install the application again.</source>
        <translation>لم يفهم برنامج تثبيت التحديثات ما طُلب منه. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it was given: try again.</source>
        <translation>لم يستطع برنامج تثبيت التحديثات استخدام الملفات التي سُلّمت إليه. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing or could be changed by others: install the application again.</source>
        <translation>برنامج تثبيت التحديثات مفقود أو يمكن لآخرين تغييره. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process, as it must be: tell the publisher which system this is.</source>
        <translation>تعذّر فك حزمة التحديث في عملية معزولة كما ينبغي. أخبر الناشر ما هو هذا النظام.</translation>
    </message>
    <message>
        <source>This application has no public key under SUPublicEDKey, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>ليس لهذا التطبيق مفتاح عام في SUPublicEDKey، فلا يمكن إثبات أصالة أي تحديث. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The public key of this application under SUPublicEDKey is damaged, so that no update can be proved genuine: install it again from its publisher.</source>
        <translation>المفتاح العام لهذا التطبيق في SUPublicEDKey تالف، فلا يمكن إثبات أصالة أي تحديث. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The update is not signed, and is refused: tell the publisher.</source>
        <translation>التحديث غير موقّع ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The signature of the update is not a signature, and the update is refused: tell the publisher.</source>
        <translation>توقيع التحديث ليس توقيعًا، ولذلك رُفض التحديث. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was not signed by this application&apos;s publisher, or was damaged on its way, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>لم يوقّع ناشر هذا التطبيق التحديث، أو تلف في الطريق، ولذلك رُفض. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer: install its libsodium library again.</source>
        <translation>لا يمكن التحقق من التواقيع على هذا الحاسوب. أعد تثبيت مكتبة libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty: try again, and tell the publisher if it stays so.</source>
        <translation>التحديث المنزّل فارغ. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk: check the disk and try again.</source>
        <translation>تعذّرت قراءة التحديث المنزّل من القرص. افحص القرص ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says: try again, and tell the publisher if it stays so.</source>
        <translation>التحديث المنزّل أطول أو أقصر مما يذكره الموجز. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified: close it and try again.</source>
        <translation>غيّر برنامج آخر التحديث المنزّل أثناء التحقق منه. أغلق ذلك البرنامج ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update is packed in a way that is not known: tell the publisher.</source>
        <translation>التحديث محزوم بطريقة غير معروفة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged: tell the publisher.</source>
        <translation>أرشيف التحديث تالف. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The archive of the update can be read in more than one way, and is refused: tell the publisher.</source>
        <translation>يمكن قراءة أرشيف التحديث بأكثر من طريقة ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The archive of the update is encrypted, and is refused: tell the publisher.</source>
        <translation>أرشيف التحديث مشفّر ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The archive of the update is compressed in a way that is not known: tell the publisher.</source>
        <translation>أرشيف التحديث مضغوط بطريقة غير معروفة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is not allowed: tell the publisher.</source>
        <translation>يحتوي التحديث على ملف باسم غير مسموح به. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a file with a name that is too long: tell the publisher.</source>
        <translation>يحتوي التحديث على ملف باسم طويل جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a file that would land outside of the application, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على ملف سيقع خارج التطبيق ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The folders of the update are too deep: tell the publisher.</source>
        <translation>مجلدات التحديث عميقة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has something that is neither file nor folder nor link, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على شيء ليس ملفًا ولا مجلدًا ولا رابطًا ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a hard link, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على رابط صلب ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a file with holes, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على ملف فيه فجوات ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a file without a size, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على ملف بلا حجم ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has the same file twice, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على الملف نفسه مرتين ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has files whose names differ in case or accents only, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على ملفات لا تختلف أسماؤها إلا في حالة الأحرف أو العلامات ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a file below something that is no folder, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على ملف تحت شيء ليس مجلدًا ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a link to a name that is not allowed: tell the publisher.</source>
        <translation>يحتوي التحديث على رابط إلى اسم غير مسموح به. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a link that leads outside of the application, and is refused: tell the publisher.</source>
        <translation>يحتوي التحديث على رابط يقود إلى خارج التطبيق ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a link that leads nowhere: tell the publisher.</source>
        <translation>يحتوي التحديث على رابط لا يقود إلى شيء. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has a link that leads back to itself: tell the publisher.</source>
        <translation>يحتوي التحديث على رابط يعود إلى نفسه. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has too many files: tell the publisher.</source>
        <translation>يحتوي التحديث على ملفات كثيرة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update has too many links: tell the publisher.</source>
        <translation>يحتوي التحديث على روابط كثيرة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is too large once it is unpacked: tell the publisher.</source>
        <translation>التحديث كبير جدًا بعد فك حزمته. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The installed application was changed, so that the small update does not fit it: install the application again.</source>
        <translation>تغيّر التطبيق المثبّت، فلا يلائمه التحديث الصغير. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>What the small update made of the application is not what it should be: tell the publisher.</source>
        <translation>نتيجة التحديث الصغير ليست كما ينبغي. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update holds no application: tell the publisher.</source>
        <translation>لا يحتوي التحديث على أي تطبيق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update holds more than one application: tell the publisher.</source>
        <translation>يحتوي التحديث على أكثر من تطبيق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder: tell the publisher.</source>
        <translation>التطبيق الموجود في التحديث ليس مجلدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The application in the update does not describe itself: tell the publisher.</source>
        <translation>التطبيق الموجود في التحديث لا يصف نفسه. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The description of the application in the update is too large: tell the publisher.</source>
        <translation>وصف التطبيق الموجود في التحديث كبير جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The description of the application in the update cannot be read: tell the publisher.</source>
        <translation>تعذّرت قراءة وصف التطبيق الموجود في التحديث. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update names a program outside of its folder: tell the publisher.</source>
        <translation>يسمّي التحديث برنامجًا خارج مجلده. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is of another application, and is refused: tell the publisher.</source>
        <translation>التحديث لتطبيق آخر ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is of another version than the feed says, and is refused: tell the publisher.</source>
        <translation>إصدار التحديث غير ما يذكره الموجز ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is not newer than the installed application, and is refused: tell the publisher.</source>
        <translation>التحديث ليس أحدث من التطبيق المثبّت ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so that it could never be updated again: tell the publisher.</source>
        <translation>ليس للتطبيق الموجود في التحديث مفتاح عام، فلن يمكن تحديثه بعد ذلك أبدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name: tell the publisher.</source>
        <translation>محتوى التحديث لا يطابق اسم ملفه. اتصل بالناشر.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start: tell the publisher.</source>
        <translation>ليس في التطبيق الموجود في التحديث برنامج لتشغيله. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The program in the update may not be started: tell the publisher.</source>
        <translation>لا يُسمح بتشغيل البرنامج الموجود في التحديث. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The program in the update is made for another kind of computer: tell the publisher.</source>
        <translation>البرنامج الموجود في التحديث مخصص لنوع آخر من الحواسيب. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow: tell the publisher.</source>
        <translation>التحديث برنامج مستقل، وهذا ما لا يسمح به التطبيق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start: try again, and tell the publisher if it stays so.</source>
        <translation>لم يبدأ البرنامج المرفق بالتحديث. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it: try again, and tell the publisher if it stays so.</source>
        <translation>لم يثبّت البرنامج المرفق التحديث. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was ended: try again.</source>
        <translation>استغرق البرنامج المرفق بالتحديث وقتًا طويلًا فأُنهي. أعد المحاولة.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk for the update: free some and try again.</source>
        <translation>لا توجد مساحة كافية على القرص للتحديث. أخلِ مساحة ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The folder that holds the application may not be changed by this user: ask the person who installed it.</source>
        <translation>لا يُسمح لهذا المستخدم بتغيير المجلد الذي يحتوي على التطبيق. اسأل من ثبّته.</translation>
    </message>
    <message>
        <source>The disk reported an error: check it and try again.</source>
        <translation>أبلغ القرص عن خطأ. افحصه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application did not close, so that the update was not installed: save your work, check for updates again and let it close.</source>
        <translation>لم يُغلق التطبيق، ولذلك لم يُثبّت التحديث. احفظ عملك، ثم ابحث عن تحديثات مرة أخرى ودع التطبيق يُغلق.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed: wait for its end.</source>
        <translation>يجري تثبيت تحديث آخر لهذا التطبيق. انتظر حتى ينتهي.</translation>
    </message>
    <message>
        <source>The installed application is not where it was when the update began: start it from its place and try again.</source>
        <translation>لم يعد التطبيق المثبّت حيث كان عند بدء التحديث. شغّله من مكانه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The installed application was changed while the update was being prepared: start it again and try again.</source>
        <translation>تغيّر التطبيق المثبّت أثناء تجهيز التحديث. أعد تشغيله ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it could be installed, and was dropped: try again.</source>
        <translation>تغيّر التحديث المجهّز قبل تثبيته فأُسقط. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks: try again, and install the application again if it stays so.</source>
        <translation>التحديث المجهّز والتطبيق على قرصين مختلفين. أعد المحاولة، وأعد تثبيت التطبيق إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The new version could not be put in the place of the old one, which is as it was: try again.</source>
        <translation>تعذّر وضع الإصدار الجديد مكان القديم الذي بقي كما كان. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The disk did not confirm that it holds the update: check it and try again.</source>
        <translation>لم يؤكد القرص أنه حفظ التحديث. افحصه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application that should be started after the update may not be started: start it by hand.</source>
        <translation>لا يُسمح بتشغيل التطبيق الذي ينبغي تشغيله بعد التحديث. شغّله يدويًا.</translation>
    </message>
    <message>
        <source>The updated application did not start: start it by hand.</source>
        <translation>لم يبدأ التطبيق بعد تحديثه. شغّله يدويًا.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;: start it outside of the container to update it.</source>
        <translation>يعمل التطبيق داخل حاوية تُخفي مالك المجلد «%1». شغّله خارج الحاوية لتحديثه.</translation>
    </message>
    <message>
        <source>The update cannot keep who may open the application, and was not installed: ask the person who installed the application to update it.</source>
        <translation>لا يستطيع التحديث الإبقاء على من يُسمح له بفتح التطبيق، ولذلك لم يُثبَّت. اطلب من الشخص الذي ثبّت التطبيق أن يحدّثه.</translation>
    </message>
    <message>
        <source>The new version did not start, and the previous one is back: tell the publisher.</source>
        <translation>لم يبدأ الإصدار الجديد، وأُعيد الإصدار السابق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted: check for updates again.</source>
        <translation>توقّف تثبيت التحديث قبل اكتماله. ابحث عن التحديثات مرة أخرى.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed: move it to a folder on a local disk.</source>
        <translation>لا يمكن قفل الملفات في مكان تثبيت التطبيق: انقله إلى مجلد على قرص محلي.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not keep file permissions: move the application to another disk.</source>
        <translation>القرص الذي يحتوي على التطبيق لا يحتفظ بأذونات الملفات: انقل التطبيق إلى قرص آخر.</translation>
    </message>
    <message>
        <source>Other users may change the folder that holds the application: move the application to a folder of your own.</source>
        <translation>يمكن لمستخدمين آخرين تغيير المجلد الذي يحتوي على التطبيق: انقل التطبيق إلى مجلد خاص بك.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>لا يوفر هذا النظام pidfd_open الذي تحتاج إليه التحديثات: ثبّت نواة أحدث، أو اسمح بهذا الاستدعاء في الحاوية أو في بيئة العزل.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need: install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>لا يوفر هذا النظام memfd_create الذي تحتاج إليه التحديثات: ثبّت نواة أحدث، أو اسمح بهذا الاستدعاء في الحاوية أو في بيئة العزل.</translation>
    </message>
    <message>
        <source>Every user of this computer may write to the folder %1, which holds the application: move the application to a folder of your own and start it there.</source>
        <translation>يمكن لكل مستخدمي هذا الحاسوب الكتابة في المجلد %1 الذي يحتوي على التطبيق: انقل التطبيق إلى مجلد خاص بك وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; may change the folder of the application: use the command &quot;%2&quot;.</source>
        <translation>يمكن لأعضاء المجموعة &quot;%1&quot; تغيير مجلد التطبيق: استخدم الأمر &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked: move it to a folder on a local disk and start it there.</source>
        <translation>التطبيق مثبّت في %1 حيث لا يمكن قفل الملفات: انقله إلى مجلد على قرص محلي وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced: copy it to another folder and start it there.</source>
        <translation>ينتمي التطبيق الموجود في %1 إلى طبقة من نظام الملفات لا يمكن استبدالها: انسخه إلى مجلد آخر وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The update feed is not signed, as this application requires: try another network, and tell the publisher if it stays so.</source>
        <translation>موجز التحديثات غير موقّع كما يشترط هذا التطبيق. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed goes on behind its signature, and is refused: try another network, and tell the publisher if it stays so.</source>
        <translation>يستمر موجز التحديثات بعد توقيعه ولذلك رُفض. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed has more than one signature, and is refused: tell the publisher.</source>
        <translation>لموجز التحديثات أكثر من توقيع ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature: try another network, and tell the publisher if it stays so.</source>
        <translation>أُضيف شيء إلى موجز التحديثات بعد توقيعه. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The line ends of the update feed were rewritten, so that its signature does not fit: tell the publisher.</source>
        <translation>أُعيدت كتابة نهايات أسطر موجز التحديثات، فلم يعد توقيعه مطابقًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know: install the application again from its publisher.</source>
        <translation>موجز التحديثات موقّع بطريقة لا يعرفها هذا الإصدار. أعد تثبيت التطبيق من موقع ناشره.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged: try again, and tell the publisher if it stays so.</source>
        <translation>توقيع موجز التحديثات تالف. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed was not signed by this application&apos;s publisher, or was changed afterwards: try another network, and tell the publisher if it stays so.</source>
        <translation>لم يوقّع ناشر هذا التطبيق موجز التحديثات، أو غُيّر بعد توقيعه. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number: tell the publisher.</source>
        <translation>ليس لموجز التحديثات رقم تسلسلي صالح للاستخدام. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed does not say how long it holds: tell the publisher.</source>
        <translation>لا يذكر موجز التحديثات مدة صلاحيته. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed is older than one that came before: try another network, and tell the publisher if it stays so.</source>
        <translation>موجز التحديثات أقدم من موجز استُلم سابقًا. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed has expired: check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>انتهت صلاحية موجز التحديثات. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The update server leads to an address that is inside your own computer or network link. Contact the publisher.</source>
        <translation>يشير خادم التحديثات إلى عنوان داخل حاسوبك أو وصلة شبكتك. اتصل بالناشر.</translation>
    </message>
    <message>
        <source>The network proxy refuses to connect to the update server. Ask the administrator of your network.</source>
        <translation>يرفض وكيل الشبكة الاتصال بخادم التحديثات. اسأل مسؤول شبكتك.</translation>
    </message>
    <message>
        <source>The network proxy does not accept your user name and password. Check the proxy&apos;s settings.</source>
        <translation>لا يقبل وكيل الشبكة اسم المستخدم وكلمة المرور. تحقق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, and tell the publisher if that does not help.</source>
        <translation>لا يذكر موجز التحديثات أي المفاتيح صالحة. جرّب شبكة أخرى، وأبلغ الناشر إذا لم يفد ذلك.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Tell the publisher.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات تالفة. أبلغ الناشر.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, and tell the publisher if that does not help.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات ليست من ناشر هذا التطبيق. جرّب شبكة أخرى، وأبلغ الناشر إذا لم يفد ذلك.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Tell the publisher.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات تخص تطبيقًا آخر. أبلغ الناشر.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, and tell the publisher if that does not help.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات أقدم من قائمة سابقة. جرّب شبكة أخرى، وأبلغ الناشر إذا لم يفد ذلك.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. Check the clock of this computer, and tell the publisher if it is right.</source>
        <translation>انتهت صلاحية قائمة المفاتيح في موجز التحديثات. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Install the application again from its publisher.</source>
        <translation>المفتاح الجذري لهذا التطبيق تالف. أعد تثبيت التطبيق من ناشره.</translation>
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
            <numerusform>بقي أقل من ثانية</numerusform>
            <numerusform>بقيت ثانية واحدة تقريبًا</numerusform>
            <numerusform>بقيت ثانيتان تقريبًا</numerusform>
            <numerusform>بقيت %Ln ثوانٍ تقريبًا</numerusform>
            <numerusform>بقيت %Ln ثانية تقريبًا</numerusform>
            <numerusform>بقيت %Ln ثانية تقريبًا</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln minute(s) left</source>
        <translation>
            <numerusform>بقي أقل من دقيقة</numerusform>
            <numerusform>بقيت دقيقة واحدة تقريبًا</numerusform>
            <numerusform>بقيت دقيقتان تقريبًا</numerusform>
            <numerusform>بقيت %Ln دقائق تقريبًا</numerusform>
            <numerusform>بقيت %Ln دقيقة تقريبًا</numerusform>
            <numerusform>بقيت %Ln دقيقة تقريبًا</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %Ln hour(s) left</source>
        <translation>
            <numerusform>بقي أقل من ساعة</numerusform>
            <numerusform>بقيت ساعة واحدة تقريبًا</numerusform>
            <numerusform>بقيت ساعتان تقريبًا</numerusform>
            <numerusform>بقيت %Ln ساعات تقريبًا</numerusform>
            <numerusform>بقيت %Ln ساعة تقريبًا</numerusform>
            <numerusform>بقيت %Ln ساعة تقريبًا</numerusform>
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
        <translation>ذكّرني لاحقًا (&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install Update</source>
        <translation>تثبيت التحديث (&amp;I)</translation>
    </message>
</context>
<context>
    <name>SparkleUpdater</name>
    <message>
        <source>A part of this application that updates need is missing or damaged. Reinstall the application.</source>
        <translation>جزء من هذا التطبيق تحتاج إليه التحديثات مفقود أو تالف. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>Update is already running. Please try later.</source>
        <translation>يوجد تحديث جارٍ بالفعل. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>A new version of %1 %2 is ready to install</source>
        <translation>يوجد إصدار جديد من %1 %2 جاهز للتثبيت</translation>
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
        <translation>ذكّرني لاحقًا</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <translation>تثبيت وإعادة تشغيل</translation>
    </message>
</context>
</TS>
