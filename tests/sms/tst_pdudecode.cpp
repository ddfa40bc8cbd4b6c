// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/gsmalphabet.h"
#include "sms/smsdecoder.h"
#include "sms/smsfiling.h"
#include "sms/smspdu.h"

#include <QRegularExpression>
#include <QTest>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// A DELIVER without centre, from 10086, of 24 May 2015 08:00:15, two hours east; `data` begins with TP-UDL.
QByteArray deliver(const char *dcs, const char *data, const char *first = "04")
{
    return QByteArray("00") + first + "05810180F6" + "00" + dcs + "51504280005180" + data;
}

/// The same with text behind a header.
QByteArray withHeader(const char *dcs, const char *data)
{
    return deliver(dcs, data, "44");
}

DecodedSms decoded(const QByteArray &hex, SmsDirection direction = SmsDirection::FromNetwork)
{
    const SmsResult result = decodeSms(hex, direction);
    if (const auto *error = std::get_if<PduError>(&result))
        qFatal("%s", qPrintable(error->text()));
    return std::get<DecodedSms>(result);
}

BroadcastPage decodedPage(const QByteArray &hex)
{
    const auto result = decodeBroadcast(hex);
    if (const auto *error = std::get_if<PduError>(&result))
        qFatal("%s", qPrintable(error->text()));
    return std::get<BroadcastPage>(result);
}

QString charactersAt(const GsmTable &table, std::initializer_list<std::size_t> septets)
{
    QString characters;
    for (const std::size_t septet : septets)
        characters += QChar(table[septet]);
    return characters;
}

const QByteArray helloTwice = "07917283010010F5040BC87238880900F10000993092516195800AE8329BFD4697D9EC37";
const QByteArray report = "07919471060040F506B50B919471214365F7515042800051805150428010258000";
/// On a card: for a week; without an end; until a day.
const QByteArray submit = "00310705810180F60000AD05E8329BFD06";
const QByteArray submitForEver = "00010705810180F6000005E8329BFD06";
const QByteArray submitUntil = "00190705810180F600005150428000518005E8329BFD06";
const QByteArray flood =
    "40320FA10011"
    "46F6FB4D6E341A8D46A3D168341A8D46A3D168341A8D46A3D168341A8D46A3D168341A8D46A3D168341A8D46A3D168341A8D46"
    "A3D168341A8D46A3D168341A8D46A3D168341A8D46A3D168341A8D46A3D100";

} // namespace

