// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/profilestore.h"

#include "connection/profilechecks.h"
#include "connection/recordfile.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

using F = ProfileField;

/// A record of one of the files.
struct Place {
    RecordFile *file = nullptr;
    qsizetype index = 0;

    explicit operator bool() const { return file != nullptr; }
};

} // namespace

class ProfileStore::Private
{
public:
    explicit Private(const QString &folder)
        : total(folder + u"/totalRecord.conf"_s), extended(folder + u"/extendTotalRecord.conf"_s),
          chosen(folder + u"/defaultRecord.conf"_s)
    {
    }

    void load();
    void refresh() { profiles = total.records().all() + extended.records().all(); }
    Place placeOf(const QString &name);
    bool isDefault(const QString &name) const;
    bool save(RecordFile &file, const ProfileRecords &records, QString *error);
    void undo(RecordFile &file, const ProfileRecords &records);
    bool saveDefault(const ProfileRecords &records, QString *error) { return save(chosen, records, error); }

    RecordFile total;
    RecordFile extended;
    RecordFile chosen;
    QList<ConnectionProfile> profiles;
    QString writeProblem;
};

void ProfileStore::Private::load()
{
    for (RecordFile *file : {&total, &extended, &chosen})
        file->load();
    writeProblem.clear();
    refresh();
}

Place ProfileStore::Private::placeOf(const QString &name)
{
    for (RecordFile *file : {&total, &extended}) {
        for (qsizetype i = 0; i < file->records().size(); ++i) {
            if (file->records().at(i).name() == name)
                return {file, i};
        }
    }
    return {};
}

bool ProfileStore::Private::isDefault(const QString &name) const
{
    return chosen.records().size() > 0 && chosen.records().at(0).name() == name;
}

bool ProfileStore::Private::save(RecordFile &file, const ProfileRecords &records, QString *error)
{
    QString reason;
    const bool isSaved = file.save(records, &reason);
    writeProblem = reason;
    if (!isSaved && error)
        *error = reason;
    refresh();
    return isSaved;
}

/// Writes the old records after another file failed; that failure stays the problem.
void ProfileStore::Private::undo(RecordFile &file, const ProfileRecords &records)
{
    const QString problem = writeProblem;
    save(file, records, nullptr);
    writeProblem = problem;
}

ProfileStore::ProfileStore(const QString &folder, QObject *parent)
    : QObject(parent), d(std::make_unique<Private>(folder))
{
    d->load();
}

ProfileStore::~ProfileStore() = default;

void ProfileStore::reload()
{
    d->load();
    Q_EMIT sigChanged();
}

const QList<ConnectionProfile> &ProfileStore::list() const
{
    return d->profiles;
}

std::optional<ConnectionProfile> ProfileStore::find(const QString &name) const
{
    for (const ConnectionProfile &profile : d->profiles) {
        if (profile.name() == name)
            return profile;
    }
    return {};
}

QString ProfileStore::problem() const
{
    for (const RecordFile *file : {&d->total, &d->extended, &d->chosen}) {
        if (!file->problem().isEmpty())
            return file->problem();
    }
    return d->writeProblem;
}

QString ProfileStore::refusal(const ConnectionProfile &profile, const QString &oldName) const
{
    QString reason = profileRefusal(profile);
    if (reason.isEmpty() && profile.name() != oldName && find(profile.name()))
        return tr("There is a profile with this name already.");
    return reason;
}

bool ProfileStore::add(const ConnectionProfile &profile, QString *error)
{
    const QString reason = refusal(profile, {});
    if (!reason.isEmpty())
        return refuse(reason, error);
    ProfileRecords records = d->total.records();
    records.append(profile);
    const bool isSaved = d->save(d->total, records, error);
    if (isSaved)
        Q_EMIT sigChanged();
    return isSaved;
}

bool ProfileStore::refuse(const QString &reason, QString *error)
{
    if (error)
        *error = reason;
    return false;
}

bool ProfileStore::change(const QString &name, const ConnectionProfile &profile, QString *error)
{
    const Place place = d->placeOf(name);
    if (!place)
        return refuse(tr("There is no profile with this name."), error);
    ProfileRecords records = place.file->records();
    if (!records.at(place.index).isEditable())
        return refuse(tr("This profile may not be changed."), error);
    const QString reason = refusal(profile, name);
    if (!reason.isEmpty())
        return refuse(reason, error);
    const bool wasDefault = d->isDefault(name);
    const ProfileRecords old = records;
    records.change(place.index, profile);
    if (!d->save(*place.file, records, error))
        return false;
    if (wasDefault && !d->saveDefault(records.only(place.index), error)) {
        d->undo(*place.file, old);
        return false;
    }
    Q_EMIT sigChanged();
    return true;
}

