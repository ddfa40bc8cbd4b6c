<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <source>New message</source>
        <translation>新短信</translation>
    </message>
    <message>
        <source>A new message has arrived on the card</source>
        <translation>上网卡收到一条新短信</translation>
    </message>
    <message>
        <source>A new message has arrived</source>
        <translation>收到一条新短信</translation>
    </message>
    <message>
        <source>An immediate message has arrived</source>
        <translation>收到一条即显短信</translation>
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
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
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
    <name>corva::FactRow</name>
    <message>
        <source>Copy %1</source>
        <translation>复制“%1”</translation>
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
        <source>Everything from the socket to the network is in order.</source>
        <translation>从接口到网络一切正常。</translation>
    </message>
    <message>
        <source>Nothing is wrong so far; the card is at it.</source>
        <translation>目前一切正常，上网卡正在处理。</translation>
    </message>
    <message>
        <source>One step is not in order. The steps after it follow by themselves.</source>
        <translation>有一个步骤不正常。解决后，其后的步骤会自动继续。</translation>
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
</context>
</TS>
