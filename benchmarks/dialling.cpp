// SPDX-License-Identifier: GPL-3.0-or-later
// A connection and its end in the real window, worked by itself: how long each took, and how long the GUI
// thread was away meanwhile. Runs in a copy of the program's directory whose configuration names a card and a
// profile.
#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "widgets/cdestyle.h"
#include "widgets/skin.h"
#include "window/startup.h"
#include "window/wtmainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

using Clock = std::chrono::steady_clock;

double inSeconds(Clock::duration time)
{
    return std::chrono::duration<double>(time).count();
}

/// Processes events until `isOver`, looking at every beat of a 10 ms timer; the longest time between two
/// beats in seconds, or -1 after `limit`.
template <typename Condition> double longestGapUntil(Clock::duration limit, Condition isOver)
{
    QEventLoop loop;
    QTimer beat;
    beat.setTimerType(Qt::PreciseTimer);
    const auto begin = Clock::now();
    auto last = begin;
    Clock::duration longest{};
    QObject::connect(&beat, &QTimer::timeout, [&] {
        const auto now = Clock::now();
        longest = std::max(longest, now - last);
        last = now;
        if (isOver())
            loop.exit(0);
        else if (now - begin > limit)
            loop.exit(1);
    });
    beat.start(10ms);
    return loop.exec() == 0 ? inSeconds(longest) : -1;
}

double longestGapDuring(Clock::duration time)
{
    const auto end = Clock::now() + time;
    return longestGapUntil(time + 60s, [&] { return Clock::now() >= end; });
}

/// Presses the button and waits for the state. "NAME PRESSED SEEN GAP": two moments of the system's monotonic
/// clock and the longest gap between them, in seconds.
bool press(const char *name, const WTMainWindow &window, const QString &state)
{
    const auto *shown = window.findChild<QLabel *>(u"dataState"_s);
    auto *button = window.findChild<QAbstractButton *>(u"isConnectButton"_s);
    const auto pressed = Clock::now();
    button->click();
    const double gap = longestGapUntil(60s, [&] { return shown->text() == state; });
    const auto seen = Clock::now();
    // What is drawn and counted at first belongs to it.
    const double after = longestGapDuring(2s);
    std::printf("%s %.4f %.4f %.4f\n", name, inSeconds(pressed.time_since_epoch()),
                inSeconds(seen.time_since_epoch()), std::max(gap, after));
    std::fflush(stdout);
    return gap >= 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    qSetMessagePattern(u"%{time process} %{message}"_s);
    corva::installCdeStyle();
    readConfig(comcfg);
    basePath = QApplication::applicationDirPath();
    corva::installDefaultFont();
    corva::applySkin();

    WTMainWindow window(nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint);
    window.show();
    const auto showsNetwork = [&] {
        const auto labels = window.findChildren<QLabel *>();
        return std::ranges::any_of(labels,
                                   [](const QLabel *each) { return each->text() == u"Test Network"_s; });
    };
    const bool isReady = longestGapUntil(90s, showsNetwork) >= 0;
    std::printf("idle %.4f\n", longestGapDuring(5s));
    bool isDone = isReady;
    for (int rounds = application.arguments().value(1).toInt(); rounds > 0 && isDone; --rounds)
        isDone = press("connect", window, u"Status: Connected"_s) &&
                 press("disconnect", window, u"Status: Disconnected"_s);
    window.stopLink();
    return isDone ? 0 : 1;
}
