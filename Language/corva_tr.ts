<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message>
        <source>&amp;New message</source>
        <translation>&amp;Yeni mesaj</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>Daha &amp;fazla</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Yeni mesaj</translation>
    </message>
    <message>
        <source>Search all messages</source>
        <translation>Tüm mesajlarda ara</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Ara (%1)</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Gönderilen: %1, başarısız: %2</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;İçe aktar…</translation>
    </message>
    <message>
        <source>&amp;Undo deleting</source>
        <translation>Si&amp;lmeyi geri al</translation>
    </message>
    <message>
        <source>Read the SIM and the data card ane&amp;w</source>
        <translation>SIM kartı ve veri kartını yeniden &amp;oku</translation>
    </message>
    <message>
        <source>&amp;Service centre…</source>
        <translation>&amp;Mesaj merkezi…</translation>
    </message>
    <message>
        <source>Choose a message to read it, or write one with Ctrl+N.</source>
        <translation>Okumak için bir mesaj seçin ya da Ctrl+N ile yeni bir mesaj yazın.</translation>
    </message>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>%n mesaj seçildi.</numerusform>
        </translation>
    </message>
    <message>
        <source>The draft was deleted.</source>
        <translation>Taslak silindi.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>There is nothing to bring back.</source>
        <translation>Geri getirilecek bir şey yok.</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Yenid&amp;en dene</translation>
    </message>
    <message>
        <source>%1: %2 of %3 places are used. When it is full, no message can come in.</source>
        <translation>%1: %2/%3 yer dolu. Tümü dolunca mesaj alınamaz.</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mesajlar</translation>
    </message>
</context>
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
    <name>Channels</name>
    <message>
        <source>&quot;%1&quot; is no channel. Channels are numbers from 0 to 65535, or ranges as 10-15.</source>
        <translation>&quot;%1&quot; bir kanal değil. Kanallar 0 ile 65535 arasında sayılar ya da 10-15 gibi aralıklardır.</translation>
    </message>
    <message>
        <source>These are more than %1 channels.</source>
        <translation>Kanal sayısı %1 sınırını aşıyor.</translation>
    </message>
</context>
<context>
    <name>CmsErrors</name>
    <message>
        <source>The number does not exist.</source>
        <translation>Böyle bir numara yok.</translation>
    </message>
    <message>
        <source>The operator has barred messages for this SIM.</source>
        <translation>Operatör bu SIM kart için mesajları engellemiş.</translation>
    </message>
    <message>
        <source>Sending is barred.</source>
        <translation>Gönderme engellenmiş.</translation>
    </message>
    <message>
        <source>The network failed.</source>
        <translation>Ağda bir hata oluştu.</translation>
    </message>
    <message>
        <source>The network rejected the message.</source>
        <translation>Ağ mesajı geri çevirdi.</translation>
    </message>
    <message>
        <source>The memory for messages is full.</source>
        <translation>Mesaj belleği dolu.</translation>
    </message>
    <message>
        <source>The recipient cannot be reached.</source>
        <translation>Alıcıya ulaşılamıyor.</translation>
    </message>
    <message>
        <source>The network does not know this SIM.</source>
        <translation>Ağ bu SIM kartı tanımıyor.</translation>
    </message>
    <message>
        <source>The network does not offer this service.</source>
        <translation>Ağ bu hizmeti sunmuyor.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>Ağ arızalı.</translation>
    </message>
    <message>
        <source>The network failed for the moment.</source>
        <translation>Ağda geçici bir hata oluştu.</translation>
    </message>
    <message>
        <source>The network is overloaded.</source>
        <translation>Ağ aşırı yüklü.</translation>
    </message>
    <message>
        <source>The network has no room for the message.</source>
        <translation>Ağda mesaj için yer yok.</translation>
    </message>
    <message>
        <source>Messages are not part of this subscription.</source>
        <translation>Mesajlar bu aboneliğe dahil değil.</translation>
    </message>
    <message>
        <source>The network did not understand the message.</source>
        <translation>Ağ mesajı anlamadı.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network failed.</source>
        <translation>Alıcının ağında bir hata oluştu.</translation>
    </message>
    <message>
        <source>This kind of message is not supported.</source>
        <translation>Bu tür mesajlar desteklenmiyor.</translation>
    </message>
    <message>
        <source>The message cannot replace another one.</source>
        <translation>Mesaj başka bir mesajın yerine geçemiyor.</translation>
    </message>
    <message>
        <source>The message&apos;s alphabet is not supported.</source>
        <translation>Mesajın alfabesi desteklenmiyor.</translation>
    </message>
    <message>
        <source>The service centre refused the command.</source>
        <translation>Mesaj merkezi komutu reddetti.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>Mesaj merkezi meşgul.</translation>
    </message>
    <message>
        <source>The service centre does not serve this SIM.</source>
        <translation>Mesaj merkezi bu SIM karta hizmet vermiyor.</translation>
    </message>
    <message>
        <source>The service centre failed.</source>
        <translation>Mesaj merkezinde bir hata oluştu.</translation>
    </message>
    <message>
        <source>The number is not valid.</source>
        <translation>Numara geçersiz.</translation>
    </message>
    <message>
        <source>The recipient is barred.</source>
        <translation>Alıcı engellenmiş.</translation>
    </message>
    <message>
        <source>The service centre has this message already.</source>
        <translation>Bu mesaj, mesaj merkezinde zaten var.</translation>
    </message>
    <message>
        <source>The service centre refuses the validity period.</source>
        <translation>Mesaj merkezi geçerlilik süresini kabul etmiyor.</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is full.</source>
        <translation>SIM kartın mesaj belleği dolu.</translation>
    </message>
    <message>
        <source>The SIM cannot hold messages.</source>
        <translation>SIM kart mesaj saklayamıyor.</translation>
    </message>
    <message>
        <source>The card failed.</source>
        <translation>Kartta bir hata oluştu.</translation>
    </message>
    <message>
        <source>The SIM is busy.</source>
        <translation>SIM kart meşgul.</translation>
    </message>
    <message>
        <source>The SIM failed.</source>
        <translation>SIM kartta bir hata oluştu.</translation>
    </message>
    <message>
        <source>The card&apos;s message service is in use.</source>
        <translation>Kartın mesaj hizmeti kullanımda.</translation>
    </message>
    <message>
        <source>The card does not allow this now.</source>
        <translation>Kart şu anda buna izin vermiyor.</translation>
    </message>
    <message>
        <source>The card cannot do this.</source>
        <translation>Kart bunu yapamıyor.</translation>
    </message>
    <message>
        <source>The card did not understand the message.</source>
        <translation>Kart mesajı anlamadı.</translation>
    </message>
    <message>
        <source>There is no SIM in the card.</source>
        <translation>Kartta SIM kart yok.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>SIM kart PIN&apos;ini istiyor.</translation>
    </message>
    <message>
        <source>The card asks for its own PIN.</source>
        <translation>Kart kendi PIN&apos;ini istiyor.</translation>
    </message>
    <message>
        <source>This SIM does not fit the card.</source>
        <translation>Bu SIM kart karta uygun değil.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>SIM kart PUK&apos;unu istiyor.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN2.</source>
        <translation>SIM kart PIN2&apos;sini istiyor.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK2.</source>
        <translation>SIM kart PUK2&apos;sini istiyor.</translation>
    </message>
    <message>
        <source>The memory for messages failed.</source>
        <translation>Mesaj belleğinde bir hata oluştu.</translation>
    </message>
    <message>
        <source>There is no message at this place.</source>
        <translation>Bu yerde mesaj yok.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>Mesaj merkezinin numarası bilinmiyor.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Ağ yok.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Ağ zamanında yanıt vermedi.</translation>
    </message>
    <message>
        <source>The card expected no confirmation.</source>
        <translation>Kart onay beklemiyordu.</translation>
    </message>
    <message>
        <source>The card does not say why.</source>
        <translation>Kart nedenini bildirmiyor.</translation>
    </message>
    <message>
        <source>The message was delivered.</source>
        <translation>Mesaj iletildi.</translation>
    </message>
    <message>
        <source>The message was replaced by a newer one.</source>
        <translation>Mesajın yerini daha yenisi aldı.</translation>
    </message>
    <message>
        <source>The message could not be delivered yet; the network goes on trying.</source>
        <translation>Mesaj henüz iletilemedi; ağ denemeyi sürdürüyor.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device cannot take the message.</source>
        <translation>Alıcının aygıtı mesajı alamıyor.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device refused the message.</source>
        <translation>Alıcının aygıtı mesajı reddetti.</translation>
    </message>
    <message>
        <source>The message could not be delivered in time.</source>
        <translation>Mesaj zamanında iletilemedi.</translation>
    </message>
    <message>
        <source>The service centre does not know the message.</source>
        <translation>Mesaj merkezi mesajı tanımıyor.</translation>
    </message>
    <message>
        <source>The message could not be delivered.</source>
        <translation>Mesaj iletilemedi.</translation>
    </message>
    <message>
        <source>The card says: %1</source>
        <translation>Kartın bildirdiği: %1</translation>
    </message>
    <message>
        <source>The card refuses, with the code %1.</source>
        <translation>Kart %1 koduyla reddediyor.</translation>
    </message>
    <message>
        <source>The card refuses, without saying why.</source>
        <translation>Kart, nedenini bildirmeden reddediyor.</translation>
    </message>
    <message>
        <source>The network refused the message, without saying why.</source>
        <translation>Ağ, nedenini belirtmeden mesajı reddetti.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device is busy.</source>
        <translation>Alıcının aygıtı meşgul.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device does not answer.</source>
        <translation>Alıcının aygıtı yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The network has not the quality of service that the message asks for.</source>
        <translation>Ağ, mesajın istediği hizmet kalitesini sunmuyor.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device failed.</source>
        <translation>Alıcının aygıtında bir hata oluştu.</translation>
    </message>
    <message>
        <source>The message was passed on; whether it arrived is not known.</source>
        <translation>Mesaj aktarıldı; ulaşıp ulaşmadığı bilinmiyor.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network does not work with this one.</source>
        <translation>Alıcının ağı bu ağla çalışmıyor.</translation>
    </message>
    <message>
        <source>The message was deleted by its sender before it was delivered.</source>
        <translation>Mesaj iletilmeden göndereni tarafından silindi.</translation>
    </message>
    <message>
        <source>The service centre deleted the message before it was delivered.</source>
        <translation>Mesaj merkezi mesajı iletilmeden sildi.</translation>
    </message>
