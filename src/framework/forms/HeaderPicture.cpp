#include "HeaderPicture.h"

#include <QLinearGradient>
#include <QPainter>

QPixmap headerPicture(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal s = size;
    QLinearGradient sky(0, 0, 0, s);
    sky.setColorAt(0, QColor(0x2b, 0x55, 0x97));
    sky.setColorAt(1, QColor(0x14, 0x2c, 0x55));
    painter.setBrush(sky);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(0, 0, s, s), s * 0.15, s * 0.15);

    painter.setBrush(QColor(0xf2, 0xf2, 0xf2));
    painter.drawRect(QRectF(s * 0.12, s * 0.30, s * 0.50, s * 0.34));   // load
    painter.setBrush(QColor(0xf5, 0xb7, 0x31));
    painter.drawRect(QRectF(s * 0.64, s * 0.40, s * 0.22, s * 0.24));   // cab
    painter.setBrush(QColor(0x9c, 0xc7, 0xf0));
    painter.drawRect(QRectF(s * 0.70, s * 0.44, s * 0.11, s * 0.09));   // window
    painter.setBrush(QColor(0x22, 0x22, 0x22));
    for (const qreal x : {0.24, 0.50, 0.76})
        painter.drawEllipse(QPointF(s * x, s * 0.70), s * 0.07, s * 0.07);
    return pixmap;
}
