// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/statustexts.h"

#include "device/offlinediagnosis.h"
#include "window/operatorname.h"

#include <QGuiApplication>
#include <QLocale>
#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct NetworkRow {
    NetworkType type;
    QLatin1StringView name;
    QLatin1StringView as3G;
    QLatin1StringView asH;
};

constexpr NetworkRow networkRows[] = {
    {NetworkType::Gsm, "GSM"_L1, "GSM"_L1, "GSM"_L1},
    {NetworkType::Gprs, "GPRS"_L1, "GPRS"_L1, "GPRS"_L1},
    {NetworkType::Edge, "EDGE"_L1, "EDGE"_L1, "EDGE"_L1},
    {NetworkType::Umts, "UMTS"_L1, "3G"_L1, "3G"_L1},
    {NetworkType::Hsdpa, "HSDPA"_L1, "3G"_L1, "H"_L1},
    {NetworkType::Hsupa, "HSUPA"_L1, "3G"_L1, "H"_L1},
    {NetworkType::Hspa, "HSPA"_L1, "3G"_L1, "H"_L1},
    {NetworkType::HspaPlus, "HSPA+"_L1, "3G"_L1, "H+"_L1},
    {NetworkType::TdScdma, "TD-SCDMA"_L1, "3G"_L1, "3G"_L1},
    {NetworkType::TdHspa, "TD-HSPA"_L1, "3G"_L1, "H"_L1},
    {NetworkType::Cdma1x, "CDMA 1x"_L1, "1x"_L1, "1x"_L1},
    {NetworkType::Evdo, "EV-DO"_L1, "3G"_L1, "3G"_L1},
    {NetworkType::Hybrid, "CDMA 1x and EV-DO"_L1, "3G"_L1, "3G"_L1},
    {NetworkType::Lte, "LTE"_L1, "4G"_L1, "4G"_L1},
};

const NetworkRow *networkRow(NetworkType type)
{
    const auto *row = std::find_if(std::begin(networkRows), std::end(networkRows),
                                   [type](const NetworkRow &candidate) { return candidate.type == type; });
    return row == std::end(networkRows) ? nullptr : row;
}

/// A part in another writing direction, kept together in a window from right to left.
QString isolated(const QString &part)
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popIsolate(0x2069);
    return QGuiApplication::isRightToLeft() ? firstStrongIsolate + part + popIsolate : part;
}

QString text(const char *source)
{
    return QCoreApplication::translate("CardStatus", source);
}

} // namespace

Naming3G naming3GFromNumber(int naming3GToH)
{
    return naming3GToH == 1 ? Naming3G::H : Naming3G::ThreeG;
}

QString networkTypeShort(NetworkType type, Naming3G naming)
{
    const NetworkRow *row = networkRow(type);
    if (!row)
        return {};
    return naming == Naming3G::H ? row->asH : row->as3G;
}

QString networkTypeName(NetworkType type)
{
    const NetworkRow *row = networkRow(type);
    return row ? QString(row->name) : QString();
}

QString simText(SimState sim)
{
    switch (sim) {
    case SimState::Ready: return text(QT_TRANSLATE_NOOP("CardStatus", "Ready"));
    case SimState::PinNeeded: return text(QT_TRANSLATE_NOOP("CardStatus", "Locked, PIN needed"));
    case SimState::PukNeeded: return text(QT_TRANSLATE_NOOP("CardStatus", "Blocked, PUK needed"));
    case SimState::Busy: return text(QT_TRANSLATE_NOOP("CardStatus", "Starting"));
    case SimState::Failure: return text(QT_TRANSLATE_NOOP("CardStatus", "Cannot be read"));
    case SimState::Absent: return text(QT_TRANSLATE_NOOP("CardStatus", "No SIM card"));
    case SimState::Unknown: break;
    }
    return {};
}

QString registrationText(Registration registration)
{
    switch (registration) {
    case Registration::NotSearching: return text(QT_TRANSLATE_NOOP("CardStatus", "Not searching"));
    case Registration::Home: return text(QT_TRANSLATE_NOOP("CardStatus", "Home network"));
    case Registration::Searching: return text(QT_TRANSLATE_NOOP("CardStatus", "Searching"));
    case Registration::Denied: return text(QT_TRANSLATE_NOOP("CardStatus", "Refused"));
    case Registration::Roaming: return text(QT_TRANSLATE_NOOP("CardStatus", "Roaming"));
    case Registration::Unknown: break;
    }
    return {};
}

QString serviceText(ServiceState service)
{
    switch (service) {
    case ServiceState::None: return text(QT_TRANSLATE_NOOP("CardStatus", "No service"));
    case ServiceState::Limited: return text(QT_TRANSLATE_NOOP("CardStatus", "Emergency calls only"));
    case ServiceState::Full: return text(QT_TRANSLATE_NOOP("CardStatus", "Full service"));
    case ServiceState::LimitedRegional:
        return text(QT_TRANSLATE_NOOP("CardStatus", "No service in this region"));
    case ServiceState::PowerSave: return text(QT_TRANSLATE_NOOP("CardStatus", "Saving power"));
    case ServiceState::Unknown: break;
    }
    return {};
}

QString signalText(const CardState &state)
{
    if (!state.signalDbm)
        return {};
    // A measure with a Latin unit keeps Latin digits: others would bring a direction of their own along.
    return text(QT_TRANSLATE_NOOP("CardStatus", "%1 dBm")).arg(*state.signalDbm);
}

QString signalWithBarsText(const CardState &state)
{
    if (!state.signalDbm)
        return {};
    return text(QT_TRANSLATE_NOOP("CardStatus", "%1, %2 of 5 bars"))
        .arg(isolated(signalText(state)))
        .arg(state.signalBars()); // as the 5 beside it
}

bool isRegistered(const CardState &state)
{
    return state.presence == CardPresence::Ready &&
           (state.registration == Registration::Home || state.registration == Registration::Roaming);
}

QString operatorText(const CardState &state)
{
    return operatorNameOf(state, OperatorNameRules::fromConfiguration());
}

QString summaryText(const CardState &state)
{
    const auto steps = diagnose(state);
    if (const DiagnosisStep *problem = firstProblem(steps))
        return text(QT_TRANSLATE_NOOP("CardStatus", "Offline: %1")).arg(problem->headline);
    QStringList parts{operatorText(state), networkTypeName(state.networkType)};
    parts.removeAll(QString());
    if (parts.isEmpty())
        return text(QT_TRANSLATE_NOOP("CardStatus", "In the network"));
    return parts.join(text(QT_TRANSLATE_NOOP("CardStatus", ", ")));
}

} // namespace corva
