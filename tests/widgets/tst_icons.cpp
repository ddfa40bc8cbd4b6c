// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/globals.h"
#include "widgets/signalbars.h"
#include "widgets/skinicon.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// The part of the picture that holds ink.
QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 40)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

} // namespace

class TestIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { basePath = QStringLiteral(CORVA_SOURCE_DIR); }

    void fillsItsPlaceAndIsNotCut_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList files = QDir(basePath + u"/res/icons"_s).entryList({u"*.svg"_s});
        QVERIFY(!files.isEmpty());
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file.chopped(4);
    }

    void fillsItsPlaceAndIsNotCut()
    {
        QFETCH(const QString, name);
        const QRect ink = inkOf(skinPixmap(name, Qt::black, 48, 1).toImage());
        QVERIFY2(QRect(2, 2, 44, 44).contains(ink),
                 qPrintable(u"%1,%2 %3x%4"_s.arg(ink.x()).arg(ink.y()).arg(ink.width()).arg(ink.height())));
        QVERIFY(qMax(ink.width(), ink.height()) >= 20);
    }

    void isCrispAndInTheColourOfItsRole()
    {
        const QIcon icon = skinIcon(u"close"_s, SkinRole::Accent);
        const QPixmap pixmap = icon.pixmap(QSize(20, 20), 2.0);
        QCOMPARE(pixmap.size(), QSize(40, 40));
        QCOMPARE(pixmap.devicePixelRatio(), 2.0);
        QCOMPARE(pixmap.toImage().pixelColor(20, 20), comcfg.accent);

        const QColor before = comcfg.accent;
        comcfg.accent = Qt::magenta;
        QCOMPARE(icon.pixmap(QSize(20, 20), 1.0).toImage().pixelColor(10, 10), QColor(Qt::magenta));
        comcfg.accent = before;
    }

    void aMissingDrawingPaintsNothing()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot read the icon.*nosuch"_s));
        QVERIFY(skinIcon(u"nosuch"_s).isNull());
        QVERIFY(inkOf(skinPixmap(u"nosuch"_s, Qt::black, 20, 1).toImage()).isNull());
    }

    void barsRiseToTheRightInBothDirections()
    {
        const auto paint = [](Qt::LayoutDirection direction) {
            SignalBars bars(40);
            bars.setLayoutDirection(direction);
            bars.setLevel(2);
            return bars.grab().toImage();
        };
        QCOMPARE(paint(Qt::RightToLeft), paint(Qt::LeftToRight));
    }

    void barsShowTheLevel()
    {
        for (int level = 0; level <= 5; ++level) {
            QImage image(48, 48, QImage::Format_ARGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            paintSignalBars(painter, image.rect(), level, Qt::black, Qt::green);
            painter.end();
            const auto isInk = [&](int x) { return image.pixelColor(x, 39) == QColor(Qt::black); };
            int lit = 0;
            for (int x = 1; x < image.width(); ++x)
                lit += isInk(x) && !isInk(x - 1) ? 1 : 0;
            QCOMPARE(lit, level);
        }
    }
};

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
