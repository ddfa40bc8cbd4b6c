// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/cardplaces.h"

#include "link/cardworker.h"
#include "shell/commoncfg.h"
#include "shell/whendone.h"
#include "sms/messagestore.h"
#include "sms/pduidentity.h"
#include "sms/recipients.h"
#include "sms/sendqueue.h"
#include "sms/smsfiling.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// Read messages that leave a full SIM at once.
constexpr std::size_t roomToMake = 5;

std::size_t slot(MessagePlace place)
{
    return place == MessagePlace::Card ? 1 : 0;
}

bool isOnCard(const Message &message)
{
    return message.place != MessagePlace::Computer;
}

/// The message as the computer keeps it, with its places on the card as long as it lies there too.
Message copyForComputer(Message message, MessageBox box)
{
    message.id.clear();
    message.place = MessagePlace::Computer;
    message.deletedFrom = message.box == MessageBox::Outbox ? MessageBox::Sent : message.box;
    message.box = box;
    return message;
}

bool hasEmptyEntry(const Message &message)
{
    return isOnCard(message) &&
           std::ranges::any_of(message.parts, [](const MessagePart &part) { return part.pdu.isEmpty(); });
}

/// Why the card cannot keep the whole of it, as a sentence; empty when it can: what came or went has a PDU
/// for each part, a draft goes to `whom`, one person, and fits.
QString whyNotWritten(const Message &message, const Recipients &whom, const QString &serviceCentre)
{
    const auto hasPdu = [](const MessagePart &part) { return !part.pdu.isEmpty(); };
    if (message.state() == DeliveryState::Queued || message.state() == DeliveryState::Sending)
        return CardPlaces::tr("The message is being sent.");
    if (!message.parts.empty() && std::ranges::all_of(message.parts, hasPdu))
        return {};
    const bool hasNothing = message.isReceived() && message.text().isEmpty();
    if (hasNothing || std::ranges::any_of(message.parts, hasPdu))
        return QCoreApplication::translate("SmsJobs", "The message has no content that the card could keep.");
    if (!whom.error.isEmpty())
        return whom.error;
    if (whom.numbers.size() > 1)
        return CardPlaces::tr("It is for several people, and the card keeps messages for one.");
    return smsjobs::whyNoCentre(serviceCentre);
}

void forgetIndices(Message &message)
{
    for (MessagePart &part : message.parts)
        part.storageIndex = -1;
}

/// Whatever became meanwhile of the places on the card from which they were taken.
bool hasSameContent(Message one, Message other)
{
    forgetIndices(one);
    forgetIndices(other);
    return one.parts == other.parts && one.recipients == other.recipients;
}

/// What was sent from elsewhere is sent; our own outbox is for what goes out from here.
MessageBox boxOnComputer(const Message &message)
{
    return isOnCard(message) && message.box == MessageBox::Outbox ? MessageBox::Sent : message.home();
}

/// How the card is to keep it. As unread it would be a new message at the next listing: that mark stays with
/// us.
int statusFor(const Message &message, const MessagePart &part)
{
    using enum DeliveryState;
    constexpr bool isRead = true;
    const bool isOut = part.state == Sent || part.state == Delivered || part.state == StillTrying;
    return statusOfBox(isOut ? MessageBox::Sent : boxOnComputer(message), isRead);
}

} // namespace

CardPlaces::CardPlaces(CardWorker &worker, MessageStore *store, QObject *parent)
    : QObject(parent), m_worker(worker), m_store(store)
{
    connect(store, &MessageStore::sigWrittenAgain, this, &CardPlaces::finishTaking);
}

void CardPlaces::forget()
{
    ++m_generation;
    m_isCardStoreMissing = false;
    m_makesRoom = false;
    m_hasWarned = {};
    m_listsAgain = {};
    m_owners = {};
    m_unseen = {};
    for (const MessagePlace place : {MessagePlace::Sim, MessagePlace::Card})
        change(place, {});
}

