// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QAbstractListModel>

namespace corva
{

class MessageService;

/// The messages of a conversation, the oldest first, as far back as they were asked for.
class ThreadModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        IdRole = Qt::UserRole,
        OwnRole,   ///< bool: written here
        AboutRole, ///< when, and how it stands
        FailedRole ///< bool
    };

    ThreadModel(MessageService *service, QObject *parent);

    /// The messages of `ids`, the oldest first. `isOther`: of another person than before.
    void setMessages(const QStringList &ids, bool isOther);
    QString idAt(int row) const { return m_shown.value(row); }
    /// The texts of these, one behind the other.
    QString textOf(const QModelIndexList &rows) const;
    bool hasEarlier() const { return m_shown.size() < m_ids.size(); }
    void showEarlier();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void takeChanged(const QStringList &ids);
    void append(const QStringList &ids);
    void reset(qsizetype count);

    MessageService *m_service;
    QStringList m_ids;
    QStringList m_shown; ///< the end of m_ids
};

} // namespace corva
