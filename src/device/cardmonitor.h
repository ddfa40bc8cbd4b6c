// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/modeswitch.h"
#include "link/cardstate.h"

#include <QFuture>
#include <QObject>
#include <memory>

class LinkOwner;
class SerialThread;

namespace corva
{

class CardWorker;

/// How the card took a PIN or a PUK.
enum class PinOutcome {
    Accepted,
    Wrong,
    PukNeeded,
    SimFailure,
    SimBusy, ///< the SIM is still starting: the entry was not looked at
    Refused, ///< an error that says nothing about the entry
    NoAnswer
};

/// The life of one card: found, identified, polled, gone. Lives on the GUI thread; everything that touches
/// the card runs on the card worker, and comes back as a new `CardState`.
class CardMonitor : public QObject
{
    Q_OBJECT

public:
    explicit CardMonitor(LinkOwner *owner, QObject *parent = nullptr);
    ~CardMonitor() override;

    /// Starts the link's thread and the worker.
    void start();
    /// Ends both; the port is closed. Safe to call twice.
    void stop();

    const CardState &state() const { return m_state; }
    SerialThread &link();
    CardWorker &worker();

    /// The search for the card, called by the owner on the link's thread when no port is known. Blocks that
    /// thread. `newWay` looks at "/dev/at" and "/dev/modem" alone.
    void findPorts(bool newWay);

    /// Looks for the card now instead of at the next round.
    void searchNow();
    /// Asks for the whole state now instead of at the next poll ("F5").
    void refreshNow();
    /// "AT+CPIN" with a PIN; the text was checked by the dialog (4 to 8 digits).
    QFuture<PinOutcome> enterPin(const QString &pin);
    /// "AT+CPIN" with the PUK and a new PIN.
    QFuture<PinOutcome> enterPuk(const QString &puk, const QString &newPin);
    /// "AT+CFUN=1"; true when the card said "OK".
    QFuture<bool> switchRadioOn();
    /// Turns the stick that shows itself as a disk into a modem; the result's `detail` says what went wrong.
    QFuture<SwitchResult> switchMode();

Q_SIGNALS:
    /// The state changed in at least one field.
    void sigStateChanged(const corva::CardState &state);
    /// What the worker does now, for the status strip; empty when it is idle again.
    void sigActivity(const QString &sentence);

private:
    CardState m_state;
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
