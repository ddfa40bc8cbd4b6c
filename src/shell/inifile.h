// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// An ini file: sections in order, in each the pairs in order. Section and key names are compared without
/// regard to ASCII letter case. Lines are read in pieces of at most 255 bytes, each of which counts as a
/// line; what begins with ";",
/// "/" or "#" is a comment, and is gone after saving. No locks: one thread at a time.
class CIniFile
{
public:
    CIniFile() = default;
    explicit CIniFile(const char *path);

    /// 0 on success. 1 when it is no plain file or cannot be read, with a message on the standard output;
    /// what was loaded before then stays unless a part of the new file was read already.
    int Load(const char *path);
    /// The stored text, or `defaultValue` as it was given. It lives until the next `Set`, `Load` or
    /// `FreeAllTheStuff`.
    const char *Get(const char *section, const char *key, const char *defaultValue) const;
    /// Replaces the value as it stands, or appends a new pair with key and value trimmed. The look-up uses
    /// the key as given. Ends the process with status 1 when there is no memory.
    void Set(const char *section, const char *key, const char *value);
    /// 0 on success, 1 on failure with a message on the standard output. The old file is then untouched.
    int Save(const char *path) const;
    void FreeAllTheStuff();

    /// Removes the bytes 1 to 32 from both ends, in place. Returns `text`.
    static char *trim(char *text);

private:
    struct Pair {
        std::string key;
        std::string value;
    };
    struct Section {
        std::string name;
        std::vector<Pair> pairs;
    };

    void takeLine(char *line, std::string &section);
    Section &sectionFor(const char *name);

    std::vector<Section> m_sections;
};
