// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagestore.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

namespace corva
{

/// Keeps what is being written in the drafts: soon after each change, and at once when it is to be left.
class DraftKeeper final : public QObject
{
    Q_OBJECT

public:
    struct Content {
        QStringList recipients; ///< as they were written, finished or not
        QString text;
        bool asksReport = false;
        bool isEmpty() const { return recipients.isEmpty() && text.isEmpty(); }
        bool operator==(const Content &) const = default;
    };

    DraftKeeper(MessageStore *store, QObject *parent);
    ~DraftKeeper() override;

    /// Begins with a draft that is there, or with none: then nothing is stored until it is changed.
    void begin(const QString &id, const Content &content);
    void setContent(const Content &content);
    /// Stores what is not stored yet, or has the store do so once it is read. An empty draft goes away.
    void flush();
    /// Forgets the draft without touching what is stored.
    void release();
    /// Gives the draft up, to be deleted by whoever asked. Its id, or none when there is nothing left to do.
    QString discard();
    /// Empty while nothing is stored, or given to be.
    const QString &id() const { return m_id; }

private:
    void save();
    void handOver(MessageBox box);
    void removeEmpty();

    QPointer<MessageStore> m_store; ///< may be gone before the window
    QTimer m_soon;                  ///< after a pause
    QTimer m_latest;                ///< while nobody pauses
    QString m_id;
    Content m_content;
    Content m_stored;
};

} // namespace corva
