// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <sys/types.h>

namespace corva
{

/// Who asked for the helper: the user that pkexec names, else the one who started it. nullopt when pkexec's
/// word is no number.
std::optional<uid_t> callerOf(const char *pkexecUid);

/// A port that a caller may read and write himself, held open with his rights: meanwhile its device file's
/// name is given to no other device.
class HeldPort
{
public:
    HeldPort() = default;
    ~HeldPort() { release(); }
    Q_DISABLE_COPY_MOVE(HeldPort)

    /// Takes the port in place of the one that is held. False, and none is held, for everything that is no
    /// port of the caller's: no port at all, no terminal, a console, another's port.
    bool take(const QString &port, uid_t caller);
    void release();
    /// The device file, with every link followed.
    const QString &path() const { return m_path; }
    /// Whether the device file still is the one that was taken. False when none is held.
    bool isSame() const;

private:
    QString m_path;
    int m_descriptor = -1;
};

} // namespace corva
