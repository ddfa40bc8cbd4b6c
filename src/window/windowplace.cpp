// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/windowplace.h"

#include <QStringList>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

qint64 area(const QRect &rect)
{
    return rect.isValid() ? qint64(rect.width()) * rect.height() : 0;
}

} // namespace

std::optional<QRect> placeFromText(const QString &text)
{
    const QStringList parts = text.split(u',');
    std::array<int, 4> numbers{};
    if (parts.size() != qsizetype(numbers.size()))
        return {};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool isNumber = false;
        numbers[i] = parts.at(qsizetype(i)).toInt(&isNumber);
        if (!isNumber || numbers[i] < -100000 || numbers[i] > 100000)
            return {};
    }
    const QRect place(numbers[0], numbers[1], numbers[2], numbers[3]);
    return place.isValid() ? std::optional(place) : std::nullopt;
}

QString placeToText(const QRect &place)
{
    return u"%1,%2,%3,%4"_s.arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
}

std::optional<QRect> fitPlace(const QRect &place, const QList<QRect> &screens, const QSize &smallest)
{
    const auto shown = [&](const QRect &screen) { return area(screen.intersected(place)); };
    const auto screen =
        std::max_element(screens.begin(), screens.end(),
                         [&](const QRect &one, const QRect &other) { return shown(one) < shown(other); });
    if (screen == screens.end() || shown(*screen) == 0)
        return {};
    QRect fitted(place.topLeft(), place.size().expandedTo(smallest).boundedTo(screen->size()));
    fitted.moveLeft(std::clamp(fitted.left(), screen->left(), screen->right() - fitted.width() + 1));
    fitted.moveTop(std::clamp(fitted.top(), screen->top(), screen->bottom() - fitted.height() + 1));
    return fitted;
}

} // namespace corva
