// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/usbscan.h"

#include "device/udevptr.h"
#include "shell/logging.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <chrono>
#include <libusb-1.0/libusb.h>
#include <map>
#include <sys/stat.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

/// The ports of one card appear within a few milliseconds of each other.
constexpr auto portSettleTime = 100ms;

struct LibusbDeleter {
    void operator()(libusb_context *p) const { libusb_exit(p); }
    void operator()(libusb_config_descriptor *p) const { libusb_free_config_descriptor(p); }
};
template <typename T> using LibusbPtr = std::unique_ptr<T, LibusbDeleter>;

/// Bus and the ports of the hubs on the way: the order in which sticks are tried, and their path's text.
using Socket = std::vector<int>;
using Sticks = std::map<Socket, UsbStick>;

Socket socketOf(libusb_device *device)
{
    constexpr int deepest = 7; // tiers of hubs, USB 3.2 10.1
    std::array<quint8, deepest> ports{};
    const int count = libusb_get_port_numbers(device, ports.data(), deepest);
    Socket socket{libusb_get_bus_number(device)};
    socket.insert(socket.end(), ports.begin(), ports.begin() + std::max(count, 0));
    if (count <= 0) // a root hub, or a system that does not tell
        socket.insert(socket.end(), {0, libusb_get_device_address(device)});
    return socket;
}

QString pathText(const Socket &socket)
{
    QStringList ports;
    for (const int port : socket)
        ports.append(QString::number(port));
    const QString bus = ports.takeFirst();
    return bus + u'-' + ports.join(u'.');
}

QList<int> interfaceClasses(libusb_device *device)
{
    libusb_config_descriptor *raw = nullptr;
    if (libusb_get_active_config_descriptor(device, &raw) != LIBUSB_SUCCESS)
        return {};
    const LibusbPtr<libusb_config_descriptor> config(raw);
    QList<int> classes;
    for (int i = 0; i < config->bNumInterfaces; ++i)
        if (config->interface[i].num_altsetting > 0)
            classes.append(config->interface[i].altsetting[0].bInterfaceClass);
    return classes;
}

void addDevice(Sticks &sticks, libusb_device *device)
{
    libusb_device_descriptor descriptor{};
    if (libusb_get_device_descriptor(device, &descriptor) != LIBUSB_SUCCESS)
        return;
    if (descriptor.bDeviceClass == LIBUSB_CLASS_HUB)
        return;
    const Socket socket = socketOf(device);
    UsbStick &stick = sticks[socket];
    stick.usb.id = {descriptor.idVendor, descriptor.idProduct};
    stick.usb.busNumber = libusb_get_bus_number(device);
    stick.usb.deviceNumber = libusb_get_device_address(device);
    stick.usb.path = pathText(socket);
    stick.interfaceClasses = interfaceClasses(device);
}

Sticks listDevices()
{
    Sticks sticks;
    libusb_context *raw = nullptr;
    if (const int error = libusb_init(&raw); error != LIBUSB_SUCCESS) {
        qCWarning(lcDevice).noquote() << logTime() + u"USB cannot be searched:"_s << libusb_error_name(error);
        return sticks;
    }
    const LibusbPtr<libusb_context> context(raw);
    libusb_device **devices = nullptr;
    const auto count = libusb_get_device_list(context.get(), &devices);
    for (ssize_t i = 0; i < count; ++i)
        addDevice(sticks, devices[i]);
    if (count >= 0)
        libusb_free_device_list(devices, 1);
    return sticks;
}

udev_device *usbDeviceOf(udev_device *child)
{
    return udev_device_get_parent_with_subsystem_devtype(child, "usb", "usb_device");
}

/// A port that udev has not finished with does not have its group yet. Where no udev runs, nobody ever will.
bool isUsable(udev *context, udev_device *tty)
{
    const UdevPtr<udev_queue> queue(udev_queue_new(context));
    return !queue || !udev_queue_get_udev_is_active(queue.get()) || udev_device_get_is_initialized(tty);
}

bool isSettled(udev_device *tty)
{
    const std::chrono::microseconds age(udev_device_get_usec_since_initialized(tty));
    return age == 0us || age >= portSettleTime; // 0 where it is not known
}

