<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
</context>
<context>
    <name>corva::CardMonitor</name>
    <message>
        <source>Reading the card</source>
        <translation>正在读取卡</translation>
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
</TS>
