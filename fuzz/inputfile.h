// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

/// The fuzzer's bytes as a file in memory, for readers that take a name.
class InputFile
{
public:
    InputFile(const uint8_t *data, size_t size)
        : m_descriptor(::memfd_create("input", 0)), m_path("/proc/self/fd/" + std::to_string(m_descriptor))
    {
        if (m_descriptor < 0 || ::write(m_descriptor, data, size) != ssize_t(size))
            std::abort();
    }
    ~InputFile() { ::close(m_descriptor); }
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    const char *path() const { return m_path.c_str(); }

private:
    int m_descriptor;
    std::string m_path;
};

/// An error unless `holds`.
inline void demand(bool holds)
{
    if (!holds)
        std::abort();
}