</context>
<context>
    <name>ConnectionDiagnosis</name>
    <message>
        <source>No profile is chosen</source>
        <translation>Profil seçilmedi</translation>
    </message>
    <message>
        <source>A profile says how to reach the internet through your operator. Those of most operators are known; choose one, or add your own.</source>
        <translation>Profil, operatörünüz üzerinden internete nasıl ulaşılacağını belirtir. Çoğu operatörünki bilinir; birini seçin ya da kendinizinkini ekleyin.</translation>
    </message>
    <message>
        <source>The network chooses it</source>
        <translation>Ağ seçer</translation>
    </message>
    <message>
        <source>The profile names no access point</source>
        <translation>Profilde erişim noktası belirtilmemiş</translation>
    </message>
    <message>
        <source>Your operator can tell you its name (APN). Enter it in the profile.</source>
        <translation>Adını (APN) operatörünüz söyleyebilir. Profile girin.</translation>
    </message>
    <message>
        <source>User name or password refused</source>
        <translation>Kullanıcı adı ya da parola reddedildi</translation>
    </message>
    <message>
        <source>The call was not taken</source>
        <translation>Arama yanıtlanmadı</translation>
    </message>
    <message>
        <source>The line was busy</source>
        <translation>Hat meşguldü</translation>
    </message>
    <message>
        <source>No link within the time</source>
        <translation>Bağlantı zamanında kurulamadı</translation>
    </message>
    <message>
        <source>The dialler failed</source>
        <translation>Çevirici başarısız oldu</translation>
    </message>
    <message>
        <source>System files cannot be changed</source>
        <translation>Sistem dosyaları değiştirilemiyor</translation>
    </message>
    <message>
        <source>No right to dial</source>
        <translation>Çevirme izni yok</translation>
    </message>
    <message>
        <source>The network ended the connection</source>
        <translation>Ağ bağlantıyı sonlandırdı</translation>
    </message>
    <message>
        <source>The connection broke off</source>
        <translation>Bağlantı koptu</translation>
    </message>
    <message>
        <source>The card was taken out</source>
        <translation>Kart çıkarıldı</translation>
    </message>
    <message>
        <source>Ended because nothing was carried</source>
        <translation>Veri aktarılmadığı için sonlandı</translation>
    </message>
    <message>
        <source>The month&apos;s volume is used up</source>
        <translation>Aylık kota doldu</translation>
    </message>
    <message>
        <source>The connection is up</source>
        <translation>Bağlantı kuruldu</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Bağlanıyor</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Bu birkaç saniye sürer.</translation>
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
        <source>The card is in the network, and everything is there to connect.</source>
        <translation>Kart ağa kayıtlı ve bağlanmak için her şey hazır.</translation>
    </message>
    <message>
        <source>The network gave no address</source>
        <translation>Ağ adres vermedi</translation>
    </message>
    <message>
        <source>Disconnect and connect again. If that does not help, the access point of the profile may be the wrong one.</source>
        <translation>Bağlantıyı kesip yeniden bağlanın. İşe yaramazsa profildeki erişim noktası yanlış olabilir.</translation>
    </message>
    <message>
        <source>No name servers</source>
        <translation>Ad sunucusu yok</translation>
    </message>
    <message>
        <source>Without them names of web sites cannot be found. Enter some in the profile, then disconnect and connect again.</source>
        <translation>Bunlar olmadan web sitelerinin adları bulunamaz. Profile birkaçını girin, sonra bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Another connection carries the traffic</source>
        <translation>Trafiği başka bir bağlantı taşıyor</translation>
    </message>
    <message>
        <source>This computer goes through a cable, Wi-Fi or another way first. Switch that off, then disconnect and connect again here.</source>
        <translation>Bu bilgisayar önce kabloyu, Wi-Fi&apos;yi ya da başka bir yolu kullanıyor. Onu kapatın, sonra buradan bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>The traffic goes through the card</source>
        <translation>Trafik karttan geçiyor</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Erişim noktası</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP adresi</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Ad sunucuları</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Yönlendirme</translation>
    </message>
    <message>
        <source>The profile cannot be used</source>
        <translation>Profil kullanılamıyor</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>With &quot;%1&quot;, since %2.</source>
        <translation>&quot;%1&quot; ile, başlangıç: %2.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;, attempt %2 of %3.</source>
        <translation>&quot;%1&quot; ile, deneme %2/%3.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; ile.</translation>
    </message>
    <message>
        <source>%1 Attempt %2 of %3 follows.</source>
        <translation>%1 Sırada deneme %2/%3 var.</translation>
    </message>
</context>
<context>
    <name>DiallerFiles</name>
    <message>
        <source>Save wvdial config data failed!</source>
        <translation>wvdial yapılandırması kaydedilemedi!</translation>
    </message>
    <message>
        <source>Read default wvdial config data failed!</source>
        <translation>Varsayılan wvdial yapılandırması okunamadı!</translation>
    </message>
    <message>
        <source>open file operation error!</source>
        <translation>Dosya açılamadı!</translation>
    </message>
    <message>
        <source>Recover wvdial config data failed!</source>
        <translation>wvdial yapılandırması geri yüklenemedi!</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>DNS geçersiz!</translation>
    </message>
</context>
<context>
    <name>EndSentence</name>
    <message>
        <source>The network refused the user name and the password.</source>
        <translation>Ağ, kullanıcı adını ve parolayı kabul etmedi.</translation>
    </message>
    <message>
        <source>The network did not take the call.</source>
        <translation>Ağ çağrıyı kabul etmedi.</translation>
    </message>
    <message>
        <source>The line is busy. Please try again later.</source>
        <translation>Hat meşgul. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Ağ zamanında yanıt vermedi.</translation>
    </message>
    <message>
        <source>The dialler ended before it was done.</source>
        <translation>Çevirici işini bitirmeden sona erdi.</translation>
    </message>
    <message>
        <source>The files for the dialler could not be written.</source>
        <translation>Çeviricinin dosyaları yazılamadı.</translation>
    </message>
    <message>
        <source>The right to connect was not given.</source>
        <translation>Bağlanma izni verilmedi.</translation>
    </message>
    <message>
        <source>The network ended the connection.</source>
        <translation>Ağ bağlantıyı sonlandırdı.</translation>
    </message>
    <message>
        <source>The network does not answer any more.</source>
        <translation>Ağ artık yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The card was pulled out.</source>
        <translation>Kart çıkarıldı.</translation>
    </message>
    <message>
        <source>The connection was ended because nothing was carried.</source>
        <translation>Hiç veri aktarılmadığı için bağlantı sonlandırıldı.</translation>
    </message>
    <message>
        <source>The connection was ended because the volume is used up.</source>
        <translation>Kota dolduğu için bağlantı sonlandırıldı.</translation>
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
    <name>HistoryEnd</name>
    <message>
        <source>By you</source>
        <translation>Siz kestiniz</translation>
    </message>
    <message>
        <source>By the network</source>
        <translation>Ağ kesti</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Yanıt yok</translation>
    </message>
    <message>
        <source>Dialler stopped</source>
        <translation>Çevirici durdu</translation>
    </message>
    <message>
        <source>Card removed</source>
        <translation>Kart çıkarıldı</translation>
    </message>
    <message>
        <source>Nothing carried</source>
        <translation>Veri aktarılmadı</translation>
    </message>
    <message>
        <source>Volume used up</source>
        <translation>Kota doldu</translation>
    </message>
    <message>
        <source>Program closed</source>
        <translation>Program kapatıldı</translation>
    </message>
    <message>
        <source>Unexpectedly</source>
        <translation>Beklenmedik biçimde</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Bilinmiyor</translation>
    </message>
</context>
<context>
    <name>MessageCounter</name>
    <message>
        <source>Symbol: %1 /%2</source>
        <translation>Karakter: %1 /%2</translation>
    </message>
    <message>
        <source>The message is too long: it may have %1 parts.</source>
        <translation>Mesaj çok uzun: en fazla %1 parça olabilir.</translation>
    </message>
    <message>
        <source>Because of &quot;%1&quot; a message holds 70 characters instead of 160.</source>
        <translation>&quot;%1&quot; nedeniyle bir mesaj 160 yerine 70 karakter alır.</translation>
    </message>
    <message>
        <source>National letters leave 155 characters of 160.</source>
        <translation>Ulusal harflerle 160 karakterden 155&apos;i kalır.</translation>
    </message>
    <message>
        <source>It is sent in %1 parts.</source>
        <translation>%1 parça halinde gönderilir.</translation>
    </message>
