// SPDX-License-Identifier: GPL-3.0-or-later
// corva-configset SECTION KEY VALUE: changes one key of "Data/common-config.xml" in the current directory.
// Several at once wait for one another; a Corva that runs there would write its own copy over the change, so
// that it is refused.
#include "commoncfg.h"
#include "instance.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>

using namespace Qt::StringLiterals;

namespace
{

/// The folder's own lock, which leaves no file behind; held until the process ends.
bool lockFolder()
{
    const int folder = ::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return folder >= 0 && ::flock(folder, LOCK_EX) == 0;
}

bool isProgramRunningHere()
{
    const pid_t program = corva::instanceLockHolder(instanceLockPath);
    const QFileInfo folder(u"/proc/%1/cwd"_s.arg(program));
    return program > 0 && folder.canonicalFilePath() == QDir::current().canonicalPath();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: corva-configset SECTION KEY VALUE\n", stderr);
        return 2;
    }
    if (!lockFolder()) {
        std::perror("corva-configset: cannot lock this folder");
        return 1;
    }
    if (isProgramRunningHere()) {
        std::fputs(
            "corva-configset: Corva is running in this folder and would write its own settings over the "
            "change. Close it first.\n",
            stderr);
        return 1;
    }
    const QString section = QString::fromLocal8Bit(argv[1]);
    const QString key = QString::fromLocal8Bit(argv[2]);
    const QString value = QString::fromLocal8Bit(argv[3]);
    CommonCfg config; // `cmcfg` was read before the lock
    config.setValue(section, key, value);
    return CommonCfg().getValue(section, key) == value ? 0 : 1;
}
