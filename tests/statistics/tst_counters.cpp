// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/interfacecounters.h"
#include "statistics/traffictotals.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

using Value = std::optional<quint64>;
constexpr quint64 end32 = 1ULL << 32;

/// A reading of an interface that only receives.
CounterReading received(Value value, Value index = 7)
{
    return {value, value ? Value(0) : std::nullopt, index};
}

} // namespace

class TestCounters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsWhatLiesBetweenReadings_data()
    {
        QTest::addColumn<QList<CounterReading>>("readings");
        QTest::addColumn<bool>("isNew");
        QTest::addColumn<quint64>("carried");
        const auto row = [](const char *name, const QList<CounterReading> &readings, quint64 carried,
                            bool isNew = false) { QTest::newRow(name) << readings << isNew << carried; };
        const CounterReading gone;
        row("an interface that was there counts from now", {received(1000), received(1500)}, 500);
        row("one made for the link counts whole", {received(1000), received(1500)}, 1500, true);
        row("it comes up late", {gone, received(40), received(50)}, 50, true);
        row("unknown in between", {received(100), gone, received(400)}, 300);
        row("vanishes, and nothing is lost", {received(100), received(900), gone, gone}, 800);
        row("sent is known, received is not", {received(100), {std::nullopt, 5, 7}, received(150)}, 55);
        row("wraps at 32 bits", {received(end32 - 10), received(20)}, 30);
        row("at the last value of 32 bits", {received(end32 - 1), received(0)}, 1);
        row("wraps at 64 bits", {received(~quint64(0) - 9), received(5)}, 15);
        row("begun anew from 0", {received(5000), received(300)}, 300);
        row("begun anew past 4 GB", {received(end32 + 5), received(300)}, 300);
        row("another interface, counters higher", {received(5000, 7), received(9000, 8)}, 9000);
        row("another interface near the end of 32 bits", {received(end32 - 10, 7), received(20, 8)}, 20);
        row("number not known", {received(5000, std::nullopt), received(5100, std::nullopt)}, 100);
    }

    void countsWhatLiesBetweenReadings()
    {
        QFETCH(const QList<CounterReading>, readings);
        QFETCH(const bool, isNew);
        CounterMeter meter(isNew);
        quint64 carried = 0;
        for (const CounterReading &reading : readings)
            carried += meter.advance(reading).total();
        QTEST(carried, "carried");
    }

    void knowsANumberWhenItSeesOne_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<Value>("value");
        QTest::newRow("as sysfs writes it") << QByteArray("1234\n") << Value(1234);
        QTest::newRow("without line feed") << QByteArray("0") << Value(0);
        QTest::newRow("largest") << QByteArray("18446744073709551615\n") << Value(~quint64(0));
        QTest::newRow("too large") << QByteArray("18446744073709551616\n") << Value();
        QTest::newRow("empty") << QByteArray() << Value();
        QTest::newRow("only a line feed") << QByteArray("\n") << Value();
        QTest::newRow("negative") << QByteArray("-1\n") << Value();
        QTest::newRow("blank in front") << QByteArray(" 12\n") << Value();
        QTest::newRow("hexadecimal") << QByteArray("0x12\n") << Value();
        QTest::newRow("NUL inside") << QByteArray("1\0002\n", 4) << Value();
        QTest::newRow("endless") << QByteArray(5000, '1') << Value();
    }

    void knowsANumberWhenItSeesOne()
    {
        QFETCH(const QByteArray, content);
        QTEST(parseCounter(content), "value");
    }

    void readsFilesOfAnInterfaceOnly()
    {
        const QTemporaryDir folder;
        const QDir dir(folder.path());
        const auto put = [&](const QString &path, const QByteArray &content) {
            QVERIFY(dir.mkpath(QFileInfo(path).path()));
            QFile file(dir.filePath(path));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        };
        put(u"net/ppp0/ifindex"_s, "9\n");
        put(u"net/ppp0/statistics/rx_bytes"_s, "100\n");
        put(u"net/ppp0/statistics/tx_bytes"_s, "many\n");
        put(u"outside/statistics/rx_bytes"_s, "1\n");
        const QString net = dir.filePath(u"net"_s);
        QCOMPARE(readCounters(u"ppp0"_s, net), (CounterReading{100, std::nullopt, 9}));
        for (const QString &name : {u"../outside"_s, u".."_s, u"."_s, QString(), u"ppp0/"_s, u"ppp1"_s})
            QVERIFY2(!readCounters(name, net).isKnown(), qPrintable(name));
    }

    void foldsOldDaysIntoTheirMonths()
    {
        TrafficTotals totals;
        totals.add(QDate(2024, 1, 30), {10, 1}, false);
        totals.add(QDate(2024, 1, 31), {20, 2}, true);
        totals.add(QDate(2024, 2, 1), {40, 4}, false);
        const auto months = totals.everyMonth();
        const TrafficVolumes all = totals.total();
        totals.foldDaysBefore(QDate(2024, 1, 31));
        QCOMPARE(totals.firstDay(), QDate(2024, 1, 31));
        QVERIFY(totals.everyMonth() == months);
        QVERIFY(totals.total() == all);
        QCOMPARE(totals.between(QDate(2024, 1, 31), QDate(2024, 2, 1)).total(), 66ULL);
        QVERIFY(totals.everyDay(QDate(2024, 1, 30), QDate(2024, 2, 2)).size() == 4);
    }

    void sumsDoNotBeginAnew()
    {
        constexpr quint64 most = ~quint64(0);
        QCOMPARE((TrafficVolume{most, most}.total()), most);
        TrafficVolumes sum{{most, 1}, {2, 3}};
        sum += sum;
        QCOMPARE(sum.home, (TrafficVolume{most, 2}));
    }
};

QTEST_APPLESS_MAIN(TestCounters)
#include "tst_counters.moc"
