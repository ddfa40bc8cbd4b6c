// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the program's own main() as a process, with a main window that tells what is asked of it.
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

constexpr int longestRun = 60'000;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestMain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<QTemporaryDir>(); // base path
        m_start = std::make_unique<QTemporaryDir>();   // current directory
        QVERIFY(QFile::copy(QStringLiteral(CORVA_DOUBLE), m_program->filePath(u"corva"_s)));
        QVERIFY(QDir(m_program->path()).mkdir(u"Data"_s));
        QVERIFY(QDir(m_start->path()).mkdir(u"Data"_s));
        put(m_program->filePath(u"Data/version.txt"_s), "3.1\n");
        put(m_start->filePath(u"Data/version.txt"_s), "wrong\n");
        QVERIFY(QFile::copy(QStringLiteral(CORVA_SOURCE_DIR "/Data/skins/dark"),
                            m_start->filePath(u"Data/config"_s)));
    }

    void sequence_data()
    {
        QTest::addColumn<QByteArray>("sections");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("steps");
        const QString built = u"built wtmainwindowbase frameless Dark|"_s;
        const QString lines = u"Corva|Software version PC:3.1|"_s;
        const auto row = [](const char *name, const QByteArray &sections, const QString &answer,
                            const QString &steps) { QTest::newRow(name) << sections << answer << steps; };
        row("no splash", "<function><splash_hide>1</splash_hide></function>", {}, built + u"shown|stopped"_s);
        row("splash, one round", "<function><splash_hide>2</splash_hide></function>", {},
            built + u"modem?|"_s + lines + u"|Initializing|shown|stopped"_s);
        row("splash, two rounds",
            "<network_dialer_setting><splash_timer>1</splash_timer></network_dialer_setting>", {},
            built + u"modem?|modem?|"_s + lines + u"|Initializing.|shown|stopped"_s);
        row("splash waits for the firmware",
            "<network_dialer_setting><splash_timer>9</splash_timer></network_dialer_setting>"
            "<function><splash_firmversion_enabled>1</splash_firmversion_enabled></function>",
            {}, built + u"firmware?|"_s + lines + u"Firmware Version:1.2|Initializing...|shown|stopped"_s);
        const QByteArray asked = "<setting><system_enabled>1</system_enabled></setting>"
                                 "<systemsetting><disclaimer_show>2</disclaimer_show></systemsetting>"
                                 "<function><splash_hide>1</splash_hide></function>";
        row("disclaimer accepted", asked, u"accept"_s, built + u"disclaimer accept|shown|stopped"_s);
        row("disclaimer declined", asked, u"decline"_s, built + u"disclaimer decline|stopped"_s);
        row("disclaimer not enabled",
            "<systemsetting><disclaimer_show>1</disclaimer_show></systemsetting>"
            "<function><splash_hide>1</splash_hide></function>",
            {}, built + u"shown|stopped"_s);
    }

    void sequence()
    {
        QFETCH(QByteArray, sections);
        QFETCH(QString, answer);
        putSettings(sections);
        QProcess process;
        start(process, {}, {{u"DOUBLE_ANSWER"_s, answer}});
        QVERIFY(process.waitForFinished(longestRun));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QTEST(stepsOf(process), "steps");
    }

    void diagnosticsBeginWithTheTime()
    {
        QVERIFY(QFile::remove(m_start->filePath(u"Data/config"_s)));
        QProcess process;
        start(process, {u"any"_s}, {});
        QVERIFY(process.waitForFinished(longestRun));
        static const QRegularExpression line(
            u"^\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d  read file error!$"_s,
            QRegularExpression::MultilineOption);
        const QString said = QString::fromUtf8(process.readAllStandardError());
        QVERIFY2(said.contains(line), qPrintable(said));
    }

    void anyArgumentEndsIt_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("unknown") << QStringList{u"--unknown"_s};
        QTest::newRow("empty") << QStringList{QString()};
        QTest::newRow("the toolkit's own") << QStringList{u"-style"_s, u"fusion"_s};
        QTest::newRow("one that the toolkit would end with") << QStringList{u"-platform"_s, u"none"_s};
    }

    void anyArgumentEndsIt()
    {
        QFETCH(QStringList, arguments);
        QProcess process;
        start(process, arguments, {{u"QT_QPA_PLATFORM"_s, u"none"_s}}); // and without a display
        QVERIFY(process.waitForFinished(longestRun));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(stepsOf(process), QString());
        QVERIFY(!QFile::exists(pidFile()));
        // The language was chosen before.
        QVERIFY(contentOf(m_start->filePath(u"Data/common-config.xml"_s)).contains(">English<"));
    }

    void secondStartLeavesTheFirst()
    {
        putSettings("<function><splash_hide>1</splash_hide></function>");
        QProcess first;
        start(first, {}, {{u"DOUBLE_STAYS"_s, u"1"_s}});
        QVERIFY(QTest::qWaitFor([&] { return contentOf(pidFile()).toLongLong() == first.processId(); }));

        QProcess second;
        start(second, {}, {});
        QVERIFY(second.waitForFinished(longestRun));
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(stepsOf(second), QString());
        QCOMPARE(contentOf(pidFile()), QByteArray::number(first.processId()));
        QCOMPARE(first.state(), QProcess::Running);

        first.terminate(); // no handler: ends at once, and the lock with it
        QVERIFY(first.waitForFinished(longestRun));
        QCOMPARE(first.exitStatus(), QProcess::CrashExit);
        start(second, {}, {});
        QVERIFY(second.waitForFinished(longestRun));
        QVERIFY(stepsOf(second).endsWith(u"shown|stopped"_s));
    }

private:
    static void put(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void putSettings(const QByteArray &sections) const
    {
        put(m_start->filePath(u"Data/common-config.xml"_s), "<settings>" + sections + "</settings>");
    }

    QString pidFile() const { return m_start->filePath(u"pid"_s); }

    void start(QProcess &process, const QStringList &arguments,
               const QMap<QString, QString> &environment) const
    {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(u"DOUBLE_PIDFILE"_s, pidFile());
        for (auto it = environment.cbegin(); it != environment.cend(); ++it)
            variables.insert(it.key(), it.value());
        process.setProcessEnvironment(variables);
        process.setWorkingDirectory(m_start->path());
        process.start(m_program->filePath(u"corva"_s), arguments);
    }

    static QString stepsOf(QProcess &process)
    {
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed().replace(u'\n', u'|');
    }

    std::unique_ptr<QTemporaryDir> m_program;
    std::unique_ptr<QTemporaryDir> m_start;
};

QTEST_GUILESS_MAIN(TestMain)
#include "tst_main.moc"
