// SPDX-License-Identifier: GPL-3.0-or-later
// corva-configdoc [--xml]: prints the manual's page of all configuration keys, or the shipped file itself.
#include "shell/configkeys.h"

#include <cstdio>
#include <cstring>

int main(int argc, char **argv)
{
    const bool xml = argc > 1 && std::strcmp(argv[1], "--xml") == 0;
    const QByteArray text = xml ? corva::shippedConfigXml() : corva::configKeysPage();
    return std::fwrite(text.constData(), 1, text.size(), stdout) == size_t(text.size()) ? 0 : 1;
}
