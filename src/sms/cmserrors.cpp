// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/cmserrors.h"

#include "link/atfields.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace corva
{

namespace
{

struct CodeText {
    int code;
    const char *text;
};

constexpr auto causes = std::to_array<CodeText>({
    {1, QT_TRANSLATE_NOOP("CmsErrors", "The number does not exist.")},
    {8, QT_TRANSLATE_NOOP("CmsErrors", "The operator has barred messages for this SIM.")},
    {10, QT_TRANSLATE_NOOP("CmsErrors", "Sending is barred.")},
    {17, QT_TRANSLATE_NOOP("CmsErrors", "The network failed.")},
    {21, QT_TRANSLATE_NOOP("CmsErrors", "The network rejected the message.")},
    {22, QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages is full.")},
    {27, QT_TRANSLATE_NOOP("CmsErrors", "The recipient cannot be reached.")},
    {28, QT_TRANSLATE_NOOP("CmsErrors", "The network does not know this SIM.")},
    {29, QT_TRANSLATE_NOOP("CmsErrors", "The network does not offer this service.")},
    {30, QT_TRANSLATE_NOOP("CmsErrors", "The network does not know this SIM.")},
    {38, QT_TRANSLATE_NOOP("CmsErrors", "The network is out of order.")},
    {41, QT_TRANSLATE_NOOP("CmsErrors", "The network failed for the moment.")},
    {42, QT_TRANSLATE_NOOP("CmsErrors", "The network is overloaded.")},
    {47, QT_TRANSLATE_NOOP("CmsErrors", "The network has no room for the message.")},
    {50, QT_TRANSLATE_NOOP("CmsErrors", "Messages are not part of this subscription.")},
    {69, QT_TRANSLATE_NOOP("CmsErrors", "The network does not offer this service.")},
    {81, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {95, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {96, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {97, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {98, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {99, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {111, QT_TRANSLATE_NOOP("CmsErrors", "The network did not understand the message.")},
    {127, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {128, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {129, QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {130, QT_TRANSLATE_NOOP("CmsErrors", "The message cannot replace another one.")},
    {143, QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {144, QT_TRANSLATE_NOOP("CmsErrors", "The message's alphabet is not supported.")},
    {145, QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {159, QT_TRANSLATE_NOOP("CmsErrors", "The message's alphabet is not supported.")},
    {160, QT_TRANSLATE_NOOP("CmsErrors", "The service centre refused the command.")},
    {161, QT_TRANSLATE_NOOP("CmsErrors", "The service centre refused the command.")},
    {175, QT_TRANSLATE_NOOP("CmsErrors", "The service centre refused the command.")},
    {176, QT_TRANSLATE_NOOP("CmsErrors", "This kind of message is not supported.")},
    {192, QT_TRANSLATE_NOOP("CmsErrors", "The service centre is busy.")},
    {193, QT_TRANSLATE_NOOP("CmsErrors", "The service centre does not serve this SIM.")},
    {194, QT_TRANSLATE_NOOP("CmsErrors", "The service centre failed.")},
    {195, QT_TRANSLATE_NOOP("CmsErrors", "The number is not valid.")},
    {196, QT_TRANSLATE_NOOP("CmsErrors", "The recipient is barred.")},
    {197, QT_TRANSLATE_NOOP("CmsErrors", "The service centre has this message already.")},
    {198, QT_TRANSLATE_NOOP("CmsErrors", "The service centre refuses the validity period.")},
    {199, QT_TRANSLATE_NOOP("CmsErrors", "The service centre refuses the validity period.")},
    {208, QT_TRANSLATE_NOOP("CmsErrors", "The SIM's memory for messages is full.")},
    {209, QT_TRANSLATE_NOOP("CmsErrors", "The SIM cannot hold messages.")},
    {210, QT_TRANSLATE_NOOP("CmsErrors", "The card failed.")},
    {211, QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages is full.")},
    {212, QT_TRANSLATE_NOOP("CmsErrors", "The SIM is busy.")},
    {213, QT_TRANSLATE_NOOP("CmsErrors", "The SIM failed.")},
    {300, QT_TRANSLATE_NOOP("CmsErrors", "The card failed.")},
    {301, QT_TRANSLATE_NOOP("CmsErrors", "The card's message service is in use.")},
    {302, QT_TRANSLATE_NOOP("CmsErrors", "The card does not allow this now.")},
    {303, QT_TRANSLATE_NOOP("CmsErrors", "The card cannot do this.")},
    {304, QT_TRANSLATE_NOOP("CmsErrors", "The card did not understand the message.")},
    {305, QT_TRANSLATE_NOOP("CmsErrors", "The card did not understand the message.")},
    {310, QT_TRANSLATE_NOOP("CmsErrors", "There is no SIM in the card.")},
    {311, QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PIN.")},
    {312, QT_TRANSLATE_NOOP("CmsErrors", "The card asks for its own PIN.")},
    {313, QT_TRANSLATE_NOOP("CmsErrors", "The SIM failed.")},
    {314, QT_TRANSLATE_NOOP("CmsErrors", "The SIM is busy.")},
    {315, QT_TRANSLATE_NOOP("CmsErrors", "This SIM does not fit the card.")},
    {316, QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PUK.")},
    {317, QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PIN2.")},
    {318, QT_TRANSLATE_NOOP("CmsErrors", "The SIM asks for its PUK2.")},
    {320, QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages failed.")},
    {321, QT_TRANSLATE_NOOP("CmsErrors", "There is no message at this place.")},
    {322, QT_TRANSLATE_NOOP("CmsErrors", "The memory for messages is full.")},
    {330, QT_TRANSLATE_NOOP("CmsErrors", "The service centre's number is not known.")},
    {331, QT_TRANSLATE_NOOP("CmsErrors", "There is no network.")},
    {332, QT_TRANSLATE_NOOP("CmsErrors", "The network did not answer in time.")},
    {340, QT_TRANSLATE_NOOP("CmsErrors", "The card expected no confirmation.")},
    {500, QT_TRANSLATE_NOOP("CmsErrors", "The card does not say why.")},
});

/// Ranges of TP-Status, by their last value; reasons that stand alone come before their range.
constexpr auto statuses = std::to_array<CodeText>({
    {0x01, QT_TRANSLATE_NOOP("CmsErrors", "The message was delivered.")},
    {0x02, QT_TRANSLATE_NOOP("CmsErrors", "The message was replaced by a newer one.")},
    {0x1F, QT_TRANSLATE_NOOP("CmsErrors", "The message was delivered.")},
    {0x3F,
     QT_TRANSLATE_NOOP("CmsErrors", "The message could not be delivered yet; the network goes on trying.")},
    {0x40, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {0x41, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device cannot take the message.")},
    {0x42, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's device refused the message.")},
    {0x43, QT_TRANSLATE_NOOP("CmsErrors", "The recipient cannot be reached.")},
    {0x45, QT_TRANSLATE_NOOP("CmsErrors", "The recipient's network failed.")},
    {0x46, QT_TRANSLATE_NOOP("CmsErrors", "The message could not be delivered in time.")},
    {0x48, QT_TRANSLATE_NOOP("CmsErrors", "The message was deleted before it was delivered.")},
    {0x49, QT_TRANSLATE_NOOP("CmsErrors", "The service centre does not know the message.")},
    {0xFF, QT_TRANSLATE_NOOP("CmsErrors", "The message could not be delivered.")},
});

constexpr int lastDelivered = 0x1F;
constexpr int lastTrying = 0x3F;

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
    if (isNumber && code >= 0)
        return CmsError{code, {}};
    return CmsError{-1, QString::fromLatin1(refused->detail)};
}

QString cmsErrorText(const CmsError &error)
{
    const auto *cause = std::ranges::find(causes, error.code, &CodeText::code);
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
    return translated(row == statuses.end() ? statuses.back().text : row->text);
}

DeliveryOutcome deliveryOutcome(int status)
{
    if (status >= 0 && status <= lastDelivered)
        return DeliveryOutcome::Delivered;
    return status >= 0 && status <= lastTrying ? DeliveryOutcome::StillTrying : DeliveryOutcome::Failed;
}

} // namespace corva
