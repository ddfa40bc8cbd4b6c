// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modemtypes.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace corva;

class TestModemTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries();
    void warnings_data();
    void warnings();
    void ofSeveralEntriesTheNarrowestCounts();
    void rules_data();
    void rules();
    void unreadableFiles();
    void shippedFiles();
};

namespace
{

QByteArray file(const QByteArray &content)
{
    return "<modem_types>\n" + content + "\n</modem_types>\n";
}

const CardType testCard{{0x1209, 0x0001},  false, u"Test Card"_s, CardFamily::Wcdma, 2, 0, 1,
                        {{0x1209, 0x0002}}};

} // namespace

void TestModemTypes::entries_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<CardType>("card");

    QTest::newRow("complete") << QByteArray(
                                     "<card vendor='1209' product='0001' name='Test Card' family='WCDMA'"
                                     " at='2' modem='0' voice='1' storage='1209:0002'/>")
                              << testCard;
    CardType bare;
    bare.id = {0xabcd, 0xffff};
    QTest::newRow("ids alone, as people write them")
        << QByteArray("<card vendor='0xABCD' product='ffff'/>") << bare;
    CardType vendor = bare;
    vendor.id.product = 0;
    vendor.anyProduct = true;
    QTest::newRow("every product of a vendor") << QByteArray("<card vendor='abcd'/>") << vendor;
    CardType limits = bare;
    limits.family = CardFamily::TdScdma;
    limits.atInterface = 0;
    limits.modemInterface = 254;
    limits.storageIds = {{0xabcd, 0x0001}, {0xabcd, 0x0000}};
    QTest::newRow("both ends of the numbers")
        << QByteArray("<card vendor='abcd' product='ffff' family='TD-SCDMA' at='0' modem='254'"
                      " storage=' abcd:0001  abcd:0000 '/>")
        << limits;
}

void TestModemTypes::entries()
{
    QFETCH(QByteArray, entry);
    QFETCH(CardType, card);
    const ModemTypes types = ModemTypes::parse(file(entry));
    QCOMPARE(types.warnings, QList<TypesWarning>());
    QCOMPARE(types.cards, QList{card});
}

void TestModemTypes::warnings_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<qint64>("line");
    QTest::addColumn<QString>("reason"); // a part of it
    QTest::addColumn<int>("cardsLeft");

    const QByteArray good = "<card vendor='1209' product='0001'/>\n";
    const auto between = [&](const QByteArray &bad) {
        return file(good + bad + "\n<card vendor='1209' product='0009'/>");
    };
    const auto row = [&](const char *name, const QByteArray &bad, const QString &reason) {
        QTest::newRow(name) << between(bad) << qint64(3) << reason << 2;
    };
    row("no vendor", "<card product='0001'/>", u"\"vendor\" is missing"_s);
    row("vendor in decimal", "<card vendor='70000' product='0001'/>", u"\"vendor\" is \"70000\""_s);
    row("vendor with a sign", "<card vendor='-123' product='0001'/>", u"\"vendor\" is \"-123\""_s);
    row("vendor zero", "<card vendor='0000' product='0001'/>", u"\"vendor\" is \"0000\""_s);
    row("family in small letters", "<card vendor='abcd' family='wcdma'/>", u"\"family\" is \"wcdma\""_s);
    row("interface too large", "<card vendor='abcd' at='255'/>", u"\"at\" is \"255\""_s);
    row("interface below zero", "<card vendor='abcd' voice='-1'/>", u"\"voice\" is \"-1\""_s);
    row("interface left empty", "<card vendor='abcd' modem=''/>", u"\"modem\" is \"\""_s);
    row("storage without product", "<card vendor='abcd' storage='abcd'/>", u"\"storage\" holds \"abcd\""_s);
    row("listed twice", good.trimmed(), u"1209:0001 is listed already"_s);
    row("rule without drivers", "<rule ports='2'/>", u"needs the attribute \"drivers\""_s);
    row("rule of no ports", "<rule drivers='option' ports='0'/>", u"\"ports\" is \"0\""_s);
    row("ignored without product", "<ignore vendor='abcd'/>", u"\"product\" is missing"_s);
    row("misspelt element", "<crad vendor='abcd'/>", u"\"crad\" is not known"_s);
    row("entry inside an entry", "<ignore vendor='abcd' product='0001'><card vendor='abcd'/></ignore>",
        u"\"card\" is not known at this place"_s);

    QTest::newRow("attribute without quotes")
        << between("<card vendor=abcd/>") << qint64(3) << u"not well-formed"_s << 1;
    QTest::newRow("cut off") << QByteArray("<modem_types>\n" + good) << qint64(3) << u"not well-formed"_s
                             << 1;
    QTest::newRow("empty") << QByteArray() << qint64(1) << u"not well-formed"_s << 0;
    QTest::newRow("not XML at all") << QByteArray("\x7f"
                                                  "ELF\0\0\xff",
                                                  7)
                                    << qint64(1) << u"not well-formed"_s << 0;
    QTest::newRow("another file") << QByteArray("<config>\n</config>") << qint64(1)
                                  << u"outermost element is \"config\""_s << 0;
    QTest::newRow("entities that grow")
        << QByteArray("<!DOCTYPE m [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>]>") +
               file("<card vendor='&b;'/>")
        << qint64(1) << u"document type declaration"_s << 0;
    QTest::newRow("entity from a file") << QByteArray("<!DOCTYPE m SYSTEM '/etc/passwd'>") + file(good)
                                        << qint64(1) << u"document type declaration"_s << 0;
}