void CardPlaces::setOwners(const QString &subscriber, const QString &card)
{
    const std::array now{subscriber, card};
    if (std::exchange(m_owners, now) == now)
        return;
    for (const MessagePlace place : {MessagePlace::Sim, MessagePlace::Card}) {
        if (const QString &owner = m_owners[slot(place)]; state(place).isRead && !owner.isEmpty())
            m_store->setMirrorOwner(place, owner);
    }
}

const PlaceState &CardPlaces::state(MessagePlace place) const
{
    static const PlaceState computer{false, true, {}, {}};
    return place == MessagePlace::Computer ? computer : m_states[slot(place)];
}

PlaceState &CardPlaces::stateOf(MessagePlace place)
{
    return m_states[slot(place)];
}

void CardPlaces::change(MessagePlace place, const PlaceState &state)
{
    if (stateOf(place) == state)
        return;
    stateOf(place) = state;
    Q_EMIT sigChanged(place);
}

bool CardPlaces::hasCardStore() const
{
    // A card without a place for messages in its settings may hold some all the same.
    return !m_isCardStoreMissing && (cmcfg.getNumber(u"function"_s, u"modemSide_enabled"_s) == 1 ||
                                     !m_store->ids(MessagePlace::Card).isEmpty());
}

// --- Listing
// -----------------------------------------------------------------------------------------------------

void CardPlaces::refresh(MessagePlace place)
{
    if (place == MessagePlace::Computer || !m_isReady)
        return;
    if (state(place).isLoading) {
        m_listsAgain[slot(place)] = true;
        return;
    }
    PlaceState loading = state(place);
    loading.isLoading = true;
    change(place, loading);
    const auto job = m_worker.submit([place](SerialThread &link) { return smsjobs::list(link, place); });
    whenDone(job, this, [this, place, generation = m_generation](std::optional<smsjobs::Listing> listing) {
        if (generation != m_generation)
            return;
        took(place, std::move(listing).value_or(smsjobs::Listing()));
        Q_EMIT sigListed();
    });
}

void CardPlaces::refreshAll()
{
    refresh(MessagePlace::Sim);
    refresh(MessagePlace::Card);
}

void CardPlaces::expect(MessagePlace place, int index)
{
    if (index >= 0)
        m_unseen[slot(place)].announced.insert(index);
}

CardPlaces::NewParts CardPlaces::lookForNew(MessagePlace place, std::vector<Message> &messages, bool isFirst)
{
    Unseen &unseen = m_unseen[slot(place)];
    const QString &owner = m_owners[slot(place)];
    const bool isSameCard = !owner.isEmpty() && m_store->mirrorOwner(place) == owner;
    const bool areAllUnseen = isFirst ? isSameCard : unseen.wasCut;
    NewParts found;
    for (Message &message : messages) {
        if (message.box != MessageBox::Inbox)
            continue;
        const MessagePart &part = message.parts.front();
        const bool isAnnounced = unseen.announced.contains(part.storageIndex);
        const QString identity = pduIdentity(part.pdu);
        if (unseen.written.contains(identity)) {
            message.isRead = unseen.written.take(identity);
            continue;
        }
        if (m_store->knows(message))
            continue;
        const bool isUnseen = areAllUnseen || isAnnounced || unseen.unread.contains(part.pdu);
        message.isRead = message.isRead && (hasEmptyEntry(message) || !isUnseen);
        if (!message.isRead)
            (isFirst && !isAnnounced ? found.met : found.come).insert({part.storageIndex, part.pdu});
    }
    unseen.announced.clear();
    unseen.unread.clear();
    unseen.wasCut = false;
    return found;
}

/// The unread ones that hold one of these parts.
QStringList CardPlaces::holdersOf(MessagePlace place, const std::set<ListedPart> &parts) const
{
    QStringList holders;
    m_store->visit(m_store->ids(MessageBox::Inbox, place), [&](const Message &message) {
        const auto isOne = [&](const MessagePart &part) {
            return parts.contains({part.storageIndex, part.pdu});
        };
        if (!message.isRead && std::ranges::any_of(message.parts, isOne))
            holders += message.id;
    });
    return holders;
}

