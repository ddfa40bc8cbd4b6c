// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/profilerecords.h"

#include <QByteArrayView>

#include <algorithm>
#include <optional>

namespace corva
{
namespace
{

constexpr QByteArrayView headerBegin = "[ the record of <";
constexpr QByteArrayView headerEnd = "> ]";
constexpr QByteArrayView endMark = "-|-";

QByteArray labelOf(int field)
{
    const QLatin1StringView label = profileLabels()[std::size_t(field)];
    return QByteArray(label.data(), label.size());
}

QList<QByteArray> linesOf(const QByteArray &content)
{
    QList<QByteArray> lines;
    for (qsizetype begin = 0; begin < content.size();) {
        const qsizetype at = content.indexOf('\n', begin);
        const qsizetype end = at < 0 ? content.size() : at + 1;
        lines += content.sliced(begin, end - begin);
        begin = end;
    }
    return lines;
}

QByteArrayView endOf(QByteArrayView line)
{
    qsizetype size = line.size();
    while (size > 0 && (line[size - 1] == '\n' || line[size - 1] == '\r'))
        --size;
    return line.sliced(size);
}

QByteArrayView textOf(QByteArrayView line)
{
    return line.chopped(endOf(line).size());
}

std::optional<QByteArrayView> nameInHeader(QByteArrayView line)
{
    const QByteArrayView text = textOf(line).trimmed();
    if (!text.startsWith(headerBegin) || !text.endsWith(headerEnd) ||
        text.size() < headerBegin.size() + headerEnd.size())
        return {};
    return text.sliced(headerBegin.size()).chopped(headerEnd.size());
}

/// The value of a field's line, up to the end mark or the line's end.
QByteArrayView valueIn(QByteArrayView line, qsizetype labelSize)
{
    const QByteArrayView rest = textOf(line).sliced(labelSize);
    const qsizetype mark = rest.indexOf(endMark);
    return mark < 0 ? rest : rest.first(mark);
}

/// The field that a line is for; -1 for a line of another kind.
int fieldOf(QByteArrayView line)
{
    for (int field = 0; field < profileFieldCount; ++field) {
        if (line.startsWith(labelOf(field)))
            return field;
    }
    return -1;
}

/// What stands behind the end mark stays.
QByteArray changedLine(QByteArrayView line, const QByteArray &label, const QByteArray &value)
{
    const QByteArrayView rest = textOf(line).sliced(label.size());
    const qsizetype mark = rest.indexOf(endMark);
    const QByteArrayView tail = mark < 0 ? endMark : rest.sliced(mark);
    return label + value + tail.toByteArray() + endOf(line).toByteArray();
}

QByteArray headerLine(const QByteArray &name, const QByteArray &lineEnd)
{
    return headerBegin.toByteArray() + name + headerEnd.toByteArray() + lineEnd;
}

/// Where a missing line belongs: behind the last line of a field that comes before it.
qsizetype placeFor(int field, const QList<QByteArray> &lines)
{
    qsizetype place = 1;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const int other = fieldOf(lines[i]);
        if (other >= 0 && other < field)
            place = i + 1;
    }
    return place;
}

} // namespace

ProfileRecords::ProfileRecords(const QByteArray &content)
{
    constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";
    const bool isMarked = content.startsWith(byteOrderMark);
    if (isMarked)
        m_before = byteOrderMark.toByteArray();
    for (const QByteArray &line : linesOf(isMarked ? content.sliced(byteOrderMark.size()) : content)) {
        if (nameInHeader(line))
            m_records += Record{line};
        else if (m_records.isEmpty())
            m_before += line;
        else
            m_records.last() += line;
    }
}

QByteArray ProfileRecords::lineEnd() const
{
    for (const Record &record : m_records) {
        if (record.first().endsWith("\r\n"))
            return "\r\n";
    }
    return "\n";
}

ConnectionProfile ProfileRecords::at(qsizetype index) const
{
    ConnectionProfile profile;
    std::array<bool, profileFieldCount> isKnown = {};
    const Record &record = m_records[index];
    for (const QByteArray &line : record.sliced(1)) {
        const int field = fieldOf(line);
        if (field < 0 || std::exchange(isKnown[std::size_t(field)], true))
            continue;
        profile.setText(ProfileField(field), QString::fromUtf8(valueIn(line, labelOf(field).size())));
    }
    if (!isKnown[std::size_t(ProfileField::Name)])
        profile.setText(ProfileField::Name, QString::fromUtf8(*nameInHeader(record.first())));
    return profile;
}

QList<ConnectionProfile> ProfileRecords::all() const
{
    QList<ConnectionProfile> profiles;
    for (qsizetype i = 0; i < size(); ++i)
        profiles += at(i);
    return profiles;
}

void ProfileRecords::change(qsizetype index, const ConnectionProfile &profile)
{
    const ConnectionProfile old = at(index);
    const QByteArray end = lineEnd();
    Record &record = m_records[index];
    if (old.name() != profile.name())
        record.first() = headerLine(profile.name().toUtf8(), end);
    for (int field = 0; field < profileFieldCount; ++field) {
        const QString &value = profile.text(ProfileField(field));
        if (value == old.text(ProfileField(field)))
            continue;
        const QByteArray label = labelOf(field);
        const auto line = std::find_if(record.begin() + 1, record.end(),
                                       [&label](const QByteArray &l) { return l.startsWith(label); });
        if (line != record.end()) {
            *line = changedLine(*line, label, value.toUtf8());
            continue;
        }
        const qsizetype place = placeFor(field, record);
        if (!record[place - 1].endsWith('\n'))
            record[place - 1] += end;
        record.insert(place, label + value.toUtf8() + endMark.toByteArray() + end);
    }
}

void ProfileRecords::append(const ConnectionProfile &profile)
{
    const QByteArray end = lineEnd();
    QByteArray &before = m_records.isEmpty() ? m_before : m_records.last().last();
    if (!before.isEmpty() && !before.endsWith('\n') && before != "\xEF\xBB\xBF")
        before += end;
    Record record = {headerLine(profile.name().toUtf8(), end)};
    for (int field = 0; field < profileFieldCount; ++field)
        record += labelOf(field) + profile.text(ProfileField(field)).toUtf8() + endMark.toByteArray() + end;
    m_records += record;
}

void ProfileRecords::remove(qsizetype index)
{
    const Record record = m_records.takeAt(index);
    const auto isField = [](const QByteArray &line) { return fieldOf(line) >= 0; };
    const qsizetype lastField = record.crend() - std::find_if(record.crbegin(), record.crend(), isField);
    for (const QByteArray &line : record.sliced(std::max<qsizetype>(lastField, 1))) {
        if (line.trimmed().isEmpty())
            continue;
        if (index == 0)
            m_before += line;
        else
            m_records[index - 1] += line;
    }
}

ProfileRecords ProfileRecords::only(qsizetype index) const
{
    ProfileRecords records;
    records.m_records += m_records[index];
    return records;
}

QByteArray ProfileRecords::toBytes() const
{
    QByteArray content = m_before;
    for (const Record &record : m_records) {
        for (const QByteArray &line : record)
            content += line;
    }
    return content;
}

} // namespace corva
