// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/commonconfig.h"

#include <QPixmap>
#include <QWidget>

namespace corva
{

/// A part of the window with a background of its own: a plain colour or a picture of the skin.
class SkinAreaWidget : public QWidget
{
    Q_OBJECT

public:
    using Area = SkinArea CommonConfig::*;

    SkinAreaWidget(Area area, QWidget *parent);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void takeSkin();

    Area m_area;
    QPixmap m_picture;
};

} // namespace corva
