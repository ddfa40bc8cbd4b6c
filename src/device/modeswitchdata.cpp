// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modeswitchdata.h"

#include "device/udevptr.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 maximumConfigSize = 16'384; // they have a few hundred bytes
constexpr int maximumPackEntries = 10000;

struct ArchiveDeleter {
    void operator()(archive *p) const { archive_read_free(p); }
};

struct Condition {
    QLatin1StringView field;
    QString StickTexts::*text;
};
constexpr std::array conditions{
    Condition{"uMa"_L1, &StickTexts::manufacturer}, Condition{"uPr"_L1, &StickTexts::product},
    Condition{"uSe"_L1, &StickTexts::serial},       Condition{"sVe"_L1, &StickTexts::diskVendor},
    Condition{"sMo"_L1, &StickTexts::diskModel},    Condition{"sRe"_L1, &StickTexts::diskRevision}};

/// "uMa=Test_Maker": the text must be contained; an underscore stands for itself or for a blank.
bool holds(QStringView condition, const StickTexts &texts)
{
    const auto equals = condition.indexOf(u'=');
    const auto field = condition.left(equals);
    const auto *row = std::ranges::find_if(conditions, [&](const Condition &c) { return c.field == field; });
    if (equals < 0 || row == conditions.end())
        return false;
    const QString wanted = condition.mid(equals + 1).toString();
    const QString &text = texts.*(row->text);
    return text.contains(wanted) || text.contains(QString(wanted).replace(u'_', u' '));
}

/// How well a configuration's name fits: -1 not at all, otherwise the number of its conditions.
int fit(const QString &name, UsbId id, const StickTexts &texts)
{
    const QStringList parts = name.split(u':');
    if (parts.size() < 2 || UsbId::fromString(QString(parts.at(0) + u':' + parts.at(1))) != id)
        return -1;
    const bool all =
        std::all_of(parts.begin() + 2, parts.end(), [&](const QString &c) { return holds(c, texts); });
    return all ? static_cast<int>(parts.size()) - 2 : -1;
}

/// The best configuration so far.
struct Best {
    int fit = -1;
    QByteArray config;
};

QByteArray readEntry(archive *pack)
{
    QByteArray content(maximumConfigSize, Qt::Uninitialized);
    const auto size = archive_read_data(pack, content.data(), static_cast<size_t>(content.size()));
    content.truncate(std::max<qsizetype>(size, 0));
    return content;
}

void searchPack(const QString &path, UsbId id, const StickTexts &texts, Best &best)
{
    const std::unique_ptr<archive, ArchiveDeleter> pack(archive_read_new());
    archive_read_support_filter_gzip(pack.get());
    archive_read_support_format_tar(pack.get());
    if (archive_read_open_filename(pack.get(), QFile::encodeName(path).constData(), maximumConfigSize) !=
        ARCHIVE_OK)
        return;
    archive_entry *entry = nullptr;
    for (int i = 0; i < maximumPackEntries && archive_read_next_header(pack.get(), &entry) == ARCHIVE_OK;
         ++i) {
        const QString name = QString::fromUtf8(archive_entry_pathname(entry)).section(u'/', -1);
        if (const int f = fit(name, id, texts); f > best.fit)
            best = {f, readEntry(pack.get())};
    }
}

void searchFiles(const QDir &folder, UsbId id, const StickTexts &texts, Best &best)
{
    for (const QString &name : folder.entryList({id.toString() + u'*'}, QDir::Files)) {
        QFile file(folder.filePath(name));
        if (const int f = fit(name, id, texts); f > best.fit && file.open(QIODevice::ReadOnly))
            best = {f, file.read(maximumConfigSize)};
    }
}

} // namespace

QByteArray modeSwitchConfig(UsbId id, const StickTexts &texts, const QStringList &folders)
{
    for (const QString &folder : folders) {
        Best best;
        searchFiles(QDir(folder), id, texts, best);
        searchPack(folder + u"/configPack.tar.gz"_s, id, texts, best);
        if (best.fit >= 0)
            return best.config;
    }
    return {};
}

StickTexts stickTexts(const UsbIdentity &stick)
{
    const UdevPtr<udev> context(udev_new());
    const UdevPtr<udev_device> device(context ? udev_device_new_from_subsystem_sysname(
                                                    context.get(), "usb", stick.path.toLatin1().constData())
                                              : nullptr);
    if (!device)
        return {};
    StickTexts texts{udevText(device.get(), "manufacturer"),
                     udevText(device.get(), "product"),
                     udevText(device.get(), "serial"),
                     {},
                     {},
                     {}};
    const UdevPtr<udev_enumerate> disks(udev_enumerate_new(context.get()));
    udev_enumerate_add_match_parent(disks.get(), device.get());
    udev_enumerate_add_match_subsystem(disks.get(), "scsi");
    udev_enumerate_scan_devices(disks.get());
    for (auto *entry = udev_enumerate_get_list_entry(disks.get()); entry;
         entry = udev_list_entry_get_next(entry)) {
        const UdevPtr<udev_device> disk(
            udev_device_new_from_syspath(context.get(), udev_list_entry_get_name(entry)));
        if (!disk || !udev_device_get_sysattr_value(disk.get(), "vendor"))
            continue; // a host or a target, not a disk
        texts.diskVendor = udevText(disk.get(), "vendor");
        texts.diskModel = udevText(disk.get(), "model");
        texts.diskRevision = udevText(disk.get(), "rev");
        break;
    }
    return texts;
}

} // namespace corva
