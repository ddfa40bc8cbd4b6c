// SPDX-License-Identifier: GPL-3.0-or-later
// The style is known to the toolkit by its name through a plugin that is linked in, so that
// QStyleFactory::create("cde") works as it does for the toolkit's own styles.
#include "widgets/cdestyle.h"
#include "widgets/focusring.h"

#include <QApplication>
#include <QStylePlugin>
#include <QtPlugin>

using namespace Qt::StringLiterals;

class CdeStylePlugin final : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "cdestyle.json")

public:
    QStyle *create(const QString &key) override
    {
        return key.compare(u"cde"_s, Qt::CaseInsensitive) == 0 ? new CdeStyle : nullptr;
    }
};

#include "cdestyleplugin.moc"

Q_IMPORT_PLUGIN(CdeStylePlugin)

namespace corva
{

void installCdeStyle()
{
    QApplication::setStyle(u"cde"_s);
    QApplication::setPalette(QApplication::style()->standardPalette());
    new FocusRing(qApp);
}

} // namespace corva
