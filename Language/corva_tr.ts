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
    <name>ModeSwitch</name>
    <message>
        <source>The stick is not there any more. Plug it in again.</source>
        <translation>USB modem artık takılı değil. Yeniden takın.</translation>
    </message>
    <message>
        <source>usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch USB modemin kipini değiştiremedi: %1 Çıkarın, biraz bekleyin ve yeniden takın.</translation>
    </message>
    <message>
        <source>usb_modeswitch did not run: %1</source>
        <translation>usb_modeswitch çalışmadı: %1</translation>
    </message>
    <message>
        <source>usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch zamanında bitmedi. USB modemi çıkarın, biraz bekleyin ve yeniden takın.</translation>
    </message>
    <message>
        <source>The program usb_modeswitch is missing. Install it with &quot;sudo apt install usb-modeswitch&quot;.</source>
        <translation>usb_modeswitch programı eksik. &quot;sudo apt install usb-modeswitch&quot; ile kurun.</translation>
    </message>
    <message>
        <source>You may not switch the stick yourself. Switch it with &quot;%1&quot;, or unplug it and plug it in again: the system then switches it.</source>
        <translation>USB modemin kipini kendiniz değiştiremezsiniz. &quot;%1&quot; ile değiştirin ya da çıkarıp yeniden takın: o zaman sistem değiştirir.</translation>
    </message>
</context>
<context>
    <name>ModemTypes</name>
    <message>
        <source>The file has a document type declaration, which is not allowed here. What follows is not read.</source>
        <translation>Dosyada burada izin verilmeyen bir belge türü bildirimi var. Sonrası okunmuyor.</translation>
    </message>
    <message>
        <source>The file is not well-formed here: %1 What follows is not read.</source>
        <translation>Dosya burada düzgün biçimli değil: %1 Sonrası okunmuyor.</translation>
    </message>
    <message>
        <source>The outermost element is &quot;%1&quot;; it should be &quot;modem_types&quot;.</source>
        <translation>En dıştaki öğe &quot;%1&quot;; &quot;modem_types&quot; olmalı.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known at this place.</source>
        <translation>&quot;%1&quot; burada bilinmiyor.</translation>
    </message>
    <message>
        <source>The card %1 is listed already; this entry is left out.</source>
        <translation>%1 kartı zaten listede; bu girdi atlanıyor.</translation>
    </message>
    <message>
        <source>A rule needs the attribute &quot;drivers&quot;, with the names of kernel drivers.</source>
        <translation>Bir kural, çekirdek sürücülerinin adlarını içeren &quot;drivers&quot; özniteliğini gerektirir.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be four hexadecimal digits other than 0000, as lsusb shows them.</source>
        <translation>&quot;%1&quot; değeri &quot;%2&quot;; lsusb&apos;nin gösterdiği gibi 0000 dışında dört onaltılık basamak olmalı.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>&quot;%1&quot; özniteliği eksik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be a number from %3 to %4.</source>
        <translation>&quot;%1&quot; değeri &quot;%2&quot;; %3 ile %4 arasında bir sayı olmalı.</translation>
    </message>
    <message>
        <source>&quot;family&quot; is &quot;%1&quot;; it should be WCDMA, TD-SCDMA or CDMA.</source>
        <translation>&quot;family&quot; değeri &quot;%1&quot;; WCDMA, TD-SCDMA ya da CDMA olmalı.</translation>
    </message>
    <message>
        <source>&quot;storage&quot; holds &quot;%1&quot;; it should be ids such as 1209:0002.</source>
        <translation>&quot;storage&quot; değeri &quot;%1&quot;; 1209:0002 gibi kimlikler olmalı.</translation>
    </message>
    <message>
        <source>This entry is left out. %1</source>
        <translation>Bu girdi atlanıyor. %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Dosya okunamıyor: %1</translation>
    </message>
    <message>
        <source>The file is larger than 1 MiB and is not read.</source>
        <translation>Dosya 1 MiB&apos;tan büyük ve okunmuyor.</translation>
    </message>
</context>
<context>
    <name>PortAccess</name>
    <message>
        <source>You may not open %1, which belongs to the group &quot;%2&quot;. Join it with &quot;sudo usermod -aG %2 %3&quot;, then sign out and in again.</source>
        <translation>&quot;%2&quot; grubuna ait olan %1 aygıtını açamazsınız. Gruba &quot;sudo usermod -aG %2 %3&quot; ile katılın, sonra oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>You may not open %1 yet: you are a member of the group &quot;%2&quot;, but were not when you signed in. Sign out and in again.</source>
        <translation>%1 aygıtını henüz açamazsınız: &quot;%2&quot; grubunun üyesisiniz, ama oturum açtığınızda değildiniz. Oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>You may not open %1, and no group can be joined that may. Ask the administrator of this computer for a udev rule that gives the group &quot;dialout&quot; access to it.</source>
        <translation>%1 aygıtını açamazsınız ve buna izinli bir grup da yok. Bu bilgisayarın yöneticisinden &quot;dialout&quot; grubuna erişim veren bir udev kuralı isteyin.</translation>
    </message>
</context>
<context>
    <name>PortHolder</name>
    <message>
        <source>process %1</source>
        <translation>%1 numaralı süreç</translation>
    </message>
    <message>
        <source>ModemManager is using the card on %1. Stop it with &quot;sudo systemctl stop ModemManager&quot;, or keep it off this card with the udev rule that comes with this program.</source>
        <translation>ModemManager %1 üzerindeki kartı kullanıyor. &quot;sudo systemctl stop ModemManager&quot; ile durdurun ya da bu programla gelen udev kuralıyla bu karttan uzak tutun.</translation>
    </message>
    <message>
        <source>The message service %1 is using the card on %2. Stop it with &quot;sudo systemctl stop %3&quot;.</source>
        <translation>%1 mesaj hizmeti %2 üzerindeki kartı kullanıyor. &quot;sudo systemctl stop %3&quot; ile durdurun.</translation>
    </message>
    <message>
        <source>%1 is using the card on %2. Close that program; the card is then found by itself.</source>
        <translation>%1, %2 üzerindeki kartı kullanıyor. O programı kapatın; kart kendiliğinden bulunur.</translation>
    </message>
    <message>
        <source>Another program is using the card on %1. &quot;sudo fuser -v %1&quot; names it; close it, and the card is found by itself.</source>
        <translation>Başka bir program %1 üzerindeki kartı kullanıyor. &quot;sudo fuser -v %1&quot; hangisi olduğunu gösterir; kapatın, kart kendiliğinden bulunur.</translation>
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
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>Kart okunuyor</translation>
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
