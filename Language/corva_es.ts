<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message>
        <source>&amp;New message</source>
        <translation>Mensaje &amp;nuevo</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>Má&amp;s</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Mensaje nuevo</translation>
    </message>
    <message>
        <source>Search all messages</source>
        <translation>Buscar en todos los mensajes</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Buscar (%1)</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Enviados correctamente: %1; fallidos: %2</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importar…</translation>
    </message>
    <message>
        <source>&amp;Undo deleting</source>
        <translation>Deshacer la &amp;eliminación</translation>
    </message>
    <message>
        <source>Read the SIM and the data card ane&amp;w</source>
        <translation>&amp;Volver a leer la SIM y la tarjeta de datos</translation>
    </message>
    <message>
        <source>&amp;Service centre…</source>
        <translation>&amp;Centro de servicio…</translation>
    </message>
    <message>
        <source>Choose a message to read it, or write one with Ctrl+N.</source>
        <translation>Elija un mensaje para leerlo, o escriba uno con Ctrl+N.</translation>
    </message>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>Se ha elegido %n mensaje.</numerusform>
            <numerusform>Se han elegido %n mensajes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The draft was deleted.</source>
        <translation>Se eliminó el borrador.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>There is nothing to bring back.</source>
        <translation>No hay nada que recuperar.</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Re&amp;intentar</translation>
    </message>
    <message>
        <source>%1: %2 of %3 places are used. When it is full, no message can come in.</source>
        <translation>%1: %2 de %3 posiciones ocupadas. Cuando se llene, no podrá entrar ningún mensaje.</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
</context>
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
    <name>Channels</name>
    <message>
        <source>&quot;%1&quot; is no channel. Channels are numbers from 0 to 65535, or ranges as 10-15.</source>
        <translation>«%1» no es un canal. Los canales son números de 0 a 65535, o intervalos como 10-15.</translation>
    </message>
    <message>
        <source>These are more than %1 channels.</source>
        <translation>Son más de %1 canales.</translation>
    </message>
</context>
<context>
    <name>CmsErrors</name>
    <message>
        <source>The number does not exist.</source>
        <translation>El número no existe.</translation>
    </message>
    <message>
        <source>The operator has barred messages for this SIM.</source>
        <translation>El operador ha bloqueado los mensajes de esta SIM.</translation>
    </message>
    <message>
        <source>Sending is barred.</source>
        <translation>El envío está bloqueado.</translation>
    </message>
    <message>
        <source>The network failed.</source>
        <translation>La red falló.</translation>
    </message>
    <message>
        <source>The network rejected the message.</source>
        <translation>La red rechazó el mensaje.</translation>
    </message>
    <message>
        <source>The memory for messages is full.</source>
        <translation>La memoria de mensajes está llena.</translation>
    </message>
    <message>
        <source>The recipient cannot be reached.</source>
        <translation>No se puede localizar al destinatario.</translation>
    </message>
    <message>
        <source>The network does not know this SIM.</source>
        <translation>La red no conoce esta SIM.</translation>
    </message>
    <message>
        <source>The network does not offer this service.</source>
        <translation>La red no ofrece este servicio.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>La red está fuera de servicio.</translation>
    </message>
    <message>
        <source>The network failed for the moment.</source>
        <translation>La red falló temporalmente.</translation>
    </message>
    <message>
        <source>The network is overloaded.</source>
        <translation>La red está sobrecargada.</translation>
    </message>
    <message>
        <source>The network has no room for the message.</source>
        <translation>La red no tiene espacio para el mensaje.</translation>
    </message>
    <message>
        <source>Messages are not part of this subscription.</source>
        <translation>Los mensajes no están incluidos en este contrato.</translation>
    </message>
    <message>
        <source>The network did not understand the message.</source>
        <translation>La red no entendió el mensaje.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network failed.</source>
        <translation>La red del destinatario falló.</translation>
    </message>
    <message>
        <source>This kind of message is not supported.</source>
        <translation>Este tipo de mensaje no se admite.</translation>
    </message>
    <message>
        <source>The message cannot replace another one.</source>
        <translation>El mensaje no puede reemplazar a otro.</translation>
    </message>
    <message>
        <source>The message&apos;s alphabet is not supported.</source>
        <translation>El alfabeto del mensaje no se admite.</translation>
    </message>
    <message>
        <source>The service centre refused the command.</source>
        <translation>El centro de servicio rechazó la orden.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>El centro de servicio está ocupado.</translation>
    </message>
    <message>
        <source>The service centre does not serve this SIM.</source>
        <translation>El centro de servicio no da servicio a esta SIM.</translation>
    </message>
    <message>
        <source>The service centre failed.</source>
        <translation>El centro de servicio falló.</translation>
    </message>
    <message>
        <source>The number is not valid.</source>
        <translation>El número no es válido.</translation>
    </message>
    <message>
        <source>The recipient is barred.</source>
        <translation>El destinatario está bloqueado.</translation>
    </message>
    <message>
        <source>The service centre has this message already.</source>
        <translation>El centro de servicio ya tiene este mensaje.</translation>
    </message>
    <message>
        <source>The service centre refuses the validity period.</source>
        <translation>El centro de servicio rechaza el periodo de validez.</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is full.</source>
        <translation>La memoria de mensajes de la SIM está llena.</translation>
    </message>
    <message>
        <source>The SIM cannot hold messages.</source>
        <translation>La SIM no puede guardar mensajes.</translation>
    </message>
    <message>
        <source>The card failed.</source>
        <translation>La tarjeta falló.</translation>
    </message>
    <message>
        <source>The SIM is busy.</source>
        <translation>La SIM está ocupada.</translation>
    </message>
    <message>
        <source>The SIM failed.</source>
        <translation>La SIM falló.</translation>
    </message>
    <message>
        <source>The card&apos;s message service is in use.</source>
        <translation>El servicio de mensajes de la tarjeta está en uso.</translation>
    </message>
    <message>
        <source>The card does not allow this now.</source>
        <translation>La tarjeta no permite esto ahora.</translation>
    </message>
    <message>
        <source>The card cannot do this.</source>
        <translation>La tarjeta no puede hacer esto.</translation>
    </message>
    <message>
        <source>The card did not understand the message.</source>
        <translation>La tarjeta no entendió el mensaje.</translation>
    </message>
    <message>
        <source>There is no SIM in the card.</source>
        <translation>No hay ninguna SIM en la tarjeta.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>La SIM pide su PIN.</translation>
    </message>
    <message>
        <source>The card asks for its own PIN.</source>
        <translation>La tarjeta pide su propio PIN.</translation>
    </message>
    <message>
        <source>This SIM does not fit the card.</source>
        <translation>Esta SIM no es adecuada para la tarjeta.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>La SIM pide su PUK.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN2.</source>
        <translation>La SIM pide su PIN2.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK2.</source>
        <translation>La SIM pide su PUK2.</translation>
    </message>
    <message>
        <source>The memory for messages failed.</source>
        <translation>La memoria de mensajes falló.</translation>
    </message>
    <message>
        <source>There is no message at this place.</source>
        <translation>No hay ningún mensaje en esta posición.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>No se conoce el número del centro de servicio.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>No hay red.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>La red no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The card expected no confirmation.</source>
        <translation>La tarjeta no esperaba ninguna confirmación.</translation>
    </message>
    <message>
        <source>The card does not say why.</source>
        <translation>La tarjeta no dice por qué.</translation>
    </message>
    <message>
        <source>The message was delivered.</source>
        <translation>El mensaje se entregó.</translation>
    </message>
    <message>
        <source>The message was replaced by a newer one.</source>
        <translation>El mensaje fue reemplazado por otro más reciente.</translation>
    </message>
    <message>
        <source>The message could not be delivered yet; the network goes on trying.</source>
        <translation>El mensaje aún no se ha podido entregar; la red lo sigue intentando.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device cannot take the message.</source>
        <translation>El dispositivo del destinatario no puede recibir el mensaje.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device refused the message.</source>
        <translation>El dispositivo del destinatario rechazó el mensaje.</translation>
    </message>
    <message>
        <source>The message could not be delivered in time.</source>
        <translation>El mensaje no se pudo entregar a tiempo.</translation>
    </message>
    <message>
        <source>The service centre does not know the message.</source>
        <translation>El centro de servicio no conoce el mensaje.</translation>
    </message>
    <message>
        <source>The message could not be delivered.</source>
        <translation>El mensaje no se pudo entregar.</translation>
    </message>
    <message>
        <source>The card says: %1</source>
        <translation>La tarjeta dice: %1</translation>
    </message>
    <message>
        <source>The card refuses, with the code %1.</source>
        <translation>La tarjeta lo rechaza, con el código %1.</translation>
    </message>
    <message>
        <source>The card refuses, without saying why.</source>
        <translation>La tarjeta lo rechaza, sin decir por qué.</translation>
    </message>
    <message>
        <source>The network refused the message, without saying why.</source>
        <translation>La red rechazó el mensaje sin decir por qué.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device is busy.</source>
        <translation>El dispositivo del destinatario está ocupado.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device does not answer.</source>
        <translation>El dispositivo del destinatario no responde.</translation>
    </message>
    <message>
        <source>The network has not the quality of service that the message asks for.</source>
        <translation>La red no ofrece la calidad de servicio que pide el mensaje.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device failed.</source>
        <translation>El dispositivo del destinatario falló.</translation>
    </message>
    <message>
        <source>The message was passed on; whether it arrived is not known.</source>
        <translation>El mensaje se transmitió; no se sabe si llegó.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network does not work with this one.</source>
        <translation>La red del destinatario no funciona con esta.</translation>
    </message>
    <message>
        <source>The message was deleted by its sender before it was delivered.</source>
        <translation>El remitente eliminó el mensaje antes de que se entregara.</translation>
    </message>
    <message>
        <source>The service centre deleted the message before it was delivered.</source>
        <translation>El centro de servicio eliminó el mensaje antes de que se entregara.</translation>
    </message>
