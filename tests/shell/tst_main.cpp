// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the program's own main() as a process, with a main window that tells what is asked of it.
#include "../files.h"
#include "../rows.h"

#include <QProcess>
#include <QRegularExpression>

#include <memory>

using namespace Qt::StringLiterals;

namespace
{

constexpr int longestRun = 60'000;

const QByteArray noSplash = "<function><splash_hide>1</splash_hide></function>";
const QByteArray asked = noSplash + "<setting><system_enabled>1</system_enabled></setting>"
                                    "<systemsetting><disclaimer_show>2</disclaimer_show></systemsetting>";
const QString built = u"built wtmainwindowbase frameless Dark|"_s;
const QString lines = u"Corva|Software version PC:3.1|"_s;

// Settings; the answer to the disclaimer; what the window is asked for.
const Rows<QByteArray, QString, QString> sequenceRows{
    {"no splash", noSplash, {}, built + u"shown|stopped"_s},
    {"splash, one round",
     "<function><splash_hide>2</splash_hide></function>",
     {},
     built + u"modem?|"_s + lines + u"|Initializing|shown|stopped"_s},
    {"splash, two rounds",
     "<network_dialer_setting><splash_timer>1</splash_timer></network_dialer_setting>",
     {},
     built + u"modem?|modem?|"_s + lines + u"|Initializing.|shown|stopped"_s},
    {"splash waits for the firmware",
     "<network_dialer_setting><splash_timer>9</splash_timer></network_dialer_setting>"
     "<function><splash_firmversion_enabled>1</splash_firmversion_enabled></function>",
     {},
     built + u"firmware?|"_s + lines + u"Firmware Version:1.2|Initializing...|shown|stopped"_s},
    {"disclaimer accepted", asked, u"accept"_s, built + u"disclaimer accept|shown|stopped"_s},
    {"disclaimer declined", asked, u"decline"_s, built + u"disclaimer decline|stopped"_s},
    {"disclaimer not enabled",
     noSplash + "<systemsetting><disclaimer_show>1</disclaimer_show></systemsetting>",
     {},
     built + u"shown|stopped"_s},
};

const Rows<QStringList> anyArgumentEndsItRows{
    {"unknown", {u"--unknown"_s}},
    {"empty", {QString()}},
    {"the toolkit's own", {u"-style"_s, u"fusion"_s}},
    {"one that the toolkit would end with", {u"-platform"_s, u"none"_s}},
};

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
        putFile(m_program->filePath(u"Data/version.txt"_s), "3.1\n");
        putFile(m_start->filePath(u"Data/version.txt"_s), "wrong\n");
        QVERIFY(QFile::copy(QStringLiteral(CORVA_SOURCE_DIR "/Data/skins/dark"),
                            m_start->filePath(u"Data/config"_s)));
    }

    void sequence_data() { addRows(sequenceRows); }
    void sequence()
    {
        const auto &[name, sections, answer, steps] = currentRow(sequenceRows);
        putSettings(sections);
        QProcess process;
        start(process, {}, {{u"DOUBLE_ANSWER"_s, answer}});
        QVERIFY(process.waitForFinished(longestRun));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(stepsOf(process), steps);
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

    void anyArgumentEndsIt_data() { addRows(anyArgumentEndsItRows); }
    void anyArgumentEndsIt()
    {
        const auto &[name, arguments] = currentRow(anyArgumentEndsItRows);
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
        putSettings(noSplash);
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
    void putSettings(const QByteArray &sections) const
    {
        putFile(m_start->filePath(u"Data/common-config.xml"_s), "<settings>" + sections + "</settings>");
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
