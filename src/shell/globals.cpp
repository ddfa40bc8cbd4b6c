// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/globals.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

using namespace Qt::StringLiterals;

QString basePath;

QString readVersionInfo()
{
    constexpr qint64 longestLine = 256;

    QFile file(basePath + u"/Data/version.txt"_s);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QTextStream stream(&file);
    stream.setEncoding(QStringConverter::Utf8);
    const QString line = stream.readLine(longestLine);
    return line.isEmpty() ? QString() : line;
}
