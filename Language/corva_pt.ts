<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message>
        <source>&amp;New message</source>
        <translation>&amp;Nova mensagem</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>Ma&amp;is</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Nova mensagem</translation>
    </message>
    <message>
        <source>Search all messages</source>
        <translation>Procurar em todas as mensagens</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Procurar (%1)</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Enviadas com êxito: %1; falhadas: %2</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Undo deleting</source>
        <translation>Anular a &amp;eliminação</translation>
    </message>
    <message>
        <source>Read the SIM and the data card ane&amp;w</source>
        <translation>&amp;Voltar a ler o cartão SIM e a placa de dados</translation>
    </message>
    <message>
        <source>&amp;Service centre…</source>
        <translation>&amp;Centro de serviço…</translation>
    </message>
    <message>
        <source>Choose a message to read it, or write one with Ctrl+N.</source>
        <translation>Escolha uma mensagem para a ler, ou escreva uma com Ctrl+N.</translation>
    </message>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>Foi escolhida %n mensagem.</numerusform>
            <numerusform>Foram escolhidas %n mensagens.</numerusform>
        </translation>
    </message>
    <message>
        <source>The draft was deleted.</source>
        <translation>O rascunho foi eliminado.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>An&amp;ular</translation>
    </message>
    <message>
        <source>There is nothing to bring back.</source>
        <translation>Não há nada para recuperar.</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Tentar de n&amp;ovo</translation>
    </message>
    <message>
        <source>%1: %2 of %3 places are used. When it is full, no message can come in.</source>
        <translation>%1: %2 de %3 posições ocupadas. Quando ficar cheia, não pode entrar nenhuma mensagem.</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
</context>
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
    <name>Channels</name>
    <message>
        <source>&quot;%1&quot; is no channel. Channels are numbers from 0 to 65535, or ranges as 10-15.</source>
        <translation>«%1» não é um canal. Os canais são números de 0 a 65535, ou intervalos como 10-15.</translation>
    </message>
    <message>
        <source>These are more than %1 channels.</source>
        <translation>São mais de %1 canais.</translation>
    </message>
</context>
<context>
    <name>CmsErrors</name>
    <message>
        <source>The number does not exist.</source>
        <translation>O número não existe.</translation>
    </message>
    <message>
        <source>The operator has barred messages for this SIM.</source>
        <translation>O operador bloqueou as mensagens deste cartão SIM.</translation>
    </message>
    <message>
        <source>Sending is barred.</source>
        <translation>O envio está bloqueado.</translation>
    </message>
    <message>
        <source>The network failed.</source>
        <translation>A rede falhou.</translation>
    </message>
    <message>
        <source>The network rejected the message.</source>
        <translation>A rede rejeitou a mensagem.</translation>
    </message>
    <message>
        <source>The memory for messages is full.</source>
        <translation>A memória de mensagens está cheia.</translation>
    </message>
    <message>
        <source>The recipient cannot be reached.</source>
        <translation>Não é possível contactar o destinatário.</translation>
    </message>
    <message>
        <source>The network does not know this SIM.</source>
        <translation>A rede não conhece este cartão SIM.</translation>
    </message>
    <message>
        <source>The network does not offer this service.</source>
        <translation>A rede não oferece este serviço.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>A rede está fora de serviço.</translation>
    </message>
    <message>
        <source>The network failed for the moment.</source>
        <translation>A rede falhou temporariamente.</translation>
    </message>
    <message>
        <source>The network is overloaded.</source>
        <translation>A rede está sobrecarregada.</translation>
    </message>
    <message>
        <source>The network has no room for the message.</source>
        <translation>A rede não tem espaço para a mensagem.</translation>
    </message>
    <message>
        <source>Messages are not part of this subscription.</source>
        <translation>As mensagens não estão incluídas neste contrato.</translation>
    </message>
    <message>
        <source>The network did not understand the message.</source>
        <translation>A rede não entendeu a mensagem.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network failed.</source>
        <translation>A rede do destinatário falhou.</translation>
    </message>
    <message>
        <source>This kind of message is not supported.</source>
        <translation>Este tipo de mensagem não é suportado.</translation>
    </message>
    <message>
        <source>The message cannot replace another one.</source>
        <translation>A mensagem não pode substituir outra.</translation>
    </message>
    <message>
        <source>The message&apos;s alphabet is not supported.</source>
        <translation>O alfabeto da mensagem não é suportado.</translation>
    </message>
    <message>
        <source>The service centre refused the command.</source>
        <translation>O centro de serviço recusou o comando.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>O centro de serviço está ocupado.</translation>
    </message>
    <message>
        <source>The service centre does not serve this SIM.</source>
        <translation>O centro de serviço não serve este cartão SIM.</translation>
    </message>
    <message>
        <source>The service centre failed.</source>
        <translation>O centro de serviço falhou.</translation>
    </message>
    <message>
        <source>The number is not valid.</source>
        <translation>O número não é válido.</translation>
    </message>
    <message>
        <source>The recipient is barred.</source>
        <translation>O destinatário está bloqueado.</translation>
    </message>
    <message>
        <source>The service centre has this message already.</source>
        <translation>O centro de serviço já tem esta mensagem.</translation>
    </message>
    <message>
        <source>The service centre refuses the validity period.</source>
        <translation>O centro de serviço recusa o período de validade.</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is full.</source>
        <translation>A memória de mensagens do cartão SIM está cheia.</translation>
    </message>
    <message>
        <source>The SIM cannot hold messages.</source>
        <translation>O cartão SIM não pode guardar mensagens.</translation>
    </message>
    <message>
        <source>The card failed.</source>
        <translation>A placa falhou.</translation>
    </message>
    <message>
        <source>The SIM is busy.</source>
        <translation>O cartão SIM está ocupado.</translation>
    </message>
    <message>
        <source>The SIM failed.</source>
        <translation>O cartão SIM falhou.</translation>
    </message>
    <message>
        <source>The card&apos;s message service is in use.</source>
        <translation>O serviço de mensagens da placa está em uso.</translation>
    </message>
    <message>
        <source>The card does not allow this now.</source>
        <translation>A placa não permite isto agora.</translation>
    </message>
    <message>
        <source>The card cannot do this.</source>
        <translation>A placa não consegue fazer isto.</translation>
    </message>
    <message>
        <source>The card did not understand the message.</source>
        <translation>A placa não entendeu a mensagem.</translation>
    </message>
    <message>
        <source>There is no SIM in the card.</source>
        <translation>Não há nenhum cartão SIM na placa.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>O cartão SIM pede o PIN.</translation>
    </message>
    <message>
        <source>The card asks for its own PIN.</source>
        <translation>A placa pede o seu próprio PIN.</translation>
    </message>
    <message>
        <source>This SIM does not fit the card.</source>
        <translation>Este cartão SIM não é adequado para a placa.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>O cartão SIM pede o PUK.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN2.</source>
        <translation>O cartão SIM pede o PIN2.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK2.</source>
        <translation>O cartão SIM pede o PUK2.</translation>
    </message>
    <message>
        <source>The memory for messages failed.</source>
        <translation>A memória de mensagens falhou.</translation>
    </message>
    <message>
        <source>There is no message at this place.</source>
        <translation>Não há nenhuma mensagem nesta posição.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>O número do centro de serviço não é conhecido.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Não há rede.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>A rede não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The card expected no confirmation.</source>
        <translation>A placa não esperava nenhuma confirmação.</translation>
    </message>
    <message>
        <source>The card does not say why.</source>
        <translation>A placa não diz porquê.</translation>
    </message>
    <message>
        <source>The message was delivered.</source>
        <translation>A mensagem foi entregue.</translation>
    </message>
    <message>
        <source>The message was replaced by a newer one.</source>
        <translation>A mensagem foi substituída por outra mais recente.</translation>
    </message>
    <message>
        <source>The message could not be delivered yet; the network goes on trying.</source>
        <translation>Ainda não foi possível entregar a mensagem; a rede continua a tentar.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device cannot take the message.</source>
        <translation>O dispositivo do destinatário não pode receber a mensagem.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device refused the message.</source>
        <translation>O dispositivo do destinatário recusou a mensagem.</translation>
    </message>
    <message>
        <source>The message could not be delivered in time.</source>
        <translation>Não foi possível entregar a mensagem a tempo.</translation>
    </message>
    <message>
        <source>The service centre does not know the message.</source>
        <translation>O centro de serviço não conhece a mensagem.</translation>
    </message>
    <message>
        <source>The message could not be delivered.</source>
        <translation>Não foi possível entregar a mensagem.</translation>
    </message>
    <message>
        <source>The card says: %1</source>
        <translation>A placa diz: %1</translation>
    </message>
    <message>
        <source>The card refuses, with the code %1.</source>
        <translation>A placa recusa, com o código %1.</translation>
    </message>
    <message>
        <source>The card refuses, without saying why.</source>
        <translation>A placa recusa, sem dizer porquê.</translation>
    </message>
    <message>
        <source>The network refused the message, without saying why.</source>
        <translation>A rede recusou a mensagem sem dizer porquê.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device is busy.</source>
        <translation>O dispositivo do destinatário está ocupado.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device does not answer.</source>
        <translation>O dispositivo do destinatário não responde.</translation>
    </message>
    <message>
        <source>The network has not the quality of service that the message asks for.</source>
        <translation>A rede não tem a qualidade de serviço que a mensagem pede.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device failed.</source>
        <translation>O dispositivo do destinatário falhou.</translation>
    </message>
    <message>
        <source>The message was passed on; whether it arrived is not known.</source>
        <translation>A mensagem foi encaminhada; não se sabe se chegou.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network does not work with this one.</source>
        <translation>A rede do destinatário não funciona com esta.</translation>
    </message>
    <message>
        <source>The message was deleted by its sender before it was delivered.</source>
        <translation>O remetente eliminou a mensagem antes de ser entregue.</translation>
    </message>
    <message>
        <source>The service centre deleted the message before it was delivered.</source>
        <translation>O centro de serviço eliminou a mensagem antes de ser entregue.</translation>
    </message>
