// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QCheckBox;
class QSpinBox;
class QWidget;

namespace corva
{

/// A caption with its control behind it, as a row of a settings page. The caption is the control's name.
QWidget *captioned(const QString &caption, QWidget *control, QWidget *parent);

/// A place in the configuration.
struct SettingKey {
    QString section;
    QString name;
};

/// A switch of the configuration. What it shows is stored at once.
QCheckBox *settingSwitch(const QString &text, const SettingKey &key, QWidget *parent);

/// A number of the configuration, stored once it was entered whole.
struct SettingNumber {
    SettingKey key;
    int least = 0;
    int most = 0;
    QString unit;          ///< stands behind the number: " s"
    int insteadOfNone = 0; ///< what an absent, empty or zero value means
};
QSpinBox *settingNumber(const SettingNumber &number, QWidget *parent);

} // namespace corva
