// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/connectionsettings.h"

#include "widgets/factrow.h"
#include "widgets/skin.h"

#include <QCheckBox>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

SettingKey dialer(const QString &name)
{
    return {u"network_dialer_setting"_s, name};
}

} // namespace

void ConnectionSettings::addNumber(QVBoxLayout *layout, const QString &caption, const SettingNumber &number,
                                   const QCheckBox *owner)
{
    QWidget *row = captioned(caption, settingNumber(number), this);
    layout->addWidget(row);
    if (!owner)
        return;
    row->setEnabled(owner->isChecked());
    connect(owner, &QCheckBox::toggled, row, &QWidget::setEnabled);
}

ConnectionSettings::ConnectionSettings(QWidget *parent) : SettingsPage(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::Grid);
    layout->setSpacing(metrics::HalfGrid);
    buildAutomatic(layout);
    layout->addSpacing(2 * metrics::Grid);
    buildRedial(layout);
    layout->addSpacing(2 * metrics::Grid);
    buildIdle(layout);
    layout->addSpacing(2 * metrics::Grid);
    buildDialling(layout);
    layout->addStretch(1);
}

void ConnectionSettings::buildAutomatic(QVBoxLayout *layout)
{
    layout->addWidget(new SectionHeader(tr("Automatic connection"), this));
    auto *connects =
        settingSwitch(tr("&Connect by itself when the card is ready"), dialer(u"AutoConnectFlag"_s));
    layout->addWidget(connects, 0, Qt::AlignLeading);
    addNumber(layout, tr("&Attempts"), {dialer(u"AutoConnectTimes"_s), 1, 100, 3}, connects);
}

void ConnectionSettings::buildRedial(QVBoxLayout *layout)
{
    const QString seconds = tr(" s", "seconds");
    layout->addWidget(new SectionHeader(tr("When a connection breaks off"), this));
    auto *redials = settingSwitch(tr("&Dial again"), dialer(u"autoRedial_enabled"_s));
    layout->addWidget(redials, 0, Qt::AlignLeading);
    addNumber(layout, tr("A&ttempts"), {dialer(u"autoRedial_time"_s), 1, 100, 5}, redials);
    addNumber(layout, tr("&First one after"), {dialer(u"autoRedial_startSec"_s), 1, 3600, 5, seconds},
              redials);
    addNumber(layout, tr("Each f&urther one after"), {dialer(u"autoRedial_afterSec"_s), 1, 3600, 30, seconds},
              redials);
}

void ConnectionSettings::buildIdle(QVBoxLayout *layout)
{
    layout->addWidget(new SectionHeader(tr("When nothing is carried"), this));
    auto *disconnects = settingSwitch(tr("D&isconnect"), dialer(u"autoDisconnect_enabled"_s));
    layout->addWidget(disconnects, 0, Qt::AlignLeading);
    addNumber(layout, tr("Aft&er"), {dialer(u"autoDisconnect_min"_s), 1, 1440, 10, tr(" min", "minutes")},
              disconnects);
}

void ConnectionSettings::buildDialling(QVBoxLayout *layout)
{
    layout->addWidget(new SectionHeader(tr("Dialling"), this));
    addNumber(layout, tr("&Longest wait for a link"),
              {dialer(u"dial_timeout"_s), 5, 600, 30, tr(" s", "seconds")}, nullptr);
    layout->addWidget(settingSwitch(tr("E&xplain a failure by the exit status of pppd"),
                                    {u"function"_s, u"ppp_errcode_show"_s}),
                      0, Qt::AlignLeading);
    layout->addWidget(
        settingSwitch(tr("&Open the profile's page once connected"), dialer(u"Show_open_URL"_s)), 0,
        Qt::AlignLeading);
}

SettingsEntry connectionSettingsEntry()
{
    return {u"connectionSettings"_s, ConnectionSettings::tr("Connection"),
            [](QWidget *parent) -> SettingsPage * { return new ConnectionSettings(parent); }};
}

} // namespace corva
