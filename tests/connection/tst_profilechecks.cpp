// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/profilechecks.h"
#include "connection/profilestore.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

using F = ProfileField;

namespace
{

ConnectionProfile goodProfile()
{
    ConnectionProfile profile = ProfileStore::newProfile();
    profile.setText(F::Name, u"Home"_s);
    profile.setText(F::Apn, u"internet"_s);
    return profile;
}

} // namespace

class TestProfileChecks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editor_data();
    void editor();
    void dialler_data();
    void dialler();
    void address_data();
    void address();
};

void TestProfileChecks::editor_data()
{
    QTest::addColumn<QMap<int, QString>>("changes");
    QTest::addColumn<QString>("refusal"); // how it begins
    using Changes = QMap<int, QString>;
    QTest::newRow("as it begins, with name and APN") << Changes() << QString();
    QTest::newRow("no name") << Changes{{int(F::Name), u" "_s}} << u"The Config Filename must be filled."_s;
    QTest::newRow("no number") << Changes{{int(F::Phone), QString()}} << u"The Dial Number is empty!"_s;
    QTest::newRow("no number for a network card")
        << Changes{{int(F::Phone), QString()}, {int(F::PppMode), u"NDIS"_s}} << QString();
    QTest::newRow("no APN") << Changes{{int(F::Apn), QString()}} << u"The APN is empty!"_s;
    QTest::newRow("no APN, the network's is used")
        << Changes{{int(F::Apn), QString()}, {int(F::UsesApn), u"0"_s}} << QString();
    QTest::newRow("fixed address of three numbers")
        << Changes{{int(F::UsesPdp), u"1"_s}, {int(F::Pdp), u"10.0.1"_s}}
        << u"Invalid PDP!Please check it!"_s;
    QTest::newRow("fixed address not used") << Changes{{int(F::Pdp), u"10.0.1"_s}} << QString();
    QTest::newRow("preferred DNS") << Changes{{int(F::UsesDns), u"1"_s},
                                              {int(F::PreferredDns), u"8.8.8.256"_s}}
                                   << u"Invalid Preferred DNS!Please check it!"_s;
    QTest::newRow("one name server is enough")
        << Changes{{int(F::UsesDns), u"1"_s}, {int(F::PreferredDns), u"8.8.8.255"_s}} << QString();
    QTest::newRow("second DNS") << Changes{{int(F::UsesDns), u"1"_s},
                                           {int(F::PreferredDns), u"8.8.8.8"_s},
                                           {int(F::AlternativeDns), u"dns.example"_s}}
                                << u"Invalid Alternative DNS!Please check it!"_s;
    for (const QString &text : {u"a\nb"_s, u"a\rb"_s, u"a"_s + QChar(0), u"a-|-b"_s})
        QTest::addRow("name %s", text.toLatin1().toHex().constData())
            << Changes{{int(F::Name), text}} << u"A value holds a line break"_s;
    QTest::newRow("any other name") << Changes{{int(F::Name), u"> ] #\"é 家"_s}} << QString();
    QTest::newRow("APN with a quote") << Changes{{int(F::Apn), u"inter\"net"_s}} << u"The APN may hold"_s;
    QTest::newRow("no web page") << Changes{{int(F::DefaultOpenUrl), u"file:///etc/passwd"_s}}
                                 << u"The page to open"_s;
    QTest::newRow("web page") << Changes{{int(F::DefaultOpenUrl), u"www.example.org/start"_s}} << QString();
}

void TestProfileChecks::editor()
{
    using Changes = QMap<int, QString>;
    QFETCH(const Changes, changes);
    QFETCH(QString, refusal);
    ConnectionProfile profile = goodProfile();
    for (auto it = changes.begin(); it != changes.end(); ++it)
        profile.setText(F(it.key()), it.value());
    const QString said = profileRefusal(profile);
    QVERIFY2(refusal.isEmpty() ? said.isEmpty() : said.startsWith(refusal), qPrintable(said));
}

void TestProfileChecks::dialler_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isRefused");
    const auto row = [](const char *name, F field, const QString &text, bool isRefused) {
        QTest::newRow(name) << int(field) << text << isRefused;
    };
    row("number of the data service", F::Phone, u"*99***1#"_s, false);
    row("number of 80 digits", F::Phone, QString(80, u'1'), false);
    row("number of 81 digits", F::Phone, QString(81, u'1'), true);
    row("a second command", F::Phone, u"*99#;+CFUN=0"_s, true);
    row("a second line", F::Phone, u"*99#\r\nInit2 = AT"_s, true);
    row("entry of the phonebook", F::Phone, u">\"home\""_s, true);
    row("mail address as user", F::UserName, u"me@example.org"_s, false);
    row("signs that wvdial passes on", F::UserName, u"a b#c;d%e$f'g=[h]`i`&"_s, false);
    row("wvdial strips quotes", F::UserName, u"\"me\""_s, true);
    row("wvdial strips backslashes", F::UserName, u"DOMAIN\\me"_s, true);
    row("wvdial strips braces", F::Password, u"{secret}"_s, true);
    row("blank at the end", F::Password, u"secret "_s, true);
    row("everybody's secret", F::UserName, u"*"_s, true);
    row("pppd would send a file", F::Password, u"@/etc/shadow"_s, true);
    row("at sign", F::Password, u"@home"_s, false);
    row("255 bytes", F::Password, QString(255, u'x'), false);
    row("256 bytes", F::Password, QString(128, QChar(0xe9)), true);
    row("a second section", F::Password, u"x\n[Dialer Defaults]"_s, true);
}

void TestProfileChecks::dialler()
{
    QFETCH(int, field);
    QFETCH(QString, text);
    QFETCH(bool, isRefused);
    ConnectionProfile profile = goodProfile();
    profile.setText(F(field), text);
    QCOMPARE(!dialRefusal(profile, u"/dev/ttyUSB2"_s).isEmpty(), isRefused);
    QCOMPARE(!profileRefusal(profile).isEmpty(), isRefused);
    QVERIFY(!dialRefusal(goodProfile(), u"/dev/ttyUSB2\nInit = AT"_s).isEmpty());
    QVERIFY(!dialRefusal(goodProfile(), u"ttyUSB2"_s).isEmpty());
}

void TestProfileChecks::address_data()
{
    QTest::addColumn<bool>("isAddress");
    for (const char *text : {"1.2.3.4", "255.255.255.254", "10.0.0.0", "0.0.0.1"})
        QTest::newRow(text) << true;
    for (const char *text : {"", "0.0.0.0", "255.255.255.255", "1.2.3", "1.2.3.4.5", "1.2.3.4.", "1..3.4",
                             "01.2.3.4", "1.2.3.256", " 1.2.3.4", "1.2.3.4\n", "::1", "a.b.c.d"})
        QTest::newRow(text) << false;
}

void TestProfileChecks::address()
{
    QFETCH(bool, isAddress);
    QCOMPARE(isHostAddress(QString::fromLatin1(QTest::currentDataTag())), isAddress);
}

QTEST_APPLESS_MAIN(TestProfileChecks)
#include "tst_profilechecks.moc"
