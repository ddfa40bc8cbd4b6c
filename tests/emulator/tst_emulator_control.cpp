// SPDX-License-Identifier: GPL-3.0-or-later
// The control socket against hostile clients, and what profiles may hold.
#include "at/commandtable.h"
#include "control/controltable.h"
#include "testcard.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QRegularExpression>
#include <QTest>

using cardemu::Profile;

class TestEmulatorControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWithAReason_data();
    void refusesWithAReason();
    void overlongLineIsSkipped();
    void answersInOrderWithIds();
    void watchersSeeTraffic();
    void showTellsWhatChanged();
    void refusedValueChangesNothing();
    void folderIsTakenOnce();
    void foreignFileIsLeftAlone();
    void brokenProfile_data();
    void brokenProfile();
    void profileFaultsWaitFromTheStart();
    void documentationNamesEverything_data();
    void documentationNamesEverything();
};

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

} // namespace

void TestEmulatorControl::refusesWithAReason_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &line, const QString &error) {
        QTest::newRow(name) << line << error;
    };
    row("not JSON", "hello", u"not JSON: illegal value at byte 1"_s);
    row("empty line", "", u"not JSON: illegal value at byte 1"_s);
    row("not an object", "[1, 2]", u"must be an object"_s);
    row("deeper than the parser goes", QByteArray(100000, '['),
        u"not JSON: too deeply nested document at byte 1025"_s);
    row("NUL bytes", QByteArray("{\"command\": \"sh\0w\"}", 19), u"unknown command \"sh\0w\""_s);
    row("no command", R"({"rssi": 3})", u"command: is missing"_s);
    row("command of another type", R"({"command": 3})", u"command: is missing"_s);
    row("unknown command", R"({"command": "explode"})", u"unknown command \"explode\""_s);
    row("unknown key", R"({"command": "roaming", "on": true, "off": false})", u"off: unknown key"_s);
    row("missing key", R"({"command": "roaming"})", u"on: is missing"_s);
    row("wrong type", R"({"command": "roaming", "on": "yes"})", u"on: must be true or false"_s);
    row("fraction", R"({"command": "silence", "ms": 1.5})", u"ms: must be a whole number"_s);
    row("number beyond all numbers", R"({"command": "silence", "ms": 1e300})",
        u"ms: must be a whole number"_s);
    row("negative time", R"({"command": "clock", "advance": -1})",
        u"advance: must be a whole number from 0 to 86400000"_s);
    row("above the range", R"({"command": "signal", "rssi": 100})",
        u"radio.rssi: must be a whole number from 0 to 99"_s);
    row("unknown state key", R"({"command": "set", "key": "radio.color", "value": 1})",
        u"radio.color: unknown key"_s);
    row("unknown section", R"({"command": "set", "key": "rainbow.x", "value": 1})",
        u"rainbow: unknown key"_s);
    row("unknown choice", R"({"command": "sim", "condition": "lost"})",
        u"sim.condition: must be one of: ready, absent, busy, failure"_s);
    row("message that is no hex", R"({"command": "sms", "pdu": "0791zz"})",
        u"the PDU must be hex digits, two for each octet"_s);
    row("character that the alphabet lacks", R"({"command": "sms", "text": "Ж", "alphabet": "gsm7"})",
        u"text: does not fit into the alphabet, or into 255 parts"_s);
    row("sender of twelve letters", R"({"command": "sms", "from": "abcdefghijkl"})",
        u"from: must be up to 20 digits, or 11 letters of the default alphabet"_s);
    row("part that the text lacks", R"({"command": "sms", "text": "short", "order": "2"})",
        u"order: the text has 1 parts"_s);
    row("order that is none", R"({"command": "sms", "text": "x", "order": "1,,2"})",
        u"order: must be numbers of parts: \"2,1,3\""_s);
    row("store that is none", R"({"command": "fill", "name": "XX", "count": 1})",
        u"there is no store \"XX\""_s);
    row("more than fits", R"({"command": "fill", "name": "SR", "count": 11})", u"the store is full"_s);
    row("report on nothing", R"({"command": "sms-report"})",
        u"no such message was sent; a report on another one needs reference and to"_s);
    row("refusal out of range", R"({"command": "sms-network", "nth": 0})",
        u"messages.network.nth: must be a whole number from 1 to 1000000"_s);
    row("channel out of range", R"({"command": "broadcast", "channel": 65536})",
        u"channel: must be a whole number from 0 to 65535"_s);
    row("unknown fault", R"({"command": "fault", "kind": "fire"})",
        u"kind: must be one of: noreply, late, garbage, cut, interleave, truncate, long, echostorm, refuse"_s);
    row("unknown port", R"({"command": "report", "text": "x", "port": "voice"})",
        u"there is no AT port \"voice\""_s);
    row("link outside the folder", R"({"command": "plug", "at": "../x"})", u"the card is plugged in"_s);
    row("date that is none", R"({"command": "clock", "time": "yesterday"})",
        u"time: must be like 2026-02-28T12:00:00Z"_s);
}

