// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/splash.h"

#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/globals.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

QDialog *splash = nullptr;

namespace
{

constexpr QSize splashSize(388, 246);
constexpr int margin = 28;
constexpr int lineGap = 4;
constexpr qreal smallestPoints = 6;
// They stand on the picture, which is the same under every skin.
constexpr QColor nameColor(0xFF, 0xFF, 0xFF);
constexpr QColor lineColor(0xC4, 0xD3, 0xD6);
constexpr QColor plainBackground(0x12, 0x17, 0x1C);

QString dots(int round)
{
    static const std::array patterns{QString(), u"."_s, u". ."_s, u". . ."_s, u". . . ."_s};
    return patterns.at(round % patterns.size());
}

QFont configuredFont()
{
    QFont font;
    const QString family = cmcfg.getValue(u"fontsetting"_s, u"splash_fontname"_s);
    const int points = cmcfg.getNumber(u"fontsetting"_s, u"splash_fontsize"_s);
    if (!family.isEmpty())
        font.setFamily(family);
    if (points > 0)
        font.setPointSize(points);
    font.setWeight(QFont::Bold);
    return font;
}

QString initializing()
{
    return corva::SplashDialog::tr("Initializing");
}

} // namespace

namespace corva
{

SplashDialog::SplashDialog(const QString &softwareVersion)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint),
      m_picture(basePath + u"/res/startingWindow.jpg"_s), m_wantedFont(configuredFont())
{
    setObjectName(u"edition"_s);
    setWindowTitle(comcfg.softwareName);
    setFixedSize(splashSize);
    setFont(m_wantedFont);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(lineGap);
    layout->addStretch();
    m_name = addLine("name");
    m_softwareVersion = addLine("softversion");
    m_firmwareVersion = addLine("firmversion");
    m_activity = addLine("init");

    QPalette palette = m_name->palette();
    palette.setColor(QPalette::WindowText, nameColor);
    m_name->setPalette(palette);
    m_name->setText(comcfg.softwareName);
    m_softwareVersion->setText(tr("Software version PC:") + softwareVersion);
    setLine(m_activity, initializing() + u"..."_s);
}

QLabel *SplashDialog::addLine(const char *name)
{
    auto *line = new QLabel(this);
    line->setObjectName(QLatin1StringView(name));
    line->setTextFormat(Qt::PlainText);
    // By the layout: a label would go by its own text, and a Latin name lie apart from its Arabic neighbours.
    line->setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute |
                       (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
    QPalette palette = line->palette();
    palette.setColor(QPalette::WindowText, lineColor);
    line->setPalette(palette);
    layout()->addWidget(line);
    return line;
}

void SplashDialog::setLine(QLabel *line, const QString &text)
{
    line->setText(text);
    shrinkToFit();
}

void SplashDialog::shrinkToFit()
{
    // The longest dots count even while they are not shown, so that the text does not breathe with them.
    const QStringList texts{m_name->text(), m_softwareVersion->text(), m_firmwareVersion->text(),
                            initializing() + dots(4)};
    const qreal room = splashSize.width() - 2 * margin;
    const auto isTooWide = [&](const QFont &candidate) {
        const QFontMetricsF metrics(candidate);
        return std::any_of(texts.begin(), texts.end(),
                           [&](const QString &text) { return metrics.horizontalAdvance(text) > room; });
    };
    const auto isTooHigh = [&](const QFont &candidate) {
        const qreal lines = QFontMetricsF(candidate).height() * qreal(texts.size());
        return lines + lineGap * qreal(texts.size() - 1) > splashSize.height() - 2.0 * margin;
    };

    QFont fitting = m_wantedFont;
    qreal points = fitting.pointSizeF() > 0 ? fitting.pointSizeF() : QFontInfo(fitting).pointSizeF();
    while (points > smallestPoints && (isTooWide(fitting) || isTooHigh(fitting))) {
        points -= 0.5;
        fitting.setPointSizeF(points);
    }
    if (fitting != font())
        setFont(fitting);
}

void SplashDialog::setFirmwareVersion(const QString &version)
{
    setLine(m_firmwareVersion, tr("Firmware Version:") + version);
}

void SplashDialog::setRound(int round)
{
    setLine(m_activity, initializing() + dots(round));
}

void SplashDialog::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), plainBackground);
    painter.drawPixmap(rect(), m_picture);
}

void SplashDialog::keyPressEvent(QKeyEvent *event)
{
    event->accept();
}

SplashWait configuredSplashWait()
{
    SplashWait wait;
    wait.showFirmware = cmcfg.getNumber(u"function"_s, u"splash_firmversion_enabled"_s) == 1;
    wait.limit = cmcfg.getNumber(u"network_dialer_setting"_s, u"splash_timer"_s);
    wait.round = [] {
        // The second goes by with events handled, so that the picture is drawn and the card's answers come
        // in.
        QEventLoop second;
        QTimer timer;
        timer.setSingleShot(true);
        timer.setTimerType(Qt::PreciseTimer); // a coarse one may be early
        QObject::connect(&timer, &QTimer::timeout, &second, &QEventLoop::quit);
        timer.start(1000);
        second.exec();
        QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
    };
    return wait;
}

void waitForCard(SplashDialog &dialog, const SplashWait &wait)
{
    QString firmware;
    for (int i = 0; i <= std::max(wait.limit, 0) && firmware.isEmpty(); ++i) {
        wait.round();
        if (wait.showFirmware) {
            firmware = wait.firmwareVersion();
            dialog.setFirmwareVersion(firmware);
        } else if (wait.modemReady()) {
            break;
        } else {
            dialog.setRound(i);
        }
    }
}

} // namespace corva
