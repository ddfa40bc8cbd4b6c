// SPDX-License-Identifier: GPL-3.0-or-later
#include "windowtest.h"

#include "settings/languages.h"
#include "shell/updatecfg.h"
#include "window/offlinepanel.h"
#include "window/pageregistry.h"
#include "window/settingsnotice.h"
#include "window/splash.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QToolButton>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// Whether everything that is written in the window is written whole.
QStringList cutTexts(QWidget *window)
{
    QStringList cut;
    const auto check = [&](const QWidget *widget, const QString &text) {
        const bool isLow = widget->height() < widget->fontMetrics().height();
        if (widget->isVisible() && !text.isEmpty() &&
            (isLow || widget->width() < widget->minimumSizeHint().width()))
            cut += u"%1 \"%2\" %3x%4"_s.arg(widget->objectName(), text)
                       .arg(widget->width())
                       .arg(widget->height());
    };
    for (const auto *button : window->findChildren<QAbstractButton *>())
        check(button, button->text());
    for (const auto *label : window->findChildren<QLabel *>()) {
        check(label, label->text());
        if (label->isVisible() && label->text().endsWith(u'…'))
            cut += label->objectName() + u' ' + label->text();
        if (label->isVisible() && label->wordWrap() &&
            label->height() < label->heightForWidth(label->width()))
            cut += u"%1 wraps below its place"_s.arg(label->objectName());
    }
    return cut;
}

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(u"cannot read the icon"_s));
        m_surroundings = std::make_unique<Surroundings>();
        applySkin();
        m_window.reset(makeWindow());
        m_window->showPage(u"card"_s);
    }

    void cleanup()
    {
        m_window.reset();
        m_surroundings.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void startsTheCardAndEndsIt()
    {
        QCOMPARE(fakecard::takeCalls(), QStringList{u"start"_s});
        QVERIFY(m_window->isReadyForReports());
        m_window->findPortNames();
        m_window->findPortNamesNew();
        QCOMPARE(fakecard::takeCalls(), QStringList({u"findPorts"_s, u"findPorts new"_s}));
        m_window->stopLink();
        QVERIFY(!m_window->isReadyForReports());
        QCOMPARE(fakecard::takeCalls(), QStringList{u"stop"_s});
    }

    void takesTheSplashsPlaceTwoSecondsLater()
    {
        splash = new QDialog;
        splash->show();
        const QPointer<QDialog> watched = splash;
        QElapsedTimer time;
        time.start();
        m_window->wait2secsToShow();
        QTRY_VERIFY_WITH_TIMEOUT(m_window->isVisible(), 4000);
        QVERIFY(time.elapsed() >= 1990);
        QVERIFY(!watched);
        QVERIFY(!splash);
    }

    void showsTheCard_data()
    {
        QTest::addColumn<QString>("operatorName");
        QTest::addColumn<QString>("roaming");
        QTest::addColumn<QString>("headline");
        QTest::addColumn<QString>("action");
        const QString name = u"Küstennetz & Söhne Funk"_s;
        QTest::newRow("registered") << u"Testnetz"_s << QString() << u"Testnetz"_s << QString();
        QTest::newRow("roaming") << name << u"R"_s << name << QString();
        QTest::newRow("storage") << QString() << QString() << u"The card shows itself as a disk"_s
                                 << u"&Switch to modem"_s;
        QTest::newRow("nosim") << QString() << QString() << u"No SIM card"_s << u"&Ask again"_s;
        QTest::newRow("searching") << QString() << QString() << u"Looking for a network"_s << QString();
    }

    void showsTheCard()
    {
        QFETCH(const QString, operatorName);
        QFETCH(const QString, roaming);
        QFETCH(const QString, headline);
        QFETCH(const QString, action);
        m_window->show();
        fakecard::put(fakecard::namedState(QString::fromLatin1(QTest::currentDataTag())));

        QCOMPARE(said(m_window.get(), u"operator"_s), operatorName);
        QCOMPARE(m_window->findChild<QLabel *>(u"networkType"_s)->text().isEmpty(), operatorName.isEmpty());
        QCOMPARE(m_window->findChild<QLabel *>(u"roaming"_s)->text(), roaming);
        QCOMPARE(said(m_window.get(), u"headline"_s), headline);
        const QString strip = said(m_window.get(), u"statusText"_s);
        QVERIFY(strip.startsWith(operatorName.isEmpty() ? u"Offline: "_s + headline
                                                        : operatorName + u", HSPA"_s));
        QCOMPARE(m_window->findChild<QPushButton *>(u"why"_s)->isVisible(), operatorName.isEmpty());
        const auto *hero = shown<QLabel>(m_window.get(), u"headline"_s)->parentWidget();
        const auto *mend = hero->findChild<QPushButton *>(u"mend"_s);
        QCOMPARE(mend->isVisible() ? mend->text() : QString(), action);
    }

    void namingIsTheConfigurations()
    {
        cmcfg.setValue(u"function"_s, u"naming3GToH"_s, u"1"_s);
        fakecard::put(fakecard::namedState(u"roaming"_s));
        QCOMPARE(m_window->findChild<QLabel *>(u"networkType"_s)->text(), u"H+"_s);
    }

    void textsFit_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("points");
        for (const Language &language : languages()) {
            const QString file = QString::fromLatin1(language.file);
            QTest::addRow("%s, settings", language.file) << u"registered"_s << u"settings"_s << file << 0;
            for (const auto &connection : {u"connected"_s, u"connecting"_s, u"redial"_s, u"refused"_s})
                QTest::addRow("%s, %s", language.file, qPrintable(connection))
                    << connection << u"connection"_s << file << 0;
            QTest::addRow("%s, 24 points", language.file) << u"refused"_s << u"connection"_s << file << 24;
            for (const QString &state : fakecard::stateNames()) {
                QTest::addRow("%s, %s, card", language.file, qPrintable(state))
                    << state << u"card"_s << file << 0;
                QTest::addRow("%s, %s, diagnosis", language.file, qPrintable(state))
                    << state << QString() << file << 0;
            }
        }
    }

    void textsFit()
    {
        QFETCH(const QString, state);
        QFETCH(const QString, page);
        QFETCH(const QString, language);
        QFETCH(const int, points);
        cmcfg.setValue(u"fontsetting"_s, u"mainwindow_fontsize"_s, QString::number(points));
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(CORVA_APP_DIR) + u"/Language/%1.qm"_s.arg(language)));
        QCoreApplication::installTranslator(&translator);
        QApplication::setLayoutDirection(language == "Arabic"_L1 ? Qt::RightToLeft : Qt::LeftToRight);
        m_window.reset(makeWindow());
        m_window->resize(800, 520);
        m_window->show();
        fakecard::put(fakecard::namedState(state));
        fakeconnection::put(fakeconnection::namedStatus(state));
        if (page.isEmpty())
            m_window->showOfflinePanel();
        else
            m_window->showPage(page);
        QCoreApplication::processEvents();
        // At the largest size the top bar shortens its words.
        auto *root = points > 0 ? static_cast<QWidget *>(m_window->findChild<Page *>(page)) : m_window.get();
        QTRY_COMPARE(cutTexts(root).join(u'\n'), QString());
        QCOMPARE(m_window->size(), QSize(800, 520));
    }

    void buttonsMend_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("call");
        QTest::newRow("no card") << u"absent"_s << u"searchNow"_s;
        QTest::newRow("a disk") << u"storage"_s << u"switchMode"_s;
        QTest::newRow("the radio") << u"radiooff"_s << u"switchRadioOn"_s;
        QTest::newRow("no SIM") << u"nosim"_s << u"refreshNow"_s;
    }

    void buttonsMend()
    {
        QFETCH(const QString, state);
        QFETCH(const QString, call);
        m_window->show();
        fakecard::put(fakecard::namedState(state));
        m_window->showOfflinePanel();
        fakecard::takeCalls();
        auto *mend = shown<QPushButton>(m_window->findChild<OfflinePanel *>(), u"mend"_s);
        QVERIFY(mend);
        mend->setFocus();
        QTest::keyClick(mend, Qt::Key_Space);
        QCOMPARE(fakecard::takeCalls(), QStringList{call});
    }

    void aFailedSwitchIsExplained()
    {
        m_window->show();
        fakecard::put(fakecard::namedState(u"storage"_s));
        shown<QPushButton>(m_window.get(), u"mend"_s)->click();
        fakecard::answerSwitch({SwitchOutcome::NoProgram, u"Install the package usb-modeswitch."_s});
        QTRY_COMPARE(said(m_window.get(), u"statusText"_s), u"Install the package usb-modeswitch."_s);
    }

    void theGroupCommandIsCopied()
    {
        m_window->show();
        fakecard::put(fakecard::namedState(u"norights"_s));
        shown<QPushButton>(m_window.get(), u"mend"_s)->click();
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(u"sudo usermod -aG dialout "_s));
    }

    void keysWorkTheWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        fakecard::put(fakecard::registeredCard());
        fakecard::takeCalls();
        QTest::keyClick(m_window.get(), Qt::Key_1, Qt::ControlModifier);
        QVERIFY(shown<Page>(m_window.get(), u"connection"_s));
        QTest::keyClick(m_window.get(), Qt::Key_3, Qt::ControlModifier);
        QVERIFY(shown<Page>(m_window.get(), u"card"_s));
        QTest::keyClick(m_window.get(), Qt::Key_F5);
        QCOMPARE(fakecard::takeCalls(), QStringList{u"refreshNow"_s});
        QTest::keyClick(m_window.get(), Qt::Key_F1);
        QVERIFY(m_window->findChild<OfflinePanel *>()->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(shown<Page>(m_window.get(), u"card"_s));
        QTest::keyClick(m_window.get(), Qt::Key_F10);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        menu->close();
    }

    void arrowKeysMoveAndResizeTheWindow()
    {
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->setGeometry(10, 20, 900, 560);
        const QRect before = m_window->geometry();
        QTest::keyClick(m_window.get(), Qt::Key_F7, Qt::AltModifier);
        QTest::keyClick(m_window.get(), Qt::Key_Right);
        QTest::keyClick(m_window.get(), Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(m_window->pos(), before.topLeft() + QPoint(16, 1));
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QCOMPARE(m_window->geometry(), before);

        QTest::keyClick(m_window.get(), Qt::Key_F8, Qt::AltModifier);
        QTest::keyClick(m_window.get(), Qt::Key_Left);
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QCOMPARE(m_window->size(), before.size() - QSize(16, 0));
        const QPoint kept = m_window->pos();
        QTest::keyClick(m_window.get(), Qt::Key_Down);
        QCOMPARE(m_window->pos(), kept);
    }

    void everyControlHasANameToBeSaid()
    {
        m_window->show();
        fakecard::put(fakecard::registeredCard());
        for (const auto &page : {u"settings"_s, u"messages"_s, u"card"_s, u"connection"_s}) {
            m_window->showPage(page);
            for (const QWidget *widget : m_window->findChildren<QWidget *>())
                if (widget->isVisible() && widget->focusPolicy() & Qt::TabFocus) {
                    const auto *button = qobject_cast<const QAbstractButton *>(widget);
                    const bool isNamed =
                        !widget->accessibleName().isEmpty() || (button && !button->text().isEmpty());
                    QVERIFY2(isNamed, widget->metaObject()->className());
                }
        }
    }

    void activitiesStandInTheStripWhileTheyRun()
    {
        m_window->show();
        fakecard::put(fakecard::registeredCard());
        auto *monitor = m_window->findChild<CardMonitor *>();
        Q_EMIT monitor->sigActivity(u"Identifying the card"_s);
        QCOMPARE(said(m_window.get(), u"statusText"_s), u"Identifying the card"_s);
        Q_EMIT monitor->sigActivity({});
        QCOMPARE(said(m_window.get(), u"statusText"_s), u"Testnetz, HSPA"_s);
    }

    void pagesAreInTheOrderOfTheRegistry()
    {
        PageRegistry registry;
        const auto add = [&](const QString &id, int order, bool isAtFoot = false) {
            return registry.add({{id, id, u"card"_s, order, isAtFoot}, {}});
        };
        QVERIFY(add(u"settings"_s, 1, true) && add(u"second"_s, 20) && add(u"first"_s, 10));
        QVERIFY(!add(u"second"_s, 5));
        QStringList ids;
        for (const PageEntry &page : registry.entries())
            ids += page.info.id;
        QCOMPARE(ids, QStringList({u"first"_s, u"second"_s, u"settings"_s}));
    }

    void theNavigationFoldsInANarrowWindow()
    {
        m_window->show();
        const auto *navigation = m_window->findChild<QWidget *>(u"navigation"_s);
        m_window->resize(880, 560);
        QTRY_COMPARE(navigation->width(), 200);
        m_window->resize(879, 560);
        QTRY_COMPARE(navigation->width(), 56);
    }

    void asksForThePinByItselfOnce()
    {
        m_window->show();
        fakecard::put(fakecard::namedState(u"pin"_s));
        auto *dialog = shown<QDialog>(m_window.get(), u"checkPin"_s);
        QVERIFY(dialog);
        dialog->reject();
        fakecard::put(fakecard::namedState(u"absent"_s));
        CardState again = fakecard::namedState(u"pin"_s);
        fakecard::put(again);
        dialog = shown<QDialog>(m_window.get(), u"checkPin"_s);
        QVERIFY2(dialog, "a card that was plugged in again asks again");
        dialog->reject();
        again.pinAttempts = 2;
        fakecard::put(again);
        const auto *other = m_window->findChild<QDialog *>(u"checkPin"_s);
        QVERIFY2(!other || !other->isVisible(), "\"Later\" holds until the card is gone");
    }

    void aboutTellsTheVersionsAndCopiesThem()
    {
        m_window->show();
        fakecard::put(fakecard::registeredCard());
        m_window->aboutShow();
        auto *box = shown<QDialog>(m_window.get(), u"aboutBox"_s);
        QCOMPARE(said(box, u"imeiValue"_s), u"490154203237518"_s);
        box->findChild<QToolButton *>(u"firmwareCopy"_s)->click();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"11.126.03.01.00"_s);
        box->findChild<QPushButton *>(u"copyAll"_s)->click();
        const QString all = QGuiApplication::clipboard()->text();
        QVERIFY(all.contains(u"Version: "_s + readVersionInfo() + u'\n'));
        QVERIFY(all.contains(u"Internal version: E3120-11.126.03"_s));
        box->close();
    }

    void remembersPlaceAndPage()
    {
        m_window->show();
        m_window->setGeometry(0, 10, 800, 540);
        m_window->showPage(u"settings"_s);
        m_window->close();
        QCOMPARE(cmcfg.getValue(u"window"_s, u"geometry"_s), u"0,10,800,540"_s);
        m_window.reset(makeWindow());
        m_window->move(100, 100); // the start centres it
        m_window->show();
        QCOMPARE(m_window->geometry(), QRect(0, 10, 800, 540));
        QVERIFY(shown<Page>(m_window.get(), u"settings"_s));
    }

    void settingsAreStoredAtOnce()
    {
        cmcfg.setValue(u"function"_s, u"lansetting_enabled"_s, u"1"_s);
        m_window->show();
        m_window->showPage(u"settings"_s);
        auto *tray = shown<QCheckBox>(m_window.get(), u"close_to_tray"_s);
        tray->click();
        QCOMPARE(CommonCfg().getNumber(u"window"_s, u"close_to_tray"_s), 1);

        auto *language = shown<QComboBox>(m_window.get(), u"language"_s);
        QCOMPARE(language->count(), 7);
        language->setFocus();
        QTest::keyClicks(language, u"Fran"_s);
        QCOMPARE(CommonCfg().getValue(u"function"_s, u"selected-language"_s), u"French"_s);
        QCOMPARE(UpdateCfg::value(UpdateKey::LanguageType), u"French"_s);
        QVERIFY(said(m_window.get(), u"settingsSaid"_s).contains(u"starts next"_s));
    }

    void theUpdaterIsToldAndSwitched()
    {
        m_window->show();
        m_window->showPage(u"settings"_s);
        QCOMPARE(UpdateCfg::value(UpdateKey::CmName), comcfg.softwareName);
        QCOMPARE(UpdateCfg::value(UpdateKey::SoftwareVersion), readVersionInfo());
        QVERIFY(!m_window->findChild<QCheckBox *>(u"updates"_s)); // nothing would look for any

        QVERIFY(UpdateCfg::setValue(UpdateKey::UpdateFrequence, u"7"_s));
        m_window.reset(makeWindow());
        m_window->show();
        m_window->showPage(u"settings"_s);
        shown<QCheckBox>(m_window.get(), u"updates"_s)->click();
        QCOMPARE(UpdateCfg::value(UpdateKey::EnableUpdate), u"1"_s);
    }

    void aSettingThatCannotBeStoredIsTold()
    {
        cmcfg.setValue(u"function"_s, u"lansetting_enabled"_s, u"1"_s);
        m_window->show();
        m_window->showPage(u"settings"_s);
        QVERIFY(QDir().rename(u"Data"_s, u"Away"_s));
        QVERIFY(QFile(u"Data"_s).open(QIODevice::WriteOnly)); // in the way of the folder
        auto *tray = shown<QCheckBox>(m_window.get(), u"close_to_tray"_s);
        auto *language = shown<QComboBox>(m_window.get(), u"language"_s);
        tray->click();
        QVERIFY(said(m_window.get(), u"settingsSaid"_s).contains(u"could not be stored"_s));
        language->setFocus();
        QTest::keyClicks(language, u"Span"_s);
        QVERIFY(said(m_window.get(), u"settingsSaid"_s).contains(u"could not be stored"_s));

        QVERIFY(QFile::remove(u"Data"_s) && QDir().rename(u"Away"_s, u"Data"_s));
        tray->click();
        QCOMPARE(said(m_window.get(), u"settingsSaid"_s), QString());
    }

    void tellsWhereABrokenSettingsFileWasKept()
    {
        QFile file(u"Data/common-config.xml"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<settings><cut");
        file.close();
        CommonCfg config;
        const auto box = [this] { return m_window->findChild<QMessageBox *>(u"settingsNotice"_s); };
        m_window->show();
        tellOfSettings(config, m_window.get());
        QVERIFY(!box()); // nothing was lost yet
        config.setValue(u"window"_s, u"page"_s, u"card"_s);
        tellOfSettings(config, m_window.get());
        QVERIFY(box()->isVisible());
        QVERIFY(!box()->isModal());
        QVERIFY(box()->text().contains(QFileInfo(config.keptBrokenFile()).fileName()));
    }

    void theSkinChangesAtOnceAndStays()
    {
        const CommonConfig before = comcfg;
        m_window->show();
        m_window->showPage(u"settings"_s);
        auto *skin = shown<QComboBox>(m_window.get(), u"skin"_s);
        QVERIFY(skin->count() >= 2);
        skin->setFocus();
        QTest::keyClicks(skin, u"Dark"_s);
        QVERIFY(comcfg.window.lightness() < 80);
        QTRY_COMPARE(m_window->grab().toImage().pixelColor(400, 300), comcfg.window);
        CommonConfig stored;
        QVERIFY(readConfigFile(stored, u"Data/config"_s));
        QCOMPARE(stored, comcfg);
        QCOMPARE(stored.cardFamily, before.cardFamily);
        comcfg = before;
        applySkin();
    }

private:
    std::unique_ptr<Surroundings> m_surroundings;
    std::unique_ptr<WTMainWindow> m_window;
};

QTEST_MAIN(TestWindow)
#include "tst_wtmainwindow.moc"
