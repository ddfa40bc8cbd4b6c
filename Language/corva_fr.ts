<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>Lecture de la carte</translation>
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
</TS>
