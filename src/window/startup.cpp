// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/startup.h"

#include "shell/commoncfg.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QScreen>
#include <QTranslator>
#include <QWidget>
#include <memory>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

/// Hands its window the wish to be closed, and sees whether it was granted.
class MainWidget : public QObject
{
public:
    explicit MainWidget(QWidget *window) : QObject(window) { window->installEventFilter(this); }

    bool eventFilter(QObject *window, QEvent *event) override
    {
        if (event->type() != QEvent::Close)
            return false;
        window->event(event);
        if (event->isAccepted())
            QCoreApplication::quit();
        return true;
    }
};

QString chosenLanguage()
{
    const QString section = u"function"_s;
    const QString key = u"selected-language"_s;
    QString language = cmcfg.getValue(section, key);
    if (language.isEmpty()) {
        language = u"English"_s;
        cmcfg.setValue(section, key, language);
    }
    return language;
}

/// Hands the translator to the application, for its life.
void install(std::unique_ptr<QTranslator> translator)
{
    QCoreApplication::installTranslator(translator.get());
    translator.release()->setParent(qApp);
}

/// The texts of the toolkit's own buttons and dialogs.
void installToolkitTranslation(const QString &languageCode)
{
    auto translator = std::make_unique<QTranslator>();
    if (!languageCode.isEmpty() &&
        translator->load(u"qtbase_"_s + languageCode, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        install(std::move(translator));
}

/// Names of months and forms of numbers in the language of the texts. Where that is the desktop's language,
/// too, the person's own country decides further.
void adoptLocale(const QString &languageCode)
{
    const QLocale locale(languageCode);
    if (!languageCode.isEmpty() && locale.language() != QLocale::system().language())
        QLocale::setDefault(locale);
}

Qt::LayoutDirection layoutDirection()
{
    //: Translate as "RTL" where the language runs from right to left, else as "LTR".
    const QString direction = QCoreApplication::translate("QGuiApplication", "QT_LAYOUT_DIRECTION");
    const bool flushRight = cmcfg.getNumber(u"setting"_s, u"flushright_enable"_s) != 0;
    return flushRight || direction == "RTL"_L1 ? Qt::RightToLeft : Qt::LeftToRight;
}

} // namespace

void installDefaultFont()
{
    const QString family = cmcfg.getValue(u"fontsetting"_s, u"setwindow_button_fontname"_s);
    if (!family.isEmpty())
        QApplication::setFont(QFont(family));
}

void installTranslation()
{
    auto translator = std::make_unique<QTranslator>();
    const QString folder = QDir::currentPath() + u"/Language"_s;
    if (translator->load(chosenLanguage() + u".qm"_s, folder)) {
        installToolkitTranslation(translator->language());
        adoptLocale(translator->language());
    }
    install(std::move(translator));
    QApplication::setLayoutDirection(layoutDirection());
}

void centre(QWidget *window)
{
    const QRect desktop = QGuiApplication::primaryScreen()->geometry();
    const QSize frame = window->frameGeometry().size();
    window->move(desktop.x() + (desktop.width() - frame.width()) / 2,
                 desktop.y() + (desktop.height() - frame.height()) / 2);
}

void makeMainWidget(QWidget *window)
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
    new MainWidget(window);
}

} // namespace corva
