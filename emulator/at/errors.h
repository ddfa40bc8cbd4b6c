// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace cardemu
{

/// "+CME ERROR" numbers. 3GPP TS 27.007 9.2.
namespace cme
{
inline constexpr int notAllowed = 3;
inline constexpr int notSupported = 4;
inline constexpr int simNotInserted = 10;
inline constexpr int simPinRequired = 11;
inline constexpr int simPukRequired = 12;
inline constexpr int simFailure = 13;
inline constexpr int simBusy = 14;
inline constexpr int incorrectPassword = 16;
inline constexpr int memoryFull = 20;
inline constexpr int invalidIndex = 21;
inline constexpr int notFound = 22;
inline constexpr int noNetworkService = 30;
inline constexpr int networkNotAllowed = 32;
inline constexpr int incorrectParameters = 50;
inline constexpr int unknown = 100;
inline constexpr int notSubscribed = 133;
} // namespace cme

/// "+CMS ERROR" numbers. 3GPP TS 27.005 3.2.5.
namespace cms
{
inline constexpr int notAllowed = 302;
inline constexpr int notSupported = 303;
inline constexpr int invalidPduParameter = 304;
inline constexpr int simNotInserted = 310;
inline constexpr int simPinRequired = 311;
inline constexpr int simFailure = 313;
inline constexpr int simBusy = 314;
inline constexpr int simPukRequired = 316;
inline constexpr int invalidIndex = 321;
inline constexpr int memoryFull = 322;
inline constexpr int centreUnknown = 330;
inline constexpr int noNetworkService = 331;
inline constexpr int noAcknowledgementExpected = 340;
inline constexpr int unknown = 500;
} // namespace cms

/// The words for a number; those of "unknown" where the standard's list has none.
QByteArray cmeWords(int number);
QByteArray cmsWords(int number);

/// The message error that says the same as a "+CME ERROR" of the SIM.
int cmsFromCme(int number);

} // namespace cardemu