</context>
<context>
    <name>ConnectionDiagnosis</name>
    <message>
        <source>No profile is chosen</source>
        <translation>Nenhum perfil escolhido</translation>
    </message>
    <message>
        <source>A profile says how to reach the internet through your operator. Those of most operators are known; choose one, or add your own.</source>
        <translation>Um perfil indica como chegar à internet através do seu operador. Os da maioria dos operadores já são conhecidos; escolha um ou adicione o seu.</translation>
    </message>
    <message>
        <source>The network chooses it</source>
        <translation>É a rede que o escolhe</translation>
    </message>
    <message>
        <source>The profile names no access point</source>
        <translation>O perfil não indica nenhum ponto de acesso</translation>
    </message>
    <message>
        <source>Your operator can tell you its name (APN). Enter it in the profile.</source>
        <translation>O seu operador pode dizer-lhe o nome (APN). Introduza-o no perfil.</translation>
    </message>
    <message>
        <source>User name or password refused</source>
        <translation>Nome de utilizador ou palavra-passe recusados</translation>
    </message>
    <message>
        <source>The call was not taken</source>
        <translation>A chamada não foi atendida</translation>
    </message>
    <message>
        <source>The line was busy</source>
        <translation>A linha estava ocupada</translation>
    </message>
    <message>
        <source>No link within the time</source>
        <translation>Sem ligação dentro do tempo previsto</translation>
    </message>
    <message>
        <source>The dialler failed</source>
        <translation>O marcador falhou</translation>
    </message>
    <message>
        <source>System files cannot be changed</source>
        <translation>Não é possível alterar os ficheiros do sistema</translation>
    </message>
    <message>
        <source>No right to dial</source>
        <translation>Sem permissão para marcar</translation>
    </message>
    <message>
        <source>The network ended the connection</source>
        <translation>A rede terminou a ligação</translation>
    </message>
    <message>
        <source>The connection broke off</source>
        <translation>A ligação foi interrompida</translation>
    </message>
    <message>
        <source>The card was taken out</source>
        <translation>A placa foi retirada</translation>
    </message>
    <message>
        <source>Ended because nothing was carried</source>
        <translation>Terminada por falta de tráfego</translation>
    </message>
    <message>
        <source>The month&apos;s volume is used up</source>
        <translation>O volume do mês está esgotado</translation>
    </message>
    <message>
        <source>The connection is up</source>
        <translation>A ligação está estabelecida</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>A ligar</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Demora alguns segundos.</translation>
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
        <source>The card is in the network, and everything is there to connect.</source>
        <translation>A placa está registada na rede e está tudo pronto para ligar.</translation>
    </message>
    <message>
        <source>The network gave no address</source>
        <translation>A rede não deu nenhum endereço</translation>
    </message>
    <message>
        <source>Disconnect and connect again. If that does not help, the access point of the profile may be the wrong one.</source>
        <translation>Desligue e volte a ligar. Se não resultar, o ponto de acesso do perfil pode não ser o correto.</translation>
    </message>
    <message>
        <source>No name servers</source>
        <translation>Sem servidores de nomes</translation>
    </message>
    <message>
        <source>Without them names of web sites cannot be found. Enter some in the profile, then disconnect and connect again.</source>
        <translation>Sem eles não é possível encontrar os nomes dos sítios web. Introduza alguns no perfil, desligue e volte a ligar.</translation>
    </message>
    <message>
        <source>Another connection carries the traffic</source>
        <translation>O tráfego passa por outra ligação</translation>
    </message>
    <message>
        <source>This computer goes through a cable, Wi-Fi or another way first. Switch that off, then disconnect and connect again here.</source>
        <translation>Este computador usa primeiro um cabo, uma rede Wi-Fi ou outra via. Desative-a, desligue aqui e volte a ligar.</translation>
    </message>
    <message>
        <source>The traffic goes through the card</source>
        <translation>O tráfego passa pela placa</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Ponto de acesso</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Servidores de nomes</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Rota</translation>
    </message>
    <message>
        <source>The profile cannot be used</source>
        <translation>O perfil não pode ser usado</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>With &quot;%1&quot;, since %2.</source>
        <translation>Com «%1», início: %2.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;, attempt %2 of %3.</source>
        <translation>Com «%1», tentativa %2 de %3.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;.</source>
        <translation>Com «%1».</translation>
    </message>
    <message>
        <source>%1 Attempt %2 of %3 follows.</source>
        <translation>%1 Segue-se a tentativa %2 de %3.</translation>
    </message>
</context>
<context>
    <name>DiallerFiles</name>
    <message>
        <source>Save wvdial config data failed!</source>
        <translation>Não foi possível guardar a configuração do wvdial.</translation>
    </message>
    <message>
        <source>Read default wvdial config data failed!</source>
        <translation>Não foi possível ler a configuração predefinida do wvdial.</translation>
    </message>
    <message>
        <source>open file operation error!</source>
        <translation>Não foi possível abrir o ficheiro.</translation>
    </message>
    <message>
        <source>Recover wvdial config data failed!</source>
        <translation>Não foi possível repor a configuração do wvdial.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>O DNS não é válido.</translation>
    </message>
</context>
<context>
    <name>EndSentence</name>
    <message>
        <source>The network refused the user name and the password.</source>
        <translation>A rede recusou o nome de utilizador e a palavra-passe.</translation>
    </message>
    <message>
        <source>The network did not take the call.</source>
        <translation>A rede não aceitou a chamada.</translation>
    </message>
    <message>
        <source>The line is busy. Please try again later.</source>
        <translation>A linha está ocupada. Tente mais tarde.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>A rede não respondeu a tempo.</translation>
    </message>
    <message>
        <source>The dialler ended before it was done.</source>
        <translation>O marcador terminou antes de concluir.</translation>
    </message>
    <message>
        <source>The files for the dialler could not be written.</source>
        <translation>Não foi possível escrever os ficheiros do marcador.</translation>
    </message>
    <message>
        <source>The right to connect was not given.</source>
        <translation>A autorização para ligar não foi dada.</translation>
    </message>
    <message>
        <source>The network ended the connection.</source>
        <translation>A rede terminou a ligação.</translation>
    </message>
    <message>
        <source>The network does not answer any more.</source>
        <translation>A rede deixou de responder.</translation>
    </message>
    <message>
        <source>The card was pulled out.</source>
        <translation>A placa foi retirada.</translation>
    </message>
    <message>
        <source>The connection was ended because nothing was carried.</source>
        <translation>A ligação terminou porque nada era transmitido.</translation>
    </message>
    <message>
        <source>The connection was ended because the volume is used up.</source>
        <translation>A ligação terminou porque o volume se esgotou.</translation>
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
    <name>HistoryEnd</name>
    <message>
        <source>By you</source>
        <translation>Por si</translation>
    </message>
    <message>
        <source>By the network</source>
        <translation>Pela rede</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>Dialler stopped</source>
        <translation>Marcador parado</translation>
    </message>
    <message>
        <source>Card removed</source>
        <translation>Placa retirada</translation>
    </message>
    <message>
        <source>Nothing carried</source>
        <translation>Sem tráfego</translation>
    </message>
    <message>
        <source>Volume used up</source>
        <translation>Volume esgotado</translation>
    </message>
    <message>
        <source>Program closed</source>
        <translation>Programa fechado</translation>
    </message>
    <message>
        <source>Unexpectedly</source>
        <translation>Inesperadamente</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconhecido</translation>
    </message>
</context>
<context>
    <name>MessageCounter</name>
    <message>
        <source>Symbol: %1 /%2</source>
        <translation>Caracteres: %1 /%2</translation>
    </message>
    <message>
        <source>The message is too long: it may have %1 parts.</source>
        <translation>A mensagem é demasiado longa: pode ter %1 partes.</translation>
    </message>
    <message>
        <source>Because of &quot;%1&quot; a message holds 70 characters instead of 160.</source>
        <translation>Por causa de «%1», uma mensagem leva 70 caracteres em vez de 160.</translation>
    </message>
    <message>
        <source>National letters leave 155 characters of 160.</source>
        <translation>As letras nacionais deixam 155 caracteres de 160.</translation>
    </message>
    <message>
        <source>It is sent in %1 parts.</source>
        <translation>É enviada em %1 partes.</translation>
    </message>