void CardPlaces::took(MessagePlace place, smsjobs::Listing listing)
{
    if (place == MessagePlace::Card)
        m_isCardStoreMissing = listing.isMissing;
    PlaceState now = state(place);
    const bool isFirst = !now.isRead;
    now.isLoading = false;
    now.error = listing.isMissing ? QString() : listing.fault;
    now.isRead = now.isRead || listing.isRead;
    change(place, now);
    Unseen &unseen = m_unseen[slot(place)];
    unseen.wasCut = unseen.wasCut || listing.wasCut;
    unseen.unread += listing.cutUnread;
    if (std::exchange(m_listsAgain[slot(place)], false))
        refresh(place);
    if (!listing.isRead)
        return;
    for (const smsjobs::KeptReport &report : listing.reports)
        Q_EMIT sigReportListed(report);
    const NewParts found = lookForNew(place, listing.messages, isFirst);
    m_store->replaceMirror(place, std::move(listing.messages), m_owners[slot(place)]);
    takeFill(place, listing.fill);
    const QStringList come = holdersOf(place, found.come);
    QStringList met = holdersOf(place, found.met);
    met.removeIf([&](const QString &id) { return come.contains(id); });
    if (!met.isEmpty())
        Q_EMIT sigUnreadMet(met);
    if (!come.isEmpty())
        Q_EMIT sigNewListed(come);
}

void CardPlaces::takeFill(MessagePlace place, const std::optional<StoreFill> &fill)
{
    if (!fill || fill->total <= 0)
        return;
    PlaceState now = state(place);
    now.capacity = StoreCapacity{fill->used, fill->total};
    change(place, now);
    warnBeforeFull(place, *now.capacity);
}

void CardPlaces::warnBeforeFull(MessagePlace place, const StoreCapacity &now)
{
    const bool isNearlyFull = now.isNearlyFull();
    if (place == MessagePlace::Sim && now.used < now.total)
        m_makesRoom = false;
    else if (place == MessagePlace::Sim && cmcfg.getNumber(u"sms"_s, u"deleteSimSmsWhenFull"_s) == 1)
        makeRoom(place);
    if (isNearlyFull && !m_hasWarned[slot(place)]) {
        const QString fill = tr("%1 of %2").arg(now.used).arg(now.total);
        Q_EMIT sigNearlyFull(place == MessagePlace::Sim
                                 ? tr("The SIM's memory for messages is nearly full: %1").arg(fill)
                                 : tr("The card's memory for messages is nearly full: %1").arg(fill));
    }
    m_hasWarned[slot(place)] = isNearlyFull;
}

/// The oldest messages that were read go to the computer, and only then from the SIM. What lists the SIM full
/// still behind that is no reason to try again, or a SIM that deletes nothing would be asked for ever.
void CardPlaces::makeRoom(MessagePlace place)
{
    if (m_makesRoom) {
        m_makesRoom = m_removals[slot(place)] > 0;
        return;
    }
    std::vector<Message> oldest = m_store->messages(m_store->ids(MessageBox::Inbox, place));
    std::erase_if(oldest, [](const Message &message) { return !message.isRead || !message.error.isEmpty(); });
    std::ranges::sort(oldest, {}, &Message::time);
    if (oldest.size() > roomToMake)
        oldest.resize(roomToMake);
    m_makesRoom = !oldest.empty();
    toComputer(oldest, After::Remove);
}

// --- Copying and moving
// -----------------------------------------------------------------------------------------

void CardPlaces::transfer(const QStringList &ids, MessagePlace to, After after)
{
    std::vector<Message> messages = m_store->messages(ids);
    std::erase_if(messages, [&](const Message &message) { return message.place == to; });
    leaveEmptyEntries(messages);
    if (to == MessagePlace::Computer) {
        toComputer(messages, after);
        return;
    }
    if (!m_isReady) {
        Q_EMIT sigNotice(tr("There is no card that takes messages."));
        return;
    }
    for (const Message &message : messages)
        toCard(message, to, after);
    if (!messages.empty())
        refresh(to);
}

