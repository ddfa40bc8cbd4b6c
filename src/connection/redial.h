// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"

#include <QObject>
#include <QTimer>
#include <chrono>

namespace corva
{

/// Whether another dial may do better after such an end. What a person refused or has to change is not tried
/// again.
bool isWorthAnotherDial(ConnectionEnd end);

/// A row of automatic dials: so many, the first after one wait, each further one after another.
class Redial : public QObject
{
    Q_OBJECT

public:
    struct Row {
        int times = 0;
        std::chrono::seconds startSec{0};
        std::chrono::seconds afterSec{0};
    };

    explicit Redial(QObject *parent = nullptr);

    /// Begins a row. `sigDial` follows, unless it has no dial at all.
    void autoRedialNetwork(const Row &row);
    /// The dial that ran has failed: waits for the next one. False when it was the last; then the row is
    /// over.
    bool next();
    void stop();

    bool isActive() const { return m_number > 0; }
    /// The dial that runs or waits, counted from 1; 0 when there is no row.
    int number() const { return m_number; }
    int times() const { return isActive() ? m_row.times : 0; }

Q_SIGNALS:
    void sigDial();

private:
    void slotAutoRedial();

    Row m_row;
    int m_number = 0;
    QTimer m_timer;
};

} // namespace corva
