// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/smscardjobs.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <array>
#include <set>
#include <utility>

namespace corva
{

class CardWorker;

/// The messages on the SIM and in the card's memory: listed into the store's mirror, copied, moved, taken
/// away. Nothing is taken from the card before its copy is on the computer's disk. Until it is taken, the
/// copy's parts keep the `storageIndex` that they had there, so that a taking that was cut short is finished
/// the next time, or when a disk that was full is written again.
///
/// A message is read on the card as soon as it was fetched, whether or not its copy came to the disk. What
/// the first listing of a SIM or card, which the last listing was of too, meets read and nobody here knows is
/// therefore as good as unread; so is what a listing meets behind one that was cut short, and what the card
/// announced and did not hand out. New is what is unread there and unknown here, never what was written there
/// from here or what a person marked as unread.
class CardPlaces final : public QObject
{
    Q_OBJECT

public:
    CardPlaces(CardWorker &worker, MessageStore *store, QObject *parent);

    /// The card is gone, or another one: nothing is known of it.
    void forget();
    void setReady(bool isReady) { m_isReady = isReady; }
    void setServiceCentre(const QString &number) { m_serviceCentre = number; }
    /// Whose SIM it is, and which card, as digits; empty when not known. Also of what was listed already.
    void setOwners(const QString &subscriber, const QString &card);

    void refresh(MessagePlace place);
    /// The card announced a message under this index, -1 when not known: the next listing meets it unseen,
    /// however it is marked there by then.
    void expect(MessagePlace place, int index);
    const PlaceState &state(MessagePlace place) const;
    bool hasCardStore() const;
    /// What the card told of its room beside an answer.
    void takeFill(MessagePlace place, const std::optional<StoreFill> &fill);

    void copy(const QStringList &ids, MessagePlace to) { transfer(ids, to, After::Keep); }
    void move(const QStringList &ids, MessagePlace to) { transfer(ids, to, After::Remove); }
    /// What went into the deleted box.
    struct Deleted {
        int count = 0;
        QStringList copies; ///< ids of those that are new there
    };
    /// Copies into the computer's deleted box, then takes the originals from the card. What has no content
    /// stays where it is, and `sigNotice` says so.
    Deleted moveToDeleted(const std::vector<Message> &chosen);
    /// Takes `original` from the card, now that it is in `copies`, ids of the computer's messages.
    void takeFromCard(const QStringList &copies, const Message &original);
    /// Takes what was kept and not taken any more, by a former run or while the disk was full, and lists the
    /// SIM and the card behind that.
    void finishTaking();

Q_SIGNALS:
    void sigChanged(corva::MessagePlace place);
    void sigNotice(const QString &sentence);
    /// Once, when little room is left, with a sentence that says so.
    void sigNearlyFull(const QString &sentence);
    /// A listing ended, also one that failed; what it brought is in the store.
    void sigListed();
    /// What the first listing of a place met unread, and what came since or was announced.
    void sigUnreadMet(const QStringList &ids);
    void sigNewListed(const QStringList &ids);
    /// A delivery report that lies among the messages.
    void sigReportListed(const corva::smsjobs::KeptReport &report);

private:
    enum class After { Keep, Remove };
    using ListedPart = std::pair<int, QString>; ///< its index and its PDU
    struct NewParts {
        std::set<ListedPart> met;  ///< in the first listing
        std::set<ListedPart> come; ///< since, or announced
    };
    /// What is known of a place beside its last listing.
    struct Unseen {
        QHash<QString, bool>
            written;             ///< identities of PDUs that were written there, and whether they are read
        std::set<int> announced; ///< indices of messages, until they are listed
        QSet<QString> unread;    ///< PDUs that a listing which was cut short showed as unread
        bool wasCut = false;     ///< such a listing marked what it did not bring as read
    };

    void transfer(const QStringList &ids, MessagePlace to, After after);
    void leaveEmptyEntries(std::vector<Message> &messages);
    void toComputer(const std::vector<Message> &messages, After after);
    void toCard(const Message &message, MessagePlace to, After after);
    std::vector<smsjobs::CardEntry> entriesOf(const Message &message) const;
    void wroteToCard(const Message &message, MessagePlace to, After after,
                     const std::optional<QString> &fault);
    void removePart(MessagePlace place, const MessagePart &part, const QStringList &copies);
    /// `copies`: those on the computer; none of what went from the SIM to the card or back.
    void sayNotDeleted(const QStringList &copies);
    void forgetIndex(const QStringList &copies, const MessagePart &part);
    void storedHere(const MessageStore::Added &added, const std::vector<Message> &originals, After after);
    void took(MessagePlace place, smsjobs::Listing listing);
    NewParts lookForNew(MessagePlace place, std::vector<Message> &messages, bool isFirst);
    QStringList holdersOf(MessagePlace place, const std::set<ListedPart> &parts) const;
    void refreshAll();
    void takeRest(const std::vector<Message> &messages);
    void warnBeforeFull(MessagePlace place, const StoreCapacity &now);
    void makeRoom(MessagePlace place);
    PlaceState &stateOf(MessagePlace place);
    void change(MessagePlace place, const PlaceState &state);

    CardWorker &m_worker;
    MessageStore *m_store;
    QString m_serviceCentre;
    std::array<QString, 2> m_owners;
    std::array<PlaceState, 2> m_states; ///< SIM, card
    std::array<bool, 2> m_hasWarned{};
    bool m_makesRoom = false;           ///< on the full SIM, until it is listed behind that
    int m_generation = 0;               ///< of the card: what was asked of a former one is not of interest
    std::array<bool, 2> m_listsAgain{}; ///< asked for while a listing was under way
    std::array<int, 2> m_removals{};    ///< under way; the place is listed anew behind the last
    std::array<Unseen, 2> m_unseen;
    bool m_isCardStoreMissing = false;
    bool m_isReady = false;
};

} // namespace corva
