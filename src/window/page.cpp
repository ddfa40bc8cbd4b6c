// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/page.h"

#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace corva
{

Page::Page(const PageInfo &info, QWidget *parent)
    : QWidget(parent), m_info(info), m_about(new TextLabel(TextRole::Text, this)),
      m_titleRow(new QHBoxLayout), m_body(new QVBoxLayout)
{
    setObjectName(info.id);
    setAccessibleName(info.title);
    m_about->setMuted(true);
    m_about->setWordWrap(true);
    m_about->hide();

    auto *title = new TextLabel(info.title, TextRole::Title, this);
    m_titleRow->setSpacing(metrics::Grid);
    m_titleRow->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    m_about->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    m_titleRow->addWidget(title, 1);
    m_titleRow->addStrut(metrics::ControlHeight);
    m_body->setContentsMargins(0, 0, 0, 0);
    m_body->setSpacing(metrics::RowGap);

    auto *layout = new QVBoxLayout(this);
    constexpr int side = metrics::PageMargin - metrics::HalfGrid;
    constexpr int end = metrics::PageMargin - metrics::Grid;
    layout->setContentsMargins(side, end, side, end);
    layout->setSpacing(0);
    layout->addLayout(m_titleRow);
    layout->addWidget(m_about);
    layout->addSpacing(2 * metrics::Grid);
    layout->addLayout(m_body, 1);
}

void Page::setAbout(const QString &sentence)
{
    m_about->setText(sentence);
    m_about->setVisible(!sentence.isEmpty());
}

void Page::addAction(QAbstractButton *button)
{
    m_titleRow->addWidget(button);
}

} // namespace corva
