// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

/// So many messages are in a store that is measured.
constexpr int storedMessages = 20'000;

/// The `number`th of many messages: received and sent in turn, from and to 300 people over a year, each with
/// its PDU and a text as long as most are. What is received is read.
corva::Message messageOf(int number);

/// Writes `count` of them as the store of `folder`. False when that fails.
[[nodiscard]] bool fillStore(const QString &folder, int count);
