// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/concatreference.h"

#include "shell/commoncfg.h"

using namespace Qt::StringLiterals;

namespace corva
{

int nextConcatReference()
{
    const int reference = (cmcfg.getNumber(u"sms"_s, u"concat-id"_s) + 1) & 0xff;
    cmcfg.setValue(u"sms"_s, u"concat-id"_s, QString::number(reference));
    return reference;
}

} // namespace corva
