// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagebrowser.h"

#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/conversationmodel.h"
#include "sms/ui/messageactions.h"
#include "sms/ui/messagerowdelegate.h"
#include "sms/ui/messagetexts.h"
#include "sms/ui/rowlist.h"
#include "widgets/textlabel.h"

#include <QMenu>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct EmptyRow {
    MessageBox box;
    const char *text;
};

constexpr EmptyRow emptyRows[] = {
    {MessageBox::Inbox, QT_TRANSLATE_NOOP("corva::MessageBrowser", "No message has come yet.")},
    {MessageBox::Outbox, QT_TRANSLATE_NOOP("corva::MessageBrowser", "Nothing waits to be sent.")},
    {MessageBox::Sent, QT_TRANSLATE_NOOP("corva::MessageBrowser", "You have sent no message yet.")},
    {MessageBox::Drafts,
     QT_TRANSLATE_NOOP("corva::MessageBrowser", "No drafts. What you write is kept here until you send it.")},
    {MessageBox::Deleted, QT_TRANSLATE_NOOP("corva::MessageBrowser", "Nothing was deleted.")},
    {MessageBox::Reports, QT_TRANSLATE_NOOP("corva::MessageBrowser", "No delivery report has come yet.")},
};

} // namespace

MessageBrowser::MessageBrowser(MessageService *service, MessageActions *actions, QWidget *parent)
    : QWidget(parent), m_service(service), m_actions(actions),
      m_messages(new MessageListModel(service, this)), m_persons(new ConversationModel(service, this)),
      m_stack(new QStackedWidget(this)), m_list(new RowList(this)),
      m_empty(new TextLabel(TextRole::Text, this))
{
    build(actions);
    // Before the selection hears of it, which then forgets the row.
    for (QAbstractItemModel *model : std::initializer_list<QAbstractItemModel *>{m_messages, m_persons})
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex &, int first) {
                    if (m_list->selectionModel()->isRowSelected(first))
                        m_leftRow = first;
                });
    useModel(m_messages);
    for (QAbstractItemModel *model : std::initializer_list<QAbstractItemModel *>{m_messages, m_persons}) {
        connect(model, &QAbstractItemModel::modelReset, this, &MessageBrowser::keepChosen);
        connect(model, &QAbstractItemModel::rowsInserted, this, &MessageBrowser::showEmpty);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &MessageBrowser::keepChosen);
    }
    connect(m_persons, &QAbstractItemModel::dataChanged, this, &MessageBrowser::sigConversationsChanged);
    connect(service, &MessageService::sigPlaceChanged, this, &MessageBrowser::showEmpty);
    connect(m_list, &QListView::activated, this, &MessageBrowser::sigActivated);
    connect(m_list, &QWidget::customContextMenuRequested, this, &MessageBrowser::openMenu);
}

void MessageBrowser::build(MessageActions *actions)
{
    m_list->setObjectName(u"messages"_s);
    m_list->setItemDelegate(new MessageRowDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->addActions(actions->all());
    m_empty->setObjectName(u"messagesEmpty"_s);
    m_empty->setMuted(true);
    m_empty->setWordWrap(true);
    m_empty->setPlace(Qt::AlignCenter);
    m_stack->addWidget(m_list);
    m_stack->addWidget(m_empty);
    connect(m_stack, &QStackedWidget::currentChanged, this, &MessageBrowser::sigEmptied);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::HalfGrid);
    layout->addWidget(m_stack);
}

void MessageBrowser::useModel(QAbstractItemModel *model)
{
    if (m_list->model() == model)
        return;
    delete m_list->selectionModel();
    m_list->setModel(model);
    m_list->setAccessibleName(model == m_persons ? tr("Conversations") : tr("Messages"));
    m_list->setSelectionMode(model == m_persons ? QAbstractItemView::SingleSelection
                                                : QAbstractItemView::ExtendedSelection);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MessageBrowser::takeSelection);
}

bool MessageBrowser::isEmpty() const
{
    return m_stack->currentWidget() == m_empty;
}

bool MessageBrowser::isByPerson() const
{
    return m_list->model() == m_persons;
}

