#include "elevations_window.h"

#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/auto_stationing.h"
#include "core/elevations.h"
#include "platform/platform.h"
#include "ui/common/field_style.h"
#include "ui/common/leave_checks.h"
#include "ui/common/on_screen.h"
#include "ui/common/typing_limit.h"
#include "ui/common/user_edits.h"
#include "ui/elevations/auto_station_dialog.h"
#include "ui/elevations/elevations_slot.h"
#include "ui/elevations/elevations_texts.h"

namespace gw {
namespace {

constexpr int kFieldHeight = 19;
constexpr int kRowsPerColumn = 10;
constexpr int kColumnShift = 256;

std::string S(const QString& text) { return text.toStdString(); }
QString Q(const std::string& text) { return QString::fromStdString(text); }

void AddLabel(QWidget* parent, const char* name, const QString& text, int left, int top) {
    auto* label = new QLabel(text, parent);
    if (name) label->setObjectName(name);
    label->move(left, top);
    label->adjustSize();
}

}  // namespace

ElevationsWindow::ElevationsWindow(ElevationsSlot& slot, Platform& platform, AutoStationDialog& autoStation,
                                   QWidget* parent)
    : QDialog(parent), m_slot(slot), m_platform(platform), m_autoStation(autoStation) {
    SetUpFixedDialog(*this, "frmTS", elevations_text::kCaption, QSize(520, 398));
    m_checks = new LeaveChecks(platform, *this);
    BuildControls();
    WatchRowChecks();
}

QLineEdit* ElevationsWindow::AddField(const char* name, int left, int top, int width) {
    auto* field = new QLineEdit(this);
    field->setObjectName(name);
    field->setAccessibleName(name);
    field->setGeometry(left, top, width, kFieldHeight);
    field->installEventFilter(this);
    OnUserEdit(*field, [this] { m_slot.MarkChanged(); });
    return field;
}

void ElevationsWindow::BuildControls() {
    using namespace elevations_text;
    AddLabel(this, "lblPVC", kPVC, 40, 18);
    m_txtPVCSTA = AddField("txtPVCSTA", 104, 16, 33);
    AddLabel(this, nullptr, "+", 144, 16);
    m_txtPVCSTAM = AddField("txtPVCSTAM", 160, 16, 49);
    AddLabel(this, "lblPVT", kPVT, 255, 18);
    m_txtPVTSTA = AddField("txtPVTSTA", 320, 16, 33);
    AddLabel(this, nullptr, "+", 360, 16);
    m_txtPVTSTAM = AddField("txtPVTSTAM", 376, 16, 49);
    for (QLineEdit* copy : {m_txtPVCSTA, m_txtPVCSTAM, m_txtPVTSTA, m_txtPVTSTAM}) StyleAsResult(*copy);
    m_txtPVCSTA->setToolTip(kPVCTip);
    m_txtPVCSTAM->setToolTip(kPVCTip);
    m_txtPVTSTA->setToolTip(kPVTTip);
    m_txtPVTSTAM->setToolTip(kPVTTip);
    // A limit on typing only: the copies are the program's and keep every digit.
    SetTypingLimit(*m_txtPVCSTA, 5);
    SetTypingLimit(*m_txtPVTSTA, 5);

    AddLabel(this, "lblVOffset", kVOffset, 41, 59);
    m_txtVOffset = AddField("txtVOffset", 88, 56, 49);
    m_lblvoffsetm = new QLabel(this);
    m_lblvoffsetm->setObjectName("lblvoffsetm");
    m_lblvoffsetm->setGeometry(144, 59, 40, 17);
    AddLabel(this, "lblHOffset", kHOffset, 193, 59);
    m_txtHOffset = AddField("txtHOffset", 240, 56, 49);
    m_lblhoffsetm = new QLabel(this);
    m_lblhoffsetm->setObjectName("lblhoffsetm");
    m_lblhoffsetm->setGeometry(293, 59, 28, 17);
    AddLabel(this, nullptr, "&", 321, 59);
    AddLabel(this, "lblXSlope", kXSlope, 337, 59);
    m_txtXSlope = AddField("txtXSlope", 384, 56, 49);
    AddLabel(this, nullptr, "%", 438, 59);

    AddLabel(this, nullptr, kHeading, 16, 96);
    AddLabel(this, nullptr, kHeading, 272, 96);
    for (int i = 0; i < kRowCount; ++i) {
        const int shift = i < kRowsPerColumn ? 0 : kColumnShift;
        const int top = 112 + 24 * (i % kRowsPerColumn);
        m_txtTOTSTA1[i] = AddField("txtTOTSTA1", 16 + shift, top, 41);
        AddLabel(this, nullptr, "+", 64 + shift, top);
        m_txtTOTSTAM1[i] = AddField("txtTOTSTAM1", 80 + shift, top, 49);
        AddLabel(this, nullptr, "=", 136 + shift, top);
        m_txtTotalTopSlab1[i] = AddField("txtTotalTopSlab1", 152 + shift, top, 89);
        StyleAsResult(*m_txtTotalTopSlab1[i]);
        for (QLineEdit* f : {m_txtTOTSTA1[i], m_txtTOTSTAM1[i], m_txtTotalTopSlab1[i]}) {
            f->setProperty("row", i);
            f->setAccessibleName(f->objectName() + QString("(%1)").arg(i));
        }
    }
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::VLine);
    line->setGeometry(kColumnShift - 1, 112, 3, 344 - 112);