</context>
<context>
    <name>ConnectionDiagnosis</name>
    <message>
        <source>No profile is chosen</source>
        <translation>No se ha elegido ningún perfil</translation>
    </message>
    <message>
        <source>A profile says how to reach the internet through your operator. Those of most operators are known; choose one, or add your own.</source>
        <translation>Un perfil indica cómo llegar a internet a través de su operador. Los de la mayoría de los operadores ya se conocen; elija uno o añada el suyo.</translation>
    </message>
    <message>
        <source>The network chooses it</source>
        <translation>Lo elige la red</translation>
    </message>
    <message>
        <source>The profile names no access point</source>
        <translation>El perfil no indica ningún punto de acceso</translation>
    </message>
    <message>
        <source>Your operator can tell you its name (APN). Enter it in the profile.</source>
        <translation>Su operador puede decirle el nombre (APN). Introdúzcalo en el perfil.</translation>
    </message>
    <message>
        <source>User name or password refused</source>
        <translation>Nombre de usuario o contraseña rechazados</translation>
    </message>
    <message>
        <source>The call was not taken</source>
        <translation>La llamada no fue atendida</translation>
    </message>
    <message>
        <source>The line was busy</source>
        <translation>La línea estaba ocupada</translation>
    </message>
    <message>
        <source>No link within the time</source>
        <translation>No hubo enlace dentro del plazo</translation>
    </message>
    <message>
        <source>The dialler failed</source>
        <translation>El marcador falló</translation>
    </message>
    <message>
        <source>System files cannot be changed</source>
        <translation>No se pueden modificar los archivos del sistema</translation>
    </message>
    <message>
        <source>No right to dial</source>
        <translation>Sin permiso para marcar</translation>
    </message>
    <message>
        <source>The network ended the connection</source>
        <translation>La red finalizó la conexión</translation>
    </message>
    <message>
        <source>The connection broke off</source>
        <translation>La conexión se cortó</translation>
    </message>
    <message>
        <source>The card was taken out</source>
        <translation>Se retiró la tarjeta</translation>
    </message>
    <message>
        <source>Ended because nothing was carried</source>
        <translation>Finalizada por falta de tráfico</translation>
    </message>
    <message>
        <source>The month&apos;s volume is used up</source>
        <translation>El volumen del mes está agotado</translation>
    </message>
    <message>
        <source>The connection is up</source>
        <translation>La conexión está establecida</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Tarda unos segundos.</translation>
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
        <source>The card is in the network, and everything is there to connect.</source>
        <translation>La tarjeta está en la red y todo está listo para conectar.</translation>
    </message>
    <message>
        <source>The network gave no address</source>
        <translation>La red no dio ninguna dirección</translation>
    </message>
    <message>
        <source>Disconnect and connect again. If that does not help, the access point of the profile may be the wrong one.</source>
        <translation>Desconecte y vuelva a conectar. Si no sirve, puede que el punto de acceso del perfil no sea el correcto.</translation>
    </message>
    <message>
        <source>No name servers</source>
        <translation>Sin servidores de nombres</translation>
    </message>
    <message>
        <source>Without them names of web sites cannot be found. Enter some in the profile, then disconnect and connect again.</source>
        <translation>Sin ellos no se encuentran los nombres de los sitios web. Introduzca algunos en el perfil, desconecte y vuelva a conectar.</translation>
    </message>
    <message>
        <source>Another connection carries the traffic</source>
        <translation>Otra conexión lleva el tráfico</translation>
    </message>
    <message>
        <source>This computer goes through a cable, Wi-Fi or another way first. Switch that off, then disconnect and connect again here.</source>
        <translation>Este equipo usa antes un cable, una red Wi-Fi u otra vía. Desactívela, desconecte aquí y vuelva a conectar.</translation>
    </message>
    <message>
        <source>The traffic goes through the card</source>
        <translation>El tráfico pasa por la tarjeta</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Punto de acceso</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Servidores de nombres</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>The profile cannot be used</source>
        <translation>El perfil no se puede usar</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>With &quot;%1&quot;, since %2.</source>
        <translation>Con «%1», inicio: %2.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;, attempt %2 of %3.</source>
        <translation>Con «%1», intento %2 de %3.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;.</source>
        <translation>Con «%1».</translation>
    </message>
    <message>
        <source>%1 Attempt %2 of %3 follows.</source>
        <translation>%1 Sigue el intento %2 de %3.</translation>
    </message>
</context>
<context>
    <name>DiallerFiles</name>
    <message>
        <source>Save wvdial config data failed!</source>
        <translation>No se pudo guardar la configuración de wvdial.</translation>
    </message>
    <message>
        <source>Read default wvdial config data failed!</source>
        <translation>No se pudo leer la configuración predeterminada de wvdial.</translation>
    </message>
    <message>
        <source>open file operation error!</source>
        <translation>No se pudo abrir el archivo.</translation>
    </message>
    <message>
        <source>Recover wvdial config data failed!</source>
        <translation>No se pudo restaurar la configuración de wvdial.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>El DNS no es válido.</translation>
    </message>
</context>
<context>
    <name>EndSentence</name>
    <message>
        <source>The network refused the user name and the password.</source>
        <translation>La red rechazó el nombre de usuario y la contraseña.</translation>
    </message>
    <message>
        <source>The network did not take the call.</source>
        <translation>La red no aceptó la llamada.</translation>
    </message>
    <message>
        <source>The line is busy. Please try again later.</source>
        <translation>La línea está ocupada. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>La red no respondió a tiempo.</translation>
    </message>
    <message>
        <source>The dialler ended before it was done.</source>
        <translation>El marcador terminó antes de completar la conexión.</translation>
    </message>
    <message>
        <source>The files for the dialler could not be written.</source>
        <translation>No se pudieron escribir los archivos del marcador.</translation>
    </message>
    <message>
        <source>The right to connect was not given.</source>
        <translation>No se concedió el permiso para conectar.</translation>
    </message>
    <message>
        <source>The network ended the connection.</source>
        <translation>La red terminó la conexión.</translation>
    </message>
    <message>
        <source>The network does not answer any more.</source>
        <translation>La red ya no responde.</translation>
    </message>
    <message>
        <source>The card was pulled out.</source>
        <translation>Se retiró la tarjeta.</translation>
    </message>
    <message>
        <source>The connection was ended because nothing was carried.</source>
        <translation>La conexión terminó porque no se transmitía nada.</translation>
    </message>
    <message>
        <source>The connection was ended because the volume is used up.</source>
        <translation>La conexión terminó porque se agotó el volumen de datos.</translation>
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
    <name>HistoryEnd</name>
    <message>
        <source>By you</source>
        <translation>Por usted</translation>
    </message>
    <message>
        <source>By the network</source>
        <translation>Por la red</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Dialler stopped</source>
        <translation>Marcador detenido</translation>
    </message>
    <message>
        <source>Card removed</source>
        <translation>Tarjeta retirada</translation>
    </message>
    <message>
        <source>Nothing carried</source>
        <translation>Sin tráfico</translation>
    </message>
    <message>
        <source>Volume used up</source>
        <translation>Volumen agotado</translation>
    </message>
    <message>
        <source>Program closed</source>
        <translation>Programa cerrado</translation>
    </message>
    <message>
        <source>Unexpectedly</source>
        <translation>Inesperadamente</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>No se sabe</translation>
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
        <translation>El mensaje es demasiado largo: puede tener %1 partes.</translation>
    </message>
    <message>
        <source>Because of &quot;%1&quot; a message holds 70 characters instead of 160.</source>
        <translation>Por «%1», en un mensaje caben 70 caracteres en lugar de 160.</translation>
    </message>
    <message>
        <source>National letters leave 155 characters of 160.</source>
        <translation>Las letras nacionales dejan 155 caracteres de 160.</translation>
    </message>
    <message>
        <source>It is sent in %1 parts.</source>
        <translation>Se envía en %1 partes.</translation>
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
        <translation>%1 estaba vacío.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>No se pudo leer %1 por completo. Lo que contenía se conserva como %2.</translation>
    </message>
    <message>
        <source>%1 can neither be read nor moved aside.</source>
        <translation>No se puede leer %1, ni apartarlo.</translation>
    </message>
