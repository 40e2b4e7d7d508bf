#pragma once
// frmTS: the modal window that lists twenty stations along a curve with their
// elevations. Its texts are the slot's elevation table: loaded when it is shown,
// written back after every command and when it hides.

#include <QDialog>
#include <array>
#include <string_view>

#include "core/curve_sheet.h"
#include "core/refusal.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace gw {

class AutoStationDialog;
class ElevationsSlot;
class LeaveChecks;
class Platform;

class ElevationsWindow : public QDialog {
    Q_OBJECT

public:
    ElevationsWindow(ElevationsSlot& slot, Platform& platform, AutoStationDialog& autoStation,
                     QWidget* parent = nullptr);

    // Form_Activate: runs every time the window is shown.
    void Form_Activate();
    void cmdCalculateTOS_Click();
    void cmdOK_Click();
    void cmdClear_Click();
    void cmdAutoStation_Click();

    bool CalcOK() const { return m_bCalcOK; }
    QLineEdit* Field(std::string_view name) const;  // the single fields by control name
    QLineEdit* RowField(std::string_view name, int row) const;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildControls();
    QLineEdit* AddField(const char* name, int left, int top, int width);
    void WatchRowChecks();
    void SetUnitLabels(const CurveSheet& curve);

    // One command: the curve and these fields in, the core's result out.
    CurveSheet Gather() const;
    void Scatter(const CurveSheet& sheet);
    void Store();
    void Report(const Outcome& outcome);

    ElevationsSlot& m_slot;
    Platform& m_platform;
    AutoStationDialog& m_autoStation;
    LeaveChecks* m_checks = nullptr;

    QLineEdit* m_txtPVCSTA = nullptr;
    QLineEdit* m_txtPVCSTAM = nullptr;
    QLineEdit* m_txtPVTSTA = nullptr;
    QLineEdit* m_txtPVTSTAM = nullptr;
    QLineEdit* m_txtVOffset = nullptr;
    QLineEdit* m_txtHOffset = nullptr;
    QLineEdit* m_txtXSlope = nullptr;
    QLabel* m_lblvoffsetm = nullptr;
    QLabel* m_lblhoffsetm = nullptr;
    std::array<QLineEdit*, kRowCount> m_txtTOTSTA1{};
    std::array<QLineEdit*, kRowCount> m_txtTOTSTAM1{};
    std::array<QLineEdit*, kRowCount> m_txtTotalTopSlab1{};
    QPushButton* m_cmdClear = nullptr;
    QPushButton* m_cmdAutoStation = nullptr;
    QPushButton* m_cmdCalculateTOS = nullptr;
    QPushButton* m_cmdOK = nullptr;

    bool m_bCalcOK = false;
};

}  // namespace gw
