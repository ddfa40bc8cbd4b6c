// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/settingspage.h"

class QComboBox;
class QVBoxLayout;

namespace corva
{

/// How messages are sent, where they are kept, and what is told of them.
class MessageSettings final : public SettingsPage
{
    Q_OBJECT

public:
    explicit MessageSettings(QWidget *parent);

private:
    struct Choice {
        const char *title; ///< of this class's texts
        QString value;
    };

    QComboBox *settingChoice(const SettingKey &key, const std::vector<Choice> &choices,
                             const QString &insteadOfOthers);
    void addSwitch(QVBoxLayout *layout, const QString &text, const SettingKey &key);
    void buildSending(QVBoxLayout *layout);
    void buildKeeping(QVBoxLayout *layout);
    void buildTelling(QVBoxLayout *layout);
};

SettingsEntry messageSettingsEntry();

} // namespace corva
