<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>مقفلة، يلزم رمز PIN</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>محظورة، يلزم رمز PUK</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>جارٍ البدء</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>تتعذر قراءتها</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>لا توجد شريحة SIM</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>لا يجري البحث</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>الشبكة الأم</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>جارٍ البحث</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>مرفوض</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>تجوال</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>لا توجد خدمة</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>مكالمات الطوارئ فقط</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>خدمة كاملة</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>لا خدمة في هذه المنطقة</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>توفير الطاقة</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>‪%1 dBm‬</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1، %2 من 5 أشرطة</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>غير متصل: %1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>مسجَّل في الشبكة</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
</context>
<context>
    <name>FrmDisclaimer</name>
    <message>
        <source>Before you begin</source>
        <translation>قبل أن تبدأ</translation>
    </message>
    <message>
        <source>%1 connects this computer to a mobile network. What your operator charges for data, messages and calls is between you and your operator; abroad it can be much more than at home.</source>
        <translation>يصل %1 هذا الحاسوب بشبكة محمولة. ما يتقاضاه المشغّل مقابل البيانات والرسائل والمكالمات شأن بينك وبينه، وقد تكون الكلفة في الخارج أعلى بكثير منها في بلدك.</translation>
    </message>
    <message>
        <source>The traffic and the duration that are shown are measured on this computer. The operator&apos;s own count decides what you pay.</source>
        <translation>حجم البيانات والمدة المعروضان مقيسان على هذا الحاسوب، أما ما تدفعه فيحدده حساب المشغّل.</translation>
    </message>
    <message>
        <source>The program is free software and comes without any warranty, as far as the law allows.</source>
        <translation>هذا البرنامج حرّ ويقدَّم بلا أي ضمان، في حدود ما يسمح به القانون.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;قبول</translation>
    </message>
    <message>
        <source>&amp;Decline and quit</source>
        <translation>&amp;رفض وخروج</translation>
    </message>
</context>
<context>
    <name>ModeSwitch</name>
    <message>
        <source>The stick is not there any more. Plug it in again.</source>
        <translation>لم يعد المودم موصولًا. أعد توصيله.</translation>
    </message>
    <message>
        <source>usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.</source>
        <translation>تعذّر على usb_modeswitch تبديل وضع المودم: %1 افصله وانتظر لحظة ثم أعد توصيله.</translation>
    </message>
    <message>
        <source>usb_modeswitch did not run: %1</source>
        <translation>لم يعمل usb_modeswitch: %1</translation>
    </message>
    <message>
        <source>usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again.</source>
        <translation>لم ينتهِ usb_modeswitch في الوقت المناسب. افصل المودم وانتظر لحظة ثم أعد توصيله.</translation>
    </message>
    <message>
        <source>The program usb_modeswitch is missing. Install it with &quot;sudo apt install usb-modeswitch&quot;.</source>
        <translation>البرنامج usb_modeswitch غير موجود. ثبّته بالأمر ‪&quot;sudo apt install usb-modeswitch&quot;‬.</translation>
    </message>
    <message>
        <source>You may not switch the stick yourself. Switch it with &quot;%1&quot;, or unplug it and plug it in again: the system then switches it.</source>
        <translation>لا يُسمح لك بتبديل وضع المودم بنفسك. بدّله بالأمر ‪&quot;%1&quot;‬، أو افصله وأعد توصيله فيبدّله النظام.</translation>
    </message>
