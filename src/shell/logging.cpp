// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/logging.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcLink, "corva.link")
Q_LOGGING_CATEGORY(lcDevice, "corva.device")
Q_LOGGING_CATEGORY(lcShell, "corva.shell")
Q_LOGGING_CATEGORY(lcWindow, "corva.window")
Q_LOGGING_CATEGORY(lcConnection, "corva.connection")
Q_LOGGING_CATEGORY(lcSms, "corva.sms")

namespace corva
{

QString logTime()
{
    return QDateTime::currentDateTime().toString(u"yy-MM-dd hh:mm:ss"_s) + u"  "_s;
}

} // namespace corva
