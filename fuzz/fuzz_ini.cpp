// SPDX-License-Identifier: GPL-3.0-or-later
#include "inputfile.h"
#include "shell/inifile.h"

#include <cstring>

/// Any file can be loaded, and what is set afterwards is found.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const InputFile file(data, size);
    CIniFile ini;
    demand(ini.Load(file.path()) == 0);

    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::string section = text.substr(0, size / 3);
    const std::string key = text.substr(size / 3, size / 3);
    const std::string value = text.substr(size / 3 * 2);
    const bool isNew = ini.Get(section.c_str(), key.c_str(), nullptr) == nullptr;
    ini.Set(section.c_str(), key.c_str(), value.c_str());
    if (!isNew)
        demand(std::strcmp(ini.Get(section.c_str(), key.c_str(), ""), value.c_str()) == 0);
    demand(ini.Load(file.path()) == 0);
    return 0;
}
