// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// `text` as it is searched: without case, accents, other marks above and below letters, and typographic
/// forms of a letter, so that "Ángstrom ﬁnal" and "angstrom final" are the same.
QString foldedText(const QString &text);

} // namespace corva
