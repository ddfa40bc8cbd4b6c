// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardthread.h"
#include "link/serialthread.h"
#include "linktest.h"

#include <QTest>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

/// "result text" of an operation that fills a buffer.
template <int (SerialThread::*operation)(char *)> QString text(SerialThread &link)
{
    std::vector<char> buffer(SerialThread::replyBufferSize);
    const int result = (link.*operation)(buffer.data());
    QByteArray reply(buffer.data());
    reply.replace("\r\nOK\r\n", "").replace('\r', ' ').replace('\n', ' ');
    const qsizetype echo = reply.startsWith("AT") ? reply.indexOf(' ') : 0;
    return u"%1 %2"_s.arg(result).arg(QString::fromLatin1(reply.sliced(echo)).trimmed()).trimmed();
}

template <auto operation, auto... arguments> QString number(SerialThread &link)
{
    return QString::number((link.*operation)(arguments...));
}

/// The SIM's PIN request on, a wrong PIN, another PIN, and off again.
QString changeLock(SerialThread &link)
{
    QList<int> results{link.PINSetStatus(),    link.lockPIN("9999"),           link.lockPIN("1234"),
                       link.PINSetStatus(),    link.changePWD("9999", "4711"), link.changePWD("1234", "4711"),
                       link.unLockPIN("1234"), link.unLockPIN("4711"),         link.PINSetStatus()};
    QStringList texts;
    for (const int result : results)
        texts += QString::number(result);
    return texts.join(u' ');
}

/// Wrong PINs until the PUK is wanted, then the PUK.
QString unblock(SerialThread &link)
{
    QStringList texts;
    const auto note = [&texts](int result) { texts += QString::number(result); };
    note(link.lockPIN("1234"));
    note(link.lockPIN("9999"));
    note(link.unLockPIN("9999"));
    note(link.unLockPIN("9999") == 1 ? 1 : 0); // may be told as a wrong PIN or as a wanted PUK
    note(link.connectDeviceNeedInputPIN());
    note(link.unLockPIN("1234"));
    note(link.changePWD("1234", "4711"));
    note(link.enterPuk(u"00000000"_s, u"4711"_s));
    note(link.enterPuk(u"12345678"_s, u"4711"_s));
    note(link.connectDeviceNeedInputPIN());
    note(link.unLockPIN("4711"));
    return texts.join(u' ');
}

QString attempts(SerialThread &link)
{
    return link.get_JPINJPUK_Res_Str();
}

QString select(SerialThread &link)
{
    return QString::number(link.setManualNetworkMode(u"2"_s, u"00101"_s, u"2"_s, u"1"_s));
}

struct Operation {
    const char *name;
    QString (*run)(SerialThread &);
    const char *wcdma;
    const char *tdscdma = nullptr; ///< null: as WCDMA
    const char *cdma = nullptr;    ///< null: as WCDMA
};

