// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/focusring.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFocusFrame>
#include <QLineEdit>

namespace corva
{

namespace
{

bool isTextField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget);
}

bool wantsRing(const QWidget *widget)
{
    if (isTextField(widget))
        return true;
    const bool control =
        qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget);
    return control && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace

FocusRing::FocusRing(QObject *parent) : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) { follow(now); });
}

void FocusRing::follow(QWidget *focused)
{
    if (!focused || !wantsRing(focused)) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    // The frame lives in the window of the control it surrounds, and goes with that window.
    if (!m_frame)
        m_frame = new QFocusFrame(focused->window());
    m_frame->setWidget(focused);
}

} // namespace corva
