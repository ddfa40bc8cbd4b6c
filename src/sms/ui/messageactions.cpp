// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messageactions.h"

#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/recipients.h"
#include "sms/ui/messagetexts.h"
#include "widgets/messagequeue.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <algorithm>

namespace corva
{

namespace
{

bool canBeAnswered(const Message &message)
{
    const Recipients sender = readRecipients(message.recipients.value(0));
    return message.isReceived() && !message.isBroadcast && sender.error.isEmpty() &&
           !sender.numbers.isEmpty();
}

bool isDeleted(const Message &message)
{
    return message.box == MessageBox::Deleted;
}

bool hasFailed(const Message &message)
{
    const DeliveryState state = message.state();
    return state == DeliveryState::Failed || state == DeliveryState::Unsure;
}

/// Whether what is missing of it can go out from where it lies, and does not by itself.
bool canBeSentAgain(const Message &message, const MessageService &service)
{
    const bool isOwn = message.box == MessageBox::Outbox || message.box == MessageBox::Sent;
    return isOwn && message.place == MessagePlace::Computer &&
           (hasFailed(message) || service.waitsForOtherSim(message));
}

bool mayHaveGoneOut(const Message &message)
{
    return std::ranges::find(message.parts, DeliveryState::Unsure, &MessagePart::state) !=
           message.parts.end();
}

/// What decides what can be done with the chosen ones.
struct Chosen {
    int count = 0;
    int deleted = 0;
    bool canBeSentAgain = false; ///< one of them at least
    bool hasRead = false;        ///< of those that are received and not deleted
    bool hasUnread = false;
};

Chosen lookAt(const MessageService &service, const QStringList &ids)
{
    Chosen chosen;
    service.store()->visit(ids, [&](const Message &message) {
        ++chosen.count;
        chosen.deleted += isDeleted(message);
        chosen.canBeSentAgain |= canBeSentAgain(message, service);
        const bool mayBeMarked = message.isReceived() && !isDeleted(message);
        chosen.hasRead |= mayBeMarked && message.isRead;
        chosen.hasUnread |= mayBeMarked && !message.isRead;
    });
    return chosen;
}

} // namespace

MessageActions::MessageActions(MessageService *service, MessageQueue *messages, QObject *parent)
    : QObject(parent), m_service(service), m_messages(messages),
      m_reply(add(tr("&Reply"), Qt::CTRL | Qt::Key_R, &MessageActions::replyToSender)),
      m_edit(add(tr("&Edit"), {}, &MessageActions::editDraft)),
      m_forward(add(tr("&Forward"), Qt::CTRL | Qt::Key_L, &MessageActions::forwardText)),
      m_remove(add(tr("De&lete"), QKeySequence::Delete, &MessageActions::deleteChosen)),
      m_restore(add(tr("Put &back"), {}, &MessageActions::restoreChosen)),
      m_retry(add(tr("Send a&gain"), {}, &MessageActions::retryFailed)),
      m_read(add(tr("Mark as rea&d"), Qt::CTRL | Qt::Key_K, &MessageActions::markRead)),
      m_unread(add(tr("Mark as &unread"), Qt::CTRL | Qt::Key_U, &MessageActions::markUnread)),
      m_copy(add(tr("&Copy the text"), QKeySequence::Copy, &MessageActions::copyText)),
      m_export(add(tr("E&xport…"), {}, &MessageActions::exportChosen)),
      m_print(add(tr("&Print…"), QKeySequence::Print, &MessageActions::printChosen))
{
    follow();
    m_following.setSingleShot(true);
    m_following.setInterval(0);
    connect(&m_following, &QTimer::timeout, this, &MessageActions::follow);
    connect(service->store(), &MessageStore::sigChanged, &m_following, qOverload<>(&QTimer::start));
    connect(service, &MessageService::sigCardReady, &m_following, qOverload<>(&QTimer::start));
}

QAction *MessageActions::add(const QString &text, const QKeySequence &keys, void (MessageActions::*act)())
{
    auto *action = new QAction(text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, act);
    return action;
}

QList<QAction *> MessageActions::all() const
{
    return {m_reply, m_edit,   m_forward, m_remove, m_restore, m_retry,
            m_read,  m_unread, m_copy,    m_export, m_print};
}

void MessageActions::setChosen(const QStringList &ids)
{
    m_ids = ids;
    follow();
}

std::vector<Message> MessageActions::messages() const
{
    return m_service->store()->messages(m_ids);
}

void MessageActions::follow()
{
    const Chosen chosen = lookAt(*m_service, m_ids);
    const auto one = chosen.count == 1 ? m_service->store()->find(m_ids.front()) : std::nullopt;
    const bool isDraft = one && one->box == MessageBox::Drafts;
    m_edit->setVisible(isDraft);
    m_reply->setVisible(!isDraft);
    m_reply->setEnabled(one && canBeAnswered(*one));
    m_forward->setEnabled(one && !one->text().isEmpty());
    m_restore->setVisible(chosen.count > 0 && chosen.deleted == chosen.count);
    m_retry->setVisible(chosen.canBeSentAgain);
    m_read->setEnabled(chosen.hasUnread);
    m_unread->setEnabled(chosen.hasRead);
    m_remove->setText(chosen.count > 1 ? tr("De&lete %n messages", nullptr, chosen.count) : tr("De&lete"));
    for (QAction *action : {m_remove, m_copy, m_export, m_print})
        action->setEnabled(chosen.count > 0);
}

void MessageActions::fill(QMenu *menu)
{
    menu->addActions({m_reply, m_edit, m_forward, m_retry});
    menu->addSeparator();
    menu->addActions({m_copy, m_read, m_unread});
    menu->addSeparator();
    addPlaces(menu, tr("Cop&y to"), &MessageService::copyTo);
    addPlaces(menu, tr("&Move to"), &MessageService::moveTo);
    menu->addActions({m_export, m_print});
    menu->addSeparator();
    menu->addActions({m_restore, m_remove});
}

void MessageActions::addPlaces(QMenu *menu, const QString &title,
                               void (MessageService::*act)(const QStringList &, MessagePlace))
{
    QMenu *places = menu->addMenu(title);
    const std::vector<Message> chosen = messages();
    for (const MessagePlace place : {MessagePlace::Computer, MessagePlace::Sim, MessagePlace::Card}) {
        if (place == MessagePlace::Card && !m_service->hasCardStore())
            continue;
        const bool isElsewhere =
            std::any_of(chosen.begin(), chosen.end(), [=](const Message &m) { return m.place != place; });
        places->addAction(placeTitle(place), this, [this, act, place] { (m_service->*act)(m_ids, place); })
            ->setEnabled(isElsewhere);
    }
    places->setEnabled(!chosen.empty());
}

void MessageActions::replyToSender()
{
    const auto message = m_service->store()->find(m_ids.value(0));
    if (message)
        Q_EMIT sigCompose({message->recipients.value(0)}, {});
}

void MessageActions::forwardText()
{
    const auto message = m_service->store()->find(m_ids.value(0));
    if (message)
        Q_EMIT sigCompose({}, message->text());
}

void MessageActions::editDraft()
{
    Q_EMIT sigEdit(m_ids.value(0));
}

void MessageActions::deleteChosen()
{
    QStringList again;
    QStringList first;
    for (const Message &message : messages())
        (isDeleted(message) ? again : first) += message.id;
    if (!first.isEmpty()) {
        if (const int gone = m_service->removeMessages(first); gone > 0)
            Q_EMIT sigSaid(tr("%n messages were deleted.", nullptr, gone), true);
    }
    if (again.isEmpty())
        return;
    const auto count = int(again.size());
    m_messages->ask(tr("Delete %n messages for good?", nullptr, count),
                    tr("Delete %n &messages", nullptr, count), [store = m_service->store(), again]() mutable {
                        again.removeIf([&](const QString &id) { // brought back before the answer
                            const auto message = store->find(id);
                            return !message || message->box != MessageBox::Deleted;
                        });
                        store->purge(again);
                    });
}

void MessageActions::restoreChosen()
{
    m_service->store()->restore(m_ids);
}

void MessageActions::markRead()
{
    m_service->setRead(m_ids, true);
}

void MessageActions::markUnread()
{
    m_service->setRead(m_ids, false);
}

void MessageActions::retryFailed()
{
    QStringList failed;
    QStringList unsure;
    m_service->store()->visit(m_ids, [&](const Message &message) {
        if (canBeSentAgain(message, *m_service))
            (mayHaveGoneOut(message) ? unsure : failed) += message.id;
    });
    if (!failed.isEmpty())
        m_service->retry(failed);
    if (!unsure.isEmpty())
        m_messages->ask(tr("The message may have gone out already. Send it again?"), tr("Send a&gain"),
                        [service = m_service, unsure] { service->retry(unsure); });
}

void MessageActions::copyText()
{
    QStringList texts;
    for (const Message &message : messages())
        texts += message.text();
    QGuiApplication::clipboard()->setText(texts.join(u"\n\n"));
}

void MessageActions::exportChosen()
{
    Q_EMIT sigExport(m_ids);
}

void MessageActions::printChosen()
{
    Q_EMIT sigPrint(m_ids);
}

} // namespace corva
