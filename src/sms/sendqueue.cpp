// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/sendqueue.h"

#include "link/cardworker.h"
#include "shell/whendone.h"
#include "sms/concatreference.h"
#include "sms/messagestore.h"
#include "sms/queuedparts.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto pauseWithoutCard = 2s;
constexpr auto patienceForSubscriber = 20s; ///< a SIM that has just started tells it only after a while

/// What was on its way when the program ended may have gone out.
void leaveUnsure(Message &message)
{
    for (MessagePart &part : message.parts) {
        if (part.state == DeliveryState::Sending)
            part.state = DeliveryState::Unsure;
    }
}

} // namespace

std::vector<smsjobs::OutgoingPart> draftParts(const Message &message, const QString &serviceCentre)
{
    std::vector<smsjobs::OutgoingPart> parts;
    if (std::ranges::any_of(message.parts, [](const MessagePart &part) { return !part.pdu.isEmpty(); }))
        return parts;
    const SplitText split = splitText(message.text(), configuredCoding());
    const int reference = split.parts.size() > 1 ? nextConcatReference() : 0;
    for (int i = 0; split.isSendable() && i < int(split.parts.size()); ++i)
        parts.push_back(
            {split, i, message.recipients.value(0), serviceCentre, reference, message.asksReport});
    return parts;
}

SendQueue::SendQueue(CardWorker &worker, MessageStore *store, QObject *parent)
    : QObject(parent), m_worker(worker), m_store(store)
{
    m_heldBack.setSingleShot(true);
    m_heldBack.setInterval(patienceForSubscriber);
    connect(&m_heldBack, &QTimer::timeout, this, &SendQueue::tellOfHeldBack);
}

void SendQueue::resume()
{
    for (const QString &id : m_store->ids(MessageBox::Deleted)) {
        m_store->change(id, leaveUnsure);
        m_store->change(id, failQueued);
    }
    QStringList ids = m_store->ids(MessageBox::Outbox);
    std::ranges::reverse(ids);
    for (const QString &id : ids)
        m_store->change(id, leaveUnsure);
    m_left += ids;
    pump();
}

void SendQueue::begin(const QString &subscriber)
{
    m_isSubscriberThere = !subscriber.isEmpty();
    const bool isOther = m_isSubscriberThere && subscriber != m_subscriber;
    if (m_isSubscriberThere)
        m_subscriber = subscriber;
    m_isReady = true;
    const bool hasGivenUp = m_isSubscriberThere && giveUpOthers();
    for (const std::deque<QString> waiting = m_waiting; const QString &id : waiting)
        bind(id);
    takeUpLeft();
    if (hasGivenUp)
        sayOtherSim();
    else if (isOther)
        tellOfHeldBack();
    else if (!m_isSubscriberThere)
        m_heldBack.start();
    pump();
}

void SendQueue::pause()
{
    m_isReady = false;
    m_heldBack.stop();
}

bool SendQueue::add(const OutgoingSms &sms)
{
    const SplitText split = splitText(sms.text, configuredCoding());
    if (!split.isSendable() || sms.recipients.isEmpty())
        return false;
    Message message;
    message.box = MessageBox::Outbox;
    message.recipients = sms.recipients;
    message.time = message.arrived = QDateTime::currentDateTime();
    message.isRead = true;
    message.total = int(split.parts.size());
    message.asksReport = sms.asksReport;
    message.subscriber = subscriberThere();
    for (int recipient = 0; recipient < int(sms.recipients.size()); ++recipient)
        std::ranges::copy(partsFor(recipient, split, sms.asksReport), std::back_inserter(message.parts));
    if (message.total > 1)
        message.concatReference = nextConcatReference();
    const QStringList draft = sms.draftId.isEmpty() ? QStringList() : QStringList(sms.draftId);
    const MessageStore::Added added = m_store->replace(draft, {message});
    whenDone(added.stored, this, [this, ids = added.ids](std::optional<bool> isStored) {
        if (!isStored.value_or(false)) {
            for (const QString &id : ids) // or the next start would send what was said not to be
                m_store->change(id, failQueued);
            Q_EMIT sigRefused(tr("The message could not be written to disk and is not sent."));
            return;
        }
        // Before the store was loaded it gave no ids.
        const QStringList waiting = ids.isEmpty() ? m_store->ids(MessageBox::Outbox) : ids;
        for (const QString &id : waiting) {
            if (!m_left.contains(id))
                enqueue(id);
        }
        pump();
    });
    return true;
}

void SendQueue::cancel()
{
    if (!m_progress.isActive)
        return;
    giveUpWaiting();
    pump();
}

