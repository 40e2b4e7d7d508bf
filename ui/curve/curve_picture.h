#pragma once
// Picture1: the schematic drawn behind the curve window's fields. It names what each
// field is, so the window can be filled in without a manual.

#include <QPointer>
#include <QWidget>

class QLabel;

namespace gw {

class CurvePicture : public QWidget {
    Q_OBJECT

public:
    explicit CurvePicture(QWidget* parent = nullptr);

    // The sight-distance kind label: "S.D." is drawn in its place while it is empty.
    void SetKindLabel(QLabel* label);
    void SetMetric(bool metric);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointer<QLabel> m_kindLabel;
    bool m_metric = true;
};

}  // namespace gw
