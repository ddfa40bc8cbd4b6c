// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of messages in the store: put together, recognised, reported, deleted, listed, found.
#include "sms/immediateparts.h"
#include "storetest.h"

#include <QSignalSpy>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace corva;
using namespace std::chrono_literals;

namespace
{

constexpr qint64 day = 86'400; // seconds
const QString alice = u"+49171234567"_s;

std::vector<Message> threeParts(int reference, qint64 seconds = 0)
{
    return {longPart(alice, reference, 3, 1, u"one "_s, seconds),
            longPart(alice, reference, 3, 2, u"two "_s, seconds + 1),
            longPart(alice, reference, 3, 3, u"three"_s, seconds + 2)};
}

StatusReport reportFor(const QString &recipient, int reference, int status, qint64 sent, qint64 discharge)
{
    StatusReport report;
    report.recipient = recipient;
    report.reference = reference;
    report.status = status;
    report.sent = moment(sent);
    report.discharge = moment(discharge);
    report.arrived = moment(discharge);
    report.pdu = u"0006"_s + QString::number(reference * 1000 + status, 16) + QString::number(discharge, 16);
    return report;
}

} // namespace

class TestMessageStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void assemblesInAnyOrderOverRestarts_data()
    {
        QTest::addColumn<QList<int>>("order");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("as sent") << QList{0, 1, 2} << QStringList{u"one […]"_s, u"one two […]"_s};
        QTest::newRow("backwards") << QList{2, 1, 0} << QStringList{u"[…]three"_s, u"[…]two three"_s};
        QTest::newRow("the middle last") << QList{2, 0, 1} << QStringList{u"[…]three"_s, u"one […]three"_s};
    }

    void assemblesInAnyOrderOverRestarts()
    {
        QFETCH(const QList<int>, order);
        QFETCH(const QStringList, shown);
        const std::vector<Message> parts = threeParts(7);
        QString id;
        for (int i = 0; i < 3; ++i) {
            LoadedStore store(m_folder->path());
            const auto added = store->insert({parts[size_t(order[i])]});
            QCOMPARE(added.made.size(), i == 0 ? 1 : 0);
            QCOMPARE(added.ids.size(), 1);
            QVERIFY(id.isEmpty() || id == added.ids.front());
            id = added.ids.front();
            QCOMPARE(store->find(id)->missingParts(), 2 - i);
            QCOMPARE(store.texts(MessageBox::Inbox), QStringList{i == 2 ? u"one two three"_s : shown.at(i)});
            QVERIFY(added.stored.result());
        }
        QCOMPARE(LoadedStore(m_folder->path())->find(id)->text(), u"one two three"_s);
    }

    void keepsApartWhatDoesNotBelongTogether_data()
    {
        QTest::addColumn<Message>("other");
        const Message same = longPart(alice, 7, 3, 2, u"two"_s, 60);
        const auto row = [&](const char *name, auto change) {
            Message message = same;
            change(message);
            QTest::newRow(name) << message;
        };
        row("reused weeks later", [](Message &m) { m.time = m.parts[0].sent = moment(21 * day); });
        row("another total", [](Message &m) { m.total = 4; });
        row("a wide reference of that value", [](Message &m) { m.is16Bit = true; });
        row("another reference", [](Message &m) { m.concatReference = 8; });
        row("another sender", [](Message &m) { m.recipients = {u"+49170999999"_s}; });
        row("another channel", [](Message &m) { m.channel = 51; });
        row("a place that is taken", [](Message &m) { m.parts[0].sequence = 1; });
    }

    void keepsApartWhatDoesNotBelongTogether()
    {
        QFETCH(const Message, other);
        LoadedStore store(m_folder->path());
        store->add({longPart(alice, 7, 3, 1, u"one"_s), other});
        QCOMPARE(store->ids(MessageBox::Inbox).size(), 2);
        // Its own parts find it still.
        Message third = other;
        third.parts[0].sequence = 3;
        third.parts[0].pdu += u"33"_s;
        const auto added = store->insert({third});
        QCOMPARE(added.made, QStringList());
        QCOMPARE(store->find(added.ids.front())->parts.size(), size_t(2));
        QVERIFY(store->find(added.ids.front())->recipients == other.recipients);
    }

    void showsImmediateOnesInTheEnd()
    {
        ImmediateParts parts(0ms);
        QSignalSpy ready(&parts, &ImmediateParts::sigReady);
        for (const int index : {1, 1, 2})
            parts.take(threeParts(7)[size_t(index)]);
        QVERIFY(ready.wait());
        QCOMPARE(ready.at(0).at(0).value<Message>().text(), u"[…]two three"_s);
    }

    void keepsTheOrderOfOneMoment()
    {
        LoadedStore store(m_folder->path());
        for (int i = 0; i < 20; ++i)
            store->add({received(alice, QString::number(i))});
        for (int i = 0; i < 20; ++i)
            QCOMPARE(store.texts(MessageBox::Inbox).at(i), QString::number(19 - i));
    }

    void joinsTheNearestInTime()
    {
        LoadedStore store(m_folder->path());
        const auto early = store->insert({longPart(alice, 7, 2, 1, u"early "_s, 0)});
        const auto late = store->insert({longPart(alice, 7, 2, 1, u"late "_s, 3600)});
        store->add({longPart(alice, 7, 2, 2, u"end"_s, 3601)});
        QCOMPARE(store->find(late.ids[0])->text(), u"late end"_s);
        QCOMPARE(store->find(early.ids[0])->missingParts(), 1);
    }

    void showsPartsWithoutSense_data()
    {
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("sequence");
        QTest::newRow("part 0") << 3 << 0;
        QTest::newRow("part 4 of 3") << 3 << 4;
        QTest::newRow("part 1 of 0") << 0 << 1;
    }

    void showsPartsWithoutSense()
    {
        QFETCH(const int, total);
        QFETCH(const int, sequence);
        LoadedStore store(m_folder->path());
        store->add(threeParts(7));
        store->add({longPart(alice, 7, total, sequence, u"odd"_s, 9)});
        QCOMPARE(store.texts(MessageBox::Inbox), (QStringList{u"odd"_s, u"one two three"_s}));
        QCOMPARE(store.box(MessageBox::Inbox).front().missingParts(), 0);
    }

    void recognisesWhatCameBefore()
    {
        Message message = received(alice, u"once"_s);
        std::vector<Message> parts = threeParts(7);
        {
            LoadedStore store(m_folder->path());
            store->add({message, parts[0], parts[2]});
        }
        LoadedStore store(m_folder->path());
        QSignalSpy addedSpy(&store.store, &MessageStore::sigAdded);
        QSignalSpy changedSpy(&store.store, &MessageStore::sigChanged);
        // Listed again in small letters, by another service centre, with more messages waiting there.
        message.parts[0].pdu = u"0191"_s + u"00"_s + message.parts[0].pdu.sliced(4).toLower();
        const auto again = store->insert({message, parts[0], parts[2]});
        QCOMPARE(again.made, QStringList());
        QCOMPARE(again.ids.at(1), again.ids.at(2));
        QVERIFY(again.stored.result());
        QCOMPARE(addedSpy.size() + changedSpy.size(), 0);
        // The same words a second later are another message.
        store->add({received(alice, u"once"_s, 1)});
        QCOMPARE(addedSpy.size(), 1);
        // All three as one, of which one is new.
        Message whole = parts[0];
        whole.parts = {parts[0].parts[0], parts[1].parts[0], parts[2].parts[0]};
        QCOMPARE(store->insert({whole}).ids.front(), again.ids.at(1));
        QCOMPARE(store->find(again.ids.at(1))->text(), u"one two three"_s);
    }

    void sendsTheSameTwice()
    {
        LoadedStore store(m_folder->path());
        Message draft = sentMessage(alice, {-1});
        draft.parts[0].pdu = u"0011000B91"_s;
        store->add({draft, draft});
        QCOMPARE(store->ids(MessageBox::Sent).size(), 2);
    }

    void leavesDeletedOnesDeleted()
    {
        LoadedStore store(m_folder->path());
        const Message message = received(alice, u"gone"_s);
        const QString id = store->insert({message}).ids.front();
        store->remove({id});
        QCOMPARE(store->insert({message}).ids, QStringList{id});
        QCOMPARE(store->find(id)->box, MessageBox::Deleted);
        store->insert({message}, MessageStore::DeletedOnes::ComeBack);
        QCOMPARE(store->find(id)->box, MessageBox::Inbox);
        // A part that nobody has seen brings a deleted message back, too.
        const QString begun = store->insert({threeParts(7)[0]}).ids.front();
        store->setRead({begun}, true);
        store->remove({begun});
        store->add({threeParts(7)[1]});
        QCOMPARE(store->find(begun)->box, MessageBox::Inbox);
        QVERIFY(!store->find(begun)->isRead);
    }

    void matchesReports_data()
    {
        QTest::addColumn<StatusReport>("report");
        QTest::addColumn<int>("message"); // of the list below; -1: none
        QTest::addColumn<int>("part");
        QTest::addColumn<DeliveryState>("state");
        using enum DeliveryState;
        const auto row = [](const char *name, const StatusReport &report, int message, int part,
                            DeliveryState state) {
            QTest::newRow(name) << report << message << part << state;
        };
        row("at once", reportFor(alice, 10, 0, 0, 5), 0, 0, Delivered);
        row("days later", reportFor(alice, 11, 0, 1, 5 * day), 0, 1, Delivered);
        row("the number as at home", reportFor(u"0171234567"_s, 10, 2, 0, 5), 0, 0, Delivered);
        row("goes on trying", reportFor(alice, 10, 0x3F, 0, 5), 0, 0, StillTrying);
        row("refused", reportFor(alice, 10, 0x40, 0, 5), 0, 0, Failed);
        row("given up", reportFor(alice, 10, 0x60, 0, 5), 0, 0, Failed);
        row("the reference again, weeks later", reportFor(alice, 10, 0, 30 * day, 30 * day + 5), 1, 0,
            Delivered);
        row("the service centre's clock is wrong", reportFor(alice, 10, 0, -900 * day, 30 * day + 60), 1, 0,
            Delivered);
        row("another number", reportFor(u"+49171234568"_s, 10, 0, 0, 5), -1, -1, None);
        row("another reference", reportFor(alice, 12, 0, 0, 5), -1, -1, None);
        row("sent by another program meanwhile", reportFor(alice, 10, 0, 9 * day, 9 * day), -1, -1, None);
    }

    void matchesReports()
    {
        QFETCH(const StatusReport, report);
        QFETCH(const int, message);
        QFETCH(const int, part);
        QFETCH(const DeliveryState, state);
        QStringList ids;
        {
            LoadedStore store(m_folder->path());
            ids = store->insert({sentMessage(alice, {10, 11}), sentMessage(alice, {10}, 30 * day)}).ids;
        }
        LoadedStore store(m_folder->path());
        const auto reported = store->applyReport(report);
        QCOMPARE(reported.id, message < 0 ? QString() : ids.at(message));
        QCOMPARE(reported.part, part);
        QVERIFY(reported.stored.result());
        const Message entry = store.box(MessageBox::Reports).at(0);
        QCOMPARE(entry.about, reported.id);
        QCOMPARE(entry.parts[0].statusOctet, report.status);
        if (message < 0)
            return;
        const MessagePart told = store->find(reported.id)->parts[size_t(part)];
        QCOMPARE(told.state, state);
        QCOMPARE(told.reported, report.discharge);
        // Read once more from the card.
        const auto again = store->applyReport(report);
        QVERIFY(!again.isNew && again.id == reported.id && again.reportId == reported.reportId);
        QCOMPARE(store->ids(MessageBox::Reports).size(), 1);
    }

    void toldByItsReports()
    {
        LoadedStore store(m_folder->path());
        const QString id = store->insert({sentMessage(alice, {1, 2})}).ids.front();
        store->applyReport(reportFor(alice, 1, 0, 0, 5));
        QCOMPARE(store->find(id)->state(), DeliveryState::Sent);
        store->applyReport(reportFor(alice, 2, 0x20, 0, 6));
        QCOMPARE(store->find(id)->state(), DeliveryState::StillTrying);
        store->applyReport(reportFor(alice, 2, 0, 0, 7));
        QCOMPARE(store->find(id)->state(), DeliveryState::Delivered);
        store->applyReport(reportFor(alice, 2, 0x20, 0, 8)); // came late
        QCOMPARE(store->find(id)->state(), DeliveryState::Delivered);
        // Only the last part asked.
        Message last = sentMessage(alice, {3, 4}, 100);
        last.parts[0].asksReport = false;
        const QString other = store->insert({last}).ids.front();
        store->applyReport(reportFor(alice, 4, 0, 100, 105));
        QCOMPARE(store->find(other)->state(), DeliveryState::Delivered);
    }

    void takesReportsThatOvertakeTheReference()
    {
        LoadedStore store(m_folder->path());
        Message message = sentMessage(alice, {-1});
        message.parts[0].state = DeliveryState::Sending;
        const QString id = store->insert({message}).ids.front();
        const auto reported = store->applyReport(reportFor(alice, 9, 0, 0, 1));
        QCOMPARE(reported.id, QString());
        store->change(id, [](Message &m) {
            m.parts[0].reference = 9;
            m.parts[0].state = DeliveryState::Sent;
        });
        QCOMPARE(store->find(id)->state(), DeliveryState::Delivered);
        QCOMPARE(store->find(reported.reportId)->about, id);
    }

    void mirrorsWhatIsListed()
    {
        LoadedStore store(m_folder->path());
        const auto at = [](Message message, int index) {
            message.parts[0].storageIndex = index;
            return message;
        };
        const std::vector<Message> parts = threeParts(7);
        const Message twin = received(alice, u"twin"_s);
        store->replaceMirror(MessagePlace::Sim, {at(twin, 1), at(parts[1], 2), at(twin, 3), at(parts[0], 4)});
        const QStringList before = store->ids(MessagePlace::Sim);
        QCOMPARE(before.size(), 3);
        store->setRead(before, true);
        store->replaceMirror(MessagePlace::Card, {at(received(alice, u"other"_s), 1)});

        QSignalSpy addedSpy(&store.store, &MessageStore::sigAdded);
        QSignalSpy changedSpy(&store.store, &MessageStore::sigChanged);
        QSignalSpy removedSpy(&store.store, &MessageStore::sigRemoved);
        const std::vector<Message> same{at(parts[0], 4), at(twin, 3), at(parts[1], 2), at(twin, 1)};
        store->replaceMirror(MessagePlace::Sim, same);
        QCOMPARE(addedSpy.size() + changedSpy.size() + removedSpy.size(), 0);
        QCOMPARE(store->unreadCount(MessageBox::Inbox, MessagePlace::Sim), 0);

        store->replaceMirror(MessagePlace::Sim,
                             {at(parts[0], 4), at(twin, 3), at(parts[1], 2), at(parts[2], 1)});
        QCOMPARE(addedSpy.size(), 0);
        QCOMPARE(store->unreadCount(MessageBox::Inbox, MessagePlace::Sim), 1); // of which a part came
        QCOMPARE(changedSpy.takeFirst().at(0).toStringList().size(), 1);
        QCOMPARE(removedSpy.takeFirst().at(0).toStringList().size(), 1);
        QCOMPARE(store.texts(MessageBox::Inbox, MessagePlace::Card), QStringList{u"other"_s});
        const QStringList after = store->ids(MessagePlace::Sim);
        QVERIFY(std::ranges::all_of(after, [&](const QString &id) { return before.contains(id); }));
        QVERIFY(store->flush());
        QCOMPARE(LoadedStore(m_folder->path())->ids(MessagePlace::Sim), after);
    }

    void findsAsPeopleType_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        const QString meal = u"Crème brûlée in der Straße"_s;
        const QString call = u"Call me"_s;
        const auto row = [](const char *text, const QStringList &found) {
            QTest::newRow(text) << QString::fromUtf8(text) << found;
        };
        row("creme", {meal});
        row("CRÈME strasse", {meal});
        row("brulee call", {});
        row("171234", {call, meal});
        row("0171234567", {meal});
        row("+49171", {meal});
        row("zoë", {call});
        row("zoe me", {call});
        row("  ", {call, meal});
        row("l m", {call, meal});
    }

    void findsAsPeopleType()
    {
        QFETCH(const QString, text);
        QFETCH(const QStringList, found);
        LoadedStore store(m_folder->path());
        store->setNameLookup(
            [](const QString &number) { return number == u"+44171234999"_s ? u"Zoë"_s : QString(); });
        const Message other = received(u"+44171234999"_s, u"Call me"_s, 1);
        store->add({received(alice, u"Crème brûlée in der Straße"_s), other});
        // Typed letter by letter, and at once.
        QStringList ids;
        for (qsizetype i = 1; i <= text.size(); ++i)
            ids = store->search(text.first(i));
        store->search(u"something else"_s);
        QCOMPARE(store->search(text), ids);
        QStringList texts;
        for (const Message &message : store->messages(ids))
            texts += message.text();
        QCOMPARE(texts, found);
    }

    void findsWhatIsNew()
    {
        LoadedStore store(m_folder->path());
        const QString id = store->insert({received(alice, u"hello"_s)}).ids.front();
        QCOMPARE(store->search(u"hell"_s).size(), 1);
        store->add({received(alice, u"hello again"_s, 1)});
        QCOMPARE(store->search(u"hello"_s).size(), 2);
        store->purge({id});
        QCOMPARE(store->search(u"hello"_s).size(), 1);
    }

    void speaksWithPersons()
    {
        LoadedStore store(m_folder->path());
        Message toBoth = sentMessage(u"0171234567"_s, {1}, 50);
        toBoth.recipients += u"Bank"_s;
        Message broadcast = received(u"50"_s, u"page"_s, 99);
        broadcast.isBroadcast = true;
        const QStringList ids = store
                                    ->insert({received(alice, u"first"_s), toBoth,
                                              received(u"BANK"_s, u"balance"_s, 60), broadcast})
                                    .ids;
        store->replaceMirror(MessagePlace::Sim,
                             {received(alice, u"first"_s), received(alice, u"there"_s, 70)});
        const QString onSim = store->ids(MessageBox::Inbox, MessagePlace::Sim).front();

        const std::vector<Conversation> all = store->conversations();
        QCOMPARE(all.size(), size_t(2));
        QCOMPARE(all[0].ids, (QStringList{ids[0], ids[1], onSim}));
        QCOMPARE(all[0].numbers, (QStringList{alice, u"0171234567"_s}));
        QCOMPARE(all[0].unread, 2);
        QCOMPARE(all[0].time, moment(70));
        QCOMPARE(all[1].ids, (QStringList{ids[1], ids[2]}));
        QCOMPARE(all[1].key, store->personKey(u"bank"_s));
        store->remove({ids[2]});
        QCOMPARE(store->conversations()[1].ids, QStringList{ids[1]});
    }

    void importsOnce()
    {
        LoadedStore store(m_folder->path());
        Message queued = sentMessage(alice, {-1}, 5);
        queued.box = MessageBox::Outbox;
        queued.parts[0].state = DeliveryState::Queued;
        store->add({received(alice, u"here"_s)});
        Message here = store.box(MessageBox::Inbox).front();
        Message asText = here;
        asText.id.clear();
        asText.parts[0].pdu.clear();
        const auto first = store->import({here, asText, queued, received(alice, u"new"_s, 9)});
        QCOMPARE(first.added, 2);
        QCOMPARE(first.present, 2);
        // Nothing is sent because a file says so.
        QCOMPARE(store.box(MessageBox::Outbox).front().state(), DeliveryState::Failed);
        QCOMPARE(store->import(store->messages(store->ids(MessagePlace::Computer))).added, 0);
    }

    void waitsForItsFile()
    {
        {
            LoadedStore store(m_folder->path());
            store->add({received(alice, u"stored"_s), threeParts(7, 60)[0]});
        }
        QFuture<bool> stored;
        {
            MessageStore store(m_folder->path(), 9);
            store.load();
            stored = store.add({received(alice, u"stored"_s), threeParts(7, 60)[1]});
            QVERIFY(!stored.isFinished() || store.isLoaded());
        }
        QVERIFY(stored.result());
        QCOMPARE(LoadedStore(m_folder->path()).texts(MessageBox::Inbox),
                 (QStringList{u"one two […]"_s, u"stored"_s}));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestMessageStore)
#include "tst_messagestore.moc"
