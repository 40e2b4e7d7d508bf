#pragma once
// frmCrestCurve: the document window of one vertical curve. It holds the curve's
// texts in its fields, one per row of the curve window's table; every command
// gathers a CurveSheet from them, lets the core work on it and puts the texts back.

#include <QString>
#include <QWidget>
#include <string_view>
#include <utility>
#include <vector>

#include "core/curve_fields.h"
#include "core/curve_sheet.h"
#include "core/refusal.h"

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace gw {

class CurvePicture;
class CurveSaver;
class Platform;
struct WindowSlot;

class frmCrestCurve : public QWidget {
    Q_OBJECT

public:
    // Form_Load: takes its slot and the unit system ("Metric" or "English"), enters
    // the PVI mode and empties itself and the slot's elevations. `saver` saves the
    // curve when the close question is answered Yes.
    frmCrestCurve(WindowSlot& slot, const QString& unitSystem, CurveSaver& saver, Platform& platform,
                  QWidget* parent = nullptr);

    int Slot() const;
    QString Tag() const { return QString::number(Slot()); }
    QString UnitSystem() const;
    // The text field of that name; any other name throws.
    QLineEdit* Field(std::string_view name) const;

    CurveSheet GatherSheet() const;
    void ScatterSheet(const CurveSheet& sheet);
    // A curve read from a file (the core has applied the load rules): its mode laid
    // out, its unit label, option states and texts put in place, unchanged.
    void ShowStoredCurve(const CurveSheet& sheet);

    void optPVI_Click();
    void optPVCPVT_Click();
    void cmdCalcP_Click();
    void cmdClear_Click();
    void cmdMoreTOS_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildControls();
    void WatchLeaveChecks();
    void ApplyMode(bool pvi);
    QLineEdit* FirstInput() const;
    void Report(const Refusal& refusal);
    // The control made for a row of the table.
    template <class Widget>
    Widget* ControlOf(const CurveField& field) const;

    // Form_KeyPress and the Enter key; true when the key is discarded.
    bool Form_KeyPress(QLineEdit* field, QKeyEvent* key);
    // The close question; sets `cancel` to keep the window open.
    void Form_QueryUnload(bool& cancel);
    void Form_Unload();

    WindowSlot& m_slot;
    CurveSaver& m_saver;
    Platform& m_platform;

    std::vector<std::pair<const CurveField*, QWidget*>> m_controls;  // in table order
    QRadioButton* m_optPVI = nullptr;
    QRadioButton* m_optPVCPVT = nullptr;
    QLabel* m_lblSDL = nullptr;
    QLabel* m_lblMorF = nullptr;
    QPushButton* m_cmdCalcP = nullptr;
    QPushButton* m_cmdClear = nullptr;
    QPushButton* m_cmdMoreTOS = nullptr;
    CurvePicture* m_picture = nullptr;
};

}  // namespace gw
