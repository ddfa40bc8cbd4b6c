// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowtest.h"

#include "connection/profilestore.h"
#include "connection/ui/config.h"
#include "connection/ui/connector.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QString idOf(ProfileField field)
{
    return u"field%1"_s.arg(int(field));
}

ConnectionProfile profile(const QString &name)
{
    ConnectionProfile made = ProfileStore::newProfile();
    made.setText(ProfileField::Name, name);
    made.setText(ProfileField::Apn, u"internet"_s);
    return made;
}

/// What is on disk.
ConnectionProfile storedDefault()
{
    return ProfileStore(basePath + u"/Data"_s).defaultProfile().value_or(ConnectionProfile());
}

} // namespace

class TestConnectionPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_surroundings = std::make_unique<Surroundings>(); }

    void cleanup()
    {
        m_window.reset();
        m_surroundings.reset();
    }

    void saysWhatTheConnectionDoes_data()
    {
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<QString>("button");
        const auto row = [](const char *status, const QString &state, const QString &sentence,
                            const QString &button) {
            QTest::newRow(status) << QString::fromLatin1(status) << state << sentence << button;
        };
        row("none", u"Status: Disconnected"_s, u"Connect goes by the profile \"Mine\"."_s, u"&Connect"_s);
        row("connected", u"Status: Connected"_s, u"With \"Testnetz Prepaid\""_s, u"&Disconnect"_s);
        row("connecting", u"Initializing"_s, u"With \"Testnetz Prepaid\"."_s, u"&Cancel"_s);
        row("redial", u"Status: Disconnected"_s, u"The connection broke off. Attempt 2 of 5 follows."_s,
            u"&Cancel"_s);
        row("refused", u"Status: Disconnected"_s, u"The network refused"_s, u"&Connect"_s);
    }

    void saysWhatTheConnectionDoes()
    {
        QFETCH(const QString, status);
        QFETCH(const QString, sentence);
        open({profile(u"Mine"_s)});
        fakeconnection::put(fakeconnection::namedStatus(status));
        QTEST(said(m_window.get(), u"dataState"_s), "state");
        QVERIFY(said(m_window.get(), u"connectionSentence"_s).startsWith(sentence));
        QTEST(button(u"isConnectButton"_s)->text(), "button");
        const bool isUp = status == "connected"_L1;
        QCOMPARE(said(m_window.get(), u"addressValue"_s), isUp ? u"10.64.64.64"_s : u"–"_s);
        QCOMPARE(said(m_window.get(), u"durationValue"_s), isUp ? u"1:02:03"_s : u"–"_s);
    }

    void dotsGrowWhileItConnects()
    {
        open({profile(u"Mine"_s)});
        fakeconnection::put(fakeconnection::namedStatus(u"connecting"_s));
        const auto *state = shown<QLabel>(m_window.get(), u"dataState"_s);
        for (const QString &dots : {u". ."_s, u". . ."_s, u". . . ."_s, u". ."_s})
            QTRY_COMPARE(state->text(), u"Initializing"_s + dots);
        QCOMPARE(state->accessibleName(), u"Initializing"_s);
    }

    void theButtonConnectsAndEnds()
    {
        open({profile(u"Mine"_s)});
        button(u"isConnectButton"_s)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect"_s});
        for (const auto &status : {u"connecting"_s, u"redial"_s, u"connected"_s}) {
            fakeconnection::put(fakeconnection::namedStatus(status));
            button(u"isConnectButton"_s)->click();
            QCOMPARE(fakeconnection::takeCalls(), QStringList{u"disconnect"_s});
        }
        fakeconnection::put(fakeconnection::namedStatus(u"disconnecting"_s));
        QVERIFY(!button(u"isConnectButton"_s)->isEnabled());
    }

    void obstacles_data()
    {
        QTest::addColumn<ConnectObstacle>("obstacle");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QMessageBox::StandardButton>("pressed");
        QTest::addColumn<bool>("connects");
        const QString roaming = u"You are connecting to a roaming network. Would you like to continue?"_s;
        QTest::newRow("a call") << ConnectObstacle::CallOnOtherNetwork
                                << u"Only UMTS network can connect while calling!"_s << QMessageBox::Ok
                                << false;
        QTest::newRow("no card") << ConnectObstacle::CardGone
                                 << u"The device has been disconnected or is unavailable."_s
                                 << QMessageBox::Ok << false;
        QTest::newRow("roaming, yes") << ConnectObstacle::Roaming << roaming << QMessageBox::Yes << true;
        QTest::newRow("roaming, no") << ConnectObstacle::Roaming << roaming << QMessageBox::No << false;
    }

    void obstacles()
    {
        QFETCH(const ConnectObstacle, obstacle);
        QFETCH(const QMessageBox::StandardButton, pressed);
        QFETCH(const bool, connects);
        open({profile(u"Mine"_s)});
        fakeconnection::setObstacle(obstacle);
        button(u"isConnectButton"_s)->click();
        auto *box = shown<QMessageBox>(m_window.get(), u"messageBox"_s);
        QTEST(box->text(), "text");
        QCOMPARE(fakeconnection::takeCalls(), QStringList());
        box->button(pressed)->click();
        QCOMPARE(fakeconnection::takeCalls(), connects ? QStringList{u"connect"_s} : QStringList());
    }

    void anOrdinarySimNeedsOnePress()
    {
        open({}, onlyOneOperator);
        QTRY_VERIFY(said(m_window.get(), u"connectionSentence"_s).startsWith(u"The settings of"_s));
        button(u"isConnectButton"_s)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect"_s});
        QVERIFY(!storedDefault().text(ProfileField::Apn).isEmpty());
    }

    void severalOperatorsAreOfferedByName()
    {
        open({}, severalOperators);
        QTRY_VERIFY(said(m_window.get(), u"connectionSentence"_s).contains(u"say whose it is"_s));
        button(u"isConnectButton"_s)->click();
        auto *dialog = shown<QDialog>(m_window.get(), u"choice"_s);
        auto *list = shown<QListWidget>(dialog, u"choices"_s);
        QVERIFY(list->count() > 1);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect"_s});
        QCOMPARE(storedDefault().text(ProfileField::Apn), u"internetclic"_s);
    }

    void aSimThatNobodyKnowsAsksForAProfile()
    {
        open({}, u"999999999999999"_s);
        QTRY_VERIFY(said(m_window.get(), u"connectionSentence"_s).startsWith(u"Add a profile"_s));
        button(u"isConnectButton"_s)->click();
        QTRY_VERIFY(m_window->findChild<Config *>());
        QCOMPARE(fakeconnection::takeCalls(), QStringList());
    }

    void theProfileOfAnotherSimIsNotDialled()
    {
        ConnectionProfile other = profile(u"Other"_s);
        other.setText(ProfileField::Imsi, u"99901"_s);
        ConnectionProfile mine = profile(u"Mine"_s);
        mine.setText(ProfileField::Imsi, u"26201"_s);
        open({other, mine});
        QCOMPARE(storedDefault().name(), u"Other"_s);
        button(u"isConnectButton"_s)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect"_s});
        QCOMPARE(storedDefault().name(), u"Mine"_s);
    }

    void roamingThatBeginsMeanwhileIsAskedAbout()
    {
        cmcfg.setValue(u"network_dialer_setting"_s, u"roaming_question"_s, u"Really?"_s);
        ConnectionProfile asking = profile(u"Mine"_s);
        asking.setOn(ProfileField::AsksUserName, true);
        open({asking});
        button(u"isConnectButton"_s)->click();
        fakeconnection::setObstacle(ConnectObstacle::Roaming);
        auto *dialog = shown<QDialog>(m_window.get(), u"credentials"_s);
        shown<QPushButton>(dialog, u"connectWith"_s)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList());
        auto *box = shown<QMessageBox>(m_window.get(), u"messageBox"_s);
        QCOMPARE(box->text(), u"Really?"_s);
        box->button(QMessageBox::Yes)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect /"_s});
        cmcfg.setValue(u"network_dialer_setting"_s, u"roaming_question"_s, {});
    }

    void byItselfAbroad_data()
    {
        QTest::addColumn<bool>("isHidden");
        QTest::newRow("with the window") << false;
        QTest::newRow("in the tray, where no box comes out of nothing") << true;
    }
    void byItselfAbroad()
    {
        QFETCH(const bool, isHidden);
        open({profile(u"Mine"_s)});
        fakeconnection::setObstacle(ConnectObstacle::Roaming);
        QSignalSpy waits(m_window->findChild<Connector *>(), &Connector::sigQuestionWaits);
        m_window->setVisible(!isHidden);
        fakeconnection::askAboutRoaming();
        QCOMPARE(waits.size(), isHidden ? 1 : 0);
        QCOMPARE(m_window->findChild<QMessageBox *>() == nullptr, isHidden);
        m_window->show();
        QTRY_VERIFY(m_window->findChild<QMessageBox *>());
        shown<QMessageBox>(m_window.get(), u"messageBox"_s)->button(QMessageBox::Yes)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect"_s});
    }

    void aWaitingQuestionExpires()
    {
        open({profile(u"Mine"_s)});
        fakeconnection::setObstacle(ConnectObstacle::Roaming);
        QSignalSpy over(m_window->findChild<Connector *>(), &Connector::sigQuestionOver);
        m_window->hide();
        fakeconnection::askAboutRoaming();
        fakeconnection::setObstacle(ConnectObstacle::None);
        fakecard::put(fakecard::namedState(u"searching"_s)); // for a moment
        QCOMPARE(over.size(), 0);
        fakecard::put(fakecard::registeredCard());
        QCOMPARE(over.size(), 1);
        fakeconnection::setObstacle(ConnectObstacle::Roaming); // of a trip that nobody asked about
        m_window->show();
        QCoreApplication::processEvents();
        QVERIFY(!m_window->findChild<QMessageBox *>());
    }

    void aBrokenDefaultIsNotReplacedSilently()
    {
        const QString path = basePath + u"/Data/defaultRecord.conf"_s;
        QVERIFY(QDir().mkpath(path)); // cannot be read as a file
        open({}, onlyOneOperator);
        QTRY_VERIFY(said(m_window.get(), u"connectionSentence"_s).startsWith(u"The settings of"_s));
        button(u"isConnectButton"_s)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"connect"_s}); // which refuses with a sentence
        QVERIFY(QFileInfo(path).isDir());
        QVERIFY(ProfileStore(basePath + u"/Data"_s).list().isEmpty());
    }

    void asksForThePassword_data()
    {
        QTest::addColumn<bool>("keeps");
        QTest::newRow("for this time") << false;
        QTest::newRow("for good") << true;
    }

    void asksForThePassword()
    {
        QFETCH(const bool, keeps);
        ConnectionProfile asking = profile(u"Mine"_s);
        asking.setOn(ProfileField::AsksUserName, true);
        open({asking});
        button(u"isConnectButton"_s)->click();
        auto *dialog = shown<QDialog>(m_window.get(), u"credentials"_s);
        QCOMPARE(shown<QLineEdit>(dialog, u"password"_s)->echoMode(), QLineEdit::Password);
        QTest::keyClicks(shown<QLineEdit>(dialog, u"userName"_s), u"maria"_s);
        QTest::keyClicks(shown<QLineEdit>(dialog, u"password"_s), u"secret"_s);
        shown<QCheckBox>(dialog, u"keep"_s)->setChecked(keeps);
        shown<QPushButton>(dialog, u"connectWith"_s)->click();
        QCOMPARE(fakeconnection::takeCalls(), QStringList{keeps ? u"connect"_s : u"connect maria/secret"_s});
        const ConnectionProfile stored = storedDefault();
        QCOMPARE(stored.text(ProfileField::Password), keeps ? u"secret"_s : QString());
        QCOMPARE(stored.isOn(ProfileField::AsksUserName), !keeps);
    }

    void refusalsStandAtTheirField_data()
    {
        QTest::addColumn<ProfileField>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<ProfileField>("choice");
        QTest::addColumn<QString>("refusal");
        using enum ProfileField;
        QTest::newRow("no name") << Name << u" "_s << UsesApn << u"The Config Filename must be filled."_s;
        QTest::newRow("address") << Pdp << u"10.0.0"_s << UsesPdp << u"Invalid PDP!Please check it!"_s;
        QTest::newRow("name twice") << Name << u"Mine"_s << UsesApn
                                    << u"There is a profile with this name already."_s;
    }

    void refusalsStandAtTheirField()
    {
        QFETCH(const ProfileField, field);
        QFETCH(const QString, text);
        QFETCH(const ProfileField, choice);
        open({profile(u"Mine"_s)});
        QTest::keyClick(m_window.get(), Qt::Key_N, Qt::ControlModifier);
        auto *editor = m_window->findChild<Config *>();
        QVERIFY(editor);
        shown<QLineEdit>(editor, idOf(ProfileField::Name))->setText(u"New"_s);
        shown<QLineEdit>(editor, idOf(ProfileField::Apn))->setText(u"internet"_s);
        shown<QRadioButton>(editor, idOf(choice))->setChecked(true);
        shown<QLineEdit>(editor, idOf(field))->setText(text);
        shown<QPushButton>(editor, u"save"_s)->click();
        QTEST(said(editor, idOf(field) + u"Error"_s), "refusal");
        QVERIFY(editor->isVisible());
        QCOMPARE(ProfileStore(basePath + u"/Data"_s).list().size(), 1);
    }

    void anEditChangesOnlyWhatWasEdited()
    {
        ConnectionProfile odd = profile(u"Mine"_s);
        odd.setText(ProfileField::IpMode, u"IPV4V6"_s);
        odd.setText(ProfileField::PppMode, u"whatever"_s);
        odd.setText(ProfileField::Password, u"secret"_s);
        odd.setOn(ProfileField::SavesUserName, false);
        open({odd});
        button(u"editProfile"_s)->click();
        auto *editor = m_window->findChild<Config *>();
        auto *apn = shown<QLineEdit>(editor, idOf(ProfileField::Apn));
        apn->selectAll();
        QTest::keyClicks(apn, u"other"_s);
        QTest::keyClick(apn, Qt::Key_Return);
        odd.setText(ProfileField::Apn, u"other"_s);
        QCOMPARE(*ProfileStore(basePath + u"/Data"_s).find(u"Mine"_s), odd);
        QCOMPARE(storedDefault(), odd);
    }

    void whatIsNotKeptIsNotWritten()
    {
        ConnectionProfile kept = profile(u"Mine"_s);
        kept.setOn(ProfileField::SavesUserName, true);
        kept.setText(ProfileField::UserName, u"maria"_s);
        kept.setText(ProfileField::Password, u"secret"_s);
        open({kept});
        button(u"editProfile"_s)->click();
        auto *editor = m_window->findChild<Config *>();
        auto *password = shown<QLineEdit>(editor, idOf(ProfileField::Password));
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        shown<QAbstractButton>(editor, password->objectName() + u"Reveal"_s)->click();
        QCOMPARE(password->echoMode(), QLineEdit::Normal);
        QTest::keyClick(shown<QCheckBox>(editor, u"keeps"_s), Qt::Key_Space);
        shown<QPushButton>(editor, u"save"_s)->click();
        const ConnectionProfile stored = *ProfileStore(basePath + u"/Data"_s).find(u"Mine"_s);
        QCOMPARE(stored.text(ProfileField::UserName) + stored.text(ProfileField::Password), QString());
        QVERIFY(stored.isOn(ProfileField::AsksUserName));
    }

    void aProfileOfTheProgramIsOnlyShown()
    {
        ConnectionProfile fixed = profile(u"Fixed"_s);
        fixed.setText(ProfileField::DeleteEnable, u"cannot&edit"_s);
        open({fixed});
        QVERIFY(!button(u"deleteProfile"_s)->isEnabled());
        button(u"editProfile"_s)->click();
        auto *editor = m_window->findChild<Config *>();
        QVERIFY(shown<QLineEdit>(editor, idOf(ProfileField::Name))->isReadOnly());
        QVERIFY(!shown<QRadioButton>(editor, idOf(ProfileField::Pap))->isEnabled());
        QVERIFY(!editor->findChild<QPushButton *>(u"save"_s)->isVisible());
    }

    void profilesAreChosenAndDeletedByKeyboard()
    {
        ConnectionProfile hidden = profile(u"Hidden"_s);
        hidden.setText(ProfileField::SectionShow, u"0"_s);
        open({profile(u"First"_s), profile(u"Second"_s), hidden});
        auto *list = shown<QListWidget>(m_window.get(), u"profiles"_s);
        QCOMPARE(list->count(), 2);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        button(u"defaultProfile"_s)->click();
        QCOMPARE(storedDefault().name(), u"Second"_s);
        QTest::keyClick(list, Qt::Key_Delete);
        auto *box = shown<QMessageBox>(m_window.get(), u"messageBox"_s);
        QCOMPARE(box->text(), u"Delete the profile \"Second\"?"_s);
        box->buttons().first()->setFocus();
        for (QAbstractButton *choice : box->buttons())
            if (choice->text() == "&Delete"_L1)
                choice->click();
        const ProfileStore after(basePath + u"/Data"_s);
        QCOMPARE(after.list().size(), 2);
        QVERIFY(!after.find(u"Second"_s));
        QVERIFY(!after.defaultProfile());
    }

    void quittingWhileConnectedAsksOnceAndHangsUpFirst()
    {
        open({profile(u"Mine"_s)});
        fakeconnection::put(fakeconnection::connected());
        QTest::keyClick(m_window.get(), Qt::Key_Q, Qt::ControlModifier);
        m_window->close();
        auto *box = shown<QMessageBox>(m_window.get(), u"messageBox"_s);
        QCOMPARE(box->text(), u"Disconnect and quit?"_s);
        QVERIFY(m_window->isVisible());
        fakeconnection::put(fakeconnection::namedStatus(u"redial"_s));
        QVERIFY(box->isVisible());
        fakeconnection::put(fakeconnection::ended(ConnectionEnd::LinkLost, {}));
        QVERIFY2(!box->isVisible(), "there is nothing left to disconnect");
        QVERIFY(m_window->isVisible());
        fakeconnection::put(fakeconnection::connected());
        m_window->close();
        box = shown<QMessageBox>(m_window.get(), u"messageBox"_s);
        fakecard::takeCalls();
        for (QAbstractButton *choice : box->buttons())
            if (choice->text().contains(u"quit"_s))
                choice->click();
        QVERIFY(!m_window->isVisible());
        QCOMPARE(fakeconnection::takeCalls(),
                 QStringList{u"disconnect %1"_s.arg(int(ConnectionEnd::ByProgram))});
        QVERIFY2(!fakecard::takeCalls().contains(u"stop"_s), "the card's link serves until the link is down");
        fakeconnection::put({});
        QCOMPARE(fakecard::takeCalls(), QStringList{u"stop"_s});
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"shutDown"_s});
    }

    void startsWithWhatAnEarlierRunLeft()
    {
        m_window.reset(makeWindow());
        QCOMPARE(fakeconnection::takeCalls(), QStringList{u"recover"_s});
    }

    void settingsAreStoredAtOnce()
    {
        cmcfg.setValue(u"network_dialer_setting"_s, u"autoRedial_enabled"_s, u"0"_s);
        cmcfg.setValue(u"network_dialer_setting"_s, u"dial_timeout"_s, u"0"_s);
        m_window.reset(makeWindow());
        m_window->show();
        m_window->showPage(u"settings"_s);
        shown<QListWidget>(m_window.get(), u"groups"_s)->setCurrentRow(1);
        QCOMPARE(shown<QSpinBox>(m_window.get(), u"dial_timeout"_s)->value(), 30);
        auto *times = shown<QSpinBox>(m_window.get(), u"autoRedial_time"_s);
        QVERIFY(!times->isEnabled());
        shown<QCheckBox>(m_window.get(), u"autoRedial_enabled"_s)->click();
        QVERIFY(times->isEnabled());
        times->setValue(7);
        QCOMPARE(cmcfg.getNumber(u"network_dialer_setting"_s, u"autoRedial_enabled"_s), 1);
        QCOMPARE(cmcfg.getNumber(u"network_dialer_setting"_s, u"autoRedial_time"_s), 7);
    }

private:
    /// The window on the page, with a registered card and these profiles; the first is the default.
    void open(const QList<ConnectionProfile> &profiles, const QString &imsi = u"262011234567890"_s)
    {
        ProfileStore store(basePath + u"/Data"_s);
        for (const ConnectionProfile &each : profiles)
            QVERIFY(store.add(each));
        if (!profiles.isEmpty())
            QVERIFY(store.setDefault(profiles.first().name()));
        m_window.reset(makeWindow());
        CardState card = fakecard::registeredCard();
        card.identity.imsi = imsi;
        fakecard::put(card);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->showPage(u"connection"_s);
        fakeconnection::takeCalls();
    }

    QPushButton *button(const QString &name) { return shown<QPushButton>(m_window.get(), name); }

    const QString onlyOneOperator = u"412011234567890"_s;
    const QString severalOperators = u"213031234567890"_s;
    std::unique_ptr<Surroundings> m_surroundings;
    std::unique_ptr<WTMainWindow> m_window;
};

QTEST_MAIN(TestConnectionPage)
#include "tst_connectionpage.moc"
