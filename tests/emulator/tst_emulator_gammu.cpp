// SPDX-License-Identifier: GPL-3.0-or-later
// A client that knows nothing of this emulator must take it for a card.
#include "otherprograms.h"

namespace
{

const Rows<QString, QStringList, QStringList> findsRows{
    {"everything about a card",
     u"wcdma"_s,
     {u"identify"_s, u"networkinfo"_s, u"monitor 1"_s},
     {u"Manufacturer         : Example Devices"_s, u"Model                : unknown (EM7-W)"_s,
      u"Firmware             : 11.002.03.01.00"_s, u"IMEI                 : 001012345678902"_s,
      u"SIM IMSI             : 001010123456789"_s, u"Network state        : home network"_s,
      u"LAC 1234, CID 0000ABCD"_s, u"Name in phone        : \"Test Network\""_s,
      u"Packet network state : home network"_s, u"GPRS                 : attached"_s,
      u"SIM phonebook        :   1 used, 249 free"_s, u"Battery level        : 100 percent"_s,
      u"Signal strength      : -73 dBm"_s, u"SIM SMS status       : 0 used, 0 unread, 20 locations"_s}},
    {"identity of a standard card",
     u"standard"_s,
     {u"identify"_s},
     {u"Model                : unknown (Standard card)"_s, u"Firmware             : 1.0"_s}},
    {"locked SIM", u"locked"_s, {u"getsecuritystatus"_s}, {u"Waiting for PIN."_s}},
};

} // namespace

class TestEmulatorGammu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data() { addRows(findsRows); }
    void finds()
    {
        const auto &[name, profile, commands, lines] = currentRow(findsRows);
        const TestCard card(profile);
        const QString output = gammu(card, commands);
        for (const QString &line : lines)
            QVERIFY2(output.contains(line), qPrintable(line + u" is not in:\n"_s + output));
    }

    void readsSendsAndDeletesMessages()
    {
        TestCard card;
        const QString greetings = u"Grüße "_s.repeated(40);
        const QString numbers = u"0123456789"_s.repeated(40);
        QVERIFY(card.tell(R"({"command": "sms", "text": "to be deleted"})"));
        QVERIFY(card.tell(R"({"command": "sms", "order": "2,1", "text": "%1"})", greetings.toUtf8()));
        QVERIFY(card.tell(R"({"command": "sms", "text": "Привет 😀", "from": "+4917212345678"})"));

        const QString output =
            gammu(card, {u"getsmsfolders"_s, u"getallsms"_s, u"deletesms 1 1"_s,
                         u"sendsms TEXT +12025550123 -len 400 -text "_s + numbers, u"geteachsms"_s});
        for (const QString &text :
             {u"\"                         Inbox\", SIM memory"_s, u"to be deleted"_s, u"Привет 😀"_s,
              u"\"+4917212345678\""_s, u"\n"_s + greetings + u"\n"_s, u"OK, message reference=3"_s, numbers})
            QVERIFY2(output.contains(text), qPrintable(text + u" is not in:\n"_s + output));
        QCOMPARE(output.count(u"to be deleted"_s), 1);
        QCOMPARE(card.sent().size(), 3);
        const QJsonArray left = card.state()[u"messages"_s][u"stores"_s][u"SM"_s][u"entries"_s].toArray();
        QCOMPARE(left.size(), 6);
        QCOMPARE(left[0][u"index"_s], QJsonValue(1)); // the first part that came back
    }
};

QTEST_GUILESS_MAIN(TestEmulatorGammu)
#include "tst_emulator_gammu.moc"
