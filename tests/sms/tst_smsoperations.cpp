// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/serialthread.h"
#include "scriptedcard.h"
#include "shell/commoncfg.h"
#include "sms/smparam.h"
#include "sms/smsreplies.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

using Link = SerialThread;
using Script = std::vector<ScriptedCard::Exchange>;

const QByteArray ok = "\r\nOK\r\n";
const QByteArray error = "\r\nERROR\r\n";
const QByteArray refused = "\r\n+CMS ERROR: 321\r\n";
const QByteArray prompt = "\r\n> ";

const ScriptedCard::Exchange selectSim{"AT+CPMS=\"SM\",\"SM\"\r\n", "\r\n+CPMS: 1,20,1,20,1,20\r\n" + ok};
const ScriptedCard::Exchange selectCard{"AT+CPMS=\"ME\",\"ME\"\r\n", "\r\n+CPMS: 1,20,1,20,1,20\r\n" + ok};
const ScriptedCard::Exchange selectReports{"AT+CPMS=\"SR\",\"SR\"\r\n", "\r\n+CPMS: 1,20,1,20,1,20\r\n" + ok};

struct Operation {
    const char *name;
    QString (*run)(Link &);
    Script script;
    const char *result;
};

QString text(int number)
{
    return QString::number(number);
}
QString text(const std::optional<corva::StoreFill> &fill)
{
    return fill ? u"%1/%2"_s.arg(fill->used).arg(fill->total) : u"-"_s;
}
template <auto operation, auto... arguments> QString call(Link &link)
{
    return text((link.*operation)(arguments...));
}
template <int storage> QString list(Link &link)
{
    return text(int(corva::parseSmsList(link.getSmsContent(4, storage)).size()));
}
QString readOne(Link &link)
{
    const auto read = corva::parseReadSms(link.getIndexSms("7"));
    return read ? QString::fromLatin1(read->pdu) : u"-"_s;
}
QString sendOne(Link &link)
{
    return text(link.sendMsgCMGSCmd(12, "0011000A\x1a"));
}
QString storeOne(Link &link)
{
    return text(link.moveMsgCMGWCmd(12, 1, "0004"));
}
template <char quote> QString setCentre(Link &link)
{
    return text(link.set_sms_number(u"+49171%1"_s.arg(QChar::fromLatin1(quote))));
}
QString centre(Link &link)
{
    QByteArray reply(Link::replyBufferSize, '\0');
    link.get_sms_number(reply.data());
    return corva::parseServiceCentre(reply.constData());
}

