// SPDX-License-Identifier: GPL-3.0-or-later
// corva-configset SECTION KEY VALUE: changes one key of "Data/common-config.xml" in the current directory.
#include "commoncfg.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: corva-configset SECTION KEY VALUE\n", stderr);
        return 2;
    }
    const QString section = QString::fromLocal8Bit(argv[1]);
    const QString key = QString::fromLocal8Bit(argv[2]);
    const QString value = QString::fromLocal8Bit(argv[3]);
    cmcfg.setValue(section, key, value);
    return CommonCfg().getValue(section, key) == value ? 0 : 1;
}
