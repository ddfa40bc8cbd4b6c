// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/rawline.h"

#include <termios.h>

namespace cardemu
{

bool setRaw(int descriptor)
{
    termios settings{};
    if (tcgetattr(descriptor, &settings) != 0)
        return false;
    cfmakeraw(&settings);
    cfsetspeed(&settings, B115200);
    return tcsetattr(descriptor, TCSAFLUSH, &settings) == 0;
}

bool isHungUp(int descriptor)
{
    termios settings{};
    return tcgetattr(descriptor, &settings) == 0 && cfgetospeed(&settings) == B0;
}

} // namespace cardemu
