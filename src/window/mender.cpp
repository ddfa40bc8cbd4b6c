// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/mender.h"

#include "device/cardmonitor.h"
#include "shell/whendone.h"
#include "window/checkpin.h"

#include <QClipboard>
#include <QGuiApplication>
#include <pwd.h>
#include <unistd.h>

namespace corva
{

namespace
{

QString userName()
{
    const passwd *user = getpwuid(getuid());
    return user ? QString::fromLocal8Bit(user->pw_name) : QString::number(getuid());
}

} // namespace

Mender::Mender(CardMonitor *monitor, QWidget *window) : QObject(window), m_monitor(monitor), m_window(window)
{
}

void Mender::mend(MendAction action)
{
    switch (action) {
    case MendAction::None: return;
    case MendAction::SearchAgain:
        Q_EMIT sigSaid(tr("Searching for the card"));
        m_monitor->searchNow();
        return;
    case MendAction::SwitchMode: switchMode(); return;
    case MendAction::CopyGroupCommand: copyGroupCommand(); return;
    case MendAction::EnterPin:
    case MendAction::EnterPuk: askForPin(); return;
    case MendAction::SwitchRadioOn: switchRadioOn(); return;
    case MendAction::AskAgain:
        Q_EMIT sigSaid(tr("Asking the card"));
        m_monitor->refreshNow();
        return;
    case MendAction::Connect:
    case MendAction::EditProfile: Q_EMIT sigConnectionWanted(action); return;
    }
}

void Mender::askForPin()
{
    if (!m_pinDialog) {
        m_pinDialog = new CheckPIN(m_monitor, m_window);
        m_pinDialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_pinDialog->open();
    m_pinDialog->raise();
    m_pinDialog->activateWindow();
}

void Mender::copyGroupCommand()
{
    QGuiApplication::clipboard()->setText(groupCommand(m_monitor->state(), userName()));
    Q_EMIT sigSaid(tr("Copied. Paste the command into a terminal, then log out and in again."));
}

void Mender::switchMode()
{
    Q_EMIT sigSaid(tr("Switching the card to a modem"));
    whenDone(m_monitor->switchMode(), this, [this](const std::optional<SwitchResult> &answer) {
        const SwitchResult result = answer.value_or(SwitchResult());
        Q_EMIT sigSaid(result.isOk() ? tr("Switched. The card comes back as a modem in a few seconds.")
                                     : result.detail);
    });
}

void Mender::switchRadioOn()
{
    Q_EMIT sigSaid(tr("Switching the radio on"));
    whenDone(m_monitor->switchRadioOn(), this, [this](std::optional<bool> isOn) {
        // A card may take its time and answer late; the next reading of its state shows it.
        Q_EMIT sigSaid(isOn.value_or(false) ? tr("The radio is on.")
                                            : tr("The card has not confirmed yet. Its state follows."));
        m_monitor->refreshNow();
    });
}

} // namespace corva