bool ProfileStore::remove(const QString &name, QString *error)
{
    const Place place = d->placeOf(name);
    if (!place)
        return refuse(tr("There is no profile with this name."), error);
    ProfileRecords records = place.file->records();
    if (!records.at(place.index).isEditable())
        return refuse(tr("This profile may not be deleted."), error);
    records.remove(place.index);
    // First: the file of the default profile never names one that is not there.
    const ProfileRecords oldDefault = d->chosen.records();
    if (d->isDefault(name) && !d->saveDefault({}, error))
        return false;
    if (!d->save(*place.file, records, error)) {
        d->undo(d->chosen, oldDefault);
        return false;
    }
    Q_EMIT sigChanged();
    return true;
}

std::optional<ConnectionProfile> ProfileStore::defaultProfile() const
{
    const ProfileRecords &records = d->chosen.records();
    return records.size() > 0 ? std::optional(records.at(0)) : std::nullopt;
}

bool ProfileStore::isDefaultBroken() const
{
    return !d->chosen.problem().isEmpty();
}

bool ProfileStore::setDefault(const QString &name, QString *error)
{
    const Place place = d->placeOf(name);
    if (!place)
        return refuse(tr("There is no profile with this name."), error);
    const bool isSaved = d->saveDefault(place.file->records().only(place.index), error);
    if (isSaved)
        Q_EMIT sigChanged();
    return isSaved;
}

std::optional<ConnectionProfile> ProfileStore::profileFor(const QString &imsi) const
{
    std::optional<ConnectionProfile> best;
    qsizetype bestLength = 0;
    for (const ConnectionProfile &profile : d->profiles) {
        const QString prefix = profile.imsiPrefix();
        if (prefix.size() > bestLength && imsi.startsWith(prefix)) {
            best = profile;
            bestLength = prefix.size();
        }
    }
    return best;
}

bool ProfileStore::takeProposal(const ApnProposal &proposal, QString *error)
{
    ConnectionProfile profile = profileOf(proposal);
    const QString name = profile.name();
    for (int i = 2; const auto other = find(profile.name()); ++i) {
        if (other->text(F::Apn) == proposal.apn && other->text(F::Imsi) == proposal.network)
            return setDefault(profile.name(), error);
        profile.setText(F::Name, name + u' ' + QString::number(i));
    }
    const QString reason = profileRefusal(profile);
    if (!reason.isEmpty())
        return refuse(reason, error);
    ProfileRecords records = d->extended.records();
    records.append(profile);
    return d->save(d->extended, records, error) && setDefault(profile.name(), error);
}

ConnectionProfile ProfileStore::newProfile()
{
    ConnectionProfile profile;
    for (const F field :
         {F::AsksUserName, F::ObtainsApn, F::Chap, F::NoAuthentication, F::UsesDns, F::UsesPdp})
        profile.setOn(field, false);
    for (const F field : {F::SavesUserName, F::UsesApn, F::Pap, F::ObtainsDns, F::ObtainsPdp, F::SectionShow,
                          F::UserNameEditable})
        profile.setOn(field, true);
    profile.setText(F::Phone, u"*99#"_s);
    profile.setText(F::IpMode, u"IP"_s);
    profile.setText(F::DeleteEnable, u"can&edit"_s);
    return profile;
}

ConnectionProfile ProfileStore::profileOf(const ApnProposal &proposal)
{
    ConnectionProfile profile = newProfile();
    const QString plan = proposal.planName.isEmpty() ? proposal.apn : proposal.planName;
    profile.setText(F::Name, (proposal.operatorName + u" - "_s + plan).left(100));
    profile.setText(F::Apn, proposal.apn);
    profile.setText(F::UserName, proposal.userName);
    profile.setText(F::Password, proposal.password);
    profile.setText(F::Imsi, proposal.network);
    profile.setOn(F::Pap, !proposal.usesChap);
    profile.setOn(F::Chap, proposal.usesChap);
    return profile;
}

} // namespace corva
