// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagestoreprivate.h"

#include "sms/messagefiling.h"

#include <QSet>
#include <QTimer>
#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto retryAfter = 10s; ///< when a file could not be written

/// Moves what a file had to where that file belongs, whatever it says itself.
std::vector<Message> placed(std::vector<Message> messages, bool isMirror)
{
    for (Message &message : messages) {
        if (!isMirror)
            message.place = MessagePlace::Computer;
        else if (message.place == MessagePlace::Computer)
            message.place = MessagePlace::Sim;
        message = tidied(std::move(message));
    }
    return messages;
}

} // namespace

MessageStore::Private::Private(MessageStore *store, const QString &folder, int length)
    : q(store), matchingLength(length), computerFile(folder + u"/sms.xml"_s, pool, listener()),
      mirrorFile(folder + u"/cardsms.xml"_s, pool, listener())
{
    pool.setMaxThreadCount(1);
}

StoreFile::Listener MessageStore::Private::listener()
{
    return {[this](const QString &text) {
                QMetaObject::invokeMethod(
                    q, [this, text] { Q_EMIT q->sigError(text); }, Qt::QueuedConnection);
            },
            [this] {
                QMetaObject::invokeMethod(
                    q, [this] { scheduleRetry(); }, Qt::QueuedConnection);
            },
            [this] {
                QMetaObject::invokeMethod(
                    q, [this] { Q_EMIT q->sigWrittenAgain(); }, Qt::QueuedConnection);
            }};
}

void MessageStore::Private::scheduleRetry()
{
    if (std::exchange(isRetrying, true))
        return;
    QTimer::singleShot(retryAfter, q, [this] {
        isRetrying = false;
        commit();
    });
}

void MessageStore::Private::read()
{
    std::vector<Message> ofComputer = placed(computerFile.read(), false);
    std::vector<Message> ofMirror = placed(mirrorFile.read(), true);
    auto tables = std::make_unique<Tables>(
        Tables{MessageTable(std::move(ofComputer), matchingLength), MessageTable(matchingLength)});
    for (Message &message : ofMirror) {
        if (tables->computer.find(message.id))
            message.id.clear();
    }
    tables->mirror = MessageTable(std::move(ofMirror), matchingLength);
    const auto listed = [](const MessageTable &table) {
        return std::vector<RecordPtr>(table.records().begin(), table.records().end());
    };
    const std::vector<RecordPtr> records = listed(tables->computer);
    const std::vector<RecordPtr> mirrored = listed(tables->mirror);
    {
        const std::scoped_lock lock(loadedMutex);
        loaded = std::move(tables);
    }
    QMetaObject::invokeMethod(
        q, [this] { takeLoaded(); }, Qt::QueuedConnection);
    // By now they are shown: what the first search and the first change would have to wait for.
    std::ranges::for_each(records, &MessageRecord::folded);
    std::ranges::for_each(mirrored, &MessageRecord::folded);
    StoreFile::prepare(records);
}

void MessageStore::Private::takeLoaded()
{
    if (phase != Phase::Loading)
        return;
    phase = Phase::Loaded;
    {
        const std::scoped_lock lock(loadedMutex);
        computer = std::move(loaded->computer);
        mirror = std::move(loaded->mirror);
        loaded.reset();
    }
    changes.isComputer = computerFile.isDamaged();
    changes.isMirror = mirrorFile.isDamaged();
    commit();
    Q_EMIT q->sigLoaded();
    for (const auto &action : std::exchange(waiting, {}))
        action();
}

QFuture<bool> MessageStore::Private::whenLoaded(std::function<void()> action)
{
    const auto ticket = std::make_shared<StoreTicket>();
    waiting.push_back([this, ticket, action = std::move(action)] {
        givenOut = ticket;
        action();
    });
    return ticket->future();
}

RecordPtr MessageStore::Private::find(const QString &id) const
{
    const RecordPtr record = computer.find(id);
    return record ? record : mirror.find(id);
}

