// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRadioButton>
#include <functional>
#include <vector>

class QHBoxLayout;
class QStackedWidget;

namespace corva
{

/// One tab: its text, underlined in the accent while it is chosen. The arrow keys walk the tabs of a strip.
class TabButton final : public QRadioButton
{
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint &position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent *event) override;
};

/// Tabs over a stack of which each part is built when it is first opened.
class TabStrip final : public QWidget
{
    Q_OBJECT

public:
    TabStrip(QStackedWidget *stack, QWidget *parent);

    /// `title` with its mnemonic; `build` makes the part below.
    TabButton *addTab(const QString &id, const QString &title, std::function<QWidget *()> build);
    int current() const;

Q_SIGNALS:
    void sigOpened(int index);

private:
    void open(int index);

    QStackedWidget *m_stack;
    QHBoxLayout *m_layout;
    std::vector<TabButton *> m_tabs;
    std::vector<std::function<QWidget *()>> m_builders; ///< empty once built
};

} // namespace corva
