// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/formfield.h"

#include "widgets/iconbutton.h"
#include "widgets/skinicon.h"
#include "widgets/textlabel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace corva
{

FormField::FormField(const QString &caption, const QString &objectName, Kind kind, QWidget *parent)
    : QWidget(parent), m_caption(new TextLabel(caption, TextRole::Text, this)), m_edit(new QLineEdit(this)),
      m_error(new TextLabel(TextRole::Text, this))
{
    m_edit->setObjectName(objectName);
    m_edit->setAccessibleName(QString(caption).remove(u'&'));
    m_edit->setTextMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    m_caption->setBuddy(m_edit);
    m_error->setObjectName(objectName + u"Error"_s);
    m_error->setWordWrap(true);
    if (kind != Kind::Text) {
        m_edit->setLayoutDirection(Qt::LeftToRight);
        m_edit->setInputMethodHints(Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
    }

    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::HalfGrid);
    row->addWidget(m_edit, 1);
    if (kind == Kind::Secret)
        addReveal(row);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(m_caption);
    layout->addLayout(row);
    layout->addWidget(m_error);
    connect(m_edit, &QLineEdit::textEdited, this, [this] {
        setError({});
        Q_EMIT sigEdited();
    });
    setError({});
}

void FormField::addReveal(QHBoxLayout *row)
{
    m_edit->setEchoMode(QLineEdit::Password);
    m_edit->setInputMethodHints(m_edit->inputMethodHints() | Qt::ImhSensitiveData);
    m_reveal = new IconButton(u"reveal"_s, tr("Show the password"), this, SkinRole::MutedText);
    m_reveal->setObjectName(m_edit->objectName() + u"Reveal"_s);
    m_reveal->setCheckable(true);
    connect(m_reveal, &QToolButton::toggled, this, [this](bool isShown) {
        m_edit->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password);
        m_reveal->setIcon(skinIcon(isShown ? u"conceal"_s : u"reveal"_s, SkinRole::MutedText));
        m_reveal->setName(isShown ? tr("Hide the password") : tr("Show the password"));
    });
    row->addWidget(m_reveal);
}

QString FormField::text() const
{
    return m_edit->text();
}

void FormField::setText(const QString &text)
{
    m_edit->setText(text);
    m_edit->setCursorPosition(0);
}

void FormField::setReadOnly(bool readOnly)
{
    m_edit->setReadOnly(readOnly);
}

void FormField::setError(const QString &error)
{
    QPalette palette = m_error->palette();
    palette.setColor(QPalette::WindowText, skinColor(SkinRole::Bad));
    m_error->setPalette(palette);
    m_error->setText(error);
    m_error->setVisible(!error.isEmpty());
    m_edit->setAccessibleDescription(error);
}

void FormField::takeFocus()
{
    m_edit->setFocus(Qt::TabFocusReason);
    m_edit->selectAll();
}

void FormField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange && !m_error->text().isEmpty())
        setError(m_error->text());
}

} // namespace corva
