// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/composer.h"

#include "shell/commoncfg.h"
#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/recipients.h"
#include "sms/ui/messagecounter.h"
#include "sms/ui/mytextedit.h"
#include "sms/ui/templatestore.h"
#include "widgets/buttonkind.h"
#include "widgets/formfield.h"
#include "widgets/textlabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int templateLength = 48;
constexpr int textHeight = 72;

/// A line of a menu: short, and without mnemonics of its own.
QString menuLine(const QString &text)
{
    const QString line = text.simplified();
    const QString shown = line.size() > templateLength ? line.left(templateLength - 1) + u'…' : line;
    return QString(shown).replace(u'&', u"&&"_s);
}

} // namespace

Composer::Composer(MessageService *service, TemplateStore *templates, QWidget *parent)
    : QWidget(parent), m_service(service), m_templates(templates), m_draft(service->store(), this),
      m_title(new TextLabel(tr("New message"), TextRole::Strong, this)),
      m_recipients(new FormField(tr("&To"), u"recipients"_s, FormField::Kind::Code, this)),
      m_names(new TextLabel(TextRole::Caption, this)), m_text(new MyTextEdit(this)),
      m_count(new TextLabel(TextRole::Caption, this)), m_notice(new TextLabel(TextRole::Caption, this)),
      m_report(new QCheckBox(tr("Delivery &report"), this)), m_templateMenu(new QMenu(this)),
      m_send(new QPushButton(tr("&Send"), this))
{
    setObjectName(u"composer"_s);
    m_recipients->edit()->setPlaceholderText(tr("Numbers, with commas between them"));
    m_names->setObjectName(u"recipientNames"_s);
    m_names->setMuted(true);
    m_text->setObjectName(u"messageText"_s);
    m_text->setAccessibleName(tr("Text of the message"));
    m_text->setPlaceholderText(tr("Text"));
    m_text->setMinimumHeight(textHeight);
    m_count->setObjectName(u"wordCount"_s);
    m_notice->setObjectName(u"lengthNotice"_s);
    m_report->setObjectName(u"deliveryReport"_s);
    m_report->setToolTip(tr("You are told when the message was delivered"));
    m_send->setObjectName(u"send"_s);
    m_send->setToolTip(tr("%1 (%2)").arg(tr("Send"), u"Ctrl+Return"_s));
    setButtonKind(m_send, ButtonKind::Primary);
    for (TextLabel *label : {m_names, m_notice})
        label->setWordWrap(true);
    build();
    connectParts();
    addShortcuts();
    showCount();
}

void Composer::build()
{
    auto *counts = new QHBoxLayout;
    counts->setSpacing(metrics::Grid);
    counts->addWidget(m_notice, 1);
    counts->addWidget(m_count, 0, Qt::AlignTop);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::HalfGrid);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(m_title);
    layout->addWidget(m_recipients);
    layout->addWidget(m_names);
    layout->addSpacing(metrics::HalfGrid);
    layout->addWidget(m_text, 1);
    layout->addLayout(counts);
    buildButtons(layout);
}

void Composer::buildButtons(QVBoxLayout *layout)
{
    auto *templates = new QPushButton(tr("Te&mplates"), this);
    templates->setObjectName(u"templates"_s);
    templates->setMenu(m_templateMenu);
    auto *discardButton = new QPushButton(tr("&Discard"), this);
    discardButton->setObjectName(u"discard"_s);
    discardButton->setToolTip(tr("Moves the draft to the deleted messages"));
    connect(discardButton, &QPushButton::clicked, this, &Composer::discard);
    auto *options = new QHBoxLayout;
    options->setSpacing(metrics::Grid);
    options->addWidget(m_report, 1);
    options->addWidget(templates);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addStretch(1);
    buttons->addWidget(discardButton);
    buttons->addWidget(m_send);
    layout->addLayout(options);
    layout->addSpacing(metrics::HalfGrid);
    layout->addLayout(buttons);
    setTabOrder(m_report, templates);
    setTabOrder(templates, discardButton);
    setTabOrder(discardButton, m_send);
}

void Composer::connectParts()
{
    connect(m_recipients->edit(), &QLineEdit::textChanged, this, &Composer::takeEdit);
    connect(m_recipients->edit(), &QLineEdit::textChanged, this, &Composer::showNames);
    connect(m_recipients->edit(), &QLineEdit::editingFinished, this,
            [this] { m_recipients->setError(readRecipients(m_recipients->text()).error); });
    connect(m_text, &QPlainTextEdit::textChanged, this, &Composer::takeEdit);
    connect(m_text, &MyTextEdit::sigCounted, this, &Composer::showCount);
    connect(m_report, &QCheckBox::toggled, this, &Composer::takeEdit);
    connect(m_templateMenu, &QMenu::aboutToShow, this, &Composer::fillTemplates);
    connect(m_send, &QPushButton::clicked, this, &Composer::send);
}

