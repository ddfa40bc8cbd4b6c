// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDomDocument>
#include <QMap>
#include <QMutex>
#include <QString>

/// The sectioned key/value store "Data/common-config.xml". Read from any thread; written from the GUI thread.
class CommonCfg
{
public:
    CommonCfg();

    /// The value, or an empty text when the section or the key is absent. The keys "operator", "duration_format" and
    /// "usage_statistic_enabled" answer from a cache by key name alone once they had a value.
    QString getValue(const QString &section, const QString &key) const;
    /// The decimal integer of the value; 0 when it is absent or not a number.
    int getNumber(const QString &section, const QString &key) const;
    /// Changes the value and writes the whole document to disk.
    void setValue(const QString &section, const QString &key, const QString &value);
    /// Rebuilds the two-level map from the document.
    void getMap();
    /// Writes the document to "Data/common-config.xml".
    void saveDom();

private:
    void rebuildMap();
    bool writeDocument();

    mutable QMutex m_mutex;
    QDomDocument m_document;
    QMap<QString, QMap<QString, QString>> m_values;
    bool m_fileBroken = false; ///< the file on disk did not parse: keep it beside before it is replaced
    mutable QString m_operator;
    mutable QString m_durationFormat;
    mutable QString m_usageStatisticEnabled;
};

extern CommonCfg cmcfg;
