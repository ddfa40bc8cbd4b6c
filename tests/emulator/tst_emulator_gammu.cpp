// SPDX-License-Identifier: GPL-3.0-or-later
// A client that knows nothing of this emulator must take it for a card.
#include "testcard.h"

#include <QProcess>
#include <QTest>

class TestEmulatorGammu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
};

void TestEmulatorGammu::finds_data()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("identity") << u"wcdma"_s << QStringList{u"identify"_s}
                              << QStringList{u"Manufacturer         : Example Devices"_s,
                                             u"Model                : unknown (EM7-W)"_s,
                                             u"Firmware             : 11.002.03.01.00"_s,
                                             u"IMEI                 : 001012345678902"_s,
                                             u"SIM IMSI             : 001010123456789"_s};
    QTest::newRow("identity of a standard card")
        << u"standard"_s << QStringList{u"identify"_s}
        << QStringList{u"Model                : unknown (Standard card)"_s, u"Firmware             : 1.0"_s};
    QTest::newRow("network") << u"wcdma"_s << QStringList{u"networkinfo"_s}
                             << QStringList{u"Network state        : home network"_s,
                                            u"LAC 1234, CID 0000ABCD"_s,
                                            u"Name in phone        : \"Test Network\""_s,
                                            u"Packet network state : home network"_s,
                                            u"GPRS                 : attached"_s};
    QTest::newRow("state") << u"wcdma"_s << QStringList{u"monitor"_s, u"1"_s}
                           << QStringList{u"SIM phonebook        :   1 used, 249 free"_s,
                                          u"Battery level        : 100 percent"_s,
                                          u"Signal strength      : -73 dBm"_s,
                                          u"SIM SMS status       : 0 used, 0 unread, 20 locations"_s,
                                          u"Network state        : home network"_s};
    QTest::newRow("locked SIM") << u"locked"_s << QStringList{u"getsecuritystatus"_s}
                                << QStringList{u"Waiting for PIN."_s};
}

void TestEmulatorGammu::finds()
{
    QFETCH(QString, profile);
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, lines);
    TestCard card(profile);
    QFile configuration(card.path(u"gammurc"_s));
    QVERIFY(configuration.open(QIODevice::WriteOnly));
    configuration.write("[gammu]\ndevice = " + QFile::encodeName(card.path(u"at"_s)) +
                        "\nconnection = at115200\n");
    configuration.close();

    QProcess gammu;
    gammu.start(u"gammu"_s, QStringList{u"-c"_s, configuration.fileName()} + arguments);
    QVERIFY2(gammu.waitForFinished(60000), qPrintable(gammu.errorString()));
    const QString output = QString::fromUtf8(gammu.readAllStandardOutput());
    QVERIFY2(gammu.exitCode() == 0, qPrintable(output));
    for (const QString &line : lines)
        QVERIFY2(output.contains(line), qPrintable(line + u" is not in:\n"_s + output));
}

QTEST_GUILESS_MAIN(TestEmulatorGammu)
#include "tst_emulator_gammu.moc"
