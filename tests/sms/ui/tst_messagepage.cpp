// SPDX-License-Identifier: GPL-3.0-or-later
#include "../storetest.h"
#include "fakecardmonitor.h"

#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/messageservice.h"
#include "sms/ui/class0dialog.h"
#include "sms/ui/composer.h"
#include "sms/ui/cshortmsg.h"
#include "sms/ui/messagedesk.h"
#include "sms/ui/messageexchange.h"
#include "sms/ui/messagerowdelegate.h"
#include "sms/ui/mytextedit.h"
#include "sms/ui/plaintextview.h"
#include "widgets/cdestyle.h"
#include "widgets/messagequeue.h"

#include <QAbstractItemModelTester>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <memory>

using namespace Qt::StringLiterals;
using namespace corva;

/// The page over the real service and store; the card takes nothing.
class TestMessagePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        static const QTemporaryDir folder;
        QDir::setCurrent(folder.path());
        basePath = QStringLiteral(CORVA_SOURCE_DIR);
        installCdeStyle();
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_monitor = std::make_unique<CardMonitor>(nullptr);
        m_store = std::make_unique<MessageStore>(m_folder->path(), 7);
        m_store->load();
        QTRY_VERIFY(m_store->isLoaded());
        m_service = std::make_unique<MessageService>(m_monitor.get(), m_store.get());
        m_window = std::make_unique<QWidget>();
        m_messages = new MessageQueue(m_window.get());
        m_page = new CShortMsg({u"messages"_s, u"Messages"_s, u"message"_s, 0, false}, m_service.get(),
                               m_messages, m_window.get());
        m_page->resize(744, 440);
        m_window->resize(744, 440);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_window->activateWindow();
    }

    void cleanup()
    {
        m_window.reset();
        m_service.reset();
        m_store.reset();
    }

    void listFollowsTheStore()
    {
        const QAbstractItemModelTester tester(list()->model(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        add({received(u"+491"_s, u"old"_s, 10), received(u"+491"_s, u"new"_s, 30)});
        QTRY_COMPARE(rows(), QStringList({u"new"_s, u"old"_s}));
        choose(1);
        add({received(u"+492"_s, u"between"_s, 20)});
        QTRY_COMPARE(rows(), QStringList({u"new"_s, u"between"_s, u"old"_s}));
        QCOMPARE(list()->currentIndex().row(), 2);

        // A part that comes late makes its message newer, and whole.
        add({longPart(u"+493"_s, 1, 2, 2, u"world"_s, 5)});
        QTRY_COMPARE(rows().size(), 4);
        QCOMPARE(rows(NoteRole).last(), u"1 of 2"_s);
        add({longPart(u"+493"_s, 1, 2, 1, u"hello "_s, 4)});
        QTRY_VERIFY(rows().contains(u"hello world"_s));
        QCOMPARE(rows(NoteRole).join(QString()), QString());

        // Of one moment with "between": what arrived last stands ahead.
        Message onSim = received(u"+494"_s, u"on the SIM"_s, 20);
        onSim.arrived = onSim.arrived.addSecs(1);
        m_store->replaceMirror(MessagePlace::Sim, {onSim});
        QTRY_COMPARE(rows().at(1), u"on the SIM"_s);
        open({.filter = {.box = MessageBox::Sent}});
        open({});
        QCOMPARE(rows().at(1), u"on the SIM"_s);
        choose(3);
        m_store->replaceMirror(MessagePlace::Sim, {});
        QTRY_VERIFY(!rows().contains(u"on the SIM"_s));
        QCOMPARE(rows().at(list()->currentIndex().row()), u"old"_s);
    }

    void choosingCountsAsRead()
    {
        add({received(u"+491"_s, u"one"_s, 10), received(u"+491"_s, u"two"_s, 20)});
        QTRY_COMPARE(unreadBadge(*m_store), u"2"_s);
        choose(0);
        QTRY_COMPARE(unreadBadge(*m_store), u"1"_s);
        QCOMPARE(rows(UnreadRole), QStringList({u"false"_s, u"true"_s}));
        list()->selectAll();
        QCOMPARE(unreadBadge(*m_store), u"1"_s); // looked at as a number of messages only
        QCOMPARE(part<QLabel>(u"messageHint"_s)->text(), u"2 messages are chosen."_s);
    }

    void whatIsDeletedComesBack()
    {
        add({received(u"+491"_s, u"one"_s, 10), received(u"+491"_s, u"two"_s, 20),
             received(u"+491"_s, u"three"_s, 30)});
        QTRY_COMPARE(rows().size(), 3);
        choose(1);
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Delete);
        QTRY_COMPARE(rows(), QStringList({u"three"_s, u"one"_s}));
        QCOMPARE(list()->currentIndex().row(), 1); // what took its place
        const QList<QPushButton *> actions = m_page->findChildren<QPushButton *>(u"noticeAction"_s);
        for (QPushButton *action : actions)
            if (action->isVisible())
                action->click();
        QTRY_COMPARE(rows(), QStringList({u"three"_s, u"two"_s, u"one"_s}));
        // The same from within the message.
        choose(0);
        part<QWidget>(u"messageBody"_s)->setFocus();
        QTest::keyClick(part<QWidget>(u"messageBody"_s), Qt::Key_Delete);
        QTRY_COMPARE(rows(), QStringList({u"two"_s, u"one"_s}));
        part<QWidget>(u"messageBody"_s)->setFocus();
        QTest::keyClick(part<QWidget>(u"messageBody"_s), Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(rows(), QStringList({u"three"_s, u"two"_s, u"one"_s}));
    }

    void searchFindsEverywhere()
    {
        Message draft = received(u"+492"_s, u"a ticket for you"_s, 5);
        draft.box = MessageBox::Drafts;
        add({received(u"+491"_s, u"the ticket"_s, 10), received(u"+491"_s, u"other"_s, 20), draft});
        QTRY_COMPARE(rows().size(), 2);
        part<QLineEdit>(u"messageSearch"_s)->setText(u"ticket"_s);
        QCOMPARE(rows(), QStringList({u"the ticket"_s, u"a ticket for you"_s}));
        choose(1);
        add({received(u"+491"_s, u"ticket three"_s, 30)});
        QTRY_COMPARE(rows().size(), 3);
        QCOMPARE(rows().at(list()->currentIndex().row()), u"a ticket for you"_s);
        part<QLineEdit>(u"messageSearch"_s)->setText(u"nothing like it"_s);
        QVERIFY(part<QLabel>(u"messagesEmpty"_s)->isVisible());
        QCOMPARE(part<QLabel>(u"messageHint"_s)->text(), QString());
        part<QLineEdit>(u"messageSearch"_s)->clear();
        QCOMPARE(rows(), QStringList({u"ticket three"_s, u"other"_s, u"the ticket"_s}));
        QVERIFY(!part<QLabel>(u"messageHint"_s)->text().isEmpty());
    }

    void markupStaysText()
    {
        const QString text = u"<b>bold</b> &amp; <img src='http://example.org/x.png'>"_s;
        add({received(u"<i>name</i>"_s, text, 10)});
        QTRY_COMPARE(rows(), QStringList{text});
        choose(0);
        QCOMPARE(part<PlainTextView>(u"messageBody"_s)->toPlainText(), text);
        QCOMPARE(part<QLabel>(u"messagePeople"_s)->textFormat(), Qt::PlainText);
        QVERIFY(rows(Qt::ToolTipRole).front().contains(u"&lt;i&gt;name&lt;/i&gt;<br"_s));
        QVERIFY(rows(Qt::AccessibleTextRole).front().contains(u"<i>name</i>"_s));
        QVERIFY(!part<QPushButton>(u"reply"_s)->isEnabled()); // a name cannot be answered
    }

    void conversationGathersAPerson()
    {
        add({received(u"+4915112345678"_s, u"hello"_s, 10), received(u"015112345678"_s, u"again"_s, 30),
             received(u"+33698765432"_s, u"salut"_s, 20)});
        open({.isByPerson = true});
        QTRY_COMPARE(rows(), QStringList({u"again"_s, u"salut"_s}));
        choose(0);
        auto *thread = part<QListView>(u"thread"_s);
        QTRY_COMPARE(thread->model()->rowCount(), 2);
        QCOMPARE(thread->model()->index(0, 0).data().toString(), u"hello"_s);
        add({received(u"+4915112345678"_s, u"more"_s, 40)});
        QTRY_COMPARE(thread->model()->rowCount(), 3);
        QTRY_COMPARE(unreadBadge(*m_store), u"1"_s); // the other person's
        press(u"write"_s);
        QCOMPARE(part<QLineEdit>(u"recipients"_s)->text(), u"+4915112345678"_s);

        part<MyTextEdit>(u"messageText"_s)->setPlainText(u"to be ended"_s);
        QTest::keyClick(part<MyTextEdit>(u"messageText"_s), Qt::Key_Escape);
        QTRY_COMPARE(thread->model()->rowCount(), 4);
        thread->setCurrentIndex(thread->model()->index(3, 0));
        action(part<QWidget>(u"threadPane"_s), u"Edit"_s)->trigger();
        QVERIFY(part<Composer>(u"composer"_s)->isVisible());
        QCOMPARE(part<MyTextEdit>(u"messageText"_s)->toPlainText(), u"to be ended"_s);
    }

    void draftIsKeptWhileWriting()
    {
        write(u"0151 12, 017"_s, u"half a sen"_s);
        QTRY_COMPARE(texts(MessageBox::Drafts), QStringList{u"half a sen"_s});
        part<MyTextEdit>(u"messageText"_s)->setPlainText(u"half a sentence"_s);
        QTest::keyClick(part<MyTextEdit>(u"messageText"_s), Qt::Key_Escape);
        QCOMPARE(texts(MessageBox::Drafts), QStringList{u"half a sentence"_s}); // the same one, at once
        open({.filter = {.box = MessageBox::Drafts}});
        QTRY_COMPARE(rows(), QStringList{u"half a sentence"_s});
        choose(0);
        QTest::keyClick(list(), Qt::Key_Return);
        QCOMPARE(part<QLineEdit>(u"recipients"_s)->text(), u"0151 12, 017"_s);
        // Emptied, it is no draft any more.
        part<QLineEdit>(u"recipients"_s)->clear();
        part<MyTextEdit>(u"messageText"_s)->clear();
        QTest::keyClick(part<MyTextEdit>(u"messageText"_s), Qt::Key_Escape);
        QCOMPARE(texts(MessageBox::Drafts), QStringList());
    }

    void replyLeavesNoDraft()
    {
        add({received(u"+4915112345678"_s, u"hello"_s, 10)});
        QTRY_COMPARE(rows().size(), 1);
        choose(0);
        press(u"reply"_s);
        QCOMPARE(part<QLineEdit>(u"recipients"_s)->text(), u"+4915112345678"_s);
        QTest::keyClick(part<MyTextEdit>(u"messageText"_s), Qt::Key_Escape);
        QVERIFY(part<QWidget>(u"readingPane"_s)->isVisible());
        QCOMPARE(texts(MessageBox::Drafts), QStringList());
    }

    void draftIsWrittenOn()
    {
        write(u"0151"_s, u"sent off"_s);
        QTRY_COMPARE(texts(MessageBox::Drafts).size(), 1);
        press(u"send"_s);
        QCOMPARE(texts(MessageBox::Outbox), QStringList{u"sent off"_s});
        QTRY_COMPARE(texts(MessageBox::Drafts), QStringList());
        write(u"0152"_s, u"thrown away"_s);
        press(u"discard"_s);
        QTRY_COMPARE(texts(MessageBox::Deleted), QStringList{u"thrown away"_s});
    }

    void wrongRecipientIsToldAtTheField()
    {
        write(u"0151, Anna"_s, u"text"_s);
        press(u"send"_s);
        QVERIFY(part<QLabel>(u"recipientsError"_s)->text().contains(u"\"Anna\""_s));
        QVERIFY(part<QLineEdit>(u"recipients"_s)->hasFocus());
        part<QLineEdit>(u"recipients"_s)->setText(QString());
        press(u"send"_s);
        QVERIFY(!part<QLabel>(u"recipientsError"_s)->text().isEmpty());
        QCOMPARE(texts(MessageBox::Outbox), QStringList());
    }

    void whatCannotBeSentStaysADraft()
    {
        const QString tooLong = u"ten words. "_s.repeated(4000);
        write(u"0151"_s, tooLong);
        QTest::keyClick(part<MyTextEdit>(u"messageText"_s), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(part<Composer>(u"composer"_s)->isVisible());
        QTRY_COMPARE(texts(MessageBox::Drafts), QStringList{tooLong});
    }

    void sendingGoesToEverybody()
    {
        write(u"0151-1; +49 152"_s, u"to both"_s);
        part<QAbstractButton>(u"deliveryReport"_s)->setChecked(true);
        QTest::keyClick(part<MyTextEdit>(u"messageText"_s), Qt::Key_Return, Qt::ControlModifier);
        const auto queued = m_store->messages(m_store->ids(MessageBox::Outbox));
        QCOMPARE(queued.size(), 1U);
        QCOMPARE(queued.front().recipients, QStringList({u"01511"_s, u"+49152"_s}));
        QCOMPARE(queued.front().text(), u"to both"_s);
        QVERIFY(queued.front().asksReport);
    }

    void exportedMessagesComeBack()
    {
        add({received(u"+491"_s, u"one, \"quoted\"\nand lines"_s, 10), received(u"+492"_s, u"مرحبا"_s, 20)});
        QTRY_COMPARE(rows().size(), 2);
        const QString path = m_folder->filePath(u"kept.json"_s);
        const auto chooseFile = [&](const QString &name) {
            auto *dialog = m_page->findChild<QFileDialog *>(name);
            QVERIFY(dialog);
            Q_EMIT dialog->fileSelected(path);
            dialog->close();
        };
        auto *exchange = m_page->findChild<MessageExchange *>();
        QSignalSpy said(exchange, &MessageExchange::sigSaid);
        exchange->exportMessages(m_store->ids(MessageBox::Inbox));
        chooseFile(u"exportDialog"_s);
        QTRY_COMPARE(said.size(), 1);
        m_store->purge(m_store->ids(MessageBox::Inbox));
        QTRY_COMPARE(rows().size(), 0);
        exchange->importMessages();
        chooseFile(u"importDialog"_s);
        QTRY_COMPARE(said.size(), 2);
        QCOMPARE(texts(MessageBox::Inbox), QStringList({u"مرحبا"_s, u"one, \"quoted\"\nand lines"_s}));
    }

    void immediateMessagesQueueUp()
    {
        const MessageDesk desk(m_service.get(), m_messages, m_window.get());
        const auto come = [this](const QString &text, qint64 seconds) {
            Message message = received(u"Operator"_s, text, seconds);
            message.error = text.isEmpty() ? u"A length is wrong."_s : QString();
            Q_EMIT m_service->sigClass0(u"Operator"_s, text, message.parts.front().pdu, message);
        };
        come(u"one"_s, 10);
        come(u"two"_s, 20);
        come(u"one"_s, 10); // once more, while it is shown
        auto *dialog = m_window->findChild<Class0Dialog *>();
        QVERIFY(dialog && dialog->isVisible());
        const auto *text = dialog->findChild<PlainTextView *>(u"class0Text"_s);
        QCOMPARE(text->toPlainText(), u"Operator :\n one"_s);
        dialog->findChild<QPushButton *>(u"class0Keep"_s)->click();
        QCOMPARE(text->toPlainText(), u"Operator :\n two"_s);
        come(QString(), 30);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QCOMPARE(text->toPlainText(), u"Operator :\n This message cannot be read"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QTRY_COMPARE(texts(MessageBox::Inbox), QStringList{u"one"_s});
        const auto kept = m_store->find(m_store->ids(MessageBox::Inbox).front());
        QCOMPARE(kept->time, moment(10)); // not when it was kept
        QVERIFY(kept->isRead);
    }

    void badgeFollowsWithoutThePage()
    {
        const MessageDesk desk(m_service.get(), m_messages, m_window.get());
        QSignalSpy badges(&desk, &MessageDesk::sigBadge);
        QSignalSpy notices(&desk, &MessageDesk::sigNotify);
        add({received(u"+491"_s, u"hello"_s, 10)});
        QTRY_COMPARE(badges.size(), 1);
        Q_EMIT m_service->sigNewMessage(m_store->ids(MessageBox::Inbox).front());
        QCOMPARE(notices.front().at(1).toString(), u"+491"_s);
        QCOMPARE(notices.front().at(2).toString(), u"hello"_s);
        QSignalSpy ended(&desk, &MessageDesk::sigNotificationEnded);
        choose(0);
        QTRY_COMPARE(ended.size(), 1);
        QCOMPARE(badges.last().front().toString(), QString());
    }

    void aNotificationLeadsToItsMessage()
    {
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, u"1"_s);
        MessageDesk desk(m_service.get(), m_messages, m_window.get());
        connect(&desk, &MessageDesk::sigOpen, m_page, &CShortMsg::showEntry);
        Message page = received(QString(), u"storm"_s, 10);
        page.isBroadcast = true;
        page.channel = 919;
        add({page, received(u"+491"_s, u"hello"_s, 20), received(u"+491"_s, u"other"_s, 30)});
        const auto told = [&](const QString &text, auto signal) {
            Q_EMIT(m_service.get()->*signal)(m_store->search(text).front());
        };
        told(u"hello"_s, &MessageService::sigNewMessage);
        told(u"storm"_s, &MessageService::sigBroadcast);
        open({.filter = {.box = MessageBox::Drafts}});
        write(u"0151"_s, u"half"_s);
        desk.open(u"message"_s);
        QCOMPARE(part<QPlainTextEdit>(u"messageBody"_s)->toPlainText(), u"hello"_s);
        QVERIFY(part<QWidget>(u"readingPane"_s)->isVisible());
        QCOMPARE(rows(), QStringList({u"other"_s, u"hello"_s}));
        QCOMPARE(texts(MessageBox::Drafts), QStringList{u"half"_s});
        desk.open(u"broadcast"_s);
        QCOMPARE(rows(), QStringList{u"storm"_s});
        QCOMPARE(part<QPlainTextEdit>(u"messageBody"_s)->toPlainText(), u"storm"_s);
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, u"0"_s);
    }

    void onlyWhatCanGoOutIsSentAgain()
    {
        const auto failed = [](const QString &text, MessageBox box, DeliveryState state) {
            Message message = received(u"0151"_s, text);
            message.box = box;
            message.parts.front().state = state;
            return message;
        };
        add({failed(u"refused"_s, MessageBox::Outbox, DeliveryState::Failed),
             failed(u"half way"_s, MessageBox::Outbox, DeliveryState::Unsure),
             failed(u"gone"_s, MessageBox::Deleted, DeliveryState::Failed)});
        const auto idOf = [this](const QString &text) { return m_store->search(text).front(); };
        const auto stateOf = [&](const QString &text) { return m_store->find(idOf(text))->state(); };
        auto *boxes = m_page->findChild<BoxChooser *>();
        QTRY_VERIFY(boxes->itemText(2).contains(u"(2)"_s));
        m_page->showEntry(idOf(u"gone"_s));
        QVERIFY(!part<QPushButton>(u"retry"_s)->isVisible());
        m_page->showEntry(idOf(u"refused"_s));
        press(u"retry"_s);
        QCOMPARE(stateOf(u"refused"_s), DeliveryState::Queued);
        m_page->showEntry(idOf(u"half way"_s));
        press(u"retry"_s);
        QCOMPARE(stateOf(u"half way"_s), DeliveryState::Unsure);
        auto *box = m_window->findChild<QMessageBox *>(u"messageBox"_s);
        QVERIFY(box);
        QCOMPARE(box->text(), u"The message may have gone out already. Send it again?"_s);
        for (QAbstractButton *button : box->buttons())
            if (box->buttonRole(button) == QMessageBox::YesRole)
                button->click();
        QCOMPARE(stateOf(u"half way"_s), DeliveryState::Queued);
    }

private:
    void add(const std::vector<Message> &messages) { m_store->add(messages); }
    void open(const MessageView &view)
    {
        auto *boxes = m_page->findChild<BoxChooser *>();
        boxes->choose(view);
        QCOMPARE(boxes->view(), view);
        Q_EMIT boxes->sigChosen(view);
    }

    QListView *list() { return m_page->findChild<QListView *>(u"messages"_s); }
    QStringList rows(int role = PreviewRole)
    {
        QStringList all;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            all += list()->model()->index(row, 0).data(role).toString();
        return all;
    }

    void choose(int row) { list()->setCurrentIndex(list()->model()->index(row, 0)); }
    template <typename Widget> Widget *part(const QString &name) { return m_page->findChild<Widget *>(name); }
    void press(const QString &button) { part<QPushButton>(button)->click(); }
    static QAction *action(const QWidget *widget, const QString &title)
    {
        for (QAction *each : widget->actions())
            if (each->text().remove(u'&') == title && each->isVisible() && each->isEnabled())
                return each;
        qFatal("%s cannot be done there", qPrintable(title));
    }

    void write(const QString &recipients, const QString &text)
    {
        press(u"newMessage"_s);
        part<QLineEdit>(u"recipients"_s)->setText(recipients);
        part<MyTextEdit>(u"messageText"_s)->setPlainText(text);
    }

    QStringList texts(MessageBox box)
    {
        QStringList all;
        for (const Message &message : m_store->messages(m_store->ids(box)))
            all += message.text();
        return all;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MessageStore> m_store;
    std::unique_ptr<CardMonitor> m_monitor;
    std::unique_ptr<MessageService> m_service;
    std::unique_ptr<QWidget> m_window;
    MessageQueue *m_messages = nullptr;
    CShortMsg *m_page = nullptr;
};

QTEST_MAIN(TestMessagePage)
#include "tst_messagepage.moc"
