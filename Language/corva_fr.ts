<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>Verrouillée, PIN requis</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>Bloquée, PUK requis</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Pas de carte SIM</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>Pas de recherche</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>Réseau d’origine</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Aucun service</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Appels d’urgence uniquement</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>Service complet</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Aucun service dans cette région</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>Économie d’énergie</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1&#xa0;dBm</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1, %2 barres sur 5</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Hors ligne&#xa0;: %1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Sur le réseau</translation>
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
        <translation>Avant de commencer</translation>
    </message>
    <message>
        <source>%1 connects this computer to a mobile network. What your operator charges for data, messages and calls is between you and your operator; abroad it can be much more than at home.</source>
        <translation>%1 connecte cet ordinateur à un réseau mobile. Ce que votre opérateur facture pour les données, les messages et les appels ne regarde que vous et votre opérateur ; à l’étranger, cela peut être beaucoup plus cher.</translation>
    </message>
    <message>
        <source>The traffic and the duration that are shown are measured on this computer. The operator&apos;s own count decides what you pay.</source>
        <translation>Le trafic et la durée affichés sont mesurés sur cet ordinateur. C’est le décompte de l’opérateur qui fait foi pour la facture.</translation>
    </message>
    <message>
        <source>The program is free software and comes without any warranty, as far as the law allows.</source>
        <translation>Ce programme est un logiciel libre, fourni sans aucune garantie dans les limites permises par la loi.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accepter</translation>
    </message>
    <message>
        <source>&amp;Decline and quit</source>
        <translation>&amp;Refuser et quitter</translation>
    </message>
</context>
<context>
    <name>ModeSwitch</name>
    <message>
        <source>The stick is not there any more. Plug it in again.</source>
        <translation>La clé n’est plus là. Rebranchez-la.</translation>
    </message>
    <message>
        <source>usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch n’a pas pu changer le mode de la clé : %1 Débranchez-la, attendez un instant et rebranchez-la.</translation>
    </message>
    <message>
        <source>usb_modeswitch did not run: %1</source>
        <translation>usb_modeswitch ne s’est pas lancé : %1</translation>
    </message>
    <message>
        <source>usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch n’a pas terminé à temps. Débranchez la clé, attendez un instant et rebranchez-la.</translation>
    </message>
    <message>
        <source>The program usb_modeswitch is missing. Install it with &quot;sudo apt install usb-modeswitch&quot;.</source>
        <translation>Le programme usb_modeswitch manque. Installez-le avec « sudo apt install usb-modeswitch ».</translation>
    </message>
    <message>
        <source>You may not switch the stick yourself. Switch it with &quot;%1&quot;, or unplug it and plug it in again: the system then switches it.</source>
        <translation>Vous n’avez pas le droit de changer le mode de la clé. Faites-le avec « %1 », ou débranchez-la et rebranchez-la : le système s’en chargera.</translation>
    </message>
