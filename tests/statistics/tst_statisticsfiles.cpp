// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "statistics/statisticsstore.h"

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

HistoryRecord someRecord(const QString &id, const QString &profile = u"Home"_s)
{
    HistoryRecord record;
    record.id = id;
    record.start = QDateTime({2024, 5, 3}, {12, 34, 56}, Qt::OffsetFromUTC, -3600);
    record.end = record.start.addSecs(61);
    record.duration = std::chrono::seconds(61);
    record.profileName = profile;
    record.volumes = {{10'000'000'000'000'000, 2}, {3, 4}};
    record.isRoaming = true;
    record.ended = historyend::Idle;
    return record;
}

StoredTotals someTotals()
{
    StoredTotals stored;
    stored.totals.add(QDate(2024, 5, 3), {10, 20}, true);
    stored.totals.addMonth(QDate(2021, 5, 1), {{5, 6}, {7, 8}});
    stored.counted = u"<id & \"more\">"_s;
    stored.given = {{QDate(2024, 5, 1), Allowance::Roaming, 5'000'000'000, 80}};
    return stored;
}

RunningSession someSession()
{
    RunningSession session;
    session.id = u"one"_s;
    session.profileName = u"Home"_s;
    session.interfaceName = u"ppp0"_s;
    session.boot = u"boot"_s;
    session.start = QDateTime({2024, 5, 3}, {23, 59, 0}, Qt::OffsetFromUTC, 0);
    session.last = session.start.addSecs(120);
    session.duration = std::chrono::milliseconds(120'123);
    session.hasRoamed = true;
    session.carried.add(QDate(2024, 5, 3), {1, 2}, true);
    session.carried.add(QDate(2024, 5, 4), {3, 4}, false);
    session.counters = {4, std::nullopt, 9};
    return session;
}

// A name, and how it comes back.
const Rows<QString, QString> takesAnyProfileNameRows{
    {"markup", u"\"/><record id='x' & ]]> <!--"_s, u"\"/><record id='x' & ]]> <!--"_s},
    {"line breaks and tabs", u"a\r\nb\tc"_s, u"a\r\nb\tc"_s},
    {"what XML cannot hold", u"a\0\x1b\uFFFE"_s, u"a\uFFFD\uFFFD\uFFFD"_s},
    {"half a character", QString(QChar(0xD83C)), u"\uFFFD"_s},
    {"endless", QString(100'000, u'x'), QString(200, u'x')},
};

} // namespace

class TestStatisticsFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWas()
    {
        const auto totals = parseTotals(formatTotals(someTotals()));
        QCOMPARE(totals.problem, QString());
        QVERIFY(totals.content == someTotals());
        const auto session = parseSession(formatSession(someSession()));
        QCOMPARE(session.problem, QString());
        QVERIFY(session.content == someSession());
    }

    void takesAnyProfileName_data() { addRows(takesAnyProfileNameRows); }
    void takesAnyProfileName()
    {
        const auto &[title, name, back] = currentRow(takesAnyProfileNameRows);
        const auto parsed = parseHistory(formatHistory({someRecord(u"1"_s, name), someRecord(u"2"_s)}));
        QCOMPARE(parsed.problem, QString());
        QCOMPARE(parsed.content.size(), 2U);
        QCOMPARE(parsed.content.front().profileName, back);
        QVERIFY(parsed.content.back() == someRecord(u"2"_s));
    }

    void keepsWhatCanBeReadOfABrokenFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("records");
        const QByteArray good = formatHistory({someRecord(u"1"_s), someRecord(u"2"_s)});
        const auto changed = [&](const QByteArray &from, const QByteArray &to) {
            return QByteArray(good).replace(from, to);
        };
        QTest::newRow("cut off") << good.left(good.size() - 40) << 1;
        QTest::newRow("no XML") << QByteArray("\x00\xff garbage", 10) << 0;
        QTest::newRow("another kind of file") << QByteArray("<traffic version=\"1\"/>") << 0;
        QTest::newRow("of a later version") << changed("Record version=\"1\"", "Record version=\"2\"") << 0;
        QTest::newRow("one id twice") << changed("id=\"2\"", "id=\"1\"") << 1;
        QTest::newRow("an end that is no time") << changed("end=\"2024-05-03T12", "end=\"2024-15-03T12") << 0;
        QTest::newRow("negative volume") << changed("sent=\"2\"", "sent=\"-2\"") << 0;
        QTest::newRow("more than any link carries")
            << changed("sent=\"2\"", "sent=\"18446744073709551615\"") << 0;
        QTest::newRow("endless duration") << changed("\"61000\"", "\"9223372036854775807\"") << 0;
        QTest::newRow("grows by itself")
            << QByteArray("<!DOCTYPE h [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;\">"
                          "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;\">"
                          "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;\">]><historyRecord version=\"1\">"
                          "<record id=\"&e;\"/></historyRecord>")
            << 0;
    }

    void keepsWhatCanBeReadOfABrokenFile()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const int, records);
        const QTemporaryDir folder;
        putFile(folder.filePath(u"historyRecord.xml"_s), content);
        const LoadedStatistics loaded = StatisticsStore(folder.path()).load();
        QCOMPARE(int(loaded.history.size()), records);
        QCOMPARE(loaded.problems.size(), 1);
        const QStringList kept =
            QDir(folder.path()).entryList({u"historyRecord.xml.broken-*"_s}, QDir::Files);
        QCOMPARE(kept.size(), 1);
        QVERIFY2(loaded.problems.front().contains(kept.front()), qPrintable(loaded.problems.front()));
        QCOMPARE(contentOf(folder.filePath(kept.front())), content);
    }

    void saysWhyItCannotWrite()
    {
        const QTemporaryDir folder;
        StatisticsStore store(folder.path());
        QVERIFY(QDir(folder.path()).mkdir(u"traffic.xml"_s));
        const QString error = store.saveNow({{}, someTotals(), {}, someSession()});
        QVERIFY2(error.contains(u"traffic.xml"_s), qPrintable(error));
        QVERIFY(!QFile::exists(folder.filePath(u"traffic-session.xml"_s))); // what comes later waits
    }
};

QTEST_GUILESS_MAIN(TestStatisticsFiles)
#include "tst_statisticsfiles.moc"
