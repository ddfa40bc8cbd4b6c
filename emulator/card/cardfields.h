// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/fields.h"
#include "card/state.h"

namespace cardemu
{

/// How the state's members stand in profiles, in "show" and in "set".
const Fields<CardState> &cardFields();

} // namespace cardemu
