// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "connection/apnproposals.h"

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QByteArray provider(const QByteArray &name, const QByteArray &networks, const QByteArray &apns,
                    const QByteArray &attributes = {})
{
    return "<provider" + attributes + "><name xml:lang=\"xx\">other</name><name>" + name + "</name><gsm>" +
           networks + apns + "</gsm></provider>";
}

QByteArray network(const QByteArray &mcc, const QByteArray &mnc)
{
    return "<network-id mcc=\"" + mcc + "\" mnc=\"" + mnc + "\"/>";
}

QByteArray apn(const QByteArray &value, const QByteArray &inner = {})
{
    return "<apn value=\"" + value + "\">" + inner + "</apn>";
}

QByteArray database(const QByteArray &providers)
{
    return "<?xml version=\"1.0\"?><serviceproviders format=\"2.0\"><country code=\"xx\">" + providers +
           "</country></serviceproviders>";
}

/// "operator/apn" of each.
QStringList shortly(const std::vector<ApnProposal> &proposals)
{
    QStringList list;
    for (const ApnProposal &proposal : proposals)
        list += proposal.operatorName + u'/' + proposal.apn;
    return list;
}

const QByteArray ours = network("310", "26");
const QByteArray mms = apn("mms", "<usage type=\"mms\"/>");
const QByteArray wap = apn("wap", "<usage type=\"wap\"/>");

/// Entities that grow without end.
QByteArray laughs()
{
    QByteArray text = "<!DOCTYPE serviceproviders [<!ENTITY a0 \"haha\">";
    for (int i = 1; i < 30; ++i)
        text += "<!ENTITY a" + QByteArray::number(i) + " \"" +
                ("&a" + QByteArray::number(i - 1) + ';').repeated(9) + "\">";
    return text + "]>";
}

const Rows<QByteArray, QStringList> choiceRows{
    {"one operator", database(provider("A", ours, apn("a"))), QStringList{u"A/a"_s}},
    {"another network", database(provider("A", network("310", "27"), apn("a"))), {}},
    {"internet first, no MMS", database(provider("A", ours, mms + wap + apn("a"))),
     QStringList{u"A/a"_s, u"A/wap"_s}},
    {"two operators, the network's own first",
     database(provider("Rider", ours, apn("r")) + provider("Own", ours, apn("o"), " primary=\"true\"")),
     QStringList{u"Own/o"_s, u"Rider/r"_s}},
    {"three digits before two",
     database(provider("Two", ours, apn("a")) + provider("Three", ours + network("310", "260"), apn("b"))),
     QStringList{u"Three/b"_s}},
    {"said twice", database(provider("A", ours, apn("a") + apn("a"))), QStringList{u"A/a"_s}},
    {"no APN that could be dialled",
     database(provider("A", ours, apn("&quot;,1") + apn("&#10;") + apn("") + apn("a"))),
     QStringList{u"A/a"_s}},
    {"broken off", database(provider("A", ours, apn("a"))).chopped(30), {}},
    {"empty", {}, {}},
    {"another document", "<html><provider/></html>", {}},
    {"entities without end", database(provider("&a29;", ours, apn("a"))).replace("?>", "?>" + laughs()), {}},
    {"nested without end", "<serviceproviders>" + QByteArray("<country>").repeated(100'000), {}},
};

} // namespace

class TestApnProposals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choice_data() { addRows(choiceRows); }
    void choice()
    {
        const auto &[name, text, expected] = currentRow(choiceRows);
        QCOMPARE(shortly(apnProposals(u"310260123456789"_s, put(text))), expected);
    }

    void everyValue()
    {
        const QByteArray inner = "<plan type=\"prepaid\"/><usage type=\"internet\"/><name>Prepaid</name>"
                                 "<username>me</username><password> pass </password>"
                                 "<authentication method=\"chap\"/><dns>8.8.8.8</dns>";
        const auto proposals = apnProposals(
            u"310260123456789"_s, put(database(provider("A", network("310", "260"), apn("net ", inner)))));
        QCOMPARE(proposals.size(), 1u);
        const ApnProposal expected = {u"A"_s, u"Prepaid"_s, u"net"_s, u"me"_s, u"pass"_s, true, u"310260"_s};
        QCOMPARE(proposals[0], expected);
        QVERIFY(apnProposals(u"310260123456789"_s, u"/nowhere"_s).empty());
        QVERIFY(apnProposals(u"31026"_s, m_folder.filePath(u"providers.xml"_s)).empty());
    }

    void realDatabase()
    {
        if (!QFile::exists(QString::fromUtf16(providerDatabase)))
            QSKIP("the database of operators is not installed");
        const QStringList list = shortly(apnProposals(u"262010000000001"_s));
        QVERIFY2(list.contains(u"T-Mobile(Telekom)/internet.telekom"_s), qPrintable(list.join(u' ')));
    }

private:
    QString put(const QByteArray &text)
    {
        putFile(m_folder.filePath(u"providers.xml"_s), text);
        return m_folder.filePath(u"providers.xml"_s);
    }

    QTemporaryDir m_folder;
};

QTEST_APPLESS_MAIN(TestApnProposals)
#include "tst_apnproposals.moc"
