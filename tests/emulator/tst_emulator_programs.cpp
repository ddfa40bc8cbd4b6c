// SPDX-License-Identifier: GPL-3.0-or-later
// cardemu and cardctl as a person runs them.
#include "testcard.h"

#include <QJsonDocument>
#include <QProcess>
#include <QTest>

class TestEmulatorPrograms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsUntilToldToEnd();
    void complains_data();
    void complains();

private:
    struct Result {
        int code;
        QString out;
        QString err;
    };
    static Result run(const QString &program, const QStringList &arguments);
};

TestEmulatorPrograms::Result TestEmulatorPrograms::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(20000);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestEmulatorPrograms::runsUntilToldToEnd()
{
    const QTemporaryDir folder;
    const QString cardctl = QStringLiteral(CARDEMU_DIR "/cardctl");
    QProcess cardemu;
    cardemu.start(QStringLiteral(CARDEMU_DIR "/cardemu"), {u"--dir"_s, folder.path()});
    QByteArray output;
    while (!output.endsWith("ready\n") && cardemu.waitForReadyRead(20000))
        output += cardemu.readAllStandardOutput();
    QVERIFY(output.endsWith("ready\n"));

    QCOMPARE(run(cardctl, {folder.path(), u"signal"_s, u"7"_s, u"rscp=-100"_s}).code, 0);
    QCOMPARE(run(cardctl, {folder.path(), u"roaming"_s, u"on"_s}).code, 0);
    QCOMPARE(run(cardctl, {folder.path(), u"set"_s, u"sim.number"_s, u"+12025550155"_s}).code, 0);
    TestPort port(folder.filePath(u"at"_s));
    QCOMPARE(
        port.exchange("ATE0+CSQ;+CREG?;+CNUM\r", "OK\r\n"),
        "ATE0+CSQ;+CREG?;+CNUM\r\r\n+CSQ: 7,99\r\n\r\n+CREG: 0,5\r\n\r\n+CNUM: \"\",\"+12025550155\",145\r\n"
        "\r\nOK\r\n");
    const QJsonObject shown =
        QJsonDocument::fromJson(run(cardctl, {folder.path(), u"show"_s}).out.toUtf8()).object();
    QCOMPARE(shown[u"state"_s][u"radio"_s][u"rscp"_s], QJsonValue(-100));
    const Result refused = run(cardctl, {folder.path(), u"signal"_s, u"700"_s});
    QCOMPARE(refused.code, 1);
    QCOMPARE(refused.err, u"cardctl: radio.rssi: must be a whole number from 0 to 99\n"_s);

    cardemu.terminate();
    QVERIFY(cardemu.waitForFinished(20000));
    QCOMPARE(cardemu.exitCode(), 0);
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot));
    QCOMPARE(run(cardctl, {folder.path(), u"show"_s}).code, 3);
}

void TestEmulatorPrograms::complains_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    const QString cardemu = QStringLiteral(CARDEMU_DIR "/cardemu");
    const QString cardctl = QStringLiteral(CARDEMU_DIR "/cardctl");
    QTest::newRow("no folder") << cardemu << QStringList{} << 1
                               << u"cardemu: --dir DIR is needed; see --help\n"_s;
    QTest::newRow("no such profile")
        << cardemu << QStringList{u"--dir"_s, u"/tmp/x"_s, u"--profile"_s, u"nix"_s} << 1
        << u"cardemu: :/cardemu/profiles/nix.json: No such file or directory\n"_s;
    QTest::newRow("unknown command") << cardctl << QStringList{u"/tmp"_s, u"explode"_s} << 2
                                     << u"cardctl: unknown command \"explode\"; see --help\n"_s;
    QTest::newRow("value that does not fit")
        << cardctl << QStringList{u"/tmp"_s, u"roaming"_s, u"7"_s, u"8"_s} << 2
        << u"cardctl: nothing takes \"8\"\nusage: cardctl DIR roaming ON\n"_s;
}

void TestEmulatorPrograms::complains()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, text);
    const Result result = run(program, arguments);
    QCOMPARE(result.code, code);
    QCOMPARE(result.err, text);
}

QTEST_GUILESS_MAIN(TestEmulatorPrograms)
#include "tst_emulator_programs.moc"
