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
    <name>ModeSwitch</name>
    <message>
        <source>The stick is not there any more. Plug it in again.</source>
        <translation>O modem USB já não está ligado. Volte a ligá-lo.</translation>
    </message>
    <message>
        <source>usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.</source>
        <translation>O usb_modeswitch não conseguiu mudar o modo do modem USB: %1 Desligue-o, espere um momento e volte a ligá-lo.</translation>
    </message>
    <message>
        <source>usb_modeswitch did not run: %1</source>
        <translation>O usb_modeswitch não foi executado: %1</translation>
    </message>
    <message>
        <source>usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again.</source>
        <translation>O usb_modeswitch não terminou a tempo. Desligue o modem USB, espere um momento e volte a ligá-lo.</translation>
    </message>
    <message>
        <source>The program usb_modeswitch is missing. Install it with &quot;sudo apt install usb-modeswitch&quot;.</source>
        <translation>Falta o programa usb_modeswitch. Instale-o com «sudo apt install usb-modeswitch».</translation>
    </message>
    <message>
        <source>You may not switch the stick yourself. Switch it with &quot;%1&quot;, or unplug it and plug it in again: the system then switches it.</source>
        <translation>Não tem permissão para mudar o modo do modem USB. Faça-o com «%1», ou desligue-o e volte a ligá-lo: o sistema fá-lo-á.</translation>
    </message>
</context>
<context>
    <name>ModemTypes</name>
    <message>
        <source>The file has a document type declaration, which is not allowed here. What follows is not read.</source>
        <translation>O ficheiro tem uma declaração de tipo de documento, que não é permitida aqui. O que se segue não é lido.</translation>
    </message>
    <message>
        <source>The file is not well-formed here: %1 What follows is not read.</source>
        <translation>O ficheiro não está bem formado aqui: %1 O que se segue não é lido.</translation>
    </message>
    <message>
        <source>The outermost element is &quot;%1&quot;; it should be &quot;modem_types&quot;.</source>
        <translation>O elemento exterior é «%1»; deveria ser «modem_types».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known at this place.</source>
        <translation>«%1» não é conhecido neste lugar.</translation>
    </message>
    <message>
        <source>The card %1 is listed already; this entry is left out.</source>
        <translation>A placa %1 já consta da lista; esta entrada é ignorada.</translation>
    </message>
    <message>
        <source>A rule needs the attribute &quot;drivers&quot;, with the names of kernel drivers.</source>
        <translation>Uma regra precisa do atributo «drivers», com os nomes de controladores do núcleo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be four hexadecimal digits other than 0000, as lsusb shows them.</source>
        <translation>«%1» é «%2»; deveriam ser quatro algarismos hexadecimais diferentes de 0000, como o lsusb os mostra.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>Falta o atributo «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be a number from %3 to %4.</source>
        <translation>«%1» é «%2»; deveria ser um número de %3 a %4.</translation>
    </message>
    <message>
        <source>&quot;family&quot; is &quot;%1&quot;; it should be WCDMA, TD-SCDMA or CDMA.</source>
        <translation>«family» é «%1»; deveria ser WCDMA, TD-SCDMA ou CDMA.</translation>
    </message>
    <message>
        <source>&quot;storage&quot; holds &quot;%1&quot;; it should be ids such as 1209:0002.</source>
        <translation>«storage» contém «%1»; deveriam ser identificadores como 1209:0002.</translation>
    </message>
    <message>
        <source>This entry is left out. %1</source>
        <translation>Esta entrada é ignorada. %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Não é possível ler o ficheiro: %1</translation>
    </message>
    <message>
        <source>The file is larger than 1 MiB and is not read.</source>
        <translation>O ficheiro é maior do que 1 MiB e não é lido.</translation>
    </message>
</context>
<context>
    <name>PortAccess</name>
    <message>
        <source>You may not open %1, which belongs to the group &quot;%2&quot;. Join it with &quot;sudo usermod -aG %2 %3&quot;, then sign out and in again.</source>
        <translation>Não tem permissão para abrir %1, que pertence ao grupo «%2». Junte-se a ele com «sudo usermod -aG %2 %3», termine a sessão e volte a iniciá-la.</translation>
    </message>
    <message>
        <source>You may not open %1 yet: you are a member of the group &quot;%2&quot;, but were not when you signed in. Sign out and in again.</source>
        <translation>Ainda não tem permissão para abrir %1: é membro do grupo «%2», mas não o era quando iniciou a sessão. Termine a sessão e volte a iniciá-la.</translation>
    </message>
    <message>
        <source>You may not open %1, and no group can be joined that may. Ask the administrator of this computer for a udev rule that gives the group &quot;dialout&quot; access to it.</source>
        <translation>Não tem permissão para abrir %1, e não há nenhum grupo que a tenha. Peça ao administrador deste computador uma regra do udev que dê acesso ao grupo «dialout».</translation>
    </message>
</context>
<context>
    <name>PortHolder</name>
    <message>
        <source>process %1</source>
        <translation>o processo %1</translation>
    </message>
    <message>
        <source>ModemManager is using the card on %1. Stop it with &quot;sudo systemctl stop ModemManager&quot;, or keep it off this card with the udev rule that comes with this program.</source>
        <translation>O ModemManager está a usar a placa em %1. Pare-o com «sudo systemctl stop ModemManager», ou afaste-o desta placa com a regra do udev que acompanha este programa.</translation>
    </message>
    <message>
        <source>The message service %1 is using the card on %2. Stop it with &quot;sudo systemctl stop %3&quot;.</source>
        <translation>O serviço de mensagens %1 está a usar a placa em %2. Pare-o com «sudo systemctl stop %3».</translation>
    </message>
    <message>
        <source>%1 is using the card on %2. Close that program; the card is then found by itself.</source>
        <translation>%1 está a usar a placa em %2. Feche esse programa; a placa será então encontrada automaticamente.</translation>
    </message>
    <message>
        <source>Another program is using the card on %1. &quot;sudo fuser -v %1&quot; names it; close it, and the card is found by itself.</source>
        <translation>Outro programa está a usar a placa em %1. «sudo fuser -v %1» mostra qual; feche-o e a placa será encontrada automaticamente.</translation>
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
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>A ler a placa</translation>
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
