// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messageexchange.h"

#include "shell/whendone.h"
#include "sms/messagestore.h"
#include "sms/messagetransfer.h"

#include <QDate>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QFileDialog *fileDialog(QWidget *parent, const QString &title, const QString &objectName)
{
    auto *dialog = new QFileDialog(parent, title);
    dialog->setObjectName(objectName);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return dialog;
}

} // namespace

MessageExchange::MessageExchange(MessageStore *store, QWidget *page)
    : QObject(page), m_store(store), m_page(page)
{
}

void MessageExchange::exportMessages(const QStringList &ids)
{
    QFileDialog *dialog = fileDialog(m_page, tr("Export messages"), u"exportDialog"_s);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters({tr("CSV tables (*.csv)"), tr("JSON (*.json)")});
    dialog->setDefaultSuffix(u"csv"_s);
    dialog->selectFile(u"messages-%1.csv"_s.arg(QDate::currentDate().toString(Qt::ISODate)));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
        const QString suffix = filter.contains("json"_L1) ? u"json"_s : u"csv"_s;
        dialog->setDefaultSuffix(suffix);
        dialog->selectFile(QFileInfo(dialog->selectedFiles().value(0)).completeBaseName() + u'.' + suffix);
    });
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, messages = m_store->messages(ids)](const QString &path) { write(path, messages); });
    dialog->open();
}

void MessageExchange::write(const QString &path, const std::vector<Message> &messages)
{
    const auto writing = corva::exportMessages(messages, path);
    whenDone(writing, this, [this, path, count = int(messages.size())](const std::optional<QString> &error) {
        const QString shown = QDir::toNativeSeparators(path);
        Q_EMIT sigSaid(error && error->isEmpty()
                           ? tr("%n messages were written to %1.", nullptr, count).arg(shown)
                           : tr("The messages could not be written: %1").arg(error.value_or(QString())));
    });
}

void MessageExchange::importMessages()
{
    QFileDialog *dialog = fileDialog(m_page, tr("Import messages"), u"importDialog"_s);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(tr("Exported messages (*.csv *.json)"));
    connect(dialog, &QFileDialog::fileSelected, this, &MessageExchange::importFrom);
    dialog->open();
}

void MessageExchange::importFrom(const QString &path)
{
    whenDone(corva::importMessages(m_store, path), this, [this](const std::optional<ImportOutcome> &outcome) {
        if (outcome)
            Q_EMIT sigSaid(outcome->error.isEmpty() ? sentenceFor(*outcome) : outcome->error);
    });
}

QString MessageExchange::sentenceFor(const ImportOutcome &outcome)
{
    QStringList sentences{tr("%n messages were added.", nullptr, outcome.added)};
    if (outcome.present > 0)
        sentences += tr("%n were here already.", nullptr, outcome.present);
    if (outcome.unreadable > 0)
        sentences += tr("%n could not be read.", nullptr, outcome.unreadable);
    return sentences.join(u' ');
}

} // namespace corva
