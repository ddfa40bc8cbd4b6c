// SPDX-License-Identifier: GPL-3.0-or-later
#include "mockbus.h"

#include <QFile>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace
{

QString devicePath(const MockCard &card)
{
    return u"/devices/mock/usb1/1-%1"_s.arg(card.socket);
}

QString interfacePath(const MockCard &card, int number)
{
    return devicePath(card) + u"/1-%1:1.%2"_s.arg(QString::number(card.socket), QString::number(number));
}

QString ttyPath(const MockCard &card, const MockPort &port)
{
    return interfacePath(card, port.interfaceNumber) + u"/%1/tty/%1"_s.arg(port.name);
}

QList<int> interfaceNumbers(const MockCard &card)
{
    QList<int> numbers;
    for (const MockPort &port : card.ports)
        numbers.append(port.interfaceNumber);
    return numbers.isEmpty() ? QList<int>{0} : numbers;
}

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray array;
    for (const int value : values)
        array.append(static_cast<char>(value));
    return array;
}

/// Device, configuration and interface descriptors. Source: USB 2.0, 9.6.
QString descriptors(const MockCard &card)
{
    const auto low = [](int number) { return number & 0xff; };
    const auto high = [](int number) { return number >> 8; };
    const QList<int> interfaces = interfaceNumbers(card);
    const int count = static_cast<int>(interfaces.size());
    const int length = 9 + 9 * count;
    QByteArray text = bytes({18, 1, 0, 2, 0, 0, 0, 64, low(card.id.vendor), high(card.id.vendor),
                             low(card.id.product), high(card.id.product), 0, 1, 1, 2, 3, 1});
    text += bytes({9, 2, low(length), high(length), count, 1, 0, 0x80, 50});
    for (const int number : interfaces)
        text += bytes({9, 4, number, 0, 0, card.interfaceClass, 0, 0, 0});
    return QString::fromLatin1(text.toHex().toUpper()); // umockdev reads upper case only
}

QString deviceDescription(const MockCard &card)
{
    const QString number = u"%1"_s.arg(card.deviceNumber, 3, 10, QLatin1Char('0'));
    QString text = u"P: %1\nN: bus/usb/001/%2=%3\n"_s.arg(devicePath(card), number, descriptors(card));
    text +=
        u"E: SUBSYSTEM=usb\nE: DEVTYPE=usb_device\nE: DEVNAME=/dev/bus/usb/001/%1\nE: BUSNUM=001\nE: DEVNUM=%1\n"_s
            .arg(number);
    text +=
        u"A: busnum=1\nA: devnum=%1\nA: bConfigurationValue=1\nA: bNumConfigurations=1\nA: speed=480\n"_s.arg(
            card.deviceNumber);
    text +=
        u"A: idVendor=%1\nA: idProduct=%2\n"_s.arg(card.id.toString().left(4), card.id.toString().right(4));
    text += u"A: product=%1\n"_s.arg(card.product);
    if (!card.serial.isEmpty())
        text += u"A: serial=%1\n"_s.arg(card.serial);
    return text + u"H: descriptors=%1\n"_s.arg(descriptors(card));
}

QString interfaceDescription(const MockCard &card, const MockPort &port)
{
    return u"P: %1\nE: SUBSYSTEM=usb\nE: DEVTYPE=usb_interface\nA: bInterfaceNumber=%2\n"
           "L: driver=../../../../../bus/usb/drivers/%3\n"_s.arg(interfacePath(card, port.interfaceNumber))
               .arg(port.interfaceNumber, 2, 16, QLatin1Char('0'))
               .arg(port.driver);
}

QString ttyDescription(const MockCard &card, const MockPort &port)
{
    const int minorNumber = QStringView(port.name).mid(6).toInt(); // ttyUSB or ttyACM
    QString text =
        u"P: %1\nN: %2\nE: SUBSYSTEM=tty\nE: DEVNAME=/dev/%2\n"_s.arg(ttyPath(card, port), port.name);
    text += u"E: MAJOR=188\nE: MINOR=%1\nA: dev=188:%1\n"_s.arg(minorNumber);
    return text + u"L: device=../../../%1\n"_s.arg(port.name);
}

} // namespace

MockBus::MockBus() : m_testbed(umockdev_testbed_new()) {}

MockBus::~MockBus() = default;

void MockBus::plug(const MockCard &card)
{
    add(deviceDescription(card));
    for (const MockPort &port : card.ports) {
        add(interfaceDescription(card, port));
        add(ttyDescription(card, port));
    }
}

void MockBus::unplug(const MockCard &card)
{
    const auto remove = [this](const QString &path) {
        const QByteArray syspath = "/sys" + path.toUtf8();
        umockdev_testbed_uevent(m_testbed.get(), syspath.constData(), "remove");
        umockdev_testbed_remove_device(m_testbed.get(), syspath.constData());
    };
    for (const MockPort &port : card.ports) {
        remove(ttyPath(card, port));
        remove(interfacePath(card, port.interfaceNumber));
    }
    remove(devicePath(card));
}

void MockBus::add(const QString &description)
{
    GError *error = nullptr;
    if (!umockdev_testbed_add_from_string(m_testbed.get(), description.toUtf8().constData(), &error))
        qFatal("%s", error->message);
}

QString MockBus::nodePath(const QString &port) const
{
    gchar *root = umockdev_testbed_get_root_dir(m_testbed.get());
    const QString path = QFile::decodeName(root) + port;
    g_free(root);
    return path;
}
