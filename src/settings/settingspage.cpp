// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settingspage.h"

#include "shell/commoncfg.h"

namespace corva
{

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
