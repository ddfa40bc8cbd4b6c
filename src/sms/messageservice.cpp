// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messageservice.h"

#include "device/cardmonitor.h"
#include "link/cardworker.h"
#include "link/serialthread.h"
#include "shell/commoncfg.h"
#include "shell/logging.h"
#include "shell/whendone.h"
#include "sms/cardplaces.h"
#include "sms/markqueue.h"
#include "sms/messagestore.h"
#include "sms/sendqueue.h"
#include "sms/smsreception.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSemaphore>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <deque>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr int mostTries = 5;
constexpr std::size_t mostUndone = 100;
constexpr auto pauseBetweenTries = 10s;
constexpr auto patienceForCard = 15s;
constexpr std::chrono::milliseconds longestFarewell = 4s;

bool takesMessages(const CardState &card)
{
    return card.modemReady && card.sim == SimState::Ready;
}

/// Whether that setting decides where new messages go.
bool isRoutingKey(const QString &section, const QString &key)
{
    return section == "sms"_L1 ? key == "newsmsLocation"_L1
                               : section == "function"_L1 &&
                                     (key == "modemSide_enabled"_L1 || key == "cell_board_enabled"_L1);
}

/// Whether a part is out, or on its way, and asked for a report that has not come.
bool awaitsReport(const Message &message)
{
    using enum DeliveryState;
    const bool isOurs = message.place == MessagePlace::Computer && !message.isReceived();
    return isOurs && std::ranges::any_of(message.parts, [](const MessagePart &part) {
               return part.asksReport && part.state != None && part.state != Delivered &&
                      part.state != Failed;
           });
}

/// The unread messages of all places by their PDUs; what lies in two of them once.
QSet<QString> unreadOnes(const MessageStore &store)
{
    const QStringList ids =
        store.ids([](const Message &message) { return message.box == MessageBox::Inbox && !message.isRead; });
    QSet<QString> unread;
    store.visit(ids, [&](const Message &message) {
        const QString pdu = message.parts.empty() ? QString() : message.parts.front().pdu;
        unread.insert(pdu.isEmpty() ? message.id : pdu);
    });
    return unread;
}

/// "50,919": what a person chose.
QByteArray channelText(const QList<int> &channels)
{
    QByteArrayList texts;
    for (const int channel : channels)
        texts.append(QByteArray::number(channel));
    return texts.join(',');
}

} // namespace

class MessageService::Private
{
public:
    Private(MessageService *service, CardMonitor *cardMonitor, MessageStore *messageStore);

    void connectParts();
    void takeCard(const CardState &card);
    void prepare();
    void prepared(const smsjobs::Preparation &made);
    void takeIdentity(const CardIdentity &identity);
    void announceUnread();
    void setServiceCentre(const QString &number);
    void sendChannels();
    void lookForAwaited();

    MessageService *q;
    CardMonitor *monitor;
    MessageStore *store;
    CardPlaces places;
    SmsReception reception;
    SendQueue queue;
    NameLookup lookup;
    QString serviceCentre;
    QString subscriber;               ///< for whose SIM the queue goes out; empty when not known
    std::deque<QStringList> removals; ///< what went into the deleted box together, the last one last
    QTimer again;                     ///< to the next try of preparing the card
    QTimer looking;                   ///< to the next look at what waits for its report
    QTimer patience;                  ///< with a card that may come, until unread messages are announced
    std::atomic<bool> awaitsReports = false;
    int tries = 0;
    bool isReady = false;  ///< the card takes messages
    bool hasEnded = false; ///< the program does: nothing is begun any more
    bool isPrepared = false;
    bool isPreparing = false;
    bool preparesAgain = false; ///< what was asked for changed meanwhile
    enum class Announced { Nothing, WithoutCard, WithCard } announced = Announced::Nothing;
    QSet<QString> announcedOnes; ///< what the person was told of, as `unreadOnes` has it
    MarkQueue marks; ///< last: at its end it marks what waits, and whoever shows it asks for names
};

MessageService::Private::Private(MessageService *service, CardMonitor *cardMonitor,
                                 MessageStore *messageStore)
    : q(service), monitor(cardMonitor), store(messageStore), places(monitor->worker(), store, q),
      reception(monitor->worker(), store, &places, q), queue(monitor->worker(), store, q), marks(store)
{
    reception.setNameLookup([this](const QString &number) { return q->nameFor(number); });
}

