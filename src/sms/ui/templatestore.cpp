// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/templatestore.h"

#include "shell/safefile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <optional>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 largestFile = 4'000'000;
const QString listName = u"templates"_s;

std::optional<QStringList> readTemplates(const QByteArray &content)
{
    const QJsonValue list = QJsonDocument::fromJson(content).object().value(listName);
    if (!list.isArray())
        return std::nullopt;
    QStringList texts;
    const QJsonArray entries = list.toArray();
    for (const auto &entry : entries)
        if (!entry.toString().isEmpty())
            texts += entry.toString();
    texts.removeDuplicates();
    return texts;
}

} // namespace

TemplateStore::TemplateStore(QString path, QObject *parent) : QObject(parent), m_path(std::move(path)) {}

const QStringList &TemplateStore::templates()
{
    if (m_isRead)
        return m_templates;
    m_isRead = true;
    const QByteArray content = readAtMost(m_path, largestFile);
    if (const auto texts = readTemplates(content))
        m_templates = *texts;
    else
        m_isBroken = !content.isEmpty();
    return m_templates;
}

bool TemplateStore::add(const QString &text, QString *error)
{
    QStringList changed = templates();
    if (text.isEmpty() || changed.contains(text))
        return true;
    return write(changed += text, error);
}

bool TemplateStore::remove(const QString &text, QString *error)
{
    QStringList changed = templates();
    return changed.removeAll(text) == 0 || write(changed, error);
}

bool TemplateStore::write(const QStringList &changed, QString *error)
{
    if (m_isBroken && keepBrokenFile(m_path).isEmpty()) {
        *error = tr("%1 cannot be read, and could not be kept beside.").arg(m_path);
        return false;
    }
    m_isBroken = false;
    const QJsonObject root{{listName, QJsonArray::fromStringList(changed)}};
    if (!writeFileSafely(m_path, QJsonDocument(root).toJson(), error))
        return false;
    m_templates = changed;
    Q_EMIT sigChanged();
    return true;
}

} // namespace corva
