// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/splittext.h"

namespace corva
{

/// "Symbol: %1 /%2": how long the text is, and in how many parts it goes.
QString wordCount(int length, int parts);
/// Why the text takes more room than it might, or cannot be sent at all; empty when there is nothing to say.
QString lengthNotice(const SplitText &split);

} // namespace corva
