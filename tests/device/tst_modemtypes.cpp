// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "device/modemtypes.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QByteArray file(const QByteArray &content)
{
    return "<modem_types>\n" + content + "\n</modem_types>\n";
}

const CardType testCard{{0x1209, 0x0001},  false, u"Test Card"_s, CardFamily::Wcdma, 2, 0, 1,
                        {{0x1209, 0x0002}}};

CardType bare(UsbId id, bool anyProduct = false)
{
    CardType card;
    card.id = id;
    card.anyProduct = anyProduct;
    return card;
}

const Rows<QByteArray, CardType> entriesRows{
    {"complete",
     "<card vendor='1209' product='0001' name='Test Card' family='WCDMA' at='2' modem='0' voice='1'"
     " storage='1209:0002'/>",
     testCard},
    {"ids alone, as people write them", "<card vendor='0xABCD' product='ffff'/>", bare({0xabcd, 0xffff})},
    {"every product of a vendor", "<card vendor='abcd'/>", bare({0xabcd, 0}, true)},
    {"both ends of the numbers",
     "<card vendor='abcd' product='ffff' family='TD-SCDMA' at='0' modem='254' storage=' abcd:0001  abcd:0000 "
     "'/>",
     {{0xabcd, 0xffff}, false, {}, CardFamily::TdScdma, 0, 254, {}, {{0xabcd, 0x0001}, {0xabcd, 0x0000}}}},
};

const QByteArray good = "<card vendor='1209' product='0001'/>\n";

// Entries between two good ones, on the third line, and a part of what is said about them.
const Rows<QByteArray, QString> badEntriesRows{
    {"no vendor", "<card product='0001'/>", u"\"vendor\" is missing"_s},
    {"vendor in decimal", "<card vendor='70000' product='0001'/>", u"\"vendor\" is \"70000\""_s},
    {"vendor with a sign", "<card vendor='-123' product='0001'/>", u"\"vendor\" is \"-123\""_s},
    {"vendor zero", "<card vendor='0000' product='0001'/>", u"\"vendor\" is \"0000\""_s},
    {"family in small letters", "<card vendor='abcd' family='wcdma'/>", u"\"family\" is \"wcdma\""_s},
    {"interface too large", "<card vendor='abcd' at='255'/>", u"\"at\" is \"255\""_s},
    {"interface below zero", "<card vendor='abcd' voice='-1'/>", u"\"voice\" is \"-1\""_s},
    {"interface left empty", "<card vendor='abcd' modem=''/>", u"\"modem\" is \"\""_s},
    {"storage without product", "<card vendor='abcd' storage='abcd'/>", u"\"storage\" holds \"abcd\""_s},
    {"listed twice", good.trimmed(), u"1209:0001 is listed already"_s},
    {"rule without drivers", "<rule ports='2'/>", u"needs the attribute \"drivers\""_s},
    {"rule of no ports", "<rule drivers='option' ports='0'/>", u"\"ports\" is \"0\""_s},
    {"ignored without product", "<ignore vendor='abcd'/>", u"\"product\" is missing"_s},
    {"entry inside an entry", "<ignore vendor='abcd' product='0001'><card vendor='abcd'/></ignore>",
     u"\"card\" is not known at this place"_s},
};

const Rows<QByteArray, qint64, QString, int> badFilesRows{
    {"attribute without quotes", file(good + "<card vendor=abcd/>"), 3, u"not well-formed"_s, 1},
    {"cut off", "<modem_types>\n" + good, 3, u"not well-formed"_s, 1},
    {"empty", {}, 1, u"not well-formed"_s, 0},
    {"another file", "<config>\n</config>", 1, u"outermost element is \"config\""_s, 0},
    {"entities that grow",
     "<!DOCTYPE m [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>]>" + file("<card vendor='&b;'/>"), 1,
     u"document type declaration"_s, 0},
    {"entity from a file", "<!DOCTYPE m SYSTEM '/etc/passwd'>" + file(good), 1,
     u"document type declaration"_s, 0},
};

void compareWarning(const QByteArray &xml, qint64 line, const QString &reason, int cardsLeft)
{
    const ModemTypes types = ModemTypes::parse(xml);
    QCOMPARE(types.warnings.size(), 1);
    const TypesWarning warning = types.warnings.constFirst();
    QCOMPARE(warning.line, line);
    QVERIFY2(warning.reason.contains(reason), qPrintable(warning.reason));
    QCOMPARE(types.cards.size(), cardsLeft);
}