const Operation operations[] = {
    {"SIM", call<&Link::setShortMsgStorageMode, 0>, {selectSim}, "1"},
    {"any other store is the SIM", call<&Link::setShortMsgStorageMode, 9>, {{selectSim.command, error}}, "0"},
    {"a store that is refused",
     call<&Link::setShortMsgStorageMode, 1>,
     {{selectCard.command, refused}},
     "-1"},
    {"where new ones go",
     call<&Link::getNewSmsPreferStorage>,
     {{"AT+JSMSD?\r\n", "\r\n+JSMSD: 2\r\n" + ok}},
     "2"},
    {"where new ones go, unknown",
     call<&Link::getNewSmsPreferStorage>,
     {{"AT+JSMSD?\r\n", "\r\n+JSMSD: 3\r\n" + ok}},
     "-1"},
    {"format", call<&Link::getMsgFormat>, {{"AT+CMGF?\r\n", "\r\n+CMGF: 0\r\n" + ok}}, "0"},
    {"text format", call<&Link::getMsgFormat>, {{"AT+CMGF?\r\n", "\r\n+CMGF: 1\r\n" + ok}}, "1"},
    {"half a command, as it stands", call<&Link::setMsgFormat, 1>, {{"AT+CMGF=", ok}}, "1"},
    {"PDU mode", call<&Link::setPduMode>, {{"AT+CMGF=0\r\n", ok}}, "1"},
    {"list", list<0>, {selectSim, {"AT+CMGL=4\r\n", "\r\n+CMGL: 1,1,,9\r\n00AA\r\n" + ok}}, "1"},
    {"no list of another store", list<1>, {{selectCard.command, error}}, "0"},
    {"one message", readOne, {{"AT+CMGR=7\r\n", "\r\n+CMGR: 1,,9\r\n00AA\r\n" + ok}}, "00AA"},
    {"sending", sendOne, {{"AT+CMGS=12\r\n", prompt}, {"0011000A\x1a", "\r\n+CMGS: 5\r\n" + ok}}, "1"},
    {"sending, no prompt", sendOne, {{"AT+CMGS=12\r\n", refused}}, "-1"},
    {"sending, refused by the network",
     sendOne,
     {{"AT+CMGS=12\r\n", prompt}, {"0011000A\x1a", refused}},
     "-1"},
    {"storing", storeOne, {{"AT+CMGW=12,1\r\n", prompt}, {"0004\x1a", "\r\n+CMGW: 9\r\n" + ok}}, "1"},
    {"storing in a full store",
     storeOne,
     {{"AT+CMGW=12,1\r\n", prompt}, {"0004\x1a", "\r\n+CMS ERROR: 322\r\n"}},
     "0"},
    {"deleting from the SIM", call<&Link::deleteSimSMS, 5>, {selectSim, {"AT+CMGD=5\r\n", ok}}, "1"},
    {"deleting from the card", call<&Link::deleteMeSMS, 5>, {selectCard, {"AT+CMGD=5\r\n", error}}, "0"},
    {"deleting a report",
     call<&Link::deleteSmsStatusReport, 5>,
     {selectReports, {"AT+CMGD=5\r\n", refused}},
     "-1"},
    {"nothing is deleted from another store",
     call<&Link::deleteMeSMS, 5>,
     {{selectCard.command, refused}},
     "-1"},
    {"service centre", centre, {{"AT+CSCA?\r\n", "\r\n+CSCA: \"+4917\",145\r\n" + ok}}, "+4917"},
    {"another service centre",
     setCentre<'0'>,
     {{"AT+CSCS=\"IRA\"\r\n", ok}, {"AT+CSCA=\"+491710\"\r\n", ok}, {"AT+CSCS=\"UCS2\"\r\n", ok}},
     "1"},
    {"another service centre, refused",
     setCentre<'0'>,
     {{"AT+CSCS=\"IRA\"\r\n", error}, {"AT+CSCA=\"+491710\"\r\n", error}, {"AT+CSCS=\"UCS2\"\r\n", ok}},
     "0"},
    {"a quote in the number", setCentre<'"'>, {}, "-1"},
    {"a line end in the number", setCentre<'\r'>, {}, "-1"},
    {"room on the SIM",
     call<&Link::getSmsMem>,
     {{"AT+CPMS?\r\n", "\r\n+CPMS: \"SM\",3,20,\"SM\",3,20,\"ME\",0,9\r\n" + ok}},
     "3/20"},
    {"room on the card",
     call<&Link::getModemSmsMem>,
     {{"AT+CPMS?\r\n", "\r\n+CPMS: \"SM\",3,20,\"SM\",3,20,\"ME\",0,9\r\n" + ok}},
     "0/9"},
    {"room on the SIM, without names",
     call<&Link::getSimSmsMem2>,
     {{"AT+CPMS?\r\n", "\r\n+CPMS: 3,20,3,20,3,20\r\n" + ok}},
     "3/20"},
    {"room on the card, other store",
     call<&Link::getModemSmsMem2>,
     {{"AT+CPMS?\r\n", "\r\n+CPMS: \"SM\",3,20\r\n" + ok}},
     "-"},
};

} // namespace

