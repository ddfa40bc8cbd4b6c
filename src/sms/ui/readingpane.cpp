// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/readingpane.h"

#include "sms/messageservice.h"
#include "sms/ui/actionbutton.h"
#include "sms/ui/messageactions.h"
#include "sms/ui/messagetexts.h"
#include "sms/ui/plaintextview.h"
#include "widgets/buttonkind.h"
#include "widgets/textlabel.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QMenu>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int detailsHeight = 96;
}

ReadingPane::ReadingPane(MessageService *service, MessageActions *actions, QWidget *parent)
    : QWidget(parent), m_service(service), m_actions(actions),
      m_people(new ElidedLabel(TextRole::Strong, this)), m_about(new ElidedLabel(TextRole::Caption, this)),
      m_notice(new TextLabel(TextRole::Text, this)), m_text(new PlainTextView(this)),
      m_delivery(new TextLabel(TextRole::Caption, this)), m_more(new QPushButton(tr("De&tails"), this)),
      m_details(new QPlainTextEdit(this))
{
    setObjectName(u"readingPane"_s);
    m_people->setObjectName(u"messagePeople"_s);
    m_about->setObjectName(u"messageAbout"_s);
    m_notice->setObjectName(u"messageNotice"_s);
    m_text->setObjectName(u"messageBody"_s);
    m_text->setAccessibleName(tr("The message"));
    m_delivery->setObjectName(u"messageDelivery"_s);
    m_more->setObjectName(u"messageDetailsShown"_s);
    m_details->setObjectName(u"messageDetails"_s);
    m_details->setAccessibleName(tr("Details"));
    build();
    connect(m_more, &QPushButton::toggled, m_details, &QWidget::setVisible);
    connect(m_text, &QWidget::customContextMenuRequested, this, &ReadingPane::openMenu);
}

void ReadingPane::build()
{
    m_about->setMuted(true);
    m_delivery->setMuted(true);
    m_delivery->setWordWrap(true);
    m_notice->setWordWrap(true);
    setButtonKind(m_more, ButtonKind::Flat);
    m_more->setCheckable(true);
    m_details->setReadOnly(true);
    m_details->setTabChangesFocus(true);
    m_details->setLayoutDirection(Qt::LeftToRight);
    m_details->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_details->setFixedHeight(detailsHeight);
    m_details->hide();

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    QWidget *before = m_details;
    const auto add = [&](QWidget *button) {
        buttons->addWidget(button);
        setTabOrder(std::exchange(before, button), button);
    };
    add(new ActionButton(m_actions->reply(), u"reply"_s, this));
    add(new ActionButton(m_actions->edit(), u"editDraft"_s, this));
    add(new ActionButton(m_actions->forward(), u"forward"_s, this));
    add(new ActionButton(m_actions->retry(), u"retry"_s, this));
    buttons->addStretch(1);
    add(m_more);
    add(new ActionButton(m_actions->remove(), u"deleteMessage"_s, this));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::HalfGrid);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(m_people);
    layout->addWidget(m_about);
    layout->addWidget(m_notice);
    layout->addSpacing(metrics::HalfGrid);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_delivery);
    layout->addWidget(m_details);
    layout->addSpacing(metrics::HalfGrid);
    layout->addLayout(buttons);
}

void ReadingPane::show(const Message &message)
{
    m_shown = message.id;
    showHead(message);
    showNotice(message);
    m_text->setText(contentOf(message));
    const QString delivery = deliveryDetails(message, nameOf());
    m_delivery->setText(delivery);
    m_delivery->setVisible(!delivery.isEmpty());
    m_details->setPlainText(details(message));
}

NameOf ReadingPane::nameOf() const
{
    return [this](const QString &number) { return m_service->nameFor(number); };
}

void ReadingPane::showHead(const Message &message)
{
    m_people->setFullText(peopleOf(message, nameOf()));
    QStringList about;
    const QString numbers = message.recipients.join(tr(", "));
    if (numbers != m_people->fullText())
        about += numbers;
    about += fullWhen(message.time);
    about += message.place == MessagePlace::Computer
                 ? boxTitle(message.box)
                 : tr("%1, %2").arg(boxTitle(message.box), placeTitle(message.place));
    about.removeAll(QString());
    m_about->setFullText(about.join(tr("  ·  ")));
}

void ReadingPane::showNotice(const Message &message)
{
    QString notice = message.error; // a sentence of its own
    if (const QString parts = partsNote(message); notice.isEmpty() && !parts.isEmpty())
        notice = tr("%1 parts are here. The others are added when they come.").arg(parts);
    m_notice->setText(notice);
    m_notice->setVisible(!notice.isEmpty());
}

QString ReadingPane::details(const Message &message) const
{
    QStringList lines;
    if (!message.serviceCentre.isEmpty())
        lines += tr("Service centre: %1").arg(message.serviceCentre);
    if (message.arrived.isValid())
        lines += tr("Arrived: %1").arg(fullWhen(message.arrived));
    if (message.isBroadcast)
        lines += tr("Channel: %1").arg(message.channel);
    for (const MessagePart &part : message.parts)
        if (!part.pdu.isEmpty())
            lines += tr("Part %1: %2").arg(QString::number(part.sequence), part.pdu);
    return lines.isEmpty() ? tr("It did not travel yet.") : lines.join(u'\n');
}

void ReadingPane::openMenu(const QPoint &position)
{
    QMenu *menu = m_text->makeMenu();
    m_actions->fill(menu);
    menu->popup(m_text->viewport()->mapToGlobal(position));
}

void ReadingPane::takeFocus()
{
    m_text->setFocus(Qt::OtherFocusReason);
}

} // namespace corva
