// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/class0dialog.h"

#include "shell/commoncfg.h"
#include "sms/messagestore.h"
#include "sms/ui/messagetexts.h"
#include "sms/ui/plaintextview.h"
#include "widgets/buttonkind.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int fewestLines = 3;
constexpr int mostLines = 30;
constexpr int charactersWide = 44;

QString shownText(const Class0Dialog::Entry &entry)
{
    return entry.text.isEmpty() ? previewOf(entry.message) : entry.text;
}

/// Sent again by a network that heard no acknowledgement.
bool isSame(const Class0Dialog::Entry &one, const Class0Dialog::Entry &other)
{
    const auto samePdu = [](const MessagePart &a, const MessagePart &b) { return a.pdu == b.pdu; };
    return one.text == other.text && one.message.recipients == other.message.recipients &&
           std::ranges::equal(one.message.parts, other.message.parts, samePdu);
}

} // namespace

Class0Dialog::Class0Dialog(MessageStore *store, QWidget *parent)
    : QDialog(parent), m_store(store), m_waiting(new TextLabel(TextRole::Caption, this)),
      m_text(new PlainTextView(this)), m_close(new QPushButton(tr("&Close"), this))
{
    setObjectName(u"class0"_s);
    setWindowTitle(tr("Immediate message"));
    m_waiting->setObjectName(u"class0Waiting"_s);
    m_text->setObjectName(u"class0Text"_s);
    m_text->setAccessibleName(windowTitle());
    m_close->setObjectName(u"class0Close"_s);
    build();
}

void Class0Dialog::build()
{
    m_waiting->setMuted(true);
    auto *keeping = new QPushButton(tr("&Keep in the inbox"), this);
    keeping->setObjectName(u"class0Keep"_s);
    keeping->setAutoDefault(false);
    setButtonKind(m_close, ButtonKind::Primary);
    m_close->setDefault(true);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addWidget(m_waiting, 1);
    buttons->addWidget(keeping);
    buttons->addWidget(m_close);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(metrics::RowGap);
    layout->addWidget(new TextLabel(windowTitle(), TextRole::Title, this));
    layout->addWidget(m_text, 1);
    layout->addSpacing(metrics::Grid);
    layout->addLayout(buttons);
    connect(m_close, &QPushButton::clicked, this, &QDialog::reject);
    connect(keeping, &QPushButton::clicked, this, &Class0Dialog::keepMessage);
}

/// As many lines as are configured now.
void Class0Dialog::makeRoom()
{
    const int lines = std::clamp(cmcfg.getNumber(u"sms"_s, u"class0SmsDlgSize"_s), fewestLines, mostLines);
    const QFontMetrics font = m_text->fontMetrics();
    m_text->setMinimumSize(font.averageCharWidth() * charactersWide,
                           font.lineSpacing() * lines + 2 * metrics::Grid);
}

void Class0Dialog::add(const Entry &entry)
{
    if (std::ranges::any_of(m_entries, [&](const Entry &each) { return isSame(each, entry); }))
        return;
    m_entries.push_back(entry);
    showFirst();
    if (!isVisible()) {
        makeRoom();
        adjustSize();
    }
    open();
    raise();
}

void Class0Dialog::showFirst()
{
    const Entry &entry = m_entries.front();
    const auto behind = int(m_entries.size()) - 1;
    if (const QString text = tr("%1 :\n %2").arg(entry.sender, shownText(entry));
        m_text->toPlainText() != text)
        m_text->setText(text);
    m_waiting->setText(behind > 0 ? tr("%n more", nullptr, behind) : QString());
    m_close->setText(behind > 0 ? tr("&Next") : tr("&Close"));
}

void Class0Dialog::keepMessage()
{
    Message message = m_entries.front().message;
    message.isRead = true;
    m_store->add({message});
    accept();
}

void Class0Dialog::done(int result)
{
    if (!m_entries.empty())
        m_entries.pop_front();
    if (m_entries.empty())
        QDialog::done(result);
    else
        showFirst();
}

} // namespace corva
