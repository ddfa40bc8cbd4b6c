// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/edgegrips.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWindow>

namespace corva
{

namespace
{

constexpr int thickness = 4;
constexpr int cornerLength = 12;

struct GripRow {
    Qt::Edges edges;
    Qt::CursorShape cursor;
};

// The corners come last, so that they lie above the edges.
const GripRow gripRows[] = {
    {Qt::LeftEdge, Qt::SizeHorCursor},
    {Qt::RightEdge, Qt::SizeHorCursor},
    {Qt::TopEdge, Qt::SizeVerCursor},
    {Qt::BottomEdge, Qt::SizeVerCursor},
    {Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor},
    {Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor},
    {Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor},
    {Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor},
};

QRect placeOf(Qt::Edges edges, const QSize &window)
{
    const bool isCorner = edges & (Qt::LeftEdge | Qt::RightEdge) && edges & (Qt::TopEdge | Qt::BottomEdge);
    if (isCorner) {
        const QPoint corner(edges & Qt::LeftEdge ? 0 : window.width() - cornerLength,
                            edges & Qt::TopEdge ? 0 : window.height() - cornerLength);
        return {corner, QSize(cornerLength, cornerLength)};
    }
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return {edges & Qt::LeftEdge ? 0 : window.width() - thickness, 0, thickness, window.height()};
    return {0, edges & Qt::TopEdge ? 0 : window.height() - thickness, window.width(), thickness};
}

/// A corner is an angle of two thin legs, so that it takes no clicks from what lies inside of it.
QRegion legsOf(Qt::Edges edges)
{
    const QRect whole(0, 0, cornerLength, cornerLength);
    const int x = edges & Qt::LeftEdge ? thickness : 0;
    const int y = edges & Qt::TopEdge ? thickness : 0;
    return QRegion(whole) - QRect(x, y, cornerLength - thickness, cornerLength - thickness);
}

} // namespace

class EdgeGrip final : public QWidget
{
public:
    EdgeGrip(const GripRow &row, QWidget *window) : QWidget(window), m_edges(row.edges)
    {
        setCursor(row.cursor);
        setFocusPolicy(Qt::NoFocus);
        if (placeOf(m_edges, window->size()).width() == cornerLength)
            setMask(legsOf(m_edges));
    }

    void place()
    {
        setGeometry(placeOf(m_edges, parentWidget()->size()));
        setVisible(!parentWidget()->isMaximized());
        raise();
    }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton)
            window()->windowHandle()->startSystemResize(m_edges);
    }

private:
    Qt::Edges m_edges;
};

EdgeGrips::EdgeGrips(QWidget *window) : QObject(window), m_window(window)
{
    for (const GripRow &row : gripRows)
        m_grips.push_back(new EdgeGrip(row, window));
    window->installEventFilter(this);
}

bool EdgeGrips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange ||
        event->type() == QEvent::Show)
        place();
    return QObject::eventFilter(watched, event);
}

void EdgeGrips::place()
{
    for (EdgeGrip *grip : m_grips)
        grip->place();
}

} // namespace corva
