<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message>
        <source>&amp;New message</source>
        <translation>&amp;Nouveau message</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>Pl&amp;us</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>Nouveau message</translation>
    </message>
    <message>
        <source>Search all messages</source>
        <translation>Rechercher dans tous les messages</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Rechercher (%1)</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Envois réussis&#xa0;: %1, échecs&#xa0;: %2</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importer…</translation>
    </message>
    <message>
        <source>&amp;Undo deleting</source>
        <translation>Annuler la &amp;suppression</translation>
    </message>
    <message>
        <source>Read the SIM and the data card ane&amp;w</source>
        <translation>&amp;Relire la carte SIM et la carte de données</translation>
    </message>
    <message>
        <source>&amp;Service centre…</source>
        <translation>&amp;Centre de messagerie…</translation>
    </message>
    <message>
        <source>Choose a message to read it, or write one with Ctrl+N.</source>
        <translation>Choisissez un message pour le lire, ou écrivez-en un avec Ctrl+N.</translation>
    </message>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>%n message est choisi.</numerusform>
            <numerusform>%n messages sont choisis.</numerusform>
        </translation>
    </message>
    <message>
        <source>The draft was deleted.</source>
        <translation>Le brouillon a été supprimé.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>There is nothing to bring back.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Ré&amp;essayer</translation>
    </message>
    <message>
        <source>%1: %2 of %3 places are used. When it is full, no message can come in.</source>
        <translation>%1&#xa0;: %2 emplacements sur %3 sont utilisés. Une fois la mémoire pleine, aucun message ne peut arriver.</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>Verrouillée, PIN requis</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>Bloquée, PUK requis</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Illisible</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Pas de carte SIM</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>Pas de recherche</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>Réseau d’origine</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Aucun service</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Appels d’urgence uniquement</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>Service complet</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Aucun service dans cette région</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>Économie d’énergie</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1&#xa0;dBm</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1, %2 barres sur 5</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>Hors ligne&#xa0;: %1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Sur le réseau</translation>
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
        <translation>«&#xa0;%1&#xa0;» n’est pas un canal. Les canaux sont des nombres de 0 à 65535, ou des plages comme 10-15.</translation>
    </message>
    <message>
        <source>These are more than %1 channels.</source>
        <translation>Cela fait plus de %1 canaux.</translation>
    </message>
</context>
<context>
    <name>CmsErrors</name>
    <message>
        <source>The number does not exist.</source>
        <translation>Le numéro n’existe pas.</translation>
    </message>
    <message>
        <source>The operator has barred messages for this SIM.</source>
        <translation>L’opérateur a interdit les messages pour cette carte SIM.</translation>
    </message>
    <message>
        <source>Sending is barred.</source>
        <translation>L’envoi est interdit.</translation>
    </message>
    <message>
        <source>The network failed.</source>
        <translation>Le réseau a échoué.</translation>
    </message>
    <message>
        <source>The network rejected the message.</source>
        <translation>Le réseau a rejeté le message.</translation>
    </message>
    <message>
        <source>The memory for messages is full.</source>
        <translation>La mémoire des messages est pleine.</translation>
    </message>
    <message>
        <source>The recipient cannot be reached.</source>
        <translation>Le destinataire est injoignable.</translation>
    </message>
    <message>
        <source>The network does not know this SIM.</source>
        <translation>Le réseau ne connaît pas cette carte SIM.</translation>
    </message>
    <message>
        <source>The network does not offer this service.</source>
        <translation>Le réseau n’offre pas ce service.</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>Le réseau est en panne.</translation>
    </message>
    <message>
        <source>The network failed for the moment.</source>
        <translation>Le réseau a échoué momentanément.</translation>
    </message>
    <message>
        <source>The network is overloaded.</source>
        <translation>Le réseau est surchargé.</translation>
    </message>
    <message>
        <source>The network has no room for the message.</source>
        <translation>Le réseau n’a pas de place pour le message.</translation>
    </message>
    <message>
        <source>Messages are not part of this subscription.</source>
        <translation>L’abonnement ne comprend pas les messages.</translation>
    </message>
    <message>
        <source>The network did not understand the message.</source>
        <translation>Le réseau n’a pas compris le message.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network failed.</source>
        <translation>Le réseau du destinataire a échoué.</translation>
    </message>
    <message>
        <source>This kind of message is not supported.</source>
        <translation>Ce type de message n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The message cannot replace another one.</source>
        <translation>Le message ne peut pas en remplacer un autre.</translation>
    </message>
    <message>
        <source>The message&apos;s alphabet is not supported.</source>
        <translation>L’alphabet du message n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The service centre refused the command.</source>
        <translation>Le centre de messagerie a refusé la commande.</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>Le centre de messagerie est occupé.</translation>
    </message>
    <message>
        <source>The service centre does not serve this SIM.</source>
        <translation>Le centre de messagerie ne dessert pas cette carte SIM.</translation>
    </message>
    <message>
        <source>The service centre failed.</source>
        <translation>Le centre de messagerie a échoué.</translation>
    </message>
    <message>
        <source>The number is not valid.</source>
        <translation>Le numéro n’est pas valide.</translation>
    </message>
    <message>
        <source>The recipient is barred.</source>
        <translation>Le destinataire est interdit.</translation>
    </message>
    <message>
        <source>The service centre has this message already.</source>
        <translation>Le centre de messagerie a déjà ce message.</translation>
    </message>
    <message>
        <source>The service centre refuses the validity period.</source>
        <translation>Le centre de messagerie refuse la durée de validité.</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is full.</source>
        <translation>La mémoire des messages de la carte SIM est pleine.</translation>
    </message>
    <message>
        <source>The SIM cannot hold messages.</source>
        <translation>La carte SIM ne peut pas contenir de messages.</translation>
    </message>
    <message>
        <source>The card failed.</source>
        <translation>La carte a échoué.</translation>
    </message>
    <message>
        <source>The SIM is busy.</source>
        <translation>La carte SIM est occupée.</translation>
    </message>
    <message>
        <source>The SIM failed.</source>
        <translation>La carte SIM a échoué.</translation>
    </message>
    <message>
        <source>The card&apos;s message service is in use.</source>
        <translation>Le service de messages de la carte est déjà utilisé.</translation>
    </message>
    <message>
        <source>The card does not allow this now.</source>
        <translation>La carte ne le permet pas pour l’instant.</translation>
    </message>
    <message>
        <source>The card cannot do this.</source>
        <translation>La carte ne sait pas le faire.</translation>
    </message>
    <message>
        <source>The card did not understand the message.</source>
        <translation>La carte n’a pas compris le message.</translation>
    </message>
    <message>
        <source>There is no SIM in the card.</source>
        <translation>Il n’y a pas de carte SIM dans la carte.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>La carte SIM demande son code PIN.</translation>
    </message>
    <message>
        <source>The card asks for its own PIN.</source>
        <translation>La carte demande son propre code PIN.</translation>
    </message>
    <message>
        <source>This SIM does not fit the card.</source>
        <translation>Cette carte SIM ne convient pas à la carte.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>La carte SIM demande son code PUK.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN2.</source>
        <translation>La carte SIM demande son code PIN2.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK2.</source>
        <translation>La carte SIM demande son code PUK2.</translation>
    </message>
    <message>
        <source>The memory for messages failed.</source>
        <translation>La mémoire des messages a échoué.</translation>
    </message>
    <message>
        <source>There is no message at this place.</source>
        <translation>Il n’y a pas de message à cet emplacement.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>Le numéro du centre de messagerie n’est pas connu.</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>Il n’y a pas de réseau.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Le réseau n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The card expected no confirmation.</source>
        <translation>La carte n’attendait pas de confirmation.</translation>
    </message>
    <message>
        <source>The card does not say why.</source>
        <translation>La carte n’en donne pas la raison.</translation>
    </message>
    <message>
        <source>The message was delivered.</source>
        <translation>Le message a été remis.</translation>
    </message>
    <message>
        <source>The message was replaced by a newer one.</source>
        <translation>Le message a été remplacé par un plus récent.</translation>
    </message>
    <message>
        <source>The message could not be delivered yet; the network goes on trying.</source>
        <translation>Le message n’a pas encore pu être remis&#xa0;; le réseau continue d’essayer.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device cannot take the message.</source>
        <translation>L’appareil du destinataire ne peut pas recevoir le message.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device refused the message.</source>
        <translation>L’appareil du destinataire a refusé le message.</translation>
    </message>
    <message>
        <source>The message could not be delivered in time.</source>
        <translation>Le message n’a pas pu être remis à temps.</translation>
    </message>
    <message>
        <source>The service centre does not know the message.</source>
        <translation>Le centre de messagerie ne connaît pas le message.</translation>
    </message>
    <message>
        <source>The message could not be delivered.</source>
        <translation>Le message n’a pas pu être remis.</translation>
    </message>
    <message>
        <source>The card says: %1</source>
        <translation>La carte indique&#xa0;: %1</translation>
    </message>
    <message>
        <source>The card refuses, with the code %1.</source>
        <translation>La carte refuse, avec le code %1.</translation>
    </message>
    <message>
        <source>The card refuses, without saying why.</source>
        <translation>La carte refuse, sans dire pourquoi.</translation>
    </message>
    <message>
        <source>The network refused the message, without saying why.</source>
        <translation>Le réseau a refusé le message sans dire pourquoi.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device is busy.</source>
        <translation>L’appareil du destinataire est occupé.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device does not answer.</source>
        <translation>L’appareil du destinataire ne répond pas.</translation>
    </message>
    <message>
        <source>The network has not the quality of service that the message asks for.</source>
        <translation>Le réseau n’offre pas la qualité de service que le message demande.</translation>
    </message>
    <message>
        <source>The recipient&apos;s device failed.</source>
        <translation>L’appareil du destinataire a échoué.</translation>
    </message>
    <message>
        <source>The message was passed on; whether it arrived is not known.</source>
        <translation>Le message a été transmis ; on ne sait pas s’il est arrivé.</translation>
    </message>
    <message>
        <source>The recipient&apos;s network does not work with this one.</source>
        <translation>Le réseau du destinataire ne fonctionne pas avec celui-ci.</translation>
    </message>
    <message>
        <source>The message was deleted by its sender before it was delivered.</source>
        <translation>L’expéditeur a supprimé le message avant sa remise.</translation>
    </message>
    <message>
        <source>The service centre deleted the message before it was delivered.</source>
        <translation>Le centre de messagerie a supprimé le message avant sa remise.</translation>
    </message>
