// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagetable.h"

namespace corva
{

/// By person, the one with the newest message first; a message to several people is in the conversation of
/// each. `mirror` adds what is on the SIM and the card and not on the computer.
std::vector<Conversation> conversationsOf(const MessageTable &computer, const MessageTable &mirror);

} // namespace corva
