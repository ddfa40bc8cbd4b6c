<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message>
        <source>&amp;New message</source>
        <translation>رسالة &amp;جديدة</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>ال&amp;مزيد</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>رسالة جديدة</translation>
    </message>
    <message>
        <source>Search all messages</source>
        <translation>البحث في كل الرسائل</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>بحث (%1)</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>أُرسل بنجاح: %1، فشل: %2</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>ت&amp;حديد الكل</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>ا&amp;ستيراد…</translation>
    </message>
    <message>
        <source>&amp;Undo deleting</source>
        <translation>تراجع &amp;عن الحذف</translation>
    </message>
    <message>
        <source>Read the SIM and the data card ane&amp;w</source>
        <translation>إعادة &amp;قراءة شريحة SIM وبطاقة البيانات</translation>
    </message>
    <message>
        <source>&amp;Service centre…</source>
        <translation>م&amp;ركز الخدمة…</translation>
    </message>
    <message>
        <source>Choose a message to read it, or write one with Ctrl+N.</source>
        <translation>اختر رسالة لقراءتها، أو اكتب رسالة باستخدام ‪Ctrl+N‬.</translation>
    </message>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>لم تُحدَّد أي رسالة.</numerusform>
            <numerusform>حُدِّدت رسالة واحدة.</numerusform>
            <numerusform>حُدِّدت رسالتان.</numerusform>
            <numerusform>حُدِّدت %n رسائل.</numerusform>
            <numerusform>حُدِّدت %n رسالة.</numerusform>
            <numerusform>حُدِّدت %n رسالة.</numerusform>
        </translation>
    </message>
    <message>
        <source>The draft was deleted.</source>
        <translation>حُذفت المسودة.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>There is nothing to bring back.</source>
        <translation>لا يوجد ما يمكن استرجاعه.</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>إعادة المحا&amp;ولة</translation>
    </message>
    <message>
        <source>%1: %2 of %3 places are used. When it is full, no message can come in.</source>
        <translation>%1: الأماكن المستخدمة %2 من %3. عند الامتلاء لا يمكن استقبال أي رسالة.</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
</context>
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
    <name>Channels</name>
    <message>
        <source>&quot;%1&quot; is no channel. Channels are numbers from 0 to 65535, or ranges as 10-15.</source>
        <translation>‪&quot;%1&quot;‬ ليست قناة. القنوات أرقام من 0 إلى 65535، أو نطاقات مثل ‪10-15‬.</translation>
    </message>
    <message>
        <source>These are more than %1 channels.</source>
        <translation>عدد القنوات أكثر من %1.</translation>
    </message>
</context>
<context>
    <name>CmsErrors</name>
    <message>
        <source>The number does not exist.</source>
        <translation>الرقم غير موجود.</translation>
    </message>
    <message>
        <source>The operator has barred messages for this SIM.</source>
        <translation>حظر المشغّل الرسائل على شريحة SIM هذه.</translation>
    </message>
    <message>
        <source>Sending is barred.</source>
        <translation>الإرسال محظور.</translation>
    </message>
    <message>
        <source>The network failed.</source>
        <translation>حدث عطل في الشبكة.</translation>
    </message>
    <message>
        <source>The network rejected the message.</source>
        <translation>رفضت الشبكة الرسالة.</translation>
    </message>
    <message>
        <source>The memory for messages is full.</source>
        <translation>ذاكرة الرسائل ممتلئة.</translation>
    </message>
    <message>
        <source>The recipient cannot be reached.</source>
        <translation>يتعذر الوصول إلى المستلم.</translation>
    </message>
    <message>
        <source>The network does not know this SIM.</source>
        <translation>لا تعرف الشبكة شريحة SIM هذه.</translation>
    </message>
    <message>
        <source>The network does not offer this service.</source>
        <translation>لا تقدّم الشبكة هذه الخدمة.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>الشبكة معطّلة.</translation>
    </message>
    <message>
        <source>The network failed for the moment.</source>
        <translation>حدث عطل مؤقت في الشبكة.</translation>
    </message>
    <message>
        <source>The network is overloaded.</source>
        <translation>الشبكة مثقلة بالحمل.</translation>
    </message>
    <message>
        <source>The network has no room for the message.</source>
        <translation>لا متسع للرسالة في الشبكة.</translation>
    </message>
    <message>
        <source>Messages are not part of this subscription.</source>
        <translation>الرسائل ليست ضمن هذا الاشتراك.</translation>
    </message>
    <message>
        <source>The network did not understand the message.</source>
        <translation>لم تفهم الشبكة الرسالة.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network failed.</source>
        <translation>حدث عطل في شبكة المستلم.</translation>
    </message>
    <message>
        <source>This kind of message is not supported.</source>
        <translation>هذا النوع من الرسائل غير مدعوم.</translation>
    </message>
    <message>
        <source>The message cannot replace another one.</source>
        <translation>لا يمكن للرسالة أن تحل محل رسالة أخرى.</translation>
    </message>
    <message>
        <source>The message&apos;s alphabet is not supported.</source>
        <translation>أبجدية الرسالة غير مدعومة.</translation>
    </message>
    <message>
        <source>The service centre refused the command.</source>
        <translation>رفض مركز الخدمة الأمر.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>مركز الخدمة مشغول.</translation>
    </message>
    <message>
        <source>The service centre does not serve this SIM.</source>
        <translation>لا يخدم مركز الخدمة شريحة SIM هذه.</translation>
    </message>
    <message>
        <source>The service centre failed.</source>
        <translation>حدث عطل في مركز الخدمة.</translation>
    </message>
    <message>
        <source>The number is not valid.</source>
        <translation>الرقم غير صالح.</translation>
    </message>
    <message>
        <source>The recipient is barred.</source>
        <translation>المستلم محظور.</translation>
    </message>
    <message>
        <source>The service centre has this message already.</source>
        <translation>الرسالة موجودة في مركز الخدمة من قبل.</translation>
    </message>
    <message>
        <source>The service centre refuses the validity period.</source>
        <translation>يرفض مركز الخدمة مدة الصلاحية.</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is full.</source>
        <translation>ذاكرة الرسائل في شريحة SIM ممتلئة.</translation>
    </message>
    <message>
        <source>The SIM cannot hold messages.</source>
        <translation>لا يمكن لشريحة SIM حفظ الرسائل.</translation>
    </message>
    <message>
        <source>The card failed.</source>
        <translation>حدث عطل في البطاقة.</translation>
    </message>
    <message>
        <source>The SIM is busy.</source>
        <translation>شريحة SIM مشغولة.</translation>
    </message>
    <message>
        <source>The SIM failed.</source>
        <translation>حدث عطل في شريحة SIM.</translation>
    </message>
    <message>
        <source>The card&apos;s message service is in use.</source>
        <translation>خدمة الرسائل في البطاقة مستخدمة الآن.</translation>
    </message>
    <message>
        <source>The card does not allow this now.</source>
        <translation>لا تسمح البطاقة بهذا الآن.</translation>
    </message>
    <message>
        <source>The card cannot do this.</source>
        <translation>لا تستطيع البطاقة القيام بهذا.</translation>
    </message>
    <message>
        <source>The card did not understand the message.</source>
        <translation>لم تفهم البطاقة الرسالة.</translation>
    </message>
    <message>
        <source>There is no SIM in the card.</source>
        <translation>لا توجد شريحة SIM في البطاقة.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>تطلب شريحة SIM رمز PIN.</translation>
    </message>
    <message>
        <source>The card asks for its own PIN.</source>
        <translation>تطلب البطاقة رمز PIN الخاص بها.</translation>
    </message>
    <message>
        <source>This SIM does not fit the card.</source>
        <translation>شريحة SIM هذه لا تناسب البطاقة.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>تطلب شريحة SIM رمز PUK.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN2.</source>
        <translation>تطلب شريحة SIM رمز PIN2.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK2.</source>
        <translation>تطلب شريحة SIM رمز PUK2.</translation>
    </message>
    <message>
        <source>The memory for messages failed.</source>
        <translation>حدث عطل في ذاكرة الرسائل.</translation>
    </message>
    <message>
        <source>There is no message at this place.</source>
        <translation>لا توجد رسالة في هذا المكان.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>رقم مركز الخدمة غير معروف.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>لا توجد شبكة.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>لم تُجب الشبكة في الوقت المناسب.</translation>
    </message>
    <message>
        <source>The card expected no confirmation.</source>
        <translation>لم تكن البطاقة تنتظر تأكيدًا.</translation>
    </message>
    <message>
        <source>The card does not say why.</source>
        <translation>لا تذكر البطاقة السبب.</translation>
    </message>
    <message>
        <source>The message was delivered.</source>
        <translation>سُلّمت الرسالة.</translation>
    </message>
    <message>
        <source>The message was replaced by a newer one.</source>
        <translation>حلّت رسالة أحدث محل هذه الرسالة.</translation>
    </message>
    <message>
        <source>The message could not be delivered yet; the network goes on trying.</source>
        <translation>لم يمكن تسليم الرسالة بعد؛ تواصل الشبكة المحاولة.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device cannot take the message.</source>
        <translation>لا يستطيع جهاز المستلم استقبال الرسالة.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device refused the message.</source>
        <translation>رفض جهاز المستلم الرسالة.</translation>
    </message>
    <message>
        <source>The message could not be delivered in time.</source>
        <translation>تعذّر تسليم الرسالة ضمن المهلة.</translation>
    </message>
    <message>
        <source>The service centre does not know the message.</source>
        <translation>لا يعرف مركز الخدمة هذه الرسالة.</translation>
    </message>
    <message>
        <source>The message could not be delivered.</source>
        <translation>تعذّر تسليم الرسالة.</translation>
    </message>
    <message>
        <source>The card says: %1</source>
        <translation>تقول البطاقة: ‪%1‬</translation>
    </message>
    <message>
        <source>The card refuses, with the code %1.</source>
        <translation>ترفض البطاقة، والرمز هو %1.</translation>
    </message>
    <message>
        <source>The card refuses, without saying why.</source>
        <translation>ترفض البطاقة دون ذكر السبب.</translation>
    </message>
    <message>
        <source>The network refused the message, without saying why.</source>
        <translation>رفضت الشبكة الرسالة دون ذكر السبب.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device is busy.</source>
        <translation>جهاز المستلم مشغول.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device does not answer.</source>
        <translation>جهاز المستلم لا يستجيب.</translation>
    </message>
    <message>
        <source>The network has not the quality of service that the message asks for.</source>
        <translation>لا توفّر الشبكة جودة الخدمة التي تطلبها الرسالة.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device failed.</source>
        <translation>حدث عطل في جهاز المستلم.</translation>
    </message>
    <message>
        <source>The message was passed on; whether it arrived is not known.</source>
        <translation>حُوّلت الرسالة؛ ولا يُعرف هل وصلت.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network does not work with this one.</source>
        <translation>شبكة المستلم لا تعمل مع هذه الشبكة.</translation>
    </message>
    <message>
        <source>The message was deleted by its sender before it was delivered.</source>
        <translation>حذف المرسل الرسالة قبل تسليمها.</translation>
    </message>
    <message>
        <source>The service centre deleted the message before it was delivered.</source>
        <translation>حذف مركز الخدمة الرسالة قبل تسليمها.</translation>
    </message>
