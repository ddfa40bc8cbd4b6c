// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "shell/csv.h"
#include "statistics/trafficcsv.h"
#include "statistics/traffictexts.h"

#include <QLocale>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const Rows<quint64, QString, QString> writesVolumesAsOperatorsBillRows{
    {"below the first unit", 999ULL, u"999 bytes"_s, u"999 Bytes"_s},
    {"first unit", 1000ULL, u"1.00 kB"_s, u"1,00 kB"_s},
    {"rounds up to a unit", 999'999ULL, u"1.00 MB"_s, u"1,00 MB"_s},
    {"tens", 12'345'678ULL, u"12.3 MB"_s, u"12,3 MB"_s},
    {"gigabytes", 1'234'567'890ULL, u"1.23 GB"_s, u"1,23 GB"_s},
    {"any number", ~0ULL, u"9.22 EB"_s, u"9,22 EB"_s},
};

// RFC 4180, and nothing that a spreadsheet would calculate.
const Rows<QString, QByteArray> fieldsRows{
    {"every script", u"بيت 家 🏠"_s, "بيت 家 🏠"},
    {"minus inside", u"A-Net"_s, "A-Net"},
    {"comma", u"a,b"_s, "\"a,b\""},
    {"quotes", u"the \"fast\" one"_s, "\"the \"\"fast\"\" one\""},
    {"line break", u"two\r\nlines"_s, "\"two\r\nlines\""},
    {"blanks at the edges", u" a "_s, "\" a \""},
    {"formula", u"=HYPERLINK(x)"_s, "'=HYPERLINK(x)"},
    {"signs", u"+49 30"_s, "'+49 30"},
    {"behind blanks", u"  =1"_s, "'  =1"},
    {"behind a tab", u"\t=1"_s, "\"'\t=1\""},
    {"wide equals sign", u"\uFF1D1"_s, "'\uFF1D1"},
    {"NUL", u"a\0b"_s, "ab"},
};

} // namespace

class TestTrafficCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void fields_data() { addRows(fieldsRows); }
    void fields()
    {
        const auto &[name, text, written] = currentRow(fieldsRows);
        CsvTable csv({u"first"_s, u"second"_s});
        csv.addRow({text, u"x"_s});
        QCOMPARE(csv.bytes(), "\xEF\xBB\xBF"
                              "first,second\r\n" +
                                  written + ",x\r\n");
    }

    void exportsForOtherPrograms()
    {
        QLocale::setDefault(QLocale(QLocale::German)); // what people see is written otherwise
        HistoryRecord record;
        record.start = QDateTime({2024, 5, 3}, {12, 34, 56, 789}, Qt::OffsetFromUTC, 7200);
        record.end = record.start.addSecs(3723);
        record.duration = std::chrono::seconds(3723);
        record.profileName = u"=evil, \"quoted\""_s;
        record.volumes = {{1234567890123, 5}, {7, 8}};
        record.isRoaming = true;
        record.ended = historyend::Peer;
        QCOMPARE(historyCsv({record}).split('\n').at(1),
                 QByteArray("2024-05-03T12:34:56+02:00,2024-05-03T13:36:59+02:00,3723,"
                            "\"'=evil, \"\"quoted\"\"\",1234567890130,13,7,8,1,network\r"));
        TrafficTotals totals;
        totals.add(QDate(2024, 5, 3), {10, 20}, false);
        totals.add(QDate(2024, 5, 3), {1, 2}, true);
        totals.addMonth(QDate(2021, 5, 1), {{5, 6}, {0, 0}});
        QVERIFY(totalsCsv(totals).endsWith("\r\n2021-05,5,6,0,0\r\n2024-05-03,11,22,1,2\r\n"));
    }

    void writesVolumesAsOperatorsBill_data() { addRows(writesVolumesAsOperatorsBillRows); }
    void writesVolumesAsOperatorsBill()
    {
        const auto &[name, bytes, english, german] = currentRow(writesVolumesAsOperatorsBillRows);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        const auto text = [&bytes = bytes] { return volumeText(bytes).replace(QChar::Nbsp, u' '); };
        QCOMPARE(text(), english);
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(text(), german);
    }

    void saysTimesAsPeopleDo()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        const QDateTime now({2024, 5, 3}, {0, 5});
        QCOMPARE(whenText(now.addSecs(-240), now), u"00:01"_s);
        QCOMPARE(whenText(now.addSecs(-600), now), u"Yesterday, 23:55"_s);
        QCOMPARE(whenText(now.addDays(-3), now), u"30 April, 00:05"_s);
        QCOMPARE(whenText(now.addYears(-1), now), u"03/05/2023 00:05"_s);
        QCOMPARE(durationText(std::chrono::seconds(59)), u"0:00:59"_s);
        QCOMPARE(durationText(std::chrono::hours(100)), u"100:00:00"_s);
    }
};

QTEST_APPLESS_MAIN(TestTrafficCsv)
#include "tst_trafficcsv.moc"
