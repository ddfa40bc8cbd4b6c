// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagetable.h"

#include <QFuture>
#include <QPromise>
#include <QThreadPool>
#include <functional>
#include <mutex>
#include <optional>

namespace corva
{

/// One file of messages, read and written whole on a thread of its own.
class StoreFile
{
public:
    /// Called on the pool's thread.
    struct Listener {
        std::function<void(const QString &sentence)> sayError;
        std::function<void()> notWritten; ///< each time that the file could not be written
    };

    /// `pool` has one thread.
    StoreFile(const QString &path, QThreadPool &pool, Listener listener);

    /// On the pool's thread, before anything else. A file that cannot be read in full is kept beside, as a
    /// copy with the time in its name, so that no moment is without it.
    std::vector<Message> read();
    /// Whether what was read has to be written again, the file being damaged.
    bool isDamaged() const { return m_isDamaged; }

    /// On the pool's thread. Makes the first write as fast as the others.
    static void prepare(const QList<RecordPtr> &records);

    /// Any thread. What is asked for while the file is being written is written together behind that. True
    /// once it is flushed to disk.
    QFuture<bool> write(const QList<RecordPtr> &records);
    /// True as soon as all that was asked for is on disk; tries again when that failed.
    QFuture<bool> settle(const QList<RecordPtr> &records);

private:
    struct Order {
        QList<RecordPtr> records;
        std::vector<QPromise<bool>> waiting;
    };

    QFuture<bool> enqueue(const QList<RecordPtr> &records);
    std::optional<Order> next();
    void run();
    bool carryOut(const QList<RecordPtr> &records);
    bool keepDamaged(QString *error);

    const QString m_path;
    QThreadPool &m_pool;
    const Listener m_listener;

    // Of the pool's thread, but for the time before it is used.
    bool m_isDamaged = false;
    bool m_isKept = true;
    QByteArray m_damagedBytes; ///< null when the file could not be read at all
    QString m_lastError;

    std::mutex m_mutex; ///< guards what follows
    std::optional<Order> m_order;
    bool m_isRunning = false;
    bool m_isWritten = true;
};

} // namespace corva
