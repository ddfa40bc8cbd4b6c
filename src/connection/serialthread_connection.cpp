// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/serialthread.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto contextTimeout = 5s;
/// 3GPP TS 27.007 sets no limit; the network may take its time with a context.
constexpr auto activationTimeout = 60s;
constexpr int dataCallIsMade = 2;

/// Whether the text can stand between the quotes of a command line.
bool canBeQuoted(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c >= u' ' && c < u'\x7f' && c != u'"'; });
}

/// 1, 0 or -1 by a reply that has nothing to tell but "OK" or "ERROR". A report about the data call that
/// comes before them ends the reply: the card has begun.
int outcome(const std::optional<QByteArray> &reply)
{
    if (!reply)
        return -1;
    if (reply->contains("OK\r\n") || reply->contains("+JPDPACT: "))
        return 1;
    return reply->contains("ERROR") || reply->contains("not support") ? 0 : -1;
}

} // namespace

int SerialThread::setPdpContext(int cid, const QString &type, const QString &apn, const QString &address)
{
    if (!canBeQuoted(type) || !canBeQuoted(apn) || !canBeQuoted(address))
        return -1;
    QString command = u"AT+CGDCONT=%1,\"%2\",\"%3\""_s.arg(QString::number(cid), type, apn);
    if (!address.isEmpty())
        command += u",\"%1\""_s.arg(address);
    return outcome(transact(command.toLatin1() + "\r\n", contextTimeout));
}

int SerialThread::setDataCall(int cid, bool up)
{
    m_latestDataCallState = dataCallIsMade;
    return outcome(
        transact("AT+JPDPACT=" + QByteArray::number(cid) + (up ? ",1\r\n" : ",0\r\n"), activationTimeout));
}

int SerialThread::activatePdpContext(int cid, bool up)
{
    return outcome(
        transact((up ? "AT+CGACT=1," : "AT+CGACT=0,") + QByteArray::number(cid) + "\r\n", activationTimeout));
}