</context>
<context>
    <name>ModemTypes</name>
    <message>
        <source>The file has a document type declaration, which is not allowed here. What follows is not read.</source>
        <translation>Le fichier contient une déclaration de type de document, non permise ici. La suite n’est pas lue.</translation>
    </message>
    <message>
        <source>The file is not well-formed here: %1 What follows is not read.</source>
        <translation>Le fichier est mal formé ici : %1 La suite n’est pas lue.</translation>
    </message>
    <message>
        <source>The outermost element is &quot;%1&quot;; it should be &quot;modem_types&quot;.</source>
        <translation>L’élément racine est « %1 » ; ce devrait être « modem_types ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known at this place.</source>
        <translation>« %1 » est inconnu à cet endroit.</translation>
    </message>
    <message>
        <source>The card %1 is listed already; this entry is left out.</source>
        <translation>La carte %1 figure déjà dans la liste ; cette entrée est ignorée.</translation>
    </message>
    <message>
        <source>A rule needs the attribute &quot;drivers&quot;, with the names of kernel drivers.</source>
        <translation>Une règle exige l’attribut « drivers », avec les noms de pilotes du noyau.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be four hexadecimal digits other than 0000, as lsusb shows them.</source>
        <translation>« %1 » vaut « %2 » ; il faudrait quatre chiffres hexadécimaux autres que 0000, comme les montre lsusb.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>L’attribut « %1 » manque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be a number from %3 to %4.</source>
        <translation>« %1 » vaut « %2 » ; il faudrait un nombre de %3 à %4.</translation>
    </message>
    <message>
        <source>&quot;family&quot; is &quot;%1&quot;; it should be WCDMA, TD-SCDMA or CDMA.</source>
        <translation>« family » vaut « %1 » ; il faudrait WCDMA, TD-SCDMA ou CDMA.</translation>
    </message>
    <message>
        <source>&quot;storage&quot; holds &quot;%1&quot;; it should be ids such as 1209:0002.</source>
        <translation>« storage » contient « %1 » ; il faudrait des identifiants comme 1209:0002.</translation>
    </message>
    <message>
        <source>This entry is left out. %1</source>
        <translation>Cette entrée est ignorée. %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Impossible de lire le fichier : %1</translation>
    </message>
    <message>
        <source>The file is larger than 1 MiB and is not read.</source>
        <translation>Le fichier dépasse 1 Mio et n’est pas lu.</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>Appel entrant</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>La carte sonne.</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Nouveau message</translation>
    </message>
    <message>
        <source>A new message has arrived on the card</source>
        <translation>Un nouveau message est arrivé sur la carte</translation>
    </message>
    <message>
        <source>A new message has arrived</source>
        <translation>Un nouveau message est arrivé</translation>
    </message>
    <message>
        <source>An immediate message has arrived</source>
        <translation>Un message immédiat est arrivé</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>Un autre appel est en attente.</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>La carte se présente comme un disque</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>Beaucoup de cartes démarrent comme un disque contenant leurs pilotes. Changez de mode, et la carte devient un modem en quelques secondes.</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>Aucune carte trouvée</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>Branchez la carte sur une prise USB de cet ordinateur. Si elle est déjà branchée, retirez-la et essayez une autre prise.</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>La carte est branchée comme modem</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>La carte n’a pas de port série</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>L’ordinateur voit «&#xa0;%1&#xa0;» mais ne lui a pas créé de port. Retirez la carte, attendez dix secondes et rebranchez-la.</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>L’ordinateur lui a créé un port</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>Vous avez accès au port</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>Pas de droit d’accès au port</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>Seuls les membres du groupe «&#xa0;%2&#xa0;» peuvent utiliser le port %1. Exécutez la commande que le bouton copie, puis fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Un autre programme</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (processus %2)</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>Aucun autre programme n’occupe le port</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>Le port est occupé</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>%1 occupe le port %2. Fermez ce programme ou arrêtez son service, puis relancez la recherche.</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>La carte ne répond pas</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>Le port %1 est ouvert, mais rien n’y répond. Une carte tout juste branchée peut mettre une demi-minute&#xa0;; passé ce délai, retirez-la et rebranchez-la.</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>La carte répond</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Pas de carte SIM</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>Retirez la carte, insérez-y une carte SIM, contacts vers le bas, puis rebranchez la carte.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>La carte SIM est illisible</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>Retirez la carte SIM, essuyez ses contacts et remettez-la. Si cela ne suffit pas, demandez-en une nouvelle à votre opérateur.</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>La carte SIM démarre</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Cela prend quelques secondes.</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>Vérification de la carte SIM</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>La carte n’a pas encore indiqué si elle contient une carte SIM.</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>La carte contient une carte SIM</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>La carte SIM est verrouillée</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>Elle demande son code PIN avant de laisser la carte accéder à un réseau.</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>La carte SIM est bloquée</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>Un code PIN erroné a été saisi trop souvent. Le code PUK, fourni avec la carte SIM, permet d’en définir un nouveau.</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>La carte SIM est déverrouillée</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>La radio est désactivée</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>La carte n’émet et ne reçoit rien tant que la radio est désactivée.</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>La radio est activée</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>Pas de recherche de réseau</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>La carte n’a trouvé aucun réseau autorisé et a renoncé. Allez là où la réception est meilleure, puis réactivez la radio.</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>Le réseau a refusé la carte SIM</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>La carte SIM n’est peut-être pas encore activée, ou pas autorisée ici. Votre opérateur peut vous dire pourquoi.</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>Recherche d’un réseau</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>Cela peut prendre une minute, davantage à l’étranger. Une place près d’une fenêtre aide.</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>Vérification du réseau</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>La carte n’a pas encore indiqué si un réseau l’a acceptée.</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>Le réseau de votre opérateur a accepté la carte</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>Le réseau d’un autre opérateur a accepté la carte</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Aucun service</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>Le réseau n’offre aucun service ici pour le moment. Allez là où la réception est meilleure.</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Appels d’urgence uniquement</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>Le réseau ne dessert pas cette carte SIM ici. Votre opérateur peut vous dire pourquoi.</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Aucun service dans cette région</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>Votre opérateur dessert cette carte SIM ailleurs, mais pas dans cette région.</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>Le réseau dessert la carte</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>Carte dans la prise USB</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>Droit d’accès au port</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>Port libre</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>Réponse de la carte</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Carte SIM</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Radio</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>&amp;Rechercher à nouveau</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>Passer en &amp;modem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copier la commande</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>&amp;Saisir le PIN</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>&amp;Saisir le PUK</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>Activer la &amp;radio</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>&amp;Interroger à nouveau</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>Les paramètres indiquent un port</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>Le port n’existe pas</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>Les paramètres indiquent le port %1, qui n’existe pas. Branchez la carte&#xa0;; si elle est déjà branchée, corrigez «&#xa0;at_port&#xa0;» dans le fichier Data/common-config.xml et redémarrez le programme.</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>Le port n’est pas un port série</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>Les paramètres indiquent le port %1, qui n’est pas un port série. Corrigez «&#xa0;at_port&#xa0;» dans le fichier Data/common-config.xml et redémarrez le programme.</translation>
    </message>
