// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

/// A message bus of the test's own, taken for the system's. To be made before anything asks for the system
/// bus.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();

    /// A second connection, for a fake service.
    QDBusConnection connection(const QString &name) const;

private:
    QProcess m_daemon;
    QString m_address;
};
