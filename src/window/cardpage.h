// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"
#include "window/pageregistry.h"

#include <array>

class QBoxLayout;
class QPushButton;
class QStackedWidget;

namespace corva
{

class FactRow;
class StateHero;

/// The state of the card in large: what it amounts to, and every fact about it. Without a card that answers,
/// one sentence and the action that mends it.
class CardPage final : public Page
{
    Q_OBJECT

public:
    CardPage(const PageInfo &info, const PageContext &context, QWidget *parent);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *buildFacts();
    QWidget *buildColumn(int column);
    void takeState(const CardState &state);

    PageContext m_context;
    QPushButton *m_refresh;
    QStackedWidget *m_stack;
    QBoxLayout *m_columns = nullptr;
    std::array<int, 2> m_columnWidths{}; ///< what each needs to show its values whole, pixels
    StateHero *m_empty;
    StateHero *m_hero;
    std::vector<FactRow *> m_rows; ///< in the order of the table of facts
};

PageEntry cardPageEntry();

} // namespace corva
