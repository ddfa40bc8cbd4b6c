// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QCoreApplication;

/// The directory that holds the executable; data and pictures are `basePath` + a text that begins with "/".
/// Set once by `main` right after `readConfig`, before any other thread exists.
extern QString basePath;