</context>
<context>
    <name>MessageTransfer</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>%1 is not a file of messages.</source>
        <translation>%1 no es un archivo de mensajes.</translation>
    </message>
    <message>
        <source>The messages of %1 could not be saved.</source>
        <translation>No se pudieron guardar los mensajes de %1.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Inbox</source>
        <translation>Bandeja de entrada</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Bandeja de salida</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>box</comment>
        <translation>Enviados</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>state</comment>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>Borradores</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Delivery reports</source>
        <translation>Informes de entrega</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Tarjeta SIM</translation>
    </message>
    <message>
        <source>Data card</source>
        <translation>Tarjeta de datos</translation>
    </message>
    <message>
        <source>Waiting to be sent</source>
        <translation>En espera de envío</translation>
    </message>
    <message>
        <source>Being sent</source>
        <translation>Enviando</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Entregado</translation>
    </message>
    <message>
        <source>Not delivered yet, the network still tries</source>
        <translation>Aún sin entregar, la red lo sigue intentando</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
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
        <translation>d MMM</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>Aún sin destinatario</translation>
    </message>
    <message>
        <source>Unknown sender</source>
        <translation>Remitente desconocido</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>This message cannot be read</source>
        <translation>Este mensaje no se puede leer</translation>
    </message>
    <message>
        <source>No text</source>
        <translation>Sin texto</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Quizá se haya enviado</translation>
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
        <source>&amp;Connect</source>
        <translation>Co&amp;nectar</translation>
    </message>
    <message>
        <source>&amp;Edit profile</source>
        <translation>&amp;Editar perfil</translation>
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
    <name>PduError</name>
    <message>
        <source>there is nothing</source>
        <translation>no hay nada</translation>
    </message>
    <message>
        <source>this is no hexadecimal digit</source>
        <translation>esto no es una cifra hexadecimal</translation>
    </message>
    <message>
        <source>half an octet is missing</source>
        <translation>falta medio octeto</translation>
    </message>
    <message>
        <source>the message ends too early</source>
        <translation>el mensaje termina demasiado pronto</translation>
    </message>
    <message>
        <source>the length goes past the end</source>
        <translation>la longitud sobrepasa el final</translation>
    </message>
    <message>
        <source>this is no message of the expected kind</source>
        <translation>esto no es un mensaje del tipo esperado</translation>
    </message>
    <message>
        <source>the header is longer than the data</source>
        <translation>la cabecera es más larga que los datos</translation>
    </message>
    <message>
        <source>an element goes past the header</source>
        <translation>un elemento sobrepasa la cabecera</translation>
    </message>
    <message>
        <source>there can be no such part</source>
        <translation>no puede existir tal parte</translation>
    </message>
    <message>
        <source>half a character is missing</source>
        <translation>falta medio carácter</translation>
    </message>
    <message>
        <source>The message cannot be read: %1 (%2, octet %3).</source>
        <translation>No se puede leer el mensaje: %1 (%2, octeto %3).</translation>
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
    <name>PppErrors</name>
    <message>
        <source>Pppd  has  detached,  or  otherwise  the  connection was successfully established and terminated at the peer&apos;s request.</source>
        <translation>Pppd se ha separado de la terminal, o bien la conexión se estableció correctamente y terminó a petición del otro extremo.</translation>
    </message>
    <message>
        <source>An immediately fatal error of some kind occurred, such as an essential system call failing, or running out  of virtual memory.</source>
        <translation>Se produjo un error grave inmediato, como el fallo de una llamada esencial al sistema o la falta de memoria virtual.</translation>
    </message>
    <message>
        <source>An error was detected in processing the options given, such as two mutually exclusive options being used.</source>
        <translation>Se detectó un error al procesar las opciones indicadas, como el uso de dos opciones incompatibles entre sí.</translation>
    </message>
    <message>
        <source>Pppd is not setuid-root and the invoking user is not root.</source>
        <translation>Pppd no tiene setuid-root y el usuario que lo ejecuta no es root.</translation>
    </message>
    <message>
        <source>The kernel does not support PPP, for example, the PPP kernel driver is not included or cannot be loaded.</source>
        <translation>El núcleo no admite PPP; por ejemplo, el controlador PPP del núcleo no está incluido o no se puede cargar.</translation>
    </message>
    <message>
        <source>Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal.</source>
        <translation>Pppd terminó porque recibió una señal SIGINT, SIGTERM o SIGHUP.</translation>
    </message>
    <message>
        <source>The serial port could not be locked.</source>
        <translation>No se pudo bloquear el puerto serie.</translation>
    </message>
    <message>
        <source>The serial port could not be opened.</source>
        <translation>No se pudo abrir el puerto serie.</translation>
    </message>
    <message>
        <source>The connect script failed (returned a non-zero exit status).</source>
        <translation>El script de conexión falló (devolvió un estado de salida distinto de cero).</translation>
    </message>
    <message>
        <source>The command specified as the argument to the pty option could not be run.</source>
        <translation>No se pudo ejecutar el comando indicado como argumento de la opción pty.</translation>
    </message>
    <message>
        <source>The  PPP  negotiation failed, that is, it didn&apos;t reach the point where at least one network protocol (e.g. IP) was running.</source>
        <translation>La negociación PPP falló, es decir, no llegó al punto en que funcionara al menos un protocolo de red (p. ej., IP).</translation>
    </message>
    <message>
        <source>The peer system failed (or refused) to authenticate itself.</source>
        <translation>El otro extremo no pudo autenticarse (o se negó a hacerlo).</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because it was idle.</source>
        <translation>El enlace se estableció correctamente y terminó por inactividad.</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because the connect time limit was reached.</source>
        <translation>El enlace se estableció correctamente y terminó porque se alcanzó el límite de tiempo de conexión.</translation>
    </message>
    <message>
        <source>Callback was negotiated and an incoming call should arrive shortly.</source>
        <translation>Se negoció la devolución de llamada; en breve debería llegar una llamada entrante.</translation>
    </message>
    <message>
        <source>The link was terminated because the peer is not responding to echo requests.</source>
        <translation>El enlace terminó porque el otro extremo no responde a las solicitudes de eco.</translation>
    </message>
    <message>
        <source>The link was terminated by the modem hanging up.</source>
        <translation>El enlace terminó porque el módem colgó.</translation>
    </message>
    <message>
        <source>The PPP negotiation failed because serial loopback was detected.</source>
        <translation>La negociación PPP falló porque se detectó un bucle en la línea serie.</translation>
    </message>
    <message>
        <source>The init script failed (returned a non-zero exit status).</source>
        <translation>El script de inicio falló (devolvió un estado de salida distinto de cero).</translation>
    </message>
    <message>
        <source>We failed to authenticate ourselves to the peer.</source>
        <translation>No pudimos autenticarnos ante el otro extremo.</translation>
    </message>
