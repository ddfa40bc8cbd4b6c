// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/choicedialog.h"

#include "widgets/buttonkind.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int dialogWidth = 460;
constexpr int listHeight = 220;
} // namespace

ChoiceDialog::ChoiceDialog(const QString &title, const QString &about, const QString &verb,
                           const std::vector<Choice> &choices, QWidget *parent)
    : QDialog(parent), m_list(new QListWidget(this))
{
    setObjectName(u"choice"_s);
    setWindowTitle(title);
    m_list->setObjectName(u"choices"_s);
    m_list->setAccessibleName(title);
    m_list->setMinimumHeight(listHeight);
    for (const Choice &choice : choices)
        m_list->addItem(choice.detail.isEmpty() ? choice.name
                                                : tr("%1  ·  %2").arg(choice.name, choice.detail));
    m_list->setCurrentRow(0);

    auto *explanation = new TextLabel(about, TextRole::Text, this);
    explanation->setWordWrap(true);
    explanation->setMuted(true);
    auto *cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName(u"cancel"_s);
    cancel->setAutoDefault(false);
    auto *choose = new QPushButton(verb, this);
    choose->setObjectName(u"choose"_s);
    choose->setDefault(true);
    setButtonKind(choose, ButtonKind::Primary);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(choose);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(metrics::RowGap);
    layout->addWidget(new TextLabel(title, TextRole::Title, this));
    layout->addWidget(explanation);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_list, 1);
    layout->addSpacing(metrics::Grid);
    layout->addLayout(buttons);
    setMinimumWidth(dialogWidth);
    m_list->setFocus(Qt::OtherFocusReason);

    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(choose, &QPushButton::clicked, this, &ChoiceDialog::take);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ChoiceDialog::take);
}

void ChoiceDialog::take()
{
    const int row = m_list->currentRow();
    accept();
    if (row >= 0)
        Q_EMIT sigChosen(row);
}

} // namespace corva
