// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/controltable.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalSocket>
#include <QStringList>
#include <algorithm>
#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;
using namespace cardemu;

namespace
{

enum Status { Done = 0, Refused = 1, Misused = 2, Unreachable = 3 };

void say(FILE *where, const QString &text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), where);
    std::fflush(where);
}

QString usage(const ControlRow &row)
{
    QString line = row.name;
    for (const Parameter &parameter : row.parameters)
        line +=
            parameter.required ? u" %1"_s.arg(parameter.name.toUpper()) : u" [%1=...]"_s.arg(parameter.name);
    return line;
}

void printHelp()
{
    say(stdout,
        u"cardctl DIR COMMAND [VALUE | name=VALUE]...\n\nDIR is the folder given to cardemu. Commands:\n"_s);
    for (const ControlRow &row : controlTable())
        say(stdout, u"  %1\n      %2"_s.arg(usage(row), row.help));
    say(stdout, u"  watch\n      print what goes over the ports, until interrupted"_s);
}

/// "on", "12", "[1,2]" as the parameter's type has it; nullopt when it does not fit.
std::optional<QJsonValue> toValue(const QString &text, ValueType type)
{
    static const QStringList yes{u"on"_s, u"true"_s, u"yes"_s};
    static const QStringList no{u"off"_s, u"false"_s, u"no"_s};
    if (type == ValueType::Text)
        return text;
    if (type != ValueType::Number && yes.contains(text))
        return true;
    if (type != ValueType::Number && no.contains(text))
        return false;
    const QJsonDocument document = QJsonDocument::fromJson("[" + text.toUtf8() + "]");
    const bool isOne = document.isArray() && document.array().size() == 1;
    if (isOne)
        return document.array().first();
    return type == ValueType::Free ? std::optional<QJsonValue>(text) : std::nullopt;
}

/// Named values go to their parameters, the others to the first ones that are left. A complaint in `error`.
QJsonObject toRequest(const ControlRow &row, const QStringList &words, QString *error)
{
    QJsonObject request{{u"command"_s, row.name}};
    for (const QString &word : words) {
        const QString name = word.section(u'=', 0, 0);
        auto parameter = word.contains(u'=') ? std::ranges::find(row.parameters, name, &Parameter::name)
                                             : row.parameters.end();
        const bool named = parameter != row.parameters.end();
        if (!named)
            parameter = std::ranges::find_if(
                row.parameters, [&request](const Parameter &p) { return !request.contains(p.name); });
        if (parameter == row.parameters.end()) {
            *error = u"nothing takes \"%1\""_s.arg(word);
            return {};
        }
        const auto value = toValue(named ? word.section(u'=', 1) : word, parameter->type);
        if (!value) {
            *error = u"%1: \"%2\" does not fit"_s.arg(parameter->name, word);
            return {};
        }
        request[parameter->name] = *value;
    }
    return request;
}

void printAnswer(QJsonObject answer)
{
    answer.remove(u"ok"_s);
    if (!answer.isEmpty())
        say(stdout, QString::fromUtf8(QJsonDocument(answer).toJson()).trimmed());
}

int talk(const QString &folder, const QJsonObject &request, bool goOn)
{
    QLocalSocket socket;
    // A relative name would be looked for in the folder for temporary files.
    socket.connectToServer(QDir(folder).absoluteFilePath(u"control"_s));
    if (!socket.waitForConnected()) {
        say(stderr, u"cardctl: no card answers in %1: %2"_s.arg(folder, socket.errorString()));
        return Unreachable;
    }
    socket.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    do {
        while (!socket.canReadLine()) {
            if (!socket.waitForReadyRead(goOn ? -1 : 10000))
                return Unreachable;
        }
        const QJsonObject answer = QJsonDocument::fromJson(socket.readLine()).object();
        if (answer.contains(u"error"_s)) {
            say(stderr, u"cardctl: "_s + answer[u"error"_s].toString());
            return Refused;
        }
        printAnswer(answer);
    } while (goOn);
    return Done;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList words = QCoreApplication::arguments().mid(1);
    if (words.size() < 2 || words.contains(u"--help"_s)) {
        printHelp();
        return words.contains(u"--help"_s) ? Done : Misused;
    }
    const QString folder = words.takeFirst();
    const QString command = words.takeFirst();
    if (command == u"watch"_s)
        return talk(folder, {{u"command"_s, command}}, true);
    const ControlRow *row = findControl(command);
    if (row == nullptr) {
        say(stderr, u"cardctl: unknown command \"%1\"; see --help"_s.arg(command));
        return Misused;
    }
    QString error;
    const QJsonObject request = toRequest(*row, words, &error);
    if (!error.isEmpty()) {
        say(stderr, u"cardctl: %1\nusage: cardctl DIR %2"_s.arg(error, usage(*row)));
        return Misused;
    }
    return talk(folder, request, false);
}
