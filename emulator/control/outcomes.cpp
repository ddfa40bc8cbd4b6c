// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/outcomes.h"

#include "card/card.h"
#include "card/cardfields.h"
#include "emulatedcard.h"

namespace cardemu
{

Outcome done(const QJsonObject &values)
{
    return {values, {}};
}

Outcome refused(const Complaint &complaint)
{
    return {{}, complaint};
}

Outcome outcome(const Complaint &complaint)
{
    return {{}, complaint};
}

Complaint setState(EmulatedCard &emulated, const QString &section, const QJsonObject &values)
{
    const auto &fields = cardFields();
    const auto field = std::ranges::find(fields, section, &Field<CardState>::key);
    CardState changed = emulated.card().state();
    if (const Complaint complaint = field->read(changed, values); !complaint.isEmpty())
        return section + complaint;
    emulated.card().state() = changed;
    emulated.card().review();
    return {};
}

QJsonObject without(QJsonObject values, const QStringList &names)
{
    for (const QString &name : names)
        values.remove(name);
    return values;
}

} // namespace cardemu
