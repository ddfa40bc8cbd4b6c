// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The directory that holds the executable; data and pictures are `basePath` + a text that begins with "/".
/// Set once by `main` right after `readConfig`, before any other thread exists.
extern QString basePath;

/// The software version: the first line of `basePath` + "/Data/version.txt"; empty when the file or the line
/// is missing.
QString readVersionInfo();
