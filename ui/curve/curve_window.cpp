#include "ui/curve/curve_window.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <stdexcept>

#include "core/curve_solver.h"
#include "core/field_checks.h"
#include "core/numbers.h"
#include "platform/platform.h"
#include "platform/texts.h"
#include "ui/common/controls.h"
#include "ui/common/field_style.h"
#include "ui/common/layout.h"
#include "ui/common/leave_checks.h"
#include "ui/common/user_edits.h"
#include "ui/curve/curve_picture.h"
#include "ui/curve/window_slots.h"
#include "ui/elevations/elevations_window.h"

namespace gw {
namespace {

// The controls that hold no part of the curve, in pixels from the top left of the
// 598 x 357 client area, with what they say.
constexpr QSize kClientSize{598, 357};
constexpr QRect kPicture1{9, 7, 579, 312};
constexpr QRect kFrame1{17, 7, 97, 65};
constexpr QRect kCmdCalcP{256, 272, 81, 25};
constexpr QRect kCmdClear{8, 328, 57, 21};
constexpr QRect kCmdMoreTOS{72, 328, 121, 21};
constexpr QRect kPercent1{185, 127, 14, 17};
constexpr QRect kPercent2{465, 127, 14, 17};

const char* const kDesignCaption = "Vertical Curve";
const char* const kFrame1Caption = "Known Data";
const char* const kCalcInPVIMode = "Calc PVC/PVT";
const char* const kCalcTipInPVIMode = "Calculate PVC / PVT info";
const char* const kCalcInPVCPVTMode = "Calc PVI";
const char* const kCalcTipInPVCPVTMode = "Calculate PVI info";
const char* const kClear = "Clear All";
const char* const kClearTip = "Clear values";
const char* const kMoreTOS = "Calculate Elevations";

bool IsLabel(const CurveField& field) {
    return field.kind == CurveFieldKind::Label || field.kind == CurveFieldKind::Units;
}

}  // namespace

frmCrestCurve::frmCrestCurve(WindowSlot& slot, const QString& unitSystem, CurveSaver& saver, Platform& platform,
                             QWidget* parent)
    : QWidget(parent), m_slot(slot), m_saver(saver), m_platform(platform) {
    setObjectName(QStringLiteral("frmCrestCurve"));
    setWindowTitle(QString::fromLatin1(kDesignCaption));
    setFixedSize(kClientSize);
    // The classic dialog font: 8 point at 96 dpi.
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    setFont(font);
    BuildControls();
    WatchLeaveChecks();
    m_lblMorF->setText(unitSystem);
    m_slot.curveWindow = this;
    optPVI_Click();
}

int frmCrestCurve::Slot() const { return m_slot.number; }

template <class Widget>
Widget* frmCrestCurve::ControlOf(const CurveField& field) const {
    for (const auto& [row, control] : m_controls) {
        if (row == &field) {
            if (auto* widget = qobject_cast<Widget*>(control)) return widget;
        }
    }
    throw std::invalid_argument("no such control for " + std::string(field.name));
}

void frmCrestCurve::BuildControls() {
    m_picture = new CurvePicture(this);
    m_picture->setObjectName(QStringLiteral("Picture1"));
    m_picture->setGeometry(kPicture1);
    auto* frame1 = new QGroupBox(QString::fromLatin1(kFrame1Caption), this);
    frame1->setObjectName(QStringLiteral("Frame1"));
    frame1->setGeometry(kFrame1);

    for (const CurveField& field : kCurveFields) {
        QWidget* control = nullptr;
        if (field.kind == CurveFieldKind::Option) {
            // Drawn round by Frame1, which holds them.
            control = new QRadioButton(ToQString(field.text), frame1);
            control->setObjectName(ToQString(field.name));
            control->setGeometry(ToQRect(field.place).translated(-kFrame1.topLeft()));
        } else if (IsLabel(field)) {
            control = &AddLabel(*this, field.name, {}, ToQRect(field.place));
        } else {
            QLineEdit& edit = AddTextField(*this, field.name, field.place, field.text, field.limit);
            OnUserEdit(edit, [this] { m_slot.changed = true; });
            control = &edit;
        }
        if (!field.accessibleName.empty()) control->setAccessibleName(ToQString(field.accessibleName));
        // The window sees every key before the control that has the focus.
        if (!IsLabel(field)) control->installEventFilter(this);
        m_controls.emplace_back(&field, control);
    }
    m_optPVI = ControlOf<QRadioButton>(RowOf(kCurveFields, &CurveSheet::optPVI));
    m_optPVCPVT = ControlOf<QRadioButton>(RowOf(kCurveFields, &CurveSheet::optPVCPVT));
    m_lblSDL = ControlOf<QLabel>(RowOf(kCurveFields, &CurveSheet::lblSDL));
    m_lblMorF = ControlOf<QLabel>(RowOf(kCurveFields, &CurveSheet::lblMorF));
    m_lblMorF->hide();
    m_picture->SetKindLabel(m_lblSDL);
    connect(m_optPVI, &QRadioButton::clicked, this, &frmCrestCurve::optPVI_Click);
    connect(m_optPVCPVT, &QRadioButton::clicked, this, &frmCrestCurve::optPVCPVT_Click);
    AddLabel(*this, "lblpercent1", QStringLiteral("%"), kPercent1);
    AddLabel(*this, "lblpercent2", QStringLiteral("%"), kPercent2);

    auto button = [this](const char* name, const char* caption, const QRect& place, void (frmCrestCurve::*click)()) {
        QPushButton& b = AddButton(*this, name, QString::fromLatin1(caption), place);
        b.setAutoDefault(false);
        b.installEventFilter(this);
        connect(&b, &QPushButton::clicked, this, click);
        return &b;
    };
    m_cmdCalcP = button("cmdCalcP", "", kCmdCalcP, &frmCrestCurve::cmdCalcP_Click);
    m_cmdClear = button("cmdClear", kClear, kCmdClear, &frmCrestCurve::cmdClear_Click);
    m_cmdClear->setToolTip(QString::fromLatin1(kClearTip));
    m_cmdMoreTOS = button("cmdMoreTOS", kMoreTOS, kCmdMoreTOS, &frmCrestCurve::cmdMoreTOS_Click);
}

void frmCrestCurve::WatchLeaveChecks() {
    auto* checks = new LeaveChecks(m_platform, *this);
    for (const auto& [field, control] : m_controls) {
        if (!IsTextField(*field)) continue;
        checks->Watch(*static_cast<QLineEdit*>(control), [this, field = field](QLineEdit&) {
            std::vector<QString> messages;
            if (const auto message = CheckCurveFieldOnLeave(GatherSheet(), *field)) {
                messages.push_back(ToQString(*message));
            }
            return messages;
        });
    }
}

QString frmCrestCurve::UnitSystem() const { return m_lblMorF->text(); }

QLineEdit* frmCrestCurve::Field(std::string_view name) const { return ControlOf<QLineEdit>(CurveFieldNamed(name)); }

CurveSheet frmCrestCurve::GatherSheet() const {
    CurveSheet sheet;
    for (const auto& [field, control] : m_controls) {
        if (const auto* option = std::get_if<bool CurveSheet::*>(&field->value)) {
            sheet.*(*option) = static_cast<QRadioButton*>(control)->isChecked();
        } else if (IsLabel(*field)) {
            TextOf(sheet, *field) = static_cast<QLabel*>(control)->text().toStdString();
        } else {
            TextOf(sheet, *field) = static_cast<QLineEdit*>(control)->text().toStdString();
        }
    }
    sheet.elevations = m_slot.elevationsWindow->Table();
    sheet.changed = m_slot.changed;
    return sheet;
}

void frmCrestCurve::ScatterSheet(const CurveSheet& sheet) {
    for (const auto& [field, control] : m_controls) {
        if (field->kind == CurveFieldKind::Option) continue;  // set by the mode, or by a stored curve
        const QString text = ToQString(TextOf(sheet, *field));
        if (IsLabel(*field)) {
            static_cast<QLabel*>(control)->setText(text);
        } else if (auto* edit = static_cast<QLineEdit*>(control); edit->text() != text) {
            // Leaves the cursor alone in fields the command did not touch.
            edit->setText(text);
        }
    }
    m_slot.elevationsWindow->ShowTable(sheet.elevations);
    m_slot.changed = sheet.changed;
    m_picture->SetMetric(IsMetric(sheet.lblMorF));
}

void frmCrestCurve::ShowStoredCurve(const CurveSheet& sheet) {
    if (sheet.optPVCPVT) optPVCPVT_Click();
    // Stored states are given without a click: a short file turns both options off
    // and nothing is cleared again.
    for (QRadioButton* option : {m_optPVI, m_optPVCPVT}) option->setAutoExclusive(false);
    m_optPVI->setChecked(sheet.optPVI);
    m_optPVCPVT->setChecked(sheet.optPVCPVT);
    for (QRadioButton* option : {m_optPVI, m_optPVCPVT}) option->setAutoExclusive(true);
    ScatterSheet(sheet);
}

void frmCrestCurve::ApplyMode(bool pvi) {
    m_optPVI->setChecked(pvi);
    m_optPVCPVT->setChecked(!pvi);
    m_cmdCalcP->setText(QString::fromLatin1(pvi ? kCalcInPVIMode : kCalcInPVCPVTMode));
    m_cmdCalcP->setToolTip(QString::fromLatin1(pvi ? kCalcTipInPVIMode : kCalcTipInPVCPVTMode));

    std::vector<std::pair<int, QLineEdit*>> inputs;
    for (const auto& [field, control] : m_controls) {
        if (!IsTextField(*field)) continue;
        auto* edit = static_cast<QLineEdit*>(control);
        const int input = pvi ? field->pviInput : field->pvcpvtInput;
        // An input of both modes keeps its look.
        if (field->pviInput == 0 || field->pvcpvtInput == 0) input ? StyleAsInput(*edit) : StyleAsResult(*edit);
        if (input) inputs.emplace_back(input, edit);
    }
    std::sort(inputs.begin(), inputs.end());
    QWidget* previous = nullptr;
    for (const auto& [input, edit] : inputs) {
        if (previous) setTabOrder(previous, edit);
        previous = edit;
    }
    for (QWidget* next : std::initializer_list<QWidget*>{m_cmdCalcP, m_cmdClear, m_cmdMoreTOS, m_optPVI, m_optPVCPVT}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

QLineEdit* frmCrestCurve::FirstInput() const {
    const bool pvi = m_optPVI->isChecked();
    for (const auto& [field, control] : m_controls) {
        if ((pvi ? field->pviInput : field->pvcpvtInput) == 1) return static_cast<QLineEdit*>(control);
    }
    return nullptr;
}

void frmCrestCurve::optPVI_Click() {
    ApplyMode(true);
    cmdClear_Click();
}

void frmCrestCurve::optPVCPVT_Click() {
    ApplyMode(false);
    cmdClear_Click();
}

void frmCrestCurve::cmdClear_Click() {
    CurveSheet sheet = GatherSheet();
    ClearAll(sheet);
    ScatterSheet(sheet);
    // While the window is being created it is not shown yet; the focus stays alone.
    if (isVisible()) ComeBack(*this, FirstInput());
}

void frmCrestCurve::cmdCalcP_Click() {
    CurveSheet sheet = GatherSheet();
    const Outcome outcome = Calculate(sheet);
    ScatterSheet(sheet);
    if (outcome) Report(*outcome);
}

void frmCrestCurve::cmdMoreTOS_Click() {
    cmdCalcP_Click();
    const CurveSheet sheet = GatherSheet();
    if (!IsNumericText(sheet.txtPVCSTA) && !IsNumericText(sheet.txtPVCSTAM)) return;
    m_slot.elevationsWindow->ShowFor(sheet);
    ComeBack(*this);
}

void frmCrestCurve::Report(const Refusal& refusal) {
    Refuse(m_platform, *this, {ToQString(refusal.message)}, *Field(refusal.field));
}

}  // namespace gw
