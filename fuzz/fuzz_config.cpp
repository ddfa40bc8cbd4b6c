// SPDX-License-Identifier: GPL-3.0-or-later
#include "inputfile.h"
#include "shell/commonconfig.h"

/// Any file gives a record that can be painted with.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const InputFile file(data, size);
    CommonConfig config;
    demand(readConfigFile(config, QString::fromLatin1(file.path())));
    demand(config.windowWidth > 0 && config.windowHeight > 0 && config.textSize > 0 &&
           config.cornerRadius >= 0);
    demand(config.window.isValid() && config.text.isValid() && config.topBar.background.color.isValid());
    return 0;
}
