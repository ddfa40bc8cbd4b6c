// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/settingspage.h"

class QComboBox;

namespace corva
{

/// Language, appearance, and how the window behaves beside the rest of the desktop.
class GeneralPage final : public SettingsPage
{
    Q_OBJECT

public:
    explicit GeneralPage(QWidget *parent);

private:
    QWidget *buildLanguage();
    QWidget *buildSkin();
    QCheckBox *buildUpdates();
    void takeLanguage(const QString &file);
    void takeSkin(const QString &file);
};

SettingsEntry generalSettingsEntry();

} // namespace corva
