// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// Writes a file, in place of an older one.
inline void putFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Empty when it cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A folder of its own to run in, with an empty configuration, which `cmcfg` writes to.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        QDir::setCurrent(m_folder.path());
        QDir().mkdir(QStringLiteral("Data"));
    }
    ~ScratchFolder() { QDir::setCurrent(QDir::rootPath()); }
    Q_DISABLE_COPY_MOVE(ScratchFolder)

    QString path() const { return m_folder.path(); }
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// How many descriptors this process has open.
inline qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

/// How many threads it has.
inline qsizetype threads()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}
