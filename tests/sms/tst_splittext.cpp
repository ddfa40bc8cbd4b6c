// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsdecoder.h"
#include "sms/splittext.h"
#include "sms/submit.h"

#include <QRandomGenerator>
#include <QTest>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const QString emoji = u"\U0001f600"_s;

/// Each part as it comes back from the PDU that it went out in.
DecodedSms sentAndReceived(const SplitText &split, int index)
{
    SM_PARAM message = smParamFor(split, index, u"+4917112345"_s, u"491"_s, 200, true);
    const QByteArray pdu =
        encodeSubmit(message, split.parts[std::size_t(index)], {3, true, split.alphabet == Alphabet::Ucs2});
    const SmsResult result = decodeSms(pdu, SmsDirection::OnCard);
    if (const auto *error = std::get_if<PduError>(&result))
        qFatal("%s", qPrintable(error->text()));
    return std::get<DecodedSms>(result);
}

QString randomText(QRandomGenerator &random, const QString &letters)
{
    QString text;
    const qsizetype size = random.bounded(700);
    while (text.size() < size) {
        const QChar letter = letters[random.bounded(letters.size())];
        text += letter;
        if (letter.isHighSurrogate())
            text += emoji[1];
    }
    return text;
}

} // namespace

class SplitTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("language");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("formulaParts");
        QTest::addColumn<QList<int>>("sizes"); ///< of the real parts, in code units
        const auto a = [](int count) { return QString(count, u'a'); };
        QTest::newRow("nothing") << QString() << 1 << 0 << 1 << QList<int>{0};
        QTest::newRow("160 septets") << a(160) << 1 << 160 << 1 << QList<int>{160};
        QTest::newRow("161 septets") << a(161) << 1 << 161 << 2 << QList<int>{153, 8};
        QTest::newRow("two full parts") << a(306) << 1 << 306 << 2 << QList<int>{153, 153};
        QTest::newRow("one more") << a(307) << 1 << 307 << 3 << QList<int>{153, 153, 1};
        QTest::newRow("80 escapes") << QString(80, u'€') << 1 << 160 << 1 << QList<int>{80};
        QTest::newRow("no escape is torn: a part more than counted")
            << QString(153, u'€') << 2 << 306 << 2 << QList<int>{76, 76, 1};
        QTest::newRow("155 with a table") << u"ı"_s + a(154) << 1 << 155 << 1 << QList<int>{155};
        QTest::newRow("156 with a table") << u"ı"_s + a(155) << 1 << 156 << 2 << QList<int>{149, 7};
        QTest::newRow("single shift counts two") << u"ú"_s + a(154) << 2 << 156 << 2 << QList<int>{148, 7};
        QTest::newRow("70 characters") << QString(70, u'中') << 1 << 70 << 1 << QList<int>{70};
        QTest::newRow("71 characters") << QString(71, u'中') << 1 << 71 << 2 << QList<int>{67, 4};
        QTest::newRow("no pair is torn: a part more than counted")
            << emoji.repeated(67) << 1 << 134 << 2 << QList<int>{66, 66, 2};
        QTest::newRow("half a pair is a character")
            << QString(71, QChar(0xd83d)) << 1 << 71 << 2 << QList<int>{67, 4};
    }
    void counts()
    {
        QFETCH(QString, text);
        QFETCH(int, language);
        const SplitText split = splitText(text, {language});
        QTEST(split.length, "length");
        QTEST(split.formulaParts, "formulaParts");
        QList<int> sizes;
        for (const QString &part : split.parts)
            sizes += int(part.size());
        QTEST(sizes, "sizes");
    }

    void alphabet_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("language");
        QTest::addColumn<Alphabet>("alphabet");
        QTest::addColumn<int>("languageCode");
        QTest::addColumn<bool>("isLocking");
        QTest::addColumn<QString>("whyUcs2");
        const auto septets = [](const char *name, const QString &text, int language, int code,
                                bool isLocking) {
            QTest::newRow(name) << text << language << Alphabet::Gsm7 << code << isLocking << QString();
        };
        const auto ucs2 = [](const char *name, const QString &text, int language, const QString &why) {
            QTest::newRow(name) << text << language << Alphabet::Ucs2 << 0 << false << why;
        };
        septets("default", u"Él [ñ] €"_s, 1, 0, false);
        septets("Turkish takes less locked", u"ış"_s, 1, 1, true);
        septets("è is not in the locked table", u"işè"_s, 1, 1, false);
        septets("Spanish has no locked table", u"áí"_s, 2, 2, false);
        septets("Portuguese", u"não"_s, 3, 3, true);
        septets("locked only", u"1ª ∞"_s, 3, 3, true);
        ucs2("no table wanted", u"aş"_s, 0, u"ş"_s);
        ucs2("another language's letter", u"ışã"_s, 1, u"ã"_s);
        ucs2("emoji", u"a"_s + emoji, 1, emoji);
        ucs2("an escape is no character", u"\x1b"_s, 1, u"\x1b"_s);
        ucs2("nor is NUL", QString(QChar(0)), 1, QString(QChar(0)));
    }
    void alphabet()
    {
        QFETCH(QString, text);
        QFETCH(int, language);
        const SplitText split = splitText(text, {language});
        QTEST(split.alphabet, "alphabet");
        QTEST(split.languageCode, "languageCode");
        QTEST(split.isLocking, "isLocking");
        QTEST(split.whyUcs2, "whyUcs2");
    }

    /// What is sent comes back, whatever the letters.
    void roundTrip_data()
    {
        QTest::addColumn<QString>("letters");
        QTest::addColumn<int>("language");
        QTest::newRow("default") << u"@£$¥èéùìòÇ\nØø\rÅåΔ_ΦΓΛΩΠΨΣΘΞÆæßÉ !\"#¤09?¡AZÄÖÑÜ§¿azäöñüà"_s << 0;
        QTest::newRow("extension") << u"ab\f^{}\\[~]|€"_s << 0;
        QTest::newRow("Turkish") << u"abcĞİŞçğış€èòØ"_s << 1;
        QTest::newRow("Turkish locked") << u"abcĞİŞçğış€{}"_s << 1;
        QTest::newRow("Spanish") << u"abçÁÍÓÚáíóú€ñ"_s << 2;
        QTest::newRow("Portuguese") << u"abêçÔôÁáΦΓΩÊÀÍÓÚÃÕÂíúãõâ"_s << 3;
        QTest::newRow("Portuguese locked") << u"abêúíóçÔôÁáªÀ∞^\\€|ÂâÊºÍÃÕÚ~ãõ`[]"_s << 3;
        QTest::newRow("UCS2") << u"a中я"_s + emoji[0] << 1;
    }
    void roundTrip()
    {
        QFETCH(QString, letters);
        QFETCH(int, language);
        QRandomGenerator random(4711);
        for (int round = 0; round < 40; ++round) {
            const QString text = randomText(random, letters);
            const SplitText split = splitText(text, {language});
            QString received;
            for (int i = 0; i < int(split.parts.size()); ++i) {
                const DecodedSms part = sentAndReceived(split, i);
                received += part.text;
                QCOMPARE(part.address, u"+4917112345"_s); // the encoder takes the plus off its record
                QVERIFY(part.userDataLength <= (split.alphabet == Alphabet::Ucs2 ? 140 : 160));
                QCOMPARE(part.concatenation.has_value(), split.parts.size() > 1);
                if (part.concatenation)
                    QCOMPARE(*part.concatenation,
                             (Concatenation{200, int(split.parts.size()), i + 1, false}));
                QVERIFY(!part.text.startsWith(emoji[1]) && !part.text.endsWith(emoji[0]));
            }
            QCOMPARE(received, text);
            QVERIFY(int(split.parts.size()) >= split.formulaParts);
        }
    }

    void tooManyPartsAreSeen()
    {
        constexpr qsizetype fullest = qsizetype(255) * 153;
        QVERIFY(splitText(QString(fullest, u'a'), {}).isSendable());
        QVERIFY(!splitText(QString(fullest + 1, u'a'), {}).isSendable());
    }

    void specialCode()
    {
        QCOMPARE(TextCoding::fromSpecialCode(u"gsm7ex_spanish"_s).language, 2);
        QCOMPARE(TextCoding::fromSpecialCode(u"gsm7ex_portuguese"_s).language, 3);
        for (const QString &other : {u"gsm7ex_turkish"_s, QString(), u"gsm7ex_klingon"_s})
            QCOMPARE(TextCoding::fromSpecialCode(other).language, 1);
    }

    /// The configuration is missing here: Turkish.
    void members()
    {
        wchar_t turkish[] = L"\u015f[a";
        char septets[8];
        QCOMPARE(SmsDecoder::needNationalLanguageSupport(turkish, 3), true);
        QCOMPARE(SmsDecoder::needNationalLanguageSupport(turkish + 1, 2), false);
        QCOMPARE(SmsDecoder::Ucs2toSMS7(septets, 8, turkish, 3), 4);
        QCOMPARE(QByteArray(septets, 4), QByteArray("\x1d\x1b\x3c\x61"));
        QCOMPARE(SmsDecoder::Ucs2toSMS7(septets, 2, turkish, 3), 1); // no escape without what it announces
        wchar_t unknown[] = L"a\u4e2d\U0001f600";
        QCOMPARE(SmsDecoder::Ucs2toSMS7(septets, 8, unknown, 3), 4);
        QCOMPARE(QByteArray(septets, 4), QByteArray("a???"));

        QChar text[8];
        char escaped[] = "\x1b\x3c\x1b\x1b\x1b\x01\x1b";
        QCOMPARE(SmsDecoder::SMS7toUcs2(text, 8, escaped, 7), 4);
        QCOMPARE(QString(text, 4), u"[ £ "_s); // escape twice, without a character, at the end
        const unsigned char locked[] = {0x1d, 0x00, 0x07};
        QCOMPARE(SmsDecoder::SMS7toUcs2LockingShift(text, 2, locked, 3), 2);
        QCOMPARE(QString(text, 2), u"ş@"_s);
        QCOMPARE(SmsDecoder::oneCharExtGsm7ToUcs2(0x65), 0x20ac);
        QCOMPARE(SmsDecoder::oneCharExtGsm7ToUcs2(0x80), 0x20);
        QCOMPARE(SmsDecoder::oneCharUcs2ToDftGsm7(u'Ç'), 0x09);
        QCOMPARE(SmsDecoder::oneCharUcs2ToDftGsm7(u'ç'), -1);
    }
};

QTEST_GUILESS_MAIN(SplitTexts)

#include "tst_splittext.moc"
