// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/apnproposals.h"

#include "connection/profilechecks.h"
#include "connection/profilestore.h"
#include "shell/safefile.h"

#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

constexpr qint64 largestDatabase = 16LL * 1024 * 1024;
constexpr std::size_t mostProposals = 200;

struct Found {
    ApnProposal proposal;
    bool isPrimary = false; ///< of the network's own operator, not of one that rides on it
    bool isPlainInternet = false;
};

/// MCC and MNC that begin the IMSI, or empty. TS 23.003 2.2: an MCC has three digits, an MNC two or three.
QString networkIn(const QXmlStreamAttributes &attributes, const QString &imsi)
{
    const QStringView mcc = attributes.value("mcc"_L1);
    const QStringView mnc = attributes.value("mnc"_L1);
    const QString network = mcc.toString() + mnc.toString();
    const bool isCode = mcc.size() == 3 && (mnc.size() == 2 || mnc.size() == 3);
    return isCode && imsi.startsWith(network) ? network : QString();
}

/// The text of the element, its blanks made one.
QString textOf(QXmlStreamReader &xml)
{
    return xml.readElementText(QXmlStreamReader::SkipChildElements).simplified();
}

bool isTranslated(const QXmlStreamReader &xml)
{
    return xml.attributes().hasAttribute("xml:lang"_L1);
}

Found readApn(QXmlStreamReader &xml)
{
    Found found;
    ApnProposal &proposal = found.proposal;
    proposal.apn = xml.attributes().value("value"_L1).trimmed().toString();
    QString usage = u"internet"_s;
    while (xml.readNextStartElement()) {
        const QString element = xml.name().toString();
        if (element == "name"_L1 && !isTranslated(xml)) {
            proposal.planName = textOf(xml);
        } else if (element == "username"_L1) {
            proposal.userName = textOf(xml);
        } else if (element == "password"_L1) {
            proposal.password = textOf(xml);
        } else {
            if (element == "usage"_L1)
                usage = xml.attributes().value("type"_L1).toString();
            if (element == "authentication"_L1)
                proposal.usesChap = xml.attributes().value("method"_L1) == "chap"_L1;
            xml.skipCurrentElement();
        }
    }
    found.isPlainInternet = usage == "internet"_L1;
    if (usage == "mms"_L1)
        proposal.apn.clear();
    return found;
}

struct Provider {
    QString name;
    QString network; ///< the longest code of it that begins the IMSI
    std::vector<Found> apns;
};

void readGsm(QXmlStreamReader &xml, const QString &imsi, Provider &provider)
{
    while (xml.readNextStartElement()) {
        if (xml.name() == "network-id"_L1) {
            const QString network = networkIn(xml.attributes(), imsi);
            if (network.size() > provider.network.size())
                provider.network = network;
            xml.skipCurrentElement();
        } else if (xml.name() == "apn"_L1 && !provider.network.isEmpty()) {
            provider.apns.push_back(readApn(xml));
        } else {
            xml.skipCurrentElement();
        }
    }
}

/// A value that would not make a profile is not proposed.
bool isUsable(const ApnProposal &proposal)
{
    if (proposal.apn.isEmpty() || proposal.operatorName.isEmpty())
        return false;
    return profileRefusal(ProfileStore::profileOf(proposal)).isEmpty();
}

void readProvider(QXmlStreamReader &xml, const QString &imsi, std::vector<Found> &all)
{
    Provider provider;
    const bool isPrimary = xml.attributes().value("primary"_L1) == "true"_L1;
    while (xml.readNextStartElement()) {
        if (xml.name() == "name"_L1 && !isTranslated(xml))
            provider.name = textOf(xml);
        else if (xml.name() == "gsm"_L1)
            readGsm(xml, imsi, provider);
        else
            xml.skipCurrentElement();
    }
    for (Found &found : provider.apns) {
        found.isPrimary = isPrimary;
        found.proposal.operatorName = provider.name;
        found.proposal.network = provider.network;
        if (all.size() < mostProposals && isUsable(found.proposal))
            all.push_back(std::move(found));
    }
}

std::vector<Found> readDatabase(QXmlStreamReader &xml, const QString &imsi)
{
    std::vector<Found> all;
    if (!xml.readNextStartElement() || xml.name() != "serviceproviders"_L1)
        return all;
    while (xml.readNextStartElement()) { // country
        while (xml.readNextStartElement()) {
            if (xml.name() == "provider"_L1)
                readProvider(xml, imsi, all);
            else
                xml.skipCurrentElement();
        }
    }
    return xml.hasError() ? std::vector<Found>() : all;
}

} // namespace

std::vector<ApnProposal> apnProposals(const QString &imsi, const QString &databasePath)
{
    const QByteArray text = imsi.size() < 6 ? QByteArray() : readAtMost(databasePath, largestDatabase + 1);
    if (text.size() > largestDatabase)
        return {};
    QXmlStreamReader xml(text);
    std::vector<Found> all = readDatabase(xml, imsi);

    qsizetype longest = 0;
    for (const Found &found : all)
        longest = std::max(longest, found.proposal.network.size());
    std::erase_if(all, [longest](const Found &found) { return found.proposal.network.size() < longest; });
    std::stable_sort(all.begin(), all.end(), [](const Found &a, const Found &b) {
        return std::pair(!a.isPlainInternet, !a.isPrimary) < std::pair(!b.isPlainInternet, !b.isPrimary);
    });

    std::vector<ApnProposal> proposals;
    for (const Found &found : all) {
        if (std::find(proposals.begin(), proposals.end(), found.proposal) == proposals.end())
            proposals.push_back(found.proposal);
    }
    return proposals;
}

} // namespace corva
