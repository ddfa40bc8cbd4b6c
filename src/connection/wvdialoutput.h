// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <vector>

namespace corva
{

/// Something that wvdial said.
struct WvdialEvent {
    enum class Kind {
        PortFailed,     ///< the port cannot be opened; `text` says why, in the system's words
        Initializing,   ///< the modem is being set up
        ModemSilent,    ///< the modem does not answer
        BadInit,        ///< the modem refused a command of its setting up
        Dialling,       ///< waits for the carrier
        Carrier,        ///< the card took the call, PPP begins
        PppStarted,     ///< pppd runs; `number` is its process id
        Interface,      ///< `text` is its name, "ppp0". No address yet
        LocalAddress,   ///< `text` is a dotted quad: the link is up
        PeerAddress,    ///< `text` is a dotted quad
        NameServer,     ///< `text` is a dotted quad; the preferred one comes first
        Busy,           ///< BUSY: wvdial goes on dialling by itself
        NoCarrier,      ///< NO CARRIER
        NoAnswer,       ///< NO ANSWER
        NoDialTone,     ///< NO DIALTONE
        CommandRefused, ///< ERROR to the dial command
        AttemptsUsedUp, ///< wvdial gives up
        Refused,        ///< user name and password are not accepted
        PppEnded,       ///< `number` is pppd's exit status. Said once per pppd
        Reconnecting,   ///< wvdial is about to dial again by itself
        Disconnecting,  ///< wvdial hangs up
        Terminating,    ///< wvdial was sent a signal; `number` is which
    };
    Kind kind;
    QString text;
    int number = 0;

    bool operator==(const WvdialEvent &) const = default;
};

/// Reads what wvdial and pppd say, in pieces of any size. Pure. Source: output of wvdial 1.61 with
/// pppd 2.4.9.
class WvdialOutput
{
public:
    /// The events of the lines that `chunk` completes, in order. Of a line longer than `longestLine` the rest
    /// is left out.
    std::vector<WvdialEvent> feed(QByteArrayView chunk);
    /// The events of a last line without an end.
    std::vector<WvdialEvent> finish();

    static constexpr qsizetype longestLine = 1024;

private:
    void takeLine(std::vector<WvdialEvent> &events);
    void take(const WvdialEvent &event, std::vector<WvdialEvent> &events);

    QByteArray m_line;
    bool m_pppEnded = false;
};

} // namespace corva
