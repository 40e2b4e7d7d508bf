#pragma once
// sbStatusBar: a "Status" text panel and the live date and time, from the platform clock.

#include <QStatusBar>

class QLabel;
class QTimer;

namespace gw {

class Platform;

class MainStatusBar : public QStatusBar {
    Q_OBJECT

public:
    MainStatusBar(Platform& platform, QWidget* parent = nullptr);

    QString StatusText() const;
    QString DateText() const;
    QString TimeText() const;
    // Reads the clock again; runs every second by itself.
    void Refresh();

private:
    Platform& m_platform;
    QLabel* m_status = nullptr;
    QLabel* m_date = nullptr;
    QLabel* m_time = nullptr;
    QTimer* m_timer = nullptr;
};

}  // namespace gw
