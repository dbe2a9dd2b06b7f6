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
        <source>This application has no address for its updates. Reinstall it from its publisher.</source>
        <translation>لا يذكر هذا التطبيق مكان نشر تحديثاته. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The address of the update feed is not valid. Reinstall the application.</source>
        <translation>عنوان موجز التحديثات غير صالح. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>This kind of address is not allowed for the update feed. It must begin with https.</source>
        <translation>عنوان موجز التحديثات من نوع غير مسموح به. يجب أن يبدأ بـ https.</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure. It must begin with https.</source>
        <translation>عنوان موجز التحديثات غير آمن. يجب أن يبدأ بـ https.</translation>
    </message>
    <message>
        <source>The update server was not found. Check your internet connection and try again.</source>
        <translation>لم يُعثر على خادم التحديثات. تحقق من الاتصال بالإنترنت ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server refused the connection. Try again later.</source>
        <translation>رفض خادم التحديثات الاتصال. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server cannot be reached from this network. Check the connection and try again.</source>
        <translation>لا يمكن الوصول إلى خادم التحديثات من هذه الشبكة. تحقق من الاتصال ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server did not accept the connection in time. Check the connection and try again.</source>
        <translation>لم يقبل خادم التحديثات الاتصال في الوقت المناسب. تحقق من الاتصال ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The connection to the update server failed. Try again later.</source>
        <translation>فشل الاتصال بخادم التحديثات. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The network proxy did not let the connection through. Check the proxy settings.</source>
        <translation>لم يسمح وكيل الشبكة بمرور الاتصال. تحقق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The update server took too long to respond. Try again later.</source>
        <translation>استغرق خادم التحديثات وقتًا طويلًا في الرد. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server responds too slowly. Try again later.</source>
        <translation>يرد خادم التحديثات ببطء شديد. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is self-signed and cannot be trusted. Try another network, or contact the publisher.</source>
        <translation>شهادة خادم التحديثات موقّعة منه وحده، فهويته غير مثبتة. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate comes from an unknown authority. Try another network, or contact the publisher.</source>
        <translation>شهادة خادم التحديثات صادرة عن جهة لا يعرفها هذا الحاسوب. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>انتهت صلاحية شهادة خادم التحديثات. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid yet. If the clock of this computer is right, contact the publisher.</source>
        <translation>شهادة خادم التحديثات ليست سارية بعد. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is for another server. Try another network, or contact the publisher.</source>
        <translation>شهادة خادم التحديثات صادرة لخادم آخر. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server&apos;s certificate is not valid. Try another network, or contact the publisher.</source>
        <translation>شهادة خادم التحديثات غير مقبولة. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server does not support a secure connection (TLS 1.2 or later). Contact the publisher.</source>
        <translation>لا يدعم خادم التحديثات اتصالًا آمنًا (TLS 1.2 أو أحدث). أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>This computer cannot make secure connections. Install the OpenSSL library.</source>
        <translation>لا يستطيع هذا الحاسوب إنشاء اتصالات آمنة. ثبّت مكتبة OpenSSL.</translation>
    </message>
    <message>
        <source>The update server closed the connection before it responded. Try again later.</source>
        <translation>أغلق خادم التحديثات الاتصال قبل أن يرد. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update feed is incomplete. Try again.</source>
        <translation>وصل موجز التحديثات ناقصًا. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The update server&apos;s response has too many headers. Contact the publisher.</source>
        <translation>رد خادم التحديثات يحتوي على ترويسات كثيرة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed is too large. Contact the publisher.</source>
        <translation>موجز التحديثات كبير جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server&apos;s response is not valid HTTP. Try another network.</source>
        <translation>رد خادم التحديثات ليس HTTP صحيحًا. جرّب شبكة أخرى.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the feed. Contact the publisher.</source>
        <translation>يذكر خادم التحديثات طول الموجز بصورة متناقضة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent more data than it announced. Contact the publisher.</source>
        <translation>أرسل خادم التحديثات أكثر مما أعلن. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent an invalid response. Try again later.</source>
        <translation>أرسل خادم التحديثات استجابة غير صالحة. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server transfers the feed in an unexpected way. Contact the publisher.</source>
        <translation>ينقل خادم التحديثات الموجز بطريقة لم تُطلب. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent the feed compressed, which is not supported. Contact the publisher.</source>
        <translation>أرسل خادم التحديثات الموجز مضغوطًا دون أن يُطلب ذلك. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server responded with status %1. Try again later.</source>
        <translation>رد خادم التحديثات بالحالة %1. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The update server redirects to a less secure address. Contact the publisher.</source>
        <translation>يحيل خادم التحديثات إلى عنوان أقل أمانًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server redirects to a kind of address that is not allowed. Contact the publisher.</source>
        <translation>يحيل خادم التحديثات إلى عنوان من نوع غير مسموح به. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server redirects to something that is not an address. Contact the publisher.</source>
        <translation>يحيل خادم التحديثات إلى شيء ليس عنوانًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server redirects without giving an address. Contact the publisher.</source>
        <translation>يحيل خادم التحديثات إلى عنوان آخر دون ذكره. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server redirects from address to address without end. Contact the publisher.</source>
        <translation>يحيل خادم التحديثات من عنوان إلى آخر بلا نهاية. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The file with the update feed does not exist. Check its address.</source>
        <translation>ملف موجز التحديثات غير موجود. تحقق من عنوانه.</translation>
    </message>
    <message>
        <source>The address of the update feed is a folder or a device. It must be a file.</source>
        <translation>عنوان موجز التحديثات يشير إلى مجلد أو جهاز. يجب أن يشير إلى ملف.</translation>
    </message>
    <message>
        <source>The file with the update feed is too large. Check its address.</source>
        <translation>ملف موجز التحديثات كبير جدًا. تحقق من عنوانه.</translation>
    </message>
    <message>
        <source>The file with the update feed cannot be read. Check its permissions.</source>
        <translation>تعذّرت قراءة ملف موجز التحديثات. تحقق من أذوناته.</translation>
    </message>
    <message>
        <source>The update feed is a file on another computer. Copy it to this computer.</source>
        <translation>موجز التحديثات ملف على حاسوب آخر. انسخه إلى هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The update feed cannot be read. Contact the publisher.</source>
        <translation>تعذّرت قراءة موجز التحديثات. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>A web page arrived instead of the update feed. If this network asks you to sign in, sign in and try again.</source>
        <translation>وصلت صفحة ويب بدلًا من موجز التحديثات. سجّل الدخول إلى هذه الشبكة إذا طلبت ذلك، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application chose an update that is not in the feed. Reinstall the application.</source>
        <translation>اختار التطبيق تحديثًا غير موجود في الموجز. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The application failed while it checked the updates. Restart it and try again.</source>
        <translation>تعطّل التطبيق أثناء فحص التحديثات. أعد تشغيله ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The length of the update in the feed is not valid. Contact the publisher.</source>
        <translation>يذكر الموجز طولًا للتحديث لا يمكن أن يكون صحيحًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update on the server does not have the length stated in the feed. Try again later, or contact the publisher.</source>
        <translation>طول التحديث على الخادم يختلف عما يذكره الموجز. أعد المحاولة لاحقًا، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update server sent the wrong part of the update. Try again later.</source>
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
        <source>Another copy of the application is downloading this update. Wait until it has finished.</source>
        <translation>توجد نسخة أخرى من التطبيق تنزّل هذا التحديث. انتظر حتى تنتهي.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates cannot be used. Check its permissions and its disk.</source>
        <translation>لا يمكن استخدام مجلد التحديثات المنزّلة. تحقق من أذوناته ومن قرصه.</translation>
    </message>
    <message>
        <source>The folder for downloaded updates does not belong to you alone. Remove it and try again.</source>
        <translation>مجلد التحديثات المنزّلة ليس لك وحدك. احذفه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The download needs %1 more disk space, but only %2 are free. Free some space and try again.</source>
        <translation>يحتاج التحديث إلى %1 إضافية على القرص، والمساحة الحرة فيه %2. أخلِ مساحة ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update, which needs %1. Remove some of your files and try again.</source>
        <translation>حصتك على القرص لا تكفي للتحديث الذي يحتاج إلى %1. احذف بعض ملفاتك ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The disk for downloaded updates cannot hold a file as large as this update. Ask the administrator of this computer.</source>
        <translation>ملف التحديث أكبر مما يتسع له قرص التحديثات المنزّلة. اسأل من يدير هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The disk failed while the update was saved. Check the disk and try again.</source>
        <translation>تعطّل القرص أثناء كتابة التحديث عليه. افحص القرص ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The computer has too little memory or too many open files. Close other applications and try again.</source>
        <translation>ذاكرة الحاسوب قليلة جدًا أو الملفات المفتوحة كثيرة جدًا على التنزيل. أغلق تطبيقات أخرى ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application&apos;s folder was not found, so it cannot be updated. Start it from where it is installed.</source>
        <translation>لم يُعثر على مجلد التطبيق، فلا يمكن تحديثه. شغّله من مكان تثبيته.</translation>
    </message>
    <message>
        <source>The application was started through a link, so it cannot be updated. Start it from the folder that the link points to.</source>
        <translation>شُغّل التطبيق عبر رابط، فلا يمكن تحديثه. شغّله من المجلد الذي يشير إليه الرابط.</translation>
    </message>
    <message>
        <source>The application was installed by %1, which also updates it. Use the command &quot;%2&quot;.</source>
        <translation>ثُبّت التطبيق بواسطة %1، وهو الذي يحدّثه أيضًا. استخدم الأمر «%2».</translation>
    </message>
    <message>
        <source>The application runs from an image file. Replace the file %1 with the file of the new version.</source>
        <translation>يعمل التطبيق من ملف صورة قرص. استبدل الملف %1 بملف الإصدار الجديد.</translation>
    </message>
    <message>
        <source>The application is on a disk that cannot be written. Copy it to another folder and start it there.</source>
        <translation>التطبيق موجود على قرص لا يمكن الكتابة عليه. انسخه إلى مجلد آخر وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The application&apos;s folder is a disk of its own or contains one, so it cannot be replaced. Copy it to another folder and start the application there.</source>
        <translation>مجلد التطبيق قرص مستقل أو يحتوي على قرص مستقل، فلا يمكن استبداله. انسخه إلى مجلد آخر وشغّل التطبيق من هناك.</translation>
    </message>
    <message>
        <source>The application is protected against changes. Ask the person who protected it to remove the file attribute &quot;immutable&quot; or &quot;append only&quot;.</source>
        <translation>التطبيق محمي من أي تغيير. اطلب ممن حماه إزالة سمة الملف «immutable» أو «append only».</translation>
    </message>
    <message>
        <source>The application belongs to another user of this computer. Ask them or the administrator to update it.</source>
        <translation>التطبيق ملك لمستخدم آخر لهذا الحاسوب. اطلب منه أو من المسؤول تحديثه.</translation>
    </message>
    <message>
        <source>You may not change the application&apos;s folder. Ask the administrator to update the application.</source>
        <translation>لا يُسمح لك بتغيير مجلد التطبيق. اطلب من المسؤول تحديثه.</translation>
    </message>
    <message>
        <source>Other users of this computer can change the application&apos;s folder, so it is not updated there. Ask the administrator to correct its permissions.</source>
        <translation>يستطيع مستخدمون آخرون لهذا الحاسوب تغيير مجلد التطبيق، ولذلك لا يُحدّث هناك. اطلب من المسؤول تصحيح أذوناته.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space, but only %2 are free. Free some space and try again.</source>
        <translation>يحتاج التحديث إلى %1 من المساحة، والمساحة الحرة %2 فقط. أخلِ مساحة ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>Updates of this application are turned off. Ask the administrator of this computer.</source>
        <translation>تحديثات هذا التطبيق معطّلة. اسأل من يدير هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The last checks for updates failed, so the next one waits. Check for updates yourself to try now.</source>
        <translation>فشلت آخر عمليات البحث عن تحديثات، ولذلك أُجّلت العملية التالية. ابحث بنفسك للمحاولة فورًا.</translation>
    </message>
    <message>
        <source>The update was cancelled. Check for updates to start again.</source>
        <translation>أُلغي التحديث. ابحث عن تحديثات للبدء من جديد.</translation>
    </message>
    <message>
        <source>This application does not state its identifier and version, so it cannot be updated. Reinstall it from its publisher.</source>
        <translation>لا يذكر هذا التطبيق معرّفه وإصداره، فلا يمكن مطابقة أي تحديث معه. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The program that installs updates ended unexpectedly. Try again, or reinstall the application.</source>
        <translation>انتهى برنامج تثبيت التحديثات بصورة غير متوقعة. أعد المحاولة، وأعد تثبيت التطبيق إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The check for updates failed. Try again later.</source>
        <translation>فشل البحث عن تحديثات. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The download address in the feed is not valid. Contact the publisher.</source>
        <translation>يذكر الموجز عنوانًا للتحديث ليس عنوانًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>This kind of download address is not allowed. Contact the publisher.</source>
        <translation>عنوان التحديث من نوع غير مسموح به، وليس https. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The download address is not secure because it does not begin with https. Contact the publisher.</source>
        <translation>عنوان التحديث غير آمن لأنه لا يبدأ بـ https. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The connection broke during the download. Try again to continue the download.</source>
        <translation>انقطع الاتصال أثناء تنزيل التحديث. أعد المحاولة، وسيستمر التنزيل من حيث توقف.</translation>
    </message>
    <message>
        <source>The update server states contradictory lengths for the update. Contact the publisher.</source>
        <translation>يذكر خادم التحديثات طول التحديث بصورة متناقضة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server transfers the update in an unexpected way. Contact the publisher.</source>
        <translation>ينقل خادم التحديثات التحديث بطريقة لم تُطلب. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update server sent the update compressed, which is not supported. Contact the publisher.</source>
        <translation>أرسل خادم التحديثات التحديث مضغوطًا دون أن يُطلب ذلك. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>Line %1 of the feed is not well-formed XML.</source>
        <translation>السطر %1 من الموجز ليس XML سليم الصياغة.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has a document type declaration, which is not allowed.</source>
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
        <source>Line %1 of the feed exceeds the limit of %2 elements and attributes.</source>
        <translation>يتجاوز السطر %1 من الموجز عدد العناصر والسمات المسموح به، وهو %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has item number %3, but only %2 are allowed.</source>
        <translation>يحتوي السطر %1 من الموجز على العنصر رقم %3، والمسموح به %2 فقط.</translation>
    </message>
    <message>
        <source>Line %1 of the feed has more than %2 namespaces declared.</source>
        <translation>يعلن السطر %1 من الموجز عن مساحات أسماء يتجاوز عددها %2.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a web page instead of a feed.</source>
        <translation>تبدأ في السطر %1 من الموجز صفحة ويب بدلًا من الموجز المتوقع.</translation>
    </message>
    <message>
        <source>The application was installed by the system&apos;s package manager, which also updates it. Use the command &quot;%1&quot;.</source>
        <translation>ثُبّت التطبيق بواسطة مدير حزم النظام، وهو الذي يحدّثه أيضًا. استخدم الأمر «%1».</translation>
    </message>
    <message>
        <source>The update could not be installed. Try again later.</source>
        <translation>تعذّر تثبيت التحديث. أعد المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The program that installs updates did not understand its task. Reinstall the application.</source>
        <translation>لم يفهم برنامج تثبيت التحديثات ما طُلب منه. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The program that installs updates could not use the files that it received. Try again.</source>
        <translation>لم يستطع برنامج تثبيت التحديثات استخدام الملفات التي سُلّمت إليه. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The program that installs updates is missing, or other users can change it. Reinstall the application.</source>
        <translation>برنامج تثبيت التحديثات مفقود أو يمكن لآخرين تغييره. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The update could not be unpacked in a confined process. Tell the publisher which system this is.</source>
        <translation>تعذّر فك حزمة التحديث في عملية معزولة كما ينبغي. أخبر الناشر ما هو هذا النظام.</translation>
    </message>
    <message>
        <source>This application has no public key (SUPublicEDKey), so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>ليس لهذا التطبيق مفتاح عام في SUPublicEDKey، فلا يمكن إثبات أصالة أي تحديث. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The public key of this application (SUPublicEDKey) is damaged, so updates cannot be verified. Reinstall it from its publisher.</source>
        <translation>المفتاح العام لهذا التطبيق في SUPublicEDKey تالف، فلا يمكن إثبات أصالة أي تحديث. أعد تثبيته من موقع ناشره.</translation>
    </message>
    <message>
        <source>The update was refused because it is not signed. Contact the publisher.</source>
        <translation>التحديث غير موقّع ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because its signature is not valid. Contact the publisher.</source>
        <translation>رُفض التحديث لأن توقيعه غير صالح. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it is damaged or not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>لم يوقّع ناشر هذا التطبيق التحديث، أو تلف في الطريق، ولذلك رُفض. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>Signatures cannot be verified on this computer. Reinstall libsodium.</source>
        <translation>لا يمكن التحقق من التواقيع على هذا الحاسوب. أعد تثبيت مكتبة libsodium.</translation>
    </message>
    <message>
        <source>The downloaded update is empty. Try again, or contact the publisher.</source>
        <translation>التحديث المنزّل فارغ. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The downloaded update cannot be read from the disk. Check the disk and try again.</source>
        <translation>تعذّرت قراءة التحديث المنزّل من القرص. افحص القرص ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The downloaded update is longer or shorter than the feed says. Try again, or contact the publisher.</source>
        <translation>التحديث المنزّل أطول أو أقصر مما يذكره الموجز. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>Another program changed the downloaded update while it was being verified. Close that program and try again.</source>
        <translation>غيّر برنامج آخر التحديث المنزّل أثناء التحقق منه. أغلق ذلك البرنامج ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The archive of the update has an unknown format. Contact the publisher.</source>
        <translation>التحديث محزوم بطريقة غير معروفة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The archive of the update is damaged. Contact the publisher.</source>
        <translation>أرشيف التحديث تالف. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because its archive can be read in more than one way. Contact the publisher.</source>
        <translation>يمكن قراءة أرشيف التحديث بأكثر من طريقة ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because its archive is encrypted. Contact the publisher.</source>
        <translation>أرشيف التحديث مشفّر ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The archive of the update uses an unknown compression. Contact the publisher.</source>
        <translation>أرشيف التحديث مضغوط بطريقة غير معروفة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is not allowed. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملف باسم غير مسموح به. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains a file with a name that is too long. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملف باسم طويل جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file outside the application. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملف سيقع خارج التطبيق ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The folders of the update are nested too deeply. Contact the publisher.</source>
        <translation>مجلدات التحديث عميقة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains more than files, folders and links. Contact the publisher.</source>
        <translation>يحتوي التحديث على شيء ليس ملفًا ولا مجلدًا ولا رابطًا ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a hard link. Contact the publisher.</source>
        <translation>يحتوي التحديث على رابط صلب ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file with holes. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملف فيه فجوات ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file without a size. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملف بلا حجم ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains the same file twice. Contact the publisher.</source>
        <translation>يحتوي التحديث على الملف نفسه مرتين ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains file names that differ only in case or accents. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملفات لا تختلف أسماؤها إلا في حالة الأحرف أو العلامات ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a file inside something that is not a folder. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملف تحت شيء ليس مجلدًا ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains a link to a name that is not allowed. Contact the publisher.</source>
        <translation>يحتوي التحديث على رابط إلى اسم غير مسموح به. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it contains a link that leads outside the application. Contact the publisher.</source>
        <translation>يحتوي التحديث على رابط يقود إلى خارج التطبيق ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains a link that leads nowhere. Contact the publisher.</source>
        <translation>يحتوي التحديث على رابط لا يقود إلى شيء. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains a link that leads back to itself. Contact the publisher.</source>
        <translation>يحتوي التحديث على رابط يعود إلى نفسه. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains too many files. Contact the publisher.</source>
        <translation>يحتوي التحديث على ملفات كثيرة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains too many links. Contact the publisher.</source>
        <translation>يحتوي التحديث على روابط كثيرة جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is too large when it is unpacked. Contact the publisher.</source>
        <translation>التحديث كبير جدًا بعد فك حزمته. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The installed application was changed, so the small update does not fit it. Reinstall the application.</source>
        <translation>تغيّر التطبيق المثبّت، فلا يلائمه التحديث الصغير. أعد تثبيت التطبيق.</translation>
    </message>
    <message>
        <source>The small update produced a wrong result. Contact the publisher.</source>
        <translation>أعطى التحديث الصغير نتيجة خاطئة. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains no application. Contact the publisher.</source>
        <translation>لا يحتوي التحديث على أي تطبيق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update contains more than one application. Contact the publisher.</source>
        <translation>يحتوي التحديث على أكثر من تطبيق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The application in the update is not a folder. Contact the publisher.</source>
        <translation>التطبيق الموجود في التحديث ليس مجلدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The application in the update has no information file. Contact the publisher.</source>
        <translation>ليس للتطبيق الموجود في التحديث ملف معلومات. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The information file of the application in the update is too large. Contact the publisher.</source>
        <translation>ملف معلومات التطبيق الموجود في التحديث كبير جدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The information file of the application in the update cannot be read. Contact the publisher.</source>
        <translation>تعذّرت قراءة ملف معلومات التطبيق الموجود في التحديث. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update names a program outside its folder. Contact the publisher.</source>
        <translation>يسمّي التحديث برنامجًا خارج مجلده. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it belongs to another application. Contact the publisher.</source>
        <translation>التحديث لتطبيق آخر ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because its version is not the one in the feed. Contact the publisher.</source>
        <translation>إصدار التحديث غير ما يذكره الموجز ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update was refused because it is not newer than the installed application. Contact the publisher.</source>
        <translation>التحديث ليس أحدث من التطبيق المثبّت ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The application in the update has no public key, so it could never be updated again. Contact the publisher.</source>
        <translation>ليس للتطبيق الموجود في التحديث مفتاح عام، فلن يمكن تحديثه بعد ذلك أبدًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The contents of the update do not match its file name. Contact the publisher.</source>
        <translation>محتوى التحديث لا يطابق اسم ملفه. اتصل بالناشر.</translation>
    </message>
    <message>
        <source>The application in the update has no program to start. Contact the publisher.</source>
        <translation>ليس في التطبيق الموجود في التحديث برنامج لتشغيله. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The program in the update may not be started. Contact the publisher.</source>
        <translation>لا يُسمح بتشغيل البرنامج الموجود في التحديث. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The program in the update is for another kind of computer. Contact the publisher.</source>
        <translation>البرنامج الموجود في التحديث مخصص لنوع آخر من الحواسيب. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update is a program of its own, which this application does not allow. Contact the publisher.</source>
        <translation>التحديث برنامج مستقل، وهذا ما لا يسمح به التطبيق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not start. Try again, or contact the publisher.</source>
        <translation>لم يبدأ البرنامج المرفق بالتحديث. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The program that comes with the update did not install it. Try again, or contact the publisher.</source>
        <translation>لم يثبّت البرنامج المرفق التحديث. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The program that comes with the update took too long and was stopped. Try again.</source>
        <translation>استغرق البرنامج المرفق بالتحديث وقتًا طويلًا فأُنهي. أعد المحاولة.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk for the update. Free some space and try again.</source>
        <translation>لا توجد مساحة كافية على القرص للتحديث. أخلِ مساحة ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>You may not change the folder that holds the application. Ask the person who installed the application.</source>
        <translation>لا يُسمح لهذا المستخدم بتغيير المجلد الذي يحتوي على التطبيق. اسأل من ثبّته.</translation>
    </message>
    <message>
        <source>The disk reported an error. Check the disk and try again.</source>
        <translation>أبلغ القرص عن خطأ. افحصه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application did not close, so the update was not installed. Save your work, check for updates again and let the application close.</source>
        <translation>لم يُغلق التطبيق، ولذلك لم يُثبّت التحديث. احفظ عملك، ثم ابحث عن تحديثات مرة أخرى ودع التطبيق يُغلق.</translation>
    </message>
    <message>
        <source>Another update of this application is being installed. Wait until it has finished.</source>
        <translation>يجري تثبيت تحديث آخر لهذا التطبيق. انتظر حتى ينتهي.</translation>
    </message>
    <message>
        <source>The application is no longer where it was when the update began. Start it from its place and try again.</source>
        <translation>لم يعد التطبيق المثبّت حيث كان عند بدء التحديث. شغّله من مكانه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application was changed while the update was being prepared. Restart it and try again.</source>
        <translation>تغيّر التطبيق المثبّت أثناء تجهيز التحديث. أعد تشغيله ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The prepared update was changed before it was installed, so it was discarded. Try again.</source>
        <translation>تغيّر التحديث المجهّز قبل تثبيته فأُسقط. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The prepared update and the application are on different disks. Try again, or reinstall the application.</source>
        <translation>التحديث المجهّز والتطبيق على قرصين مختلفين. أعد المحاولة، وأعد تثبيت التطبيق إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The new version could not replace the old one, which is unchanged. Try again.</source>
        <translation>تعذّر وضع الإصدار الجديد مكان القديم الذي بقي كما كان. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The disk did not confirm that the update is saved. Check the disk and try again.</source>
        <translation>لم يؤكد القرص أنه حفظ التحديث. افحصه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The application that should start after the update may not be started. Start it yourself.</source>
        <translation>لا يُسمح بتشغيل التطبيق الذي ينبغي تشغيله بعد التحديث. شغّله يدويًا.</translation>
    </message>
    <message>
        <source>The updated application did not start. Start it yourself.</source>
        <translation>لم يبدأ التطبيق بعد تحديثه. شغّله يدويًا.</translation>
    </message>
    <message>
        <source>The application runs in a container that hides the owner of the folder &quot;%1&quot;. Start it outside the container to update it.</source>
        <translation>يعمل التطبيق داخل حاوية تُخفي مالك المجلد «%1». شغّله خارج الحاوية لتحديثه.</translation>
    </message>
    <message>
        <source>Your disk quota is too small for the update. Remove some of your files and try again.</source>
        <translation>حصتك على القرص لا تكفي للتحديث. احذف بعض ملفاتك ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The user &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>يمكن للمستخدم &quot;%1&quot; تغيير مجلد التطبيق. استخدم الأمر &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The update would change who may open the application, so it was not installed. Ask the person who installed the application to update it.</source>
        <translation>لا يستطيع التحديث الإبقاء على من يُسمح له بفتح التطبيق، ولذلك لم يُثبَّت. اطلب من الشخص الذي ثبّت التطبيق أن يحدّثه.</translation>
    </message>
    <message>
        <source>The new version did not start, so the previous one was restored. Contact the publisher.</source>
        <translation>لم يبدأ الإصدار الجديد، وأُعيد الإصدار السابق. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The installation of the update was interrupted. Check for updates again.</source>
        <translation>توقّف تثبيت التحديث قبل اكتماله. ابحث عن التحديثات مرة أخرى.</translation>
    </message>
    <message>
        <source>Files cannot be locked where the application is installed. Move it to a folder on a local disk.</source>
        <translation>لا يمكن قفل الملفات في مكان تثبيت التطبيق. انقله إلى مجلد على قرص محلي.</translation>
    </message>
    <message>
        <source>The disk that holds the application does not store file permissions. Move the application to another disk.</source>
        <translation>القرص الذي يحتوي على التطبيق لا يحتفظ بأذونات الملفات. انقل التطبيق إلى قرص آخر.</translation>
    </message>
    <message>
        <source>Other users can change the folder that holds the application. Move the application to a folder of your own.</source>
        <translation>يمكن لمستخدمين آخرين تغيير المجلد الذي يحتوي على التطبيق. انقل التطبيق إلى مجلد خاص بك.</translation>
    </message>
    <message>
        <source>This system does not provide pidfd_open, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>لا يوفر هذا النظام pidfd_open الذي تحتاج إليه التحديثات. ثبّت نواة أحدث، أو اسمح بهذا الاستدعاء في الحاوية أو في بيئة العزل.</translation>
    </message>
    <message>
        <source>This system does not provide memfd_create, which updates need. Install a newer kernel, or allow the call in the container or sandbox.</source>
        <translation>لا يوفر هذا النظام memfd_create الذي تحتاج إليه التحديثات. ثبّت نواة أحدث، أو اسمح بهذا الاستدعاء في الحاوية أو في بيئة العزل.</translation>
    </message>
    <message>
        <source>All users of this computer can write to the folder %1, which holds the application. Move the application to a folder of your own and start it there.</source>
        <translation>يمكن لكل مستخدمي هذا الحاسوب الكتابة في المجلد %1 الذي يحتوي على التطبيق. انقل التطبيق إلى مجلد خاص بك وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The members of the group &quot;%1&quot; can change the application&apos;s folder. Use the command &quot;%2&quot;.</source>
        <translation>يمكن لأعضاء المجموعة &quot;%1&quot; تغيير مجلد التطبيق. استخدم الأمر &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The application is installed in %1, where files cannot be locked. Move it to a folder on a local disk and start it there.</source>
        <translation>التطبيق مثبّت في %1 حيث لا يمكن قفل الملفات. انقله إلى مجلد على قرص محلي وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The application in %1 belongs to a layer of the file system that cannot be replaced. Copy it to another folder and start it there.</source>
        <translation>ينتمي التطبيق الموجود في %1 إلى طبقة من نظام الملفات لا يمكن استبدالها. انسخه إلى مجلد آخر وشغّله من هناك.</translation>
    </message>
    <message>
        <source>The update feed is not signed, but this application requires a signature. Try another network, or contact the publisher.</source>
        <translation>موجز التحديثات غير موقّع كما يشترط هذا التطبيق. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed was refused because it continues after its signature. Try another network, or contact the publisher.</source>
        <translation>يستمر موجز التحديثات بعد توقيعه ولذلك رُفض. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed was refused because it has more than one signature. Contact the publisher.</source>
        <translation>لموجز التحديثات أكثر من توقيع ولذلك رُفض. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>Something was added to the update feed after its signature. Try another network, or contact the publisher.</source>
        <translation>أُضيف شيء إلى موجز التحديثات بعد توقيعه. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The line endings of the update feed were changed, so its signature does not match. Contact the publisher.</source>
        <translation>أُعيدت كتابة نهايات أسطر موجز التحديثات، فلم يعد توقيعه مطابقًا. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed is signed in a way that this version does not know. Reinstall the application from its publisher.</source>
        <translation>موجز التحديثات موقّع بطريقة لا يعرفها هذا الإصدار. أعد تثبيت التطبيق من موقع ناشره.</translation>
    </message>
    <message>
        <source>The signature of the update feed is damaged. Try again, or contact the publisher.</source>
        <translation>توقيع موجز التحديثات تالف. أعد المحاولة، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed was changed or is not signed by this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>لم يوقّع ناشر هذا التطبيق موجز التحديثات، أو غُيّر بعد توقيعه. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed has no usable serial number. Contact the publisher.</source>
        <translation>ليس لموجز التحديثات رقم تسلسلي صالح للاستخدام. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed does not state how long it is valid. Contact the publisher.</source>
        <translation>لا يذكر موجز التحديثات مدة صلاحيته. أبلغ الناشر بذلك.</translation>
    </message>
    <message>
        <source>The update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>موجز التحديثات أقدم من موجز استُلم سابقًا. جرّب شبكة أخرى، وأبلغ الناشر إذا استمرت المشكلة.</translation>
    </message>
    <message>
        <source>The update feed has expired. If the clock of this computer is right, contact the publisher.</source>
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
        <source>The network proxy does not accept your user name and password. Check the proxy settings.</source>
        <translation>لا يقبل وكيل الشبكة اسم المستخدم وكلمة المرور. تحقق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The update feed does not say which keys are valid. Try another network, or contact the publisher.</source>
        <translation>لا يذكر موجز التحديثات أي المفاتيح صالحة. جرّب شبكة أخرى، وأبلغ الناشر إذا لم يفد ذلك.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is damaged. Contact the publisher.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات تالفة. أبلغ الناشر.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is not from this application&apos;s publisher. Try another network, or contact the publisher.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات ليست من ناشر هذا التطبيق. جرّب شبكة أخرى، وأبلغ الناشر إذا لم يفد ذلك.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is for another application. Contact the publisher.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات تخص تطبيقًا آخر. أبلغ الناشر.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed is older than an earlier one. Try another network, or contact the publisher.</source>
        <translation>قائمة المفاتيح الصالحة في موجز التحديثات أقدم من قائمة سابقة. جرّب شبكة أخرى، وأبلغ الناشر إذا لم يفد ذلك.</translation>
    </message>
    <message>
        <source>The list of valid keys in the update feed has expired. If the clock of this computer is right, contact the publisher.</source>
        <translation>انتهت صلاحية قائمة المفاتيح في موجز التحديثات. تحقق من ساعة هذا الحاسوب، وأبلغ الناشر إذا كانت صحيحة.</translation>
    </message>
    <message>
        <source>The root key of this application is damaged. Reinstall the application from its publisher.</source>
        <translation>المفتاح الجذري لهذا التطبيق تالف. أعد تثبيت التطبيق من ناشره.</translation>
    </message>
    <message>
        <source>The update feed is empty. Try again later, or contact the publisher.</source>
        <translation>موجز التحديثات فارغ. أعد المحاولة لاحقًا أو اتصل بالناشر.</translation>
    </message>
    <message>
        <source>The update needs more memory, files or processes than this system allows. Close other applications and try again.</source>
        <translation>يحتاج التحديث إلى ذاكرة أو ملفات أو عمليات أكثر مما يسمح به هذا النظام. أغلق التطبيقات الأخرى وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The folder for records of updates cannot be used. Check its permissions and its disk.</source>
        <translation>لا يمكن استخدام المجلد المخصص لسجلات التحديثات. تحقق من أذوناته ومن قرصه.</translation>
    </message>
    <message>
        <source>Line %1 of the feed begins a document that is not a feed.</source>
        <translation>يبدأ في السطر %1 من الموجز مستند ليس موجزًا.</translation>
    </message>
    <message>
        <source>This network asks you to sign in. Sign in and try again.</source>
        <translation>تطلب هذه الشبكة تسجيل الدخول. سجّل الدخول ثم أعد المحاولة.</translation>
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
    <message>
        <source>%1 %2 is now available; you have %3. Its page says how to get it.</source>
        <comment>%1 is the application&apos;s name, %2 the new version, %3 the installed version</comment>
        <translation>يتوفر الآن %1 %2؛ الإصدار المثبت لديك هو %3. توضح صفحته كيفية الحصول عليه.</translation>
    </message>
    <message>
        <source>&amp;Open Its Page</source>
        <translation>&amp;فتح الصفحة</translation>
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