</context>
<context>
    <name>ConnectionDiagnosis</name>
    <message>
        <source>No profile is chosen</source>
        <translation>Aucun profil n’est choisi</translation>
    </message>
    <message>
        <source>A profile says how to reach the internet through your operator. Those of most operators are known; choose one, or add your own.</source>
        <translation>Un profil indique comment accéder à internet chez votre opérateur. Ceux de la plupart des opérateurs sont connus&#xa0;; choisissez-en un, ou ajoutez le vôtre.</translation>
    </message>
    <message>
        <source>The network chooses it</source>
        <translation>Le réseau le choisit</translation>
    </message>
    <message>
        <source>The profile names no access point</source>
        <translation>Le profil n’indique aucun point d’accès</translation>
    </message>
    <message>
        <source>Your operator can tell you its name (APN). Enter it in the profile.</source>
        <translation>Votre opérateur peut vous en donner le nom (APN). Saisissez-le dans le profil.</translation>
    </message>
    <message>
        <source>User name or password refused</source>
        <translation>Nom d’utilisateur ou mot de passe refusé</translation>
    </message>
    <message>
        <source>The call was not taken</source>
        <translation>L’appel n’a pas été pris</translation>
    </message>
    <message>
        <source>The line was busy</source>
        <translation>La ligne était occupée</translation>
    </message>
    <message>
        <source>No link within the time</source>
        <translation>Pas de liaison dans le délai prévu</translation>
    </message>
    <message>
        <source>The dialler failed</source>
        <translation>Le composeur a échoué</translation>
    </message>
    <message>
        <source>System files cannot be changed</source>
        <translation>Impossible de modifier les fichiers système</translation>
    </message>
    <message>
        <source>No right to dial</source>
        <translation>Pas de droit de composer</translation>
    </message>
    <message>
        <source>The network ended the connection</source>
        <translation>Le réseau a mis fin à la connexion</translation>
    </message>
    <message>
        <source>The connection broke off</source>
        <translation>La connexion s’est interrompue</translation>
    </message>
    <message>
        <source>The card was taken out</source>
        <translation>La carte a été retirée</translation>
    </message>
    <message>
        <source>Ended because nothing was carried</source>
        <translation>Terminée faute de trafic</translation>
    </message>
    <message>
        <source>The month&apos;s volume is used up</source>
        <translation>Le forfait du mois est épuisé</translation>
    </message>
    <message>
        <source>The connection is up</source>
        <translation>La connexion est établie</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Cela prend quelques secondes.</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Déconnexion en cours</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>The card is in the network, and everything is there to connect.</source>
        <translation>La carte est sur le réseau, et tout est prêt pour la connexion.</translation>
    </message>
    <message>
        <source>The network gave no address</source>
        <translation>Le réseau n’a pas donné d’adresse</translation>
    </message>
    <message>
        <source>Disconnect and connect again. If that does not help, the access point of the profile may be the wrong one.</source>
        <translation>Déconnectez-vous et reconnectez-vous. Si cela ne suffit pas, le point d’accès du profil n’est peut-être pas le bon.</translation>
    </message>
    <message>
        <source>No name servers</source>
        <translation>Pas de serveurs de noms</translation>
    </message>
    <message>
        <source>Without them names of web sites cannot be found. Enter some in the profile, then disconnect and connect again.</source>
        <translation>Sans eux, les noms des sites web sont introuvables. Saisissez-en dans le profil, puis déconnectez-vous et reconnectez-vous.</translation>
    </message>
    <message>
        <source>Another connection carries the traffic</source>
        <translation>Une autre connexion achemine le trafic</translation>
    </message>
    <message>
        <source>This computer goes through a cable, Wi-Fi or another way first. Switch that off, then disconnect and connect again here.</source>
        <translation>Cet ordinateur passe d’abord par un câble, le Wi-Fi ou une autre voie. Désactivez-la, puis déconnectez-vous et reconnectez-vous ici.</translation>
    </message>
    <message>
        <source>The traffic goes through the card</source>
        <translation>Le trafic passe par la carte</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Point d’accès</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Serveurs de noms</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Route</translation>
    </message>
    <message>
        <source>The profile cannot be used</source>
        <translation>Le profil ne peut pas être utilisé</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>With &quot;%1&quot;, since %2.</source>
        <translation>Avec «&#xa0;%1&#xa0;», depuis %2.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;, attempt %2 of %3.</source>
        <translation>Avec «&#xa0;%1&#xa0;», tentative %2 sur %3.</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;.</source>
        <translation>Avec «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1 Attempt %2 of %3 follows.</source>
        <translation>%1 La tentative %2 sur %3 va suivre.</translation>
    </message>
</context>
<context>
    <name>DiallerFiles</name>
    <message>
        <source>Save wvdial config data failed!</source>
        <translation>Échec de l’enregistrement de la configuration de wvdial&#xa0;!</translation>
    </message>
    <message>
        <source>Read default wvdial config data failed!</source>
        <translation>Échec de la lecture de la configuration par défaut de wvdial&#xa0;!</translation>
    </message>
    <message>
        <source>open file operation error!</source>
        <translation>Erreur à l’ouverture du fichier&#xa0;!</translation>
    </message>
    <message>
        <source>Recover wvdial config data failed!</source>
        <translation>Échec de la restauration de la configuration de wvdial&#xa0;!</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>Le DNS n’est pas valide&#xa0;!</translation>
    </message>
</context>
<context>
    <name>EndSentence</name>
    <message>
        <source>The network refused the user name and the password.</source>
        <translation>Le réseau a refusé le nom d’utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>The network did not take the call.</source>
        <translation>Le réseau n’a pas pris l’appel.</translation>
    </message>
    <message>
        <source>The line is busy. Please try again later.</source>
        <translation>La ligne est occupée. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>Le réseau n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The dialler ended before it was done.</source>
        <translation>Le numéroteur s’est arrêté avant d’avoir terminé.</translation>
    </message>
    <message>
        <source>The files for the dialler could not be written.</source>
        <translation>Les fichiers du numéroteur n’ont pas pu être écrits.</translation>
    </message>
    <message>
        <source>The right to connect was not given.</source>
        <translation>Le droit de se connecter n’a pas été accordé.</translation>
    </message>
    <message>
        <source>The network ended the connection.</source>
        <translation>Le réseau a mis fin à la connexion.</translation>
    </message>
    <message>
        <source>The network does not answer any more.</source>
        <translation>Le réseau ne répond plus.</translation>
    </message>
    <message>
        <source>The card was pulled out.</source>
        <translation>La carte a été retirée.</translation>
    </message>
    <message>
        <source>The connection was ended because nothing was carried.</source>
        <translation>La connexion a été terminée car rien n’était transmis.</translation>
    </message>
    <message>
        <source>The connection was ended because the volume is used up.</source>
        <translation>La connexion a été terminée car le forfait est épuisé.</translation>
    </message>
</context>
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
    <name>HistoryEnd</name>
    <message>
        <source>By you</source>
        <translation>Par vous</translation>
    </message>
    <message>
        <source>By the network</source>
        <translation>Par le réseau</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <source>Dialler stopped</source>
        <translation>Composeur arrêté</translation>
    </message>
    <message>
        <source>Card removed</source>
        <translation>Carte retirée</translation>
    </message>
    <message>
        <source>Nothing carried</source>
        <translation>Aucun trafic</translation>
    </message>
    <message>
        <source>Volume used up</source>
        <translation>Forfait épuisé</translation>
    </message>
    <message>
        <source>Program closed</source>
        <translation>Programme fermé</translation>
    </message>
    <message>
        <source>Unexpectedly</source>
        <translation>De façon inattendue</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>MessageCounter</name>
    <message>
        <source>Symbol: %1 /%2</source>
        <translation>Caractères&#xa0;: %1 /%2</translation>
    </message>
    <message>
        <source>The message is too long: it may have %1 parts.</source>
        <translation>Le message est trop long&#xa0;: il peut avoir %1 parties.</translation>
    </message>
    <message>
        <source>Because of &quot;%1&quot; a message holds 70 characters instead of 160.</source>
        <translation>À cause de «&#xa0;%1&#xa0;», un message contient 70 caractères au lieu de 160.</translation>
    </message>
    <message>
        <source>National letters leave 155 characters of 160.</source>
        <translation>Les lettres nationales laissent 155 caractères sur 160.</translation>
    </message>
    <message>
        <source>It is sent in %1 parts.</source>
        <translation>Il est envoyé en %1 parties.</translation>
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
        <translation>À %1, %2</translation>
    </message>
</context>
<context>
    <name>MessageStore</name>
    <message>
        <source>%1 was empty.</source>
        <translation>%1 était vide.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>%1 n’a pas pu être lu en entier. Son contenu est conservé sous %2.</translation>
    </message>
    <message>
        <source>%1 can neither be read nor moved aside.</source>
        <translation>%1 ne peut être ni lu ni mis de côté.</translation>
    </message>
