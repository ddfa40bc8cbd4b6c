// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settingcontrols.h"

#include "shell/commoncfg.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int captionWidth = 160;
constexpr int choiceWidth = 220;
} // namespace

QWidget *captioned(const QString &caption, QWidget *control, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *name = new TextLabel(caption, TextRole::Text, row);
    name->setBuddy(control);
    name->setMinimumWidth(captionWidth);
    control->setAccessibleName(QString(caption).remove(u'&'));
    if (!qobject_cast<QSpinBox *>(control))
        control->setMinimumWidth(choiceWidth);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(name);
    layout->addWidget(control);
    layout->addStretch(1);
    return row;
}

QCheckBox *settingSwitch(const QString &text, const SettingKey &key, QWidget *parent)
{
    auto *box = new QCheckBox(text, parent);
    box->setObjectName(key.name);
    box->setChecked(cmcfg.getNumber(key.section, key.name) == 1);
    box->setMinimumHeight(metrics::ControlHeight);
    QObject::connect(box, &QCheckBox::toggled, box,
                     [key](bool on) { cmcfg.setValue(key.section, key.name, on ? u"1"_s : u"0"_s); });
    return box;
}

QSpinBox *settingNumber(const SettingNumber &number, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setObjectName(number.key.name);
    box->setRange(number.least, number.most);
    box->setSuffix(number.unit);
    box->setKeyboardTracking(false);
    box->setMinimumHeight(metrics::ControlHeight);
    const int stored = cmcfg.getNumber(number.key.section, number.key.name);
    box->setValue(stored == 0 ? number.insteadOfNone : stored);
    QObject::connect(box, &QSpinBox::valueChanged, box, [key = number.key](int value) {
        cmcfg.setValue(key.section, key.name, QString::number(value));
    });
    return box;
}

} // namespace corva