void SendQueue::retry(const QStringList &ids)
{
    for (const QString &id : ids) {
        const auto message = m_store->find(id);
        if (!message || !maySendAgain(*message))
            continue;
        const int before = countOf(*message, DeliveryState::Queued);
        m_store->change(id, [this](Message &changed) {
            queueAgain(changed);
            changed.subscriber = subscriberThere();
        });
        m_left.removeOne(id);
        if (std::ranges::find(m_waiting, id) != m_waiting.end()) { // more of what is counted already
            const auto now = m_store->find(id);
            m_progress.totalParts += now ? countOf(*now, DeliveryState::Queued) - before : 0;
        }
        std::erase_if(m_failed, [&](const auto &each) { return each.first == id; });
        enqueue(id);
    }
    pump();
}

void SendQueue::enqueue(const QString &id)
{
    const auto message = m_store->find(id);
    const int parts = message ? countOf(*message, DeliveryState::Queued) : 0;
    if (parts == 0 || std::ranges::find(m_waiting, id) != m_waiting.end())
        return;
    m_waiting.push_back(id);
    m_progress.totalParts += parts;
    bind(id);
}

/// What was to go out with any SIM stays with the one that is there.
void SendQueue::bind(const QString &id)
{
    const auto message = m_store->find(id);
    if (m_isReady && m_isSubscriberThere && message && message->subscriber.isEmpty() &&
        countOf(*message, DeliveryState::Queued) > 0)
        m_store->change(id, [this](Message &changed) { changed.subscriber = m_subscriber; });
}

bool SendQueue::mayGoOut(const Message &message) const
{
    return message.subscriber.isEmpty() || (m_isSubscriberThere && message.subscriber == m_subscriber);
}

void SendQueue::leaveWaiting(const Message &message)
{
    if (!m_left.contains(message.id))
        m_left += message.id;
    m_progress.totalParts -= countOf(message, DeliveryState::Queued);
    if (!m_heldBack.isActive())
        m_heldBack.start();
}

bool SendQueue::waitsForOtherSim(const Message &message) const
{
    return message.box == MessageBox::Outbox && countOf(message, DeliveryState::Queued) > 0 && m_isReady &&
           !mayGoOut(message);
}

/// What this run queued for another SIM: with this one it may cost somebody else, and name another sender.
bool SendQueue::giveUpOthers()
{
    std::deque<QString> kept;
    QStringList others;
    for (const QString &id : std::exchange(m_waiting, {})) {
        const auto message = m_store->find(id);
        if (message && !mayGoOut(*message))
            others += id;
        else
            kept.push_back(id);
    }
    m_waiting = std::move(kept);
    for (const QString &id : std::as_const(others))
        giveUp(id);
    return !others.isEmpty();
}

void SendQueue::sayOtherSim()
{
    m_heldBack.stop();
    Q_EMIT sigRefused(tr("There is another SIM in the card. What waited was not sent."));
}

/// Says so when something waits that does not go out with the SIM that is there.
void SendQueue::tellOfHeldBack()
{
    const std::vector<Message> left = m_store->messages(m_left);
    if (std::ranges::any_of(left, [this](const Message &each) { return waitsForOtherSim(each); }))
        sayOtherSim();
}

/// What was left and may go out now.
void SendQueue::takeUpLeft()
{
    for (const QString &id : std::exchange(m_left, {})) {
        const auto message = m_store->find(id);
        if (message && !mayGoOut(*message) && countOf(*message, DeliveryState::Queued) > 0)
            m_left += id;
        else
            enqueue(id);
    }
}

SendQueue::Target SendQueue::next()
{
    while (!m_waiting.empty()) {
        const QString id = m_waiting.front();
        if (const auto message = m_store->find(id); message && message->box == MessageBox::Outbox) {
            const auto part = std::ranges::find(message->parts, DeliveryState::Queued, &MessagePart::state);
            if (part != message->parts.end() && mayGoOut(*message))
                return {id, int(part - message->parts.begin())};
            if (part != message->parts.end())
                leaveWaiting(*message);
        }
        m_waiting.pop_front();
    }
    return {};
}

void SendQueue::pump()
{
    if (m_isBusy)
        return;
    const Target target = m_isReady ? next() : Target();
    if (target.part >= 0)
        sendOne(target);
    else if (m_waiting.empty() && (m_progress.totalParts > 0 || m_progress.isActive))
        endRun();
}

