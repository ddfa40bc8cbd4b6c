// SPDX-License-Identifier: GPL-3.0-or-later
#include "guibeat.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstdio>

using namespace std::chrono_literals;

void processFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

double timeUntil(const std::function<bool()> &holds)
{
    constexpr qint64 longest = 60000;
    QTimer wake; // for what no event tells of
    wake.start(5ms);
    QElapsedTimer elapsed;
    elapsed.start();
    while (!holds()) {
        if (elapsed.elapsed() > longest)
            return -1;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return double(elapsed.nsecsElapsed()) / 1e6;
}

GuiBeat::GuiBeat()
{
    m_beat.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_beat, &QTimer::timeout, &m_beat, [this] {
        m_longest = std::max(m_longest, double(m_sinceLast.nsecsElapsed()) / 1e6);
        m_sinceLast.start();
    });
    m_sinceLast.start();
    m_beat.start(10ms);
}

bool printRow(const char *name, double value, double bar)
{
    const bool isMissed = value < 0 || value > bar;
    std::printf("%-62s %11.1f ms   bar %g ms%s\n", name, value, bar, isMissed ? ", MISSED" : "");
    std::fflush(stdout);
    return !isMissed;
}