</context>
<context>
    <name>MessagePrint</name>
    <message>
        <source>From %1, %2</source>
        <translation>De %1, %2</translation>
    </message>
    <message>
        <source>To %1, %2</source>
        <translation>Para %1, %2</translation>
    </message>
</context>
<context>
    <name>MessageStore</name>
    <message>
        <source>%1 was empty.</source>
        <translation>%1 estava vazio.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>Não foi possível ler %1 por completo. O que continha foi guardado como %2.</translation>
    </message>
    <message>
        <source>%1 can neither be read nor moved aside.</source>
        <translation>Não é possível ler %1, nem pô-lo de parte.</translation>
    </message>
</context>
<context>
    <name>MessageTransfer</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message>
        <source>%1 is not a file of messages.</source>
        <translation>%1 não é um ficheiro de mensagens.</translation>
    </message>
    <message>
        <source>The messages of %1 could not be saved.</source>
        <translation>Não foi possível guardar as mensagens de %1.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Inbox</source>
        <translation>Caixa de entrada</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Caixa de saída</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>box</comment>
        <translation>Enviadas</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>state</comment>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>Rascunhos</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Delivery reports</source>
        <translation>Relatórios de entrega</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Cartão SIM</translation>
    </message>
    <message>
        <source>Data card</source>
        <translation>Placa de dados</translation>
    </message>
    <message>
        <source>Waiting to be sent</source>
        <translation>À espera de envio</translation>
    </message>
    <message>
        <source>Being sent</source>
        <translation>A enviar</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Entregue</translation>
    </message>
    <message>
        <source>Not delivered yet, the network still tries</source>
        <translation>Ainda por entregar, a rede continua a tentar</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>Parte %1: %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>d MMM</source>
        <extracomment>A day without its year, as QDate::toString takes it</extracomment>
        <translation>d &apos;de&apos; MMM</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>Ainda sem destinatário</translation>
    </message>
    <message>
        <source>Unknown sender</source>
        <translation>Remetente desconhecido</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>This message cannot be read</source>
        <translation>Não é possível ler esta mensagem</translation>
    </message>
    <message>
        <source>No text</source>
        <translation>Sem texto</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Pode ter sido enviada</translation>
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
        <source>&amp;Connect</source>
        <translation>Li&amp;gar</translation>
    </message>
    <message>
        <source>&amp;Edit profile</source>
        <translation>E&amp;ditar perfil</translation>
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
    <name>PduError</name>
    <message>
        <source>there is nothing</source>
        <translation>não há nada</translation>
    </message>
    <message>
        <source>this is no hexadecimal digit</source>
        <translation>isto não é um algarismo hexadecimal</translation>
    </message>
    <message>
        <source>half an octet is missing</source>
        <translation>falta meio octeto</translation>
    </message>
    <message>
        <source>the message ends too early</source>
        <translation>a mensagem termina demasiado cedo</translation>
    </message>
    <message>
        <source>the length goes past the end</source>
        <translation>o comprimento ultrapassa o fim</translation>
    </message>
    <message>
        <source>this is no message of the expected kind</source>
        <translation>esta não é uma mensagem do tipo esperado</translation>
    </message>
    <message>
        <source>the header is longer than the data</source>
        <translation>o cabeçalho é mais longo do que os dados</translation>
    </message>
    <message>
        <source>an element goes past the header</source>
        <translation>um elemento ultrapassa o cabeçalho</translation>
    </message>
    <message>
        <source>there can be no such part</source>
        <translation>não pode existir tal parte</translation>
    </message>
    <message>
        <source>half a character is missing</source>
        <translation>falta meio carácter</translation>
    </message>
    <message>
        <source>The message cannot be read: %1 (%2, octet %3).</source>
        <translation>Não é possível ler a mensagem: %1 (%2, octeto %3).</translation>
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
    <name>PppErrors</name>
    <message>
        <source>Pppd  has  detached,  or  otherwise  the  connection was successfully established and terminated at the peer&apos;s request.</source>
        <translation>O pppd separou-se do terminal, ou a ligação foi estabelecida com êxito e terminada a pedido do outro extremo.</translation>
    </message>
    <message>
        <source>An immediately fatal error of some kind occurred, such as an essential system call failing, or running out  of virtual memory.</source>
        <translation>Ocorreu um erro fatal imediato, como a falha de uma chamada essencial ao sistema ou a falta de memória virtual.</translation>
    </message>
    <message>
        <source>An error was detected in processing the options given, such as two mutually exclusive options being used.</source>
        <translation>Foi detetado um erro ao processar as opções indicadas, como o uso de duas opções incompatíveis entre si.</translation>
    </message>
    <message>
        <source>Pppd is not setuid-root and the invoking user is not root.</source>
        <translation>O pppd não tem setuid-root e o utilizador que o executa não é root.</translation>
    </message>
    <message>
        <source>The kernel does not support PPP, for example, the PPP kernel driver is not included or cannot be loaded.</source>
        <translation>O núcleo não suporta PPP; por exemplo, o controlador PPP do núcleo não está incluído ou não pode ser carregado.</translation>
    </message>
    <message>
        <source>Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal.</source>
        <translation>O pppd terminou porque recebeu um sinal SIGINT, SIGTERM ou SIGHUP.</translation>
    </message>
    <message>
        <source>The serial port could not be locked.</source>
        <translation>Não foi possível bloquear a porta série.</translation>
    </message>
    <message>
        <source>The serial port could not be opened.</source>
        <translation>Não foi possível abrir a porta série.</translation>
    </message>
    <message>
        <source>The connect script failed (returned a non-zero exit status).</source>
        <translation>O script de ligação falhou (devolveu um estado de saída diferente de zero).</translation>
    </message>
    <message>
        <source>The command specified as the argument to the pty option could not be run.</source>
        <translation>Não foi possível executar o comando indicado como argumento da opção pty.</translation>
    </message>
    <message>
        <source>The  PPP  negotiation failed, that is, it didn&apos;t reach the point where at least one network protocol (e.g. IP) was running.</source>
        <translation>A negociação PPP falhou, ou seja, não chegou ao ponto em que pelo menos um protocolo de rede (p. ex., IP) estivesse a funcionar.</translation>
    </message>
    <message>
        <source>The peer system failed (or refused) to authenticate itself.</source>
        <translation>O outro extremo não conseguiu autenticar-se (ou recusou fazê-lo).</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because it was idle.</source>
        <translation>A ligação foi estabelecida com êxito e terminou por inatividade.</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because the connect time limit was reached.</source>
        <translation>A ligação foi estabelecida com êxito e terminou porque foi atingido o limite de tempo de ligação.</translation>
    </message>
    <message>
        <source>Callback was negotiated and an incoming call should arrive shortly.</source>
        <translation>Foi negociada a devolução de chamada; em breve deverá chegar uma chamada.</translation>
    </message>
    <message>
        <source>The link was terminated because the peer is not responding to echo requests.</source>
        <translation>A ligação terminou porque o outro extremo não responde aos pedidos de eco.</translation>
    </message>
    <message>
        <source>The link was terminated by the modem hanging up.</source>
        <translation>A ligação terminou porque o modem desligou a chamada.</translation>
    </message>
    <message>
        <source>The PPP negotiation failed because serial loopback was detected.</source>
        <translation>A negociação PPP falhou porque foi detetado um retorno na linha série.</translation>
    </message>
    <message>
        <source>The init script failed (returned a non-zero exit status).</source>
        <translation>O script de inicialização falhou (devolveu um estado de saída diferente de zero).</translation>
    </message>
    <message>
        <source>We failed to authenticate ourselves to the peer.</source>
        <translation>Não conseguimos autenticar-nos perante o outro extremo.</translation>
    </message>