</context>
<context>
    <name>MessageTransfer</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Impossible de lire %1.</translation>
    </message>
    <message>
        <source>%1 is not a file of messages.</source>
        <translation>%1 n’est pas un fichier de messages.</translation>
    </message>
    <message>
        <source>The messages of %1 could not be saved.</source>
        <translation>Les messages de %1 n’ont pas pu être enregistrés.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Inbox</source>
        <translation>Boîte de réception</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Boîte d’envoi</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>box</comment>
        <translation>Envoyés</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>state</comment>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>Brouillons</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Supprimés</translation>
    </message>
    <message>
        <source>Delivery reports</source>
        <translation>Accusés de réception</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Carte SIM</translation>
    </message>
    <message>
        <source>Data card</source>
        <translation>Carte de données</translation>
    </message>
    <message>
        <source>Waiting to be sent</source>
        <translation>En attente d’envoi</translation>
    </message>
    <message>
        <source>Being sent</source>
        <translation>En cours d’envoi</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Remis</translation>
    </message>
    <message>
        <source>Not delivered yet, the network still tries</source>
        <translation>Pas encore remis, le réseau essaie toujours</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>Partie %1&#xa0;: %2</translation>
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
        <translation>Encore personne</translation>
    </message>
    <message>
        <source>Unknown sender</source>
        <translation>Expéditeur inconnu</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>This message cannot be read</source>
        <translation>Ce message est illisible</translation>
    </message>
    <message>
        <source>No text</source>
        <translation>Pas de texte</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>Peut-être envoyé</translation>
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
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>Appel entrant</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>La carte sonne.</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>Un autre appel est en attente.</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>La carte se présente comme un disque</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>Beaucoup de cartes démarrent comme un disque contenant leurs pilotes. Changez de mode, et la carte devient un modem en quelques secondes.</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>Aucune carte trouvée</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>Branchez la carte sur une prise USB de cet ordinateur. Si elle est déjà branchée, retirez-la et essayez une autre prise.</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>La carte est branchée comme modem</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>La carte n’a pas de port série</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>L’ordinateur voit «&#xa0;%1&#xa0;» mais ne lui a pas créé de port. Retirez la carte, attendez dix secondes et rebranchez-la.</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>L’ordinateur lui a créé un port</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>Vous avez accès au port</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>Pas de droit d’accès au port</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>Seuls les membres du groupe «&#xa0;%2&#xa0;» peuvent utiliser le port %1. Exécutez la commande que le bouton copie, puis fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>Un autre programme</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (processus %2)</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>Aucun autre programme n’occupe le port</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>Le port est occupé</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>%1 occupe le port %2. Fermez ce programme ou arrêtez son service, puis relancez la recherche.</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>La carte ne répond pas</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>Le port %1 est ouvert, mais rien n’y répond. Une carte tout juste branchée peut mettre une demi-minute&#xa0;; passé ce délai, retirez-la et rebranchez-la.</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>La carte répond</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>Pas de carte SIM</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>Retirez la carte, insérez-y une carte SIM, contacts vers le bas, puis rebranchez la carte.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>La carte SIM est illisible</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>Retirez la carte SIM, essuyez ses contacts et remettez-la. Si cela ne suffit pas, demandez-en une nouvelle à votre opérateur.</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>La carte SIM démarre</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>Cela prend quelques secondes.</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>Vérification de la carte SIM</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>La carte n’a pas encore indiqué si elle contient une carte SIM.</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>La carte contient une carte SIM</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>La carte SIM est verrouillée</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>Elle demande son code PIN avant de laisser la carte accéder à un réseau.</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>La carte SIM est bloquée</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>Un code PIN erroné a été saisi trop souvent. Le code PUK, fourni avec la carte SIM, permet d’en définir un nouveau.</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>La carte SIM est déverrouillée</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>La radio est désactivée</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>La carte n’émet et ne reçoit rien tant que la radio est désactivée.</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>La radio est activée</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>Pas de recherche de réseau</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>La carte n’a trouvé aucun réseau autorisé et a renoncé. Allez là où la réception est meilleure, puis réactivez la radio.</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>Le réseau a refusé la carte SIM</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>La carte SIM n’est peut-être pas encore activée, ou pas autorisée ici. Votre opérateur peut vous dire pourquoi.</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>Recherche d’un réseau</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>Cela peut prendre une minute, davantage à l’étranger. Une place près d’une fenêtre aide.</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>Vérification du réseau</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>La carte n’a pas encore indiqué si un réseau l’a acceptée.</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>Le réseau de votre opérateur a accepté la carte</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>Le réseau d’un autre opérateur a accepté la carte</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>Aucun service</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>Le réseau n’offre aucun service ici pour le moment. Allez là où la réception est meilleure.</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>Appels d’urgence uniquement</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>Le réseau ne dessert pas cette carte SIM ici. Votre opérateur peut vous dire pourquoi.</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>Aucun service dans cette région</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>Votre opérateur dessert cette carte SIM ailleurs, mais pas dans cette région.</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>Le réseau dessert la carte</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>Carte dans la prise USB</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Port série</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>Droit d’accès au port</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>Port libre</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>Réponse de la carte</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Carte SIM</translation>
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
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>&amp;Rechercher à nouveau</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>Passer en &amp;modem</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>&amp;Copier la commande</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>&amp;Saisir le PIN</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>&amp;Saisir le PUK</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>Activer la &amp;radio</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>&amp;Interroger à nouveau</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>Co&amp;nnecter</translation>
    </message>
    <message>
        <source>&amp;Edit profile</source>
        <translation>Modi&amp;fier le profil</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>Les paramètres indiquent un port</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>Le port n’existe pas</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>Les paramètres indiquent le port %1, qui n’existe pas. Branchez la carte&#xa0;; si elle est déjà branchée, corrigez «&#xa0;at_port&#xa0;» dans le fichier Data/common-config.xml et redémarrez le programme.</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>Le port n’est pas un port série</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>Les paramètres indiquent le port %1, qui n’est pas un port série. Corrigez «&#xa0;at_port&#xa0;» dans le fichier Data/common-config.xml et redémarrez le programme.</translation>
    </message>
</context>
<context>
    <name>PduError</name>
    <message>
        <source>there is nothing</source>
        <translation>il n’y a rien</translation>
    </message>
    <message>
        <source>this is no hexadecimal digit</source>
        <translation>ce n’est pas un chiffre hexadécimal</translation>
    </message>
    <message>
        <source>half an octet is missing</source>
        <translation>il manque un demi-octet</translation>
    </message>
    <message>
        <source>the message ends too early</source>
        <translation>le message se termine trop tôt</translation>
    </message>
    <message>
        <source>the length goes past the end</source>
        <translation>la longueur dépasse la fin</translation>
    </message>
    <message>
        <source>this is no message of the expected kind</source>
        <translation>ce n’est pas un message du type attendu</translation>
    </message>
    <message>
        <source>the header is longer than the data</source>
        <translation>l’en-tête est plus long que les données</translation>
    </message>
    <message>
        <source>an element goes past the header</source>
        <translation>un élément dépasse l’en-tête</translation>
    </message>
    <message>
        <source>there can be no such part</source>
        <translation>une telle partie ne peut pas exister</translation>
    </message>
    <message>
        <source>half a character is missing</source>
        <translation>il manque un demi-caractère</translation>
    </message>
    <message>
        <source>The message cannot be read: %1 (%2, octet %3).</source>
        <translation>Le message ne peut pas être lu&#xa0;: %1 (%2, octet %3).</translation>
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
    <name>PppErrors</name>
    <message>
        <source>Pppd  has  detached,  or  otherwise  the  connection was successfully established and terminated at the peer&apos;s request.</source>
        <translation>Pppd s’est détaché, ou bien la connexion a été établie puis terminée à la demande du correspondant.</translation>
    </message>
    <message>
        <source>An immediately fatal error of some kind occurred, such as an essential system call failing, or running out  of virtual memory.</source>
        <translation>Une erreur immédiatement fatale s’est produite, par exemple l’échec d’un appel système essentiel ou un manque de mémoire virtuelle.</translation>
    </message>
    <message>
        <source>An error was detected in processing the options given, such as two mutually exclusive options being used.</source>
        <translation>Une erreur a été détectée dans les options données, par exemple deux options qui s’excluent mutuellement.</translation>
    </message>
    <message>
        <source>Pppd is not setuid-root and the invoking user is not root.</source>
        <translation>Pppd n’est pas setuid-root et l’utilisateur qui l’a lancé n’est pas root.</translation>
    </message>
    <message>
        <source>The kernel does not support PPP, for example, the PPP kernel driver is not included or cannot be loaded.</source>
        <translation>Le noyau ne prend pas PPP en charge, par exemple parce que le pilote PPP du noyau n’est pas inclus ou ne peut pas être chargé.</translation>
    </message>
    <message>
        <source>Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal.</source>
        <translation>Pppd s’est terminé car il a reçu un signal SIGINT, SIGTERM ou SIGHUP.</translation>
    </message>
    <message>
        <source>The serial port could not be locked.</source>
        <translation>Le port série n’a pas pu être verrouillé.</translation>
    </message>
    <message>
        <source>The serial port could not be opened.</source>
        <translation>Le port série n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The connect script failed (returned a non-zero exit status).</source>
        <translation>Le script de connexion a échoué (code de sortie non nul).</translation>
    </message>
    <message>
        <source>The command specified as the argument to the pty option could not be run.</source>
        <translation>La commande donnée en argument de l’option pty n’a pas pu être exécutée.</translation>
    </message>
    <message>
        <source>The  PPP  negotiation failed, that is, it didn&apos;t reach the point where at least one network protocol (e.g. IP) was running.</source>
        <translation>La négociation PPP a échoué, c’est-à-dire qu’elle n’a pas atteint le point où au moins un protocole réseau (p. ex. IP) fonctionne.</translation>
    </message>
    <message>
        <source>The peer system failed (or refused) to authenticate itself.</source>
        <translation>Le système distant n’a pas réussi (ou a refusé) à s’authentifier.</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because it was idle.</source>
        <translation>La liaison a été établie puis terminée pour inactivité.</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because the connect time limit was reached.</source>
        <translation>La liaison a été établie puis terminée car la durée de connexion maximale a été atteinte.</translation>
    </message>
    <message>
        <source>Callback was negotiated and an incoming call should arrive shortly.</source>
        <translation>Un rappel a été négocié et un appel entrant devrait arriver sous peu.</translation>
    </message>
    <message>
        <source>The link was terminated because the peer is not responding to echo requests.</source>
        <translation>La liaison a été terminée car le correspondant ne répond pas aux demandes d’écho.</translation>
    </message>
    <message>
        <source>The link was terminated by the modem hanging up.</source>
        <translation>La liaison a été terminée car le modem a raccroché.</translation>
    </message>
    <message>
        <source>The PPP negotiation failed because serial loopback was detected.</source>
        <translation>La négociation PPP a échoué car un bouclage série a été détecté.</translation>
    </message>
    <message>
        <source>The init script failed (returned a non-zero exit status).</source>
        <translation>Le script d’initialisation a échoué (code de sortie non nul).</translation>
    </message>
    <message>
        <source>We failed to authenticate ourselves to the peer.</source>
        <translation>Nous n’avons pas réussi à nous authentifier auprès du correspondant.</translation>
    </message>
