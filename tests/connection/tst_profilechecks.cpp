// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "connection/profilechecks.h"
#include "connection/profilestore.h"

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

using Changes = QMap<F, QString>;
const QString lineBreak = u"A value holds a line break"_s;

// How the refusal begins.
const Rows<Changes, QString> editorRows{
    {"as it begins, with name and APN", {}, {}},
    {"no name", {{F::Name, u" "_s}}, u"The Config Filename must be filled."_s},
    {"no number", {{F::Phone, QString()}}, u"The Dial Number is empty!"_s},
    {"no number for a network card", {{F::Phone, QString()}, {F::PppMode, u"NDIS"_s}}, {}},
    {"no APN", {{F::Apn, QString()}}, u"The APN is empty!"_s},
    {"no APN, the network's is used", {{F::Apn, QString()}, {F::UsesApn, u"0"_s}}, {}},
    {"fixed address of three numbers",
     {{F::UsesPdp, u"1"_s}, {F::Pdp, u"10.0.1"_s}},
     u"Invalid PDP!Please check it!"_s},
    {"fixed address not used", {{F::Pdp, u"10.0.1"_s}}, {}},
    {"preferred DNS",
     {{F::UsesDns, u"1"_s}, {F::PreferredDns, u"8.8.8.256"_s}},
     u"Invalid Preferred DNS!Please check it!"_s},
    {"one name server is enough", {{F::UsesDns, u"1"_s}, {F::PreferredDns, u"8.8.8.255"_s}}, {}},
    {"second DNS",
     {{F::UsesDns, u"1"_s}, {F::PreferredDns, u"8.8.8.8"_s}, {F::AlternativeDns, u"dns.example"_s}},
     u"Invalid Alternative DNS!Please check it!"_s},
    {"name of two lines", {{F::Name, u"a\nb"_s}}, lineBreak},
    {"carriage return", {{F::Name, u"a\rb"_s}}, lineBreak},
    {"NUL", {{F::Name, u"a"_s + QChar(0)}}, lineBreak},
    {"end mark of a line", {{F::Name, u"a-|-b"_s}}, lineBreak},
    {"any other name", {{F::Name, u"> ] #\"é 家"_s}}, {}},
    {"APN with a quote", {{F::Apn, u"inter\"net"_s}}, u"The APN may hold"_s},
    {"no web page", {{F::DefaultOpenUrl, u"file:///etc/passwd"_s}}, u"The page to open"_s},
    {"web page", {{F::DefaultOpenUrl, u"www.example.org/start"_s}}, {}},
};

const Rows<F, QString, bool> diallerRows{
    {"number of the data service", F::Phone, u"*99***1#"_s, false},
    {"number of 80 digits", F::Phone, QString(80, u'1'), false},
    {"number of 81 digits", F::Phone, QString(81, u'1'), true},
    {"a second command", F::Phone, u"*99#;+CFUN=0"_s, true},
    {"a second line", F::Phone, u"*99#\r\nInit2 = AT"_s, true},
    {"entry of the phonebook", F::Phone, u">\"home\""_s, true},
    {"mail address as user", F::UserName, u"me@example.org"_s, false},
    {"signs that wvdial passes on", F::UserName, u"a b#c;d%e$f'g=[h]`i`&"_s, false},
    {"wvdial strips quotes", F::UserName, u"\"me\""_s, true},
    {"wvdial strips backslashes", F::UserName, u"DOMAIN\\me"_s, true},
    {"wvdial strips braces", F::Password, u"{secret}"_s, true},
    {"blank at the end", F::Password, u"secret "_s, true},
    {"everybody's secret", F::UserName, u"*"_s, true},
    {"pppd would send a file", F::Password, u"@/etc/shadow"_s, true},
    {"at sign", F::Password, u"@home"_s, false},
    {"255 bytes", F::Password, QString(255, u'x'), false},
    {"256 bytes", F::Password, QString(128, QChar(0xe9)), true},
    {"a second section", F::Password, u"x\n[Dialer Defaults]"_s, true},
};

} // namespace

class TestProfileChecks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editor_data() { addRows(editorRows); }
    void editor()
    {
        const auto &[name, changes, refusal] = currentRow(editorRows);
        ConnectionProfile profile = goodProfile();
        for (auto it = changes.begin(); it != changes.end(); ++it)
            profile.setText(it.key(), it.value());
        const QString said = profileRefusal(profile);
        QVERIFY2(refusal.isEmpty() ? said.isEmpty() : said.startsWith(refusal), qPrintable(said));
    }

    void dialler_data() { addRows(diallerRows); }
    void dialler()
    {
        const auto &[name, field, text, isRefused] = currentRow(diallerRows);
        ConnectionProfile profile = goodProfile();
        profile.setText(field, text);
        QCOMPARE(!dialRefusal(profile, u"/dev/ttyUSB2"_s).isEmpty(), isRefused);
        QCOMPARE(!profileRefusal(profile).isEmpty(), isRefused);
        QVERIFY(!dialRefusal(goodProfile(), u"/dev/ttyUSB2\nInit = AT"_s).isEmpty());
        QVERIFY(!dialRefusal(goodProfile(), u"ttyUSB2"_s).isEmpty());
    }

    void addresses()
    {
        for (const char *text : {"1.2.3.4", "255.255.255.254", "10.0.0.0", "0.0.0.1"})
            QVERIFY2(isHostAddress(QString::fromLatin1(text)), text);
        for (const char *text : {"", "0.0.0.0", "255.255.255.255", "1.2.3", "1.2.3.4.5", "1.2.3.4.", "1..3.4",
                                 "01.2.3.4", "1.2.3.256", " 1.2.3.4", "1.2.3.4\n", "::1", "a.b.c.d"})
            QVERIFY2(!isHostAddress(QString::fromLatin1(text)), text);
    }
};

QTEST_APPLESS_MAIN(TestProfileChecks)
#include "tst_profilechecks.moc"
