// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/apnproposals.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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

} // namespace

class TestApnProposals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choice_data();
    void choice();
    void everyValue();
    void realDatabase();

private:
    QString put(const QByteArray &text)
    {
        QFile file(m_folder.filePath(u"providers.xml"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("no database");
        return file.fileName();
    }

    QTemporaryDir m_folder;
};

void TestApnProposals::choice_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("expected");
    const QByteArray ours = network("310", "26");
    const QByteArray mms = apn("mms", "<usage type=\"mms\"/>");
    const QByteArray wap = apn("wap", "<usage type=\"wap\"/>");
    QTest::newRow("one operator") << database(provider("A", ours, apn("a"))) << QStringList{u"A/a"_s};
    QTest::newRow("another network") << database(provider("A", network("310", "27"), apn("a")))
                                     << QStringList();
    QTest::newRow("internet first, no MMS")
        << database(provider("A", ours, mms + wap + apn("a"))) << QStringList{u"A/a"_s, u"A/wap"_s};
    QTest::newRow("two operators, the network's own first")
        << database(provider("Rider", ours, apn("r")) + provider("Own", ours, apn("o"), " primary=\"true\""))
        << QStringList{u"Own/o"_s, u"Rider/r"_s};
    QTest::newRow("three digits before two")
        << database(provider("Two", ours, apn("a")) +
                    provider("Three", ours + network("310", "260"), apn("b")))
        << QStringList{u"Three/b"_s};
    QTest::newRow("said twice") << database(provider("A", ours, apn("a") + apn("a")))
                                << QStringList{u"A/a"_s};
    QTest::newRow("no APN that could be dialled")
        << database(provider("A", ours, apn("&quot;,1") + apn("&#10;") + apn("") + apn("a")))
        << QStringList{u"A/a"_s};
    QTest::newRow("broken off") << database(provider("A", ours, apn("a"))).chopped(30) << QStringList();
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("another document") << QByteArray("<html><provider/></html>") << QStringList();
    QByteArray laughs = "<!DOCTYPE serviceproviders [<!ENTITY a0 \"haha\">";
    for (int i = 1; i < 30; ++i)
        laughs += "<!ENTITY a" + QByteArray::number(i) + " \"" +
                  ("&a" + QByteArray::number(i - 1) + ';').repeated(9) + "\">";
    QTest::newRow("entities without end")
        << database(provider("&a29;", ours, apn("a"))).replace("?>", "?>" + laughs + "]>") << QStringList();
    QTest::newRow("nested without end")
        << "<serviceproviders>" + QByteArray("<country>").repeated(100'000) << QStringList();
}

void TestApnProposals::choice()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, expected);
    QCOMPARE(shortly(apnProposals(u"310260123456789"_s, put(text))), expected);
}

void TestApnProposals::everyValue()
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

void TestApnProposals::realDatabase()
{
    if (!QFile::exists(QString::fromUtf16(providerDatabase)))
        QSKIP("the database of operators is not installed");
    const QStringList list = shortly(apnProposals(u"262010000000001"_s));
    QVERIFY2(list.contains(u"T-Mobile(Telekom)/internet.telekom"_s), qPrintable(list.join(u' ')));
}

QTEST_APPLESS_MAIN(TestApnProposals)
#include "tst_apnproposals.moc"
