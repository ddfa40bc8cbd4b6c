// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messageprint.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <memory>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("MessagePrint", source);
}

QString block(const Message &message, const NameOf &nameOf)
{
    const char *source = message.isReceived() ? QT_TRANSLATE_NOOP("MessagePrint", "From %1, %2")
                                              : QT_TRANSLATE_NOOP("MessagePrint", "To %1, %2");
    const QString head = text(source).arg(peopleOf(message, nameOf), fullWhen(message.time));
    return head + u'\n' + (message.error.isEmpty() ? contentOf(message) : message.error);
}

} // namespace

QString printedText(const std::vector<Message> &messages, const NameOf &nameOf)
{
    QStringList blocks;
    for (const Message &message : messages)
        blocks += block(message, nameOf);
    return blocks.join(u"\n\n"_s);
}

void printText(const QString &text, QWidget *parent)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    auto *dialog = new QPrintDialog(printer.get(), parent);
    dialog->setObjectName(u"printDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, &QDialog::accepted, dialog, [printer, text] {
        QTextDocument document;
        document.setPlainText(text);
        document.print(printer.get());
    });
    // The dialog needs its printer until it is gone.
    QObject::connect(dialog, &QObject::destroyed, [printer] {});
    dialog->open();
}

} // namespace corva
