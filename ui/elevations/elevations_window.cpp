#include "ui/elevations/elevations_window.h"

#include <QCloseEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <stdexcept>

#include "core/auto_stationing.h"
#include "core/elevations.h"
#include "platform/platform.h"
#include "platform/texts.h"
#include "ui/common/controls.h"
#include "ui/common/field_style.h"
#include "ui/common/layout.h"
#include "ui/common/leave_checks.h"
#include "ui/common/on_screen.h"
#include "ui/common/user_edits.h"
#include "ui/elevations/auto_station_dialog.h"

namespace gw {
namespace {

// The labels, at their top left corners in pixels from the top left of the 520 x 398
// client area; each takes the size of its text.
struct Caption {
    const char* name;  // empty for a label nothing refers to
    const char* text;
    Rect place;
};

constexpr Caption kCaptions[] = {
    {"lblPVC", "PVC Station:", {40, 18, 0, 0}},
    {"", "+", {144, 16, 0, 0}},
    {"lblPVT", "PVT Station:", {255, 18, 0, 0}},
    {"", "+", {360, 16, 0, 0}},
    {"lblVOffset", "V-Offset", {41, 59, 0, 0}},
    {"lblHOffset", "H-Offset", {193, 59, 0, 0}},
    {"", "&", {321, 59, 0, 0}},
    {"lblXSlope", "X-Slope", {337, 59, 0, 0}},
    {"", "%", {438, 59, 0, 0}},
    {"", "Enter TGL Stations", {16, 96, 0, 0}},
    {"", "Enter TGL Stations", {272, 96, 0, 0}},
};
// Beside each row's plus part and elevation, as in row 0.
constexpr Caption kRowCaptions[] = {{"", "+", {64, 112, 0, 0}}, {"", "=", {136, 112, 0, 0}}};
const char* const kMetres = "(m)";
const char* const kFeet = "(ft)";

void AddCaption(QWidget& window, const Caption& c, int row = 0) {
    AddLabel(window, c.name, QString::fromLatin1(c.text), ToQRect(PlaceInRow(c.place, row)));
}

}  // namespace

ElevationsWindow::ElevationsWindow(Platform& platform, AutoStationDialog& autoStation,
                                   std::function<void()> markChanged, QWidget* parent)
    : QDialog(parent), m_platform(platform), m_autoStation(autoStation), m_markChanged(std::move(markChanged)) {
    SetUpFixedDialog(*this, "frmTS", QStringLiteral("Elevations"), QSize(520, 398));
    m_checks = new LeaveChecks(platform, *this);
    BuildControls();
    WatchRowChecks();
}

void ElevationsWindow::BuildControls() {
    for (const Caption& c : kCaptions) AddCaption(*this, c);
    for (const ElevationField& field : kElevationFields) {
        for (int row = 0; row < (IsColumn(field) ? kRowCount : 1); ++row) {
            QLineEdit& edit = AddTextField(*this, field.name, PlaceInRow(field, row), field.tooltip, field.limit);
            edit.setAccessibleName(IsColumn(field) ? edit.objectName() + QString("(%1)").arg(row) : edit.objectName());
            if (!IsInput(field)) StyleAsResult(edit);
            edit.installEventFilter(this);
            OnUserEdit(edit, [this] { m_markChanged(); });
            m_controls.push_back({&field, row, &edit});
        }
    }
    for (int row = 0; row < kRowCount; ++row) {
        for (const Caption& c : kRowCaptions) AddCaption(*this, c, row);
    }
    m_lblvoffsetm = &AddLabel(*this, "lblvoffsetm", {}, {144, 59, 40, 17});
    m_lblhoffsetm = &AddLabel(*this, "lblhoffsetm", {}, {293, 59, 28, 17});
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::VLine);
    line->setGeometry(kColumnShift - 1, 112, 3, 344 - 112);

    auto button = [this](const char* name, const char* caption, const QRect& place, void (ElevationsWindow::*click)()) {
        QPushButton* b = &AddButton(*this, name, QString::fromLatin1(caption), place);
        b->installEventFilter(this);
        connect(b, &QPushButton::clicked, this, click);
        return b;
    };
    QPushButton* clear = button("cmdClear", "Clear All", {16, 360, 49, 25}, &ElevationsWindow::cmdClear_Click);
    QPushButton* autoStation =
        button("cmdAutoStation", "AutoStationing", {80, 360, 81, 25}, &ElevationsWindow::cmdAutoStation_Click);
    QPushButton* calculate =
        button("cmdCalculateTOS", "Calculate TOS", {176, 360, 81, 25}, &ElevationsWindow::cmdCalculateTOS_Click);
    QPushButton* ok = button("cmdOK", "OK", {432, 360, 68, 23}, &ElevationsWindow::cmdOK_Click);
    calculate->setDefault(true);

