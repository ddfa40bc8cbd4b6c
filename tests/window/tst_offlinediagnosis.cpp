// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakecardmonitor.h"

#include "device/offlinediagnosis.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

class TestOfflineDiagnosis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheFailingStep_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<DiagnosisStepId>("step");
        QTest::addColumn<StepStatus>("status");
        QTest::addColumn<MendAction>("action");
        QTest::addColumn<QString>("says");
        const auto row = [](const char *state, DiagnosisStepId step, StepStatus status, MendAction action,
                            const QString &says) {
            QTest::newRow(state) << QString::fromLatin1(state) << step << status << action << says;
        };
        using enum DiagnosisStepId;
        using enum StepStatus;
        using enum MendAction;
        row("absent", UsbMode, Failed, SearchAgain, u"Plug the card"_s);
        row("storage", UsbMode, Failed, SwitchMode, u"Switch it over"_s);
        row("noport", Port, Failed, SearchAgain, u"\"Data Stick\""_s);
        row("wrongport", Port, Failed, SearchAgain, u"/dev/null, which is no serial port"_s);
        row("norights", Rights, Failed, CopyGroupCommand, u"group \"dialout\""_s);
        row("busy", PortFree, Failed, SearchAgain,
            u"ModemManager (process 812) holds the port /dev/ttyUSB2"_s);
        row("silent", Answer, Failed, SearchAgain, u"nothing answers"_s);
        row("nosim", Sim, Failed, AskAgain, u"put a SIM card in"_s);
        row("pin", Pin, Failed, EnterPin, u"asks for its PIN"_s);
        row("puk", Pin, Failed, EnterPuk, u"PUK"_s);
        row("radiooff", Radio, Failed, SwitchRadioOn, u"switched on"_s);
        row("searching", DiagnosisStepId::Registration, Running, None, u"minute"_s);
        row("denied", DiagnosisStepId::Registration, Failed, AskAgain, u"operator can tell"_s);
        row("noservice", Network, Failed, AskAgain, u"does not serve"_s);
    }

    void findsTheFailingStep()
    {
        QFETCH(const QString, state);
        QFETCH(const DiagnosisStepId, step);
        QFETCH(const QString, says);
        const auto steps = diagnose(fakecard::namedState(state));
        const DiagnosisStep *problem = firstProblem(steps);
        QVERIFY(problem);
        QCOMPARE(problem->id, step);
        QTEST(problem->status, "status");
        QTEST(problem->action, "action");
        QVERIFY2(problem->sentence.contains(says), qPrintable(problem->sentence));
        QCOMPARE(problem->actionText.isEmpty(), problem->action == MendAction::None);

        // What lies ahead is in order, what lies behind is not told.
        for (const DiagnosisStep &other : steps)
            if (other.id != step)
                QCOMPARE(other.status, other.id < step ? StepStatus::Ok : StepStatus::NotReached);
    }

    void everythingInOrder_data()
    {
        QTest::addColumn<QString>("state");
        QTest::newRow("at home") << u"registered"_s;
        QTest::newRow("roaming") << u"roaming"_s;
    }

    void everythingInOrder()
    {
        QFETCH(const QString, state);
        const auto steps = diagnose(fakecard::namedState(state));
        QCOMPARE(steps.size(), std::size_t(10));
        QVERIFY(!firstProblem(steps));
        for (const DiagnosisStep &step : steps)
            QVERIFY(!step.title.isEmpty() && !step.headline.isEmpty() && step.sentence.isEmpty());
    }

    void aHolderThatCannotBeToldIsStillSaid()
    {
        CardState state = fakecard::namedState(u"busy"_s);
        state.portHolder.clear();
        QVERIFY(firstProblem(diagnose(state))->sentence.startsWith(u"Another program holds"_s));
        state.portHolder = u"%2 %1"_s; // a name is never a pattern
        QVERIFY(firstProblem(diagnose(state))
                    ->sentence.startsWith(u"%2 %1 (process 812) holds the port /dev/"_s));
    }

    void theCommandNamesGroupAndUser()
    {
        CardState state = fakecard::namedState(u"norights"_s);
        state.portGroup = u"uucp"_s;
        QCOMPARE(groupCommand(state, u"maria"_s), u"sudo usermod -aG uucp maria"_s);
        state.portGroup.clear();
        QCOMPARE(groupCommand(state, u"maria"_s), u"sudo usermod -aG dialout maria"_s);
    }
};

QTEST_GUILESS_MAIN(TestOfflineDiagnosis)
#include "tst_offlinediagnosis.moc"
