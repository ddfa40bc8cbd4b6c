// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/offlinediagnosis.h"

#include <QObject>
#include <QPointer>

class QWidget;

namespace corva
{

class CardMonitor;
class CheckPIN;

/// Does what a button of the diagnosis offers. Nothing here waits for the card; what came of it is told by a
/// signal.
class Mender final : public QObject
{
    Q_OBJECT

public:
    /// `window` becomes the parent of the dialogs.
    Mender(CardMonitor *monitor, QWidget *window);

    void mend(MendAction action);
    /// Opens the dialog for the PIN or the PUK, unless it is open already.
    void askForPin();

Q_SIGNALS:
    /// A sentence for the status strip.
    void sigSaid(const QString &sentence);
    /// The person asks which step keeps the card offline.
    void sigDiagnosisWanted();
    /// One of the actions of the data connection, which is somebody else's.
    void sigConnectionWanted(corva::MendAction action);

private:
    void copyGroupCommand();
    void switchMode();
    void switchRadioOn();

    CardMonitor *m_monitor;
    QWidget *m_window;
    QPointer<CheckPIN> m_pinDialog;
};

} // namespace corva