void TestEmulatorControl::refusesWithAReason()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);
    TestCard card;
    Socket socket(card);
    socket.send(line + '\n');
    const QJsonObject answer = socket.receive();
    QCOMPARE(answer[u"error"_s].toString(), error);
    QCOMPARE(answer[u"ok"_s], QJsonValue(false));
    socket.send("{\"command\": \"clear\"}\n");
    QCOMPARE(socket.receive()[u"ok"_s], QJsonValue(true));
}

void TestEmulatorControl::overlongLineIsSkipped()
{
    TestCard card;
    Socket socket(card);
    socket.send(QByteArray(3 << 20, 'x') + "\n{\"command\": \"clear\"}\n");
    QCOMPARE(socket.receive()[u"error"_s].toString(), u"the line is too long"_s);
    QCOMPARE(socket.receive()[u"ok"_s], QJsonValue(true));
}

void TestEmulatorControl::answersInOrderWithIds()
{
    TestCard card;
    Socket socket(card);
    socket.send("{\"command\": \"clear\", \"id\": 1}\n{\"command\": \"no\", \"id\": [2]}\n{\"comm");
    QCOMPARE(socket.receive(), (QJsonObject{{u"ok"_s, true}, {u"id"_s, 1}}));
    QCOMPARE(socket.receive()[u"id"_s], QJsonValue(QJsonArray{2}));
    socket.send("and\": \"clear\", \"id\": 3}\n");
    QCOMPARE(socket.receive()[u"id"_s], QJsonValue(3));
}

void TestEmulatorControl::watchersSeeTraffic()
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

void TestEmulatorControl::showTellsWhatChanged()
{
    TestCard card;
    QVERIFY(card.tell(R"({"command": "signal", "rssi": 3, "rscp": -111})"));
    QVERIFY(card.tell(R"({"command": "set", "key": "messages.stores.ME.capacity", "value": 7})"));
    QVERIFY(card.tell(R"({"command": "fault", "kind": "cut", "ms": 20})"));
    const QJsonObject state = card.control(R"({"command": "show"})")[u"state"_s].toObject();
    QCOMPARE(state[u"radio"_s][u"rssi"_s], QJsonValue(3));
    QCOMPARE(state[u"radio"_s][u"rscp"_s], QJsonValue(-111));
    QCOMPARE(state[u"messages"_s][u"stores"_s][u"ME"_s][u"capacity"_s], QJsonValue(7));
    QCOMPARE(state[u"faults"_s][0][u"kind"_s], QJsonValue(u"cut"_s));
    QCOMPARE(state[u"registration"_s], QJsonValue(1));
}

void TestEmulatorControl::refusedValueChangesNothing()
{
    TestCard card;
    QVERIFY(!card.control(R"({"command": "signal", "rscp": -111, "rssi": 1000})")[u"ok"_s].toBool());
    const QJsonObject state = card.control(R"({"command": "show"})")[u"state"_s].toObject();
    QCOMPARE(state[u"radio"_s][u"rscp"_s], QJsonValue(-75));
}

void TestEmulatorControl::folderIsTakenOnce()
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
    QVERIFY(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).isEmpty());
}

