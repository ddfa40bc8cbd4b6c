// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>

namespace corva
{

/// The system's DHCP client on one network interface: dhclient, else udhcpc, else dhcpcd. Needs an event loop
/// and the rights of an administrator.
class DhcpClient : public QObject
{
    Q_OBJECT

public:
    explicit DhcpClient(QObject *parent = nullptr);

    /// Whether a program runs now.
    bool isWorking() const { return m_process.state() != QProcess::NotRunning; }
    /// Asks for an address. `sigDone` follows.
    void lease(const QString &interfaceName);
    /// Gives the address back, or ends the asking. `sigDone` follows.
    void release(const QString &interfaceName);
    /// From now on no step takes longer than 3 s: the program ends.
    void hurry();

    /// Whether the text can be the name of a network interface, and nothing more. Source: the kernel's
    /// dev_valid_name, narrowed to letters, digits and "._-".
    static bool isInterfaceName(const QString &name);

Q_SIGNALS:
    /// `error` is a sentence; empty when it was done.
    void sigDone(const QString &error);

private:
    struct Step {
        QString program;
        QStringList arguments;
        bool mayFail = false;
    };

    void runNext();
    void finished(bool hasWorked);

    QProcess m_process;
    QTimer m_limit;
    QList<Step> m_steps;
    bool m_mayFail = false;
};

} // namespace corva
