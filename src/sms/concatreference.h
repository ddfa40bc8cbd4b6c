// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corva
{

/// The reference for a long message, 0..255: the one behind the last, which "concat-id" of section "sms"
/// keeps over restarts. It is on disk before this returns, so that no two messages share one. GUI thread.
int nextConcatReference();

} // namespace corva
