<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>Bloqueado, requer PIN</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>Bloqueado, requer PUK</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>A iniciar</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Não pode ser lido</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Sem cartão SIM</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>Não procura rede</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>Rede de origem</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>A procurar rede</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Recusado</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Sem serviço</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Só chamadas de emergência</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>Serviço completo</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Sem serviço nesta região</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>Poupança de energia</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1, %2 de 5 barras</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Sem ligação: %1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Registado na rede</translation>
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
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>Chamada recebida</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>A placa está a tocar.</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Nova mensagem</translation>
    </message>
    <message>
        <source>A new message has arrived on the card</source>
        <translation>Chegou uma nova mensagem à placa</translation>
    </message>
    <message>
        <source>A new message has arrived</source>
        <translation>Chegou uma nova mensagem</translation>
    </message>
    <message>
        <source>An immediate message has arrived</source>
        <translation>Chegou uma mensagem imediata</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>Há outra chamada em espera.</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>A placa apresenta-se como disco</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>Muitas placas começam como um disco com controladores. Mude-lhe o modo e passa a modem em poucos segundos.</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>Placa não encontrada</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>Ligue a placa a uma entrada USB deste computador. Se já estiver ligada, retire-a e tente outra entrada.</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>A placa está ligada como modem</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>A placa não tem porta série</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>O computador vê «%1», mas não lhe criou uma porta. Retire a placa, espere dez segundos e volte a ligá-la.</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>O computador criou-lhe uma porta</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>Tem permissão para usar a porta</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>Sem permissão para usar a porta</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>Só os membros do grupo «%2» podem usar a porta %1. Execute o comando que o botão copia, termine a sessão e volte a iniciá-la.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Outro programa</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (processo %2)</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>Nenhum outro programa usa a porta</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>A porta está ocupada</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>%1 está a usar a porta %2. Feche esse programa ou pare o respetivo serviço e procure de novo.</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>A placa não responde</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>A porta %1 está aberta, mas nada responde. Uma placa acabada de ligar precisa de até meio minuto; depois disso, retire-a e volte a ligá-la.</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>A placa responde</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Sem cartão SIM</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>Retire a placa, insira um cartão SIM com os contactos para baixo e volte a ligar a placa.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>Não é possível ler o cartão SIM</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>Retire o cartão SIM, limpe os contactos e volte a inseri-lo. Se não resultar, peça um novo ao seu operador.</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>O cartão SIM está a iniciar</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Demora alguns segundos.</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>A verificar o cartão SIM</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>A placa ainda não indicou se tem um cartão SIM.</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>Há um cartão SIM na placa</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>O cartão SIM requer o PIN</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>Só com o PIN deixa a placa entrar numa rede.</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>O cartão SIM está bloqueado</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>Foi introduzido um PIN errado demasiadas vezes. O PUK, que veio com o cartão SIM, permite definir um novo PIN.</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>O cartão SIM está desbloqueado</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>O rádio está desligado</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>A placa não envia nem recebe até o rádio ser ligado.</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>O rádio está ligado</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>Não está a procurar rede</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>A placa não encontrou nenhuma rede que possa usar e desistiu. Vá para um local com melhor receção e volte a ligar o rádio.</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>A rede recusou o cartão SIM</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>O cartão SIM pode ainda não estar ativado ou não poder ser usado aqui. O seu operador pode dizer-lhe porquê.</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>A procurar uma rede</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>Pode demorar um minuto, mais no estrangeiro. Um lugar junto a uma janela ajuda.</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>A verificar a rede</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>A placa ainda não indicou se uma rede a aceitou.</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>A rede do seu operador aceitou a placa</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>A rede de outro operador aceitou a placa</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Sem serviço</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>De momento, a rede não presta serviço aqui. Vá para um local com melhor receção.</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Só chamadas de emergência</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>A rede não presta serviço a este cartão SIM aqui. O seu operador pode dizer-lhe porquê.</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Sem serviço nesta região</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>O seu operador presta serviço a este cartão SIM noutros locais, não nesta região.</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>A rede presta serviço à placa</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>Placa na entrada USB</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Porta série</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>Permissão para usar a porta</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>Porta livre</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>Resposta da placa</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Cartão SIM</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>Rádio</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>Procurar de &amp;novo</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>&amp;Mudar para modem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copiar comando</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>&amp;Introduzir PIN</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>&amp;Introduzir PUK</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>&amp;Ligar o rádio</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>&amp;Consultar de novo</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>As definições indicam uma porta</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>A porta não existe</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>As definições indicam a porta %1, que não existe. Ligue a placa; se já estiver ligada, corrija «at_port» no ficheiro Data/common-config.xml e inicie o programa de novo.</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>A porta não é uma porta série</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>As definições indicam a porta %1, que não é uma porta série. Corrija «at_port» no ficheiro Data/common-config.xml e inicie o programa de novo.</translation>
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
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>Não é possível conservar o ficheiro de definições danificado</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>Não foi possível ler as definições, por isso o programa começou sem nada definido. O ficheiro ilegível foi guardado como:
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>Não é possível guardar as definições: %1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>Não é possível ler as cores em «%1».</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Porque estou sem ligação?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Mover</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>&amp;Redimensionar</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>Mi&amp;nimizar</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>Preencher o &amp;ecrã</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>A&amp;cerca de %1</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
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
        <translation>Gestor de ligações para placas de dados USB</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licença</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Placa</translation>
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
        <translation>Versão interna</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Copiar tudo</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>Grupos de definições</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
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
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>Voltar a consultar tudo na placa</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Placa</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Cartão SIM</translation>
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
        <translation>Tipo de rede</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registo</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Serviço</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Sinal</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>Código da rede</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Célula</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>Hora da rede</translation>
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
        <translation>N.º do cartão</translation>
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
        <translation>Porta</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>&amp;Mostrar os algarismos</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Mais &amp;tarde</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>O cartão SIM está bloqueado</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>O cartão SIM requer o PIN</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>Introduzir PUK</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>Introduzir PIN</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>Introduza o PUK, que veio com o cartão SIM, e escolha um novo PIN.</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>Introduza o PIN do cartão SIM para usar a placa.</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>P&amp;UK, 8 algarismos</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>Novo &amp;PIN, 4 a 8 algarismos</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>&amp;PIN, 4 a 8 algarismos</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>&amp;Repetir o novo PIN</translation>
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
            <numerusform>Resta %n tentativa</numerusform>
            <numerusform>Restam %n tentativas</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>Última tentativa: com outro PUK errado, o cartão SIM fica inutilizado para sempre.</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>Última tentativa: com outro PIN errado, o cartão SIM passa a pedir o PUK.</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>Um PUK tem 8 algarismos.</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>Um PIN tem 4 a 8 algarismos.</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>Os dois PIN são diferentes.</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>A consultar o cartão SIM</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>O PUK está errado.</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>O PIN está errado.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>Não é possível ler o cartão SIM. Retire-o e volte a inseri-lo.</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>A placa não respondeu a tempo. Não se sabe se aceitou o que foi introduzido; as tentativas restantes são mostradas se a placa as indicar.</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>O cartão SIM ainda está a iniciar. Tente de novo dentro de momentos.</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>A placa recusou o que foi introduzido, sem dizer que está errado.</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>em ordem</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>em curso</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>ainda desconhecido</translation>
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
        <translation>Copiar %1</translation>
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
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>A par de outros programas</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>&amp;Continuar na área de notificação ao fechar a janela</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>&amp;Notificar chamadas e mensagens no ambiente de trabalho</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>Co&amp;res</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>O idioma foi guardado. Terá efeito no próximo arranque do programa.</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>Não foi possível guardar as cores: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>Proc&amp;urar atualizações</translation>
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
        <translation>As setas movem a janela. Enter mantém a posição, Esc repõe a anterior.</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>As setas redimensionam a janela. Enter mantém o tamanho, Esc repõe o anterior.</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>A procurar a placa</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>A consultar a placa</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>Copiado. Cole o comando num terminal, termine a sessão e volte a iniciá-la.</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>A mudar a placa para modem</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>Modo mudado. A placa volta como modem dentro de alguns segundos.</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>A ligar o rádio</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>O rádio está ligado.</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>A placa ainda não confirmou. O estado será mostrado em breve.</translation>
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
        <translation>%1, %2 por ver</translation>
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
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Porque estou sem ligação?</translation>
    </message>
    <message>
        <source>Everything from the socket to the network is in order.</source>
        <translation>Da entrada USB à rede, está tudo em ordem.</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Até agora está tudo bem; a placa está a tratar disso.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Um passo não está em ordem. Os passos seguintes vêm por si.</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>Não foi possível guardar a definição: %1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>Sinal: %1 de %2 barras</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Sem sinal</translation>
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
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Porque estou sem ligação?</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Registado na rede</translation>
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
        <translation>&amp;Porquê?</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Porque estou sem ligação?</translation>
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
        <translation>A ligar</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>A desligar</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não ligado</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Tipo de rede: %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>Sem placa</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>Cartão SIM: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>ainda desconhecido</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>Ligação de dados: %1</translation>
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
        <translation>&amp;Porque estou sem ligação?</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>A&amp;cerca de %1</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>&amp;Ocultar a janela</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>&amp;Mostrar a janela</translation>
    </message>
</context>
</TS>
