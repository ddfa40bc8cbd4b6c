<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>Bloqueada, requiere PIN</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>Bloqueada, requiere PUK</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Sin tarjeta SIM</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>Sin buscar red</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>Red de origen</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazado</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinerancia</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Sin servicio</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Solo llamadas de emergencia</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>Servicio completo</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Sin servicio en esta región</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>Ahorro de energía</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1&#xa0;dBm</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1, %2 de 5 barras</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Sin conexión: %1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>En la red</translation>
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
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>Llamada entrante</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>La tarjeta está sonando.</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Mensaje nuevo</translation>
    </message>
    <message>
        <source>A new message has arrived on the card</source>
        <translation>Ha llegado un mensaje nuevo a la tarjeta</translation>
    </message>
    <message>
        <source>A new message has arrived</source>
        <translation>Ha llegado un mensaje nuevo</translation>
    </message>
    <message>
        <source>An immediate message has arrived</source>
        <translation>Ha llegado un mensaje inmediato</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>Hay otra llamada en espera.</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>La tarjeta se presenta como un disco</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>Muchas tarjetas arrancan como un disco con sus controladores. Cambie el modo y en unos segundos será un módem.</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>No se encontró ninguna tarjeta</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>Conecte la tarjeta a un puerto USB de este equipo. Si ya está conectada, retírela y pruebe otro puerto USB.</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>La tarjeta está conectada como módem</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>La tarjeta no tiene puerto serie</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>El equipo ve «%1», pero no le ha creado ningún puerto. Retire la tarjeta, espere diez segundos y vuelva a conectarla.</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>El equipo le ha creado un puerto</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>Tiene acceso al puerto</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>Sin permiso para usar el puerto</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>Solo los miembros del grupo «%2» pueden usar el puerto %1. Ejecute el comando que copia el botón, cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Otro programa</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (proceso %2)</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>Ningún otro programa ocupa el puerto</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>El puerto está ocupado</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>%1 ocupa el puerto %2. Cierre ese programa o detenga su servicio y busque de nuevo.</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>La tarjeta no responde</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>El puerto %1 está abierto, pero nada responde en él. Una tarjeta recién conectada puede tardar hasta medio minuto; pasado ese tiempo, retírela y vuelva a conectarla.</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>La tarjeta responde</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Sin tarjeta SIM</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>Retire la tarjeta, inserte una tarjeta SIM con los contactos hacia abajo y vuelva a conectar la tarjeta.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>No se puede leer la tarjeta SIM</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>Saque la tarjeta SIM, limpie sus contactos y vuelva a insertarla. Si no sirve, pida una nueva a su operador.</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>La tarjeta SIM se está iniciando</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Tarda unos segundos.</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>Comprobando la tarjeta SIM</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>La tarjeta aún no ha indicado si contiene una tarjeta SIM.</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>La tarjeta contiene una tarjeta SIM</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>La tarjeta SIM está bloqueada con PIN</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>Pide su PIN antes de dejar que la tarjeta entre en una red.</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>La tarjeta SIM está bloqueada con PUK</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>Se introdujo un PIN incorrecto demasiadas veces. El PUK, entregado con la tarjeta SIM, permite fijar un PIN nuevo.</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>La tarjeta SIM está desbloqueada</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>La radio está desactivada</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>La tarjeta no emite ni recibe nada hasta que se active la radio.</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>La radio está activada</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>No se está buscando red</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>La tarjeta no encontró ninguna red permitida y dejó de buscar. Vaya a un lugar con mejor cobertura y vuelva a activar la radio.</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>La red rechazó la tarjeta SIM</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>Puede que la tarjeta SIM aún no esté activada o que no se permita aquí. Su operador puede decirle por qué.</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>Buscando una red</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>Puede tardar un minuto, más en el extranjero. Ayuda estar cerca de una ventana.</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>Comprobando la red</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>La tarjeta aún no ha indicado si una red la ha admitido.</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>La red de su operador ha admitido la tarjeta</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>La red de otro operador ha admitido la tarjeta</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Sin servicio</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>La red no da servicio aquí en este momento. Vaya a un lugar con mejor cobertura.</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Solo llamadas de emergencia</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>La red no da servicio a esta tarjeta SIM aquí. Su operador puede decirle por qué.</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Sin servicio en esta región</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>Su operador da servicio a esta tarjeta SIM en otros lugares, pero no en esta región.</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>La red da servicio a la tarjeta</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>Tarjeta en el puerto USB</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Puerto serie</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>Permiso para usar el puerto</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>Puerto libre</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>Respuesta de la tarjeta</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Tarjeta SIM</translation>
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
        <translation>Registro</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>&amp;Buscar de nuevo</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>Cambiar a &amp;módem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copiar comando</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>&amp;Introducir PIN</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>&amp;Introducir PUK</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>Activar la &amp;radio</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>&amp;Consultar de nuevo</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>La configuración indica un puerto</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>El puerto no existe</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>La configuración indica el puerto %1, que no existe. Conecte la tarjeta; si ya está conectada, corrija «at_port» en el archivo Data/common-config.xml y vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>El puerto no es un puerto serie</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>La configuración indica el puerto %1, que no es un puerto serie. Corrija «at_port» en el archivo Data/common-config.xml y vuelva a iniciar el programa.</translation>
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
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>No se puede conservar el archivo de configuración dañado</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>No se pudo leer la configuración, así que el programa empezó sin nada configurado. El archivo ilegible se conservó como:
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>No se puede guardar la configuración: %1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>No se pueden leer los colores de «%1».</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>¿&amp;Por qué estoy sin conexión?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Mover</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>Cambiar &amp;tamaño</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>Mi&amp;nimizar</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>Ma&amp;ximizar</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>Acerca &amp;de %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>corva::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
    <message>
        <source>Connection manager for USB data cards</source>
        <translation>Gestor de conexiones para tarjetas de datos USB</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Tarjeta</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Internal version</source>
        <translation>Versión interna</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Copiar todo</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>Grupos de ajustes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
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
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>Consultar todo de nuevo en la tarjeta</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Tarjeta</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Tarjeta SIM</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Network type</source>
        <translation>Tipo de red</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinerancia</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>Código de red</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zona</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Celda</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>Hora de la red</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>N.º de tarjeta</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>&amp;Mostrar los dígitos</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Más &amp;tarde</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>La tarjeta SIM está bloqueada con PUK</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>La tarjeta SIM está bloqueada con PIN</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>Introducir PUK</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>Introducir PIN</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>Introduzca el PUK entregado con la tarjeta SIM y elija un PIN nuevo.</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>Introduzca su PIN para usar la tarjeta.</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>P&amp;UK, 8 dígitos</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>&amp;PIN nuevo, de 4 a 8 dígitos</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>&amp;PIN, de 4 a 8 dígitos</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>&amp;Repetir el PIN nuevo</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>&amp;Desbloquear</translation>
    </message>
    <message>
        <source>Un&amp;lock</source>
        <translation>&amp;Desbloquear</translation>
    </message>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>Queda %n intento</numerusform>
            <numerusform>Quedan %n intentos</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>Último intento: tras otro PUK incorrecto, la tarjeta SIM quedará inutilizada para siempre.</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>Último intento: tras otro PIN incorrecto, la tarjeta SIM pedirá su PUK.</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>Un PUK tiene 8 dígitos.</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>Un PIN tiene de 4 a 8 dígitos.</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>Los dos PIN no coinciden.</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>Consultando la tarjeta SIM</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>El PUK es incorrecto.</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>El PIN es incorrecto.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>No se puede leer la tarjeta SIM. Sáquela y vuelva a insertarla.</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>La módem no respondió a tiempo. No se sabe si aceptó lo introducido; los intentos restantes se muestran si la tarjeta los indica.</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>La tarjeta SIM todavía se está iniciando. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>La tarjeta rechazó lo introducido, sin decir que sea incorrecto.</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>en orden</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>aún no se sabe</translation>
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
        <translation>Copiar «%1»</translation>
    </message>
