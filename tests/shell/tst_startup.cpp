// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/startup.h"

#include "../files.h"
#include "../rows.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "window/frmdisclaimer.h"
#include "window/splash.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QSignalSpy>
#include <QTimer>
#include <QTranslator>

#include <optional>

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

const QString source = u"Initializing"_s;

const Rows<QString, QString, QString, Qt::LayoutDirection, QString> languageRows{
    {"none", {}, u"English"_s, source, Qt::LeftToRight, u"May"_s},
    {"Spanish", u"Spanish"_s, u"Spanish"_s, u"Iniciando"_s, Qt::LeftToRight, u"mayo"_s},
    {"Arabic", u"Arabic"_s, u"Arabic"_s, u"جارٍ التهيئة"_s, Qt::RightToLeft, u"مايو"_s},
    {"no such file", u"Martian"_s, u"Martian"_s, source, Qt::LeftToRight, u"May"_s},
};

// Whether the firmware is shown; the limit; the round from 1 in which the card is ready; the rounds; the last
// line.
const Rows<bool, int, int, int, QString> splashWaitsRows{
    {"no limit is one round", false, 0, 99, 1, source},
    {"limit below zero", false, -5, 99, 1, source},
    {"card never answers", false, 3, 99, 4, u"Initializing. . ."_s},
    {"the dots begin again", false, 5, 99, 6, source},
    {"ready at once", false, 20, 1, 1, u"Initializing..."_s},
    {"ready in the third", false, 20, 3, 3, u"Initializing."_s},
    {"firmware known in the third", true, 20, 3, 3, u"Initializing..."_s},
    {"firmware never known", true, 2, 99, 3, u"Initializing..."_s},
};

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
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
    }

    void language_data() { addRows(languageRows); }
    void language()
    {
        const auto &[name, chosen, stored, text, direction, may] = currentRow(languageRows);
        QVERIFY(QFile::link(QStringLiteral(CORVA_APP_DIR "/Language"), u"Language"_s));
        cmcfg.setValue(u"function"_s, u"selected-language"_s, chosen);
        installTranslation();
        QCOMPARE(cmcfg.getValue(u"function"_s, u"selected-language"_s), stored);
        QCOMPARE(SplashDialog::tr("Initializing"), text);
        QCOMPARE(QApplication::layoutDirection(), direction);
        QCOMPARE(QLocale().monthName(5), may);
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

    void splashWaits_data() { addRows(splashWaitsRows); }
    void splashWaits()
    {
        const auto &[name, showFirmware, limit, ready, wanted, activity] = currentRow(splashWaitsRows);
        int rounds = 0;
        int wrongQuestions = 0;
        cmcfg.setValue(u"function"_s, u"splash_firmversion_enabled"_s, QString::number(showFirmware ? 1 : 0));
        cmcfg.setValue(u"network_dialer_setting"_s, u"splash_timer"_s, QString::number(limit));
        SplashWait wait = configuredSplashWait();
        QCOMPARE(wait.showFirmware, showFirmware);
        wait.round = [&] { ++rounds; };
        wait.modemReady = [&, readyIn = ready] {
            wrongQuestions += wait.showFirmware ? 1 : 0;
            return rounds >= readyIn;
        };
        wait.firmwareVersion = [&, readyIn = ready] {
            wrongQuestions += wait.showFirmware ? 0 : 1;
            return rounds >= readyIn ? u"F1"_s : QString();
        };
        SplashDialog dialog(u"1.0"_s);
        waitForCard(dialog, wait);
        QCOMPARE(rounds, wanted);
        QCOMPARE(line(dialog, "init")->text(), activity);
        QCOMPARE(wrongQuestions, 0);
        const QString firmware = u"Firmware Version:"_s + (rounds >= ready ? u"F1"_s : QString());
        QCOMPARE(line(dialog, "firmversion")->text(), showFirmware ? firmware : QString());
    }

    void escapeKeepsTheSplash()
    {
        SplashDialog dialog(u"1.0"_s);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        QVERIFY(!QPixmap(basePath + u"/res/startingWindow.jpg"_s).isNull());
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
    std::optional<ScratchFolder> m_folder;
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
