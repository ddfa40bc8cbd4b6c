// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/cshortmsg.h"

#include "connection/ui/connector.h"
#include "shell/globals.h"
#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/broadcastbar.h"
#include "sms/ui/composer.h"
#include "sms/ui/messageactions.h"
#include "sms/ui/messagebrowser.h"
#include "sms/ui/messagedesk.h"
#include "sms/ui/messageexchange.h"
#include "sms/ui/messageprint.h"
#include "sms/ui/messagetexts.h"
#include "sms/ui/readingpane.h"
#include "sms/ui/sendbar.h"
#include "sms/ui/servicecentredialog.h"
#include "sms/ui/threadpane.h"
#include "widgets/buttonkind.h"
#include "widgets/noticebar.h"
#include "widgets/textlabel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

constexpr int listWidth = 264;
constexpr int detailWidth = 376;
constexpr int boxesWidth = 200;

} // namespace

CShortMsg::CShortMsg(const PageInfo &info, MessageService *service, MessageQueue *messages, QWidget *parent)
    : Page(info, parent), m_service(service), m_messages(messages),
      m_templates(basePath + u"/Data/sms-templates.json"_s),
      m_exchange(new MessageExchange(service->store(), this)),
      m_actions(new MessageActions(service, messages, this)),
      m_new(new QPushButton(tr("&New message"), this)), m_more(new QMenu(this)),
      m_boxes(new BoxChooser(service, this)), m_search(new QLineEdit(this)),
      m_channels(new BroadcastBar(service, this)), m_problem(new NoticeBar(this)),
      m_said(new NoticeBar(this)), m_browser(new MessageBrowser(service, m_actions, this)),
      m_detail(new QStackedWidget(this)), m_hint(new TextLabel(TextRole::Text, m_detail)),
      m_reading(new ReadingPane(service, m_actions, m_detail)),
      m_thread(new ThreadPane(service, m_actions, m_detail)),
      m_composer(new Composer(service, &m_templates, m_detail))
{
    build();
    connectParts();
    connectService();
    addShortcuts();
    openView(m_boxes->view());
}

void CShortMsg::build()
{
    buildHead();
    buildDetail();
    auto *columns = new QSplitter(Qt::Horizontal, this);
    columns->setObjectName(u"columns"_s);
    columns->setHandleWidth(2 * metrics::Grid);
    columns->setChildrenCollapsible(false);
    columns->addWidget(m_browser);
    columns->addWidget(m_detail);
    columns->setSizes({listWidth, detailWidth});
    columns->setStretchFactor(0, 2);
    columns->setStretchFactor(1, 3);

    auto *head = new QHBoxLayout;
    head->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    head->setSpacing(metrics::Grid);
    head->addWidget(m_boxes);
    head->addWidget(m_search, 1);
    body()->addLayout(head);
    body()->addWidget(m_channels);
    body()->addWidget(m_problem);
    body()->addWidget(m_said);
    body()->addWidget(columns, 1);
    body()->addWidget(new SendBar(m_service, m_messages, this));
}

