// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/dialrequest.h"

#include <QByteArray>
#include <QObject>
#include <chrono>
#include <functional>
#include <memory>

namespace corva
{

/// Whoever has the rights to write the system's dialler files and to run the dialler: a thread of this
/// program, or the helper program behind polkit. Lives on the GUI thread and never blocks it.
///
/// Requests are carried out one after another, in the order in which they were asked for, and each is
/// answered once, on the GUI thread and never from within `ask`.
class DiallerBackend : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const DialResult &)>;

    /// The longest that `shutDown` waits: 17 s for a dialler that has to be killed, or three steps of 3 s for
    /// an address, and the files.
    static constexpr std::chrono::milliseconds longestShutDown{20000};

    using QObject::QObject;

    virtual void ask(const DialRequest &request, Answer answer) = 0;
    /// The person no longer waits for what was asked: a question for rights that is still open is withdrawn.
    virtual void giveUpAsking() {}
    /// Ends the dialler, puts the system's files back and takes no more requests. Blocks, for as long as pppd
    /// needs and for `longestShutDown` at most.
    virtual void shutDown() = 0;

Q_SIGNALS:
    /// What the dialler wrote, as it comes.
    void sigOutput(const QByteArray &chunk);
    /// The dialler has ended, and everything that it started.
    void sigDiallerGone();
    /// Whoever has the rights is gone, and nobody watches the dialler any more. The next request finds
    /// another, who puts right what was left. `sentence` is for people.
    void sigLost(const QString &sentence);
};

/// In this process when it may do everything itself (run as root), through the helper otherwise.
std::unique_ptr<DiallerBackend> makeDiallerBackend();

} // namespace corva
