// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/controltable.h"

#include "card/card.h"
#include "card/cardfields.h"
#include "control/outcomes.h"
#include "emulatedcard.h"

#include <algorithm>
#include <limits>

namespace cardemu
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace
{

Outcome showState(EmulatedCard &emulated, const QJsonObject &)
{
    QJsonObject state = writeFields(emulated.card().state(), cardFields());
    QJsonArray faults;
    for (const Fault &fault : emulated.card().faults().faults())
        faults += writeFields(fault, faultFields());
    state[u"faults"_s] = faults;
    state[u"silent"_s] = emulated.card().isSilent();
    state[u"plugged"_s] = emulated.isPlugged();
    state[u"ports"_s] = emulated.portsAsJson();
    state[u"registration"_s] = emulated.card().registration();
    state[u"pinState"_s] = QString::fromLatin1(emulated.card().pinState());
    state[u"clock"_s] = emulated.scheduler().now().toString(Qt::ISODateWithMs);
    return done({{u"state"_s, state}});
}

Outcome showLog(EmulatedCard &emulated, const QJsonObject &values)
{
    const QJsonArray entries =
        emulated.log().newest(values[u"last"_s].toInt(std::numeric_limits<int>::max()));
    if (values[u"clear"_s].toBool())
        emulated.log().clear();
    return done({{u"log"_s, entries}});
}

// "radio.rssi" 12, and deeper: "messages.stores.SM.capacity" 5.
Outcome setValue(EmulatedCard &emulated, const QJsonObject &values)
{
    QStringList path = values[u"key"_s].toString().split(u'.');
    const QString section = path.takeFirst();
    const auto &fields = cardFields();
    const auto field = std::ranges::find(fields, section, &Field<CardState>::key);
    if (field == fields.end())
        return refused(section + u": unknown key"_s);
    QJsonValue value = values[u"value"_s];
    while (!path.isEmpty())
        value = QJsonObject{{path.takeLast(), value}};
    CardState changed = emulated.card().state();
    if (const Complaint complaint = field->read(changed, value); !complaint.isEmpty())
        return refused(section + (complaint.startsWith(u'.') ? QString() : u": "_s) + complaint);
    emulated.card().state() = changed;
    emulated.card().review();
    return done();
}

Outcome changeSignal(EmulatedCard &emulated, const QJsonObject &values)
{
    const Complaint complaint = setState(emulated, u"radio"_s, values);
    if (complaint.isEmpty())
        emulated.card().signalChanged();
    return outcome(complaint);
}

Outcome changeRoaming(EmulatedCard &emulated, const QJsonObject &values)
{
    return outcome(setState(emulated, u"network"_s, {{u"roaming"_s, values[u"on"_s]}}));
}

Outcome changeRegistration(EmulatedCard &emulated, const QJsonObject &values)
{
    return outcome(setState(emulated, u"network"_s, {{u"service"_s, values[u"service"_s]}}));
}

// An operator that is not in the list is added to it, one that is gets the new names.
Outcome changeOperator(EmulatedCard &emulated, const QJsonObject &values)
{
    const QString plmn = values[u"plmn"_s].toString();
    QList<Operator> &operators = emulated.card().state().network.operators;
    if (const Complaint complaint = setState(emulated, u"network"_s, {{u"current"_s, plmn}});
        !complaint.isEmpty())
        return refused(complaint);
    auto found = std::ranges::find(operators, plmn, &Operator::plmn);
    if (found == operators.end())
        found = operators.insert(operators.end(), Operator{plmn, plmn, plmn});
    found->longName = values[u"long"_s].toString(found->longName);
    found->shortName = values[u"short"_s].toString(found->shortName);
    emulated.card().review();
    return done();
}

Outcome changePin(EmulatedCard &emulated, const QJsonObject &values)
{
    return outcome(setState(emulated, u"sim"_s, values));
}

Outcome changeSim(EmulatedCard &emulated, const QJsonObject &values)
{
    if (const Complaint complaint = setState(emulated, u"sim"_s, without(values, {u"ms"_s}));
        !complaint.isEmpty())
        return refused(complaint);
    emulated.card().setSimCondition(emulated.card().state().sim.condition,
                                    milliseconds(values[u"ms"_s].toInt()));
    return done();
}

Outcome changeLine(EmulatedCard &emulated, const QJsonObject &values)
{
    return outcome(setState(emulated, u"line"_s, values));
}

Outcome changeDelay(EmulatedCard &emulated, const QJsonObject &values)
{
    const QJsonObject delays{{values[u"match"_s].toString(), values[u"ms"_s]}};
    return outcome(setState(emulated, u"line"_s, {{u"delays"_s, delays}}));
}

Outcome changeDial(EmulatedCard &emulated, const QJsonObject &values)
{
    const QString result = values[u"result"_s].toString().toUpper().replace(u'-', u' ');
    QJsonObject line{{u"dialResult"_s, result}};
    if (values.contains(u"ms"_s))
        line[u"dialDelay"_s] = values[u"ms"_s];
    return outcome(setState(emulated, u"line"_s, line));
}

Outcome dropData(EmulatedCard &emulated, const QJsonObject &)
{
    return outcome(emulated.dropData());
}

Outcome sendReport(EmulatedCard &emulated, const QJsonObject &values)
{
    const QByteArray line = "\r\n" + values[u"text"_s].toString().toUtf8() + "\r\n";
    return outcome(emulated.sendRaw(values[u"port"_s].toString(u"at"_s), line));
}

Outcome sendBytes(EmulatedCard &emulated, const QJsonObject &values)
{
    const QByteArray digits = values[u"hex"_s].toString().toLatin1();
    const QByteArray bytes =
        digits.isEmpty() ? values[u"text"_s].toString().toUtf8() : QByteArray::fromHex(digits);
    return outcome(emulated.sendRaw(values[u"port"_s].toString(u"at"_s), bytes));
}

Outcome ring(EmulatedCard &emulated, const QJsonObject &values)
{
    if (values.contains(u"interval"_s)) {
        const Complaint complaint =
            setState(emulated, u"line"_s, {{u"ringInterval"_s, values[u"interval"_s]}});
        if (!complaint.isEmpty())
            return refused(complaint);
    }
    emulated.card().ring(values[u"number"_s].toString(u"+12025550199"_s));
    return done();
}

Outcome hangUp(EmulatedCard &emulated, const QJsonObject &)
{
    emulated.card().hangUp();
    return done();
}

// 3GPP TS 27.007 7.15: "+CUSD: <m>,<str>,<dcs>".
Outcome sendUssd(EmulatedCard &emulated, const QJsonObject &values)
{
    const QByteArray text = values[u"text"_s].toString().toUtf8();
    emulated.card().report("+CUSD: " + QByteArray::number(values[u"mode"_s].toInt(0)) + ",\"" + text + "\"," +
                           QByteArray::number(values[u"dcs"_s].toInt(15)));
    return done();
}

Outcome reportDataCall(EmulatedCard &emulated, const QJsonObject &values)
{
    const int state = values[u"state"_s].toInt(-1);
    if (state < 0 || state > 3)
        return refused(u"state: must be a whole number from 0 to 3"_s);
    emulated.card().report("+JPDPACT: 1," + QByteArray::number(state));
    return done();
}

Outcome addFault(EmulatedCard &emulated, const QJsonObject &values)
{
    Fault fault;
    const Complaint complaint = readFields(fault, values, faultFields());
    if (complaint.isEmpty())
        emulated.card().faults().add(fault);
    return outcome(complaint);
}

Outcome clearFaults(EmulatedCard &emulated, const QJsonObject &)
{
    emulated.card().faults().clear();
    emulated.card().speak();
    return done();
}

Outcome fallSilent(EmulatedCard &emulated, const QJsonObject &values)
{
    const int ms = values[u"ms"_s].toInt();
    if (ms < 0)
        return refused(u"ms: must not be negative"_s);
    emulated.card().fallSilent(milliseconds(ms));
    return done();
}

Outcome speak(EmulatedCard &emulated, const QJsonObject &)
{
    emulated.card().speak();
    return done();
}

Outcome unplug(EmulatedCard &emulated, const QJsonObject &)
{
    if (!emulated.isPlugged())
        return refused(u"the card is not plugged in"_s);
    emulated.unplug();
    return done();
}

Outcome plug(EmulatedCard &emulated, const QJsonObject &values)
{
    const Complaint complaint = emulated.plug(
        {values[u"at"_s].toString(), values[u"modem"_s].toString(), values[u"voice"_s].toString()});
    return {{{u"ports"_s, emulated.portsAsJson()}}, complaint};
}

Outcome restart(EmulatedCard &emulated, const QJsonObject &)
{
    emulated.card().powerUp();
    return done();
}

Outcome moveClock(EmulatedCard &emulated, const QJsonObject &values)
{
    if (values.contains(u"time"_s)) {
        const QDateTime time = QDateTime::fromString(values[u"time"_s].toString(), Qt::ISODateWithMs);
        if (!time.isValid())
            return refused(u"time: must be like 2026-02-28T12:00:00Z"_s);
        emulated.scheduler().setNow(time);
    }
    constexpr int day = 86400000;
    const int ms = values[u"advance"_s].toInt();
    if (ms < 0 || ms > day)
        return refused(u"advance: must be a whole number from 0 to %1"_s.arg(day));
    emulated.scheduler().advance(milliseconds(ms));
    return done({{u"clock"_s, emulated.scheduler().now().toString(Qt::ISODateWithMs)}});
}

Complaint checkType(const Parameter &parameter, const QJsonValue &value)
{
    switch (parameter.type) {
    case ValueType::Text: return value.isString() ? Complaint() : u"must be a text"_s;
    case ValueType::Flag: return value.isBool() ? Complaint() : u"must be true or false"_s;
    case ValueType::Number: {
        const double number = value.toDouble(0.5);
        return number == static_cast<int>(number) ? Complaint() : u"must be a whole number"_s;
    }
    case ValueType::Free: break;
    }
    return {};
}

Complaint checkValues(const ControlRow &row, const QJsonObject &values)
{
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        const auto parameter = std::ranges::find(row.parameters, entry.key(), &Parameter::name);
        if (parameter == row.parameters.end())
            return entry.key() + u": unknown key"_s;
        if (const Complaint complaint = checkType(*parameter, entry.value()); !complaint.isEmpty())
            return entry.key() + u": "_s + complaint;
    }
    for (const Parameter &parameter : row.parameters) {
        if (parameter.required && !values.contains(parameter.name))
            return parameter.name + u": is missing"_s;
    }
    return {};
}

