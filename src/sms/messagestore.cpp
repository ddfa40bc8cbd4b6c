// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagestore.h"

#include "shell/commonconfig.h"
#include "sms/messagefiling.h"
#include "sms/messagestoreprivate.h"
#include "sms/numbermatch.h"

#include <QSet>
#include <QSignalBlocker>
#include <algorithm>
#include <iterator>

namespace corva
{

namespace
{

bool hasNewReference(const Message &before, const Message &after)
{
    for (size_t i = 0; i < after.parts.size(); ++i) {
        const int known = i < before.parts.size() ? before.parts[i].reference : -1;
        if (after.parts[i].reference >= 0 && after.parts[i].reference != known)
            return true;
    }
    return false;
}

bool isUnderWay(const MessagePart &part)
{
    return part.state == DeliveryState::Queued || part.state == DeliveryState::Sending;
}

/// As it is put into this store: nothing is sent because a file says so.
Message imported(Message message)
{
    message.place = MessagePlace::Computer;
    message.subscriber.clear();
    for (MessagePart &part : message.parts) {
        part.storageIndex = -1;
        if (isUnderWay(part))
            part.state = DeliveryState::Failed;
    }
    return message;
}

} // namespace

MessageStore::MessageStore(const QString &folder, int matchingLength, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, folder, matchingLength))
{
}

MessageStore::MessageStore(const QString &folder, QObject *parent)
    : MessageStore(folder, comcfg.numberMatchingLength, parent)
{
}

MessageStore::~MessageStore()
{
    const QSignalBlocker blocker(this);
    flush();
    d->pool.waitForDone();
}

void MessageStore::load()
{
    if (d->phase != Private::Phase::New)
        return;
    d->phase = Private::Phase::Loading;
    d->pool.start([this] { d->read(); });
}

bool MessageStore::isLoaded() const
{
    return d->phase == Private::Phase::Loaded;
}

bool MessageStore::flush()
{
    if (!d->waiting.empty())
        load();
    if (d->phase == Private::Phase::Loading) {
        d->pool.waitForDone();
        d->takeLoaded();
    }
    return d->phase == Private::Phase::New || d->commit().result();
}

QFuture<bool> MessageStore::written()
{
    return isLoaded() ? d->commit() : d->whenLoaded([this] { d->commit(); });
}

MessageStore::Added MessageStore::insert(std::vector<Message> messages, DeletedOnes deleted)
{
    if (!isLoaded())
        return {d->whenLoaded([this, messages, deleted] { insert(messages, deleted); }), {}, {}};
    Added added;
    for (Message &message : messages)
        added.ids += d->file(std::move(message), deleted);
    added.made = d->changes.added;
    added.stored = d->commit();
    return added;
}

MessageStore::Added MessageStore::replace(const QStringList &old, std::vector<Message> messages)
{
    if (!isLoaded())
        return {d->whenLoaded([this, old, messages] { replace(old, messages); }), {}, {}};
    d->remove(old);
    return insert(std::move(messages));
}

QFuture<bool> MessageStore::change(const QString &id, const std::function<void(Message &)> &change)
{
    const RecordPtr record = d->find(id);
    if (!record)
        return QtFuture::makeReadyFuture(false);
    Message message = record->message;
    change(message);
    message.id = id;
    message.place = record->message.place;
    if (message == record->message)
        return d->commit();
    d->put(message);
    if (hasNewReference(record->message, message)) {
        for (const RecordPtr &entry : waitingReports(d->computer.records(), message, d->matchingLength))
            d->enterReport(reportOf(entry->message), entry->message);
    }
    return d->commit();
}

QFuture<bool> MessageStore::setRead(const QStringList &ids, bool isRead)
{
    for (const QString &id : ids) {
        const RecordPtr record = d->find(id);
        if (!record || record->message.isRead == isRead)
            continue;
        Message message = record->message;
        message.isRead = isRead;
        d->put(std::move(message));
    }
    return d->commit();
}

QFuture<bool> MessageStore::remove(const QStringList &ids)
{
    for (const QString &id : ids)
        d->moveToDeleted(id);
    return d->commit();
}

QFuture<bool> MessageStore::restore(const QStringList &ids)
{
    d->restore(ids);
    return d->commit();
}

QFuture<bool> MessageStore::purge(const QStringList &ids)
{
    d->remove(ids);
    return d->commit();
}

MessageStore::Reported MessageStore::applyReport(const StatusReport &given)
{
    StatusReport report = given;
    if (!report.arrived.isValid())
        report.arrived = QDateTime::currentDateTime();
    if (!isLoaded())
        return {d->whenLoaded([this, report] { applyReport(report); }), {}, -1, {}, true};
    Message entry = reportEntry(report);
    if (const RecordPtr known = takeKnownParts(d->computer, entry))
        return {d->commit(), known->message.about, -1, known->message.id, false};
    entry.id = newMessageId();
    const std::optional<PartPlace> place = d->enterReport(report, entry);
    return {d->commit(), place ? place->id : QString(), place ? place->part : -1, entry.id, true};
}

