// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace corva
{

/// Turns SIGTERM, SIGINT and SIGHUP into an event of the event loop, so that the program ends the way it does
/// when a person quits. One at a time; with its end the signals do again what they did.
class EndSignals final : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject *parent = nullptr);
    ~EndSignals() override;

Q_SIGNALS:
    /// The system, a terminal or another program wants this one to end.
    void sigEnd();

private:
    void takeSignals();

    int m_descriptor = -1; ///< one byte arrives for each signal
};

} // namespace corva
