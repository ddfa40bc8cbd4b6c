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