/// What has no PDU can be neither copied nor told from another one when it is to be deleted.
void CardPlaces::leaveEmptyEntries(std::vector<Message> &messages)
{
    if (std::erase_if(messages, hasEmptyEntry) > 0)
        Q_EMIT sigNotice(tr("What the card lists without its content stays where it is."));
}

void CardPlaces::toComputer(const std::vector<Message> &messages, After after)
{
    if (messages.empty())
        return;
    std::vector<Message> copies;
    for (const Message &message : messages) {
        copies.push_back(copyForComputer(message, boxOnComputer(message)));
        if (after == After::Keep)
            forgetIndices(copies.back());
    }
    storedHere(m_store->insert(std::move(copies), MessageStore::DeletedOnes::ComeBack), messages, after);
}

CardPlaces::Deleted CardPlaces::moveToDeleted(const std::vector<Message> &chosen)
{
    std::vector<Message> messages = chosen;
    leaveEmptyEntries(messages);
    if (messages.empty())
        return {};
    std::vector<Message> copies;
    copies.reserve(messages.size());
    for (const Message &message : messages)
        copies.push_back(copyForComputer(message, MessageBox::Deleted));
    const MessageStore::Added added = m_store->insert(std::move(copies));
    storedHere(added, messages, After::Remove);
    return {int(messages.size()), added.made};
}

void CardPlaces::storedHere(const MessageStore::Added &added, const std::vector<Message> &originals,
                            After after)
{
    whenDone(added.stored, this, [this, ids = added.ids, originals, after](std::optional<bool> isStored) {
        if (!isStored.value_or(false)) {
            Q_EMIT sigNotice(tr("The messages could not be written to disk and stay on the card."));
            return;
        }
        for (std::size_t i = 0; after == After::Remove && i < originals.size(); ++i)
            takeFromCard({ids.value(qsizetype(i))}, originals[i]);
    });
}

/// The parts as the card is to keep them: what came or went as it was, a draft as it would go out.
std::vector<smsjobs::CardEntry> CardPlaces::entriesOf(const Message &message) const
{
    std::vector<smsjobs::CardEntry> entries;
    for (const MessagePart &part : message.parts) {
        if (!part.pdu.isEmpty())
            entries.push_back({part.pdu, statusFor(message, part)});
    }
    return entries;
}

void CardPlaces::toCard(const Message &message, MessagePlace to, After after)
{
    if (message.isBroadcast || message.box == MessageBox::Reports) {
        Q_EMIT sigNotice(tr("Only short messages can be kept on the card."));
        return;
    }
    const Recipients whom = readRecipients(message.recipients.join(u','));
    if (const QString why = whyNotWritten(message, whom, m_serviceCentre); !why.isEmpty()) {
        wroteToCard(message, to, after, why);
        return;
    }
    Message draft = message;
    draft.recipients = whom.numbers;
    const auto drafted = draftParts(draft, m_serviceCentre);
    if (drafted.empty() && entriesOf(message).empty()) {
        wroteToCard(message, to, after, MessageService::tr("The text is too long for one message."));
        return;
    }
    const auto job = m_worker.submit([to, drafted, entries = entriesOf(message)](SerialThread &link) mutable {
        constexpr int unsent = 2;
        for (const smsjobs::OutgoingPart &part : drafted)
            entries.push_back({smsjobs::encode(link, part), unsent});
        return smsjobs::write(link, to, entries);
    });
    whenDone(job, this, [this, message, to, after](const std::optional<std::optional<QString>> &result) {
        wroteToCard(message, to, after, result.value_or(tr("The card is gone.")));
    });
}

