// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QAbstractListModel>
#include <QTimer>

namespace corva
{

class MessageService;

/// The persons who were written with, the one of the newest message first.
class ConversationModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    ConversationModel(MessageService *service, QObject *parent);

    /// Follows the store from now on, or leaves that until it is shown again.
    void setShown(bool isShown);
    /// Empty outside of the list.
    QString keyAt(int row) const;
    int rowOf(const QString &key) const;
    const Conversation *find(const QString &key) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void later();
    void load();

    MessageService *m_service;
    std::vector<Conversation> m_conversations;
    QTimer m_loading; ///< to the end of a burst of changes
    bool m_isShown = false;
    bool m_isOld = true;
};

} // namespace corva