/// The message commands, each byte for byte, with the card's echo and without.
class TestSmsOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        resetLinkGlobals();
        m_owner.takeCalls();
        m_pty = std::make_unique<Pty>();
        m_link = std::make_unique<SerialThread>(&m_owner);
        QVERIFY(m_link->openPort(m_pty->name()) > 0);
        foundPortFlag = true;
    }
    void cleanup()
    {
        m_link->closePortNormal(m_link->descriptor());
        m_link.reset();
    }

    void operation_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("echo");
        for (int i = 0; i < int(std::size(operations)); ++i) {
            QTest::addRow("%s, echo", operations[i].name) << i << true;
            QTest::addRow("%s, no echo", operations[i].name) << i << false;
        }
    }
    void operation()
    {
        QFETCH(int, index);
        QFETCH(bool, echo);
        const Operation &tried = operations[index];
        QElapsedTimer timer;
        timer.start();
        ScriptedCard card(*m_pty, tried.script, echo);
        QCOMPARE(tried.run(*m_link), QLatin1StringView(tried.result));
        QVERIFY2(timer.elapsed() < 2500, "a refusal that is on the wire is not waited for");
        QByteArrayList expected;
        for (const auto &exchange : tried.script)
            expected += exchange.command;
        QCOMPARE(card.heard(), expected);
    }

    void routing_data()
    {
        QTest::addColumn<QString>("keys"); // cell broadcast, newsmsLocation, card-side storage
        QTest::addColumn<QByteArray>("routing");
        QTest::addColumn<QByteArray>("storage");
        const auto row = [](const char *keys, const char *routing, const char *storage) {
            QTest::newRow(keys) << QString::fromLatin1(keys) << QByteArray(routing) << QByteArray(storage);
        };
        row("1,0,1", "3,1,2,2,0", "2");
        row("1,1,1", "3,1,2,2,0", "1");
        row("1,2,1", "1,2,2,2,0", "2");
        row("1,3,1", "3,1,2,2,0", "3");
        row("1,2,0", "3,1,2,2,0", "2");
        row("0,0,1", "1,2,0,2,0", "2");
        row("0,1,1", "3,1,0,2,0", "1");
        row("0,2,1", "1,2,0,2,0", "2");
        row("0,3,1", "3,1,0,2,0", "3");
        row("0,0,0", "3,1,0,2,0", "0");
        row("0,2,0", "3,1,0,2,0", "2");
        row("0,3,0", "3,1,0,2,0", "2");
        row("0,1,", "3,1,0,2,0", "1");
    }
    void routing()
    {
        QFETCH(QString, keys);
        QFETCH(QByteArray, routing);
        QFETCH(QByteArray, storage);
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, keys.section(u',', 0, 0));
        cmcfg.setValue(u"sms"_s, u"newsmsLocation"_s, keys.section(u',', 1, 1));
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, keys.section(u',', 2, 2));
        ScriptedCard card(*m_pty, {{"AT+CNMI=\r\n", ok}, {"AT+JSMSD=\r\n", ok}}, false);
        QCOMPARE(m_link->setNewMsgNoticeMode(), 1);
        QCOMPARE(m_link->setNewSmsStorageLocation(), 1);
        QCOMPARE(card.heard(),
                 (QByteArrayList{"AT+CNMI=" + routing + "\r\n", "AT+JSMSD=" + storage + "\r\n"}));
    }

    void aSecondSendWhileOneRuns()
    {
        SM_PARAM message;
        qstrcpy(message.TPA, "10086");
        auto second = std::make_shared<SM_PARAM>(message);
        int secondResult = -1;
        // The first waits for the network when the second is asked for, from the owner's receiver.
        m_owner.onCall = [&] { secondResult = m_link->gsmSendMessage(second.get(), {}, nullptr, nullptr); };
        ScriptedCard card(
            *m_pty, {{"AT+CMGS=\r\n", "\r\n+CMTI: \"SM\",1\r\n" + prompt}, {"\x1a", "\r\n+CMGS: 7\r\n" + ok}},
            false);
        int length = 0;
        QString pdu;
        QCOMPARE(m_link->gsmSendMessage(&message, {}, &length, &pdu), 1);
        QCOMPARE(secondResult, 0);
        QCOMPARE(card.heard().size(), 2);
        QCOMPARE(length, (int(pdu.size()) - 1) / 2 - 2); // the octets 01 81 of an empty centre
        m_owner.onCall = nullptr;
    }

private:
    ScratchFolder m_folder;
    FakeOwner m_owner;
    std::unique_ptr<Pty> m_pty;
    std::unique_ptr<SerialThread> m_link;
};

QTEST_GUILESS_MAIN(TestSmsOperations)
#include "tst_smsoperations.moc"
