// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/mytextedit.h"

#include "shell/commoncfg.h"
#include "sms/ui/messagetexts.h"
#include "widgets/skin.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

MyTextEdit::MyTextEdit(QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    document()->setDocumentMargin(corva::metrics::Grid);
    connect(this, &QPlainTextEdit::textChanged, this, &MyTextEdit::count);
    count();
}

void MyTextEdit::focusInEvent(QFocusEvent *event)
{
    count(); // the national language may have been chosen anew in the settings
    QPlainTextEdit::focusInEvent(event);
}

void MyTextEdit::count()
{
    using namespace corva;
    const QString text = toPlainText();
    m_split = splitText(text, TextCoding::fromSpecialCode(cmcfg.getValue(u"sms"_s, u"specialcode"_s)));
    if (document()->defaultTextOption().textDirection() != directionOf(text))
        document()->setDefaultTextOption(optionFor(text));
    Q_EMIT sigCounted();
}
