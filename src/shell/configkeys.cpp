// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/configkeys.h"

#include "shell/configxml.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

using enum ConfigType;

// clang-format off
constexpr ConfigKey keys[] = {
    {"function"_L1, "selected-language"_L1, Text, "English"_L1, "Name of the translation under Language/, without \".qm\". Empty: English is chosen and stored."_L1},
    {"function"_L1, "lansetting_enabled"_L1, Flag, "1"_L1, "The settings offer the choice of the language."_L1},
    {"function"_L1, "splash_hide"_L1, Flag, "0"_L1, "1 starts without the splash."_L1},
    {"function"_L1, "splash_firmversion_enabled"_L1, Flag, "0"_L1, "1: the splash shows the card's firmware version and waits for it."_L1},
    {"function"_L1, "findAtAndModemNewWay"_L1, Flag, "0"_L1, "1: the ports are taken from the fixed names /dev/at and /dev/modem, and nothing is searched."_L1},
    {"function"_L1, "stk_enabled"_L1, Flag, "1"_L1, "The SIM's own menu (SIM Toolkit) is offered."_L1},
    {"function"_L1, "stk_smsstate_enabled"_L1, Flag, "0"_L1, "1: what becomes of messages that the SIM's own menu sends is told."_L1},
    {"function"_L1, "sms_enabled"_L1, Flag, "1"_L1, "The page of messages is there."_L1},
    {"function"_L1, "naming3GToH"_L1, Flag, "0"_L1, "1: fast 3G networks (HSDPA, HSUPA, HSPA) are shown as \"H\"."_L1},
    {"function"_L1, "modemSide_enabled"_L1, Flag, "0"_L1, "Messages and contacts may be kept in the card's own memory, beside the SIM's and the computer's."_L1},
    {"function"_L1, "cell_board_enabled"_L1, Flag, "0"_L1, "Cell broadcast messages are wanted."_L1},
    {"function"_L1, "cancelManualSearch_enabled"_L1, Flag, "0"_L1, "1: while a network search runs no other command is ever sent to the card."_L1},
    {"function"_L1, "ppp_errcode_show"_L1, Flag, "1"_L1, "A failed connection is explained by pppd's exit status."_L1},

    {"setting"_L1, "operator"_L1, Text, ""_L1, "Name of the customisation profile; empty for the general program. Seen after a restart."_L1},
    {"setting"_L1, "system_enabled"_L1, Flag, "0"_L1, "Together with systemsetting/disclaimer_show: the disclaimer is shown at start."_L1},
    {"setting"_L1, "flushright_enable"_L1, Flag, "0"_L1, "The layout runs from right to left, whatever the language."_L1},
    {"setting"_L1, "mybutton_disable_color"_L1, Colour, ""_L1, "Colour of the text of disabled buttons. Empty: the skin's."_L1},

    {"systemsetting"_L1, "disclaimer_show"_L1, Flag, "0"_L1, "Any number but 0 shows the disclaimer at start, where setting/system_enabled allows it."_L1},

    {"fontsetting"_L1, "setwindow_button_fontname"_L1, Text, ""_L1, "Font family of the whole program. Empty: the desktop's."_L1},
    {"fontsetting"_L1, "splash_fontname"_L1, Text, ""_L1, "Font family of the splash. Empty: the program's."_L1},
    {"fontsetting"_L1, "splash_fontsize"_L1, Number, "10"_L1, "Font size of the splash, in points. 0: the program's."_L1},
    {"fontsetting"_L1, "mainwindow_fontname"_L1, Text, ""_L1, "Font family of the main window. Empty: the program's."_L1},
    {"fontsetting"_L1, "mainwindow_fontsize"_L1, Number, "0"_L1, "Font size of the main window, in points, 6 to 24. 0: the skin's."_L1},
    {"fontsetting"_L1, "phonewindow_fontname"_L1, Text, ""_L1, "Font family of the contacts. Empty: the program's."_L1},

    {"resource_position"_L1, "tooltipLabel_y"_L1, Pixels, "0"_L1, "Shows tool tips so far below their usual place; above it when negative."_L1},
    {"resource_position"_L1, "topicon_width"_L1, Pixels, "20"_L1, "Width of the icons in the top bar. 0: 20."_L1},

    {"window"_L1, "page"_L1, Text, "connection"_L1, "The page that was open last."_L1},
    {"window"_L1, "geometry"_L1, Text, ""_L1, "Place and size of the window. Written by the program; empty: the middle of the screen."_L1},
    {"window"_L1, "close_to_tray"_L1, Flag, "0"_L1, "1: closing the window leaves the program running in the tray, where the desktop has one."_L1},
    {"window"_L1, "notifications_enabled"_L1, Flag, "1"_L1, "Calls and messages are announced on the desktop."_L1},

    {"network_dialer_setting"_L1, "splash_timer"_L1, Seconds, "20"_L1, "The longest wait of the splash for the card."_L1},
    {"network_dialer_setting"_L1, "slottimer_interval"_L1, Seconds, "4"_L1, "Time between two readings of the card's state. 0: 4."_L1},
    {"network_dialer_setting"_L1, "slottimer_interval_iscardoffline"_L1, Seconds, "4"_L1, "The same while there is no card. 0: 4."_L1},
    {"network_dialer_setting"_L1, "send_atcommand_timer"_L1, Seconds, "3"_L1, "Wait for the reply to an ordinary command, 1 to 60. Anything else: 3."_L1},
    {"network_dialer_setting"_L1, "send_nullatcommand_timer_s"_L1, Seconds, "0"_L1, "Wait for the answer to the probe \"AT\", whole seconds, 0 to 15."_L1},
    {"network_dialer_setting"_L1, "send_nullatcommand_timer_100ms"_L1, Number, "3"_L1, "The same, tenths of a second on top, 1 to 15."_L1},
    {"network_dialer_setting"_L1, "send_nullatcommand_interval"_L1, Seconds, "0"_L1, "Time between two empty commands that keep the card awake. 0: none, since the state is read anyway."_L1},
    {"network_dialer_setting"_L1, "send_cpmscommand_enabled"_L1, Flag, "1"_L1, "The card's message store is chosen once the card is ready."_L1},
    {"network_dialer_setting"_L1, "sim_detect_count"_L1, Number, "5"_L1, "How often a SIM that does not answer yet is asked again."_L1},
    {"network_dialer_setting"_L1, "dial_timeout"_L1, Seconds, "30"_L1, "How long a dial-up may take before it is judged. 0: 30."_L1},
    {"network_dialer_setting"_L1, "ppp0_pid_file"_L1, File, "/run/ppp0.pid"_L1, "A further file whose being there says that the PPP link is built, beside /etc/ppp/ppp0.lnk and /tmp/ppp0.lnk."_L1},
    {"network_dialer_setting"_L1, "ppp_resolve_conf_file"_L1, File, "/etc/ppp/resolv.conf"_L1, "Where pppd leaves the network's name servers, for other programs. Corva goes by those that the system uses."_L1},
    {"network_dialer_setting"_L1, "resolve_conf_file"_L1, File, "/etc/resolv.conf"_L1, "The system's list of name servers. Taken only when Corva runs as root."_L1},
    {"network_dialer_setting"_L1, "get_route_info_cmd"_L1, File, "/etc/ppp/get_route_info"_L1, "Helper that is run once connected, where there is one. Taken only when Corva runs as root."_L1},
    {"network_dialer_setting"_L1, "roaming_question"_L1, Text, ""_L1, "What is asked before a connection in a foreign network. Empty: the program's own question."_L1},
    {"network_dialer_setting"_L1, "Show_open_URL"_L1, Flag, "0"_L1, "Once connected, the profile's page is opened in the browser."_L1},
    {"network_dialer_setting"_L1, "AutoConnectFlag"_L1, Flag, "0"_L1, "Connects by itself when the card is ready."_L1},
    {"network_dialer_setting"_L1, "AutoConnectTimes"_L1, Number, "3"_L1, "How many times that is tried."_L1},
    {"network_dialer_setting"_L1, "autoRedial_enabled"_L1, Flag, "0"_L1, "Dials again after a connection broke off."_L1},
    {"network_dialer_setting"_L1, "autoRedial_time"_L1, Number, "5"_L1, "How many times that is tried. 0: not at all."_L1},
    {"network_dialer_setting"_L1, "autoRedial_startSec"_L1, Seconds, "5"_L1, "Wait before the first of these dials."_L1},
    {"network_dialer_setting"_L1, "autoRedial_afterSec"_L1, Seconds, "30"_L1, "Wait before each further one."_L1},
    {"network_dialer_setting"_L1, "autoDisconnect_enabled"_L1, Flag, "0"_L1, "Ends a connection over which nothing is carried."_L1},
    {"network_dialer_setting"_L1, "autoDisconnect_min"_L1, Number, "10"_L1, "After how many minutes without any traffic, 1 to 1440."_L1},
    {"network_dialer_setting"_L1, "pdp_context"_L1, Number, "1"_L1, "Which of the card's packet data contexts gets the profile's access point when dialling: 1, or 2 for cards that keep the first to themselves; the number to dial is then *99***2#. A network card always takes 1."_L1},
    {"network_dialer_setting"_L1, "lcp-echo-failure"_L1, Number, "4"_L1, "Option of pppd: so many unanswered echoes end the link. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "lcp-echo-interval"_L1, Seconds, "30"_L1, "Option of pppd: time between two echoes. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "lcp-max-configure"_L1, Number, ""_L1, "Option of pppd. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "lcp-max-failure"_L1, Number, ""_L1, "Option of pppd. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "ipcp-max-failure"_L1, Number, ""_L1, "Option of pppd. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "ipcp-max-configure"_L1, Number, ""_L1, "Option of pppd. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "mtu"_L1, Number, ""_L1, "Option of pppd: longest packet sent, octets. Empty: pppd's own."_L1},
    {"network_dialer_setting"_L1, "mru"_L1, Number, ""_L1, "Option of pppd: longest packet received, octets. Empty: pppd's own."_L1},

    {"network"_L1, "serchNetworkAlowSentAt_enabled"_L1, Flag, "0"_L1, "1: other commands may be sent to the card while a network search runs."_L1},

    {"plmn_display_setting"_L1, "isPNNAlwaysShow"_L1, Flag, "0"_L1, "The network's own name (PNN) is always shown, in brackets behind the provider's."_L1},
    {"plmn_display_setting"_L1, "isPNNNeverShow"_L1, Flag, "0"_L1, "The network's own name (PNN) is never shown. Goes over \"always\", here and below."_L1},
    {"plmn_display_setting"_L1, "isSPNAlwaysShow"_L1, Flag, "0"_L1, "The SIM's provider name (SPN) is always shown. With all four off the SIM itself says which."_L1},
    {"plmn_display_setting"_L1, "isSPNNeverShow"_L1, Flag, "0"_L1, "The SIM's provider name (SPN) is never shown."_L1},

    {"sms"_L1, "validPeriod"_L1, Number, "3"_L1, "How long the network keeps a message it cannot deliver: 0 is 12 hours, 1 a day, 2 a week, anything else the longest time."_L1},
    {"sms"_L1, "deliveryReport"_L1, Flag, "0"_L1, "Asks for a report when a message was delivered."_L1},
    {"sms"_L1, "concat-id"_L1, Number, "0"_L1, "Reference of the last long message. Written by the program."_L1},
    {"sms"_L1, "specialcode"_L1, Text, ""_L1, "National letters in messages: gsm7ex_turkish, gsm7ex_spanish or gsm7ex_portuguese."_L1},
    {"sms"_L1, "newsmsLocation"_L1, Number, "2"_L1, "Where new messages go: 0 as the card decides, 1 the SIM, 2 the computer, 3 the card."_L1},
    {"sms"_L1, "deleteSimSmsWhenFull"_L1, Flag, "0"_L1, "When the SIM is full, its oldest messages that were read go to the computer."_L1},
    {"sms"_L1, "newSmsNoticeShowWhenProgramStart"_L1, Flag, "1"_L1, "Unread messages are announced at start."_L1},
    {"sms"_L1, "class0SmsDlgSize"_L1, Number, "5"_L1, "Lines of text that the window of an immediate message shows before it scrolls, 3 to 30."_L1},
    {"sms"_L1, "deliveryReportBoxShow"_L1, Flag, "1"_L1, "The folder of delivery reports is shown."_L1},
    {"sms"_L1, "broadcastChannels"_L1, Text, ""_L1, "Channels of cell broadcast that are listened to, separated by commas."_L1},
    {"sms"_L1, "deliveryReportMsgDlgShow"_L1, Flag, "1"_L1, "A delivery report is announced when it comes."_L1},

    {"ussd"_L1, "contentTextRecordEnable"_L1, Flag, "0"_L1, "Codes are sent as plain text instead of hexadecimal."_L1},

    {"phonebook"_L1, "pccap_unlimted"_L1, Flag, "0"_L1, "The computer's contacts have no limit worth naming (100000)."_L1},
    {"phonebook"_L1, "pccap_maxnum"_L1, Number, "1000"_L1, "Most contacts on the computer."_L1},
    {"phonebook"_L1, "checkcontactsamegroup"_L1, Flag, "0"_L1, "The same name and number in another group is no duplicate."_L1},
    {"phonebook"_L1, "checkcontatc_exist"_L1, Flag, "1"_L1, "Duplicates are looked for when a contact is added."_L1},

    {"call"_L1, "enable"_L1, Flag, "0"_L1, "Voice calls, with a link to the card's voice port."_L1},
    {"call"_L1, "callwaitandheld_enabled"_L1, Flag, "0"_L1, "A second call may wait, and one may be held."_L1},
    {"call"_L1, "duration_format"_L1, Text, "hh:mm:ss"_L1, "How a call's duration is written. Seen after a restart."_L1},
    {"call"_L1, "pcm_name4capture"_L1, Text, "default"_L1, "Sound device of the microphone."_L1},
    {"call"_L1, "pcm_name4play"_L1, Text, "default"_L1, "Sound device of the loudspeaker."_L1},
    {"call"_L1, "play_rate"_L1, Number, "400"_L1, "Samples (8000 a second) collected before they are played: more is later, and smoother."_L1},
    {"call"_L1, "sort_enalbed"_L1, Flag, "1"_L1, "The call lists can be sorted by their columns."_L1},

    {"statistics_widget"_L1, "graphic_enabled"_L1, Flag, "1"_L1, "The traffic graph is shown."_L1},
    {"statistics_widget"_L1, "usage_statistic_enabled"_L1, Flag, "1"_L1, "The traffic of the month is counted. Seen after a restart."_L1},

    {"statistics"_L1, "quota_mb"_L1, Number, "0"_L1, "Volume of a billing period in MB (1 MB is 1,000,000 bytes). 0: none."_L1},
    {"statistics"_L1, "roaming_quota_mb"_L1, Number, "0"_L1, "The same for roaming. 0: what is carried in foreign networks counts with the rest."_L1},
    {"statistics"_L1, "billing_day"_L1, Number, "1"_L1, "Day of the month on which a billing period begins, 1 to 31. In a shorter month it is the last day."_L1},
    {"statistics"_L1, "warning_share"_L1, Number, "80"_L1, "Share of the volume, in percent, at which a warning is given once. 0: none."_L1},
    {"statistics"_L1, "end_at_quota"_L1, Flag, "0"_L1, "1: the connection is ended when the volume is used up."_L1},
    {"statistics"_L1, "days_kept"_L1, Number, "1100"_L1, "How many days are kept one by one, 62 at least. Older ones are kept as months."_L1},
    {"statistics"_L1, "history_records"_L1, Number, "5000"_L1, "How many connections the history keeps. The oldest go first."_L1},
    {"statistics"_L1, "graph_seconds"_L1, Number, "60"_L1, "What the traffic graph shows: the last 60 or 600 seconds."_L1},

    {"device"_L1, "at_port"_L1, File, ""_L1, "Command port of a serial, Bluetooth or emulated card, e.g. /dev/ttyS0. Empty: USB cards are searched."_L1},
    {"device"_L1, "modem_port"_L1, File, ""_L1, "Data port of that card."_L1},
    {"device"_L1, "voice_port"_L1, File, ""_L1, "Voice port of that card."_L1},
    {"device"_L1, "network_interface"_L1, Text, ""_L1, "Network interface of that card, e.g. wwan0. Taken only when Corva runs as root; otherwise the card's own USB interface is."_L1},
    {"device"_L1, "last_card"_L1, Text, ""_L1, "The USB card used last, tried first where there are several. Written by the program."_L1},
};
// clang-format on

