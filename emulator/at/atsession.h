// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/commandtable.h"
#include "at/escapewatch.h"
#include "at/lineeditor.h"
#include "at/textinput.h"
#include "at/trafficlog.h"
#include "port/datapeer.h"
#include "port/pacedoutput.h"

namespace cardemu
{

/// The conversation on one AT port: echo, command lines one after another, replies, reports, data calls.
class AtSession : public QObject
{
    Q_OBJECT

public:
    using Sink = PacedOutput::Sink;

    AtSession(const QString &name, Card &card, TrafficLog &log, Sink sink);

    void receive(const QByteArray &bytes);
    /// Sends a line that nobody asked for; nothing during a data call.
    void report(const QByteArray &line);
    /// The same for a message; during a data call it is kept for later, or not, as "+CNMI" says.
    void indicate(const QByteArray &line);
    /// One ring, with the caller's number where "+CLIP" asks for it.
    void ring();
    /// Sends bytes as they stand.
    void sendRaw(const QByteArray &bytes);
    /// As after power-up: settings, an unfinished line and what waits are forgotten.
    void reset();
    /// The port was closed: a dial or a data call ends, and what is still to be sent is not.
    void clientLeft();
    /// A data call runs, or waits behind "+++".
    bool isInCall() const { return m_online || m_port.dataSuspended; }
    /// The data call ends, whoever wants that: NO CARRIER.
    void dropCall();
    /// The process of the network's side; 0 when there is none.
    qint64 peerProcess() const { return m_peer != nullptr ? m_peer->processId() : 0; }
    /// Whether the client takes what the network sends.
    void setClientTakesMore(bool takes);
    /// True while the client takes less than the card sends; then no more commands should be read.
    bool isCongested() const { return m_output.pending() > congestion; }
    /// True while the network takes less than the client sends.
    bool isNetworkCongested() const { return m_peer != nullptr && m_peer->unwritten() > congestion; }

Q_SIGNALS:
    /// The network took what waited for it, or a call began or ended.
    void callChanged();

private:
    static constexpr qsizetype congestion = 1 << 20;

    void work();
    void typed(char byte);
    void typedText(char byte);
    void takeData(const QByteArray &bytes);
    void runLine(const QByteArray &body);
    void runCommands();
    Answer carryOut(const Command &command);
    Answer guarded(const std::function<Answer()> &work);
    void proceed(const Answer &answer);
    void waitFor(const Later &later);
    void goOn(const QByteArray &text);
    void prompt();
    void sendReply(const Reply &reply);
    void letArrive(Reply &reply);
    void reportKept();
    void finish(const Final &final);
    void send(const QByteArray &bytes, std::chrono::milliseconds pause = {});
    void registrationChanged();
    void escaped();
    void joinNetwork();
    void leaveNetwork();
    bool isDialling() const;
    void abortDial();

    QString m_name;
    Card &m_card;
    TrafficLog &m_log;
    PacedOutput m_output;
    PortSettings m_port;
    LineEditor m_editor;
    TextInput m_text;
    EscapeWatch m_escape;
    CardTimer m_delay;
    QByteArray m_input;
    bool m_busy = false;
    bool m_carryingOut = false;
    std::optional<Later> m_later; ///< what the running command waits for
    QByteArrayList m_reports;     ///< what a command set off; it follows the command's reply
    QByteArrayList m_kept;        ///< messages indicated during a data call
    bool m_online = false;        ///< in a data call
    DataPeer *m_peer = nullptr;
    std::vector<Command> m_commands;
    size_t m_next = 0;
    QByteArray m_information;
    QByteArray m_echo;
};

} // namespace cardemu
