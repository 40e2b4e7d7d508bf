#pragma once
// dlgAuto: asks how to lay the elevation stations out, by a number of points
// from PVC to PVT or by a beginning station and an increment. One dialog serves
// every elevations window; its answer is read after it hides. It has one field for
// each row of the dialog's table.

#include <QDialog>
#include <string_view>
#include <utility>
#include <vector>

#include "core/auto_stationing.h"

class QLineEdit;
class QRadioButton;

namespace gw {

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

    // The field of that name; any other name throws.
    QLineEdit* Field(std::string_view name) const;

protected:
    void showEvent(QShowEvent* event) override;
    void reject() override;

private:
    void BuildControls();
    QLineEdit* ControlOf(const AutoStationField& field) const;
    void Scatter();
    void Gather();

    Platform& m_platform;
    AutoStationing m_state;
    ElevationTable m_copies;

    std::vector<std::pair<const AutoStationField*, QLineEdit*>> m_fields;  // in table order
    QRadioButton* m_optIncrements = nullptr;
    QRadioButton* m_optSpacing = nullptr;
};

}  // namespace gw
