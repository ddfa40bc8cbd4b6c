// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/pinfield.h"

#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int mostDigits = 8; // of a PIN as of a PUK: 3GPP TS 11.11, 9.3
}

PinField::PinField(const QString &objectName, QWidget *parent)
    : QWidget(parent), m_caption(new TextLabel(TextRole::Text, this)), m_edit(new QLineEdit(this)),
      m_error(new TextLabel(TextRole::Caption, this))
{
    m_edit->setObjectName(objectName);
    m_edit->setEchoMode(QLineEdit::Password);
    m_edit->setMaxLength(mostDigits);
    m_edit->setLayoutDirection(Qt::LeftToRight);
    m_edit->setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    static const QRegularExpression digitsOnly(u"[0-9]*"_s);
    m_edit->setValidator(new QRegularExpressionValidator(digitsOnly, m_edit));
    m_caption->setBuddy(m_edit);
    m_error->setObjectName(objectName + u"Error"_s);
    m_error->setWordWrap(true);
    connect(m_edit, &QLineEdit::textEdited, this, [this] {
        setError({});
        Q_EMIT sigEdited();
    });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(m_caption);
    layout->addWidget(m_edit);
    layout->addWidget(m_error);
    setError({});
}

void PinField::setCaption(const QString &caption)
{
    m_caption->setText(caption);
    m_edit->setAccessibleName(QString(caption).remove(u'&'));
}

QString PinField::digits() const
{
    return m_edit->text();
}

void PinField::clear()
{
    m_edit->clear();
}

void PinField::setDigitsShown(bool shown)
{
    m_edit->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
}

void PinField::setError(const QString &error)
{
    QPalette palette = m_error->palette();
    palette.setColor(QPalette::WindowText, skinColor(SkinRole::Bad));
    m_error->setPalette(palette);
    // A line is kept free, so that nothing moves when a complaint comes or goes.
    m_error->setText(error.isEmpty() ? u" "_s : error);
    m_edit->setAccessibleDescription(error);
}

void PinField::takeFocus()
{
    m_edit->setFocus(Qt::TabFocusReason);
    m_edit->selectAll();
}

} // namespace corva
