// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/plaintextview.h"

#include "sms/ui/messagetexts.h"
#include "widgets/skin.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int longestShown = 64;
constexpr int mostLinks = 12;

/// A line of a menu: what is longer shows its ends.
QString menuLine(const QString &link)
{
    const int half = longestShown / 2;
    const QString shown = link.size() <= longestShown ? link : link.left(half) + u'…' + link.right(half);
    return QString(shown).replace(u'&', u"&&"_s);
}

} // namespace

void addLinkCopies(QMenu *menu, const QStringList &links)
{
    for (const QString &link : links.first(qMin<qsizetype>(links.size(), mostLinks)))
        menu->addAction(PlainTextView::tr("Copy %1").arg(menuLine(link)), menu,
                        [link] { QGuiApplication::clipboard()->setText(link); });
    if (!menu->isEmpty())
        menu->addSeparator();
}

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
    for (const LinkPlace &place : linkPlaces(toPlainText())) {
        QTextCursor found(document());
        found.setPosition(place.start);
        found.setPosition(place.start + place.length, QTextCursor::KeepAnchor);
        marks += {found, format};
    }
    setExtraSelections(marks);
}

QMenu *PlainTextView::makeMenu()
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (textCursor().hasSelection())
        menu->addAction(tr("&Copy"), this, &QPlainTextEdit::copy);
    addLinkCopies(menu, linksIn(toPlainText()));
    return menu;
}

void PlainTextView::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        markLinks();
}

} // namespace corva