void Composer::addShortcuts()
{
    for (const auto &keys : {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter}) {
        auto *sending = new QShortcut(keys, this);
        sending->setContext(Qt::WidgetWithChildrenShortcut);
        connect(sending, &QShortcut::activated, this, &Composer::send);
    }
    auto *leaving = new QShortcut(Qt::Key_Escape, this);
    leaving->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leaving, &QShortcut::activated, this, &Composer::sigClosed);
}

void Composer::begin(const QStringList &recipients, const QString &text)
{
    const bool asksReport = cmcfg.getNumber(u"sms"_s, u"deliveryReport"_s) == 1;
    m_title->setText(tr("New message"));
    fill({}, {recipients, text, asksReport});
}

void Composer::open(const QString &draftId)
{
    const auto draft = m_service->store()->find(draftId);
    if (!draft || draftId == m_draft.id())
        return;
    m_title->setText(tr("Draft"));
    fill(draftId, {draft->recipients, draft->text(), draft->asksReport});
}

void Composer::fill(const QString &draftId, const DraftKeeper::Content &content)
{
    m_isFilling = true;
    m_recipients->setText(joinRecipients(content.recipients));
    m_recipients->setError({});
    m_text->setPlainText(content.text);
    m_report->setChecked(content.asksReport);
    m_isFilling = false;
    m_draft.begin(draftId, content);
    QWidget *next = content.recipients.isEmpty() ? static_cast<QWidget *>(m_recipients->edit()) : m_text;
    next->setFocus(Qt::OtherFocusReason);
    m_text->moveCursor(QTextCursor::End);
}

void Composer::hideEvent(QHideEvent *event)
{
    m_draft.flush(); // the window may be about to close
    QWidget::hideEvent(event);
}

void Composer::leave()
{
    m_draft.flush();
    m_draft.release();
}

DraftKeeper::Content Composer::content() const
{
    QStringList recipients;
    const QStringList written = m_recipients->text().split(u',');
    for (const QString &entry : written)
        if (!entry.trimmed().isEmpty())
            recipients += entry.trimmed();
    return {recipients, m_text->toPlainText(), m_report->isChecked()};
}

void Composer::takeEdit()
{
    if (!m_isFilling)
        m_draft.setContent(content());
}

void Composer::showCount()
{
    m_count->setText(wordCount(m_text->getExtentLength(), m_text->split().formulaParts));
    m_notice->setText(lengthNotice(m_text->split()));
    m_send->setEnabled(m_text->split().isSendable());
}

void Composer::showNames()
{
    const QStringList numbers = readRecipients(m_recipients->text()).numbers;
    QStringList names;
    for (const QString &number : numbers)
        if (const QString name = m_service->nameFor(number); name != number)
            names += name.simplified();
    m_names->setText(names.join(tr(", ")));
    m_names->setVisible(!names.isEmpty());
}

void Composer::fillTemplates()
{
    m_templateMenu->clear();
    const QStringList texts = m_templates->templates();
    for (const QString &text : texts)
        m_templateMenu->addAction(menuLine(text), m_text, [this, text] {
            m_text->insertPlainText(text);
            m_text->setFocus(Qt::OtherFocusReason);
        });
    if (!texts.isEmpty())
        m_templateMenu->addSeparator();
    const auto change = [this](bool (TemplateStore::*act)(const QString &, QString *), const QString &text) {
        QString error;
        if (!(m_templates->*act)(text, &error))
            Q_EMIT sigSaid(tr("The templates could not be stored: %1").arg(error));
    };
    QAction *keep = m_templateMenu->addAction(tr("&Keep this text as a template"), this, [this, change] {
        change(&TemplateStore::add, m_text->toPlainText());
    });
    keep->setEnabled(!m_text->toPlainText().trimmed().isEmpty());
    QMenu *removal = m_templateMenu->addMenu(tr("&Remove a template"));
    removal->setEnabled(!texts.isEmpty());
    for (const QString &text : texts)
        removal->addAction(menuLine(text), this, [change, text] { change(&TemplateStore::remove, text); });
}

void Composer::send()
{
    const Recipients recipients = readRecipients(m_recipients->text());
    const QString text = m_text->toPlainText();
    if (!recipients.error.isEmpty() || recipients.numbers.isEmpty()) {
        m_recipients->setError(recipients.error.isEmpty() ? tr("Say whom the message is for.")
                                                          : recipients.error);
        m_recipients->takeFocus();
        return;
    }
    if (text.isEmpty()) {
        m_notice->setText(tr("The message says nothing yet."));
        m_text->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (!m_text->split().isSendable())
        return;
    m_draft.flush();
    if (!m_service->send({recipients.numbers, text, m_report->isChecked(), m_draft.id()}))
        return; // it stays a draft, and the service says why
    m_draft.release();
    Q_EMIT sigClosed();
}

void Composer::discard()
{
    const QString draft = m_draft.discard();
    if (!draft.isEmpty())
        Q_EMIT sigDiscarded(draft);
    Q_EMIT sigClosed();
}

} // namespace corva
