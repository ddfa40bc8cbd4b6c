// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/commoncfg.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto fileName = "Data/common-config.xml";
constexpr auto warning = "can't read the common-config.xml file";

QByteArray fileContent()
{
    QFile file(QString::fromLatin1(fileName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void putFile(const QByteArray &content)
{
    QFile file(QString::fromLatin1(fileName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QStringList filesInData()
{
    return QDir(u"Data"_s).entryList(QDir::Files | QDir::Hidden);
}

QByteArray document(const QByteArray &sections)
{
    return "<?xml version=\"1.0\"?>\n<root>" + sections + "</root>\n";
}

} // namespace

class TestCommonCfg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        QVERIFY(QDir().mkdir(u"Data"_s));
    }

    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void reads_data()
    {
        QTest::addColumn<QByteArray>("sections");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *name, const char *sections, const char *path, const QString &value) {
            const QStringList names = QString::fromLatin1(path).split(u'/');
            QTest::newRow(name) << QByteArray(sections) << names.at(0) << names.at(1) << value;
        };
        row("plain", "<s><k>v</k></s>", "s/k", u"v"_s);
        row("another section", "<s><k>v</k></s>", "t/k", {});
        row("letter case counts", "<s><K>v</K></s>", "s/k", {});
        row("letter case of the section", "<S><k>v</k></S>", "s/k", {});
        row("no key", "<s><k>v</k></s>", "s/l", {});
        row("comments between", "<!-- a --><s><!-- b --><k>v<!-- c -->w</k></s>", "s/k", u"vw"_s);
        row("CDATA", "<s><k><![CDATA[<v>]]></k></s>", "s/k", u"<v>"_s);
        row("entities", "<s><k>&lt;&amp;&#228;</k></s>", "s/k", u"<&ä"_s);
        row("blanks only", "<s><k>  </k></s>", "s/k", u"  "_s);
        row("doubled key: first", "<s><k>1</k><k>2</k></s>", "s/k", u"1"_s);
        row("doubled key: first with a value", "<s><k/><k>2</k><k>3</k></s>", "s/k", u"2"_s);
        row("doubled section", "<s><k/></s><s><k>2</k></s>", "s/k", u"2"_s);
        row("stray text", "stray<s>stray<k>v</k>stray</s>stray", "s/k", u"v"_s);
    }

    void reads()
    {
        QFETCH(QByteArray, sections);
        QFETCH(QString, section);
        QFETCH(QString, key);
        putFile(document(sections));
        QTEST(CommonCfg().getValue(section, key), "value");
    }

    void numbers_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("number");
        QTest::newRow("plain") << QByteArray("12") << 12;
        QTest::newRow("blanks around") << QByteArray(" 12 ") << 12;
        QTest::newRow("sign") << QByteArray("-3") << -3;
        QTest::newRow("word") << QByteArray("ten") << 0;
        QTest::newRow("number and word") << QByteArray("12s") << 0;
        QTest::newRow("hexadecimal") << QByteArray("0x12") << 0;
        QTest::newRow("too large") << QByteArray("99999999999") << 0;
        QTest::newRow("empty") << QByteArray() << 0;
    }

    void numbers()
    {
        QFETCH(QByteArray, text);
        putFile(document("<s><k>" + text + "</k></s>"));
        QTEST(CommonCfg().getNumber(u"s"_s, u"k"_s), "number");
    }

    void cachesByKeyName_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("operator") << u"operator"_s;
        QTest::newRow("duration_format") << u"duration_format"_s;
        QTest::newRow("usage_statistic_enabled") << u"usage_statistic_enabled"_s;
    }

    void cachesByKeyName()
    {
        QFETCH(QString, key);
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

    void valuesSurvive_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("markup") << u"<a href=\"x\">&amp;</a>]]>--"_s;
        QTest::newRow("several lines") << u"one\n  two\n\nthree\n"_s;
        QTest::newRow("carriage returns") << u"one\r\ntwo\rthree"_s;
        QTest::newRow("blanks only") << u"   "_s;
        QTest::newRow("line ends only") << u"\n\n"_s;
        QTest::newRow("tabs and blanks around") << u"\t v \t"_s;
        QTest::newRow("other scripts") << u"Größe İ 中文 العربية 😀"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("long") << QString(100'000, u'x');
    }

    void valuesSurvive()
    {
        QFETCH(QString, value);
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

    void unfitNamesAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"", "a b", "1a", "-a", "a>", "a:b", "ä"})
            QTest::newRow(name) << QString::fromUtf8(name);
    }

    void unfitNamesAreRefused()
    {
        QFETCH(QString, name);
        CommonCfg cfg;
        cfg.setValue(name, u"k"_s, u"v"_s);
        cfg.setValue(u"s"_s, name, u"v"_s);
        QVERIFY(fileContent().isEmpty());
    }

    void keepsWhatItDoesNotKnow()
    {
        putFile(document("<!-- a note --><s about=\"&quot;it&quot;\"><k>old</k><z>&#13;</z></s><t/>"));
        CommonCfg().setValue(u"s"_s, u"k"_s, u"new"_s);
        const QByteArray written = fileContent();
        for (const char *part :
             {"<root>", "<!-- a note -->", "about=\"&quot;it&quot;\"", "<k>new</k>", "<z>&#13;</z>", "<t/>"})
            QVERIFY2(written.contains(part), part);

        CommonCfg().setValue(u"s"_s, u"k"_s, u"new"_s); // and does not drift
        QCOMPARE(fileContent(), written);
    }

    void setAnswersWithWhatWasSet()
    {
        putFile(document("<s><k/></s><s><k>2</k><k>3</k></s>"));
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

    void brokenFileIsKept_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray good = document("<s><k>v</k></s>");
        QTest::newRow("cut") << good.first(good.size() / 2);
        QTest::newRow("no XML") << QByteArray("[s]\nk=v\n");
        QTest::newRow("two roots") << good + "<root/>";
        QTest::newRow("no UTF-8") << document("<s><k>\xff\xfe</k></s>");
        QTest::newRow("NUL bytes") << QByteArray(4096, '\0');
        QTest::newRow("deep nesting") << QByteArray("<a>").repeated(100'000);
        QTest::newRow("growing entities")
            << QByteArray("<!DOCTYPE r [<!ENTITY a \"0123456789\"><!ENTITY b \"") +
                   QByteArray("&a;").repeated(50) + "\"><!ENTITY c \"" + QByteArray("&b;").repeated(50) +
                   "\">]><r><s><k>&c;</k></s></r>";
        QTest::newRow("too large") << document("<s><k>" + QByteArray(5'000'000, 'x') + "</k></s>");
    }

    void brokenFileIsKept()
    {
        QFETCH(QByteArray, content);
        putFile(content);
        QTest::ignoreMessage(QtWarningMsg, warning);
        CommonCfg cfg;
        QCOMPARE(cfg.getValue(u"s"_s, u"k"_s), QString());
        QCOMPARE(fileContent(), content);

        cfg.setValue(u"s"_s, u"k"_s, u"new"_s);
        cfg.setValue(u"s"_s, u"l"_s, u"more"_s);
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), u"new"_s);
        QCOMPARE(filesInData().size(), 2); // the new one, and one that was kept
        QFile kept(cfg.keptBrokenFile());
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QVERIFY(kept.readAll() == content);
    }

    void readOnlyFileIsRead()
    {
        putFile(document("<s><k>v</k></s>"));
        QVERIFY(QFile::setPermissions(QString::fromLatin1(fileName), QFile::ReadOwner));
        QCOMPARE(CommonCfg().getValue(u"s"_s, u"k"_s), u"v"_s);
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
        putFile(document("<s><k>0</k><fixed>here</fixed></s>"));
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
        putFile(document("<s><fixed>here</fixed></s>"));
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
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestCommonCfg)
#include "tst_commoncfg.moc"
