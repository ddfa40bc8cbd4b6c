// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace corva
{

/// What a person wrote as channels of cell broadcast: "50, 919, 4370-4372".
struct Channels {
    QList<int> numbers; ///< 0..65535, ascending, each once
    QString error;      ///< a sentence; empty when all of it could be read
    bool operator==(const Channels &) const = default;
};

Channels readChannels(const QString &written);
/// Neighbours together, as they are written.
QString channelsText(const QList<int> &numbers);

} // namespace corva
