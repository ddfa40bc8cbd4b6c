// SPDX-License-Identifier: GPL-3.0-or-later
#include "card/cardfields.h"

#include <array>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

bool isDigits(const QString &text, qsizetype shortest, qsizetype longest)
{
    return text.size() >= shortest && text.size() <= longest &&
           std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

Complaint pinText(const QString &text)
{
    return isDigits(text, 4, 8) ? Complaint() : u"must be 4 to 8 digits"_s;
}

Complaint pukText(const QString &text)
{
    return isDigits(text, 8, 8) ? Complaint() : u"must be 8 digits"_s;
}

Complaint plmnText(const QString &text)
{
    return isDigits(text, 5, 6) ? Complaint() : u"must be 5 or 6 digits"_s;
}

Complaint imsiText(const QString &text)
{
    return isDigits(text, 6, 15) ? Complaint() : u"must be 6 to 15 digits"_s;
}

Complaint iccidText(const QString &text)
{
    return isDigits(text, 19, 20) ? Complaint() : u"must be 19 or 20 digits"_s;
}

// The check digit of 3GPP TS 23.003 annex B.
bool hasCheckDigit(const QString &digits)
{
    int sum = 0;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        const int digit = digits[digits.size() - 1 - i].digitValue();
        const int doubled = i % 2 == 1 ? 2 * digit : digit;
        sum += doubled > 9 ? doubled - 9 : doubled;
    }
    return sum % 10 == 0;
}

Complaint serialText(const QString &text)
{
    const bool isMeid = text.size() == 14 &&
                        std::ranges::all_of(text, [](QChar c) { return u"0123456789ABCDEF"_s.contains(c); });
    const bool isImei = isDigits(text, 15, 15) && hasCheckDigit(text);
    return isMeid || isImei ? Complaint() : u"must be 15 digits with a valid check digit, or 14 hex digits"_s;
}

constexpr std::array families = {Choice<Family>{Family::Wcdma, u"WCDMA"},
                                 Choice<Family>{Family::TdScdma, u"TD-SCDMA"},
                                 Choice<Family>{Family::Cdma, u"CDMA"}};
constexpr std::array simConditions = {Choice<SimCondition>{SimCondition::Ready, u"ready"},
                                      Choice<SimCondition>{SimCondition::Absent, u"absent"},
                                      Choice<SimCondition>{SimCondition::Busy, u"busy"},
                                      Choice<SimCondition>{SimCondition::Failure, u"failure"}};
constexpr std::array simTypes = {Choice<SimType>{SimType::Sim, u"SIM"},
                                 Choice<SimType>{SimType::Usim, u"USIM"},
                                 Choice<SimType>{SimType::Uim, u"UIM"}};
constexpr std::array services = {
    Choice<Service>{Service::Full, u"full"},           Choice<Service>{Service::Restricted, u"restricted"},
    Choice<Service>{Service::Searching, u"searching"}, Choice<Service>{Service::Denied, u"denied"},
    Choice<Service>{Service::Unknown, u"unknown"},     Choice<Service>{Service::None, u"none"}};
constexpr std::array activations = {Choice<ActivationResult>{ActivationResult::Up, u"up"},
                                    Choice<ActivationResult>{ActivationResult::Refused, u"refused"},
                                    Choice<ActivationResult>{ActivationResult::Silence, u"silence"}};
constexpr std::array dialResults = {
    Choice<DialResult>{DialResult::Connect, u"CONNECT"},
    Choice<DialResult>{DialResult::NoCarrier, u"NO CARRIER"},
    Choice<DialResult>{DialResult::Busy, u"BUSY"},
    Choice<DialResult>{DialResult::NoAnswer, u"NO ANSWER"},
    Choice<DialResult>{DialResult::NoDialtone, u"NO DIALTONE"},
    Choice<DialResult>{DialResult::Error, u"ERROR"},
    Choice<DialResult>{DialResult::Silence, u"SILENCE"},
    Choice<DialResult>{DialResult::ConnectThenSilence, u"CONNECT THEN SILENCE"}};

