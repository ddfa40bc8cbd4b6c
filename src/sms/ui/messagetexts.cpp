// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagetexts.h"

#include "sms/cmserrors.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qsizetype previewLength = 160;

QString text(const char *source, const char *meaning = nullptr)
{
    return QCoreApplication::translate("Messages", source, meaning);
}

/// A title, and which one of two that are the same in English.
struct Title {
    const char *source;
    const char *comment = nullptr;
};

QString text(const Title &title)
{
    return text(title.source, title.comment);
}

struct BoxRow {
    MessageBox box;
    Title title;
};

constexpr BoxRow boxRows[] = {
    {MessageBox::Inbox, {QT_TRANSLATE_NOOP("Messages", "Inbox")}},
    {MessageBox::Outbox, {QT_TRANSLATE_NOOP("Messages", "Outbox")}},
    {MessageBox::Sent, QT_TRANSLATE_NOOP3("Messages", "Sent", "box")},
    {MessageBox::Drafts, {QT_TRANSLATE_NOOP("Messages", "Drafts")}},
    {MessageBox::Deleted, {QT_TRANSLATE_NOOP("Messages", "Deleted")}},
    {MessageBox::Reports, {QT_TRANSLATE_NOOP("Messages", "Delivery reports")}},
};

struct PlaceRow {
    MessagePlace place;
    const char *title;
};

constexpr PlaceRow placeRows[] = {
    {MessagePlace::Computer, QT_TRANSLATE_NOOP("Messages", "Computer")},
    {MessagePlace::Sim, QT_TRANSLATE_NOOP("Messages", "SIM card")},
    {MessagePlace::Card, QT_TRANSLATE_NOOP("Messages", "Data card")},
};

struct StateRow {
    DeliveryState state;
    Title title;
};

constexpr StateRow stateRows[] = {
    {DeliveryState::Queued, {QT_TRANSLATE_NOOP("Messages", "Waiting to be sent")}},
    {DeliveryState::Sending, {QT_TRANSLATE_NOOP("Messages", "Being sent")}},
    {DeliveryState::Sent, QT_TRANSLATE_NOOP3("Messages", "Sent", "state")},
    {DeliveryState::Delivered, {QT_TRANSLATE_NOOP("Messages", "Delivered")}},
    {DeliveryState::StillTrying,
     {QT_TRANSLATE_NOOP("Messages", "Not delivered yet, the network still tries")}},
    {DeliveryState::Failed, {QT_TRANSLATE_NOOP("Messages", "Failed")}},
    {DeliveryState::Unsure, {QT_TRANSLATE_NOOP("Messages", "May have been sent")}},
};

const StateRow *rowOf(DeliveryState state)
{
    const auto *row = std::find_if(std::begin(stateRows), std::end(stateRows),
                                   [=](const StateRow &candidate) { return candidate.state == state; });
    return row == std::end(stateRows) ? nullptr : row;
}

QString partDetails(const Message &message, const MessagePart &part)
{
    const QString state = stateTitle(part.state);
    if (state.isEmpty())
        return {};
    const QDateTime time = part.reported.isValid() ? part.reported : part.sent;
    const QString stateAndTime =
        time.isValid() ? text(QT_TRANSLATE_NOOP("Messages", "%1, %2")).arg(state, fullWhen(time)) : state;
    const QString line = message.total > 1 ? text(QT_TRANSLATE_NOOP("Messages", "Part %1: %2"))
                                                 .arg(QLocale().toString(part.sequence), stateAndTime)
                                           : stateAndTime;
    const QString reason = part.errorCode >= 0     ? cmsErrorText({part.errorCode, {}})
                           : !part.fault.isEmpty() ? part.fault
                           : part.statusOctet >= 0 ? deliveryStatusText(part.statusOctet)
                                                   : QString();
    return reason.isEmpty() ? line : text(QT_TRANSLATE_NOOP("Messages", "%1. %2")).arg(line, reason);
}

QString dayAndMonth(QDate day)
{
    //: A day without its year, as QDate::toString takes it
    return QLocale().toString(day, text(QT_TRANSLATE_NOOP("Messages", "d MMM")));
}

} // namespace

QString boxTitle(MessageBox box)
{
    return text(boxRows[int(box)].title);
}

