// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/globals.h"
#include "widgets/signalbars.h"
#include "widgets/skinicon.h"

#include <QApplication>
#include <QDir>
#include <QDomDocument>
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

    void isOfTheFamily_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList files = QDir(basePath + u"/res/icons"_s).entryList({u"*.svg"_s});
        QVERIFY(!files.isEmpty());
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file.chopped(4);
    }

    void isOfTheFamily()
    {
        QFETCH(const QString, name);
        QFile file(basePath + u"/res/icons/%1.svg"_s.arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument drawing;
        QVERIFY(drawing.setContent(&file));
        const QDomElement root = drawing.documentElement();
        QCOMPARE(root.attribute(u"viewBox"_s), u"0 0 24 24"_s);
        QCOMPARE(root.attribute(u"stroke"_s), u"currentColor"_s);
        QCOMPARE(root.attribute(u"stroke-width"_s), u"1.75"_s);
        QCOMPARE(root.attribute(u"stroke-linejoin"_s), u"round"_s);
        QCOMPARE(root.attribute(u"stroke-linecap"_s), u"round"_s);

        // Nothing is cut at the edges, and it does not shrink into a corner.
        const QImage image = skinPixmap(name, Qt::black, 48, 1).toImage();
        const QRect ink = inkOf(image);
        QVERIFY2(QRect(2, 2, 44, 44).contains(ink),
                 qPrintable(u"%1,%2 %3x%4"_s.arg(ink.x()).arg(ink.y()).arg(ink.width()).arg(ink.height())));
        QVERIFY(qMax(ink.width(), ink.height()) >= 20);
    }

    void everyNameInTheCodeIsDrawn()
    {
        const QRegularExpression names(
            uR"re((?:skinIcon|skinPixmap|IconButton|setChip)\(\s*u"([a-z-]+)"_s)re"_s);
        int found = 0;
        for (const QString &folder : {u"widgets"_s, u"window"_s, u"settings"_s}) {
            const QDir sources(basePath + u"/src/"_s + folder);
            for (const QString &source : sources.entryList({u"*.cpp"_s})) {
                QFile file(sources.filePath(source));
                QVERIFY(file.open(QIODevice::ReadOnly));
                auto match = names.globalMatch(QString::fromUtf8(file.readAll()));
                while (match.hasNext()) {
                    const QString name = match.next().captured(1);
                    QVERIFY2(!skinIcon(name).isNull(), qPrintable(name));
                    ++found;
                }
            }
        }
        QVERIFY(found > 3);
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

    void barsShowTheLevel_data()
    {
        QTest::addColumn<int>("level");
        for (int level = 0; level <= 5; ++level)
            QTest::addRow("%d bars", level) << level;
    }

    void barsShowTheLevel()
    {
        QFETCH(const int, level);
        QImage image(48, 48, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintSignalBars(painter, image.rect(), level, Qt::black, Qt::green);
        painter.end();
        int lit = 0;
        bool wasInk = false;
        for (int x = 0; x < image.width(); ++x) {
            const bool isInk = image.pixelColor(x, 39) == QColor(Qt::black);
            lit += isInk && !wasInk ? 1 : 0;
            wasInk = isInk;
        }
        QCOMPARE(lit, level);
    }
};

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