</context>
<context>
    <name>ModemTypes</name>
    <message>
        <source>The file has a document type declaration, which is not allowed here. What follows is not read.</source>
        <translation>في الملف تصريح بنوع المستند، وهذا غير مسموح هنا. لن يُقرأ ما يليه.</translation>
    </message>
    <message>
        <source>The file is not well-formed here: %1 What follows is not read.</source>
        <translation>الملف غير سليم البنية هنا: %1 لن يُقرأ ما يليه.</translation>
    </message>
    <message>
        <source>The outermost element is &quot;%1&quot;; it should be &quot;modem_types&quot;.</source>
        <translation>العنصر الخارجي هو ‪&quot;%1&quot;‬ وينبغي أن يكون ‪&quot;modem_types&quot;‬.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known at this place.</source>
        <translation>‪&quot;%1&quot;‬ غير معروف في هذا الموضع.</translation>
    </message>
    <message>
        <source>The card %1 is listed already; this entry is left out.</source>
        <translation>البطاقة %1 مدرجة من قبل، ولذا يُترك هذا المدخل.</translation>
    </message>
    <message>
        <source>A rule needs the attribute &quot;drivers&quot;, with the names of kernel drivers.</source>
        <translation>تحتاج القاعدة إلى السمة ‪&quot;drivers&quot;‬ وفيها أسماء برامج تشغيل النواة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be four hexadecimal digits other than 0000, as lsusb shows them.</source>
        <translation>قيمة ‪&quot;%1&quot;‬ هي ‪&quot;%2&quot;‬، وينبغي أن تكون أربعة أرقام ست عشرية غير 0000 كما يعرضها lsusb.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>السمة ‪&quot;%1&quot;‬ مفقودة.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be a number from %3 to %4.</source>
        <translation>قيمة ‪&quot;%1&quot;‬ هي ‪&quot;%2&quot;‬، وينبغي أن تكون عددًا من %3 إلى %4.</translation>
    </message>
    <message>
        <source>&quot;family&quot; is &quot;%1&quot;; it should be WCDMA, TD-SCDMA or CDMA.</source>
        <translation>قيمة ‪&quot;family&quot;‬ هي ‪&quot;%1&quot;‬، وينبغي أن تكون WCDMA أو TD-SCDMA أو CDMA.</translation>
    </message>
    <message>
        <source>&quot;storage&quot; holds &quot;%1&quot;; it should be ids such as 1209:0002.</source>
        <translation>قيمة ‪&quot;storage&quot;‬ هي ‪&quot;%1&quot;‬، وينبغي أن تكون معرّفات مثل ‪1209:0002‬.</translation>
    </message>
    <message>
        <source>This entry is left out. %1</source>
        <translation>يُترك هذا المدخل. %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>تعذّرت قراءة الملف: %1</translation>
    </message>
    <message>
        <source>The file is larger than 1 MiB and is not read.</source>
        <translation>الملف أكبر من 1 MiB ولن يُقرأ.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>مكالمة واردة</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>البطاقة ترنّ.</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>رسالة جديدة</translation>
    </message>
    <message>
        <source>A new message has arrived on the card</source>
        <translation>وصلت رسالة جديدة إلى البطاقة</translation>
    </message>
    <message>
        <source>A new message has arrived</source>
        <translation>وصلت رسالة جديدة</translation>
    </message>
    <message>
        <source>An immediate message has arrived</source>
        <translation>وصلت رسالة فورية</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>مكالمة أخرى في الانتظار.</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>تظهر البطاقة كقرص</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>تبدأ بطاقات كثيرة كقرص عليه برامج التشغيل. حوّلها فتصير مودمًا خلال ثوانٍ.</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>لم يُعثر على بطاقة</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>أدخل البطاقة في مقبس USB بهذا الحاسوب. إن كانت موصولة فأخرجها وجرّب مقبسًا آخر.</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>البطاقة موصولة كمودم</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>ليس للبطاقة منفذ تسلسلي</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>يرى الحاسوب ‪&quot;%1&quot;‬ لكنه لم ينشئ لها منفذًا. أخرجها وانتظر عشر ثوانٍ ثم أعد توصيلها.</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>أنشأ الحاسوب منفذًا لها</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>يُسمح لك باستخدام المنفذ</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>لا يُسمح لك باستخدام المنفذ</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>استخدام المنفذ ‪%1‬ مقصور على أعضاء المجموعة ‪&quot;%2&quot;‬. نفّذ الأمر الذي ينسخه الزر، ثم اخرج من الجلسة وادخل من جديد.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>برنامج آخر</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (العملية %2)</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>لا برنامج آخر يشغل المنفذ</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>المنفذ مشغول</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>يشغل %1 المنفذ ‪%2‬. أغلق ذلك البرنامج أو أوقف خدمته، ثم أعد البحث.</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>البطاقة لا تستجيب</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>المنفذ ‪%1‬ مفتوح لكن لا استجابة منه. تحتاج البطاقة الموصولة للتو إلى نصف دقيقة على الأكثر؛ بعد ذلك أخرجها ثم أعد توصيلها.</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>البطاقة تستجيب</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>لا توجد شريحة SIM</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>أخرج البطاقة وضع فيها شريحة SIM وملامساتها إلى الأسفل، ثم أعد توصيل البطاقة.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>تتعذر قراءة شريحة SIM</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>أخرج شريحة SIM وامسح ملامساتها ثم أعدها. إن لم يُجدِ ذلك فاطلب من المشغّل شريحة جديدة.</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>شريحة SIM قيد بدء التشغيل</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>يستغرق هذا بضع ثوانٍ.</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>جارٍ الاستعلام عن شريحة SIM</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>لم تُبلغ البطاقة بعد هل فيها شريحة SIM.</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>في البطاقة شريحة SIM</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>شريحة SIM مقفلة</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>تطلب رمز PIN قبل أن تسمح للبطاقة بدخول شبكة.</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>شريحة SIM محظورة</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>أُدخل رمز PIN خاطئ مرات كثيرة. يتيح رمز PUK المرفق بشريحة SIM تعيين رمز PIN جديد.</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>شريحة SIM غير مقفلة</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>اللاسلكي متوقف</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>لا ترسل البطاقة ولا تستقبل حتى يُشغَّل اللاسلكي.</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>اللاسلكي يعمل</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>لا يجري البحث عن شبكة</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>لم تجد البطاقة شبكة يحق لها استخدامها فتوقفت. انتقل إلى مكان استقباله أفضل، ثم شغّل اللاسلكي من جديد.</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>رفضت الشبكة شريحة SIM</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>ربما لم تُفعَّل شريحة SIM بعد، أو لا يُسمح باستخدامها هنا. يستطيع المشغّل إخبارك بالسبب.</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>جارٍ البحث عن شبكة</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>قد يستغرق هذا دقيقة، وأطول في الخارج. يساعد القرب من نافذة.</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>جارٍ الاستعلام عن الشبكة</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>لم تُبلغ البطاقة بعد هل قبلتها شبكة.</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>قبلت شبكة مشغّلك البطاقة</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>قبلت شبكة مشغّل آخر البطاقة</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>لا توجد خدمة</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>لا تقدّم الشبكة خدمة هنا حاليًا. انتقل إلى مكان استقباله أفضل.</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>مكالمات الطوارئ فقط</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>لا تخدم الشبكة شريحة SIM هذه هنا. يستطيع المشغّل إخبارك بالسبب.</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>لا خدمة في هذه المنطقة</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>يخدم المشغّل شريحة SIM هذه في أماكن أخرى، لا في هذه المنطقة.</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>الشبكة تخدم البطاقة</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>البطاقة في مقبس USB</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>المنفذ التسلسلي</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>حق استخدام المنفذ</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>خلوّ المنفذ</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>استجابة البطاقة</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>شريحة SIM</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>اللاسلكي</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>إعادة ال&amp;بحث</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>تحويل إلى &amp;مودم</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;نسخ الأمر</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>إ&amp;دخال PIN</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>إ&amp;دخال PUK</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>ت&amp;شغيل اللاسلكي</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>إعادة الاست&amp;علام</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>تحدّد الإعدادات منفذًا</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>المنفذ غير موجود</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>تحدّد الإعدادات المنفذ ‪%1‬ وهو غير موجود. أدخل البطاقة؛ وإن كانت موصولة فصحّح ‪&quot;at_port&quot;‬ في الملف ‪Data/common-config.xml‬ ثم شغّل البرنامج من جديد.</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>المنفذ ليس منفذًا تسلسليًا</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>تحدّد الإعدادات المنفذ ‪%1‬ وهو ليس منفذًا تسلسليًا. صحّح ‪&quot;at_port&quot;‬ في الملف ‪Data/common-config.xml‬ ثم شغّل البرنامج من جديد.</translation>
    </message>