void MessageService::Private::connectParts()
{
    again.setSingleShot(true);
    connect(&again, &QTimer::timeout, q, [this] { prepare(); });
    connect(&cmcfg, &CommonCfg::sigChanged, q, [this](const QString &section, const QString &key) {
        if (isReady && isRoutingKey(section, key))
            prepare();
    });
    connect(monitor, &CardMonitor::sigStateChanged, q, [this](const CardState &card) { takeCard(card); });
    connect(store, &MessageStore::sigLoaded, q, [this] {
        queue.resume();
        patience.start(patienceForCard);
        takeCard(monitor->state());
    });
    connect(store, &MessageStore::sigError, q, &MessageService::sigNotice);
    looking.setSingleShot(true);
    connect(&looking, &QTimer::timeout, q, [this] { lookForAwaited(); });
    for (const auto signal : {&MessageStore::sigAdded, &MessageStore::sigChanged, &MessageStore::sigRemoved})
        connect(store, signal, &looking, qOverload<>(&QTimer::start));
    connect(store, &MessageStore::sigLoaded, &looking, qOverload<>(&QTimer::start));
    connect(&queue, &SendQueue::sigProgress, q, &MessageService::sigSending);
    connect(&queue, &SendQueue::sigSummary, q, &MessageService::sigSendSummary);
    connect(&queue, &SendQueue::sigRefused, q, &MessageService::sigNotice);
    connect(&places, &CardPlaces::sigChanged, q, &MessageService::sigPlaceChanged);
    connect(&places, &CardPlaces::sigNotice, q, &MessageService::sigNotice);
    connect(&places, &CardPlaces::sigNearlyFull, q, &MessageService::sigNearlyFull);
    connect(&places, &CardPlaces::sigUnreadMet, &reception, &SmsReception::takeOver);
    connect(&places, &CardPlaces::sigListed, q, [this] { announceUnread(); });
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, q, [this] { announceUnread(); });
    connect(&places, &CardPlaces::sigNewListed, &reception, &SmsReception::takeListed);
    connect(&places, &CardPlaces::sigReportListed, &reception, &SmsReception::deliveryReportSaveToSmsXml);
    connect(&reception, &SmsReception::sigNewMessage, q, &MessageService::sigNewMessage);
    connect(&reception, &SmsReception::sigClass0, q, &MessageService::sigClass0);
    connect(&reception, &SmsReception::sigDelivered, q, &MessageService::sigDelivered);
    connect(&reception, &SmsReception::sigBroadcast, q, &MessageService::sigBroadcast);
    connect(&reception, &SmsReception::sigNotice, q, &MessageService::sigNotice);
}

/// The card is asked for messages once the store knows what is here already.
void MessageService::Private::takeCard(const CardState &card)
{
    const bool isNow = takesMessages(card) && store->isLoaded();
    if (hasEnded)
        return;
    if (isNow == isReady) {
        // Some cards and SIMs tell who they are only a while after they are ready.
        if (isPrepared && !card.identity.imsi.isEmpty() && card.identity.imsi != subscriber)
            takeIdentity(card.identity);
        else if (isPrepared && !card.identity.imei.isEmpty())
            places.setOwners(subscriber, card.identity.imei);
        return;
    }
    isReady = isNow;
    isPrepared = false;
    tries = 0;
    if (isReady) {
        prepare();
        return;
    }
    again.stop();
    queue.pause();
    places.setReady(false);
    places.forget();
    setServiceCentre({});
}

void MessageService::Private::prepare()
{
    again.stop();
    if (hasEnded)
        return;
    if (std::exchange(isPreparing, true)) {
        preparesAgain = true;
        return;
    }
    whenDone(monitor->worker().submit(smsjobs::prepare), q,
             [this](const std::optional<smsjobs::Preparation> &made) {
                 isPreparing = false;
                 if (hasEnded)
                     return;
                 if (made && isReady && std::exchange(preparesAgain, false))
                     prepare();
                 else if (made && isReady)
                     prepared(*made);
             });
}

