// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/plaintextview.h"

#include "sms/ui/messagetexts.h"
#include "widgets/skin.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>

namespace corva
{

PlainTextView::PlainTextView(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setContextMenuPolicy(Qt::CustomContextMenu);
    document()->setDocumentMargin(metrics::Grid);
}

void PlainTextView::setText(const QString &text)
{
    document()->setDefaultTextOption(optionFor(text));
    setPlainText(text);
    markLinks();
}

void PlainTextView::markLinks()
{
    QTextCharFormat format;
    format.setFontUnderline(true);
    format.setForeground(skinColor(SkinRole::Accent));
    QList<QTextEdit::ExtraSelection> marks;
    const QStringList links = linksIn(toPlainText());
    for (const QString &link : links)
        for (QTextCursor found = document()->find(link, 0, QTextDocument::FindCaseSensitively);
             !found.isNull(); found = document()->find(link, found, QTextDocument::FindCaseSensitively))
            marks += {found, format};
    setExtraSelections(marks);
}

QMenu *PlainTextView::makeMenu()
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (textCursor().hasSelection())
        menu->addAction(tr("&Copy"), this, &QPlainTextEdit::copy);
    const QStringList links = linksIn(toPlainText());
    for (const QString &link : links)
        menu->addAction(tr("Copy %1").arg(QString(link).replace(u'&', QStringLiteral("&&"))), menu,
                        [link] { QGuiApplication::clipboard()->setText(link); });
    if (!menu->isEmpty())
        menu->addSeparator();
    return menu;
}

void PlainTextView::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        markLinks();
}

} // namespace corva