const UsbId id{0xabcd, 0x0001};

const Rows<UsbId, QStringList, bool> rulesRows{
    {"enough ports", id, {u"option"_s, u"option"_s}, true},
    {"two of the drivers", id, {u"option"_s, u"cdc_acm"_s}, true},
    {"one port", id, {u"option"_s}, false},
    {"a serial cable's driver beside", id, {u"option"_s, u"ftdi_sio"_s}, false},
    {"ignored", UsbId{0xabcd, 0x0bad}, {u"option"_s, u"option"_s}, false},
};

} // namespace

class TestModemTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_data() { addRows(entriesRows); }
    void entries()
    {
        const auto &[name, entry, card] = currentRow(entriesRows);
        const ModemTypes types = ModemTypes::parse(file(entry));
        QCOMPARE(types.warnings, QList<TypesWarning>());
        QCOMPARE(types.cards, QList{card});
    }

    void badEntries_data() { addRows(badEntriesRows); }
    void badEntries()
    {
        const auto &[name, entry, reason] = currentRow(badEntriesRows);
        compareWarning(file(good + entry + "\n<card vendor='1209' product='0009'/>"), 3, reason, 2);
    }

    void badFiles_data() { addRows(badFilesRows); }
    void badFiles()
    {
        const auto &[name, xml, line, reason, cardsLeft] = currentRow(badFilesRows);
        compareWarning(xml, line, reason, cardsLeft);
    }

    void ofSeveralEntriesTheNarrowestCounts()
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

    void rules_data() { addRows(rulesRows); }
    void rules()
    {
        const auto &[name, id, drivers, mayProbe] = currentRow(rulesRows);
        const ModemTypes types = ModemTypes::parse(
            file("<rule drivers='option cdc_acm' ports='2'/><ignore vendor='abcd' product='0bad'/>"));
        QCOMPARE(types.ruleFor(id, drivers) != nullptr, mayProbe);
    }

    void unreadableFiles()
    {
        const QTemporaryDir folder;
        const auto warningOf = [](const QString &path) {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u".*"_s + QRegularExpression::escape(path) + u".*"_s));
            return ModemTypes::load(path).warnings.value(0).reason;
        };
        QVERIFY(warningOf(folder.filePath(u"missing.xml"_s)).contains(u"cannot be read"_s));

        putFile(folder.filePath(u"huge.xml"_s), file(QByteArray(2 * 1024 * 1024, ' ')));
        QVERIFY(warningOf(folder.filePath(u"huge.xml"_s)).contains(u"larger than 1 MiB"_s));

        // A folder in a folder for as long as the size allows: no tree is built of it.
        const ModemTypes deep = ModemTypes::parse(QByteArray("<a>").repeated(300000));
        QVERIFY(deep.warnings.size() <= 50);
    }

    void shippedFiles()
    {
        const QString source = QStringLiteral(CORVA_SOURCE_DIR);
        const ModemTypes types = ModemTypes::load(source + u"/Data/modem_types.xml"_s);
        QCOMPARE(types.warnings, QList<TypesWarning>());
        QCOMPARE(types.cards, QList{testCard});
        QVERIFY(types.ruleFor({0xabcd, 0x0001}, {u"qcserial"_s, u"qcserial"_s}));

        // The rule that keeps ModemManager away names the same cards.
        const QByteArray rules = contentOf(source + u"/packaging/udev/77-corva-modemmanager.rules"_s);
        static const QRegularExpression entry(
            uR"-(ATTR\{idVendor\}=="(\w{4})", ATTR\{idProduct\}=="(\w{4})", ENV\{ID_MM_DEVICE_IGNORE\}="1")-"_s);
        QList<UsbId> kept;
        for (auto match = entry.globalMatch(QString::fromUtf8(rules)); match.hasNext();) {
            const auto ids = match.next();
            kept.append(
                UsbId::fromString(QString(ids.captured(1) + u':' + ids.captured(2))).value_or(UsbId()));
        }
        QCOMPARE(kept, QList{types.cards.constFirst().id});
    }
};

QTEST_GUILESS_MAIN(TestModemTypes)
#include "tst_modemtypes.moc"
