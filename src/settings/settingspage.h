// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

class QCheckBox;
class QSpinBox;

namespace corva
{

/// A place in the configuration.
struct SettingKey {
    QString section;
    QString name;
};

/// A number of the configuration.
struct SettingNumber {
    SettingKey key;
    int least = 0;
    int most = 0;
    int insteadOfNone = 0; ///< what an absent, empty or zero value means
    QString unit = {};     ///< stands behind the number: " s"
};

/// A caption with its control behind it, as a row of a settings page. The caption is the control's name.
QWidget *captioned(const QString &caption, QWidget *control, QWidget *parent);

/// What stands before the number in a field: a field of digits alone would run from left to right, whatever
/// the window does.
QString numberPrefix();

/// One group of options, contributed by its subsystem. What a control shows is stored at once: there is
/// nothing to apply.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    /// A sentence for the foot of the settings: what was stored, what takes effect when, or what went wrong.
    void sigSaid(const QString &sentence);

protected:
    /// A switch of the configuration. What it shows is stored at once.
    QCheckBox *settingSwitch(const QString &text, const SettingKey &key);
    /// Stored once it was entered whole.
    QSpinBox *settingNumber(const SettingNumber &number);
    /// Stores one setting at once. When the file could not be written the foot says why, the value holds
    /// until the program ends, and this returns false; else the foot is empty.
    bool store(const QString &section, const QString &key, const QString &value);
    /// What `store` says in the end, for a setting that is kept elsewhere: why it failed, or nothing.
    void sayStored(const QString &error);
};

/// A contribution to the settings: how the list of groups names it, and how it is built.
struct SettingsEntry {
    QString id;
    QString title;
    std::function<SettingsPage *(QWidget *parent)> create;
};

} // namespace corva
