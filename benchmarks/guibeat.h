// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <chrono>
#include <functional>

/// Processes events for so long.
void processFor(std::chrono::milliseconds time);

/// Processes events until it holds. Returns the milliseconds, -1 after a minute.
double timeUntil(const std::function<bool()> &holds);

/// A timer of 10 ms, and the longest time between two beats of it.
class GuiBeat
{
public:
    GuiBeat();
    /// In milliseconds, from the making on.
    double longestGap() const { return m_longest; }

private:
    QTimer m_beat;
    QElapsedTimer m_sinceLast;
    double m_longest = 0;
};

/// Prints a row of the table. Returns whether the value stays within the bar, in milliseconds.
bool printRow(const char *name, double value, double bar);