</context>
<context>
    <name>PortAccess</name>
    <message>
        <source>You may not open %1, which belongs to the group &quot;%2&quot;. Join it with &quot;sudo usermod -aG %2 %3&quot;, then sign out and in again.</source>
        <translation>لا يُسمح لك بفتح %1 التابع للمجموعة ‪&quot;%2&quot;‬. انضمّ إليها بالأمر ‪&quot;sudo usermod -aG %2 %3&quot;‬ ثم اخرج من الجلسة وادخل من جديد.</translation>
    </message>
    <message>
        <source>You may not open %1 yet: you are a member of the group &quot;%2&quot;, but were not when you signed in. Sign out and in again.</source>
        <translation>لا يمكنك فتح %1 بعد: أنت عضو في المجموعة ‪&quot;%2&quot;‬ لكنك لم تكن كذلك عند الدخول. اخرج من الجلسة وادخل من جديد.</translation>
    </message>
    <message>
        <source>You may not open %1, and no group can be joined that may. Ask the administrator of this computer for a udev rule that gives the group &quot;dialout&quot; access to it.</source>
        <translation>لا يُسمح لك بفتح %1، ولا توجد مجموعة لها هذا الحق. اطلب من مدير هذا الحاسوب قاعدة udev تمنح المجموعة ‪&quot;dialout&quot;‬ حق الوصول إليه.</translation>
    </message>
