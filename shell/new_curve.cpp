// New curve: the units dialog, a window slot and an empty curve window.

#include <QMdiArea>
#include <QMdiSubWindow>

#include "core/stations.h"
#include "core/titles.h"
#include "main_window.h"
#include "platform/platform.h"
#include "ui/common/leave_checks.h"
#include "ui/curve/curve_window.h"
#include "units_dialog.h"

namespace gw {

frmInformation& frmMain::UnitsDialog() {
    if (!m_units) m_units = new frmInformation(this);
    return *m_units;
}

void frmMain::mnuVerticalCrest_Click() {
    frmInformation& units = UnitsDialog();
    m_platform.ShowModal(units);
    ComeBack(*this);
    if (units.Tag().isEmpty()) return;
    m_platform.SetBusyCursor(false);

    const int slot = m_slots.AllocateWindowSlot();
    m_slots.State(slot).changed = false;
    frmCrestCurve* curve = OpenCurveWindow(slot);
    curve->setWindowTitle(QString::fromStdString(UntitledTitle(units.MetricOn())));
}

frmCrestCurve* frmMain::OpenCurveWindow(int slot) {
    // The window takes its units from the units dialog as it was last left; loading
    // it empties it and the slot's elevations.
    const bool metric = UnitsDialog().MetricOn();
    auto* curve = new frmCrestCurve(m_slots, slot, QString::fromUtf8(metric ? kMetric.data() : kEnglish.data()),
                                    m_platform);
    AddCurveWindow(curve)->show();
    return curve;
}

QMdiSubWindow* frmMain::AddCurveWindow(frmCrestCurve* window) {
    // A fixed single border: a close box but no minimise or maximise button.
    const Qt::WindowFlags flags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    QMdiSubWindow* sub = m_mdi->addSubWindow(window, flags);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->adjustSize();
    sub->setFixedSize(sub->size());
    return sub;
}

}  // namespace gw
