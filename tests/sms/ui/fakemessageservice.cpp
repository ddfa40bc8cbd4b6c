// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakemessageservice.h"

#include "sms/messagestore.h"

#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using namespace corva;

namespace corva
{

class MessageService::Private
{
public:
    MessageStore *store = nullptr;
    NameLookup lookup = {};
    SendProgress sending = {};
    std::array<PlaceState, 3> places = {};
    QList<int> channels = {50};
    QString centre = u"+4917"_s;
    QList<QStringList> removals = {};
};

} // namespace corva

namespace
{

/// What a test sees and moves of the service that lives now.
struct Strings {
    std::function<void(const SendProgress &)> putProgress;
    std::function<void(MessagePlace, const PlaceState &)> putPlace;
    QStringList calls;
    bool isTaking = true;
};

Strings &strings()
{
    static Strings living;
    return living;
}

void called(const QString &what, const QStringList &ids, MessagePlace place)
{
    strings().calls += u"%1 %2 %3"_s.arg(what, ids.join(u','), QString::number(int(place)));
}

} // namespace

namespace corva
{

MessageService::MessageService(CardMonitor *, MessageStore *store, QObject *parent)
    : QObject(parent), d(new Private{.store = store})
{
    strings() = {};
    strings().putProgress = [this](const SendProgress &progress) {
        d->sending = progress;
        Q_EMIT sigSending(progress);
    };
    strings().putPlace = [this](MessagePlace place, const PlaceState &state) {
        d->places[std::size_t(place)] = state;
        Q_EMIT sigPlaceChanged(place);
    };
}

MessageService::~MessageService() = default;

MessageStore *MessageService::store() const
{
    return d->store;
}

QString MessageService::nameFor(const QString &number) const
{
    return d->lookup ? d->lookup(number) : number;
}

void MessageService::setNameLookup(NameLookup lookup)
{
    d->lookup = std::move(lookup);
}

void MessageService::readCard() {}

void MessageService::shutDown() {}

bool MessageService::awaitsReports() const
{
    return false;
}

void MessageService::takeMessages(const QString &text)
{
    strings().calls += text;
}

void MessageService::takeDeliveryReports(const QString &text)
{
    strings().calls += text;
}

void MessageService::takeImmediate(const QString &text)
{
    strings().calls += text;
}

void MessageService::takeBroadcasts(const QString &text)
{
    strings().calls += text;
}

bool MessageService::send(const OutgoingSms &sms)
{
    if (!strings().isTaking)
        return false;
    strings().calls +=
        u"send %1 %2 | %3"_s.arg(sms.recipients.join(u','), sms.asksReport ? u"report"_s : u"-"_s, sms.text);
    if (!sms.draftId.isEmpty())
        d->store->purge({sms.draftId});
    return true;
}

void MessageService::cancelSending()
{
    strings().calls += u"cancel"_s;
}

bool MessageService::waitsForOtherSim(const Message &) const
{
    return false;
}

void MessageService::retry(const QStringList &ids)
{
    strings().calls += u"retry "_s + ids.join(u',');
}

const SendProgress &MessageService::sending() const
{
    return d->sending;
}

void MessageService::refreshPlace(MessagePlace place)
{
    called(u"list"_s, {}, place);
}

const PlaceState &MessageService::place(MessagePlace place) const
{
    return d->places[std::size_t(place)];
}

bool MessageService::hasCardStore() const
{
    return true;
}

void MessageService::copyTo(const QStringList &ids, MessagePlace place)
{
    called(u"copy"_s, ids, place);
}

void MessageService::moveTo(const QStringList &ids, MessagePlace place)
{
    called(u"move"_s, ids, place);
}

int MessageService::removeMessages(const QStringList &ids)
{
    d->store->remove(ids);
    d->removals += ids;
    return int(ids.size());
}

bool MessageService::undoRemoval()
{
    if (d->removals.isEmpty())
        return false;
    d->store->restore(d->removals.takeLast());
    return true;
}

void MessageService::setRead(const QStringList &ids, bool isRead)
{
    d->store->setRead(ids, isRead);
}

QList<int> MessageService::broadcastChannels() const
{
    return d->channels;
}

void MessageService::setBroadcastChannels(const QList<int> &channels)
{
    d->channels = channels;
}

QString MessageService::serviceCentre() const
{
    return d->centre;
}

void MessageService::setServiceCentre(const QString &number)
{
    d->centre = number;
}

} // namespace corva

namespace fakesms
{

QStringList takeCalls()
{
    return std::exchange(strings().calls, {});
}

void put(const SendProgress &progress)
{
    strings().putProgress(progress);
}

void put(MessagePlace place, const PlaceState &state)
{
    strings().putPlace(place, state);
}

void setTaking(bool isTaking)
{
    strings().isTaking = isTaking;
}

} // namespace fakesms
