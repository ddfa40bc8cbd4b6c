// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/messagequeue.h"

#include "widgets/buttonkind.h"
#include "widgets/skinicon.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int iconSize = 32;
}

MessageQueue::MessageQueue(QWidget *window) : QObject(window), m_window(window) {}

void MessageQueue::tell(const QString &text)
{
    enqueue({text, {}, {}});
}

void MessageQueue::ask(const QString &text, std::function<void()> yes)
{
    enqueue({text, {}, std::move(yes)});
}

void MessageQueue::ask(const QString &text, const QString &verb, std::function<void()> yes)
{
    enqueue({text, verb, std::move(yes)});
}

void MessageQueue::withdraw(const QString &text)
{
    std::erase_if(m_waiting, [&](const Message &message) { return message.text == text; });
    if (m_shown && m_shown->text() == text)
        m_shown->reject();
}

void MessageQueue::enqueue(Message message)
{
    const auto isSame = [&](const Message &other) { return other.text == message.text; };
    const bool isShown = m_shown && m_shown->text() == message.text;
    if (isShown || std::any_of(m_waiting.begin(), m_waiting.end(), isSame))
        return;
    m_waiting.push_back(std::move(message));
    showNext();
}

void MessageQueue::showNext()
{
    if (m_shown || m_waiting.empty())
        return;
    if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        waitFor(dialog);
        return;
    }
    const Message message = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_shown = build(message);
    m_shown->open();
}

QMessageBox *MessageQueue::build(const Message &message)
{
    auto *box = new QMessageBox(m_window);
    box->setObjectName(u"messageBox"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(comcfg.softwareName);
    box->setTextFormat(Qt::PlainText);
    box->setText(message.text);
    box->setIconPixmap(skinPixmap(message.yes ? u"question"_s : u"problem"_s,
                                  skinColor(message.yes ? SkinRole::Accent : SkinRole::Warning), iconSize,
                                  m_window->devicePixelRatioF()));
    if (!message.yes) {
        box->setStandardButtons(QMessageBox::Ok);
    } else if (message.verb.isEmpty()) {
        box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box->setDefaultButton(QMessageBox::No);
    } else {
        box->setStandardButtons(QMessageBox::Cancel);
        setButtonKind(box->addButton(message.verb, QMessageBox::YesRole), ButtonKind::Dangerous);
        box->setDefaultButton(QMessageBox::Cancel);
    }
    connect(box, &QMessageBox::finished, this, [this, box, yes = message.yes] {
        const bool isYes =
            yes && box->clickedButton() && box->buttonRole(box->clickedButton()) == QMessageBox::YesRole;
        m_shown = nullptr;
        if (isYes)
            yes();
        showNext();
    });
    return box;
}

void MessageQueue::waitFor(QDialog *dialog)
{
    if (m_awaited == dialog)
        return;
    m_awaited = dialog;
    // Both: one that is closed may live on, and one may go without a word. Its window is closed a turn later.
    const auto goOn = [this] {
        m_awaited = nullptr;
        QMetaObject::invokeMethod(this, &MessageQueue::showNext, Qt::QueuedConnection);
    };
    connect(dialog, &QDialog::finished, this, goOn, Qt::SingleShotConnection);
    connect(dialog, &QObject::destroyed, this, goOn, Qt::SingleShotConnection);
}

} // namespace corva
