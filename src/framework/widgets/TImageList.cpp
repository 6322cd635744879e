#include "TImageList.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

TImageList::TImageList(QSize size, QObject *parent) : QObject(parent), m_size(size)
{
}

int TImageList::add(const QIcon &icon)
{
    m_icons.append(icon);
    return count() - 1;
}

QIcon TImageList::icon(int index) const
{
    return index >= 0 && index < count() ? m_icons[index] : QIcon();
}

QIcon TImageList::sortMark(QSize size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal w = size.width();
    const qreal h = size.height();
    QPainterPath arrow;
    arrow.moveTo(w * 0.5, h * 0.25);
    arrow.lineTo(w * 0.8, h * 0.7);
    arrow.lineTo(w * 0.2, h * 0.7);
    arrow.closeSubpath();
    painter.fillPath(arrow, QColor(0x30, 0x50, 0x90));
    return QIcon(pixmap);
}