</context>
<context>
    <name>ProfileChecks</name>
    <message>
        <source>The dial number may hold letters, digits and * # + , . - ( ), 80 at most.</source>
        <translation>O número a marcar pode conter letras, algarismos e * # + , . - ( ), 80 no máximo.</translation>
    </message>
    <message>
        <source>The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its ends, not be a single asterisk, and be 255 bytes long at most.</source>
        <translation>O nome de utilizador não pode conter aspas nem barras invertidas, começar por uma chaveta, ter espaços nas pontas nem ser um único asterisco, e pode ter 255 bytes no máximo.</translation>
    </message>
    <message>
        <source>The password must not hold quotes, backslashes, a brace or &quot;@/&quot; at its beginning or blanks at its ends, and be 255 bytes long at most.</source>
        <translation>A palavra-passe não pode conter aspas nem barras invertidas, começar por uma chaveta ou por «@/» nem ter espaços nas pontas, e pode ter 255 bytes no máximo.</translation>
    </message>
    <message>
        <source>The name of the profile is too long.</source>
        <translation>O nome do perfil é demasiado longo.</translation>
    </message>
    <message>
        <source>The APN may hold letters, digits and . - _ @ : /, 100 at most.</source>
        <translation>O APN pode conter letras, algarismos e . - _ @ : /, 100 no máximo.</translation>
    </message>
    <message>
        <source>The address mode may hold letters and digits only.</source>
        <translation>O modo de endereço só pode conter letras e algarismos.</translation>
    </message>
    <message>
        <source>The beginning of the IMSI may hold 15 digits at most.</source>
        <translation>O início do IMSI pode ter 15 algarismos no máximo.</translation>
    </message>
    <message>
        <source>The page to open must be an address of the web.</source>
        <translation>A página a abrir tem de ser um endereço web.</translation>
    </message>
    <message>
        <source>A value holds a line break or another control character, or the text &quot;-|-&quot;.</source>
        <translation>Um valor contém uma quebra de linha ou outro carácter de controlo, ou o texto «-|-».</translation>
    </message>
    <message>
        <source>The Config Filename must be filled.</source>
        <translation>É necessário indicar o nome do perfil.</translation>
    </message>
    <message>
        <source>The Dial Number is empty!</source>
        <translation>Falta o número a marcar.</translation>
    </message>
    <message>
        <source>The APN is empty!</source>
        <translation>Falta o APN.</translation>
    </message>
    <message>
        <source>Invalid PDP!Please check it!</source>
        <translation>O PDP não é válido. Verifique-o.</translation>
    </message>
    <message>
        <source>Invalid Preferred DNS!Please check it!</source>
        <translation>O DNS preferido não é válido. Verifique-o.</translation>
    </message>
    <message>
        <source>Invalid Alternative DNS!Please check it!</source>
        <translation>O DNS alternativo não é válido. Verifique-o.</translation>
    </message>
    <message>
        <source>The card&apos;s data port has a name that cannot be used.</source>
        <translation>A porta de dados da placa tem um nome que não pode ser usado.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>The profiles in %1 cannot be read.</source>
        <translation>Não é possível ler os perfis em %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read, and cannot be kept beside.</source>
        <translation>Não é possível ler %1, nem conservá-lo à parte.</translation>
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
        <translation>«%1» não é um número: não é possível marcar «%2».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number: the digits are missing.</source>
        <translation>«%1» não é um número: faltam os algarismos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: a number has %2 characters at most.</source>
        <translation>«%1» é demasiado longo: um número tem %2 caracteres no máximo.</translation>
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
    <message>
        <source>The rights of %1 cannot be set</source>
        <translation>Não é possível definir as permissões de %1</translation>
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
    <name>SmsFiling</name>
    <message>
        <source>The text is compressed and cannot be shown.</source>
        <translation>O texto está comprimido e não pode ser mostrado.</translation>
    </message>
    <message>
        <source>The message holds data and no text.</source>
        <translation>A mensagem contém dados e nenhum texto.</translation>
    </message>
    <message>
        <source>The card lists the message without its content.</source>
        <translation>A placa lista a mensagem sem o seu conteúdo.</translation>
    </message>
    <message>
        <source>A message came in without its content.</source>
        <translation>Chegou uma mensagem sem o conteúdo.</translation>
    </message>
    <message>
        <source>Voice messages are waiting for you.</source>
        <translation>Tem mensagens de voz à espera.</translation>
    </message>
    <message>
        <source>No voice messages are waiting any more.</source>
        <translation>Já não há mensagens de voz à espera.</translation>
    </message>
    <message>
        <source>Faxes are waiting for you.</source>
        <translation>Tem faxes à espera.</translation>
    </message>
    <message>
        <source>No faxes are waiting any more.</source>
        <translation>Já não há faxes à espera.</translation>
    </message>
    <message>
        <source>E-mails are waiting for you.</source>
        <translation>Tem e-mails à espera.</translation>
    </message>
    <message>
        <source>No e-mails are waiting any more.</source>
        <translation>Já não há e-mails à espera.</translation>
    </message>
    <message>
        <source>Messages of another kind are waiting for you.</source>
        <translation>Tem mensagens de outro tipo à espera.</translation>
    </message>
    <message>
        <source>No messages of another kind are waiting any more.</source>
        <translation>Já não há mensagens de outro tipo à espera.</translation>
    </message>
</context>
<context>
    <name>SmsJobs</name>
    <message>
        <source>The card did not answer.</source>
        <translation>A placa não respondeu.</translation>
    </message>
    <message>
        <source>The card does not exchange messages as PDUs: %1</source>
        <translation>A placa não troca mensagens em forma de PDU: %1</translation>
    </message>
    <message>
        <source>New messages will not be announced: %1</source>
        <translation>As novas mensagens não serão anunciadas: %1</translation>
    </message>
    <message>
        <source>The message has no content that the card could keep.</source>
        <translation>A mensagem não tem conteúdo que a placa possa guardar.</translation>
    </message>
    <message>
        <source>The card names the message without its content.</source>
        <translation>A placa indica a mensagem sem o conteúdo.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number, %1, is too long.</source>
        <translation>O número do centro de serviço, %1, é demasiado longo.</translation>
    </message>
