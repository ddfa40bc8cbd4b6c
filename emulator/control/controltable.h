// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QString>
#include <vector>

namespace cardemu
{

class EmulatedCard;

/// Free values are checked by the command itself.
enum class ValueType { Text, Number, Flag, Free };

struct Parameter {
    QString name;
    ValueType type;
    bool required = false;
};

/// What a control command came to: its values, or what is wrong.
struct Outcome {
    QJsonObject values;
    QString complaint;
};

struct ControlRow {
    QString name;
    std::vector<Parameter> parameters; ///< in the order in which `cardctl` takes values without a name
    QString help;
    Outcome (*run)(EmulatedCard &, const QJsonObject &);
};

const std::vector<ControlRow> &controlTable();
/// The part of it that is about messages.
const std::vector<ControlRow> &messageControls();
const ControlRow *findControl(const QString &name);

/// {"command": NAME, "id": anything, parameters...}: checks it against the table, carries it out, and answers
/// {"ok": true, "id": ..., values...} or {"ok": false, "id": ..., "error": SENTENCE}.
QJsonObject runControlCommand(EmulatedCard &card, const QJsonObject &request);

} // namespace cardemu
