// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/keyboardmover.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace corva
{

namespace
{

constexpr int pixelsPerStep = 16;

QPoint directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
    }
}

} // namespace

KeyboardMover::KeyboardMover(QWidget *window) : QObject(window), m_window(window) {}

void KeyboardMover::startMove()
{
    start(Mode::Move, tr("Arrow keys move the window. Enter keeps the place, Esc brings it back."));
}

void KeyboardMover::startResize()
{
    start(Mode::Resize,
          tr("Arrow keys resize the window. Enter keeps the size, Esc brings the old one back."));
}

void KeyboardMover::start(Mode mode, const QString &sentence)
{
    if (m_window->isMaximized() || m_mode != Mode::Off)
        return;
    m_mode = mode;
    m_before = m_window->geometry();
    qApp->installEventFilter(this);
    Q_EMIT sigSaid(sentence);
}

void KeyboardMover::finish(const QString &sentence)
{
    m_mode = Mode::Off;
    qApp->removeEventFilter(this);
    Q_EMIT sigSaid(sentence);
}

bool KeyboardMover::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate && watched == m_window)
        finish({});
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || !takeKey(static_cast<const QKeyEvent &>(*event)))
        return QObject::eventFilter(watched, event);
    event->accept();
    return true;
}

bool KeyboardMover::takeKey(const QKeyEvent &event)
{
    // The same key comes first as a possible shortcut: it is claimed then, and acted on when it is pressed.
    const bool isPress = event.type() == QEvent::KeyPress;
    const QPoint direction = directionOf(event.key());
    if (!direction.isNull()) {
        if (!isPress)
            return true;
        const QPoint step = direction * (event.modifiers() & Qt::ControlModifier ? 1 : pixelsPerStep);
        if (m_mode == Mode::Move)
            m_window->move(m_window->pos() + step);
        else
            m_window->resize(m_window->size() + QSize(step.x(), step.y()));
        return true;
    }
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isEnter && event.key() != Qt::Key_Escape)
        return false;
    if (!isPress)
        return true;
    if (!isEnter)
        m_window->setGeometry(m_before);
    finish({});
    return true;
}

} // namespace corva
