// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

const QString folder = QStringLiteral(CORVA_SOURCE_DIR "/Language");

/// The places of values in the text ("%1", "%n"), sorted.
QStringList placesIn(const QString &text)
{
    static const QRegularExpression place(u"%L?[0-9n]+"_s);
    QStringList places;
    for (const QRegularExpressionMatch &match : place.globalMatch(text))
        places += match.captured();
    places.removeDuplicates();
    places.sort();
    return places;
}

bool hasMnemonic(QString text)
{
    static const QRegularExpression mnemonic(u"&[^\\s&]"_s);
    return text.remove(u"&&"_s).contains(mnemonic);
}

/// One plain translation, or one for each plural form.
QStringList translationsOf(const QDomElement &message)
{
    const QDomElement translation = message.firstChildElement(u"translation"_s);
    const QDomNodeList plurals = translation.elementsByTagName(u"numerusform"_s);
    QStringList forms;
    for (int i = 0; i < plurals.size(); ++i)
        forms += plurals.at(i).toElement().text();
    if (forms.isEmpty())
        forms += translation.text();
    return forms;
}

QString faultOf(const QString &source, const QString &translation)
{
    if (translation.isEmpty()) // not translated yet, which is another check's matter
        return {};
    QStringList wanted = placesIn(source);
    QStringList found = placesIn(translation);
    // A plural form for one, two or none may do without the number.
    wanted.removeAll(u"%n"_s);
    found.removeAll(u"%n"_s);
    if (found != wanted)
        return u"other places for values"_s;
    if (hasMnemonic(source) != hasMnemonic(translation))
        return u"a mnemonic is missing, or too many"_s;
    if (source.contains(u'<') != translation.contains(u'<'))
        return u"markup"_s;
    return {};
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsFitTheirSources()
    {
        for (const QString &file : QDir(folder).entryList({u"*.ts"_s})) {
            QDomDocument document;
            QVERIFY2(document.setContent(contentOf(folder + u'/' + file)), qPrintable(file));
            const QDomNodeList messages = document.elementsByTagName(u"message"_s);
            for (int i = 0; i < messages.size(); ++i) {
                const QDomElement message = messages.at(i).toElement();
                const QString source = message.firstChildElement(u"source"_s).text();
                for (const QString &translation : translationsOf(message)) {
                    const QString fault = faultOf(source, translation);
                    QVERIFY2(fault.isEmpty(),
                             qPrintable(u"%1: %2: %3 / %4"_s.arg(file, fault, source, translation)));
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestTranslations)
#include "tst_translations.moc"
