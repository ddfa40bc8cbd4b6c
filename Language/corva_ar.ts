<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
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
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>جارٍ قراءة البطاقة</translation>
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
</TS>
