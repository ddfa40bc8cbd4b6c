// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/skinchooser.h"

#include "shell/globals.h"
#include "widgets/skin.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString skinFolder()
{
    return basePath + u"/Data/skins"_s;
}

} // namespace

std::vector<Skin> availableSkins()
{
    std::vector<Skin> skins;
    const QStringList files = QDir(skinFolder()).entryList(QDir::Files | QDir::Readable, QDir::Name);
    for (const QString &file : files) {
        CommonConfig skin;
        if (readConfigFile(skin, skinFolder() + u'/' + file))
            skins.push_back({file, skin.skinName});
    }
    return skins;
}

CommonConfig withColoursOf(const CommonConfig &config, const CommonConfig &skin)
{
    CommonConfig merged = skin;
    merged.windowWidth = config.windowWidth;
    merged.windowHeight = config.windowHeight;
    merged.fontFamily = config.fontFamily;
    merged.softwareName = config.softwareName;
    merged.cornerRadius = config.cornerRadius;
    merged.titleSize = config.titleSize;
    merged.textSize = config.textSize;
    merged.captionSize = config.captionSize;
    merged.phonebookBatchSize = config.phonebookBatchSize;
    merged.numberMatchingLength = config.numberMatchingLength;
    merged.cardFamily = config.cardFamily;
    return merged;
}

bool chooseSkin(const QString &file, QString *error)
{
    CommonConfig skin;
    if (!readConfigFile(skin, skinFolder() + u'/' + file)) {
        *error = QCoreApplication::translate("Skins", "The colours in \"%1\" cannot be read.").arg(file);
        return false;
    }
    comcfg = withColoursOf(comcfg, skin);
    applySkin();
    return writeConfig(comcfg, u"Data/config"_s, error);
}

} // namespace corva
