// SPDX-License-Identifier: GPL-3.0-or-later
#include "../storetest.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/markqueue.h"
#include "sms/recipients.h"
#include "sms/ui/channels.h"
#include "sms/ui/draftkeeper.h"
#include "sms/ui/messagecounter.h"
#include "sms/ui/messagesettings.h"
#include "sms/ui/messagetexts.h"
#include "sms/ui/mytextedit.h"
#include "sms/ui/templatestore.h"

#include <QComboBox>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

/// What the composer makes of what a person types, without the window around it.
class TestMessageParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QDir::setCurrent(m_folder.path());
        basePath = m_folder.path();
    }
    void recipients_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<bool>("isSound");
        QTest::newRow("nobody") << u" ,; "_s << QStringList{} << true;
        QTest::newRow("blanks and hyphens") << u"+49 151-123 45"_s << QStringList{u"+4915112345"_s} << true;
        QTest::newRow("several, one twice")
            << u"10086; 0151,10086"_s << QStringList{u"10086"_s, u"0151"_s} << true;
        QTest::newRow("digits and comma of Arabic")
            << u"١٢٣، +٤٥"_s << QStringList{u"123"_s, u"+45"_s} << true;
        QTest::newRow("pasted with marks of direction")
            << u"\u202A+4915\u202C"_s << QStringList{u"+4915"_s} << true;
        QTest::newRow("15 with the plus")
            << u"+12345678901234"_s << QStringList{u"+12345678901234"_s} << true;
        QTest::newRow("16 with the plus") << u"+123456789012345"_s << QStringList{} << false;
        QTest::newRow("plus in the middle") << u"49+151"_s << QStringList{} << false;
        QTest::newRow("plus alone") << u"+"_s << QStringList{} << false;
        QTest::newRow("star") << u"*100#"_s << QStringList{} << false;
        QTest::newRow("one of two is a name") << u"0151, Anna"_s << QStringList{u"0151"_s} << false;
        QTest::newRow("emoji") << u"01\U0001F4DE"_s << QStringList{} << false;
    }

    void recipients()
    {
        QFETCH(QString, written);
        QFETCH(QStringList, numbers);
        QFETCH(bool, isSound);
        const Recipients read = readRecipients(written);
        QCOMPARE(read.numbers, numbers);
        QCOMPARE(read.error.isEmpty(), isSound);
        QVERIFY2(read.error.isValidUtf16(), qPrintable(read.error));
    }

    void channels_data()
    {
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("kept"); ///< "-": refused
        QTest::newRow("none") << u""_s << u""_s;
        QTest::newRow("in any order, twice") << u"919 50,50;51"_s << u"50-51, 919"_s;
        QTest::newRow("the ends") << u"0, 65535"_s << u"0, 65535"_s;
        QTest::newRow("past the end") << u"65536"_s << u"-"_s;
        QTest::newRow("a range turned round") << u"9-5"_s << u"-"_s;
        QTest::newRow("a range of all") << u"0-65535"_s << u"-"_s;
        QTest::newRow("a word") << u"50, weather"_s << u"-"_s;
    }

    void channels()
    {
        QFETCH(QString, written);
        QFETCH(QString, kept);
        const Channels read = readChannels(written);
        QCOMPARE(read.error.isEmpty() ? channelsText(read.numbers) : u"-"_s, kept);
    }

    void counter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("why"); ///< the character that is named
        QTest::newRow("empty") << u""_s << u"Symbol: 0 /1"_s << u""_s;
        QTest::newRow("one message") << u"a"_s.repeated(160) << u"Symbol: 160 /1"_s << u""_s;
        QTest::newRow("two") << u"a"_s.repeated(161) << u"Symbol: 161 /2"_s << u""_s;
        QTest::newRow("an escape counts two") << u"€"_s.repeated(80) << u"Symbol: 160 /1"_s << u""_s;
        QTest::newRow("another alphabet") << u"明"_s.repeated(70) << u"Symbol: 70 /1"_s << u"明"_s;
        QTest::newRow("an emoji is two") << u"\U0001F600"_s << u"Symbol: 2 /1"_s << u"\U0001F600"_s;
        QTest::newRow("what cannot be seen is named") << u"a\u200Bb"_s << u"Symbol: 3 /1"_s << u"U+200B"_s;
    }

    void counter()
    {
        QFETCH(QString, text);
        MyTextEdit edit;
        QSignalSpy counted(&edit, &MyTextEdit::sigCounted);
        edit.setPlainText(text);
        if (!text.isEmpty())
            QVERIFY(!counted.isEmpty());
        QTEST(wordCount(edit.getExtentLength(), edit.split().formulaParts), "count");
        QFETCH(QString, why);
        QCOMPARE(lengthNotice(edit.split()).isEmpty(), why.isEmpty());
        QVERIFY(lengthNotice(edit.split()).contains(why));
    }

    void links()
    {
        const QString text =
            u"See (https://example.org/a?b=1&c=<x>), www.example.com. or mail me@example.net! "
            "Not: example, javascript:alert(1), file:///etc/passwd"_s;
        QCOMPARE(linksIn(text),
                 QStringList({u"https://example.org/a?b=1&c="_s, u"www.example.com"_s, u"me@example.net"_s}));
    }

    void aReportSaysWhatItsStatusMeans()
    {
        Message report;
        report.box = MessageBox::Reports;
        report.parts = {MessagePart()};
        report.parts.front().statusOctet = 0x46; // the validity is over
        QCOMPARE(previewOf(report), u"The message could not be delivered in time."_s);
    }

    void directions()
    {
        QCOMPARE(directionOf(u"10:30 مرحبا hello"_s), Qt::RightToLeft);
        QCOMPARE(directionOf(u"+49 hello مرحبا"_s), Qt::LeftToRight);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(directionOf(u"+49 151"_s), Qt::LeftToRight);
        QCOMPARE(directionOf(u"…"_s), Qt::RightToLeft);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void templatesOutliveTheProgram()
    {
        const QString path = m_folder.filePath(u"Data/templates.json"_s);
        const QStringList texts{u"On my way"_s, u"\"Quotes\"\nand lines"_s};
        QString error;
        {
            TemplateStore store(path);
            for (const QString &text : texts)
                QVERIFY(store.add(text, &error));
            QVERIFY(store.add(texts.front(), &error)); // is there
            QVERIFY(store.add(u"Gone"_s, &error));
            QVERIFY(store.remove(u"Gone"_s, &error));
        }
        QCOMPARE(TemplateStore(path).templates(), texts);
    }

    void brokenTemplatesAreKept()
    {
        QDir(m_folder.path()).mkdir(u"broken"_s);
        const QString path = m_folder.filePath(u"broken/templates.json"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{\"templates\": [\"On my");
        file.close();
        TemplateStore store(path);
        QCOMPARE(store.templates(), QStringList());
        QString error;
        QVERIFY2(store.add(u"New"_s, &error), qPrintable(error));
        QCOMPARE(QDir(m_folder.filePath(u"broken"_s)).entryList({u"templates.json.broken-*"_s}).size(), 1);
    }

    void theValidityThatIsSent()
    {
        const QStringList kept{u""_s, u"soon"_s, u"01"_s, u"2"_s, u"7"_s};
        QStringList shown;
        for (const QString &value : kept) {
            cmcfg.setValue(u"sms"_s, u"validPeriod"_s, value);
            const MessageSettings settings(nullptr);
            shown += settings.findChild<QComboBox *>(u"validPeriod"_s)->currentData().toString();
        }
        QCOMPARE(shown, (QStringList{u"0"_s, u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
    }

    void thousandsAreMarkedInTheOrderAskedFor()
    {
        const QTemporaryDir folder;
        MessageStore store(folder.path(), 7);
        store.load();
        QTRY_VERIFY(store.isLoaded());
        std::vector<Message> messages;
        for (int i = 0; i < 1200; ++i)
            messages.push_back(received(u"+491"_s, QString::number(i), i));
        store.add(std::move(messages));
        const QStringList ids = store.ids(MessageBox::Inbox);
        {
            MarkQueue marks(&store);
            marks.mark(ids, true);
            marks.mark({ids.back()}, false);
            QVERIFY(store.unreadCount(MessageBox::Inbox) > 1); // not all in one go
            QTRY_COMPARE(store.unreadCount(MessageBox::Inbox), 1);
            QVERIFY(!store.find(ids.back())->isRead);
            marks.mark(ids, false);
        }
        QCOMPARE(store.unreadCount(MessageBox::Inbox), 1200); // what waited at the end is not forgotten
    }

    void aDraftThatIsLeftWhileTheStoreIsReadStays()
    {
        const QTemporaryDir folder;
        MessageStore store(folder.path(), 7);
        store.load();
        QVERIFY(!store.isLoaded());
        DraftKeeper keeper(&store, nullptr);
        keeper.begin({}, {});
        keeper.setContent({{u"0151"_s}, u"earl"_s});
        keeper.flush();
        keeper.setContent({{u"0151"_s}, u"early"_s});
        keeper.flush();
        keeper.begin({}, {});
        keeper.setContent({{u"0152"_s}, u"not after all"_s});
        QCOMPARE(keeper.discard(), QString());
        QVERIFY(!store.isLoaded()); // nobody waited for it
        QTRY_COMPARE(store.ids(MessageBox::Deleted).size(), 1);
        const auto drafts = store.messages(store.ids(MessageBox::Drafts));
        QCOMPARE(drafts.size(), 1U);
        QCOMPARE(drafts.front().text(), u"early"_s);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestMessageParts)
#include "tst_messageparts.moc"
