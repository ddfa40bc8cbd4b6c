// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/trafficsettingspage.h"

#include "shell/commoncfg.h"
#include "statistics/trafficsettings.h"
#include "widgets/factrow.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int captionWidth = 200;
constexpr int numberWidth = 120;
constexpr int megabytesPerGigabyte = 1000;
constexpr double mostVolume = 999'999;
const QString section = u"statistics"_s;

QWidget *captionedRow(const QString &caption, const std::vector<QWidget *> &controls, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *name = new TextLabel(caption, TextRole::Text, row);
    name->setBuddy(controls.front());
    name->setMinimumWidth(captionWidth);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(name);
    for (QWidget *control : controls)
        layout->addWidget(control);
    layout->addStretch(1);
    return row;
}

} // namespace

TrafficSettingsPage::TrafficSettingsPage(QWidget *parent) : SettingsPage(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::Grid);
    layout->setSpacing(metrics::RowGap);
    layout->addWidget(new SectionHeader(tr("Your volume"), this));
    layout->addWidget(buildVolume(tr("&Volume of a month"), tr("None"), u"quota_mb"_s, u"quota"_s));
    layout->addWidget(
        buildVolume(tr("While &roaming"), tr("Counts with it"), u"roaming_quota_mb"_s, u"roamingQuota"_s));
    layout->addWidget(buildNumber(tr("It begins anew on &day"), u"billing_day"_s, 1, 31, {}));
    layout->addSpacing(2 * metrics::Grid);
    layout->addWidget(new SectionHeader(tr("When it runs out"), this));
    layout->addWidget(buildNumber(tr("&Warn at"), u"warning_share"_s, 0, 100, tr(" %")));
    layout->addWidget(buildEnd(), 0, Qt::AlignLeading);
    layout->addStretch(1);
}

void TrafficSettingsPage::storeNumber(const QString &key, int value)
{
    store(section, key, QString::number(value));
}

QWidget *TrafficSettingsPage::buildVolume(const QString &caption, const QString &none, const QString &key,
                                          const QString &id)
{
    const int megabytes = qMax(0, cmcfg.getNumber(section, key));
    auto *unit = new QComboBox(this);
    unit->setObjectName(id + u"Unit"_s);
    unit->setAccessibleName(tr("Unit: %1").arg(QString(caption).remove(u'&')));
    unit->addItem(tr("MB"), 1);
    unit->addItem(tr("GB"), megabytesPerGigabyte);
    const bool isSmall = megabytes > 0 && megabytes < megabytesPerGigabyte;
    unit->setCurrentIndex(isSmall ? 0 : 1);

    auto *amount = new QDoubleSpinBox(this);
    amount->setObjectName(id);
    amount->setAccessibleName(QString(caption).remove(u'&'));
    amount->setRange(0, mostVolume);
    amount->setPrefix(numberPrefix());
    amount->setSpecialValueText(none);
    amount->setMinimumWidth(numberWidth);
    amount->setKeyboardTracking(false);
    // Whole megabytes: three decimals of a gigabyte, none that say nothing.
    const auto fit = [amount](int inMegabytes, int factor) {
        const bool isBlocked = amount->blockSignals(true);
        amount->setDecimals(factor == 1 ? 0 : inMegabytes % 100 == 0 ? 1 : 3);
        amount->setSingleStep(factor == 1 ? 100 : 1);
        amount->setValue(double(inMegabytes) / factor);
        amount->blockSignals(isBlocked);
    };
    fit(megabytes, unit->currentData().toInt());
    connect(amount, &QDoubleSpinBox::valueChanged, this, [this, unit, key](double value) {
        storeNumber(key, qRound(value * unit->currentData().toInt()));
    });
    connect(unit, &QComboBox::activated, this,
            [fit, unit, key] { fit(qMax(0, cmcfg.getNumber(section, key)), unit->currentData().toInt()); });
    return captionedRow(caption, {amount, unit}, this);
}

QWidget *TrafficSettingsPage::buildNumber(const QString &caption, const QString &key, int least, int most,
                                          const QString &suffix)
{
    auto *number = new QSpinBox(this);
    number->setObjectName(key);
    number->setAccessibleName(QString(caption).remove(u'&'));
    number->setRange(least, most);
    number->setPrefix(numberPrefix());
    number->setSuffix(suffix);
    number->setMinimumWidth(numberWidth);
    number->setKeyboardTracking(false);
    if (least == 0)
        number->setSpecialValueText(tr("Never"));
    number->setValue(cmcfg.getNumber(section, key));
    connect(number, &QSpinBox::valueChanged, this, [this, key](int value) { storeNumber(key, value); });
    return captionedRow(caption, {number}, this);
}

QWidget *TrafficSettingsPage::buildEnd()
{
    auto *box = new QCheckBox(tr("&End the connection when the volume is used up"), this);
    box->setObjectName(u"end_at_quota"_s);
    box->setChecked(cmcfg.getNumber(section, u"end_at_quota"_s) == 1);
    box->setMinimumHeight(metrics::ControlHeight);
    connect(box, &QCheckBox::toggled, this,
            [this](bool isOn) { storeNumber(u"end_at_quota"_s, isOn ? 1 : 0); });
    return box;
}

SettingsEntry trafficSettingsEntry()
{
    return {u"traffic"_s, TrafficSettingsPage::tr("Traffic"),
            [](QWidget *parent) -> SettingsPage * { return new TrafficSettingsPage(parent); }};
}

} // namespace corva
