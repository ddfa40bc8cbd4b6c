<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CShortMsg</name>
    <message>
        <source>&amp;New message</source>
        <translation>新建短信(&amp;N)</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>更多(&amp;O)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>New message</source>
        <translation>新建短信</translation>
    </message>
    <message>
        <source>Search all messages</source>
        <translation>搜索所有短信</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>搜索 (%1)</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>发送成功 %1 条，失败 %2 条</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>导入(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Undo deleting</source>
        <translation>撤销删除(&amp;U)</translation>
    </message>
    <message>
        <source>Read the SIM and the data card ane&amp;w</source>
        <translation>重新读取 SIM 卡和上网卡(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Service centre…</source>
        <translation>短信中心(&amp;S)…</translation>
    </message>
    <message>
        <source>Choose a message to read it, or write one with Ctrl+N.</source>
        <translation>请选择一条短信阅读，或按 Ctrl+N 新建短信。</translation>
    </message>
    <message numerus="yes">
        <source>%n messages are chosen.</source>
        <translation>
            <numerusform>已选择 %n 条短信。</numerusform>
        </translation>
    </message>
    <message>
        <source>The draft was deleted.</source>
        <translation>已删除草稿。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>There is nothing to bring back.</source>
        <translation>没有可恢复的内容。</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>重试(&amp;T)</translation>
    </message>
    <message>
        <source>%1: %2 of %3 places are used. When it is full, no message can come in.</source>
        <translation>%1：共 %3 个位置，已用 %2 个。存满后将无法接收短信。</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>短信</translation>
    </message>
</context>
<context>
    <name>CardStatus</name>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Locked, PIN needed</source>
        <translation>已锁定，需要 PIN 码</translation>
    </message>
    <message>
        <source>Blocked, PUK needed</source>
        <translation>已封锁，需要 PUK 码</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>无 SIM 卡</translation>
    </message>
    <message>
        <source>Not searching</source>
        <translation>未搜索</translation>
    </message>
    <message>
        <source>Home network</source>
        <translation>归属网络</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>无服务</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>仅限紧急呼叫</translation>
    </message>
    <message>
        <source>Full service</source>
        <translation>服务正常</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>此地区无服务</translation>
    </message>
    <message>
        <source>Saving power</source>
        <translation>省电模式</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>%1, %2 of 5 bars</source>
        <translation>%1，%2/5 格</translation>
    </message>
    <message>
        <source>Offline: %1</source>
        <translation>离线：%1</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>已接入网络</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
</context>
<context>
    <name>Channels</name>
    <message>
        <source>&quot;%1&quot; is no channel. Channels are numbers from 0 to 65535, or ranges as 10-15.</source>
        <translation>“%1”不是频道。频道是 0 到 65535 之间的数字，或 10-15 这样的范围。</translation>
    </message>
    <message>
        <source>These are more than %1 channels.</source>
        <translation>频道数超过 %1 个。</translation>
    </message>
</context>
<context>
    <name>CmsErrors</name>
    <message>
        <source>The number does not exist.</source>
        <translation>该号码不存在。</translation>
    </message>
    <message>
        <source>The operator has barred messages for this SIM.</source>
        <translation>运营商已禁止此 SIM 卡使用短信。</translation>
    </message>
    <message>
        <source>Sending is barred.</source>
        <translation>发送已被禁止。</translation>
    </message>
    <message>
        <source>The network failed.</source>
        <translation>网络故障。</translation>
    </message>
    <message>
        <source>The network rejected the message.</source>
        <translation>网络拒绝了该短信。</translation>
    </message>
    <message>
        <source>The memory for messages is full.</source>
        <translation>短信存储空间已满。</translation>
    </message>
    <message>
        <source>The recipient cannot be reached.</source>
        <translation>无法联系到收件人。</translation>
    </message>
    <message>
        <source>The network does not know this SIM.</source>
        <translation>网络不识别此 SIM 卡。</translation>
    </message>
    <message>
        <source>The network does not offer this service.</source>
        <translation>网络不提供此服务。</translation>
    </message>
    <message>
        <source>The network is out of order.</source>
        <translation>网络无法正常工作。</translation>
    </message>
    <message>
        <source>The network failed for the moment.</source>
        <translation>网络暂时出现故障。</translation>
    </message>
    <message>
        <source>The network is overloaded.</source>
        <translation>网络过载。</translation>
    </message>
    <message>
        <source>The network has no room for the message.</source>
        <translation>网络没有空间存放该短信。</translation>
    </message>
    <message>
        <source>Messages are not part of this subscription.</source>
        <translation>此套餐不包含短信服务。</translation>
    </message>
    <message>
        <source>The network did not understand the message.</source>
        <translation>网络无法理解该短信。</translation>
    </message>
    <message>
        <source>The recipient&apos;s network failed.</source>
        <translation>收件人的网络故障。</translation>
    </message>
    <message>
        <source>This kind of message is not supported.</source>
        <translation>不支持此类短信。</translation>
    </message>
    <message>
        <source>The message cannot replace another one.</source>
        <translation>该短信无法替换另一条短信。</translation>
    </message>
    <message>
        <source>The message&apos;s alphabet is not supported.</source>
        <translation>不支持该短信的字符集。</translation>
    </message>
    <message>
        <source>The service centre refused the command.</source>
        <translation>短信中心拒绝了该命令。</translation>
    </message>
    <message>
        <source>The service centre is busy.</source>
        <translation>短信中心忙。</translation>
    </message>
    <message>
        <source>The service centre does not serve this SIM.</source>
        <translation>短信中心不为此 SIM 卡提供服务。</translation>
    </message>
    <message>
        <source>The service centre failed.</source>
        <translation>短信中心故障。</translation>
    </message>
    <message>
        <source>The number is not valid.</source>
        <translation>该号码无效。</translation>
    </message>
    <message>
        <source>The recipient is barred.</source>
        <translation>收件人已被禁止。</translation>
    </message>
    <message>
        <source>The service centre has this message already.</source>
        <translation>短信中心已有该短信。</translation>
    </message>
    <message>
        <source>The service centre refuses the validity period.</source>
        <translation>短信中心拒绝了该有效期。</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is full.</source>
        <translation>SIM 卡的短信存储空间已满。</translation>
    </message>
    <message>
        <source>The SIM cannot hold messages.</source>
        <translation>SIM 卡无法存储短信。</translation>
    </message>
    <message>
        <source>The card failed.</source>
        <translation>上网卡故障。</translation>
    </message>
    <message>
        <source>The SIM is busy.</source>
        <translation>SIM 卡忙。</translation>
    </message>
    <message>
        <source>The SIM failed.</source>
        <translation>SIM 卡故障。</translation>
    </message>
    <message>
        <source>The card&apos;s message service is in use.</source>
        <translation>上网卡的短信服务正被占用。</translation>
    </message>
    <message>
        <source>The card does not allow this now.</source>
        <translation>上网卡目前不允许此操作。</translation>
    </message>
    <message>
        <source>The card cannot do this.</source>
        <translation>上网卡不支持此操作。</translation>
    </message>
    <message>
        <source>The card did not understand the message.</source>
        <translation>上网卡无法理解该短信。</translation>
    </message>
    <message>
        <source>There is no SIM in the card.</source>
        <translation>上网卡中没有 SIM 卡。</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>SIM 卡要求输入 PIN 码。</translation>
    </message>
    <message>
        <source>The card asks for its own PIN.</source>
        <translation>上网卡要求输入其自身的 PIN 码。</translation>
    </message>
    <message>
        <source>This SIM does not fit the card.</source>
        <translation>此 SIM 卡与上网卡不匹配。</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>SIM 卡要求输入 PUK 码。</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN2.</source>
        <translation>SIM 卡要求输入 PIN2 码。</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK2.</source>
        <translation>SIM 卡要求输入 PUK2 码。</translation>
    </message>
    <message>
        <source>The memory for messages failed.</source>
        <translation>短信存储器故障。</translation>
    </message>
    <message>
        <source>There is no message at this place.</source>
        <translation>此位置没有短信。</translation>
    </message>
    <message>
        <source>The service centre&apos;s number is not known.</source>
        <translation>短信中心号码未知。</translation>
    </message>
    <message>
        <source>There is no network.</source>
        <translation>没有网络。</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>网络未及时应答。</translation>
    </message>
    <message>
        <source>The card expected no confirmation.</source>
        <translation>上网卡未等待确认。</translation>
    </message>
    <message>
        <source>The card does not say why.</source>
        <translation>上网卡未说明原因。</translation>
    </message>
    <message>
        <source>The message was delivered.</source>
        <translation>短信已送达。</translation>
    </message>
    <message>
        <source>The message was replaced by a newer one.</source>
        <translation>该短信已被更新的短信替换。</translation>
    </message>
    <message>
        <source>The message could not be delivered yet; the network goes on trying.</source>
        <translation>短信尚未送达；网络会继续尝试。</translation>
    </message>
    <message>
        <source>The recipient&apos;s device cannot take the message.</source>
        <translation>收件人的设备无法接收该短信。</translation>
    </message>
    <message>
        <source>The recipient&apos;s device refused the message.</source>
        <translation>收件人的设备拒绝了该短信。</translation>
    </message>
    <message>
        <source>The message could not be delivered in time.</source>
        <translation>短信未能在期限内送达。</translation>
    </message>
    <message>
        <source>The service centre does not know the message.</source>
        <translation>短信中心没有该短信的记录。</translation>
    </message>
    <message>
        <source>The message could not be delivered.</source>
        <translation>短信无法送达。</translation>
    </message>
    <message>
        <source>The card says: %1</source>
        <translation>上网卡报告：%1</translation>
    </message>
    <message>
        <source>The card refuses, with the code %1.</source>
        <translation>上网卡拒绝，代码为 %1。</translation>
    </message>
    <message>
        <source>The card refuses, without saying why.</source>
        <translation>上网卡拒绝，未说明原因。</translation>
    </message>
    <message>
        <source>The network refused the message, without saying why.</source>
        <translation>网络拒绝了该短信，未说明原因。</translation>
    </message>
    <message>
        <source>The recipient&apos;s device is busy.</source>
        <translation>收件人的设备忙。</translation>
    </message>
    <message>
        <source>The recipient&apos;s device does not answer.</source>
        <translation>收件人的设备无响应。</translation>
    </message>
    <message>
        <source>The network has not the quality of service that the message asks for.</source>
        <translation>网络无法提供该短信要求的服务质量。</translation>
    </message>
    <message>
        <source>The recipient&apos;s device failed.</source>
        <translation>收件人的设备故障。</translation>
    </message>
    <message>
        <source>The message was passed on; whether it arrived is not known.</source>
        <translation>短信已转发；是否送达未知。</translation>
    </message>
    <message>
        <source>The recipient&apos;s network does not work with this one.</source>
        <translation>收件人的网络与本网络不互通。</translation>
    </message>
    <message>
        <source>The message was deleted by its sender before it was delivered.</source>
        <translation>短信在送达前已被发件人删除。</translation>
    </message>
    <message>
        <source>The service centre deleted the message before it was delivered.</source>
        <translation>短信中心在送达前删除了该短信。</translation>
    </message>
</context>
<context>
    <name>ConnectionDiagnosis</name>
    <message>
        <source>No profile is chosen</source>
        <translation>未选择配置文件</translation>
    </message>
    <message>
        <source>A profile says how to reach the internet through your operator. Those of most operators are known; choose one, or add your own.</source>
        <translation>配置文件说明如何通过运营商接入互联网。大多数运营商的配置已内置；请选择一个，或自行添加。</translation>
    </message>
    <message>
        <source>The network chooses it</source>
        <translation>由网络选择</translation>
    </message>
    <message>
        <source>The profile names no access point</source>
        <translation>配置文件未指定接入点</translation>
    </message>
    <message>
        <source>Your operator can tell you its name (APN). Enter it in the profile.</source>
        <translation>运营商可告知接入点名称 (APN)。请在配置文件中填写。</translation>
    </message>
    <message>
        <source>User name or password refused</source>
        <translation>用户名或密码被拒绝</translation>
    </message>
    <message>
        <source>The call was not taken</source>
        <translation>呼叫未被接受</translation>
    </message>
    <message>
        <source>The line was busy</source>
        <translation>线路忙</translation>
    </message>
    <message>
        <source>No link within the time</source>
        <translation>未在规定时间内建立链路</translation>
    </message>
    <message>
        <source>The dialler failed</source>
        <translation>拨号程序失败</translation>
    </message>
    <message>
        <source>System files cannot be changed</source>
        <translation>无法更改系统文件</translation>
    </message>
    <message>
        <source>No right to dial</source>
        <translation>无权拨号</translation>
    </message>
    <message>
        <source>The network ended the connection</source>
        <translation>网络结束了连接</translation>
    </message>
    <message>
        <source>The connection broke off</source>
        <translation>连接中断</translation>
    </message>
    <message>
        <source>The card was taken out</source>
        <translation>上网卡已拔出</translation>
    </message>
    <message>
        <source>Ended because nothing was carried</source>
        <translation>因无数据传输而结束</translation>
    </message>
    <message>
        <source>The month&apos;s volume is used up</source>
        <translation>本月流量已用完</translation>
    </message>
    <message>
        <source>The connection is up</source>
        <translation>连接已建立</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>这需要几秒钟。</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>正在断开</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>The card is in the network, and everything is there to connect.</source>
        <translation>上网卡已接入网络，连接所需的条件均已具备。</translation>
    </message>
    <message>
        <source>The network gave no address</source>
        <translation>网络未分配地址</translation>
    </message>
    <message>
        <source>Disconnect and connect again. If that does not help, the access point of the profile may be the wrong one.</source>
        <translation>请断开后重新连接。如仍无效，可能是配置文件中的接入点不正确。</translation>
    </message>
    <message>
        <source>No name servers</source>
        <translation>没有域名服务器</translation>
    </message>
    <message>
        <source>Without them names of web sites cannot be found. Enter some in the profile, then disconnect and connect again.</source>
        <translation>没有域名服务器就无法查找网站名称。请在配置文件中填写，然后断开并重新连接。</translation>
    </message>
    <message>
        <source>Another connection carries the traffic</source>
        <translation>流量经由其他连接</translation>
    </message>
    <message>
        <source>This computer goes through a cable, Wi-Fi or another way first. Switch that off, then disconnect and connect again here.</source>
        <translation>此计算机优先使用网线、Wi-Fi 或其他方式上网。请将其关闭，然后在此处断开并重新连接。</translation>
    </message>
    <message>
        <source>The traffic goes through the card</source>
        <translation>流量经由上网卡</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>接入点</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>域名服务器</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>路由</translation>
    </message>
    <message>
        <source>The profile cannot be used</source>
        <translation>该配置无法使用</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>With &quot;%1&quot;, since %2.</source>
        <translation>使用“%1”，自 %2 起。</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;, attempt %2 of %3.</source>
        <translation>使用“%1”，第 %2 次尝试，共 %3 次。</translation>
    </message>
    <message>
        <source>With &quot;%1&quot;.</source>
        <translation>使用“%1”。</translation>
    </message>
    <message>
        <source>%1 Attempt %2 of %3 follows.</source>
        <translation>%1 即将进行第 %2 次尝试，共 %3 次。</translation>
    </message>
</context>
<context>
    <name>DiallerFiles</name>
    <message>
        <source>Save wvdial config data failed!</source>
        <translation>保存 wvdial 配置数据失败！</translation>
    </message>
    <message>
        <source>Read default wvdial config data failed!</source>
        <translation>读取默认 wvdial 配置数据失败！</translation>
    </message>
    <message>
        <source>open file operation error!</source>
        <translation>打开文件出错！</translation>
    </message>
    <message>
        <source>Recover wvdial config data failed!</source>
        <translation>恢复 wvdial 配置数据失败！</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>DNS 无效！</translation>
    </message>
</context>
<context>
    <name>EndSentence</name>
    <message>
        <source>The network refused the user name and the password.</source>
        <translation>网络拒绝了用户名和密码。</translation>
    </message>
    <message>
        <source>The network did not take the call.</source>
        <translation>网络未接受呼叫。</translation>
    </message>
    <message>
        <source>The line is busy. Please try again later.</source>
        <translation>线路忙。请稍后再试。</translation>
    </message>
    <message>
        <source>The network did not answer in time.</source>
        <translation>网络未及时应答。</translation>
    </message>
    <message>
        <source>The dialler ended before it was done.</source>
        <translation>拨号程序在完成前已结束。</translation>
    </message>
    <message>
        <source>The files for the dialler could not be written.</source>
        <translation>无法写入拨号程序的文件。</translation>
    </message>
    <message>
        <source>The right to connect was not given.</source>
        <translation>未获得连接权限。</translation>
    </message>
    <message>
        <source>The network ended the connection.</source>
        <translation>网络结束了连接。</translation>
    </message>
    <message>
        <source>The network does not answer any more.</source>
        <translation>网络不再应答。</translation>
    </message>
    <message>
        <source>The card was pulled out.</source>
        <translation>网卡已被拔出。</translation>
    </message>
    <message>
        <source>The connection was ended because nothing was carried.</source>
        <translation>由于没有数据传输，连接已结束。</translation>
    </message>
    <message>
        <source>The connection was ended because the volume is used up.</source>
        <translation>由于流量已用完，连接已结束。</translation>
    </message>
</context>
<context>
    <name>FrmDisclaimer</name>
    <message>
        <source>Before you begin</source>
        <translation>开始之前</translation>
    </message>
    <message>
        <source>%1 connects this computer to a mobile network. What your operator charges for data, messages and calls is between you and your operator; abroad it can be much more than at home.</source>
        <translation>%1 将此计算机连接到移动网络。运营商对数据、短信和通话的收费由您与运营商约定；在境外，费用可能远高于境内。</translation>
    </message>
    <message>
        <source>The traffic and the duration that are shown are measured on this computer. The operator&apos;s own count decides what you pay.</source>
        <translation>所显示的流量和时长由此计算机测量。您需支付的费用以运营商的统计为准。</translation>
    </message>
    <message>
        <source>The program is free software and comes without any warranty, as far as the law allows.</source>
        <translation>本程序是自由软件，在法律允许的范围内不提供任何担保。</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>接受(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Decline and quit</source>
        <translation>拒绝并退出(&amp;D)</translation>
    </message>
</context>
<context>
    <name>HistoryEnd</name>
    <message>
        <source>By you</source>
        <translation>由您结束</translation>
    </message>
    <message>
        <source>By the network</source>
        <translation>由网络结束</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>无响应</translation>
    </message>
    <message>
        <source>Dialler stopped</source>
        <translation>拨号程序已停止</translation>
    </message>
    <message>
        <source>Card removed</source>
        <translation>上网卡已拔出</translation>
    </message>
    <message>
        <source>Nothing carried</source>
        <translation>无数据传输</translation>
    </message>
    <message>
        <source>Volume used up</source>
        <translation>流量已用完</translation>
    </message>
    <message>
        <source>Program closed</source>
        <translation>程序已关闭</translation>
    </message>
    <message>
        <source>Unexpectedly</source>
        <translation>意外结束</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>MessageCounter</name>
    <message>
        <source>Symbol: %1 /%2</source>
        <translation>字符数：%1 /%2</translation>
    </message>
    <message>
        <source>The message is too long: it may have %1 parts.</source>
        <translation>短信太长：最多可分为 %1 部分。</translation>
    </message>
    <message>
        <source>Because of &quot;%1&quot; a message holds 70 characters instead of 160.</source>
        <translation>由于含有“%1”，每条短信只能容纳 70 个字符，而不是 160 个。</translation>
    </message>
    <message>
        <source>National letters leave 155 characters of 160.</source>
        <translation>使用国家语言字符时，160 个字符只剩 155 个。</translation>
    </message>
    <message>
        <source>It is sent in %1 parts.</source>
        <translation>将分为 %1 部分发送。</translation>
    </message>
</context>
<context>
    <name>MessagePrint</name>
    <message>
        <source>From %1, %2</source>
        <translation>发件人：%1，%2</translation>
    </message>
    <message>
        <source>To %1, %2</source>
        <translation>收件人：%1，%2</translation>
    </message>
</context>
<context>
    <name>MessageStore</name>
    <message>
        <source>%1 was empty.</source>
        <translation>%1 是空的。</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>无法完整读取 %1。其内容已保留为 %2。</translation>
    </message>
    <message>
        <source>%1 can neither be read nor moved aside.</source>
        <translation>无法读取 %1，也无法将其移走。</translation>
    </message>
</context>
<context>
    <name>MessageTransfer</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>%1 is not a file of messages.</source>
        <translation>%1 不是短信文件。</translation>
    </message>
    <message>
        <source>The messages of %1 could not be saved.</source>
        <translation>无法保存 %1 中的短信。</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Inbox</source>
        <translation>收件箱</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>发件箱</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>box</comment>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Sent</source>
        <comment>state</comment>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Drafts</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Delivery reports</source>
        <translation>送达报告</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM 卡</translation>
    </message>
    <message>
        <source>Data card</source>
        <translation>上网卡</translation>
    </message>
    <message>
        <source>Waiting to be sent</source>
        <translation>等待发送</translation>
    </message>
    <message>
        <source>Being sent</source>
        <translation>正在发送</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>已送达</translation>
    </message>
    <message>
        <source>Not delivered yet, the network still tries</source>
        <translation>尚未送达，网络仍在尝试</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>第 %1 部分：%2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
    <message>
        <source>d MMM</source>
        <extracomment>A day without its year, as QDate::toString takes it</extracomment>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>Nobody yet</source>
        <translation>尚无收件人</translation>
    </message>
    <message>
        <source>Unknown sender</source>
        <translation>未知发件人</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>This message cannot be read</source>
        <translation>无法读取此短信</translation>
    </message>
    <message>
        <source>No text</source>
        <translation>无文本</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>May have been sent</source>
        <translation>可能已发送</translation>
    </message>
</context>
<context>
    <name>ModeSwitch</name>
    <message>
        <source>The stick is not there any more. Plug it in again.</source>
        <translation>上网卡已不在。请重新插入。</translation>
    </message>
    <message>
        <source>usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch 无法切换上网卡的模式：%1 请拔下，稍候再重新插入。</translation>
    </message>
    <message>
        <source>usb_modeswitch did not run: %1</source>
        <translation>usb_modeswitch 未能运行：%1</translation>
    </message>
    <message>
        <source>usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again.</source>
        <translation>usb_modeswitch 未能及时完成。请拔下上网卡，稍候再重新插入。</translation>
    </message>
    <message>
        <source>The program usb_modeswitch is missing. Install it with &quot;sudo apt install usb-modeswitch&quot;.</source>
        <translation>缺少程序 usb_modeswitch。请用“sudo apt install usb-modeswitch”安装。</translation>
    </message>
    <message>
        <source>You may not switch the stick yourself. Switch it with &quot;%1&quot;, or unplug it and plug it in again: the system then switches it.</source>
        <translation>您无权自行切换上网卡的模式。请用“%1”切换，或拔下后重新插入，由系统切换。</translation>
    </message>
</context>
<context>
    <name>ModemTypes</name>
    <message>
        <source>The file has a document type declaration, which is not allowed here. What follows is not read.</source>
        <translation>文件含有文档类型声明，此处不允许。其后的内容不再读取。</translation>
    </message>
    <message>
        <source>The file is not well-formed here: %1 What follows is not read.</source>
        <translation>文件在此处格式不正确：%1 其后的内容不再读取。</translation>
    </message>
    <message>
        <source>The outermost element is &quot;%1&quot;; it should be &quot;modem_types&quot;.</source>
        <translation>最外层元素是“%1”，应为“modem_types”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known at this place.</source>
        <translation>此处不认识“%1”。</translation>
    </message>
    <message>
        <source>The card %1 is listed already; this entry is left out.</source>
        <translation>卡 %1 已在列表中，此条目略过。</translation>
    </message>
    <message>
        <source>A rule needs the attribute &quot;drivers&quot;, with the names of kernel drivers.</source>
        <translation>规则需要属性“drivers”，其值为内核驱动的名称。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be four hexadecimal digits other than 0000, as lsusb shows them.</source>
        <translation>“%1”为“%2”，应为 0000 以外的四位十六进制数字，如 lsusb 所示。</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; is missing.</source>
        <translation>缺少属性“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;%2&quot;; it should be a number from %3 to %4.</source>
        <translation>“%1”为“%2”，应为 %3 到 %4 之间的数字。</translation>
    </message>
    <message>
        <source>&quot;family&quot; is &quot;%1&quot;; it should be WCDMA, TD-SCDMA or CDMA.</source>
        <translation>“family”为“%1”，应为 WCDMA、TD-SCDMA 或 CDMA。</translation>
    </message>
    <message>
        <source>&quot;storage&quot; holds &quot;%1&quot;; it should be ids such as 1209:0002.</source>
        <translation>“storage”含有“%1”，应为 1209:0002 这样的标识。</translation>
    </message>
    <message>
        <source>This entry is left out. %1</source>
        <translation>此条目略过。%1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>The file is larger than 1 MiB and is not read.</source>
        <translation>文件大于 1 MiB，不予读取。</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>Incoming call</source>
        <translation>来电</translation>
    </message>
    <message>
        <source>The card is ringing.</source>
        <translation>上网卡有来电。</translation>
    </message>
    <message>
        <source>Another call is waiting.</source>
        <translation>另有来电等待接听。</translation>
    </message>
</context>
<context>
    <name>OfflineDiagnosis</name>
    <message>
        <source>The card shows itself as a disk</source>
        <translation>上网卡显示为磁盘</translation>
    </message>
    <message>
        <source>Many cards start as a disk with drivers on it. Switch it over, and it becomes a modem within a few seconds.</source>
        <translation>许多上网卡最初显示为带有驱动程序的磁盘。切换后，几秒内即变为调制解调器。</translation>
    </message>
    <message>
        <source>No card found</source>
        <translation>未找到上网卡</translation>
    </message>
    <message>
        <source>Plug the card into a USB socket of this computer. If it is plugged in, take it out and try another socket.</source>
        <translation>请将上网卡插入此计算机的 USB 接口。如已插入，请拔下并换一个接口。</translation>
    </message>
    <message>
        <source>The card is plugged in as a modem</source>
        <translation>上网卡已作为调制解调器接入</translation>
    </message>
    <message>
        <source>The card has no serial port</source>
        <translation>上网卡没有串口</translation>
    </message>
    <message>
        <source>The computer sees &quot;%1&quot; but made no port for it. Take it out, wait ten seconds and plug it in again.</source>
        <translation>计算机识别到“%1”，但未为其创建端口。请拔下，等待十秒后重新插入。</translation>
    </message>
    <message>
        <source>The computer made a port for it</source>
        <translation>计算机已为其创建端口</translation>
    </message>
    <message>
        <source>You may use the port</source>
        <translation>您有权使用端口</translation>
    </message>
    <message>
        <source>No right to use the port</source>
        <translation>无权使用端口</translation>
    </message>
    <message>
        <source>The port %1 may be used only by members of the group &quot;%2&quot;. Run the command that the button copies, then log out and in again.</source>
        <translation>只有组“%2”的成员才能使用端口 %1。请运行按钮所复制的命令，然后注销并重新登录。</translation>
    </message>
    <message>
        <source>Another program</source>
        <translation>另一程序</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1（进程 %2）</translation>
    </message>
    <message>
        <source>No other program holds the port</source>
        <translation>没有其他程序占用端口</translation>
    </message>
    <message>
        <source>The port is in use</source>
        <translation>端口被占用</translation>
    </message>
    <message>
        <source>%1 holds the port %2. Close that program or stop its service, then search again.</source>
        <translation>%1 正在占用端口 %2。请关闭该程序或停止其服务，然后重新搜索。</translation>
    </message>
    <message>
        <source>The card does not answer</source>
        <translation>上网卡无响应</translation>
    </message>
    <message>
        <source>The port %1 is open, but nothing answers there. A card that was just plugged in needs up to half a minute; after that, take it out and plug it in again.</source>
        <translation>端口 %1 已打开，但没有响应。刚插入的上网卡最多需要半分钟；若仍无响应，请拔下后重新插入。</translation>
    </message>
    <message>
        <source>The card answers</source>
        <translation>上网卡有响应</translation>
    </message>
    <message>
        <source>No SIM card</source>
        <translation>无 SIM 卡</translation>
    </message>
    <message>
        <source>Take the card out, put a SIM card in with its contacts down, and plug the card in again.</source>
        <translation>请拔下上网卡，将 SIM 卡触点朝下装入，再重新插入上网卡。</translation>
    </message>
    <message>
        <source>The SIM card cannot be read</source>
        <translation>无法读取 SIM 卡</translation>
    </message>
    <message>
        <source>Take the SIM card out, wipe its contacts and put it in again. If that does not help, ask your operator for a new one.</source>
        <translation>请取出 SIM 卡，擦净触点后重新装入。如仍无效，请向运营商换一张新卡。</translation>
    </message>
    <message>
        <source>The SIM card is starting</source>
        <translation>SIM 卡正在启动</translation>
    </message>
    <message>
        <source>This takes a few seconds.</source>
        <translation>这需要几秒钟。</translation>
    </message>
    <message>
        <source>Asking for the SIM card</source>
        <translation>正在查询 SIM 卡</translation>
    </message>
    <message>
        <source>The card has not said yet whether it has a SIM card.</source>
        <translation>上网卡尚未报告是否装有 SIM 卡。</translation>
    </message>
    <message>
        <source>A SIM card is in the card</source>
        <translation>上网卡中装有 SIM 卡</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>SIM 卡已锁定</translation>
    </message>
    <message>
        <source>It asks for its PIN before it lets the card into a network.</source>
        <translation>需要先输入 PIN 码，上网卡才能接入网络。</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>SIM 卡已封锁</translation>
    </message>
    <message>
        <source>A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a new PIN.</source>
        <translation>PIN 码输错次数过多。请用随 SIM 卡提供的 PUK 码设置新的 PIN 码。</translation>
    </message>
    <message>
        <source>The SIM card is unlocked</source>
        <translation>SIM 卡已解锁</translation>
    </message>
    <message>
        <source>The radio is off</source>
        <translation>无线功能已关闭</translation>
    </message>
    <message>
        <source>The card neither sends nor receives until it is switched on.</source>
        <translation>开启无线功能之前，上网卡既不发送也不接收。</translation>
    </message>
    <message>
        <source>The radio is on</source>
        <translation>无线功能已开启</translation>
    </message>
    <message>
        <source>Not looking for a network</source>
        <translation>未在搜索网络</translation>
    </message>
    <message>
        <source>The card found no network that it may use and gave up. Move to a place with better reception, then switch the radio on anew.</source>
        <translation>上网卡未找到可用的网络，已停止搜索。请移到信号较好的地方，然后重新开启无线功能。</translation>
    </message>
    <message>
        <source>The network refused the SIM card</source>
        <translation>网络拒绝了 SIM 卡</translation>
    </message>
    <message>
        <source>The SIM card may not be activated yet, or may not be used here. Your operator can tell you why.</source>
        <translation>SIM 卡可能尚未激活，或不允许在此使用。运营商可告知原因。</translation>
    </message>
    <message>
        <source>Looking for a network</source>
        <translation>正在搜索网络</translation>
    </message>
    <message>
        <source>This can take a minute, longer abroad. A place near a window helps.</source>
        <translation>可能需要一分钟，在境外会更久。靠近窗户会有帮助。</translation>
    </message>
    <message>
        <source>Asking for the network</source>
        <translation>正在查询网络</translation>
    </message>
    <message>
        <source>The card has not said yet whether a network took it in.</source>
        <translation>上网卡尚未报告是否已接入网络。</translation>
    </message>
    <message>
        <source>Your operator&apos;s network took the card in</source>
        <translation>已接入您的运营商的网络</translation>
    </message>
    <message>
        <source>Another operator&apos;s network took the card in</source>
        <translation>已接入其他运营商的网络</translation>
    </message>
    <message>
        <source>No service</source>
        <translation>无服务</translation>
    </message>
    <message>
        <source>The network gives no service here at the moment. Move to a place with better reception.</source>
        <translation>网络目前在此处不提供服务。请移到信号较好的地方。</translation>
    </message>
    <message>
        <source>Emergency calls only</source>
        <translation>仅限紧急呼叫</translation>
    </message>
    <message>
        <source>The network does not serve this SIM card here. Your operator can tell you why.</source>
        <translation>网络在此处不为这张 SIM 卡提供服务。运营商可告知原因。</translation>
    </message>
    <message>
        <source>No service in this region</source>
        <translation>此地区无服务</translation>
    </message>
    <message>
        <source>Your operator serves this SIM card elsewhere, not in this region.</source>
        <translation>运营商在其他地区为这张 SIM 卡提供服务，但不包括此地区。</translation>
    </message>
    <message>
        <source>The network serves the card</source>
        <translation>网络正在提供服务</translation>
    </message>
    <message>
        <source>Card in the USB socket</source>
        <translation>USB 接口中的上网卡</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Right to use the port</source>
        <translation>端口使用权限</translation>
    </message>
    <message>
        <source>Port free</source>
        <translation>端口空闲</translation>
    </message>
    <message>
        <source>Answer of the card</source>
        <translation>上网卡响应</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM 卡</translation>
    </message>
    <message>
        <source>PIN</source>
        <translation>PIN</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>无线功能</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>网络注册</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>&amp;Search again</source>
        <translation>重新搜索(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Switch to modem</source>
        <translation>切换为调制解调器(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Copy command</source>
        <translation>复制命令(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Enter PIN</source>
        <translation>输入 PIN 码(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Enter PUK</source>
        <translation>输入 PUK 码(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Switch radio on</source>
        <translation>开启无线功能(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Ask again</source>
        <translation>重新查询(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit profile</source>
        <translation>编辑配置文件(&amp;E)</translation>
    </message>
    <message>
        <source>The settings name a port</source>
        <translation>设置中指定了端口</translation>
    </message>
    <message>
        <source>The port does not exist</source>
        <translation>端口不存在</translation>
    </message>
    <message>
        <source>The settings name the port %1, which does not exist. Plug the card in; if it is plugged in, correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>设置中指定的端口 %1 不存在。请插入上网卡；如已插入，请更正文件 Data/common-config.xml 中的“at_port”，然后重新启动程序。</translation>
    </message>
    <message>
        <source>The port is no serial port</source>
        <translation>该端口不是串口</translation>
    </message>
    <message>
        <source>The settings name the port %1, which is no serial port. Correct &quot;at_port&quot; in the file Data/common-config.xml and start the program again.</source>
        <translation>设置中指定的端口 %1 不是串口。请更正文件 Data/common-config.xml 中的“at_port”，然后重新启动程序。</translation>
    </message>
</context>
<context>
    <name>PduError</name>
    <message>
        <source>there is nothing</source>
        <translation>没有内容</translation>
    </message>
    <message>
        <source>this is no hexadecimal digit</source>
        <translation>不是十六进制数字</translation>
    </message>
    <message>
        <source>half an octet is missing</source>
        <translation>缺少半个八位字节</translation>
    </message>
    <message>
        <source>the message ends too early</source>
        <translation>短信过早结束</translation>
    </message>
    <message>
        <source>the length goes past the end</source>
        <translation>长度超出末尾</translation>
    </message>
    <message>
        <source>this is no message of the expected kind</source>
        <translation>不是预期类型的短信</translation>
    </message>
    <message>
        <source>the header is longer than the data</source>
        <translation>头部比数据长</translation>
    </message>
    <message>
        <source>an element goes past the header</source>
        <translation>有元素超出头部</translation>
    </message>
    <message>
        <source>there can be no such part</source>
        <translation>不可能有这样的部分</translation>
    </message>
    <message>
        <source>half a character is missing</source>
        <translation>缺少半个字符</translation>
    </message>
    <message>
        <source>The message cannot be read: %1 (%2, octet %3).</source>
        <translation>无法读取短信：%1（%2，第 %3 个八位字节）。</translation>
    </message>
</context>
<context>
    <name>PortAccess</name>
    <message>
        <source>You may not open %1, which belongs to the group &quot;%2&quot;. Join it with &quot;sudo usermod -aG %2 %3&quot;, then sign out and in again.</source>
        <translation>您无权打开 %1，它属于组“%2”。请用“sudo usermod -aG %2 %3”加入该组，然后注销并重新登录。</translation>
    </message>
    <message>
        <source>You may not open %1 yet: you are a member of the group &quot;%2&quot;, but were not when you signed in. Sign out and in again.</source>
        <translation>您暂时无法打开 %1：您已是组“%2”的成员，但登录时还不是。请注销并重新登录。</translation>
    </message>
    <message>
        <source>You may not open %1, and no group can be joined that may. Ask the administrator of this computer for a udev rule that gives the group &quot;dialout&quot; access to it.</source>
        <translation>您无权打开 %1，也没有可加入的组拥有此权限。请让此计算机的管理员添加 udev 规则，使组“dialout”可以访问它。</translation>
    </message>
</context>
<context>
    <name>PortHolder</name>
    <message>
        <source>process %1</source>
        <translation>进程 %1</translation>
    </message>
    <message>
        <source>ModemManager is using the card on %1. Stop it with &quot;sudo systemctl stop ModemManager&quot;, or keep it off this card with the udev rule that comes with this program.</source>
        <translation>ModemManager 正在使用 %1 上的卡。请用“sudo systemctl stop ModemManager”停止它，或用随本程序提供的 udev 规则使它不再使用此卡。</translation>
    </message>
    <message>
        <source>The message service %1 is using the card on %2. Stop it with &quot;sudo systemctl stop %3&quot;.</source>
        <translation>短信服务 %1 正在使用 %2 上的卡。请用“sudo systemctl stop %3”停止它。</translation>
    </message>
    <message>
        <source>%1 is using the card on %2. Close that program; the card is then found by itself.</source>
        <translation>%1 正在使用 %2 上的卡。请关闭该程序，随后会自动找到卡。</translation>
    </message>
    <message>
        <source>Another program is using the card on %1. &quot;sudo fuser -v %1&quot; names it; close it, and the card is found by itself.</source>
        <translation>另一程序正在使用 %1 上的卡。“sudo fuser -v %1”可显示其名称；关闭它后会自动找到卡。</translation>
    </message>
</context>
<context>
    <name>PppErrors</name>
    <message>
        <source>Pppd  has  detached,  or  otherwise  the  connection was successfully established and terminated at the peer&apos;s request.</source>
        <translation>pppd 已转入后台运行，或连接已成功建立并应对方请求终止。</translation>
    </message>
    <message>
        <source>An immediately fatal error of some kind occurred, such as an essential system call failing, or running out  of virtual memory.</source>
        <translation>发生了立即致命的错误，例如关键的系统调用失败或虚拟内存耗尽。</translation>
    </message>
    <message>
        <source>An error was detected in processing the options given, such as two mutually exclusive options being used.</source>
        <translation>处理所给选项时检测到错误，例如使用了两个互斥的选项。</translation>
    </message>
    <message>
        <source>Pppd is not setuid-root and the invoking user is not root.</source>
        <translation>pppd 未设置 setuid-root，且调用它的用户不是 root。</translation>
    </message>
    <message>
        <source>The kernel does not support PPP, for example, the PPP kernel driver is not included or cannot be loaded.</source>
        <translation>内核不支持 PPP，例如内核未包含 PPP 驱动或无法加载该驱动。</translation>
    </message>
    <message>
        <source>Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal.</source>
        <translation>pppd 收到 SIGINT、SIGTERM 或 SIGHUP 信号而终止。</translation>
    </message>
    <message>
        <source>The serial port could not be locked.</source>
        <translation>无法锁定串口。</translation>
    </message>
    <message>
        <source>The serial port could not be opened.</source>
        <translation>无法打开串口。</translation>
    </message>
    <message>
        <source>The connect script failed (returned a non-zero exit status).</source>
        <translation>连接脚本失败（返回了非零退出状态）。</translation>
    </message>
    <message>
        <source>The command specified as the argument to the pty option could not be run.</source>
        <translation>无法运行 pty 选项所指定的命令。</translation>
    </message>
    <message>
        <source>The  PPP  negotiation failed, that is, it didn&apos;t reach the point where at least one network protocol (e.g. IP) was running.</source>
        <translation>PPP 协商失败，即未能使至少一种网络协议（如 IP）运行。</translation>
    </message>
    <message>
        <source>The peer system failed (or refused) to authenticate itself.</source>
        <translation>对方系统未能通过（或拒绝）身份验证。</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because it was idle.</source>
        <translation>链路已成功建立，因空闲而终止。</translation>
    </message>
    <message>
        <source>The link was established successfully and terminated because the connect time limit was reached.</source>
        <translation>链路已成功建立，因达到连接时间上限而终止。</translation>
    </message>
    <message>
        <source>Callback was negotiated and an incoming call should arrive shortly.</source>
        <translation>已协商回拨，稍后应有来电。</translation>
    </message>
    <message>
        <source>The link was terminated because the peer is not responding to echo requests.</source>
        <translation>对方未响应回显请求，链路已终止。</translation>
    </message>
    <message>
        <source>The link was terminated by the modem hanging up.</source>
        <translation>调制解调器挂断，链路已终止。</translation>
    </message>
    <message>
        <source>The PPP negotiation failed because serial loopback was detected.</source>
        <translation>检测到串口回环，PPP 协商失败。</translation>
    </message>
    <message>
        <source>The init script failed (returned a non-zero exit status).</source>
        <translation>初始化脚本失败（返回了非零退出状态）。</translation>
    </message>
    <message>
        <source>We failed to authenticate ourselves to the peer.</source>
        <translation>我方未能通过对方的身份验证。</translation>
    </message>
</context>
<context>
    <name>ProfileChecks</name>
    <message>
        <source>The dial number may hold letters, digits and * # + , . - ( ), 80 at most.</source>
        <translation>拨号号码只能包含字母、数字和 * # + , . - ( )，最多 80 个字符。</translation>
    </message>
    <message>
        <source>The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its ends, not be a single asterisk, and be 255 bytes long at most.</source>
        <translation>用户名不能包含引号或反斜杠，不能以花括号开头，首尾不能有空格，不能仅为一个星号，且最长 255 字节。</translation>
    </message>
    <message>
        <source>The password must not hold quotes, backslashes, a brace or &quot;@/&quot; at its beginning or blanks at its ends, and be 255 bytes long at most.</source>
        <translation>密码不能包含引号或反斜杠，不能以花括号或“@/”开头，首尾不能有空格，且最长 255 字节。</translation>
    </message>
    <message>
        <source>The name of the profile is too long.</source>
        <translation>配置文件名称太长。</translation>
    </message>
    <message>
        <source>The APN may hold letters, digits and . - _ @ : /, 100 at most.</source>
        <translation>APN 只能包含字母、数字和 . - _ @ : /，最多 100 个字符。</translation>
    </message>
    <message>
        <source>The address mode may hold letters and digits only.</source>
        <translation>地址模式只能包含字母和数字。</translation>
    </message>
    <message>
        <source>The beginning of the IMSI may hold 15 digits at most.</source>
        <translation>IMSI 开头最多 15 位数字。</translation>
    </message>
    <message>
        <source>The page to open must be an address of the web.</source>
        <translation>要打开的页面必须是网址。</translation>
    </message>
    <message>
        <source>A value holds a line break or another control character, or the text &quot;-|-&quot;.</source>
        <translation>某个值含有换行符或其他控制字符，或含有文本“-|-”。</translation>
    </message>
    <message>
        <source>The Config Filename must be filled.</source>
        <translation>必须填写配置文件名称。</translation>
    </message>
    <message>
        <source>The Dial Number is empty!</source>
        <translation>拨号号码为空！</translation>
    </message>
    <message>
        <source>The APN is empty!</source>
        <translation>APN 为空！</translation>
    </message>
    <message>
        <source>Invalid PDP!Please check it!</source>
        <translation>PDP 无效！请检查！</translation>
    </message>
    <message>
        <source>Invalid Preferred DNS!Please check it!</source>
        <translation>首选 DNS 无效！请检查！</translation>
    </message>
    <message>
        <source>Invalid Alternative DNS!Please check it!</source>
        <translation>备用 DNS 无效！请检查！</translation>
    </message>
    <message>
        <source>The card&apos;s data port has a name that cannot be used.</source>
        <translation>上网卡数据端口的名称无法使用。</translation>
    </message>
</context>
<context>
    <name>ProfileStore</name>
    <message>
        <source>The profiles in %1 cannot be read.</source>
        <translation>无法读取 %1 中的配置文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read, and cannot be kept beside.</source>
        <translation>无法读取 %1，也无法保留其备份。</translation>
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
        <translation>“%1”不是号码：无法拨打“%2”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number: the digits are missing.</source>
        <translation>“%1”不是号码：缺少数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too long: a number has %2 characters at most.</source>
        <translation>“%1”太长：号码最多 %2 个字符。</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>%1 is not a plain file</source>
        <translation>%1 不是普通文件</translation>
    </message>
    <message>
        <source>%1 may not be written</source>
        <translation>没有写入 %1 的权限</translation>
    </message>
    <message>
        <source>No file can be made beside %1</source>
        <translation>无法在 %1 所在位置创建文件</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>%1 cannot be replaced</source>
        <translation>无法替换 %1</translation>
    </message>
    <message>
        <source>%1 is a ring of links</source>
        <translation>%1 是循环链接</translation>
    </message>
    <message>
        <source>The broken settings file cannot be kept beside</source>
        <translation>无法保留损坏的设置文件</translation>
    </message>
    <message>
        <source>The rights of %1 cannot be set</source>
        <translation>无法设置 %1 的权限</translation>
    </message>
</context>
<context>
    <name>SettingsNotice</name>
    <message>
        <source>The settings could not be read, so the program started with nothing set. The unreadable file was kept as:
%1</source>
        <translation>无法读取设置，程序以未设置的状态启动。无法读取的文件已保留为：
%1</translation>
    </message>
    <message>
        <source>The settings cannot be stored: %1</source>
        <translation>无法保存设置：%1</translation>
    </message>
</context>
<context>
    <name>Skins</name>
    <message>
        <source>The colours in &quot;%1&quot; cannot be read.</source>
        <translation>无法读取“%1”中的颜色。</translation>
    </message>
</context>
<context>
    <name>SmsFiling</name>
    <message>
        <source>The text is compressed and cannot be shown.</source>
        <translation>文本经过压缩，无法显示。</translation>
    </message>
    <message>
        <source>The message holds data and no text.</source>
        <translation>该短信包含数据，没有文本。</translation>
    </message>
    <message>
        <source>The card lists the message without its content.</source>
        <translation>上网卡列出了该短信，但没有内容。</translation>
    </message>
    <message>
        <source>A message came in without its content.</source>
        <translation>收到一条没有内容的短信。</translation>
    </message>
    <message>
        <source>Voice messages are waiting for you.</source>
        <translation>您有语音留言。</translation>
    </message>
    <message>
        <source>No voice messages are waiting any more.</source>
        <translation>已没有语音留言。</translation>
    </message>
    <message>
        <source>Faxes are waiting for you.</source>
        <translation>您有传真。</translation>
    </message>
    <message>
        <source>No faxes are waiting any more.</source>
        <translation>已没有传真。</translation>
    </message>
    <message>
        <source>E-mails are waiting for you.</source>
        <translation>您有电子邮件。</translation>
    </message>
    <message>
        <source>No e-mails are waiting any more.</source>
        <translation>已没有电子邮件。</translation>
    </message>
    <message>
        <source>Messages of another kind are waiting for you.</source>
        <translation>您有其他类型的消息。</translation>
    </message>
    <message>
        <source>No messages of another kind are waiting any more.</source>
        <translation>已没有其他类型的消息。</translation>
    </message>
</context>
<context>
    <name>SmsJobs</name>
    <message>
        <source>The card did not answer.</source>
        <translation>上网卡没有应答。</translation>
    </message>
    <message>
        <source>The card does not exchange messages as PDUs: %1</source>
        <translation>上网卡不以 PDU 方式收发短信：%1</translation>
    </message>
    <message>
        <source>New messages will not be announced: %1</source>
        <translation>将不会提示新短信：%1</translation>
    </message>
    <message>
        <source>The message has no content that the card could keep.</source>
        <translation>该短信没有可供上网卡保存的内容。</translation>
    </message>
    <message>
        <source>The card names the message without its content.</source>
        <translation>上网卡列出了该短信，但没有内容。</translation>
    </message>
    <message>
        <source>The service centre&apos;s number, %1, is too long.</source>
        <translation>短信中心号码 %1 过长。</translation>
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
        <translation>M月d日</translation>
    </message>
    <message>
        <source>MMMM yyyy</source>
        <extracomment>A month with its year, as QDate::toString takes it</extracomment>
        <translation>yyyy年M月</translation>
    </message>
    <message>
        <source>Yesterday, %1</source>
        <translation>昨天 %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>TrafficSentences</name>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>已接收 %1，已发送 %2</translation>
    </message>
    <message>
        <source>%1; %2 of it roaming</source>
        <translation>%1；其中漫游 %2</translation>
    </message>
    <message>
        <source>%1 of %2 used (%3&#xa0;%)</source>
        <translation>已用 %1，共 %2（%3%）</translation>
    </message>
    <message>
        <source>%1 of %2 roaming (%3&#xa0;%)</source>
        <translation>漫游已用 %1，共 %2（%3%）</translation>
    </message>
    <message>
        <source>Too few days are known to say what it will be by %1.</source>
        <translation>记录的天数太少，无法预计截至 %1的用量。</translation>
    </message>
    <message>
        <source>The volume is used up. A new one begins on %1.</source>
        <translation>流量已用完。新的流量从 %1开始。</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2.</source>
        <translation>照此速度，到 %2约为 %1。</translation>
    </message>
    <message>
        <source>As it goes, the volume will be used up on %1; by %2 it would be about %3.</source>
        <translation>照此速度，流量将于 %1用完；到 %2约为 %3。</translation>
    </message>
    <message>
        <source>As it goes, it will be about %1 by %2: the volume is enough.</source>
        <translation>照此速度，到 %2约为 %1：流量够用。</translation>
    </message>
</context>
<context>
    <name>WTMainWindow</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>为什么离线(&amp;W)？</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>移动(&amp;M)</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>调整大小(&amp;S)</translation>
    </message>
    <message>
        <source>Mi&amp;nimise</source>
        <translation>最小化(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Fill the screen</source>
        <translation>铺满屏幕(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>关于 %1(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>断开(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>取消连接(&amp;C)</translation>
    </message>
    <message>
        <source>Disconnect and quit?</source>
        <translation>断开连接并退出？</translation>
    </message>
    <message>
        <source>Disconnect and &amp;quit</source>
        <translation>断开并退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>WvdialProcess</name>
    <message>
        <source>The dialler is running already.</source>
        <translation>拨号程序已在运行。</translation>
    </message>
    <message>
        <source>The program wvdial is missing. Please install it.</source>
        <translation>缺少程序 wvdial。请安装它。</translation>
    </message>
</context>
<context>
    <name>corva::AboutBox</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Connection manager for USB data cards</source>
        <translation>USB 上网卡连接管理器</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>工具包</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>上网卡</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Internal version</source>
        <translation>内部版本</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>全部复制(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
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
        <translation>信箱</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Broadcasts</source>
        <translation>小区广播</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <extracomment>What is used of the places of a SIM card: &quot;SIM card, 10 of 20&quot;</extracomment>
        <translation>%1，%2/%3</translation>
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
        <translation>频道(&amp;H)</translation>
    </message>
    <message>
        <source>Numbers and ranges, as 50, 4370-4372</source>
        <translation>频道号和范围，例如 50, 4370-4372</translation>
    </message>
    <message>
        <source>L&amp;isten</source>
        <translation>收听(&amp;I)</translation>
    </message>
</context>
<context>
    <name>corva::CSetting</name>
    <message>
        <source>Groups of settings</source>
        <translation>设置分组</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>正在读取卡</translation>
    </message>
</context>
<context>
    <name>corva::CardPage</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Ask the card for everything anew</source>
        <translation>重新查询上网卡的全部信息</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>上网卡</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>SIM card</source>
        <translation>SIM 卡</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>运营商</translation>
    </message>
    <message>
        <source>Network type</source>
        <translation>网络类型</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>注册状态</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Network code</source>
        <translation>网络代码</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>位置区</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>小区</translation>
    </message>
    <message>
        <source>Network time</source>
        <translation>网络时间</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Phone number</source>
        <translation>电话号码</translation>
    </message>
    <message>
        <source>IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>Card number</source>
        <translation>卡号</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
</context>
<context>
    <name>corva::CardPlaces</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>The SIM&apos;s memory for messages is nearly full: %1</source>
        <translation>SIM 卡的短信存储空间即将用完：%1</translation>
    </message>
    <message>
        <source>The card&apos;s memory for messages is nearly full: %1</source>
        <translation>上网卡的短信存储空间即将用完：%1</translation>
    </message>
    <message>
        <source>There is no card that takes messages.</source>
        <translation>没有可收发短信的上网卡。</translation>
    </message>
    <message>
        <source>The messages could not be written to disk and stay on the card.</source>
        <translation>无法将短信写入磁盘，短信仍保留在上网卡上。</translation>
    </message>
    <message>
        <source>Only short messages can be kept on the card.</source>
        <translation>上网卡上只能保存短信。</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>上网卡已不在。</translation>
    </message>
    <message>
        <source>The message was not written to the SIM: %1</source>
        <translation>短信未能写入 SIM 卡：%1</translation>
    </message>
    <message>
        <source>The message was not written to the card: %1</source>
        <translation>短信未能写入上网卡：%1</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is kept on the computer as well.</source>
        <translation>有一条短信无法从上网卡中删除。计算机上也保留了该短信。</translation>
    </message>
    <message>
        <source>The message is being sent.</source>
        <translation>短信正在发送。</translation>
    </message>
    <message>
        <source>It is for several people, and the card keeps messages for one.</source>
        <translation>该短信有多个收件人，而上网卡只能保存单个收件人的短信。</translation>
    </message>
    <message>
        <source>What the card lists without its content stays where it is.</source>
        <translation>上网卡列出但没有内容的短信将留在原处。</translation>
    </message>
    <message>
        <source>A message could not be deleted from the card. It is in both places now.</source>
        <translation>有一条短信无法从上网卡中删除。现在两处都有该短信。</translation>
    </message>
</context>
<context>
    <name>corva::CheckPIN</name>
    <message>
        <source>&amp;Show the digits</source>
        <translation>显示数字(&amp;S)</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>以后再说(&amp;T)</translation>
    </message>
    <message>
        <source>The SIM card is blocked</source>
        <translation>SIM 卡已封锁</translation>
    </message>
    <message>
        <source>The SIM card is locked</source>
        <translation>SIM 卡已锁定</translation>
    </message>
    <message>
        <source>Enter PUK</source>
        <translation>输入 PUK 码</translation>
    </message>
    <message>
        <source>Enter PIN</source>
        <translation>输入 PIN 码</translation>
    </message>
    <message>
        <source>Enter the PUK, which came with the SIM card, and choose a new PIN.</source>
        <translation>请输入随 SIM 卡提供的 PUK 码，并设置新的 PIN 码。</translation>
    </message>
    <message>
        <source>Enter its PIN to use the card.</source>
        <translation>要使用上网卡，请输入 PIN 码。</translation>
    </message>
    <message>
        <source>P&amp;UK, 8 digits</source>
        <translation>PUK 码，8 位数字(&amp;U)</translation>
    </message>
    <message>
        <source>New &amp;PIN, 4 to 8 digits</source>
        <translation>新 PIN 码，4 到 8 位数字(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;PIN, 4 to 8 digits</source>
        <translation>PIN 码，4 到 8 位数字(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Repeat the new PIN</source>
        <translation>重复新 PIN 码(&amp;R)</translation>
    </message>
    <message>
        <source>Un&amp;block</source>
        <translation>解除封锁(&amp;B)</translation>
    </message>
    <message>
        <source>Un&amp;lock</source>
        <translation>解锁(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%n attempts left</source>
        <translation>
            <numerusform>还可尝试 %n 次</numerusform>
        </translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PUK the SIM card is lost for good.</source>
        <translation>最后一次机会：PUK 码再输错一次，SIM 卡将永久报废。</translation>
    </message>
    <message>
        <source>Last attempt: after another wrong PIN the SIM card asks for its PUK.</source>
        <translation>最后一次机会：PIN 码再输错一次，SIM 卡将要求输入 PUK 码。</translation>
    </message>
    <message>
        <source>A PUK has 8 digits.</source>
        <translation>PUK 码为 8 位数字。</translation>
    </message>
    <message>
        <source>A PIN has 4 to 8 digits.</source>
        <translation>PIN 码为 4 到 8 位数字。</translation>
    </message>
    <message>
        <source>The two PINs differ.</source>
        <translation>两次输入的 PIN 码不一致。</translation>
    </message>
    <message>
        <source>Asking the SIM card</source>
        <translation>正在等待 SIM 卡响应</translation>
    </message>
    <message>
        <source>The PUK is wrong.</source>
        <translation>PUK 码错误。</translation>
    </message>
    <message>
        <source>The PIN is wrong.</source>
        <translation>PIN 码错误。</translation>
    </message>
    <message>
        <source>The SIM card cannot be read. Take it out and put it in again.</source>
        <translation>无法读取 SIM 卡。请取出后重新装入。</translation>
    </message>
    <message>
        <source>The card did not answer in time. It is not known whether it took the entry; the attempts left are shown as far as the card tells them.</source>
        <translation>上网卡未及时响应，无法确定是否已接受输入；若上网卡提供剩余次数，会显示出来。</translation>
    </message>
    <message>
        <source>The SIM card is still starting. Try again in a moment.</source>
        <translation>SIM 卡仍在启动，请稍后重试。</translation>
    </message>
    <message>
        <source>The card refused the entry, without saying that it is wrong.</source>
        <translation>上网卡拒绝了输入，但未说明输入有误。</translation>
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
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>corva::Class0Dialog</name>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Immediate message</source>
        <translation>即显短信</translation>
    </message>
    <message>
        <source>&amp;Keep in the inbox</source>
        <translation>保存到收件箱(&amp;K)</translation>
    </message>
    <message>
        <source>%1 :
 %2</source>
        <translation>%1：
 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>还有 %n 条</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>下一条(&amp;N)</translation>
    </message>
</context>
<context>
    <name>corva::Composer</name>
    <message>
        <source>New message</source>
        <translation>新建短信</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>收件人(&amp;T)</translation>
    </message>
    <message>
        <source>Delivery &amp;report</source>
        <translation>送达报告(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Send</source>
        <translation>发送(&amp;S)</translation>
    </message>
    <message>
        <source>Numbers, with commas between them</source>
        <translation>多个号码之间用逗号分隔</translation>
    </message>
    <message>
        <source>Text of the message</source>
        <translation>短信正文</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>正文</translation>
    </message>
    <message>
        <source>You are told when the message was delivered</source>
        <translation>短信送达时会通知您</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Te&amp;mplates</source>
        <translation>模板(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>Moves the draft to the deleted messages</source>
        <translation>将草稿移到已删除短信中</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>The templates could not be stored: %1</source>
        <translation>无法保存模板：%1</translation>
    </message>
    <message>
        <source>&amp;Keep this text as a template</source>
        <translation>将此文本保存为模板(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Remove a template</source>
        <translation>删除模板(&amp;R)</translation>
    </message>
    <message>
        <source>Say whom the message is for.</source>
        <translation>请填写收件人。</translation>
    </message>
    <message>
        <source>The message says nothing yet.</source>
        <translation>短信还没有内容。</translation>
    </message>
</context>
<context>
    <name>corva::Config</name>
    <message>
        <source>New profile</source>
        <translation>新建配置文件</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Edit profile</source>
        <translation>编辑配置文件</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Profile &amp;name</source>
        <translation>配置文件名称(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Dial number</source>
        <translation>拨号号码(&amp;D)</translation>
    </message>
    <message>
        <source>Connect as a &amp;modem or a network card</source>
        <translation>作为调制解调器或网卡连接(&amp;M)</translation>
    </message>
    <message>
        <source>As the card can</source>
        <translation>视上网卡能力而定</translation>
    </message>
    <message>
        <source>Modem (dial-up)</source>
        <translation>调制解调器（拨号）</translation>
    </message>
    <message>
        <source>Network card</source>
        <translation>网卡</translation>
    </message>
    <message>
        <source>For S&amp;IMs whose IMSI begins with</source>
        <translation>适用于 IMSI 以此开头的 SIM 卡(&amp;I)</translation>
    </message>
    <message>
        <source>any</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Access point (APN)</source>
        <translation>接入点 (APN)</translation>
    </message>
    <message>
        <source>Access point</source>
        <translation>接入点</translation>
    </message>
    <message>
        <source>&amp;This one</source>
        <translation>指定(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;By the network</source>
        <translation>由网络决定(&amp;B)</translation>
    </message>
    <message>
        <source>Name of the access &amp;point</source>
        <translation>接入点名称(&amp;P)</translation>
    </message>
    <message>
        <source>Authentication</source>
        <translation>身份验证</translation>
    </message>
    <message>
        <source>P&amp;AP</source>
        <translation>PAP(&amp;A)</translation>
    </message>
    <message>
        <source>C&amp;HAP</source>
        <translation>CHAP(&amp;H)</translation>
    </message>
    <message>
        <source>N&amp;one</source>
        <translation>无(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>用户名(&amp;U)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>As&amp;k for them when connecting</source>
        <translation>连接时询问(&amp;K)</translation>
    </message>
    <message>
        <source>Keep them in the profi&amp;le</source>
        <translation>保存在配置文件中(&amp;L)</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>From the network (d&amp;ynamic)</source>
        <translation>由网络分配（动态）(&amp;Y)</translation>
    </message>
    <message>
        <source>Fi&amp;xed</source>
        <translation>固定(&amp;X)</translation>
    </message>
    <message>
        <source>Fixed add&amp;ress</source>
        <translation>固定地址(&amp;R)</translation>
    </message>
    <message>
        <source>Name servers (DNS)</source>
        <translation>域名服务器 (DNS)</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>域名服务器</translation>
    </message>
    <message>
        <source>&amp;From the network</source>
        <translation>由网络提供(&amp;F)</translation>
    </message>
    <message>
        <source>Th&amp;ese</source>
        <translation>指定(&amp;E)</translation>
    </message>
    <message>
        <source>Preferred (&amp;1)</source>
        <translation>首选(&amp;1)</translation>
    </message>
    <message>
        <source>Alternative (&amp;2)</source>
        <translation>备用(&amp;2)</translation>
    </message>
    <message>
        <source>Once connected</source>
        <translation>连接后</translation>
    </message>
    <message>
        <source>Pa&amp;ge to open in the browser</source>
        <translation>在浏览器中打开的页面(&amp;G)</translation>
    </message>
    <message>
        <source>This profile came with the program and stays as it is.</source>
        <translation>此配置文件随程序提供，不可更改。</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionFacts</name>
    <message>
        <source>This connection</source>
        <translation>本次连接</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message>
        <source>Name servers</source>
        <translation>域名服务器</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>接收速率</translation>
    </message>
    <message>
        <source>Sending</source>
        <translation>发送速率</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionHead</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>为什么离线(&amp;W)？</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>断开(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>正在初始化</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>正在断开</translation>
    </message>
    <message>
        <source>Status: Connected</source>
        <translation>状态：已连接</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>状态：未连接</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionService</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>通话时只有 UMTS 网络可以连接！</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>设备已断开或不可用。</translation>
    </message>
    <message>
        <source>Can&apos;t open deault config file!</source>
        <translation>无法打开默认配置文件！</translation>
    </message>
    <message>
        <source>This card has no network interface. Please choose dial-up in the profile.</source>
        <translation>此网卡没有网络接口。请在配置中选择拨号。</translation>
    </message>
    <message>
        <source>The card has no data port that could be dialled on.</source>
        <translation>网卡没有可用于拨号的数据端口。</translation>
    </message>
    <message>
        <source>There is no data transported recently. Auto Disconnect will close your internet link.</source>
        <translation>最近没有数据传输。自动断开将关闭您的互联网连接。</translation>
    </message>
    <message>
        <source>An earlier connection was cut off and has left its own settings in files of the system. Start Corva again and enter the password: it puts them back.</source>
        <translation>先前的连接被中断，其设置仍留在系统文件中。请重新启动 Corva 并输入密码，即可恢复这些文件。</translation>
    </message>
</context>
<context>
    <name>corva::ConnectionSettings</name>
    <message>
        <source>Automatic connection</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>&amp;Connect by itself when the card is ready</source>
        <translation>上网卡就绪时自动连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Attempts</source>
        <translation>尝试次数(&amp;A)</translation>
    </message>
    <message>
        <source> s</source>
        <comment>seconds</comment>
        <translation> 秒</translation>
    </message>
    <message>
        <source>When a connection breaks off</source>
        <translation>连接中断时</translation>
    </message>
    <message>
        <source>&amp;Dial again</source>
        <translation>重新拨号(&amp;D)</translation>
    </message>
    <message>
        <source>A&amp;ttempts</source>
        <translation>尝试次数(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;First one after</source>
        <translation>首次重拨间隔(&amp;F)</translation>
    </message>
    <message>
        <source>Each f&amp;urther one after</source>
        <translation>后续每次间隔(&amp;U)</translation>
    </message>
    <message>
        <source>When nothing is carried</source>
        <translation>无数据传输时</translation>
    </message>
    <message>
        <source>D&amp;isconnect</source>
        <translation>断开(&amp;I)</translation>
    </message>
    <message>
        <source>Aft&amp;er</source>
        <translation>等待时间(&amp;E)</translation>
    </message>
    <message>
        <source> min</source>
        <comment>minutes</comment>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Dialling</source>
        <translation>拨号</translation>
    </message>
    <message>
        <source>&amp;Longest wait for a link</source>
        <translation>等待链路的最长时间(&amp;L)</translation>
    </message>
    <message>
        <source>E&amp;xplain a failure by the exit status of pppd</source>
        <translation>根据 pppd 的退出状态解释失败原因(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Open the profile&apos;s page once connected</source>
        <translation>连接后打开配置文件中的页面(&amp;O)</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>corva::Connector</name>
    <message>
        <source>Only UMTS network can connect while calling!</source>
        <translation>通话期间只有 UMTS 网络可以连接！</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>设备已断开或不可用。</translation>
    </message>
    <message>
        <source>You are connecting to a roaming network. Would you like to continue?</source>
        <translation>您正在连接漫游网络。要继续吗？</translation>
    </message>
    <message>
        <source>Which access is yours?</source>
        <translation>您使用哪个接入点？</translation>
    </message>
    <message>
        <source>Whose SIM card is it?</source>
        <translation>这是哪家运营商的 SIM 卡？</translation>
    </message>
    <message>
        <source>%1 has several. Choose yours; the choice is kept as a profile.</source>
        <translation>%1 有多个接入点。请选择您的接入点；所选内容将保存为配置文件。</translation>
    </message>
    <message>
        <source>Several operators share this network. Choose yours; the choice is kept as a profile.</source>
        <translation>多家运营商共用此网络。请选择您的运营商；所选内容将保存为配置文件。</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>连接(&amp;O)</translation>
    </message>
    <message>
        <source>Which profile?</source>
        <translation>使用哪个配置文件？</translation>
    </message>
    <message>
        <source>It is taken from now on.</source>
        <translation>从现在起将使用它。</translation>
    </message>
</context>
<context>
    <name>corva::ConversationModel</name>
    <message numerus="yes">
        <source>%1, %n unread</source>
        <translation>
            <numerusform>%1，%n 条未读</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::CredentialsDialog</name>
    <message>
        <source>&amp;User name</source>
        <translation>用户名(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>密码(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Keep them and do not ask again</source>
        <translation>保存且不再询问(&amp;K)</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;onnect</source>
        <translation>连接(&amp;O)</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; asks for them at each connection.</source>
        <translation>配置文件“%1”每次连接时都会询问。</translation>
    </message>
    <message>
        <source>User name and password</source>
        <translation>用户名和密码</translation>
    </message>
</context>
<context>
    <name>corva::DataLink</name>
    <message>
        <source>Fail to connect! Link ppp0 wasn&apos;t built !</source>
        <translation>连接失败！未建立 ppp0 链路！</translation>
    </message>
    <message>
        <source>The device has been disconnected or is unavailable.</source>
        <translation>设备已断开或不可用。</translation>
    </message>
    <message>
        <source>The card did not accept the access point &quot;%1&quot;. Please check the APN of the profile.</source>
        <translation>网卡未接受接入点“%1”。请检查配置中的 APN。</translation>
    </message>
</context>
<context>
    <name>corva::DaysChart</name>
    <message>
        <source>Volume of each day</source>
        <translation>每日流量</translation>
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
        <translation>上一周期</translation>
    </message>
    <message>
        <source>Later period</source>
        <translation>下一周期</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Nothing was carried in this period.</source>
        <translation>此周期内无数据传输。</translation>
    </message>
    <message>
        <source>In all: %1</source>
        <translation>总计：%1</translation>
    </message>
</context>
<context>
    <name>corva::DhcpClient</name>
    <message>
        <source>There is no such network interface.</source>
        <translation>没有这个网络接口。</translation>
    </message>
    <message>
        <source>There is no DHCP client. Please install isc-dhcp-client.</source>
        <translation>没有 DHCP 客户端。请安装 isc-dhcp-client。</translation>
    </message>
    <message>
        <source>The network gave no address.</source>
        <translation>网络未分配地址。</translation>
    </message>
</context>
<context>
    <name>corva::DiagnosisRow</name>
    <message>
        <source>in order</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>有问题</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>进行中</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚不清楚</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>corva::DialUpLink</name>
    <message>
        <source>Connection is failed!</source>
        <translation>连接失败！</translation>
    </message>
    <message>
        <source>Fail to connect! exit code is</source>
        <translation>连接失败！退出代码为</translation>
    </message>
    <message>
        <source>The card&apos;s data port cannot be opened: %1</source>
        <translation>无法打开网卡的数据端口：%1</translation>
    </message>
    <message>
        <source>The card does not answer on its data port.</source>
        <translation>网卡在其数据端口上没有应答。</translation>
    </message>
    <message>
        <source>The card refused a command on its data port.</source>
        <translation>网卡在其数据端口上拒绝了一条命令。</translation>
    </message>
</context>
<context>
    <name>corva::DialWork</name>
    <message>
        <source>You may not use this card&apos;s data port.</source>
        <translation>您无权使用此上网卡的数据端口。</translation>
    </message>
    <message>
        <source>The network interface does not belong to the card.</source>
        <translation>该网络接口不属于此上网卡。</translation>
    </message>
    <message>
        <source>The network interface has no address from here.</source>
        <translation>该网络接口的地址不是由本程序获取的。</translation>
    </message>
    <message>
        <source>The DNS is invalid !</source>
        <translation>DNS 无效！</translation>
    </message>
    <message>
        <source>The dialler could not be started.</source>
        <translation>无法启动拨号程序。</translation>
    </message>
    <message>
        <source>The dialler is running already.</source>
        <translation>拨号程序已在运行。</translation>
    </message>
    <message>
        <source>The connection was cancelled.</source>
        <translation>连接已取消。</translation>
    </message>
    <message>
        <source>The route helper is not run: others may write it.</source>
        <translation>未运行路由辅助程序：其他人可以写入它。</translation>
    </message>
</context>
<context>
    <name>corva::FactRow</name>
    <message>
        <source>Copy %1</source>
        <translation>复制“%1”</translation>
    </message>
</context>
<context>
    <name>corva::FormField</name>
    <message>
        <source>Show the password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>隐藏密码</translation>
    </message>
</context>
<context>
    <name>corva::GeneralPage</name>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Beside other programs</source>
        <translation>与其他程序一起使用</translation>
    </message>
    <message>
        <source>&amp;Keep running in the tray when the window is closed</source>
        <translation>关闭窗口后在托盘中继续运行(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Notify about calls and messages on the desktop</source>
        <translation>在桌面上通知来电和短信(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Colours</source>
        <translation>颜色(&amp;C)</translation>
    </message>
    <message>
        <source>The language is stored. It takes effect when the program starts next.</source>
        <translation>语言已保存，下次启动程序时生效。</translation>
    </message>
    <message>
        <source>The colours could not be stored: %1</source>
        <translation>无法保存颜色：%1</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Look for &amp;updates</source>
        <translation>检查更新(&amp;U)</translation>
    </message>
</context>
<context>
    <name>corva::HelperBackend</name>
    <message>
        <source>Connecting needs an administrator&apos;s rights, and the program &quot;pkexec&quot;, which asks for them, is missing. Please install it.</source>
        <translation>连接需要管理员权限，但缺少用于请求权限的程序“pkexec”。请安装它。</translation>
    </message>
    <message>
        <source>The program that dials has ended unexpectedly. Please try again.</source>
        <translation>执行拨号的程序意外结束。请重试。</translation>
    </message>
    <message>
        <source>The right to connect was not given. Please connect again and enter the password.</source>
        <translation>未获得连接权限。请重新连接并输入密码。</translation>
    </message>
    <message>
        <source>The right to connect could not be asked for. Ask an administrator to run &quot;tools/install-dialhelper&quot;, or start Corva in a desktop session.</source>
        <translation>无法请求连接权限。请让管理员运行“tools/install-dialhelper”，或在桌面会话中启动 Corva。</translation>
    </message>
    <message>
        <source>The program that dials could not be started. Ask an administrator to run &quot;tools/install-dialhelper&quot;.</source>
        <translation>无法启动执行拨号的程序。请让管理员运行“tools/install-dialhelper”。</translation>
    </message>
</context>
<context>
    <name>corva::HistoryModel</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>结束原因</translation>
    </message>
    <message>
        <source>From %1
to %2</source>
        <translation>从 %1
到 %2</translation>
    </message>
</context>
<context>
    <name>corva::HistoryTab</name>
    <message>
        <source>Delete &amp;all</source>
        <translation>全部删除(&amp;A)</translation>
    </message>
    <message>
        <source>Search the history</source>
        <translation>搜索历史记录</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>搜索 (%1)</translation>
    </message>
    <message>
        <source>Connections that are over</source>
        <translation>已结束的连接</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Delete %n entries</source>
        <translation>
            <numerusform>删除 %n 条记录(&amp;D)</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Delete entry</source>
        <translation>删除记录(&amp;D)</translation>
    </message>
    <message>
        <source>No connection was made yet. Each one is listed here once it is over.</source>
        <translation>尚未建立过连接。每次连接结束后会列在此处。</translation>
    </message>
    <message>
        <source>No entry has all of these words.</source>
        <translation>没有包含所有这些词的记录。</translation>
    </message>
    <message numerus="yes">
        <source>%n entries were deleted.</source>
        <translation>
            <numerusform>已删除 %n 条记录。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
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
        <translation>用方向键移动窗口。按 Enter 保留新位置，按 Esc 恢复原位置。</translation>
    </message>
    <message>
        <source>Arrow keys resize the window. Enter keeps the size, Esc brings the old one back.</source>
        <translation>用方向键调整窗口大小。按 Enter 保留新大小，按 Esc 恢复原大小。</translation>
    </message>
</context>
<context>
    <name>corva::Mender</name>
    <message>
        <source>Searching for the card</source>
        <translation>正在搜索上网卡</translation>
    </message>
    <message>
        <source>Asking the card</source>
        <translation>正在查询上网卡</translation>
    </message>
    <message>
        <source>Copied. Paste the command into a terminal, then log out and in again.</source>
        <translation>已复制。请将命令粘贴到终端中运行，然后注销并重新登录。</translation>
    </message>
    <message>
        <source>Switching the card to a modem</source>
        <translation>正在将上网卡切换为调制解调器</translation>
    </message>
    <message>
        <source>Switched. The card comes back as a modem in a few seconds.</source>
        <translation>已切换。几秒后上网卡将显示为调制解调器。</translation>
    </message>
    <message>
        <source>Switching the radio on</source>
        <translation>正在开启无线功能</translation>
    </message>
    <message>
        <source>The radio is on.</source>
        <translation>无线功能已开启。</translation>
    </message>
    <message>
        <source>The card has not confirmed yet. Its state follows.</source>
        <translation>上网卡尚未确认。其状态随后显示。</translation>
    </message>
</context>
<context>
    <name>corva::MessageActions</name>
    <message>
        <source>&amp;Reply</source>
        <translation>回复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>转发(&amp;F)</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>删除(&amp;L)</translation>
    </message>
    <message>
        <source>Put &amp;back</source>
        <translation>恢复(&amp;B)</translation>
    </message>
    <message>
        <source>Send a&amp;gain</source>
        <translation>重新发送(&amp;G)</translation>
    </message>
    <message>
        <source>Mark as rea&amp;d</source>
        <translation>标为已读(&amp;D)</translation>
    </message>
    <message>
        <source>Mark as &amp;unread</source>
        <translation>标为未读(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Copy the text</source>
        <translation>复制文本(&amp;C)</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>导出(&amp;X)…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>打印(&amp;P)…</translation>
    </message>
    <message numerus="yes">
        <source>De&amp;lete %n messages</source>
        <translation>
            <numerusform>删除 %n 条短信(&amp;L)</numerusform>
        </translation>
    </message>
    <message>
        <source>Cop&amp;y to</source>
        <translation>复制到(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Move to</source>
        <translation>移动到(&amp;M)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were deleted.</source>
        <translation>
            <numerusform>已删除 %n 条短信。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n messages for good?</source>
        <translation>
            <numerusform>永久删除 %n 条短信？</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n &amp;messages</source>
        <translation>
            <numerusform>删除 %n 条短信(&amp;M)</numerusform>
        </translation>
    </message>
    <message>
        <source>The message may have gone out already. Send it again?</source>
        <translation>短信可能已经发出。要再次发送吗？</translation>
    </message>
</context>
<context>
    <name>corva::MessageBrowser</name>
    <message>
        <source>No message has come yet.</source>
        <translation>尚未收到短信。</translation>
    </message>
    <message>
        <source>Nothing waits to be sent.</source>
        <translation>没有等待发送的短信。</translation>
    </message>
    <message>
        <source>You have sent no message yet.</source>
        <translation>您尚未发送过短信。</translation>
    </message>
    <message>
        <source>No drafts. What you write is kept here until you send it.</source>
        <translation>没有草稿。您写的内容会保存在这里，直到发送。</translation>
    </message>
    <message>
        <source>Nothing was deleted.</source>
        <translation>没有已删除的短信。</translation>
    </message>
    <message>
        <source>No delivery report has come yet.</source>
        <translation>尚未收到送达报告。</translation>
    </message>
    <message>
        <source>Conversations</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>短信</translation>
    </message>
    <message>
        <source>Reading the messages…</source>
        <translation>正在读取短信…</translation>
    </message>
    <message>
        <source>No message has all of these words.</source>
        <translation>没有包含所有这些词的短信。</translation>
    </message>
    <message>
        <source>Nobody has written yet. Press Ctrl+N to write first.</source>
        <translation>还没有人给您发短信。按 Ctrl+N 可先写一条。</translation>
    </message>
    <message>
        <source>No broadcast has come yet. Choose the channels to listen to above.</source>
        <translation>尚未收到小区广播。请在上方选择要收听的频道。</translation>
    </message>
    <message>
        <source>Reading the %1…</source>
        <translation>正在读取 %1…</translation>
    </message>
    <message>
        <source>No message is kept there.</source>
        <translation>那里没有保存短信。</translation>
    </message>
    <message>
        <source>It was not read yet. Is a card plugged in?</source>
        <translation>尚未读取。上网卡是否已插入？</translation>
    </message>
</context>
<context>
    <name>corva::MessageDesk</name>
    <message numerus="yes">
        <source>%n messages are unread.</source>
        <translation>
            <numerusform>有 %n 条未读短信。</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>短信</translation>
    </message>
    <message>
        <source>New message from %1</source>
        <translation>来自 %1 的新短信</translation>
    </message>
    <message>
        <source>Broadcast on channel %1</source>
        <translation>频道 %1 上的小区广播</translation>
    </message>
    <message>
        <source>Sent successfully %1,failed %2</source>
        <translation>发送成功 %1 条，失败 %2 条</translation>
    </message>
</context>
<context>
    <name>corva::MessageExchange</name>
    <message>
        <source>Export messages</source>
        <translation>导出短信</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>CSV 表格 (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were written to %1.</source>
        <translation>
            <numerusform>已将 %n 条短信写入 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>The messages could not be written: %1</source>
        <translation>无法写入短信：%1</translation>
    </message>
    <message>
        <source>Import messages</source>
        <translation>导入短信</translation>
    </message>
    <message>
        <source>Exported messages (*.csv *.json)</source>
        <translation>已导出的短信 (*.csv *.json)</translation>
    </message>
    <message numerus="yes">
        <source>%n messages were added.</source>
        <translation>
            <numerusform>已添加 %n 条短信。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were here already.</source>
        <translation>
            <numerusform>%n 条已存在。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be read.</source>
        <translation>
            <numerusform>%n 条无法读取。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>corva::MessageListModel</name>
    <message>
        <source>Unread</source>
        <translation>未读</translation>
    </message>
</context>
<context>
    <name>corva::MessageService</name>
    <message>
        <source>The card did not take the broadcast channels: %1</source>
        <translation>上网卡未接受广播频道：%1</translation>
    </message>
    <message>
        <source>The text is too long for one message.</source>
        <translation>文本太长，一条短信容纳不下。</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was not stored: %1</source>
        <translation>短信中心号码未能保存：%1</translation>
    </message>
    <message>
        <source>The card is gone.</source>
        <translation>上网卡已不在。</translation>
    </message>
    <message>
        <source>The service centre&apos;s number was stored.</source>
        <translation>短信中心号码已保存。</translation>
    </message>
</context>
<context>
    <name>corva::MessageSettings</name>
    <message>
        <source>Sending</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>The network &amp;tries for</source>
        <translation>网络尝试发送的期限(&amp;T)</translation>
    </message>
    <message>
        <source>12 hours</source>
        <translation>12 小时</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 小时</translation>
    </message>
    <message>
        <source>1 week</source>
        <translation>1 周</translation>
    </message>
    <message>
        <source>As long as it may</source>
        <translation>尽可能长</translation>
    </message>
    <message>
        <source>National &amp;letters</source>
        <translation>国家语言字符(&amp;L)</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>&amp;Ask for a report when a message is delivered</source>
        <translation>短信送达时要求报告(&amp;A)</translation>
    </message>
    <message>
        <source>Keeping</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>此计算机上</translation>
    </message>
    <message>
        <source>On the SIM card</source>
        <translation>SIM 卡上</translation>
    </message>
    <message>
        <source>On the data card</source>
        <translation>上网卡上</translation>
    </message>
    <message>
        <source>Where the network says</source>
        <translation>网络指定的位置</translation>
    </message>
    <message>
        <source>&amp;New messages are kept</source>
        <translation>新短信保存在(&amp;N)</translation>
    </message>
    <message>
        <source>The data card&apos;s o&amp;wn memory is used, too</source>
        <translation>同时使用上网卡自身的存储空间(&amp;W)</translation>
    </message>
    <message>
        <source>Delete &amp;read messages from a full SIM card</source>
        <translation>SIM 卡存满时删除其中的已读短信(&amp;R)</translation>
    </message>
    <message>
        <source>What you are told</source>
        <translation>通知内容</translation>
    </message>
    <message>
        <source>&amp;Unread messages, when the program starts</source>
        <translation>程序启动时提示未读短信(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delivery reports, in a box when they come</source>
        <translation>收到送达报告时弹出提示框(&amp;D)</translation>
    </message>
    <message>
        <source>Delivery reports, in a &amp;folder of their own</source>
        <translation>送达报告放入单独的文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Messages that cells &amp;broadcast to everybody</source>
        <translation>小区向所有人广播的消息(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Immediate messages show</source>
        <translation>即显短信显示(&amp;I)</translation>
    </message>
    <message>
        <source> lines</source>
        <translation> 行</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>短信</translation>
    </message>
</context>
<context>
    <name>corva::MonthsModel</name>
    <message>
        <source>Month</source>
        <translation>月份</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>In all</source>
        <translation>总计</translation>
    </message>
</context>
<context>
    <name>corva::Navigation</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>corva::NavigationButton</name>
    <message>
        <source>%1, %2 new</source>
        <translation>%1，%2 条新内容</translation>
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
        <translation>连接失败！</translation>
    </message>
</context>
<context>
    <name>corva::OfflinePanel</name>
    <message>
        <source>&amp;Back</source>
        <translation>返回(&amp;B)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>为什么离线？</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>目前一切正常，上网卡正在处理。</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>有一个步骤不正常。解决后，其后的步骤会自动继续。</translation>
    </message>
    <message>
        <source>Everything from the socket to the internet is in order.</source>
        <translation>从接口到互联网一切正常。</translation>
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
        <translation>图表显示内容</translation>
    </message>
    <message>
        <source>The last minute</source>
        <translation>最近 1 分钟</translation>
    </message>
    <message>
        <source>The last 10 minutes</source>
        <translation>最近 10 分钟</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>This connection, %1</source>
        <translation>本次连接，%1</translation>
    </message>
    <message>
        <source>Last connection, %1</source>
        <translation>上次连接，%1</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>None was made yet.</source>
        <translation>尚未建立过连接。</translation>
    </message>
    <message>
        <source>Days and months are not counted: the configuration turns it off.</source>
        <translation>未统计每日和每月流量：配置中已关闭。</translation>
    </message>
    <message>
        <source>%1 Say in the settings, Traffic, what volume you have, to be warned in time.</source>
        <translation>%1 请在设置的“流量”页中填写您的流量额度，以便及时提醒。</translation>
    </message>
    <message>
        <source>Down %1 (filled), up %2 (dashed)</source>
        <translation>下行 %1（填充），上行 %2（虚线）</translation>
    </message>
    <message>
        <source>The graph runs while a connection is up.</source>
        <translation>连接期间图表会持续更新。</translation>
    </message>
</context>
<context>
    <name>corva::PlainTextView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>复制“%1”</translation>
    </message>
</context>
<context>
    <name>corva::ProfileList</name>
    <message>
        <source>access point from the network</source>
        <translation>由网络提供接入点</translation>
    </message>
    <message>
        <source>%1, connects with it</source>
        <translation>%1，用于连接</translation>
    </message>
    <message>
        <source>No profile yet</source>
        <translation>尚无配置文件</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>删除(&amp;L)</translation>
    </message>
    <message>
        <source>Make de&amp;fault</source>
        <translation>设为默认(&amp;F)</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>配置文件</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Add a profile</source>
        <translation>添加配置文件</translation>
    </message>
    <message>
        <source>Connect with this profile from now on</source>
        <translation>从现在起使用此配置文件连接</translation>
    </message>
    <message>
        <source>Vi&amp;ew</source>
        <translation>查看(&amp;E)</translation>
    </message>
    <message>
        <source>Delete the profile &quot;%1&quot;?</source>
        <translation>删除配置文件“%1”？</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Connects with &quot;%1&quot; from now on.</source>
        <translation>从现在起使用“%1”连接。</translation>
    </message>
</context>
<context>
    <name>corva::ProfileStore</name>
    <message>
        <source>There is a profile with this name already.</source>
        <translation>已有同名的配置文件。</translation>
    </message>
    <message>
        <source>There is no profile with this name.</source>
        <translation>没有此名称的配置文件。</translation>
    </message>
    <message>
        <source>This profile may not be changed.</source>
        <translation>此配置文件不可更改。</translation>
    </message>
    <message>
        <source>This profile may not be deleted.</source>
        <translation>此配置文件不可删除。</translation>
    </message>
</context>
<context>
    <name>corva::RateGraph</name>
    <message>
        <source>Graph of the rates</source>
        <translation>速率图表</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>now</source>
        <translation>现在</translation>
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
        <translation>详细信息(&amp;T)</translation>
    </message>
    <message>
        <source>The message</source>
        <translation>短信</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>  ·  </source>
        <translation>  ·  </translation>
    </message>
    <message>
        <source>%1 parts are here. The others are added when they come.</source>
        <translation>已收到的部分：%1。其余部分到达后会自动添加。</translation>
    </message>
    <message>
        <source>Service centre: %1</source>
        <translation>短信中心：%1</translation>
    </message>
    <message>
        <source>Arrived: %1</source>
        <translation>到达时间：%1</translation>
    </message>
    <message>
        <source>Channel: %1</source>
        <translation>频道：%1</translation>
    </message>
    <message>
        <source>Part %1: %2</source>
        <translation>第 %1 部分：%2</translation>
    </message>
    <message>
        <source>It did not travel yet.</source>
        <translation>该短信尚未收发。</translation>
    </message>
</context>
<context>
    <name>corva::SendBar</name>
    <message>
        <source>Sent parts</source>
        <translation>已发送的部分</translation>
    </message>
    <message>
        <source>&amp;Cancel sending</source>
        <translation>取消发送(&amp;C)</translation>
    </message>
    <message>
        <source>%1 %2 of %3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <source>Sending ...</source>
        <translation>正在发送…</translation>
    </message>
    <message>
        <source>Do you want to cancel sending the rest SMS?</source>
        <translation>要取消发送其余短信吗？</translation>
    </message>
</context>
<context>
    <name>corva::SendQueue</name>
    <message>
        <source>The message could not be written to disk and is not sent.</source>
        <translation>无法将短信写入磁盘，短信未发送。</translation>
    </message>
    <message>
        <source>The message could not be written to disk.</source>
        <translation>无法将短信写入磁盘。</translation>
    </message>
    <message>
        <source>The alphabet&apos;s settings have changed since it was written.</source>
        <translation>字符集设置在短信写好之后已更改。</translation>
    </message>
    <message>
        <source>The message to %1 was not sent: %2</source>
        <translation>发送给 %1 的短信未发出：%2</translation>
    </message>
    <message>
        <source>There is another SIM in the card. What waited was not sent.</source>
        <translation>上网卡中换了另一张 SIM 卡。等待中的短信未发送。</translation>
    </message>
    <message>
        <source>The message to %1 may have been sent: the card did not say.</source>
        <translation>发给 %1 的短信可能已发送：上网卡未给出结果。</translation>
    </message>
</context>
<context>
    <name>corva::ServiceCentreDialog</name>
    <message>
        <source>&amp;Number</source>
        <translation>号码(&amp;N)</translation>
    </message>
    <message>
        <source>Service centre</source>
        <translation>短信中心</translation>
    </message>
    <message>
        <source>Every message goes through the operator&apos;s service centre. Its number is on the SIM card; change it only when your operator asks you to.</source>
        <translation>每条短信都经由运营商的短信中心发送。其号码保存在 SIM 卡上；仅在运营商要求时才应更改。</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>One number is needed.</source>
        <translation>需要填写一个号码。</translation>
    </message>
</context>
<context>
    <name>corva::SettingsPage</name>
    <message>
        <source>The setting could not be stored: %1</source>
        <translation>无法保存该设置：%1</translation>
    </message>
</context>
<context>
    <name>corva::SignalBars</name>
    <message>
        <source>Signal: %1 of %2 bars</source>
        <translation>信号：%1 格，共 %2 格</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>无信号</translation>
    </message>
</context>
<context>
    <name>corva::SmsReception</name>
    <message>
        <source>A new message could not be read from the card: %1</source>
        <translation>无法从上网卡读取一条新短信：%1</translation>
    </message>
    <message>
        <source>A new message could not be written to disk and stays on the card.</source>
        <translation>一条新短信无法写入磁盘，仍保留在上网卡上。</translation>
    </message>
    <message>
        <source>A delivery report could not be read from the card: %1</source>
        <translation>无法从上网卡读取一份送达报告：%1</translation>
    </message>
    <message>
        <source>Message was successfully sent to %1, in %2,at %3</source>
        <translation>发送给 %1 的短信已成功送达，发送时间 %2，送达时间 %3。</translation>
    </message>
    <message>
        <source>The message to %1: %2</source>
        <translation>发送给 %1 的短信：%2</translation>
    </message>
</context>
<context>
    <name>corva::SplashDialog</name>
    <message>
        <source>Initializing</source>
        <translation>正在初始化</translation>
    </message>
    <message>
        <source>Software version PC:</source>
        <translation>软件版本（PC）：</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>固件版本：</translation>
    </message>
</context>
<context>
    <name>corva::StateHero</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>为什么离线(&amp;W)？</translation>
    </message>
    <message>
        <source>In the network</source>
        <translation>已接入网络</translation>
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
        <translation>无法完整读取 %1。</translation>
    </message>
    <message>
        <source>%1 could not be read in full. What stood in it is kept as %2.</source>
        <translation>无法完整读取 %1。其内容已保留为 %2。</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>无法删除 %1：%2</translation>
    </message>
</context>
<context>
    <name>corva::StatusStrip</name>
    <message>
        <source>&amp;Why?</source>
        <translation>为什么(&amp;W)？</translation>
    </message>
    <message>
        <source>Why am I offline?</source>
        <translation>为什么离线？</translation>
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
        <translation>无法读取 %1，也未能保留其备份。</translation>
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
        <translation>已接收：%1，%2</translation>
    </message>
    <message>
        <source>Written: %1, %2</source>
        <translation>已撰写：%1，%2</translation>
    </message>
</context>
<context>
    <name>corva::ThreadPane</name>
    <message>
        <source>Show &amp;earlier messages</source>
        <translation>显示更早的短信(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>写短信(&amp;W)</translation>
    </message>
    <message>
        <source>Conversation</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>corva::TopBar</name>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>正在断开</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Menu of %1</source>
        <translation>%1 菜单</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Network type %1</source>
        <translation>网络类型 %1</translation>
    </message>
    <message>
        <source>R</source>
        <comment>roaming</comment>
        <translation>R</translation>
    </message>
    <message>
        <source>Roaming</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>No card</source>
        <translation>无上网卡</translation>
    </message>
    <message>
        <source>SIM</source>
        <translation>SIM</translation>
    </message>
    <message>
        <source>SIM card: %1</source>
        <translation>SIM 卡：%1</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚不清楚</translation>
    </message>
    <message>
        <source>Data connection: %1</source>
        <translation>数据连接：%1</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>时间：%1</translation>
    </message>
</context>
<context>
    <name>corva::TrafficPage</name>
    <message>
        <source>E&amp;xport as CSV…</source>
        <translation>导出为 CSV(&amp;X)…</translation>
    </message>
    <message>
        <source>Writes the history to a file that spreadsheets read</source>
        <translation>将历史记录写入电子表格程序可读取的文件</translation>
    </message>
    <message>
        <source>Writes days and months to a file that spreadsheets read</source>
        <translation>将每日和每月流量写入电子表格程序可读取的文件</translation>
    </message>
    <message>
        <source>&amp;Overview</source>
        <translation>概览(&amp;O)</translation>
    </message>
    <message>
        <source>Da&amp;ys</source>
        <translation>每日(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;Months</source>
        <translation>每月(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史记录(&amp;H)</translation>
    </message>
    <message>
        <source>Volume of each month</source>
        <translation>每月流量</translation>
    </message>
    <message>
        <source>Export the history</source>
        <translation>导出历史记录</translation>
    </message>
    <message>
        <source>Export days and months</source>
        <translation>导出每日和每月流量</translation>
    </message>
    <message>
        <source>CSV tables (*.csv)</source>
        <translation>CSV 表格 (*.csv)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>无法写入表格：%1</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>流量</translation>
    </message>
</context>
<context>
    <name>corva::TrafficService</name>
    <message>
        <source>%1 The connection is ended, as you set it in the settings, Traffic.</source>
        <translation>%1 已按您在设置的“流量”页中的设定结束连接。</translation>
    </message>
    <message>
        <source>Your volume of %1 until %2 is used up.</source>
        <translation>您截至 %2的 %1 流量已用完。</translation>
    </message>
    <message>
        <source>Your volume of %1 for roaming until %2 is used up.</source>
        <translation>您截至 %2的 %1 漫游流量已用完。</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 until %3 are used up.</source>
        <translation>您截至 %3的 %2 流量已用 %1%。</translation>
    </message>
    <message>
        <source>%1 % of your volume of %2 for roaming until %3 are used up.</source>
        <translation>您截至 %3的 %2 漫游流量已用 %1%。</translation>
    </message>
</context>
<context>
    <name>corva::TrafficSettingsPage</name>
    <message>
        <source>Your volume</source>
        <translation>您的流量额度</translation>
    </message>
    <message>
        <source>&amp;Volume of a month</source>
        <translation>每月流量(&amp;V)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>While &amp;roaming</source>
        <translation>漫游时(&amp;R)</translation>
    </message>
    <message>
        <source>Counts with it</source>
        <translation>计入每月流量</translation>
    </message>
    <message>
        <source>It begins anew on &amp;day</source>
        <translation>每月重新计算日(&amp;D)</translation>
    </message>
    <message>
        <source>When it runs out</source>
        <translation>流量用完时</translation>
    </message>
    <message>
        <source>&amp;Warn at</source>
        <translation>提醒阈值(&amp;W)</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Unit: %1</source>
        <translation>单位：%1</translation>
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
        <translation>从不</translation>
    </message>
    <message>
        <source>&amp;End the connection when the volume is used up</source>
        <translation>流量用完时结束连接(&amp;E)</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>流量</translation>
    </message>
</context>
<context>
    <name>corva::TrayIcon</name>
    <message>
        <source>&amp;Why am I offline?</source>
        <translation>为什么离线(&amp;W)？</translation>
    </message>
    <message>
        <source>&amp;About %1</source>
        <translation>关于 %1(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Hide the window</source>
        <translation>隐藏窗口(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Show the window</source>
        <translation>显示窗口(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>断开(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel connecting</source>
        <translation>取消连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
</context>
<context>
    <name>corva::WirelessWindow</name>
    <message>
        <source>Plug the card in to connect.</source>
        <translation>插入上网卡即可连接。</translation>
    </message>
    <message>
        <source>Connect goes by the profile &quot;%1&quot;.</source>
        <translation>将使用配置文件“%1”连接。</translation>
    </message>
    <message>
        <source>The settings of %1 are known: just connect.</source>
        <translation>%1 的设置已内置：直接连接即可。</translation>
    </message>
    <message>
        <source>The settings for this SIM card are known: connect, and say whose it is.</source>
        <translation>此 SIM 卡的设置已内置：请连接并选择其运营商。</translation>
    </message>
    <message>
        <source>Add a profile with the access point that your operator has told you.</source>
        <translation>请用运营商告知的接入点添加配置文件。</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
</context>
</TS>