</context>
<context>
    <name>ProfileChecks</name>
    <message>
        <source>The dial number may hold letters, digits and * # + , . - ( ), 80 at most.</source>
        <translation>Le numéro à composer peut contenir des lettres, des chiffres et * # + , . - ( ), 80 caractères au plus.</translation>
    </message>
    <message>
        <source>The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its ends, not be a single asterisk, and be 255 bytes long at most.</source>
        <translation>Le nom d’utilisateur ne doit contenir ni guillemets ni barres obliques inverses, ni accolade au début ni espaces aux extrémités&#xa0;; il ne doit pas être un simple astérisque ni dépasser 255 octets.</translation>
    </message>
    <message>
        <source>The password must not hold quotes, backslashes, a brace or &quot;@/&quot; at its beginning or blanks at its ends, and be 255 bytes long at most.</source>
        <translation>Le mot de passe ne doit contenir ni guillemets ni barres obliques inverses, ni accolade ou «&#xa0;@/&#xa0;» au début ni espaces aux extrémités&#xa0;; il ne doit pas dépasser 255 octets.</translation>
    </message>
    <message>
        <source>The name of the profile is too long.</source>
        <translation>Le nom du profil est trop long.</translation>
    </message>
    <message>
        <source>The APN may hold letters, digits and . - _ @ : /, 100 at most.</source>
        <translation>L’APN peut contenir des lettres, des chiffres et . - _ @ : /, 100 caractères au plus.</translation>
    </message>
    <message>
        <source>The address mode may hold letters and digits only.</source>
        <translation>Le mode d’adresse ne peut contenir que des lettres et des chiffres.</translation>
    </message>
    <message>
        <source>The beginning of the IMSI may hold 15 digits at most.</source>
        <translation>Le début de l’IMSI peut contenir 15 chiffres au plus.</translation>
    </message>
    <message>
        <source>The page to open must be an address of the web.</source>
        <translation>La page à ouvrir doit être une adresse web.</translation>
    </message>
    <message>
        <source>A value holds a line break or another control character, or the text &quot;-|-&quot;.</source>
        <translation>Une valeur contient un saut de ligne ou un autre caractère de contrôle, ou le texte «&#xa0;-|-&#xa0;».</translation>
    </message>
    <message>
        <source>The Config Filename must be filled.</source>
        <translation>Le nom de la configuration doit être renseigné.</translation>
    </message>
    <message>
        <source>The Dial Number is empty!</source>
        <translation>Le numéro à composer est vide&#xa0;!</translation>
    </message>
    <message>
        <source>The APN is empty!</source>
        <translation>L’APN est vide&#xa0;!</translation>
    </message>
    <message>
        <source>Invalid PDP!Please check it!</source>
        <translation>PDP non valide&#xa0;! Vérifiez-le&#xa0;!</translation>
    </message>
    <message>
        <source>Invalid Preferred DNS!Please check it!</source>
        <translation>DNS préféré non valide&#xa0;! Vérifiez-le&#xa0;!</translation>
    </message>
    <message>
        <source>Invalid Alternative DNS!Please check it!</source>
        <translation>DNS auxiliaire non valide&#xa0;! Vérifiez-le&#xa0;!</translation>
    </message>
    <message>
        <source>The card&apos;s data port has a name that cannot be used.</source>
        <translation>Le port de données de la carte a un nom inutilisable.</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>The profiles in %1 cannot be read.</source>
        <translation>Impossible de lire les profils de %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read, and cannot be kept beside.</source>
        <translation>Impossible de lire %1, et ce fichier ne peut pas être conservé.</translation>
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
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro&#xa0;: «&#xa0;%2&#xa0;» ne peut pas être composé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number: the digits are missing.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un numéro&#xa0;: il manque les chiffres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: a number has %2 characters at most.</source>
        <translation>«&#xa0;%1&#xa0;» est trop long&#xa0;: un numéro a %2 caractères au plus.</translation>
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
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>Le fichier de paramètres endommagé ne peut pas être conservé</translation>
    </message>
    <message>
        <source>The rights of %1 cannot be set</source>
        <translation>Impossible de définir les droits de %1</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>Les paramètres n’ont pas pu être lus&#xa0;; le programme a démarré sans aucun réglage. Le fichier illisible a été conservé sous&#xa0;:
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>Les paramètres ne peuvent pas être enregistrés&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>Impossible de lire les couleurs de «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>SmsFiling</name>
    <message>
        <source>The text is compressed and cannot be shown.</source>
        <translation>Le texte est compressé et ne peut pas être affiché.</translation>
    </message>
    <message>
        <source>The message holds data and no text.</source>
        <translation>Le message contient des données et pas de texte.</translation>
    </message>
    <message>
        <source>The card lists the message without its content.</source>
        <translation>La carte liste le message sans son contenu.</translation>
    </message>
    <message>
        <source>A message came in without its content.</source>
        <translation>Un message est arrivé sans son contenu.</translation>
    </message>
    <message>
        <source>Voice messages are waiting for you.</source>
        <translation>Des messages vocaux vous attendent.</translation>
    </message>
    <message>
        <source>No voice messages are waiting any more.</source>
        <translation>Plus aucun message vocal en attente.</translation>
    </message>
    <message>
        <source>Faxes are waiting for you.</source>
        <translation>Des fax vous attendent.</translation>
    </message>
    <message>
        <source>No faxes are waiting any more.</source>
        <translation>Plus aucun fax en attente.</translation>
    </message>
    <message>
        <source>E-mails are waiting for you.</source>
        <translation>Des courriels vous attendent.</translation>
    </message>
    <message>
        <source>No e-mails are waiting any more.</source>
        <translation>Plus aucun courriel en attente.</translation>
    </message>
    <message>
        <source>Messages of another kind are waiting for you.</source>
        <translation>Des messages d’un autre type vous attendent.</translation>
    </message>
    <message>
        <source>No messages of another kind are waiting any more.</source>
        <translation>Plus aucun message d’un autre type en attente.</translation>
    </message>
