// SPDX-License-Identifier: GPL-3.0-or-later
// The control socket against hostile clients, and what profiles may hold.
#include "at/commandtable.h"
#include "control/controltable.h"
#include "testcard.h"

#include <QJsonDocument>
#include <QLocalSocket>
#include <QRegularExpression>

using cardemu::Profile;

namespace
{

class Socket
{
public:
    explicit Socket(const TestCard &card)
    {
        m_socket.connectToServer(card.path(u"control"_s));
        m_socket.waitForConnected(5000);
    }
    void send(const QByteArray &bytes)
    {
        m_socket.write(bytes);
        m_socket.flush();
    }
    QJsonObject receive()
    {
        while (!m_socket.canReadLine()) {
            if (!m_socket.waitForReadyRead(5000))
                return {};
        }
        return QJsonDocument::fromJson(m_socket.readLine()).object();
    }

private:
    QLocalSocket m_socket;
};

const Rows<QByteArray, QString> refusesWithAReasonRows{
    {"not JSON", "hello", u"not JSON: illegal value at byte 1"_s},
    {"not an object", "[1, 2]", u"must be an object"_s},
    {"deeper than the parser goes", QByteArray(100000, '['),
     u"not JSON: too deeply nested document at byte 1025"_s},
    {"NUL bytes", QByteArray("{\"command\": \"sh\0w\"}", 19), u"unknown command \"sh\0w\""_s},
    {"unknown key", R"({"command": "roaming", "on": true, "off": false})", u"off: unknown key"_s},
    {"missing key", R"({"command": "roaming"})", u"on: is missing"_s},
    {"wrong type", R"({"command": "roaming", "on": "yes"})", u"on: must be true or false"_s},
    {"number beyond all numbers", R"({"command": "silence", "ms": 1e300})", u"ms: must be a whole number"_s},
    {"negative time", R"({"command": "clock", "advance": -1})",
     u"advance: must be a whole number from 0 to 86400000"_s},
    {"above the range", R"({"command": "signal", "rssi": 100})",
     u"radio.rssi: must be a whole number from 0 to 99"_s},
    {"message that is no hex", R"({"command": "sms", "pdu": "0791zz"})",
     u"the PDU must be hex digits, two for each octet"_s},
    {"sender of twelve letters", R"({"command": "sms", "from": "abcdefghijkl"})",
     u"from: must be up to 20 digits, or 11 letters of the default alphabet"_s},
    {"part that the text lacks", R"({"command": "sms", "text": "short", "order": "2"})",
     u"order: the text has 1 parts"_s},
    {"more than fits", R"({"command": "fill", "name": "SR", "count": 11})", u"the store is full"_s},
    {"report on nothing", R"({"command": "sms-report"})",
     u"no such message was sent; a report on another one needs reference and to"_s},
    {"unknown port", R"({"command": "report", "text": "x", "port": "voice"})",
     u"there is no AT port \"voice\""_s},
    {"date that is none", R"({"command": "clock", "time": "yesterday"})",
     u"time: must be like 2026-02-28T12:00:00Z"_s},
};

const Rows<QByteArray, QString> brokenProfileRows{
    {"not JSON", "{", u"not JSON: unterminated object at byte 1"_s},
    {"unknown key", R"({"sim": {"pim": "1234"}})", u"sim.pim: unknown key"_s},
    {"section of another type", R"({"sim": 3})", u"sim: must be an object"_s},
    {"PIN with a letter", R"({"sim": {"pin": "12a4"}})", u"sim.pin: must be 4 to 8 digits"_s},
    {"serial with a wrong check digit", R"({"identity": {"serial": "001012345678903"}})",
     u"identity.serial: must be 15 digits with a valid check digit, or 14 hex digits"_s},
    {"unknown family", R"({"family": "LTE"})", u"family: must be one of: WCDMA, TD-SCDMA, CDMA"_s},
    {"stored message with a wrong status",
     R"({"messages": {"stores": {"SM": {"entries": [{"pdu": "00", "status": 4}]}}}})",
     u"messages.stores.SM.entries: must be a list of objects with index, status (0 to 3) and pdu"_s},
    {"negative delay", R"({"line": {"delays": {"+CSQ": -1}}})",
     u"line.delays.+CSQ: must be a number of milliseconds"_s},
};

} // namespace

class TestEmulatorControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWithAReason_data() { addRows(refusesWithAReasonRows); }
    void refusesWithAReason()
    {
        const auto &[name, line, error] = currentRow(refusesWithAReasonRows);
        TestCard card;
        Socket socket(card);
        socket.send(line + '\n');
        const QJsonObject answer = socket.receive();
        QCOMPARE(answer[u"error"_s].toString(), error);
        QCOMPARE(answer[u"ok"_s], QJsonValue(false));
        socket.send("{\"command\": \"clear\"}\n");
        QCOMPARE(socket.receive()[u"ok"_s], QJsonValue(true));
    }

    void answersInOrderWithIds()
    {
        TestCard card;
        Socket socket(card);
        socket.send(QByteArray(3 << 20, 'x') + '\n');
        QCOMPARE(socket.receive()[u"error"_s].toString(), u"the line is too long"_s);
        socket.send("{\"command\": \"clear\", \"id\": 1}\n{\"command\": \"no\", \"id\": [2]}\n{\"comm");
        QCOMPARE(socket.receive(), (QJsonObject{{u"ok"_s, true}, {u"id"_s, 1}}));
        QCOMPARE(socket.receive()[u"id"_s], QJsonValue(QJsonArray{2}));
        socket.send("and\": \"clear\", \"id\": 3}\n");
        QCOMPARE(socket.receive()[u"id"_s], QJsonValue(3));
    }

    void watchersSeeTraffic()
    {
        TestCard card;
        TestPort port(card.path(u"at"_s));
        Socket watcher(card);
        watcher.send("{\"command\": \"watch\"}\n");
        QCOMPARE(watcher.receive()[u"ok"_s], QJsonValue(true));
        port.exchange("at+csq\r\n", "OK\r\n");
        const QJsonObject received = watcher.receive();
        QCOMPARE(received[u"received"_s], QJsonValue(u"AT+csq"_s));
        QCOMPARE(received[u"port"_s], QJsonValue(u"at"_s));
        QCOMPARE(watcher.receive()[u"sent"_s], QJsonValue(u"\r\n+CSQ: 20,99\r\n\r\nOK\r\n"_s));
    }

    void showTellsWhatChanged()
    {
        TestCard card;
        QVERIFY(card.tell(R"({"command": "signal", "rssi": 3, "rscp": -111})"));
        QVERIFY(card.tell(R"({"command": "set", "key": "messages.stores.ME.capacity", "value": 7})"));
        QVERIFY(card.tell(R"({"command": "fault", "kind": "cut", "ms": 20})"));
        QVERIFY(!card.control(R"({"command": "signal", "rscp": -5, "rssi": 1000})")[u"ok"_s].toBool());
        const QJsonObject state = card.state();
        QCOMPARE(state[u"radio"_s][u"rssi"_s], QJsonValue(3));
        QCOMPARE(state[u"radio"_s][u"rscp"_s], QJsonValue(-111));
        QCOMPARE(state[u"messages"_s][u"stores"_s][u"ME"_s][u"capacity"_s], QJsonValue(7));
        QCOMPARE(state[u"faults"_s][0][u"kind"_s], QJsonValue(u"cut"_s));
        QCOMPARE(state[u"registration"_s], QJsonValue(1));
    }

    void folderIsTakenOnce()
    {
        const Profile profile = std::get<Profile>(Profile::builtIn(u"wcdma"_s));
        const QTemporaryDir folder;
        {
            cardemu::CardThread first(profile);
            QCOMPARE(first.start(folder.path()), QString());
            cardemu::CardThread second(profile);
            QCOMPARE(second.start(folder.path()), folder.filePath(u"control: another card is there"_s));
            QVERIFY(QFileInfo(folder.filePath(u"at"_s)).isSymLink());
        }
        QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
    }

    void foreignFileIsLeftAlone()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"modem"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        cardemu::CardThread card(std::get<Profile>(Profile::builtIn(u"wcdma"_s)));
        QCOMPARE(card.start(folder.path()), folder.filePath(u"modem exists and is not a link"_s));
        QVERIFY(file.exists());
        QVERIFY(!QFileInfo(folder.filePath(u"at"_s)).isSymLink());
    }

    void brokenProfile_data() { addRows(brokenProfileRows); }
    void brokenProfile()
    {
        const auto &[name, json, error] = currentRow(brokenProfileRows);
        const auto result = Profile::parse(json);
        QVERIFY(std::holds_alternative<cardemu::Complaint>(result));
        QCOMPARE(std::get<cardemu::Complaint>(result), error);
    }

    void profileFaultsWaitFromTheStart()
    {
        TestCard card(std::get<Profile>(Profile::parse(
            R"({"line": {"echo": false}, "faults": [{"kind": "refuse", "match": "+CSQ", "text": "BUSY"}]})")));
        TestPort port(card.path(u"at"_s));
        QCOMPARE(port.exchange("AT+CSQ\r", "BUSY\r\n"), "\r\nBUSY\r\n");
        QCOMPARE(port.exchange("AT+CSQ\r", "OK\r\n"), "\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
    }

    void documentationNamesEverything()
    {
        QStringList names;
        for (const cardemu::ControlRow &row : cardemu::controlTable())
            names += row.name;
        for (const QString &profile : {u"wcdma"_s, u"cdma"_s}) {
            for (const QByteArray &command :
                 cardemu::commandNames(std::get<Profile>(Profile::builtIn(profile)).card))
                names += QString::fromLatin1(command);
        }
        const QString page =
            QString::fromUtf8(contentOf(QStringLiteral(CORVA_SOURCE_DIR "/docs/emulator.md")));
        for (const QString &name : names) {
            const QRegularExpression word(u"[` ]"_s + QRegularExpression::escape(name) + u"(<n>)?[`, =?]"_s);
            QVERIFY2(page.contains(word), qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(TestEmulatorControl)
#include "tst_emulator_control.moc"
