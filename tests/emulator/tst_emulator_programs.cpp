// SPDX-License-Identifier: GPL-3.0-or-later
// cardemu and cardctl as a person runs them, and the card as a program of others sees it.
#include "otherprograms.h"

#include <QJsonDocument>

namespace
{

const QString emulator = QStringLiteral(CARDEMU_DIR "/cardemu");
const QString control = QStringLiteral(CARDEMU_DIR "/cardctl");

const Rows<QString, QString, int, QString> complainsRows{
    {"no folder", emulator, {}, 1, u"cardemu: --dir DIR is needed; see --help\n"_s},
    {"no such profile", emulator, u"--dir /tmp/x --profile nix"_s, 1,
     u"cardemu: :/cardemu/profiles/nix.json: No such file or directory\n"_s},
    {"unknown command", control, u"/tmp explode"_s, 2,
     u"cardctl: unknown command \"explode\"; see --help\n"_s},
    {"value that does not fit", control, u"/tmp roaming 7 8"_s, 2,
     u"cardctl: nothing takes \"8\"\nusage: cardctl DIR roaming ON\n"_s},
};

const Rows<QString, QStringList, QStringList> gammuFindsRows{
    {"everything about a card",
     u"wcdma"_s,
     {u"identify"_s, u"networkinfo"_s, u"monitor 1"_s},
     {u"Manufacturer         : Example Devices"_s, u"Model                : unknown (EM7-W)"_s,
      u"Firmware             : 11.002.03.01.00"_s, u"IMEI                 : 001012345678902"_s,
      u"SIM IMSI             : 001010123456789"_s, u"Network state        : home network"_s,
      u"LAC 1234, CID 0000ABCD"_s, u"Name in phone        : \"Test Network\""_s,
      u"Packet network state : home network"_s, u"GPRS                 : attached"_s,
      u"SIM phonebook        :   1 used, 249 free"_s, u"Battery level        : 100 percent"_s,
      u"Signal strength      : -73 dBm"_s, u"SIM SMS status       : 0 used, 0 unread, 20 locations"_s}},
    {"identity of a standard card",
     u"standard"_s,
     {u"identify"_s},
     {u"Model                : unknown (Standard card)"_s, u"Firmware             : 1.0"_s}},
    {"locked SIM", u"locked"_s, {u"getsecuritystatus"_s}, {u"Waiting for PIN."_s}},
};

} // namespace

class TestEmulatorPrograms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsUntilToldToEnd()
    {
        const QTemporaryDir folder;
        QProcess card;
        card.start(emulator, {u"--dir"_s, folder.path()});
        QByteArray output;
        while (!output.endsWith("ready\n") && card.waitForReadyRead(20000))
            output += card.readAllStandardOutput();
        QVERIFY(output.endsWith("ready\n"));

        QCOMPARE(run(control, {folder.path(), u"signal"_s, u"7"_s, u"rscp=-100"_s}).code, 0);
        QCOMPARE(run(control, {folder.path(), u"roaming"_s, u"on"_s}).code, 0);
        QCOMPARE(run(control, {folder.path(), u"set"_s, u"sim.number"_s, u"+12025550155"_s}).code, 0);
        TestPort port(folder.filePath(u"at"_s));
        QCOMPARE(port.exchange("ATE0+CSQ;+CREG?;+CNUM\r", "OK\r\n"),
                 "ATE0+CSQ;+CREG?;+CNUM\r\r\n+CSQ: 7,99\r\n\r\n+CREG: 0,5\r\n"
                 "\r\n+CNUM: \"\",\"+12025550155\",145\r\n\r\nOK\r\n");
        const QJsonObject shown =
            QJsonDocument::fromJson(run(control, {folder.path(), u"show"_s}).out.toUtf8()).object();
        QCOMPARE(shown[u"state"_s][u"radio"_s][u"rscp"_s], QJsonValue(-100));
        const Result refused = run(control, {folder.path(), u"signal"_s, u"700"_s});
        QCOMPARE(refused.code, 1);
        QCOMPARE(refused.err, u"cardctl: radio.rssi: must be a whole number from 0 to 99\n"_s);

        card.terminate();
        QVERIFY(card.waitForFinished(20000));
        QCOMPARE(card.exitCode(), 0);
        QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
        QCOMPARE(run(control, {folder.path(), u"show"_s}).code, 3);
    }

    void complains_data() { addRows(complainsRows); }
    void complains()
    {
        const auto &[name, program, arguments, code, text] = currentRow(complainsRows);
        const Result result = run(program, arguments.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(result.code, code);
        QCOMPARE(result.err, text);
    }

    // A client that knows nothing of this emulator must take it for a card.
    void gammuFinds_data() { addRows(gammuFindsRows); }
    void gammuFinds()
    {
        const auto &[name, profile, commands, lines] = currentRow(gammuFindsRows);
        const TestCard card(profile);
        const QString output = gammu(card, commands);
        for (const QString &line : lines)
            QVERIFY2(output.contains(line), qPrintable(line + u" is not in:\n"_s + output));
    }

private:
    struct Result {
        int code;
        QString out;
        QString err;
    };
    static Result run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished(20000);
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
};

QTEST_GUILESS_MAIN(TestEmulatorPrograms)
#include "tst_emulator_programs.moc"
