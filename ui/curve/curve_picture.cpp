#include "ui/curve/curve_picture.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>

namespace gw {
namespace {

// Everything below is in the curve window's coordinates, so each label can be read
// against the places of the fields in core/curve_fields.cpp.
const QPointF kPVC(113, 222);
const QPointF kPVI(317, 104);
const QPointF kPVT(521, 196);
const qreal kDimensionY = 240;

const QColor kInk(40, 40, 40);
const QColor kCurveInk(20, 70, 160);
const QColor kTangentInk(130, 130, 130);
const QColor kHintInk(110, 110, 110);

QPointF OnCurve(qreal t) { return (1 - t) * (1 - t) * kPVC + 2 * t * (1 - t) * kPVI + t * t * kPVT; }

void Text(QPainter& p, const QRectF& box, const QString& text, int align = Qt::AlignRight | Qt::AlignVCenter) {
    p.drawText(box, align, text);
}

void Arrowhead(QPainter& p, const QPointF& tip, qreal dir) {
    QPolygonF head;
    head << tip << tip + QPointF(-7 * dir, -3) << tip + QPointF(-7 * dir, 3);
    p.drawPolygon(head);
}

void Dot(QPainter& p, const QPointF& at) { p.drawEllipse(at, 3, 3); }

}  // namespace

CurvePicture::CurvePicture(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void CurvePicture::SetKindLabel(QLabel* label) { m_kindLabel = label; }

void CurvePicture::SetMetric(bool metric) {
    m_metric = metric;
    update();
}

void CurvePicture::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), Qt::white);
    p.setPen(QColor(160, 160, 160));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    p.translate(-pos());

    QFont plain = font();
    QFont bold = plain;
    bold.setBold(true);
    QFont small = plain;
    small.setPixelSize(10);

    // The two tangents, run a little past the ends of the curve.
    p.setPen(QPen(kTangentInk, 1, Qt::DashLine));
    const QPointF in = (kPVI - kPVC) / 7.0;
    const QPointF out = (kPVT - kPVI) / 7.0;
    p.drawLine(kPVC - in, kPVI);
    p.drawLine(kPVI, kPVT + out);

    // The curve itself: a parabola is a quadratic Bezier on its tangents.
    QPainterPath curve(kPVC);
    curve.quadTo(kPVI, kPVT);
    p.setPen(QPen(kCurveInk, 2.5));
    p.setBrush(Qt::NoBrush);
    p.drawPath(curve);

    p.setPen(kInk);
    p.setBrush(kInk);
    Dot(p, kPVC);
    Dot(p, kPVI);
    Dot(p, kPVT);

    // PVI: a leader up to its elevation field, the station above it.
    p.setFont(bold);
    p.setPen(QPen(kTangentInk, 1, Qt::DotLine));
    p.drawLine(kPVI - QPointF(0, 4), QPointF(kPVI.x(), 77));
    p.setPen(kInk);
    Text(p, {190, 24, 86, 19}, QStringLiteral("PVI  Sta."));
    p.setFont(plain);
    Text(p, {190, 56, 86, 19}, QStringLiteral("Elevation"));
    Text(p, {313, 24, 23, 19}, QStringLiteral("+"), Qt::AlignCenter);

    // Grades on their tangents.
    p.setFont(bold);
    Text(p, {100, 128, 42, 19}, QStringLiteral("G1"));
    Text(p, {380, 128, 42, 19}, QStringLiteral("G2"));

    // Middle ordinate: PVI down to the middle of the curve.
    const QPointF middle = OnCurve(0.5);
    p.setPen(QPen(kInk, 1, Qt::DashLine));
    p.drawLine(kPVI + QPointF(0, 4), middle);
    p.setPen(kInk);
    p.setFont(small);
    Text(p, {262, 120, 50, 14}, QStringLiteral("M.O."));

    // Turning point: the high (or low) point of the curve.
    const QPointF turning = OnCurve(0.562);
    p.setBrush(Qt::white);
    p.drawEllipse(turning, 3, 3);
    Text(p, {turning.x() + 5, turning.y() - 18, 40, 14}, QStringLiteral("T.P."), Qt::AlignLeft | Qt::AlignVCenter);

    // Length of curve: a dimension line from PVC to PVT, broken by its field.
    p.setPen(QPen(kTangentInk, 1));
    p.drawLine(QPointF(kPVC.x(), kPVC.y() + 5), QPointF(kPVC.x(), kDimensionY + 6));
    p.drawLine(QPointF(kPVT.x(), kPVT.y() + 5), QPointF(kPVT.x(), kDimensionY + 6));
    p.setPen(kInk);
    p.drawLine(QPointF(kPVC.x(), kDimensionY), QPointF(276, kDimensionY));
    p.drawLine(QPointF(351, kDimensionY), QPointF(kPVT.x(), kDimensionY));
    p.setBrush(kInk);
    Arrowhead(p, {kPVC.x(), kDimensionY}, -1);
    Arrowhead(p, {kPVT.x(), kDimensionY}, 1);
    p.setFont(plain);
    Text(p, {236, 216, 155, 14}, QStringLiteral("Length of curve"), Qt::AlignCenter);

    // The two ends, each with its station and elevation underneath.
    p.setFont(bold);
    Text(p, {57, 233, 50, 16}, QStringLiteral("PVC"), Qt::AlignLeft | Qt::AlignVCenter);
    Text(p, {528, 233, 50, 16}, QStringLiteral("PVT"), Qt::AlignRight | Qt::AlignVCenter);
    p.setFont(plain);
    for (qreal left : {57.0, 465.0}) {
        Text(p, {left - 46, 255, 43, 19}, QStringLiteral("Sta."));
        Text(p, {left - 46, 284, 43, 19}, QStringLiteral("Elev."));
        Text(p, {left + 33, 255, 23, 19}, QStringLiteral("+"), Qt::AlignCenter);
    }

    // The results column.
    Text(p, {400, 25, 58, 19}, QStringLiteral("M.O."));
    if (m_kindLabel && m_kindLabel->text().isEmpty()) {
        p.setPen(kHintInk);
        Text(p, m_kindLabel->geometry(), QStringLiteral("S.D."), Qt::AlignLeft | Qt::AlignVCenter);
        p.setPen(kInk);
    }
    Text(p, {400, 79, 58, 19}, QStringLiteral("T.P. Sta."));
    Text(p, {495, 79, 23, 19}, QStringLiteral("+"), Qt::AlignCenter);

    // What the boxes mean and which units they are in.
    p.setPen(kHintInk);
    p.setFont(small);
    Text(p, {19, 78, 110, 28},
         m_metric ? QStringLiteral("Metres\n1 station = 1000 m") : QStringLiteral("Feet\n1 station = 100 ft"),
         Qt::AlignLeft | Qt::AlignTop);
    Text(p, {172, 302, 290, 15}, QStringLiteral("White: known data  \u00b7  grey: results  \u00b7  Enter = Calc"),
         Qt::AlignCenter);
}

}  // namespace gw
