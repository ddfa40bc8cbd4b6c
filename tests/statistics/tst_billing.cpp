// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "statistics/billingperiod.h"
#include "statistics/forecast.h"
#include "statistics/quota.h"

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

const Rows<quint64, quint64, int> countsPercentRows{
    {"just below", 8 * GB - 1, 10 * GB, 79},
    {"exactly", 8 * GB, 10 * GB, 80},
    {"far over", 1000 * GB, GB, 999},
    {"no room for the product", ~quint64(0), ~quint64(0) / 2, 200},
};

// Today; the day of the bill; the first day of the period, and its last.
const Rows<int, const char *, const char *> periodHoldsTheDayRows{
    {"2024-05-14", 15, "2024-04-15", "2024-05-14"}, {"2024-05-15", 15, "2024-05-15", "2024-06-14"},
    {"2023-02-28", 31, "2023-02-28", "2023-03-30"}, {"2023-02-27", 31, "2023-01-31", "2023-02-27"},
    {"2024-02-29", 30, "2024-02-29", "2024-03-29"}, {"2024-05-31", 0, "2024-05-01", "2024-05-31"},
    {"2024-04-30", 99, "2024-04-30", "2024-05-30"},
};

// Today; the first day counted; GB of each day, the last one is today; GB at the end, negative where nothing
// can be said; the day on which the volume is used up.
const Rows<const char *, const char *, QList<quint64>, double, const char *> foreseesRows{
    {"nothing was ever counted", "2024-06-10", "", {}, -1, ""},
    {"two whole days", "2024-06-10", "2024-06-08", {1, 1, 1}, -1, ""},
    {"three whole days", "2024-06-10", "2024-06-07", {1, 1, 1, 1}, 24, "2024-06-26"},
    {"one a day", "2024-06-10", "2024-06-01", QList<quint64>(10, 1), 30, "2024-06-20"},
    {"nothing at all", "2024-06-10", "2024-05-01", QList<quint64>(10, 0), 0, ""},
    {"today already more than usual", "2024-06-10", "2024-06-01", QList<quint64>(9, 1) + QList<quint64>{5},
     34, "2024-06-16"},
    {"first day, by the days before", "2024-06-01", "2024-05-01", QList<quint64>(8, 1), 30, "2024-06-20"},
    {"last day", "2024-06-30", "2024-06-01", QList<quint64>(30, 1), 30, "2024-06-30"},
    // 20 days of 1, then 7 of 2: (34/27 + 2) / 2 for each of today and 2 more days
    {"more of late", "2024-06-28", "2024-06-01",
     QList<quint64>(20, 1) + QList<quint64>(7, 2) + QList<quint64>{0}, 34 + 3 * (34.0 / 27 + 2) / 2,
     "2024-06-28"},
};

} // namespace

class TestBilling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void periodHoldsTheDay_data() { addRows(periodHoldsTheDayRows); }
    void periodHoldsTheDay()
    {
        const auto &[today, billingDay, first, last] = currentRow(periodHoldsTheDayRows);
        const BillingPeriod period = billingPeriodOf(day(today), billingDay);
        QCOMPARE(period.first, day(first));
        QCOMPARE(period.last, day(last));
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

    void countsPercent_data() { addRows(countsPercentRows); }
    void countsPercent()
    {
        const auto &[name, used, quota, percent] = currentRow(countsPercentRows);
        const AllowanceUse use{Allowance::Main, used, quota};
        QCOMPARE(use.percent(), percent);
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

    void foresees_data() { addRows(foreseesRows); }
    void foresees()
    {
        const auto &[name, now, counted, days, atEnd, usedUpOn] = currentRow(foreseesRows);
        const QDate today = day(now);
        const auto bytesOn = [&today, &days = days](QDate date) {
            const qsizetype index = days.size() - 1 - date.daysTo(today);
            return index >= 0 && index < days.size() ? days.at(index) * GB : 0;
        };
        const auto forecast = forecastOf(billingPeriodOf(today, 1), today, day(counted), 20 * GB, bytesOn);
        QCOMPARE(forecast.has_value(), atEnd >= 0);
        if (!forecast)
            return;
        QCOMPARE(qRound64(double(forecast->atEnd) / 1e6), qRound64(atEnd * 1000));
        QCOMPARE(forecast->usedUpOn, day(usedUpOn));
    }
};

QTEST_APPLESS_MAIN(TestBilling)
#include "tst_billing.moc"
