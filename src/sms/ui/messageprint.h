// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/ui/messagetexts.h"

class QWidget;

namespace corva
{

/// The messages one below the other, as plain text for paper.
QString printedText(const std::vector<Message> &messages, const NameOf &nameOf);

/// Asks for a printer, and prints. Nothing waits: the dialog closes itself.
void printText(const QString &text, QWidget *parent);

} // namespace corva
