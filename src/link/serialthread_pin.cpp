// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialthread.h"

#include "statusparsers.h"

using namespace std::chrono_literals;

namespace
{

/// A CDMA card has a form of its own, for the question and so for the answer.
QByteArray pinCommand(corva::CardFamily family)
{
    return family == corva::CardFamily::Cdma ? "AT^CPIN" : "AT+CPIN";
}

/// What switching the PIN request, or entering a PIN, came to.
int lockResult(int code, int done, int refused)
{
    if (code == done || code == corva::UnknownOk)
        return 1;
    if (code == refused || code == corva::UnknownError)
        return 0;
    return code == corva::PukRequired ? 2 : code == corva::SimFailure ? 3 : -1;
}

} // namespace

int SerialThread::connectDeviceNeedInputPIN()
{
    const QByteArray cmd = pinCommand(m_family) + "?\r\n";
    switch (sendCmdAndRec(cmd.constData(), 3, 0)) {
    case corva::SimReady: return 0;
    case corva::SimPuk: return 1;
    case corva::SimPin: return 2;
    case corva::SimBusy: return 3;
    case corva::SimFailure: return 4;
    default: return -1;
    }
}

int SerialThread::PINSetStatus()
{
    switch (sendCmdAndRec("AT+CLCK=\"SC\",2\r\n", 3, 0)) {
    case corva::FacilityOn: return 1;
    case corva::FacilityOff: return 0;
    default: return -1;
    }
}

int SerialThread::lockPIN(const char *pin)
{
    const QByteArray cmd = QByteArray("AT+CLCK=\"SC\",1,\"") + pin + "\"\r\n";
    return lockResult(sendCmdAndRec(cmd.constData(), 3, 0), corva::LockDone, corva::LockRefused);
}

int SerialThread::unLockPIN(const char *pin)
{
    const QByteArray cmd = QByteArray("AT+CLCK=\"SC\",0,\"") + pin + "\"\r\n";
    return lockResult(sendCmdAndRec(cmd.constData(), 3, 0), corva::UnlockDone, corva::UnlockRefused);
}

int SerialThread::changePWD(const char *oldPin, const char *newPin)
{
    const QByteArray cmd = QByteArray("AT+CPWD=\"SC\",\"") + oldPin + "\",\"" + newPin + "\"\r\n";
    switch (sendCmdAndRec(cmd.constData(), 3, 0)) {
    case corva::PasswordChanged:
    case corva::UnknownOk: return 1;
    case corva::PasswordRefused:
    case corva::UnknownError: return 0;
    case corva::PasswordPukRequired:
    case corva::PukRequired: return -2;
    default: return -1;
    }
}

QString SerialThread::get_JPINJPUK_Res_Str()
{
    const auto reply = transact("AT+JPINPUK=?\r\n", 3s);
    for (const QByteArray &line : corva::replyLines(reply.value_or(QByteArray()))) {
        const qsizetype at = line.indexOf(": ");
        if (line.startsWith("+JPIN") && at >= 0)
            return QString::fromLatin1(line.sliced(at + 2));
    }
    return {};
}

int SerialThread::enterPin(const QString &pin)
{
    const QByteArray cmd = pinCommand(m_family) + "=\"" + pin.toLatin1() + "\"\r\n";
    return lockResult(sendCmdAndRec(cmd.constData(), 3, 0), corva::UnknownOk, corva::UnknownError);
}

int SerialThread::enterPuk(const QString &puk, const QString &newPin)
{
    const QByteArray cmd =
        pinCommand(m_family) + "=\"" + puk.toLatin1() + "\",\"" + newPin.toLatin1() + "\"\r\n";
    return lockResult(sendCmdAndRec(cmd.constData(), 3, 0), corva::UnknownOk, corva::UnknownError);
}
