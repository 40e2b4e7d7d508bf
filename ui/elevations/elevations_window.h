#pragma once
// frmTS: the modal window that lists twenty stations along a curve with their
// elevations. It has one field for each row of the elevations window's table (twenty
// for a column), and they hold the curve's rows and offsets while it is hidden.

#include <QDialog>
#include <functional>
#include <string_view>
#include <vector>

#include "core/curve_sheet.h"
#include "core/elevation_fields.h"
#include "core/refusal.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace gw {

class AutoStationDialog;
class LeaveChecks;
class Platform;

class ElevationsWindow : public QDialog {
    Q_OBJECT

public:
    // `markChanged` marks the curve changed, as typing in the window and its
    // commands do.
    ElevationsWindow(Platform& platform, AutoStationDialog& autoStation, std::function<void()> markChanged,
                     QWidget* parent = nullptr);

    // What the fields hold, and the texts a command of the curve window puts there.
    ElevationTable Table() const;
    void ShowTable(const ElevationTable& table);
    // Calculate Elevations: the window shown modally over the curve it belongs to,
    // which cannot change while it is shown.
    void ShowFor(const CurveSheet& curve);

    // Form_Activate: runs every time the window is shown.
    void Form_Activate();
    void cmdCalculateTOS_Click();
    void cmdOK_Click();
    void cmdClear_Click();
    void cmdAutoStation_Click();

    // The field of its own, or a column's field in a row, of that name; any other
    // name or row throws.
    QLineEdit* Field(std::string_view name) const;
    QLineEdit* RowField(std::string_view name, int row) const;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A field of the table, in a row for a column.
    struct Control {
        const ElevationField* field;
        int row;
        QLineEdit* edit;
    };

    void BuildControls();
    void WatchRowChecks();
    void SetUnitLabels(const CurveSheet& curve);
    QLineEdit* ControlOf(const ElevationField& field, int row) const;
    QLineEdit* FirstStation() const;

    // One command: the curve and these fields in, the core's result out.
    CurveSheet Gather() const;
    void Scatter(const CurveSheet& sheet);
    void Report(const Outcome& outcome);

    Platform& m_platform;
    AutoStationDialog& m_autoStation;
    std::function<void()> m_markChanged;
    CurveSheet m_curve;  // the curve's fields, as the window was shown for them
    LeaveChecks* m_checks = nullptr;

    std::vector<Control> m_controls;  // in table order, a column row by row
    QLabel* m_lblvoffsetm = nullptr;
    QLabel* m_lblhoffsetm = nullptr;

    bool m_bCalcOK = false;
};

}  // namespace gw
