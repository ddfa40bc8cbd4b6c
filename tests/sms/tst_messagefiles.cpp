// SPDX-License-Identifier: GPL-3.0-or-later
// What messages are on disk: how they come back, from whole files, damaged ones, and those of other programs.
#include "sms/messageexport.h"
#include "sms/messagetransfer.h"
#include "sms/messagexml.h"
#include "storetest.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// One of everything, told from its default.
Message fullMessage()
{
    Message message = sentMessage(u"+49171234567"_s, {17, 255});
    message.id = u"0123456789abcdef"_s;
    message.box = MessageBox::Deleted;
    message.recipients += u"Bank \"&<>\", 'ltd'"_s;
    message.serviceCentre = u"+491710760000"_s;
    message.time = QDateTime({2024, 5, 3}, {23, 59, 59, 7}, Qt::OffsetFromUTC, -(3 * 3600 + 1800));
    message.concatReference = 65535;
    message.is16Bit = true;
    message.isBroadcast = true;
    message.channel = 919;
    message.error = u"length: 200 octets, 12 are there"_s;
    message.deletedFrom = MessageBox::Drafts;
    message.about = u"another"_s;
    MessagePart &part = message.parts[1];
    part.recipient = 1;
    part.pdu = u"0001000B91"_s;
    part.storageIndex = 254;
    part.state = DeliveryState::StillTrying;
    part.reported = moment(99);
    part.statusOctet = 0x21;
    part.errorCode = 513;
    part.fault = u"Because."_s;
    return message;
}

