<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>FrmDisclaimer</name>
    <message>
        <source>Before you begin</source>
        <translation>Antes de começar</translation>
    </message>
    <message>
        <source>%1 connects this computer to a mobile network. What your operator charges for data, messages and calls is between you and your operator; abroad it can be much more than at home.</source>
        <translation>%1 liga este computador a uma rede móvel. O que o seu operador cobra por dados, mensagens e chamadas é entre si e o seu operador; no estrangeiro pode ser muito mais do que no seu país.</translation>
    </message>
    <message>
        <source>The traffic and the duration that are shown are measured on this computer. The operator&apos;s own count decides what you pay.</source>
        <translation>O tráfego e a duração apresentados são medidos neste computador. O que paga é decidido pela contagem do operador.</translation>
    </message>
    <message>
        <source>The program is free software and comes without any warranty, as far as the law allows.</source>
        <translation>O programa é software livre e é fornecido sem qualquer garantia, na medida em que a lei o permita.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceitar</translation>
    </message>
    <message>
        <source>&amp;Decline and quit</source>
        <translation>&amp;Recusar e sair</translation>
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
        <translation>Não é possível criar a pasta %1</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 não é um ficheiro normal</translation>
    </message>
    <message>
        <source>%1 may not be written</source>
        <translation>Não é permitido escrever em %1</translation>
    </message>
    <message>
        <source>No file can be made beside %1</source>
        <translation>Não é possível criar um ficheiro junto de %1</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>Não é possível escrever %1</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>Não é possível substituir %1</translation>
    </message>
    <message>
        <source>%1 is a ring of links</source>
        <translation>%1 é um ciclo de ligações</translation>
    </message>
</context>
<context>
    <name>corva::SplashDialog</name>
    <message>
        <source>Initializing</source>
        <translation>A iniciar</translation>
    </message>
    <message>
        <source>Software version PC:</source>
        <translation>Versão do software (PC): </translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Versão do firmware: </translation>
    </message>
</context>
</TS>
