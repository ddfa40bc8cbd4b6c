// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakecardmonitor.h"
#include "fakeconnection.h"

#include "connection/connectiondiagnosis.h"

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

    void findsTheFailingStepOfTheConnection_data()
    {
        QTest::addColumn<ConnectionStatus>("status");
        QTest::addColumn<std::optional<ConnectionProfile>>("profile");
        QTest::addColumn<DiagnosisStepId>("step");
        QTest::addColumn<MendAction>("action");
        QTest::addColumn<QString>("says");
        ConnectionProfile good;
        good.setText(ProfileField::Name, u"Mine"_s);
        good.setOn(ProfileField::UsesApn, true);
        good.setText(ProfileField::Apn, u"internet"_s);
        ConnectionProfile noApn = good;
        noApn.setText(ProfileField::Apn, u" "_s);
        ConnectionProfile supplied = noApn;
        supplied.setOn(ProfileField::UsesApn, false);
        const auto up = [](auto change) {
            ConnectionStatus status = fakeconnection::connected();
            change(status);
            return status;
        };
        const auto row = [](const char *name, const ConnectionStatus &status,
                            const std::optional<ConnectionProfile> &profile, DiagnosisStepId step,
                            MendAction action, const QString &says) {
            QTest::newRow(name) << status << profile << step << action << says;
        };
        using enum DiagnosisStepId;
        const ConnectionStatus none;
        row("no profile", none, {}, Profile, MendAction::Connect, u"choose one"_s);
        row("no APN", none, noApn, AccessPoint, MendAction::EditProfile, u"(APN)"_s);
        row("not tried yet", none, supplied, Dialler, MendAction::Connect, u"everything is there"_s);
        row("ended by the person", fakeconnection::ended(ConnectionEnd::ByPerson, {}), good, Dialler,
            MendAction::Connect, u"everything is there"_s);
        row("refused", fakeconnection::ended(ConnectionEnd::Refused, u"Wrong password."_s), good, Dialler,
            MendAction::EditProfile, u"Wrong password."_s);
        row("profile refused", fakeconnection::ended(ConnectionEnd::ProfileRefused, u"The APN."_s), good,
            Dialler, MendAction::EditProfile, u"The APN."_s);
        row("no carrier", fakeconnection::ended(ConnectionEnd::NoCarrier, u"Not taken."_s), good, Dialler,
            MendAction::Connect, u"Not taken."_s);
        row("no address", up([](ConnectionStatus &s) { s.localAddress.clear(); }), good, Address,
            MendAction::EditProfile, u"again"_s);
        row("no name servers", up([](ConnectionStatus &s) { s.nameServers.clear(); }), good, NameServers,
            MendAction::EditProfile, u"Enter some"_s);
        row("other route, profile gone", up([](ConnectionStatus &s) { s.hasDefaultRoute = false; }), {},
            Route, MendAction::None, u"Wi-Fi"_s);
    }

    void findsTheFailingStepOfTheConnection()
    {
        QFETCH(const ConnectionStatus, status);
        QFETCH(const std::optional<ConnectionProfile>, profile);
        QFETCH(const QString, says);
        const auto steps = diagnose(fakecard::registeredCard(), status, profile);
        const DiagnosisStep *problem = firstProblem(steps);
        QVERIFY(problem);
        QTEST(problem->id, "step");
        QTEST(problem->action, "action");
        QCOMPARE(problem->actionText.isEmpty(), problem->action == MendAction::None);
        QVERIFY2(problem->sentence.contains(says), qPrintable(problem->sentence));
        QCOMPARE(steps.back().status == StepStatus::NotReached, problem->id != DiagnosisStepId::Route);
    }

    void aCardThatIsOfflineComesFirst()
    {
        const auto steps = diagnose(fakecard::namedState(u"searching"_s), {}, {});
        QCOMPARE(firstProblem(steps)->id, DiagnosisStepId::Registration);
        QCOMPARE(steps.back().status, StepStatus::NotReached);
        QVERIFY(!firstProblem(diagnose(fakecard::namedState(u"roaming"_s), fakeconnection::connected(), {})));
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
