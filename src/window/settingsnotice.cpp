// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/settingsnotice.h"

#include "shell/commoncfg.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString noticeOf(const CommonCfg &config)
{
    const QString kept = config.keptBrokenFile();
    if (!kept.isEmpty())
        return QCoreApplication::translate("SettingsNotice",
                                           "The settings could not be read, so the program started with "
                                           "nothing set. The unreadable file was kept as:\n%1")
            .arg(QFileInfo(kept).absoluteFilePath());
    const QString error = config.lastError();
    if (!error.isEmpty())
        return QCoreApplication::translate("SettingsNotice", "The settings cannot be stored: %1").arg(error);
    return {};
}

} // namespace

void tellOfSettings(const CommonCfg &config, QWidget *window)
{
    const QString notice = noticeOf(config);
    if (notice.isEmpty())
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, window->windowTitle(), {}, QMessageBox::Ok, window);
    box->setObjectName(u"settingsNotice"_s);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(notice);
    box->setModal(false);
    box->show();
}

} // namespace corva
