// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QAbstractListModel>
#include <QHash>

namespace corva
{

class MessageService;
class MessageStore;

/// Which messages a list shows.
struct MessageFilter {
    enum class Kind {
        Box,       ///< all places; broadcasts have a list of their own
        Place,     ///< what lies on the SIM or the card
        Broadcasts ///< what cells sent to everybody
    };
    Kind kind = Kind::Box;
    MessageBox box = MessageBox::Inbox;
    MessagePlace place = MessagePlace::Computer;
    QString words = {}; ///< when not empty: what is found everywhere, and nothing else counts

    bool operator==(const MessageFilter &) const = default;
};

/// Messages, one a row, the newest first. Keeps their ids alone, and follows the store row by row.
class MessageListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    MessageListModel(MessageService *service, QObject *parent);

    void show(const MessageFilter &filter);
    const MessageFilter &filter() const { return m_filter; }
    /// Empty outside of the list.
    QString idAt(int row) const { return m_ids.value(row); }
    /// -1 when the list has no such message.
    int rowOf(const QString &id) const;
    /// Says times anew: it is another day.
    void retell();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QStringList wanted() const;
    bool isWanted(const Message &message) const;
    int placeFor(const QString &id) const;
    void load();
    bool isInOrder(int row, const QString &id) const;
    void insert(const QStringList &ids);
    void remove(std::vector<int> rows);
    void takeAdded(const QStringList &ids);
    void takeChanged(const QStringList &ids);
    void takeRemoved(const QStringList &ids);

    MessageService *m_service;
    MessageStore *m_store;
    MessageFilter m_filter;
    QStringList m_ids;
    mutable QHash<QString, int> m_rows; ///< empty until somebody asks
};

} // namespace corva
