// SPDX-License-Identifier: GPL-3.0-or-later
// How messages come and go: 3GPP TS 27.005 3.2.3, 3.3 and 3.4. PDU mode only.
#include "at/commandtable.h"
#include "at/errors.h"
#include "at/replies.h"

#include <QRegularExpression>
#include <array>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

Answer readFormat(const Request &request)
{
    return ok("+CMGF: " + QByteArray::number(request.port.messageFormat));
}

// Only PDU mode is offered, as "+CMGF=?" says.
Answer setFormat(const Request &request)
{
    const auto format = request.arguments().number(0, 0, 0, 0);
    return format ? ok() : cmsError(cms::notSupported);
}

Answer readService(const Request &request)
{
    return ok("+CSMS: " + QByteArray::number(request.state().messages.service) + ",1,1,1");
}

Answer setService(const Request &request)
{
    const auto service = request.arguments().number(0);
    if (!service || *service < 0 || *service > 1)
        return cmsError(cms::notSupported);
    request.state().messages.service = *service;
    return ok("+CSMS: 1,1,1");
}

Answer readIndications(const Request &request)
{
    QByteArrayList numbers;
    for (const int number : request.state().messages.indications)
        numbers += QByteArray::number(number);
    return ok("+CNMI: " + numbers.join(','));
}

Answer setIndications(const Request &request)
{
    constexpr std::array highest = {3, 3, 2, 2, 1};
    QList<int> wanted = request.state().messages.indications;
    const Arguments &arguments = request.arguments();
    if (arguments.count() > wanted.size())
        return cmsError(cms::notAllowed);
    for (qsizetype i = 0; i < arguments.count(); ++i) {
        const auto number = arguments.number(i, wanted[i], 0, highest[static_cast<size_t>(i)]);
        if (!number)
            return cmsError(cms::notAllowed);
        wanted[i] = *number;
    }
    constexpr qsizetype pages = 2;
    if (wanted[pages] == 1) // there is no store for pages
        return cmsError(cms::notAllowed);
    request.state().messages.indications = wanted;
    request.card.mailbox().indicationsChanged();
    return ok();
}

// 0 and 1 take it, 2 refuses it. 3GPP TS 27.005 4.7.
Answer acknowledge(const Request &request)
{
    constexpr int refused = 2;
    const auto how = request.arguments().number(0, 0, 0, refused);
    if (!how)
        return cmsError(cms::notAllowed);
    if (request.state().messages.service != 1 || !request.card.mailbox().acknowledge(*how != refused))
        return cmsError(cms::noAcknowledgementExpected);
    return ok();
}

Answer readServiceCentre(const Request &request)
{
    const QString number = request.state().messages.serviceCentre;
    return ok("+CSCA: \"" + toWire(number, request.port.charset) + "\"," + numberType(number));
}

Answer setServiceCentre(const Request &request)
{
    static const QRegularExpression shape(u"^\\+?\\d{1,20}$"_s);
    QString number = fromWire(request.arguments().text(0), request.port.charset);
    if (!shape.match(number).hasMatch())
        return cmsError(cms::notAllowed);
    constexpr int international = 145;
    if (request.arguments().number(1) == international && !number.startsWith(u'+'))
        number.prepend(u'+');
    request.state().messages.serviceCentre = number;
    return ok();
}

Answer readChannels(const Request &request)
{
    const BroadcastChannels &broadcast = request.state().messages.broadcast;
    return ok(QByteArray("+CSCB: ") + (broadcast.except ? '1' : '0') + ",\"" + broadcast.channels.toLatin1() +
              "\",\"" + broadcast.codings.toLatin1() + '"');
}

Answer setChannels(const Request &request)
{
    static const QRegularExpression list(u"^(\\d{1,5}(-\\d{1,5})?(,\\d{1,5}(-\\d{1,5})?)*)?$"_s);
    const auto mode = request.arguments().number(0, 0, 0, 1);
    const QString channels = QString::fromLatin1(request.arguments().text(1));
    const QString codings = QString::fromLatin1(request.arguments().text(2));
    if (!mode || !list.match(channels).hasMatch() || !list.match(codings).hasMatch())
        return cmsError(cms::notAllowed);
    request.state().messages.broadcast = {*mode == 1, channels, codings};
    return ok();
}

Answer readPreferred(const Request &request)
{
    return ok("+JSMSD: " + QByteArray::number(request.state().messages.preferred));
}

Answer setPreferred(const Request &request)
{
    const auto preferred = request.arguments().number(0);
    if (!preferred || *preferred < 0 || *preferred > 3)
        return cmsError(cms::notAllowed);
    request.state().messages.preferred = *preferred;
    return ok();
}

constexpr std::array table = {
    CommandRow{"+CMGF", Form::Read, everyFamily, Needs::Nothing, readFormat},
    CommandRow{"+CMGF", Form::Set, everyFamily, Needs::Nothing, setFormat},
    CommandRow{"+CMGF", Form::Test, everyFamily, Needs::Nothing, "+CMGF: (0)"},
    CommandRow{"+CSMS", Form::Read, everyFamily, Needs::Nothing, readService},
    CommandRow{"+CSMS", Form::Set, everyFamily, Needs::Nothing, setService},
    CommandRow{"+CSMS", Form::Test, everyFamily, Needs::Nothing, "+CSMS: (0,1)"},
    CommandRow{"+CNMI", Form::Read, everyFamily, Needs::Nothing, readIndications},
    CommandRow{"+CNMI", Form::Set, everyFamily, Needs::Nothing, setIndications},
    CommandRow{"+CNMI", Form::Test, everyFamily, Needs::Nothing, "+CNMI: (0-3),(0-3),(0,2),(0-2),(0,1)"},
    CommandRow{"+CNMA", Form::Exec, everyFamily, Needs::Nothing, acknowledge},
    CommandRow{"+CNMA", Form::Set, everyFamily, Needs::Nothing, acknowledge},
    CommandRow{"+CNMA", Form::Test, everyFamily, Needs::Nothing, "+CNMA: (0-2)"},
    CommandRow{"+CMMS", Form::Read, everyFamily, Needs::Nothing, "+CMMS: 0"},
    CommandRow{"+CMMS", Form::Set, everyFamily, Needs::Nothing, accept},
    CommandRow{"+CMMS", Form::Test, everyFamily, Needs::Nothing, "+CMMS: (0-2)"},
    CommandRow{"+CSCA", Form::Read, everyFamily, Needs::SimForMessages, readServiceCentre},
    CommandRow{"+CSCA", Form::Set, everyFamily, Needs::SimForMessages, setServiceCentre},
    CommandRow{"+CSCB", Form::Read, everyFamily, Needs::Nothing, readChannels},
    CommandRow{"+CSCB", Form::Set, everyFamily, Needs::Nothing, setChannels},
    CommandRow{"+CSCB", Form::Test, everyFamily, Needs::Nothing, "+CSCB: (0,1)"},
    CommandRow{"+JSMSD", Form::Read, everyFamily, Needs::Nothing, readPreferred},
    CommandRow{"+JSMSD", Form::Set, everyFamily, Needs::Nothing, setPreferred},
    CommandRow{"+JSMSD", Form::Test, everyFamily, Needs::Nothing, "+JSMSD: (0-3)"},
};

} // namespace

std::span<const CommandRow> messageSettings()
{
    return table;
}

} // namespace cardemu
