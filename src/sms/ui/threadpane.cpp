// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/threadpane.h"

#include "sms/messageservice.h"
#include "sms/recipients.h"
#include "sms/ui/actionbutton.h"
#include "sms/ui/bubbledelegate.h"
#include "sms/ui/messageactions.h"
#include "sms/ui/messagetexts.h"
#include "sms/ui/plaintextview.h"
#include "sms/ui/rowlist.h"
#include "sms/ui/threadmodel.h"
#include "widgets/buttonkind.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace corva
{

ThreadPane::ThreadPane(MessageService *service, MessageActions *actions, QWidget *parent)
    : QWidget(parent), m_service(service), m_actions(actions),
      m_name(new ElidedLabel(TextRole::Strong, this)), m_numbers(new ElidedLabel(TextRole::Caption, this)),
      m_earlier(new QPushButton(tr("Show &earlier messages"), this)),
      m_write(new QPushButton(tr("&Write"), this)), m_list(new RowList(this)),
      m_model(new ThreadModel(service, this))
{
    setObjectName(u"threadPane"_s);
    m_name->setObjectName(u"threadName"_s);
    m_list->setObjectName(u"thread"_s);
    m_list->setAccessibleName(tr("Conversation"));
    m_earlier->setObjectName(u"earlier"_s);
    m_write->setObjectName(u"write"_s);
    m_numbers->setMuted(true);
    setButtonKind(m_earlier, ButtonKind::Flat);
    build();
    connect(m_earlier, &QPushButton::clicked, m_model, &ThreadModel::showEarlier);
    connect(m_write, &QPushButton::clicked, this,
            [this] { Q_EMIT sigWrite({m_conversation.numbers.value(0)}); });
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &ThreadPane::follow);
    connect(m_model, &QAbstractItemModel::modelReset, this, &ThreadPane::follow);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ThreadPane::sigChosen);
    connect(m_list, &QWidget::customContextMenuRequested, this, &ThreadPane::openMenu);
}

void ThreadPane::build()
{
    m_list->setModel(m_model);
    m_list->setItemDelegate(new BubbleDelegate(m_list));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or bubbles change their width with it
    m_list->setResizeMode(QListView::Adjust);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addWidget(m_write);
    buttons->addStretch(1);
    buttons->addWidget(new ActionButton(m_actions->retry(), u"threadRetry"_s, this));
    buttons->addWidget(new ActionButton(m_actions->remove(), u"threadDelete"_s, this));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::HalfGrid);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(m_name);
    layout->addWidget(m_numbers);
    layout->addWidget(m_earlier);
    layout->addWidget(m_list, 1);
    layout->addSpacing(metrics::HalfGrid);
    layout->addLayout(buttons);
    setTabOrder(m_earlier, m_list);
    setTabOrder(m_list, m_write);
}

void ThreadPane::show(const Conversation &conversation)
{
    const bool isOther = conversation.key != m_conversation.key;
    const bool followsEnd = isOther || isAtEnd();
    m_conversation = conversation;
    const QString name = m_service->nameFor(conversation.numbers.value(0));
    m_name->setFullText(name);
    m_numbers->setFullText(conversation.numbers.join(tr(", ")));
    m_numbers->setVisible(conversation.numbers != QStringList{name});
    const Recipients recipients = readRecipients(conversation.numbers.value(0));
    m_write->setEnabled(recipients.error.isEmpty() && !recipients.numbers.isEmpty());
    m_model->setMessages(conversation.ids, isOther);
    if (isOther) // where the keyboard begins
        m_list->selectionModel()->setCurrentIndex(m_model->index(m_model->rowCount() - 1),
                                                  QItemSelectionModel::NoUpdate);
    if (followsEnd)
        m_list->scrollToBottom();
}

bool ThreadPane::isAtEnd() const
{
    const QScrollBar *bar = m_list->verticalScrollBar();
    return bar->value() >= bar->maximum() - metrics::RowHeight;
}

QStringList ThreadPane::chosen() const
{
    QStringList ids;
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        ids += m_model->idAt(row.row());
    return ids.isEmpty() ? m_conversation.ids : ids;
}

void ThreadPane::follow()
{
    m_earlier->setVisible(m_model->hasEarlier());
}

void ThreadPane::openMenu(const QPoint &position)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addLinkCopies(menu, linksIn(m_model->textOf(m_list->selectionModel()->selectedRows())));
    m_actions->fill(menu);
    menu->popup(m_list->viewport()->mapToGlobal(position));
}

} // namespace corva
