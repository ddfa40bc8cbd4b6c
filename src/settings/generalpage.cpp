// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/generalpage.h"

#include "settings/languages.h"
#include "settings/skinchooser.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "shell/updatecfg.h"
#include "widgets/factrow.h"
#include "widgets/skin.h"

#include <QCheckBox>
#include <QComboBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// The shipped skins have names in every language; a person's own is shown by its own name.
QString shownName(const Skin &skin)
{
    if (skin.name == "Light"_L1)
        return GeneralPage::tr("Light");
    if (skin.name == "Dark"_L1)
        return GeneralPage::tr("Dark");
    return skin.name.isEmpty() ? skin.file : skin.name;
}

/// An external updater is there when it has left its period, or somebody has switched it before.
bool hasUpdater()
{
    return !UpdateCfg::value(UpdateKey::UpdateFrequence).isEmpty() ||
           !UpdateCfg::value(UpdateKey::EnableUpdate).isEmpty();
}

/// Who this program is.
void tellUpdater()
{
    UpdateCfg::setValues({{UpdateKey::CmName, comcfg.softwareName},
                          {UpdateKey::LanguageType, cmcfg.getValue(u"function"_s, u"selected-language"_s)},
                          {UpdateKey::SoftwareVersion, readVersionInfo()}});
}

} // namespace

GeneralPage::GeneralPage(QWidget *parent) : SettingsPage(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::Grid);
    layout->setSpacing(metrics::RowGap);
    if (cmcfg.getNumber(u"function"_s, u"lansetting_enabled"_s) == 1) {
        layout->addWidget(new SectionHeader(tr("Language"), this));
        layout->addWidget(buildLanguage());
        layout->addSpacing(2 * metrics::Grid);
    }
    layout->addWidget(new SectionHeader(tr("Appearance"), this));
    layout->addWidget(buildSkin());
    layout->addSpacing(2 * metrics::Grid);
    layout->addWidget(new SectionHeader(tr("Beside other programs"), this));
    layout->addWidget(settingSwitch(tr("&Keep running in the tray when the window is closed"),
                                    {u"window"_s, u"close_to_tray"_s}),
                      0, Qt::AlignLeading);
    layout->addWidget(settingSwitch(tr("&Notify about calls and messages on the desktop"),
                                    {u"window"_s, u"notifications_enabled"_s}),
                      0, Qt::AlignLeading);
    if (hasUpdater())
        layout->addWidget(buildUpdates(), 0, Qt::AlignLeading);
    layout->addStretch(1);
    tellUpdater();
}

QWidget *GeneralPage::buildLanguage()
{
    auto *choice = new QComboBox(this);
    choice->setObjectName(u"language"_s);
    for (const Language &language : languages())
        choice->addItem(QString::fromUtf16(language.ownName), QString::fromLatin1(language.file));
    choice->setCurrentIndex(choice->findData(cmcfg.getValue(u"function"_s, u"selected-language"_s)));
    connect(choice, &QComboBox::activated, this,
            [this, choice] { takeLanguage(choice->currentData().toString()); });
    return captioned(tr("&Language"), choice, this);
}

QWidget *GeneralPage::buildSkin()
{
    auto *choice = new QComboBox(this);
    choice->setObjectName(u"skin"_s);
    for (const Skin &skin : availableSkins()) {
        choice->addItem(shownName(skin), skin.file);
        if (skin.name == comcfg.skinName)
            choice->setCurrentIndex(choice->count() - 1);
    }
    connect(choice, &QComboBox::activated, this,
            [this, choice] { takeSkin(choice->currentData().toString()); });
    return captioned(tr("&Colours"), choice, this);
}

QCheckBox *GeneralPage::buildUpdates()
{
    auto *box = new QCheckBox(tr("Look for &updates"), this);
    box->setObjectName(u"updates"_s);
    box->setChecked(UpdateCfg::value(UpdateKey::EnableUpdate).toInt() == 1);
    box->setMinimumHeight(metrics::ControlHeight);
    connect(box, &QCheckBox::toggled, this, [this](bool on) {
        const bool isStored = UpdateCfg::setValue(UpdateKey::EnableUpdate, on ? u"1"_s : u"0"_s);
        sayStored(isStored ? QString() : u"UpdateCfg.ini"_s);
    });
    return box;
}

void GeneralPage::takeLanguage(const QString &file)
{
    if (!store(u"function"_s, u"selected-language"_s, file))
        return;
    tellUpdater();
    Q_EMIT sigSaid(tr("The language is stored. It takes effect when the program starts next."));
}

void GeneralPage::takeSkin(const QString &file)
{
    QString error;
    if (chooseSkin(file, &error))
        Q_EMIT sigSaid({});
    else
        Q_EMIT sigSaid(tr("The colours could not be stored: %1").arg(error));
}

SettingsEntry generalSettingsEntry()
{
    return {u"general"_s, GeneralPage::tr("General"),
            [](QWidget *parent) -> SettingsPage * { return new GeneralPage(parent); }};
}

} // namespace corva
