// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialwire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

enum Member : unsigned { Profile = 1, Port = 2, Options = 4, Servers = 8, Interface = 16 };

struct VerbForm {
    QLatin1StringView name;
    DialVerb verb;
    unsigned members;
};
constexpr VerbForm verbs[] = {
    {"save"_L1, DialVerb::Save, 0},
    {"write"_L1, DialVerb::Write, Profile | Port | Options},
    {"dial"_L1, DialVerb::Dial, 0},
    {"nameServers"_L1, DialVerb::NameServers, Servers},
    {"routeHelper"_L1, DialVerb::RouteHelper, 0},
    {"hangUp"_L1, DialVerb::HangUp, 0},
    {"recover"_L1, DialVerb::Recover, 0},
    {"lease"_L1, DialVerb::Lease, Port | Interface},
    {"release"_L1, DialVerb::Release, Port | Interface},
};

struct EventForm {
    DialEvent::Kind kind;
    QLatin1StringView name;
};
constexpr EventForm events[] = {
    {DialEvent::Kind::Ready, "ready"_L1},
    {DialEvent::Kind::Done, "done"_L1},
    {DialEvent::Kind::Output, "output"_L1},
    {DialEvent::Kind::DiallerGone, "diallerGone"_L1},
};

QByteArray line(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject objectOf(const QByteArray &line)
{
    return QJsonDocument::fromJson(line).object();
}

QJsonArray toJson(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

/// nullopt unless it is an array of texts, `most` at most.
std::optional<QStringList> textsOf(const QJsonValue &value, qsizetype most)
{
    QStringList texts;
    const QJsonArray array = value.toArray();
    const bool areTexts = value.isArray() && array.size() <= most &&
                          std::all_of(array.begin(), array.end(), [](auto v) { return v.isString(); });
    if (!areTexts)
        return std::nullopt;
    for (const auto &text : array)
        texts += text.toString();
    return texts;
}

QJsonValue toJson(const ConnectionProfile &profile)
{
    QStringList texts;
    for (int i = 0; i < profileFieldCount; ++i)
        texts += profile.text(ProfileField(i));
    return toJson(texts);
}

bool read(const QJsonValue &value, ConnectionProfile &profile)
{
    const auto texts = textsOf(value, profileFieldCount);
    if (!texts || texts->size() != profileFieldCount)
        return false;
    for (int i = 0; i < profileFieldCount; ++i)
        profile.setText(ProfileField(i), texts->at(i));
    return true;
}

QJsonValue toJson(const PppOptions &options)
{
    QJsonObject object;
    for (std::size_t i = 0; i < options.values.size(); ++i)
        if (options.values[i])
            object.insert(pppNumberOptions[i].name, *options.values[i]);
    return object;
}

/// Each number in the range that pppd takes, and no member beside them.
bool read(const QJsonValue &value, PppOptions &options)
{
    const QJsonObject object = value.toObject();
    qsizetype known = 0;
    for (std::size_t i = 0; i < options.values.size(); ++i) {
        const PppOption &option = pppNumberOptions[i];
        if (!object.contains(option.name))
            continue;
        const int number = object.value(option.name).toInt(option.least - 1);
        if (number < option.least || number > option.most)
            return false;
        options.values[i] = number;
        ++known;
    }
    return value.isObject() && known == object.size();
}

bool read(const QJsonValue &value, QString &text)
{
    text = value.toString();
    return value.isString();
}

bool read(const QJsonValue &value, QStringList &texts)
{
    const auto found = textsOf(value, 2);
    texts = found.value_or(QStringList());
    return found.has_value() && !texts.isEmpty();
}

} // namespace

QByteArray toLine(const DialRequest &request)
{
    const VerbForm &form = *std::ranges::find(verbs, request.verb, &VerbForm::verb);
    QJsonObject object{{u"verb"_s, form.name}};
    if (form.members & Profile)
        object.insert(u"profile"_s, toJson(request.profile));
    if (form.members & Port)
        object.insert(u"port"_s, request.modemPort);
    if (form.members & Options)
        object.insert(u"options"_s, toJson(request.options));
    if (form.members & Servers)
        object.insert(u"servers"_s, toJson(request.nameServers));
    if (form.members & Interface)
        object.insert(u"interface"_s, request.interfaceName);
    return line(object);
}

std::optional<DialRequest> requestFromLine(const QByteArray &line)
{
    const QJsonObject object = objectOf(line);
    const QString name = object.value(u"verb"_s).toString();
    const auto form = std::ranges::find_if(verbs, [&](const VerbForm &verb) { return verb.name == name; });
    if (form == std::end(verbs))
        return std::nullopt;

    DialRequest request;
    request.verb = form->verb;
    qsizetype members = 1;
    const auto has = [&](Member member, const QString &key, auto &target) {
        if (!(form->members & member))
            return true;
        ++members;
        return read(object.value(key), target);
    };
    const bool isRight =
        has(Profile, u"profile"_s, request.profile) && has(Port, u"port"_s, request.modemPort) &&
        has(Options, u"options"_s, request.options) && has(Servers, u"servers"_s, request.nameServers) &&
        has(Interface, u"interface"_s, request.interfaceName);
    return isRight && object.size() == members ? std::optional(request) : std::nullopt;
}

QByteArray toLine(const DialEvent &event)
{
    const EventForm &form = *std::ranges::find(events, event.kind, &EventForm::kind);
    QJsonObject object{{u"event"_s, form.name}};
    if (event.kind == DialEvent::Kind::Done && !event.result.isDone()) {
        object.insert(u"error"_s, event.result.error);
        object.insert(u"noRights"_s, event.result.kind == DialResult::Kind::NoRights);
    }
    if (event.kind == DialEvent::Kind::Output)
        object.insert(u"text"_s, QString::fromLatin1(event.output)); // byte by byte, whatever they are
    return line(object);
}

std::optional<DialEvent> eventFromLine(const QByteArray &line)
{
    const QJsonObject object = objectOf(line);
    const QString name = object.value(u"event"_s).toString();
    const auto form =
        std::ranges::find_if(events, [&](const EventForm &event) { return event.name == name; });
    if (form == std::end(events))
        return std::nullopt;
    DialEvent event{
        .kind = form->kind, .result = {}, .output = object.value(u"text"_s).toString().toLatin1()};
    if (object.contains(u"error"_s)) {
        event.result.kind =
            object.value(u"noRights"_s).toBool() ? DialResult::Kind::NoRights : DialResult::Kind::Failed;
        event.result.error = object.value(u"error"_s).toString();
    }
    return event;
}

std::vector<QByteArray> LineCutter::feed(const QByteArray &chunk)
{
    std::vector<QByteArray> lines;
    if (m_isBroken)
        return lines;
    m_rest += chunk;
    qsizetype begin = 0;
    for (qsizetype end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n', begin)) {
        lines.push_back(m_rest.mid(begin, end - begin));
        begin = end + 1;
    }
    m_rest.remove(0, begin);
    m_isBroken = m_rest.size() > longestLine;
    return lines;
}

} // namespace corva
