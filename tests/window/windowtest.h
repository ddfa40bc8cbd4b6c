// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakecardmonitor.h"
#include "fakeconnection.h"

#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "widgets/cdestyle.h"
#include "widgets/skin.h"
#include "window/wtmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// A program's surroundings in a folder of its own: settings and profiles are written there, pictures are the
/// real ones.
class Surroundings
{
public:
    Surroundings()
    {
        QDir::setCurrent(m_folder.path());
        QDir().mkdir(QStringLiteral("Data"));
        basePath = m_folder.path();
        for (const auto &own : {u"/res"_s, u"/Data/skins"_s, u"/Data/version.txt"_s})
            QFile::link(QStringLiteral(CORVA_SOURCE_DIR) + own, basePath + own);
        corva::installCdeStyle();
        QGuiApplication::setQuitOnLastWindowClosed(false);
        // The store lives as long as the process: what an earlier test set is taken back.
        for (const auto &key : {u"page"_s, u"geometry"_s, u"close_to_tray"_s, u"notifications_enabled"_s})
            cmcfg.setValue(u"window"_s, key, {});
        cmcfg.setValue(u"function"_s, u"naming3GToH"_s, {});
        cmcfg.setValue(u"fontsetting"_s, u"mainwindow_fontsize"_s, {});
    }

private:
    QTemporaryDir m_folder;
};

inline WTMainWindow *makeWindow()
{
    return new WTMainWindow(nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint);
}

/// The shown control of that name; fails the test with the names that there are.
template <typename Widget> Widget *shown(QWidget *root, const QString &objectName)
{
    QStringList others;
    const QList<Widget *> found = root->findChildren<Widget *>();
    for (Widget *widget : found) {
        if (widget->objectName() == objectName && widget->isVisible())
            return widget;
        others += widget->objectName();
    }
    qWarning().noquote() << objectName << "is not shown; there are" << others;
    return nullptr;
}

/// What the label of that name says to a screen reader, or "" when it is not shown.
inline QString said(QWidget *root, const QString &objectName)
{
    const QList<QLabel *> labels = root->findChildren<QLabel *>(objectName);
    for (const QLabel *label : labels)
        if (label->isVisible())
            return label->accessibleName().isEmpty() ? label->text() : label->accessibleName();
    return {};
}
