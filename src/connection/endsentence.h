// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"

namespace corva
{

/// How a link or a dial ended, in words for people; empty for `None` and for what the person did himself.
QString endSentence(ConnectionEnd end);

} // namespace corva
