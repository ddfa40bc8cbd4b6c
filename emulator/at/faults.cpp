// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/faults.h"

#include <array>

namespace cardemu
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace
{

// Bytes as a noisy line makes them, the same each time. XON and XOFF are not among them: they would stop a
// client's own output for good.
constexpr char noise[] = "\x7f\x00\xff}#\r\x80\xc3(\x1b[K\x9d~\n\xfe";

constexpr std::array kindNames = {
    Choice<FaultKind>{FaultKind::NoReply, u"noreply"},
    Choice<FaultKind>{FaultKind::Late, u"late"},
    Choice<FaultKind>{FaultKind::Garbage, u"garbage"},
    Choice<FaultKind>{FaultKind::Cut, u"cut"},
    Choice<FaultKind>{FaultKind::Interleave, u"interleave"},
    Choice<FaultKind>{FaultKind::Truncate, u"truncate"},
    Choice<FaultKind>{FaultKind::Long, u"long"},
    Choice<FaultKind>{FaultKind::EchoStorm, u"echostorm"},
    Choice<FaultKind>{FaultKind::Refuse, u"refuse"},
};

qsizetype place(const Fault &fault, const Reply &reply, qsizetype otherwise)
{
    return std::min<qsizetype>(fault.at < 0 ? otherwise : fault.at, reply.bytes.size());
}

void noReply(const Fault &, Reply &reply)
{
    reply.bytes.clear();
}

void late(const Fault &fault, Reply &reply)
{
    reply.before += milliseconds(fault.ms);
}

void garbage(const Fault &fault, Reply &reply)
{
    insert(reply, 0, fault.text.isEmpty() ? QByteArray(noise, sizeof noise - 1) : fault.text.toLatin1());
}

void cut(const Fault &fault, Reply &reply)
{
    reply.cutAt = place(fault, reply, reply.bytes.size() / 2);
    reply.pause = milliseconds(fault.ms);
}

void interleave(const Fault &fault, Reply &reply)
{
    insert(reply, place(fault, reply, reply.finalAt), "\r\n" + fault.text.toUtf8() + "\r\n");
}

void truncate(const Fault &fault, Reply &reply)
{
    reply.bytes.truncate(place(fault, reply, reply.bytes.size() / 2));
}

// Lines of 62 characters and their end, so that the text is as long as asked to the byte.
void makeLong(const Fault &fault, Reply &reply)
{
    const QByteArray line = QByteArray(62, 'x') + "\r\n";
    QByteArray filling = line.repeated(fault.bytes / line.size());
    filling += QByteArray(fault.bytes - filling.size(), 'x');
    insert(reply, reply.finalAt, filling);
}

void echoStorm(const Fault &fault, Reply &reply)
{
    constexpr qsizetype most = 4000000;
    insert(reply, 0, reply.echo.repeated(std::min(qsizetype(fault.bytes), most / reply.echo.size())));
}

struct Effect {
    FaultKind kind;
    void (*apply)(const Fault &, Reply &);
};

// In this order, whatever the order of asking: first what the reply holds, then how it travels.
constexpr std::array effects = {
    Effect{FaultKind::Long, makeLong},     Effect{FaultKind::Interleave, interleave},
    Effect{FaultKind::Garbage, garbage},   Effect{FaultKind::EchoStorm, echoStorm},
    Effect{FaultKind::Truncate, truncate}, Effect{FaultKind::NoReply, noReply},
    Effect{FaultKind::Cut, cut},           Effect{FaultKind::Late, late},
};

} // namespace

bool beginsWith(const Command &command, const QString &text)
{
    QByteArray wanted = text.toUtf8().toUpper();
    if (wanted.startsWith("AT"))
        wanted.remove(0, 2);
    return command.text.toUpper().startsWith(wanted);
}

void insert(Reply &reply, qsizetype at, const QByteArray &bytes)
{
    reply.bytes.insert(at, bytes);
    if (at <= reply.finalAt)
        reply.finalAt += bytes.size();
}

const Fields<Fault> &faultFields()
{
    static const Fields<Fault> fields{
        choiceField<Fault, FaultKind>(u"kind"_s, &Fault::kind, kindNames),
        textField(u"match"_s, &Fault::match),
        numberField(u"count"_s, &Fault::count, 0, 1000000),
        numberField(u"ms"_s, &Fault::ms, 0, 3600000),
        numberField(u"at"_s, &Fault::at, -1, 1000000),
        numberField(u"bytes"_s, &Fault::bytes, 0, 4000000),
        textField(u"text"_s, &Fault::text),
        numberField(u"code"_s, &Fault::code, -1, 999),
    };
    return fields;
}

std::optional<Fault> FaultList::takeRefusal(const Command &command)
{
    for (qsizetype i = 0; i < m_faults.size(); ++i) {
        if (m_faults[i].kind == FaultKind::Refuse && m_faults[i].fits(command)) {
            Fault refusal = m_faults[i];
            useUp(i);
            return refusal;
        }
    }
    return std::nullopt;
}

void FaultList::apply(const std::vector<Command> &line, Reply &reply)
{
    for (const Effect &effect : effects) {
        for (qsizetype i = m_faults.size() - 1; i >= 0; --i) {
            const Fault fault = m_faults[i];
            const bool fits =
                fault.match.isEmpty() ||
                std::ranges::any_of(line, [&fault](const Command &command) { return fault.fits(command); });
            if (fault.kind == effect.kind && fits) {
                effect.apply(fault, reply);
                useUp(i);
            }
        }
    }
}

void FaultList::useUp(qsizetype index)
{
    if (m_faults[index].count == 1)
        m_faults.removeAt(index);
    else if (m_faults[index].count > 1)
        --m_faults[index].count;
}

} // namespace cardemu
