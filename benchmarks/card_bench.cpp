// SPDX-License-Identifier: GPL-3.0-or-later
// The emulated card, and what others need for the same.
#include "cardthread.h"
#include "device/cardmonitor.h"
#include "link/serialthread.h"
#include "linktest.h"
#include "row.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/smscardjobs.h"

#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QProcess>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

struct Card {
    Card() : thread(std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s)))
    {
        resetLinkGlobals();
        if (const auto complaint = thread.start(folder); !complaint.isEmpty())
            qFatal("%s", qPrintable(complaint));
    }

    QString folder = QDir::currentPath() + u"/card"_s;
    cardemu::CardThread thread;
};

/// From the first command that the card heard to the last, per command.
double secondsPerCommand(Card &card)
{
    QList<QDateTime> heard;
    for (const QJsonValue entry : card.thread.control(R"({"command": "log"})")[u"log"_s].toArray())
        if (!entry[u"received"_s].isUndefined())
            heard += QDateTime::fromString(entry[u"time"_s].toString(), Qt::ISODateWithMs);
    return heard.size() < 2 ? 0
                            : double(heard.first().msecsTo(heard.last())) / 1000 / double(heard.size() - 1);
}

void commandToTheCard(benchmark::State &state)
{
    Card card;
    FakeOwner owner;
    SerialThread link(&owner);
    link.openPort(card.folder + u"/at"_s);
    foundPortFlag = true;
    for (auto _ : state) {
        for (int i = 0; i < 100; ++i)
            link.sendCmdAndRec("AT+CSQ\r\n", 1, 0);
        state.SetIterationTime(0.1);
    }
    link.closePortNormal(link.descriptor());
    setRow(state, secondsPerCommand(card) * 1000, "ms");
}

/// Runs gammu on the card; false when it fails.
bool runGammu(const Card &card, const QString &command)
{
    QFile settings(u"gammurc"_s);
    if (!settings.open(QIODevice::WriteOnly))
        return false;
    settings.write("[gammu]\ndevice = " + card.folder.toLocal8Bit() + "/at\nconnection = at115200\n");
    settings.close();
    QProcess gammu;
    gammu.setStandardOutputFile(QProcess::nullDevice());
    gammu.start(u"gammu"_s, {u"-c"_s, u"gammurc"_s, command});
    return gammu.waitForFinished(120'000) && gammu.exitCode() == 0;
}

void commandOfGammu(benchmark::State &state)
{
    Card card;
    for (auto _ : state) {
        if (!runGammu(card, u"identify"_s))
            return state.SkipWithError("gammu does not identify the card");
        state.SetIterationTime(0.1);
    }
    setRow(state, secondsPerCommand(card) * 1000, "ms");
}

int commandsHeard(Card &card)
{
    int count = 0;
    for (const QJsonValue entry : card.thread.control(R"({"command": "log"})")[u"log"_s].toArray())
        count += !entry[u"received"_s].isUndefined();
    return count;
}

/// The card with 200 messages on its SIM, 20 ms a command.
struct FullCard : Card {
    FullCard()
    {
        thread.control(R"({"command": "store", "name": "SM", "clear": true, "capacity": 255})");
        thread.control(R"({"command": "fill", "name": "SM", "count": 200, "status": 1})");
        thread.control(R"({"command": "pace", "delay": 20})");
    }
};

void messagesListed(benchmark::State &state)
{
    constexpr std::size_t count = 200;
    FullCard card;
    FakeOwner owner;
    SerialThread link(&owner);
    link.openPort(card.folder + u"/at"_s);
    foundPortFlag = true;
    for (auto _ : state) {
        const auto begin = Clock::now();
        const auto listing = corva::smsjobs::list(link, corva::MessagePlace::Sim);
        const double own = std::chrono::duration<double>(Clock::now() - begin).count();
        link.closePortNormal(link.descriptor());
        if (listing.messages.size() != count)
            return state.SkipWithError("the list is not whole");
        const auto other = Clock::now();
        if (!runGammu(card, u"getallsms"_s))
            return state.SkipWithError("gammu does not list the messages");
        const double gammus = std::chrono::duration<double>(Clock::now() - other).count();
        state.SetIterationTime(own);
        setRow(state, own / gammus, "x", 0.2);
    }
}

void commandsForAList(benchmark::State &state)
{
    FullCard card;
    FakeOwner owner;
    SerialThread link(&owner);
    link.openPort(card.folder + u"/at"_s);
    foundPortFlag = true;
    for (auto _ : state) {
        const int before = commandsHeard(card);
        corva::smsjobs::list(link, corva::MessagePlace::Sim);
        state.SetIterationTime(0.1);
        setRow(state, commandsHeard(card) - before, "", 6);
    }
    link.closePortNormal(link.descriptor());
}

void portToFullState(benchmark::State &state)
{
    cmcfg.setValue(u"device"_s, u"at_port"_s, QDir::currentPath() + u"/card/at"_s);
    basePath = QDir::currentPath();
    Samples samples;
    for (auto _ : state) {
        Card card;
        card.thread.control(R"({"command": "pace", "delay": 20})");
        FakeOwner owner;
        corva::CardMonitor monitor(&owner);
        owner.onFind = [&monitor] { monitor.findPorts(false); };
        QEventLoop loop;
        QTimer::singleShot(10s, &loop, &QEventLoop::quit);
        QObject::connect(&monitor, &corva::CardMonitor::sigStateChanged, &loop,
                         [&loop](const corva::CardState &now) {
                             if (now.modemReady && !now.identity.iccid.isEmpty())
                                 loop.quit();
                         });
        const auto begin = Clock::now();
        monitor.start();
        loop.exec();
        const auto time = Clock::now() - begin;
        samples.add(time);
        state.SetIterationTime(std::chrono::duration<double>(time).count());
        monitor.stop();
    }
    setRow(state, samples.median() * 1000, "ms", 1000);
}

} // namespace

BENCHMARK(commandToTheCard)
    ->Name("a command to the emulated card, from one to the next")
    ->Iterations(1)
    ->UseManualTime();
BENCHMARK(commandOfGammu)
    ->Name("  the same by gammu identify, on the same port")
    ->Iterations(1)
    ->UseManualTime();
BENCHMARK(messagesListed)
    ->Name("200 messages listed and decoded, share of gammu getallsms' time")
    ->Iterations(1)
    ->UseManualTime();
BENCHMARK(commandsForAList)->Name("  commands for it")->Iterations(1)->UseManualTime();
BENCHMARK(portToFullState)
    ->Name("port found to the card's full state, 20 ms a command, median")
    ->Iterations(9)
    ->UseManualTime();
