// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/csv.h"
#include "statistics/trafficcsv.h"
#include "statistics/traffictexts.h"

#include <QLocale>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

using Table = QList<QStringList>;

/// A reader that takes RFC 4180 to the letter; std::nullopt for anything else.
std::optional<Table> readStrictly(const QByteArray &bytes)
{
    if (!bytes.startsWith("\xEF\xBB\xBF") || !bytes.endsWith("\r\n"))
        return std::nullopt;
    const QString text = QString::fromUtf8(bytes.sliced(3));
    Table table;
    QStringList row;
    for (qsizetype at = 0; at < text.size();) {
        QString field;
        if (text.at(at) == u'"') {
            for (++at;; ++at) {
                if (at >= text.size())
                    return std::nullopt;
                if (text.at(at) == u'"' && (at + 1 >= text.size() || text.at(++at) != u'"'))
                    break;
                field += text.at(at);
            }
        } else {
            for (; at < text.size() && text.at(at) != u',' && text.at(at) != u'\r'; ++at) {
                if (text.at(at) == u'"' || text.at(at) == u'\n')
                    return std::nullopt;
                field += text.at(at);
            }
        }
        row += field;
        if (text.mid(at, 2) == "\r\n"_L1) {
            if (!table.isEmpty() && row.size() != table.front().size())
                return std::nullopt;
            table += std::exchange(row, {});
            at += 2;
        } else if (at < text.size() && text.at(at) == u',') {
            ++at;
        } else {
            return std::nullopt;
        }
    }
    return table;
}

} // namespace

class TestTrafficCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void fieldsComeBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("field");
        const auto same = [](const char *name, const QString &text) { QTest::newRow(name) << text << text; };
        const auto guarded = [](const char *name, const QString &text) {
            QTest::newRow(name) << text << QString(u'\'' + text);
        };
        same("plain", u"Home"_s);
        same("empty", {});
        same("comma", u"a,b"_s);
        same("quotes", u"the \"fast\" one\""_s);
        same("line break", u"two\r\nlines"_s);
        same("blanks at the edges", u" a "_s);
        same("every script", u"بيت 家 🏠"_s);
        same("minus inside", u"A-Net"_s);
        guarded("formula", u"=HYPERLINK(\"http://x\")"_s);
        guarded("plus", u"+49 30"_s);
        guarded("minus", u"-1"_s);
        guarded("at", u"@SUM(A1)"_s);
        guarded("tab", u"\t=1"_s);
        guarded("carriage return", u"\r=1"_s);
        guarded("behind blanks", u"  =1"_s);
        guarded("wide equals sign", u"\uFF1D1"_s);
        QTest::newRow("NUL") << u"a\0b"_s << u"ab"_s;
    }

    void fieldsComeBack()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, field);
        CsvTable csv({u"first"_s, u"second"_s});
        csv.addRow({text, u"x"_s});
        const auto table = readStrictly(csv.bytes());
        QVERIFY2(table, csv.bytes().constData());
        QCOMPARE(*table, (Table{{u"first"_s, u"second"_s}, {field, u"x"_s}}));
    }

    void exportsTheHistoryForOtherPrograms()
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
        const auto table = readStrictly(historyCsv({record}));
        QVERIFY(table);
        QCOMPARE(table->size(), 2);
        QCOMPARE(table->at(1), (QStringList{u"2024-05-03T12:34:56+02:00"_s, u"2024-05-03T13:36:59+02:00"_s,
                                            u"3723"_s, u"'=evil, \"quoted\""_s, u"1234567890130"_s, u"13"_s,
                                            u"7"_s, u"8"_s, u"1"_s, u"network"_s}));
    }

    void exportsDaysAndFoldedMonths()
    {
        TrafficTotals totals;
        totals.add(QDate(2024, 5, 3), {10, 20}, false);
        totals.add(QDate(2024, 5, 3), {1, 2}, true);
        totals.addMonth(QDate(2021, 5, 1), {{5, 6}, {0, 0}});
        const auto table = readStrictly(totalsCsv(totals));
        QVERIFY(table);
        QCOMPARE(table->at(1), (QStringList{u"2021-05"_s, u"5"_s, u"6"_s, u"0"_s, u"0"_s}));
        QCOMPARE(table->at(2), (QStringList{u"2024-05-03"_s, u"11"_s, u"22"_s, u"1"_s, u"2"_s}));
    }

    void writesVolumesAsOperatorsBill_data()
    {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        QTest::newRow("none") << 0ULL << u"0 bytes"_s << u"0 Bytes"_s;
        QTest::newRow("below the first unit") << 999ULL << u"999 bytes"_s << u"999 Bytes"_s;
        QTest::newRow("first unit") << 1000ULL << u"1.00 kB"_s << u"1,00 kB"_s;
        QTest::newRow("rounds up to a unit") << 999'999ULL << u"1.00 MB"_s << u"1,00 MB"_s;
        QTest::newRow("tens") << 12'345'678ULL << u"12.3 MB"_s << u"12,3 MB"_s;
        QTest::newRow("hundreds") << 999'499'999ULL << u"999 MB"_s << u"999 MB"_s;
        QTest::newRow("gigabytes") << 1'234'567'890ULL << u"1.23 GB"_s << u"1,23 GB"_s;
        QTest::newRow("any number") << ~0ULL << u"9.22 EB"_s << u"9,22 EB"_s;
    }

    void writesVolumesAsOperatorsBill()
    {
        QFETCH(const quint64, bytes);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        const auto text = [&] { return volumeText(bytes).replace(QChar::Nbsp, u' '); };
        QTEST(text(), "english");
        QLocale::setDefault(QLocale(QLocale::German));
        QTEST(text(), "german");
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