</context>
<context>
    <name>PortHolder</name>
    <message>
        <source>process %1</source>
        <translation>العملية %1</translation>
    </message>
    <message>
        <source>ModemManager is using the card on %1. Stop it with &quot;sudo systemctl stop ModemManager&quot;, or keep it off this card with the udev rule that comes with this program.</source>
        <translation>يستخدم ModemManager البطاقة على %1. أوقفه بالأمر ‪&quot;sudo systemctl stop ModemManager&quot;‬، أو أبعده عن هذه البطاقة بقاعدة udev المرفقة بهذا البرنامج.</translation>
    </message>
    <message>
        <source>The message service %1 is using the card on %2. Stop it with &quot;sudo systemctl stop %3&quot;.</source>
        <translation>تستخدم خدمة الرسائل %1 البطاقة على %2. أوقفها بالأمر ‪&quot;sudo systemctl stop %3&quot;‬.</translation>
    </message>
    <message>
        <source>%1 is using the card on %2. Close that program; the card is then found by itself.</source>
        <translation>يستخدم %1 البطاقة على %2. أغلق ذلك البرنامج فيُعثر على البطاقة تلقائيًا.</translation>
    </message>
    <message>
        <source>Another program is using the card on %1. &quot;sudo fuser -v %1&quot; names it; close it, and the card is found by itself.</source>
        <translation>يستخدم برنامج آخر البطاقة على %1. يبيّنه الأمر ‪&quot;sudo fuser -v %1&quot;‬؛ أغلقه فيُعثر على البطاقة تلقائيًا.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>Translate as &quot;RTL&quot; where the language runs from right to left, else as &quot;LTR&quot;.</extracomment>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>تعذّر إنشاء المجلد %1</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1 may not be written</source>
        <translation>لا تُسمح الكتابة في %1</translation>
    </message>
    <message>
        <source>No file can be made beside %1</source>
        <translation>تعذّر إنشاء ملف بجانب %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>تعذّرت كتابة %1</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>تعذّر استبدال %1</translation>
    </message>
    <message>
        <source>%1 is a ring of links</source>
        <translation>%1 حلقة من الروابط</translation>
    </message>
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>لا يمكن الاحتفاظ بملف الإعدادات التالف</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>تعذّرت قراءة الإعدادات، فبدأ البرنامج دون أي إعداد. حُفظ الملف غير المقروء باسم:
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>لا يمكن حفظ الإعدادات: %1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>تعذّرت قراءة الألوان في ‪&quot;%1&quot;‬.</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;لماذا لا يوجد اتصال؟</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;تحديث</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;نقل</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>تغيير الح&amp;جم</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>&amp;ملء الشاشة</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>&amp;حول %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
</context>
<context>
    <name>corva::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>حول %1</translation>
    </message>
    <message>
        <source>Connection manager for USB data cards</source>
        <translation>مدير اتصال لبطاقات بيانات USB</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>مكتبة الواجهة</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>الرخصة</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>البطاقة</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>البرنامج الثابت</translation>
    </message>
    <message>
        <source>Internal version</source>
        <translation>الإصدار الداخلي</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;نسخ الكل</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>إ&amp;غلاق</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>مجموعات الإعدادات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>جارٍ قراءة البطاقة</translation>
    </message>
