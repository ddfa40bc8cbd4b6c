// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagesettings.h"

#include "shell/commoncfg.h"
#include "widgets/factrow.h"
#include "widgets/skin.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString sms = u"sms"_s;
const QString function = u"function"_s;

constexpr int fewestLines = 3;
constexpr int mostLines = 30;
constexpr int usualLines = 5;

/// What the encoder makes of a value that is none of the choices: no number is the first of them.
QString sentPeriod()
{
    constexpr int longest = 3;
    const int period = cmcfg.getNumber(sms, u"validPeriod"_s);
    return QString::number(period >= 0 && period < longest ? period : longest);
}

} // namespace

MessageSettings::MessageSettings(QWidget *parent) : SettingsPage(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::Grid);
    layout->setSpacing(metrics::RowGap);
    buildSending(layout);
    buildKeeping(layout);
    buildTelling(layout);
    layout->addStretch(1);
}

void MessageSettings::buildSending(QVBoxLayout *layout)
{
    layout->addWidget(new SectionHeader(tr("Sending"), this));
    layout->addWidget(captioned(tr("The network &tries for"),
                                settingChoice({sms, u"validPeriod"_s},
                                              {{QT_TR_NOOP("12 hours"), u"0"_s},
                                               {QT_TR_NOOP("24 hours"), u"1"_s},
                                               {QT_TR_NOOP("1 week"), u"2"_s},
                                               {QT_TR_NOOP("As long as it may"), u"3"_s}},
                                              sentPeriod()),
                                this));
    layout->addWidget(captioned(tr("National &letters"),
                                settingChoice({sms, u"specialcode"_s},
                                              {{QT_TR_NOOP("Turkish"), u"gsm7ex_turkish"_s},
                                               {QT_TR_NOOP("Spanish"), u"gsm7ex_spanish"_s},
                                               {QT_TR_NOOP("Portuguese"), u"gsm7ex_portuguese"_s}},
                                              u"gsm7ex_turkish"_s),
                                this));
    addSwitch(layout, tr("&Ask for a report when a message is delivered"), {sms, u"deliveryReport"_s});
    layout->addSpacing(2 * metrics::Grid);
}

void MessageSettings::buildKeeping(QVBoxLayout *layout)
{
    layout->addWidget(new SectionHeader(tr("Keeping"), this));
    std::vector<Choice> places{{QT_TR_NOOP("On this computer"), u"2"_s},
                               {QT_TR_NOOP("On the SIM card"), u"1"_s},
                               {QT_TR_NOOP("On the data card"), u"3"_s},
                               {QT_TR_NOOP("Where the network says"), u"0"_s}};
    layout->addWidget(captioned(tr("&New messages are kept"),
                                settingChoice({sms, u"newsmsLocation"_s}, places, u"0"_s), this));
    addSwitch(layout, tr("The data card's o&wn memory is used, too"), {function, u"modemSide_enabled"_s});
    addSwitch(layout, tr("Delete &read messages from a full SIM card"), {sms, u"deleteSimSmsWhenFull"_s});
    layout->addSpacing(2 * metrics::Grid);
}

void MessageSettings::buildTelling(QVBoxLayout *layout)
{
    layout->addWidget(new SectionHeader(tr("What you are told"), this));
    addSwitch(layout, tr("&Unread messages, when the program starts"),
              {sms, u"newSmsNoticeShowWhenProgramStart"_s});
    addSwitch(layout, tr("&Delivery reports, in a box when they come"), {sms, u"deliveryReportMsgDlgShow"_s});
    addSwitch(layout, tr("Delivery reports, in a &folder of their own"), {sms, u"deliveryReportBoxShow"_s});
    addSwitch(layout, tr("Messages that cells &broadcast to everybody"), {function, u"cell_board_enabled"_s});
    layout->addWidget(captioned(
        tr("&Immediate messages show"),
        settingNumber({{sms, u"class0SmsDlgSize"_s}, fewestLines, mostLines, usualLines, tr(" lines")}),
        this));
}

QComboBox *MessageSettings::settingChoice(const SettingKey &key, const std::vector<Choice> &choices,
                                          const QString &insteadOfOthers)
{
    auto *box = new QComboBox(this);
    box->setObjectName(key.name);
    for (const Choice &choice : choices)
        box->addItem(tr(choice.title), choice.value);
    const int stored = box->findData(cmcfg.getValue(key.section, key.name));
    box->setCurrentIndex(stored >= 0 ? stored : box->findData(insteadOfOthers));
    connect(box, &QComboBox::activated, this,
            [this, box, key] { store(key.section, key.name, box->currentData().toString()); });
    return box;
}

void MessageSettings::addSwitch(QVBoxLayout *layout, const QString &text, const SettingKey &key)
{
    layout->addWidget(settingSwitch(text, key), 0, Qt::AlignLeading);
}

SettingsEntry messageSettingsEntry()
{
    return {u"messages"_s, MessageSettings::tr("Messages"),
            [](QWidget *parent) -> SettingsPage * { return new MessageSettings(parent); }};
}

} // namespace corva
