// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowtest.h"

#include "window/checkpin.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace corva;

class TestCheckPin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installCdeStyle(); }

    void init()
    {
        m_monitor = std::make_unique<CardMonitor>(nullptr);
        put(u"pin"_s);
        open();
    }

    void cleanup()
    {
        m_dialog.reset();
        m_monitor.reset();
    }

    void theRightPinClosesIt()
    {
        type(u"pin"_s, u"1234"_s);
        QTest::keyClick(field(u"pin"_s), Qt::Key_Return);
        QCOMPARE(fakecard::takeCalls(), QStringList{u"enterPin 1234"_s});
        QVERIFY(!m_dialog->findChild<QPushButton *>(u"unlock"_s)->isEnabled());
        fakecard::answerPin(PinOutcome::Accepted);
        QTRY_VERIFY(!m_dialog->isVisible());
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    }

    void refusedBeforeTheCardIsAsked_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QStringList>("typed"); // PUK, PIN, PIN again
        QTest::addColumn<QString>("where");
        QTest::addColumn<QString>("error");
        QTest::newRow("no PIN") << u"pin"_s << QStringList{{}, {}, {}} << u"pin"_s
                                << u"A PIN has 4 to 8 digits."_s;
        QTest::newRow("three digits")
            << u"pin"_s << QStringList{{}, u"123"_s, {}} << u"pin"_s << u"A PIN has 4 to 8 digits."_s;
        QTest::newRow("letters and quotes are not taken")
            << u"pin"_s << QStringList{{}, u"1\"a;2"_s, {}} << u"pin"_s << u"A PIN has 4 to 8 digits."_s;
        QTest::newRow("a short PUK") << u"puk"_s << QStringList{u"1234567"_s, u"1111"_s, u"1111"_s}
                                     << u"puk"_s << u"A PUK has 8 digits."_s;
        QTest::newRow("two PINs") << u"puk"_s << QStringList{u"12345678"_s, u"1111"_s, u"1112"_s}
                                  << u"pinRepeat"_s << u"The two PINs differ."_s;
    }

    void refusedBeforeTheCardIsAsked()
    {
        QFETCH(const QString, state);
        QFETCH(const QStringList, typed);
        QFETCH(const QString, where);
        put(state);
        if (state == "puk"_L1) {
            type(u"puk"_s, typed.at(0));
            type(u"pinRepeat"_s, typed.at(2));
        }
        type(u"pin"_s, typed.at(1));
        fakecard::takeCalls();
        unlock();
        QCOMPARE(fakecard::takeCalls(), QStringList());
        QTEST(said(m_dialog.get(), where + u"Error"_s), "error");
        QVERIFY(field(where)->hasFocus());
    }

    void eightDigitsAreTheMost()
    {
        type(u"pin"_s, u"123456789"_s);
        unlock();
        QVERIFY(fakecard::takeCalls().contains(u"enterPin 12345678"_s));
    }

    void aWrongPinIsSaidAndTheAttemptsFollowTheCard()
    {
        QCOMPARE(said(m_dialog.get(), u"attempts"_s), u"3 attempts left"_s);
        type(u"pin"_s, u"0000"_s);
        unlock();
        fakecard::takeCalls();
        fakecard::answerPin(PinOutcome::Wrong);
        QTRY_COMPARE(said(m_dialog.get(), u"pinError"_s), u"The PIN is wrong."_s);
        QVERIFY(field(u"pin"_s)->text().isEmpty());
        QVERIFY2(fakecard::takeCalls().contains(u"refreshNow"_s), "only the card knows what is left");
        CardState state = fakecard::namedState(u"pin"_s);
        state.pinAttempts = 1;
        fakecard::put(state);
        QVERIFY(said(m_dialog.get(), u"attempts"_s).startsWith(u"Last attempt"_s));
        QCOMPARE(said(m_dialog.get(), u"pinError"_s), u"The PIN is wrong."_s);
    }

    void turnsToThePukWhenTheCardDoes_data()
    {
        QTest::addColumn<bool>("byAnswer");
        QTest::newRow("the answer says so") << true;
        QTest::newRow("the next state says so") << false;
    }

    void turnsToThePukWhenTheCardDoes()
    {
        QFETCH(const bool, byAnswer);
        type(u"pin"_s, u"0000"_s);
        unlock();
        fakecard::answerPin(byAnswer ? PinOutcome::PukNeeded : PinOutcome::Wrong);
        if (!byAnswer)
            put(u"puk"_s);
        put(u"puk"_s);
        QTRY_VERIFY(field(u"puk"_s)->hasFocus());
        QVERIFY(said(m_dialog.get(), u"pukError"_s).trimmed().isEmpty());
        QCOMPARE(said(m_dialog.get(), u"attempts"_s), u"10 attempts left"_s);

        type(u"puk"_s, u"12345678"_s);
        type(u"pin"_s, u"4321"_s);
        type(u"pinRepeat"_s, u"4321"_s);
        fakecard::takeCalls();
        unlock();
        QCOMPARE(fakecard::takeCalls(), QStringList{u"enterPuk 12345678 4321"_s});
        fakecard::answerPin(PinOutcome::Wrong);
        QTRY_COMPARE(said(m_dialog.get(), u"pukError"_s), u"The PUK is wrong."_s);
    }

    void otherAnswersLoseNothing_data()
    {
        QTest::addColumn<PinOutcome>("outcome");
        QTest::addColumn<QString>("says");
        QTest::newRow("none") << PinOutcome::NoAnswer << u"not known whether"_s;
        QTest::newRow("the SIM starts") << PinOutcome::SimBusy << u"still starting"_s;
        QTest::newRow("another error") << PinOutcome::Refused << u"refused the entry"_s;
    }

    void otherAnswersLoseNothing()
    {
        QFETCH(const PinOutcome, outcome);
        QFETCH(const QString, says);
        type(u"pin"_s, u"1234"_s);
        unlock();
        fakecard::answerPin(outcome);
        QTRY_VERIFY(said(m_dialog.get(), u"pinResult"_s).contains(says));
        QVERIFY(m_dialog->findChild<QPushButton *>(u"unlock"_s)->isEnabled());
    }

    void goesWithTheCard_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<int>("result");
        QTest::newRow("unplugged") << u"absent"_s << int(QDialog::Rejected);
        QTest::newRow("unlocked by another program") << u"registered"_s << int(QDialog::Accepted);
    }

    void goesWithTheCard()
    {
        QFETCH(const QString, state);
        type(u"pin"_s, u"1234"_s);
        unlock();
        put(state);
        QVERIFY(!m_dialog->isVisible());
        QTEST(m_dialog->result(), "result");
        m_dialog.reset(); // the answer that comes after finds nobody, and nothing happens
        fakecard::answerPin(PinOutcome::Wrong);
        QCoreApplication::processEvents();
    }

    void fitsTheSmallestWindowAtTheLargestSize()
    {
        const CommonConfig before = comcfg;
        const QScopeGuard back([&] {
            comcfg = before;
            applySkin();
        });
        comcfg.titleSize = comcfg.textSize = comcfg.captionSize = 24;
        applySkin();
        CardState state = fakecard::namedState(u"puk"_s);
        state.pukAttempts = 1;
        fakecard::put(state);
        type(u"puk"_s, u"12345678"_s);
        type(u"pin"_s, u"1111"_s);
        type(u"pinRepeat"_s, u"1111"_s);
        unlock();
        fakecard::answerPin(PinOutcome::NoAnswer);
        QTRY_VERIFY(said(m_dialog.get(), u"pinResult"_s).contains(u"not known whether"_s));
        QTRY_VERIFY2(m_dialog->width() <= 800 && m_dialog->height() <= 520,
                     qPrintable(QDebug::toString(m_dialog->size())));
        QVERIFY(!m_dialog->findChild<QWidget *>(u"unlock"_s)->visibleRegion().isEmpty());
        const auto *result = m_dialog->findChild<QWidget *>(u"pinResult"_s);
        QTRY_COMPARE(result->visibleRegion().boundingRect().bottom(), result->rect().bottom());
        for (const auto &name : {u"puk"_s, u"pin"_s, u"pinRepeat"_s}) {
            field(name)->clearFocus();
            field(name)->setFocus();
            QTRY_COMPARE(field(name)->visibleRegion().boundingRect(), field(name)->rect());
        }
    }

    void digitsAreHiddenUntilAskedFor()
    {
        QCOMPARE(field(u"pin"_s)->echoMode(), QLineEdit::Password);
        QTest::keyClick(m_dialog.get(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(field(u"pin"_s)->echoMode(), QLineEdit::Normal);
    }

private:
    static void put(const QString &state) { fakecard::put(fakecard::namedState(state)); }

    void open()
    {
        m_dialog = std::make_unique<CheckPIN>(m_monitor.get(), nullptr);
        m_dialog->open();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    QLineEdit *field(const QString &name) const { return m_dialog->findChild<QLineEdit *>(name); }
    void type(const QString &name, const QString &text) { QTest::keyClicks(field(name), text); }
    void unlock() { m_dialog->findChild<QPushButton *>(u"unlock"_s)->click(); }

    std::unique_ptr<CardMonitor> m_monitor;
    std::unique_ptr<CheckPIN> m_dialog;
};

QTEST_MAIN(TestCheckPin)
#include "tst_checkpin.moc"