</context>
<context>
    <name>MessagePrint</name>
    <message>
        <source>From %1, %2</source>
        <translation>Gönderen: %1, %2</translation>
    </message>
    <message>
        <source>To %1, %2</source>
        <translation>Alıcı: %1, %2</translation>
    </message>
</context>
<context>
    <name>MessageStore</name>
    <message>
        <source>%1 was empty.</source>
        <translation>%1 boştu.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>%1 tam olarak okunamadı. İçindekiler %2 adıyla saklandı.</translation>
    </message>
    <message>
        <source>%1 can neither be read nor moved aside.</source>
        <translation>%1 ne okunabiliyor ne de kenara alınabiliyor.</translation>
    </message>
</context>
<context>
    <name>MessageTransfer</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 okunamıyor.</translation>
    </message>
    <message>
        <source>%1 is not a file of messages.</source>
        <translation>%1 bir mesaj dosyası değil.</translation>
    </message>
    <message>
        <source>The messages of %1 could not be saved.</source>
        <translation>%1 dosyasındaki mesajlar kaydedilemedi.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Inbox</source>
        <translation>Gelen kutusu</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Giden kutusu</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>box</comment>
        <translation>Gönderilmiş</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>state</comment>
        <translation>Gönderildi</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>Taslaklar</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Silinmiş</translation>
    </message>
    <message>
        <source>Delivery reports</source>
        <translation>İletim raporları</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Bilgisayar</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM kart</translation>
    </message>
    <message>
        <source>Data card</source>
        <translation>Veri kartı</translation>
    </message>
    <message>
        <source>Waiting to be sent</source>
        <translation>Gönderilmeyi bekliyor</translation>
    </message>
    <message>
        <source>Being sent</source>
        <translation>Gönderiliyor</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>İletildi</translation>
    </message>
    <message>
        <source>Not delivered yet, the network still tries</source>
        <translation>Henüz iletilmedi, ağ hâlâ deniyor</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>Parça %1: %2</translation>
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
        <translation>Henüz kimse yok</translation>
    </message>
    <message>
        <source>Unknown sender</source>
        <translation>Bilinmeyen gönderen</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>This message cannot be read</source>
        <translation>Bu mesaj okunamıyor</translation>
    </message>
    <message>
        <source>No text</source>
        <translation>Metin yok</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Gönderilmiş olabilir</translation>
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
        <source>&amp;Connect</source>
        <translation>&amp;Bağlan</translation>
    </message>
    <message>
        <source>&amp;Edit profile</source>
        <translation>Profili &amp;düzenle</translation>
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
    <name>PduError</name>
    <message>
        <source>there is nothing</source>
        <translation>hiçbir şey yok</translation>
    </message>
    <message>
        <source>this is no hexadecimal digit</source>
        <translation>bu bir onaltılık basamak değil</translation>
    </message>
    <message>
        <source>half an octet is missing</source>
        <translation>yarım bayt eksik</translation>
    </message>
    <message>
        <source>the message ends too early</source>
        <translation>mesaj erken bitiyor</translation>
    </message>
    <message>
        <source>the length goes past the end</source>
        <translation>uzunluk sonu aşıyor</translation>
    </message>
    <message>
        <source>this is no message of the expected kind</source>
        <translation>bu beklenen türde bir mesaj değil</translation>
    </message>
    <message>
        <source>the header is longer than the data</source>
        <translation>başlık veriden uzun</translation>
    </message>
    <message>
        <source>an element goes past the header</source>
        <translation>bir öğe başlığı aşıyor</translation>
    </message>
    <message>
        <source>there can be no such part</source>
        <translation>böyle bir parça olamaz</translation>
    </message>
    <message>
        <source>half a character is missing</source>
        <translation>yarım karakter eksik</translation>
    </message>
    <message>
        <source>The message cannot be read: %1 (%2, octet %3).</source>
        <translation>Mesaj okunamıyor: %1 (%2, bayt %3).</translation>
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
    <name>PppErrors</name>
    <message>
        <source>Pppd  has  detached,  or  otherwise  the  connection was successfully established and terminated at the peer&apos;s request.</source>
        <translation>Pppd arka plana geçti ya da bağlantı başarıyla kuruldu ve karşı tarafın isteğiyle sonlandırıldı.</translation>
    </message>
    <message>
        <source>An immediately fatal error of some kind occurred, such as an essential system call failing, or running out  of virtual memory.</source>
        <translation>Hemen sonlandıran bir hata oluştu; örneğin temel bir sistem çağrısı başarısız oldu ya da sanal bellek tükendi.</translation>
    </message>
    <message>
        <source>An error was detected in processing the options given, such as two mutually exclusive options being used.</source>
        <translation>Verilen seçenekler işlenirken bir hata bulundu; örneğin birbirini dışlayan iki seçenek kullanıldı.</translation>
    </message>
    <message>
        <source>Pppd is not setuid-root and the invoking user is not root.</source>
        <translation>Pppd setuid-root değil ve çalıştıran kullanıcı root değil.</translation>
    </message>
    <message>
        <source>The kernel does not support PPP, for example, the PPP kernel driver is not included or cannot be loaded.</source>
        <translation>Çekirdek PPP desteklemiyor; örneğin PPP çekirdek sürücüsü yok ya da yüklenemiyor.</translation>
    </message>
    <message>
        <source>Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal.</source>
        <translation>Pppd, SIGINT, SIGTERM ya da SIGHUP sinyali aldığı için sonlandı.</translation>
    </message>
    <message>
        <source>The serial port could not be locked.</source>
        <translation>Seri port kilitlenemedi.</translation>
    </message>
    <message>
        <source>The serial port could not be opened.</source>
        <translation>Seri port açılamadı.</translation>
    </message>
    <message>
        <source>The connect script failed (returned a non-zero exit status).</source>
        <translation>Bağlantı betiği başarısız oldu (sıfırdan farklı bir çıkış durumu döndürdü).</translation>
    </message>
    <message>
        <source>The command specified as the argument to the pty option could not be run.</source>
        <translation>pty seçeneğine verilen komut çalıştırılamadı.</translation>
    </message>
    <message>
        <source>The  PPP  negotiation failed, that is, it didn&apos;t reach the point where at least one network protocol (e.g. IP) was running.</source>
        <translation>PPP görüşmesi başarısız oldu; yani en az bir ağ protokolünün (ör. IP) çalıştığı noktaya ulaşılamadı.</translation>
    </message>
    <message>
        <source>The peer system failed (or refused) to authenticate itself.</source>
        <translation>Karşı sistem kimliğini doğrulayamadı (ya da doğrulamayı reddetti).</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because it was idle.</source>
        <translation>Bağlantı başarıyla kuruldu ve boşta kaldığı için sonlandırıldı.</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because the connect time limit was reached.</source>
        <translation>Bağlantı başarıyla kuruldu ve bağlantı süresi sınırına ulaşıldığı için sonlandırıldı.</translation>
    </message>
    <message>
        <source>Callback was negotiated and an incoming call should arrive shortly.</source>
        <translation>Geri arama kararlaştırıldı; kısa süre içinde bir arama gelmeli.</translation>
    </message>
    <message>
        <source>The link was terminated because the peer is not responding to echo requests.</source>
        <translation>Karşı taraf yankı isteklerine yanıt vermediği için bağlantı sonlandırıldı.</translation>
    </message>
    <message>
        <source>The link was terminated by the modem hanging up.</source>
        <translation>Modem hattı kapattığı için bağlantı sonlandırıldı.</translation>
    </message>
    <message>
        <source>The PPP negotiation failed because serial loopback was detected.</source>
        <translation>Seri geri döngü algılandığı için PPP görüşmesi başarısız oldu.</translation>
    </message>
    <message>
        <source>The init script failed (returned a non-zero exit status).</source>
        <translation>Başlatma betiği başarısız oldu (sıfırdan farklı bir çıkış durumu döndürdü).</translation>
    </message>
    <message>
        <source>We failed to authenticate ourselves to the peer.</source>
        <translation>Karşı tarafa kimliğimizi doğrulayamadık.</translation>
    </message>
