// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QStringList>
#include <algorithm>
#include <functional>
#include <span>
#include <utility>
#include <vector>

// One table per struct says how its members stand in JSON: profiles are read, the state is shown and single
// values are set through the same rows.

namespace cardemu
{

/// What is wrong with a value, in words; empty when it is fine.
using Complaint = QString;

template <typename S> struct Field {
    QString key;
    std::function<Complaint(S &, const QJsonValue &)> read;
    std::function<QJsonValue(const S &)> write;
};

template <typename S> using Fields = std::vector<Field<S>>;

template <typename E> struct Choice {
    E value;
    const char16_t *name;
};

using TextCheck = Complaint (*)(const QString &);

inline Complaint anyText(const QString &)
{
    return {};
}

template <typename S> Field<S> textField(const QString &key, QString S::*member, TextCheck check = anyText)
{
    return {key,
            [member, check](S &section, const QJsonValue &value) -> Complaint {
                if (!value.isString())
                    return QStringLiteral("must be a text");
                if (Complaint complaint = check(value.toString()); !complaint.isEmpty())
                    return complaint;
                section.*member = value.toString();
                return {};
            },
            [member](const S &section) { return QJsonValue(section.*member); }};
}

template <typename S> Field<S> numberField(const QString &key, int S::*member, int low, int high)
{
    return {key,
            [member, low, high](S &section, const QJsonValue &value) -> Complaint {
                const double number = value.toDouble(0.5);
                if (number != static_cast<int>(number) || number < low || number > high)
                    return QStringLiteral("must be a whole number from %1 to %2").arg(low).arg(high);
                section.*member = static_cast<int>(number);
                return {};
            },
            [member](const S &section) { return QJsonValue(section.*member); }};
}

template <typename S> Field<S> flagField(const QString &key, bool S::*member)
{
    return {key,
            [member](S &section, const QJsonValue &value) -> Complaint {
                if (!value.isBool())
                    return QStringLiteral("must be true or false");
                section.*member = value.toBool();
                return {};
            },
            [member](const S &section) { return QJsonValue(section.*member); }};
}

template <typename E> QString choiceName(std::span<const Choice<E>> choices, E value)
{
    for (const Choice<E> &choice : choices) {
        if (choice.value == value)
            return QString::fromUtf16(choice.name);
    }
    return {};
}

template <typename S, typename E>
Field<S> choiceField(const QString &key, E S::*member, std::span<const Choice<E>> choices)
{
    return {key,
            [member, choices](S &section, const QJsonValue &value) -> Complaint {
                QStringList names;
                for (const Choice<E> &choice : choices) {
                    names += QString::fromUtf16(choice.name);
                    if (value.toString() == names.last()) {
                        section.*member = choice.value;
                        return {};
                    }
                }
                return QStringLiteral("must be one of: ") + names.join(QStringLiteral(", "));
            },
            [member, choices](const S &section) { return QJsonValue(choiceName(choices, section.*member)); }};
}

/// Reads an object's keys into `section`. The complaint begins with the key's path ("sim.pin: ...").
template <typename S>
Complaint readFields(S &section, const QJsonValue &json, const Fields<S> &fields, const QString &path = {})
{
    if (!json.isObject())
        return (path.isEmpty() ? QString() : path + QStringLiteral(": ")) +
               QStringLiteral("must be an object");
    const QJsonObject object = json.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const QString where = path.isEmpty() ? entry.key() : path + u'.' + entry.key();
        const auto field = std::find_if(fields.begin(), fields.end(),
                                        [&entry](const Field<S> &row) { return row.key == entry.key(); });
        if (field == fields.end())
            return where + QStringLiteral(": unknown key");
        if (const Complaint complaint = field->read(section, entry.value()); !complaint.isEmpty())
            return where + (complaint.startsWith(u'.') ? QString() : QStringLiteral(": ")) + complaint;
    }
    return {};
}

template <typename S> QJsonObject writeFields(const S &section, const Fields<S> &fields)
{
    QJsonObject object;
    for (const Field<S> &field : fields)
        object[field.key] = field.write(section);
    return object;
}

/// A member that is a struct of its own. Its complaints go on with ".key".
template <typename S, typename T>
Field<S> sectionField(const QString &key, T S::*member, const Fields<T> &fields)
{
    return {key,
            [member, &fields](S &section, const QJsonValue &value) -> Complaint {
                if (!value.isObject())
                    return QStringLiteral("must be an object");
                const Complaint complaint = readFields(section.*member, value, fields);
                return complaint.isEmpty() ? complaint : u'.' + complaint;
            },
            [member, &fields](const S &section) { return QJsonValue(writeFields(section.*member, fields)); }};
}

/// A list of structs; reading replaces the list.
template <typename S, typename T>
Field<S> listField(const QString &key, QList<T> S::*member, const Fields<T> &fields)
{
    return {key,
            [member, &fields](S &section, const QJsonValue &value) -> Complaint {
                if (!value.isArray())
                    return QStringLiteral("must be a list");
                QList<T> items;
                for (const QJsonValue element : value.toArray()) {
                    T item;
                    if (const Complaint complaint = readFields(item, element, fields); !complaint.isEmpty())
                        return QStringLiteral(".%1: ").arg(items.size()) + complaint;
                    items += item;
                }
                section.*member = items;
                return {};
            },
            [member, &fields](const S &section) {
                QJsonArray array;
                for (const T &item : section.*member)
                    array += writeFields(item, fields);
                return QJsonValue(array);
            }};
}

/// An object whose keys are free and whose values are structs ("stores": {"SM": {...}}); keys not named stay.
template <typename S, typename T>
Field<S> mapField(const QString &key, QMap<QString, T> S::*member, const Fields<T> &fields,
                  const QStringList &names)
{
    return {key,
            [member, &fields, names](S &section, const QJsonValue &value) -> Complaint {
                if (!value.isObject())
                    return QStringLiteral("must be an object");
                const QJsonObject object = value.toObject();
                for (auto entry = object.begin(); entry != object.end(); ++entry) {
                    if (!names.contains(entry.key()))
                        return QStringLiteral(".%1: unknown key").arg(entry.key());
                    const Complaint complaint =
                        readFields((section.*member)[entry.key()], entry.value(), fields, entry.key());
                    if (!complaint.isEmpty())
                        return u'.' + complaint;
                }
                return {};
            },
            [member, &fields](const S &section) {
                QJsonObject object;
                for (auto entry = (section.*member).begin(); entry != (section.*member).end(); ++entry)
                    object[entry.key()] = writeFields(entry.value(), fields);
                return QJsonValue(object);
            }};
}

} // namespace cardemu
