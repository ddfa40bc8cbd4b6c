// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"

#include <QDialog>

namespace corva
{

class FactRow;

/// The program's and the card's versions, each to be copied, or all at once.
class AboutBox final : public QDialog
{
    Q_OBJECT

public:
    AboutBox(const CardState &state, QWidget *parent);

    /// One fact a line, "Caption: value", without the unknown ones.
    QString allFacts() const;

private:
    std::vector<FactRow *> m_rows;
};

} // namespace corva
