// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QScrollArea;
class QWidget;

namespace corva
{

/// Takes over a widget that is as wide as there is room and scrolls up and down. Without a frame and a ground
/// of its own; the keyboard stands on what is in it.
QScrollArea *scrollAreaFor(QWidget *content, QWidget *parent);

} // namespace corva