class PduDecode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void delivered()
    {
        const DecodedSms sms = decoded(helloTwice);
        QCOMPARE(sms.kind, DecodedSms::Deliver);
        QCOMPARE(sms.serviceCentre, u"27381000015"_s);
        QCOMPARE(sms.address, u"27838890001"_s);
        QCOMPARE(sms.scts, u"99032915165908"_s);
        QCOMPARE(sms.time, QDateTime(QDate(2099, 3, 29), QTime(15, 16, 59), Qt::OffsetFromUTC, 2 * 3600));
        QCOMPARE(sms.text, u"hellohello"_s);
        QCOMPARE(sms.tpduLength, 28);
        QVERIFY(sms.hasMmsBit && !sms.asksReport && !sms.concatenation && !sms.waiting);
        QCOMPARE(sms.messageClass, -1);
        QCOMPARE(decoded(helloTwice.toLower()), sms);
    }

    void text_data()
    {
        QTest::addColumn<QByteArray>("pdu");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &pdu, const QString &text) {
            QTest::newRow(name) << pdu << text;
        };
        row("7-bit", deliver("00", "05E8329BFD06"), u"hello"_s);
        row("more octets than the text needs", deliver("00", "05E8329BFD0600FF"), u"hello"_s);
        row("nothing", deliver("00", "00"), {});
        row("7-bit behind six octets", withHeader("00", "09050003AB02019069"), u"Hi"_s);
        row("7-bit behind seven octets", withHeader("00", "0A060804ABCD0201C834"), u"Hi"_s);
        row("header alone", withHeader("00", "07050003AB020100"), {});
        row("UCS2, its pair torn", deliver("08", "044F60d83d"), u"你\xd83d"_s);
        row("UCS2 behind a header", withHeader("08", "08050003AB02014F60"), u"你"_s);
        row("single shift", withHeader("00", "0703240101D8CC01"), u"ş"_s);
        row("locking shift", withHeader("00", "08032501013874D6"), u"ışk"_s);
        row("both, of two languages", withHeader("00", "0D062501012401039C4D78C301"), u"ŞÂŞ"_s);
        row("Urdu", withHeader("00", "0B0625010D24010D800D07"), u"\u0627\u06f0"_s);
        row("unknown language, single", withHeader("00", "070324010ED89401"), u"€"_s);
        row("unknown language, locking", withHeader("00", "06032501FF0002"), u"¡"_s);
        row("behind the escape, not in the table", withHeader("00", "0703240101D80801"), u"B"_s);
        row("language of another length", withHeader("00", "0A06240401010101C834"), u"Hi"_s);
        row("to be deleted after reading", deliver("40", "05E8329BFD06"), u"hello"_s);
        row("voice mail waits", deliver("C8", "05E8329BFD06"), u"hello"_s);
        row("voice mail waits, in UCS2", deliver("E0", "024F60"), u"你"_s);
        row("reserved group, by its bits", deliver("88", "024F60"), u"你"_s);
        row("class group, by its bits", deliver("FB", "024F60"), u"你"_s);
    }
    void text()
    {
        QFETCH(QByteArray, pdu);
        QTEST(decoded(pdu).text, "text");
    }

    /// What every language's tables share stands where the standard has it; no other character is there
    /// twice.
    void tables_data()
    {
        QTest::addColumn<int>("language");
        for (int language = DefaultLanguage; language <= Urdu + 1; ++language)
            QTest::addRow("%d", language) << language;
    }
    void tables()
    {
        QFETCH(int, language);
        const GsmTable &base = gsmLockingTable(language);
        QCOMPARE(charactersAt(base, {0x0a, 0x0d, 0x20, 0x30, 0x39, 0x61, 0x7a}), u"\n\r 09az"_s);
        QCOMPARE(base[gsmEscape], u'\0');
        for (const char16_t character : base)
            QVERIFY(character == u' ' || std::ranges::count(base, character) == 1);
        const GsmTable &shift = gsmShiftTable(language);
        QCOMPARE(charactersAt(shift, {0x0a, 0x14, 0x28, 0x29, 0x2f, 0x3c, 0x3d, 0x3e, 0x40, 0x65}),
                 u"\f^{}\\[~]|€"_s);
        QCOMPARE(shift[gsmEscape], u'\0');
    }

    void parts()
    {
        QCOMPARE(decoded(withHeader("00", "09050003AB02019069")).concatenation,
                 (Concatenation{0xab, 2, 1, false}));
        QCOMPARE(decoded(withHeader("00", "0A060804ABCD0201C834")).concatenation,
                 (Concatenation{0xabcd, 2, 1, true}));
    }

    void whatIsNoText()
    {
        const DecodedSms data = decoded(withHeader("04", "06030401AA00FF"));
        QCOMPARE(data.alphabet, Alphabet::EightBit);
        QCOMPARE(data.data, QByteArray("\x00\xff", 2));
        QVERIFY(data.text.isEmpty());
        const DecodedSms compressed = decoded(deliver("20", "05E8329BFD06"));
        QVERIFY(compressed.hasCompressed && compressed.text.isEmpty());
        QCOMPARE(compressed.data, QByteArray::fromHex("E8329BFD06"));
    }

    void classes()
    {
        QCOMPARE(decoded(deliver("10", "00")).messageClass, 0);
        QCOMPARE(decoded(deliver("52", "00")).messageClass, 2);
        QCOMPARE(decoded(deliver("F3", "00")).messageClass, 3);
        QCOMPARE(decoded(deliver("08", "00")).messageClass, -1);
        QCOMPARE(decoded(deliver("C8", "00")).messageClass, -1);
    }

    void waiting()
    {
        QCOMPARE(decoded(deliver("C8", "00")).waiting,
                 (MessageWaiting{MessageWaiting::VoiceMail, true, false}));
        QCOMPARE(decoded(deliver("D2", "00")).waiting, (MessageWaiting{MessageWaiting::Email, false, true}));
        QCOMPARE(decoded(deliver("E9", "00")).waiting, (MessageWaiting{MessageWaiting::Fax, true, true}));
    }

    void filed_data()
    {
        QTest::addColumn<QByteArray>("pdu");
        QTest::addColumn<QString>("text"); // empty: the reason why there is none
        QTest::addColumn<bool>("isNew");
        const auto row = [](const char *name, const QByteArray &pdu, const QString &text, bool isNew = true) {
            QTest::newRow(name) << pdu << text << isNew;
        };
        row("voice mail waits", deliver("C8", "00"), u"Voice messages are waiting for you."_s);
        row("e-mail waits no more, kept", deliver("D2", "00"), u"No e-mails are waiting any more."_s);
        row("faxes wait no more", deliver("C1", "00"), u"No faxes are waiting any more."_s, false);
        row("nothing waits, with words", deliver("C0", "05E8329BFD06"), u"hello"_s);
        row("data that is text", deliver("04", "05410D0A42E9"), u"A\r\nB\u00E9"_s);
        row("data", deliver("04", "03410042"), {});
    }
    void filed()
    {
        QFETCH(QByteArray, pdu);
        QFETCH(QString, text);
        const FiledSms filed = fileSms({-1, 0, -1, pdu}, MessagePlace::Computer, {});
        const auto *message = std::get_if<Message>(&filed);
        QVERIFY(message);
        QCOMPARE(message->text(), text);
        QCOMPARE(message->error.isEmpty(), !text.isEmpty());
        QTEST(!message->isRead, "isNew");
    }

    void addresses_data()
    {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("isAlphanumeric");
        const auto row = [](const char *name, const char *field, const QString &address,
                            bool isText = false) {
            QTest::newRow(name) << QByteArray(field) << address << isText;
        };
        row("international", "0B919471214365F7", u"+49171234567"_s);
        row("another numbering plan has no plus", "0B909471214365F7", u"49171234567"_s);
        row("national", "05A10180F6", u"10086"_s);
        row("signs", "0581BA51F0", u"*#150"_s);
        row("filling ends it", "068110F233", u"012"_s);
        row("nothing", "0091", u"+"_s);
        row("text", "14D0C4F23C7D760390EF7619", u"Design@Home"_s, true);
        row("text of seven letters in thirteen semi-octets", "0DD0C3B7DC1EC66601", u"CorvaXY"_s, true);
        row("reserved type", "0DF0C3B7DC1EC66601", u"CorvaXY"_s, true);
        row("31 digits", "1F91111111111111111111111111111111F1", u"+"_s + QString(31, u'1'));
        row("32 digits leave no room", "209111111111111111111111111111111111", QString(32, u'1'));
    }
    void addresses()
    {
        QFETCH(QByteArray, field);
        const DecodedSms sms = decoded("0004" + field + "00005150428000518000");
        QTEST(sms.address, "address");
        QTEST(sms.isAlphanumeric, "isAlphanumeric");
    }

    void times_data()
    {
        QTest::addColumn<QByteArray>("stamp");
        QTest::addColumn<QString>("time"); ///< empty: none
        QTest::newRow("east") << QByteArray("51504280005180") << u"2015-05-24T08:00:15+02:00"_s;
        QTest::newRow("west") << QByteArray("51504280005129") << u"2015-05-24T08:00:15-03:00"_s;
        QTest::newRow("no zone") << QByteArray("515042800051FF") << u"2015-05-24T08:00:15Z"_s;
        QTest::newRow("no digit") << QByteArray("5150428000A180") << QString();
        QTest::newRow("no month") << QByteArray("51314280005180") << QString();
        QTest::newRow("no day of February") << QByteArray("51200380005180") << QString();
    }
    void times()
    {
        QFETCH(QByteArray, stamp);
        const DecodedSms sms = decoded("000405810180F60000" + stamp + "00");
        QCOMPARE(sms.scts.size(), 14);
        QTEST(sms.time ? sms.time->toString(Qt::ISODate) : QString(), "time");
        QCOMPARE(SmsDecoder::fromSctsToDatetime(sms.scts).isValid(), sms.time.has_value());
    }

    void reports()
    {
        const DecodedSms sms = std::get<DecodedSms>(decodeStatusReport(report));
        QCOMPARE(sms.kind, DecodedSms::StatusReport);
        QCOMPARE(sms.serviceCentre, u"49176000045"_s);
        QCOMPARE(sms.reference, 0xb5);
        QCOMPARE(sms.address, u"+49171234567"_s);
        QCOMPARE(sms.scts, u"05241508001508"_s);
        QCOMPARE(sms.discharge, u"05241508015208"_s);
        QCOMPARE(sms.dischargeTime,
                 QDateTime(QDate(2015, 5, 24), QTime(8, 1, 52), Qt::OffsetFromUTC, 2 * 3600));
        QCOMPARE(sms.status, 0);
        QVERIFY(sms.hasMmsBit);
        QCOMPARE(decoded(report), sms);
        // "International" is enough for the plus here, whatever the numbering plan.
        QCOMPARE(std::get<DecodedSms>(decodeStatusReport(QByteArray(report).replace("0B91", "0B90"))).address,
                 u"+49171234567"_s);
    }

    void submitted()
    {
        for (const QByteArray &pdu : {submit, submitForEver, submitUntil}) {
            const DecodedSms sms = decoded(pdu, SmsDirection::OnCard);
            QCOMPARE(sms.kind, DecodedSms::Submit);
            QCOMPARE(sms.reference, 7);
            QCOMPARE(sms.address, u"10086"_s);
            QCOMPARE(sms.text, u"hello"_s);
            QCOMPARE(sms.asksReport, pdu == submit);
        }
    }

    void malformed_data()
    {
        QTest::addColumn<QByteArray>("pdu");
        QTest::addColumn<QString>("field");
        QTest::addColumn<qsizetype>("offset");
        const auto row = [](const char *name, const QByteArray &pdu, const QString &field, qsizetype offset) {
            QTest::newRow(name) << pdu << field << offset;
        };
        row("nothing", "", u"PDU"_s, 0);
        row("no hex", "07917283010010G5", u"PDU"_s, 7);
        row("half an octet", "0791728", u"PDU"_s, 3);
        row("FF everywhere", QByteArray(300, 'F'), u"SMSC"_s, 0);
        row("centre past the end", "07917283", u"SMSC"_s, 0);
        row("SUBMIT from the network", submit, u"TP-MTI"_s, 1);
        row("address past the end", "0004FF8101", u"TP-OA"_s, 2);
        row("ends behind the address", "000405810180F6", u"TP-PID"_s, 7);
        row("text past the end", deliver("00", "06E8329BFD06"), u"TP-UDL"_s, 16);
        row("FF as the text's length", deliver("00", "FFE8329BFD06"), u"TP-UDL"_s, 16);
        row("no room for a header", withHeader("08", "00"), u"TP-UDHL"_s, 17);
        row("header longer than the text", withHeader("08", "02044F"), u"TP-UDHL"_s, 17);
        row("element past the header", withHeader("08", "0403000501"), u"TP-UDHL"_s, 18);
        row("element without a length", withHeader("08", "020100"), u"TP-UDHL"_s, 18);
        row("total 0", withHeader("08", "06050003AB0001"), u"TP-UDHL"_s, 18);
        row("part 0", withHeader("08", "06050003AB0200"), u"TP-UDHL"_s, 18);
        row("part behind the total", withHeader("08", "06050003AB0203"), u"TP-UDHL"_s, 18);
        row("part without its number", withHeader("08", "06050002AB020500"), u"TP-UDHL"_s, 18);
        row("part behind another element", withHeader("08", "0A09700200000003AB0000"), u"TP-UDHL"_s, 22);
        row("half a character", deliver("08", "034F604F"), u"TP-UD"_s, 19);
    }
    void malformed()
    {
        QFETCH(QByteArray, pdu);
        QFETCH(QString, field);
        const SmsResult result = decodeSms(pdu, SmsDirection::FromNetwork);
        const auto *error = std::get_if<PduError>(&result);
        QVERIFY(error);
        QCOMPARE(error->field, field);
        QTEST(error->offset, "offset");
        QVERIFY(error->text().contains(field) && error->text().contains(error->reason));
    }

    void cutAnywhere_data()
    {
        QTest::addColumn<QByteArray>("pdu");
        QTest::newRow("deliver") << helloTwice;
        QTest::newRow("parts") << withHeader("00", "0A060804ABCD0201C834");
        QTest::newRow("UCS2 part") << withHeader("08", "08050003AB02014F60");
        QTest::newRow("text sender") << QByteArray(
            "000414D0C4F23C7D760390EF761900005150428000518005E8329BFD06");
        QTest::newRow("report") << report;
        QTest::newRow("submit") << submitUntil;
    }
    void cutAnywhere()
    {
        QFETCH(QByteArray, pdu);
        for (qsizetype size = 0; size < pdu.size(); ++size) {
            const SmsResult result = decodeSms(pdu.first(size), SmsDirection::OnCard);
            const auto *error = std::get_if<PduError>(&result);
            QVERIFY2(error, qPrintable(QString::number(size)));
            QVERIFY(error->offset <= size / 2);
        }
        decoded(pdu, SmsDirection::OnCard);
    }

    void broadcasts_data()
    {
        QTest::addColumn<QByteArray>("content"); ///< from the coding scheme on
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("language");
        const auto row = [](const char *name, const QByteArray &content, const QString &text,
                            const QString &language = {}) {
            QTest::newRow(name) << content << text << language;
        };
        row("padded 7-bit", flood.mid(8), u"Flood"_s, u"de"_s);
        row("language ahead of 7-bit", "1011E472031966B3DF8D46A3D1", u"Hallo"_s, u"de"_s);
        row("language ahead of UCS2", "111166394F60000D", u"你"_s, u"fr"_s);
        row("UCS2", "48114F60", u"你"_s);
        row("behind a header", "9011050003AB02019069", u"Hi"_s);
        row("nothing but the head", "0F11", {});
    }
    void broadcasts()
    {
        QFETCH(QByteArray, content);
        const BroadcastPage page = decodedPage("40320FA1" + content);
        QCOMPARE(page.scope, 1);
        QCOMPARE(page.code, 3);
        QCOMPARE(page.update, 2);
        QCOMPARE(page.channel, 4001);
        QTEST(page.text, "text");
        QTEST(page.language, "language");
    }

    void broadcastPages()
    {
        QCOMPARE(decodedPage("40320FA10023").page, 2);
        QCOMPARE(decodedPage("40320FA10023").pages, 3);
        QCOMPARE(decodedPage("40320FA10020").pages, 1);
        QCOMPARE(decodedPage("40320FA14411AA").data, QByteArray("\xaa"));
        for (qsizetype octets = 0; octets < 6; ++octets)
            QVERIFY(std::holds_alternative<PduError>(decodeBroadcast(flood.first(2 * octets))));
    }

    /// Whatever its coding scheme, the literal reading takes the page for 7-bit text.
    void literalBroadcast()
    {
        SM_PARAM record;
        QCOMPARE(SmsDecoder::Decode_BroadCast_PDU(flood.constData(), &record), 93);
        QCOMPARE(QByteArray(reinterpret_cast<char *>(record.TP_UD), 6), QByteArray("Flood\r"));
        QCOMPARE(SmsDecoder::Decode_BroadCast_PDU("40320FA14811C834", &record), 2);
        QCOMPARE(record.TP_UD[0], 'H');
        QCOMPARE(
            SmsDecoder::Decode_BroadCast_PDU(("40320FA10011" + QByteArray(400, '0')).constData(), &record),
            160);
        QCOMPARE(SmsDecoder::Decode_BroadCast_PDU(nullptr, &record), -1);
        QCOMPARE(SmsDecoder::Decode_BroadCast_PDU("", &record), -1);
        QCOMPARE(SmsDecoder::Decode_BroadCast_PDU(flood.constData(), nullptr), -1);
    }

    void records()
    {
        SM_PARAM_DECODE record;
        record.index = 12;
        record.status = 1;
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"this is a normal sms"_s));
        QCOMPARE(SmsDecoder::gsmDecodePdu(helloTwice.constData(), &record), 10);
        QCOMPARE(record.contentStr, u"hellohello"_s);
        QCOMPARE(record.TPA, u"27838890001"_s);
        QCOMPARE(record.TP_SCTS, u"99032915165908"_s);
        QCOMPARE(record.concatTotal, 0);
        QCOMPARE(record.index, 12);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(u"this is a cancatinate sms"_s));
        QCOMPARE(SmsDecoder::gsmDecodePdu4Move(withHeader("00", "09050003AB02019069").constData(), &record),
                 2);
        QCOMPARE(record.concatReference, 0xab);
        QCOMPARE(record.concatTotal, 2);
        QCOMPARE(record.concatSequence, 1);
        QCOMPARE(SmsDecoder::Decode_Class0_PDU(deliver("14", "0241FC").constData(), &record), 2);
        QCOMPARE(record.contentStr, u"A\u00fc"_s);
        QCOMPARE(SmsDecoder::STATUS_REPORT_PDU(report.constData(), &record), 1);
        QCOMPARE(record.recipient, u"+49171234567"_s);
        QCOMPARE(record.TP_MR, 0xb5);
        QCOMPARE(record.dischargeTime, u"05241508015208"_s);
        QCOMPARE(SmsDecoder::gsmDecodePdu("0791", &record), -1);
        QCOMPARE(SmsDecoder::gsmDecodePdu(nullptr, &record), -1);
        initSM_PARAM_DECODE(&record);
        QCOMPARE(record.index, 0);
        QVERIFY(record.recipient.isEmpty());
    }

    void shownTimes()
    {
        QCOMPARE(SmsDecoder::fromSctsToDatetime(u"15052408001508"_s),
                 QDateTime(QDate(2015, 5, 24), QTime(8, 0, 15)));
        QVERIFY(!SmsDecoder::fromSctsToDatetime(u"1505240800"_s).isValid());
        QVERIFY(!SmsDecoder::fromSctsToDatetime(u"15A524080015"_s).isValid());
        QVERIFY(!SmsDecoder::fromSctsToDatetime(u"15+524080015"_s).isValid());
        QCOMPARE(SmsDecoder::GetDataTime(u"15052408001508"_s, false, false), u"2015-05-24 08:00"_s);
        QCOMPARE(SmsDecoder::GetDataTime(u"05241508001508"_s, true, true), u"2015-05-24 08:00:15"_s);
        QCOMPARE(SmsDecoder::GetDataTime({}, true, true), QString());
    }

    void buffers()
    {
        char text[64];
        QCOMPARE(SmsDecoder::gsmSerializeNumbers("2143F5", text, 6), 5);
        QCOMPARE(QByteArray(text), QByteArray("12345"));
        const unsigned char hello[] = {0xe8, 0x32, 0x9b, 0xfd, 0x06, 0x00, 0x00};
        QCOMPARE(SmsDecoder::gsmDecode7bit(hello, text, 5), 5);
        QCOMPARE(QByteArray(text), QByteArray("hello"));
        QCOMPARE(SmsDecoder::gsmDecode7bit(hello, text, 7), 8);
        QCOMPARE(SmsDecoder::gsmDecode8bit(hello, text, 3), 3);
        QCOMPARE(SmsDecoder::gsmDecodeUcs2(hello, text, 3), 4);
        QCOMPARE(QByteArray(text), QByteArray("e832"));
        QCOMPARE(SmsDecoder::gsmDecode7bit(nullptr, text, -1), 0);
    }
};

QTEST_GUILESS_MAIN(PduDecode)

#include "tst_pdudecode.moc"
