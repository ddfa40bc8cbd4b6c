// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/settingspage.h"

namespace corva
{

/// The volume that was paid for, its billing day, and what happens when it runs out.
class TrafficSettingsPage final : public SettingsPage
{
    Q_OBJECT

public:
    explicit TrafficSettingsPage(QWidget *parent);

private:
    QWidget *buildVolume(const QString &caption, const QString &none, const QString &key, const QString &id);
    QWidget *buildNumber(const QString &caption, const QString &key, int least, int most,
                         const QString &suffix);
    QWidget *buildEnd();
    void storeNumber(const QString &key, int value);
};

SettingsEntry trafficSettingsEntry();

} // namespace corva
