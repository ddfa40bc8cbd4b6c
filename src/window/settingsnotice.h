// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class CommonCfg;
class QWidget;

namespace corva
{

/// Tells in a box beside `window`, which stays usable, where `config` kept a file that could not be read, or
/// else why its last writing failed. Nothing when all is well.
void tellOfSettings(const CommonCfg &config, QWidget *window);

} // namespace corva
