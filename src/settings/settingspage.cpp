// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settingspage.h"

#include "shell/commoncfg.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QCheckBox>
#include <QGuiApplication>
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

QString numberPrefix()
{
    constexpr QChar rightToLeftMark(0x200f);
    return QGuiApplication::isRightToLeft() ? QString(rightToLeftMark) : QString();
}

QCheckBox *SettingsPage::settingSwitch(const QString &text, const SettingKey &key)
{
    auto *box = new QCheckBox(text, this);
    box->setObjectName(key.name);
    box->setChecked(cmcfg.getNumber(key.section, key.name) == 1);
    box->setMinimumHeight(metrics::ControlHeight);
    connect(box, &QCheckBox::toggled, this,
            [this, key](bool on) { store(key.section, key.name, on ? u"1"_s : u"0"_s); });
    return box;
}

QSpinBox *SettingsPage::settingNumber(const SettingNumber &number)
{
    auto *box = new QSpinBox(this);
    box->setObjectName(number.key.name);
    box->setRange(number.least, number.most);
    box->setPrefix(numberPrefix());
    box->setSuffix(number.unit);
    box->setKeyboardTracking(false);
    box->setMinimumHeight(metrics::ControlHeight);
    const int stored = cmcfg.getNumber(number.key.section, number.key.name);
    box->setValue(stored == 0 ? number.insteadOfNone : stored);
    connect(box, &QSpinBox::valueChanged, this,
            [this, key = number.key](int value) { store(key.section, key.name, QString::number(value)); });
    return box;
}

bool SettingsPage::store(const QString &section, const QString &key, const QString &value)
{
    cmcfg.setValue(section, key, value);
    const QString error = cmcfg.lastError();
    sayStored(error);
    return error.isEmpty();
}

void SettingsPage::sayStored(const QString &error)
{
    Q_EMIT sigSaid(error.isEmpty() ? QString() : tr("The setting could not be stored: %1").arg(error));
}

} // namespace corva