const Fields<Identity> &identityFields()
{
    static const Fields<Identity> fields{
        textField(u"manufacturer"_s, &Identity::manufacturer),
        textField(u"model"_s, &Identity::model),
        textField(u"revision"_s, &Identity::revision),
        textField(u"internalVersion"_s, &Identity::internalVersion),
        textField(u"hardware"_s, &Identity::hardware),
        textField(u"serial"_s, &Identity::serial, serialText),
    };
    return fields;
}

const Fields<Sim> &simFields()
{
    static const Fields<Sim> fields{
        choiceField<Sim, SimCondition>(u"condition"_s, &Sim::condition, simConditions),
        choiceField<Sim, SimType>(u"type"_s, &Sim::type, simTypes),
        textField(u"imsi"_s, &Sim::imsi, imsiText),
        textField(u"iccid"_s, &Sim::iccid, iccidText),
        textField(u"number"_s, &Sim::number),
        textField(u"provider"_s, &Sim::provider),
        textField(u"pin"_s, &Sim::pin, pinText),
        textField(u"puk"_s, &Sim::puk, pukText),
        flagField(u"pinLock"_s, &Sim::pinLock),
        flagField(u"verified"_s, &Sim::verified),
        numberField(u"pinAttempts"_s, &Sim::pinAttempts, 0, 3),
        numberField(u"pukAttempts"_s, &Sim::pukAttempts, 0, 10),
    };
    return fields;
}

const Fields<Operator> &operatorFields()
{
    static const Fields<Operator> fields{
        textField(u"plmn"_s, &Operator::plmn, plmnText),   textField(u"long"_s, &Operator::longName),
        textField(u"short"_s, &Operator::shortName),       flagField(u"forbidden"_s, &Operator::forbidden),
        numberField(u"access"_s, &Operator::access, 0, 7),
    };
    return fields;
}

const Fields<Network> &networkFields()
{
    static const Fields<Network> fields{
        listField(u"operators"_s, &Network::operators, operatorFields()),
        textField(u"current"_s, &Network::current, plmnText),
        choiceField<Network, Service>(u"service"_s, &Network::service, services),
        flagField(u"roaming"_s, &Network::roaming),
        numberField(u"selection"_s, &Network::selection, 0, 2),
        numberField(u"areaCode"_s, &Network::areaCode, 0, 0xFFFF),
        numberField(u"cellId"_s, &Network::cellId, 0, 0xFFFFFFF),
        numberField(u"systemMode"_s, &Network::systemMode, 0, 17),
        numberField(u"systemSubmode"_s, &Network::systemSubmode, 0, 17),
        numberField(u"serviceDomain"_s, &Network::serviceDomain, 0, 255),
        numberField(u"registerDelay"_s, &Network::registerDelay, 0, 600000),
        numberField(u"timeZone"_s, &Network::timeZone, -48, 56),
        flagField(u"attached"_s, &Network::attached),
    };
    return fields;
}

const Fields<Radio> &radioFields()
{
    static const Fields<Radio> fields{
        numberField(u"rssi"_s, &Radio::rssi, 0, 99),
        numberField(u"bitErrors"_s, &Radio::bitErrors, 0, 99),
        numberField(u"ecio"_s, &Radio::ecio, -50, 0),
        numberField(u"rscp"_s, &Radio::rscp, -140, 0),
        numberField(u"evdo"_s, &Radio::evdo, 0, 100),
        numberField(u"antenna"_s, &Radio::antenna, 0, 1),
        numberField(u"functionality"_s, &Radio::functionality, 0, 4),
        flagField(u"signalReports"_s, &Radio::signalReports),
    };
    return fields;
}

Field<Line> delaysField()
{
    return {u"delays"_s,
            [](Line &line, const QJsonValue &value) -> Complaint {
                if (!value.isObject())
                    return u"must be an object"_s;
                const QJsonObject object = value.toObject();
                for (auto entry = object.begin(); entry != object.end(); ++entry) {
                    const int ms = entry.value().toInt(-1);
                    if (ms < 0)
                        return u".%1: must be a number of milliseconds"_s.arg(entry.key());
                    line.delays[entry.key().toUpper()] = ms;
                }
                return {};
            },
            [](const Line &line) {
                QJsonObject object;
                for (auto delay = line.delays.begin(); delay != line.delays.end(); ++delay)
                    object[delay.key()] = delay.value();
                return QJsonValue(object);
            }};
}

