// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portaccess.h"

#include <QCoreApplication>
#include <QFile>
#include <QList>
#include <algorithm>
#include <grp.h>
#include <optional>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace corva
{

namespace
{

constexpr size_t entryBufferSize = 65'536; // groups with thousands of members

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PortAccess)
};

std::optional<struct stat> nodeStatus(const QString &port)
{
    struct stat status = {};
    if (stat(QFile::encodeName(port).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

QString groupName(gid_t gid)
{
    std::vector<char> buffer(entryBufferSize);
    group entry{};
    group *found = nullptr;
    if (getgrgid_r(gid, &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(entry.gr_name);
    return QString::number(gid);
}

QString userName()
{
    std::vector<char> buffer(entryBufferSize);
    passwd entry{};
    passwd *found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(entry.pw_name);
    return QString::number(geteuid());
}

/// Whether this process runs with the group.
bool sessionHasGroup(gid_t gid)
{
    std::vector<gid_t> groups(static_cast<size_t>(std::max(getgroups(0, nullptr), 0)));
    const int count = getgroups(static_cast<int>(groups.size()), groups.data());
    groups.resize(static_cast<size_t>(std::max(count, 0)));
    return gid == getegid() || std::ranges::count(groups, gid) > 0;
}

/// Whether the system's files make this user a member, since whenever.
bool userHasGroup(gid_t gid)
{
    std::vector<char> buffer(entryBufferSize);
    group entry{};
    group *found = nullptr;
    if (getgrgid_r(gid, &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return false;
    const QByteArray user = userName().toLocal8Bit();
    for (char **member = entry.gr_mem; *member; ++member)
        if (user == *member)
            return true;
    return false;
}

} // namespace

QString portGroup(const QString &port)
{
    const auto node = nodeStatus(port);
    return node ? groupName(node->st_gid) : QString();
}

RightsAdvice rightsAdvice(const QString &port)
{
    const auto node = nodeStatus(port);
    return node ? rightsAdvice(node->st_gid, node->st_mode) : RightsAdvice::AskAdministrator;
}

RightsAdvice rightsAdvice(gid_t group, mode_t mode)
{
    constexpr gid_t rootGroup = 0;
    constexpr mode_t groupReadWrite = S_IRGRP | S_IWGRP;
    if (group == rootGroup || (mode & groupReadWrite) != groupReadWrite || sessionHasGroup(group))
        return RightsAdvice::AskAdministrator;
    return userHasGroup(group) ? RightsAdvice::SignInAgain : RightsAdvice::JoinGroup;
}

QString rightsAdviceText(const QString &port)
{
    switch (rightsAdvice(port)) {
    case RightsAdvice::JoinGroup:
        return Texts::tr("You may not open %1, which belongs to the group \"%2\". Join it with "
                         "\"sudo usermod -aG %2 %3\", then sign out and in again.")
            .arg(port, portGroup(port), userName());
    case RightsAdvice::SignInAgain:
        return Texts::tr(
                   "You may not open %1 yet: you are a member of the group \"%2\", but were not when you "
                   "signed in. Sign out and in again.")
            .arg(port, portGroup(port));
    case RightsAdvice::AskAdministrator: break;
    }
    return Texts::tr(
               "You may not open %1, and no group can be joined that may. Ask the administrator of this "
               "computer for a udev rule that gives the group \"dialout\" access to it.")
        .arg(port);
}

} // namespace corva
