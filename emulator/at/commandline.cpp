// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/commandline.h"

#include <cctype>

namespace cardemu
{

namespace
{

bool isLetter(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool startsExtended(char c)
{
    return c == '+' || c == '^' || c == '*' || c == '$';
}

bool belongsToName(char c)
{
    return isLetter(c) || isDigit(c) || QByteArrayView("!%-./:_").contains(c);
}

QByteArray withoutBlanks(const QByteArray &body)
{
    QByteArray kept;
    bool inQuotes = false;
    for (const char c : body) {
        if (c == '"')
            inQuotes = !inQuotes;
        if (inQuotes || c != ' ')
            kept += c;
    }
    return kept;
}

/// Reads one command after the other from a line without blanks.
class Splitter
{
public:
    explicit Splitter(const QByteArray &line) : m_line(line) {}

    bool atEnd() const { return m_at >= m_line.size(); }

    std::optional<Command> next()
    {
        const qsizetype start = m_at;
        auto command = startsExtended(peek()) ? extended() : basic();
        if (command)
            command->text = command->name + m_line.mid(start, m_at - start).mid(command->name.size());
        if (command && peek() == ';')
            ++m_at;
        return command;
    }

private:
    char peek() const { return atEnd() ? '\0' : m_line[m_at]; }
    bool take(char c)
    {
        const bool there = peek() == c && !atEnd();
        m_at += there ? 1 : 0;
        return there;
    }

    template <typename Predicate> QByteArray takeWhile(Predicate belongs)
    {
        const qsizetype start = m_at;
        while (!atEnd() && belongs(m_line[m_at]))
            ++m_at;
        return m_line.mid(start, m_at - start);
    }

    // Up to the ";" that parts commands; one inside quotes does not.
    QByteArray takeValue()
    {
        bool inQuotes = false;
        return takeWhile([&inQuotes](char c) {
            inQuotes ^= c == '"';
            return inQuotes || c != ';';
        });
    }

    std::optional<Command> extended()
    {
        Command command;
        command.name = m_line.mid(m_at++, 1);
        command.name += takeWhile(belongsToName).toUpper();
        if (command.name.size() < 2 || !isLetter(command.name[1]))
            return std::nullopt;
        if (take('?'))
            command.form = Form::Read;
        else if (take('=') && !readArguments(command))
            return std::nullopt;
        return atEnd() || peek() == ';' ? std::optional(command) : std::nullopt;
    }

    bool readArguments(Command &command)
    {
        if (take('?')) {
            command.form = Form::Test;
            return true;
        }
        command.form = Form::Set;
        const auto arguments = Arguments::parse(takeValue());
        if (arguments)
            command.arguments = *arguments;
        return arguments.has_value();
    }

    std::optional<Command> basic()
    {
        Command command;
        if (take('&'))
            command.name = "&";
        if (!isLetter(peek()))
            return std::nullopt;
        command.name += m_line.mid(m_at++, 1).toUpper();
        if (command.name == "D") {
            command.arguments = Arguments::ofText(takeWhile([](char) { return true; }));
            return command;
        }
        const QByteArray digits = takeWhile(isDigit);
        bool fits = true;
        const int number = digits.isEmpty() ? 0 : digits.toInt(&fits);
        command.arguments = Arguments::ofNumber(number);
        if (fits && command.name == "S")
            fits = sRegister(command, number);
        return fits ? std::optional(command) : std::nullopt;
    }

    bool sRegister(Command &command, int number)
    {
        if (take('?')) {
            command.form = Form::Read;
            return true;
        }
        if (!take('='))
            return false;
        command.form = Form::Set;
        const auto arguments = Arguments::parse(QByteArray::number(number) + ',' + takeWhile(isDigit));
        if (arguments)
            command.arguments = *arguments;
        return arguments.has_value();
    }

    QByteArray m_line;
    qsizetype m_at = 0;
};

} // namespace

std::optional<std::vector<Command>> parseCommandLine(const QByteArray &body)
{
    std::vector<Command> commands;
    Splitter splitter(withoutBlanks(body));
    while (!splitter.atEnd()) {
        auto command = splitter.next();
        if (!command)
            return std::nullopt;
        commands.push_back(std::move(*command));
    }
    return commands;
}

} // namespace cardemu
