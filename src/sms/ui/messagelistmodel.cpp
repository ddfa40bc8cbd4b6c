// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagelistmodel.h"

#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/messagerowdelegate.h"
#include "sms/ui/messagetexts.h"
#include "widgets/textlabel.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qsizetype mostRowByRow = 500; ///< beyond that a new list is quicker

struct IconRow {
    DeliveryState state;
    QLatin1StringView icon;
};

constexpr IconRow stateIcons[] = {
    {DeliveryState::Queued, "pending"_L1},   {DeliveryState::Sending, "running"_L1},
    {DeliveryState::Sent, "sent"_L1},        {DeliveryState::Delivered, "delivered"_L1},
    {DeliveryState::StillTrying, "sent"_L1}, {DeliveryState::Failed, "problem"_L1},
    {DeliveryState::Unsure, "problem"_L1},
};

/// How it stands with the message, else where it lies.
QString iconOf(const Message &message)
{
    if (!message.error.isEmpty())
        return u"problem"_s;
    const auto *row =
        std::find_if(std::begin(stateIcons), std::end(stateIcons),
                     [state = message.state()](const IconRow &each) { return each.state == state; });
    if (row != std::end(stateIcons))
        return row->icon;
    switch (message.place) {
    case MessagePlace::Sim: return u"sim"_s;
    case MessagePlace::Card: return u"card"_s;
    case MessagePlace::Computer: break;
    }
    return {};
}

bool isUnread(const Message &message)
{
    return message.isReceived() && !message.isRead && message.box != MessageBox::Deleted;
}

QString spoken(const Message &message, const QString &people)
{
    QStringList words{people, fullWhen(message.time), previewOf(message)};
    if (isUnread(message))
        words.prepend(MessageListModel::tr("Unread"));
    words += {partsNote(message), stateTitle(message.state())};
    words.removeAll(QString());
    return words.join(u", "_s);
}

} // namespace

MessageListModel::MessageListModel(MessageService *service, QObject *parent)
    : QAbstractListModel(parent), m_service(service), m_store(service->store())
{
    connect(m_store, &MessageStore::sigLoaded, this, &MessageListModel::load);
    connect(m_store, &MessageStore::sigAdded, this, &MessageListModel::takeAdded);
    connect(m_store, &MessageStore::sigChanged, this, &MessageListModel::takeChanged);
    connect(m_store, &MessageStore::sigRemoved, this, &MessageListModel::takeRemoved);
    load();
}

void MessageListModel::show(const MessageFilter &filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;
    load();
}

int MessageListModel::rowOf(const QString &id) const
{
    if (m_rows.isEmpty() && !m_ids.isEmpty()) {
        m_rows.reserve(m_ids.size());
        for (int row = 0; row < m_ids.size(); ++row)
            m_rows.insert(m_ids.at(row), row);
    }
    return m_rows.value(id, -1);
}

void MessageListModel::retell()
{
    if (!m_ids.isEmpty())
        Q_EMIT dataChanged(index(0), index(int(m_ids.size()) - 1));
}

int MessageListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_ids.size());
}

QVariant MessageListModel::data(const QModelIndex &index, int role) const
{
    const auto message = m_store->find(idAt(index.row()));
    if (!message)
        return {};
    const auto people = [&] {
        return peopleOf(*message, [this](const QString &number) { return m_service->nameFor(number); });
    };
    switch (role) {
    case Qt::DisplayRole: return people();
    case Qt::ToolTipRole: return plainToolTip(people() + u'\n' + fullWhen(message->time));
    case Qt::AccessibleTextRole: return spoken(*message, people());
    case IdRole: return message->id;
    case PreviewRole: return previewOf(*message);
    case WhenRole: return shortWhen(message->time, QDateTime::currentDateTime());
    case UnreadRole: return isUnread(*message);
    case IconRole: return iconOf(*message);
    case NoteRole: return m_filter.words.isEmpty() ? partsNote(*message) : boxTitle(message->box);
    default: return {};
    }
}

QStringList MessageListModel::wanted() const
{
    if (!m_filter.words.isEmpty())
        return m_store->search(m_filter.words);
    return m_store->ids([this](const Message &message) { return isWanted(message); });
}

bool MessageListModel::isWanted(const Message &message) const
{
    switch (m_filter.kind) {
    case MessageFilter::Kind::Place: return message.place == m_filter.place;
    case MessageFilter::Kind::Broadcasts: return message.isBroadcast && message.box == MessageBox::Inbox;
    case MessageFilter::Kind::Box: break;
    }
    return message.box == m_filter.box && (!message.isBroadcast || message.box != MessageBox::Inbox);
}

int MessageListModel::placeFor(const QString &id) const
{
    const auto isAhead = [this](const QString &one, const QString &other) {
        return m_store->isAhead(one, other);
    };
    return int(std::lower_bound(m_ids.begin(), m_ids.end(), id, isAhead) - m_ids.begin());
}

void MessageListModel::load()
{
    beginResetModel();
    m_ids = wanted();
    m_rows.clear();
    endResetModel();
}

bool MessageListModel::isInOrder(int row, const QString &id) const
{
    return !m_store->isAhead(id, idAt(row - 1)) && !m_store->isAhead(idAt(row + 1), id);
}

void MessageListModel::insert(const QStringList &ids)
{
    for (const QString &id : ids) {
        const int row = placeFor(id);
        beginInsertRows({}, row, row);
        m_ids.insert(row, id);
        m_rows.clear();
        endInsertRows();
    }
}

void MessageListModel::remove(std::vector<int> rows)
{
    std::sort(rows.rbegin(), rows.rend()); // from the end, so that the others stay where they are
    for (const int row : rows) {
        beginRemoveRows({}, row, row);
        m_ids.removeAt(row);
        m_rows.clear();
        endRemoveRows();
    }
}

void MessageListModel::takeAdded(const QStringList &ids)
{
    if (m_filter.words.isEmpty())
        takeChanged(ids);
    else
        load();
}

void MessageListModel::takeChanged(const QStringList &ids)
{
    if (ids.size() > mostRowByRow) {
        load();
        return;
    }
    const bool isSearch = !m_filter.words.isEmpty();
    std::vector<int> leaving;
    QStringList coming;
    for (const QString &id : ids) {
        const auto message = m_store->find(id);
        const int row = rowOf(id);
        const bool isThere = row >= 0;
        const bool belongs = message && (isSearch ? isThere : isWanted(*message));
        const bool stays = isThere && belongs && isInOrder(row, id);
        if (stays)
            Q_EMIT dataChanged(index(row), index(row));
        if (isThere && !stays)
            leaving.push_back(row);
        if (belongs && !stays)
            coming += id;
    }
    remove(std::move(leaving));
    insert(coming);
}

void MessageListModel::takeRemoved(const QStringList &ids)
{
    if (ids.size() > mostRowByRow) {
        load();
        return;
    }
    std::vector<int> rows;
    for (const QString &id : ids)
        if (const int row = rowOf(id); row >= 0)
            rows.push_back(row);
    remove(std::move(rows));
}

} // namespace corva
