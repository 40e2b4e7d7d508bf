#include "shell/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include "commands/file_commands.h"
#include "commands/print_command.h"
#include "commands/recent_files_menu.h"
#include "core/stations.h"
#include "core/titles.h"
#include "platform/file_names.h"
#include "platform/platform.h"
#include "platform/texts.h"
#include "shell/about_box.h"
#include "shell/display_check.h"
#include "shell/frame_placement.h"
#include "shell/placement.h"
#include "shell/status_bar.h"
#include "shell/units_dialog.h"
#include "shell/window_arrangement.h"
#include "shell/window_list.h"
#include "ui/common/leave_checks.h"
#include "ui/common/on_screen.h"
#include "ui/curve/curve_window.h"

namespace gw {
namespace {

const char* const kSmallFontOnly = "Must use Windows Small Font to run Gradewise.";

const char* const kHomePage = "https://gradewise.org/";

}  // namespace

frmMain::frmMain(Platform& platform, QWidget* parent) : QMainWindow(parent), m_platform(platform), m_slots(platform) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(AppTitle());
    m_mdi = new QMdiArea(this);
    m_mdi->setObjectName(QStringLiteral("mdiArea"));
    m_mdi->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_mdi->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(m_mdi);
    m_menus = BuildMainMenus(*menuBar());
    m_status = new MainStatusBar(m_platform, this);
    setStatusBar(m_status);
    m_recent = std::make_unique<RecentFilesMenu>(m_platform.Settings(), m_menus.mnuRecentFile);
    m_files = std::make_unique<FileCommands>(*this, m_slots, m_platform, *m_recent, this);
    ConnectMenus();
    resize(1000, 700);
}

frmMain::~frmMain() = default;

void frmMain::ConnectMenus() {
    connect(m_menus.mnuOpen, &QAction::triggered, this, &frmMain::mnuOpen_Click);
    connect(m_menus.mnuSave, &QAction::triggered, this, &frmMain::mnuSave_Click);
    connect(m_menus.mnuSaveAs, &QAction::triggered, this, &frmMain::mnuSaveAs_Click);
    for (int i = 0; i < int(m_menus.mnuRecentFile.size()); ++i) {
        connect(m_menus.mnuRecentFile[size_t(i)], &QAction::triggered, this, [this, i] { mnuRecentFile_Click(i); });
    }
    connect(m_menus.mnuVerticalCrest, &QAction::triggered, this, &frmMain::mnuVerticalCrest_Click);
    connect(m_menus.mnuFileExit, &QAction::triggered, this, &frmMain::mnuFileExit_Click);
    connect(m_menus.mnuCloseAll, &QAction::triggered, this, &frmMain::mnuCloseAll_Click);
    connect(m_menus.mnuWindowCascade, &QAction::triggered, this, &frmMain::mnuWindowCascade_Click);
    connect(m_menus.mnuWindowTileHorizontal, &QAction::triggered, this, &frmMain::mnuWindowTileHorizontal_Click);
    connect(m_menus.mnuWindowTileVertical, &QAction::triggered, this, &frmMain::mnuWindowTileVertical_Click);
    connect(m_menus.mnuWindowArrangeIcons, &QAction::triggered, this, &frmMain::mnuWindowArrangeIcons_Click);
    connect(m_menus.mnuGradewise_web, &QAction::triggered, this, &frmMain::mnuGradewise_web_Click);
    connect(m_menus.mnuFilePrint, &QAction::triggered, this, &frmMain::mnuFilePrint_Click);
    connect(m_menus.mnuHelpAbout, &QAction::triggered, this, &frmMain::mnuHelpAbout_Click);
    connect(m_menus.mnuWindow, &QMenu::aboutToShow, this, [this] { RefreshWindowList(*m_menus.mnuWindow, *m_mdi); });
}

