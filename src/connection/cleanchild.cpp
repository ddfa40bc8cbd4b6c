// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/cleanchild.h"

#include <csignal>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace corva
{

void makeCleanChild()
{
    for (int signal = 1; signal < NSIG; ++signal)
        std::signal(signal, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    umask(S_IWGRP | S_IWOTH);
}

void prepareSystemChild(QProcess &process)
{
    QProcessEnvironment environment;
    environment.insert(u"PATH"_s, u"/usr/sbin:/usr/bin:/sbin:/bin"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(u"/"_s);
    process.setStandardInputFile(QProcess::nullDevice());
    // A part of it that stays in the background would hold a pipe open for ever.
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier(makeCleanChild);
}

} // namespace corva
