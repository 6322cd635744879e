#include "ClosedOrderIcon.h"

#include <QPainter>
#include <QPixmap>

QIcon closedOrderIcon(QSize size)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal w = size.width();
    const qreal h = size.height();
    painter.setPen(QPen(QColor(0x55, 0x55, 0x55), w / 10.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(w * 0.3, h * 0.1, w * 0.4, h * 0.5), 0, 180 * 16);
    painter.drawLine(QPointF(w * 0.3, h * 0.35), QPointF(w * 0.3, h * 0.45));
    painter.drawLine(QPointF(w * 0.7, h * 0.35), QPointF(w * 0.7, h * 0.45));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xC0, 0x8A, 0x1E));
    painter.drawRoundedRect(QRectF(w * 0.2, h * 0.45, w * 0.6, h * 0.45), w / 12.0, h / 12.0);
    painter.setBrush(QColor(0x40, 0x2A, 0x05));
    painter.drawEllipse(QPointF(w * 0.5, h * 0.65), w * 0.07, h * 0.07);
    return QIcon(picture);
}
