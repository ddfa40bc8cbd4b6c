// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialthread.h"

#include <algorithm>

using namespace std::chrono_literals;

int SerialThread::getNetworkList(char *text)
{
    m_searching = true;
    const int result = rawText("AT+COPS=?\r\n", text, 180s, true); // 3GPP TS 27.007 7.3: may take minutes
    m_searching = false;
    return result;
}

int SerialThread::setManualNetworkMode(const QString &act, const QString &opt, const QString &format,
                                       const QString &mode)
{
    const bool isClean =
        std::ranges::all_of(act + format + mode, [](QChar c) { return c >= u'0' && c <= u'9'; }) &&
        std::ranges::all_of(opt, [](QChar c) { return c >= u' ' && c < u'\x7f' && c != u'"'; });
    if (!isClean)
        return -1;
    QByteArray cmd = "AT+COPS=" + mode.toLatin1() + ',' + format.toLatin1() + ",\"" + opt.toLatin1() + '"';
    if (!act.isEmpty())
        cmd += ',' + act.toLatin1();
    const auto reply = transact(cmd + "\r\n", 180s);
    m_selectionGate = true;
    if (!reply || reply->isEmpty())
        return -1;
    return int(reply->contains("OK\r\n"));
}
