// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/commoncfg.h"

#include "shell/configxml.h"
#include "shell/logging.h"
#include "shell/safefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 largestFile = 4'194'304;

QString configPath()
{
    return u"Data/common-config.xml"_s;
}

/// The bytes of a plain file; null when it cannot be read or is too large to be ours.
QByteArray readWhole(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(largestFile + 1);
    return bytes.size() > largestFile ? QByteArray() : bytes;
}

QDomElement childNamed(QDomDocument &document, QDomNode parent, const QString &name)
{
    QDomElement child = parent.firstChildElement(name);
    return child.isNull() ? parent.appendChild(document.createElement(name)).toElement() : child;
}

/// The first of the keys of this name in the sections of this name; the others would shine through an empty
/// value and are removed.
QDomElement onlyKey(const QDomElement &root, const QString &section, const QString &key)
{
    QDomElement first;
    for (QDomElement s = root.firstChildElement(section); !s.isNull(); s = s.nextSiblingElement(section)) {
        for (QDomElement k = s.firstChildElement(key); !k.isNull();) {
            const QDomElement next = k.nextSiblingElement(key);
            if (first.isNull())
                first = k;
            else
                s.removeChild(k);
            k = next;
        }
    }
    return first;
}

void replaceText(QDomDocument &document, QDomElement element, const QString &value)
{
    for (QDomNode child = element.firstChild(); !child.isNull();) {
        const QDomNode next = child.nextSibling();
        if (!child.isComment())
            element.removeChild(child);
        child = next;
    }
    element.appendChild(document.createTextNode(value));
}

} // namespace

CommonCfg cmcfg;

CommonCfg::CommonCfg()
{
    load();
    getMap();
}

void CommonCfg::load()
{
    const QByteArray bytes = readWhole(configPath());
    if (!bytes.isEmpty() && corva::parseConfigXml(bytes, m_document).isEmpty())
        return;
    qCWarning(lcShell, "can't read the common-config.xml file");
    m_fileBroken = QFileInfo::exists(configPath());
}

QString *CommonCfg::cacheOf(const QString &key) const
{
    if (key == "operator"_L1)
        return &m_operator;
    if (key == "duration_format"_L1)
        return &m_durationFormat;
    if (key == "usage_statistic_enabled"_L1)
        return &m_usageStatisticEnabled;
    return nullptr;
}

QString CommonCfg::getValue(const QString &section, const QString &key) const
{
    const QMutexLocker locker(&m_mutex);
    QString *cache = cacheOf(key);
    if (cache && !cache->isEmpty())
        return *cache;
    const auto keys = m_values.constFind(section);
    QString value = keys == m_values.cend() ? QString() : keys->value(key);
    if (cache)
        *cache = value;
    return value;
}

int CommonCfg::getNumber(const QString &section, const QString &key) const
{
    return getValue(section, key).toInt();
}

void CommonCfg::setValue(const QString &section, const QString &key, const QString &value)
{
    if (!corva::isXmlName(section) || !corva::isXmlName(key)) {
        qCWarning(lcShell).noquote() << corva::logTime() + u"no name for a setting:"_s << section << key;
        return;
    }
    bool isChanged = false;
    {
        const QMutexLocker locker(&m_mutex);
        const QString before = m_values.value(section).value(key);
        changeDocument(section, key, corva::xmlText(value));
        rebuildMap();
        isChanged = m_values.value(section).value(key) != before;
    }
    saveDom();
    if (isChanged)
        Q_EMIT sigChanged(section, key);
}

void CommonCfg::changeDocument(const QString &section, const QString &key, const QString &value)
{
    QDomElement root = m_document.documentElement();
    if (root.isNull())
        root = m_document.appendChild(m_document.createElement(u"common-config"_s)).toElement();
    QDomElement element = onlyKey(root, section, key);
    if (element.isNull())
        element = childNamed(m_document, childNamed(m_document, root, section), key);
    replaceText(m_document, element, value);
}

void CommonCfg::getMap()
{
    const QMutexLocker locker(&m_mutex);
    rebuildMap();
}

void CommonCfg::rebuildMap()
{
    m_values.clear();
    const QDomElement root = m_document.documentElement();
    for (QDomElement s = root.firstChildElement(); !s.isNull(); s = s.nextSiblingElement()) {
        QMap<QString, QString> &keys = m_values[s.tagName()];
        for (QDomElement k = s.firstChildElement(); !k.isNull(); k = k.nextSiblingElement()) {
            QString &value = keys[k.tagName()];
            if (value.isEmpty())
                value = k.text();
        }
    }
}

void CommonCfg::saveDom()
{
    const QMutexLocker writeLocker(&m_writeMutex);
    QMutexLocker locker(&m_mutex);
    const QByteArray bytes = corva::formatConfigXml(m_document);
    const bool fileBroken = m_fileBroken;
    locker.unlock();

    QString kept;
    QString error;
    if (fileBroken && QFileInfo(configPath()).size() > 0) {
        kept = corva::keepBrokenFile(configPath());
        if (kept.isEmpty())
            error = QCoreApplication::translate("SafeFile", "The broken settings file cannot be kept beside");
    }
    if (error.isEmpty())
        corva::writeFileSafely(configPath(), bytes, &error);
    if (!error.isEmpty())
        qCWarning(lcShell).noquote() << corva::logTime() + error;

    locker.relock();
    m_lastError = error;
    if (!kept.isEmpty())
        m_keptBrokenFile = kept;
    m_fileBroken = m_fileBroken && !error.isEmpty();
}

QString CommonCfg::keptBrokenFile() const
{
    const QMutexLocker locker(&m_mutex);
    return m_keptBrokenFile;
}

QString CommonCfg::lastError() const
{
    const QMutexLocker locker(&m_mutex);
    return m_lastError;
}