using Link = SerialThread;
const Operation operations[] = {
    {"probe", number<&Link::sendNULL_ATCmd>, "1"},
    {"manufacturer", text<&Link::getCGMI>, "1 Example Devices"},
    {"model", text<&Link::getCGMM>, "1 EM7-W", "1 EM7-T", "1 EM7-C"},
    {"IMEI", text<&Link::getIMEI>, "1 001012345678902", nullptr, "1 A1000009B1C2D3"},
    {"firmware", text<&Link::getCgmr>, "1 11.002.03.01.00", "1 21.001.07.00.00", "1 31.004.00.02.00"},
    {"firmware, by its other name", text<&Link::getGMR>, "1 11.002.03.01.00", "1 21.001.07.00.00",
     "1 31.004.00.02.00"},
    {"internal version", text<&Link::getJvn>, "1 EM7W-B112D03", "1 EM7T-B211D07", "1 EM7C-B314D00"},
    {"board", text<&Link::getJPCB>, "1 +JPCB: EM7W-PCB-A", "1 +JPCB: EM7T-PCB-B", "1 +JPCB: EM7C-PCB-A"},
    {"SIM's number", text<&Link::getICCID>, "1 +CRSM: 144,0,\"98000101214365870951\""},
    {"SIM's provider", text<&Link::getSPN>, "1 +CRSM: 144,0,\"0154657374204E6574776F726BFFFFFFFF\""},
    {"subscriber", text<&Link::getCIMI>, "1 001010123456789"},
    {"own number", text<&Link::getISDN>, "1 +12025550123"},
    {"signal", number<&Link::getSignalQuality>, "32"},
    {"EV-DO signal", number<&Link::getEvdoSignalQuality>, "103", nullptr, "115"},
    {"system", text<&Link::get_SYSINFO_Res_Str>, "1 ^SYSINFO:2,3,0,5,1,0,4", "1 ^SYSINFO:2,3,0,15,1,0,8",
     "1 ^SYSINFO:2,255,0,8,1"},
    {"access", text<&Link::get_JPAS_Res_Str>, "1 +JPAS: 5,2,4", "1 +JPAS: 15,2,8", "1 +JPAS: 8,2,0"},
    {"operator", text<&Link::get_COPS_Res_Str>, "1 +COPS: 0,0,\"Test Network\",2", nullptr, "1 ERROR"},
    {"operator's name", text<&Link::getCOPS>, "1 0,0,\"Test Network\",2", nullptr, "0"},
    {"registration", text<&Link::get_CREG_Res_Str>, "1 +CREG: 2,1,\"1234\",\"0000ABCD\""},
    {"data registration", text<&Link::get_CGREG_Res_Str>, "1 +CGREG: 0,1", nullptr, "1 ERROR"},
    {"area", number<&Link::getLac>, "4660"},
    {"cell", number<&Link::getCellID>, "43981"},
    {"unknown command", text<&Link::getResultForJAIRINFO>, "0"},
    {"on WCDMA", number<&Link::isWcdmaNetwork>, "1", "0", "0"},
    {"new platform", number<&Link::isNewPlatform>, "1"},
    {"SIM phonebook", number<&Link::simCapacity>, "250"},
    {"card phonebook", number<&Link::modemSideCapacity>, "500"},
    {"level", number<&Link::getOnlineStatus>, "1"},
    {"radio on", number<&Link::setTDModemFullFun>, "1"},
    {"online", number<&Link::netCardStatus>, "1"},
    {"offline", number<&Link::netCardPowOn, false>, "1"},
    {"antenna", number<&Link::getAntennaStatus>, "1"},
    {"USIM", number<&Link::getUSIM>, "1", nullptr, "-1"},
    {"errors in words", number<&Link::setErrorReporting, 2>, "1"},
    {"SIM state", number<&Link::connectDeviceNeedInputPIN>, "0"},
    {"attempts", attempts, "3,10", nullptr, ""},
    {"PIN request", changeLock, "0 0 1 1 0 1 0 1 0"},
    {"PUK", unblock, "1 0 0 0 1 2 -2 0 1 0 1"},
    {"selection", select, "1", nullptr, "0"},
};

constexpr const char *families[] = {"wcdma", "tdscdma", "cdma"};

} // namespace

/// Every operation against the emulated card: with its echo and without, errors as words and as numbers.
class TestOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operation_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < int(std::size(operations)); ++i)
            QTest::newRow(operations[i].name) << i;
    }
    void operation()
    {
        QFETCH(const int, index);
        const Operation &operation = operations[index];
        const char *const expected[] = {operation.wcdma, operation.tdscdma, operation.cdma};
        for (int family = 0; family < 3; ++family) {
            for (const auto &[echo, errors] :
                 {std::pair(true, 2), std::pair(false, 2), std::pair(false, 1)}) {
                start(family, echo, errors);
                const QString card =
                    u"%1, %2, errors %3: "_s
                        .arg(QLatin1StringView(families[family]), echo ? u"echo"_s : u"no echo"_s)
                        .arg(errors);
                const char *answer = expected[family] ? expected[family] : operation.wcdma;
                QCOMPARE(card + operation.run(*m_link), card + QLatin1StringView(answer));
                QVERIFY(m_link->getOnlineStatus() >= 0); // the next command gets its own answer
                cleanup();
            }
        }
    }
    void cleanup()
    {
        if (m_link)
            m_link->closePortNormal(m_link->descriptor());
        m_link.reset();
        m_card.reset();
    }

private:
    void start(int family, bool echo, int errors)
    {
        auto profile = cardemu::Profile::builtIn(QString::fromLatin1(families[family]));
        m_card = std::make_unique<cardemu::CardThread>(std::get<cardemu::Profile>(profile));
        QCOMPARE(m_card->start(m_folder.path() + u"/card"_s), QString());
        m_link = std::make_unique<SerialThread>(&m_owner);
        m_link->setFamily(corva::familyFromText(
            QString::fromLatin1(families[family]).toUpper().replace(u"TDS"_s, u"TD-S"_s)));
        QVERIFY(m_link->openPort(m_folder.path() + u"/card/at"_s) > 0);
        foundPortFlag = true;
        send_nullatcommand_timer_100ms = 15; // a loaded machine
        if (!echo)
            QCOMPARE(m_link->setATE0(), 1);
        QVERIFY(m_link->setErrorReporting(errors) == 1);
        QCOMPARE(m_link->setRegistrationReporting("CREG", 2), 1);
    }

    ScratchFolder m_folder;
    FakeOwner m_owner;
    std::unique_ptr<cardemu::CardThread> m_card;
    std::unique_ptr<SerialThread> m_link;
};

QTEST_GUILESS_MAIN(TestOperations)
#include "tst_operations.moc"
