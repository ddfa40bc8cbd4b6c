// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/sendbar.h"

#include "sms/messageservice.h"
#include "widgets/messagequeue.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

SendBar::SendBar(MessageService *service, MessageQueue *messages, QWidget *parent)
    : QWidget(parent), m_service(service), m_messages(messages), m_text(new TextLabel(TextRole::Text, this)),
      m_progress(new QProgressBar(this))
{
    setObjectName(u"sendBar"_s);
    m_text->setObjectName(u"sending"_s);
    m_progress->setAccessibleName(tr("Sent parts"));
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(metrics::Grid);
    auto *cancel = new QPushButton(tr("&Cancel sending"), this);
    cancel->setObjectName(u"cancelSending"_s);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(m_text);
    layout->addWidget(m_progress, 1);
    layout->addWidget(cancel);
    connect(cancel, &QPushButton::clicked, this, &SendBar::askToCancel);
    connect(service, &MessageService::sigSending, this, &SendBar::follow);
    follow();
}

void SendBar::follow()
{
    const SendProgress &progress = m_service->sending();
    m_text->setText(inLayoutDirection(progress.totalParts > 1
                                          ? tr("%1 %2 of %3")
                                                .arg(tr("Sending ..."), QString::number(progress.sentParts),
                                                     QString::number(progress.totalParts))
                                          : tr("Sending ...")));
    m_progress->setMaximum(qMax(1, progress.totalParts));
    m_progress->setValue(progress.sentParts);
    setVisible(progress.isActive);
}

void SendBar::askToCancel()
{
    m_messages->ask(tr("Do you want to cancel sending the rest SMS?"),
                    [this] { m_service->cancelSending(); });
}

} // namespace corva
