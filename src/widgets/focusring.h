// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

class QFocusFrame;
class QWidget;

namespace corva
{

/// Keeps the focus ring around the control that has the keyboard: always around text fields, around
/// everything else once the person uses the keyboard. The ring stands outside of the control; rows of lists
/// paint their own.
class FocusRing final : public QObject
{
    Q_OBJECT

public:
    explicit FocusRing(QObject *parent);

private:
    void follow(QWidget *focused);

    QPointer<QFocusFrame> m_frame;
};

} // namespace corva
