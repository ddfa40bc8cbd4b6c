<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>Kilitli, PIN gerekli</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>Bloke, PUK gerekli</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Başlatılıyor</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Okunamıyor</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>SIM kart yok</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>Ağ aranmıyor</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>Ana ağ</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Ağ aranıyor</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Reddedildi</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Dolaşım</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Servis yok</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Yalnızca acil aramalar</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>Tam servis</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Bu bölgede servis yok</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>Güç tasarrufu</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1, %2/5 çubuk</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Çevrimdışı: %1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Ağa kayıtlı</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
</context>
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
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>Gelen arama</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>Kart çalıyor.</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Yeni mesaj</translation>
    </message>
    <message>
        <source>A new message has arrived on the card</source>
        <translation>Karta yeni bir mesaj geldi</translation>
    </message>
    <message>
        <source>A new message has arrived</source>
        <translation>Yeni bir mesaj geldi</translation>
    </message>
    <message>
        <source>An immediate message has arrived</source>
        <translation>Bir flaş mesaj geldi</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>Başka bir arama bekliyor.</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>Kart disk olarak görünüyor</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>Birçok kart, içinde sürücüler olan bir disk olarak başlar. Kipini değiştirin; birkaç saniyede modem olur.</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>Kart bulunamadı</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>Kartı bu bilgisayarın bir USB girişine takın. Takılıysa çıkarıp başka bir girişi deneyin.</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>Kart modem olarak takılı</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>Kartın seri portu yok</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>Bilgisayar &quot;%1&quot; aygıtını görüyor, ama ona port oluşturmadı. Çıkarın, on saniye bekleyin ve yeniden takın.</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>Bilgisayar ona bir port oluşturdu</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>Portu kullanma izniniz var</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>Portu kullanma izni yok</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>%1 portunu yalnızca &quot;%2&quot; grubunun üyeleri kullanabilir. Düğmenin kopyaladığı komutu çalıştırın, sonra oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Başka bir program</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (süreç %2)</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>Portu başka program kullanmıyor</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>Port kullanımda</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>%1, %2 portunu kullanıyor. O programı kapatın ya da hizmetini durdurun, sonra yeniden arayın.</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>Kart yanıt vermiyor</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>%1 portu açık, ama yanıt veren yok. Yeni takılan bir kart yarım dakikaya kadar süre ister; sonra çıkarıp yeniden takın.</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>Kart yanıt veriyor</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>SIM kart yok</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>Kartı çıkarın, temas yüzeyi aşağı bakacak şekilde bir SIM kart yerleştirin ve kartı yeniden takın.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>SIM kart okunamıyor</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>SIM kartı çıkarın, temas yüzeyini silin ve yeniden takın. İşe yaramazsa operatörünüzden yenisini isteyin.</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>SIM kart başlatılıyor</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Bu birkaç saniye sürer.</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>SIM kart denetleniyor</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>Kart, SIM kartı olup olmadığını henüz bildirmedi.</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>Kartta SIM kart var</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>SIM kart kilitli</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>Kartın bir ağa girmesine izin vermeden önce PIN&apos;ini ister.</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>SIM kart bloke oldu</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>Çok fazla kez yanlış PIN girildi. SIM kartla birlikte gelen PUK ile yeni bir PIN belirlenir.</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>SIM kartın kilidi açık</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>Radyo kapalı</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>Radyo açılana kadar kart ne gönderir ne alır.</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>Radyo açık</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>Ağ aranmıyor</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>Kart, kullanabileceği bir ağ bulamadı ve aramayı bıraktı. Çekimin daha iyi olduğu bir yere geçin, sonra radyoyu yeniden açın.</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>Ağ SIM kartı reddetti</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>SIM kart henüz etkinleştirilmemiş olabilir ya da burada kullanılamıyor olabilir. Nedenini operatörünüz söyleyebilir.</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>Ağ aranıyor</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>Bu bir dakika, yurt dışında daha uzun sürebilir. Pencere kenarı işe yarar.</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>Ağ denetleniyor</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>Kart, bir ağın onu kabul edip etmediğini henüz bildirmedi.</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>Operatörünüzün ağı kartı kabul etti</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>Başka bir operatörün ağı kartı kabul etti</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Servis yok</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>Ağ şu anda burada servis vermiyor. Çekimin daha iyi olduğu bir yere geçin.</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Yalnızca acil aramalar</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>Ağ burada bu SIM karta servis vermiyor. Nedenini operatörünüz söyleyebilir.</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Bu bölgede servis yok</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>Operatörünüz bu SIM karta bu bölgede değil, başka yerlerde servis veriyor.</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>Ağ karta servis veriyor</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>USB girişindeki kart</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Seri port</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>Portu kullanma izni</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>Portun boş olması</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>Kartın yanıtı</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM kart</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radyo</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Ağa kayıt</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>Yeniden &amp;ara</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>&amp;Modem kipine geçir</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Komutu kopyala</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>&amp;PIN&apos;i gir</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>P&amp;UK&apos;u gir</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>&amp;Radyoyu aç</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>Yeniden &amp;sor</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>Ayarlar bir port belirtiyor</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>Port yok</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>Ayarlar %1 portunu belirtiyor, ama böyle bir port yok. Kartı takın; takılıysa Data/common-config.xml dosyasındaki &quot;at_port&quot; değerini düzeltip programı yeniden başlatın.</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>Port, seri port değil</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>Ayarlar %1 portunu belirtiyor, ama bu bir seri port değil. Data/common-config.xml dosyasındaki &quot;at_port&quot; değerini düzeltip programı yeniden başlatın.</translation>
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
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>Bozuk ayar dosyası saklanamıyor</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>Ayarlar okunamadı; program hiçbir ayar olmadan başladı. Okunamayan dosya şu adla saklandı:
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>Ayarlar kaydedilemiyor: %1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>&quot;%1&quot; içindeki renkler okunamıyor.</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Neden çevrimdışıyım?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Yenile</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Taşı</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>&amp;Boyutlandır</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>Küçü&amp;lt</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>&amp;Ekranı kapla</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>%1 &amp;hakkında</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Ka&amp;pat</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Çı&amp;k</translation>
    </message>