void SendQueue::sendOne(const Target &target)
{
    m_isBusy = true;
    const auto message = m_store->find(target.id);
    const int recipient = message->parts[std::size_t(target.part)].recipient;
    m_progress.isActive = true;
    m_progress.recipient = message->recipients.value(recipient);
    tell();
    const auto marked = m_store->change(target.id, [this, part = target.part](Message &changed) {
        changed.parts[std::size_t(part)].state = DeliveryState::Sending;
        if (m_isSubscriberThere) // the rest of it goes out with the same SIM
            changed.subscriber = m_subscriber;
    });
    whenDone(marked, this, [this, target](std::optional<bool> isMarked) {
        const auto current = m_store->find(target.id);
        if (!m_isReady || (current && !mayGoOut(*current))) { // the card or its SIM went, or the program ends
            putBack(target);
            return;
        }
        if (!isMarked.value_or(false) || !current) {
            refuse(target, tr("The message could not be written to disk."));
            return;
        }
        const auto part = outgoing(*current, target.part, m_serviceCentre);
        const int to = current->parts[std::size_t(target.part)].recipient;
        if (!isSplitAsQueued(*current, to, part.split)) {
            refuse(target, tr("The alphabet's settings have changed since it was written."));
            return;
        }
        const auto job = m_worker.submit([part](SerialThread &link) { return smsjobs::send(link, part); });
        whenDone(job, this, [this, target](const std::optional<smsjobs::SentPart> &sent) {
            if (sent && sent->outcome != smsjobs::SentPart::CardGone)
                took(target, *sent);
            else
                putBack(target);
        });
    });
}

/// The part cannot even be tried.
void SendQueue::refuse(const Target &target, const QString &why)
{
    smsjobs::SentPart unsent;
    unsent.fault = why;
    took(target, unsent);
}

void SendQueue::took(const Target &target, const smsjobs::SentPart &sent)
{
    const auto before = m_store->find(target.id);
    const auto stored =
        m_store->change(target.id, [&](Message &message) { takeOutcome(message, target.part, sent); });
    if (before) // or else it was purged meanwhile
        count(*before, target, sent);
    goOnWhen(stored);
}

/// It has not gone out, and waits for the card to be back; until that is noticed it is tried now and then.
/// Unless it was deleted or the rest was given up meanwhile.
void SendQueue::putBack(const Target &target)
{
    const bool isWanted = std::ranges::find(m_waiting, target.id) != m_waiting.end();
    m_store->change(target.id, [&](Message &message) {
        MessagePart &part = message.parts[std::size_t(target.part)];
        const bool isDeleted = message.box != MessageBox::Outbox;
        part.state = isWanted && !isDeleted ? DeliveryState::Queued : DeliveryState::Failed;
        if (!isWanted)
            m_failed.insert({target.id, part.recipient});
    });
    QTimer::singleShot(pauseWithoutCard, this, [this] {
        m_isBusy = false;
        pump();
    });
}

void SendQueue::count(const Message &before, const Target &target, const smsjobs::SentPart &sent)
{
    const auto after = m_store->find(target.id);
    m_progress.sentParts +=
        1 + countOf(before, DeliveryState::Queued) - (after ? countOf(*after, DeliveryState::Queued) : 0);
    const int recipient = before.parts[std::size_t(target.part)].recipient;
    const QString number = before.recipients.value(recipient);
    (sent.outcome == smsjobs::SentPart::Sent ? m_sent : m_failed).insert({target.id, recipient});
    if (sent.outcome == smsjobs::SentPart::Unsure)
        Q_EMIT sigRefused(tr("The message to %1 may have been sent: the card did not say.").arg(number));
    else if (sent.outcome != smsjobs::SentPart::Sent)
        Q_EMIT sigRefused(tr("The message to %1 was not sent: %2").arg(number, sent.fault));
    tell();
}

void SendQueue::goOnWhen(const QFuture<bool> &stored)
{
    whenDone(stored, this, [this](std::optional<bool>) {
        m_isBusy = false;
        pump();
    });
}

void SendQueue::giveUp(const QString &id)
{
    m_store->change(id, [&](Message &message) {
        for (MessagePart &part : message.parts) {
            if (part.state == DeliveryState::Queued) {
                m_failed.insert({id, part.recipient});
                part.state = DeliveryState::Failed;
                ++m_progress.sentParts;
            }
        }
    });
}

void SendQueue::giveUpWaiting()
{
    for (const QString &id : std::exchange(m_waiting, {}))
        giveUp(id);
}

void SendQueue::endRun()
{
    int sent = 0;
    for (const auto &each : m_sent)
        sent += m_failed.contains(each) ? 0 : 1;
    const int failed = int(m_failed.size());
    m_sent.clear();
    m_failed.clear();
    m_progress = {};
    tell();
    if (sent + failed > 0)
        Q_EMIT sigSummary(sent, failed);
}

void SendQueue::tell()
{
    Q_EMIT sigProgress(m_progress);
}

} // namespace corva
