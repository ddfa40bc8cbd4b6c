// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "statistics/interfacecounters.h"
#include "statistics/traffictotals.h"

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

const Rows<QByteArray, Value> knowsANumberWhenItSeesOneRows{
    {"as sysfs writes it", "1234\n", Value(1234)},
    {"without line feed", "0", Value(0)},
    {"largest", "18446744073709551615\n", Value(~quint64(0))},
    {"too large", "18446744073709551616\n", Value()},
    {"empty", {}, Value()},
    {"only a line feed", "\n", Value()},
    {"negative", "-1\n", Value()},
    {"blank in front", " 12\n", Value()},
    {"hexadecimal", "0x12\n", Value()},
    {"NUL inside", QByteArray("1\0002\n", 4), Value()},
    {"endless", QByteArray(5000, '1'), Value()},
};

const CounterReading gone;

// What was carried, and whether the interface was made for the link.
const Rows<QList<CounterReading>, quint64, bool> countsWhatLiesBetweenReadingsRows{
    {"an interface that was there counts from now", {received(1000), received(1500)}, 500, false},
    {"one made for the link counts whole", {received(1000), received(1500)}, 1500, true},
    {"it comes up late", {gone, received(40), received(50)}, 50, true},
    {"unknown in between", {received(100), gone, received(400)}, 300, false},
    {"vanishes, and nothing is lost", {received(100), received(900), gone, gone}, 800, false},
    {"sent is known, received is not", {received(100), {std::nullopt, 5, 7}, received(150)}, 55, false},
    {"wraps at 32 bits", {received(end32 - 10), received(20)}, 30, false},
    {"at the last value of 32 bits", {received(end32 - 1), received(0)}, 1, false},
    {"wraps at 64 bits", {received(~quint64(0) - 9), received(5)}, 15, false},
    {"begun anew from 0", {received(5000), received(300)}, 300, false},
    {"begun anew past 4 GB", {received(end32 + 5), received(300)}, 300, false},
    {"another interface, counters higher", {received(5000, 7), received(9000, 8)}, 9000, false},
    {"another interface near the end of 32 bits", {received(end32 - 10, 7), received(20, 8)}, 20, false},
    {"number not known", {received(5000, std::nullopt), received(5100, std::nullopt)}, 100, false},
};

} // namespace

class TestCounters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsWhatLiesBetweenReadings_data() { addRows(countsWhatLiesBetweenReadingsRows); }
    void countsWhatLiesBetweenReadings()
    {
        const auto &[name, readings, carried, isNew] = currentRow(countsWhatLiesBetweenReadingsRows);
        CounterMeter meter(isNew);
        quint64 counted = 0;
        for (const CounterReading &reading : readings)
            counted += meter.advance(reading).total();
        QCOMPARE(counted, carried);
    }

    void knowsANumberWhenItSeesOne_data() { addRows(knowsANumberWhenItSeesOneRows); }
    void knowsANumberWhenItSeesOne()
    {
        const auto &[name, content, value] = currentRow(knowsANumberWhenItSeesOneRows);
        QCOMPARE(parseCounter(content), value);
    }

    void readsFilesOfAnInterfaceOnly()
    {
        const QTemporaryDir folder;
        const QDir dir(folder.path());
        const auto put = [&](const QString &path, const QByteArray &content) {
            QVERIFY(dir.mkpath(QFileInfo(path).path()));
            putFile(dir.filePath(path), content);
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
