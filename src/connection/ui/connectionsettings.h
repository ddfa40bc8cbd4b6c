// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/settingspage.h"

class QVBoxLayout;

namespace corva
{

/// When to connect, dial again and disconnect without being asked.
class ConnectionSettings final : public SettingsPage
{
    Q_OBJECT

public:
    explicit ConnectionSettings(QWidget *parent);

private:
    /// A number that counts only while its switch is on; nullptr: always.
    void addNumber(QVBoxLayout *layout, const QString &caption, const SettingNumber &number,
                   const QCheckBox *owner);
    void buildAutomatic(QVBoxLayout *layout);
    void buildRedial(QVBoxLayout *layout);
    void buildIdle(QVBoxLayout *layout);
    void buildDialling(QVBoxLayout *layout);
};

SettingsEntry connectionSettingsEntry();

} // namespace corva
