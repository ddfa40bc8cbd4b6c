// SPDX-License-Identifier: GPL-3.0-or-later
// What other programs send is read here, and what goes out from here is read by them, over one card.
#include "link/serialthread.h"
#include "linktest.h"
#include "otherprograms.h"
#include "sms/smscardjobs.h"
#include "sms/smspdu.h"

#include <QStringEncoder>
#include <QTest>

#include <map>

using namespace corva;

namespace
{

constexpr int patience = 60000;
const QString ownNumber = u"+12025550123"_s; ///< of the card: what goes there comes back
const QString longText = u"0123456789"_s.repeated(40);
const QString turkish = u"Görüşürüz, iyi akşamlar! ğıİ"_s;
const QString russian = u"Привет 😀 "_s.repeated(12);

/// The link of this program at the card's port, as long as it lives.
class OwnLink
{
public:
    explicit OwnLink(const TestCard &card) : link(&m_owner)
    {
        resetLinkGlobals();
        foundPortFlag = link.openPort(card.path(u"at"_s)) > 0;
        link.setATE0();
    }
    ~OwnLink() { link.closePortNormal(link.descriptor()); }
    Q_DISABLE_COPY_MOVE(OwnLink)

    /// Whether each part of each text went out.
    bool sends(const QStringList &texts)
    {
        int reference = 70;
        for (const QString &text : texts) {
            const SplitText split = splitText(text, TextCoding::fromSpecialCode(u"gsm7ex_spanish"_s));
            ++reference;
            for (int i = 0; i < int(split.parts.size()); ++i) {
                const smsjobs::OutgoingPart part{split, i, ownNumber, {}, reference, true};
                if (smsjobs::send(link, part).outcome != smsjobs::SentPart::Sent)
                    return false;
            }
        }
        return true;
    }

private:
    FakeOwner m_owner;

public:
    SerialThread link;
};

/// The texts that the network has taken, as this program reads them, and how many asked for a report.
struct Taken {
    QStringList texts;
    int reports = 0;
};
Taken takenBy(TestCard &card)
{
    std::map<int, std::map<int, QString>> parts; // by message and sequence
    Taken taken;
    int single = -1;
    for (const QJsonValue sent : card.control(R"({"command": "sent"})")[u"sent"_s].toArray()) {
        const SmsResult result = decodeSms(sent[u"pdu"_s].toString().toLatin1(), SmsDirection::OnCard);
        const auto *sms = std::get_if<DecodedSms>(&result);
        if (!sms || sms->address != ownNumber) {
            taken.texts += u"unreadable "_s + sent[u"pdu"_s].toString();
            continue;
        }
        taken.reports += sms->asksReport ? 1 : 0;
        const auto place = sms->concatenation.value_or(Concatenation{single--, 1, 1, false});
        parts[place.reference][place.sequence] = sms->text;
    }
    for (const auto &[reference, ofMessage] : parts) {
        QString text;
        for (const auto &[sequence, part] : ofMessage)
            text += part;
        taken.texts += text;
    }
    return taken;
}

/// What lies on the card's SIM, as this program lists it.
QStringList listed(const TestCard &card)
{
    OwnLink own(card);
    std::map<int, QString> texts;
    int single = -1;
    for (const Message &message : smsjobs::list(own.link, MessagePlace::Sim).messages)
        texts[message.total > 1 ? message.concatReference : single--] += message.parts.front().text;
    QStringList all;
    for (const auto &[reference, text] : texts)
        all += text;
    return all;
}

QByteArray missing(const QStringList &wanted, const QStringList &found)
{
    for (const QString &text : wanted) {
        if (!found.contains(text))
            return (text + u" is not among:\n"_s + found.join(u'\n')).toUtf8();
    }
    return {};
}

} // namespace

class TestOtherPrograms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void gammuAndBack()
    {
        TestCard card;
        const QStringList texts{longText,
                                turkish,
                                russian,
                                u"Grüße, [Δ] für 5 €"_s,
                                QString(160, u'x'),
                                QString(152, u'z') + u"€€"_s + QString(200, u'€')};
        QVERIFY(OwnLink(card).sends(texts));
        const QString output = gammu(card, {u"geteachsms"_s, u"deleteallsms 1"_s});
        QCOMPARE(missing(texts, output.split(u'\n')), QByteArray());

        card.tell(R"({"command": "sent", "clear": true})");
        gammu(card, {u"sendsms TEXT "_s + ownNumber + u" -len 400 -report -text "_s + longText,
                     u"sendsms TEXT "_s + ownNumber + u" -unicode -text \""_s + turkish + u'"'});
        const Taken taken = takenBy(card);
        QCOMPARE(missing({longText, turkish}, taken.texts), QByteArray());
        QVERIFY(taken.reports >= 1);
        QCOMPARE(missing({longText, turkish}, listed(card)), QByteArray());
    }

    void smsdAndBack()
    {
        TestCard card;
        card.tell(R"({"command": "sms-network", "reportDelay": 0})");
        QVERIFY(OwnLink(card).sends({longText, turkish, russian}));
        QVERIFY(card.isLeft(u"at"_s));
        card.tell(R"({"command": "sent", "clear": true})");
        const Server server(card);
        QStringEncoder ucs2(QStringConverter::Utf16BE); // as smsd leaves it
        for (const QByteArray &text :
             {longText.toLatin1(), QByteArray(ucs2(turkish)), QByteArray(ucs2(russian))})
            QTRY_VERIFY_WITH_TIMEOUT(server.spool(u"incoming"_s).contains("\n\n" + text), patience);
        server.write(u"outgoing/long"_s, "To: 12025550123\nReport: yes\n\n" + longText.toUtf8());
        server.write(u"outgoing/turkish"_s,
                     "To: 12025550123\nAlphabet: UTF-8\nReport: yes\n\n" + turkish.toUtf8());
        QTRY_COMPARE_WITH_TIMEOUT(missing({longText, turkish}, takenBy(card).texts), QByteArray(), patience);
        QCOMPARE(takenBy(card).reports, 4);
    }

private:
    ScratchFolder m_folder;
};

QTEST_GUILESS_MAIN(TestOtherPrograms)
#include "tst_otherprograms.moc"
