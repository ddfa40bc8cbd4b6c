// SPDX-License-Identifier: GPL-3.0-or-later
// The least that a Qt Widgets program can be: what start and memory of the real one are held against.
#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(960, 600);
    window.show();
    return QApplication::exec();
}
