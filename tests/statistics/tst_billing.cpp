// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/billingperiod.h"
#include "statistics/forecast.h"
#include "statistics/quota.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

constexpr quint64 GB = 1000 * bytesPerMegabyte;

QDate day(const char *iso)
{
    return QDate::fromString(QString::fromLatin1(iso), Qt::ISODate);
}

TrafficSettings plan(quint64 quota, int warningShare = 80, quint64 roamingQuota = 0)
{
    TrafficSettings settings;
    settings.quota = quota;
    settings.warningShare = warningShare;
    settings.roamingQuota = roamingQuota;
    return settings;
}

} // namespace

class TestBilling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void periodHoldsTheDay_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<int>("billingDay");
        QTest::addColumn<QDate>("first");
        QTest::addColumn<QDate>("last");
        const auto row = [](const char *today, int billingDay, const char *first, const char *last) {
            QTest::addRow("day %d seen on %s", billingDay, today)
                << day(today) << billingDay << day(first) << day(last);
        };
        row("2024-05-14", 15, "2024-04-15", "2024-05-14");
        row("2024-05-15", 15, "2024-05-15", "2024-06-14");
        row("2023-02-28", 31, "2023-02-28", "2023-03-30");
        row("2023-02-27", 31, "2023-01-31", "2023-02-27");
        row("2024-02-29", 30, "2024-02-29", "2024-03-29");
        row("2024-05-31", 0, "2024-05-01", "2024-05-31");
        row("2024-04-30", 99, "2024-04-30", "2024-05-30");
    }

    void periodHoldsTheDay()
    {
        QFETCH(const QDate, today);
        QFETCH(const int, billingDay);
        QFETCH(const QDate, first);
        QFETCH(const QDate, last);
        const BillingPeriod period = billingPeriodOf(today, billingDay);
        QCOMPARE(period.first, first);
        QCOMPARE(period.last, last);
    }

    void periodsLeaveNoDayOut()
    {
        for (int billingDay = 1; billingDay <= 31; ++billingDay)
            for (QDate date = day("2023-01-01"); date < day("2025-01-01");) {
                const BillingPeriod period = billingPeriodOf(date, billingDay);
                const BillingPeriod next = billingPeriodOf(period.last.addDays(1), billingDay);
                QCOMPARE(next.first, period.last.addDays(1));
                QVERIFY(period.first <= date && date <= period.last && period.days() >= 28);
                date = next.first;
            }
    }

    void countsPercent_data()
    {
        QTest::addColumn<quint64>("used");
        QTest::addColumn<quint64>("quota");
        QTest::addColumn<int>("percent");
        QTest::newRow("just below") << 8 * GB - 1 << 10 * GB << 79;
        QTest::newRow("exactly") << 8 * GB << 10 * GB << 80;
        QTest::newRow("far over") << 1000 * GB << GB << 999;
        QTest::newRow("no room for the product") << ~quint64(0) << ~quint64(0) / 2 << 200;
    }

    void countsPercent()
    {
        QFETCH(const quint64, used);
        QFETCH(const quint64, quota);
        const AllowanceUse use{Allowance::Main, used, quota};
        QTEST(use.percent(), "percent");
    }

    void roamingCountsWithTheRestUnlessItHasItsOwn()
    {
        const TrafficVolumes carried{{3 * GB, 0}, {1 * GB, 0}};
        QVERIFY(allowanceUses(carried, plan(10 * GB)) ==
                (std::vector<AllowanceUse>{{Allowance::Main, 4 * GB, 10 * GB}}));
        const TrafficSettings apart = plan(10 * GB, 80, GB);
        QVERIFY(allowanceUses(carried, apart) ==
                (std::vector<AllowanceUse>{{Allowance::Main, 3 * GB, 10 * GB},
                                           {Allowance::Roaming, 1 * GB, 1 * GB}}));
        QVERIFY(allowanceInUse(carried, apart, true).isUsedUp());
        QVERIFY(!allowanceInUse(carried, apart, false).isUsedUp());
    }

    void warnsOnceForEachShareOfAPeriod()
    {
        const QDate may = day("2024-05-01");
        std::vector<QuotaMark> given;
        const auto warned = [&](quint64 used, const TrafficSettings &settings, QDate period) {
            const auto due = dueWarning({Allowance::Main, used, settings.quota}, settings, period, given);
            if (due)
                given.push_back(*due);
            return due ? due->percent : 0;
        };
        QCOMPARE(warned(7 * GB, plan(10 * GB), may), 0);
        QCOMPARE(warned(8 * GB, plan(10 * GB), may), 80);
        QCOMPARE(warned(9 * GB, plan(10 * GB), may), 0);
        QCOMPARE(warned(9 * GB, plan(10 * GB, 90), may), 90); // the person chose another share
        QCOMPARE(warned(10 * GB, plan(10 * GB), may), 100);
        QCOMPARE(warned(11 * GB, plan(10 * GB), may), 0);
        QCOMPARE(warned(16 * GB, plan(20 * GB), may), 80);                // bought more
        QCOMPARE(warned(10 * GB, plan(10 * GB), day("2024-06-01")), 100); // past both at once: one warning
        QCOMPARE(warned(10 * GB, plan(10 * GB), day("2024-06-01")), 0);
        QCOMPARE(warned(9 * GB, plan(10 * GB, 0), day("2024-07-01")), 0); // no warning wanted
        QCOMPARE(warned(10 * GB, plan(10 * GB, 0), day("2024-07-01")), 100);
        QCOMPARE(warned(10 * GB, plan(0), may), 0);
    }

    void foresees_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QDate>("counted");
        QTest::addColumn<QList<quint64>>("days"); ///< GB, the last one is today
        QTest::addColumn<double>("atEnd");        ///< GB; negative: nothing can be said
        QTest::addColumn<QDate>("usedUpOn");
        const auto row = [](const char *name, const char *today, const char *counted,
                            const QList<quint64> &days, double atEnd, const char *usedUpOn = "") {
            QTest::newRow(name) << day(today) << day(counted) << days << atEnd << day(usedUpOn);
        };
        row("nothing was ever counted", "2024-06-10", "", {}, -1);
        row("two whole days", "2024-06-10", "2024-06-08", {1, 1, 1}, -1);
        row("three whole days", "2024-06-10", "2024-06-07", {1, 1, 1, 1}, 24, "2024-06-26");
        row("one a day", "2024-06-10", "2024-06-01", QList<quint64>(10, 1), 30, "2024-06-20");
        row("nothing at all", "2024-06-10", "2024-05-01", QList<quint64>(10, 0), 0);
        row("today already more than usual", "2024-06-10", "2024-06-01",
            QList<quint64>(9, 1) + QList<quint64>{5}, 34, "2024-06-16");
        row("first day, by the days before", "2024-06-01", "2024-05-01", QList<quint64>(8, 1), 30,
            "2024-06-20");
        row("last day", "2024-06-30", "2024-06-01", QList<quint64>(30, 1), 30, "2024-06-30");
        // 20 days of 1, then 7 of 2: (34/27 + 2) / 2 for each of today and 2 more days
        row("more of late", "2024-06-28", "2024-06-01",
            QList<quint64>(20, 1) + QList<quint64>(7, 2) + QList<quint64>{0}, 34 + 3 * (34.0 / 27 + 2) / 2,
            "2024-06-28");
    }

    void foresees()
    {
        QFETCH(const QDate, today);
        QFETCH(const QDate, counted);
        QFETCH(const QList<quint64>, days);
        QFETCH(const double, atEnd);
        QFETCH(const QDate, usedUpOn);
        const auto bytesOn = [&](QDate date) {
            const qsizetype index = days.size() - 1 - date.daysTo(today);
            return index >= 0 && index < days.size() ? days.at(index) * GB : 0;
        };
        const auto forecast = forecastOf(billingPeriodOf(today, 1), today, counted, 20 * GB, bytesOn);
        QCOMPARE(forecast.has_value(), atEnd >= 0);
        if (!forecast)
            return;
        QCOMPARE(qRound64(double(forecast->atEnd) / 1e6), qRound64(atEnd * 1000));
        QCOMPARE(forecast->usedUpOn, usedUpOn);
    }
};

QTEST_APPLESS_MAIN(TestBilling)
#include "tst_billing.moc"
