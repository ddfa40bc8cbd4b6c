// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/languages.h"

namespace corva
{

namespace
{

constexpr Language rows[] = {
    {"English", u"English"},  {"Spanish", u"Español"}, {"Portuguese", u"Português"}, {"Turkish", u"Türkçe"},
    {"Chinese", u"简体中文"}, {"French", u"Français"}, {"Arabic", u"العربية"},
};

} // namespace

std::span<const Language> languages()
{
    return rows;
}

} // namespace corva
