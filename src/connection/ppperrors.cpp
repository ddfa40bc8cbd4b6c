// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ppperrors.h"

#include <QCoreApplication>

namespace corva
{
namespace
{

// The double blanks stand in pppd's own texts too.
constexpr const char *texts[] = {
    QT_TRANSLATE_NOOP("PppErrors", "Pppd  has  detached,  or  otherwise  the  connection was successfully "
                                   "established and terminated at the peer's request."),
    QT_TRANSLATE_NOOP("PppErrors", "An immediately fatal error of some kind occurred, such as an essential "
                                   "system call failing, or running out  of virtual memory."),
    QT_TRANSLATE_NOOP("PppErrors", "An error was detected in processing the options given, such as two "
                                   "mutually exclusive options being used."),
    QT_TRANSLATE_NOOP("PppErrors", "Pppd is not setuid-root and the invoking user is not root."),
    QT_TRANSLATE_NOOP("PppErrors",
                      "The kernel does not support PPP, for example, the PPP kernel driver is not "
                      "included or cannot be loaded."),
    QT_TRANSLATE_NOOP("PppErrors", "Pppd terminated because it was sent a SIGINT, SIGTERM or SIGHUP signal."),
    QT_TRANSLATE_NOOP("PppErrors", "The serial port could not be locked."),
    QT_TRANSLATE_NOOP("PppErrors", "The serial port could not be opened."),
    QT_TRANSLATE_NOOP("PppErrors", "The connect script failed (returned a non-zero exit status)."),
    QT_TRANSLATE_NOOP("PppErrors",
                      "The command specified as the argument to the pty option could not be run."),
    QT_TRANSLATE_NOOP("PppErrors",
                      "The  PPP  negotiation failed, that is, it didn't reach the point where at "
                      "least one network protocol (e.g. IP) was running."),
    QT_TRANSLATE_NOOP("PppErrors", "The peer system failed (or refused) to authenticate itself."),
    QT_TRANSLATE_NOOP("PppErrors",
                      "The link was established successfully and terminated because it was idle."),
    QT_TRANSLATE_NOOP("PppErrors", "The link was established successfully and terminated because the connect "
                                   "time limit was reached."),
    QT_TRANSLATE_NOOP("PppErrors", "Callback was negotiated and an incoming call should arrive shortly."),
    QT_TRANSLATE_NOOP("PppErrors",
                      "The link was terminated because the peer is not responding to echo requests."),
    QT_TRANSLATE_NOOP("PppErrors", "The link was terminated by the modem hanging up."),
    QT_TRANSLATE_NOOP("PppErrors", "The PPP negotiation failed because serial loopback was detected."),
    QT_TRANSLATE_NOOP("PppErrors", "The init script failed (returned a non-zero exit status)."),
    QT_TRANSLATE_NOOP("PppErrors", "We failed to authenticate ourselves to the peer."),
};

} // namespace

QStringList initPppErrorInfoStringList()
{
    QStringList list;
    for (const char *text : texts)
        list += QCoreApplication::translate("PppErrors", text);
    return list;
}

QString getPppErrorInfo(int status)
{
    return initPppErrorInfoStringList().value(status);
}

} // namespace corva