struct TypeForm {
    ConfigType type;
    QLatin1StringView name;
    QLatin1StringView pattern;
};

constexpr TypeForm forms[] = {
    {Flag, "0 or 1"_L1, "[01]"_L1},
    {Number, "number"_L1, "-?[0-9]{1,9}"_L1},
    {Seconds, "seconds"_L1, "[0-9]{1,6}"_L1},
    {Pixels, "pixels"_L1, "-?[0-9]{1,5}"_L1},
    {Colour, "red,green,blue"_L1, "[0-9]{1,3},[0-9]{1,3},[0-9]{1,3}"_L1},
    {Text, "text"_L1, ".*"_L1},
    {File, "path"_L1, "/.*"_L1},
};

const TypeForm &formOf(ConfigType type)
{
    return forms[static_cast<int>(type)];
}

/// Text inside a cell of a table.
QString cell(QString text)
{
    return text.replace(u'|', "\\|"_L1);
}

QString row(const ConfigKey &key)
{
    const QString value = key.value.isEmpty() ? QString() : u'`' + key.value + u'`';
    return "| `%1` | %2 | %3 | %4 |\n"_L1.arg(key.name, typeName(key.type), cell(value), cell(key.meaning));
}

constexpr auto pageHead = R"(# Configuration keys

<!-- Made by `corva-configdoc`; edit src/shell/configkeys.cpp instead. -->