</context>
<context>
    <name>corva::GeneralPage</name>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>Junto a otros programas</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>&amp;Seguir en la bandeja del sistema al cerrar la ventana</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>&amp;Notificar llamadas y mensajes en el escritorio</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Colores</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>El idioma se ha guardado. Se aplicará la próxima vez que se inicie el programa.</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>No se pudieron guardar los colores: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>B&amp;uscar actualizaciones</translation>
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
        <translation>Las flechas mueven la ventana. Intro mantiene la posición, Esc recupera la anterior.</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>Las flechas cambian el tamaño de la ventana. Intro lo mantiene, Esc recupera el anterior.</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>Buscando la tarjeta</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>Consultando la tarjeta</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>Copiado. Pegue el comando en un terminal, cierre la sesión y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>Cambiando la tarjeta a módem</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>Hecho. La tarjeta volverá como módem en unos segundos.</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>Activando la radio</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>La radio está activada.</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>La tarjeta aún no ha confirmado. Su estado se mostrará enseguida.</translation>
    </message>
</context>
<context>
    <name>corva::Navigation</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>corva::NavigationButton</name>
    <message>
        <source>%1, %2 new</source>
        <translation>%1, novedades: %2</translation>
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
        <translation>&amp;Volver</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Volver</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>¿Por qué estoy sin conexión?</translation>
    </message>
    <message>
        <source>Everything from the socket to the network is in order.</source>
        <translation>Todo está en orden, desde el puerto USB hasta la red.</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Todo va bien por ahora; la tarjeta está en ello.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Un paso presenta un problema. Los siguientes se harán por sí solos.</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>No se pudo guardar el ajuste: %1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>Señal: %1 de %2 barras</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Sin señal</translation>
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
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>¿&amp;Por qué estoy sin conexión?</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>En la red</translation>
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
        <translation>¿Por &amp;qué?</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>¿Por qué estoy sin conexión?</translation>
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
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Desconectando</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>Menú de %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Network type %1</source>
        <translation>Tipo de red %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinerancia</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>Sin tarjeta</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>Tarjeta SIM: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>estado aún desconocido</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>Conexión de datos: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Hora: %1</translation>
    </message>
</context>
<context>
    <name>corva::TrayIcon</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>¿&amp;Por qué estoy sin conexión?</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>Acerca &amp;de %1</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>&amp;Ocultar la ventana</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>&amp;Mostrar la ventana</translation>
    </message>
</context>
</TS>
