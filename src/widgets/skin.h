// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/commonconfig.h"

#include <QColor>
#include <QFont>
#include <QPalette>

namespace corva
{

/// What a colour is for. Every colour on the screen is one of these, taken from the skin record `comcfg`.
enum class SkinRole {
    Window,
    Surface,
    Raised,
    Line,
    Text,
    MutedText,
    DisabledText,
    Accent,
    OnAccent,
    Selection,
    OnSelection,
    Focus,
    Good,
    Warning,
    Bad,
    TopBarText,
    TopBarMutedText,
    NavigationText,
    NavigationMutedText,
    StripText,
    StripMutedText
};

/// The steps of the type scale; the sizes are those of the skin record.
enum class TextRole { Title, Strong, Text, Caption };

/// Distances in pixels at 100 %. A grid of 8, 4 inside controls.
namespace metrics
{
inline constexpr int Grid = 8;
inline constexpr int HalfGrid = 4;
inline constexpr int PageMargin = 24;
inline constexpr int GroupGap = 24;
inline constexpr int RowGap = 8;
inline constexpr int ControlHeight = 32;
inline constexpr int RowHeight = 32;
inline constexpr int IconSize = 20;
inline constexpr int TopBarHeight = 44;
inline constexpr int StripHeight = 28;
inline constexpr int NavigationWidth = 200;
inline constexpr int NavigationFoldedWidth = 56;
inline constexpr int FoldBelowWidth = 880;
inline constexpr int FocusGap = 1;
inline constexpr int FocusWidth = 2;
} // namespace metrics

QColor skinColor(SkinRole role);
/// The text of buttons that cannot be pressed: key "mybutton_disable_color" of section "setting"
/// ("red,green,blue"), else the skin's disabled text.
QColor disabledButtonColor();
/// `base` with `amount` (0..1) of `over` mixed in: hover and pressed steps come from this, not from more
/// colours.
QColor blend(const QColor &base, const QColor &over, qreal amount);

/// The palette of the whole window.
QPalette skinPalette();
/// The palette of what stands on one area (top bar, navigation, status strip).
QPalette skinPalette(const SkinArea &area);

/// The family is key "mainwindow_fontname" of section "fontsetting", else the skin's, else the application's.
/// The skin's sizes are pixels at 96 dpi and grow with the desktop's text scaling; "mainwindow_fontsize"
/// (points, 6 to 24) replaces the text size.
QFont skinFont(TextRole role);

/// Makes the whole application take on what `comcfg` holds now; every widget gets a style change event.
void applySkin();

} // namespace corva