QString placeTitle(MessagePlace place)
{
    return text(placeRows[int(place)].title);
}

QString peopleOf(const Message &message, const NameOf &nameOf)
{
    QStringList names;
    for (const QString &recipient : message.recipients)
        names += nameOf(recipient).simplified();
    if (names.isEmpty())
        return message.box == MessageBox::Drafts ? text(QT_TRANSLATE_NOOP("Messages", "Nobody yet"))
                                                 : text(QT_TRANSLATE_NOOP("Messages", "Unknown sender"));
    return names.join(text(QT_TRANSLATE_NOOP("Messages", ", ")));
}

QString contentOf(const Message &message)
{
    if (message.box != MessageBox::Reports || message.parts.empty())
        return message.text();
    return deliveryStatusText(message.parts.front().statusOctet);
}

QString previewOf(const Message &message)
{
    if (!message.error.isEmpty())
        return text(QT_TRANSLATE_NOOP("Messages", "This message cannot be read"));
    const QString line = contentOf(message).left(previewLength).simplified();
    return line.isEmpty() ? text(QT_TRANSLATE_NOOP("Messages", "No text")) : line;
}

QString partsNote(const Message &message)
{
    const int missing = message.missingParts();
    if (missing == 0)
        return {};
    return text(QT_TRANSLATE_NOOP("Messages", "%1 of %2"))
        .arg(QLocale().toString(message.total - missing), QLocale().toString(message.total));
}

QString stateTitle(DeliveryState state)
{
    const StateRow *row = rowOf(state);
    return row ? text(row->title) : QString();
}

QString deliveryDetails(const Message &message, const NameOf &nameOf)
{
    QStringList lines;
    for (const MessagePart &part : message.parts) {
        const QString line = partDetails(message, part);
        const QString recipient = nameOf(message.recipients.value(part.recipient)).simplified();
        if (!line.isEmpty())
            lines += message.recipients.size() > 1
                         ? text(QT_TRANSLATE_NOOP("Messages", "%1: %2")).arg(recipient, line)
                         : line;
    }
    return lines.join(u'\n');
}

QString shortWhen(const QDateTime &time, const QDateTime &now)
{
    if (!time.isValid())
        return {};
    const QDate day = time.toLocalTime().date();
    const qint64 daysAgo = day.daysTo(now.date());
    if (daysAgo == 0)
        return QLocale().toString(time.toLocalTime().time(), QLocale::ShortFormat);
    if (daysAgo == 1)
        return text(QT_TRANSLATE_NOOP("Messages", "Yesterday"));
    return day.year() == now.date().year() ? dayAndMonth(day) : QLocale().toString(day, QLocale::ShortFormat);
}

QString fullWhen(const QDateTime &time)
{
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat) : QString();
}

Qt::LayoutDirection directionOf(const QString &text)
{
    for (const QChar letter : text) {
        switch (letter.direction()) {
        case QChar::DirL: return Qt::LeftToRight;
        case QChar::DirR:
        case QChar::DirAL: return Qt::RightToLeft;
        default: break;
        }
    }
    const bool isNumber = std::any_of(text.begin(), text.end(), [](QChar sign) { return sign.isDigit(); });
    return isNumber ? Qt::LeftToRight : QGuiApplication::layoutDirection();
}

QTextOption optionFor(const QString &text)
{
    const Qt::LayoutDirection direction = directionOf(text);
    QTextOption option;
    option.setTextDirection(direction);
    option.setAlignment(direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

std::vector<LinkPlace> linkPlaces(const QString &text)
{
    // What stands behind a sentence is its own: a full stop, a bracket.
    static const QRegularExpression link(
        uR"((?:https?://|www\.)[^\s<>"]*[^\s<>".,;:!?)\]}']|[\w.+-]+@[\w-]+(?:\.[\w-]+)+)"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    std::vector<LinkPlace> places;
    for (auto found = link.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        places.push_back({int(match.capturedStart()), int(match.capturedLength())});
    }
    return places;
}

QStringList linksIn(const QString &text)
{
    QStringList links;
    for (const LinkPlace &place : linkPlaces(text))
        links += text.mid(place.start, place.length);
    links.removeDuplicates();
    return links;
}

} // namespace corva
