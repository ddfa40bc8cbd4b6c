// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/startup.h"

#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "window/frmdisclaimer.h"
#include "window/splash.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const QStringList languages{u"English"_s, u"Spanish"_s, u"Portuguese"_s, u"Turkish"_s,
                            u"Chinese"_s, u"French"_s,  u"Arabic"_s};

QLabel *line(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QLabel *>(QLatin1StringView(name));
}

/// Whether every text of the dialog is wholly inside its label, and no label on another.
QString faultOf(const QWidget &dialog)
{
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const int needed =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        if (!label->wordWrap() && label->sizeHint().width() > label->width())
            return u"too wide: "_s + label->text();
        if (needed > label->height() || !dialog.rect().contains(label->geometry()))
            return u"cut: "_s + label->text();
        for (const QLabel *other : labels) {
            if (other != label && other->geometry().intersects(label->geometry()))
                return label->text() + u" lies on "_s + other->text();
        }
    }
    return {};
}

/// A window that refuses to be closed until it is told to give in.
class Stubborn : public QWidget
{
public:
    bool givesIn = false;

protected:
    void closeEvent(QCloseEvent *event) override { event->setAccepted(givesIn); }
};

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        basePath = QStringLiteral(CORVA_SOURCE_DIR);
        for (const char *key : {"splash_fontname", "splash_fontsize"})
            cmcfg.setValue(u"fontsetting"_s, QString::fromLatin1(key), {});
    }

    void cleanup()
    {
        const QList<QTranslator *> translators = qApp->findChildren<QTranslator *>();
        qDeleteAll(translators);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(QLocale::system());
        QDir::setCurrent(QDir::rootPath());
    }

    void language_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<QString>("may");
        const QString source = u"Initializing"_s;
        QTest::newRow("none") << QString() << u"English"_s << source << Qt::LeftToRight << u"May"_s;
        QTest::newRow("Spanish") << u"Spanish"_s << u"Spanish"_s << u"Iniciando"_s << Qt::LeftToRight
                                 << u"mayo"_s;
        QTest::newRow("Arabic") << u"Arabic"_s << u"Arabic"_s << u"جارٍ التهيئة"_s << Qt::RightToLeft
                                << u"مايو"_s;
        QTest::newRow("no such file")
            << u"Martian"_s << u"Martian"_s << source << Qt::LeftToRight << u"May"_s;
    }

    void language()
    {
        QFETCH(QString, chosen);
        QVERIFY(QFile::link(QStringLiteral(CORVA_APP_DIR "/Language"), u"Language"_s));
        cmcfg.setValue(u"function"_s, u"selected-language"_s, chosen);
        installTranslation();
        QTEST(cmcfg.getValue(u"function"_s, u"selected-language"_s), "stored");
        QTEST(SplashDialog::tr("Initializing"), "text");
        QTEST(QApplication::layoutDirection(), "direction");
        QTEST(QLocale().monthName(5), "may");
    }

    void textsFit_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("points");
        for (const QString &language : languages) {
            for (const char *points : {"", "10", "40"})
                QTest::addRow("%s %s", qPrintable(language), points)
                    << language << QString::fromLatin1(points);
        }
    }

    void textsFit()
    {
        QFETCH(QString, language);
        QFETCH(QString, points);
        QVERIFY(QFile::link(QStringLiteral(CORVA_APP_DIR "/Language"), u"Language"_s));
        cmcfg.setValue(u"function"_s, u"selected-language"_s, language);
        cmcfg.setValue(u"fontsetting"_s, u"splash_fontsize"_s, points);
        installTranslation();

        SplashDialog dialog(u"2.14.0-rc1"_s);
        dialog.show();
        dialog.setRound(4);
        QCOMPARE(faultOf(dialog), QString());
        dialog.setFirmwareVersion(u"11.609.18.00.00 (HW 2)"_s);
        QTRY_COMPARE(faultOf(dialog), QString());

        FrmDisclaimer disclaimer;
        disclaimer.show();
        QCOMPARE(faultOf(disclaimer), QString());
        QVERIFY2(disclaimer.width() <= 800 && disclaimer.height() <= 520, "larger than the smallest window");
    }

    void splashLooks()
    {
        cmcfg.setValue(u"fontsetting"_s, u"splash_fontsize"_s, u"11"_s);
        const SplashDialog dialog(u"1.0"_s);
        QCOMPARE(dialog.objectName(), u"edition"_s);
        QCOMPARE(dialog.size(), QSize(388, 246));
        QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(!dialog.isModal());
        QVERIFY(line(dialog, "init")->font().bold());
        QCOMPARE(line(dialog, "init")->font().pointSize(), 11);
        QCOMPARE(line(dialog, "softversion")->text(), u"Software version PC:1.0"_s);
        QCOMPARE(line(dialog, "firmversion")->text(), QString());
        QCOMPARE(line(dialog, "init")->text(), u"Initializing..."_s);
        QVERIFY(!QPixmap(basePath + u"/res/startingWindow.jpg"_s).isNull());
    }

    void dotsComeAndGo()
    {
        SplashDialog dialog(u"1.0"_s);
        const char *patterns[] = {"", ".", ". .", ". . .", ". . . .", "", "."};
        for (int round = 0; round < 7; ++round) {
            dialog.setRound(round);
            QCOMPARE(line(dialog, "init")->text(), u"Initializing"_s + QString::fromLatin1(patterns[round]));
        }
    }

    void splashWaits_data()
    {
        QTest::addColumn<bool>("showFirmware");
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("readyIn"); // the round in which the card is ready, counted from 1
        QTest::addColumn<int>("rounds");
        QTest::addColumn<QString>("activity");
        QTest::newRow("no limit is one round") << false << 0 << 99 << 1 << u"Initializing"_s;
        QTest::newRow("limit below zero") << false << -5 << 99 << 1 << u"Initializing"_s;
        QTest::newRow("card never answers") << false << 3 << 99 << 4 << u"Initializing. . ."_s;
        QTest::newRow("ready at once") << false << 20 << 1 << 1 << u"Initializing..."_s;
        QTest::newRow("ready in the third") << false << 20 << 3 << 3 << u"Initializing."_s;
        QTest::newRow("firmware known in the third") << true << 20 << 3 << 3 << u"Initializing..."_s;
        QTest::newRow("firmware never known") << true << 2 << 99 << 3 << u"Initializing..."_s;
    }

    void splashWaits()
    {
        QFETCH(bool, showFirmware);
        QFETCH(int, limit);
        QFETCH(int, readyIn);
        int rounds = 0;
        int wrongQuestions = 0;
        SplashWait wait;
        wait.showFirmware = showFirmware;
        wait.limit = limit;
        wait.round = [&] { ++rounds; };
        wait.modemReady = [&] {
            wrongQuestions += showFirmware ? 1 : 0;
            return rounds >= readyIn;
        };
        wait.firmwareVersion = [&] {
            wrongQuestions += showFirmware ? 0 : 1;
            return rounds >= readyIn ? u"F1"_s : QString();
        };
        SplashDialog dialog(u"1.0"_s);
        waitForCard(dialog, wait);
        QTEST(rounds, "rounds");
        QTEST(line(dialog, "init")->text(), "activity");
        QCOMPARE(wrongQuestions, 0);
        const QString firmware = u"Firmware Version:"_s + (rounds >= readyIn ? u"F1"_s : QString());
        QCOMPARE(line(dialog, "firmversion")->text(), showFirmware ? firmware : QString());
    }

    void escapeKeepsTheSplash()
    {
        SplashDialog dialog(u"1.0"_s);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
    }

    void disclaimerByKeyboard_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("result");
        QTest::newRow("Enter accepts") << Qt::Key_Return << int(Qt::NoModifier) << 1;
        QTest::newRow("Escape declines") << Qt::Key_Escape << int(Qt::NoModifier) << 0;
    }

    void disclaimerByKeyboard()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, modifiers);
        FrmDisclaimer dialog;
        QCOMPARE(dialog.objectName(), u"disclaimer"_s);
        QTimer::singleShot(0, &dialog,
                           [&] { QTest::keyClick(&dialog, key, Qt::KeyboardModifiers(modifiers)); });
        QTEST(dialog.exec(), "result");
    }

    void onlyTheMainWindowEndsTheLoop()
    {
        Stubborn window;
        QWidget other;
        makeMainWidget(&window);
        QSignalSpy ending(qApp, &QCoreApplication::aboutToQuit);
        QTimer::singleShot(0, &window, [&] {
            other.show();
            other.close(); // the last visible one
            window.show();
            window.close();
            QCOMPARE(window.isVisible(), true);
            QTimer::singleShot(0, &window, [&] {
                QCOMPARE(ending.count(), 0);
                window.givesIn = true;
                window.close();
            });
        });
        QCOMPARE(QCoreApplication::exec(), 0);
        QVERIFY(!window.isVisible());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
