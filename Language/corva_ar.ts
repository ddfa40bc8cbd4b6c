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