</context>
<context>
    <name>ProfileChecks</name>
    <message>
        <source>The dial number may hold letters, digits and * # + , . - ( ), 80 at most.</source>
        <translation>Aranacak numara harf, rakam ve * # + , . - ( ) içerebilir; en fazla 80 karakter.</translation>
    </message>
    <message>
        <source>The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its ends, not be a single asterisk, and be 255 bytes long at most.</source>
        <translation>Kullanıcı adı tırnak işareti ya da ters eğik çizgi içeremez, süslü ayraçla başlayamaz, boşlukla başlayıp bitemez, tek bir yıldız işareti olamaz ve en fazla 255 bayt olabilir.</translation>
    </message>
    <message>
        <source>The password must not hold quotes, backslashes, a brace or &quot;@/&quot; at its beginning or blanks at its ends, and be 255 bytes long at most.</source>
        <translation>Parola tırnak işareti ya da ters eğik çizgi içeremez, süslü ayraçla ya da &quot;@/&quot; ile başlayamaz, boşlukla başlayıp bitemez ve en fazla 255 bayt olabilir.</translation>
    </message>
    <message>
        <source>The name of the profile is too long.</source>
        <translation>Profilin adı çok uzun.</translation>
    </message>
    <message>
        <source>The APN may hold letters, digits and . - _ @ : /, 100 at most.</source>
        <translation>APN harf, rakam ve . - _ @ : / içerebilir; en fazla 100 karakter.</translation>
    </message>
    <message>
        <source>The address mode may hold letters and digits only.</source>
        <translation>Adres kipi yalnızca harf ve rakam içerebilir.</translation>
    </message>
    <message>
        <source>The beginning of the IMSI may hold 15 digits at most.</source>
        <translation>IMSI başlangıcı en fazla 15 rakam içerebilir.</translation>
    </message>
    <message>
        <source>The page to open must be an address of the web.</source>
        <translation>Açılacak sayfa bir web adresi olmalı.</translation>
    </message>
    <message>
        <source>A value holds a line break or another control character, or the text &quot;-|-&quot;.</source>
        <translation>Bir değer satır sonu ya da başka bir denetim karakteri veya &quot;-|-&quot; metnini içeriyor.</translation>
    </message>
    <message>
        <source>The Config Filename must be filled.</source>
        <translation>Yapılandırma adı doldurulmalı.</translation>
    </message>
    <message>
        <source>The Dial Number is empty!</source>
        <translation>Aranacak numara boş!</translation>
    </message>
    <message>
        <source>The APN is empty!</source>
        <translation>APN boş!</translation>
    </message>
    <message>
        <source>Invalid PDP!Please check it!</source>
        <translation>PDP geçersiz! Lütfen denetleyin!</translation>
    </message>
    <message>
        <source>Invalid Preferred DNS!Please check it!</source>
        <translation>Tercih edilen DNS geçersiz! Lütfen denetleyin!</translation>
    </message>
    <message>
        <source>Invalid Alternative DNS!Please check it!</source>
        <translation>Alternatif DNS geçersiz! Lütfen denetleyin!</translation>
    </message>
    <message>
        <source>The card&apos;s data port has a name that cannot be used.</source>
        <translation>Kartın veri portunun adı kullanılamaz.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>The profiles in %1 cannot be read.</source>
        <translation>%1 içindeki profiller okunamıyor.</translation>
    </message>
    <message>
        <source>%1 cannot be read, and cannot be kept beside.</source>
        <translation>%1 okunamıyor ve saklanamıyor.</translation>
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
    <name>Recipients</name>
    <message>
        <source>&quot;%1&quot; is no number: &quot;%2&quot; cannot be dialled.</source>
        <translation>&quot;%1&quot; bir numara değil: &quot;%2&quot; çevrilemez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number: the digits are missing.</source>
        <translation>&quot;%1&quot; bir numara değil: rakamlar eksik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: a number has %2 characters at most.</source>
        <translation>&quot;%1&quot; çok uzun: bir numara en fazla %2 karakter olabilir.</translation>
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
    <message>
        <source>The rights of %1 cannot be set</source>
        <translation>%1 izinleri ayarlanamıyor</translation>
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
    <name>SmsFiling</name>
    <message>
        <source>The text is compressed and cannot be shown.</source>
        <translation>Metin sıkıştırılmış ve gösterilemiyor.</translation>
    </message>
    <message>
        <source>The message holds data and no text.</source>
        <translation>Mesajda metin değil, veri var.</translation>
    </message>
    <message>
        <source>The card lists the message without its content.</source>
        <translation>Kart mesajı içeriği olmadan listeliyor.</translation>
    </message>
    <message>
        <source>A message came in without its content.</source>
        <translation>İçeriği olmayan bir mesaj geldi.</translation>
    </message>
    <message>
        <source>Voice messages are waiting for you.</source>
        <translation>Sizi bekleyen sesli mesajlar var.</translation>
    </message>
    <message>
        <source>No voice messages are waiting any more.</source>
        <translation>Artık bekleyen sesli mesaj yok.</translation>
    </message>
    <message>
        <source>Faxes are waiting for you.</source>
        <translation>Sizi bekleyen fakslar var.</translation>
    </message>
    <message>
        <source>No faxes are waiting any more.</source>
        <translation>Artık bekleyen faks yok.</translation>
    </message>
    <message>
        <source>E-mails are waiting for you.</source>
        <translation>Sizi bekleyen e-postalar var.</translation>
    </message>
    <message>
        <source>No e-mails are waiting any more.</source>
        <translation>Artık bekleyen e-posta yok.</translation>
    </message>
    <message>
        <source>Messages of another kind are waiting for you.</source>
        <translation>Sizi bekleyen başka türde mesajlar var.</translation>
    </message>
    <message>
        <source>No messages of another kind are waiting any more.</source>
        <translation>Artık bekleyen başka türde mesaj yok.</translation>
    </message>
</context>
<context>
    <name>SmsJobs</name>
    <message>
        <source>The card did not answer.</source>
        <translation>Kart yanıt vermedi.</translation>
    </message>
    <message>
        <source>The card does not exchange messages as PDUs: %1</source>
        <translation>Kart mesajları PDU olarak alıp vermiyor: %1</translation>
    </message>
    <message>
        <source>New messages will not be announced: %1</source>
        <translation>Yeni mesajlar bildirilmeyecek: %1</translation>
    </message>
    <message>
        <source>The message has no content that the card could keep.</source>
        <translation>Mesajın, kartın saklayabileceği bir içeriği yok.</translation>
    </message>
    <message>
        <source>The card names the message without its content.</source>
        <translation>Kart mesajı içeriği olmadan bildiriyor.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number, %1, is too long.</source>
        <translation>Mesaj merkezinin numarası (%1) çok uzun.</translation>
    </message>