void CardPlaces::wroteToCard(const Message &message, MessagePlace to, After after,
                             const std::optional<QString> &fault)
{
    if (fault) {
        Q_EMIT sigNotice(to == MessagePlace::Sim
                             ? tr("The message was not written to the SIM: %1").arg(*fault)
                             : tr("The message was not written to the card: %1").arg(*fault));
        return;
    }
    for (const MessagePart &part : message.parts) {
        if (message.isReceived())
            m_unseen[slot(to)].written.insert(pduIdentity(part.pdu), message.isRead);
    }
    if (after == After::Keep)
        return;
    if (!isOnCard(message)) {
        const auto now = m_store->find(message.id);
        if (now && hasSameContent(*now, message)) // or else it was changed, or another part came
            m_store->purge({message.id});
        return;
    }
    takeFromCard({}, message);
}

// --- Taking
// ------------------------------------------------------------------------------------------------------

void CardPlaces::takeFromCard(const QStringList &copies, const Message &original)
{
    for (const MessagePart &part : original.parts)
        removePart(original.place, part, copies);
}

void CardPlaces::finishTaking()
{
    const auto isToBeTaken = [](const Message &message) {
        const auto liesThere = [](const MessagePart &part) { return part.storageIndex >= 0; };
        return !isOnCard(message) && std::ranges::any_of(message.parts, liesThere);
    };
    const QStringList kept = m_store->ids(isToBeTaken);
    if (!m_isReady || kept.isEmpty()) {
        refreshAll();
        return;
    }
    whenDone(m_store->written(), this,
             [this, messages = m_store->messages(kept)](std::optional<bool> isWritten) {
                 if (isWritten.value_or(false))
                     takeRest(messages);
                 refreshAll();
             });
}

void CardPlaces::takeRest(const std::vector<Message> &messages)
{
    for (const Message &message : messages) {
        for (const MessagePart &part : message.parts) {
            if (part.storageIndex < 0)
                continue;
            // Which of the two stores it was is not kept. Another message under that index stays where it is,
            // and with another SIM in the card the taking waits for the right one.
            const auto job = m_worker.submit([index = part.storageIndex, pdu = part.pdu](SerialThread &link) {
                using enum smsjobs::Storage;
                return smsjobs::remove(link, {Sim, index, pdu}) == smsjobs::Removal::Removed ||
                       smsjobs::remove(link, {Card, index, pdu}) == smsjobs::Removal::Removed;
            });
            whenDone(job, this, [this, part, id = message.id](std::optional<bool> isRemoved) {
                if (isRemoved.value_or(false))
                    forgetIndex({id}, part);
            });
        }
    }
}

void CardPlaces::removePart(MessagePlace place, const MessagePart &part, const QStringList &copies)
{
    if (part.storageIndex < 0) { // the card listed it in a way that does not say where
        sayNotDeleted(copies);
        return;
    }
    ++m_removals[slot(place)];
    const smsjobs::KeptPdu kept{smsjobs::storageOf(place), part.storageIndex, part.pdu};
    const auto job = m_worker.submit([kept](SerialThread &link) { return smsjobs::remove(link, kept); });
    whenDone(job, this, [this, place, part, copies](std::optional<smsjobs::Removal> removal) {
        if (removal == smsjobs::Removal::Failed)
            sayNotDeleted(copies);
        else if (removal)
            forgetIndex(copies, part);
        if (--m_removals[slot(place)] == 0)
            refresh(place);
    });
}

void CardPlaces::sayNotDeleted(const QStringList &copies)
{
    Q_EMIT sigNotice(
        copies.isEmpty()
            ? tr("A message could not be deleted from the card. It is in both places now.")
            : tr("A message could not be deleted from the card. It is kept on the computer as well."));
}

/// The part is only here from now on.
void CardPlaces::forgetIndex(const QStringList &copies, const MessagePart &part)
{
    for (const QString &id : copies) {
        m_store->change(id, [&](Message &message) {
            for (MessagePart &kept : message.parts) {
                if (kept.storageIndex == part.storageIndex && kept.pdu == part.pdu)
                    kept.storageIndex = -1;
            }
        });
    }
}

} // namespace corva
