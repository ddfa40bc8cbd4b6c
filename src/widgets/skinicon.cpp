// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/skinicon.h"

#include "shell/globals.h"
#include "shell/logging.h"

#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// The drawings are a few hundred bytes each and read once.
const QByteArray &drawing(const QString &name)
{
    static QHash<QString, QByteArray> drawings;
    const auto known = drawings.constFind(name);
    if (known != drawings.constEnd())
        return *known;
    QFile file(basePath + u"/res/icons/"_s + name + u".svg"_s);
    QByteArray content;
    if (file.open(QIODevice::ReadOnly))
        content = file.readAll();
    else
        qCWarning(lcWindow).noquote() << logTime() << "cannot read the icon" << file.fileName();
    return *drawings.insert(name, content);
}

QPixmap render(const QString &name, const QColor &color, QSize deviceSize)
{
    const QString key = u"corva-icon/%1/%2/%3x%4"_s.arg(name, color.name(QColor::HexArgb))
                            .arg(deviceSize.width())
                            .arg(deviceSize.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(deviceSize);
    pixmap.fill(Qt::transparent);
    QByteArray svg = drawing(name);
    if (!svg.isEmpty()) {
        svg.replace("currentColor", color.name().toLatin1());
        QSvgRenderer renderer(svg);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        QPainter painter(&pixmap);
        renderer.render(&painter);
    }
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

class SkinIconEngine final : public QIconEngine
{
public:
    SkinIconEngine(QString name, SkinRole role) : m_name(std::move(name)), m_role(role) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, render(m_name, color(mode), rect.size() * ratio));
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal) override
    {
        return render(m_name, color(mode), size);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        return render(m_name, color(mode), size);
    }

    QIconEngine *clone() const override { return new SkinIconEngine(m_name, m_role); }
    QString key() const override { return u"corva"_s; }
    bool isNull() override { return drawing(m_name).isEmpty(); }

private:
    QColor color(QIcon::Mode mode) const
    {
        return skinColor(mode == QIcon::Disabled ? SkinRole::DisabledText : m_role);
    }

    QString m_name;
    SkinRole m_role;
};

} // namespace

QIcon skinIcon(const QString &name, SkinRole role)
{
    return QIcon(new SkinIconEngine(name, role));
}

QPixmap skinPixmap(const QString &name, const QColor &color, int size, qreal devicePixelRatio)
{
    QPixmap pixmap = render(name, color, QSize(size, size) * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace corva
