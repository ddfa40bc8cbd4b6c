// SPDX-License-Identifier: GPL-3.0-or-later
// corva-cards: lists what the program could use as a card, without opening any port. Status 1 when there is
// nothing.
#include "cardfinder.h"
#include "shell/globals.h"
#include "usbscan.h"

#include <QCoreApplication>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

QString purposeOf(const corva::UsbStick &stick, const corva::ModemTypes &types)
{
    if (const auto *card = types.cardFor(stick.usb.id))
        return card->name.isEmpty() ? u"known card"_s : card->name;
    if (types.cardForStorage(stick.usb.id))
        return u"known card that shows itself as a disk"_s;
    return types.ruleFor(stick.usb.id, stick.drivers()) ? u"unknown card, to be probed"_s : QString();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    basePath = QCoreApplication::applicationDirPath();
    bool isThere = false;
    const auto print = [&](const QString &name, const QString &purpose) {
        std::puts(qPrintable(name + u"  "_s + purpose));
        isThere = true;
    };
    if (const QString port = corva::DeviceSettings::fromConfiguration().atPort; !port.isEmpty())
        print(port, u"named by the configuration"_s);
    const auto types = corva::ModemTypes::load(basePath + u"/Data/modem_types.xml"_s);
    for (const auto &stick : corva::scanUsb()) {
        if (const QString purpose = purposeOf(stick, types); !purpose.isEmpty())
            print(stick.usb.id.toString(), purpose);
    }
    return isThere ? 0 : 1;
}