Corva keeps its switches in `Data/common-config.xml` beside the program: one element per section, in it one element
per key, in it the value. A key that is missing or empty counts as "not set", a switch then as off. Close Corva
before you edit the file: it writes the whole file whenever a setting changes. A file that cannot be read any more is
kept beside as `common-config.xml.broken-` with the time, and Corva starts with nothing set.
)"_L1;

} // namespace

std::span<const ConfigKey> configKeys()
{
    return keys;
}

QLatin1StringView typeName(ConfigType type)
{
    return formOf(type).name;
}

bool isValueOf(ConfigType type, const QString &value)
{
    const QRegularExpression form(QRegularExpression::anchoredPattern(formOf(type).pattern));
    return value.isEmpty() || form.match(value).hasMatch();
}

QByteArray shippedConfigXml()
{
    QDomDocument document;
    document.appendChild(
        document.createComment(u" Every key is explained in docs/manual/configuration-keys.md. "_s));
    QDomNode root = document.appendChild(document.createElement(u"common-config"_s));
    QDomElement section;
    for (const ConfigKey &key : keys) {
        if (section.tagName() != key.section)
            section = root.appendChild(document.createElement(key.section)).toElement();
        QDomNode element = section.appendChild(document.createElement(key.name));
        if (!key.value.isEmpty())
            element.appendChild(document.createTextNode(key.value));
    }
    return formatConfigXml(document);
}

QByteArray configKeysPage()
{
    QString page = pageHead;
    QLatin1StringView section;
    for (const ConfigKey &key : keys) {
        if (key.section != section) {
            section = key.section;
            page += "\n## %1\n\n| Key | Type | Shipped | Meaning |\n|---|---|---|---|\n"_L1.arg(section);
        }
        page += row(key);
    }
    return page.toUtf8();
}

} // namespace corva
