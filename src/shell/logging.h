// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>
#include <QString>

/// Categories of the debug output: "corva.link" (which carries the wire trace), "corva.device",
/// "corva.shell", "corva.window", "corva.connection" and "corva.sms". QT_LOGGING_RULES="corva.link=false"
/// silences one.
Q_DECLARE_LOGGING_CATEGORY(lcLink)
Q_DECLARE_LOGGING_CATEGORY(lcDevice)
Q_DECLARE_LOGGING_CATEGORY(lcShell)
Q_DECLARE_LOGGING_CATEGORY(lcWindow)
Q_DECLARE_LOGGING_CATEGORY(lcConnection)
Q_DECLARE_LOGGING_CATEGORY(lcSms)

namespace corva
{

/// The current time as "yy-MM-dd hh:mm:ss" and two blanks: how every diagnostic line begins.
QString logTime();

} // namespace corva
