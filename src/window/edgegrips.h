// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QWidget>
#include <vector>

namespace corva
{

class EdgeGrip;

/// Lets a frameless window be resized by its edges and corners: invisible strips along them that hand the
/// drag to the window manager.
class EdgeGrips final : public QObject
{
    Q_OBJECT

public:
    explicit EdgeGrips(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QWidget *m_window;
    std::vector<EdgeGrip *> m_grips;
};

} // namespace corva
