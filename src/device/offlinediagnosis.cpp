// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/offlinediagnosis.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct Finding {
    StepStatus status = StepStatus::Ok;
    QString headline;
    QString sentence;
    MendAction action = MendAction::None;
};

QString text(const char *source)
{
    return QCoreApplication::translate("OfflineDiagnosis", source);
}

Finding ok(const char *headline)
{
    return {StepStatus::Ok, text(headline), {}, MendAction::None};
}

Finding failed(const char *headline, const QString &sentence, MendAction action)
{
    return {StepStatus::Failed, text(headline), sentence, action};
}

Finding failed(const char *headline, const char *sentence, MendAction action)
{
    return failed(headline, text(sentence), action);
}

Finding running(const char *headline, const char *sentence)
{
    return {StepStatus::Running, text(headline), text(sentence), MendAction::None};
}

Finding checkUsbMode(const CardState &state)
{
    if (state.portFault != PortFault::None)
        return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The settings name a port"));
    if (state.presence == CardPresence::StorageMode)
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card shows itself as a disk"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "Many cards start as a disk with drivers on it. Switch it over, and it "
                              "becomes a modem within a few seconds."),
            MendAction::SwitchMode);
    if (state.presence == CardPresence::Absent && state.deviceName.isEmpty())
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "No card found"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "Plug the card into a USB socket of this computer. If it is plugged in, "
                              "take it out and try another socket."),
            MendAction::SearchAgain);
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card is plugged in as a modem"));
}

Finding checkPort(const CardState &state)
{
    if (state.portFault == PortFault::Missing)
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The port does not exist"),
                      text(QT_TRANSLATE_NOOP(
                               "OfflineDiagnosis",
                               "The settings name the port %1, which does not exist. Plug the card in; if "
                               "it is plugged in, correct \"at_port\" in the file "
                               "Data/common-config.xml and start the program again."))
                          .arg(state.portName),
                      MendAction::SearchAgain);
    if (state.portFault == PortFault::NotSerial)
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "The port is no serial port"),
            text(QT_TRANSLATE_NOOP("OfflineDiagnosis",
                                   "The settings name the port %1, which is no serial port. Correct "
                                   "\"at_port\" in the file Data/common-config.xml and start the program "
                                   "again."))
                .arg(state.portName),
            MendAction::SearchAgain);
    if (state.presence == CardPresence::Absent)
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card has no serial port"),
            text(QT_TRANSLATE_NOOP("OfflineDiagnosis",
                                   "The computer sees \"%1\" but made no port for it. Take it out, wait "
                                   "ten seconds and plug it in again."))
                .arg(state.deviceName),
            MendAction::SearchAgain);
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The computer made a port for it"));
}

Finding checkRights(const CardState &state)
{
    if (state.presence != CardPresence::NoRights)
        return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "You may use the port"));
    const QString group = state.portGroup.isEmpty() ? u"dialout"_s : state.portGroup;
    return failed(
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "No right to use the port"),
        text(QT_TRANSLATE_NOOP("OfflineDiagnosis",
                               "The port %1 may be used only by members of the group \"%2\". Run the "
                               "command that the button copies, then log out and in again."))
            .arg(state.portName, group),
        MendAction::CopyGroupCommand);
}

QString holderName(const CardState &state)
{
    if (state.portHolder.isEmpty())
        return text(QT_TRANSLATE_NOOP("OfflineDiagnosis", "Another program"));
    if (state.portHolderPid <= 0)
        return state.portHolder;
    return text(QT_TRANSLATE_NOOP("OfflineDiagnosis", "%1 (process %2)"))
        .arg(state.portHolder, QString::number(state.portHolderPid));
}

Finding checkPortFree(const CardState &state)
{
    if (state.presence != CardPresence::PortBusy)
        return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "No other program holds the port"));
    return failed(
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "The port is in use"),
        text(QT_TRANSLATE_NOOP("OfflineDiagnosis",
                               "%1 holds the port %2. Close that program or stop its service, then search "
                               "again."))
            .arg(holderName(state), state.portName),
        MendAction::SearchAgain);
}

Finding checkAnswer(const CardState &state)
{
    if (state.presence == CardPresence::Silent)
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card does not answer"),
                      text(QT_TRANSLATE_NOOP(
                               "OfflineDiagnosis",
                               "The port %1 is open, but nothing answers there. A card that was just "
                               "plugged in needs up to half a minute; after that, take it out and plug it "
                               "in again."))
                          .arg(state.portName),
                      MendAction::SearchAgain);
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card answers"));
}

Finding checkSim(const CardState &state)
{
    switch (state.sim) {
    case SimState::Absent:
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "No SIM card"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "Take the card out, put a SIM card in with its contacts down, and plug the "
                              "card in again."),
            MendAction::AskAgain);
    case SimState::Failure:
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "The SIM card cannot be read"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "Take the SIM card out, wipe its contacts and put it in again. If that does "
                              "not help, ask your operator for a new one."),
            MendAction::AskAgain);
    case SimState::Busy:
        return running(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The SIM card is starting"),
                       QT_TRANSLATE_NOOP("OfflineDiagnosis", "This takes a few seconds."));
    case SimState::Unknown:
        return running(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "Asking for the SIM card"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card has not said yet whether it has a SIM card."));
    case SimState::Ready:
    case SimState::PinNeeded:
    case SimState::PukNeeded: break;
    }
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "A SIM card is in the card"));
}

