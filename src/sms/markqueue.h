// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTimer>
#include <deque>

namespace corva
{

class MessageStore;

/// Marks messages as read and unread, some at a time: thousands at once would hold the window. A few are
/// marked on the spot.
class MarkQueue
{
public:
    explicit MarkQueue(MessageStore *store);
    /// Marks what waits.
    ~MarkQueue();
    MarkQueue(const MarkQueue &) = delete;
    MarkQueue &operator=(const MarkQueue &) = delete;

    /// In the order in which it is asked for.
    void mark(const QStringList &ids, bool isRead);

private:
    struct Entry {
        QStringList ids;
        bool isRead;
    };

    void step();

    MessageStore *m_store;
    std::deque<Entry> m_waiting;
    QTimer m_next;
};

} // namespace corva
