// SPDX-License-Identifier: GPL-3.0-or-later
// A connection and its end in the real window, worked by itself: how long each took, and how long the GUI
// thread was away meanwhile. Runs in a copy of the program's directory whose configuration names a card and a
// profile, and whose window opens on the page of the connection: "diallingbench ROUNDS [SECONDS [PAGE]]",
// which is how long each link is kept and what is shown meanwhile. With "--years" 1,000 connections and three
// years of days are in the statistics beforehand.
#include "sampletraffic.h"
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
#include <ctime>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

using Clock = std::chrono::steady_clock;

double inSeconds(Clock::duration time)
{
    return std::chrono::duration<double>(time).count();
}

/// A time in which the GUI thread handled no event, in seconds.
struct Gap {
    double length = 0;
    double worked = 0; ///< of it, on a processor
    double queued =
        0; ///< of it, ready to run and without a processor: the machine's affair, not the program's

    double held() const { return length - queued; }
};

/// Where the calling thread stands.
struct Moment {
    Clock::time_point time = Clock::now();
    double worked = processorTime();
    double queued = queueTime();

    static double processorTime()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
    }
    /// "time on a processor, time waited for one, turns", in nanoseconds. Source: the kernel's
    /// Documentation/scheduler/sched-stats.rst.
    static double queueTime()
    {
        QFile file(u"/proc/thread-self/schedstat"_s);
        const bool isThere = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        return isThere ? file.readAll().split(' ').value(1).toDouble() / 1e9 : 0;
    }
};

Gap operator-(const Moment &now, const Moment &before)
{
    return {inSeconds(now.time - before.time), now.worked - before.worked, now.queued - before.queued};
}

Gap longer(const Gap &a, const Gap &b)
{
    return a.held() < b.held() ? b : a;
}

/// Processes events until `isOver`, looking at every beat of a 10 ms timer; the longest gap between two
/// beats, or nullopt after `limit`.
template <typename Condition> std::optional<Gap> longestGapUntil(Clock::duration limit, Condition isOver)
{
    QEventLoop loop;
    QTimer beat;
    beat.setTimerType(Qt::PreciseTimer);
    const Moment begin;
    Moment last = begin;
    Gap longest;
    QObject::connect(&beat, &QTimer::timeout, [&] {
        const Moment now;
        longest = longer(longest, now - last);
        last = now;
        if (isOver())
            loop.exit(0);
        else if (now.time - begin.time > limit)
            loop.exit(1);
    });
    beat.start(10ms);
    return loop.exec() == 0 ? std::optional(longest) : std::nullopt;
}

Gap longestGapDuring(Clock::duration time)
{
    const auto end = Clock::now() + time;
    return longestGapUntil(time + 60s, [&] { return Clock::now() >= end; }).value_or(Gap());
}

/// "LENGTH WORKED QUEUED", in seconds.
void print(const Gap &gap)
{
    std::printf(" %.4f %.4f %.4f\n", gap.length, gap.worked, gap.queued);
    std::fflush(stdout);
}

/// Presses the button, waits for the state and goes on for `after`: what is drawn and counted then belongs to
/// it. "NAME PRESSED SEEN" and the longest gap; two moments of the system's monotonic clock, in seconds.
bool press(const char *name, const WTMainWindow &window, const QString &state, std::chrono::seconds after)
{
    const auto *shown = window.findChild<QLabel *>(u"dataState"_s);
    auto *button = window.findChild<QAbstractButton *>(u"isConnectButton"_s);
    const auto pressed = Clock::now();
    button->click();
    const std::optional<Gap> gap = longestGapUntil(60s, [&] { return shown->text() == state; });
    const auto seen = Clock::now();
    std::printf("%s %.4f %.4f", name, inSeconds(pressed.time_since_epoch()),
                inSeconds(seen.time_since_epoch()));
    print(longer(gap.value_or(Gap()), longestGapDuring(after)));
    return gap.has_value();
}

/// Years of statistics, before the program reads them.
void putYears()
{
    const SampleTraffic traffic(3 * 365, 1000);
    const QDir folder(traffic.folder());
    for (const QString &name : folder.entryList(QDir::Files)) {
        const QString place = basePath + u"/Data/"_s + name;
        QFile::remove(place);
        QFile::copy(folder.filePath(name), place);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QStringList words = QApplication::arguments();
    const bool withYears = words.removeAll(u"--years"_s) > 0;
    const std::chrono::seconds kept(words.size() > 2 ? words.at(2).toInt() : 2);
    qSetMessagePattern(u"%{time process} %{message}"_s);
    corva::installCdeStyle();
    readConfig(comcfg);
    basePath = QApplication::applicationDirPath();
    if (withYears)
        putYears();
    corva::installDefaultFont();
    corva::applySkin();

    WTMainWindow window(nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint);
    window.show();
    const auto showsNetwork = [&] {
        const auto labels = window.findChildren<QLabel *>();
        return std::ranges::any_of(labels,
                                   [](const QLabel *each) { return each->text() == u"Test Network"_s; });
    };
    bool isDone = longestGapUntil(90s, showsNetwork).has_value();
    if (words.size() > 3)
        window.showPage(words.at(3));
    const Gap idle = longestGapDuring(5s);
    std::printf("idle");
    print(idle);
    for (int rounds = words.value(1).toInt(); rounds > 0 && isDone; --rounds)
        isDone = press("connect", window, u"Status: Connected"_s, kept) &&
                 press("disconnect", window, u"Status: Disconnected"_s, 2s);
    window.stopLink();
    return isDone ? 0 : 1;
}
