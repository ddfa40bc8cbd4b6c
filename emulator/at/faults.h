// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/commandline.h"
#include "card/fields.h"

#include <chrono>

namespace cardemu
{

enum class FaultKind { NoReply, Late, Garbage, Cut, Interleave, Truncate, Long, EchoStorm, Refuse };

/// Whether a command begins with this text: "+CSQ" or "AT+CSQ", in either case.
bool beginsWith(const Command &command, const QString &text);

/// Something that goes wrong with the replies to certain commands.
struct Fault {
    FaultKind kind = FaultKind::NoReply;
    QString match; ///< beginning of the command, "AT" left out: "+CSQ"; empty fits every command line
    int count = 1; ///< so many command lines; 0 until cleared
    int ms = 0;    ///< Late, Cut: the pause
    int at = -1;   ///< Cut, Truncate, Interleave: the byte of the reply; -1: see the kind
    int bytes = 0; ///< Long: so many bytes more; EchoStorm: so many echoes
    QString text;  ///< Garbage, Interleave: what is sent; Refuse: the result code
    int code = -1; ///< Refuse: the "+CME ERROR" number, in the form that "+CMEE" chose

    bool fits(const Command &command) const { return beginsWith(command, match); }
};

const Fields<Fault> &faultFields();

/// A command line's reply on its way out.
struct Reply {
    QByteArray echo;       ///< the command line as it would be echoed
    QByteArray bytes;      ///< information and result code
    qsizetype finalAt = 0; ///< where the result code begins in `bytes`
    std::chrono::milliseconds before{0};
    qsizetype cutAt = -1; ///< a pause stands before this byte; -1: none
    std::chrono::milliseconds pause{0};
};

/// Puts bytes into a reply.
void insert(Reply &reply, qsizetype at, const QByteArray &bytes);

/// The faults that wait, in the order in which they were asked for.
class FaultList
{
public:
    void add(const Fault &fault) { m_faults += fault; }
    void clear() { m_faults.clear(); }
    const QList<Fault> &faults() const { return m_faults; }

    /// The refusal that waits for this command, used up by this call.
    std::optional<Fault> takeRefusal(const Command &command);
    /// Applies, and uses up, every other fault that fits one of the line's commands.
    void apply(const std::vector<Command> &line, Reply &reply);

private:
    void useUp(qsizetype index);

    QList<Fault> m_faults;
};

} // namespace cardemu