void TestEmulatorControl::foreignFileIsLeftAlone()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"modem"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    cardemu::CardThread card(std::get<Profile>(Profile::builtIn(u"wcdma"_s)));
    QCOMPARE(card.start(folder.path()), folder.filePath(u"modem exists and is not a link"_s));
    QVERIFY(file.exists());
    QVERIFY(!QFileInfo(folder.filePath(u"at"_s)).isSymLink());
}

void TestEmulatorControl::brokenProfile_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const QByteArray &json, const QString &error) {
        QTest::newRow(name) << json << error;
    };
    row("not JSON", "{", u"not JSON: unterminated object at byte 1"_s);
    row("a list", "[]", u"must be an object"_s);
    row("unknown section", R"({"simm": {}})", u"simm: unknown key"_s);
    row("unknown key", R"({"sim": {"pim": "1234"}})", u"sim.pim: unknown key"_s);
    row("section of another type", R"({"sim": 3})", u"sim: must be an object"_s);
    row("PIN with a letter", R"({"sim": {"pin": "12a4"}})", u"sim.pin: must be 4 to 8 digits"_s);
    row("PIN as a number", R"({"sim": {"pin": 1234}})", u"sim.pin: must be a text"_s);
    row("serial with a wrong check digit", R"({"identity": {"serial": "001012345678903"}})",
        u"identity.serial: must be 15 digits with a valid check digit, or 14 hex digits"_s);
    row("unknown family", R"({"family": "LTE"})", u"family: must be one of: WCDMA, TD-SCDMA, CDMA"_s);
    row("operator without digits", R"({"network": {"operators": [{"plmn": "00101"}, {"plmn": "x"}]}})",
        u"network.operators.1: plmn: must be 5 or 6 digits"_s);
    row("store that does not exist", R"({"messages": {"stores": {"XX": {}}}})",
        u"messages.stores.XX: unknown key"_s);
    row("stored message with a wrong status",
        R"({"messages": {"stores": {"SM": {"entries": [{"pdu": "00", "status": 4}]}}}})",
        u"messages.stores.SM.entries: must be a list of objects with index, status (0 to 3) and pdu"_s);
    row("negative delay", R"({"line": {"delays": {"+CSQ": -1}}})",
        u"line.delays.+CSQ: must be a number of milliseconds"_s);
}

void TestEmulatorControl::brokenProfile()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    const auto result = Profile::parse(json);
    QVERIFY(std::holds_alternative<cardemu::Complaint>(result));
    QCOMPARE(std::get<cardemu::Complaint>(result), error);
}

void TestEmulatorControl::profileFaultsWaitFromTheStart()
{
    TestCard card(std::get<Profile>(Profile::parse(
        R"({"line": {"echo": false}, "faults": [{"kind": "refuse", "match": "+CSQ", "text": "BUSY"}]})")));
    TestPort port(card.path(u"at"_s));
    QCOMPARE(port.exchange("AT+CSQ\r", "BUSY\r\n"), "\r\nBUSY\r\n");
    QCOMPARE(port.exchange("AT+CSQ\r", "OK\r\n"), "\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
}

void TestEmulatorControl::documentationNamesEverything_data()
{
    QTest::addColumn<QString>("name");
    for (const cardemu::ControlRow &row : cardemu::controlTable())
        QTest::addRow("control %s", qPrintable(row.name)) << row.name;
    for (const QString &profile : {u"wcdma"_s, u"cdma"_s}) {
        for (const QByteArray &name :
             cardemu::commandNames(std::get<Profile>(Profile::builtIn(profile)).card))
            QTest::addRow("%s %s", qPrintable(profile), name.constData()) << QString::fromLatin1(name);
    }
}

void TestEmulatorControl::documentationNamesEverything()
{
    QFETCH(QString, name);
    QFile page(QStringLiteral(CORVA_SOURCE_DIR "/docs/emulator.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QRegularExpression word(u"[` ]"_s + QRegularExpression::escape(name) + u"(<n>)?[`, =?]"_s);
    QVERIFY(QString::fromUtf8(page.readAll()).contains(word));
}

QTEST_GUILESS_MAIN(TestEmulatorControl)
#include "tst_emulator_control.moc"