</context>
<context>
    <name>ConnectionDiagnosis</name>
    <message>
        <source>No profile is chosen</source>
        <translation>لم يُختر ملف تعريف</translation>
    </message>
    <message>
        <source>A profile says how to reach the internet through your operator. Those of most operators are known; choose one, or add your own.</source>
        <translation>يبيّن ملف التعريف كيفية الوصول إلى الإنترنت عبر المشغّل. إعدادات معظم المشغّلين معروفة؛ اختر أحد ملفات التعريف أو أضف ملفًا خاصًا بك.</translation>
    </message>
    <message>
        <source>The network chooses it</source>
        <translation>تختارها الشبكة</translation>
    </message>
    <message>
        <source>The profile names no access point</source>
        <translation>لا يذكر ملف التعريف نقطة وصول</translation>
    </message>
    <message>
        <source>Your operator can tell you its name (APN). Enter it in the profile.</source>
        <translation>يستطيع المشغّل إخبارك باسمها (APN). أدخله في ملف التعريف.</translation>
    </message>
    <message>
        <source>User name or password refused</source>
        <translation>رُفض اسم المستخدم أو كلمة المرور</translation>
    </message>
    <message>
        <source>The call was not taken</source>
        <translation>لم يُرَدّ على الطلب</translation>
    </message>
    <message>
        <source>The line was busy</source>
        <translation>كان الخط مشغولًا</translation>
    </message>
    <message>
        <source>No link within the time</source>
        <translation>لم يُنشأ ارتباط خلال المهلة</translation>
    </message>
    <message>
        <source>The dialler failed</source>
        <translation>فشل برنامج الطلب</translation>
    </message>
    <message>
        <source>System files cannot be changed</source>
        <translation>لا يمكن تغيير ملفات النظام</translation>
    </message>
    <message>
        <source>No right to dial</source>
        <translation>لا يُسمح لك بالطلب</translation>
    </message>
    <message>
        <source>The network ended the connection</source>
        <translation>أنهت الشبكة الاتصال</translation>
    </message>
    <message>
        <source>The connection broke off</source>
        <translation>انقطع الاتصال</translation>
    </message>
    <message>
        <source>The card was taken out</source>
        <translation>أُخرجت البطاقة</translation>
    </message>
    <message>
        <source>Ended because nothing was carried</source>
        <translation>أُنهي لعدم نقل أي بيانات</translation>
    </message>
    <message>
        <source>The month&apos;s volume is used up</source>
        <translation>نفدت حصة الشهر</translation>
    </message>
    <message>
        <source>The connection is up</source>
        <translation>الاتصال قائم</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>يستغرق هذا بضع ثوانٍ.</translation>
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
        <source>The card is in the network, and everything is there to connect.</source>
        <translation>البطاقة مسجَّلة في الشبكة، وكل ما يلزم للاتصال متوفر.</translation>
    </message>
    <message>
        <source>The network gave no address</source>
        <translation>لم تمنح الشبكة عنوانًا</translation>
    </message>
    <message>
        <source>Disconnect and connect again. If that does not help, the access point of the profile may be the wrong one.</source>
        <translation>اقطع الاتصال ثم اتصل من جديد. إن لم يُجدِ ذلك فقد تكون نقطة الوصول في ملف التعريف غير صحيحة.</translation>
    </message>
    <message>
        <source>No name servers</source>
        <translation>لا توجد خوادم أسماء</translation>
    </message>
    <message>
        <source>Without them names of web sites cannot be found. Enter some in the profile, then disconnect and connect again.</source>
        <translation>بدونها لا يمكن العثور على أسماء مواقع الويب. أدخل بعضها في ملف التعريف، ثم اقطع الاتصال واتصل من جديد.</translation>
    </message>
    <message>
        <source>Another connection carries the traffic</source>
        <translation>تمر حركة البيانات عبر اتصال آخر</translation>
    </message>
    <message>
        <source>This computer goes through a cable, Wi-Fi or another way first. Switch that off, then disconnect and connect again here.</source>
        <translation>يستخدم هذا الحاسوب أولًا كبلًا أو Wi-Fi أو طريقًا آخر. أوقفه، ثم اقطع الاتصال واتصل من جديد هنا.</translation>
    </message>
    <message>
        <source>The traffic goes through the card</source>
        <translation>تمر حركة البيانات عبر البطاقة</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>نقطة الوصول</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>خوادم الأسماء</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>The profile cannot be used</source>
        <translation>لا يمكن استخدام ملف التعريف</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>With &quot;%1&quot;, since %2.</source>
        <translation>عبر &quot;%1&quot;، منذ %2.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;, attempt %2 of %3.</source>
        <translation>عبر &quot;%1&quot;، المحاولة %2 من %3.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;.</source>
        <translation>عبر &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>%1 Attempt %2 of %3 follows.</source>
        <translation>%1 تليها المحاولة %2 من %3.</translation>
    </message>
</context>
<context>
    <name>DiallerFiles</name>
    <message>
        <source>Save wvdial config data failed!</source>
        <translation>تعذّر حفظ بيانات إعداد wvdial.</translation>
    </message>
    <message>
        <source>Read default wvdial config data failed!</source>
        <translation>تعذّرت قراءة بيانات إعداد wvdial الافتراضية.</translation>
    </message>
    <message>
        <source>open file operation error!</source>
        <translation>حدث خطأ عند فتح الملف.</translation>
    </message>
    <message>
        <source>Recover wvdial config data failed!</source>
        <translation>تعذّرت استعادة بيانات إعداد wvdial.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>خادم DNS غير صالح.</translation>
    </message>
</context>
<context>
    <name>EndSentence</name>
    <message>
        <source>The network refused the user name and the password.</source>
        <translation>رفضت الشبكة اسم المستخدم وكلمة المرور.</translation>
    </message>
    <message>
        <source>The network did not take the call.</source>
        <translation>لم تقبل الشبكة الاتصال.</translation>
    </message>
    <message>
        <source>The line is busy. Please try again later.</source>
        <translation>الخط مشغول. يُرجى المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>لم تُجب الشبكة في الوقت المناسب.</translation>
    </message>
    <message>
        <source>The dialler ended before it was done.</source>
        <translation>انتهى برنامج الطلب قبل أن يكتمل.</translation>
    </message>
    <message>
        <source>The files for the dialler could not be written.</source>
        <translation>تعذّرت كتابة ملفات برنامج الطلب.</translation>
    </message>
    <message>
        <source>The right to connect was not given.</source>
        <translation>لم يُمنح إذن الاتصال.</translation>
    </message>
    <message>
        <source>The network ended the connection.</source>
        <translation>أنهت الشبكة الاتصال.</translation>
    </message>
    <message>
        <source>The network does not answer any more.</source>
        <translation>لم تعد الشبكة تجيب.</translation>
    </message>
    <message>
        <source>The card was pulled out.</source>
        <translation>أُخرجت البطاقة.</translation>
    </message>
    <message>
        <source>The connection was ended because nothing was carried.</source>
        <translation>أُنهي الاتصال لأنه لم تُنقل أي بيانات.</translation>
    </message>
    <message>
        <source>The connection was ended because the volume is used up.</source>
        <translation>أُنهي الاتصال لأن حجم البيانات استُهلك.</translation>
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
    <name>HistoryEnd</name>
    <message>
        <source>By you</source>
        <translation>بأمر منك</translation>
    </message>
    <message>
        <source>By the network</source>
        <translation>من الشبكة</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>لا استجابة</translation>
    </message>
    <message>
        <source>Dialler stopped</source>
        <translation>توقف برنامج الطلب</translation>
    </message>
    <message>
        <source>Card removed</source>
        <translation>أُخرجت البطاقة</translation>
    </message>
    <message>
        <source>Nothing carried</source>
        <translation>لم تُنقل بيانات</translation>
    </message>
    <message>
        <source>Volume used up</source>
        <translation>نفدت الحصة</translation>
    </message>
    <message>
        <source>Program closed</source>
        <translation>أُغلق البرنامج</translation>
    </message>
    <message>
        <source>Unexpectedly</source>
        <translation>انتهى فجأة</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>غير معروف</translation>
    </message>
</context>
<context>
    <name>MessageCounter</name>
    <message>
        <source>Symbol: %1 /%2</source>
        <translation>الأحرف: %1 /%2</translation>
    </message>
    <message>
        <source>The message is too long: it may have %1 parts.</source>
        <translation>الرسالة طويلة جدًا: الحد الأقصى لعدد الأجزاء %1.</translation>
    </message>
    <message>
        <source>Because of &quot;%1&quot; a message holds 70 characters instead of 160.</source>
        <translation>بسبب &quot;%1&quot; تتسع الرسالة لعدد 70 حرفًا بدلًا من 160.</translation>
    </message>
    <message>
        <source>National letters leave 155 characters of 160.</source>
        <translation>مع حروف اللغة الوطنية يبقى 155 حرفًا من 160.</translation>
    </message>
    <message>
        <source>It is sent in %1 parts.</source>
        <translation>تُرسل مجزّأة، وعدد الأجزاء %1.</translation>
    </message>
</context>
<context>
    <name>MessagePrint</name>
    <message>
        <source>From %1, %2</source>
        <translation>من ⁨%1⁩، %2</translation>
    </message>
    <message>
        <source>To %1, %2</source>
        <translation>إلى ⁨%1⁩، %2</translation>
    </message>
</context>
<context>
    <name>MessageStore</name>
    <message>
        <source>%1 was empty.</source>
        <translation>كان %1 فارغًا.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>تعذّرت قراءة %1 بالكامل. حُفظ ما كان فيه باسم %2.</translation>
    </message>
    <message>
        <source>%1 can neither be read nor moved aside.</source>
        <translation>لا يمكن قراءة %1 ولا نقله جانبًا.</translation>
    </message>
