#include "PickerButton.h"

#include <QAction>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

namespace {

QIcon ellipsisIcon()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setBrush(Qt::black);
    painter.setPen(Qt::NoPen);
    for (int x : {3, 7, 11})
        painter.drawRect(x, 10, 2, 2);
    return QIcon(picture);
}

} // namespace

QAction *addPickerButton(QLineEdit *edit, const QString &objectName)
{
    QAction *action = edit->addAction(ellipsisIcon(), QLineEdit::TrailingPosition);
    action->setObjectName(objectName);
    action->setToolTip(QStringLiteral("Wybierz z listy"));
    return action;
}
