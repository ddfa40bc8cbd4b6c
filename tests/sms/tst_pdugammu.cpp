// SPDX-License-Identifier: GPL-3.0-or-later
// What this program sends, read by another's decoder.
#include "sms/splittext.h"
#include "sms/submit.h"

#include <QTest>
#include <gammu.h>
#include <memory>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QString fromGammu(const unsigned char *text)
{
    return QString::fromUtf8(DecodeUnicodeString(text));
}

/// As gammu reads a PDU with its service centre; `Length` is 0 when it does not.
GSM_SMSMessage readByGammu(const QByteArray &pdu)
{
    const QByteArray octets = QByteArray::fromHex(pdu);
    GSM_SMSMessage message{};
    std::size_t end = 0;
    const GSM_Error error = GSM_DecodePDUFrame(GSM_GetGlobalDebug(), &message,
                                               reinterpret_cast<const unsigned char *>(octets.data()),
                                               std::size_t(octets.size()), &end, TRUE);
    if (error != ERR_NONE || end != std::size_t(octets.size()))
        qFatal("gammu: %s, %zu of %lld octets", GSM_ErrorString(error), end,
               static_cast<long long>(octets.size()));
    return message;
}

} // namespace

class PduGammu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sentTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("single") << u"Grüße, [Δ] für 5 €"_s;
        QTest::newRow("every length of a group of eight") << u"1234567"_s;
        QTest::newRow("full") << QString(160, u'x');
        QTest::newRow("two parts") << QString(170, u'y');
        QTest::newRow("escapes at the cut") << QString(152, u'z') + u"€€"_s + QString(200, u'€');
        QTest::newRow("UCS2") << u"你好, мир"_s;
        QTest::newRow("UCS2 in parts") << u"слово "_s.repeated(40);
    }
    void sentTexts()
    {
        QFETCH(QString, text);
        const SplitText split = splitText(text, {});
        QString received;
        for (int i = 0; i < int(split.parts.size()); ++i) {
            SM_PARAM record = smParamFor(split, i, u"+4917112345"_s, u"49171"_s, 77, true);
            const bool isUcs2 = split.alphabet == Alphabet::Ucs2;
            const GSM_SMSMessage sms =
                readByGammu(encodeSubmit(record, split.parts[std::size_t(i)], {1, true, isUcs2}));
            QCOMPARE(sms.PDU, SMS_Submit);
            QCOMPARE(fromGammu(sms.Number), u"+4917112345"_s);
            if (split.parts.size() > 1) {
                QCOMPARE(sms.UDH.ID8bit, 77);
                QCOMPARE(sms.UDH.AllParts, int(split.parts.size()));
                QCOMPARE(sms.UDH.PartNumber, i + 1);
            }
            received += fromGammu(sms.Text);
        }
        QCOMPARE(received, text);
    }
};

QTEST_GUILESS_MAIN(PduGammu)

#include "tst_pdugammu.moc"