    // OK first, then the stations row by row, the buttons, then the offsets.
    QWidget* previous = ok;
    auto chain = [&previous](QWidget* next) {
        setTabOrder(previous, next);
        previous = next;
    };
    for (int row = 0; row < kRowCount; ++row) {
        for (const Control& c : m_controls) {
            if (IsColumn(*c.field) && IsInput(*c.field) && c.row == row) chain(c.edit);
        }
    }
    for (QWidget* w : {calculate, clear, autoStation}) chain(w);
    for (const Control& c : m_controls) {
        if (!IsColumn(*c.field) && IsInput(*c.field)) chain(c.edit);
    }
}

void ElevationsWindow::WatchRowChecks() {
    for (const Control& c : m_controls) {
        const ElevationFieldKind kind = c.field->kind;
        if (kind != ElevationFieldKind::RowStation && kind != ElevationFieldKind::RowPlus) continue;
        m_checks->Watch(*c.edit, [this, kind, row = c.row](QLineEdit&) {
            std::vector<QString> out;
            const CurveSheet sheet = Gather();
            for (std::string_view m :
                 kind == ElevationFieldKind::RowStation ? CheckRowWholeStation(sheet, row) : CheckRowPlus(sheet, row)) {
                out.push_back(ToQString(m));
            }
            return out;
        });
    }
}

QLineEdit* ElevationsWindow::ControlOf(const ElevationField& field, int row) const {
    for (const Control& c : m_controls) {
        if (c.field == &field && c.row == row) return c.edit;
    }
    throw std::invalid_argument("no field " + std::string(field.name) + " in row " + std::to_string(row));
}

QLineEdit* ElevationsWindow::FirstStation() const {
    return ControlOf(RowOf(kElevationFields, &ElevationRow::txtTOTSTA1), 0);
}

QLineEdit* ElevationsWindow::Field(std::string_view name) const {
    const ElevationField& field = ElevationFieldNamed(name);
    if (IsColumn(field)) throw std::invalid_argument(std::string(name) + " is a column");
    return ControlOf(field, 0);
}

QLineEdit* ElevationsWindow::RowField(std::string_view name, int row) const {
    return ControlOf(ElevationFieldNamed(name), row);
}

ElevationTable ElevationsWindow::Table() const {
    ElevationTable table;
    for (const Control& c : m_controls) TextOf(table, *c.field, c.row) = c.edit->text().toStdString();
    table.bCalcOK = m_bCalcOK;
    return table;
}

void ElevationsWindow::ShowTable(const ElevationTable& table) {
    for (const Control& c : m_controls) {
        const QString text = ToQString(TextOf(table, *c.field, c.row));
        if (c.edit->text() != text) c.edit->setText(text);
    }
    m_bCalcOK = table.bCalcOK;
}

void ElevationsWindow::ShowFor(const CurveSheet& curve) {
    m_curve = curve;
    m_platform.ShowModal(*this);
}

CurveSheet ElevationsWindow::Gather() const {
    CurveSheet sheet = m_curve;
    sheet.elevations = Table();
    sheet.changed = false;
    return sheet;
}

void ElevationsWindow::Scatter(const CurveSheet& sheet) {
    ShowTable(sheet.elevations);
    if (sheet.changed) m_markChanged();
}

void ElevationsWindow::Report(const Outcome& outcome) {
    if (outcome) Refuse(m_platform, *this, {ToQString(outcome->message)}, *RowField(outcome->field, outcome->row));
}

void ElevationsWindow::SetUnitLabels(const CurveSheet& curve) {
    const QString unit = QString::fromLatin1(curve.IsMetric() ? kMetres : kFeet);
    m_lblvoffsetm->setText(unit);
    m_lblhoffsetm->setText(unit);
}

void ElevationsWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    Form_Activate();
}

void ElevationsWindow::Form_Activate() {
    FirstStation()->setFocus(Qt::OtherFocusReason);
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
    m_autoStation.Prepare(Gather());
    m_platform.ShowModal(m_autoStation);
    CurveSheet sheet = Gather();
    const Outcome outcome = ApplyAutoStationing(sheet, m_autoStation.Answer());
    Scatter(sheet);
    // Back from the dialog with the focus in the first row.
    ComeBack(*this, outcome ? nullptr : FirstStation());
    Report(outcome);
}

void ElevationsWindow::closeEvent(QCloseEvent* event) {
    // Closing by the close box unloads the window: its rows, offsets and station
    // copies are gone, and the next showing starts empty.
    ShowTable(ElevationTable{});
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
        m_markChanged();
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace gw
