// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/factrow.h"

#include "widgets/iconbutton.h"
#include "widgets/line.h"
#include "widgets/textlabel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int captionGap = 2 * metrics::Grid;
}

FactRow::FactRow(const QString &id, const QString &caption, Copy copy, QWidget *parent)
    : QWidget(parent), m_caption(caption), m_name(new TextLabel(caption, TextRole::Text, this)),
      m_value(new ElidedLabel(TextRole::Text, this))
{
    m_name->setMuted(true);
    m_value->setObjectName(id + u"Value"_s);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_value->setFocusPolicy(Qt::NoFocus);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(m_name);
    layout->addSpacing(captionGap - metrics::Grid);
    layout->addWidget(m_value, 1);
    if (copy == Copy::Yes) {
        m_copy = new IconButton(u"copy"_s, tr("Copy %1").arg(caption), this, SkinRole::MutedText);
        m_copy->setObjectName(id + u"Copy"_s);
        connect(m_copy, &QToolButton::clicked, this,
                [this] { QGuiApplication::clipboard()->setText(m_known); });
        layout->addWidget(m_copy);
    } else if (copy == Copy::Room) {
        layout->addSpacing(metrics::ControlHeight);
    }
    layout->addStrut(metrics::RowHeight);
    setValue({});
}

int FactRow::alignValues(const std::vector<FactRow *> &rows)
{
    int widest = 0;
    for (const FactRow *row : rows)
        widest = qMax(widest, row->m_name->sizeHint().width());
    for (const FactRow *row : rows)
        row->m_name->setMinimumWidth(widest);
    return widest + captionGap;
}

void FactRow::setValue(const QString &value)
{
    m_known = value.simplified();
    m_value->setFullText(isKnown() ? m_known : u"–"_s);
    m_value->setMuted(!isKnown());
    m_value->setAccessibleDescription(m_caption);
    if (m_copy)
        m_copy->setEnabled(isKnown());
}

SectionHeader::SectionHeader(const QString &title, QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, metrics::HalfGrid);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(new TextLabel(title, TextRole::Strong, this));
    layout->addWidget(new Line(Qt::Horizontal, this));
}

} // namespace corva