void CShortMsg::buildHead()
{
    auto *more = new QPushButton(tr("M&ore"), this);
    more->setObjectName(u"more"_s);
    more->setMenu(m_more);
    m_new->setObjectName(u"newMessage"_s);
    m_new->setToolTip(tr("%1 (%2)").arg(tr("New message"), u"Ctrl+N"_s));
    setButtonKind(m_new, ButtonKind::Primary);
    Page::addAction(more);
    Page::addAction(m_new);
    setTabOrder(more, m_new);
    m_boxes->setMinimumWidth(boxesWidth);
    m_search->setObjectName(u"messageSearch"_s);
    m_search->setAccessibleName(tr("Search all messages"));
    m_search->setPlaceholderText(
        tr("Search (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    m_search->setClearButtonEnabled(true);
    m_search->setTextMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
}

void CShortMsg::buildDetail()
{
    m_detail->setObjectName(u"messageDetail"_s);
    m_hint->setObjectName(u"messageHint"_s);
    m_hint->setMuted(true);
    m_hint->setWordWrap(true);
    m_hint->setPlace(Qt::AlignCenter);
    for (QWidget *part : std::initializer_list<QWidget *>{m_hint, m_reading, m_thread, m_composer})
        m_detail->addWidget(part);
    m_reading->addActions(m_actions->all());
    m_thread->addActions(m_actions->all());
}

void CShortMsg::connectParts()
{
    connect(m_new, &QPushButton::clicked, this, [this] { write(); });
    connect(m_more, &QMenu::aboutToShow, this, &CShortMsg::fillMore);
    connect(m_boxes, &BoxChooser::sigChosen, this, &CShortMsg::openView);
    connect(m_search, &QLineEdit::textChanged, this, &CShortMsg::search);
    connect(m_browser, &MessageBrowser::sigChosen, this, &CShortMsg::follow);
    connect(m_browser, &MessageBrowser::sigConversationsChanged, this, &CShortMsg::followConversation);
    connect(m_browser, &MessageBrowser::sigEmptied, this, &CShortMsg::showHint);
    connect(m_browser, &MessageBrowser::sigActivated, this, &CShortMsg::activate);
    connect(m_thread, &ThreadPane::sigChosen, this, [this] { m_actions->setChosen(m_thread->chosen()); });
    connect(m_thread, &ThreadPane::sigWrite, this, [this](const QStringList &to) { write(to); });
    connect(m_actions, &MessageActions::sigCompose, this, &CShortMsg::write);
    connect(m_actions, &MessageActions::sigEdit, this, &CShortMsg::goInto);
    connect(m_actions, &MessageActions::sigSaid, this, &CShortMsg::say);
    connect(m_actions, &MessageActions::sigPrint, this, &CShortMsg::print);
    connect(m_actions, &MessageActions::sigExport, m_exchange, &MessageExchange::exportMessages);
    connect(m_exchange, &MessageExchange::sigSaid, this, [this](const QString &text) { say(text, false); });
    connect(m_composer, &Composer::sigClosed, this, [this] {
        leaveComposer();
        follow();
        m_browser->takeFocus();
    });
    connect(m_composer, &Composer::sigDiscarded, this, &CShortMsg::discard);
    connect(m_composer, &Composer::sigSaid, this, [this](const QString &text) { say(text, false); });
    connect(m_said, &NoticeBar::sigAction, this, &CShortMsg::undo);
    connect(m_problem, &NoticeBar::sigAction, this, &CShortMsg::refresh);
}

void CShortMsg::connectService()
{
    const MessageStore *store = m_service->store();
    connect(store, &MessageStore::sigLoaded, m_browser, &MessageBrowser::retell);
    connect(store, &MessageStore::sigChanged, this, [this](const QStringList &ids) {
        if (!m_isWriting && m_detail->currentWidget() == m_reading && ids.contains(m_reading->shown()))
            showChosen({m_reading->shown()});
    });
    connect(m_service, &MessageService::sigPlaceChanged, this, &CShortMsg::showPlace);
    connect(m_service, &MessageService::sigNotice, this, [this](const QString &text) { say(text, false); });
    connect(m_service, &MessageService::sigSendSummary, this, [this](int sent, int failed) {
        say(tr("Sent successfully %1,failed %2").arg(sent).arg(failed), false);
    });
}

void CShortMsg::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, QWidget *where, auto &&action) {
        auto *shortcut = new QShortcut(keys, where);
        shortcut->setContext(where == this ? Qt::WindowShortcut : Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    add(QKeySequence::New, this, [this] { write(); });
    add(QKeySequence::Find, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    for (QWidget *part : std::initializer_list<QWidget *>{m_browser, m_reading, m_thread})
        add(QKeySequence::Undo, part, [this] { undo(); });
    add(Qt::Key_Escape, m_search, [this] {
        m_search->clear();
        m_browser->takeFocus();
    });
    add(Qt::Key_Escape, m_reading, [this] { m_browser->takeFocus(); });
    add(Qt::Key_Down, m_search, [this] { m_browser->takeFocus(); });
}

void CShortMsg::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    m_boxes->offer(); // the settings may have changed
    m_browser->retell();
}

void CShortMsg::getSimAllSmsItem()
{
    m_service->refreshPlace(MessagePlace::Sim);
}

void CShortMsg::refresh()
{
    getSimAllSmsItem();
    if (m_service->hasCardStore())
        m_service->refreshPlace(MessagePlace::Card);
}

void CShortMsg::fillMore()
{
    m_more->clear();
    m_actions->fill(m_more);
    m_more->addSeparator();
    m_more->addAction(tr("Select &all"), m_browser, &MessageBrowser::selectAll)
        ->setEnabled(!m_browser->isByPerson());
    m_more->addAction(tr("&Import…"), m_exchange, &MessageExchange::importMessages);
    m_more->addAction(tr("&Undo deleting"), this, &CShortMsg::undo);
    m_more->addAction(tr("Read the SIM and the data card ane&w"), this, &CShortMsg::refresh);
    m_more->addAction(tr("&Service centre…"), this, [this] {
        auto *dialog = new ServiceCentreDialog(m_service, this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    });
}

void CShortMsg::openView(const MessageView &view)
{
    const bool isBroadcasts = view.filter.kind == MessageFilter::Kind::Broadcasts && !view.isByPerson;
    m_channels->setVisible(isBroadcasts);
    m_search->clear();
    m_browser->show(view);
    const MessagePlace place = view.filter.place;
    if (view.filter.kind == MessageFilter::Kind::Place && !m_service->place(place).isRead)
        m_service->refreshPlace(place);
    showPlace();
}

void CShortMsg::search(const QString &words)
{
    m_browser->setWords(words);
}

/// Shows what is chosen, and counts it as read: the person looks at it.
void CShortMsg::follow()
{
    // A list that changes by itself takes nobody out of what is being written.
    if (m_isWriting && m_composer->isAncestorOf(window()->focusWidget()))
        return;
    leaveComposer();
    if (m_browser->isByPerson()) {
        followConversation();
        return;
    }
    const QStringList ids = m_browser->chosen();
    m_actions->setChosen(ids);
    showChosen(ids);
    if (ids.size() == 1 && isVisible())
        markRead(ids);
}

void CShortMsg::followConversation()
{
    if (m_isWriting || !m_browser->isByPerson())
        return;
    const Conversation *conversation = m_browser->conversation();
    if (!conversation) {
        m_actions->setChosen({});
        showChosen({});
        return;
    }
    const QStringList ids = conversation->ids;
    const bool hasUnread = conversation->unread > 0;
    m_thread->show(*conversation);
    m_actions->setChosen(m_thread->chosen());
    m_detail->setCurrentWidget(m_thread);
    if (hasUnread && isVisible())
        markRead(ids);
}

void CShortMsg::showChosen(const QStringList &ids)
{
    const auto message = ids.size() == 1 ? m_service->store()->find(ids.front()) : std::nullopt;
    if (message) {
        m_reading->show(*message);
        m_detail->setCurrentWidget(m_reading);
        return;
    }
    m_detail->setCurrentWidget(m_hint);
    showHint();
}

/// What may be done next. An empty list says so itself.
void CShortMsg::showHint()
{
    const auto count = int(m_browser->chosen().size());
    m_hint->setText(m_browser->isEmpty() ? QString()
                    : count == 0         ? tr("Choose a message to read it, or write one with Ctrl+N.")
                                         : tr("%n messages are chosen.", nullptr, count));
}

void CShortMsg::markRead(const QStringList &ids)
{
    QStringList unread;
    m_service->store()->visit(ids, [&](const Message &message) {
        if (message.isReceived() && !message.isRead)
            unread += message.id;
    });
    if (!unread.isEmpty())
        m_service->setRead(unread, true);
}

void CShortMsg::activate()
{
    if (const QStringList ids = m_browser->chosen(); ids.size() == 1)
        goInto(ids.front());
}

void CShortMsg::goInto(const QString &id)
{
    const auto message = m_service->store()->find(id);
    if (message && message->box == MessageBox::Drafts) {
        leaveComposer();
        setWriting(true);
        if (message->place == MessagePlace::Computer)
            m_composer->open(message->id);
        else // the one on the card stays as it is
            m_composer->begin(message->recipients, message->text());
    } else if (message && m_detail->currentWidget() == m_reading) {
        m_reading->takeFocus();
    }
}

void CShortMsg::write(const QStringList &recipients, const QString &text)
{
    leaveComposer();
    setWriting(true);
    m_composer->begin(recipients, text);
}

void CShortMsg::leaveComposer()
{
    if (!m_isWriting)
        return;
    m_composer->leave();
    setWriting(false);
}

/// While a message is written, its button is the page's first one.
void CShortMsg::setWriting(bool isWriting)
{
    m_isWriting = isWriting;
    setButtonKind(m_new, isWriting ? ButtonKind::Plain : ButtonKind::Primary);
    if (isWriting)
        m_detail->setCurrentWidget(m_composer);
}

void CShortMsg::showEntry(const QString &id)
{
    const auto message = m_service->store()->find(id);
    if (!message)
        return;
    leaveComposer();
    m_boxes->offer(); // the settings may have changed while the page was not shown
    const bool isBroadcast = message->isBroadcast && message->box == MessageBox::Inbox;
    m_boxes->choose(
        {.filter = {.kind = isBroadcast ? MessageFilter::Kind::Broadcasts : MessageFilter::Kind::Box,
                    .box = message->box}});
    openView(m_boxes->view());
    m_browser->choose(id);
    if (m_browser->chosen() != QStringList{id}) // its box is not offered any more
        showChosen({id});
    m_browser->takeFocus();
}

void CShortMsg::discard(const QString &draftId)
{
    m_service->removeMessages({draftId});
    say(tr("The draft was deleted."), true);
}

void CShortMsg::say(const QString &sentence, bool canUndo)
{
    m_said->say(sentence, canUndo ? tr("&Undo") : QString());
}

void CShortMsg::undo()
{
    m_said->clear();
    if (!m_service->undoRemoval())
        say(tr("There is nothing to bring back."), false);
    m_browser->takeFocus();
}

/// What is wrong with the SIM's or the card's memory: of both while the boxes are shown.
void CShortMsg::showPlace()
{
    m_problem->clear();
    for (const MessagePlace place : {MessagePlace::Sim, MessagePlace::Card}) {
        const PlaceState &state = m_service->place(place);
        const bool isShown =
            m_boxes->view() == MessageView{.filter = {.kind = MessageFilter::Kind::Place, .place = place}};
        if (isShown && !state.error.isEmpty()) {
            m_problem->say(state.error, tr("&Try again"));
            return;
        }
        if (state.capacity && state.capacity->isNearlyFull())
            m_problem->say(tr("%1: %2 of %3 places are used. When it is full, no message can come in.")
                               .arg(placeTitle(place))
                               .arg(state.capacity->used)
                               .arg(state.capacity->total));
    }
}

void CShortMsg::print(const QStringList &ids)
{
    const auto nameOf = [this](const QString &number) { return m_service->nameFor(number); };
    printText(printedText(m_service->store()->messages(ids), nameOf), this);
}

namespace corva
{

PageEntry messagesPageEntry()
{
    PageInfo info{u"messages"_s, CShortMsg::tr("Messages"), u"message"_s, 7, false};
    return {info, [](const PageInfo &page, const PageContext &context, QWidget *parent) -> Page * {
                return new CShortMsg(page, context.messageService, &context.connector->messages(), parent);
            }};
}

} // namespace corva