bool frmMain::MDIForm_Load() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen || !IsSmallFontDisplay(LogicalPixelsPerInch(*screen))) {
        ShowRefusal(m_platform, nullptr, QString::fromLatin1(kSmallFontOnly));
        return false;
    }
    // The stored placement goes with the showing, so the frame opens where it was
    // left rather than jumping there.
    RestorePlacement();
    show();
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    m_recent->UpdateRecentFileMenu();
    // Said once, over the shown frame: the store is then left alone for the rest of the run.
    if (const std::string& problem = m_platform.Settings().ReadProblem(); !problem.empty()) {
        WhenOnScreen(*this, [this, text = FileNameFromBytes(problem)] { ShowRefusal(m_platform, this, text); });
    }
    return true;
}

void frmMain::RestorePlacement() {
    m_restored = ReadPlacement(m_platform.Settings());
    PlaceFrame(*this, PlacementToPixels(m_restored));
}

frmInformation& frmMain::UnitsDialog() {
    if (!m_units) m_units = new frmInformation(this);
    return *m_units;
}

frmCrestCurve* frmMain::ActiveCurveWindow() const {
    QMdiSubWindow* sub = m_mdi->currentSubWindow();
    return sub ? qobject_cast<frmCrestCurve*>(sub->widget()) : nullptr;
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
    // A fixed single border: a close box but no minimise or maximise button.
    const Qt::WindowFlags flags = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    QMdiSubWindow* sub = m_mdi->addSubWindow(curve, flags);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->adjustSize();
    sub->setFixedSize(sub->size());
    sub->show();
    return *curve;
}

void frmMain::mnuOpen_Click() { m_files->OpenCurveFile(); }

void frmMain::mnuSave_Click() { m_files->SaveCurveFile(); }

void frmMain::mnuSaveAs_Click() { m_files->SaveCurveFileAs(); }

void frmMain::mnuRecentFile_Click(int index) { m_files->OpenRecentFile(index); }

void frmMain::OpenFiles(const QStringList& paths) {
    for (const QString& path : paths) m_files->OpenNamedFile(path);
}

void frmMain::mnuFilePrint_Click() {
    frmCrestCurve* curve = m_slots.AnyCurveWindowOpen() ? ActiveCurveWindow() : nullptr;
    if (!curve) return;
    const CurveSheet sheet = curve->GatherSheet();
    PrintCurveReport(m_platform, this, &sheet);
}

void frmMain::mnuFileExit_Click() {
    // A curve whose close was cancelled keeps the program running, exactly as closing
    // the frame by its close box does: the user chose not to lose it.
    close();
}

void frmMain::closeEvent(QCloseEvent* event) {
    m_mdi->closeAllSubWindows();
    if (!m_mdi->subWindowList().isEmpty()) {
        event->ignore();
        return;
    }
    event->accept();
    MDIForm_Unload();
}

void frmMain::MDIForm_Unload() {
    // A minimised frame keeps the place it had on the previous run.
    if (!isMinimized()) StorePlacement(m_platform.Settings(), PlacementToStore(m_restored, frameGeometry()));
    if (!m_slots.AnyCurveWindowOpen()) emit programEnded();
}

void frmMain::mnuCloseAll_Click() {
    for (;;) {
        QMdiSubWindow* target = m_mdi->currentSubWindow();
        if (!target) {
            const QList<QMdiSubWindow*> left = m_mdi->subWindowList(QMdiArea::ActivationHistoryOrder);
            if (left.isEmpty()) return;
            target = left.last();
        }
        // A refused close ends the command rather than asking the same window again.
        if (!target->close()) return;
    }
}

void frmMain::mnuWindowCascade_Click() { m_mdi->cascadeSubWindows(); }

void frmMain::mnuWindowTileHorizontal_Click() { TileSubWindows(*m_mdi, TileDirection::Horizontal); }

void frmMain::mnuWindowTileVertical_Click() { TileSubWindows(*m_mdi, TileDirection::Vertical); }

void frmMain::mnuWindowArrangeIcons_Click() { ArrangeIcons(*m_mdi); }

void frmMain::mnuHelpAbout_Click() {
    // Created afresh each time and gone once it has been answered; the modal showing
    // returns while the box still exists, so it must not delete itself on closing.
    frmAbout about(this);
    m_platform.ShowModal(about);
    ComeBack(*this);
}

void frmMain::mnuGradewise_web_Click() { m_platform.OpenUrl(QString::fromLatin1(kHomePage)); }

}  // namespace gw
