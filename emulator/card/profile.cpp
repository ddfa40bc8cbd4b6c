// SPDX-License-Identifier: GPL-3.0-or-later
#include "card/profile.h"

#include "card/cardfields.h"

#include <QFile>
#include <QJsonDocument>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

const Fields<Profile> &profileFields()
{
    static const Fields<Profile> fields = [] {
        Fields<Profile> all{listField(u"faults"_s, &Profile::faults, faultFields())};
        for (const Field<CardState> &field : cardFields())
            all.push_back({field.key,
                           [&field](Profile &profile, const QJsonValue &value) {
                               return field.read(profile.card, value);
                           },
                           [&field](const Profile &profile) { return field.write(profile.card); }});
        return all;
    }();
    return fields;
}

std::variant<Profile, Complaint> parseOver(Profile profile, const QByteArray &json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull())
        return u"not JSON: %1 at byte %2"_s.arg(error.errorString()).arg(error.offset);
    const QJsonValue root = document.isObject() ? QJsonValue(document.object()) : QJsonValue();
    if (const Complaint complaint = readFields(profile, root, profileFields()); !complaint.isEmpty())
        return complaint;
    return profile;
}

std::variant<Profile, Complaint> readFile(const Profile &base, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return u"%1: %2"_s.arg(path, file.errorString());
    auto result = parseOver(base, file.readAll());
    if (const auto *complaint = std::get_if<Complaint>(&result))
        return u"%1: %2"_s.arg(path, *complaint);
    return result;
}

QString builtInPath(const QString &name)
{
    return u":/cardemu/profiles/%1.json"_s.arg(name);
}

// A file that is part of this program: what is wrong with it shows in every use, so it is not asked after
// here.
const Profile &wcdma()
{
    static const Profile profile = std::get<Profile>(readFile({}, builtInPath(u"wcdma"_s)));
    return profile;
}

} // namespace

std::variant<Profile, Complaint> Profile::parse(const QByteArray &json)
{
    return parseOver(wcdma(), json);
}

std::variant<Profile, Complaint> Profile::load(const QString &path)
{
    return readFile(wcdma(), path);
}

std::variant<Profile, Complaint> Profile::builtIn(const QString &name)
{
    return load(builtInPath(name));
}

} // namespace cardemu
