// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace corva
{

/// The card's unsolicited reports, in the order in which a text is scanned for them.
enum class Report {
    MessageStored,    ///< "+CMTI: "
    MessageDelivered, ///< "+CMT: "
    DeliveryReport,   ///< "+CDSI: "
    Class0Message,    ///< "+JCLAS"
    StkMainMenu,      ///< "+JPSTM"
    StkEnd,           ///< "+JEND"
    StkSubMenu,       ///< "+JSTI"
    StkInput,         ///< "+JGINP"
    StkText,          ///< "+JDIST"
    StkSmsState,      ///< "+JSMSR"
    Ussd,             ///< "+CUSD:"
    CellBroadcast,    ///< "+CBM"
    RingBack,         ///< "RINGBACK\r\n"
    RingBackLocal,    ///< "RINGBACKLOCAL\r\n"
    Answer,           ///< "ANSWER\r\n"
    HangUp,           ///< "HANGUP:"
    Ring,             ///< "RING\r\n"
    StopRing,         ///< "STOPRING\r\n"
    CallFailed,       ///< "VOICE NO CARRIER"
    CallWaiting,      ///< "+CCWA:"
    DataCallUp,       ///< "+JPDPACT: 1,1"
    DataCallDown,     ///< "+JPDPACT: 1,0"
    DataCallState3,   ///< "+JPDPACT: 1,3"
    DataCallState2,   ///< "+JPDPACT: 1,2"
};

/// What decides, beside the text, whether a report is acted on.
struct ReportConditions {
    bool deliveryReports = false; ///< the message settings ask for them and the owner is ready
    bool stkSmsState = false;     ///< the customisation asks for it
    bool calls = false;           ///< key "enable" of section "call"
};

/// Every report in `text`, each once, in the table's order. A report is a substring anywhere in the text:
/// overlaps
/// ("STOPRING" rings too, "NO ANSWER" answers too) are wanted.
std::vector<Report> findReports(const QString &text, const ReportConditions &conditions);

} // namespace corva
