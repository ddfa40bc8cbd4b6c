// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/inifile.h"

#include "shell/safefile.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace
{

constexpr int lineBufferSize = 256;
constexpr size_t growth = 10;

bool isBlank(char c)
{
    // Plain char may be signed: letters above 127 are no blanks.
    const auto code = static_cast<unsigned char>(c);
    return code >= 1 && code <= 32;
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

/// Not strcasecmp: in a Turkish locale it tells "I" from "i".
bool isSameName(const std::string &a, const char *b)
{
    return std::equal(a.begin(), a.end(), b, b + std::strlen(b),
                      [](char x, char y) { return lower(x) == lower(y); });
}

const char *orEmpty(const char *text)
{
    return text ? text : "";
}

template <typename T> T &appendTo(std::vector<T> &list, T item)
{
    if (list.size() == list.capacity())
        list.reserve(list.size() + growth);
    return list.emplace_back(std::move(item));
}

template <typename List, typename Name> auto find(List &list, Name name, const char *wanted)
{
    return std::find_if(list.begin(), list.end(),
                        [&](const auto &item) { return isSameName(item.*name, wanted); });
}

std::string trimmed(std::string text)
{
    return CIniFile::trim(text.data());
}

/// The text between the brackets; false when the line is no section header.
bool takeHeader(char *line, std::string &section)
{
    const size_t length = std::strlen(line);
    if (line[0] != '[' || line[length - 1] != ']')
        return false;
    line[length - 1] = '\0';
    section = CIniFile::trim(line + 1);
    return true;
}

struct CloseFile {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

} // namespace

CIniFile::CIniFile(const char *path)
{
    Load(path);
}

char *CIniFile::trim(char *text)
{
    char *begin = text;
    while (isBlank(*begin))
        ++begin;
    size_t length = std::strlen(begin);
    while (length > 0 && isBlank(begin[length - 1]))
        --length;
    std::memmove(text, begin, length);
    text[length] = '\0';
    return text;
}

int CIniFile::Load(const char *path)
{
    const bool isFile = path && QFileInfo(QFile::decodeName(path)).isFile(); // opening a pipe would wait
    const std::unique_ptr<std::FILE, CloseFile> file(isFile ? std::fopen(path, "re") : nullptr);
    char line[lineBufferSize];
    std::string section;
    if (file) {
        FreeAllTheStuff();
        while (std::fgets(line, sizeof line, file.get()))
            takeLine(trim(line), section);
    }
    if (file && !std::ferror(file.get()))
        return 0;
    std::printf("cannot load ini file %s\n", orEmpty(path));
    return 1;
}

void CIniFile::takeLine(char *line, std::string &section)
{
    if (line[0] == '\0' || std::strchr(";/#", line[0]) || takeHeader(line, section))
        return;
    char *equals = std::strchr(line, '=');
    if (!equals)
        return;
    *equals = '\0';
    Set(section.c_str(), trim(line), trim(equals + 1));
}

const char *CIniFile::Get(const char *section, const char *key, const char *defaultValue) const
{
    const auto s = find(m_sections, &Section::name, orEmpty(section));
    if (s == m_sections.end())
        return defaultValue;
    const auto pair = find(s->pairs, &Pair::key, orEmpty(key));
    return pair == s->pairs.end() ? defaultValue : pair->value.c_str();
}

CIniFile::Section &CIniFile::sectionFor(const char *name)
{
    const auto section = find(m_sections, &Section::name, name);
    return section == m_sections.end() ? appendTo(m_sections, Section{name, {}}) : *section;
}

void CIniFile::Set(const char *section, const char *key, const char *value)
try {
    // Copied first: the arguments may be texts of this very object.
    Pair pair{orEmpty(key), orEmpty(value)};
    Section &s = sectionFor(orEmpty(section));
    const auto old = find(s.pairs, &Pair::key, pair.key.c_str());
    if (old != s.pairs.end())
        old->value = std::move(pair.value);
    else
        appendTo(s.pairs, Pair{trimmed(std::move(pair.key)), trimmed(std::move(pair.value))});
} catch (const std::bad_alloc &) {
    std::printf("Memory allocation error !");
    std::exit(1);
}

int CIniFile::Save(const char *path) const
{
    QByteArray text;
    for (const Section &section : m_sections) {
        text += "[" + QByteArray::fromStdString(section.name) + "]\n";
        for (const Pair &pair : section.pairs)
            text += QByteArray::fromStdString(pair.key) + "=" + QByteArray::fromStdString(pair.value) + "\n";
        text += "\n";
    }
    if (path && corva::writeFileSafely(QFile::decodeName(path), text))
        return 0;
    std::printf("cannot save to INI file: %s\n", orEmpty(path));
    return 1;
}

void CIniFile::FreeAllTheStuff()
{
    m_sections.clear();
}