</context>
<context>
    <name>ProfileChecks</name>
    <message>
        <source>The dial number may hold letters, digits and * # + , . - ( ), 80 at most.</source>
        <translation>El número de marcación puede contener letras, dígitos y * # + , . - ( ), 80 como máximo.</translation>
    </message>
    <message>
        <source>The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its ends, not be a single asterisk, and be 255 bytes long at most.</source>
        <translation>El nombre de usuario no debe contener comillas ni barras inversas, empezar por una llave, tener espacios en los extremos ni ser un solo asterisco, y puede tener 255 bytes como máximo.</translation>
    </message>
    <message>
        <source>The password must not hold quotes, backslashes, a brace or &quot;@/&quot; at its beginning or blanks at its ends, and be 255 bytes long at most.</source>
        <translation>La contraseña no debe contener comillas ni barras inversas, empezar por una llave o por «@/» ni tener espacios en los extremos, y puede tener 255 bytes como máximo.</translation>
    </message>
    <message>
        <source>The name of the profile is too long.</source>
        <translation>El nombre del perfil es demasiado largo.</translation>
    </message>
    <message>
        <source>The APN may hold letters, digits and . - _ @ : /, 100 at most.</source>
        <translation>El APN puede contener letras, dígitos y . - _ @ : /, 100 como máximo.</translation>
    </message>
    <message>
        <source>The address mode may hold letters and digits only.</source>
        <translation>El modo de dirección solo puede contener letras y dígitos.</translation>
    </message>
    <message>
        <source>The beginning of the IMSI may hold 15 digits at most.</source>
        <translation>El comienzo del IMSI puede tener 15 dígitos como máximo.</translation>
    </message>
    <message>
        <source>The page to open must be an address of the web.</source>
        <translation>La página que se abre debe ser una dirección web.</translation>
    </message>
    <message>
        <source>A value holds a line break or another control character, or the text &quot;-|-&quot;.</source>
        <translation>Un valor contiene un salto de línea u otro carácter de control, o el texto «-|-».</translation>
    </message>
    <message>
        <source>The Config Filename must be filled.</source>
        <translation>Debe indicar el nombre del perfil.</translation>
    </message>
    <message>
        <source>The Dial Number is empty!</source>
        <translation>Falta el número de marcación.</translation>
    </message>
    <message>
        <source>The APN is empty!</source>
        <translation>Falta el APN.</translation>
    </message>
    <message>
        <source>Invalid PDP!Please check it!</source>
        <translation>El PDP no es válido. Compruébelo.</translation>
    </message>
    <message>
        <source>Invalid Preferred DNS!Please check it!</source>
        <translation>El DNS preferido no es válido. Compruébelo.</translation>
    </message>
    <message>
        <source>Invalid Alternative DNS!Please check it!</source>
        <translation>El DNS alternativo no es válido. Compruébelo.</translation>
    </message>
    <message>
        <source>The card&apos;s data port has a name that cannot be used.</source>
        <translation>El puerto de datos de la tarjeta tiene un nombre que no se puede usar.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>The profiles in %1 cannot be read.</source>
        <translation>No se pueden leer los perfiles de %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read, and cannot be kept beside.</source>
        <translation>No se puede leer %1, ni conservarlo aparte.</translation>
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
        <translation>«%1» no es un número: «%2» no se puede marcar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number: the digits are missing.</source>
        <translation>«%1» no es un número: faltan los dígitos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: a number has %2 characters at most.</source>
        <translation>«%1» es demasiado largo: un número tiene %2 caracteres como máximo.</translation>
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
    <message>
        <source>The rights of %1 cannot be set</source>
        <translation>No se pueden establecer los permisos de %1</translation>
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
    <name>SmsFiling</name>
    <message>
        <source>The text is compressed and cannot be shown.</source>
        <translation>El texto está comprimido y no se puede mostrar.</translation>
    </message>
    <message>
        <source>The message holds data and no text.</source>
        <translation>El mensaje contiene datos y ningún texto.</translation>
    </message>
    <message>
        <source>The card lists the message without its content.</source>
        <translation>La tarjeta muestra el mensaje en la lista sin su contenido.</translation>
    </message>
    <message>
        <source>A message came in without its content.</source>
        <translation>Llegó un mensaje sin su contenido.</translation>
    </message>
    <message>
        <source>Voice messages are waiting for you.</source>
        <translation>Tiene mensajes de voz en espera.</translation>
    </message>
    <message>
        <source>No voice messages are waiting any more.</source>
        <translation>Ya no hay mensajes de voz en espera.</translation>
    </message>
    <message>
        <source>Faxes are waiting for you.</source>
        <translation>Tiene faxes en espera.</translation>
    </message>
    <message>
        <source>No faxes are waiting any more.</source>
        <translation>Ya no hay faxes en espera.</translation>
    </message>
    <message>
        <source>E-mails are waiting for you.</source>
        <translation>Tiene correos en espera.</translation>
    </message>
    <message>
        <source>No e-mails are waiting any more.</source>
        <translation>Ya no hay correos en espera.</translation>
    </message>
    <message>
        <source>Messages of another kind are waiting for you.</source>
        <translation>Tiene mensajes de otro tipo en espera.</translation>
    </message>
    <message>
        <source>No messages of another kind are waiting any more.</source>
        <translation>Ya no hay mensajes de otro tipo en espera.</translation>
    </message>