const Fields<Line> &lineFields()
{
    static const Fields<Line> fields{
        flagField(u"echo"_s, &Line::echo),
        numberField(u"errorMode"_s, &Line::errorMode, 0, 2),
        numberField(u"bytesPerSecond"_s, &Line::bytesPerSecond, 0, 10000000),
        numberField(u"delay"_s, &Line::delay, 0, 600000),
        delaysField(),
        choiceField<Line, DialResult>(u"dialResult"_s, &Line::dialResult, dialResults),
        numberField(u"dialDelay"_s, &Line::dialDelay, 0, 600000),
        numberField(u"ringInterval"_s, &Line::ringInterval, 100, 600000),
    };
    return fields;
}

const Fields<DataService> &dataFields()
{
    static const Fields<DataService> fields{
        textField(u"accessPoint"_s, &DataService::accessPoint),
        textField(u"peer"_s, &DataService::peer),
        textField(u"hook"_s, &DataService::hook),
        choiceField<DataService, ActivationResult>(u"activation"_s, &DataService::activation, activations),
        numberField(u"activationDelay"_s, &DataService::activationDelay, 0, 600000),
        textField(u"address"_s, &DataService::address),
    };
    return fields;
}

Field<CardState> ussdField()
{
    return {u"ussd"_s,
            [](CardState &state, const QJsonValue &value) -> Complaint {
                QMap<QString, QString> answers;
                const QJsonObject object = value.toObject();
                for (auto entry = object.begin(); entry != object.end(); ++entry) {
                    if (!entry.value().isString())
                        return u".%1: must be a text"_s.arg(entry.key());
                    answers[entry.key()] = entry.value().toString();
                }
                if (!value.isObject())
                    return u"must be an object"_s;
                state.ussd = answers;
                return {};
            },
            [](const CardState &state) {
                QJsonObject object;
                for (auto answer = state.ussd.begin(); answer != state.ussd.end(); ++answer)
                    object[answer.key()] = answer.value();
                return QJsonValue(object);
            }};
}

Field<MessageStore> messageEntries()
{
    return {u"entries"_s,
            [](MessageStore &store, const QJsonValue &value) -> Complaint {
                QMap<int, StoredMessage> entries;
                for (const QJsonValue element : value.toArray()) {
                    const QJsonObject entry = element.toObject();
                    const int index = entry[u"index"_s].toInt(static_cast<int>(entries.size()) + 1);
                    const int status = entry[u"status"_s].toInt(0);
                    const QByteArray pdu = entry[u"pdu"_s].toString().toLatin1();
                    if (index < 1 || status < 0 || status > 3 || pdu.isEmpty())
                        return u"must be a list of objects with index, status (0 to 3) and pdu"_s;
                    entries[index] = {status, pdu};
                }
                store.entries = entries;
                return {};
            },
            [](const MessageStore &store) {
                QJsonArray array;
                for (auto entry = store.entries.begin(); entry != store.entries.end(); ++entry)
                    array += QJsonObject{{u"index"_s, entry.key()},
                                         {u"status"_s, entry->status},
                                         {u"pdu"_s, QString::fromLatin1(entry->pdu)}};
                return QJsonValue(array);
            }};
}

const Fields<MessageStore> &messageStoreFields()
{
    static const Fields<MessageStore> fields{
        numberField(u"capacity"_s, &MessageStore::capacity, 0, 10000),
        flagField(u"full"_s, &MessageStore::full),
        messageEntries(),
    };
    return fields;
}

Field<Messages> indicationsField()
{
    return {u"indications"_s,
            [](Messages &messages, const QJsonValue &value) -> Complaint {
                QList<int> numbers;
                for (const QJsonValue number : value.toArray())
                    numbers += number.toInt(-1);
                if (numbers.size() != 5 || std::ranges::any_of(numbers, [](int n) { return n < 0 || n > 3; }))
                    return u"must be five numbers from 0 to 3"_s;
                messages.indications = numbers;
                return {};
            },
            [](const Messages &messages) {
                QJsonArray array;
                for (const int number : messages.indications)
                    array += number;
                return QJsonValue(array);
            }};
}

