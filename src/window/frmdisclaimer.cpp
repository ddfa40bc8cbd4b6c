// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/frmdisclaimer.h"

#include "shell/commoncfg.h"
#include "shell/commonconfig.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace
{

constexpr int margin = 24;
constexpr int paragraphGap = 12;
constexpr int textWidth = 440;

QLabel *addText(QVBoxLayout *layout, const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    layout->addWidget(label);
    return label;
}

} // namespace

FrmDisclaimer::FrmDisclaimer(QWidget *parent, const char *name) : QDialog(parent)
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(tr("Before you begin"));

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(paragraphGap);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    QLabel *heading = addText(layout, tr("Before you begin"));
    heading->setObjectName(u"heading"_s);
    QFont font = heading->font();
    font.setWeight(QFont::DemiBold);
    font.setPointSizeF(font.pointSizeF() * 1.4);
    heading->setFont(font);

    QStringList paragraphs{
        tr("%1 connects this computer to a mobile network. What your operator charges for data, messages and "
           "calls is between you and your operator; abroad it can be much more than at home.")
            .arg(comcfg.softwareName),
        tr("The traffic and the duration that are shown are measured on this computer. The operator's own "
           "count "
           "decides what you pay."),
        tr("The program is free software and comes without any warranty, as far as the law allows.")};
    for (const QString &paragraph : paragraphs)
        addText(layout, paragraph);
    setAccessibleDescription(paragraphs.join(u'\n'));

    auto *buttons = new QDialogButtonBox;
    QPushButton *accepting = buttons->addButton(tr("&Accept"), QDialogButtonBox::AcceptRole);
    QPushButton *declining = buttons->addButton(tr("&Decline and quit"), QDialogButtonBox::RejectRole);
    accepting->setObjectName(u"accept"_s);
    accepting->setDefault(true);
    accepting->setFocus();
    declining->setObjectName(u"decline"_s);
    layout->addSpacing(paragraphGap);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

bool FrmDisclaimer::isWanted()
{
    return cmcfg.getNumber(u"setting"_s, u"system_enabled"_s) != 0 &&
           cmcfg.getNumber(u"systemsetting"_s, u"disclaimer_show"_s) != 0;
}
