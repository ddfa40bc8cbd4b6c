// SPDX-License-Identifier: GPL-3.0-or-later
#include "reporttable.h"

#include <algorithm>
#include <array>

namespace corva
{

namespace
{

enum class Needs { Nothing, DeliveryReports, StkSmsState, Calls, CallsAndNoRingBack, NoOk };

struct Row {
    Report report;
    const char *text;
    Needs needs = Needs::Nothing;
};

constexpr auto rows = std::to_array<Row>({
    {Report::MessageStored, "+CMTI: "},
    {Report::MessageDelivered, "+CMT: "},
    {Report::DeliveryReport, "+CDSI: ", Needs::DeliveryReports},
    {Report::Class0Message, "+JCLAS"},
    {Report::StkMainMenu, "+JPSTM"},
    {Report::StkEnd, "+JEND"},
    {Report::StkSubMenu, "+JSTI"},
    {Report::StkInput, "+JGINP"},
    {Report::StkText, "+JDIST"},
    {Report::StkSmsState, "+JSMSR", Needs::StkSmsState},
    {Report::Ussd, "+CUSD:"},
    {Report::CellBroadcast, "+CBM"},
    {Report::RingBack, "RINGBACK\r\n", Needs::Calls},
    {Report::RingBackLocal, "RINGBACKLOCAL\r\n", Needs::CallsAndNoRingBack},
    {Report::Answer, "ANSWER\r\n", Needs::Calls},
    {Report::HangUp, "HANGUP:", Needs::Calls},
    {Report::Ring, "RING\r\n", Needs::Calls},
    {Report::StopRing, "STOPRING\r\n", Needs::Calls},
    {Report::CallFailed, "VOICE NO CARRIER", Needs::Calls},
    {Report::CallWaiting, "+CCWA:", Needs::NoOk}, // with "OK" it is the reply to the call-waiting query
    {Report::DataCallUp, "+JPDPACT: 1,1"},
    {Report::DataCallDown, "+JPDPACT: 1,0"},
    {Report::DataCallState3, "+JPDPACT: 1,3"},
    {Report::DataCallState2, "+JPDPACT: 1,2"},
});

bool isMet(Needs needs, const QString &text, const ReportConditions &conditions,
           const std::vector<Report> &found)
{
    switch (needs) {
    case Needs::Nothing: return true;
    case Needs::DeliveryReports: return conditions.deliveryReports;
    case Needs::StkSmsState: return conditions.stkSmsState;
    case Needs::Calls: return conditions.calls;
    case Needs::CallsAndNoRingBack:
        return conditions.calls && std::ranges::count(found, Report::RingBack) == 0;
    case Needs::NoOk: return !text.contains(QLatin1StringView("OK"));
    }
    return false;
}

} // namespace

std::vector<Report> findReports(const QString &text, const ReportConditions &conditions)
{
    std::vector<Report> found;
    for (const auto &[report, mark, needs] : rows) {
        if (text.contains(QLatin1StringView(mark)) && isMet(needs, text, conditions, found))
            found.push_back(report);
    }
    return found;
}

} // namespace corva
