// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/conversations.h"
#include "sms/messagesearch.h"
#include "sms/messagestore.h"
#include "sms/messagetable.h"
#include "sms/reportmatching.h"
#include "sms/storefile.h"

#include <QThreadPool>
#include <mutex>

namespace corva
{

/// The store's tables and their files: what they are loaded from, what of them changes together, and when
/// that is written.
class MessageStore::Private
{
public:
    Private(MessageStore *store, const QString &folder, int length);

    StoreFile::Listener listener();
    void scheduleRetry();

    void read();
    void takeLoaded();
    /// `action` ends in `commit`.
    QFuture<bool> whenLoaded(std::function<void()> action);

    RecordPtr find(const QString &id) const;
    /// The next three note what is to be saved and said by `commit`.
    void put(Message message);
    void remove(const QStringList &ids);
    void setMirrorOwner(MessagePlace place, const QString &owner);
    /// Without changes: when all is on disk.
    QFuture<bool> commit();
    void settle(const TicketPtr &ticket);

    QString file(Message message, DeletedOnes deleted);
    void moveToDeleted(const QString &id);
    void restore(const QStringList &ids);
    std::optional<PartPlace> enterReport(const StatusReport &report, Message entry);

    MessageStore *const q;
    const int matchingLength;
    QThreadPool pool;
    StoreFile computerFile;
    StoreFile mirrorFile;

    enum class Phase { New, Loading, Loaded } phase = Phase::New;
    struct Tables {
        MessageTable computer;
        MessageTable mirror;
    };
    std::mutex loadedMutex;
    std::unique_ptr<Tables> loaded; ///< from the pool's thread to `takeLoaded`
    std::vector<std::function<void()>> waiting;
    TicketPtr givenOut; ///< for the next `commit`, whose future somebody has already

    MessageTable computer{matchingLength};
    MessageTable mirror{matchingLength}; ///< of the SIM and the card

    struct Changes {
        QStringList added;
        QStringList changed;
        QStringList removed;
        bool isComputer = false;
        bool isMirror = false;
    } changes;

    MessageSearch search;
    std::optional<std::vector<Conversation>> conversations;
    bool isRetrying = false;
};

} // namespace corva
