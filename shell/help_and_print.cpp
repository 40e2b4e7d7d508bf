// The Print and About entries of the main window.

#include "about_box.h"
#include "main_window.h"
#include "platform/platform.h"
#include "ui/common/leave_checks.h"
#include "commands/print_command.h"
#include "ui/curve/curve_window.h"

namespace gw {

void frmMain::mnuFilePrint_Click() {
    frmCrestCurve* curve = m_slots.AnyCurveWindowOpen() ? ActiveCurveWindow() : nullptr;
    if (!curve) return;
    const CurveSheet sheet = curve->GatherSheet();
    PrintCurveReport(m_platform, this, &sheet);
}

void frmMain::mnuHelpAbout_Click() {
    // Created afresh each time and gone once it has been answered; the modal showing
    // returns while the box still exists, so it must not delete itself on closing.
    frmAbout about(this);
    m_platform.ShowModal(about);
    ComeBack(*this);
}

}  // namespace gw
