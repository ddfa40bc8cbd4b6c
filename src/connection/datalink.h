// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "connection/diallerbackend.h"
#include "connection/linkfacts.h"
#include "connection/pppoptions.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

namespace corva
{

class CardMonitor;

/// What one link is made of.
struct LinkPlan {
    ConnectionProfile profile;
    QString modemPort;
    QString interfaceName; ///< of the card's network interface, for a link over it
    int contextId = 1;     ///< of the packet data context, 1 or 2
    bool hasContexts = true;
    PppOptions options;
    std::chrono::milliseconds limit{30000}; ///< the latest moment at which the outcome is judged
    /// The longest that the card is waited for to take its context: it may be busy with something else.
    std::chrono::milliseconds contextLimit{60000};
    /// The longest that taking it down may take, hanging up and putting the files back included.
    std::chrono::milliseconds endLimit = DiallerBackend::longestShutDown + std::chrono::seconds(3);
    bool showsExitCode = true;
};

/// How a link ended, or why it was not made.
struct LinkOutcome {
    ConnectionEnd end = ConnectionEnd::ByPerson;
    int exitCode = -1;       ///< pppd's
    QString message;         ///< a box for the person; may be empty
    QString sentence;        ///< the same in words where the end alone does not say enough
    QString notPutBack = {}; ///< a box of its own: system files that could not be put back; mostly empty
};

/// What the ways of making a link share: the card's context comes first, and everything that was changed is
/// put back before it is over. Used once.
class DataLink : public QObject
{
    Q_OBJECT

public:
    using Facts = std::function<LinkFacts(const QString &interfaceName)>;

    DataLink(CardMonitor &monitor, DiallerBackend &backend, Facts facts, const LinkPlan &plan,
             QObject *parent = nullptr);

    ~DataLink() override;

    /// `sigUp` or `sigEnding` follows, in the end `sigOver`.
    void start();
    /// Ends the link, or the making of it. The outcome is `why`.
    void end(const LinkOutcome &why);
    /// Ends it in a program that ends, as far as the card is concerned. Blocks briefly.
    virtual void abandon() {}

    bool isUp() const { return m_stage == Stage::Up; }
    /// The facts as they are now.
    virtual LinkFacts facts() const;

Q_SIGNALS:
    /// The card gets its context now: PDP type and access point, empty for one of the network's choice.
    void sigPDPSetCommand(const QString &type, const QString &apn);
    /// It carries traffic. Once at most.
    void sigUp();
    /// It is being taken down.
    void sigEnding();
    /// A box for the person while the link goes on.
    void sigMessage(const QString &text);
    /// It is down and everything is as before. Once; nothing follows.
    void sigOver(const corva::LinkOutcome &outcome);

protected:
    enum class Stage { New, Context, Saving, Making, Up, Ending, Over };

    /// Why the plan cannot be carried out, in words; empty when it can.
    virtual QString refusal() const { return {}; }
    /// The system's files are saved: goes on.
    virtual void make() = 0;
    /// Undoes what `make` did; then `takenDown`.
    virtual void takeDown() = 0;
    /// Looks whether the link is up, or whether it is still there.
    virtual void look() = 0;
    /// Judges the outcome at the time-out: there is no link.
    virtual void slotDelayMessageBox();

    Stage stage() const { return m_stage; }
    /// Whether what `make` asked for is still wanted.
    bool isMaking() const { return m_stage == Stage::Making; }
    /// The outcome is judged when `limit` is over.
    void armLimit();
    void setUp();
    void takenDown();
    /// `sentence` is the box, and the outcome is `end`.
    void fail(ConnectionEnd end, const QString &sentence, int exitCode = -1);
    /// The same where the box explains more than the end does.
    void explain(ConnectionEnd end, const QString &sentence);
    void explain(const DialResult &result);

    CardMonitor &m_monitor;
    DiallerBackend &m_backend;
    const Facts m_facts;
    const LinkPlan m_plan;
    QString m_interface; ///< the link's; empty while it has none

private:
    void setContext();
    void contextSet(std::optional<int> result);
    void save();
    void useOwnNameServers();
    void timeIsUp();
    void over();
    QString apn() const;

    Stage m_stage = Stage::New;
    LinkOutcome m_outcome;
    QTimer m_limit;
    QTimer m_watch;
    /// Whether the context is still to be set when the card comes to it; shared with the card worker.
    std::shared_ptr<std::atomic<bool>> m_isContextWanted = std::make_shared<std::atomic<bool>>(true);
    bool m_isSaved = false;
    bool m_isSavePending = false;
};

} // namespace corva