    auto button = [this](const char* name, const QString& caption, int l, int t, int w, int h) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(name);
        b->setGeometry(l, t, w, h);
        b->installEventFilter(this);
        return b;
    };
    m_cmdClear = button("cmdClear", kClear, 16, 360, 49, 25);
    m_cmdAutoStation = button("cmdAutoStation", kAutoStation, 80, 360, 81, 25);
    m_cmdCalculateTOS = button("cmdCalculateTOS", kCalculateTOS, 176, 360, 81, 25);
    m_cmdOK = button("cmdOK", kOK, 432, 360, 68, 23);
    m_cmdCalculateTOS->setDefault(true);
    connect(m_cmdClear, &QPushButton::clicked, this, &ElevationsWindow::cmdClear_Click);
    connect(m_cmdAutoStation, &QPushButton::clicked, this, &ElevationsWindow::cmdAutoStation_Click);
    connect(m_cmdCalculateTOS, &QPushButton::clicked, this, &ElevationsWindow::cmdCalculateTOS_Click);
    connect(m_cmdOK, &QPushButton::clicked, this, &ElevationsWindow::cmdOK_Click);

    // OK first, then the stations row by row, the buttons, then the offsets.
    QWidget* previous = m_cmdOK;
    auto chain = [&previous](QWidget* next) {
        setTabOrder(previous, next);
        previous = next;
    };
    for (int i = 0; i < kRowCount; ++i) {
        chain(m_txtTOTSTA1[i]);
        chain(m_txtTOTSTAM1[i]);
    }
    for (QWidget* w : std::initializer_list<QWidget*>{m_cmdCalculateTOS, m_cmdClear, m_cmdAutoStation, m_txtVOffset,
                                                      m_txtHOffset, m_txtXSlope}) {
        chain(w);
    }
}

void ElevationsWindow::WatchRowChecks() {
    for (int i = 0; i < kRowCount; ++i) {
        m_checks->Watch(*m_txtTOTSTA1[i], [this, i](QLineEdit&) {
            std::vector<QString> out;
            for (std::string_view m : CheckRowWholeStation(Gather(), i)) out.push_back(Q(std::string(m)));
            return out;
        });
        m_checks->Watch(*m_txtTOTSTAM1[i], [this, i](QLineEdit&) {
            std::vector<QString> out;
            for (std::string_view m : CheckRowPlus(Gather(), i)) out.push_back(Q(std::string(m)));
            return out;
        });
    }
}

QLineEdit* ElevationsWindow::Field(std::string_view name) const {
    for (QLineEdit* f : {m_txtPVCSTA, m_txtPVCSTAM, m_txtPVTSTA, m_txtPVTSTAM, m_txtVOffset, m_txtHOffset, m_txtXSlope}) {
        if (f->objectName() == QLatin1String(name.data(), int(name.size()))) return f;
    }
    return nullptr;
}

QLineEdit* ElevationsWindow::RowField(std::string_view name, int row) const {
    if (row < 0 || row >= kRowCount) return nullptr;
    if (name == "txtTOTSTA1") return m_txtTOTSTA1[row];
    if (name == "txtTOTSTAM1") return m_txtTOTSTAM1[row];
    if (name == "txtTotalTopSlab1") return m_txtTotalTopSlab1[row];
    return nullptr;
}

CurveSheet ElevationsWindow::Gather() const {
    CurveSheet sheet = m_slot.CurveFields();
    ElevationTable& t = sheet.elevations;
    for (std::string_view name : {"txtPVCSTA", "txtPVCSTAM", "txtPVTSTA", "txtPVTSTAM", "txtVOffset", "txtHOffset",
                                  "txtXSlope"}) {
        *t.Field(name) = S(Field(name)->text());
    }
    for (int i = 0; i < kRowCount; ++i) {
        t.rows[i] = {S(m_txtTOTSTA1[i]->text()), S(m_txtTOTSTAM1[i]->text()), S(m_txtTotalTopSlab1[i]->text())};
    }
    t.bCalcOK = m_bCalcOK;
    sheet.changed = false;
    return sheet;
}

