// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/broadcastbar.h"

#include "sms/messageservice.h"
#include "sms/ui/channels.h"
#include "widgets/formfield.h"
#include "widgets/skin.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

BroadcastBar::BroadcastBar(MessageService *service, QWidget *parent)
    : QWidget(parent), m_service(service),
      m_channels(new FormField(tr("C&hannels"), u"channels"_s, FormField::Kind::Code, this))
{
    setObjectName(u"broadcastBar"_s);
    m_channels->edit()->setPlaceholderText(tr("Numbers and ranges, as 50, 4370-4372"));
    auto *listen = new QPushButton(tr("L&isten"), this);
    listen->setObjectName(u"listen"_s);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(m_channels, 1);
    layout->addWidget(listen, 0, Qt::AlignBottom);
    connect(listen, &QPushButton::clicked, this, &BroadcastBar::take);
    connect(m_channels->edit(), &QLineEdit::returnPressed, this, &BroadcastBar::take);
}

void BroadcastBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_channels->setText(channelsText(m_service->broadcastChannels()));
}

void BroadcastBar::take()
{
    const Channels channels = readChannels(m_channels->text());
    m_channels->setError(channels.error);
    if (channels.error.isEmpty())
        m_service->setBroadcastChannels(channels.numbers);
}

} // namespace corva
