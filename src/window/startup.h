// SPDX-License-Identifier: GPL-3.0-or-later
// The single steps of `main` that need more than a line.
#pragma once

#include <QString>

class QWidget;

namespace corva
{

/// The application's default font: the family of the configuration, everything else the toolkit's.
void installDefaultFont();

/// Loads the chosen language from "Language" in the current directory, with the toolkit's own texts where the
/// system has them, and turns the layout round for languages that run from right to left. Without a choice
/// English is chosen, and stored. A language whose file is missing leaves the texts untranslated.
void installTranslation();

/// Moves the window to the middle of the desktop.
void centre(QWidget *window);

/// Closing `window`, when it lets itself be closed, ends the event loop; closing any other window does not.
void makeMainWidget(QWidget *window);

} // namespace corva
