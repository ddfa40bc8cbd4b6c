// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "shell/commoncfg.h"

#include <QProcess>

#include <atomic>
#include <optional>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

const QString fileName = u"Data/common-config.xml"_s;
constexpr auto warning = "can't read the common-config.xml file";

QStringList filesInData()
{
    return QDir(u"Data"_s).entryList(QDir::Files | QDir::Hidden);
}

QByteArray document(const QByteArray &sections)
{
    return "<?xml version=\"1.0\"?>\n<root>" + sections + "</root>\n";
}

const Rows<QByteArray, QString, QString> readsRows{
    {"plain", "<s><k>v</k></s>", u"s/k"_s, u"v"_s},
    {"letter case counts", "<s><K>v</K></s>", u"s/k"_s, {}},
    {"comments between", "<!-- a --><s><!-- b --><k>v<!-- c -->w</k></s>", u"s/k"_s, u"vw"_s},
    {"CDATA", "<s><k><![CDATA[<v>]]></k></s>", u"s/k"_s, u"<v>"_s},
    {"entities", "<s><k>&lt;&amp;&#228;</k></s>", u"s/k"_s, u"<&ä"_s},
    {"blanks only", "<s><k>  </k></s>", u"s/k"_s, u"  "_s},
    {"doubled key: first", "<s><k>1</k><k>2</k></s>", u"s/k"_s, u"1"_s},
    {"doubled key: first with a value", "<s><k/><k>2</k><k>3</k></s>", u"s/k"_s, u"2"_s},
    {"doubled section", "<s><k/></s><s><k>2</k></s>", u"s/k"_s, u"2"_s},
    {"stray text", "stray<s>stray<k>v</k>stray</s>stray", u"s/k"_s, u"v"_s},
};

const Rows<QByteArray, int> numbersRows{
    {"blanks around", " 12 ", 12},   {"sign", "-3", -3}, {"number and word", "12s", 0},
    {"too large", "99999999999", 0}, {"empty", {}, 0},
};

