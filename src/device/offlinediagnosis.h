// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"

#include <QString>
#include <vector>

namespace corva
{

/// The steps from the stick in the socket to the internet, in the order in which they have to succeed.
enum class DiagnosisStepId {
    UsbMode,
    Port,
    Rights,
    PortFree,
    Answer,
    Sim,
    Pin,
    Radio,
    Registration,
    Network,
    // Those of the data connection follow, see connection/connectiondiagnosis.h.
    Profile,
    AccessPoint,
    Dialler,
    Address,
    NameServers,
    Route
};

enum class StepStatus {
    Ok,
    Failed,    ///< this is what keeps the card offline
    Running,   ///< the card or the program is at it; waiting is enough
    NotReached ///< cannot be told before the steps ahead of it succeed
};

/// What the person can do about a failed step from within the program.
enum class MendAction {
    None,
    SearchAgain,
    SwitchMode,
    CopyGroupCommand, ///< puts `groupCommand` on the clipboard
    EnterPin,
    EnterPuk,
    SwitchRadioOn,
    AskAgain,
    Connect,
    EditProfile
};

/// One step with its finding, in words for people.
struct DiagnosisStep {
    DiagnosisStepId id = DiagnosisStepId::UsbMode;
    StepStatus status = StepStatus::NotReached;
    QString title;    ///< what the step is about, the same whatever was found: "SIM card"
    QString headline; ///< what was found, a few words without a full stop: "No SIM card"
    QString sentence; ///< what is wrong and what to do; empty for a step that is in order or not reached
    MendAction action = MendAction::None;
    QString actionText; ///< the text of the button, a verb; empty for `None`
};

/// The text of the button that does it.
QString mendActionText(MendAction action);

/// Walks the steps of the card, up to the network, for `state`. After the first step that is not in order the
/// rest is not reached, so at most one step is `Failed` or `Running`.
std::vector<DiagnosisStep> diagnose(const CardState &state);

/// The step that is not in order; nullptr when all are. Points into `steps`.
const DiagnosisStep *firstProblem(const std::vector<DiagnosisStep> &steps);

/// The command that adds the user to the group that owns the port, e.g. "sudo usermod -aG dialout maria". An
/// empty group is taken for "dialout".
QString groupCommand(const CardState &state, const QString &userName);

} // namespace corva