std::optional<SerialPort> serialPort(udev_device *tty)
{
    const char *devnode = udev_device_get_devnode(tty);
    auto *interface = udev_device_get_parent_with_subsystem_devtype(tty, "usb", "usb_interface");
    if (!devnode || !interface)
        return std::nullopt;
    // Hexadecimal, as the kernel writes it.
    const auto number = udevNumber(interface, "bInterfaceNumber", 16);
    if (!number)
        return std::nullopt;
    return SerialPort{QFile::decodeName(devnode), *number,
                      QString::fromUtf8(udev_device_get_driver(interface)), isSettled(tty)};
}

void addTexts(UsbStick &stick, udev_device *device)
{
    stick.manufacturer = udevText(device, "manufacturer");
    stick.product = udevText(device, "product");
    stick.usb.serial = udevText(device, "serial");
}

/// The device of libusb's list that udev means: both count buses and devices alike.
UsbStick *stickOf(Sticks &sticks, udev_device *device)
{
    const auto bus = udevNumber(device, "busnum");
    const auto number = udevNumber(device, "devnum");
    const auto found = std::ranges::find_if(sticks, [&](const auto &entry) {
        return entry.second.usb.busNumber == bus && entry.second.usb.deviceNumber == number;
    });
    return found == sticks.end() ? nullptr : &found->second;
}

/// Calls `use` with every device of a subsystem.
template <typename Use> void forEach(udev *context, const char *subsystem, Use use)
{
    const UdevPtr<udev_enumerate> enumerate(udev_enumerate_new(context));
    if (!enumerate)
        return;
    udev_enumerate_add_match_subsystem(enumerate.get(), subsystem);
    udev_enumerate_scan_devices(enumerate.get());
    for (auto *entry = udev_enumerate_get_list_entry(enumerate.get()); entry;
         entry = udev_list_entry_get_next(entry)) {
        const UdevPtr<udev_device> device(
            udev_device_new_from_syspath(context, udev_list_entry_get_name(entry)));
        if (device)
            use(device.get());
    }
}

void addUdevKnowledge(Sticks &sticks, udev *context)
{
    forEach(context, "usb", [&](udev_device *device) {
        if (UsbStick *stick = stickOf(sticks, device))
            addTexts(*stick, device);
    });
    forEach(context, "tty", [&](udev_device *tty) {
        auto *device = usbDeviceOf(tty);
        UsbStick *stick = device ? stickOf(sticks, device) : nullptr;
        const auto port = stick && isUsable(context, tty) ? serialPort(tty) : std::nullopt;
        if (port)
            stick->ports.append(*port);
    });
}

} // namespace

QStringList UsbStick::drivers() const
{
    QStringList names;
    for (const SerialPort &port : ports)
        names.append(port.driver);
    return names;
}

QString UsbStick::portOn(int interfaceNumber) const
{
    const auto port = std::ranges::find_if(
        ports, [&](const SerialPort &p) { return p.interfaceNumber == interfaceNumber; });
    return port == ports.end() ? QString() : port->devnode;
}

bool UsbStick::isDiskOnly() const
{
    return !interfaceClasses.isEmpty() &&
           std::ranges::all_of(interfaceClasses, [](int c) { return c == LIBUSB_CLASS_MASS_STORAGE; });
}

bool UsbStick::isSettled() const
{
    return std::ranges::all_of(ports, &SerialPort::isSettled);
}

QList<UsbStick> scanUsb()
{
    Sticks sticks = listDevices();
    if (const UdevPtr<udev> context(udev_new()); context)
        addUdevKnowledge(sticks, context.get());
    QList<UsbStick> list;
    for (auto &[socket, stick] : sticks) {
        std::ranges::sort(stick.ports, {},
                          [](const SerialPort &p) { return std::pair(p.interfaceNumber, p.devnode); });
        list.append(stick);
    }
    return list;
}

UsbStick stickOfPort(const QString &port)
{
    struct stat status = {};
    if (stat(QFile::encodeName(port).constData(), &status) != 0 || !S_ISCHR(status.st_mode))
        return {};
    const UdevPtr<udev> context(udev_new());
    const UdevPtr<udev_device> tty(context ? udev_device_new_from_devnum(context.get(), 'c', status.st_rdev)
                                           : nullptr);
    auto *device = tty ? usbDeviceOf(tty.get()) : nullptr;
    if (!device)
        return {};
    const auto bus = udevNumber(device, "busnum");
    const auto number = udevNumber(device, "devnum");
    for (const UsbStick &stick : scanUsb())
        if (stick.usb.busNumber == bus && stick.usb.deviceNumber == number)
            return stick;
    return {};
}

} // namespace corva
