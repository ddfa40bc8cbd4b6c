// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/serialthread.h"
#include "shell/commoncfg.h"
#include "sms/concatreference.h"
#include "sms/splittext.h"
#include "sms/submit.h"

#include <QTemporaryDir>
#include <QTest>
#include <map>

using namespace Qt::StringLiterals;
using corva::encodeSubmit;
using corva::SubmitSettings;

namespace
{

constexpr SubmitSettings plain{0, false, false};
constexpr SubmitSettings withReport{0, true, false};
constexpr SubmitSettings ucs2{0, false, true};
constexpr SubmitSettings ucs2WithReport{0, true, true};

void setText(char (&field)[16], const char *text)
{
    qstrncpy(field, text, sizeof field);
}

SM_PARAM record(QByteArray userData = "hello", const char *number = "10086", const char *centre = "")
{
    SM_PARAM made;
    setText(made.SCA, centre);
    setText(made.TPA, number);
    std::copy(userData.begin(), userData.end(), made.TP_UD);
    made.tp_udlength = int(userData.size());
    return made;
}

SM_PARAM part(const QByteArray &header, const QByteArray &septets, bool isLast = false)
{
    SM_PARAM made = record(QByteArray::fromHex(header) + septets);
    made.concatenated = 1;
    made.reportPart = isLast;
    return made;
}

SM_PARAM ucs2Part(const QString &text, bool isLast)
{
    SM_PARAM made = part("050003AB0201", {}, isLast);
    made.ucs2Header = 1;
    made.tp_udlength += int(text.size());
    return made;
}

/// What lies ahead of TP-UDL in each of these: no centre, to 10086, for twelve hours.
QByteArray pdu(const char *first, const char *rest, const char *dcs = "00")
{
    return QByteArray("0181") + first + "000581" + "0180F6" + "00" + dcs + "8F" + rest;
}

} // namespace