const Rows<QString> valuesSurviveRows{
    {"markup", u"<a href=\"x\">&amp;</a>]]>--"_s},
    {"carriage returns", u"one\r\ntwo\rthree"_s},
    {"blanks only", u"   "_s},
    {"other scripts", u"Größe İ 中文 العربية 😀"_s},
    {"empty", {}},
    {"long", QString(100'000, u'x')},
};

const QByteArray good = document("<s><k>v</k></s>");

const Rows<QByteArray> brokenFileIsKeptRows{
    {"cut", good.first(good.size() / 2)},
    {"no XML", "[s]\nk=v\n"},
    {"no UTF-8", document("<s><k>\xff\xfe</k></s>")},
    {"deep nesting", QByteArray("<a>").repeated(100'000)},
    {"growing entities", "<!DOCTYPE r [<!ENTITY a \"0123456789\"><!ENTITY b \"" +
                             QByteArray("&a;").repeated(50) + "\"><!ENTITY c \"" +
                             QByteArray("&b;").repeated(50) + "\">]><r><s><k>&c;</k></s></r>"},
    {"too large", document("<s><k>" + QByteArray(5'000'000, 'x') + "</k></s>")},
};

} // namespace

class TestCommonCfg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.emplace(); }

    void reads_data() { addRows(readsRows); }
    void reads()
    {
        const auto &[name, sections, path, value] = currentRow(readsRows);
        putFile(fileName, document(sections));
        QVERIFY(QFile::setPermissions(fileName, QFile::ReadOwner)); // enough to read
        QCOMPARE(CommonCfg().getValue(path.section(u'/', 0, 0), path.section(u'/', 1)), value);
    }

    void numbers_data() { addRows(numbersRows); }
    void numbers()
    {
        const auto &[name, text, number] = currentRow(numbersRows);
        putFile(fileName, document("<s><k>" + text + "</k></s>"));
        QCOMPARE(CommonCfg().getNumber(u"s"_s, u"k"_s), number);
    }

    void cachesByKeyName()
    {
        for (const QString &key : {u"operator"_s, u"duration_format"_s, u"usage_statistic_enabled"_s}) {
            CommonCfg cfg;
            cfg.setValue(u"setting"_s, key, {});
            QCOMPARE(cfg.getValue(u"setting"_s, key), QString());

            cfg.setValue(u"setting"_s, key, u"first"_s); // an empty value was not kept
            QCOMPARE(cfg.getValue(u"other"_s, key), QString());
            QCOMPARE(cfg.getValue(u"setting"_s, key), u"first"_s);
            QCOMPARE(cfg.getValue(u"other"_s, key), u"first"_s);

            cfg.setValue(u"setting"_s, key, u"second"_s); // on disk at once, seen after a restart
            QCOMPARE(cfg.getValue(u"setting"_s, key), u"first"_s);
            QCOMPARE(CommonCfg().getValue(u"setting"_s, key), u"second"_s);
        }
    }

    void valuesSurvive_data() { addRows(valuesSurviveRows); }
    void valuesSurvive()
    {
        const auto &[name, value] = currentRow(valuesSurviveRows);
        CommonCfg first;
        first.setValue(u"s"_s, u"k"_s, value);
        QCOMPARE(first.getValue(u"s"_s, u"k"_s), value);
        for (int round = 0; round < 3; ++round) {
            CommonCfg again;
            QCOMPARE(again.getValue(u"s"_s, u"k"_s), value);
            again.setValue(u"s"_s, u"other"_s, QString::number(round));
        }
    }

    void unfitTextIsMadeFit()
    {
        CommonCfg cfg;
        cfg.setValue(u"s"_s, u"k"_s, u"a\u0001b"_s + QChar(0xD800) + QChar(0xFFFF) + u"c"_s);
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), u"a\uFFFDb\uFFFD\uFFFDc"_s);
    }

    void unfitNamesAreRefused()
    {
        CommonCfg cfg;
        for (const QString &name : {u""_s, u"a b"_s, u"1a"_s, u"-a"_s, u"a>"_s, u"a:b"_s, u"ä"_s}) {
            cfg.setValue(name, u"k"_s, u"v"_s);
            cfg.setValue(u"s"_s, name, u"v"_s);
            QVERIFY2(contentOf(fileName).isEmpty(), qPrintable(name));
        }
    }

    void keepsWhatItDoesNotKnow()
    {
        putFile(fileName,
                document("<!-- a note --><s about=\"&quot;it&quot;\"><k>old</k><z>&#13;</z></s><t/>"));
        CommonCfg().setValue(u"s"_s, u"k"_s, u"new"_s);
        const QByteArray written = contentOf(fileName);
        for (const char *part :
             {"<root>", "<!-- a note -->", "about=\"&quot;it&quot;\"", "<k>new</k>", "<z>&#13;</z>", "<t/>"})
            QVERIFY2(written.contains(part), part);

        CommonCfg().setValue(u"s"_s, u"k"_s, u"new"_s); // and does not drift
        QCOMPARE(contentOf(fileName), written);
    }

    void setAnswersWithWhatWasSet()
    {
        putFile(fileName, document("<s><k/></s><s><k>2</k><k>3</k></s>"));
        CommonCfg cfg;
        cfg.setValue(u"s"_s, u"k"_s, {});
        QCOMPARE(cfg.getValue(u"s"_s, u"k"_s), QString());
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), QString());
    }

    void missingFileIsNotMade()
    {
        QTest::ignoreMessage(QtWarningMsg, warning);
        CommonCfg cfg;
        QCOMPARE(cfg.getValue(u"s"_s, u"k"_s), QString());
        QVERIFY(filesInData().isEmpty());
        cfg.setValue(u"s"_s, u"k"_s, u"v"_s);
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), u"v"_s);
        QCOMPARE(filesInData().size(), 1);
    }

    void brokenFileIsKept_data() { addRows(brokenFileIsKeptRows); }
    void brokenFileIsKept()
    {
        const auto &[name, content] = currentRow(brokenFileIsKeptRows);
        putFile(fileName, content);
        QTest::ignoreMessage(QtWarningMsg, warning);
        CommonCfg cfg;
        QCOMPARE(cfg.getValue(u"s"_s, u"k"_s), QString());
        QCOMPARE(contentOf(fileName), content);

        cfg.setValue(u"s"_s, u"k"_s, u"new"_s);
        cfg.setValue(u"s"_s, u"l"_s, u"more"_s);
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), u"new"_s);
        QCOMPARE(filesInData().size(), 2); // the new one, and one that was kept
        QVERIFY(contentOf(cfg.keptBrokenFile()) == content);
    }

    void failedWriteIsTold()
    {
        CommonCfg cfg;
        QVERIFY(QDir().rmdir(u"Data"_s));
        QFile inTheWay(u"Data"_s);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        cfg.setValue(u"s"_s, u"k"_s, u"v"_s);
        QVERIFY(!cfg.lastError().isEmpty());
        QCOMPARE(cfg.getValue(u"s"_s, u"k"_s), u"v"_s);

        QVERIFY(inTheWay.remove());
        cfg.saveDom();
        QCOMPARE(cfg.lastError(), QString());
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), u"v"_s);
    }

    void readWhileWritten()
    {
        putFile(fileName, document("<s><k>0</k><fixed>here</fixed></s>"));
        CommonCfg cfg;
        std::atomic<bool> ended = false;
        std::atomic<int> wrong = 0;
        std::thread reader([&] {
            int last = 0;
            while (!ended) {
                const int now = cfg.getNumber(u"s"_s, u"k"_s);
                if (now < last || cfg.getValue(u"s"_s, u"fixed"_s) != "here"_L1)
                    ++wrong;
                last = now;
            }
        });
        for (int i = 1; i <= 100; ++i)
            cfg.setValue(u"s"_s, u"k"_s, QString::number(i));
        ended = true;
        reader.join();
        QCOMPARE(wrong.load(), 0);
        QCOMPARE(CommonCfg().getNumber(u"s"_s, u"k"_s), 100);
    }

    void toolsAtOnceLoseNothing()
    {
        constexpr int count = 12;
        putFile(fileName, document("<s><fixed>here</fixed></s>"));
        std::vector<std::unique_ptr<QProcess>> tools;
        for (int i = 0; i < count; ++i) {
            tools.push_back(std::make_unique<QProcess>());
            tools.back()->start(QStringLiteral(CORVA_CONFIGSET), {u"s"_s, u"k%1"_s.arg(i), u"v"_s});
        }
        for (const auto &tool : tools)
            QVERIFY(tool->waitForFinished() && tool->exitCode() == 0);
        const CommonCfg cfg;
        QCOMPARE(cfg.getValue(u"s"_s, u"fixed"_s), u"here"_s);
        for (int i = 0; i < count; ++i)
            QCOMPARE(cfg.getValue(u"s"_s, u"k%1"_s.arg(i)), u"v"_s);
    }

private:
    std::optional<ScratchFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestCommonCfg)
#include "tst_commoncfg.moc"
