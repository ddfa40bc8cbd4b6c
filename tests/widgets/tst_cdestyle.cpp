// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "widgets/buttonkind.h"
#include "widgets/cdestyle.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"
#include "widgets/tooltipmover.h"

#include <QApplication>
#include <QFocusFrame>
#include <QHelpEvent>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace corva;

class TestCdeStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        basePath = QStringLiteral(CORVA_SOURCE_DIR);
        QVERIFY(QDir::setCurrent(m_folder.path())); // where the configuration is written
        installCdeStyle();
        applySkin();
    }

    void isAStyleOfThatName()
    {
        QCOMPARE(QApplication::style()->name(), u"cde"_s);
        QVERIFY(QStyleFactory::keys().contains(u"cde"_s, Qt::CaseInsensitive));
        const std::unique_ptr<QStyle> made(QStyleFactory::create(u"CDE"_s));
        QVERIFY(qobject_cast<CdeStyle *>(made.get()));
    }

    void toolTipsStandLower()
    {
        QWidget window;
        QPushButton button(&window);
        button.setToolTip(u"tip"_s);
        window.show();
        const auto tipPlace = [&] {
            QHelpEvent event(QEvent::ToolTip, {5, 5}, button.mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(&button, &event);
            const QWidgetList all = QApplication::topLevelWidgets();
            const auto tip = std::ranges::find_if(
                all, [](const QWidget *each) { return each->inherits("QTipLabel") && each->isVisible(); });
            const QPoint place = tip == all.end() ? QPoint(-1, -1) : (*tip)->pos();
            QToolTip::hideText();
            return place;
        };
        const QPoint usual = tipPlace();
        QTRY_VERIFY(!QToolTip::isVisible());
        const ToolTipMover mover(40, nullptr);
        QCOMPARE(tipPlace(), usual + QPoint(0, 40));
    }

    void disabledButtonsTakeTheConfiguredColour_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QColor>("color");
        QTest::newRow("named") << u"200, 0,0"_s << QColor(200, 0, 0);
        QTest::newRow("none named") << QString() << comcfg.disabledText;
        QTest::newRow("no colour") << u"200,0,900"_s << comcfg.disabledText;
    }

    void disabledButtonsTakeTheConfiguredColour()
    {
        QFETCH(const QString, value);
        const QString section = u"setting"_s;
        const QString key = u"mybutton_disable_color"_s;
        cmcfg.setValue(section, key, value);
        QPushButton button(u"████"_s);
        button.setEnabled(false);
        button.resize(120, 32);
        const QImage image = button.grab().toImage();
        cmcfg.setValue(section, key, {});
        QTEST(image.pixelColor(60, 16), "color");
    }

    void aChangedSkinIsSeenAtOnce()
    {
        QWidget window;
        QPushButton button(&window);
        setButtonKind(&button, ButtonKind::Primary);
        button.resize(80, 32);
        window.show();
        const auto restore = qScopeGuard([before = comcfg] {
            comcfg = before;
            applySkin();
        });
        comcfg.accent = QColor(0x80, 0x00, 0x80);
        comcfg.window = QColor(0x10, 0x10, 0x10);
        applySkin();
        QCOMPARE(button.grab().toImage().pixelColor(6, 16), comcfg.accent);
        QTRY_COMPARE(window.palette().color(QPalette::Window), comcfg.window);
    }

    void aScrollBarReachesBothEnds()
    {
        QScrollBar bar(Qt::Vertical);
        bar.resize(12, 200);
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = Qt::Vertical;
        option.maximum = 100;
        option.pageStep = 10;
        const auto handle = [&](int position) {
            option.sliderPosition = position;
            return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider,
                                               &bar);
        };
        QCOMPARE(handle(0).top(), 0);
        QCOMPARE(handle(100).bottom(), 199);
        QVERIFY(handle(50).height() >= 32);
    }

    void theFocusRingStandsOutsideOfTheControl()
    {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *first = new QPushButton(u"First"_s, &window);
        auto *second = new QPushButton(u"Second"_s, &window);
        layout->addWidget(first);
        layout->addWidget(second);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_Tab);
        QTest::keyClick(&window, Qt::Key_Tab);
        auto *focused = qobject_cast<QPushButton *>(QApplication::focusWidget());
        QVERIFY(focused);
        const auto *ring = window.findChild<QFocusFrame *>();
        QVERIFY(ring && ring->isVisible());
        QCOMPARE(ring->widget(), focused);
        const int outside = metrics::FocusGap + metrics::FocusWidth;
        QCOMPARE(ring->geometry(), focused->geometry().adjusted(-outside, -outside, outside, outside));
    }

    void textsStandAtTheLeadingEdgeInBothDirections()
    {
        QWidget window;
        window.setLayoutDirection(Qt::RightToLeft);
        TextLabel number(u"490154203237518"_s, TextRole::Text, &window);
        QVERIFY(number.alignment() & Qt::AlignRight);
        QVERIFY(number.alignment() & Qt::AlignAbsolute);
        window.setLayoutDirection(Qt::LeftToRight);
        QVERIFY(number.alignment() & Qt::AlignLeft);
    }

    void mixedTextsReadInTheWindowsDirection_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isMarked");
        QTest::newRow("Latin and Arabic") << u"-67 dBm، 4 من 5"_s << true;
        QTest::newRow("a number stays as it is") << u"+491701234567"_s << false;
        QTest::newRow("Arabic alone reads right") << u"خدمة كاملة"_s << false;
    }

    void mixedTextsReadInTheWindowsDirection()
    {
        QFETCH(const QString, text);
        QCOMPARE(inLayoutDirection(text), text);
        QApplication::setLayoutDirection(Qt::RightToLeft);
        QTEST(inLayoutDirection(text) == QChar(0x200F) + text, "isMarked");
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void aLongTextGivesWayAndStaysReadable()
    {
        ElidedLabel label(TextRole::Text);
        const QString name = u"An operator's name that is far too long for its place"_s;
        label.setFullText(name);
        label.resize(80, 20);
        label.show();
        QVERIFY(label.text().endsWith(u'…'));
        QCOMPARE(label.toolTip(), plainToolTip(name));
        QCOMPARE(label.accessibleName(), name);
        label.resize(label.sizeHint());
        QCOMPARE(label.text(), name);
        QVERIFY(label.toolTip().isEmpty());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestCdeStyle)
#include "tst_cdestyle.moc"
