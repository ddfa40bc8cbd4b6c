// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/answer.h"
#include "at/charset.h"
#include "card/packetdata.h"
#include "card/profile.h"
#include "card/scheduler.h"
#include "messages/messagecentre.h"

#include <QObject>

namespace cardemu
{

/// The card behind its ports: its state, and the rules by which it changes.
class Card : public QObject
{
    Q_OBJECT

public:
    Card(const Profile &profile, Scheduler &scheduler);

    CardState &state() { return m_state; }
    const CardState &state() const { return m_state; }
    FaultList &faults() { return m_faults; }
    Scheduler &scheduler() { return m_scheduler; }
    PacketData &packetData() { return m_packetData; }
    Mailbox &mailbox() { return m_mailbox; }
    MessageCentre &messageCentre() { return m_messageCentre; }

    /// As when the stick is pushed in: the PIN is asked again, calls and contexts are gone, registered at
    /// once.
    void powerUp();
    /// powerUp() once the running command has been answered; ports forget their settings.
    void restartSoon();
    /// To be called after a change of the state: brings registration into line and reports what changed.
    void review();

    /// Why the SIM cannot be used now: a "+CME ERROR" number; nullopt when it can.
    std::optional<int> simError() const;
    /// The PIN is wanted, or the PUK, or neither ("READY"). Only where the SIM answers at all.
    QByteArray pinState() const;
    Answer enterPin(const QByteArray &pin);
    Answer enterPuk(const QByteArray &puk, const QByteArray &newPin);
    Answer setPinLock(bool on, const QByteArray &pin);
    Answer changePin(const QByteArray &oldPin, const QByteArray &newPin);
    /// Puts the SIM into this condition; with `duration` above 0 it is ready again after that.
    void setSimCondition(SimCondition condition, std::chrono::milliseconds duration = {});

    bool isRadioOn() const { return m_state.radio.functionality == 1; }
    void setFunctionality(int level);
    /// "+CREG" <stat>. 3GPP TS 27.007 7.2.
    int registration() const;
    bool isRegistered() const { return registration() == 1 || registration() == 5; }
    const Operator *currentOperator() const;
    /// Leaves the choice to the card: its home operator, or else the first that is allowed.
    void selectAutomatically();
    /// Picks an operator by its name in `format` (0 long, 1 short, 2 numeric).
    Answer selectOperator(int format, const QString &name);
    void deregister();

    /// Sends "+JRSSI" where the card is set to report the signal.
    void signalChanged();

    /// Rings until it is answered or hung up.
    void ring(const QString &number);
    void answer();
    void hangUp();

    /// How long a command takes before it is carried out.
    std::chrono::milliseconds delayOf(const Command &command) const;

    /// The card hears and says nothing, for `duration`, or until speak() with a duration of 0.
    void fallSilent(std::chrono::milliseconds duration);
    void speak();
    bool isSilent() const { return m_silent; }

    /// Asks the network; what the profile has for the code comes back a little later, or "not supported".
    void requestUssd(const QString &code, Charset charset);

    /// Sends an unsolicited line.
    void report(const QByteArray &line) { Q_EMIT reported(line); }
    /// The same for a message: where "+CNMI" says so, it waits for the end of a data call.
    void indicate(const QByteArray &line) { Q_EMIT indicated(line); }

    /// The wall clock of the network, as "yy/MM/dd,hh:mm:ss+zz". 3GPP TS 27.007 8.15.
    QByteArray timeText() const;

Q_SIGNALS:
    void reported(const QByteArray &line);
    void indicated(const QByteArray &line);
    void registrationChanged();
    void rang();
    void restarted();
    void fellSilent();

private:
    /// Counts a wrong or right secret; ok, or the error that says what is wanted now.
    Answer checkPin(const QByteArray &pin);
    bool mayRegister() const;
    void ringAgain();

    CardState m_state;
    FaultList m_faults;
    Scheduler &m_scheduler;
    CardTimer m_registering;
    CardTimer m_ringing;
    CardTimer m_simBack;
    CardTimer m_restart;
    CardTimer m_ussd;
    CardTimer m_silence;
    PacketData m_packetData;
    Mailbox m_mailbox;
    MessageCentre m_messageCentre;
    bool m_silent = false;
    int m_functionalityAtPowerUp = 1;
    bool m_couldRegister = false;
    int m_reportedRegistration = 0;
};

} // namespace cardemu