</context>
<context>
    <name>SmsJobs</name>
    <message>
        <source>The card did not answer.</source>
        <translation>La tarjeta no respondió.</translation>
    </message>
    <message>
        <source>The card does not exchange messages as PDUs: %1</source>
        <translation>La tarjeta no intercambia mensajes en forma de PDU: %1</translation>
    </message>
    <message>
        <source>New messages will not be announced: %1</source>
        <translation>No se avisará de los mensajes nuevos: %1</translation>
    </message>
    <message>
        <source>The message has no content that the card could keep.</source>
        <translation>El mensaje no tiene contenido que la tarjeta pueda guardar.</translation>
    </message>
    <message>
        <source>The card names the message without its content.</source>
        <translation>La tarjeta nombra el mensaje sin su contenido.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number, %1, is too long.</source>
        <translation>El número del centro de servicio, %1, es demasiado largo.</translation>
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
        <translation>Ayer, %1</translation>
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
        <translation>%1 recibidos, %2 enviados</translation>
    </message>
    <message>
        <source>%1; %2 of it roaming</source>
        <translation>%1; de ello, %2 en itinerancia</translation>
    </message>
    <message>
        <source>%1 of %2 used (%3&#xa0;%)</source>
        <translation>%1 de %2 consumidos (%3 %)</translation>
    </message>
    <message>
        <source>%1 of %2 roaming (%3&#xa0;%)</source>
        <translation>%1 de %2 en itinerancia (%3 %)</translation>
    </message>
    <message>
        <source>Too few days are known to say what it will be by %1.</source>
        <translation>Se conocen muy pocos días para calcular cuánto será hasta el %1.</translation>
    </message>
    <message>
        <source>The volume is used up. A new one begins on %1.</source>
        <translation>El volumen está agotado. El %1 empieza uno nuevo.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2.</source>
        <translation>A este ritmo, serán unos %1 hasta el %2.</translation>
    </message>
    <message>
        <source>As it goes, the volume will be used up on %1; by %2 it would be about %3.</source>
        <translation>A este ritmo, el volumen se agotará el %1; hasta el %2 serían unos %3.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2: the volume is enough.</source>
        <translation>A este ritmo, serán unos %1 hasta el %2: el volumen es suficiente.</translation>
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
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>C&amp;onectar</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Ce&amp;rrar</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>D&amp;esconectar</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>Cance&amp;lar la conexión</translation>
    </message>
    <message>
        <source>Disconnect and quit?</source>
        <translation>¿Desconectar y salir?</translation>
    </message>
    <message>
        <source>Disconnect and &amp;quit</source>
        <translation>Desconectar y sal&amp;ir</translation>
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
        <translation>El marcador ya está en marcha.</translation>
    </message>
    <message>
        <source>The program wvdial is missing. Please install it.</source>
        <translation>Falta el programa wvdial. Instálelo.</translation>
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
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversaciones</translation>
    </message>
    <message>
        <source>Broadcasts</source>
        <translation>Difusiones</translation>
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
        <translation>&amp;Canales</translation>
    </message>
    <message>
        <source>Numbers and ranges, as 50, 4370-4372</source>
        <translation>Números e intervalos, como 50, 4370-4372</translation>
    </message>
    <message>
        <source>L&amp;isten</source>
        <translation>Escuc&amp;har</translation>
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
    <name>corva::CardPlaces</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is nearly full: %1</source>
        <translation>La memoria de mensajes de la SIM está casi llena: %1</translation>
    </message>
    <message>
        <source>The card&apos;s memory for messages is nearly full: %1</source>
        <translation>La memoria de mensajes de la tarjeta está casi llena: %1</translation>
    </message>
    <message>
        <source>There is no card that takes messages.</source>
        <translation>No hay ninguna tarjeta que acepte mensajes.</translation>
    </message>
    <message>
        <source>The messages could not be written to disk and stay on the card.</source>
        <translation>No se pudieron escribir los mensajes en el disco y siguen en la tarjeta.</translation>
    </message>
    <message>
        <source>Only short messages can be kept on the card.</source>
        <translation>En la tarjeta solo se pueden guardar mensajes cortos.</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>La tarjeta ya no está conectada.</translation>
    </message>
    <message>
        <source>The message was not written to the SIM: %1</source>
        <translation>El mensaje no se escribió en la SIM: %1</translation>
    </message>
    <message>
        <source>The message was not written to the card: %1</source>
        <translation>El mensaje no se escribió en la tarjeta: %1</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is kept on the computer as well.</source>
        <translation>No se pudo eliminar un mensaje de la tarjeta. También se conserva en el equipo.</translation>
    </message>
    <message>
        <source>The message is being sent.</source>
        <translation>El mensaje se está enviando.</translation>
    </message>
    <message>
        <source>It is for several people, and the card keeps messages for one.</source>
        <translation>Es para varias personas, y la tarjeta guarda mensajes para una sola.</translation>
    </message>
    <message>
        <source>What the card lists without its content stays where it is.</source>
        <translation>Lo que la tarjeta lista sin contenido se queda donde está.</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is in both places now.</source>
        <translation>No se pudo eliminar un mensaje de la tarjeta. Ahora está en ambos sitios.</translation>
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
        <translation>La tarjeta no respondió a tiempo. No se sabe si aceptó lo introducido; los intentos restantes se muestran si la tarjeta los indica.</translation>
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
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Immediate message</source>
        <translation>Mensaje inmediato</translation>
    </message>
    <message>
        <source>&amp;Keep in the inbox</source>
        <translation>&amp;Guardar en la bandeja de entrada</translation>
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
            <numerusform>%n más</numerusform>
            <numerusform>%n más</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
</context>
<context>
    <name>corva::Composer</name>
    <message>
        <source>New message</source>
        <translation>Mensaje nuevo</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Para</translation>
    </message>
    <message>
        <source>Delivery &amp;report</source>
        <translation>In&amp;forme de entrega</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>En&amp;viar</translation>
    </message>
    <message>
        <source>Numbers, with commas between them</source>
        <translation>Números, separados por comas</translation>
    </message>
    <message>
        <source>Text of the message</source>
        <translation>Texto del mensaje</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>You are told when the message was delivered</source>
        <translation>Se le avisa cuando se haya entregado el mensaje</translation>
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
        <translation>Planti&amp;llas</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Descar&amp;tar</translation>
    </message>
    <message>
        <source>Moves the draft to the deleted messages</source>
        <translation>Mueve el borrador a los mensajes eliminados</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Borrador</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The templates could not be stored: %1</source>
        <translation>No se pudieron guardar las plantillas: %1</translation>
    </message>
    <message>
        <source>&amp;Keep this text as a template</source>
        <translation>&amp;Guardar este texto como plantilla</translation>
    </message>
    <message>
        <source>&amp;Remove a template</source>
        <translation>&amp;Quitar una plantilla</translation>
    </message>
    <message>
        <source>Say whom the message is for.</source>
        <translation>Indique para quién es el mensaje.</translation>
    </message>
    <message>
        <source>The message says nothing yet.</source>
        <translation>El mensaje aún no dice nada.</translation>
    </message>
</context>
<context>
    <name>corva::Config</name>
    <message>
        <source>New profile</source>
        <translation>Perfil nuevo</translation>
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
        <translation>&amp;Cerrar</translation>
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
        <translation>General</translation>
    </message>
    <message>
        <source>Profile &amp;name</source>
        <translation>&amp;Nombre del perfil</translation>
    </message>
    <message>
        <source>&amp;Dial number</source>
        <translation>Número de &amp;marcación</translation>
    </message>
    <message>
        <source>Connect as a &amp;modem or a network card</source>
        <translation>Conectar como mó&amp;dem o tarjeta de red</translation>
    </message>
    <message>
        <source>As the card can</source>
        <translation>Según la tarjeta</translation>
    </message>
    <message>
        <source>Modem (dial-up)</source>
        <translation>Módem (marcación)</translation>
    </message>
    <message>
        <source>Network card</source>
        <translation>Tarjeta de red</translation>
    </message>
    <message>
        <source>For S&amp;IMs whose IMSI begins with</source>
        <translation>Para SIM cuyo IMSI empie&amp;za por</translation>
    </message>
    <message>
        <source>any</source>
        <translation>cualquiera</translation>
    </message>
    <message>
        <source>Access point (APN)</source>
        <translation>Punto de acceso (APN)</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Punto de acceso</translation>
    </message>
    <message>
        <source>&amp;This one</source>
        <translation>&amp;Este</translation>
    </message>
    <message>
        <source>&amp;By the network</source>
        <translation>El de la &amp;red</translation>
    </message>
    <message>
        <source>Name of the access &amp;point</source>
        <translation>Nombre del &amp;punto de acceso</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Autenticación</translation>
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
        <translation>Ningún métod&amp;o</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Contra&amp;seña</translation>
    </message>
    <message>
        <source>As&amp;k for them when connecting</source>
        <translation>Pedirlos al conec&amp;tar</translation>
    </message>
    <message>
        <source>Keep them in the profi&amp;le</source>
        <translation>Guardar&amp;los en el perfil</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>From the network (d&amp;ynamic)</source>
        <translation>O&amp;btenida de la red (dinámica)</translation>
    </message>
    <message>
        <source>Fi&amp;xed</source>
        <translation>&amp;Fija</translation>
    </message>
    <message>
        <source>Fixed add&amp;ress</source>
        <translation>Dirección fi&amp;ja</translation>
    </message>
    <message>
        <source>Name servers (DNS)</source>
        <translation>Servidores de nombres (DNS)</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Servidores de nombres</translation>
    </message>
    <message>
        <source>&amp;From the network</source>
        <translation>En&amp;viados por la red</translation>
    </message>
    <message>
        <source>Th&amp;ese</source>
        <translation>Los &amp;que siguen</translation>
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
        <translation>Una vez conectado</translation>
    </message>
    <message>
        <source>Pa&amp;ge to open in the browser</source>
        <translation>Pág&amp;ina que se abre en el navegador</translation>
    </message>
    <message>
        <source>This profile came with the program and stays as it is.</source>
        <translation>Este perfil viene con el programa y no se puede modificar.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionFacts</name>
    <message>
        <source>This connection</source>
        <translation>Esta conexión</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Puerta de enlace</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Servidores de nombres</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Recepción</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
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
        <translation>¿&amp;Por qué estoy sin conexión?</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>C&amp;onectar</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Desconectando</translation>
    </message>
    <message>
        <source>Status: Connected</source>
        <translation>Estado: conectado</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Estado: desconectado</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionService</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>¡Solo una red UMTS permite conectar durante una llamada!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>El dispositivo se ha desconectado o no está disponible.</translation>
    </message>
    <message>
        <source>Can&apos;t open deault config file!</source>
        <translation>¡No se puede abrir el archivo del perfil predeterminado!</translation>
    </message>
    <message>
        <source>This card has no network interface. Please choose dial-up in the profile.</source>
        <translation>Esta tarjeta no tiene interfaz de red. Elija el acceso telefónico en el perfil.</translation>
    </message>
    <message>
        <source>The card has no data port that could be dialled on.</source>
        <translation>La tarjeta no tiene un puerto de datos por el que marcar.</translation>
    </message>
    <message>
        <source>There is no data transported recently. Auto Disconnect will close your internet link.</source>
        <translation>No se han transmitido datos recientemente. La desconexión automática cerrará su conexión a internet.</translation>
    </message>
    <message>
        <source>An earlier connection was cut off and has left its own settings in files of the system. Start Corva again and enter the password: it puts them back.</source>
        <translation>Una conexión anterior se interrumpió y dejó sus propios ajustes en archivos del sistema. Vuelva a iniciar Corva e introduzca la contraseña: los repone.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionSettings</name>
    <message>
        <source>Automatic connection</source>
        <translation>Conexión automática</translation>
    </message>
    <message>
        <source>&amp;Connect by itself when the card is ready</source>
        <translation>&amp;Conectar automáticamente cuando la tarjeta esté lista</translation>
    </message>
    <message>
        <source>&amp;Attempts</source>
        <translation>&amp;Intentos</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>When a connection breaks off</source>
        <translation>Cuando se corta una conexión</translation>
    </message>
    <message>
        <source>&amp;Dial again</source>
        <translation>&amp;Volver a marcar</translation>
    </message>
    <message>
        <source>A&amp;ttempts</source>
        <translation>In&amp;tentos</translation>
    </message>
    <message>
        <source>&amp;First one after</source>
        <translation>&amp;Primero tras</translation>
    </message>
    <message>
        <source>Each f&amp;urther one after</source>
        <translation>Los &amp;siguientes tras</translation>
    </message>
    <message>
        <source>When nothing is carried</source>
        <translation>Cuando no hay tráfico</translation>
    </message>
    <message>
        <source>D&amp;isconnect</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>T&amp;ras</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> min</translation>
    </message>
    <message>
        <source>Dialling</source>
        <translation>Marcación</translation>
    </message>
    <message>
        <source>&amp;Longest wait for a link</source>
        <translation>&amp;Espera máxima del enlace</translation>
    </message>
    <message>
        <source>E&amp;xplain a failure by the exit status of pppd</source>
        <translation>Explicar los &amp;fallos con el estado de salida de pppd</translation>
    </message>
    <message>
        <source>&amp;Open the profile&apos;s page once connected</source>
        <translation>A&amp;brir la página del perfil una vez conectado</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
</context>
<context>
    <name>corva::Connector</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Durante una llamada solo se puede conectar en una red UMTS.</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>El dispositivo se ha desconectado o no está disponible.</translation>
    </message>
    <message>
        <source>You are connecting to a roaming network. Would you like to continue?</source>
        <translation>Va a conectarse a una red en itinerancia. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Which access is yours?</source>
        <translation>¿Cuál es su acceso?</translation>
    </message>
    <message>
        <source>Whose SIM card is it?</source>
        <translation>¿De quién es la tarjeta SIM?</translation>
    </message>
    <message>
        <source>%1 has several. Choose yours; the choice is kept as a profile.</source>
        <translation>%1 tiene varios. Elija el suyo; la elección se guarda como perfil.</translation>
    </message>
    <message>
        <source>Several operators share this network. Choose yours; the choice is kept as a profile.</source>
        <translation>Varios operadores comparten esta red. Elija el suyo; la elección se guarda como perfil.</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>C&amp;onectar</translation>
    </message>
    <message>
        <source>Which profile?</source>
        <translation>¿Qué perfil?</translation>
    </message>
    <message>
        <source>It is taken from now on.</source>
        <translation>Se usará de ahora en adelante.</translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1, %n no leído</numerusform>
            <numerusform>%1, %n no leídos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::CredentialsDialog</name>
    <message>
        <source>&amp;User name</source>
        <translation>Nombre de &amp;usuario</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>Contra&amp;seña</translation>
    </message>
    <message>
        <source>&amp;Keep them and do not ask again</source>
        <translation>&amp;Guardarlos y no volver a preguntar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>C&amp;onectar</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; asks for them at each connection.</source>
        <translation>El perfil «%1» los pide en cada conexión.</translation>
    </message>
    <message>
        <source>User name and password</source>
        <translation>Nombre de usuario y contraseña</translation>
    </message>
</context>
<context>
    <name>corva::DataLink</name>
    <message>
        <source>Fail to connect! Link ppp0 wasn&apos;t built !</source>
        <translation>¡Error al conectar! No se estableció el enlace ppp0.</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>El dispositivo se ha desconectado o no está disponible.</translation>
    </message>
    <message>
        <source>The card did not accept the access point &quot;%1&quot;. Please check the APN of the profile.</source>
        <translation>La tarjeta no aceptó el punto de acceso «%1». Compruebe el APN del perfil.</translation>
    </message>
</context>
<context>
    <name>corva::DaysChart</name>
    <message>
        <source>Volume of each day</source>
        <translation>Volumen de cada día</translation>
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
        <translation>Periodo anterior</translation>
    </message>
    <message>
        <source>Later period</source>
        <translation>Periodo siguiente</translation>
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
        <translation>No hubo tráfico en este periodo.</translation>
    </message>
    <message>
        <source>In all: %1</source>
        <translation>En total: %1</translation>
    </message>
</context>
<context>
    <name>corva::DhcpClient</name>
    <message>
        <source>There is no such network interface.</source>
        <translation>No existe esa interfaz de red.</translation>
    </message>
    <message>
        <source>There is no DHCP client. Please install isc-dhcp-client.</source>
        <translation>No hay ningún cliente DHCP. Instale isc-dhcp-client.</translation>
    </message>
    <message>
        <source>The network gave no address.</source>
        <translation>La red no dio ninguna dirección.</translation>
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
    <name>corva::DialUpLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>¡La conexión ha fallado!</translation>
    </message>
    <message>
        <source>Fail to connect! exit code is</source>
        <translation>¡Error al conectar! El código de salida es</translation>
    </message>
    <message>
        <source>The card&apos;s data port cannot be opened: %1</source>
        <translation>No se puede abrir el puerto de datos de la tarjeta: %1</translation>
    </message>
    <message>
        <source>The card does not answer on its data port.</source>
        <translation>La tarjeta no responde en su puerto de datos.</translation>
    </message>
    <message>
        <source>The card refused a command on its data port.</source>
        <translation>La tarjeta rechazó una orden en su puerto de datos.</translation>
    </message>
</context>
<context>
    <name>corva::DialWork</name>
    <message>
        <source>You may not use this card&apos;s data port.</source>
        <translation>No tiene permiso para usar el puerto de datos de esta tarjeta.</translation>
    </message>
    <message>
        <source>The network interface does not belong to the card.</source>
        <translation>La interfaz de red no pertenece a la tarjeta.</translation>
    </message>
    <message>
        <source>The network interface has no address from here.</source>
        <translation>La interfaz de red no recibió su dirección desde aquí.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>El DNS no es válido.</translation>
    </message>
    <message>
        <source>The dialler could not be started.</source>
        <translation>No se pudo iniciar el marcador.</translation>
    </message>
    <message>
        <source>The dialler is running already.</source>
        <translation>El marcador ya está en marcha.</translation>
    </message>
    <message>
        <source>The connection was cancelled.</source>
        <translation>La conexión se canceló.</translation>
    </message>
    <message>
        <source>The route helper is not run: others may write it.</source>
        <translation>No se ejecuta el auxiliar de rutas: otros pueden escribir en él.</translation>
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
    <name>corva::FormField</name>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ocultar la contraseña</translation>
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
    <name>corva::HelperBackend</name>
    <message>
        <source>Connecting needs an administrator&apos;s rights, and the program &quot;pkexec&quot;, which asks for them, is missing. Please install it.</source>
        <translation>Para conectar se necesitan permisos de administrador, y falta el programa «pkexec», que los pide. Instálelo.</translation>
    </message>
    <message>
        <source>The program that dials has ended unexpectedly. Please try again.</source>
        <translation>El programa que marca terminó inesperadamente. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The right to connect was not given. Please connect again and enter the password.</source>
        <translation>No se concedió el permiso para conectar. Vuelva a conectar e introduzca la contraseña.</translation>
    </message>
    <message>
        <source>The right to connect could not be asked for. Ask an administrator to run &quot;tools/install-dialhelper&quot;, or start Corva in a desktop session.</source>
        <translation>No se pudo pedir el permiso para conectar. Pida a un administrador que ejecute «tools/install-dialhelper», o inicie Corva en una sesión de escritorio.</translation>
    </message>
    <message>
        <source>The program that dials could not be started. Ask an administrator to run &quot;tools/install-dialhelper&quot;.</source>
        <translation>No se pudo iniciar el programa que marca. Pida a un administrador que ejecute «tools/install-dialhelper».</translation>
    </message>
</context>
<context>
    <name>corva::HistoryModel</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinerancia</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Final</translation>
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
        <translation>Eliminar &amp;todo</translation>
    </message>
    <message>
        <source>Search the history</source>
        <translation>Buscar en el historial</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Buscar (%1)</translation>
    </message>
    <message>
        <source>Connections that are over</source>
        <translation>Conexiones finalizadas</translation>
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
        <translation>Aún no se ha hecho ninguna conexión. Cada una aparecerá aquí cuando haya finalizado.</translation>
    </message>
    <message>
        <source>No entry has all of these words.</source>
        <translation>Ninguna entrada contiene todas estas palabras.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>Se eliminó %n entrada.</numerusform>
            <numerusform>Se eliminaron %n entradas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Deshac&amp;er</translation>
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
        <translation>Reen&amp;viar</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Put &amp;back</source>
        <translation>Res&amp;taurar</translation>
    </message>
    <message>
        <source>Send a&amp;gain</source>
        <translation>Enviar de n&amp;uevo</translation>
    </message>
    <message>
        <source>Mark as rea&amp;d</source>
        <translation>Marcar como leí&amp;do</translation>
    </message>
    <message>
        <source>Mark as &amp;unread</source>
        <translation>Marcar como n&amp;o leído</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>&amp;Copiar el texto</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>E&amp;liminar %n mensaje</numerusform>
            <numerusform>E&amp;liminar %n mensajes</numerusform>
        </translation>
    </message>
    <message>
        <source>Cop&amp;y to</source>
        <translation>Co&amp;piar a</translation>
    </message>
    <message>
        <source>&amp;Move to</source>
        <translation>&amp;Mover a</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>Se eliminó %n mensaje.</numerusform>
            <numerusform>Se eliminaron %n mensajes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>¿Eliminar %n mensaje definitivamente?</numerusform>
            <numerusform>¿Eliminar %n mensajes definitivamente?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>Eliminar %n mensa&amp;je</numerusform>
            <numerusform>Eliminar %n mensa&amp;jes</numerusform>
        </translation>
    </message>
    <message>
        <source>The message may have gone out already. Send it again?</source>
        <translation>Puede que el mensaje ya haya salido. ¿Enviarlo de nuevo?</translation>
    </message>
</context>
<context>
    <name>corva::MessageBrowser</name>
    <message>
        <source>No message has come yet.</source>
        <translation>Aún no ha llegado ningún mensaje.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent.</source>
        <translation>No hay nada en espera de envío.</translation>
    </message>
    <message>
        <source>You have sent no message yet.</source>
        <translation>Aún no ha enviado ningún mensaje.</translation>
    </message>
    <message>
        <source>No drafts. What you write is kept here until you send it.</source>
        <translation>No hay borradores. Lo que escriba se guarda aquí hasta que lo envíe.</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>No se ha eliminado nada.</translation>
    </message>
    <message>
        <source>No delivery report has come yet.</source>
        <translation>Aún no ha llegado ningún informe de entrega.</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversaciones</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Reading the messages…</source>
        <translation>Leyendo los mensajes…</translation>
    </message>
    <message>
        <source>No message has all of these words.</source>
        <translation>Ningún mensaje contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>Nobody has written yet. Press Ctrl+N to write first.</source>
        <translation>Aún no ha escrito nadie. Pulse Ctrl+N para escribir primero.</translation>
    </message>
    <message>
        <source>No broadcast has come yet. Choose the channels to listen to above.</source>
        <translation>Aún no ha llegado ninguna difusión. Elija arriba los canales que desea escuchar.</translation>
    </message>
    <message>
        <source>Reading the %1…</source>
        <translation>Leyendo: %1…</translation>
    </message>
    <message>
        <source>No message is kept there.</source>
        <translation>No hay ningún mensaje guardado ahí.</translation>
    </message>
    <message>
        <source>It was not read yet. Is a card plugged in?</source>
        <translation>Aún no se ha leído. ¿Hay una tarjeta conectada?</translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>Hay %n mensaje no leído.</numerusform>
            <numerusform>Hay %n mensajes no leídos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>New message from %1</source>
        <translation>Mensaje nuevo de %1</translation>
    </message>
    <message>
        <source>Broadcast on channel %1</source>
        <translation>Difusión en el canal %1</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Enviados correctamente: %1; fallidos: %2</translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message>
        <source>Export messages</source>
        <translation>Exportar mensajes</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tablas CSV (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>Se ha escrito %n mensaje en %1.</numerusform>
            <numerusform>Se han escrito %n mensajes en %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The messages could not be written: %1</source>
        <translation>No se han podido escribir los mensajes: %1</translation>
    </message>
    <message>
        <source>Import messages</source>
        <translation>Importar mensajes</translation>
    </message>
    <message>
        <source>Exported messages (*.csv *.json)</source>
        <translation>Mensajes exportados (*.csv *.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>Se ha añadido %n mensaje.</numerusform>
            <numerusform>Se han añadido %n mensajes.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>%n ya estaba aquí.</numerusform>
            <numerusform>%n ya estaban aquí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>%n no se ha podido leer.</numerusform>
            <numerusform>%n no se han podido leer.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageListModel</name>
    <message>
        <source>Unread</source>
        <translation>No leído</translation>
    </message>
</context>
<context>
    <name>corva::MessageService</name>
    <message>
        <source>The card did not take the broadcast channels: %1</source>
        <translation>La tarjeta no aceptó los canales de difusión: %1</translation>
    </message>
    <message>
        <source>The text is too long for one message.</source>
        <translation>El texto es demasiado largo para un solo mensaje.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was not stored: %1</source>
        <translation>El número del centro de servicio no se guardó: %1</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>La tarjeta ya no está conectada.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was stored.</source>
        <translation>El número del centro de servicio se guardó.</translation>
    </message>
</context>
<context>
    <name>corva::MessageSettings</name>
    <message>
        <source>Sending</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>The network &amp;tries for</source>
        <translation>La red lo intenta &amp;durante</translation>
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
        <translation>El máximo posible</translation>
    </message>
    <message>
        <source>National &amp;letters</source>
        <translation>&amp;Letras nacionales</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turcas</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Españolas</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portuguesas</translation>
    </message>
    <message>
        <source>&amp;Ask for a report when a message is delivered</source>
        <translation>&amp;Pedir un informe cuando se entregue un mensaje</translation>
    </message>
    <message>
        <source>Keeping</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>En este equipo</translation>
    </message>
    <message>
        <source>On the SIM card</source>
        <translation>En la tarjeta SIM</translation>
    </message>
    <message>
        <source>On the data card</source>
        <translation>En la tarjeta de datos</translation>
    </message>
    <message>
        <source>Where the network says</source>
        <translation>Donde indique la red</translation>
    </message>
    <message>
        <source>&amp;New messages are kept</source>
        <translation>Los mensajes &amp;nuevos se guardan</translation>
    </message>
    <message>
        <source>The data card&apos;s o&amp;wn memory is used, too</source>
        <translation>Usar ta&amp;mbién la memoria propia de la tarjeta de datos</translation>
    </message>
    <message>
        <source>Delete &amp;read messages from a full SIM card</source>
        <translation>Eliminar los mensajes leídos de una tarjeta &amp;SIM llena</translation>
    </message>
    <message>
        <source>What you are told</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>&amp;Unread messages, when the program starts</source>
        <translation>Mensajes no leídos, al &amp;iniciar el programa</translation>
    </message>
    <message>
        <source>&amp;Delivery reports, in a box when they come</source>
        <translation>In&amp;formes de entrega, en un cuadro cuando llegan</translation>
    </message>
    <message>
        <source>Delivery reports, in a &amp;folder of their own</source>
        <translation>Informes de entrega, en su propia &amp;carpeta</translation>
    </message>
    <message>
        <source>Messages that cells &amp;broadcast to everybody</source>
        <translation>Mensajes que las celdas difunden a &amp;todos</translation>
    </message>
    <message>
        <source>&amp;Immediate messages show</source>
        <translation>Los mensajes inmediatos muest&amp;ran</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> líneas</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Mensajes</translation>
    </message>
</context>
<context>
    <name>corva::MonthsModel</name>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinerancia</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>En total</translation>
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
    <name>corva::NetworkCardLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>¡La conexión ha fallado!</translation>
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
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Todo va bien por ahora; la tarjeta está en ello.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Un paso presenta un problema. Los siguientes se harán por sí solos.</translation>
    </message>
    <message>
        <source>Everything from the socket to the internet is in order.</source>
        <translation>Todo está en orden, desde el puerto USB hasta internet.</translation>
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
        <translation>Qué muestra el gráfico</translation>
    </message>
    <message>
        <source>The last minute</source>
        <translation>El último minuto</translation>
    </message>
    <message>
        <source>The last 10 minutes</source>
        <translation>Los últimos 10 minutos</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>This connection, %1</source>
        <translation>Esta conexión, %1</translation>
    </message>
    <message>
        <source>Last connection, %1</source>
        <translation>Última conexión, %1</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>None was made yet.</source>
        <translation>Aún no se ha hecho ninguna.</translation>
    </message>
    <message>
        <source>Days and months are not counted: the configuration turns it off.</source>
        <translation>Los días y los meses no se cuentan: la configuración lo desactiva.</translation>
    </message>
    <message>
        <source>%1 Say in the settings, Traffic, what volume you have, to be warned in time.</source>
        <translation>%1 Indique en los ajustes, en Tráfico, qué volumen tiene, para que se le avise a tiempo.</translation>
    </message>
    <message>
        <source>Down %1 (filled), up %2 (dashed)</source>
        <translation>Bajada %1 (relleno), subida %2 (trazos)</translation>
    </message>
    <message>
        <source>The graph runs while a connection is up.</source>
        <translation>El gráfico avanza mientras hay una conexión.</translation>
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
        <translation>punto de acceso de la red</translation>
    </message>
    <message>
        <source>%1, connects with it</source>
        <translation>%1, se conecta con él</translation>
    </message>
    <message>
        <source>No profile yet</source>
        <translation>Aún no hay perfiles</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Añadir</translation>
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
        <translation>Usar por de&amp;fecto</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add a profile</source>
        <translation>Añadir un perfil</translation>
    </message>
    <message>
        <source>Connect with this profile from now on</source>
        <translation>Conectar con este perfil de ahora en adelante</translation>
    </message>
    <message>
        <source>Vi&amp;ew</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>¿Eliminar el perfil «%1»?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Eli&amp;minar</translation>
    </message>
    <message>
        <source>Connects with &quot;%1&quot; from now on.</source>
        <translation>De ahora en adelante se conecta con «%1».</translation>
    </message>
</context>
<context>
    <name>corva::ProfileStore</name>
    <message>
        <source>There is a profile with this name already.</source>
        <translation>Ya existe un perfil con este nombre.</translation>
    </message>
    <message>
        <source>There is no profile with this name.</source>
        <translation>No existe ningún perfil con este nombre.</translation>
    </message>
    <message>
        <source>This profile may not be changed.</source>
        <translation>Este perfil no se puede modificar.</translation>
    </message>
    <message>
        <source>This profile may not be deleted.</source>
        <translation>Este perfil no se puede eliminar.</translation>
    </message>
</context>
<context>
    <name>corva::RateGraph</name>
    <message>
        <source>Graph of the rates</source>
        <translation>Gráfico de velocidades</translation>
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
        <translation>ahora</translation>
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
        <translation>De&amp;talles</translation>
    </message>
    <message>
        <source>The message</source>
        <translation>El mensaje</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
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
        <translation>Han llegado %1 partes. Las demás se añadirán cuando lleguen.</translation>
    </message>
    <message>
        <source>Service centre: %1</source>
        <translation>Centro de servicio: %1</translation>
    </message>
    <message>
        <source>Arrived: %1</source>
        <translation>Llegada: %1</translation>
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
        <translation>Aún no se ha transmitido.</translation>
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
        <translation>Cancelar el enví&amp;o</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 de %3</translation>
    </message>
    <message>
        <source>Sending ...</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Do you want to cancel sending the rest SMS?</source>
        <translation>¿Desea cancelar el envío de los SMS restantes?</translation>
    </message>
</context>
<context>
    <name>corva::SendQueue</name>
    <message>
        <source>The message could not be written to disk and is not sent.</source>
        <translation>El mensaje no se pudo escribir en el disco y no se envía.</translation>
    </message>
    <message>
        <source>The message could not be written to disk.</source>
        <translation>El mensaje no se pudo escribir en el disco.</translation>
    </message>
    <message>
        <source>The alphabet&apos;s settings have changed since it was written.</source>
        <translation>Los ajustes del alfabeto han cambiado desde que se escribió.</translation>
    </message>
    <message>
        <source>The message to %1 was not sent: %2</source>
        <translation>El mensaje para %1 no se envió: %2</translation>
    </message>
    <message>
        <source>There is another SIM in the card. What waited was not sent.</source>
        <translation>Hay otra SIM en la tarjeta. Lo que esperaba no se envió.</translation>
    </message>
    <message>
        <source>The message to %1 may have been sent: the card did not say.</source>
        <translation>Puede que el mensaje a %1 se haya enviado: la tarjeta no lo dijo.</translation>
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
        <translation>Centro de servicio</translation>
    </message>
    <message>
        <source>Every message goes through the operator&apos;s service centre. Its number is on the SIM card; change it only when your operator asks you to.</source>
        <translation>Todos los mensajes pasan por el centro de servicio del operador. Su número está en la tarjeta SIM; cámbielo solo si su operador se lo pide.</translation>
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
        <translation>Se necesita un número.</translation>
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
    <name>corva::SmsReception</name>
    <message>
        <source>A new message could not be read from the card: %1</source>
        <translation>No se pudo leer un mensaje nuevo de la tarjeta: %1</translation>
    </message>
    <message>
        <source>A new message could not be written to disk and stays on the card.</source>
        <translation>Un mensaje nuevo no se pudo escribir en el disco y sigue en la tarjeta.</translation>
    </message>
    <message>
        <source>A delivery report could not be read from the card: %1</source>
        <translation>No se pudo leer un informe de entrega de la tarjeta: %1</translation>
    </message>
    <message>
        <source>Message was successfully sent to %1, in %2,at %3</source>
        <translation>El mensaje se envió correctamente a %1 (envío: %2; entrega: %3)</translation>
    </message>
    <message>
        <source>The message to %1: %2</source>
        <translation>El mensaje para %1: %2</translation>
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
    <name>corva::StatisticsStore</name>
    <message>
        <source>%1 could not be read in full.</source>
        <translation>No se pudo leer %1 por completo.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>No se pudo leer %1 por completo. Lo que contenía se conserva como %2.</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>No se puede eliminar %1: %2</translation>
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
    <name>corva::TemplateStore</name>
    <message>
        <source>%1 cannot be read, and could not be kept beside.</source>
        <translation>No se puede leer %1, ni se pudo conservar aparte.</translation>
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
        <translation>Recibido: %1, %2</translation>
    </message>
    <message>
        <source>Written: %1, %2</source>
        <translation>Escrito: %1, %2</translation>
    </message>
</context>
<context>
    <name>corva::ThreadPane</name>
    <message>
        <source>Show &amp;earlier messages</source>
        <translation>Mostrar mensajes &amp;anteriores</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>Escri&amp;bir</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>Conversación</translation>
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
    <name>corva::TrafficPage</name>
    <message>
        <source>E&amp;xport as CSV…</source>
        <translation>E&amp;xportar como CSV…</translation>
    </message>
    <message>
        <source>Writes the history to a file that spreadsheets read</source>
        <translation>Escribe el historial en un archivo que leen las hojas de cálculo</translation>
    </message>
    <message>
        <source>Writes days and months to a file that spreadsheets read</source>
        <translation>Escribe los días y los meses en un archivo que leen las hojas de cálculo</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Resumen</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>&amp;Días</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Meses</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historial</translation>
    </message>
    <message>
        <source>Volume of each month</source>
        <translation>Volumen de cada mes</translation>
    </message>
    <message>
        <source>Export the history</source>
        <translation>Exportar el historial</translation>
    </message>
    <message>
        <source>Export days and months</source>
        <translation>Exportar días y meses</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tablas CSV (*.csv)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Guardado en %1.</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>No se pudo escribir la tabla: %1</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
</context>
<context>
    <name>corva::TrafficService</name>
    <message>
        <source>%1 The connection is ended, as you set it in the settings, Traffic.</source>
        <translation>%1 La conexión se finaliza, como lo indicó en los ajustes, en Tráfico.</translation>
    </message>
    <message>
        <source>Your volume of %1 until %2 is used up.</source>
        <translation>Su volumen de %1 hasta el %2 está agotado.</translation>
    </message>
    <message>
        <source>Your volume of %1 for roaming until %2 is used up.</source>
        <translation>Su volumen de %1 para itinerancia hasta el %2 está agotado.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 until %3 are used up.</source>
        <translation>Se ha consumido el %1 % de su volumen de %2 hasta el %3.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 for roaming until %3 are used up.</source>
        <translation>Se ha consumido el %1 % de su volumen de %2 para itinerancia hasta el %3.</translation>
    </message>
</context>
<context>
    <name>corva::TrafficSettingsPage</name>
    <message>
        <source>Your volume</source>
        <translation>Su volumen</translation>
    </message>
    <message>
        <source>&amp;Volume of a month</source>
        <translation>&amp;Volumen mensual</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>While &amp;roaming</source>
        <translation>En &amp;itinerancia</translation>
    </message>
    <message>
        <source>Counts with it</source>
        <translation>Incluido en él</translation>
    </message>
    <message>
        <source>It begins anew on &amp;day</source>
        <translation>Se &amp;renueva el día</translation>
    </message>
    <message>
        <source>When it runs out</source>
        <translation>Cuando se agota</translation>
    </message>
    <message>
        <source>&amp;Warn at</source>
        <translation>&amp;Avisar al</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Unidad: %1</translation>
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
        <translation>&amp;Finalizar la conexión cuando se agote el volumen</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
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
    <message>
        <source>&amp;Disconnect</source>
        <translation>D&amp;esconectar</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>&amp;Cancelar la conexión</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>Co&amp;nectar</translation>
    </message>
</context>
<context>
    <name>corva::WirelessWindow</name>
    <message>
        <source>Plug the card in to connect.</source>
        <translation>Conecte la tarjeta al equipo para poder conectar.</translation>
    </message>
    <message>
        <source>Connect goes by the profile &quot;%1&quot;.</source>
        <translation>Se conecta con el perfil «%1».</translation>
    </message>
    <message>
        <source>The settings of %1 are known: just connect.</source>
        <translation>Los ajustes de %1 ya se conocen: solo tiene que conectar.</translation>
    </message>
    <message>
        <source>The settings for this SIM card are known: connect, and say whose it is.</source>
        <translation>Los ajustes para esta tarjeta SIM ya se conocen: conecte e indique de quién es.</translation>
    </message>
    <message>
        <source>Add a profile with the access point that your operator has told you.</source>
        <translation>Añada un perfil con el punto de acceso que le haya indicado su operador.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
</context>
</TS>