QFuture<bool> MessageStore::replaceMirror(MessagePlace place, std::vector<Message> messages,
                                          const QString &owner)
{
    if (place == MessagePlace::Computer)
        return QtFuture::makeReadyFuture(false);
    if (!isLoaded())
        return d->whenLoaded([this, place, messages, owner] { replaceMirror(place, messages, owner); });
    if (mirrorOwner(place) != owner)
        d->setMirrorOwner(place, owner);
    QSet<QString> listed;
    for (Message &message : mirrored(d->mirror, place, std::move(messages), d->matchingLength)) {
        listed += message.id;
        const RecordPtr known = d->mirror.find(message.id);
        if (!known || known->message != message)
            d->put(std::move(message));
    }
    QStringList gone = ids(place);
    gone.removeIf([&](const QString &id) { return listed.contains(id); });
    d->remove(gone);
    return d->commit();
}

QFuture<bool> MessageStore::setMirrorOwner(MessagePlace place, const QString &owner)
{
    if (place == MessagePlace::Computer)
        return QtFuture::makeReadyFuture(false);
    if (!isLoaded())
        return d->whenLoaded([this, place, owner] { setMirrorOwner(place, owner); });
    if (mirrorOwner(place) != owner)
        d->setMirrorOwner(place, owner);
    return d->commit();
}

QString MessageStore::mirrorOwner(MessagePlace place) const
{
    const PlaceOwners owners = d->mirrorFile.owners();
    return place == MessagePlace::Sim ? owners.sim : owners.card;
}

bool MessageStore::knows(const Message &message) const
{
    return std::ranges::any_of(message.parts, [&](const MessagePart &part) {
        const QString identity = partIdentity(message, part);
        return !d->computer.withPart(identity).isEmpty() || !d->mirror.withPart(identity).isEmpty();
    });
}

MessageStore::Imported MessageStore::import(std::vector<Message> messages)
{
    if (!isLoaded())
        return {QtFuture::makeReadyFuture(false), 0, 0};
    Imported result;
    for (Message &given : messages) {
        Message message = imported(std::move(given));
        if (d->mirror.find(message.id) || isKnown(d->computer, message)) {
            ++result.present;
            continue;
        }
        if (message.id.isEmpty())
            message.id = newMessageId();
        d->put(tidied(std::move(message)));
        ++result.added;
    }
    result.stored = d->commit();
    return result;
}

std::optional<Message> MessageStore::find(const QString &id) const
{
    const RecordPtr record = d->find(id);
    return record ? std::optional(record->message) : std::nullopt;
}

QStringList MessageStore::ids(MessageBox box, MessagePlace place) const
{
    QStringList ids;
    for (const RecordPtr &record : (place == MessagePlace::Computer ? d->computer : d->mirror).records()) {
        if (record->message.box == box && record->message.place == place)
            ids += record->message.id;
    }
    return ids;
}

QStringList MessageStore::ids(MessagePlace place) const
{
    QStringList ids;
    for (const RecordPtr &record : (place == MessagePlace::Computer ? d->computer : d->mirror).records()) {
        if (record->message.place == place)
            ids += record->message.id;
    }
    return ids;
}

QStringList MessageStore::ids(const std::function<bool(const Message &)> &isWanted) const
{
    QList<RecordPtr> wanted;
    qsizetype middle = 0;
    for (const MessageTable *table : {&d->computer, &d->mirror}) {
        middle = wanted.size();
        std::ranges::copy_if(table->records(), std::back_inserter(wanted),
                             [&](const RecordPtr &record) { return isWanted(record->message); });
    }
    std::ranges::inplace_merge(wanted.begin(), wanted.begin() + middle, wanted.end(), corva::isAhead);
    QStringList ids;
    ids.reserve(wanted.size());
    for (const RecordPtr &record : wanted)
        ids += record->message.id;
    return ids;
}

bool MessageStore::isAhead(const QString &id, const QString &other) const
{
    const RecordPtr one = d->find(id);
    const RecordPtr next = d->find(other);
    return one && next && corva::isAhead(one, next);
}

int MessageStore::unreadCount(MessageBox box, MessagePlace place) const
{
    const auto isCounted = [&](const RecordPtr &record) {
        const Message &message = record->message;
        return message.box == box && message.place == place && !message.isRead;
    };
    const MessageTable &table = place == MessagePlace::Computer ? d->computer : d->mirror;
    return int(std::ranges::count_if(table.records(), isCounted));
}

std::vector<Message> MessageStore::messages(const QStringList &ids) const
{
    std::vector<Message> messages;
    messages.reserve(size_t(ids.size()));
    for (const QString &id : ids) {
        if (const RecordPtr record = d->find(id))
            messages.push_back(record->message);
    }
    return messages;
}

void MessageStore::visit(const QStringList &ids, const std::function<void(const Message &)> &look) const
{
    for (const QString &id : ids) {
        if (const RecordPtr record = d->find(id))
            look(record->message);
    }
}

QStringList MessageStore::search(const QString &text) const
{
    QStringList ids;
    for (const RecordPtr &record : d->search.find(text, {&d->computer, &d->mirror}))
        ids += record->message.id;
    return ids;
}

void MessageStore::setNameLookup(std::function<QString(const QString &)> lookup)
{
    d->search.setNameLookup(std::move(lookup));
}

void MessageStore::namesChanged()
{
    d->search.forgetNames();
}

std::vector<Conversation> MessageStore::conversations() const
{
    if (!d->conversations)
        d->conversations = conversationsOf(d->computer, d->mirror);
    return *d->conversations;
}

QString MessageStore::personKey(const QString &number) const
{
    return personKeyOf(number, d->matchingLength);
}

} // namespace corva