</context>
<context>
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;تحديث</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>الاستعلام من البطاقة عن كل شيء من جديد</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>البطاقة</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>بطاقة SIM</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>المشغّل</translation>
    </message>
    <message>
        <source>Network type</source>
        <translation>نوع الشبكة</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>الخدمة</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>التجوال</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>الإشارة</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>رمز الشبكة</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>المنطقة</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>الخلية</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>وقت الشبكة</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>رقم الهاتف</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>رقم البطاقة</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>الطراز</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>البرنامج الثابت</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>إ&amp;ظهار الأرقام</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>&amp;لاحقًا</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>شريحة SIM محظورة</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>شريحة SIM مقفلة</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>إدخال PUK</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>إدخال PIN</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>أدخل رمز PUK المرفق بشريحة SIM، واختر رمز PIN جديدًا.</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>أدخل رمز PIN لاستخدام البطاقة.</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>&amp;رمز PUK، 8 أرقام</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>رمز PIN ال&amp;جديد، من 4 إلى 8 أرقام</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>ر&amp;مز PIN، من 4 إلى 8 أرقام</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>&amp;كرّر رمز PIN الجديد</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>إلغاء ال&amp;حظر</translation>
    </message>
    <message>
        <source>Un&amp;lock</source>
        <translation>&amp;فتح القفل</translation>
    </message>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>لم تبقَ أي محاولة</numerusform>
            <numerusform>بقيت محاولة واحدة</numerusform>
            <numerusform>بقيت محاولتان</numerusform>
            <numerusform>بقيت %n محاولات</numerusform>
            <numerusform>بقيت %n محاولة</numerusform>
            <numerusform>بقيت %n محاولة</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>المحاولة الأخيرة: إذا أخطأت في رمز PUK مرة أخرى فستتلف شريحة SIM نهائيًا.</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>المحاولة الأخيرة: إذا أخطأت في رمز PIN مرة أخرى فستطلب شريحة SIM رمز PUK.</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>يتكوّن رمز PUK من 8 أرقام.</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>يتكوّن رمز PIN من 4 إلى 8 أرقام.</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>رمزا PIN مختلفان.</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>بانتظار رد شريحة SIM</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>رمز PUK خاطئ.</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>رمز PIN خاطئ.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>تتعذر قراءة شريحة SIM. أخرجها ثم أعدها.</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>لم تستجب البطاقة في الوقت المناسب. لا يُعرف هل قبلت ما أُدخل؛ تُعرض المحاولات المتبقية إن كانت البطاقة تذكرها.</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>لا تزال شريحة SIM قيد بدء التشغيل. أعد المحاولة بعد قليل.</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>رفضت البطاقة ما أُدخل دون أن تذكر أنه خاطئ.</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>قيد التنفيذ</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>لم يُعرف بعد</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>corva::FactRow</name>
    <message>
        <source>Copy %1</source>
        <translation>نسخ %1</translation>
    </message>
