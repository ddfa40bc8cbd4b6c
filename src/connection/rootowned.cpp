// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/rootowned.h"

#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace corva
{

bool isAdministratorsOwn(const QString &program)
{
    mode_t kind = S_IFREG;
    for (QString path = program; path.startsWith(u'/'); path = QFileInfo(path).path(), kind = S_IFDIR) {
        struct stat status = {};
        if (lstat(QFile::encodeName(path).constData(), &status) != 0 || (status.st_mode & S_IFMT) != kind ||
            status.st_uid != 0 || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
            return false;
        if (path == "/"_L1)
            return true;
    }
    return false;
}

} // namespace corva
