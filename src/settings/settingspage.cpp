// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/settingspage.h"

#include "shell/commoncfg.h"

namespace corva
{

bool SettingsPage::store(const QString &section, const QString &key, const QString &value)
{
    cmcfg.setValue(section, key, value);
    const QString error = cmcfg.lastError();
    Q_EMIT sigSaid(error.isEmpty() ? QString() : tr("The setting could not be stored: %1").arg(error));
    return error.isEmpty();
}

} // namespace corva
