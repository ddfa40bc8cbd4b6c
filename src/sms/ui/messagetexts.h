// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QTextOption>
#include <functional>

namespace corva
{

using NameOf = std::function<QString(const QString &number)>; ///< the phonebook's name, else the number

QString boxTitle(MessageBox box);
QString placeTitle(MessagePlace place);

/// Who is on the other side: the sender, or everybody whom it is for.
QString peopleOf(const Message &message, const NameOf &nameOf);
/// What it says. A delivery report has no text of its own: what its status means. 3GPP TS 23.040 9.2.3.15.
QString contentOf(const Message &message);
/// One line of what it says; what stands in for the text where there is none.
QString previewOf(const Message &message);
/// "2 of 3" while parts of a long message are missing; else empty.
QString partsNote(const Message &message);

/// In a word or two; empty for DeliveryState::None.
QString stateTitle(DeliveryState state);
/// The state of each part in a line, with to whom, when and why where that matters and is known. Empty for
/// what was received.
QString deliveryDetails(const Message &message, const NameOf &nameOf);

/// As people say it: "12:34", "Yesterday", "3 May", a date; empty for an invalid time.
QString shortWhen(const QDateTime &time, const QDateTime &now);
QString fullWhen(const QDateTime &time);

/// The writing direction of the text itself: that of its first letter. Without letters a number runs from
/// left to right, everything else as the window does.
Qt::LayoutDirection directionOf(const QString &text);
/// How a text is set that runs in its own direction: from the side where it begins.
QTextOption optionFor(const QString &text);

/// Where a text has a web or mail address, in characters.
struct LinkPlace {
    int start = 0;
    int length = 0;
};
std::vector<LinkPlace> linkPlaces(const QString &text);
/// The addresses themselves, as they stand there, each once.
QStringList linksIn(const QString &text);

} // namespace corva
