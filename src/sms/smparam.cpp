// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smparam.h"

std::atomic<bool> gUnicodeFlag = false;

void initSM_PARAM_DECODE(SM_PARAM_DECODE *record)
{
    *record = {};
}
