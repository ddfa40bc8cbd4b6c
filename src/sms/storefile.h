// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagetable.h"
#include "sms/messagexml.h"

#include <QFuture>
#include <QPromise>
#include <QThreadPool>
#include <atomic>
#include <functional>
#include <mutex>
#include <optional>

namespace corva
{

/// What waits until one or two files are written; resolved by the last of them, on whatever thread.
class StoreTicket
{
public:
    StoreTicket() { m_promise.start(); }
    QFuture<bool> future() const { return m_promise.future(); }

    /// One more has to settle. There is one from the beginning.
    void hold() { ++m_open; }
    void settle(bool isWritten);

private:
    QPromise<bool> m_promise;
    std::atomic<int> m_open = 1;
    std::atomic<bool> m_isWritten = true;
};
using TicketPtr = std::shared_ptr<StoreTicket>;

/// One file of messages, read and written whole on a thread of its own.
class StoreFile
{
public:
    /// Called on the pool's thread.
    struct Listener {
        std::function<void(const QString &sentence)> sayError;
        std::function<void()> notWritten;   ///< each time that the file could not be written
        std::function<void()> writtenAgain; ///< the first time after that
    };

    /// `pool` has one thread.
    StoreFile(const QString &path, QThreadPool &pool, Listener listener);

    /// On the pool's thread, before anything else. A file that cannot be read in full is kept beside, as a
    /// copy with the time in its name, so that no moment is without it.
    std::vector<Message> read();
    /// Whether what was read has to be written again, the file being damaged.
    bool isDamaged() const { return m_isDamaged; }

    /// Any thread. What stands beside the messages, from the next write on.
    void setOwners(const PlaceOwners &owners);
    PlaceOwners owners() const;

    /// On the pool's thread. Makes the first write as fast as the others.
    static void prepare(const std::vector<RecordPtr> &records);

    /// Any thread. What is asked for while the file is being written is written together behind that. The
    /// ticket is held until then, and settled once it is flushed to disk or failed to be.
    void write(const QList<RecordPtr> &records, const TicketPtr &ticket);
    /// The same if not all that was asked for is on disk yet; tries again when that failed.
    void settle(const QList<RecordPtr> &records, const TicketPtr &ticket);

private:
    struct Order {
        PlaceOwners owners;
        std::vector<RecordPtr> records; ///< not the table's own list: that one changes meanwhile
        std::vector<TicketPtr> waiting;
    };

    void enqueue(const QList<RecordPtr> &records, const TicketPtr &ticket);
    std::optional<Order> next();
    void run();
    bool carryOut(const Order &order);
    bool keepDamaged(QString *error);

    const QString m_path;
    QThreadPool &m_pool;
    const Listener m_listener;

    // Of the pool's thread, but for the time before it is used.
    bool m_isDamaged = false;
    bool m_isKept = true;
    QByteArray m_damagedBytes; ///< null when the file could not be read at all
    QString m_lastError;
    bool m_hasFailed = false; ///< the last time

    mutable std::mutex m_mutex; ///< guards what follows
    PlaceOwners m_owners;
    std::optional<Order> m_order;
    bool m_isRunning = false;
    bool m_isWritten = true;
};

} // namespace corva
