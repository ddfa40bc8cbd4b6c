// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QByteArray>

namespace corva
{

/// Whose messages a listing of the SIM and the card were, as digits: the IMSI and the IMEI. Empty when not
/// known.
struct PlaceOwners {
    QString sim;
    QString card;
    bool operator==(const PlaceOwners &) const = default;
};

/// What a file said, as far as it could be read; `problem` says for the log why that is not all of it.
struct ParsedMessages {
    std::vector<Message> messages;
    PlaceOwners owners;
    QString problem;
};

/// One message as it stands in a store's file, so that a file is put together from those that did not change:
///
///     <message id="..." box="sent" time="2024-05-03T12:34:56+02:00" read="1">
///      <number>+49171234567</number>
///      <part sequence="1" state="delivered" pdu="0791...">Hello</part>
///     </message>
///
/// What has its default is left out. Texts are escaped as `escapedText` does.
QByteArray messageXml(const Message &message);
QByteArray storeXmlHead(const PlaceOwners &owners = {});
QByteArray storeXmlTail();

/// Reads a store's file. In one that is damaged each message is looked for by itself, so that only those that
/// are damaged are lost, and of these only what cannot be read.
ParsedMessages parseStoreXml(const QByteArray &bytes);

} // namespace corva