const Fields<MessageNetwork> &messageNetworkFields()
{
    constexpr int week = 604800000;
    static const Fields<MessageNetwork> fields{
        numberField(u"delay"_s, &MessageNetwork::delay, 0, week),
        numberField(u"transit"_s, &MessageNetwork::transit, 0, week),
        numberField(u"reportDelay"_s, &MessageNetwork::reportDelay, 0, week),
        numberField(u"reportStatus"_s, &MessageNetwork::reportStatus, 0, 255),
        numberField(u"refuse"_s, &MessageNetwork::refuse, 0, 999),
        numberField(u"nth"_s, &MessageNetwork::nth, 1, 1000000),
        numberField(u"count"_s, &MessageNetwork::count, 0, 1000000),
        numberField(u"reorder"_s, &MessageNetwork::reorder, 0, 255),
        numberField(u"patience"_s, &MessageNetwork::patience, 0, week),
    };
    return fields;
}

Complaint storeName(const QString &text)
{
    return QStringList{u"SM"_s, u"ME"_s, u"SR"_s}.contains(text) ? Complaint() : u"must be SM, ME or SR"_s;
}

const Fields<Messages> &messagesFields()
{
    static const Fields<Messages> fields{
        mapField(u"stores"_s, &Messages::stores, messageStoreFields(), {u"SM"_s, u"ME"_s, u"SR"_s}),
        textField(u"serviceCentre"_s, &Messages::serviceCentre),
        indicationsField(),
        textField(u"receiveStore"_s, &Messages::receiveStore, storeName),
        numberField(u"preferred"_s, &Messages::preferred, 0, 3),
        flagField(u"blankLine"_s, &Messages::blankLine),
        numberField(u"service"_s, &Messages::service, 0, 1),
        sectionField(u"network"_s, &Messages::network, messageNetworkFields()),
    };
    return fields;
}

Field<PhonebookStore> phonebookEntries()
{
    return {u"entries"_s,
            [](PhonebookStore &store, const QJsonValue &value) -> Complaint {
                store.entries.clear();
                for (const QJsonValue element : value.toArray()) {
                    const QJsonObject entry = element.toObject();
                    const int index = entry[u"index"_s].toInt(static_cast<int>(store.entries.size()) + 1);
                    const QString number = entry[u"number"_s].toString();
                    if (number.isEmpty() || index < 1)
                        return u"must be a list of objects with index, number and name"_s;
                    store.entries[index] = {number, number.startsWith(u'+') ? 145 : 129,
                                            entry[u"name"_s].toString()};
                }
                return {};
            },
            [](const PhonebookStore &store) {
                QJsonArray array;
                for (auto entry = store.entries.begin(); entry != store.entries.end(); ++entry)
                    array += QJsonObject{
                        {u"index"_s, entry.key()}, {u"number"_s, entry->number}, {u"name"_s, entry->name}};
                return QJsonValue(array);
            }};
}

const Fields<PhonebookStore> &phonebookStoreFields()
{
    static const Fields<PhonebookStore> fields{
        numberField(u"capacity"_s, &PhonebookStore::capacity, 0, 10000),
        phonebookEntries(),
    };
    return fields;
}

const Fields<Phonebook> &phonebookFields()
{
    static const Fields<Phonebook> fields{
        mapField(u"stores"_s, &Phonebook::stores, phonebookStoreFields(), {u"SM"_s, u"ME"_s}),
    };
    return fields;
}

} // namespace

const Fields<CardState> &cardFields()
{
    static const Fields<CardState> fields{
        choiceField<CardState, Family>(u"family"_s, &CardState::family, families),
        flagField(u"makerCommands"_s, &CardState::makerCommands),
        sectionField(u"identity"_s, &CardState::identity, identityFields()),
        sectionField(u"sim"_s, &CardState::sim, simFields()),
        sectionField(u"network"_s, &CardState::network, networkFields()),
        sectionField(u"radio"_s, &CardState::radio, radioFields()),
        sectionField(u"line"_s, &CardState::line, lineFields()),
        sectionField(u"messages"_s, &CardState::messages, messagesFields()),
        sectionField(u"phonebook"_s, &CardState::phonebook, phonebookFields()),
        ussdField(),
        sectionField(u"data"_s, &CardState::data, dataFields()),
    };
    return fields;
}

} // namespace cardemu
