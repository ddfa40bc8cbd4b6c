// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/messagequeue.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using corva::MessageQueue;

class TestMessageQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->show();
        m_queue = new MessageQueue(m_window.get());
    }

    void oneAtATimeAndNothingTwice()
    {
        m_queue->tell(u"<b>first</b>"_s);
        m_queue->tell(u"second"_s);
        m_queue->tell(u"<b>first</b>"_s);
        m_queue->tell(u"second"_s);
        QCOMPARE(boxes().size(), 1);
        QCOMPARE(boxes().first()->text(), u"<b>first</b>"_s);
        QCOMPARE(boxes().first()->textFormat(), Qt::PlainText);
        boxes().first()->button(QMessageBox::Ok)->click();
        QTRY_COMPARE(boxes().size(), 1);
        QCOMPARE(boxes().first()->text(), u"second"_s);
        boxes().first()->close();
        QTRY_VERIFY(boxes().isEmpty());
    }

    void noBoxOverAnotherDialog()
    {
        QDialog other(m_window.get());
        other.open();
        m_queue->tell(u"later"_s);
        m_queue->tell(u"later still"_s);
        QCoreApplication::processEvents();
        QVERIFY(boxes().isEmpty());
        other.accept();
        QTRY_COMPARE(boxes().size(), 1);
        QCOMPARE(boxes().first()->text(), u"later"_s);
    }

    void whatIsOverIsNotAskedAnyMore()
    {
        m_queue->ask(u"Go on?"_s, [] { QFAIL("nobody said so"); });
        m_queue->ask(u"Really?"_s, [] { QFAIL("nobody said so"); });
        m_queue->tell(u"after"_s);
        m_queue->withdraw(u"Really?"_s);
        m_queue->withdraw(u"Go on?"_s);
        QTRY_COMPARE(boxes().size(), 1);
        QCOMPARE(boxes().first()->text(), u"after"_s);
    }

    void aDialogThatGoesWithoutAWordHoldsNothingUp()
    {
        auto other = std::make_unique<QDialog>(m_window.get());
        other->open();
        m_queue->tell(u"later"_s);
        other.reset();
        QTRY_COMPARE(boxes().size(), 1);
    }

    void questions_data()
    {
        QTest::addColumn<QString>("verb");
        QTest::addColumn<QString>("pressed");
        QTest::addColumn<bool>("goesOn");
        QTest::newRow("yes") << QString() << u"&Yes"_s << true;
        QTest::newRow("no") << QString() << u"&No"_s << false;
        QTest::newRow("a verb") << u"&Delete"_s << u"&Delete"_s << true;
        QTest::newRow("not that verb") << u"&Delete"_s << u"Cancel"_s << false;
        QTest::newRow("Esc") << u"&Delete"_s << QString() << false;
    }

    void questions()
    {
        QFETCH(const QString, verb);
        QFETCH(const QString, pressed);
        bool goesOn = false;
        const auto yes = [&] { goesOn = true; };
        if (verb.isEmpty())
            m_queue->ask(u"Really?"_s, yes);
        else
            m_queue->ask(u"Really?"_s, verb, yes);
        QMessageBox *box = boxes().first();
        QVERIFY(!goesOn);
        if (pressed.isEmpty())
            QTest::keyClick(box, Qt::Key_Escape);
        const auto buttons = box->buttons();
        for (QAbstractButton *button : buttons)
            if (button->text() == pressed)
                button->click();
        QTRY_VERIFY(boxes().isEmpty());
        QTEST(goesOn, "goesOn");
    }

private:
    QList<QMessageBox *> boxes() const
    {
        QList<QMessageBox *> shown = m_window->findChildren<QMessageBox *>();
        shown.removeIf([](const QMessageBox *box) { return !box->isVisible(); });
        return shown;
    }

    std::unique_ptr<QWidget> m_window;
    MessageQueue *m_queue = nullptr;
};

QTEST_MAIN(TestMessageQueue)
#include "tst_messagequeue.moc"
