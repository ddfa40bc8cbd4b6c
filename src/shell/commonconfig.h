// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

/// A surface of the skin: a plain colour, or a picture (path relative to `basePath`, joined when it is
/// painted).
struct SkinBrush {
    QColor color;
    QString picture; ///< empty: the plain colour
    bool operator==(const SkinBrush &) const = default;
};

/// One area of the window that may carry a picture, with what is written on it.
struct SkinArea {
    SkinBrush background;
    QColor text;
    QColor mutedText;
    bool operator==(const SkinArea &) const = default;
};

/// The start-up record of the positional file "Data/config": the skin by role, and the few settings that are
/// needed before anything else. The field order below is the file's order. A default constructed record is
/// usable.
struct CommonConfig {
    CommonConfig();

    int windowWidth; ///< first size of the window, pixels
    int windowHeight;
    QColor window;  ///< behind everything
    QColor surface; ///< lists, text fields
    QColor raised;  ///< cards, menus, buttons
    QColor line;    ///< one-pixel lines that carry meaning
    QColor text;
    QString skinName; ///< what the person picked, e.g. "Light"
    QColor mutedText;
    QColor accent;
    QColor onAccent;
    QColor selection;
    QString fontFamily;   ///< "null" in the file: the toolkit's default
    QString softwareName; ///< the display name, "Corva"
    QColor good;
    QColor warning;
    SkinArea topBar;
    SkinArea navigation;
    SkinArea statusStrip;
    QColor bad;
    QColor focus;
    QColor disabledText;
    QColor onSelection;
    int cornerRadius; ///< pixels
    int titleSize;    ///< page titles, points at 96 dpi
    int textSize;
    int captionSize;
    int phonebookBatchSize;   ///< entries per "+CPBR" read
    int numberMatchingLength; ///< trailing digits compared when a name is looked up
    QString cardFamily;       ///< "WCDMA", "TD-SCDMA" or "CDMA", compared as a prefix

    bool operator==(const CommonConfig &) const = default;
};

/// Fills `config` from "Data/config" in the current directory. A file that cannot be opened leaves the
/// defaults and writes a debug line; fields past the file's end keep their defaults.
void readConfig(CommonConfig &config);

/// Writes `config` to `path` in the same positional form, through the safe-file function. False with a reason
/// on failure.
bool writeConfig(const CommonConfig &config, const QString &path, QString *error = nullptr);

/// The same reader for another file of this form (a skin under "Data/skins").
bool readConfigFile(CommonConfig &config, const QString &path);

/// The start-up record of this process.
extern CommonConfig comcfg;
