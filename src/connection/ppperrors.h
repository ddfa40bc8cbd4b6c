// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace corva
{

/// What pppd's exit statuses mean: entry n is the text for status n. Source: pppd(8), "EXIT STATUS".
QStringList initPppErrorInfoStringList();

/// The text for an exit status of pppd; empty for one that has none.
QString getPppErrorInfo(int status);

} // namespace corva
