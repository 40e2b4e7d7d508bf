#pragma once
// dlgAuto: asks how to lay the elevation stations out, by a number of points
// from PVC to PVT or by a beginning station and an increment. One dialog serves
// every elevations window; its answer is read after it hides.

#include <QDialog>
#include <string_view>

#include "core/auto_stationing.h"

class QLineEdit;
class QPushButton;
class QRadioButton;

namespace gw {

class LeaveChecks;
class Platform;

class AutoStationDialog : public QDialog {
    Q_OBJECT

public:
    explicit AutoStationDialog(Platform& platform, QWidget* parent = nullptr);

    // The elevations window's station copies and the curve's unit system, which
    // the Spacing mode proposes and checks against.
    void Prepare(const CurveSheet& sheet);
    const AutoStationing& Answer() const { return m_state; }

    void optIncrements_Click();
    void optSpacing_Click();
    void OKButton_Click();
    void CancelButton_Click();

    QLineEdit* Field(std::string_view name) const;

protected:
    void showEvent(QShowEvent* event) override;
    void reject() override;

private:
    void BuildControls();
    void Scatter();
    void Gather();

    Platform& m_platform;
    LeaveChecks* m_checks = nullptr;
    AutoStationing m_state;
    ElevationTable m_copies;

    QRadioButton* m_optIncrements = nullptr;
    QRadioButton* m_optSpacing = nullptr;
    QLineEdit* m_txtPoints = nullptr;
    QLineEdit* m_txtBeginSTA = nullptr;
    QLineEdit* m_txtBeginSTAM = nullptr;
    QLineEdit* m_txtIncSTA = nullptr;
    QLineEdit* m_txtIncSTAM = nullptr;
    QPushButton* m_OKButton = nullptr;
    QPushButton* m_CancelButton = nullptr;
};

}  // namespace gw
