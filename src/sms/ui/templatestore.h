// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace corva
{

/// Texts that a person sends often, in "Data/sms-templates.json": an object with the list "templates".
/// Small, and read when it is first asked for.
class TemplateStore final : public QObject
{
    Q_OBJECT

public:
    explicit TemplateStore(QString path, QObject *parent = nullptr);

    /// The texts, in the order of adding.
    const QStringList &templates();
    /// Adds a text at the end; one that is there already stays where it is. False with a sentence in `error`
    /// when the file could not be written: nothing is added then.
    bool add(const QString &text, QString *error);
    bool remove(const QString &text, QString *error);

Q_SIGNALS:
    void sigChanged();

private:
    bool write(const QStringList &templates, QString *error);

    QString m_path;
    QStringList m_templates;
    bool m_isRead = false;
    bool m_isBroken = false; ///< the file on disk could not be read: it is kept beside before the first write
};

} // namespace corva
