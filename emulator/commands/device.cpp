// SPDX-License-Identifier: GPL-3.0-or-later
// The card as a device: 3GPP TS 27.007 8.1, 8.2, 8.4 and 8.15.
#include "at/commandtable.h"
#include "at/errors.h"

#include <array>

namespace cardemu
{

namespace
{

using namespace Qt::StringLiterals;

Answer readFunctionality(const Request &request)
{
    return ok("+CFUN: " + QByteArray::number(request.state().radio.functionality));
}

Answer setFunctionality(const Request &request)
{
    const auto level = request.arguments().number(0, 1, 0, 4);
    const auto restart = request.arguments().number(1, 0, 0, 1);
    if (!level || !restart || *level == 2 || *level == 3)
        return cmeError(cme::incorrectParameters);
    request.card.setFunctionality(*level);
    if (*restart == 1)
        request.card.restartSoon();
    return ok();
}

// 0 ready, 3 ringing, 4 in a call.
Answer activity(const Request &request)
{
    constexpr std::array statuses = {"+CPAS: 0", "+CPAS: 3", "+CPAS: 4"};
    return ok(QByteArray(statuses[static_cast<size_t>(request.state().call.state)]));
}

Answer readClock(const Request &request)
{
    return ok("+CCLK: \"" + request.card.timeText() + '"');
}

Answer setClock(const Request &request)
{
    const QString text = QString::fromLatin1(request.arguments().text(0));
    QDateTime time = QDateTime::fromString(u"20"_s + text.left(17), u"yyyy/MM/dd,hh:mm:ss"_s);
    if (!time.isValid())
        return cmeError(cme::incorrectParameters);
    time.setTimeSpec(Qt::UTC);
    const int quarters = text.size() > 17 ? text.mid(17).toInt() : request.state().network.timeZone;
    request.card.scheduler().setNow(time.addSecs(-quarters * 15LL * 60));
    return ok();
}

constexpr std::array table = {
    CommandRow{"+CFUN", Form::Read, everyFamily, Needs::Nothing, readFunctionality},
    CommandRow{"+CFUN", Form::Set, everyFamily, Needs::Nothing, setFunctionality},
    CommandRow{"+CFUN", Form::Test, everyFamily, Needs::Nothing, "+CFUN: (0,1,4),(0,1)"},
    CommandRow{"+CPAS", Form::Exec, everyFamily, Needs::Nothing, activity},
    CommandRow{"+CPAS", Form::Test, everyFamily, Needs::Nothing, "+CPAS: (0,3,4)"},
    CommandRow{"+CBC", Form::Exec, everyFamily, Needs::Nothing, "+CBC: 0,100"},
    CommandRow{"+CBC", Form::Test, everyFamily, Needs::Nothing, "+CBC: (0),(0-100)"},
    CommandRow{"+CCLK", Form::Read, everyFamily, Needs::Nothing, readClock},
    CommandRow{"+CCLK", Form::Set, everyFamily, Needs::Nothing, setClock},
};

} // namespace

std::span<const CommandRow> deviceCommands()
{
    return table;
}

} // namespace cardemu