</context>
<context>
    <name>Traffic</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>A day without its year, as QDate::toString takes it</extracomment>
        <translation>d &apos;de&apos; MMMM</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <extracomment>A month with its year, as QDate::toString takes it</extracomment>
        <translation>MMMM &apos;de&apos; yyyy</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Ontem, %1</translation>
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
        <translation>%1 recebidos, %2 enviados</translation>
    </message>
    <message>
        <source>%1; %2 of it roaming</source>
        <translation>%1; dos quais %2 em roaming</translation>
    </message>
    <message>
        <source>%1 of %2 used (%3&#xa0;%)</source>
        <translation>%1 de %2 usados (%3 %)</translation>
    </message>
    <message>
        <source>%1 of %2 roaming (%3&#xa0;%)</source>
        <translation>%1 de %2 em roaming (%3 %)</translation>
    </message>
    <message>
        <source>Too few days are known to say what it will be by %1.</source>
        <translation>São conhecidos poucos dias para calcular quanto será até %1.</translation>
    </message>
    <message>
        <source>The volume is used up. A new one begins on %1.</source>
        <translation>O volume está esgotado. Um novo começa a %1.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2.</source>
        <translation>A este ritmo, serão cerca de %1 até %2.</translation>
    </message>
    <message>
        <source>As it goes, the volume will be used up on %1; by %2 it would be about %3.</source>
        <translation>A este ritmo, o volume esgota-se a %1; até %2 seriam cerca de %3.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2: the volume is enough.</source>
        <translation>A este ritmo, serão cerca de %1 até %2: o volume é suficiente.</translation>
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
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Ligar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Fec&amp;har</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Desligar</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>Cancelar a li&amp;gação</translation>
    </message>
    <message>
        <source>Disconnect and quit?</source>
        <translation>Desligar e sair?</translation>
    </message>
    <message>
        <source>Disconnect and &amp;quit</source>
        <translation>Desligar e sa&amp;ir</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>WvdialProcess</name>
    <message>
        <source>The dialler is running already.</source>
        <translation>O marcador já está em execução.</translation>
    </message>
    <message>
        <source>The program wvdial is missing. Please install it.</source>
        <translation>Falta o programa wvdial. Instale-o.</translation>
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
        <translation>Pastas</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversas</translation>
    </message>
    <message>
        <source>Broadcasts</source>
        <translation>Difusões</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>What is used of the places of a SIM card: &quot;SIM card, 10 of 20&quot;</extracomment>
        <translation>%1, %2 de %3</translation>
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
        <translation>&amp;Canais</translation>
    </message>
    <message>
        <source>Numbers and ranges, as 50, 4370-4372</source>
        <translation>Números e intervalos, como 50, 4370-4372</translation>
    </message>
    <message>
        <source>L&amp;isten</source>
        <translation>E&amp;scutar</translation>
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
    <name>corva::CardPlaces</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is nearly full: %1</source>
        <translation>A memória de mensagens do cartão SIM está quase cheia: %1</translation>
    </message>
    <message>
        <source>The card&apos;s memory for messages is nearly full: %1</source>
        <translation>A memória de mensagens da placa está quase cheia: %1</translation>
    </message>
    <message>
        <source>There is no card that takes messages.</source>
        <translation>Não há nenhuma placa que aceite mensagens.</translation>
    </message>
    <message>
        <source>The messages could not be written to disk and stay on the card.</source>
        <translation>Não foi possível escrever as mensagens no disco; ficam na placa.</translation>
    </message>
    <message>
        <source>Only short messages can be kept on the card.</source>
        <translation>Na placa só podem ser guardadas mensagens curtas.</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>A placa já não está ligada.</translation>
    </message>
    <message>
        <source>The message was not written to the SIM: %1</source>
        <translation>A mensagem não foi escrita no cartão SIM: %1</translation>
    </message>
    <message>
        <source>The message was not written to the card: %1</source>
        <translation>A mensagem não foi escrita na placa: %1</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is kept on the computer as well.</source>
        <translation>Não foi possível eliminar uma mensagem da placa. Também é conservada no computador.</translation>
    </message>
    <message>
        <source>The message is being sent.</source>
        <translation>A mensagem está a ser enviada.</translation>
    </message>
    <message>
        <source>It is for several people, and the card keeps messages for one.</source>
        <translation>É para várias pessoas, e a placa guarda mensagens para uma só.</translation>
    </message>
    <message>
        <source>What the card lists without its content stays where it is.</source>
        <translation>O que a placa lista sem conteúdo fica onde está.</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is in both places now.</source>
        <translation>Não foi possível eliminar uma mensagem da placa. Agora está nos dois locais.</translation>
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
    <name>corva::ChoiceDialog</name>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>corva::Class0Dialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Immediate message</source>
        <translation>Mensagem imediata</translation>
    </message>
    <message>
        <source>&amp;Keep in the inbox</source>
        <translation>&amp;Guardar na caixa de entrada</translation>
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
            <numerusform>Mais %n</numerusform>
            <numerusform>Mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Seguinte</translation>
    </message>
</context>
<context>
    <name>corva::Composer</name>
    <message>
        <source>New message</source>
        <translation>Nova mensagem</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Para</translation>
    </message>
    <message>
        <source>Delivery &amp;report</source>
        <translation>&amp;Relatório de entrega</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>Numbers, with commas between them</source>
        <translation>Números, separados por vírgulas</translation>
    </message>
    <message>
        <source>Text of the message</source>
        <translation>Texto da mensagem</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>You are told when the message was delivered</source>
        <translation>É avisado quando a mensagem for entregue</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>&amp;Modelos</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Moves the draft to the deleted messages</source>
        <translation>Move o rascunho para as mensagens eliminadas</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Rascunho</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The templates could not be stored: %1</source>
        <translation>Não foi possível guardar os modelos: %1</translation>
    </message>
    <message>
        <source>&amp;Keep this text as a template</source>
        <translation>&amp;Guardar este texto como modelo</translation>
    </message>
    <message>
        <source>&amp;Remove a template</source>
        <translation>Remover um mode&amp;lo</translation>
    </message>
    <message>
        <source>Say whom the message is for.</source>
        <translation>Indique para quem é a mensagem.</translation>
    </message>
    <message>
        <source>The message says nothing yet.</source>
        <translation>A mensagem ainda não diz nada.</translation>
    </message>
</context>
<context>
    <name>corva::Config</name>
    <message>
        <source>New profile</source>
        <translation>Novo perfil</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>Editar perfil</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fe&amp;char</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Profile &amp;name</source>
        <translation>&amp;Nome do perfil</translation>
    </message>
    <message>
        <source>&amp;Dial number</source>
        <translation>Número a &amp;marcar</translation>
    </message>
    <message>
        <source>Connect as a &amp;modem or a network card</source>
        <translation>Ligar como mo&amp;dem ou placa de rede</translation>
    </message>
    <message>
        <source>As the card can</source>
        <translation>Conforme a placa</translation>
    </message>
    <message>
        <source>Modem (dial-up)</source>
        <translation>Modem (marcação)</translation>
    </message>
    <message>
        <source>Network card</source>
        <translation>Placa de rede</translation>
    </message>
    <message>
        <source>For S&amp;IMs whose IMSI begins with</source>
        <translation>Para SIM cu&amp;jo IMSI começa por</translation>
    </message>
    <message>
        <source>any</source>
        <translation>qualquer</translation>
    </message>
    <message>
        <source>Access point (APN)</source>
        <translation>Ponto de acesso (APN)</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Ponto de acesso</translation>
    </message>
    <message>
        <source>&amp;This one</source>
        <translation>&amp;Este</translation>
    </message>
    <message>
        <source>&amp;By the network</source>
        <translation>O da &amp;rede</translation>
    </message>
    <message>
        <source>Name of the access &amp;point</source>
        <translation>Nome do &amp;ponto de acesso</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Autenticação</translation>
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
        <translation>Nenh&amp;uma</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nome de utili&amp;zador</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pala&amp;vra-passe</translation>
    </message>
    <message>
        <source>As&amp;k for them when connecting</source>
        <translation>Pedi-los ao &amp;ligar</translation>
    </message>
    <message>
        <source>Keep them in the profi&amp;le</source>
        <translation>Guardá-l&amp;os no perfil</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>From the network (d&amp;ynamic)</source>
        <translation>Da rede (d&amp;inâmico)</translation>
    </message>
    <message>
        <source>Fi&amp;xed</source>
        <translation>Fi&amp;xo</translation>
    </message>
    <message>
        <source>Fixed add&amp;ress</source>
        <translation>Endereço &amp;fixo</translation>
    </message>
    <message>
        <source>Name servers (DNS)</source>
        <translation>Servidores de nomes (DNS)</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Servidores de nomes</translation>
    </message>
    <message>
        <source>&amp;From the network</source>
        <translation>Rece&amp;bidos da rede</translation>
    </message>
    <message>
        <source>Th&amp;ese</source>
        <translation>E&amp;stes</translation>
    </message>
    <message>
        <source>Preferred (&amp;1)</source>
        <translation>Preferido (&amp;1)</translation>
    </message>
    <message>
        <source>Alternative (&amp;2)</source>
        <translation>Alternativo (&amp;2)</translation>
    </message>
    <message>
        <source>Once connected</source>
        <translation>Depois de ligar</translation>
    </message>
    <message>
        <source>Pa&amp;ge to open in the browser</source>
        <translation>Página &amp;que se abre no navegador</translation>
    </message>
    <message>
        <source>This profile came with the program and stays as it is.</source>
        <translation>Este perfil vem com o programa e não pode ser alterado.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionFacts</name>
    <message>
        <source>This connection</source>
        <translation>Esta ligação</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfego</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Servidores de nomes</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Receção</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envio</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionHead</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>&amp;Porque estou sem ligação?</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Desligar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Ligar</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>A iniciar</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>A desligar</translation>
    </message>
    <message>
        <source>Status: Connected</source>
        <translation>Estado: ligado</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Estado: desligado</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionService</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Só uma rede UMTS permite ligar durante uma chamada!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>O dispositivo foi desligado ou não está disponível.</translation>
    </message>
    <message>
        <source>Can&apos;t open deault config file!</source>
        <translation>Não é possível abrir o ficheiro do perfil predefinido!</translation>
    </message>
    <message>
        <source>This card has no network interface. Please choose dial-up in the profile.</source>
        <translation>Esta placa não tem interface de rede. Escolha o acesso telefónico no perfil.</translation>
    </message>
    <message>
        <source>The card has no data port that could be dialled on.</source>
        <translation>A placa não tem uma porta de dados para marcar.</translation>
    </message>
    <message>
        <source>There is no data transported recently. Auto Disconnect will close your internet link.</source>
        <translation>Não houve dados transmitidos recentemente. A desconexão automática vai fechar a sua ligação à internet.</translation>
    </message>
    <message>
        <source>An earlier connection was cut off and has left its own settings in files of the system. Start Corva again and enter the password: it puts them back.</source>
        <translation>Uma ligação anterior foi interrompida e deixou as suas definições em ficheiros do sistema. Inicie o Corva de novo e introduza a palavra-passe: ele repõe-os.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionSettings</name>
    <message>
        <source>Automatic connection</source>
        <translation>Ligação automática</translation>
    </message>
    <message>
        <source>&amp;Connect by itself when the card is ready</source>
        <translation>&amp;Ligar automaticamente quando a placa estiver pronta</translation>
    </message>
    <message>
        <source>&amp;Attempts</source>
        <translation>Te&amp;ntativas</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>When a connection breaks off</source>
        <translation>Quando uma ligação é interrompida</translation>
    </message>
    <message>
        <source>&amp;Dial again</source>
        <translation>&amp;Marcar de novo</translation>
    </message>
    <message>
        <source>A&amp;ttempts</source>
        <translation>&amp;Tentativas</translation>
    </message>
    <message>
        <source>&amp;First one after</source>
        <translation>&amp;Primeira após</translation>
    </message>
    <message>
        <source>Each f&amp;urther one after</source>
        <translation>As &amp;seguintes após</translation>
    </message>
    <message>
        <source>When nothing is carried</source>
        <translation>Quando não há tráfego</translation>
    </message>
    <message>
        <source>D&amp;isconnect</source>
        <translation>&amp;Desligar</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;Após</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> min</translation>
    </message>
    <message>
        <source>Dialling</source>
        <translation>Marcação</translation>
    </message>
    <message>
        <source>&amp;Longest wait for a link</source>
        <translation>&amp;Espera máxima pela ligação</translation>
    </message>
    <message>
        <source>E&amp;xplain a failure by the exit status of pppd</source>
        <translation>E&amp;xplicar uma falha pelo estado de saída do pppd</translation>
    </message>
    <message>
        <source>&amp;Open the profile&apos;s page once connected</source>
        <translation>A&amp;brir a página do perfil depois de ligar</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
</context>
<context>
    <name>corva::Connector</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Durante uma chamada só é possível ligar numa rede UMTS.</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>O dispositivo foi desligado ou não está disponível.</translation>
    </message>
    <message>
        <source>You are connecting to a roaming network. Would you like to continue?</source>
        <translation>Vai ligar-se a uma rede em roaming. Deseja continuar?</translation>
    </message>
    <message>
        <source>Which access is yours?</source>
        <translation>Qual é o seu acesso?</translation>
    </message>
    <message>
        <source>Whose SIM card is it?</source>
        <translation>De quem é o cartão SIM?</translation>
    </message>
    <message>
        <source>%1 has several. Choose yours; the choice is kept as a profile.</source>
        <translation>%1 tem vários. Escolha o seu; a escolha é guardada como perfil.</translation>
    </message>
    <message>
        <source>Several operators share this network. Choose yours; the choice is kept as a profile.</source>
        <translation>Vários operadores partilham esta rede. Escolha o seu; a escolha é guardada como perfil.</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Ligar</translation>
    </message>
    <message>
        <source>Which profile?</source>
        <translation>Que perfil?</translation>
    </message>
    <message>
        <source>It is taken from now on.</source>
        <translation>Será usado a partir de agora.</translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1, %n não lida</numerusform>
            <numerusform>%1, %n não lidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::CredentialsDialog</name>
    <message>
        <source>&amp;User name</source>
        <translation>Nome de &amp;utilizador</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Palavra-passe</translation>
    </message>
    <message>
        <source>&amp;Keep them and do not ask again</source>
        <translation>&amp;Guardá-los e não voltar a perguntar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>&amp;Ligar</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; asks for them at each connection.</source>
        <translation>O perfil «%1» pede-os em cada ligação.</translation>
    </message>
    <message>
        <source>User name and password</source>
        <translation>Nome de utilizador e palavra-passe</translation>
    </message>
</context>
<context>
    <name>corva::DataLink</name>
    <message>
        <source>Fail to connect! Link ppp0 wasn&apos;t built !</source>
        <translation>Falha ao ligar! A ligação ppp0 não foi estabelecida!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>O dispositivo foi desligado ou não está disponível.</translation>
    </message>
    <message>
        <source>The card did not accept the access point &quot;%1&quot;. Please check the APN of the profile.</source>
        <translation>A placa não aceitou o ponto de acesso «%1». Verifique o APN do perfil.</translation>
    </message>
</context>
<context>
    <name>corva::DaysChart</name>
    <message>
        <source>Volume of each day</source>
        <translation>Volume de cada dia</translation>
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
        <translation>Período anterior</translation>
    </message>
    <message>
        <source>Later period</source>
        <translation>Período seguinte</translation>
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
        <translation>Não houve tráfego neste período.</translation>
    </message>
    <message>
        <source>In all: %1</source>
        <translation>No total: %1</translation>
    </message>
</context>
<context>
    <name>corva::DhcpClient</name>
    <message>
        <source>There is no such network interface.</source>
        <translation>Essa interface de rede não existe.</translation>
    </message>
    <message>
        <source>There is no DHCP client. Please install isc-dhcp-client.</source>
        <translation>Não há nenhum cliente DHCP. Instale o isc-dhcp-client.</translation>
    </message>
    <message>
        <source>The network gave no address.</source>
        <translation>A rede não deu nenhum endereço.</translation>
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
    <name>corva::DialUpLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>A ligação falhou!</translation>
    </message>
    <message>
        <source>Fail to connect! exit code is</source>
        <translation>Falha ao ligar! O código de saída é</translation>
    </message>
    <message>
        <source>The card&apos;s data port cannot be opened: %1</source>
        <translation>Não é possível abrir a porta de dados da placa: %1</translation>
    </message>
    <message>
        <source>The card does not answer on its data port.</source>
        <translation>A placa não responde na sua porta de dados.</translation>
    </message>
    <message>
        <source>The card refused a command on its data port.</source>
        <translation>A placa recusou um comando na sua porta de dados.</translation>
    </message>
</context>
<context>
    <name>corva::DialWork</name>
    <message>
        <source>You may not use this card&apos;s data port.</source>
        <translation>Não tem permissão para usar a porta de dados desta placa.</translation>
    </message>
    <message>
        <source>The network interface does not belong to the card.</source>
        <translation>A interface de rede não pertence à placa.</translation>
    </message>
    <message>
        <source>The network interface has no address from here.</source>
        <translation>A interface de rede não recebeu daqui o seu endereço.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>O DNS não é válido.</translation>
    </message>
    <message>
        <source>The dialler could not be started.</source>
        <translation>Não foi possível iniciar o marcador.</translation>
    </message>
    <message>
        <source>The dialler is running already.</source>
        <translation>O marcador já está em execução.</translation>
    </message>
    <message>
        <source>The connection was cancelled.</source>
        <translation>A ligação foi cancelada.</translation>
    </message>
    <message>
        <source>The route helper is not run: others may write it.</source>
        <translation>O auxiliar de rotas não é executado: outros podem escrever nele.</translation>
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
    <name>corva::FormField</name>
    <message>
        <source>Show the password</source>
        <translation>Mostrar a palavra-passe</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ocultar a palavra-passe</translation>
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
    <name>corva::HelperBackend</name>
    <message>
        <source>Connecting needs an administrator&apos;s rights, and the program &quot;pkexec&quot;, which asks for them, is missing. Please install it.</source>
        <translation>Para ligar são necessárias permissões de administrador, e falta o programa «pkexec», que as pede. Instale-o.</translation>
    </message>
    <message>
        <source>The program that dials has ended unexpectedly. Please try again.</source>
        <translation>O programa que faz a marcação terminou inesperadamente. Tente de novo.</translation>
    </message>
    <message>
        <source>The right to connect was not given. Please connect again and enter the password.</source>
        <translation>Não foi dada permissão para ligar. Volte a ligar e introduza a palavra-passe.</translation>
    </message>
    <message>
        <source>The right to connect could not be asked for. Ask an administrator to run &quot;tools/install-dialhelper&quot;, or start Corva in a desktop session.</source>
        <translation>Não foi possível pedir permissão para ligar. Peça a um administrador que execute «tools/install-dialhelper», ou inicie o Corva numa sessão de ambiente de trabalho.</translation>
    </message>
    <message>
        <source>The program that dials could not be started. Ask an administrator to run &quot;tools/install-dialhelper&quot;.</source>
        <translation>Não foi possível iniciar o programa que faz a marcação. Peça a um administrador que execute «tools/install-dialhelper».</translation>
    </message>
</context>
<context>
    <name>corva::HistoryModel</name>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>From %1
to %2</source>
        <translation>De %1
a %2</translation>
    </message>
</context>
<context>
    <name>corva::HistoryTab</name>
    <message>
        <source>Delete &amp;all</source>
        <translation>Eliminar &amp;tudo</translation>
    </message>
    <message>
        <source>Search the history</source>
        <translation>Procurar no histórico</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Procurar (%1)</translation>
    </message>
    <message>
        <source>Connections that are over</source>
        <translation>Ligações terminadas</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %n entries</source>
        <translation>
            <numerusform>E&amp;liminar %n entrada</numerusform>
            <numerusform>E&amp;liminar %n entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete entry</source>
        <translation>E&amp;liminar entrada</translation>
    </message>
    <message>
        <source>No connection was made yet. Each one is listed here once it is over.</source>
        <translation>Ainda não foi feita nenhuma ligação. Cada uma aparece aqui depois de terminar.</translation>
    </message>
    <message>
        <source>No entry has all of these words.</source>
        <translation>Nenhuma entrada contém todas estas palavras.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>Foi eliminada %n entrada.</numerusform>
            <numerusform>Foram eliminadas %n entradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nular</translation>
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
    <name>corva::MessageActions</name>
    <message>
        <source>&amp;Reply</source>
        <translation>&amp;Responder</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Reencamin&amp;har</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Put &amp;back</source>
        <translation>Rep&amp;or</translation>
    </message>
    <message>
        <source>Send a&amp;gain</source>
        <translation>Enviar de no&amp;vo</translation>
    </message>
    <message>
        <source>Mark as rea&amp;d</source>
        <translation>M&amp;arcar como lida</translation>
    </message>
    <message>
        <source>Mark as &amp;unread</source>
        <translation>Marcar como não li&amp;da</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>&amp;Copiar o texto</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primir…</translation>
    </message>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>E&amp;liminar %n mensagem</numerusform>
            <numerusform>E&amp;liminar %n mensagens</numerusform>
        </translation>
    </message>
    <message>
        <source>Cop&amp;y to</source>
        <translation>Cop&amp;iar para</translation>
    </message>
    <message>
        <source>&amp;Move to</source>
        <translation>&amp;Mover para</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>Foi eliminada %n mensagem.</numerusform>
            <numerusform>Foram eliminadas %n mensagens.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>Eliminar %n mensagem definitivamente?</numerusform>
            <numerusform>Eliminar %n mensagens definitivamente?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>Eliminar %n men&amp;sagem</numerusform>
            <numerusform>Eliminar %n men&amp;sagens</numerusform>
        </translation>
    </message>
    <message>
        <source>The message may have gone out already. Send it again?</source>
        <translation>A mensagem pode já ter sido enviada. Enviar de novo?</translation>
    </message>
</context>
<context>
    <name>corva::MessageBrowser</name>
    <message>
        <source>No message has come yet.</source>
        <translation>Ainda não chegou nenhuma mensagem.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent.</source>
        <translation>Não há nada à espera de envio.</translation>
    </message>
    <message>
        <source>You have sent no message yet.</source>
        <translation>Ainda não enviou nenhuma mensagem.</translation>
    </message>
    <message>
        <source>No drafts. What you write is kept here until you send it.</source>
        <translation>Sem rascunhos. O que escrever fica guardado aqui até o enviar.</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>Nada foi eliminado.</translation>
    </message>
    <message>
        <source>No delivery report has come yet.</source>
        <translation>Ainda não chegou nenhum relatório de entrega.</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversas</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>Reading the messages…</source>
        <translation>A ler as mensagens…</translation>
    </message>
    <message>
        <source>No message has all of these words.</source>
        <translation>Nenhuma mensagem contém todas estas palavras.</translation>
    </message>
    <message>
        <source>Nobody has written yet. Press Ctrl+N to write first.</source>
        <translation>Ainda ninguém escreveu. Prima Ctrl+N para escrever primeiro.</translation>
    </message>
    <message>
        <source>No broadcast has come yet. Choose the channels to listen to above.</source>
        <translation>Ainda não chegou nenhuma difusão. Escolha acima os canais a escutar.</translation>
    </message>
    <message>
        <source>Reading the %1…</source>
        <translation>A ler: %1…</translation>
    </message>
    <message>
        <source>No message is kept there.</source>
        <translation>Não há nenhuma mensagem guardada aí.</translation>
    </message>
    <message>
        <source>It was not read yet. Is a card plugged in?</source>
        <translation>Ainda não foi lido. Há uma placa ligada?</translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>Há %n mensagem não lida.</numerusform>
            <numerusform>Há %n mensagens não lidas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
    <message>
        <source>New message from %1</source>
        <translation>Nova mensagem de %1</translation>
    </message>
    <message>
        <source>Broadcast on channel %1</source>
        <translation>Difusão no canal %1</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Enviadas com êxito: %1; falhadas: %2</translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message>
        <source>Export messages</source>
        <translation>Exportar mensagens</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tabelas CSV (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>%n mensagem foi escrita em %1.</numerusform>
            <numerusform>%n mensagens foram escritas em %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The messages could not be written: %1</source>
        <translation>Não foi possível escrever as mensagens: %1</translation>
    </message>
    <message>
        <source>Import messages</source>
        <translation>Importar mensagens</translation>
    </message>
    <message>
        <source>Exported messages (*.csv *.json)</source>
        <translation>Mensagens exportadas (*.csv *.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>%n mensagem foi adicionada.</numerusform>
            <numerusform>%n mensagens foram adicionadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>%n já estava aqui.</numerusform>
            <numerusform>%n já estavam aqui.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>%n não pôde ser lida.</numerusform>
            <numerusform>%n não puderam ser lidas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageListModel</name>
    <message>
        <source>Unread</source>
        <translation>Não lida</translation>
    </message>
</context>
<context>
    <name>corva::MessageService</name>
    <message>
        <source>The card did not take the broadcast channels: %1</source>
        <translation>A placa não aceitou os canais de difusão: %1</translation>
    </message>
    <message>
        <source>The text is too long for one message.</source>
        <translation>O texto é demasiado longo para uma só mensagem.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was not stored: %1</source>
        <translation>O número do centro de serviço não foi guardado: %1</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>A placa já não está ligada.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was stored.</source>
        <translation>O número do centro de serviço foi guardado.</translation>
    </message>
</context>
<context>
    <name>corva::MessageSettings</name>
    <message>
        <source>Sending</source>
        <translation>Envio</translation>
    </message>
    <message>
        <source>The network &amp;tries for</source>
        <translation>A rede &amp;tenta durante</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 horas</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 horas</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 semana</translation>
    </message>
    <message>
        <source>As long as it may</source>
        <translation>O máximo possível</translation>
    </message>
    <message>
        <source>National &amp;letters</source>
        <translation>&amp;Letras nacionais</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turcas</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espanholas</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portuguesas</translation>
    </message>
    <message>
        <source>&amp;Ask for a report when a message is delivered</source>
        <translation>&amp;Pedir um relatório quando uma mensagem for entregue</translation>
    </message>
    <message>
        <source>Keeping</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Neste computador</translation>
    </message>
    <message>
        <source>On the SIM card</source>
        <translation>No cartão SIM</translation>
    </message>
    <message>
        <source>On the data card</source>
        <translation>Na placa de dados</translation>
    </message>
    <message>
        <source>Where the network says</source>
        <translation>Onde a rede indicar</translation>
    </message>
    <message>
        <source>&amp;New messages are kept</source>
        <translation>As &amp;novas mensagens são guardadas</translation>
    </message>
    <message>
        <source>The data card&apos;s o&amp;wn memory is used, too</source>
        <translation>Usar ta&amp;mbém a memória própria da placa de dados</translation>
    </message>
    <message>
        <source>Delete &amp;read messages from a full SIM card</source>
        <translation>&amp;Eliminar as mensagens lidas de um cartão SIM cheio</translation>
    </message>
    <message>
        <source>What you are told</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>&amp;Unread messages, when the program starts</source>
        <translation>Mensagens não lidas, no &amp;arranque do programa</translation>
    </message>
    <message>
        <source>&amp;Delivery reports, in a box when they come</source>
        <translation>&amp;Relatórios de entrega, numa caixa quando chegam</translation>
    </message>
    <message>
        <source>Delivery reports, in a &amp;folder of their own</source>
        <translation>Relatórios de entrega, numa pa&amp;sta própria</translation>
    </message>
    <message>
        <source>Messages that cells &amp;broadcast to everybody</source>
        <translation>Mensagens que as células &amp;difundem a todos</translation>
    </message>
    <message>
        <source>&amp;Immediate messages show</source>
        <translation>As mensagens &amp;imediatas mostram</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> linhas</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensagens</translation>
    </message>
</context>
<context>
    <name>corva::MonthsModel</name>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recebido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>No total</translation>
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
    <name>corva::NetworkCardLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>A ligação falhou!</translation>
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
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Até agora está tudo bem; a placa está a tratar disso.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Um passo não está em ordem. Os passos seguintes vêm por si.</translation>
    </message>
    <message>
        <source>Everything from the socket to the internet is in order.</source>
        <translation>Da entrada USB à internet, está tudo em ordem.</translation>
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
        <translation>O que o gráfico mostra</translation>
    </message>
    <message>
        <source>The last minute</source>
        <translation>O último minuto</translation>
    </message>
    <message>
        <source>The last 10 minutes</source>
        <translation>Os últimos 10 minutos</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>This connection, %1</source>
        <translation>Esta ligação, %1</translation>
    </message>
    <message>
        <source>Last connection, %1</source>
        <translation>Última ligação, %1</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>None was made yet.</source>
        <translation>Ainda não foi feita nenhuma.</translation>
    </message>
    <message>
        <source>Days and months are not counted: the configuration turns it off.</source>
        <translation>Os dias e os meses não são contados: a configuração desativa-o.</translation>
    </message>
    <message>
        <source>%1 Say in the settings, Traffic, what volume you have, to be warned in time.</source>
        <translation>%1 Indique nas definições, em Tráfego, que volume tem, para ser avisado a tempo.</translation>
    </message>
    <message>
        <source>Down %1 (filled), up %2 (dashed)</source>
        <translation>Receção %1 (preenchido), envio %2 (tracejado)</translation>
    </message>
    <message>
        <source>The graph runs while a connection is up.</source>
        <translation>O gráfico avança enquanto houver uma ligação.</translation>
    </message>
</context>
<context>
    <name>corva::PlainTextView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar «%1»</translation>
    </message>
</context>
<context>
    <name>corva::ProfileList</name>
    <message>
        <source>access point from the network</source>
        <translation>ponto de acesso da rede</translation>
    </message>
    <message>
        <source>%1, connects with it</source>
        <translation>%1, liga com ele</translation>
    </message>
    <message>
        <source>No profile yet</source>
        <translation>Ainda não há perfis</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Adicionar</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Make de&amp;fault</source>
        <translation>Usar por prede&amp;finição</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add a profile</source>
        <translation>Adicionar um perfil</translation>
    </message>
    <message>
        <source>Connect with this profile from now on</source>
        <translation>Ligar com este perfil a partir de agora</translation>
    </message>
    <message>
        <source>Vi&amp;ew</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>Eliminar o perfil «%1»?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Eli&amp;minar</translation>
    </message>
    <message>
        <source>Connects with &quot;%1&quot; from now on.</source>
        <translation>A partir de agora, liga com «%1».</translation>
    </message>
</context>
<context>
    <name>corva::ProfileStore</name>
    <message>
        <source>There is a profile with this name already.</source>
        <translation>Já existe um perfil com este nome.</translation>
    </message>
    <message>
        <source>There is no profile with this name.</source>
        <translation>Não existe nenhum perfil com este nome.</translation>
    </message>
    <message>
        <source>This profile may not be changed.</source>
        <translation>Este perfil não pode ser alterado.</translation>
    </message>
    <message>
        <source>This profile may not be deleted.</source>
        <translation>Este perfil não pode ser eliminado.</translation>
    </message>
</context>
<context>
    <name>corva::RateGraph</name>
    <message>
        <source>Graph of the rates</source>
        <translation>Gráfico das velocidades</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>now</source>
        <translation>agora</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
</context>
<context>
    <name>corva::ReadingPane</name>
    <message>
        <source>De&amp;tails</source>
        <translation>De&amp;talhes</translation>
    </message>
    <message>
        <source>The message</source>
        <translation>A mensagem</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
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
        <translation>Chegaram %1 partes. As restantes são adicionadas quando chegarem.</translation>
    </message>
    <message>
        <source>Service centre: %1</source>
        <translation>Centro de serviço: %1</translation>
    </message>
    <message>
        <source>Arrived: %1</source>
        <translation>Chegada: %1</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>Canal: %1</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>Parte %1: %2</translation>
    </message>
    <message>
        <source>It did not travel yet.</source>
        <translation>Ainda não foi transmitida.</translation>
    </message>
</context>
<context>
    <name>corva::SendBar</name>
    <message>
        <source>Sent parts</source>
        <translation>Partes enviadas</translation>
    </message>
    <message>
        <source>&amp;Cancel sending</source>
        <translation>&amp;Cancelar o envio</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 de %3</translation>
    </message>
    <message>
        <source>Sending ...</source>
        <translation>A enviar…</translation>
    </message>
    <message>
        <source>Do you want to cancel sending the rest SMS?</source>
        <translation>Deseja cancelar o envio dos SMS restantes?</translation>
    </message>
</context>
<context>
    <name>corva::SendQueue</name>
    <message>
        <source>The message could not be written to disk and is not sent.</source>
        <translation>Não foi possível escrever a mensagem no disco; não é enviada.</translation>
    </message>
    <message>
        <source>The message could not be written to disk.</source>
        <translation>Não foi possível escrever a mensagem no disco.</translation>
    </message>
    <message>
        <source>The alphabet&apos;s settings have changed since it was written.</source>
        <translation>As definições do alfabeto mudaram desde que foi escrita.</translation>
    </message>
    <message>
        <source>The message to %1 was not sent: %2</source>
        <translation>A mensagem para %1 não foi enviada: %2</translation>
    </message>
    <message>
        <source>There is another SIM in the card. What waited was not sent.</source>
        <translation>Há outro cartão SIM na placa. O que estava à espera não foi enviado.</translation>
    </message>
    <message>
        <source>The message to %1 may have been sent: the card did not say.</source>
        <translation>A mensagem para %1 pode ter sido enviada: a placa não o disse.</translation>
    </message>
</context>
<context>
    <name>corva::ServiceCentreDialog</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Número</translation>
    </message>
    <message>
        <source>Service centre</source>
        <translation>Centro de serviço</translation>
    </message>
    <message>
        <source>Every message goes through the operator&apos;s service centre. Its number is on the SIM card; change it only when your operator asks you to.</source>
        <translation>Todas as mensagens passam pelo centro de serviço do operador. O número está no cartão SIM; altere-o só quando o seu operador lho pedir.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>One number is needed.</source>
        <translation>É necessário um número.</translation>
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
    <name>corva::SmsReception</name>
    <message>
        <source>A new message could not be read from the card: %1</source>
        <translation>Não foi possível ler uma nova mensagem da placa: %1</translation>
    </message>
    <message>
        <source>A new message could not be written to disk and stays on the card.</source>
        <translation>Não foi possível escrever uma nova mensagem no disco; fica na placa.</translation>
    </message>
    <message>
        <source>A delivery report could not be read from the card: %1</source>
        <translation>Não foi possível ler um relatório de entrega da placa: %1</translation>
    </message>
    <message>
        <source>Message was successfully sent to %1, in %2,at %3</source>
        <translation>A mensagem foi enviada com êxito para %1 (envio: %2; entrega: %3)</translation>
    </message>
    <message>
        <source>The message to %1: %2</source>
        <translation>A mensagem para %1: %2</translation>
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
    <name>corva::StatisticsStore</name>
    <message>
        <source>%1 could not be read in full.</source>
        <translation>Não foi possível ler %1 por completo.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>Não foi possível ler %1 por completo. O que continha foi guardado como %2.</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>Não é possível eliminar %1: %2</translation>
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
    <name>corva::TemplateStore</name>
    <message>
        <source>%1 cannot be read, and could not be kept beside.</source>
        <translation>Não é possível ler %1, nem foi possível conservá-lo à parte.</translation>
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
        <translation>Recebida: %1, %2</translation>
    </message>
    <message>
        <source>Written: %1, %2</source>
        <translation>Escrita: %1, %2</translation>
    </message>
</context>
<context>
    <name>corva::ThreadPane</name>
    <message>
        <source>Show &amp;earlier messages</source>
        <translation>Mostrar mensagens &amp;anteriores</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>E&amp;screver</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>Conversa</translation>
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
    <name>corva::TrafficPage</name>
    <message>
        <source>E&amp;xport as CSV…</source>
        <translation>E&amp;xportar como CSV…</translation>
    </message>
    <message>
        <source>Writes the history to a file that spreadsheets read</source>
        <translation>Escreve o histórico num ficheiro que as folhas de cálculo leem</translation>
    </message>
    <message>
        <source>Writes days and months to a file that spreadsheets read</source>
        <translation>Escreve os dias e os meses num ficheiro que as folhas de cálculo leem</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Resumo</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>&amp;Dias</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Meses</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Histórico</translation>
    </message>
    <message>
        <source>Volume of each month</source>
        <translation>Volume de cada mês</translation>
    </message>
    <message>
        <source>Export the history</source>
        <translation>Exportar o histórico</translation>
    </message>
    <message>
        <source>Export days and months</source>
        <translation>Exportar dias e meses</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tabelas CSV (*.csv)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado em %1.</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>Não foi possível escrever a tabela: %1</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfego</translation>
    </message>
</context>
<context>
    <name>corva::TrafficService</name>
    <message>
        <source>%1 The connection is ended, as you set it in the settings, Traffic.</source>
        <translation>%1 A ligação é terminada, como indicou nas definições, em Tráfego.</translation>
    </message>
    <message>
        <source>Your volume of %1 until %2 is used up.</source>
        <translation>O seu volume de %1 até %2 está esgotado.</translation>
    </message>
    <message>
        <source>Your volume of %1 for roaming until %2 is used up.</source>
        <translation>O seu volume de %1 para roaming até %2 está esgotado.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 until %3 are used up.</source>
        <translation>Já usou %1 % do seu volume de %2 até %3.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 for roaming until %3 are used up.</source>
        <translation>Já usou %1 % do seu volume de %2 para roaming até %3.</translation>
    </message>
</context>
<context>
    <name>corva::TrafficSettingsPage</name>
    <message>
        <source>Your volume</source>
        <translation>O seu volume</translation>
    </message>
    <message>
        <source>&amp;Volume of a month</source>
        <translation>&amp;Volume mensal</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>While &amp;roaming</source>
        <translation>Em &amp;roaming</translation>
    </message>
    <message>
        <source>Counts with it</source>
        <translation>Incluído nele</translation>
    </message>
    <message>
        <source>It begins anew on &amp;day</source>
        <translation>Recomeça no &amp;dia</translation>
    </message>
    <message>
        <source>When it runs out</source>
        <translation>Quando se esgota</translation>
    </message>
    <message>
        <source>&amp;Warn at</source>
        <translation>&amp;Avisar aos</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Unidade: %1</translation>
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
        <translation>Nunca</translation>
    </message>
    <message>
        <source>&amp;End the connection when the volume is used up</source>
        <translation>&amp;Terminar a ligação quando o volume se esgotar</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfego</translation>
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
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Desligar</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>Ca&amp;ncelar a ligação</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Ligar</translation>
    </message>
</context>
<context>
    <name>corva::WirelessWindow</name>
    <message>
        <source>Plug the card in to connect.</source>
        <translation>Ligue a placa ao computador para poder estabelecer a ligação.</translation>
    </message>
    <message>
        <source>Connect goes by the profile &quot;%1&quot;.</source>
        <translation>A ligação é feita com o perfil «%1».</translation>
    </message>
    <message>
        <source>The settings of %1 are known: just connect.</source>
        <translation>As definições de %1 são conhecidas: basta ligar.</translation>
    </message>
    <message>
        <source>The settings for this SIM card are known: connect, and say whose it is.</source>
        <translation>As definições para este cartão SIM são conhecidas: ligue e indique de quem é.</translation>
    </message>
    <message>
        <source>Add a profile with the access point that your operator has told you.</source>
        <translation>Adicione um perfil com o ponto de acesso que o seu operador lhe indicou.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
</context>
</TS>
