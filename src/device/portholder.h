// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace corva
{

/// The program that holds a port. Empty and 0 where it cannot be told (another user's program, as a rule).
struct PortHolder {
    QString name; ///< "ModemManager", "minicom"; without control characters, otherwise as the program calls
                  ///< itself
    qint64 pid = 0;

    bool isKnown() const { return pid != 0 || !name.isEmpty(); }
    bool operator==(const PortHolder &) const = default;
};

/// The process named by the lock file of a port ("LCK..ttyUSB2": the process id in decimal, or as four
/// bytes), or nobody when there is none, or it names this process or one that has ended.
PortHolder holderByLockFile(const QString &port, const QString &lockFolder = QStringLiteral("/run/lock"));

/// The process other than this one that has the port open, as far as this user may see other users'
/// descriptors.
PortHolder holderByOpenFile(const QString &port);

/// ModemManager, when it runs and lists the port. Asks the system bus; blocks for two seconds at most.
PortHolder holderByModemManager(const QString &port);

/// All three, in this order; the first that knows.
PortHolder findPortHolder(const QString &port);

/// What helps against a holder.
enum class HolderAdvice {
    StopModemManager,   ///< stop the service, or keep it off this card with the udev rule
    StopMessageService, ///< a message daemon that was started as a service
    CloseProgram,       ///< a program that the person started
    FindProgram         ///< nobody knows which program it is
};

HolderAdvice adviceFor(const PortHolder &holder);

/// The sentences for it: who holds the port, and what to do. Plain text.
QString holderAdviceText(const PortHolder &holder, const QString &port);

} // namespace corva