</context>
<context>
    <name>MessageTransfer</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>تعذّرت قراءة %1.</translation>
    </message>
    <message>
        <source>%1 is not a file of messages.</source>
        <translation>%1 ليس ملف رسائل.</translation>
    </message>
    <message>
        <source>The messages of %1 could not be saved.</source>
        <translation>تعذّر حفظ رسائل %1.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Inbox</source>
        <translation>الوارد</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>الصادر</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>box</comment>
        <translation>مُرسلة</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>state</comment>
        <translation>أُرسلت</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>المسودات</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>المحذوفة</translation>
    </message>
    <message>
        <source>Delivery reports</source>
        <translation>تقارير التسليم</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>الحاسوب</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>شريحة SIM</translation>
    </message>
    <message>
        <source>Data card</source>
        <translation>بطاقة البيانات</translation>
    </message>
    <message>
        <source>Waiting to be sent</source>
        <translation>في انتظار الإرسال</translation>
    </message>
    <message>
        <source>Being sent</source>
        <translation>قيد الإرسال</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>سُلّمت</translation>
    </message>
    <message>
        <source>Not delivered yet, the network still tries</source>
        <translation>لم تُسلَّم بعد، ما زالت الشبكة تحاول</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشلت</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>الجزء %1: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>d MMM</source>
        <extracomment>A day without its year, as QDate::toString takes it</extracomment>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>لا أحد بعد</translation>
    </message>
    <message>
        <source>Unknown sender</source>
        <translation>مرسل غير معروف</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>This message cannot be read</source>
        <translation>تتعذر قراءة هذه الرسالة</translation>
    </message>
    <message>
        <source>No text</source>
        <translation>لا نص</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>ربما أُرسلت</translation>
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
        <source>&amp;Connect</source>
        <translation>ا&amp;تصال</translation>
    </message>
    <message>
        <source>&amp;Edit profile</source>
        <translation>تح&amp;رير ملف التعريف</translation>
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
    <name>PduError</name>
    <message>
        <source>there is nothing</source>
        <translation>لا يوجد شيء</translation>
    </message>
    <message>
        <source>this is no hexadecimal digit</source>
        <translation>هذا ليس رقمًا ست عشريًا</translation>
    </message>
    <message>
        <source>half an octet is missing</source>
        <translation>ينقص نصف بايت</translation>
    </message>
    <message>
        <source>the message ends too early</source>
        <translation>تنتهي الرسالة قبل أوانها</translation>
    </message>
    <message>
        <source>the length goes past the end</source>
        <translation>الطول يتجاوز النهاية</translation>
    </message>
    <message>
        <source>this is no message of the expected kind</source>
        <translation>هذه ليست رسالة من النوع المتوقع</translation>
    </message>
    <message>
        <source>the header is longer than the data</source>
        <translation>الترويسة أطول من البيانات</translation>
    </message>
    <message>
        <source>an element goes past the header</source>
        <translation>أحد العناصر يتجاوز الترويسة</translation>
    </message>
    <message>
        <source>there can be no such part</source>
        <translation>لا يمكن أن يوجد جزء كهذا</translation>
    </message>
    <message>
        <source>half a character is missing</source>
        <translation>ينقص نصف حرف</translation>
    </message>
    <message>
        <source>The message cannot be read: %1 (%2, octet %3).</source>
        <translation>تتعذر قراءة الرسالة: %1 (‪%2‬، البايت %3).</translation>
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
    <name>PppErrors</name>
    <message>
        <source>Pppd  has  detached,  or  otherwise  the  connection was successfully established and terminated at the peer&apos;s request.</source>
        <translation>انفصل pppd ليعمل في الخلفية، أو أُنشئ الاتصال بنجاح ثم أُنهي بطلب من الطرف الآخر.</translation>
    </message>
    <message>
        <source>An immediately fatal error of some kind occurred, such as an essential system call failing, or running out  of virtual memory.</source>
        <translation>وقع خطأ فادح، مثل فشل استدعاء أساسي للنظام أو نفاد الذاكرة الظاهرية.</translation>
    </message>
    <message>
        <source>An error was detected in processing the options given, such as two mutually exclusive options being used.</source>
        <translation>اكتُشف خطأ عند معالجة الخيارات المعطاة، مثل استخدام خيارين متعارضين.</translation>
    </message>
    <message>
        <source>Pppd is not setuid-root and the invoking user is not root.</source>
        <translation>برنامج pppd ليس setuid-root، والمستخدم الذي شغّله ليس root.</translation>
    </message>
    <message>
        <source>The kernel does not support PPP, for example, the PPP kernel driver is not included or cannot be loaded.</source>
        <translation>لا تدعم النواة PPP؛ مثلًا لأن برنامج تشغيل PPP غير مضمَّن في النواة أو لا يمكن تحميله.</translation>
    </message>
    <message>
        <source>Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal.</source>
        <translation>انتهى pppd لأنه تلقّى إشارة SIGINT أو SIGTERM أو SIGHUP.</translation>
    </message>
    <message>
        <source>The serial port could not be locked.</source>
        <translation>تعذّر قفل المنفذ التسلسلي.</translation>
    </message>
    <message>
        <source>The serial port could not be opened.</source>
        <translation>تعذّر فتح المنفذ التسلسلي.</translation>
    </message>
    <message>
        <source>The connect script failed (returned a non-zero exit status).</source>
        <translation>فشل نص الاتصال البرمجي (أعاد حالة خروج غير الصفر).</translation>
    </message>
    <message>
        <source>The command specified as the argument to the pty option could not be run.</source>
        <translation>تعذّر تنفيذ الأمر المحدد في الخيار pty.</translation>
    </message>
    <message>
        <source>The  PPP  negotiation failed, that is, it didn&apos;t reach the point where at least one network protocol (e.g. IP) was running.</source>
        <translation>فشل تفاوض PPP، أي أنه لم يصل إلى تشغيل بروتوكول شبكة واحد على الأقل (مثل IP).</translation>
    </message>
    <message>
        <source>The peer system failed (or refused) to authenticate itself.</source>
        <translation>فشل الطرف الآخر في إثبات هويته (أو رفض ذلك).</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because it was idle.</source>
        <translation>أُنشئ الارتباط بنجاح، ثم أُنهي لأنه كان خاملًا.</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because the connect time limit was reached.</source>
        <translation>أُنشئ الارتباط بنجاح، ثم أُنهي لبلوغ الحد الزمني للاتصال.</translation>
    </message>
    <message>
        <source>Callback was negotiated and an incoming call should arrive shortly.</source>
        <translation>تم التفاوض على معاودة الاتصال، ويُتوقع ورود مكالمة قريبًا.</translation>
    </message>
    <message>
        <source>The link was terminated because the peer is not responding to echo requests.</source>
        <translation>أُنهي الارتباط لأن الطرف الآخر لا يستجيب لطلبات الصدى.</translation>
    </message>
    <message>
        <source>The link was terminated by the modem hanging up.</source>
        <translation>أُنهي الارتباط لأن المودم أنهى المكالمة.</translation>
    </message>
    <message>
        <source>The PPP negotiation failed because serial loopback was detected.</source>
        <translation>فشل تفاوض PPP لاكتشاف حلقة راجعة على المنفذ التسلسلي.</translation>
    </message>
    <message>
        <source>The init script failed (returned a non-zero exit status).</source>
        <translation>فشل نص التهيئة البرمجي (أعاد حالة خروج غير الصفر).</translation>
    </message>
    <message>
        <source>We failed to authenticate ourselves to the peer.</source>
        <translation>فشل إثبات هويتنا للطرف الآخر.</translation>
    </message>
</context>
<context>
    <name>ProfileChecks</name>
    <message>
        <source>The dial number may hold letters, digits and * # + , . - ( ), 80 at most.</source>
        <translation>لا يُسمح في رقم الطلب إلا بالحروف والأرقام والرموز ‪* # + , . - ( )‬، وبحد أقصى 80.</translation>
    </message>
    <message>
        <source>The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its ends, not be a single asterisk, and be 255 bytes long at most.</source>
        <translation>لا يُسمح في اسم المستخدم بعلامات اقتباس أو شرطات مائلة عكسية أو قوس معقوص في أوله أو فراغات في طرفيه، ولا أن يكون نجمة واحدة فقط، وطوله 255 بايت على الأكثر.</translation>
    </message>
    <message>
        <source>The password must not hold quotes, backslashes, a brace or &quot;@/&quot; at its beginning or blanks at its ends, and be 255 bytes long at most.</source>
        <translation>لا يُسمح في كلمة المرور بعلامات اقتباس أو شرطات مائلة عكسية أو قوس معقوص أو ‪&quot;@/&quot;‬ في أولها أو فراغات في طرفيها، وطولها 255 بايت على الأكثر.</translation>
    </message>
    <message>
        <source>The name of the profile is too long.</source>
        <translation>اسم ملف التعريف طويل جدًا.</translation>
    </message>
    <message>
        <source>The APN may hold letters, digits and . - _ @ : /, 100 at most.</source>
        <translation>لا يُسمح في APN إلا بالحروف والأرقام والرموز ‪. - _ @ : /‬، وبحد أقصى 100.</translation>
    </message>
    <message>
        <source>The address mode may hold letters and digits only.</source>
        <translation>لا يُسمح في وضع العنوان إلا بالحروف والأرقام.</translation>
    </message>
    <message>
        <source>The beginning of the IMSI may hold 15 digits at most.</source>
        <translation>لا يُسمح في بداية رقم IMSI بأكثر من 15 رقمًا.</translation>
    </message>
    <message>
        <source>The page to open must be an address of the web.</source>
        <translation>يجب أن تكون الصفحة المطلوب فتحها عنوان ويب.</translation>
    </message>
    <message>
        <source>A value holds a line break or another control character, or the text &quot;-|-&quot;.</source>
        <translation>تحتوي إحدى القيم على فاصل أسطر أو محرف تحكم آخر، أو على النص ‪&quot;-|-&quot;‬.</translation>
    </message>
    <message>
        <source>The Config Filename must be filled.</source>
        <translation>يجب إدخال اسم ملف التعريف.</translation>
    </message>
    <message>
        <source>The Dial Number is empty!</source>
        <translation>رقم الطلب فارغ.</translation>
    </message>
    <message>
        <source>The APN is empty!</source>
        <translation>حقل APN فارغ.</translation>
    </message>
    <message>
        <source>Invalid PDP!Please check it!</source>
        <translation>قيمة PDP غير صالحة. تحقّق منها.</translation>
    </message>
    <message>
        <source>Invalid Preferred DNS!Please check it!</source>
        <translation>خادم DNS المفضّل غير صالح. تحقّق منه.</translation>
    </message>
    <message>
        <source>Invalid Alternative DNS!Please check it!</source>
        <translation>خادم DNS البديل غير صالح. تحقّق منه.</translation>
    </message>
    <message>
        <source>The card&apos;s data port has a name that cannot be used.</source>
        <translation>اسم منفذ البيانات في البطاقة غير صالح للاستخدام.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>The profiles in %1 cannot be read.</source>
        <translation>تعذّرت قراءة ملفات التعريف في %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read, and cannot be kept beside.</source>
        <translation>تعذّرت قراءة %1، ولا يمكن الاحتفاظ به.</translation>
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
    <name>Recipients</name>
    <message>
        <source>&quot;%1&quot; is no number: &quot;%2&quot; cannot be dialled.</source>
        <translation>‪&quot;%1&quot;‬ ليس رقمًا: لا يمكن طلب ‪&quot;%2&quot;‬.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number: the digits are missing.</source>
        <translation>‪&quot;%1&quot;‬ ليس رقمًا: لا أرقام فيه.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: a number has %2 characters at most.</source>
        <translation>‪&quot;%1&quot;‬ طويل جدًا: الحد الأقصى للرقم %2 من الأحرف.</translation>
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
    <message>
        <source>The rights of %1 cannot be set</source>
        <translation>تعذّر تعيين أذونات %1</translation>
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
    <name>SmsFiling</name>
    <message>
        <source>The text is compressed and cannot be shown.</source>
        <translation>النص مضغوط ولا يمكن عرضه.</translation>
    </message>
    <message>
        <source>The message holds data and no text.</source>
        <translation>تحوي الرسالة بيانات ولا تحوي نصًا.</translation>
    </message>
    <message>
        <source>The card lists the message without its content.</source>
        <translation>تُدرج البطاقة الرسالة دون محتواها.</translation>
    </message>
    <message>
        <source>A message came in without its content.</source>
        <translation>وصلت رسالة دون محتواها.</translation>
    </message>
    <message>
        <source>Voice messages are waiting for you.</source>
        <translation>لديك رسائل صوتية في الانتظار.</translation>
    </message>
    <message>
        <source>No voice messages are waiting any more.</source>
        <translation>لم تعد هناك رسائل صوتية في الانتظار.</translation>
    </message>
    <message>
        <source>Faxes are waiting for you.</source>
        <translation>لديك فاكسات في الانتظار.</translation>
    </message>
    <message>
        <source>No faxes are waiting any more.</source>
        <translation>لم تعد هناك فاكسات في الانتظار.</translation>
    </message>
    <message>
        <source>E-mails are waiting for you.</source>
        <translation>لديك رسائل بريد إلكتروني في الانتظار.</translation>
    </message>
    <message>
        <source>No e-mails are waiting any more.</source>
        <translation>لم تعد هناك رسائل بريد إلكتروني في الانتظار.</translation>
    </message>
    <message>
        <source>Messages of another kind are waiting for you.</source>
        <translation>لديك رسائل من نوع آخر في الانتظار.</translation>
    </message>
    <message>
        <source>No messages of another kind are waiting any more.</source>
        <translation>لم تعد هناك رسائل من نوع آخر في الانتظار.</translation>
    </message>