</context>
<context>
    <name>corva::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>%1 hakkında</translation>
    </message>
    <message>
        <source>Connection manager for USB data cards</source>
        <translation>USB veri kartları için bağlantı yöneticisi</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Araç takımı</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lisans</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Kart</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Donanım yazılımı</translation>
    </message>
    <message>
        <source>Internal version</source>
        <translation>İç sürüm</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Tümünü kopyala</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ka&amp;pat</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>Ayar grupları</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
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
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Yenile</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>Karttan her şeyi yeniden iste</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Kart</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM kart</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Aygıt</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatör</translation>
    </message>
    <message>
        <source>Network type</source>
        <translation>Ağ türü</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Ağa kayıt</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Hizmet</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Dolaşım</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Sinyal</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>Ağ kodu</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Bölge</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Hücre</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>Ağ saati</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Telefon no.</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>Kart numarası</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Aygıt yazılımı</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>Rakamları &amp;göster</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>&amp;Sonra</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>SIM kart bloke oldu</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>SIM kart kilitli</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>PUK girişi</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>PIN girişi</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>SIM kartla birlikte gelen PUK&apos;u girin ve yeni bir PIN seçin.</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>Kartı kullanmak için SIM kartın PIN&apos;ini girin.</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>P&amp;UK, 8 hane</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>Yeni &amp;PIN, 4-8 hane</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>&amp;PIN, 4-8 hane</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>Yeni PIN&apos;i &amp;tekrarlayın</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>&amp;Blokeyi kaldır</translation>
    </message>
    <message>
        <source>Un&amp;lock</source>
        <translation>&amp;Kilidi aç</translation>
    </message>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>%n deneme hakkı kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>Son deneme: bir yanlış PUK daha girilirse SIM kart bir daha kullanılamaz.</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>Son deneme: bir yanlış PIN daha girilirse SIM kart PUK&apos;u ister.</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>PUK 8 hanelidir.</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>PIN 4-8 hanelidir.</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>İki PIN birbirinden farklı.</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>SIM karta soruluyor</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>PUK yanlış.</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>PIN yanlış.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>SIM kart okunamıyor. Çıkarıp yeniden takın.</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>Kart zamanında yanıt vermedi. Girileni kabul edip etmediği bilinmiyor; kart bildiriyorsa kalan deneme sayısı gösterilir.</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>SIM kart hâlâ başlatılıyor. Biraz sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>Kart girileni reddetti, ama yanlış olduğunu bildirmedi.</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>yolunda</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>sorun</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>sürüyor</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>henüz bilinmiyor</translation>
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
        <translation>Kopyala: %1</translation>
    </message>
</context>
<context>
    <name>corva::GeneralPage</name>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>Diğer programların yanında</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>Pencere kapatılınca &amp;sistem tepsisinde çalışmayı sürdür</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>Aramaları ve mesajları &amp;masaüstünde bildir</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Dil</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Renkler</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>Dil kaydedildi. Program bir sonraki açılışında bu dili kullanır.</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>Renkler kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>&amp;Güncellemeleri ara</translation>
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
        <translation>Ok tuşları pencereyi taşır. Enter yeni yeri korur, Esc eskisine döner.</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>Ok tuşları pencereyi boyutlandırır. Enter yeni boyutu korur, Esc eskisine döner.</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>Kart aranıyor</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>Karta soruluyor</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>Kopyalandı. Komutu bir uçbirime yapıştırın, sonra oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>Kart modem kipine geçiriliyor</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>Kip değişti. Kart birkaç saniye içinde modem olarak döner.</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>Radyo açılıyor</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>Radyo açık.</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>Kart henüz onaylamadı. Durumu birazdan gösterilecek.</translation>
    </message>
</context>
<context>
    <name>corva::Navigation</name>
    <message>
        <source>Pages</source>
        <translation>Sayfalar</translation>
    </message>
</context>
<context>
    <name>corva::NavigationButton</name>
    <message>
        <source>%1, %2 new</source>
        <translation>%1, %2 yeni</translation>
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
        <translation>&amp;Geri</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Neden çevrimdışıyım?</translation>
    </message>
    <message>
        <source>Everything from the socket to the network is in order.</source>
        <translation>USB girişinden ağa kadar her şey yolunda.</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Şimdilik sorun yok; kart işini yapıyor.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Bir adım yolunda değil. Sonraki adımlar kendiliğinden gelir.</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>Ayar kaydedilemedi: %1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>Sinyal: %1/%2 çubuk</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Sinyal yok</translation>
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
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Neden çevrimdışıyım?</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Ağa kayıtlı</translation>
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
        <translation>&amp;Neden?</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Neden çevrimdışıyım?</translation>
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
        <translation>Bağlanıyor</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Bağlantı kesiliyor</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Küçült</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>%1 menüsü</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Network type %1</source>
        <translation>Ağ türü: %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Dolaşım</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>Kart yok</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>SIM kart: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>henüz bilinmiyor</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>Veri bağlantısı: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Saat: %1</translation>
    </message>
</context>
<context>
    <name>corva::TrayIcon</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Neden çevrimdışıyım?</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>%1 &amp;hakkında</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Çı&amp;k</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>Pencereyi &amp;gizle</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>Pencereyi &amp;göster</translation>
    </message>
</context>
</TS>
