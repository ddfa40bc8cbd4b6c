// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace corva
{

inline void installCdeStyle() {}

} // namespace corva