</context>
<context>
    <name>corva::GeneralPage</name>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>إلى جانب البرامج الأخرى</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>&amp;متابعة العمل في علبة النظام عند إغلاق النافذة</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>الإ&amp;شعار بالمكالمات والرسائل على سطح المكتب</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>الل&amp;غة</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>الأل&amp;وان</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>حُفظت اللغة، وتُعتمد عند بدء البرنامج في المرة القادمة.</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>تعذّر حفظ الألوان: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>البحث عن الت&amp;حديثات</translation>
    </message>
</context>
<context>
    <name>corva::IconButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>corva::KeyboardMover</name>
    <message>
        <source>Arrow keys move the window. Enter keeps the place, Esc brings it back.</source>
        <translation>تحرّك مفاتيح الأسهم النافذة. يثبّت Enter موضعها، ويعيدها Esc.</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>تغيّر مفاتيح الأسهم حجم النافذة. يثبّت Enter الحجم، ويعيد Esc الحجم السابق.</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>جارٍ البحث عن البطاقة</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>جارٍ الاستعلام من البطاقة</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>نُسخ. ألصق الأمر في الطرفية، ثم اخرج من الجلسة وادخل من جديد.</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>جارٍ تحويل البطاقة إلى مودم</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>تم التحويل. تعود البطاقة كمودم خلال ثوانٍ.</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>جارٍ تشغيل اللاسلكي</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>اللاسلكي يعمل.</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>لم تؤكّد البطاقة بعد. ستظهر حالتها لاحقًا.</translation>
    </message>
</context>
<context>
    <name>corva::Navigation</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>corva::NavigationButton</name>
    <message>
        <source>%1, %2 new</source>
        <translation>%1، الجديد: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>corva::OfflinePanel</name>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;رجوع</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>لماذا لا يوجد اتصال؟</translation>
    </message>
    <message>
        <source>Everything from the socket to the network is in order.</source>
        <translation>كل شيء سليم، من المقبس إلى الشبكة.</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>لا مشكلة حتى الآن؛ البطاقة ماضية في عملها.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>إحدى الخطوات غير سليمة. بعد إصلاحها تتبعها الخطوات التالية تلقائيًا.</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>تعذّر حفظ الإعداد: %1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>الإشارة: %1 من %2 أشرطة</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>لا توجد إشارة</translation>
    </message>
</context>
<context>
    <name>corva::SplashDialog</name>
    <message>
        <source>Initializing</source>
        <translation>جارٍ التهيئة</translation>
    </message>
    <message>
        <source>Software version PC:</source>
        <translation>إصدار البرنامج (PC): </translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>إصدار البرنامج الثابت: </translation>
    </message>
</context>
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;لماذا لا يوجد اتصال؟</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>مسجَّل في الشبكة</translation>
    </message>
    <message>
        <source>  ·  </source>
        <comment>between facts</comment>
        <translation>  ·  </translation>
    </message>
</context>
<context>
    <name>corva::StatusStrip</name>
    <message>
        <source>&amp;Why?</source>
        <translation>&amp;لماذا؟</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>لماذا لا يوجد اتصال؟</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>corva::TopBar</name>
    <message>
        <source>Connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>جارٍ قطع الاتصال</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>قائمة %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Network type %1</source>
        <translation>نوع الشبكة %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>تجوال</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>لا بطاقة</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>شريحة SIM: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>لم تُعرف حالتها بعد</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>اتصال البيانات: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>الوقت: %1</translation>
    </message>
</context>
<context>
    <name>corva::TrayIcon</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;لماذا لا يوجد اتصال؟</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>&amp;حول %1</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>إخ&amp;فاء النافذة</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>إ&amp;ظهار النافذة</translation>
    </message>
</context>
</TS>
