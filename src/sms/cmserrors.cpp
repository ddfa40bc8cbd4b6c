// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/cmserrors.h"

#include "link/atfields.h"
#include "sms/message.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace corva
{

namespace
{

struct Cause {
    int code;
    const char *words; ///< the standard's, as a card says them in "AT+CMEE=2"
    const char *text;
};

struct CodeText {
    int code;
    const char *text;
};

/// Numbers of "+CME ERROR" that a message operation meets, and what they are called. 3GPP TS 27.007 9.2.
constexpr auto equipmentErrors = std::to_array<CodeText>({
    {3, "operation not allowed"},
    {4, "operation not supported"},
    {10, "SIM not inserted"},
    {11, "SIM PIN required"},
    {12, "SIM PUK required"},
    {13, "SIM failure"},
    {14, "SIM busy"},
    {15, "SIM wrong"},
    {17, "SIM PIN2 required"},
    {18, "SIM PUK2 required"},
    {20, "memory full"},
    {21, "invalid memory index"},
    {23, "memory failure"},
    {30, "no network service"},
    {31, "network timeout"},
});

constexpr auto causes = std::to_array<Cause>({
    {1, "Unassigned (unallocated) number", QT_TRANSLATE_NOOP("CmsErrors", "The number does not exist.")},
    {8, "Operator determined barring",
     QT_TRANSLATE_NOOP("CmsErrors", "The operator has barred messages for this SIM.")},
    {10, "Call barred", QT_TRANSLATE_NOOP("CmsErrors", "Sending is barred.")},
    {17, "Network failure", QT_TRANSLATE_NOOP("CmsErrors", "The network failed.")},
    {21, "Short message transfer rejected",
     QT_TRANSLATE_NOOP("CmsErrors", "The network rejected the message.")},
    {22, "Memory capacity exceeded", QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages is full.")},
    {27, "Destination out of service", QT_TRANSLATE_NOOP("CmsErrors", "The recipient cannot be reached.")},
    {28, "Unidentified subscriber", QT_TRANSLATE_NOOP("CmsErrors", "The network does not know this SIM.")},
    {29, "Facility rejected", QT_TRANSLATE_NOOP("CmsErrors", "The network does not offer this service.")},
    {30, "Unknown subscriber", QT_TRANSLATE_NOOP("CmsErrors", "The network does not know this SIM.")},
    {38, "Network out of order", QT_TRANSLATE_NOOP("CmsErrors", "The network is out of order.")},
    {41, "Temporary failure", QT_TRANSLATE_NOOP("CmsErrors", "The network failed for the moment.")},
    {42, "Congestion", QT_TRANSLATE_NOOP("CmsErrors", "The network is overloaded.")},
    {47, "Resources unavailable, unspecified",
     QT_TRANSLATE_NOOP("CmsErrors", "The network has no room for the message.")},
    {50, "Requested facility not subscribed",
     QT_TRANSLATE_NOOP("CmsErrors", "Messages are not part of this subscription.")},
    {69, "Requested facility not implemented",
     QT_TRANSLATE_NOOP("CmsErrors", "The network does not offer this service.")},
    {81, "Invalid short message transfer reference value",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {95, "Invalid message, unspecified",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {96, "Invalid mandatory information",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {97, "Message type non-existent or not implemented",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {98, "Message not compatible with short message protocol state",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {99, "Information element non-existent or not implemented",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {111, "Protocol error, unspecified",
     QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {127, "Interworking, unspecified", QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {128, "Telematic interworking not supported",
     QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {129, "Short message Type 0 not supported",
     QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {130, "Cannot replace short message",
     QT_TRANSLATE_NOOP("CmsErrors", "The message cannot replace another one.")},
    {143, "Unspecified TP-PID error",
     QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {144, "Data coding scheme (alphabet) not supported",
     QT_TRANSLATE_NOOP("CmsErrors", "The message's alphabet is not supported.")},
    {145, "Message class not supported",
     QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {159, "Unspecified TP-DCS error",
     QT_TRANSLATE_NOOP("CmsErrors", "The message's alphabet is not supported.")},
    {160, "Command cannot be actioned",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre refused the command.")},
    {161, "Command unsupported", QT_TRANSLATE_NOOP("CmsErrors", "The service centre refused the command.")},
    {175, "Unspecified TP-Command error",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre refused the command.")},
    {176, "TPDU not supported", QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {192, "SC busy", QT_TRANSLATE_NOOP("CmsErrors", "The service centre is busy.")},
    {193, "No SC subscription",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre does not serve this SIM.")},
    {194, "SC system failure", QT_TRANSLATE_NOOP("CmsErrors", "The service centre failed.")},
    {195, "Invalid SME address", QT_TRANSLATE_NOOP("CmsErrors", "The number is not valid.")},
    {196, "Destination SME barred", QT_TRANSLATE_NOOP("CmsErrors", "The recipient is barred.")},
    {197, "SM Rejected-Duplicate SM",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre has this message already.")},
    {198, "TP-VPF not supported",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre refuses the validity period.")},
    {199, "TP-VP not supported",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre refuses the validity period.")},
    {208, "SIM SMS storage full", QT_TRANSLATE_NOOP("CmsErrors", "The SIM's memory for messages is full.")},
    {209, "No SMS storage capability in SIM",
     QT_TRANSLATE_NOOP("CmsErrors", "The SIM cannot hold messages.")},
    {210, "Error in MS", QT_TRANSLATE_NOOP("CmsErrors", "The card failed.")},
    {211, "Memory Capacity Exceeded", QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages is full.")},
    {212, "SIM Application Toolkit Busy", QT_TRANSLATE_NOOP("CmsErrors", "The SIM is busy.")},
    {213, "SIM data download error", QT_TRANSLATE_NOOP("CmsErrors", "The SIM failed.")},
    {255, "Unspecified error cause",
     QT_TRANSLATE_NOOP("CmsErrors", "The network refused the message, without saying why.")},
    {300, "ME failure", QT_TRANSLATE_NOOP("CmsErrors", "The card failed.")},
    {301, "SMS service of ME reserved",
     QT_TRANSLATE_NOOP("CmsErrors", "The card's message service is in use.")},
    {302, "operation not allowed", QT_TRANSLATE_NOOP("CmsErrors", "The card does not allow this now.")},
    {303, "operation not supported", QT_TRANSLATE_NOOP("CmsErrors", "The card cannot do this.")},
    {304, "invalid PDU mode parameter",
     QT_TRANSLATE_NOOP("CmsErrors", "The card did not understand the message.")},
    {305, "invalid text mode parameter",
     QT_TRANSLATE_NOOP("CmsErrors", "The card did not understand the message.")},
    {310, "SIM not inserted", QT_TRANSLATE_NOOP("CmsErrors", "There is no SIM in the card.")},
    {311, "SIM PIN required", QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PIN.")},
    {312, "PH-SIM PIN required", QT_TRANSLATE_NOOP("CmsErrors", "The card asks for its own PIN.")},
    {313, "SIM failure", QT_TRANSLATE_NOOP("CmsErrors", "The SIM failed.")},
    {314, "SIM busy", QT_TRANSLATE_NOOP("CmsErrors", "The SIM is busy.")},
    {315, "SIM wrong", QT_TRANSLATE_NOOP("CmsErrors", "This SIM does not fit the card.")},
    {316, "SIM PUK required", QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PUK.")},
    {317, "SIM PIN2 required", QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PIN2.")},
    {318, "SIM PUK2 required", QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PUK2.")},
    {320, "memory failure", QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages failed.")},
    {321, "invalid memory index", QT_TRANSLATE_NOOP("CmsErrors", "There is no message at this place.")},
    {322, "memory full", QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages is full.")},
    {330, "SMSC address unknown",
     QT_TRANSLATE_NOOP("CmsErrors", "The service centre's number is not known.")},
    {331, "no network service", QT_TRANSLATE_NOOP("CmsErrors", "There is no network.")},
    {332, "network timeout", QT_TRANSLATE_NOOP("CmsErrors", "The network did not answer in time.")},
    {340, "no +CNMA acknowledgement expected",
     QT_TRANSLATE_NOOP("CmsErrors", "The card expected no confirmation.")},
    {500, "unknown error", QT_TRANSLATE_NOOP("CmsErrors", "The card does not say why.")},
});

constexpr auto delivered = QT_TRANSLATE_NOOP("CmsErrors", "The message was delivered.");
constexpr auto notYet =
    QT_TRANSLATE_NOOP("CmsErrors", "The message could not be delivered yet; the network goes on trying.");
constexpr auto failed = QT_TRANSLATE_NOOP("CmsErrors", "The message could not be delivered.");
constexpr auto overloaded = QT_TRANSLATE_NOOP("CmsErrors", "The network is overloaded.");
constexpr auto busy = QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device is busy.");
constexpr auto silent = QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device does not answer.");
constexpr auto rejected = QT_TRANSLATE_NOOP("CmsErrors", "The network rejected the message.");
constexpr auto poorService =
    QT_TRANSLATE_NOOP("CmsErrors", "The network has not the quality of service that the message asks for.");
constexpr auto deviceFailed = QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device failed.");

/// TP-Status, each row up to its value. While the network goes on trying, and where it gave up on what may
/// pass, the reasons have the same numbers. 3GPP TS 23.040 9.2.3.15.
constexpr auto statuses = std::to_array<CodeText>({
    {0x00, delivered},
    {0x01, QT_TRANSLATE_NOOP("CmsErrors", "The message was passed on; whether it arrived is not known.")},
    {0x02, QT_TRANSLATE_NOOP("CmsErrors", "The message was replaced by a newer one.")},
    {0x1F, delivered},
    {0x20, overloaded},
    {0x21, busy},
    {0x22, silent},
    {0x23, rejected},
    {0x24, poorService},
    {0x25, deviceFailed},
    {0x3F, notYet},
    {0x40, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {0x41, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device cannot take the message.")},
    {0x42, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device refused the message.")},
    {0x43, QT_TRANSLATE_NOOP("CmsErrors", "The recipient cannot be reached.")},
    {0x44, poorService},
    {0x45, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network does not work with this one.")},
    {0x46, QT_TRANSLATE_NOOP("CmsErrors", "The message could not be delivered in time.")},
    {0x47, QT_TRANSLATE_NOOP("CmsErrors", "The message was deleted by its sender before it was delivered.")},
    {0x48, QT_TRANSLATE_NOOP("CmsErrors", "The service centre deleted the message before it was delivered.")},
    {0x49, QT_TRANSLATE_NOOP("CmsErrors", "The service centre does not know the message.")},
    {0x5F, failed},
    {0x60, overloaded},
    {0x61, busy},
    {0x62, silent},
    {0x63, rejected},
    {0x64, poorService},
    {0x65, deviceFailed},
    {0xFF, failed},
});

QString translated(const char *text)
{
    return QCoreApplication::translate("CmsErrors", text);
}

} // namespace

std::optional<CmsError> cmsErrorIn(const QByteArray &reply)
{
    const auto refused = refusal(reply);
    if (!refused)
        return {};
    bool isNumber = false;
    const int code = refused->detail.toInt(&isNumber);
    const bool isOfEquipment = reply.contains("+CME ERROR:");
    constexpr int mostCode = 0xFFFF; // what a message is filed with; a longer figure stays words
    if (isNumber && code >= 0 && code <= mostCode && !isOfEquipment)
        return CmsError{code, {}};
    QByteArray words = refused->detail;
    const auto *named = std::ranges::find(equipmentErrors, code, &CodeText::code);
    if (isNumber && isOfEquipment && named != equipmentErrors.end())
        words = named->text;
    const auto *cause = std::ranges::find_if(
        causes, [&](const Cause &each) { return words.compare(each.words, Qt::CaseInsensitive) == 0; });
    if (cause != causes.end())
        return CmsError{cause->code, {}};
    return CmsError{-1, QString::fromLatin1(words)};
}

QString cmsErrorText(const CmsError &error)
{
    const auto *cause = std::ranges::find(causes, error.code, &Cause::code);
    if (cause != causes.end())
        return translated(cause->text);
    if (!error.detail.isEmpty())
        return QCoreApplication::translate("CmsErrors", "The card says: %1").arg(error.detail);
    if (error.code >= 0)
        return QCoreApplication::translate("CmsErrors", "The card refuses, with the code %1.")
            .arg(error.code);
    return QCoreApplication::translate("CmsErrors", "The card refuses, without saying why.");
}

QString deliveryStatusText(int status)
{
    const auto *row =
        std::ranges::find_if(statuses, [&](const CodeText &each) { return status <= each.code; });
    const QString reason = translated(status < 0 || row == statuses.end() ? failed : row->text);
    if (deliveryStateOf(status) != DeliveryState::StillTrying || row->text == notYet)
        return reason;
    return translated(notYet) + u' ' + reason;
}

} // namespace corva