</context>
<context>
    <name>PortAccess</name>
    <message>
        <source>You may not open %1, which belongs to the group &quot;%2&quot;. Join it with &quot;sudo usermod -aG %2 %3&quot;, then sign out and in again.</source>
        <translation>Vous n’avez pas le droit d’ouvrir %1, qui appartient au groupe « %2 ». Rejoignez-le avec « sudo usermod -aG %2 %3 », puis fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>You may not open %1 yet: you are a member of the group &quot;%2&quot;, but were not when you signed in. Sign out and in again.</source>
        <translation>Vous ne pouvez pas encore ouvrir %1 : vous êtes membre du groupe « %2 », mais ne l’étiez pas à l’ouverture de la session. Fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>You may not open %1, and no group can be joined that may. Ask the administrator of this computer for a udev rule that gives the group &quot;dialout&quot; access to it.</source>
        <translation>Vous n’avez pas le droit d’ouvrir %1, et aucun groupe à rejoindre ne l’a. Demandez à l’administrateur de cet ordinateur une règle udev qui y donne accès au groupe « dialout ».</translation>
    </message>
</context>
<context>
    <name>PortHolder</name>
    <message>
        <source>process %1</source>
        <translation>Le processus %1</translation>
    </message>
    <message>
        <source>ModemManager is using the card on %1. Stop it with &quot;sudo systemctl stop ModemManager&quot;, or keep it off this card with the udev rule that comes with this program.</source>
        <translation>ModemManager utilise la carte sur %1. Arrêtez-le avec « sudo systemctl stop ModemManager », ou écartez-le de cette carte avec la règle udev fournie avec ce programme.</translation>
    </message>
    <message>
        <source>The message service %1 is using the card on %2. Stop it with &quot;sudo systemctl stop %3&quot;.</source>
        <translation>Le service de messages %1 utilise la carte sur %2. Arrêtez-le avec « sudo systemctl stop %3 ».</translation>
    </message>
    <message>
        <source>%1 is using the card on %2. Close that program; the card is then found by itself.</source>
        <translation>%1 utilise la carte sur %2. Fermez ce programme ; la carte sera alors trouvée d’elle-même.</translation>
    </message>
    <message>
        <source>Another program is using the card on %1. &quot;sudo fuser -v %1&quot; names it; close it, and the card is found by itself.</source>
        <translation>Un autre programme utilise la carte sur %1. « sudo fuser -v %1 » le nomme ; fermez-le, et la carte sera trouvée d’elle-même.</translation>
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
        <translation>Impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1 may not be written</source>
        <translation>L’écriture dans %1 n’est pas autorisée</translation>
    </message>
    <message>
        <source>No file can be made beside %1</source>
        <translation>Impossible de créer un fichier à côté de %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>Impossible d’écrire %1</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>Impossible de remplacer %1</translation>
    </message>
    <message>
        <source>%1 is a ring of links</source>
        <translation>%1 est une boucle de liens</translation>
    </message>
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>Le fichier de paramètres endommagé ne peut pas être conservé</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>Les paramètres n’ont pas pu être lus&#xa0;; le programme a démarré sans aucun réglage. Le fichier illisible a été conservé sous&#xa0;:
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>Les paramètres ne peuvent pas être enregistrés&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>Impossible de lire les couleurs de «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Déplacer</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>Redi&amp;mensionner</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>Réd&amp;uire</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>A&amp;grandir</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>À &amp;propos de %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>corva::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Connection manager for USB data cards</source>
        <translation>Gestionnaire de connexion pour cartes de données USB</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Internal version</source>
        <translation>Version interne</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Tout &amp;copier</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>Groupes de paramètres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>Lecture de la carte</translation>
    </message>