QByteArray storeXml(const std::vector<Message> &messages)
{
    QByteArray bytes = storeXmlHead();
    for (const Message &message : messages)
        bytes += messageXml(message);
    return bytes + storeXmlTail();
}

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestMessageFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void comesBackAsItWas_data()
    {
        QTest::addColumn<Message>("message");
        QTest::newRow("everything") << fullMessage();
        QTest::newRow("nothing but the number") << [] {
            Message message;
            message.recipients = {u"1"_s};
            return message;
        }();
        const auto text = [](const char *name, const QString &hostile) {
            Message message = received(hostile, hostile);
            message.error = hostile;
            message.parts[0].pdu = hostile;
            QTest::newRow(name) << message;
        };
        QString controls;
        for (char16_t c = 0; c < 0x20; ++c)
            controls += QChar(c);
        text("control characters", u"a"_s + controls);
        text("halves of pairs and noncharacters", u"\xD800 x \xDC00\xDC00\xD800 \uFFFE\uFFFF\U0001F600"_s);
        text("markup", u"<b>&amp;</b> ]]> <!-- --> <?x?> </part>"_s);
        text("escapes of our own", u"\\u0007 \\\\ C:\\new\\u12 \\"_s);
        text("blanks alone", u"  "_s);
        text("blanks and line ends at the edges", u"\n\r\n a\t\r"_s);
        text("formula", u"=HYPERLINK(\"http://x\";\"y\")"_s);
        text("apostrophes", u"''=1"_s);
        text("signs of a table", u"a;b,c\t\"d\"\r\n\"\""_s);
        text("from right to left", u"مرحبا \u202Eabc\u202C"_s);
    }

    void comesBackAsItWas()
    {
        QFETCH(const Message, message);
        std::vector<Message> messages{message, sentMessage(u"1"_s, {1, 2})};
        messages[1].id = u"other"_s;
        const ParsedMessages stored = parseStoreXml(storeXml(messages));
        QCOMPARE(stored.problem, QString());
        QVERIFY(stored.messages == messages);
        const ExportedMessages json = parseMessagesJson(messagesJson(messages));
        QVERIFY(json.messages == messages);
        const ExportedMessages csv = parseMessagesCsv(messagesCsv(messages));
        QCOMPARE(json.unreadable + csv.unreadable, 0);
        QCOMPARE(csv.messages.size(), messages.size());
        QVERIFY(csv.messages == messages);
    }

    void readsWhatIsLeft_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("texts");
        const QByteArray first = messageXml(received(u"1"_s, u"first"_s));
        const QByteArray second = messageXml(received(u"1"_s, u"second"_s));
        const QByteArray third = messageXml(received(u"1"_s, u"third"_s));
        const QStringList all{u"first"_s, u"second"_s, u"third"_s};
        const auto row = [](const char *name, const QByteArray &bytes, const QStringList &texts) {
            QTest::newRow(name) << bytes << texts;
        };
        const auto with = [&](QByteArray middle, const QByteArray &what, const QByteArray &by) {
            return storeXmlHead() + first + middle.replace(what, by) + third + storeXmlTail();
        };
        const QByteArray whole = with(second, "x", "x");
        row("cut off", whole.first(whole.indexOf("third") - 30), {u"first"_s, u"second"_s, u""_s});
        row("without an end", whole.chopped(storeXmlTail().size()), all);
        row("a stray sign", with(second, "<part", "<&<part"), {u"first"_s, u""_s, u"third"_s});
        row("bytes that are no text", with(second, "second", "\xFF\xFE"),
            {u"first"_s, u"\uFFFD\uFFFD"_s, u"third"_s});
        row("zeros in the middle", with(second, "second", QByteArray(4096, '\0')),
            {u"first"_s, QString(4096, QChar::ReplacementCharacter), u"third"_s});
        row("an element of a later version", with(second, "<part", "<star/><part"), all);
        row("an attribute of a later version", with(second, "<message", "<message star=\"1\""), all);
        row("a number out of range", with(second, "<message", "<message total=\"9999999999\""), all);
        row("another version", QByteArray(whole).replace("version=\"1\">", "version=\"2\">"), all);
        row("another kind of file", "<html><body>hello</body></html>", {});
        row("no text at all", QByteArray(100, '\xFF'), {});
    }

    void readsWhatIsLeft()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QStringList, texts);
        put(path(), bytes);
        {
            LoadedStore store(m_folder->path());
            QStringList found = store.texts(MessageBox::Inbox);
            QStringList wanted = texts;
            found.sort();
            wanted.sort();
            QCOMPARE(found, wanted);
            QVERIFY(QTest::qWaitFor([&] { return store.errors.size() == 1; }));
            const QStringList kept = QDir(m_folder->path()).entryList({u"sms.xml.broken-*"_s});
            QCOMPARE(kept.size(), 1);
            QVERIFY2(store.errors[0].contains(kept[0]), qPrintable(store.errors[0]));
            QCOMPARE(contentOf(m_folder->filePath(kept[0])), bytes);
            QVERIFY(store->flush());
        }
        QCOMPARE(parseStoreXml(contentOf(path())).problem, QString());
        QCOMPARE(LoadedStore(m_folder->path()).box(MessageBox::Inbox).size(), size_t(texts.size()));
    }

    void givesIdsAnew()
    {
        Message message = received(u"1"_s, u"one"_s);
        message.id = u"same"_s;
        Message other = received(u"1"_s, u"two"_s);
        other.id = u"same"_s;
        put(path(), storeXml({message, other, received(u"1"_s, u"three"_s)}));
        LoadedStore store(m_folder->path());
        const QStringList ids = store->ids(MessagePlace::Computer);
        QCOMPARE(QSet<QString>(ids.begin(), ids.end()).size(), 3);
        QCOMPARE(store->find(u"same"_s)->text(), u"one"_s);
    }

    void writesLaterWhatItCouldNot()
    {
        LoadedStore store(m_folder->path());
        const Message message = received(u"1"_s, u"first"_s);
        QVERIFY(QDir().mkdir(path())); // where the file is to be
        QVERIFY(!store->add({message}).result());
        QVERIFY(!store->add({received(u"1"_s, u"second"_s, 1)}).result());
        QVERIFY(QTest::qWaitFor([&] { return !store.errors.isEmpty(); }));
        QVERIFY(QDir().rmdir(path()));
        // Listed again on the card, which has it still.
        QVERIFY(store->add({message}).result());
        QCOMPARE(store.errors.size(), 1);
        QCOMPARE(LoadedStore(m_folder->path()).texts(MessageBox::Inbox),
                 (QStringList{u"second"_s, u"first"_s}));
    }

    void readsTablesOfOthers_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("found");
        QTest::addColumn<int>("unreadable");
        const QString both = u"+491 2024-05-03 one; two"_s;
        const QByteArray utf16 = [] {
            const QString text = u"\uFEFFnumber\ttime\ttext\r\n+491\t2024-05-03T10:00:00\tone; two\r\n"_s;
            return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
        }();
        const auto row = [](const char *name, const QByteArray &bytes, const QStringList &found, int bad) {
            QTest::newRow(name) << bytes << found << bad;
        };
        row("the least", "number,time,text\n+491,2024-05-03T10:00:00,one; two\n", {both}, 0);
        row("semicolons", "time;text;number\r\n2024-05-03T10:00:00;\"one; two\";'+491\r\n\r\n", {both}, 0);
        row("UTF-16 with tabs", utf16, {both}, 0);
        row("a column more", "number,colour,time,text\n+491,red,2024-05-03T10:00:00,one; two", {both}, 0);
        row("a time of no calendar",
            "number,time,text\n+491,yesterday,no\n+491,2024-05-03T10:00:00,one; two\n", {both}, 1);
        row("a quote that is not closed", "number,time,text\n+491,2024-05-03T10:00:00,\"one; two", {both}, 0);
        row("a number that is none",
            "number,time,text\n\"+492\n" + QByteArray(2000, 'x') +
                "\",,no\n+491,2024-05-03T10:00:00,one; two\n",
            {both}, 1);
        row("control characters",
            "number,time,text\n+49\x07\x1b"
            "1,2024-05-03T10:00:00,one\x7f;\x01 two",
            {both}, 0);
        row("neither number nor text", R"({"format": "messages", "version": 1, "messages": [
            {"numbers": ["\u0000"], "parts": [{"text": "\u0007"}]},
            {"numbers": ["+491"], "time": "2024-05-03T10:00:00", "parts": [{"text": "one; two"}]}]})",
            {both}, 1);
        row("empty rows", "number,time,text\n,,\n+491,2024-05-03T10:00:00,one; two\n", {both}, 1);
    }

    void readsTablesOfOthers()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QStringList, found);
        QFETCH(const int, unreadable);
        const ExportedMessages read = parseExport(bytes);
        QVERIFY(read.isKnown);
        QStringList texts;
        for (const Message &message : read.messages)
            texts +=
                message.recipients.join(u' ') + message.time.toString(u" yyyy-MM-dd "_s) + message.text();
        QCOMPARE(texts, found);
        QCOMPARE(read.unreadable, unreadable);
    }

    void goesToAnotherComputer_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("table") << u"messages.CSV"_s;
        QTest::newRow("JSON") << u"messages.json"_s;
    }

    void goesToAnotherComputer()
    {
        QFETCH(const QString, name);
        const QString file = m_folder->filePath(name);
        LoadedStore here(m_folder->filePath(u"here"_s));
        std::vector<Message> many;
        many.reserve(1200);
        for (int i = 0; i < 1200; ++i)
            many.push_back(received(u"+491"_s, QString::number(i), i));
        here->add(many);
        here->add({longPart(u"+492"_s, 5, 3, 2, u"middle"_s), sentMessage(u"+493"_s, {7, 8}, 5)});
        const std::vector<Message> all = here->messages(here->ids(MessagePlace::Computer));
        QCOMPARE(exportMessages(all, file).result(), QString());

        MessageStore there(m_folder->filePath(u"there"_s), 9);
        there.add({many[3]}); // received by both
        auto outcome = importMessages(&there, file);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        there.load(); // the file is read, and waits for this
        QVERIFY(QTest::qWaitFor([&] { return outcome.isFinished(); }));
        QCOMPARE(outcome.result().error, QString());
        QCOMPARE(outcome.result().added, 1201);
        QCOMPARE(outcome.result().present, 1);
        // What is new goes on where it stopped.
        there.add({longPart(u"+492"_s, 5, 3, 1, u"begin "_s)});
        QCOMPARE(there.search(u"begin middle"_s).size(), 1);
        QCOMPARE(there.applyReport({u"+493"_s, 8, 0, moment(5), moment(6), moment(7), u"00"_s, {}}).part, 1);

        outcome = importMessages(&there, file);
        QVERIFY(QTest::qWaitFor([&] { return outcome.isFinished(); }));
        QCOMPARE(outcome.result().added, 0);
    }

    void refusesOtherFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a letter") << QByteArray("Dear all,\nhello\n");
        QTest::newRow("other JSON") << QByteArray("{\"format\": \"something\", \"messages\": []}");
        QTest::newRow("a picture") << QByteArray::fromHex("89504E470D0A1A0A0000000D49484452");
    }

    void refusesOtherFiles()
    {
        QFETCH(const QByteArray, bytes);
        put(m_folder->filePath(u"file"_s), bytes);
        LoadedStore store(m_folder->path());
        const auto outcome = importMessages(&store.store, m_folder->filePath(u"file"_s));
        QVERIFY(QTest::qWaitFor([&] { return outcome.isFinished(); }));
        QVERIFY(outcome.result().error.startsWith(u"file is not"_s));
        const auto missing = importMessages(&store.store, m_folder->filePath(u"missing"_s));
        QVERIFY(QTest::qWaitFor([&] { return missing.isFinished(); }));
        QVERIFY(missing.result().error.contains(u"cannot be read"_s));
    }

private:
    QString path() const { return m_folder->filePath(u"sms.xml"_s); }
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestMessageFiles)
#include "tst_messagefiles.moc"
