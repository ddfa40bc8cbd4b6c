// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QFuture>
#include <QObject>
#include <functional>
#include <memory>
#include <optional>

namespace corva
{

/// The messages of the computer ("sms.xml"), and what was last listed of the SIM and the card
/// ("cardsms.xml"), in one folder.
///
/// Lives on the GUI thread and answers from memory; files are read and written on a thread of its own, each
/// change rewriting its file whole, changes that come while it is written together. The futures are true once
/// all that was changed up to then is flushed to disk, and false when it could not be written: it is then
/// still in memory, and the next change writes it too. They are resolved on that thread, without help of the
/// event loop; continue in a context (`then(this, ...)`).
class MessageStore final : public QObject
{
    Q_OBJECT

public:
    /// Of messages that are there already, but were deleted.
    enum class DeletedOnes { StayDeleted, ComeBack };

    /// What became of messages that were added.
    struct Added {
        QFuture<bool> stored;
        QStringList ids;  ///< where each of them is now, in their order; empty before `sigLoaded`
        QStringList made; ///< those of `ids` that are new
    };

    /// What became of a report. Without a match it is kept as an entry all the same.
    struct Reported {
        QFuture<bool> stored;
        QString id;        ///< of the message, empty when none fits
        int part = -1;     ///< index into its `parts`
        QString reportId;  ///< of the entry in `Reports`
        bool isNew = true; ///< false when the very same report was here before
    };

    struct Imported {
        QFuture<bool> stored;
        int added = 0;
        int present = 0; ///< left out, because they were here already
    };

    /// `matchingLength`: how many digits at their ends two numbers must share to be one person's.
    MessageStore(const QString &folder, int matchingLength, QObject *parent = nullptr);
    /// With the length of the start-up record.
    explicit MessageStore(const QString &folder, QObject *parent = nullptr);
    /// Writes what is not written yet, and waits for it.
    ~MessageStore() override;

    /// Begins to read both files; `sigLoaded` follows. What is added before that waits for it.
    void load();
    bool isLoaded() const;
    /// True once all that was changed is on disk; what could not be written is tried again.
    QFuture<bool> written();
    /// Waits until all that was changed is written, or failed to be. False when it failed.
    bool flush();

    /// Files messages. A part of a long message joins the parts that are here; what is here already is
    /// recognised by its PDU and not added again. Ids are given to those without one.
    QFuture<bool> add(std::vector<Message> messages) { return insert(std::move(messages)).stored; }
    Added insert(std::vector<Message> messages, DeletedOnes deleted = DeletedOnes::StayDeleted);
    /// The same, in the place of others, which go for good: both are on disk, or neither.
    Added replace(const QStringList &old, std::vector<Message> messages);

    /// Changes one message; its id and place stay. Resolved with false when there is none.
    QFuture<bool> change(const QString &id, const std::function<void(Message &)> &change);
    QFuture<bool> setRead(const QStringList &ids, bool isRead);

    /// To `Deleted`. Only the computer's; those in `Deleted` already are left alone. What waited to be sent
    /// does not any more.
    QFuture<bool> remove(const QStringList &ids);
    /// Back to where they were deleted from.
    QFuture<bool> restore(const QStringList &ids);
    /// Out of the store, for good.
    QFuture<bool> purge(const QStringList &ids);

    /// Files the report, and marks the part that it is about. Before `sigLoaded` nothing is known of a match.
    Reported applyReport(const StatusReport &report);

    /// Replaces what is known of the SIM or the card by a new listing. What was there keeps its id. `owner`:
    /// whose SIM, or which card it is, as digits; empty when not known.
    QFuture<bool> replaceMirror(MessagePlace place, std::vector<Message> messages, const QString &owner = {});
    /// When it is known only behind the listing.
    QFuture<bool> setMirrorOwner(MessagePlace place, const QString &owner);
    /// That of the last listing, also of an earlier run.
    QString mirrorOwner(MessagePlace place) const;
    /// Whether a received part of it is on the computer or was in the last listing.
    bool knows(const Message &message) const;

    /// Adds what was exported, here or elsewhere. Never doubles what is here. None before `sigLoaded`.
    Imported import(std::vector<Message> messages);

    std::optional<Message> find(const QString &id) const;
    /// The newest first.
    QStringList ids(MessageBox box, MessagePlace place = MessagePlace::Computer) const;
    /// All of a place, `Deleted` and `Reports` included. The newest first.
    QStringList ids(MessagePlace place) const;
    /// Of all places, each that is wanted. The newest first, of those of one moment what arrived last.
    QStringList ids(const std::function<bool(const Message &)> &isWanted) const;
    /// Whether the first one stands ahead of the other in these lists. False for what is not there.
    bool isAhead(const QString &id, const QString &other) const;
    int unreadCount(MessageBox box, MessagePlace place = MessagePlace::Computer) const;
    std::vector<Message> messages(const QStringList &ids) const;
    /// The same, each where it is: many are not copied for a look.
    void visit(const QStringList &ids, const std::function<void(const Message &)> &look) const;

    /// Messages of all boxes and places in which each word occurs, in text, number or name, whatever its case
    /// and accents. The newest first; all of them for an empty text.
    QStringList search(const QString &text) const;
    /// Names for numbers, so that they are found too and follow `namesChanged`.
    void setNameLookup(std::function<QString(const QString &)> lookup);
    void namesChanged();

    /// By person, the one with the newest message first. Without `Deleted`, `Reports` and broadcasts; what
    /// is kept on the computer and on the card shows once.
    std::vector<Conversation> conversations() const;
    /// What two numbers of one person have in common.
    QString personKey(const QString &number) const;

Q_SIGNALS:
    /// Both files were read, as far as they can be.
    void sigLoaded();
    void sigAdded(const QStringList &ids);
    void sigChanged(const QStringList &ids);
    void sigRemoved(const QStringList &ids);
    /// A sentence: a file could not be read in full, or not be written.
    void sigError(const QString &text);
    /// A file could be written, the first time after it could not.
    void sigWrittenAgain();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
