// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/skin.h"

#include <QIcon>
#include <QString>

namespace corva
{

/// A picture of the icon family (`basePath` + "/res/icons/<name>.svg") in a colour of the skin. Drawn when it
/// is painted, at the exact size in device pixels, so that it is crisp on every screen and follows a change
/// of the skin. A name without a file gives an icon that paints nothing.
QIcon skinIcon(const QString &name, SkinRole role = SkinRole::Text);

/// The same as a picture of `size` x `size` pixels at the given device pixel ratio.
QPixmap skinPixmap(const QString &name, const QColor &color, int size, qreal devicePixelRatio);

} // namespace corva