</context>
<context>
    <name>SmsJobs</name>
    <message>
        <source>The card did not answer.</source>
        <translation>لم تُجب البطاقة.</translation>
    </message>
    <message>
        <source>The card does not exchange messages as PDUs: %1</source>
        <translation>لا تتبادل البطاقة الرسائل بصيغة PDU: %1</translation>
    </message>
    <message>
        <source>New messages will not be announced: %1</source>
        <translation>لن يُعلن عن الرسائل الجديدة: %1</translation>
    </message>
    <message>
        <source>The message has no content that the card could keep.</source>
        <translation>ليس للرسالة محتوى تستطيع البطاقة حفظه.</translation>
    </message>
    <message>
        <source>The card names the message without its content.</source>
        <translation>تذكر البطاقة الرسالة دون محتواها.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number, %1, is too long.</source>
        <translation>رقم مركز الخدمة %1 أطول من اللازم.</translation>
    </message>
</context>
<context>
    <name>Traffic</name>
    <message>
        <source>%1/s</source>
        <translation>%1/ث</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>A day without its year, as QDate::toString takes it</extracomment>
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <extracomment>A month with its year, as QDate::toString takes it</extracomment>
        <translation>MMMM yyyy</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>أمس، %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
</context>
<context>
    <name>TrafficSentences</name>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>استُقبل %1، وأُرسل %2</translation>
    </message>
    <message>
        <source>%1; %2 of it roaming</source>
        <translation>%1؛ منها %2 أثناء التجوال</translation>
    </message>
    <message>
        <source>%1 of %2 used (%3&#xa0;%)</source>
        <translation>استُهلك %1 من %2 (%3%)</translation>
    </message>
    <message>
        <source>%1 of %2 roaming (%3&#xa0;%)</source>
        <translation>استُهلك %1 من %2 أثناء التجوال (%3%)</translation>
    </message>
    <message>
        <source>Too few days are known to say what it will be by %1.</source>
        <translation>لم تُسجَّل أيام كافية لتقدير الحجم حتى %1.</translation>
    </message>
    <message>
        <source>The volume is used up. A new one begins on %1.</source>
        <translation>نفدت الحصة. تبدأ حصة جديدة في %1.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2.</source>
        <translation>بهذا المعدل سيبلغ الحجم نحو %1 حتى %2.</translation>
    </message>
    <message>
        <source>As it goes, the volume will be used up on %1; by %2 it would be about %3.</source>
        <translation>بهذا المعدل ستنفد الحصة في %1، وسيبلغ الحجم نحو %3 حتى %2.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2: the volume is enough.</source>
        <translation>بهذا المعدل سيبلغ الحجم نحو %1 حتى %2: الحصة كافية.</translation>
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
        <source>&amp;Quit</source>
        <translation>&amp;خروج</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;اتصال</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;قطع الاتصال</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>إلغاء محا&amp;ولة الاتصال</translation>
    </message>
    <message>
        <source>Disconnect and quit?</source>
        <translation>أتريد قطع الاتصال والخروج؟</translation>
    </message>
    <message>
        <source>Disconnect and &amp;quit</source>
        <translation>قطع الاتصال والخ&amp;روج</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
</context>
<context>
    <name>WvdialProcess</name>
    <message>
        <source>The dialler is running already.</source>
        <translation>برنامج الطلب قيد العمل بالفعل.</translation>
    </message>
    <message>
        <source>The program wvdial is missing. Please install it.</source>
        <translation>البرنامج wvdial غير موجود. يرجى تثبيته.</translation>
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
    <name>corva::ActionButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>corva::BoxChooser</name>
    <message>
        <source>Boxes</source>
        <translation>الصناديق</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>المحادثات</translation>
    </message>
    <message>
        <source>Broadcasts</source>
        <translation>رسائل البث</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>What is used of the places of a SIM card: &quot;SIM card, 10 of 20&quot;</extracomment>
        <translation>%1، %2 من %3</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>corva::BroadcastBar</name>
    <message>
        <source>C&amp;hannels</source>
        <translation>ال&amp;قنوات</translation>
    </message>
    <message>
        <source>Numbers and ranges, as 50, 4370-4372</source>
        <translation>أرقام ونطاقات، مثل ‪50, 4370-4372‬</translation>
    </message>
    <message>
        <source>L&amp;isten</source>
        <translation>ا&amp;ستماع</translation>
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
    <name>corva::CardPlaces</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is nearly full: %1</source>
        <translation>ذاكرة الرسائل في شريحة SIM شبه ممتلئة: %1</translation>
    </message>
    <message>
        <source>The card&apos;s memory for messages is nearly full: %1</source>
        <translation>ذاكرة الرسائل في البطاقة شبه ممتلئة: %1</translation>
    </message>
    <message>
        <source>There is no card that takes messages.</source>
        <translation>لا توجد بطاقة تقبل الرسائل.</translation>
    </message>
    <message>
        <source>The messages could not be written to disk and stay on the card.</source>
        <translation>تعذّرت كتابة الرسائل على القرص، فبقيت في البطاقة.</translation>
    </message>
    <message>
        <source>Only short messages can be kept on the card.</source>
        <translation>لا يمكن أن تُحفظ في البطاقة إلا الرسائل القصيرة.</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>لم تعد البطاقة موجودة.</translation>
    </message>
    <message>
        <source>The message was not written to the SIM: %1</source>
        <translation>لم تُكتب الرسالة في شريحة SIM: %1</translation>
    </message>
    <message>
        <source>The message was not written to the card: %1</source>
        <translation>لم تُكتب الرسالة في البطاقة: %1</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is kept on the computer as well.</source>
        <translation>تعذّر حذف رسالة من البطاقة. وهي محفوظة على الحاسوب أيضًا.</translation>
    </message>
    <message>
        <source>The message is being sent.</source>
        <translation>الرسالة قيد الإرسال.</translation>
    </message>
    <message>
        <source>It is for several people, and the card keeps messages for one.</source>
        <translation>الرسالة لعدة أشخاص، والبطاقة تحفظ رسائل موجهة إلى شخص واحد.</translation>
    </message>
    <message>
        <source>What the card lists without its content stays where it is.</source>
        <translation>ما تسرده البطاقة دون محتوى يبقى في مكانه.</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is in both places now.</source>
        <translation>تعذّر حذف رسالة من البطاقة. وهي الآن في المكانين.</translation>
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
    <name>corva::ChoiceDialog</name>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
</context>
<context>
    <name>corva::Class0Dialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>Immediate message</source>
        <translation>رسالة فورية</translation>
    </message>
    <message>
        <source>&amp;Keep in the inbox</source>
        <translation>ح&amp;فظ في الوارد</translation>
    </message>
    <message>
        <source>%1 :
 %2</source>
        <translation>⁨%1⁩:
 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>لا رسائل أخرى</numerusform>
            <numerusform>رسالة واحدة أخرى</numerusform>
            <numerusform>رسالتان أخريان</numerusform>
            <numerusform>%n رسائل أخرى</numerusform>
            <numerusform>%n رسالة أخرى</numerusform>
            <numerusform>%n رسالة أخرى</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>ال&amp;تالي</translation>
    </message>
</context>
<context>
    <name>corva::Composer</name>
    <message>
        <source>New message</source>
        <translation>رسالة جديدة</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;إلى</translation>
    </message>
    <message>
        <source>Delivery &amp;report</source>
        <translation>&amp;تقرير التسليم</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>إ&amp;رسال</translation>
    </message>
    <message>
        <source>Numbers, with commas between them</source>
        <translation>أرقام تفصل بينها فواصل</translation>
    </message>
    <message>
        <source>Text of the message</source>
        <translation>نص الرسالة</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>You are told when the message was delivered</source>
        <translation>تُبلَّغ عند تسليم الرسالة</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>ال&amp;قوالب</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>ت&amp;جاهل</translation>
    </message>
    <message>
        <source>Moves the draft to the deleted messages</source>
        <translation>ينقل المسودة إلى الرسائل المحذوفة</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>مسودة</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>The templates could not be stored: %1</source>
        <translation>تعذّر حفظ القوالب: %1</translation>
    </message>
    <message>
        <source>&amp;Keep this text as a template</source>
        <translation>&amp;حفظ هذا النص كقالب</translation>
    </message>
    <message>
        <source>&amp;Remove a template</source>
        <translation>إ&amp;زالة قالب</translation>
    </message>
    <message>
        <source>Say whom the message is for.</source>
        <translation>حدّد لمن هذه الرسالة.</translation>
    </message>
    <message>
        <source>The message says nothing yet.</source>
        <translation>الرسالة فارغة بعد.</translation>
    </message>
</context>
<context>
    <name>corva::Config</name>
    <message>
        <source>New profile</source>
        <translation>ملف تعريف جديد</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>تحرير ملف التعريف</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إ&amp;لغاء</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Profile &amp;name</source>
        <translation>ا&amp;سم ملف التعريف</translation>
    </message>
    <message>
        <source>&amp;Dial number</source>
        <translation>&amp;رقم الطلب</translation>
    </message>
    <message>
        <source>Connect as a &amp;modem or a network card</source>
        <translation>الاتصال ك&amp;مودم أو كبطاقة شبكة</translation>
    </message>
    <message>
        <source>As the card can</source>
        <translation>حسب إمكانات البطاقة</translation>
    </message>
    <message>
        <source>Modem (dial-up)</source>
        <translation>مودم (طلب هاتفي)</translation>
    </message>
    <message>
        <source>Network card</source>
        <translation>بطاقة شبكة</translation>
    </message>
    <message>
        <source>For S&amp;IMs whose IMSI begins with</source>
        <translation>لشرائح SIM التي ي&amp;بدأ رقم IMSI لها بـ</translation>
    </message>
    <message>
        <source>any</source>
        <translation>أي رقم</translation>
    </message>
    <message>
        <source>Access point (APN)</source>
        <translation>نقطة الوصول (APN)</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>نقطة الوصول</translation>
    </message>
    <message>
        <source>&amp;This one</source>
        <translation>&amp;هذه</translation>
    </message>
    <message>
        <source>&amp;By the network</source>
        <translation>تحدّدها ال&amp;شبكة</translation>
    </message>
    <message>
        <source>Name of the access &amp;point</source>
        <translation>اسم &amp;نقطة الوصول</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>المصادقة</translation>
    </message>
    <message>
        <source>P&amp;AP</source>
        <translation>P&amp;AP</translation>
    </message>
    <message>
        <source>C&amp;HAP</source>
        <translation>C&amp;HAP</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>ب&amp;دون</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>اسم المست&amp;خدم</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;كلمة المرور</translation>
    </message>
    <message>
        <source>As&amp;k for them when connecting</source>
        <translation>طلبهما عند الات&amp;صال</translation>
    </message>
    <message>
        <source>Keep them in the profi&amp;le</source>
        <translation>حفظهما في ملف الت&amp;عريف</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>From the network (d&amp;ynamic)</source>
        <translation>من الشبكة (ديناميك&amp;ي)</translation>
    </message>
    <message>
        <source>Fi&amp;xed</source>
        <translation>&amp;ثابت</translation>
    </message>
    <message>
        <source>Fixed add&amp;ress</source>
        <translation>العن&amp;وان الثابت</translation>
    </message>
    <message>
        <source>Name servers (DNS)</source>
        <translation>خوادم الأسماء (DNS)</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>خوادم الأسماء</translation>
    </message>
    <message>
        <source>&amp;From the network</source>
        <translation>&amp;تقدّمها الشبكة</translation>
    </message>
    <message>
        <source>Th&amp;ese</source>
        <translation>الآتي&amp;ة</translation>
    </message>
    <message>
        <source>Preferred (&amp;1)</source>
        <translation>المفضّل (&amp;1)</translation>
    </message>
    <message>
        <source>Alternative (&amp;2)</source>
        <translation>البديل (&amp;2)</translation>
    </message>
    <message>
        <source>Once connected</source>
        <translation>بعد الاتصال</translation>
    </message>
    <message>
        <source>Pa&amp;ge to open in the browser</source>
        <translation>الصفحة التي ت&amp;فتح في المتصفح</translation>
    </message>
    <message>
        <source>This profile came with the program and stays as it is.</source>
        <translation>يأتي ملف التعريف هذا مع البرنامج ولا يمكن تغييره.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionFacts</name>
    <message>
        <source>This connection</source>
        <translation>هذا الاتصال</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>حركة البيانات</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>البوابة</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>خوادم الأسماء</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>سرعة الاستقبال</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>سرعة الإرسال</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>المستقبَل</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>المرسَل</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionHead</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;لماذا لا يوجد اتصال؟</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;قطع الاتصال</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>ا&amp;تصال</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>جارٍ التهيئة</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>جارٍ قطع الاتصال</translation>
    </message>
    <message>
        <source>Status: Connected</source>
        <translation>الحالة: متصل</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>الحالة: غير متصل</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionService</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>لا يمكن الاتصال بالإنترنت أثناء المكالمة إلا عبر شبكة UMTS!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>فُصل الجهاز أو أنه غير متاح.</translation>
    </message>
    <message>
        <source>Can&apos;t open deault config file!</source>
        <translation>تعذّر فتح ملف الإعدادات الافتراضي!</translation>
    </message>
    <message>
        <source>This card has no network interface. Please choose dial-up in the profile.</source>
        <translation>ليس لهذه البطاقة واجهة شبكة. يُرجى اختيار الطلب الهاتفي في ملف التعريف.</translation>
    </message>
    <message>
        <source>The card has no data port that could be dialled on.</source>
        <translation>ليس للبطاقة منفذ بيانات يمكن الطلب عبره.</translation>
    </message>
    <message>
        <source>There is no data transported recently. Auto Disconnect will close your internet link.</source>
        <translation>لم تُنقل بيانات مؤخرًا. سيُغلق الفصل التلقائي اتصالك بالإنترنت.</translation>
    </message>
    <message>
        <source>An earlier connection was cut off and has left its own settings in files of the system. Start Corva again and enter the password: it puts them back.</source>
        <translation>انقطع اتصال سابق وترك إعداداته في ملفات النظام. شغّل Corva من جديد وأدخل كلمة المرور، فيعيدها إلى ما كانت عليه.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionSettings</name>
    <message>
        <source>Automatic connection</source>
        <translation>الاتصال التلقائي</translation>
    </message>
    <message>
        <source>&amp;Connect by itself when the card is ready</source>
        <translation>الا&amp;تصال تلقائيًا عند جاهزية البطاقة</translation>
    </message>
    <message>
        <source>&amp;Attempts</source>
        <translation>عدد ال&amp;محاولات</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> ث</translation>
    </message>
    <message>
        <source>When a connection breaks off</source>
        <translation>عند انقطاع الاتصال</translation>
    </message>
    <message>
        <source>&amp;Dial again</source>
        <translation>إ&amp;عادة الطلب</translation>
    </message>
    <message>
        <source>A&amp;ttempts</source>
        <translation>عدد المحا&amp;ولات</translation>
    </message>
    <message>
        <source>&amp;First one after</source>
        <translation>المحاولة الأو&amp;لى بعد</translation>
    </message>
    <message>
        <source>Each f&amp;urther one after</source>
        <translation>&amp;كل محاولة تالية بعد</translation>
    </message>
    <message>
        <source>When nothing is carried</source>
        <translation>عند عدم نقل أي بيانات</translation>
    </message>
    <message>
        <source>D&amp;isconnect</source>
        <translation>&amp;قطع الاتصال</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;بعد</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> د</translation>
    </message>
    <message>
        <source>Dialling</source>
        <translation>الطلب</translation>
    </message>
    <message>
        <source>&amp;Longest wait for a link</source>
        <translation>أقصى ا&amp;نتظار للارتباط</translation>
    </message>
    <message>
        <source>E&amp;xplain a failure by the exit status of pppd</source>
        <translation>&amp;شرح الفشل وفق حالة خروج pppd</translation>
    </message>
    <message>
        <source>&amp;Open the profile&apos;s page once connected</source>
        <translation>&amp;فتح صفحة ملف التعريف بعد الاتصال</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
</context>
<context>
    <name>corva::Connector</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>لا يمكن الاتصال بالإنترنت أثناء المكالمة إلا في شبكة UMTS.</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>انقطع الاتصال بالجهاز أو أنه غير متاح.</translation>
    </message>
    <message>
        <source>You are connecting to a roaming network. Would you like to continue?</source>
        <translation>أنت على وشك الاتصال بشبكة تجوال. هل تريد المتابعة؟</translation>
    </message>
    <message>
        <source>Which access is yours?</source>
        <translation>أيّ نقطة وصول لك؟</translation>
    </message>
    <message>
        <source>Whose SIM card is it?</source>
        <translation>من مشغّل شريحة SIM؟</translation>
    </message>
    <message>
        <source>%1 has several. Choose yours; the choice is kept as a profile.</source>
        <translation>لدى %1 عدة نقاط وصول. اختر نقطتك؛ يُحفظ الاختيار كملف تعريف.</translation>
    </message>
    <message>
        <source>Several operators share this network. Choose yours; the choice is kept as a profile.</source>
        <translation>يتشارك عدة مشغّلين هذه الشبكة. اختر مشغّلك؛ يُحفظ الاختيار كملف تعريف.</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>ا&amp;تصال</translation>
    </message>
    <message>
        <source>Which profile?</source>
        <translation>أيّ ملف تعريف؟</translation>
    </message>
    <message>
        <source>It is taken from now on.</source>
        <translation>سيُستخدم من الآن فصاعدًا.</translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1، لا رسائل غير مقروءة</numerusform>
            <numerusform>%1، رسالة واحدة غير مقروءة</numerusform>
            <numerusform>%1، رسالتان غير مقروءتين</numerusform>
            <numerusform>%1، %n رسائل غير مقروءة</numerusform>
            <numerusform>%1، %n رسالة غير مقروءة</numerusform>
            <numerusform>%1، %n رسالة غير مقروءة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::CredentialsDialog</name>
    <message>
        <source>&amp;User name</source>
        <translation>اسم المست&amp;خدم</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;كلمة المرور</translation>
    </message>
    <message>
        <source>&amp;Keep them and do not ask again</source>
        <translation>ح&amp;فظهما وعدم السؤال مجددًا</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>ا&amp;تصال</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; asks for them at each connection.</source>
        <translation>يطلبهما ملف التعريف &quot;%1&quot; عند كل اتصال.</translation>
    </message>
    <message>
        <source>User name and password</source>
        <translation>اسم المستخدم وكلمة المرور</translation>
    </message>
</context>
<context>
    <name>corva::DataLink</name>
    <message>
        <source>Fail to connect! Link ppp0 wasn&apos;t built !</source>
        <translation>فشل الاتصال! لم تُنشأ الوصلة ppp0!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>فُصل الجهاز أو أنه غير متاح.</translation>
    </message>
    <message>
        <source>The card did not accept the access point &quot;%1&quot;. Please check the APN of the profile.</source>
        <translation>لم تقبل البطاقة نقطة الوصول &quot;%1&quot;. يُرجى التحقق من APN في ملف التعريف.</translation>
    </message>
</context>
<context>
    <name>corva::DaysChart</name>
    <message>
        <source>Volume of each day</source>
        <translation>حجم البيانات في كل يوم</translation>
    </message>
</context>
<context>
    <name>corva::DaysTab</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Earlier period</source>
        <translation>الفترة السابقة</translation>
    </message>
    <message>
        <source>Later period</source>
        <translation>الفترة التالية</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing was carried in this period.</source>
        <translation>لم تُنقل أي بيانات في هذه الفترة.</translation>
    </message>
    <message>
        <source>In all: %1</source>
        <translation>الإجمالي: %1</translation>
    </message>
</context>
<context>
    <name>corva::DhcpClient</name>
    <message>
        <source>There is no such network interface.</source>
        <translation>لا توجد واجهة شبكة كهذه.</translation>
    </message>
    <message>
        <source>There is no DHCP client. Please install isc-dhcp-client.</source>
        <translation>لا يوجد عميل DHCP. يرجى تثبيت isc-dhcp-client.</translation>
    </message>
    <message>
        <source>The network gave no address.</source>
        <translation>لم تمنح الشبكة عنوانًا.</translation>
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
    <name>corva::DialUpLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>فشل الاتصال!</translation>
    </message>
    <message>
        <source>Fail to connect! exit code is</source>
        <translation>فشل الاتصال! رمز الخروج هو</translation>
    </message>
    <message>
        <source>The card&apos;s data port cannot be opened: %1</source>
        <translation>تعذّر فتح منفذ بيانات البطاقة: %1</translation>
    </message>
    <message>
        <source>The card does not answer on its data port.</source>
        <translation>لا تجيب البطاقة على منفذ بياناتها.</translation>
    </message>
    <message>
        <source>The card refused a command on its data port.</source>
        <translation>رفضت البطاقة أمرًا على منفذ بياناتها.</translation>
    </message>
</context>
<context>
    <name>corva::DialWork</name>
    <message>
        <source>You may not use this card&apos;s data port.</source>
        <translation>لا يُسمح لك باستخدام منفذ البيانات في هذه البطاقة.</translation>
    </message>
    <message>
        <source>The network interface does not belong to the card.</source>
        <translation>واجهة الشبكة لا تخص البطاقة.</translation>
    </message>
    <message>
        <source>The network interface has no address from here.</source>
        <translation>لم تحصل واجهة الشبكة على عنوانها من هنا.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>خادم DNS غير صالح.</translation>
    </message>
    <message>
        <source>The dialler could not be started.</source>
        <translation>تعذّر بدء برنامج الطلب.</translation>
    </message>
    <message>
        <source>The dialler is running already.</source>
        <translation>برنامج الطلب قيد العمل بالفعل.</translation>
    </message>
    <message>
        <source>The connection was cancelled.</source>
        <translation>أُلغي الاتصال.</translation>
    </message>
    <message>
        <source>The route helper is not run: others may write it.</source>
        <translation>لن يُشغَّل مساعد المسار: يمكن لآخرين الكتابة فيه.</translation>
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
    <name>corva::FormField</name>
    <message>
        <source>Show the password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>إخفاء كلمة المرور</translation>
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
    <name>corva::HelperBackend</name>
    <message>
        <source>Connecting needs an administrator&apos;s rights, and the program &quot;pkexec&quot;, which asks for them, is missing. Please install it.</source>
        <translation>يتطلب الاتصال صلاحيات المدير، والبرنامج ‪&quot;pkexec&quot;‬ الذي يطلبها غير موجود. يرجى تثبيته.</translation>
    </message>
    <message>
        <source>The program that dials has ended unexpectedly. Please try again.</source>
        <translation>انتهى برنامج الاتصال المساعد فجأة. حاول من جديد.</translation>
    </message>
    <message>
        <source>The right to connect was not given. Please connect again and enter the password.</source>
        <translation>لم تُمنح صلاحية الاتصال. اتصل من جديد وأدخل كلمة المرور.</translation>
    </message>
    <message>
        <source>The right to connect could not be asked for. Ask an administrator to run &quot;tools/install-dialhelper&quot;, or start Corva in a desktop session.</source>
        <translation>تعذّر طلب صلاحية الاتصال. اطلب من المدير تشغيل ‪&quot;tools/install-dialhelper&quot;‬، أو شغّل Corva في جلسة سطح مكتب.</translation>
    </message>
    <message>
        <source>The program that dials could not be started. Ask an administrator to run &quot;tools/install-dialhelper&quot;.</source>
        <translation>تعذّر بدء برنامج الاتصال المساعد. اطلب من المدير تشغيل ‪&quot;tools/install-dialhelper&quot;‬.</translation>
    </message>
</context>
<context>
    <name>corva::HistoryModel</name>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>البداية</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>ملف التعريف</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>المستقبَل</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>المرسَل</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>التجوال</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>سبب الانتهاء</translation>
    </message>
    <message>
        <source>From %1
to %2</source>
        <translation>من %1
إلى %2</translation>
    </message>
</context>
<context>
    <name>corva::HistoryTab</name>
    <message>
        <source>Delete &amp;all</source>
        <translation>حذف ال&amp;كل</translation>
    </message>
    <message>
        <source>Search the history</source>
        <translation>البحث في السجل</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>بحث (%1)</translation>
    </message>
    <message>
        <source>Connections that are over</source>
        <translation>الاتصالات المنتهية</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %n entries</source>
        <translation>
            <numerusform>&amp;حذف المدخلات</numerusform>
            <numerusform>&amp;حذف مدخل واحد</numerusform>
            <numerusform>&amp;حذف مدخلين</numerusform>
            <numerusform>&amp;حذف %n مدخلات</numerusform>
            <numerusform>&amp;حذف %n مدخلًا</numerusform>
            <numerusform>&amp;حذف %n مدخل</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete entry</source>
        <translation>&amp;حذف المدخل</translation>
    </message>
    <message>
        <source>No connection was made yet. Each one is listed here once it is over.</source>
        <translation>لم يُجرَ أي اتصال بعد. يُدرج كل اتصال هنا بعد انتهائه.</translation>
    </message>
    <message>
        <source>No entry has all of these words.</source>
        <translation>لا يوجد مدخل يحوي كل هذه الكلمات.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>لم يُحذف أي مدخل.</numerusform>
            <numerusform>حُذف مدخل واحد.</numerusform>
            <numerusform>حُذف مدخلان.</numerusform>
            <numerusform>حُذفت %n مدخلات.</numerusform>
            <numerusform>حُذف %n مدخلًا.</numerusform>
            <numerusform>حُذف %n مدخل.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
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
    <name>corva::MessageActions</name>
    <message>
        <source>&amp;Reply</source>
        <translation>ر&amp;د</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>إعادة &amp;توجيه</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Put &amp;back</source>
        <translation>ا&amp;ستعادة</translation>
    </message>
    <message>
        <source>Send a&amp;gain</source>
        <translation>إعادة ال&amp;إرسال</translation>
    </message>
    <message>
        <source>Mark as rea&amp;d</source>
        <translation>تعليم كم&amp;قروءة</translation>
    </message>
    <message>
        <source>Mark as &amp;unread</source>
        <translation>تعليم ك&amp;غير مقروءة</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>&amp;نسخ النص</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>ت&amp;صدير…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;طباعة…</translation>
    </message>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>ح&amp;ذف الرسائل</numerusform>
            <numerusform>ح&amp;ذف رسالة واحدة</numerusform>
            <numerusform>ح&amp;ذف رسالتين</numerusform>
            <numerusform>ح&amp;ذف %n رسائل</numerusform>
            <numerusform>ح&amp;ذف %n رسالة</numerusform>
            <numerusform>ح&amp;ذف %n رسالة</numerusform>
        </translation>
    </message>
    <message>
        <source>Cop&amp;y to</source>
        <translation>نس&amp;خ إلى</translation>
    </message>
    <message>
        <source>&amp;Move to</source>
        <translation>نق&amp;ل إلى</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>لم تُحذف أي رسالة.</numerusform>
            <numerusform>حُذفت رسالة واحدة.</numerusform>
            <numerusform>حُذفت رسالتان.</numerusform>
            <numerusform>حُذفت %n رسائل.</numerusform>
            <numerusform>حُذفت %n رسالة.</numerusform>
            <numerusform>حُذفت %n رسالة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>أتريد حذف الرسائل نهائيًا؟</numerusform>
            <numerusform>أتريد حذف رسالة واحدة نهائيًا؟</numerusform>
            <numerusform>أتريد حذف رسالتين نهائيًا؟</numerusform>
            <numerusform>أتريد حذف %n رسائل نهائيًا؟</numerusform>
            <numerusform>أتريد حذف %n رسالة نهائيًا؟</numerusform>
            <numerusform>أتريد حذف %n رسالة نهائيًا؟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>حذف ال&amp;رسائل</numerusform>
            <numerusform>حذف &amp;رسالة واحدة</numerusform>
            <numerusform>حذف &amp;رسالتين</numerusform>
            <numerusform>حذف %n &amp;رسائل</numerusform>
            <numerusform>حذف %n &amp;رسالة</numerusform>
            <numerusform>حذف %n &amp;رسالة</numerusform>
        </translation>
    </message>
    <message>
        <source>The message may have gone out already. Send it again?</source>
        <translation>ربما أُرسلت الرسالة بالفعل. هل تريد إرسالها من جديد؟</translation>
    </message>
</context>
<context>
    <name>corva::MessageBrowser</name>
    <message>
        <source>No message has come yet.</source>
        <translation>لم تصل أي رسالة بعد.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent.</source>
        <translation>لا شيء في انتظار الإرسال.</translation>
    </message>
    <message>
        <source>You have sent no message yet.</source>
        <translation>لم ترسل أي رسالة بعد.</translation>
    </message>
    <message>
        <source>No drafts. What you write is kept here until you send it.</source>
        <translation>لا مسودات. يُحفظ هنا ما تكتبه إلى أن ترسله.</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>لم يُحذف شيء.</translation>
    </message>
    <message>
        <source>No delivery report has come yet.</source>
        <translation>لم يصل أي تقرير تسليم بعد.</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>المحادثات</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>Reading the messages…</source>
        <translation>جارٍ قراءة الرسائل…</translation>
    </message>
    <message>
        <source>No message has all of these words.</source>
        <translation>لا توجد رسالة تحوي كل هذه الكلمات.</translation>
    </message>
    <message>
        <source>Nobody has written yet. Press Ctrl+N to write first.</source>
        <translation>لم يكتب إليك أحد بعد. اضغط ‪Ctrl+N‬ لتكتب أولًا.</translation>
    </message>
    <message>
        <source>No broadcast has come yet. Choose the channels to listen to above.</source>
        <translation>لم تصل أي رسالة بث بعد. اختر في الأعلى القنوات التي تريد الاستماع إليها.</translation>
    </message>
    <message>
        <source>Reading the %1…</source>
        <translation>جارٍ قراءة %1…</translation>
    </message>
    <message>
        <source>No message is kept there.</source>
        <translation>لا توجد رسائل محفوظة هناك.</translation>
    </message>
    <message>
        <source>It was not read yet. Is a card plugged in?</source>
        <translation>لم تُقرأ بعد. هل البطاقة موصولة؟</translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>لا توجد رسائل غير مقروءة.</numerusform>
            <numerusform>توجد رسالة واحدة غير مقروءة.</numerusform>
            <numerusform>توجد رسالتان غير مقروءتين.</numerusform>
            <numerusform>توجد %n رسائل غير مقروءة.</numerusform>
            <numerusform>توجد %n رسالة غير مقروءة.</numerusform>
            <numerusform>توجد %n رسالة غير مقروءة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
    <message>
        <source>New message from %1</source>
        <translation>رسالة جديدة من ⁨%1⁩</translation>
    </message>
    <message>
        <source>Broadcast on channel %1</source>
        <translation>رسالة بث على القناة %1</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>أُرسل بنجاح: %1، فشل: %2</translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message>
        <source>Export messages</source>
        <translation>تصدير الرسائل</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>جداول CSV ‏(*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON ‏(*.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>لم تُكتب أي رسالة في %1.</numerusform>
            <numerusform>كُتبت رسالة واحدة في %1.</numerusform>
            <numerusform>كُتبت رسالتان في %1.</numerusform>
            <numerusform>كُتبت %n رسائل في %1.</numerusform>
            <numerusform>كُتبت %n رسالة في %1.</numerusform>
            <numerusform>كُتبت %n رسالة في %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The messages could not be written: %1</source>
        <translation>تعذرت كتابة الرسائل: %1</translation>
    </message>
    <message>
        <source>Import messages</source>
        <translation>استيراد الرسائل</translation>
    </message>
    <message>
        <source>Exported messages (*.csv *.json)</source>
        <translation>رسائل مُصدَّرة ‏(*.csv *.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>لم تُضف أي رسالة.</numerusform>
            <numerusform>أُضيفت رسالة واحدة.</numerusform>
            <numerusform>أُضيفت رسالتان.</numerusform>
            <numerusform>أُضيفت %n رسائل.</numerusform>
            <numerusform>أُضيفت %n رسالة.</numerusform>
            <numerusform>أُضيفت %n رسالة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>لم تكن أي منها هنا.</numerusform>
            <numerusform>واحدة كانت هنا من قبل.</numerusform>
            <numerusform>اثنتان كانتا هنا من قبل.</numerusform>
            <numerusform>%n كانت هنا من قبل.</numerusform>
            <numerusform>%n كانت هنا من قبل.</numerusform>
            <numerusform>%n كانت هنا من قبل.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>قُرئت كلها.</numerusform>
            <numerusform>تعذرت قراءة واحدة.</numerusform>
            <numerusform>تعذرت قراءة اثنتين.</numerusform>
            <numerusform>تعذرت قراءة %n.</numerusform>
            <numerusform>تعذرت قراءة %n.</numerusform>
            <numerusform>تعذرت قراءة %n.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageListModel</name>
    <message>
        <source>Unread</source>
        <translation>غير مقروءة</translation>
    </message>
</context>
<context>
    <name>corva::MessageService</name>
    <message>
        <source>The card did not take the broadcast channels: %1</source>
        <translation>لم تقبل البطاقة قنوات البث: %1</translation>
    </message>
    <message>
        <source>The text is too long for one message.</source>
        <translation>النص أطول من أن تتسع له رسالة واحدة.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was not stored: %1</source>
        <translation>لم يُحفظ رقم مركز الخدمة: %1</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>لم تعد البطاقة موجودة.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was stored.</source>
        <translation>حُفظ رقم مركز الخدمة.</translation>
    </message>
</context>
<context>
    <name>corva::MessageSettings</name>
    <message>
        <source>Sending</source>
        <translation>الإرسال</translation>
    </message>
    <message>
        <source>The network &amp;tries for</source>
        <translation>مدة محاولات ال&amp;شبكة</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 ساعة</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 ساعة</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>أسبوع واحد</translation>
    </message>
    <message>
        <source>As long as it may</source>
        <translation>أطول مدة مسموحة</translation>
    </message>
    <message>
        <source>National &amp;letters</source>
        <translation>حروف ال&amp;لغة الوطنية</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>التركية</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>الإسبانية</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>البرتغالية</translation>
    </message>
    <message>
        <source>&amp;Ask for a report when a message is delivered</source>
        <translation>&amp;طلب تقرير عند تسليم الرسالة</translation>
    </message>
    <message>
        <source>Keeping</source>
        <translation>الحفظ</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>على هذا الحاسوب</translation>
    </message>
    <message>
        <source>On the SIM card</source>
        <translation>في شريحة SIM</translation>
    </message>
    <message>
        <source>On the data card</source>
        <translation>في بطاقة البيانات</translation>
    </message>
    <message>
        <source>Where the network says</source>
        <translation>حيث تحدّد الشبكة</translation>
    </message>
    <message>
        <source>&amp;New messages are kept</source>
        <translation>مكان حفظ الرسائل ال&amp;جديدة</translation>
    </message>
    <message>
        <source>The data card&apos;s o&amp;wn memory is used, too</source>
        <translation>استخدام ذاكرة &amp;بطاقة البيانات أيضًا</translation>
    </message>
    <message>
        <source>Delete &amp;read messages from a full SIM card</source>
        <translation>حذف الرسائل الم&amp;قروءة من شريحة SIM الممتلئة</translation>
    </message>
    <message>
        <source>What you are told</source>
        <translation>ما تُبلَّغ به</translation>
    </message>
    <message>
        <source>&amp;Unread messages, when the program starts</source>
        <translation>الرسائل &amp;غير المقروءة، عند بدء البرنامج</translation>
    </message>
    <message>
        <source>&amp;Delivery reports, in a box when they come</source>
        <translation>تقارير التسليم، في &amp;نافذة عند وصولها</translation>
    </message>
    <message>
        <source>Delivery reports, in a &amp;folder of their own</source>
        <translation>تقارير التسليم، في &amp;مجلد خاص بها</translation>
    </message>
    <message>
        <source>Messages that cells &amp;broadcast to everybody</source>
        <translation>الرسائل التي تب&amp;ثها الخلايا للجميع</translation>
    </message>
    <message>
        <source>&amp;Immediate messages show</source>
        <translation>ارتفا&amp;ع عرض الرسائل الفورية</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> من الأسطر</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>الرسائل</translation>
    </message>
</context>
<context>
    <name>corva::MonthsModel</name>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>المستقبَل</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>المرسَل</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>التجوال</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>الإجمالي</translation>
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
    <name>corva::NetworkCardLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>فشل الاتصال!</translation>
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
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>لا مشكلة حتى الآن؛ البطاقة ماضية في عملها.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>إحدى الخطوات غير سليمة. بعد إصلاحها تتبعها الخطوات التالية تلقائيًا.</translation>
    </message>
    <message>
        <source>Everything from the socket to the internet is in order.</source>
        <translation>كل شيء سليم، من المقبس إلى الإنترنت.</translation>
    </message>
</context>
<context>
    <name>corva::OverviewTab</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>What the graph shows</source>
        <translation>ما يعرضه الرسم البياني</translation>
    </message>
    <message>
        <source>The last minute</source>
        <translation>الدقيقة الأخيرة</translation>
    </message>
    <message>
        <source>The last 10 minutes</source>
        <translation>آخر 10 دقائق</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>This connection, %1</source>
        <translation>هذا الاتصال، %1</translation>
    </message>
    <message>
        <source>Last connection, %1</source>
        <translation>الاتصال الأخير، %1</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>None was made yet.</source>
        <translation>لم يُجرَ أي اتصال بعد.</translation>
    </message>
    <message>
        <source>Days and months are not counted: the configuration turns it off.</source>
        <translation>لا تُحسب الأيام والأشهر: أُوقف ذلك في ملف الإعداد.</translation>
    </message>
    <message>
        <source>%1 Say in the settings, Traffic, what volume you have, to be warned in time.</source>
        <translation>%1 حدّد حصتك في الإعدادات ضمن &quot;حركة البيانات&quot; لتُحذَّر في الوقت المناسب.</translation>
    </message>
    <message>
        <source>Down %1 (filled), up %2 (dashed)</source>
        <translation>تنزيل %1 (مملوء)، رفع %2 (متقطع)</translation>
    </message>
    <message>
        <source>The graph runs while a connection is up.</source>
        <translation>يعمل الرسم البياني أثناء قيام الاتصال.</translation>
    </message>
</context>
<context>
    <name>corva::PlainTextView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>نسخ ‪%1‬</translation>
    </message>
</context>
<context>
    <name>corva::ProfileList</name>
    <message>
        <source>access point from the network</source>
        <translation>نقطة الوصول من الشبكة</translation>
    </message>
    <message>
        <source>%1, connects with it</source>
        <translation>%1، يُستخدم للاتصال</translation>
    </message>
    <message>
        <source>No profile yet</source>
        <translation>لا يوجد ملف تعريف بعد</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Make de&amp;fault</source>
        <translation>جعله الا&amp;فتراضي</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>ملفات التعريف</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add a profile</source>
        <translation>إضافة ملف تعريف</translation>
    </message>
    <message>
        <source>Connect with this profile from now on</source>
        <translation>استخدام ملف التعريف هذا للاتصال من الآن فصاعدًا</translation>
    </message>
    <message>
        <source>Vi&amp;ew</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>أتريد حذف ملف التعريف &quot;%1&quot;؟</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ح&amp;ذف</translation>
    </message>
    <message>
        <source>Connects with &quot;%1&quot; from now on.</source>
        <translation>سيُستخدم &quot;%1&quot; للاتصال من الآن فصاعدًا.</translation>
    </message>
</context>
<context>
    <name>corva::ProfileStore</name>
    <message>
        <source>There is a profile with this name already.</source>
        <translation>يوجد ملف تعريف بهذا الاسم من قبل.</translation>
    </message>
    <message>
        <source>There is no profile with this name.</source>
        <translation>لا يوجد ملف تعريف بهذا الاسم.</translation>
    </message>
    <message>
        <source>This profile may not be changed.</source>
        <translation>لا يُسمح بتغيير ملف التعريف هذا.</translation>
    </message>
    <message>
        <source>This profile may not be deleted.</source>
        <translation>لا يُسمح بحذف ملف التعريف هذا.</translation>
    </message>
</context>
<context>
    <name>corva::RateGraph</name>
    <message>
        <source>Graph of the rates</source>
        <translation>رسم بياني للسرعات</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/ث</translation>
    </message>
</context>
<context>
    <name>corva::ReadingPane</name>
    <message>
        <source>De&amp;tails</source>
        <translation>ال&amp;تفاصيل</translation>
    </message>
    <message>
        <source>The message</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>  ·  </source>
        <translation>  ·  </translation>
    </message>
    <message>
        <source>%1 parts are here. The others are added when they come.</source>
        <translation>الأجزاء الموجودة: %1. تُضاف البقية عند وصولها.</translation>
    </message>
    <message>
        <source>Service centre: %1</source>
        <translation>مركز الخدمة: ‪%1‬</translation>
    </message>
    <message>
        <source>Arrived: %1</source>
        <translation>وقت الوصول: %1</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>القناة: %1</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>الجزء %1: ‪%2‬</translation>
    </message>
    <message>
        <source>It did not travel yet.</source>
        <translation>لم تُنقل الرسالة بعد.</translation>
    </message>
</context>
<context>
    <name>corva::SendBar</name>
    <message>
        <source>Sent parts</source>
        <translation>الأجزاء المرسلة</translation>
    </message>
    <message>
        <source>&amp;Cancel sending</source>
        <translation>إل&amp;غاء الإرسال</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 من %3</translation>
    </message>
    <message>
        <source>Sending ...</source>
        <translation>جارٍ الإرسال…</translation>
    </message>
    <message>
        <source>Do you want to cancel sending the rest SMS?</source>
        <translation>هل تريد إلغاء إرسال بقية الرسائل؟</translation>
    </message>
</context>
<context>
    <name>corva::SendQueue</name>
    <message>
        <source>The message could not be written to disk and is not sent.</source>
        <translation>تعذّرت كتابة الرسالة على القرص، ولن تُرسل.</translation>
    </message>
    <message>
        <source>The message could not be written to disk.</source>
        <translation>تعذّرت كتابة الرسالة على القرص.</translation>
    </message>
    <message>
        <source>The alphabet&apos;s settings have changed since it was written.</source>
        <translation>تغيّرت إعدادات الأبجدية منذ كتابة الرسالة.</translation>
    </message>
    <message>
        <source>The message to %1 was not sent: %2</source>
        <translation>لم تُرسل الرسالة إلى ⁨%1⁩: %2</translation>
    </message>
    <message>
        <source>There is another SIM in the card. What waited was not sent.</source>
        <translation>في البطاقة شريحة SIM أخرى. لم يُرسل ما كان في الانتظار.</translation>
    </message>
    <message>
        <source>The message to %1 may have been sent: the card did not say.</source>
        <translation>ربما أُرسلت الرسالة إلى %1: لم تُفد البطاقة بذلك.</translation>
    </message>
</context>
<context>
    <name>corva::ServiceCentreDialog</name>
    <message>
        <source>&amp;Number</source>
        <translation>ال&amp;رقم</translation>
    </message>
    <message>
        <source>Service centre</source>
        <translation>مركز الخدمة</translation>
    </message>
    <message>
        <source>Every message goes through the operator&apos;s service centre. Its number is on the SIM card; change it only when your operator asks you to.</source>
        <translation>تمر كل رسالة عبر مركز الخدمة لدى المشغّل. رقمه محفوظ في شريحة SIM؛ لا تغيّره إلا إذا طلب منك المشغّل ذلك.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>One number is needed.</source>
        <translation>يلزم رقم واحد.</translation>
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
    <name>corva::SmsReception</name>
    <message>
        <source>A new message could not be read from the card: %1</source>
        <translation>تعذّرت قراءة رسالة جديدة من البطاقة: %1</translation>
    </message>
    <message>
        <source>A new message could not be written to disk and stays on the card.</source>
        <translation>تعذّرت كتابة رسالة جديدة على القرص، فبقيت في البطاقة.</translation>
    </message>
    <message>
        <source>A delivery report could not be read from the card: %1</source>
        <translation>تعذّرت قراءة تقرير تسليم من البطاقة: %1</translation>
    </message>
    <message>
        <source>Message was successfully sent to %1, in %2,at %3</source>
        <translation>وصلت الرسالة بنجاح إلى ⁨%1⁩، أُرسلت في %2، وسُلّمت في %3.</translation>
    </message>
    <message>
        <source>The message to %1: %2</source>
        <translation>الرسالة إلى ⁨%1⁩: %2</translation>
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
    <name>corva::StatisticsStore</name>
    <message>
        <source>%1 could not be read in full.</source>
        <translation>تعذّرت قراءة %1 بالكامل.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>تعذّرت قراءة %1 بالكامل. حُفظ ما كان فيه باسم %2.</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>تعذّرت إزالة %1: %2</translation>
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
    <name>corva::TemplateStore</name>
    <message>
        <source>%1 cannot be read, and could not be kept beside.</source>
        <translation>تعذّرت قراءة %1، وتعذّر الاحتفاظ به.</translation>
    </message>
</context>
<context>
    <name>corva::ThreadModel</name>
    <message>
        <source>  ·  </source>
        <translation>  ·  </translation>
    </message>
    <message>
        <source>Received: %1, %2</source>
        <translation>مستلمة: %1، %2</translation>
    </message>
    <message>
        <source>Written: %1, %2</source>
        <translation>مكتوبة: %1، %2</translation>
    </message>
</context>
<context>
    <name>corva::ThreadPane</name>
    <message>
        <source>Show &amp;earlier messages</source>
        <translation>عرض الرسائل الأ&amp;قدم</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;كتابة</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>المحادثة</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
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
    <name>corva::TrafficPage</name>
    <message>
        <source>E&amp;xport as CSV…</source>
        <translation>ت&amp;صدير بصيغة CSV…</translation>
    </message>
    <message>
        <source>Writes the history to a file that spreadsheets read</source>
        <translation>يكتب السجل في ملف تقرؤه برامج الجداول</translation>
    </message>
    <message>
        <source>Writes days and months to a file that spreadsheets read</source>
        <translation>يكتب الأيام والأشهر في ملف تقرؤه برامج الجداول</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;نظرة عامة</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>الأ&amp;يام</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>الأ&amp;شهر</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>ال&amp;سجل</translation>
    </message>
    <message>
        <source>Volume of each month</source>
        <translation>حجم البيانات في كل شهر</translation>
    </message>
    <message>
        <source>Export the history</source>
        <translation>تصدير السجل</translation>
    </message>
    <message>
        <source>Export days and months</source>
        <translation>تصدير الأيام والأشهر</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>جداول CSV (*.csv)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>كُتب في %1.</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>تعذّرت كتابة الجدول: %1</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>حركة البيانات</translation>
    </message>
</context>
<context>
    <name>corva::TrafficService</name>
    <message>
        <source>%1 The connection is ended, as you set it in the settings, Traffic.</source>
        <translation>%1 أُنهي الاتصال كما حدّدت في الإعدادات ضمن &quot;حركة البيانات&quot;.</translation>
    </message>
    <message>
        <source>Your volume of %1 until %2 is used up.</source>
        <translation>نفدت حصتك البالغة %1 حتى %2.</translation>
    </message>
    <message>
        <source>Your volume of %1 for roaming until %2 is used up.</source>
        <translation>نفدت حصة التجوال البالغة %1 حتى %2.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 until %3 are used up.</source>
        <translation>استُهلك %1% من حصتك البالغة %2 حتى %3.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 for roaming until %3 are used up.</source>
        <translation>استُهلك %1% من حصة التجوال البالغة %2 حتى %3.</translation>
    </message>
</context>
<context>
    <name>corva::TrafficSettingsPage</name>
    <message>
        <source>Your volume</source>
        <translation>حصتك من البيانات</translation>
    </message>
    <message>
        <source>&amp;Volume of a month</source>
        <translation>&amp;حصة الشهر</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا حد</translation>
    </message>
    <message>
        <source>While &amp;roaming</source>
        <translation>أثناء ال&amp;تجوال</translation>
    </message>
    <message>
        <source>Counts with it</source>
        <translation>ضمن حصة الشهر</translation>
    </message>
    <message>
        <source>It begins anew on &amp;day</source>
        <translation>تبدأ من جديد في ال&amp;يوم</translation>
    </message>
    <message>
        <source>When it runs out</source>
        <translation>عند نفاد الحصة</translation>
    </message>
    <message>
        <source>&amp;Warn at</source>
        <translation>التحذير &amp;عند</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>الوحدة: %1</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>م.ب</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>غ.ب</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>&amp;End the connection when the volume is used up</source>
        <translation>إ&amp;نهاء الاتصال عند نفاد الحصة</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>حركة البيانات</translation>
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
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;قطع الاتصال</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>إلغاء محا&amp;ولة الاتصال</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>ا&amp;تصال</translation>
    </message>
</context>
<context>
    <name>corva::WirelessWindow</name>
    <message>
        <source>Plug the card in to connect.</source>
        <translation>أدخل البطاقة للاتصال.</translation>
    </message>
    <message>
        <source>Connect goes by the profile &quot;%1&quot;.</source>
        <translation>يستخدم الاتصال ملف التعريف &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The settings of %1 are known: just connect.</source>
        <translation>إعدادات %1 معروفة: اضغط &quot;اتصال&quot; فقط.</translation>
    </message>
    <message>
        <source>The settings for this SIM card are known: connect, and say whose it is.</source>
        <translation>إعدادات شريحة SIM هذه معروفة: اضغط &quot;اتصال&quot; وحدّد مشغّلها.</translation>
    </message>
    <message>
        <source>Add a profile with the access point that your operator has told you.</source>
        <translation>أضف ملف تعريف بنقطة الوصول التي أخبرك بها المشغّل.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>الإنترنت</translation>
    </message>
</context>
</TS>
