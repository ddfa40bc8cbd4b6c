// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modeswitch.h"

#include "../files.h"
#include "../rows.h"
#include "mockbus.h"

#include <QRegularExpression>
#include <chrono>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace corva;

namespace
{

// With a part of what is said.
const Rows<QByteArray, SwitchOutcome, QString> outcomesRows{
    {"accepted", "echo ok:busdev\n", SwitchOutcome::Switched, {}},
    {"refused by the stick", "echo 'Sending failed (error -7)' >&2\n", SwitchOutcome::Failed,
     u"Sending failed (error -7)"_s},
    {"killed", "kill -9 $$\n", SwitchOutcome::Failed, u"could not switch"_s},
    {"pulled out meanwhile", "echo ' No devices in default mode found. Nothing to do.'\n",
     SwitchOutcome::NotThere, u"not there any more"_s},
    {"hangs", "exec sleep 600\n", SwitchOutcome::TimedOut, u"did not finish in time"_s},
};

} // namespace

class TestModeSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        MockCard disk;
        disk.id = m_stick.id;
        disk.interfaceClass = 8;
        m_bus.plug(disk);
    }

    void outcomes_data() { addRows(outcomesRows); }
    void outcomes()
    {
        const auto &[name, script, outcome, detail] = currentRow(outcomesRows);
        SwitchSettings settings = program(script);
        settings.timeout = outcome == SwitchOutcome::TimedOut ? 300ms : 20s;
        if (outcome != SwitchOutcome::Switched)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"mode switch:"_s));
        const SwitchResult result = switchMode(m_stick, settings);
        QCOMPARE(result.outcome, outcome);
        QVERIFY2(result.detail.contains(detail), qPrintable(result.detail));
        QCOMPARE(arguments(), QByteArray("-D\n-v\n0x1209\n-p\n0x0002\n-b\n1\n-g\n2\n-K\n"));
    }

    void knownStick()
    {
        const SwitchSettings settings = program("echo ok:no_data\n");
        putFile(m_folder.filePath(u"1209:0002"_s), "# \"$(id)\"\nTargetClass=0xff");
        QVERIFY(switchMode(m_stick, settings).isOk());
        QVERIFY2(arguments().endsWith("\n-f\n# \"$(id)\"\nTargetClass=0xff\n"), arguments().constData());
        QVERIFY(QFile::remove(m_folder.filePath(u"1209:0002"_s)));
    }

    void stickThatIsGone()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"mode switch:"_s));
        UsbIdentity gone = m_stick;
        gone.path = u"1-3"_s;
        QCOMPARE(switchMode(gone, program("echo ok:busdev\n")).outcome, SwitchOutcome::NotThere);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"mode switch:"_s));
        SwitchSettings missing;
        missing.program = u"/nowhere/usb_modeswitch"_s;
        QCOMPARE(switchMode(m_stick, missing).outcome, SwitchOutcome::NoProgram);
    }

    void noRights()
    {
        const QByteArray root = m_bus.nodePath(QString()).toLocal8Bit();
        const QByteArray node = root + "/dev/bus/usb/001/002";
        QCOMPARE(chmod(root.constData(), 0755), 0);
        QCOMPARE(chmod(node.constData(), 0444), 0);
        SwitchSettings settings;
        settings.program = u"/bin/true"_s;
        settings.dataFolders.clear();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"mode switch:"_s));
        // An administrator's rights are laid down for the moment.
        constexpr uid_t nobody = 65534;
        const bool isAdministrator = getuid() == 0;
        QVERIFY(!isAdministrator || setresuid(nobody, nobody, 0) == 0);
        const SwitchResult result = switchMode(m_stick, settings);
        QVERIFY(!isAdministrator || setresuid(0, 0, 0) == 0);
        QCOMPARE(result.outcome, SwitchOutcome::NoRights);
        QVERIFY2(result.detail.contains(u"sudo usb_modeswitch -v 0x1209 -p 0x0002 -K"_s),
                 qPrintable(result.detail));
    }

private:
    /// A switching program that keeps its arguments, one a line, and then does as told.
    SwitchSettings program(const QByteArray &script)
    {
        SwitchSettings settings;
        settings.program = m_folder.filePath(u"usb_modeswitch"_s);
        settings.dataFolders = {m_folder.path()};
        putFile(settings.program,
                "#!/bin/sh\nprintf '%s\\n' \"$@\" > " + m_folder.path().toUtf8() + "/arguments\n" + script);
        QFile::setPermissions(settings.program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return settings;
    }

    QByteArray arguments() const { return contentOf(m_folder.filePath(u"arguments"_s)); }

    QTemporaryDir m_folder;
    MockBus m_bus;
    const UsbIdentity m_stick{{0x1209, 0x0002}, 1, 2, u"1-2"_s, {}};
};

QTEST_GUILESS_MAIN(TestModeSwitch)
#include "tst_modeswitch.moc"
