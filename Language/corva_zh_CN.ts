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