</context>
<context>
    <name>Traffic</name>
    <message>
        <source>%1/s</source>
        <translation>%1/sn</translation>
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
        <translation>Dün, %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>TrafficSentences</name>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 alındı, %2 gönderildi</translation>
    </message>
    <message>
        <source>%1; %2 of it roaming</source>
        <translation>%1; bunun %2 kadarı dolaşımda</translation>
    </message>
    <message>
        <source>%1 of %2 used (%3&#xa0;%)</source>
        <translation>%1 / %2 kullanıldı (%%3)</translation>
    </message>
    <message>
        <source>%1 of %2 roaming (%3&#xa0;%)</source>
        <translation>%1 / %2 dolaşımda (%%3)</translation>
    </message>
    <message>
        <source>Too few days are known to say what it will be by %1.</source>
        <translation>%1 tarihine kadar ne olacağını söylemek için bilinen gün sayısı çok az.</translation>
    </message>
    <message>
        <source>The volume is used up. A new one begins on %1.</source>
        <translation>Kota doldu. Yenisi %1 tarihinde başlar.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2.</source>
        <translation>Bu gidişle %2 tarihine kadar yaklaşık %1 olur.</translation>
    </message>
    <message>
        <source>As it goes, the volume will be used up on %1; by %2 it would be about %3.</source>
        <translation>Bu gidişle kota %1 tarihinde dolar; %2 tarihine kadar yaklaşık %3 olur.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2: the volume is enough.</source>
        <translation>Bu gidişle %2 tarihine kadar yaklaşık %1 olur: kota yeterli.</translation>
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
        <source>&amp;Quit</source>
        <translation>Çı&amp;k</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>B&amp;ağlan</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ka&amp;pat</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>Bağlantıyı ke&amp;s</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>Bağlan&amp;mayı iptal et</translation>
    </message>
    <message>
        <source>Disconnect and quit?</source>
        <translation>Bağlantı kesilip çıkılsın mı?</translation>
    </message>
    <message>
        <source>Disconnect and &amp;quit</source>
        <translation>Bağlantıyı kes &amp;ve çık</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
</context>
<context>
    <name>WvdialProcess</name>
    <message>
        <source>The dialler is running already.</source>
        <translation>Çevirici zaten çalışıyor.</translation>
    </message>
    <message>
        <source>The program wvdial is missing. Please install it.</source>
        <translation>wvdial programı eksik. Lütfen kurun.</translation>
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
        <translation>Kutular</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Yazışmalar</translation>
    </message>
    <message>
        <source>Broadcasts</source>
        <translation>Yayınlar</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>What is used of the places of a SIM card: &quot;SIM card, 10 of 20&quot;</extracomment>
        <translation>%1, %2/%3</translation>
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
        <translation>&amp;Kanallar</translation>
    </message>
    <message>
        <source>Numbers and ranges, as 50, 4370-4372</source>
        <translation>Numaralar ve aralıklar, ör. 50, 4370-4372</translation>
    </message>
    <message>
        <source>L&amp;isten</source>
        <translation>&amp;Dinle</translation>
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
    <name>corva::CardPlaces</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is nearly full: %1</source>
        <translation>SIM kartın mesaj belleği neredeyse dolu: %1</translation>
    </message>
    <message>
        <source>The card&apos;s memory for messages is nearly full: %1</source>
        <translation>Kartın mesaj belleği neredeyse dolu: %1</translation>
    </message>
    <message>
        <source>There is no card that takes messages.</source>
        <translation>Mesaj alan bir kart yok.</translation>
    </message>
    <message>
        <source>The messages could not be written to disk and stay on the card.</source>
        <translation>Mesajlar diske yazılamadı ve kartta kalıyor.</translation>
    </message>
    <message>
        <source>Only short messages can be kept on the card.</source>
        <translation>Kartta yalnızca kısa mesajlar saklanabilir.</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>Kart artık yok.</translation>
    </message>
    <message>
        <source>The message was not written to the SIM: %1</source>
        <translation>Mesaj SIM karta yazılmadı: %1</translation>
    </message>
    <message>
        <source>The message was not written to the card: %1</source>
        <translation>Mesaj karta yazılmadı: %1</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is kept on the computer as well.</source>
        <translation>Bir mesaj karttan silinemedi. Bilgisayarda da saklanıyor.</translation>
    </message>
    <message>
        <source>The message is being sent.</source>
        <translation>Mesaj gönderiliyor.</translation>
    </message>
    <message>
        <source>It is for several people, and the card keeps messages for one.</source>
        <translation>Birden çok kişi için; kart ise tek kişilik mesajları saklar.</translation>
    </message>
    <message>
        <source>What the card lists without its content stays where it is.</source>
        <translation>Kartın içeriksiz listelediği, olduğu yerde kalır.</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is in both places now.</source>
        <translation>Bir mesaj karttan silinemedi. Şimdi her iki yerde de var.</translation>
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
    <name>corva::ChoiceDialog</name>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
</context>
<context>
    <name>corva::Class0Dialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>Ka&amp;pat</translation>
    </message>
    <message>
        <source>Immediate message</source>
        <translation>Flaş mesaj</translation>
    </message>
    <message>
        <source>&amp;Keep in the inbox</source>
        <translation>&amp;Gelen kutusunda sakla</translation>
    </message>
    <message>
        <source>%1 :
 %2</source>
        <translation>%1:
 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n tane daha</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Sonraki</translation>
    </message>
</context>
<context>
    <name>corva::Composer</name>
    <message>
        <source>New message</source>
        <translation>Yeni mesaj</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Kime</translation>
    </message>
    <message>
        <source>Delivery &amp;report</source>
        <translation>İletim &amp;raporu</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Gönder</translation>
    </message>
    <message>
        <source>Numbers, with commas between them</source>
        <translation>Virgülle ayrılmış numaralar</translation>
    </message>
    <message>
        <source>Text of the message</source>
        <translation>Mesajın metni</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>You are told when the message was delivered</source>
        <translation>Mesaj iletilince size bildirilir</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>Şa&amp;blonlar</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Vazgeç</translation>
    </message>
    <message>
        <source>Moves the draft to the deleted messages</source>
        <translation>Taslağı silinmiş mesajlara taşır</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Taslak</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The templates could not be stored: %1</source>
        <translation>Şablonlar kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>&amp;Keep this text as a template</source>
        <translation>Bu &amp;metni şablon olarak sakla</translation>
    </message>
    <message>
        <source>&amp;Remove a template</source>
        <translation>Şablon ka&amp;ldır</translation>
    </message>
    <message>
        <source>Say whom the message is for.</source>
        <translation>Mesajın kime olduğunu belirtin.</translation>
    </message>
    <message>
        <source>The message says nothing yet.</source>
        <translation>Mesaj henüz boş.</translation>
    </message>
</context>
<context>
    <name>corva::Config</name>
    <message>
        <source>New profile</source>
        <translation>Yeni profil</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>Profili düzenle</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Ka&amp;pat</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Profile &amp;name</source>
        <translation>Profil a&amp;dı</translation>
    </message>
    <message>
        <source>&amp;Dial number</source>
        <translation>A&amp;ranacak numara</translation>
    </message>
    <message>
        <source>Connect as a &amp;modem or a network card</source>
        <translation>&amp;Modem ya da ağ kartı olarak bağlan</translation>
    </message>
    <message>
        <source>As the card can</source>
        <translation>Kartın desteklediği gibi</translation>
    </message>
    <message>
        <source>Modem (dial-up)</source>
        <translation>Modem (çevirmeli)</translation>
    </message>
    <message>
        <source>Network card</source>
        <translation>Ağ kartı</translation>
    </message>
    <message>
        <source>For S&amp;IMs whose IMSI begins with</source>
        <translation>IMSI&apos;si şununla başlayan &amp;SIM&apos;ler için</translation>
    </message>
    <message>
        <source>any</source>
        <translation>tümü</translation>
    </message>
    <message>
        <source>Access point (APN)</source>
        <translation>Erişim noktası (APN)</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Erişim noktası</translation>
    </message>
    <message>
        <source>&amp;This one</source>
        <translation>B&amp;u</translation>
    </message>
    <message>
        <source>&amp;By the network</source>
        <translation>Ağ s&amp;eçer</translation>
    </message>
    <message>
        <source>Name of the access &amp;point</source>
        <translation>Er&amp;işim noktasının adı</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Kimlik doğrulama</translation>
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
        <translation>&amp;Yok</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Kullanı&amp;cı adı</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Paro&amp;la</translation>
    </message>
    <message>
        <source>As&amp;k for them when connecting</source>
        <translation>Bağlanırken s&amp;or</translation>
    </message>
    <message>
        <source>Keep them in the profi&amp;le</source>
        <translation>Pro&amp;filde sakla</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP adresi</translation>
    </message>
    <message>
        <source>From the network (d&amp;ynamic)</source>
        <translation>Ağın &amp;verdiği (dinamik)</translation>
    </message>
    <message>
        <source>Fi&amp;xed</source>
        <translation>Sabi&amp;t</translation>
    </message>
    <message>
        <source>Fixed add&amp;ress</source>
        <translation>Sa&amp;bit adres</translation>
    </message>
    <message>
        <source>Name servers (DNS)</source>
        <translation>Ad sunucuları (DNS)</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Ad sunucuları</translation>
    </message>
    <message>
        <source>&amp;From the network</source>
        <translation>Ağdan &amp;gelenler</translation>
    </message>
    <message>
        <source>Th&amp;ese</source>
        <translation>Bu&amp;nlar</translation>
    </message>
    <message>
        <source>Preferred (&amp;1)</source>
        <translation>Tercih edilen (&amp;1)</translation>
    </message>
    <message>
        <source>Alternative (&amp;2)</source>
        <translation>Alternatif (&amp;2)</translation>
    </message>
    <message>
        <source>Once connected</source>
        <translation>Bağlanınca</translation>
    </message>
    <message>
        <source>Pa&amp;ge to open in the browser</source>
        <translation>Tarayıcıda açılacak &amp;web sayfası</translation>
    </message>
    <message>
        <source>This profile came with the program and stays as it is.</source>
        <translation>Bu profil programla birlikte geldi ve değiştirilemez.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionFacts</name>
    <message>
        <source>This connection</source>
        <translation>Bu bağlantı</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafik</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP adresi</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Ağ geçidi</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Ad sunucuları</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Alma hızı</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Gönderme hızı</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Alınan</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gönderilen</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionHead</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Neden çevrimdışıyım?</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>Bağlantıyı &amp;kes</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Bağlan</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>Başlatılıyor</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Bağlantı kesiliyor</translation>
    </message>
    <message>
        <source>Status: Connected</source>
        <translation>Durum: Bağlı</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Durum: Bağlı değil</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionService</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Arama sırasında yalnızca UMTS ağında bağlanılabilir!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>Aygıtın bağlantısı kesilmiş ya da aygıt kullanılamıyor.</translation>
    </message>
    <message>
        <source>Can&apos;t open deault config file!</source>
        <translation>Varsayılan profil dosyası açılamıyor!</translation>
    </message>
    <message>
        <source>This card has no network interface. Please choose dial-up in the profile.</source>
        <translation>Bu kartın ağ arayüzü yok. Lütfen profilde çevirmeli bağlantıyı seçin.</translation>
    </message>
    <message>
        <source>The card has no data port that could be dialled on.</source>
        <translation>Kartın çevirme yapılabilecek bir veri bağlantı noktası yok.</translation>
    </message>
    <message>
        <source>There is no data transported recently. Auto Disconnect will close your internet link.</source>
        <translation>Son zamanlarda veri aktarılmadı. Otomatik kesme internet bağlantınızı kapatacak.</translation>
    </message>
    <message>
        <source>An earlier connection was cut off and has left its own settings in files of the system. Start Corva again and enter the password: it puts them back.</source>
        <translation>Önceki bir bağlantı kesildi ve kendi ayarlarını sistem dosyalarında bıraktı. Corva’yı yeniden başlatıp parolayı girin: dosyaları eski hâline getirir.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionSettings</name>
    <message>
        <source>Automatic connection</source>
        <translation>Otomatik bağlantı</translation>
    </message>
    <message>
        <source>&amp;Connect by itself when the card is ready</source>
        <translation>Kart hazır olunca kendiliğinden &amp;bağlan</translation>
    </message>
    <message>
        <source>&amp;Attempts</source>
        <translation>&amp;Deneme sayısı</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> sn</translation>
    </message>
    <message>
        <source>When a connection breaks off</source>
        <translation>Bağlantı kopunca</translation>
    </message>
    <message>
        <source>&amp;Dial again</source>
        <translation>&amp;Yeniden çevir</translation>
    </message>
    <message>
        <source>A&amp;ttempts</source>
        <translation>D&amp;eneme sayısı</translation>
    </message>
    <message>
        <source>&amp;First one after</source>
        <translation>İ&amp;lk denemeden önce</translation>
    </message>
    <message>
        <source>Each f&amp;urther one after</source>
        <translation>&amp;Sonraki denemelerden önce</translation>
    </message>
    <message>
        <source>When nothing is carried</source>
        <translation>Veri aktarılmayınca</translation>
    </message>
    <message>
        <source>D&amp;isconnect</source>
        <translation>Bağlantıyı &amp;kes</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>Bekleme sü&amp;resi</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> dk</translation>
    </message>
    <message>
        <source>Dialling</source>
        <translation>Çevirme</translation>
    </message>
    <message>
        <source>&amp;Longest wait for a link</source>
        <translation>Bağlantı için en uzun bekle&amp;me</translation>
    </message>
    <message>
        <source>E&amp;xplain a failure by the exit status of pppd</source>
        <translation>Başarısızlığı &amp;pppd çıkış durumuyla açıkla</translation>
    </message>
    <message>
        <source>&amp;Open the profile&apos;s page once connected</source>
        <translation>Bağlanınca profilin sayfasını &amp;aç</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
</context>
<context>
    <name>corva::Connector</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Arama sırasında yalnızca UMTS ağında bağlanılabilir!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>Aygıtın bağlantısı kesildi ya da aygıt kullanılamıyor.</translation>
    </message>
    <message>
        <source>You are connecting to a roaming network. Would you like to continue?</source>
        <translation>Dolaşımdaki bir ağa bağlanıyorsunuz. Devam edilsin mi?</translation>
    </message>
    <message>
        <source>Which access is yours?</source>
        <translation>Hangi erişim sizin?</translation>
    </message>
    <message>
        <source>Whose SIM card is it?</source>
        <translation>SIM kart hangi operatörün?</translation>
    </message>
    <message>
        <source>%1 has several. Choose yours; the choice is kept as a profile.</source>
        <translation>%1 birden çok erişim sunuyor. Sizinkini seçin; seçim profil olarak saklanır.</translation>
    </message>
    <message>
        <source>Several operators share this network. Choose yours; the choice is kept as a profile.</source>
        <translation>Bu ağı birden çok operatör paylaşıyor. Sizinkini seçin; seçim profil olarak saklanır.</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Bağlan</translation>
    </message>
    <message>
        <source>Which profile?</source>
        <translation>Hangi profil?</translation>
    </message>
    <message>
        <source>It is taken from now on.</source>
        <translation>Bundan sonra bu kullanılır.</translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1, %n okunmamış</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::CredentialsDialog</name>
    <message>
        <source>&amp;User name</source>
        <translation>&amp;Kullanıcı adı</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Parola</translation>
    </message>
    <message>
        <source>&amp;Keep them and do not ask again</source>
        <translation>Sakla ve bir daha &amp;sorma</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İp&amp;tal</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Bağlan</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; asks for them at each connection.</source>
        <translation>&quot;%1&quot; profili bunları her bağlantıda sorar.</translation>
    </message>
    <message>
        <source>User name and password</source>
        <translation>Kullanıcı adı ve parola</translation>
    </message>
</context>
<context>
    <name>corva::DataLink</name>
    <message>
        <source>Fail to connect! Link ppp0 wasn&apos;t built !</source>
        <translation>Bağlanılamadı! ppp0 bağlantısı kurulamadı!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>Aygıtın bağlantısı kesilmiş ya da aygıt kullanılamıyor.</translation>
    </message>
    <message>
        <source>The card did not accept the access point &quot;%1&quot;. Please check the APN of the profile.</source>
        <translation>Kart &quot;%1&quot; erişim noktasını kabul etmedi. Lütfen profilin APN değerini denetleyin.</translation>
    </message>
</context>
<context>
    <name>corva::DaysChart</name>
    <message>
        <source>Volume of each day</source>
        <translation>Günlük veri hacmi</translation>
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
        <translation>Önceki dönem</translation>
    </message>
    <message>
        <source>Later period</source>
        <translation>Sonraki dönem</translation>
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
        <translation>Bu dönemde veri aktarılmadı.</translation>
    </message>
    <message>
        <source>In all: %1</source>
        <translation>Toplam: %1</translation>
    </message>
</context>
<context>
    <name>corva::DhcpClient</name>
    <message>
        <source>There is no such network interface.</source>
        <translation>Böyle bir ağ arayüzü yok.</translation>
    </message>
    <message>
        <source>There is no DHCP client. Please install isc-dhcp-client.</source>
        <translation>DHCP istemcisi yok. Lütfen isc-dhcp-client paketini kurun.</translation>
    </message>
    <message>
        <source>The network gave no address.</source>
        <translation>Ağ adres vermedi.</translation>
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
    <name>corva::DialUpLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>Bağlantı başarısız oldu!</translation>
    </message>
    <message>
        <source>Fail to connect! exit code is</source>
        <translation>Bağlanılamadı! Çıkış kodu</translation>
    </message>
    <message>
        <source>The card&apos;s data port cannot be opened: %1</source>
        <translation>Kartın veri bağlantı noktası açılamıyor: %1</translation>
    </message>
    <message>
        <source>The card does not answer on its data port.</source>
        <translation>Kart, veri bağlantı noktasında yanıt vermiyor.</translation>
    </message>
    <message>
        <source>The card refused a command on its data port.</source>
        <translation>Kart, veri bağlantı noktasında bir komutu reddetti.</translation>
    </message>
</context>
<context>
    <name>corva::DialWork</name>
    <message>
        <source>You may not use this card&apos;s data port.</source>
        <translation>Bu kartın veri portunu kullanma izniniz yok.</translation>
    </message>
    <message>
        <source>The network interface does not belong to the card.</source>
        <translation>Ağ arayüzü bu karta ait değil.</translation>
    </message>
    <message>
        <source>The network interface has no address from here.</source>
        <translation>Ağ arayüzünün buradan verilmiş adresi yok.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>DNS geçersiz!</translation>
    </message>
    <message>
        <source>The dialler could not be started.</source>
        <translation>Çevirici başlatılamadı.</translation>
    </message>
    <message>
        <source>The dialler is running already.</source>
        <translation>Çevirici zaten çalışıyor.</translation>
    </message>
    <message>
        <source>The connection was cancelled.</source>
        <translation>Bağlanma iptal edildi.</translation>
    </message>
    <message>
        <source>The route helper is not run: others may write it.</source>
        <translation>Yönlendirme yardımcısı çalıştırılmıyor: başkaları değiştirebilir.</translation>
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
    <name>corva::FormField</name>
    <message>
        <source>Show the password</source>
        <translation>Parolayı göster</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Parolayı gizle</translation>
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
    <name>corva::HelperBackend</name>
    <message>
        <source>Connecting needs an administrator&apos;s rights, and the program &quot;pkexec&quot;, which asks for them, is missing. Please install it.</source>
        <translation>Bağlanmak için yönetici izni gerekir, ama bu izni isteyen &quot;pkexec&quot; programı eksik. Lütfen kurun.</translation>
    </message>
    <message>
        <source>The program that dials has ended unexpectedly. Please try again.</source>
        <translation>Çeviren program beklenmedik biçimde sonlandı. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>The right to connect was not given. Please connect again and enter the password.</source>
        <translation>Bağlanma izni verilmedi. Lütfen yeniden bağlanıp parolayı girin.</translation>
    </message>
    <message>
        <source>The right to connect could not be asked for. Ask an administrator to run &quot;tools/install-dialhelper&quot;, or start Corva in a desktop session.</source>
        <translation>Bağlanma izni istenemedi. Bir yöneticiden &quot;tools/install-dialhelper&quot; çalıştırmasını isteyin ya da Corva&apos;yı bir masaüstü oturumunda başlatın.</translation>
    </message>
    <message>
        <source>The program that dials could not be started. Ask an administrator to run &quot;tools/install-dialhelper&quot;.</source>
        <translation>Çeviren program başlatılamadı. Bir yöneticiden &quot;tools/install-dialhelper&quot; çalıştırmasını isteyin.</translation>
    </message>
</context>
<context>
    <name>corva::HistoryModel</name>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Alınan</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gönderilen</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Dolaşım</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>From %1
to %2</source>
        <translation>Başlangıç: %1
Bitiş: %2</translation>
    </message>
</context>
<context>
    <name>corva::HistoryTab</name>
    <message>
        <source>Delete &amp;all</source>
        <translation>&amp;Tümünü sil</translation>
    </message>
    <message>
        <source>Search the history</source>
        <translation>Geçmişte ara</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Ara (%1)</translation>
    </message>
    <message>
        <source>Connections that are over</source>
        <translation>Biten bağlantılar</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %n entries</source>
        <translation>
            <numerusform>%n kaydı &amp;sil</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete entry</source>
        <translation>Kaydı &amp;sil</translation>
    </message>
    <message>
        <source>No connection was made yet. Each one is listed here once it is over.</source>
        <translation>Henüz bağlantı kurulmadı. Her bağlantı bitince burada listelenir.</translation>
    </message>
    <message>
        <source>No entry has all of these words.</source>
        <translation>Bu sözcüklerin tümünü içeren kayıt yok.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>%n kayıt silindi.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
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
    <name>corva::MessageActions</name>
    <message>
        <source>&amp;Reply</source>
        <translation>Y&amp;anıtla</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Düzenle</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>İ&amp;let</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Put &amp;back</source>
        <translation>Geri &amp;koy</translation>
    </message>
    <message>
        <source>Send a&amp;gain</source>
        <translation>Yeniden &amp;gönder</translation>
    </message>
    <message>
        <source>Mark as rea&amp;d</source>
        <translation>&amp;Okundu olarak işaretle</translation>
    </message>
    <message>
        <source>Mark as &amp;unread</source>
        <translation>Ok&amp;unmadı olarak işaretle</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>&amp;Metni kopyala</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>&amp;Dışa aktar…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Ya&amp;zdır…</translation>
    </message>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>%n mesajı &amp;sil</numerusform>
        </translation>
    </message>
    <message>
        <source>Cop&amp;y to</source>
        <translation>Şuraya ko&amp;pyala</translation>
    </message>
    <message>
        <source>&amp;Move to</source>
        <translation>Şuraya &amp;taşı</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>%n mesaj silindi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>%n mesaj kalıcı olarak silinsin mi?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>%n m&amp;esajı sil</numerusform>
        </translation>
    </message>
    <message>
        <source>The message may have gone out already. Send it again?</source>
        <translation>Mesaj zaten gönderilmiş olabilir. Yeniden gönderilsin mi?</translation>
    </message>
</context>
<context>
    <name>corva::MessageBrowser</name>
    <message>
        <source>No message has come yet.</source>
        <translation>Henüz mesaj gelmedi.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent.</source>
        <translation>Gönderilmeyi bekleyen mesaj yok.</translation>
    </message>
    <message>
        <source>You have sent no message yet.</source>
        <translation>Henüz mesaj göndermediniz.</translation>
    </message>
    <message>
        <source>No drafts. What you write is kept here until you send it.</source>
        <translation>Taslak yok. Yazdıklarınız, siz gönderene kadar burada saklanır.</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>Silinen mesaj yok.</translation>
    </message>
    <message>
        <source>No delivery report has come yet.</source>
        <translation>Henüz iletim raporu gelmedi.</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Yazışmalar</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mesajlar</translation>
    </message>
    <message>
        <source>Reading the messages…</source>
        <translation>Mesajlar okunuyor…</translation>
    </message>
    <message>
        <source>No message has all of these words.</source>
        <translation>Bu sözcüklerin tümünü içeren mesaj yok.</translation>
    </message>
    <message>
        <source>Nobody has written yet. Press Ctrl+N to write first.</source>
        <translation>Henüz kimse yazmadı. İlk yazan olmak için Ctrl+N tuşlarına basın.</translation>
    </message>
    <message>
        <source>No broadcast has come yet. Choose the channels to listen to above.</source>
        <translation>Henüz yayın gelmedi. Dinlenecek kanalları yukarıdan seçin.</translation>
    </message>
    <message>
        <source>Reading the %1…</source>
        <translation>Okunuyor: %1…</translation>
    </message>
    <message>
        <source>No message is kept there.</source>
        <translation>Burada saklanan mesaj yok.</translation>
    </message>
    <message>
        <source>It was not read yet. Is a card plugged in?</source>
        <translation>Henüz okunmadı. Kart takılı mı?</translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>%n okunmamış mesaj var.</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mesajlar</translation>
    </message>
    <message>
        <source>New message from %1</source>
        <translation>Yeni mesaj, gönderen: %1</translation>
    </message>
    <message>
        <source>Broadcast on channel %1</source>
        <translation>%1 kanalında yayın</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Gönderilen: %1, başarısız: %2</translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message>
        <source>Export messages</source>
        <translation>Mesajları dışa aktar</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>CSV tabloları (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>%n mesaj %1 dosyasına yazıldı.</numerusform>
        </translation>
    </message>
    <message>
        <source>The messages could not be written: %1</source>
        <translation>Mesajlar yazılamadı: %1</translation>
    </message>
    <message>
        <source>Import messages</source>
        <translation>Mesajları içe aktar</translation>
    </message>
    <message>
        <source>Exported messages (*.csv *.json)</source>
        <translation>Dışa aktarılmış mesajlar (*.csv *.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>%n mesaj eklendi.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>%n mesaj zaten buradaydı.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>%n mesaj okunamadı.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageListModel</name>
    <message>
        <source>Unread</source>
        <translation>Okunmamış</translation>
    </message>
</context>
<context>
    <name>corva::MessageService</name>
    <message>
        <source>The card did not take the broadcast channels: %1</source>
        <translation>Kart yayın kanallarını kabul etmedi: %1</translation>
    </message>
    <message>
        <source>The text is too long for one message.</source>
        <translation>Metin tek bir mesaj için çok uzun.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was not stored: %1</source>
        <translation>Mesaj merkezinin numarası kaydedilmedi: %1</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>Kart artık yok.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was stored.</source>
        <translation>Mesaj merkezinin numarası kaydedildi.</translation>
    </message>
</context>
<context>
    <name>corva::MessageSettings</name>
    <message>
        <source>Sending</source>
        <translation>Gönderme</translation>
    </message>
    <message>
        <source>The network &amp;tries for</source>
        <translation>Ağın &amp;deneme süresi</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 saat</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 saat</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 hafta</translation>
    </message>
    <message>
        <source>As long as it may</source>
        <translation>Olabildiğince uzun</translation>
    </message>
    <message>
        <source>National &amp;letters</source>
        <translation>&amp;Ulusal harfler</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkçe</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>İspanyolca</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portekizce</translation>
    </message>
    <message>
        <source>&amp;Ask for a report when a message is delivered</source>
        <translation>Mesaj iletilince &amp;rapor iste</translation>
    </message>
    <message>
        <source>Keeping</source>
        <translation>Saklama</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Bu bilgisayarda</translation>
    </message>
    <message>
        <source>On the SIM card</source>
        <translation>SIM kartta</translation>
    </message>
    <message>
        <source>On the data card</source>
        <translation>Veri kartında</translation>
    </message>
    <message>
        <source>Where the network says</source>
        <translation>Ağın belirttiği yerde</translation>
    </message>
    <message>
        <source>&amp;New messages are kept</source>
        <translation>&amp;Yeni mesajların saklandığı yer</translation>
    </message>
    <message>
        <source>The data card&apos;s o&amp;wn memory is used, too</source>
        <translation>Veri kartının &amp;kendi belleğini de kullan</translation>
    </message>
    <message>
        <source>Delete &amp;read messages from a full SIM card</source>
        <translation>Dolan &amp;SIM karttan okunmuş mesajları sil</translation>
    </message>
    <message>
        <source>What you are told</source>
        <translation>Size bildirilenler</translation>
    </message>
    <message>
        <source>&amp;Unread messages, when the program starts</source>
        <translation>&amp;Okunmamış mesajlar, program başlarken</translation>
    </message>
    <message>
        <source>&amp;Delivery reports, in a box when they come</source>
        <translation>İletim ra&amp;porları, gelince bir pencerede</translation>
    </message>
    <message>
        <source>Delivery reports, in a &amp;folder of their own</source>
        <translation>İletim raporları, ayrı bir k&amp;lasörde</translation>
    </message>
    <message>
        <source>Messages that cells &amp;broadcast to everybody</source>
        <translation>&amp;Hücrelerin herkese yayınladığı mesajlar</translation>
    </message>
    <message>
        <source>&amp;Immediate messages show</source>
        <translation>&amp;Flaş mesajlarda gösterilen</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> satır</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mesajlar</translation>
    </message>
</context>
<context>
    <name>corva::MonthsModel</name>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Alınan</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gönderilen</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Dolaşım</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Toplam</translation>
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
    <name>corva::NetworkCardLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>Bağlantı başarısız oldu!</translation>
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
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Şimdilik sorun yok; kart işini yapıyor.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Bir adım yolunda değil. Sonraki adımlar kendiliğinden gelir.</translation>
    </message>
    <message>
        <source>Everything from the socket to the internet is in order.</source>
        <translation>USB girişinden internete kadar her şey yolunda.</translation>
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
        <translation>Grafiğin gösterdiği</translation>
    </message>
    <message>
        <source>The last minute</source>
        <translation>Son dakika</translation>
    </message>
    <message>
        <source>The last 10 minutes</source>
        <translation>Son 10 dakika</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>This connection, %1</source>
        <translation>Bu bağlantı, %1</translation>
    </message>
    <message>
        <source>Last connection, %1</source>
        <translation>Son bağlantı, %1</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>None was made yet.</source>
        <translation>Henüz kurulmadı.</translation>
    </message>
    <message>
        <source>Days and months are not counted: the configuration turns it off.</source>
        <translation>Günler ve aylar sayılmıyor: yapılandırmada kapatılmış.</translation>
    </message>
    <message>
        <source>%1 Say in the settings, Traffic, what volume you have, to be warned in time.</source>
        <translation>%1 Zamanında uyarılmak için Ayarlar, Trafik sayfasında kotanızı belirtin.</translation>
    </message>
    <message>
        <source>Down %1 (filled), up %2 (dashed)</source>
        <translation>İndirme %1 (dolu), yükleme %2 (kesik çizgi)</translation>
    </message>
    <message>
        <source>The graph runs while a connection is up.</source>
        <translation>Grafik, bağlantı varken ilerler.</translation>
    </message>
</context>
<context>
    <name>corva::PlainTextView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Kopyala: %1</translation>
    </message>
</context>
<context>
    <name>corva::ProfileList</name>
    <message>
        <source>access point from the network</source>
        <translation>erişim noktası ağdan</translation>
    </message>
    <message>
        <source>%1, connects with it</source>
        <translation>%1, bununla bağlanılır</translation>
    </message>
    <message>
        <source>No profile yet</source>
        <translation>Henüz profil yok</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ekle</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Düzenle</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Si&amp;l</translation>
    </message>
    <message>
        <source>Make de&amp;fault</source>
        <translation>&amp;Varsayılan yap</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add a profile</source>
        <translation>Profil ekle</translation>
    </message>
    <message>
        <source>Connect with this profile from now on</source>
        <translation>Bundan sonra bu profille bağlan</translation>
    </message>
    <message>
        <source>Vi&amp;ew</source>
        <translation>&amp;Görüntüle</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>&quot;%1&quot; profili silinsin mi?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Connects with &quot;%1&quot; from now on.</source>
        <translation>Bundan sonra &quot;%1&quot; ile bağlanılır.</translation>
    </message>
</context>
<context>
    <name>corva::ProfileStore</name>
    <message>
        <source>There is a profile with this name already.</source>
        <translation>Bu adda bir profil zaten var.</translation>
    </message>
    <message>
        <source>There is no profile with this name.</source>
        <translation>Bu adda bir profil yok.</translation>
    </message>
    <message>
        <source>This profile may not be changed.</source>
        <translation>Bu profil değiştirilemez.</translation>
    </message>
    <message>
        <source>This profile may not be deleted.</source>
        <translation>Bu profil silinemez.</translation>
    </message>
</context>
<context>
    <name>corva::RateGraph</name>
    <message>
        <source>Graph of the rates</source>
        <translation>Hız grafiği</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 sn</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 dk</translation>
    </message>
    <message>
        <source>now</source>
        <translation>şimdi</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/sn</translation>
    </message>
</context>
<context>
    <name>corva::ReadingPane</name>
    <message>
        <source>De&amp;tails</source>
        <translation>Ayrın&amp;tılar</translation>
    </message>
    <message>
        <source>The message</source>
        <translation>Mesaj</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>  ·  </source>
        <translation>  ·  </translation>
    </message>
    <message>
        <source>%1 parts are here. The others are added when they come.</source>
        <translation>Gelen parçalar: %1. Ötekiler geldikçe eklenir.</translation>
    </message>
    <message>
        <source>Service centre: %1</source>
        <translation>Mesaj merkezi: %1</translation>
    </message>
    <message>
        <source>Arrived: %1</source>
        <translation>Geliş: %1</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>Kanal: %1</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>Parça %1: %2</translation>
    </message>
    <message>
        <source>It did not travel yet.</source>
        <translation>Henüz gönderilmedi.</translation>
    </message>
</context>
<context>
    <name>corva::SendBar</name>
    <message>
        <source>Sent parts</source>
        <translation>Gönderilen parçalar</translation>
    </message>
    <message>
        <source>&amp;Cancel sending</source>
        <translation>Göndermeyi i&amp;ptal et</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <source>Sending ...</source>
        <translation>Gönderiliyor...</translation>
    </message>
    <message>
        <source>Do you want to cancel sending the rest SMS?</source>
        <translation>Kalan SMS&apos;lerin gönderilmesi iptal edilsin mi?</translation>
    </message>
</context>
<context>
    <name>corva::SendQueue</name>
    <message>
        <source>The message could not be written to disk and is not sent.</source>
        <translation>Mesaj diske yazılamadı ve gönderilmiyor.</translation>
    </message>
    <message>
        <source>The message could not be written to disk.</source>
        <translation>Mesaj diske yazılamadı.</translation>
    </message>
    <message>
        <source>The alphabet&apos;s settings have changed since it was written.</source>
        <translation>Yazıldığından bu yana alfabe ayarları değişti.</translation>
    </message>
    <message>
        <source>The message to %1 was not sent: %2</source>
        <translation>%1 alıcısına mesaj gönderilmedi: %2</translation>
    </message>
    <message>
        <source>There is another SIM in the card. What waited was not sent.</source>
        <translation>Kartta başka bir SIM var. Bekleyenler gönderilmedi.</translation>
    </message>
    <message>
        <source>The message to %1 may have been sent: the card did not say.</source>
        <translation>%1 için mesaj gönderilmiş olabilir: kart bildirmedi.</translation>
    </message>
</context>
<context>
    <name>corva::ServiceCentreDialog</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Numara</translation>
    </message>
    <message>
        <source>Service centre</source>
        <translation>Mesaj merkezi</translation>
    </message>
    <message>
        <source>Every message goes through the operator&apos;s service centre. Its number is on the SIM card; change it only when your operator asks you to.</source>
        <translation>Her mesaj operatörün mesaj merkezinden geçer. Numarası SIM karttadır; yalnızca operatörünüz isterse değiştirin.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>One number is needed.</source>
        <translation>Bir numara gerekli.</translation>
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
    <name>corva::SmsReception</name>
    <message>
        <source>A new message could not be read from the card: %1</source>
        <translation>Yeni bir mesaj karttan okunamadı: %1</translation>
    </message>
    <message>
        <source>A new message could not be written to disk and stays on the card.</source>
        <translation>Yeni bir mesaj diske yazılamadı ve kartta kalıyor.</translation>
    </message>
    <message>
        <source>A delivery report could not be read from the card: %1</source>
        <translation>Bir iletim raporu karttan okunamadı: %1</translation>
    </message>
    <message>
        <source>Message was successfully sent to %1, in %2,at %3</source>
        <translation>Mesaj %1 alıcısına iletildi, gönderme: %2, iletim: %3</translation>
    </message>
    <message>
        <source>The message to %1: %2</source>
        <translation>%1 alıcısına mesaj: %2</translation>
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
    <name>corva::StatisticsStore</name>
    <message>
        <source>%1 could not be read in full.</source>
        <translation>%1 tam olarak okunamadı.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>%1 tam olarak okunamadı. İçindekiler %2 adıyla saklandı.</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>%1 kaldırılamıyor: %2</translation>
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
    <name>corva::TemplateStore</name>
    <message>
        <source>%1 cannot be read, and could not be kept beside.</source>
        <translation>%1 okunamıyor ve saklanamadı.</translation>
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
        <translation>Alınan: %1, %2</translation>
    </message>
    <message>
        <source>Written: %1, %2</source>
        <translation>Yazılan: %1, %2</translation>
    </message>
</context>
<context>
    <name>corva::ThreadPane</name>
    <message>
        <source>Show &amp;earlier messages</source>
        <translation>Önceki mesajları göste&amp;r</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>Ya&amp;z</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>Yazışma</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
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
    <name>corva::TrafficPage</name>
    <message>
        <source>E&amp;xport as CSV…</source>
        <translation>CSV olarak &amp;dışa aktar…</translation>
    </message>
    <message>
        <source>Writes the history to a file that spreadsheets read</source>
        <translation>Geçmişi hesap tablolarının okuduğu bir dosyaya yazar</translation>
    </message>
    <message>
        <source>Writes days and months to a file that spreadsheets read</source>
        <translation>Günleri ve ayları hesap tablolarının okuduğu bir dosyaya yazar</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Genel bakış</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>Gü&amp;nler</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Aylar</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Geç&amp;miş</translation>
    </message>
    <message>
        <source>Volume of each month</source>
        <translation>Aylık veri hacmi</translation>
    </message>
    <message>
        <source>Export the history</source>
        <translation>Geçmişi dışa aktar</translation>
    </message>
    <message>
        <source>Export days and months</source>
        <translation>Günleri ve ayları dışa aktar</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>CSV tabloları (*.csv)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>%1 dosyasına yazıldı.</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>Tablo yazılamadı: %1</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafik</translation>
    </message>
</context>
<context>
    <name>corva::TrafficService</name>
    <message>
        <source>%1 The connection is ended, as you set it in the settings, Traffic.</source>
        <translation>%1 Bağlantı, Ayarlar, Trafik sayfasında belirttiğiniz gibi kesiliyor.</translation>
    </message>
    <message>
        <source>Your volume of %1 until %2 is used up.</source>
        <translation>%2 tarihine kadarki %1 kotanız doldu.</translation>
    </message>
    <message>
        <source>Your volume of %1 for roaming until %2 is used up.</source>
        <translation>%2 tarihine kadarki %1 dolaşım kotanız doldu.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 until %3 are used up.</source>
        <translation>%3 tarihine kadarki %2 kotanızın kullanım oranı: %%1.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 for roaming until %3 are used up.</source>
        <translation>%3 tarihine kadarki %2 dolaşım kotanızın kullanım oranı: %%1.</translation>
    </message>
</context>
<context>
    <name>corva::TrafficSettingsPage</name>
    <message>
        <source>Your volume</source>
        <translation>Kotanız</translation>
    </message>
    <message>
        <source>&amp;Volume of a month</source>
        <translation>Aylık &amp;kota</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>While &amp;roaming</source>
        <translation>&amp;Dolaşımda</translation>
    </message>
    <message>
        <source>Counts with it</source>
        <translation>Kotaya dahil</translation>
    </message>
    <message>
        <source>It begins anew on &amp;day</source>
        <translation>Yenilenme &amp;günü</translation>
    </message>
    <message>
        <source>When it runs out</source>
        <translation>Kota dolunca</translation>
    </message>
    <message>
        <source>&amp;Warn at</source>
        <translation>&amp;Uyarı eşiği</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Birim: %1</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Hiçbir zaman</translation>
    </message>
    <message>
        <source>&amp;End the connection when the volume is used up</source>
        <translation>Kota dolunca &amp;bağlantıyı kes</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafik</translation>
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
    <message>
        <source>&amp;Disconnect</source>
        <translation>Bağlantıyı ke&amp;s</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>Bağlan&amp;mayı iptal et</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Bağlan</translation>
    </message>
</context>
<context>
    <name>corva::WirelessWindow</name>
    <message>
        <source>Plug the card in to connect.</source>
        <translation>Bağlanmak için kartı takın.</translation>
    </message>
    <message>
        <source>Connect goes by the profile &quot;%1&quot;.</source>
        <translation>Bağlantı &quot;%1&quot; profiliyle kurulur.</translation>
    </message>
    <message>
        <source>The settings of %1 are known: just connect.</source>
        <translation>%1 ayarları biliniyor: bağlanmanız yeterli.</translation>
    </message>
    <message>
        <source>The settings for this SIM card are known: connect, and say whose it is.</source>
        <translation>Bu SIM kartın ayarları biliniyor: bağlanın ve hangi operatörün olduğunu belirtin.</translation>
    </message>
    <message>
        <source>Add a profile with the access point that your operator has told you.</source>
        <translation>Operatörünüzün bildirdiği erişim noktasıyla bir profil ekleyin.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>İnternet</translation>
    </message>
</context>
</TS>
