<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>FrmDisclaimer</name>
    <message>
        <source>Before you begin</source>
        <translation>Başlamadan önce</translation>
    </message>
    <message>
        <source>%1 connects this computer to a mobile network. What your operator charges for data, messages and calls is between you and your operator; abroad it can be much more than at home.</source>
        <translation>%1 bu bilgisayarı bir mobil ağa bağlar. Operatörünüzün veri, mesaj ve aramalar için aldığı ücret sizinle operatörünüz arasındadır; yurt dışında bu ücret yurt içindekinden çok daha yüksek olabilir.</translation>
    </message>
    <message>
        <source>The traffic and the duration that are shown are measured on this computer. The operator&apos;s own count decides what you pay.</source>
        <translation>Gösterilen trafik ve süre bu bilgisayarda ölçülür. Ne ödeyeceğinizi operatörün kendi ölçümü belirler.</translation>
    </message>
    <message>
        <source>The program is free software and comes without any warranty, as far as the law allows.</source>
        <translation>Program özgür yazılımdır ve yasaların izin verdiği ölçüde hiçbir garanti verilmez.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Kabul et</translation>
    </message>
    <message>
        <source>&amp;Decline and quit</source>
        <translation>&amp;Reddet ve çık</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>Translate as &quot;RTL&quot; where the language runs from right to left, else as &quot;LTR&quot;.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>%1 klasörü oluşturulamıyor</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 sıradan bir dosya değil</translation>
    </message>
    <message>
        <source>%1 may not be written</source>
        <translation>%1 dosyasına yazma izni yok</translation>
    </message>
    <message>
        <source>No file can be made beside %1</source>
        <translation>%1 yanında dosya oluşturulamıyor</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 yazılamıyor</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>%1 değiştirilemiyor</translation>
    </message>
    <message>
        <source>%1 is a ring of links</source>
        <translation>%1 kendine dönen bir bağlantı</translation>
    </message>
</context>
<context>
    <name>corva::SplashDialog</name>
    <message>
        <source>Initializing</source>
        <translation>Başlatılıyor</translation>
    </message>
    <message>
        <source>Software version PC:</source>
        <translation>Yazılım sürümü (PC): </translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Donanım yazılımı sürümü: </translation>
    </message>
</context>
</TS>
