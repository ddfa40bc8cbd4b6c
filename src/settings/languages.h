// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <span>

namespace corva
{

/// A language of the program's texts.
struct Language {
    const char *file; ///< name of the translation without ".qm", and the value of key "selected-language"
    const char16_t *ownName; ///< as its speakers write it, so that they find it in any language
};

std::span<const Language> languages();

} // namespace corva
