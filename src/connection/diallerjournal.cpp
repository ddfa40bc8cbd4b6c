// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/diallerjournal.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

constexpr std::array phaseNames = {"none"_L1, "saving"_L1, "saved"_L1, "restoring"_L1};

QJsonObject toObject(const DiallerJournal::File &file)
{
    QJsonArray written;
    for (const QByteArray &hash : file.written)
        written += QString::fromLatin1(hash);
    return {{u"existed"_s, file.existed},
            {u"original"_s, QString::fromLatin1(file.original)},
            {u"written"_s, written}};
}

DiallerJournal::File toFile(const QJsonObject &object)
{
    DiallerJournal::File file;
    file.existed = object[u"existed"_s].toBool();
    file.original = object[u"original"_s].toString().toLatin1();
    for (const QJsonValue hash : object[u"written"_s].toArray())
        file.written += hash.toString().toLatin1();
    return file;
}

} // namespace

QByteArray DiallerJournal::hashOf(const QByteArray &content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
}

QByteArray DiallerJournal::toJson() const
{
    QJsonObject list;
    for (auto it = files.begin(); it != files.end(); ++it)
        list[it.key()] = toObject(it.value());
    return QJsonDocument({{u"phase"_s, phaseNames[std::size_t(phase)]}, {u"files"_s, list}}).toJson();
}

DiallerJournal DiallerJournal::fromJson(const QByteArray &json)
{
    DiallerJournal journal;
    const QJsonObject root = QJsonDocument::fromJson(json).object();
    for (std::size_t i = 0; i < phaseNames.size(); ++i) {
        if (root[u"phase"_s].toString() == phaseNames[i])
            journal.phase = Phase(i);
    }
    const QJsonObject list = root[u"files"_s].toObject();
    for (auto it = list.begin(); it != list.end(); ++it)
        journal.files[it.key()] = toFile(it.value().toObject());
    return journal;
}

} // namespace corva