class PduEncode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid() && QDir::setCurrent(m_folder.path())); }

    void addresses_data()
    {
        QTest::addColumn<QByteArray>("centre");
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<QByteArray>("head");
        const auto row = [](const char *name, const char *centre, const char *number, const char *head) {
            QTest::newRow(name) << QByteArray(centre) << QByteArray(number) << QByteArray(head);
        };
        row("odd number of digits", "", "10086", "0181110005810180F6");
        row("plus", "", "+12345678901", "018111000B912143658709F1");
        row("two zeros stay", "", "0012345678901", "018111000D91002143658709F1");
        row("centre", "8613800100500", "1", "0881683108100005F011000181F1");
        row("centre with two zeros", "0049171", "1", "0591009471F111000181F1");
        row("longest", "123456789012345", "+12345678901234", "098121436587092143F511000E9121436587092143");
    }
    void addresses()
    {
        QFETCH(QByteArray, centre);
        QFETCH(QByteArray, number);
        QFETCH(QByteArray, head);
        SM_PARAM message = record("hello", number.constData(), centre.constData());
        QCOMPARE(encodeSubmit(message, {}, plain), head + "00008F05E8329BFD06");
        QVERIFY(message.TPA[0] != '+'); // the cleaned number is written back
    }

    void userData_data()
    {
        QTest::addColumn<SM_PARAM>("message");
        QTest::addColumn<QString>("text");
        QTest::addColumn<SubmitSettings>("settings");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, const SM_PARAM &message, const SubmitSettings &settings,
                            const QByteArray &expected, const QString &text = {}) {
            QTest::newRow(name) << message << text << settings << expected;
        };
        row("nothing", record(""), plain, pdu("11", "00"));
        row("eight septets in seven octets", record("12345678"), plain, pdu("11", "0831D98C56B3DD70"));
        row("report asked for", record(), withReport, pdu("31", "05E8329BFD06"));
        // The first letter of "Hi" fills an octet of its own, doubled.
        row("8-bit reference", part("050003AB020100", "Hi"), plain, pdu("51", "09050003AB02019069"));
        row("report not on the first part", part("050003AB020100", "Hi"), withReport,
            pdu("51", "09050003AB02019069"));
        row("report on the flagged part", part("050003AB020200", "Hi", true), withReport,
            pdu("71", "09050003AB02029069"));
        row("16-bit reference", part("060804ABCD0201", "Hi"), plain, pdu("51", "0A060804ABCD0201C834"));
        row("part with a national table", part("080003AB020124010100", "a"), plain,
            pdu("51", "0C080003AB0201240101200C"));
        row("single with a national table", part("0324010100", "\x1b\x73", true), withReport,
            pdu("71", "0703240101D8CC01"));
        row("UCS2 in lower case", record(QByteArray(2, '\0')), ucs2, pdu("11", "04004bfeed", "08"),
            u"K\ufeed"_s);
        row("UCS2 behind an upper-case header", ucs2Part(u"\u00ab\u4f60"_s, false), ucs2WithReport,
            pdu("51", "0A050003AB020100ab4f60", "08"), u"\u00ab\u4f60"_s);
        row("UCS2, last part", ucs2Part(u"\u00ab"_s, true), ucs2WithReport,
            pdu("71", "08050003AB020100ab", "08"), u"\u00ab"_s);
    }
    void userData()
    {
        QFETCH(SM_PARAM, message);
        QFETCH(QString, text);
        QFETCH(SubmitSettings, settings);
        QTEST(encodeSubmit(message, text, settings), "expected");
    }

    void validity()
    {
        const std::map<int, QByteArray> octets{{0, "8F"}, {1, "A7"}, {2, "AD"}, {3, "FF"}, {-1, "FF"}};
        for (const auto &[index, octet] : octets) {
            SM_PARAM message = record();
            QCOMPARE(encodeSubmit(message, {}, {index, false, false}).mid(22, 2), octet);
        }
    }

    void composedParts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("language");
        QTest::addColumn<QByteArrayList>("expected"); ///< TP-UDL and what follows, cut after the first text
        QTest::newRow("single") << u"hello"_s << 0 << QByteArrayList{"05E8329BFD06"};
        QTest::newRow("single shift") << u"ú"_s << 2 << QByteArrayList{"0703240102D8D401"};
        QTest::newRow("locking shift") << u"ışk"_s << 1 << QByteArrayList{"08032501013874D6"};
        QTest::newRow("UCS2") << u"ş"_s << 0 << QByteArrayList{"02015f"};
        QTest::newRow("parts") << QString(154, u'a') + QString(7, u'b') << 0
                               << QByteArrayList{"A0050003070201C2E170", "0F050003070202C262B1"};
        QTest::newRow("parts in UCS2")
            << QString(71, u'中') << 0 << QByteArrayList{"8C0500030702014e2d4e2d", "0E0500030702024e2d4e2d"};
        QTest::newRow("parts with a table")
            << u"ı"_s + QString(155, u'a') << 1
            << QByteArrayList{"A0080003070201250101E010", "12080003070202250101201C"};
    }
    void composedParts()
    {
        QFETCH(QString, text);
        QFETCH(int, language);
        QFETCH(QByteArrayList, expected);
        const corva::SplitText split = corva::splitText(text, {language});
        QCOMPARE(qsizetype(split.parts.size()), expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            SM_PARAM message = corva::smParamFor(split, i, u"+491234567"_s, u"491"_s, 7, true);
            const bool isUcs2 = split.alphabet == corva::Alphabet::Ucs2;
            const QByteArray sent = encodeSubmit(message, split.parts[std::size_t(i)], {3, true, isUcs2});
            const bool isLong = message.concatenated;
            const bool asks = i + 1 == expected.size();
            QCOMPARE(sent.left(26), QByteArray("038194F1") +
                                        (!isLong ? "31"
                                         : asks  ? "71"
                                                 : "51") +
                                        "00099194214365F7");
            QCOMPARE(sent.mid(32, expected[i].size()), expected[i]);
        }
    }

    void memberTakesTheSettings()
    {
        cmcfg.setValue(u"sms"_s, u"validPeriod"_s, u"2"_s);
        cmcfg.setValue(u"sms"_s, u"deliveryReport"_s, u"1"_s);
        char sent[1024];
        char hex[1024];
        SM_PARAM message = record();
        const int length = SerialThread::gsmEncodePdu(&message, sent, {}, hex);
        QCOMPARE(length, int(qstrlen(sent)));
        QCOMPARE(QByteArray(sent), QByteArray("0181310005810180F60000AD05E8329BFD06"));
        message = record();
        message.report = ReportWish::No; // what was chosen for this one
        SerialThread::gsmEncodePdu(&message, sent, {}, hex);
        QCOMPARE(QByteArray(sent).mid(4, 2), QByteArray("11"));
        gUnicodeFlag = true;
        message = ucs2Part(u"\u00ab"_s, true);
        SerialThread::gsmEncodePdu(&message, sent, u"\u00ab"_s, hex);
        gUnicodeFlag = false;
        QCOMPARE(QByteArray(sent), QByteArray("0181710005810180F60008AD08050003AB020100ab"));
        QCOMPARE(QByteArray(hex), QByteArray("00ab"));
    }

    void members()
    {
        char text[64];
        unsigned char octets[64];
        QCOMPARE(SerialThread::gsmInvertNumbers("12345", text, 5), 6);
        QCOMPARE(QByteArray(text), QByteArray("2143F5"));
        QCOMPARE(SerialThread::gsmEncode7bit("12345678", octets, 8), 7);
        QCOMPARE(SerialThread::gsmBytes2String(octets, text, 7), 14);
        QCOMPARE(QByteArray(text), QByteArray("31D98C56B3DD70"));
        QCOMPARE(SerialThread::gsmString2Bytes("4G42", text, 4), 0);
        QCOMPARE(SerialThread::gsmString2Bytes("4aB", text, 3), 1);
        QCOMPARE(QByteArray(text), QByteArray("J"));
        char hex[64];
        QCOMPARE(SerialThread::gsmEncodeUcs2(nullptr, text, 2, u"a\u00FC!"_s, hex), 4);
        QCOMPARE(QByteArray(hex), QByteArray("006100fc"));
    }

    void referenceWrapsAndIsKept()
    {
        cmcfg.setValue(u"sms"_s, u"concat-id"_s, u"254"_s);
        QCOMPARE(corva::nextConcatReference(), 255);
        QCOMPARE(corva::nextConcatReference(), 0);
        QCOMPARE(CommonCfg().getNumber(u"sms"_s, u"concat-id"_s), 0); // as the next start reads it
        cmcfg.setValue(u"sms"_s, u"concat-id"_s, u"70000"_s);
        QVERIFY(corva::nextConcatReference() <= 255);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(PduEncode)

#include "tst_pduencode.moc"
