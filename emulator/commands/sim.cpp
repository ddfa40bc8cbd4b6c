// SPDX-License-Identifier: GPL-3.0-or-later
// The SIM: 3GPP TS 27.007 5.6, 7.1, 7.4, 7.5, 8.3, 8.17 and 8.18; its files: 3GPP TS 31.102 4.2,
// TS 51.011 10.
#include "at/commandtable.h"
#include "at/errors.h"
#include "at/replies.h"

#include <array>

namespace cardemu
{

namespace
{

// Digits stand in files with the halves of each octet changed over, filled up with F.
QByteArray swappedDigits(QByteArray digits)
{
    if (digits.size() % 2 == 1)
        digits += 'F';
    for (qsizetype i = 0; i + 1 < digits.size(); i += 2)
        std::swap(digits[i], digits[i + 1]);
    return digits;
}

QByteArray iccidFile(const CardState &state)
{
    return swappedDigits(state.sim.iccid.toLatin1());
}

// A length octet, then the digits behind a nibble that gives their parity.
QByteArray imsiFile(const CardState &state)
{
    const QByteArray digits = state.sim.imsi.toLatin1();
    const QByteArray swapped = swappedDigits((digits.size() % 2 == 1 ? '9' : '1') + digits);
    return (QByteArray::number(swapped.size() / 2, 16).rightJustified(2, '0') + swapped)
        .leftJustified(18, 'F')
        .toUpper();
}

// The display condition, then the name in 16 octets filled up with FF.
QByteArray providerFile(const CardState &state)
{
    const QByteArray name = toWire(state.sim.provider, Charset::Gsm).left(16).toHex().toUpper();
    return "01" + name.leftJustified(32, 'F');
}

// The length of the MNC is in the last octet.
QByteArray administrativeFile(const CardState &state)
{
    const Operator *home = nullptr;
    for (const Operator &candidate : state.network.operators) {
        if (state.sim.imsi.startsWith(candidate.plmn))
            home = &candidate;
    }
    return home != nullptr && home->plmn.size() == 6 ? "00000003" : "00000002";
}

struct SimFile {
    int id;
    QByteArray (*content)(const CardState &);
};

constexpr std::array files = {
    SimFile{0x2FE2, iccidFile},
    SimFile{0x6F07, imsiFile},
    SimFile{0x6F46, providerFile},
    SimFile{0x6FAD, administrativeFile},
};

constexpr int readBinary = 176;

// Status words as two decimal numbers: 144,0 done; 148,4 no such file; 107,0 offset, 103,0 length beyond its
// end; 109,0 no such instruction.
Answer restrictedAccess(const Request &request)
{
    const Arguments &arguments = request.arguments();
    const auto command = arguments.number(0);
    const auto id = arguments.number(1, 0, 0, 0xFFFF);
    const auto high = arguments.number(2, 0, 0, 255);
    const auto low = arguments.number(3, 0, 0, 255);
    const auto length = arguments.number(4, 0, 0, 255);
    if (!command || !id || !high || !low || !length)
        return cmeError(cme::incorrectParameters);
    if (*command != readBinary)
        return ok(QByteArray("+CRSM: 109,0"));
    const auto *const file = std::ranges::find(files, *id, &SimFile::id);
    if (file == files.end())
        return ok(QByteArray("+CRSM: 148,4"));
    const QByteArray octets = QByteArray::fromHex(file->content(request.state()));
    const int offset = *high * 256 + *low;
    if (offset >= octets.size())
        return ok(QByteArray("+CRSM: 107,0"));
    const qsizetype wanted = *length == 0 ? octets.size() - offset : *length;
    if (offset + wanted > octets.size())
        return ok(QByteArray("+CRSM: 103,0"));
    return ok("+CRSM: 144,0,\"" + octets.mid(offset, wanted).toHex().toUpper() + '"');
}

Answer imsi(const Request &request)
{
    return ok(request.state().sim.imsi.toLatin1());
}

Answer iccid(const Request &request)
{
    return ok(request.command.name + ": " + request.state().sim.iccid.toLatin1());
}

Answer ownNumber(const Request &request)
{
    const QString number = request.state().sim.number;
    if (number.isEmpty())
        return ok();
    return ok("+CNUM: \"\",\"" + number.toLatin1() + "\"," + numberType(number));
}

// A PIN that is wanted is an answer, not an error: only a SIM that does not answer at all is refused.
Answer readPin(const Request &request)
{
    const auto refusal = request.card.simError();
    if (refusal && *refusal != cme::simPinRequired && *refusal != cme::simPukRequired)
        return cmeError(*refusal);
    return ok(request.command.name + ": " + request.card.pinState());
}

Answer givePin(const Request &request)
{
    const auto refusal = request.card.simError();
    if (refusal && *refusal != cme::simPinRequired && *refusal != cme::simPukRequired)
        return cmeError(*refusal);
    const Arguments &arguments = request.arguments();
    if (arguments.count() == 2)
        return request.card.enterPuk(arguments.text(0), arguments.text(1));
    return arguments.count() == 1 ? request.card.enterPin(arguments.text(0))
                                  : cmeError(cme::incorrectParameters);
}

// The facilities other than the PIN are there to be asked after; they are off, and stay so.
constexpr std::array otherFacilities = {"FD", "PN", "PU", "PP", "PC", "PS"};

Answer facility(const Request &request)
{
    const Arguments &arguments = request.arguments();
    const QByteArray name = arguments.text(0);
    const auto mode = arguments.number(1, -1, 0, 2);
    const bool isPinLock = name == "SC";
    const bool isOtherFacility =
        std::ranges::any_of(otherFacilities, [&name](const char *other) { return name == other; });
    if (!mode || (!isPinLock && !isOtherFacility))
        return cmeError(cme::incorrectParameters);
    if (*mode == 2)
        return ok(QByteArray("+CLCK: ") + (isPinLock && request.state().sim.pinLock ? '1' : '0'));
    return isPinLock ? request.card.setPinLock(*mode == 1, arguments.text(2)) : cmeError(cme::notAllowed);
}

Answer changePassword(const Request &request)
{
    const Arguments &arguments = request.arguments();
    if (arguments.count() != 3 || arguments.text(0) != "SC")
        return cmeError(cme::incorrectParameters);
    return request.card.changePin(arguments.text(1), arguments.text(2));
}

Answer attempts(const Request &request)
{
    const Sim &sim = request.state().sim;
    if (sim.condition != SimCondition::Ready)
        return cmeError(*request.card.simError());
    return ok("+JPINPUK: " + QByteArray::number(sim.pinAttempts) + ',' + QByteArray::number(sim.pukAttempts));
}

struct AttemptsQuery {
    const char *apdu;
    int Sim::*attempts;
};

// VERIFY and UNBLOCK without a secret only ask for the attempts left. 3GPP TS 31.101 11.1.9, 11.1.13.
constexpr std::array attemptsQueries = {
    AttemptsQuery{"0020000100", &Sim::pinAttempts},
    AttemptsQuery{"002C000100", &Sim::pukAttempts},
};

// Status words: 63CX for X attempts left, 6983 for none, 6D00 for what this SIM does not know.
QByteArray statusWord(const Sim &sim, const QByteArray &apdu)
{
    for (const AttemptsQuery &query : attemptsQueries) {
        if (apdu.toUpper() != query.apdu)
            continue;
        const int left = sim.*query.attempts;
        return left == 0 ? "6983" : "63C" + QByteArray::number(left, 16).toUpper();
    }
    return "6D00";
}

Answer genericAccess(const Request &request)
{
    const Sim &sim = request.state().sim;
    const QByteArray apdu = request.arguments().text(1);
    if (sim.condition != SimCondition::Ready)
        return cmeError(*request.card.simError());
    if (apdu.isEmpty() || request.arguments().number(0) != apdu.size())
        return cmeError(cme::incorrectParameters);
    return ok("+CSIM: 4,\"" + statusWord(sim, apdu) + '"');
}

Answer isUsim(const Request &request)
{
    const Sim &sim = request.state().sim;
    if (sim.condition != SimCondition::Ready)
        return cmeError(*request.card.simError());
    return ok(QByteArray("+JUSIM: ") + (sim.type == SimType::Usim ? '1' : '0'));
}

constexpr std::array table = {
    CommandRow{"+CIMI", Form::Exec, everyFamily, Needs::Sim, imsi},
    CommandRow{"+CCID", Form::Exec, gsmLike, Needs::Sim, iccid},
    CommandRow{"+CCID", Form::Read, gsmLike, Needs::Sim, iccid},
    CommandRow{"^ICCID", Form::Read, everyFamily, Needs::Sim, iccid},
    CommandRow{"+CNUM", Form::Exec, everyFamily, Needs::Sim, ownNumber},
    CommandRow{"+CRSM", Form::Set, everyFamily, Needs::Sim, restrictedAccess},
    CommandRow{"+CSIM", Form::Set, gsmLike, Needs::Nothing, genericAccess},
    CommandRow{"+CPIN", Form::Read, gsmLike, Needs::Nothing, readPin},
    CommandRow{"+CPIN", Form::Set, gsmLike, Needs::Nothing, givePin},
    CommandRow{"^CPIN", Form::Read, everyFamily, Needs::Nothing, readPin},
    CommandRow{"^CPIN", Form::Set, everyFamily, Needs::Nothing, givePin},
    CommandRow{"+CLCK", Form::Set, everyFamily, Needs::Sim, facility},
    CommandRow{"+CLCK", Form::Test, everyFamily, Needs::Nothing,
               "+CLCK: (\"SC\",\"FD\",\"PN\",\"PU\",\"PP\",\"PC\",\"PS\")"},
    CommandRow{"+CPWD", Form::Set, everyFamily, Needs::Sim, changePassword},
    CommandRow{"+CPWD", Form::Test, everyFamily, Needs::Nothing, "+CPWD: (\"SC\",8)"},
    CommandRow{"+JPINPUK", Form::Test, gsmLike, Needs::Nothing, attempts},
    CommandRow{"+JUSIM", Form::Test, gsmLike, Needs::Nothing, isUsim},
};

} // namespace

std::span<const CommandRow> simCommands()
{
    return table;
}

} // namespace cardemu