void MessageService::Private::prepared(const smsjobs::Preparation &made)
{
    if (!made.fault.isEmpty())
        Q_EMIT q->sigNotice(made.fault);
    isPrepared = made.isReady;
    if (made.fault.isEmpty())
        tries = 0;
    else if (++tries < mostTries)
        again.start(pauseBetweenTries);
    if (!made.isReady)
        return;
    setServiceCentre(made.serviceCentre);
    const CardIdentity identity = monitor->state().identity; // read before the card was said to be ready
    places.setOwners(identity.imsi, identity.imei);
    places.setReady(true);
    Q_EMIT q->sigCardReady();
    if (cmcfg.getNumber(u"function"_s, u"cell_board_enabled"_s) == 1 && !q->broadcastChannels().isEmpty())
        sendChannels();
    takeIdentity(identity);
}

void MessageService::Private::takeIdentity(const CardIdentity &identity)
{
    subscriber = identity.imsi;
    places.setOwners(identity.imsi, identity.imei);
    queue.begin(subscriber);
}

/// Of all places together, as soon as all are known: the card's listings have ended, or there is no card. One
/// that comes later is told of when it was listed.
void MessageService::Private::announceUnread()
{
    if (isPreparing || places.state(MessagePlace::Sim).isLoading ||
        places.state(MessagePlace::Card).isLoading) {
        patience.start(patienceForCard);
        return;
    }
    patience.stop();
    const bool isOfCard = places.state(MessagePlace::Sim).isRead || places.state(MessagePlace::Card).isRead;
    const Announced now = isOfCard ? Announced::WithCard : Announced::WithoutCard;
    if (announced >= now)
        return;
    announced = now;
    if (cmcfg.getNumber(u"sms"_s, u"newSmsNoticeShowWhenProgramStart"_s) != 1)
        return;
    const QSet<QString> unread = unreadOnes(*store);
    const QSet<QString> before = std::exchange(announcedOnes, unread);
    if (!before.contains(unread))
        Q_EMIT q->sigUnreadAtStart(int(unread.size()));
}

void MessageService::Private::setServiceCentre(const QString &number)
{
    queue.setServiceCentre(number);
    places.setServiceCentre(number);
    if (std::exchange(serviceCentre, number) != number)
        Q_EMIT q->sigServiceCentreChanged(number);
}

void MessageService::Private::sendChannels()
{
    const QByteArray channels = channelText(q->broadcastChannels());
    const auto job = monitor->worker().submit([channels](SerialThread &link) -> std::optional<QString> {
        return link.setBroadcastChannels(channels) == 1 ? std::nullopt
                                                        : std::optional(smsjobs::whyFailed(link));
    });
    whenDone(job, q, [this](const std::optional<std::optional<QString>> &fault) {
        if (fault && *fault)
            Q_EMIT q->sigNotice(tr("The card did not take the broadcast channels: %1").arg(**fault));
    });
}

void MessageService::Private::lookForAwaited()
{
    awaitsReports = !store->ids(awaitsReport).isEmpty();
}

MessageService::MessageService(CardMonitor *monitor, MessageStore *store, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(this, monitor, store))
{
    d->connectParts();
    if (store->isLoaded()) {
        d->queue.resume();
        d->patience.start(patienceForCard);
    }
    d->looking.start();
    d->takeCard(monitor->state());
}

MessageService::~MessageService() = default;

MessageStore *MessageService::store() const
{
    return d->store;
}

QString MessageService::nameFor(const QString &number) const
{
    const QString name = d->lookup ? d->lookup(number) : QString();
    return name.isEmpty() ? number : name;
}

void MessageService::setNameLookup(NameLookup lookup)
{
    d->lookup = lookup;
    d->store->setNameLookup(std::move(lookup));
}

void MessageService::readCard()
{
    d->places.finishTaking();
    d->reception.readKeptReports();
}

void MessageService::takeMessages(const QString &text)
{
    d->reception.takeMessages(text.toLatin1());
}

void MessageService::takeDeliveryReports(const QString &text)
{
    d->reception.takeDeliveryReports(text.toLatin1());
}

bool MessageService::awaitsReports() const
{
    return d->awaitsReports;
}

void MessageService::shutDown()
{
    if (std::exchange(d->hasEnded, true) || !d->isReady)
        return;
    d->again.stop();
    d->queue.pause();
    const auto isOver = std::make_shared<QSemaphore>();
    // Freed with the job: also when the worker runs none any more.
    std::shared_ptr<void> job(nullptr, [isOver](void *) { isOver->release(); });
    const auto isStored = d->monitor->worker().submit(
        [job = std::move(job)](SerialThread &link) { smsjobs::storeNewMessages(link); });
    if (!isOver->tryAcquire(1, int(longestFarewell.count())) || isStored.isCanceled())
        qCWarning(lcSms).noquote() << logTime() + u"the card was not told to keep new messages"_s;
    // What the jobs ahead of it did, a part that went out above all: no event loop may come to bring it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::FutureCallOut);
}

