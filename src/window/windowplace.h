// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <optional>

namespace corva
{

/// "x,y,width,height" in pixels; nothing for any other text or an empty area.
std::optional<QRect> placeFromText(const QString &text);
QString placeToText(const QRect &place);

/// A remembered place brought onto the screens of today: not smaller than `smallest`, not larger than the
/// screen that shows most of it, and wholly on that screen. Nothing when no screen shows any of it.
std::optional<QRect> fitPlace(const QRect &place, const QList<QRect> &screens, const QSize &smallest);

} // namespace corva
