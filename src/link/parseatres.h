// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// Classifies a reply that holds the card's echo of its command, or none; the codes are `corva::ResultCode`.
unsigned Parse_At_Res(char *reply);

namespace corva
{

/// The codes that operations compare with. A code means something only beside the command that earned it.
enum ResultCode : int {
    SimReady = 0,
    SimPin = 1,
    SimBusy = 2,
    SimFailure = 3,
    SimPuk = 4,
    PukRequired = 7,
    FacilityOn = 13,
    FacilityOff = 14,
    LockDone = 15,
    LockRefused = 16,
    UnlockDone = 17,
    UnlockRefused = 18,
    PasswordChanged = 19,
    PasswordRefused = 20,
    PasswordPukRequired = 21,
    PasswordFailed = 22,
    CardPowered = 26,
    CardOnline = 28,
    CardOffline = 29,
    SignalLevel1 = 30,
    SignalLevel2 = 31,
    SignalLevel3 = 32,
    SignalLevel4 = 33,
    SignalLevel5 = 34,
    SignalNone = 35,
    StorageSet = 44,
    StorageNotSet = 45,
    StorageRead = 46,
    StorageNotRead = 47,
    PlainOk = '0',
    PlainError = '1',
    FirmwareRead = 62,
    FirmwareNotRead = 63,
    Acknowledged = 86,
    NoCarrier = 94,
    Busy = 95,
    NoAnswer = 96,
    Connected = 97,
    UnknownOk = 98,
    UnknownError = 99,
    NoReply = 102,
    NotWritten = 103, ///< also "anything else" of the classifier
    CallWaitingOk = 106,
    CallWaitingFailed = 107,
    // Codes that only the operations below know.
    FullFunctionality = 110,
    MinimumFunctionality = 111,
    EvdoLevel1 = 112, ///< to EvdoLevel1 + 4 for five levels
    EvdoNone = 117,
    TestModeOn = 118,
    TestModeOff = 119,
    DataCallReport = 120, ///< to DataCallReport + 3, the state added
    ProfileSet = 124,
    ProfileNotSet = 125,
    SimFileRead = 126,
    SimFileNotRead = 127,
    SecurityRead = 128,
    SecurityNotRead = 129,
    FunctionalitySet = 130,
    FunctionalityNotSet = 131,
    TagSet = 132,
    TagNotSet = 133,
    SimIsUsim = 134,
    SimIsNotUsim = 135,
};

/// `Parse_At_Res` for a reply whose command is known. With the echo off the reply does not say what it
/// answers, so the command selects the rule: every operation then gets the same code with the card's echo on
/// and off. A command without a row of its own gives 48 for "OK" and 49 for an error.
int classifyReply(const QByteArray &reply, const QByteArray &command);

/// The code 30 to 35 for "+CSQ: <rssi>". 3GPP TS 27.007 8.5; 0, 32..98 and 99 are no signal.
int signalLevelCode(int rssi);

} // namespace corva