void ElevationsWindow::Scatter(const CurveSheet& sheet) {
    const ElevationTable& t = sheet.elevations;
    auto put = [](QLineEdit* field, const std::string& text) {
        const QString q = Q(text);
        if (field->text() != q) field->setText(q);
    };
    for (std::string_view name : {"txtPVCSTA", "txtPVCSTAM", "txtPVTSTA", "txtPVTSTAM", "txtVOffset", "txtHOffset",
                                  "txtXSlope"}) {
        put(Field(name), *t.Field(name));
    }
    for (int i = 0; i < kRowCount; ++i) {
        put(m_txtTOTSTA1[i], t.rows[i].txtTOTSTA1);
        put(m_txtTOTSTAM1[i], t.rows[i].txtTOTSTAM1);
        put(m_txtTotalTopSlab1[i], t.rows[i].txtTotalTopSlab1);
    }
    m_bCalcOK = t.bCalcOK;
    if (sheet.changed) m_slot.MarkChanged();
    Store();
}

void ElevationsWindow::Store() {
    ElevationTable& stored = m_slot.Table();
    const CurveSheet now = Gather();
    stored = now.elevations;
}

void ElevationsWindow::Report(const Outcome& outcome) {
    if (!outcome) return;
    ShowRefusal(m_platform, this, Q(outcome->message));
    activateWindow();
    if (QLineEdit* field = RowField(outcome->field, outcome->row)) field->setFocus(Qt::OtherFocusReason);
}

void ElevationsWindow::SetUnitLabels(const CurveSheet& curve) {
    const QString unit = curve.IsMetric() ? elevations_text::kMetres : elevations_text::kFeet;
    m_lblvoffsetm->setText(unit);
    m_lblhoffsetm->setText(unit);
}

void ElevationsWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // The slot's stored texts are what the window shows; then the activation rules run.
    CurveSheet sheet = m_slot.CurveFields();
    sheet.elevations = m_slot.Table();
    sheet.changed = false;
    Scatter(sheet);
    Form_Activate();
}

void ElevationsWindow::Form_Activate() {
    m_txtTOTSTA1[0]->setFocus(Qt::OtherFocusReason);
    CurveSheet sheet = Gather();
    SetUnitLabels(sheet);
    const Outcome outcome = ActivateElevations(sheet);
    Scatter(sheet);
    // Activation runs as the window is being shown: its message comes over it.
    if (outcome) WhenOnScreen(*this, [this, outcome] { Report(outcome); });
}

void ElevationsWindow::cmdCalculateTOS_Click() {
    CurveSheet sheet = Gather();
    const Outcome outcome = CalculateTOS(sheet);
    Scatter(sheet);
    Report(outcome);
}

void ElevationsWindow::cmdOK_Click() {
    CurveSheet sheet = Gather();
    const Outcome outcome = ConfirmElevations(sheet);
    Scatter(sheet);
    if (outcome) {
        Report(outcome);
        return;
    }
    if (m_bCalcOK) accept();
}

void ElevationsWindow::cmdClear_Click() {
    CurveSheet sheet = Gather();
    ClearElevations(sheet);
    Scatter(sheet);
}

void ElevationsWindow::cmdAutoStation_Click() {
    const CurveSheet before = Gather();
    m_autoStation.Prepare(before);
    m_platform.ShowModal(m_autoStation);
    CurveSheet sheet = Gather();
    const Outcome outcome = ApplyAutoStationing(sheet, m_autoStation.Answer());
    Scatter(sheet);
    // Back from the dialog the window is active again, with the focus in the first
    // row; without a window manager nobody else re-activates it.
    activateWindow();
    if (!outcome) m_txtTOTSTA1[0]->setFocus(Qt::OtherFocusReason);
    Report(outcome);
}

void ElevationsWindow::closeEvent(QCloseEvent* event) {
    // Closing by the close box unloads the window: its rows, offsets and station
    // copies are gone, and the next showing starts empty.
    CurveSheet empty = m_slot.CurveFields();
    empty.elevations = ElevationTable{};
    empty.changed = false;
    Scatter(empty);
    QDialog::closeEvent(event);
}

void ElevationsWindow::keyPressEvent(QKeyEvent* event) {
    // The window has no cancel button: Escape does not close it.
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

bool ElevationsWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && ProducesCharacter(*static_cast<QKeyEvent*>(event))) {
        m_slot.MarkChanged();
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace gw