void MessageService::takeImmediate(const QString &text)
{
    d->reception.takeImmediate(text.toLatin1());
}

void MessageService::takeBroadcasts(const QString &text)
{
    d->reception.takeBroadcasts(text.toLatin1());
}

bool MessageService::send(const OutgoingSms &sms)
{
    if (d->queue.add(sms))
        return true;
    Q_EMIT sigNotice(tr("The text is too long for one message."));
    return false;
}

void MessageService::cancelSending()
{
    d->queue.cancel();
}

void MessageService::retry(const QStringList &ids)
{
    d->queue.retry(ids);
}

bool MessageService::waitsForOtherSim(const Message &message) const
{
    return d->queue.waitsForOtherSim(message);
}

const SendProgress &MessageService::sending() const
{
    return d->queue.progress();
}

void MessageService::refreshPlace(MessagePlace place)
{
    if (d->isReady && !d->isPrepared) {
        d->tries = 0;
        d->prepare();
    }
    d->places.refresh(place);
}

const PlaceState &MessageService::place(MessagePlace place) const
{
    return d->places.state(place);
}

bool MessageService::hasCardStore() const
{
    return d->places.hasCardStore();
}

void MessageService::copyTo(const QStringList &ids, MessagePlace place)
{
    d->places.copy(ids, place);
}

void MessageService::moveTo(const QStringList &ids, MessagePlace place)
{
    d->places.move(ids, place);
}

int MessageService::removeMessages(const QStringList &ids)
{
    QStringList gone;
    std::vector<Message> onCard;
    for (const Message &message : d->store->messages(ids)) {
        if (message.place != MessagePlace::Computer)
            onCard.push_back(message);
        else if (message.box != MessageBox::Deleted)
            gone.append(message.id);
    }
    if (!gone.isEmpty())
        d->store->remove(gone);
    const CardPlaces::Deleted fromCard = d->places.moveToDeleted(onCard);
    const int count = int(gone.size()) + fromCard.count;
    gone += fromCard.copies;
    if (!gone.isEmpty())
        d->removals.push_back(gone);
    if (d->removals.size() > mostUndone)
        d->removals.pop_front();
    return count;
}

bool MessageService::undoRemoval()
{
    while (!d->removals.empty()) {
        QStringList gone = d->removals.back();
        d->removals.pop_back();
        gone.removeIf([this](const QString &id) { // brought back or purged since
            const auto message = d->store->find(id);
            return !message || message->box != MessageBox::Deleted;
        });
        if (gone.isEmpty())
            continue;
        d->store->restore(gone);
        return true;
    }
    return false;
}

void MessageService::setRead(const QStringList &ids, bool isRead)
{
    d->marks.mark(ids, isRead);
}

QList<int> MessageService::broadcastChannels() const
{
    QList<int> channels;
    for (const QString &text : cmcfg.getValue(u"sms"_s, u"broadcastChannels"_s).split(u',')) {
        bool isNumber = false;
        const int channel = text.trimmed().toInt(&isNumber);
        if (isNumber && channel >= 0 && channel <= 0xFFFF)
            channels.append(channel);
    }
    return channels;
}

void MessageService::setBroadcastChannels(const QList<int> &channels)
{
    cmcfg.setValue(u"sms"_s, u"broadcastChannels"_s, QString::fromLatin1(channelText(channels)));
    if (d->isReady)
        d->sendChannels();
}

QString MessageService::serviceCentre() const
{
    return d->serviceCentre;
}

void MessageService::setServiceCentre(const QString &number)
{
    const auto job = d->monitor->worker().submit([number](SerialThread &link) -> std::optional<QString> {
        return link.set_sms_number(number) == 1 ? std::nullopt : std::optional(smsjobs::whyFailed(link));
    });
    whenDone(job, this, [this, number](const std::optional<std::optional<QString>> &fault) {
        if (!fault || *fault) {
            Q_EMIT sigNotice(tr("The service centre's number was not stored: %1")
                                 .arg(fault ? **fault : tr("The card is gone.")));
            return;
        }
        d->setServiceCentre(number);
        Q_EMIT sigNotice(tr("The service centre's number was stored."));
    });
}

} // namespace corva
