<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>FrmDisclaimer</name>
    <message>
        <source>Before you begin</source>
        <translation>Antes de empezar</translation>
    </message>
    <message>
        <source>%1 connects this computer to a mobile network. What your operator charges for data, messages and calls is between you and your operator; abroad it can be much more than at home.</source>
        <translation>%1 conecta este equipo a una red móvil. Lo que su operador cobre por datos, mensajes y llamadas es asunto entre usted y su operador; en el extranjero puede ser mucho más que en su país.</translation>
    </message>
    <message>
        <source>The traffic and the duration that are shown are measured on this computer. The operator&apos;s own count decides what you pay.</source>
        <translation>El tráfico y la duración que se muestran se miden en este equipo. Lo que usted paga lo decide la medición del operador.</translation>
    </message>
    <message>
        <source>The program is free software and comes without any warranty, as far as the law allows.</source>
        <translation>El programa es software libre y se ofrece sin garantía alguna, hasta donde la ley lo permite.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Decline and quit</source>
        <translation>&amp;Rechazar y salir</translation>
    </message>
</context>
<context>
    <name>ModeSwitch</name>
    <message>
        <source>The stick is not there any more. Plug it in again.</source>
        <translation>El módem USB ya no está conectado. Vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch no pudo cambiar el modo del módem USB: %1 Desconéctelo, espere un momento y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>usb_modeswitch did not run: %1</source>
        <translation>usb_modeswitch no se ejecutó: %1</translation>
    </message>
    <message>
        <source>usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch no terminó a tiempo. Desconecte el módem USB, espere un momento y vuelva a conectarlo.</translation>
    </message>
    <message>
        <source>The program usb_modeswitch is missing. Install it with &quot;sudo apt install usb-modeswitch&quot;.</source>
        <translation>Falta el programa usb_modeswitch. Instálelo con «sudo apt install usb-modeswitch».</translation>
    </message>
    <message>
        <source>You may not switch the stick yourself. Switch it with &quot;%1&quot;, or unplug it and plug it in again: the system then switches it.</source>
        <translation>No tiene permiso para cambiar el modo del módem USB. Hágalo con «%1», o desconéctelo y vuelva a conectarlo: entonces lo hará el sistema.</translation>
    </message>
</context>
<context>
    <name>ModemTypes</name>
    <message>
        <source>The file has a document type declaration, which is not allowed here. What follows is not read.</source>
        <translation>El archivo tiene una declaración de tipo de documento, que aquí no se permite. Lo que sigue no se lee.</translation>
    </message>
    <message>
        <source>The file is not well-formed here: %1 What follows is not read.</source>
        <translation>El archivo no está bien formado aquí: %1 Lo que sigue no se lee.</translation>
    </message>
    <message>
        <source>The outermost element is &quot;%1&quot;; it should be &quot;modem_types&quot;.</source>
        <translation>El elemento exterior es «%1»; debería ser «modem_types».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known at this place.</source>
        <translation>«%1» no se conoce en este lugar.</translation>
    </message>
    <message>
        <source>The card %1 is listed already; this entry is left out.</source>
        <translation>La tarjeta %1 ya figura en la lista; esta entrada se omite.</translation>
    </message>
    <message>
        <source>A rule needs the attribute &quot;drivers&quot;, with the names of kernel drivers.</source>
        <translation>Una regla necesita el atributo «drivers», con los nombres de controladores del núcleo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be four hexadecimal digits other than 0000, as lsusb shows them.</source>
        <translation>«%1» es «%2»; deberían ser cuatro cifras hexadecimales distintas de 0000, como las muestra lsusb.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>Falta el atributo «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be a number from %3 to %4.</source>
        <translation>«%1» es «%2»; debería ser un número de %3 a %4.</translation>
    </message>
    <message>
        <source>&quot;family&quot; is &quot;%1&quot;; it should be WCDMA, TD-SCDMA or CDMA.</source>
        <translation>«family» es «%1»; debería ser WCDMA, TD-SCDMA o CDMA.</translation>
    </message>
    <message>
        <source>&quot;storage&quot; holds &quot;%1&quot;; it should be ids such as 1209:0002.</source>
        <translation>«storage» contiene «%1»; deberían ser identificadores como 1209:0002.</translation>
    </message>
    <message>
        <source>This entry is left out. %1</source>
        <translation>Esta entrada se omite. %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>The file is larger than 1 MiB and is not read.</source>
        <translation>El archivo supera 1 MiB y no se lee.</translation>
    </message>
</context>
<context>
    <name>PortAccess</name>
    <message>
        <source>You may not open %1, which belongs to the group &quot;%2&quot;. Join it with &quot;sudo usermod -aG %2 %3&quot;, then sign out and in again.</source>
        <translation>No tiene permiso para abrir %1, que pertenece al grupo «%2». Únase a él con «sudo usermod -aG %2 %3», cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>You may not open %1 yet: you are a member of the group &quot;%2&quot;, but were not when you signed in. Sign out and in again.</source>
        <translation>Todavía no tiene permiso para abrir %1: es miembro del grupo «%2», pero no lo era al iniciar la sesión. Cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>You may not open %1, and no group can be joined that may. Ask the administrator of this computer for a udev rule that gives the group &quot;dialout&quot; access to it.</source>
        <translation>No tiene permiso para abrir %1, y no hay ningún grupo que lo tenga. Pida al administrador de este equipo una regla de udev que dé acceso al grupo «dialout».</translation>
    </message>
</context>
<context>
    <name>PortHolder</name>
    <message>
        <source>process %1</source>
        <translation>el proceso %1</translation>
    </message>
    <message>
        <source>ModemManager is using the card on %1. Stop it with &quot;sudo systemctl stop ModemManager&quot;, or keep it off this card with the udev rule that comes with this program.</source>
        <translation>ModemManager está usando la tarjeta en %1. Deténgalo con «sudo systemctl stop ModemManager», o apártelo de esta tarjeta con la regla de udev que acompaña a este programa.</translation>
    </message>
    <message>
        <source>The message service %1 is using the card on %2. Stop it with &quot;sudo systemctl stop %3&quot;.</source>
        <translation>El servicio de mensajes %1 está usando la tarjeta en %2. Deténgalo con «sudo systemctl stop %3».</translation>
    </message>
    <message>
        <source>%1 is using the card on %2. Close that program; the card is then found by itself.</source>
        <translation>%1 está usando la tarjeta en %2. Cierre ese programa; la tarjeta se encontrará entonces por sí sola.</translation>
    </message>
    <message>
        <source>Another program is using the card on %1. &quot;sudo fuser -v %1&quot; names it; close it, and the card is found by itself.</source>
        <translation>Otro programa está usando la tarjeta en %1. «sudo fuser -v %1» lo nombra; ciérrelo y la tarjeta se encontrará por sí sola.</translation>
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
        <translation>No se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 no es un archivo normal</translation>
    </message>
    <message>
        <source>%1 may not be written</source>
        <translation>No está permitido escribir en %1</translation>
    </message>
    <message>
        <source>No file can be made beside %1</source>
        <translation>No se puede crear un archivo junto a %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>No se puede escribir %1</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>No se puede reemplazar %1</translation>
    </message>
    <message>
        <source>%1 is a ring of links</source>
        <translation>%1 es un bucle de enlaces</translation>
    </message>
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>Leyendo la tarjeta</translation>
    </message>
</context>
<context>
    <name>corva::SplashDialog</name>
    <message>
        <source>Initializing</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>Software version PC:</source>
        <translation>Versión del software (PC): </translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Versión del firmware: </translation>
    </message>
</context>
</TS>
