// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/threadmodel.h"

#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/messagetexts.h"

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr qsizetype atOnce = 200; ///< each is laid out, so not all of a long life together
}

ThreadModel::ThreadModel(MessageService *service, QObject *parent)
    : QAbstractListModel(parent), m_service(service)
{
    connect(service->store(), &MessageStore::sigChanged, this, &ThreadModel::takeChanged);
}

void ThreadModel::setMessages(const QStringList &ids, bool isOther)
{
    const bool isMore =
        !isOther && !m_ids.isEmpty() && ids.size() > m_ids.size() && ids.first(m_ids.size()) == m_ids;
    if (isMore) {
        append(ids.sliced(m_ids.size()));
    } else if (isOther || ids != m_ids) {
        const qsizetype count = isOther ? atOnce : qMax(atOnce, m_shown.size());
        m_ids = ids;
        reset(count);
    }
}

void ThreadModel::append(const QStringList &ids)
{
    beginInsertRows({}, rowCount(), rowCount() + int(ids.size()) - 1);
    m_ids += ids;
    m_shown += ids;
    endInsertRows();
}

void ThreadModel::reset(qsizetype count)
{
    beginResetModel();
    m_shown = m_ids.last(qMin(count, m_ids.size()));
    endResetModel();
}

void ThreadModel::showEarlier()
{
    const qsizetype more = qMin(atOnce, m_ids.size() - m_shown.size());
    if (more <= 0)
        return;
    beginInsertRows({}, 0, int(more) - 1);
    m_shown = m_ids.last(m_shown.size() + more);
    endInsertRows();
}

void ThreadModel::takeChanged(const QStringList &ids)
{
    for (const QString &id : ids)
        if (const auto row = int(m_shown.indexOf(id)); row >= 0)
            Q_EMIT dataChanged(index(row), index(row));
}

QString ThreadModel::textOf(const QModelIndexList &rows) const
{
    QStringList texts;
    for (const QModelIndex &row : rows)
        texts += data(row, Qt::DisplayRole).toString();
    return texts.join(u'\n');
}

int ThreadModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

QVariant ThreadModel::data(const QModelIndex &index, int role) const
{
    const auto message = m_service->store()->find(idAt(index.row()));
    if (!message)
        return {};
    const auto text = [&] { return message->error.isEmpty() ? message->text() : previewOf(*message); };
    const auto about = [&] {
        const QDateTime now = QDateTime::currentDateTime();
        const bool isToday = message->time.toLocalTime().date() == now.date();
        const QString when = isToday ? shortWhen(message->time, now) : fullWhen(message->time);
        QStringList words{when, stateTitle(message->state()), partsNote(*message)};
        words.removeAll(QString());
        return words.join(tr("  ·  "));
    };
    switch (role) {
    case Qt::DisplayRole: return text();
    case Qt::AccessibleTextRole:
        return (message->isReceived() ? tr("Received: %1, %2") : tr("Written: %1, %2")).arg(text(), about());
    case Qt::ToolTipRole: return fullWhen(message->time);
    case IdRole: return message->id;
    case OwnRole: return !message->isReceived();
    case AboutRole: return about();
    case FailedRole: return message->state() == DeliveryState::Failed || !message->error.isEmpty();
    default: return {};
    }
}

} // namespace corva
