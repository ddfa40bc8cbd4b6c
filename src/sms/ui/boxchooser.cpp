// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/boxchooser.h"

#include "shell/commoncfg.h"
#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/messagetexts.h"

#include <QLocale>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

MessageView boxView(MessageBox box)
{
    return {.filter = {.box = box}};
}

MessageView placeView(MessagePlace place)
{
    return {.filter = {.kind = MessageFilter::Kind::Place, .place = place}};
}

/// What waits in the outbox; what a phone has sent and left on its SIM is there, too.
int waitingOf(const MessageStore &store)
{
    int waiting = 0;
    store.visit(store.ids(MessageBox::Outbox),
                [&](const Message &message) { waiting += message.state() != DeliveryState::None; });
    return waiting;
}

int countOf(const MessageStore &store, MessageBox box)
{
    if (box == MessageBox::Outbox)
        return waitingOf(store);
    qsizetype count = 0;
    for (const MessagePlace place : {MessagePlace::Computer, MessagePlace::Sim, MessagePlace::Card})
        count += box == MessageBox::Inbox ? store.unreadCount(box, place) : store.ids(box, place).size();
    return int(count);
}

/// Boxes whose title says how much is in them: what waits for the person.
bool isCounted(MessageBox box)
{
    return box == MessageBox::Inbox || box == MessageBox::Outbox || box == MessageBox::Drafts;
}

} // namespace

BoxChooser::BoxChooser(MessageService *service, QWidget *parent) : QComboBox(parent), m_service(service)
{
    setObjectName(u"boxes"_s);
    setAccessibleName(tr("Boxes"));
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(12);
    m_retelling.setSingleShot(true);
    m_retelling.setInterval(0);
    connect(&m_retelling, &QTimer::timeout, this, &BoxChooser::retell);
    const MessageStore *store = service->store();
    for (const auto signal : {&MessageStore::sigAdded, &MessageStore::sigChanged, &MessageStore::sigRemoved})
        connect(store, signal, &m_retelling, qOverload<>(&QTimer::start));
    connect(store, &MessageStore::sigLoaded, this, &BoxChooser::offer);
    connect(service, &MessageService::sigPlaceChanged, this, &BoxChooser::offer);
    connect(this, &QComboBox::activated, this, [this] { Q_EMIT sigChosen(view()); });
    offer();
    choose(boxView(MessageBox::Inbox));
}

std::vector<MessageView> BoxChooser::offered() const
{
    std::vector<MessageView> views{{.isByPerson = true}};
    for (const MessageBox box :
         {MessageBox::Inbox, MessageBox::Outbox, MessageBox::Sent, MessageBox::Drafts, MessageBox::Deleted})
        views.push_back(boxView(box));
    if (cmcfg.getNumber(u"sms"_s, u"deliveryReportBoxShow"_s) == 1)
        views.push_back(boxView(MessageBox::Reports));
    if (cmcfg.getNumber(u"function"_s, u"cell_board_enabled"_s) == 1)
        views.push_back({.filter = {.kind = MessageFilter::Kind::Broadcasts}});
    views.push_back(placeView(MessagePlace::Sim));
    if (m_service->hasCardStore())
        views.push_back(placeView(MessagePlace::Card));
    return views;
}

void BoxChooser::offer()
{
    const MessageView current = m_views.empty() ? MessageView() : view();
    if (std::vector<MessageView> views = offered(); views != m_views) {
        m_views = std::move(views);
        clear();
        for (const MessageView &each : m_views)
            addItem(titleOf(each));
        choose(current);
    } else {
        retell();
    }
}

MessageView BoxChooser::view() const
{
    return m_views.at(std::size_t(qMax(0, currentIndex())));
}

void BoxChooser::choose(const MessageView &view)
{
    const auto found = std::find(m_views.begin(), m_views.end(), view);
    setCurrentIndex(found == m_views.end() ? 1 : int(found - m_views.begin()));
}

QString BoxChooser::titleOf(const MessageView &view) const
{
    if (view.isByPerson)
        return tr("Conversations");
    const MessageFilter &filter = view.filter;
    if (filter.kind == MessageFilter::Kind::Broadcasts)
        return tr("Broadcasts");
    if (filter.kind == MessageFilter::Kind::Place) {
        const auto &capacity = m_service->place(filter.place).capacity;
        const QString title = placeTitle(filter.place);
        //: What is used of the places of a SIM card: "SIM card, 10 of 20"
        return capacity ? tr("%1, %2 of %3").arg(title).arg(capacity->used).arg(capacity->total) : title;
    }
    const int count = isCounted(filter.box) ? countOf(*m_service->store(), filter.box) : 0;
    const QString title = boxTitle(filter.box);
    return count > 0 ? tr("%1 (%2)").arg(title, QLocale().toString(count)) : title;
}

void BoxChooser::retell()
{
    for (std::size_t i = 0; i < m_views.size(); ++i)
        if (const QString title = titleOf(m_views[i]); title != itemText(int(i)))
            setItemText(int(i), title);
}

} // namespace corva
