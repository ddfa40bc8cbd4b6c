// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/conversationmodel.h"

#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/messagerowdelegate.h"
#include "sms/ui/messagetexts.h"
#include "widgets/textlabel.h"

#include <QLocale>
#include <algorithm>

namespace corva
{

ConversationModel::ConversationModel(MessageService *service, QObject *parent)
    : QAbstractListModel(parent), m_service(service)
{
    m_loading.setSingleShot(true);
    m_loading.setInterval(0);
    connect(&m_loading, &QTimer::timeout, this, &ConversationModel::load);
    const MessageStore *store = service->store();
    for (const auto signal : {&MessageStore::sigAdded, &MessageStore::sigChanged, &MessageStore::sigRemoved})
        connect(store, signal, this, &ConversationModel::later);
    connect(store, &MessageStore::sigLoaded, this, &ConversationModel::later);
}

void ConversationModel::setShown(bool isShown)
{
    m_isShown = isShown;
    if (m_isShown && m_isOld)
        load();
}

void ConversationModel::later()
{
    m_isOld = true;
    if (m_isShown)
        m_loading.start();
}

void ConversationModel::load()
{
    m_isOld = false;
    std::vector<Conversation> conversations = m_service->store()->conversations();
    const auto isSamePerson = [](const Conversation &a, const Conversation &b) { return a.key == b.key; };
    const bool isInPlace = std::equal(conversations.begin(), conversations.end(), m_conversations.begin(),
                                      m_conversations.end(), isSamePerson);
    if (!isInPlace)
        beginResetModel();
    m_conversations = std::move(conversations);
    if (!isInPlace)
        endResetModel();
    else if (!m_conversations.empty())
        Q_EMIT dataChanged(index(0), index(int(m_conversations.size()) - 1));
}

QString ConversationModel::keyAt(int row) const
{
    return row >= 0 && row < rowCount() ? m_conversations[std::size_t(row)].key : QString();
}

int ConversationModel::rowOf(const QString &key) const
{
    const auto found = std::find_if(m_conversations.begin(), m_conversations.end(),
                                    [&](const Conversation &each) { return each.key == key; });
    return found == m_conversations.end() ? -1 : int(found - m_conversations.begin());
}

const Conversation *ConversationModel::find(const QString &key) const
{
    const int row = rowOf(key);
    return row < 0 ? nullptr : &m_conversations[std::size_t(row)];
}

int ConversationModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_conversations.size());
}

QVariant ConversationModel::data(const QModelIndex &index, int role) const
{
    const Conversation &conversation = m_conversations[std::size_t(index.row())];
    const auto newest = [&] {
        return m_service->store()->find(conversation.ids.value(conversation.ids.size() - 1));
    };
    const QString name = m_service->nameFor(conversation.numbers.value(0)).simplified();
    switch (role) {
    case Qt::DisplayRole: return name;
    case Qt::ToolTipRole: return plainToolTip(name + u'\n' + fullWhen(conversation.time));
    case Qt::AccessibleTextRole:
        return conversation.unread > 0 ? tr("%1, %n unread", nullptr, conversation.unread).arg(name) : name;
    case IdRole: return conversation.key;
    case PreviewRole: {
        const auto message = newest();
        return message ? previewOf(*message) : QString();
    }
    case WhenRole: return shortWhen(conversation.time, QDateTime::currentDateTime());
    case UnreadRole: return conversation.unread > 0;
    case NoteRole: return conversation.unread > 0 ? QLocale().toString(conversation.unread) : QString();
    default: return {};
    }
}

} // namespace corva