void TestModemTypes::warnings()
{
    QFETCH(QByteArray, xml);
    QFETCH(qint64, line);
    QFETCH(QString, reason);
    QFETCH(int, cardsLeft);
    const ModemTypes types = ModemTypes::parse(xml);
    QCOMPARE(types.warnings.size(), 1);
    QCOMPARE(types.warnings.constFirst().line, line);
    QVERIFY2(types.warnings.constFirst().reason.contains(reason),
             qPrintable(types.warnings.constFirst().reason));
    QCOMPARE(types.cards.size(), cardsLeft);
}

void TestModemTypes::ofSeveralEntriesTheNarrowestCounts()
{
    const ModemTypes types =
        ModemTypes::parse(file("<card vendor='abcd' name='any'/><card vendor='abcd' product='0001' "
                               "name='one' storage='1234:5678'/>"));
    const auto name = [&](UsbId id) { return types.cardFor(id) ? types.cardFor(id)->name : u"none"_s; };
    QCOMPARE(name({0xabcd, 0x0001}), u"one"_s);
    QCOMPARE(name({0xabcd, 0x0002}), u"any"_s);
    QCOMPARE(name({0xabce, 0x0001}), u"none"_s);
    QCOMPARE(types.cardForStorage({0x1234, 0x5678})->name, u"one"_s);
    QVERIFY(!types.cardForStorage({0xabcd, 0x0001}));
}

void TestModemTypes::rules_data()
{
    QTest::addColumn<UsbId>("id");
    QTest::addColumn<QStringList>("drivers");
    QTest::addColumn<bool>("mayProbe");

    const UsbId id{0xabcd, 0x0001};
    QTest::newRow("enough ports") << id << QStringList{u"option"_s, u"option"_s} << true;
    QTest::newRow("two of the drivers") << id << QStringList{u"option"_s, u"cdc_acm"_s} << true;
    QTest::newRow("one port") << id << QStringList{u"option"_s} << false;
    QTest::newRow("a serial cable beside") << id << QStringList{u"option"_s, u"ftdi_sio"_s} << false;
    QTest::newRow("the three of a GPS board")
        << id << QStringList{u"ftdi_sio"_s, u"ftdi_sio"_s, u"ftdi_sio"_s} << false;
    QTest::newRow("ignored") << UsbId{0xabcd, 0x0bad} << QStringList{u"option"_s, u"option"_s} << false;
}

void TestModemTypes::rules()
{
    QFETCH(UsbId, id);
    QFETCH(QStringList, drivers);
    QFETCH(bool, mayProbe);
    const ModemTypes types = ModemTypes::parse(
        file("<rule drivers='option cdc_acm' ports='2'/><ignore vendor='abcd' product='0bad'/>"));
    QCOMPARE(types.ruleFor(id, drivers) != nullptr, mayProbe);
}

void TestModemTypes::unreadableFiles()
{
    const QTemporaryDir folder;
    const auto warningOf = [](const QString &path) {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u".*"_s + QRegularExpression::escape(path) + u".*"_s));
        return ModemTypes::load(path).warnings.value(0).reason;
    };
    QVERIFY(warningOf(folder.filePath(u"missing.xml"_s)).contains(u"cannot be read"_s));

    QFile huge(folder.filePath(u"huge.xml"_s));
    QVERIFY(huge.open(QIODevice::WriteOnly));
    huge.write(file(QByteArray(2 * 1024 * 1024, ' ')));
    huge.close();
    QVERIFY(warningOf(huge.fileName()).contains(u"larger than 1 MiB"_s));

    // A folder in a folder for as long as the size allows: no tree is built of it.
    const ModemTypes deep = ModemTypes::parse(QByteArray("<a>").repeated(300000));
    QVERIFY(deep.warnings.size() <= 50);
}

void TestModemTypes::shippedFiles()
{
    const QString source = QStringLiteral(CORVA_SOURCE_DIR);
    const ModemTypes types = ModemTypes::load(source + u"/Data/modem_types.xml"_s);
    QCOMPARE(types.warnings, QList<TypesWarning>());
    QCOMPARE(types.cards, QList{testCard});
    QVERIFY(types.ruleFor({0xabcd, 0x0001}, {u"qcserial"_s, u"qcserial"_s}));

    // The rule that keeps ModemManager away names the same cards.
    QFile rules(source + u"/packaging/udev/77-corva-modemmanager.rules"_s);
    QVERIFY(rules.open(QIODevice::ReadOnly));
    static const QRegularExpression entry(
        uR"-(ATTR\{idVendor\}=="(\w{4})", ATTR\{idProduct\}=="(\w{4})", ENV\{ID_MM_DEVICE_IGNORE\}="1")-"_s);
    QList<UsbId> kept;
    for (auto match = entry.globalMatch(QString::fromUtf8(rules.readAll())); match.hasNext();) {
        const auto ids = match.next();
        kept.append(UsbId::fromString(QString(ids.captured(1) + u':' + ids.captured(2))).value_or(UsbId()));
    }
    QCOMPARE(kept, QList{types.cards.constFirst().id});
}

QTEST_GUILESS_MAIN(TestModemTypes)
#include "tst_modemtypes.moc"
