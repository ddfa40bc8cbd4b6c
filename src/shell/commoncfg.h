// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDomDocument>
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QString>

/// The sectioned key/value store "Data/common-config.xml". Read from any thread; written from the GUI thread.
class CommonCfg : public QObject
{
    Q_OBJECT

public:
    /// Reads the file in the current directory. One that is missing, unreadable or not well-formed leaves the
    /// store empty with a warning, and is not touched.
    CommonCfg();

    /// The value, or an empty text when the section or the key is absent. The keys "operator",
    /// "duration_format" and "usage_statistic_enabled" answer from a cache by key name alone once they had a
    /// value.
    QString getValue(const QString &section, const QString &key) const;
    /// The decimal integer of the value; 0 when it is absent or not a number.
    int getNumber(const QString &section, const QString &key) const;
    /// Changes the value and writes the whole document to disk. Characters that XML cannot hold become
    /// U+FFFD; a section or key that is no element name (ASCII letters, digits, "_", "-", ".") is refused
    /// with a warning.
    void setValue(const QString &section, const QString &key, const QString &value);
    /// Rebuilds the two-level map from the document.
    void getMap();
    /// Writes the document to "Data/common-config.xml". A file that could not be read is first kept beside.
    void saveDom();

    /// Where the file that could not be read was kept before the first write; empty when there was none.
    QString keptBrokenFile() const;
    /// Why the last writing failed, as a sentence; empty when it went well.
    QString lastError() const;

Q_SIGNALS:
    /// `setValue` made the value another one.
    void sigChanged(const QString &section, const QString &key);

private:
    void load();
    void rebuildMap();
    void changeDocument(const QString &section, const QString &key, const QString &value);
    QString *cacheOf(const QString &key) const;

    mutable QMutex m_mutex;
    QMutex m_writeMutex; ///< taken before m_mutex: one writer at a time, while readers go on
    QDomDocument m_document;
    QMap<QString, QMap<QString, QString>> m_values;
    bool m_fileBroken = false; ///< the file on disk could not be read: keep it beside before it is replaced
    QString m_keptBrokenFile;
    QString m_lastError;
    mutable QString m_operator;
    mutable QString m_durationFormat;
    mutable QString m_usageStatisticEnabled;
};

extern CommonCfg cmcfg;
