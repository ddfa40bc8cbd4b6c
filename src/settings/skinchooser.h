// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/commonconfig.h"

#include <QStringList>

namespace corva
{

/// A skin on disk: `basePath` + "/Data/skins/<file>", in the form of "Data/config".
struct Skin {
    QString file;
    QString name; ///< what the file calls itself
};

/// The skins that can be read, by file name.
std::vector<Skin> availableSkins();

/// `config` in the colours and under the name of `skin`; sizes, fonts and everything that is no colour stay.
CommonConfig withColoursOf(const CommonConfig &config, const CommonConfig &skin);

/// Takes the skin's colours into `comcfg`, shows them at once and writes "Data/config". On failure a sentence
/// stands in `error`; when only the writing failed the colours are shown until the program ends.
bool chooseSkin(const QString &file, QString *error);

} // namespace corva
