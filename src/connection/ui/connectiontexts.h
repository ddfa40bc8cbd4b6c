// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"

#include <chrono>

namespace corva
{

/// What there is to say of the connection beside its state: what it dials with, since when it is up, how the
/// last one ended. Empty before the first one.
QString statusSentence(const ConnectionStatus &status);
/// Whether the last connection ended in a way that the person did not want.
bool isWorthAsking(const ConnectionStatus &status);
/// "1:02:03", hours as many as they are.
QString elapsedText(std::chrono::seconds elapsed);

} // namespace corva
