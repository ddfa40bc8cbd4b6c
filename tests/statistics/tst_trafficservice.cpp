// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "statistics/trafficservice.h"

#include "statistics/statisticsstore.h"

#include <QSignalSpy>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace corva;

namespace
{

void copyFiles(const QString &from, const QString &to)
{
    const QStringList names = QDir(from).entryList(QDir::Files);
    for (const QString &name : names)
        QVERIFY(QFile::copy(from + u'/' + name, to + u'/' + name));
}

// What the clock shows after ten seconds, in seconds.
const Rows<qint64> survivesAClockThatIsSetRows{
    {"runs on", 10},
    {"back by an hour", -3600},
    {"on by fifty years", 50 * 365 * 86400LL},
};

// What the next start finds of machine and interface; what was carried.
const Rows<QByteArray, QByteArray, quint64> foldsAKilledSessionInRows{
    {"the link is gone with it", "this-boot", {}, 1000ULL},
    {"the link stands", "this-boot", "9", 1234ULL},
    {"another link stands", "this-boot", "10", 1000ULL},
    {"the machine was started anew", "next-boot", "9", 1000ULL},
};

} // namespace

/// A machine whose clock, interface and disk the test moves.
class TestTrafficService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_root->path()).mkpath(u"net/ppp0/statistics"_s));
        QVERIFY(QDir(m_root->path()).mkpath(u"Data"_s));
        m_now = QDateTime({2024, 5, 3}, {12, 0});
        m_uptime = 1000s;
        m_settings = {};
        m_received = m_sent = 0;
        writeFile(u"net/ppp0/ifindex"_s, "9\n");
        writeFile(u"boot"_s, "this-boot\n");
        carry(0, 0);
        m_service = makeService(u"Data"_s);
    }

    void cleanup()
    {
        m_service.reset();
        m_root.reset();
        qputenv("TZ", "UTC");
    }

    void countsASession()
    {
        QSignalSpy rates(m_service.get(), &TrafficService::sigRate);
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(1000, 100);
        tick(2s);
        QCOMPARE(rates.back().front().value<TrafficVolume>(), (TrafficVolume{500, 50}));
        carry(500, 50);
        m_service->sessionEnded(historyend::Person); // what was carried since the last reading counts

        QCOMPARE(m_service->sessionVolumes().both(), (TrafficVolume{1500, 150}));
        QCOMPARE(m_service->totals().total().home, (TrafficVolume{1500, 150}));
        QCOMPARE(m_service->history().size(), 1U);
        const HistoryRecord record = m_service->history().front();
        QCOMPARE(record.profileName, u"Home"_s);
        QCOMPARE(record.duration, 2s);
        QCOMPARE(record.ended, QString(historyend::Person));
        QCOMPARE(record.volumes.home, (TrafficVolume{1500, 150}));
        m_service->sessionEnded(historyend::Person);
        QCOMPARE(m_service->history().size(), 1U);
    }

    void keepsRoamingApart()
    {
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(100, 0);
        m_service->setRoaming(true);
        carry(30, 0);
        m_service->setRoaming(false);
        carry(4, 0);
        m_service->sessionEnded(historyend::Person);
        const TrafficVolumes volumes = m_service->history().front().volumes;
        QCOMPARE(volumes.home.received, 104ULL);
        QCOMPARE(volumes.roaming.received, 30ULL);
        QVERIFY(m_service->history().front().isRoaming);
    }

    void givesEachDayItsOwn()
    {
        m_now = QDateTime({2024, 5, 3}, {23, 59, 59});
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(100, 0);
        m_service->readNow();
        carry(7, 0);
        tick(2s);
        QCOMPARE(m_service->carriedBetween({2024, 5, 3}, {2024, 5, 3}).total(), 100ULL);
        QCOMPARE(m_service->carriedBetween({2024, 5, 4}, {2024, 5, 4}).total(), 7ULL);
    }

    void survivesAClockThatIsSet_data() { addRows(survivesAClockThatIsSetRows); }
    void survivesAClockThatIsSet()
    {
        const auto &[name, seconds] = currentRow(survivesAClockThatIsSetRows);
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(100, 0);
        m_uptime += 10s;
        const QDateTime later = m_now.addSecs(seconds);
        m_now = later;
        m_service->sessionEnded(historyend::Person);
        const HistoryRecord record = m_service->history().front();
        QCOMPARE(record.duration, 10s);
        QCOMPARE(record.start, later.addSecs(-10));
        QCOMPARE(record.end, later);
        QCOMPARE(m_service->carriedBetween(later.date(), later.date()).total(), 100ULL);
    }

    void knowsTheDayInEveryZone()
    {
        // 2024-03-31 01:59:59 CET is followed by 03:00:00 CEST; the day ends at 22:00 UTC and not at 23:00.
        qputenv("TZ", "Europe/Berlin");
        const QDateTime start({2024, 3, 31}, {0, 59, 59}, Qt::UTC);
        m_now = start.toLocalTime();
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(1, 0);
        tick(2s);
        QCOMPARE(m_service->sessionDuration(), 2s);
        tick(std::chrono::hours(21));
        carry(2, 0);
        tick(1s);
        QCOMPARE(m_service->carriedBetween({2024, 4, 1}, {2024, 4, 1}).total(), 2ULL);
        QCOMPARE(m_service->carriedBetween({2024, 3, 31}, {2024, 3, 31}).total(), 1ULL);
        // Whoever flies west has the day before again.
        const QDateTime night = m_now.toUTC();
        qputenv("TZ", "America/New_York");
        m_now = night.toLocalTime();
        carry(4, 0);
        tick(1s);
        QCOMPARE(m_service->carriedBetween({2024, 3, 31}, {2024, 3, 31}).total(), 5ULL);
        m_service->sessionEnded(historyend::Person);
        QCOMPARE(m_service->history().front().start, start);
        QCOMPARE(m_service->history().front().duration, std::chrono::hours(21) + 4s);
    }

    void foldsAKilledSessionIn_data() { addRows(foldsAKilledSessionInRows); }
    void foldsAKilledSessionIn()
    {
        const auto &[name, boot, index, carried] = currentRow(foldsAKilledSessionInRows);
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, true});
        carry(1000, 0);
        tick(20s);
        writeNow();
        QVERIFY(QDir(m_root->path()).mkdir(u"after"_s));
        copyFiles(path(u"Data"_s), path(u"after"_s)); // as the disk is when the program is killed now

        carry(234, 0);
        m_now = m_now.addDays(1);
        writeFile(u"boot"_s, boot);
        writeFile(u"net/ppp0/ifindex"_s, index);
        for (int start = 1; start <= 2; ++start) { // the second start changes nothing
            const auto next = makeService(u"after"_s);
            QVERIFY(next->problems().isEmpty());
            QCOMPARE(next->history().size(), 1U);
            const HistoryRecord record = next->history().front();
            QCOMPARE(record.ended, QString(historyend::Unexpected));
            QCOMPARE(record.volumes.roaming.received, carried);
            QCOMPARE(record.duration, 20s);
            QCOMPARE(next->carriedBetween({2024, 5, 3}, {2024, 5, 3}).total(), carried);
        }
    }

    void losesNothingWhenItStopsBetweenTwoWrites()
    {
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(1000, 0);
        m_service->readNow();
        writeNow();
        const auto session = StatisticsStore(path(u"Data"_s)).load().left;
        QVERIFY(session);
        RunningSession closed = *session;
        closed.ended = historyend::Idle;
        StoredTotals totals;
        totals.totals = closed.carried;
        totals.counted = closed.id;
        const std::vector history{recordOf(closed)};
        const StatisticsChange steps[] = {
            {closed, {}, {}, closed}, {closed, totals, {}, closed}, {closed, totals, history, closed}};
        for (const StatisticsChange &step : steps) {
            const QString folder = QString::number(&step - steps);
            QCOMPARE(StatisticsStore(path(folder)).saveNow(step), QString());
            const auto next = makeService(folder);
            QCOMPARE(next->totals().total().total(), 1000ULL);
            QCOMPARE(next->history().size(), 1U);
            QCOMPARE(next->history().front().ended, QString(historyend::Idle));
        }
    }

    void writesWhatIsLeftWhenItEnds()
    {
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(10, 0);
        m_service.reset();
        m_service = makeService(u"Data"_s);
        QCOMPARE(m_service->totals().total().total(), 10ULL);
        QCOMPARE(m_service->history().front().ended, QString(historyend::Program));
        QVERIFY(!QFile::exists(path(u"Data/traffic-session.xml"_s)));
    }

    void triesAgainWhenTheDiskWasFull()
    {
        QSignalSpy problems(m_service.get(), &TrafficService::sigProblem);
        QVERIFY(QDir(path(u"Data"_s)).mkdir(u"traffic.xml"_s)); // a folder cannot be replaced by a file
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(10, 0);
        m_service->sessionEnded(historyend::Person);
        QTRY_COMPARE(problems.size(), 1);
        QCOMPARE(m_service->problems().size(), 1);
        QVERIFY(QDir(path(u"Data"_s)).rmdir(u"traffic.xml"_s));
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        QTRY_VERIFY(m_service->problems().isEmpty());
        QVERIFY(StatisticsStore(path(u"Data"_s)).load().totals.totals.total().total() == 10);
    }

    void warnsAndEndsAtTheQuota()
    {
        m_settings.quota = 1000;
        m_settings.endsConnection = true;
        QSignalSpy warnings(m_service.get(), &TrafficService::sigQuotaWarning);
        QSignalSpy ends(m_service.get(), &TrafficService::sigQuotaReached);
        connect(m_service.get(), &TrafficService::sigQuotaReached, this,
                [this] { m_service->sessionEnded(historyend::Quota); });
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(850, 0);
        tick(1s);
        QCOMPARE(warnings.size(), 1);
        QCOMPARE(ends.size(), 0);
        carry(200, 0);
        tick(1s);
        QCOMPARE(warnings.size(), 2);
        QCOMPARE(ends.size(), 1);
        QCOMPARE(m_service->history().front().ended, QString(historyend::Quota));
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false}); // still used up, already said
        QCOMPARE(warnings.size(), 2);
        QCOMPARE(ends.size(), 2);

        m_service.reset();
        m_service = makeService(u"Data"_s);
        QSignalSpy again(m_service.get(), &TrafficService::sigQuotaWarning);
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false}); // remembered over starts
        QCOMPARE(again.size(), 0);
        m_now = m_now.addMonths(1);
        carry(800, 0);
        tick(1s);
        QCOMPARE(again.size(), 1);
    }

    void leavesTheLinkWhenOnlyTheOtherAllowanceIsUsedUp()
    {
        m_settings.quota = 1000;
        m_settings.roamingQuota = 100;
        m_settings.endsConnection = true;
        QSignalSpy ends(m_service.get(), &TrafficService::sigQuotaReached);
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(2000, 0);
        m_service->setRoaming(true);
        QCOMPARE(ends.size(), 1); // at home, before the border
        m_service->sessionEnded(historyend::Person);
        makeInterfaceAnew();
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, true});
        carry(50, 0);
        tick(1s);
        QCOMPARE(ends.size(), 1);
        carry(50, 0);
        tick(1s);
        QCOMPARE(ends.size(), 2);
    }

    void staysBounded()
    {
        m_settings.recordsKept = 3;
        m_settings.daysKept = 62;
        for (int i = 0; i < 5; ++i) {
            m_service->sessionStarted({QString::number(i), u"ppp0"_s, false});
            carry(10, 0);
            m_service->sessionEnded(historyend::Person);
            m_now = m_now.addDays(40);
        }
        QCOMPARE(m_service->history().size(), 3U);
        QCOMPARE(m_service->history().front().profileName, u"2"_s);
        QCOMPARE(m_service->totals().days().size(), 3U);
        QCOMPARE(m_service->totals().foldedMonths().size(), 2U);
        m_now = m_now.addYears(30); // a clock that lies for once
        m_service->sessionStarted({u"late"_s, u"ppp0"_s, false});
        m_service->sessionEnded(historyend::Person);
        QCOMPARE(m_service->totals().days().size(), 3U);
    }

    void undoesADeletion()
    {
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s}) {
            m_service->sessionStarted({name, u"ppp0"_s, false});
            tick(5s);
            m_service->sessionEnded(historyend::Person);
        }
        const auto before = m_service->history();
        const auto removed = m_service->removeRecords({before.at(1).id, u"unknown"_s});
        QCOMPARE(removed.size(), 1U);
        QCOMPARE(m_service->history().size(), 2U);
        m_service->restoreRecords(removed);
        m_service->restoreRecords(removed);
        QVERIFY(m_service->history() == before);
        m_service->removeRecords({before.at(0).id});
        m_service.reset();
        m_service = makeService(u"Data"_s);
        QCOMPARE(m_service->history().size(), 2U);
    }

    void doesNotCountWhatNobodyWantsCounted()
    {
        m_settings.countsUsage = false;
        m_settings.quota = 10;
        QSignalSpy warnings(m_service.get(), &TrafficService::sigQuotaWarning);
        m_service->sessionStarted({u"Home"_s, u"ppp0"_s, false});
        carry(100, 0);
        m_service->sessionEnded(historyend::Person);
        QVERIFY(m_service->totals().isEmpty());
        QCOMPARE(warnings.size(), 0);
        QCOMPARE(m_service->history().front().volumes.total(), 100ULL);
    }