void MessageStore::Private::put(Message message)
{
    const bool isMirror = message.place != MessagePlace::Computer;
    MessageTable &table = isMirror ? mirror : computer;
    (table.find(message.id) ? changes.changed : changes.added) += message.id;
    (isMirror ? changes.isMirror : changes.isComputer) = true;
    table.put(std::move(message));
}

void MessageStore::Private::remove(const QStringList &ids)
{
    for (const QString &id : ids) {
        if (const RecordPtr record = find(id)) {
            const bool isMirror = record->message.place != MessagePlace::Computer;
            (isMirror ? changes.isMirror : changes.isComputer) = true;
            changes.removed += id;
        }
    }
    computer.remove(ids);
    mirror.remove(ids);
}

void MessageStore::Private::setMirrorOwner(MessagePlace place, const QString &owner)
{
    PlaceOwners owners = mirrorFile.owners();
    (place == MessagePlace::Sim ? owners.sim : owners.card) = owner;
    mirrorFile.setOwners(owners);
    changes.isMirror = true;
}

QFuture<bool> MessageStore::Private::commit()
{
    Changes done = std::exchange(changes, {});
    TicketPtr ticket = std::exchange(givenOut, {});
    if (!ticket)
        ticket = std::make_shared<StoreTicket>();
    if (done.isComputer)
        computerFile.write(computer.records(), ticket);
    if (done.isMirror)
        mirrorFile.write(mirror.records(), ticket);
    if (!done.isComputer && !done.isMirror)
        settle(ticket);
    ticket->settle(true);
    if (done.isComputer || done.isMirror) {
        search.forgetResult();
        conversations.reset();
    }
    const QSet<QString> isNew(done.added.begin(), done.added.end());
    done.changed.removeIf([&](const QString &id) { return isNew.contains(id); });
    done.changed.removeDuplicates();
    if (!done.added.isEmpty())
        Q_EMIT q->sigAdded(done.added);
    if (!done.changed.isEmpty())
        Q_EMIT q->sigChanged(done.changed);
    if (!done.removed.isEmpty())
        Q_EMIT q->sigRemoved(done.removed);
    return ticket->future();
}

void MessageStore::Private::settle(const TicketPtr &ticket)
{
    computerFile.settle(computer.records(), ticket);
    mirrorFile.settle(mirror.records(), ticket);
}

/// Returns where the message is now.
QString MessageStore::Private::file(Message message, DeletedOnes deleted)
{
    message.place = MessagePlace::Computer;
    message = tidied(std::move(message));
    if (const RecordPtr known = takeKnownParts(computer, message)) {
        if (deleted == DeletedOnes::ComeBack)
            restore({known->message.id});
        return known->message.id;
    }
    if (const RecordPtr begun = longMessageFor(computer, message)) {
        put(joined(begun->message, message));
        return begun->message.id;
    }
    if (message.id.isEmpty() || find(message.id))
        message.id = newMessageId();
    QString id = message.id;
    put(std::move(message));
    return id;
}

void MessageStore::Private::moveToDeleted(const QString &id)
{
    const RecordPtr record = computer.find(id);
    if (!record || record->message.box == MessageBox::Deleted)
        return;
    Message message = record->message;
    message.deletedFrom = std::exchange(message.box, MessageBox::Deleted);
    for (MessagePart &part : message.parts) {
        if (part.state == DeliveryState::Queued) // put back, it waits for the person
            part.state = DeliveryState::Failed;
    }
    put(std::move(message));
}

void MessageStore::Private::restore(const QStringList &ids)
{
    for (const QString &id : ids) {
        const RecordPtr record = computer.find(id);
        if (!record || record->message.box != MessageBox::Deleted)
            continue;
        Message message = record->message;
        message.box = message.deletedFrom;
        put(std::move(message));
    }
}

std::optional<PartPlace> MessageStore::Private::enterReport(const StatusReport &report, Message entry)
{
    std::optional<PartPlace> place = reportedPart(computer.records(), report, matchingLength);
    if (place) {
        Message message = computer.find(place->id)->message;
        applyTo(message.parts[size_t(place->part)], report);
        entry.about = message.id;
        put(std::move(message));
    }
    put(std::move(entry));
    return place;
}

} // namespace corva