void MessageBrowser::show(const MessageView &view)
{
    m_view = view;
    m_chosen.clear();
    m_persons->setShown(view.isByPerson);
    useModel(view.isByPerson ? static_cast<QAbstractItemModel *>(m_persons) : m_messages);
    if (!view.isByPerson)
        m_messages->show(view.filter);
    m_list->clearSelection();
    m_list->scrollToTop();
    showEmpty();
    Q_EMIT sigChosen();
}

void MessageBrowser::setWords(const QString &words)
{
    if (words.simplified().isEmpty()) {
        show(m_view);
        return;
    }
    MessageFilter filter = m_view.filter;
    filter.words = words.simplified();
    useModel(m_messages);
    m_messages->show(filter);
    showEmpty();
}

void MessageBrowser::retell()
{
    m_messages->retell();
    showEmpty();
}

QStringList MessageBrowser::chosen() const
{
    if (isByPerson())
        return {};
    std::vector<int> rows;
    const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    QStringList ids;
    for (const int row : rows)
        ids += m_messages->idAt(row);
    return ids;
}

const Conversation *MessageBrowser::conversation() const
{
    const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    return isByPerson() && !selected.isEmpty() ? m_persons->find(m_persons->keyAt(selected.front().row()))
                                               : nullptr;
}

void MessageBrowser::choose(const QString &id)
{
    const int row = m_messages->rowOf(id);
    if (!isByPerson() && row >= 0)
        m_list->setCurrentIndex(m_messages->index(row));
}

void MessageBrowser::selectAll()
{
    m_list->selectAll();
}

void MessageBrowser::takeFocus()
{
    m_list->setFocus(Qt::OtherFocusReason);
}

void MessageBrowser::takeSelection()
{
    if (m_isKeeping)
        return;
    const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    m_chosen = selected.isEmpty() ? QString() : selected.front().data(IdRole).toString();
    Q_EMIT sigChosen();
}

/// After rows left: the one chosen stays so; where it left, the one that has its place now is.
void MessageBrowser::keepChosen()
{
    showEmpty();
    if (!m_list->selectionModel() || m_list->selectionModel()->hasSelection())
        return;
    const int row = isByPerson() ? m_persons->rowOf(m_chosen) : m_messages->rowOf(m_chosen);
    QModelIndex next = m_list->model()->index(row, 0);
    if (!next.isValid() && m_leftRow >= 0)
        next = m_list->model()->index(qMin(m_leftRow, m_list->model()->rowCount() - 1), 0);
    m_leftRow = -1;
    if (!next.isValid()) {
        takeSelection();
        return;
    }
    const bool isSame = next.data(IdRole).toString() == m_chosen;
    m_isKeeping = isSame;
    m_list->setCurrentIndex(next);
    m_isKeeping = false;
    if (isSame && isByPerson())
        Q_EMIT sigConversationsChanged();
}

void MessageBrowser::showEmpty()
{
    const bool isEmpty = m_list->model()->rowCount() == 0;
    m_empty->setText(isEmpty ? emptyText() : QString());
    m_stack->setCurrentWidget(isEmpty ? static_cast<QWidget *>(m_empty) : m_list);
}

QString MessageBrowser::emptyText() const
{
    if (!m_service->store()->isLoaded())
        return tr("Reading the messages…");
    const MessageFilter &filter = m_messages->filter();
    if (!isByPerson() && !filter.words.isEmpty())
        return tr("No message has all of these words.");
    if (isByPerson())
        return tr("Nobody has written yet. Press Ctrl+N to write first.");
    if (filter.kind == MessageFilter::Kind::Broadcasts)
        return tr("No broadcast has come yet. Choose the channels to listen to above.");
    if (filter.kind == MessageFilter::Kind::Box)
        return tr(emptyRows[int(filter.box)].text);
    const PlaceState &place = m_service->place(filter.place);
    if (place.isLoading)
        return tr("Reading the %1…").arg(placeTitle(filter.place));
    return place.isRead ? tr("No message is kept there.") : tr("It was not read yet. Is a card plugged in?");
}

void MessageBrowser::openMenu(const QPoint &position)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_actions->fill(menu);
    menu->popup(m_list->viewport()->mapToGlobal(position));
}

} // namespace corva
