// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// A lock between programs that ends with its process. The file stays; only its owner may open it, or anybody
/// could hold it. Who holds it is told to everybody by a file beside it, "<path>.holder".
class FileLock
{
public:
    explicit FileLock(const QString &path) : m_path(path) {}
    ~FileLock() { release(); }
    Q_DISABLE_COPY_MOVE(FileLock)

    /// True as well when it is held already.
    bool acquire();
    void release();
    bool isHeld() const { return m_descriptor >= 0; }
    /// Whether another holds it; false where that cannot be found out.
    bool isHeldElsewhere() const;

private:
    QString holderFile() const { return m_path + QStringLiteral(".holder"); }

    QString m_path;
    int m_descriptor = -1;
};

} // namespace corva
