// SPDX-License-Identifier: GPL-3.0-or-later
#include "inputfile.h"
#include "shell/configxml.h"

/// What can be read is written so that it reads the same again, and does not change with a second writing.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QDomDocument first;
    if (!corva::parseConfigXml(bytes, first).isEmpty())
        return 0;
    const QByteArray written = corva::formatConfigXml(first);
    QDomDocument second;
    demand(corva::parseConfigXml(written, second).isEmpty());
    demand(corva::formatConfigXml(second) == written);

    const QString text = corva::xmlText(QString::fromUtf8(bytes));
    QDomElement key = second.createElement(QStringLiteral("k"));
    key.appendChild(second.createTextNode(text));
    QDomElement section = second.createElement(QStringLiteral("s"));
    section.appendChild(key);
    second.documentElement().appendChild(section);
    QDomDocument third;
    demand(corva::parseConfigXml(corva::formatConfigXml(second), third).isEmpty());
    demand(third.documentElement().lastChildElement().lastChildElement().text() == text);
    return 0;
}