private:
    QString path(const QString &name) const { return m_root->filePath(name); }

    void writeFile(const QString &name, const QByteArray &content) { putFile(path(name), content); }

    std::unique_ptr<TrafficService> makeService(const QString &folder)
    {
        TrafficSurroundings around;
        around.dataFolder = path(folder);
        around.countersFolder = path(u"net"_s);
        around.bootIdFile = path(u"boot"_s);
        around.now = [this] { return m_now; };
        around.uptime = [this] { return m_uptime; };
        around.settings = [this] { return m_settings; };
        return std::make_unique<TrafficService>(around);
    }

    void carry(quint64 received, quint64 sent)
    {
        m_received += received;
        m_sent += sent;
        writeFile(u"net/ppp0/statistics/rx_bytes"_s, QByteArray::number(m_received));
        writeFile(u"net/ppp0/statistics/tx_bytes"_s, QByteArray::number(m_sent));
    }

    void makeInterfaceAnew()
    {
        m_received = m_sent = 0;
        writeFile(u"net/ppp0/ifindex"_s, "10\n");
        carry(0, 0);
    }

    void tick(std::chrono::milliseconds time)
    {
        m_uptime += time;
        m_now = m_now.addMSecs(time.count());
        m_service->readNow();
    }

    /// The state of now goes to disk, by a change that writes nothing else.
    void writeNow()
    {
        QSignalSpy exported(m_service.get(), &TrafficService::sigExported);
        m_service->restoreRecords({HistoryRecord{}});
        m_service->removeRecords({QString()});
        m_service->exportFile(path(u"after-the-writes"_s), "x");
        QVERIFY(exported.wait());
        m_service->exportFile(path(u"after-the-writes"_s), "y");
        QVERIFY(exported.wait());
    }

    std::unique_ptr<QTemporaryDir> m_root;
    QDateTime m_now;
    std::chrono::milliseconds m_uptime{0};
    TrafficSettings m_settings;
    quint64 m_received = 0;
    quint64 m_sent = 0;
    std::unique_ptr<TrafficService> m_service;
};

QTEST_GUILESS_MAIN(TestTrafficService)
#include "tst_trafficservice.moc"
