// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/wtmainwindow.h"

#include "shell/commonconfig.h"
#include "shell/instance.h"
#include "window/splash.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

void say(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

/// Presses the button as soon as the disclaimer is there.
void answer(const QString &button)
{
    const QWidget *dialog = QApplication::activeModalWidget();
    auto *found = dialog ? dialog->findChild<QAbstractButton *>(button) : nullptr;
    if (found) {
        say(dialog->objectName() + u' ' + button);
        found->click();
    } else {
        QTimer::singleShot(1, qApp, [button] { answer(button); });
    }
}

} // namespace

int already_running()
{
    return corva::takeInstanceLock(qgetenv("DOUBLE_PIDFILE").constData());
}

WTMainWindow::WTMainWindow(QWidget *parent, const char *name, Qt::WindowFlags flags) : QWidget(parent, flags)
{
    resize(101, 51);
    const bool frameless = flags.testFlags(Qt::CustomizeWindowHint | Qt::FramelessWindowHint);
    say(u"built "_s + QString::fromLatin1(name) + (frameless ? u" frameless "_s : u" "_s) + comcfg.skinName);
    if (const QString button = qEnvironmentVariable("DOUBLE_ANSWER"); !button.isEmpty())
        QTimer::singleShot(0, qApp, [button] { answer(button); });
}

bool WTMainWindow::getModemState() const
{
    say(u"modem?"_s);
    return false;
}

QString WTMainWindow::getFirmwareVersion() const
{
    say(u"firmware?"_s);
    return u"1.2"_s;
}

void WTMainWindow::wait2secsToShow()
{
    for (const char *line : {"name", "softversion", "firmversion", "init"})
        say(splash->findChild<QLabel *>(QLatin1StringView(line))->text());
    QTimer::singleShot(0, this, [this] {
        splash->close();
        delete splash;
        splash = nullptr;
        show();
    });
}

void WTMainWindow::stopLink()
{
    say(u"stopped"_s);
}

void WTMainWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    say(u"shown"_s);
    if (!qEnvironmentVariableIsSet("DOUBLE_STAYS"))
        QTimer::singleShot(0, this, &QWidget::close);
}