Finding checkPin(const CardState &state)
{
    if (state.sim == SimState::PinNeeded)
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The SIM card is locked"),
                      QT_TRANSLATE_NOOP("OfflineDiagnosis",
                                        "It asks for its PIN before it lets the card into a network."),
                      MendAction::EnterPin);
    if (state.sim == SimState::PukNeeded)
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The SIM card is blocked"),
                      QT_TRANSLATE_NOOP(
                          "OfflineDiagnosis",
                          "A wrong PIN was entered too often. The PUK, which came with the SIM card, sets a "
                          "new PIN."),
                      MendAction::EnterPuk);
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The SIM card is unlocked"));
}

Finding checkRadio(const CardState &state)
{
    const int level = state.functionality.value_or(1);
    if (level == 0 || level == 4)
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The radio is off"),
                      QT_TRANSLATE_NOOP("OfflineDiagnosis",
                                        "The card neither sends nor receives until it is switched on."),
                      MendAction::SwitchRadioOn);
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The radio is on"));
}

Finding checkRegistration(const CardState &state)
{
    switch (state.registration) {
    case Registration::NotSearching:
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "Not looking for a network"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "The card found no network that it may use and gave up. Move to a place with "
                              "better reception, then switch the radio on anew."),
            MendAction::SwitchRadioOn);
    case Registration::Denied:
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The network refused the SIM card"),
                      QT_TRANSLATE_NOOP(
                          "OfflineDiagnosis",
                          "The SIM card may not be activated yet, or may not be used here. Your operator can "
                          "tell you why."),
                      MendAction::AskAgain);
    case Registration::Searching:
        return running(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "Looking for a network"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "This can take a minute, longer abroad. A place near a window helps."));
    case Registration::Unknown:
        return running(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "Asking for the network"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "The card has not said yet whether a network took it in."));
    case Registration::Home:
        return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "Your operator's network took the card in"));
    case Registration::Roaming: break;
    }
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "Another operator's network took the card in"));
}

Finding checkNetwork(const CardState &state)
{
    switch (state.service) {
    case ServiceState::None:
        return failed(
            QT_TRANSLATE_NOOP("OfflineDiagnosis", "No service"),
            QT_TRANSLATE_NOOP("OfflineDiagnosis",
                              "The network gives no service here at the moment. Move to a place with better "
                              "reception."),
            MendAction::AskAgain);
    case ServiceState::Limited:
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "Emergency calls only"),
                      QT_TRANSLATE_NOOP(
                          "OfflineDiagnosis",
                          "The network does not serve this SIM card here. Your operator can tell you why."),
                      MendAction::AskAgain);
    case ServiceState::LimitedRegional:
        return failed(QT_TRANSLATE_NOOP("OfflineDiagnosis", "No service in this region"),
                      QT_TRANSLATE_NOOP("OfflineDiagnosis",
                                        "Your operator serves this SIM card elsewhere, not in this region."),
                      MendAction::AskAgain);
    case ServiceState::Full:
    case ServiceState::PowerSave:
    case ServiceState::Unknown: break;
    }
    return ok(QT_TRANSLATE_NOOP("OfflineDiagnosis", "The network serves the card"));
}

struct StepRow {
    DiagnosisStepId id;
    const char *title;
    Finding (*check)(const CardState &);
};

constexpr StepRow stepRows[] = {
    {DiagnosisStepId::UsbMode, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Card in the USB socket"), checkUsbMode},
    {DiagnosisStepId::Port, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Serial port"), checkPort},
    {DiagnosisStepId::Rights, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Right to use the port"), checkRights},
    {DiagnosisStepId::PortFree, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Port free"), checkPortFree},
    {DiagnosisStepId::Answer, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Answer of the card"), checkAnswer},
    {DiagnosisStepId::Sim, QT_TRANSLATE_NOOP("OfflineDiagnosis", "SIM card"), checkSim},
    {DiagnosisStepId::Pin, QT_TRANSLATE_NOOP("OfflineDiagnosis", "PIN"), checkPin},
    {DiagnosisStepId::Radio, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Radio"), checkRadio},
    {DiagnosisStepId::Registration, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Registration"), checkRegistration},
    {DiagnosisStepId::Network, QT_TRANSLATE_NOOP("OfflineDiagnosis", "Network"), checkNetwork},
};

} // namespace

QString mendActionText(MendAction action)
{
    static constexpr std::array texts{
        "",
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Search again"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Switch to modem"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Copy command"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Enter PIN"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Enter PUK"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Switch radio on"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Ask again"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Connect"),
        QT_TRANSLATE_NOOP("OfflineDiagnosis", "&Edit profile"),
    };
    return action == MendAction::None ? QString() : text(texts.at(static_cast<std::size_t>(action)));
}

std::vector<DiagnosisStep> diagnose(const CardState &state)
{
    std::vector<DiagnosisStep> steps;
    bool inOrder = true;
    for (const StepRow &row : stepRows) {
        Finding finding;
        if (inOrder)
            finding = row.check(state);
        else
            finding.status = StepStatus::NotReached;
        inOrder = inOrder && finding.status == StepStatus::Ok;
        steps.push_back({row.id, finding.status, text(row.title), finding.headline, finding.sentence,
                         finding.action, mendActionText(finding.action)});
    }
    return steps;
}

const DiagnosisStep *firstProblem(const std::vector<DiagnosisStep> &steps)
{
    const auto problem = std::find_if(steps.begin(), steps.end(), [](const DiagnosisStep &step) {
        return step.status == StepStatus::Failed || step.status == StepStatus::Running;
    });
    return problem == steps.end() ? nullptr : &*problem;
}

QString groupCommand(const CardState &state, const QString &userName)
{
    return u"sudo usermod -aG %1 %2"_s.arg(state.portGroup.isEmpty() ? u"dialout"_s : state.portGroup,
                                           userName);
}

} // namespace corva