Outcome runChecked(EmulatedCard &emulated, const QJsonObject &request)
{
    const QString name = request[u"command"_s].toString();
    const ControlRow *row = findControl(name);
    if (row == nullptr)
        return refused(name.isEmpty() ? u"command: is missing"_s
                                      : u"unknown command \"%1\""_s.arg(name.left(100)));
    const QJsonObject values = without(request, {u"command"_s, u"id"_s});
    const Complaint complaint = checkValues(*row, values);
    return complaint.isEmpty() ? row->run(emulated, values) : refused(complaint);
}

const std::vector<ControlRow> &cardControls()
{
    using enum ValueType;
    static const std::vector<ControlRow> table{
        {u"show"_s, {}, u"the whole state"_s, showState},
        {u"log"_s, {{u"last"_s, Number}, {u"clear"_s, Flag}}, u"what was received and sent"_s, showLog},
        {u"set"_s,
         {{u"key"_s, Text, true}, {u"value"_s, Free, true}},
         u"one value of the state, by its profile key (radio.rssi)"_s,
         setValue},
        {u"signal"_s,
         {{u"rssi"_s, Free}, {u"bitErrors"_s, Free}, {u"ecio"_s, Free}, {u"rscp"_s, Free}, {u"evdo"_s, Free}},
         u"strength and quality of the signal"_s,
         changeSignal},
        {u"roaming"_s, {{u"on"_s, Flag, true}}, u"registered at home or abroad"_s, changeRoaming},
        {u"register"_s,
         {{u"service"_s, Text, true}},
         u"full, restricted, searching, denied, unknown or none"_s,
         changeRegistration},
        {u"operator"_s,
         {{u"plmn"_s, Text, true}, {u"long"_s, Text}, {u"short"_s, Text}},
         u"the serving operator"_s,
         changeOperator},
        {u"pin"_s,
         {{u"pin"_s, Free},
          {u"puk"_s, Free},
          {u"pinLock"_s, Free},
          {u"verified"_s, Free},
          {u"pinAttempts"_s, Free},
          {u"pukAttempts"_s, Free}},
         u"the PIN, whether it is asked, and the attempts left"_s,
         changePin},
        {u"sim"_s,
         {{u"condition"_s, Free, true}, {u"ms"_s, Number}},
         u"ready, absent, busy or failure; with ms ready again after that"_s,
         changeSim},
        {u"pace"_s,
         {{u"bytesPerSecond"_s, Free}, {u"delay"_s, Free}},
         u"speed of the ports, and ms that every command takes"_s,
         changeLine},
        {u"delay"_s,
         {{u"match"_s, Text, true}, {u"ms"_s, Number, true}},
         u"ms that commands with this beginning take"_s,
         changeDelay},
        {u"dial-result"_s,
         {{u"result"_s, Text, true}, {u"ms"_s, Number}},
         u"what ATD answers, after ms: connect, no-carrier, busy, no-answer, no-dialtone, error, silence, "
         "connect-then-silence"_s,
         changeDial},
        {u"drop-data"_s, {}, u"the network ends the data call"_s, dropData},
        {u"report"_s,
         {{u"text"_s, Text, true}, {u"port"_s, Text}},
         u"a line that nobody asked for"_s,
         sendReport},
        {u"raw"_s,
         {{u"text"_s, Text}, {u"hex"_s, Text}, {u"port"_s, Text}},
         u"bytes as they stand, as text or as hex digits"_s,
         sendBytes},
        {u"ring"_s, {{u"number"_s, Text}, {u"interval"_s, Number}}, u"a call comes in"_s, ring},
        {u"hangup"_s, {}, u"the caller gives up, or the call ends"_s, hangUp},
        {u"ussd"_s,
         {{u"text"_s, Text, true}, {u"mode"_s, Number}, {u"dcs"_s, Number}},
         u"a USSD text comes in"_s,
         sendUssd},
        {u"datacall"_s,
         {{u"state"_s, Number, true}},
         u"the card reports its data call's state, 0 to 3"_s,
         reportDataCall},
        {u"fault"_s,
         {{u"kind"_s, Free, true},
          {u"match"_s, Free},
          {u"count"_s, Free},
          {u"ms"_s, Free},
          {u"at"_s, Free},
          {u"bytes"_s, Free},
          {u"text"_s, Free},
          {u"code"_s, Free}},
         u"noreply, late, garbage, cut, interleave, truncate, long, echostorm or refuse"_s,
         addFault},
        {u"clear"_s, {}, u"no more faults, no more silence"_s, clearFaults},
        {u"silence"_s,
         {{u"ms"_s, Number}},
         u"the card hears and says nothing, until \"speak\" or for ms"_s,
         fallSilent},
        {u"speak"_s, {}, u"the silence ends"_s, speak},
        {u"unplug"_s, {}, u"the ports are gone"_s, unplug},
        {u"plug"_s,
         {{u"at"_s, Text}, {u"modem"_s, Text}, {u"voice"_s, Text}},
         u"the ports are back, under other names where given"_s,
         plug},
        {u"restart"_s, {}, u"power off and on, the ports stay"_s, restart},
        {u"clock"_s,
         {{u"time"_s, Text}, {u"advance"_s, Number}},
         u"set the time, or move it on by ms"_s,
         moveClock},
    };
    return table;
}

} // namespace

const std::vector<ControlRow> &controlTable()
{
    static const std::vector<ControlRow> table = [] {
        std::vector<ControlRow> all = cardControls();
        all.insert(all.end(), messageControls().begin(), messageControls().end());
        return all;
    }();
    return table;
}

const ControlRow *findControl(const QString &name)
{
    const auto &table = controlTable();
    const auto row = std::ranges::find(table, name, &ControlRow::name);
    return row == table.end() ? nullptr : &*row;
}

QJsonObject runControlCommand(EmulatedCard &card, const QJsonObject &request)
{
    const Outcome outcome = runChecked(card, request);
    QJsonObject answer = outcome.complaint.isEmpty() ? outcome.values : QJsonObject();
    answer[u"ok"_s] = outcome.complaint.isEmpty();
    if (!outcome.complaint.isEmpty())
        answer[u"error"_s] = outcome.complaint;
    if (request.contains(u"id"_s))
        answer[u"id"_s] = request[u"id"_s];
    return answer;
}

} // namespace cardemu
