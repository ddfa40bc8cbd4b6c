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
