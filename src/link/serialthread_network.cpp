// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialthread.h"

using namespace std::chrono_literals;

int SerialThread::getNetworkList(char *text)
{
    m_searching = true;
    const int result = rawText("AT+COPS=?\r\n", text, 180s, true); // 3GPP TS 27.007 7.3: may take minutes
    m_searching = false;
    return result;
}

int SerialThread::setManualNetworkMode(QString act, QString opt, QString format, QString mode)
{
    const bool isClean =
        !(act + opt + format + mode).contains(u'"') && !(act + opt + format + mode).contains(u'\r');
    if (!isClean)
        return -1;
    QByteArray cmd = "AT+COPS=" + mode.toLatin1() + ',' + format.toLatin1() + ",\"" + opt.toLatin1() + '"';
    if (!act.isEmpty())
        cmd += ',' + act.toLatin1();
    // The gate would keep the command's own reply from nobody: it only holds back other writers until this is
    // over.
    const auto reply = transact(cmd + "\r\n", 180s);
    m_selectionGate = true;
    if (!reply || reply->isEmpty())
        return -1;
    return int(reply->contains("OK\r\n"));
}
