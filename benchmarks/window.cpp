// SPDX-License-Identifier: GPL-3.0-or-later
// How long the GUI thread is away while the card is silent or talks without end, and how soon the whole state
// is on screen.
#include "cardthread.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "widgets/cdestyle.h"
#include "window/wtmainwindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QJsonObject>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

void processFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The longest time between two beats of a 10 ms timer while events are processed for `time`.
double longestGap(std::chrono::milliseconds time)
{
    QTimer beat;
    beat.setTimerType(Qt::PreciseTimer);
    QElapsedTimer sinceLast;
    double longest = 0;
    QObject::connect(&beat, &QTimer::timeout, [&] {
        longest = std::max(longest, double(sinceLast.nsecsElapsed()) / 1e6);
        sinceLast.start();
    });
    sinceLast.start();
    beat.start(10);
    processFor(time);
    return longest;
}

bool showsText(const QWidget &window, const QString &text)
{
    const auto labels = window.findChildren<QLabel *>();
    return std::ranges::any_of(labels,
                               [&](const QLabel *each) { return each->isVisible() && each->text() == text; });
}

/// Milliseconds until every text is on screen; -1 after ten seconds.
double timeUntilShown(const QWidget &window, const QStringList &texts)
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < 10000) {
        processFor(1ms);
        if (std::ranges::all_of(texts, [&](const QString &text) { return showsText(window, text); }))
            return double(elapsed.nsecsElapsed()) / 1e6;
    }
    return -1;
}

void row(const char *name, double value, const char *bar)
{
    std::printf("%-62s %11.1f ms   %s\n", name, value, bar);
    std::fflush(stdout);
}

void setUp(const QString &cardFolder)
{
    for (const QString &port : {u"at"_s, u"modem"_s, u"voice"_s})
        cmcfg.setValue(u"device"_s, port + u"_port"_s, cardFolder + u'/' + port);
    basePath = QString::fromLocal8Bit(CORVA_APP_DIR);
    corva::installCdeStyle();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    const QString cardFolder = folder.path() + u"/card"_s;
    setUp(cardFolder);

    cardemu::CardThread card{std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s))};
    if (const auto complaint = card.start(cardFolder); !complaint.isEmpty()) {
        std::fputs(qPrintable(complaint), stderr);
        return 1;
    }
    card.control(R"({"command": "pace", "delay": 20})");
    card.control(R"({"command": "unplug"})");

    WTMainWindow window(nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint);
    window.show();
    window.showPage(u"card"_s);
    processFor(3s); // the echo is set, the window has settled

    card.control(R"({"command": "plug"})");
    row("card plugged in to its whole state on screen, 20 ms a command",
        timeUntilShown(window, {u"Test Network"_s, u"001012345678902"_s, u"001010123456789"_s}),
        "bar 1000 ms");

    card.control(R"({"command": "silence"})");
    row("longest gap of a 10 ms timer, card silent for 3 s", longestGap(3s), "bar 50 ms");
    card.control(R"({"command": "speak"})");
    processFor(2s);

    const QByteArray flood = QByteArray(100000, 'x');
    QTimer::singleShot(200, &window,
                       [&] { card.control(R"({"command": "raw", "text": ")" + flood + R"("})"); });
    row("longest gap of a 10 ms timer, card sends 100 KB", longestGap(3s), "bar 50 ms");
    window.stopLink();
    return 0;
}
