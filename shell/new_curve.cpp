// New curve: the units dialog, a window slot and an empty curve window.

#include <QMdiArea>
#include <QMdiSubWindow>

#include "commands/file_commands.h"
#include "core/stations.h"
#include "core/titles.h"
#include "main_window.h"
#include "platform/platform.h"
#include "platform/texts.h"
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

    WindowSlot& slot = m_slots.AllocateWindowSlot();
    slot.changed = false;
    OpenCurveWindow(slot).setWindowTitle(QString::fromStdString(UntitledTitle(units.MetricOn())));
}

frmCrestCurve& frmMain::OpenCurveWindow(WindowSlot& slot) {
    // The window takes its units from the units dialog as it was last left; loading
    // it empties it and the slot's elevations.
    auto* curve = new frmCrestCurve(slot, ToQString(UnitSystemName(UnitsDialog().MetricOn())), *m_files, m_platform);
    AddCurveWindow(*curve)->show();
    return *curve;
}

QMdiSubWindow* frmMain::AddCurveWindow(frmCrestCurve& window) {
    // A fixed single border: a close box but no minimise or maximise button.
    const Qt::WindowFlags flags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    QMdiSubWindow* sub = m_mdi->addSubWindow(&window, flags);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->adjustSize();
    sub->setFixedSize(sub->size());
    return sub;
}

}  // namespace gw