</context>
<context>
    <name>SmsJobs</name>
    <message>
        <source>The card did not answer.</source>
        <translation>La carte n’a pas répondu.</translation>
    </message>
    <message>
        <source>The card does not exchange messages as PDUs: %1</source>
        <translation>La carte n’échange pas les messages sous forme de PDU&#xa0;: %1</translation>
    </message>
    <message>
        <source>New messages will not be announced: %1</source>
        <translation>Les nouveaux messages ne seront pas annoncés&#xa0;: %1</translation>
    </message>
    <message>
        <source>The message has no content that the card could keep.</source>
        <translation>Le message n’a pas de contenu que la carte pourrait conserver.</translation>
    </message>
    <message>
        <source>The card names the message without its content.</source>
        <translation>La carte nomme le message sans son contenu.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number, %1, is too long.</source>
        <translation>Le numéro du centre de messagerie, %1, est trop long.</translation>
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
        <translation>d MMMM</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <extracomment>A month with its year, as QDate::toString takes it</extracomment>
        <translation>MMMM yyyy</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>Hier, %1</translation>
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
        <translation>%1 reçus, %2 envoyés</translation>
    </message>
    <message>
        <source>%1; %2 of it roaming</source>
        <translation>%1&#xa0;; dont %2 en itinérance</translation>
    </message>
    <message>
        <source>%1 of %2 used (%3&#xa0;%)</source>
        <translation>%1 utilisés sur %2 (%3&#xa0;%)</translation>
    </message>
    <message>
        <source>%1 of %2 roaming (%3&#xa0;%)</source>
        <translation>%1 sur %2 en itinérance (%3&#xa0;%)</translation>
    </message>
    <message>
        <source>Too few days are known to say what it will be by %1.</source>
        <translation>Trop peu de jours sont connus pour prévoir le total au %1.</translation>
    </message>
    <message>
        <source>The volume is used up. A new one begins on %1.</source>
        <translation>Le forfait est épuisé. Un nouveau commence le %1.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2.</source>
        <translation>À ce rythme, le total sera d’environ %1 au %2.</translation>
    </message>
    <message>
        <source>As it goes, the volume will be used up on %1; by %2 it would be about %3.</source>
        <translation>À ce rythme, le forfait sera épuisé le %1&#xa0;; au %2, le total serait d’environ %3.</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2: the volume is enough.</source>
        <translation>À ce rythme, le total sera d’environ %1 au %2&#xa0;: le forfait suffit.</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Déplacer</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>Redi&amp;mensionner</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>Réd&amp;uire</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>A&amp;grandir</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>À &amp;propos de %1</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>Déco&amp;nnecter</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>Annu&amp;ler la connexion</translation>
    </message>
    <message>
        <source>Disconnect and quit?</source>
        <translation>Déconnecter et quitter&#xa0;?</translation>
    </message>
    <message>
        <source>Disconnect and &amp;quit</source>
        <translation>Déconnecter et qui&amp;tter</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>WvdialProcess</name>
    <message>
        <source>The dialler is running already.</source>
        <translation>Le composeur est déjà en cours d’exécution.</translation>
    </message>
    <message>
        <source>The program wvdial is missing. Please install it.</source>
        <translation>Le programme wvdial manque. Veuillez l’installer.</translation>
    </message>
</context>
<context>
    <name>corva::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Connection manager for USB data cards</source>
        <translation>Gestionnaire de connexion pour cartes de données USB</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Internal version</source>
        <translation>Version interne</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Tout &amp;copier</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
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
        <translation>Boîtes</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversations</translation>
    </message>
    <message>
        <source>Broadcasts</source>
        <translation>Diffusions</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>What is used of the places of a SIM card: &quot;SIM card, 10 of 20&quot;</extracomment>
        <translation>%1, %2 sur %3</translation>
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
        <translation>Canau&amp;x</translation>
    </message>
    <message>
        <source>Numbers and ranges, as 50, 4370-4372</source>
        <translation>Numéros et plages, comme 50, 4370-4372</translation>
    </message>
    <message>
        <source>L&amp;isten</source>
        <translation>Éc&amp;outer</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>Groupes de paramètres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
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
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>Tout redemander à la carte</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>Carte SIM</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Opérateur</translation>
    </message>
    <message>
        <source>Network type</source>
        <translation>Type de réseau</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>Code du réseau</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Cellule</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>Heure du réseau</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>N° de carte</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
</context>
<context>
    <name>corva::CardPlaces</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is nearly full: %1</source>
        <translation>La mémoire des messages de la carte SIM est presque pleine&#xa0;: %1</translation>
    </message>
    <message>
        <source>The card&apos;s memory for messages is nearly full: %1</source>
        <translation>La mémoire des messages de la carte est presque pleine&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no card that takes messages.</source>
        <translation>Il n’y a pas de carte qui accepte les messages.</translation>
    </message>
    <message>
        <source>The messages could not be written to disk and stay on the card.</source>
        <translation>Les messages n’ont pas pu être écrits sur le disque et restent sur la carte.</translation>
    </message>
    <message>
        <source>Only short messages can be kept on the card.</source>
        <translation>Seuls les messages courts peuvent être conservés sur la carte.</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>La carte n’est plus là.</translation>
    </message>
    <message>
        <source>The message was not written to the SIM: %1</source>
        <translation>Le message n’a pas été écrit sur la carte SIM&#xa0;: %1</translation>
    </message>
    <message>
        <source>The message was not written to the card: %1</source>
        <translation>Le message n’a pas été écrit sur la carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is kept on the computer as well.</source>
        <translation>Un message n’a pas pu être supprimé de la carte. Il est aussi conservé sur l’ordinateur.</translation>
    </message>
    <message>
        <source>The message is being sent.</source>
        <translation>Le message est en cours d’envoi.</translation>
    </message>
    <message>
        <source>It is for several people, and the card keeps messages for one.</source>
        <translation>Il est destiné à plusieurs personnes, et la carte ne conserve que les messages pour une seule.</translation>
    </message>
    <message>
        <source>What the card lists without its content stays where it is.</source>
        <translation>Ce que la carte liste sans contenu reste où il est.</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is in both places now.</source>
        <translation>Un message n’a pas pu être supprimé de la carte. Il se trouve maintenant aux deux endroits.</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>&amp;Afficher les chiffres</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>La carte SIM est bloquée</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>La carte SIM est verrouillée</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>Saisir le PUK</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>Saisir le PIN</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>Saisissez le code PUK fourni avec la carte SIM et choisissez un nouveau code PIN.</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>Saisissez son code PIN pour utiliser la carte.</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>Code P&amp;UK, 8 chiffres</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>Nouveau code &amp;PIN, 4 à 8 chiffres</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>Code &amp;PIN, 4 à 8 chiffres</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>&amp;Répéter le nouveau code PIN</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>&amp;Débloquer</translation>
    </message>
    <message>
        <source>Un&amp;lock</source>
        <translation>Dé&amp;verrouiller</translation>
    </message>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>%n tentative restante</numerusform>
            <numerusform>%n tentatives restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>Dernière tentative&#xa0;: après un autre code PUK erroné, la carte SIM sera définitivement perdue.</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>Dernière tentative&#xa0;: après un autre code PIN erroné, la carte SIM demandera son code PUK.</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>Un code PUK comporte 8 chiffres.</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>Un code PIN comporte 4 à 8 chiffres.</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>Les deux codes PIN diffèrent.</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>Vérification par la carte SIM</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>Le code PUK est incorrect.</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>Le code PIN est incorrect.</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>La carte SIM est illisible. Retirez-la et remettez-la.</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>La carte n’a pas répondu à temps. On ne sait pas si elle a accepté la saisie&#xa0;; les essais restants sont affichés si la carte les indique.</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>La carte SIM est encore en cours de démarrage. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>La carte a refusé la saisie, sans dire qu’elle est erronée.</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>corva::Class0Dialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Immediate message</source>
        <translation>Message immédiat</translation>
    </message>
    <message>
        <source>&amp;Keep in the inbox</source>
        <translation>&amp;Garder dans la boîte de réception</translation>
    </message>
    <message>
        <source>%1 :
 %2</source>
        <translation>%1&#xa0;:
 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>Encore %n</numerusform>
            <numerusform>Encore %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
</context>
<context>
    <name>corva::Composer</name>
    <message>
        <source>New message</source>
        <translation>Nouveau message</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Destinataires</translation>
    </message>
    <message>
        <source>Delivery &amp;report</source>
        <translation>A&amp;ccusé de réception</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>Numbers, with commas between them</source>
        <translation>Numéros, séparés par des virgules</translation>
    </message>
    <message>
        <source>Text of the message</source>
        <translation>Texte du message</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>You are told when the message was delivered</source>
        <translation>Vous êtes averti quand le message a été remis</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>&amp;Modèles</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>Moves the draft to the deleted messages</source>
        <translation>Place le brouillon dans les messages supprimés</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Brouillon</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The templates could not be stored: %1</source>
        <translation>Les modèles n’ont pas pu être enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Keep this text as a template</source>
        <translation>&amp;Garder ce texte comme modèle</translation>
    </message>
    <message>
        <source>&amp;Remove a template</source>
        <translation>&amp;Supprimer un modèle</translation>
    </message>
    <message>
        <source>Say whom the message is for.</source>
        <translation>Indiquez à qui le message est destiné.</translation>
    </message>
    <message>
        <source>The message says nothing yet.</source>
        <translation>Le message est encore vide.</translation>
    </message>
</context>
<context>
    <name>corva::Config</name>
    <message>
        <source>New profile</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>Modifier le profil</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Ferme&amp;r</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annule&amp;r</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Profile &amp;name</source>
        <translation>Nom du pr&amp;ofil</translation>
    </message>
    <message>
        <source>&amp;Dial number</source>
        <translation>Numéro à &amp;composer</translation>
    </message>
    <message>
        <source>Connect as a &amp;modem or a network card</source>
        <translation>Connecter comme &amp;modem ou carte réseau</translation>
    </message>
    <message>
        <source>As the card can</source>
        <translation>Selon la carte</translation>
    </message>
    <message>
        <source>Modem (dial-up)</source>
        <translation>Modem (par numérotation)</translation>
    </message>
    <message>
        <source>Network card</source>
        <translation>Carte réseau</translation>
    </message>
    <message>
        <source>For S&amp;IMs whose IMSI begins with</source>
        <translation>Po&amp;ur les cartes SIM dont l’IMSI commence par</translation>
    </message>
    <message>
        <source>any</source>
        <translation>indifférent</translation>
    </message>
    <message>
        <source>Access point (APN)</source>
        <translation>Point d’accès (APN)</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>Point d’accès</translation>
    </message>
    <message>
        <source>&amp;This one</source>
        <translation>Ce&amp;lui-ci</translation>
    </message>
    <message>
        <source>&amp;By the network</source>
        <translation>Choi&amp;si par le réseau</translation>
    </message>
    <message>
        <source>Name of the access &amp;point</source>
        <translation>Nom du &amp;point d’accès</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>Authentification</translation>
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
        <translation>Aucu&amp;ne</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>Nom d’u&amp;tilisateur</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Mot &amp;de passe</translation>
    </message>
    <message>
        <source>As&amp;k for them when connecting</source>
        <translation>Les demander à cha&amp;que connexion</translation>
    </message>
    <message>
        <source>Keep them in the profi&amp;le</source>
        <translation>Les &amp;garder dans le profil</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>From the network (d&amp;ynamic)</source>
        <translation>Attribuée par le réseau (d&amp;ynamique)</translation>
    </message>
    <message>
        <source>Fi&amp;xed</source>
        <translation>&amp;Fixe</translation>
    </message>
    <message>
        <source>Fixed add&amp;ress</source>
        <translation>Adresse f&amp;ixe</translation>
    </message>
    <message>
        <source>Name servers (DNS)</source>
        <translation>Serveurs de noms (DNS)</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Serveurs de noms</translation>
    </message>
    <message>
        <source>&amp;From the network</source>
        <translation>Attri&amp;bués par le réseau</translation>
    </message>
    <message>
        <source>Th&amp;ese</source>
        <translation>Ceu&amp;x-ci</translation>
    </message>
    <message>
        <source>Preferred (&amp;1)</source>
        <translation>Préféré (&amp;1)</translation>
    </message>
    <message>
        <source>Alternative (&amp;2)</source>
        <translation>Auxiliaire (&amp;2)</translation>
    </message>
    <message>
        <source>Once connected</source>
        <translation>Une fois connecté</translation>
    </message>
    <message>
        <source>Pa&amp;ge to open in the browser</source>
        <translation>Page à ou&amp;vrir dans le navigateur</translation>
    </message>
    <message>
        <source>This profile came with the program and stays as it is.</source>
        <translation>Ce profil est fourni avec le programme et ne se modifie pas.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionFacts</name>
    <message>
        <source>This connection</source>
        <translation>Cette connexion</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>Serveurs de noms</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Réception</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionHead</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Déconnecter</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Déconnexion en cours</translation>
    </message>
    <message>
        <source>Status: Connected</source>
        <translation>État&#xa0;: connecté</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>État&#xa0;: déconnecté</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionService</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Seul un réseau UMTS permet de se connecter pendant un appel !</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>L’appareil a été débranché ou n’est pas disponible.</translation>
    </message>
    <message>
        <source>Can&apos;t open deault config file!</source>
        <translation>Impossible d’ouvrir le fichier du profil par défaut !</translation>
    </message>
    <message>
        <source>This card has no network interface. Please choose dial-up in the profile.</source>
        <translation>Cette carte n’a pas d’interface réseau. Choisissez l’accès commuté dans le profil.</translation>
    </message>
    <message>
        <source>The card has no data port that could be dialled on.</source>
        <translation>La carte n’a pas de port de données sur lequel numéroter.</translation>
    </message>
    <message>
        <source>There is no data transported recently. Auto Disconnect will close your internet link.</source>
        <translation>Aucune donnée n’a été transmise récemment. La déconnexion automatique va fermer votre liaison internet.</translation>
    </message>
    <message>
        <source>An earlier connection was cut off and has left its own settings in files of the system. Start Corva again and enter the password: it puts them back.</source>
        <translation>Une connexion précédente a été interrompue et a laissé ses propres réglages dans des fichiers du système. Redémarrez Corva et saisissez le mot de passe : il les remet en place.</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionSettings</name>
    <message>
        <source>Automatic connection</source>
        <translation>Connexion automatique</translation>
    </message>
    <message>
        <source>&amp;Connect by itself when the card is ready</source>
        <translation>Se &amp;connecter automatiquement quand la carte est prête</translation>
    </message>
    <message>
        <source>&amp;Attempts</source>
        <translation>&amp;Tentatives</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> s</translation>
    </message>
    <message>
        <source>When a connection breaks off</source>
        <translation>Quand une connexion s’interrompt</translation>
    </message>
    <message>
        <source>&amp;Dial again</source>
        <translation>&amp;Recomposer</translation>
    </message>
    <message>
        <source>A&amp;ttempts</source>
        <translation>Te&amp;ntatives</translation>
    </message>
    <message>
        <source>&amp;First one after</source>
        <translation>&amp;Première après</translation>
    </message>
    <message>
        <source>Each f&amp;urther one after</source>
        <translation>Cha&amp;que suivante après</translation>
    </message>
    <message>
        <source>When nothing is carried</source>
        <translation>En l’absence de trafic</translation>
    </message>
    <message>
        <source>D&amp;isconnect</source>
        <translation>Se &amp;déconnecter</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>&amp;Après</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> min</translation>
    </message>
    <message>
        <source>Dialling</source>
        <translation>Numérotation</translation>
    </message>
    <message>
        <source>&amp;Longest wait for a link</source>
        <translation>Délai &amp;maximal pour établir la liaison</translation>
    </message>
    <message>
        <source>E&amp;xplain a failure by the exit status of pppd</source>
        <translation>&amp;Expliquer un échec par le code de sortie de pppd</translation>
    </message>
    <message>
        <source>&amp;Open the profile&apos;s page once connected</source>
        <translation>&amp;Ouvrir la page du profil une fois connecté</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
</context>
<context>
    <name>corva::Connector</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>Pendant un appel, la connexion n’est possible que sur un réseau UMTS&#xa0;!</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>L’appareil a été débranché ou n’est pas disponible.</translation>
    </message>
    <message>
        <source>You are connecting to a roaming network. Would you like to continue?</source>
        <translation>Vous vous connectez à un réseau en itinérance. Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Which access is yours?</source>
        <translation>Quel est votre accès&#xa0;?</translation>
    </message>
    <message>
        <source>Whose SIM card is it?</source>
        <translation>De quel opérateur est la carte SIM&#xa0;?</translation>
    </message>
    <message>
        <source>%1 has several. Choose yours; the choice is kept as a profile.</source>
        <translation>%1 en propose plusieurs. Choisissez le vôtre&#xa0;; ce choix est conservé comme profil.</translation>
    </message>
    <message>
        <source>Several operators share this network. Choose yours; the choice is kept as a profile.</source>
        <translation>Plusieurs opérateurs partagent ce réseau. Choisissez le vôtre&#xa0;; ce choix est conservé comme profil.</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>C&amp;onnecter</translation>
    </message>
    <message>
        <source>Which profile?</source>
        <translation>Quel profil&#xa0;?</translation>
    </message>
    <message>
        <source>It is taken from now on.</source>
        <translation>Il sera utilisé à partir de maintenant.</translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1, %n non lu</numerusform>
            <numerusform>%1, %n non lus</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::CredentialsDialog</name>
    <message>
        <source>&amp;User name</source>
        <translation>Nom d’&amp;utilisateur</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>Mot de &amp;passe</translation>
    </message>
    <message>
        <source>&amp;Keep them and do not ask again</source>
        <translation>Les &amp;garder et ne plus les demander</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>C&amp;onnecter</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; asks for them at each connection.</source>
        <translation>Le profil «&#xa0;%1&#xa0;» les demande à chaque connexion.</translation>
    </message>
    <message>
        <source>User name and password</source>
        <translation>Nom d’utilisateur et mot de passe</translation>
    </message>
</context>
<context>
    <name>corva::DataLink</name>
    <message>
        <source>Fail to connect! Link ppp0 wasn&apos;t built !</source>
        <translation>Échec de la connexion ! La liaison ppp0 n’a pas été établie !</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>L’appareil a été débranché ou n’est pas disponible.</translation>
    </message>
    <message>
        <source>The card did not accept the access point &quot;%1&quot;. Please check the APN of the profile.</source>
        <translation>La carte n’a pas accepté le point d’accès « %1 ». Veuillez vérifier l’APN du profil.</translation>
    </message>
</context>
<context>
    <name>corva::DaysChart</name>
    <message>
        <source>Volume of each day</source>
        <translation>Volume de chaque jour</translation>
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
        <translation>Période précédente</translation>
    </message>
    <message>
        <source>Later period</source>
        <translation>Période suivante</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Nothing was carried in this period.</source>
        <translation>Aucun trafic durant cette période.</translation>
    </message>
    <message>
        <source>In all: %1</source>
        <translation>Au total&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corva::DhcpClient</name>
    <message>
        <source>There is no such network interface.</source>
        <translation>Cette interface réseau n’existe pas.</translation>
    </message>
    <message>
        <source>There is no DHCP client. Please install isc-dhcp-client.</source>
        <translation>Il n’y a pas de client DHCP. Veuillez installer isc-dhcp-client.</translation>
    </message>
    <message>
        <source>The network gave no address.</source>
        <translation>Le réseau n’a pas donné d’adresse.</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>en ordre</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>pas encore connu</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>corva::DialUpLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>La connexion a échoué !</translation>
    </message>
    <message>
        <source>Fail to connect! exit code is</source>
        <translation>Échec de la connexion ! Le code de sortie est</translation>
    </message>
    <message>
        <source>The card&apos;s data port cannot be opened: %1</source>
        <translation>Le port de données de la carte ne peut pas être ouvert : %1</translation>
    </message>
    <message>
        <source>The card does not answer on its data port.</source>
        <translation>La carte ne répond pas sur son port de données.</translation>
    </message>
    <message>
        <source>The card refused a command on its data port.</source>
        <translation>La carte a refusé une commande sur son port de données.</translation>
    </message>
</context>
<context>
    <name>corva::DialWork</name>
    <message>
        <source>You may not use this card&apos;s data port.</source>
        <translation>Vous n’avez pas accès au port de données de cette carte.</translation>
    </message>
    <message>
        <source>The network interface does not belong to the card.</source>
        <translation>L’interface réseau n’appartient pas à la carte.</translation>
    </message>
    <message>
        <source>The network interface has no address from here.</source>
        <translation>L’interface réseau n’a pas d’adresse attribuée d’ici.</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>Le DNS n’est pas valide&#xa0;!</translation>
    </message>
    <message>
        <source>The dialler could not be started.</source>
        <translation>Le composeur n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>The dialler is running already.</source>
        <translation>Le composeur est déjà en cours d’exécution.</translation>
    </message>
    <message>
        <source>The connection was cancelled.</source>
        <translation>La connexion a été annulée.</translation>
    </message>
    <message>
        <source>The route helper is not run: others may write it.</source>
        <translation>L’assistant de routage n’est pas exécuté&#xa0;: d’autres peuvent le modifier.</translation>
    </message>
</context>
<context>
    <name>corva::FactRow</name>
    <message>
        <source>Copy %1</source>
        <translation>Copier «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>corva::FormField</name>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
</context>
<context>
    <name>corva::GeneralPage</name>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>Avec les autres programmes</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>&amp;Rester dans la zone de notification à la fermeture de la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>&amp;Notifier les appels et les messages sur le bureau</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>La langue est enregistrée. Elle prendra effet au prochain démarrage du programme.</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>Impossible d’enregistrer les couleurs&#xa0;: %1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>Rechercher les mises à jo&amp;ur</translation>
    </message>
</context>
<context>
    <name>corva::HelperBackend</name>
    <message>
        <source>Connecting needs an administrator&apos;s rights, and the program &quot;pkexec&quot;, which asks for them, is missing. Please install it.</source>
        <translation>La connexion exige les droits d’administrateur, et le programme «&#xa0;pkexec&#xa0;», qui les demande, manque. Veuillez l’installer.</translation>
    </message>
    <message>
        <source>The program that dials has ended unexpectedly. Please try again.</source>
        <translation>Le programme qui compose s’est arrêté de façon inattendue. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The right to connect was not given. Please connect again and enter the password.</source>
        <translation>Le droit de se connecter n’a pas été accordé. Reconnectez-vous et saisissez le mot de passe.</translation>
    </message>
    <message>
        <source>The right to connect could not be asked for. Ask an administrator to run &quot;tools/install-dialhelper&quot;, or start Corva in a desktop session.</source>
        <translation>Le droit de se connecter n’a pas pu être demandé. Demandez à un administrateur d’exécuter «&#xa0;tools/install-dialhelper&#xa0;», ou lancez Corva dans une session de bureau.</translation>
    </message>
    <message>
        <source>The program that dials could not be started. Ask an administrator to run &quot;tools/install-dialhelper&quot;.</source>
        <translation>Le programme qui compose n’a pas pu être lancé. Demandez à un administrateur d’exécuter «&#xa0;tools/install-dialhelper&#xa0;».</translation>
    </message>
</context>
<context>
    <name>corva::HistoryModel</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>From %1
to %2</source>
        <translation>Du %1
au %2</translation>
    </message>
</context>
<context>
    <name>corva::HistoryTab</name>
    <message>
        <source>Delete &amp;all</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>Search the history</source>
        <translation>Rechercher dans l’historique</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>Rechercher (%1)</translation>
    </message>
    <message>
        <source>Connections that are over</source>
        <translation>Connexions terminées</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %n entries</source>
        <translation>
            <numerusform>&amp;Supprimer %n entrée</numerusform>
            <numerusform>&amp;Supprimer %n entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete entry</source>
        <translation>&amp;Supprimer l’entrée</translation>
    </message>
    <message>
        <source>No connection was made yet. Each one is listed here once it is over.</source>
        <translation>Aucune connexion n’a encore été établie. Chacune figurera ici une fois terminée.</translation>
    </message>
    <message>
        <source>No entry has all of these words.</source>
        <translation>Aucune entrée ne contient tous ces mots.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>%n entrée a été supprimée.</numerusform>
            <numerusform>%n entrées ont été supprimées.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
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
        <translation>Les flèches déplacent la fenêtre. Entrée garde la position, Échap rétablit l’ancienne.</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>Les flèches redimensionnent la fenêtre. Entrée garde la taille, Échap rétablit l’ancienne.</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>Recherche de la carte</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>Interrogation de la carte</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>Copié. Collez la commande dans un terminal, puis fermez la session et rouvrez-la.</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>Passage de la carte en modem</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>C’est fait. La carte réapparaîtra comme modem dans quelques secondes.</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>Activation de la radio</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>La radio est activée.</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>La carte n’a pas encore confirmé. Son état suivra.</translation>
    </message>
</context>
<context>
    <name>corva::MessageActions</name>
    <message>
        <source>&amp;Reply</source>
        <translation>&amp;Répondre</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Transférer</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>Suppr&amp;imer</translation>
    </message>
    <message>
        <source>Put &amp;back</source>
        <translation>Re&amp;staurer</translation>
    </message>
    <message>
        <source>Send a&amp;gain</source>
        <translation>Renvo&amp;yer</translation>
    </message>
    <message>
        <source>Mark as rea&amp;d</source>
        <translation>Marquer comme &amp;lu</translation>
    </message>
    <message>
        <source>Mark as &amp;unread</source>
        <translation>Marquer comme &amp;non lu</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>&amp;Copier le texte</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primer…</translation>
    </message>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>Suppr&amp;imer %n message</numerusform>
            <numerusform>Suppr&amp;imer %n messages</numerusform>
        </translation>
    </message>
    <message>
        <source>Cop&amp;y to</source>
        <translation>C&amp;opier vers</translation>
    </message>
    <message>
        <source>&amp;Move to</source>
        <translation>&amp;Déplacer vers</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>%n message a été supprimé.</numerusform>
            <numerusform>%n messages ont été supprimés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>Supprimer définitivement %n message&#xa0;?</numerusform>
            <numerusform>Supprimer définitivement %n messages&#xa0;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>Supprim&amp;er %n message</numerusform>
            <numerusform>Supprim&amp;er %n messages</numerusform>
        </translation>
    </message>
    <message>
        <source>The message may have gone out already. Send it again?</source>
        <translation>Le message est peut-être déjà parti. L’envoyer à nouveau ?</translation>
    </message>
</context>
<context>
    <name>corva::MessageBrowser</name>
    <message>
        <source>No message has come yet.</source>
        <translation>Aucun message n’est encore arrivé.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent.</source>
        <translation>Rien n’attend d’être envoyé.</translation>
    </message>
    <message>
        <source>You have sent no message yet.</source>
        <translation>Vous n’avez encore envoyé aucun message.</translation>
    </message>
    <message>
        <source>No drafts. What you write is kept here until you send it.</source>
        <translation>Aucun brouillon. Ce que vous écrivez est gardé ici jusqu’à l’envoi.</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>Rien n’a été supprimé.</translation>
    </message>
    <message>
        <source>No delivery report has come yet.</source>
        <translation>Aucun accusé de réception n’est encore arrivé.</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>Conversations</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Reading the messages…</source>
        <translation>Lecture des messages…</translation>
    </message>
    <message>
        <source>No message has all of these words.</source>
        <translation>Aucun message ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>Nobody has written yet. Press Ctrl+N to write first.</source>
        <translation>Personne n’a encore écrit. Appuyez sur Ctrl+N pour écrire en premier.</translation>
    </message>
    <message>
        <source>No broadcast has come yet. Choose the channels to listen to above.</source>
        <translation>Aucune diffusion n’est encore arrivée. Choisissez ci-dessus les canaux à écouter.</translation>
    </message>
    <message>
        <source>Reading the %1…</source>
        <translation>Lecture en cours&#xa0;: %1…</translation>
    </message>
    <message>
        <source>No message is kept there.</source>
        <translation>Aucun message n’y est conservé.</translation>
    </message>
    <message>
        <source>It was not read yet. Is a card plugged in?</source>
        <translation>La lecture n’a pas encore eu lieu. Une carte est-elle branchée&#xa0;?</translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>%n message n’est pas lu.</numerusform>
            <numerusform>%n messages ne sont pas lus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>New message from %1</source>
        <translation>Nouveau message de %1</translation>
    </message>
    <message>
        <source>Broadcast on channel %1</source>
        <translation>Diffusion sur le canal %1</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>Envois réussis&#xa0;: %1, échecs&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message>
        <source>Export messages</source>
        <translation>Exporter les messages</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tableaux CSV (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>%n message a été écrit dans %1.</numerusform>
            <numerusform>%n messages ont été écrits dans %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>The messages could not be written: %1</source>
        <translation>Les messages n’ont pas pu être écrits&#xa0;: %1</translation>
    </message>
    <message>
        <source>Import messages</source>
        <translation>Importer des messages</translation>
    </message>
    <message>
        <source>Exported messages (*.csv *.json)</source>
        <translation>Messages exportés (*.csv *.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>%n message a été ajouté.</numerusform>
            <numerusform>%n messages ont été ajoutés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>%n était déjà là.</numerusform>
            <numerusform>%n étaient déjà là.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>%n n’a pas pu être lu.</numerusform>
            <numerusform>%n n’ont pas pu être lus.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageListModel</name>
    <message>
        <source>Unread</source>
        <translation>Non lu</translation>
    </message>
</context>
<context>
    <name>corva::MessageService</name>
    <message>
        <source>The card did not take the broadcast channels: %1</source>
        <translation>La carte n’a pas accepté les canaux de diffusion&#xa0;: %1</translation>
    </message>
    <message>
        <source>The text is too long for one message.</source>
        <translation>Le texte est trop long pour un seul message.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was not stored: %1</source>
        <translation>Le numéro du centre de messagerie n’a pas été enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>La carte n’est plus là.</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was stored.</source>
        <translation>Le numéro du centre de messagerie a été enregistré.</translation>
    </message>
</context>
<context>
    <name>corva::MessageSettings</name>
    <message>
        <source>Sending</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>The network &amp;tries for</source>
        <translation>Le réseau &amp;essaie pendant</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 heures</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 heures</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 semaine</translation>
    </message>
    <message>
        <source>As long as it may</source>
        <translation>Aussi longtemps que possible</translation>
    </message>
    <message>
        <source>National &amp;letters</source>
        <translation>&amp;Lettres nationales</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Turc</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>Portugais</translation>
    </message>
    <message>
        <source>&amp;Ask for a report when a message is delivered</source>
        <translation>&amp;Demander un accusé quand un message est remis</translation>
    </message>
    <message>
        <source>Keeping</source>
        <translation>Conservation</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Sur cet ordinateur</translation>
    </message>
    <message>
        <source>On the SIM card</source>
        <translation>Sur la carte SIM</translation>
    </message>
    <message>
        <source>On the data card</source>
        <translation>Sur la carte de données</translation>
    </message>
    <message>
        <source>Where the network says</source>
        <translation>Là où le réseau l’indique</translation>
    </message>
    <message>
        <source>&amp;New messages are kept</source>
        <translation>Les &amp;nouveaux messages sont gardés</translation>
    </message>
    <message>
        <source>The data card&apos;s o&amp;wn memory is used, too</source>
        <translation>&amp;Utiliser aussi la mémoire de la carte de données</translation>
    </message>
    <message>
        <source>Delete &amp;read messages from a full SIM card</source>
        <translation>&amp;Supprimer les messages lus d’une carte SIM pleine</translation>
    </message>
    <message>
        <source>What you are told</source>
        <translation>Ce qui vous est signalé</translation>
    </message>
    <message>
        <source>&amp;Unread messages, when the program starts</source>
        <translation>&amp;Messages non lus, au démarrage du programme</translation>
    </message>
    <message>
        <source>&amp;Delivery reports, in a box when they come</source>
        <translation>&amp;Accusés de réception, dans une fenêtre à leur arrivée</translation>
    </message>
    <message>
        <source>Delivery reports, in a &amp;folder of their own</source>
        <translation>Accusés de réception, dans un dossier à &amp;part</translation>
    </message>
    <message>
        <source>Messages that cells &amp;broadcast to everybody</source>
        <translation>Messages que les cellules di&amp;ffusent à tous</translation>
    </message>
    <message>
        <source>&amp;Immediate messages show</source>
        <translation>Les messages &amp;immédiats affichent</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> lignes</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>corva::MonthsModel</name>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>Au total</translation>
    </message>
</context>
<context>
    <name>corva::Navigation</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>corva::NavigationButton</name>
    <message>
        <source>%1, %2 new</source>
        <translation>%1, nouveautés&#xa0;: %2</translation>
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
        <translation>La connexion a échoué !</translation>
    </message>
</context>
<context>
    <name>corva::OfflinePanel</name>
    <message>
        <source>&amp;Back</source>
        <translation>Re&amp;tour</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Pourquoi suis-je hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>Tout va bien jusqu’ici&#xa0;; la carte y travaille.</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>Une étape pose problème. Les suivantes se feront d’elles-mêmes.</translation>
    </message>
    <message>
        <source>Everything from the socket to the internet is in order.</source>
        <translation>Tout est en ordre, de la prise USB à internet.</translation>
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
        <translation>Ce que montre le graphique</translation>
    </message>
    <message>
        <source>The last minute</source>
        <translation>La dernière minute</translation>
    </message>
    <message>
        <source>The last 10 minutes</source>
        <translation>Les 10 dernières minutes</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>This connection, %1</source>
        <translation>Cette connexion, %1</translation>
    </message>
    <message>
        <source>Last connection, %1</source>
        <translation>Dernière connexion, %1</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>None was made yet.</source>
        <translation>Aucune n’a encore été établie.</translation>
    </message>
    <message>
        <source>Days and months are not counted: the configuration turns it off.</source>
        <translation>Les jours et les mois ne sont pas comptés&#xa0;: la configuration le désactive.</translation>
    </message>
    <message>
        <source>%1 Say in the settings, Traffic, what volume you have, to be warned in time.</source>
        <translation>%1 Indiquez votre forfait dans les paramètres, Trafic, pour être averti à temps.</translation>
    </message>
    <message>
        <source>Down %1 (filled), up %2 (dashed)</source>
        <translation>Descendant %1 (plein), montant %2 (tirets)</translation>
    </message>
    <message>
        <source>The graph runs while a connection is up.</source>
        <translation>Le graphique défile tant qu’une connexion est établie.</translation>
    </message>
</context>
<context>
    <name>corva::PlainTextView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copier «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>corva::ProfileList</name>
    <message>
        <source>access point from the network</source>
        <translation>point d’accès donné par le réseau</translation>
    </message>
    <message>
        <source>%1, connects with it</source>
        <translation>%1, utilisé pour la connexion</translation>
    </message>
    <message>
        <source>No profile yet</source>
        <translation>Pas encore de profil</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Make de&amp;fault</source>
        <translation>Définir par &amp;défaut</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add a profile</source>
        <translation>Ajouter un profil</translation>
    </message>
    <message>
        <source>Connect with this profile from now on</source>
        <translation>Se connecter désormais avec ce profil</translation>
    </message>
    <message>
        <source>Vi&amp;ew</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>Supprimer le profil «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Connects with &quot;%1&quot; from now on.</source>
        <translation>La connexion se fera désormais avec «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>corva::ProfileStore</name>
    <message>
        <source>There is a profile with this name already.</source>
        <translation>Il existe déjà un profil de ce nom.</translation>
    </message>
    <message>
        <source>There is no profile with this name.</source>
        <translation>Il n’existe pas de profil de ce nom.</translation>
    </message>
    <message>
        <source>This profile may not be changed.</source>
        <translation>Ce profil ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>This profile may not be deleted.</source>
        <translation>Ce profil ne peut pas être supprimé.</translation>
    </message>
</context>
<context>
    <name>corva::RateGraph</name>
    <message>
        <source>Graph of the rates</source>
        <translation>Graphique des débits</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>now</source>
        <translation>maintenant</translation>
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
        <translation>Détai&amp;ls</translation>
    </message>
    <message>
        <source>The message</source>
        <translation>Le message</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
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
        <translation>Parties reçues&#xa0;: %1. Les autres s’ajouteront à leur arrivée.</translation>
    </message>
    <message>
        <source>Service centre: %1</source>
        <translation>Centre de messagerie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Arrived: %1</source>
        <translation>Arrivé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>Canal&#xa0;: %1</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>Partie %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>It did not travel yet.</source>
        <translation>Il n’a pas encore été transmis.</translation>
    </message>
</context>
<context>
    <name>corva::SendBar</name>
    <message>
        <source>Sent parts</source>
        <translation>Parties envoyées</translation>
    </message>
    <message>
        <source>&amp;Cancel sending</source>
        <translation>Annuler l’en&amp;voi</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 sur %3</translation>
    </message>
    <message>
        <source>Sending ...</source>
        <translation>Envoi en cours...</translation>
    </message>
    <message>
        <source>Do you want to cancel sending the rest SMS?</source>
        <translation>Voulez-vous annuler l’envoi des SMS restants&#xa0;?</translation>
    </message>
</context>
<context>
    <name>corva::SendQueue</name>
    <message>
        <source>The message could not be written to disk and is not sent.</source>
        <translation>Le message n’a pas pu être écrit sur le disque et n’est pas envoyé.</translation>
    </message>
    <message>
        <source>The message could not be written to disk.</source>
        <translation>Le message n’a pas pu être écrit sur le disque.</translation>
    </message>
    <message>
        <source>The alphabet&apos;s settings have changed since it was written.</source>
        <translation>Les réglages de l’alphabet ont changé depuis sa rédaction.</translation>
    </message>
    <message>
        <source>The message to %1 was not sent: %2</source>
        <translation>Le message à %1 n’a pas été envoyé&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is another SIM in the card. What waited was not sent.</source>
        <translation>Une autre carte SIM est dans la carte. Ce qui attendait n’a pas été envoyé.</translation>
    </message>
    <message>
        <source>The message to %1 may have been sent: the card did not say.</source>
        <translation>Le message à %1 a peut-être été envoyé : la carte ne l’a pas dit.</translation>
    </message>
</context>
<context>
    <name>corva::ServiceCentreDialog</name>
    <message>
        <source>&amp;Number</source>
        <translation>&amp;Numéro</translation>
    </message>
    <message>
        <source>Service centre</source>
        <translation>Centre de messagerie</translation>
    </message>
    <message>
        <source>Every message goes through the operator&apos;s service centre. Its number is on the SIM card; change it only when your operator asks you to.</source>
        <translation>Chaque message passe par le centre de messagerie de l’opérateur. Son numéro se trouve sur la carte SIM&#xa0;; ne le modifiez que si votre opérateur vous le demande.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>One number is needed.</source>
        <translation>Il faut un numéro.</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>Le réglage n’a pas pu être enregistré&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>Signal&#xa0;: %1 barres sur %2</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>Aucun signal</translation>
    </message>
</context>
<context>
    <name>corva::SmsReception</name>
    <message>
        <source>A new message could not be read from the card: %1</source>
        <translation>Un nouveau message n’a pas pu être lu sur la carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>A new message could not be written to disk and stays on the card.</source>
        <translation>Un nouveau message n’a pas pu être écrit sur le disque et reste sur la carte.</translation>
    </message>
    <message>
        <source>A delivery report could not be read from the card: %1</source>
        <translation>Un accusé de réception n’a pas pu être lu sur la carte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Message was successfully sent to %1, in %2,at %3</source>
        <translation>Message bien remis à %1, envoyé&#xa0;: %2, remis&#xa0;: %3</translation>
    </message>
    <message>
        <source>The message to %1: %2</source>
        <translation>Le message à %1&#xa0;: %2</translation>
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
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>Sur le réseau</translation>
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
        <translation>%1 n’a pas pu être lu en entier.</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>%1 n’a pas pu être lu en entier. Son contenu est conservé sous %2.</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>Impossible de supprimer %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>corva::StatusStrip</name>
    <message>
        <source>&amp;Why?</source>
        <translation>&amp;Pourquoi&#xa0;?</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>Pourquoi suis-je hors ligne&#xa0;?</translation>
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
        <translation>Impossible de lire %1, et ce fichier n’a pas pu être conservé.</translation>
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
        <translation>Reçu&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>Written: %1, %2</source>
        <translation>Écrit&#xa0;: %1, %2</translation>
    </message>
</context>
<context>
    <name>corva::ThreadPane</name>
    <message>
        <source>Show &amp;earlier messages</source>
        <translation>Afficher les messages précé&amp;dents</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>É&amp;crire</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>Conversation</translation>
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
        <translation>Connexion en cours</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Déconnexion en cours</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <translation>Type de réseau %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>Pas de carte</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>Carte SIM&#xa0;: %1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>état pas encore connu</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>Connexion de données&#xa0;: %1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Heure&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corva::TrafficPage</name>
    <message>
        <source>E&amp;xport as CSV…</source>
        <translation>&amp;Exporter en CSV…</translation>
    </message>
    <message>
        <source>Writes the history to a file that spreadsheets read</source>
        <translation>Écrit l’historique dans un fichier lisible par les tableurs</translation>
    </message>
    <message>
        <source>Writes days and months to a file that spreadsheets read</source>
        <translation>Écrit les jours et les mois dans un fichier lisible par les tableurs</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>&amp;Vue d’ensemble</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>&amp;Jours</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>&amp;Mois</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>Volume of each month</source>
        <translation>Volume de chaque mois</translation>
    </message>
    <message>
        <source>Export the history</source>
        <translation>Exporter l’historique</translation>
    </message>
    <message>
        <source>Export days and months</source>
        <translation>Exporter les jours et les mois</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>Tableaux CSV (*.csv)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>Impossible d’écrire le tableau&#xa0;: %1</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
</context>
<context>
    <name>corva::TrafficService</name>
    <message>
        <source>%1 The connection is ended, as you set it in the settings, Traffic.</source>
        <translation>%1 La connexion est coupée, comme vous l’avez défini dans les paramètres, Trafic.</translation>
    </message>
    <message>
        <source>Your volume of %1 until %2 is used up.</source>
        <translation>Votre forfait de %1 jusqu’au %2 est épuisé.</translation>
    </message>
    <message>
        <source>Your volume of %1 for roaming until %2 is used up.</source>
        <translation>Votre forfait de %1 en itinérance jusqu’au %2 est épuisé.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 until %3 are used up.</source>
        <translation>%1&#xa0;% de votre forfait de %2 jusqu’au %3 sont utilisés.</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 for roaming until %3 are used up.</source>
        <translation>%1&#xa0;% de votre forfait de %2 en itinérance jusqu’au %3 sont utilisés.</translation>
    </message>
</context>
<context>
    <name>corva::TrafficSettingsPage</name>
    <message>
        <source>Your volume</source>
        <translation>Votre forfait</translation>
    </message>
    <message>
        <source>&amp;Volume of a month</source>
        <translation>Forfait men&amp;suel</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>While &amp;roaming</source>
        <translation>En &amp;itinérance</translation>
    </message>
    <message>
        <source>Counts with it</source>
        <translation>Inclus</translation>
    </message>
    <message>
        <source>It begins anew on &amp;day</source>
        <translation>Recommence le &amp;jour</translation>
    </message>
    <message>
        <source>When it runs out</source>
        <translation>Quand il s’épuise</translation>
    </message>
    <message>
        <source>&amp;Warn at</source>
        <translation>&amp;Avertir à</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>Unité&#xa0;: %1</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>&amp;End the connection when the volume is used up</source>
        <translation>&amp;Mettre fin à la connexion quand le forfait est épuisé</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
</context>
<context>
    <name>corva::TrayIcon</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>Pourquoi suis-je &amp;hors ligne&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>À &amp;propos de %1</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>&amp;Masquer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>&amp;Afficher la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Déconnecter</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>A&amp;nnuler la connexion</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Connecter</translation>
    </message>
</context>
<context>
    <name>corva::WirelessWindow</name>
    <message>
        <source>Plug the card in to connect.</source>
        <translation>Branchez la carte pour vous connecter.</translation>
    </message>
    <message>
        <source>Connect goes by the profile &quot;%1&quot;.</source>
        <translation>La connexion se fait avec le profil «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The settings of %1 are known: just connect.</source>
        <translation>Les réglages de %1 sont connus&#xa0;: il suffit de vous connecter.</translation>
    </message>
    <message>
        <source>The settings for this SIM card are known: connect, and say whose it is.</source>
        <translation>Les réglages de cette carte SIM sont connus&#xa0;: connectez-vous et indiquez son opérateur.</translation>
    </message>
    <message>
        <source>Add a profile with the access point that your operator has told you.</source>
        <translation>Ajoutez un profil avec le point d’accès que votre opérateur vous a indiqué.</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
</context>
</TS>
