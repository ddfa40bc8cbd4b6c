// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagestore.h"

#include "shell/commonconfig.h"
#include "sms/conversations.h"
#include "sms/messagefiling.h"
#include "sms/messagesearch.h"
#include "sms/numbermatch.h"
#include "sms/reportmatching.h"
#include "sms/storefile.h"

#include <QSet>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <iterator>
#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto retryAfter = 10s; ///< when a file could not be written
constexpr qsizetype mostUndone = 100;

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
    for (MessagePart &part : message.parts) {
        part.storageIndex = -1;
        if (isUnderWay(part))
            part.state = DeliveryState::Failed;
    }
    return message;
}

} // namespace

class MessageStore::Private
{
public:
    Private(MessageStore *store, const QString &folder, int length)
        : q(store), matchingLength(length), computerFile(folder + u"/sms.xml"_s, pool, listener()),
          mirrorFile(folder + u"/cardsms.xml"_s, pool, listener())
    {
        pool.setMaxThreadCount(1);
    }

    StoreFile::Listener listener();
    void scheduleRetry();

    void read();
    void takeLoaded();
    /// `action` ends in `commit`.
    QFuture<bool> whenLoaded(std::function<void()> action);

    RecordPtr find(const QString &id) const;
    /// The next three note what is to be saved and said by `commit`.
    void put(Message message);
    void remove(const QStringList &ids);
    /// Without changes: when all is on disk.
    QFuture<bool> commit();
    void settle(const TicketPtr &ticket);

    QString file(Message message, DeletedOnes deleted);
    bool moveToDeleted(const QString &id);
    void restore(const QStringList &ids);
    std::optional<PartPlace> enterReport(const StatusReport &report, Message entry);

    MessageStore *const q;
    const int matchingLength;
    QThreadPool pool;
    StoreFile computerFile;
    StoreFile mirrorFile;

    enum class Phase { New, Loading, Loaded } phase = Phase::New;
    struct Tables {
        MessageTable computer;
        MessageTable mirror;
    };
    std::mutex loadedMutex;
    std::unique_ptr<Tables> loaded; ///< from the pool's thread to `takeLoaded`
    std::vector<std::function<void()>> waiting;
    TicketPtr givenOut; ///< for the next `commit`, whose future somebody has already

    MessageTable computer{matchingLength};
    MessageTable mirror{matchingLength}; ///< of the SIM and the card

    struct Changes {
        QStringList added;
        QStringList changed;
        QStringList removed;
        bool isComputer = false;
        bool isMirror = false;
    } changes;

    QList<QStringList> removals; ///< to `Deleted`, the last behind
    MessageSearch search;
    std::optional<std::vector<Conversation>> conversations;
    bool isRetrying = false;
};

StoreFile::Listener MessageStore::Private::listener()
{
    return {[this](const QString &text) {
                QMetaObject::invokeMethod(
                    q, [this, text] { Q_EMIT q->sigError(text); }, Qt::QueuedConnection);
            },
            [this] {
                QMetaObject::invokeMethod(
                    q, [this] { scheduleRetry(); }, Qt::QueuedConnection);
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

bool MessageStore::Private::moveToDeleted(const QString &id)
{
    const RecordPtr record = computer.find(id);
    if (!record || record->message.box == MessageBox::Deleted)
        return false;
    Message message = record->message;
    message.deletedFrom = std::exchange(message.box, MessageBox::Deleted);
    put(std::move(message));
    return true;
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
    QStringList moved;
    for (const QString &id : ids) {
        if (d->moveToDeleted(id))
            moved += id;
    }
    if (!moved.isEmpty())
        d->removals += moved;
    if (d->removals.size() > mostUndone)
        d->removals.removeFirst();
    return d->commit();
}

bool MessageStore::canUndo() const
{
    return !d->removals.isEmpty();
}

QStringList MessageStore::undo()
{
    if (d->removals.isEmpty())
        return {};
    const QStringList ids = d->removals.takeLast();
    d->restore(ids);
    QStringList back = d->changes.changed;
    d->commit();
    return back;
}

QFuture<bool> MessageStore::restore(const QStringList &ids)
{
    d->restore(ids);
    return d->commit();
}

QFuture<bool> MessageStore::purge(const QStringList &ids)
{
    d->remove(ids);
    // What is gone cannot be taken back.
    const QSet<QString> gone(d->changes.removed.begin(), d->changes.removed.end());
    for (QStringList &removal : d->removals)
        removal.removeIf([&](const QString &id) { return gone.contains(id); });
    d->removals.removeIf([](const QStringList &removal) { return removal.isEmpty(); });
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

QFuture<bool> MessageStore::replaceMirror(MessagePlace place, std::vector<Message> messages)
{
    if (place == MessagePlace::Computer)
        return QtFuture::makeReadyFuture(false);
    if (!isLoaded())
        return d->whenLoaded([this, place, messages] { replaceMirror(place, messages); });
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
