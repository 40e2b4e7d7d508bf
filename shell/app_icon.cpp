#include "shell/app_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace gw {

QIcon AppIcon() {
    QIcon icon;
    for (int size : {16, 32, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter p(&pixmap);
        p.setRenderHint(QPainter::Antialiasing);
        p.scale(size / 32.0, size / 32.0);
        p.setBrush(QColor(250, 250, 245));
        p.setPen(QPen(QColor(90, 90, 90), 1.5));
        p.drawRoundedRect(QRectF(1, 1, 30, 30), 5, 5);
        p.setPen(QPen(QColor(130, 130, 130), 1.5, Qt::DashLine));
        p.drawPolyline(QPolygonF({QPointF(4, 26), QPointF(16, 6), QPointF(28, 22)}));
        QPainterPath curve(QPointF(6, 23));
        curve.quadTo(QPointF(16, 6), QPointF(26, 19));
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(20, 70, 160), 3, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(curve);
        icon.addPixmap(pixmap);
    }
    return icon;
}

}  // namespace gw