</context>
<context>
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>Tout redemander à la carte</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Carte SIM</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Network type</source>
        <translation>Type de réseau</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>Code du réseau</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Cellule</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>Heure du réseau</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>N° de carte</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>&amp;Afficher les chiffres</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>La carte SIM est bloquée</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>La carte SIM est verrouillée</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>Saisir le PUK</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>Saisir le PIN</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>Saisissez le code PUK fourni avec la carte SIM et choisissez un nouveau code PIN.</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>Saisissez son code PIN pour utiliser la carte.</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>Code P&amp;UK, 8 chiffres</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>Nouveau code &amp;PIN, 4 à 8 chiffres</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>Code &amp;PIN, 4 à 8 chiffres</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>&amp;Répéter le nouveau code PIN</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>&amp;Débloquer</translation>
    </message>
    <message>
        <source>Un&amp;lock</source>
        <translation>Dé&amp;verrouiller</translation>
    </message>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>%n tentative restante</numerusform>
            <numerusform>%n tentatives restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>Dernière tentative&#xa0;: après un autre code PUK erroné, la carte SIM sera définitivement perdue.</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>Dernière tentative&#xa0;: après un autre code PIN erroné, la carte SIM demandera son code PUK.</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>Un code PUK comporte 8 chiffres.</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>Un code PIN comporte 4 à 8 chiffres.</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>Les deux codes PIN diffèrent.</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>Vérification par la carte SIM</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>Le code PUK est incorrect.</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>Le code PIN est incorrect.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>La carte SIM est illisible. Retirez-la et remettez-la.</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>La carte n’a pas répondu à temps. On ne sait pas si elle a accepté la saisie&#xa0;; les essais restants sont affichés si la carte les indique.</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>La carte SIM est encore en cours de démarrage. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>La carte a refusé la saisie, sans dire qu’elle est erronée.</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>en ordre</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>pas encore connu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>corva::FactRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copier «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>corva::GeneralPage</name>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>Avec les autres programmes</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>&amp;Rester dans la zone de notification à la fermeture de la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>&amp;Notifier les appels et les messages sur le bureau</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>La langue est enregistrée. Elle prendra effet au prochain démarrage du programme.</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>Impossible d’enregistrer les couleurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>Rechercher les mises à jo&amp;ur</translation>
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
        <translation>Les flèches déplacent la fenêtre. Entrée garde la position, Échap rétablit l’ancienne.</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>Les flèches redimensionnent la fenêtre. Entrée garde la taille, Échap rétablit l’ancienne.</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>Recherche de la carte</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>Interrogation de la carte</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>Copié. Collez la commande dans un terminal, puis fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>Passage de la carte en modem</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>C’est fait. La carte réapparaîtra comme modem dans quelques secondes.</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>Activation de la radio</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>La radio est activée.</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>La carte n’a pas encore confirmé. Son état suivra.</translation>
    </message>
</context>
<context>
    <name>corva::Navigation</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>corva::NavigationButton</name>
    <message>
        <source>%1, %2 new</source>
        <translation>%1, nouveautés&#xa0;: %2</translation>
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
        <translation>Re&amp;tour</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Pourquoi suis-je hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>Everything from the socket to the network is in order.</source>
        <translation>Tout est en ordre, de la prise USB au réseau.</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Tout va bien jusqu’ici&#xa0;; la carte y travaille.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Une étape pose problème. Les suivantes se feront d’elles-mêmes.</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>Le réglage n’a pas pu être enregistré&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>Signal&#xa0;: %1 barres sur %2</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Aucun signal</translation>
    </message>
</context>
<context>
    <name>corva::SplashDialog</name>
    <message>
        <source>Initializing</source>
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>Software version PC:</source>
        <translation>Version du logiciel (PC) : </translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Version du micrologiciel : </translation>
    </message>
</context>
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Sur le réseau</translation>
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
        <translation>&amp;Pourquoi&#xa0;?</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Pourquoi suis-je hors ligne&#xa0;?</translation>
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
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Déconnexion en cours</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>Menu de %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Network type %1</source>
        <translation>Type de réseau %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>Pas de carte</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>Carte SIM&#xa0;: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>état pas encore connu</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>Connexion de données&#xa0;: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Heure&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corva::TrayIcon</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>À &amp;propos de %1</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>&amp;Masquer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>&amp;Afficher la fenêtre</translation>
    </message>
</context>
</TS>
