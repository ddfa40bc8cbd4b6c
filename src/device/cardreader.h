// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"

#include <QByteArray>
#include <set>
#include <vector>

class SerialThread;

namespace corva
{

/// Asks one card who it is and how it does, and remembers what it cannot answer. Lives on the card worker.
///
/// The maker's own commands are used where the card knows them. One that the card does not know is not asked
/// again: operator, signal and registration then come from the standard commands alone. Those are always
/// asked: what refuses them is the moment.
class CardReader
{
public:
    explicit CardReader(SerialThread &link);

    /// Begins anew with a card that was just found; `state` holds what the search knows of it.
    void begin(const CardState &state);

    /// How errors are reported, and what the card adds to its registration. Once, before anything else.
    void prepare();
    /// SIM, signal, registration, operator, service. False when the card fell silent in between; what was
    /// read until then is kept.
    bool readStatus();
    /// Model, IMEI, firmware, IMSI, ICCID, own number, provider.
    void readIdentity();
    /// False while the card has not said what it should know: a SIM may be busy for some seconds after its
    /// PIN.
    bool isIdentified() const;

    const CardState &state() const { return m_state; }

private:
    using TextQuery = int (SerialThread::*)(char *);

    QByteArray ask(TextQuery query);
    QByteArray askMaker(TextQuery query, const char *name);
    bool isKnown(const char *name) const { return !m_refused.contains(name); }
    void readSim();
    void forgetSubscriber();
    void readSignal();
    void readRegistration();
    void readService();
    void readOperator();
    void settle();

    SerialThread &m_link;
    CardState m_state;
    std::vector<char> m_buffer;
    std::set<QByteArray> m_refused;
    bool m_isSilent = false;
    int m_simAttempts = 0;
};

} // namespace corva
