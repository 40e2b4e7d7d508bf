#include "curve_window.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/curve_solver.h"
#include "core/field_checks.h"
#include "core/numbers.h"
#include "core/stations.h"
#include "curve_layout.h"
#include "curve_picture.h"
#include "platform/platform.h"
#include "ui/common/field_style.h"
#include "ui/common/leave_checks.h"
#include "ui/common/typing_limit.h"
#include "ui/common/user_edits.h"
#include "ui/elevations/elevations_window.h"
#include "window_slots.h"

namespace gw {
namespace {

QString Q(std::string_view text) { return QString::fromUtf8(text.data(), int(text.size())); }
std::string S(const QString& text) { return text.toStdString(); }

template <class Range>
bool Contains(const Range& names, std::string_view name) {
    for (std::string_view n : names) {
        if (n == name) return true;
    }
    return false;
}

}  // namespace

frmCrestCurve::frmCrestCurve(WindowSlots& windowSlots, int slot, const QString& unitSystem, Platform& platform,
                             QWidget* parent)
    : QWidget(parent), m_slots(windowSlots), m_platform(platform), m_slot(slot) {
    setObjectName(QStringLiteral("frmCrestCurve"));
    setWindowTitle(QString::fromLatin1(curve_text::kDesignCaption));
    setFixedSize(curve_layout::kClientSize);
    // The classic dialog font: 8 point at 96 dpi.
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    setFont(font);
    BuildControls();
    WatchLeaveChecks();
    m_lblMorF->setText(unitSystem);
    m_picture->SetMetric(IsMetric(S(unitSystem)));
    m_slots.SetCurveWindow(m_slot, this);
    optPVI_Click();
}

void frmCrestCurve::BuildControls() {
    m_picture = new CurvePicture(this);
    m_picture->setObjectName(QStringLiteral("Picture1"));
    m_picture->setGeometry(curve_layout::kPicture1);

    m_frame1 = new QGroupBox(QString::fromLatin1(curve_text::kFrame1), this);
    m_frame1->setObjectName(QStringLiteral("Frame1"));
    m_frame1->setGeometry(curve_layout::kFrame1);
    m_optPVI = new QRadioButton(QString::fromLatin1(curve_text::kOptPVI), m_frame1);
    m_optPVI->setObjectName(QStringLiteral("optPVI"));
    m_optPVI->setGeometry(curve_layout::kOptPVI.translated(-curve_layout::kFrame1.topLeft()));
    m_optPVI->setAccessibleName(tr("Known data: PVI"));
    m_optPVCPVT = new QRadioButton(QString::fromLatin1(curve_text::kOptPVCPVT), m_frame1);
    m_optPVCPVT->setObjectName(QStringLiteral("optPVCPVT"));
    m_optPVCPVT->setGeometry(curve_layout::kOptPVCPVT.translated(-curve_layout::kFrame1.topLeft()));
    m_optPVCPVT->setAccessibleName(tr("Known data: PVC and PVT"));
    connect(m_optPVI, &QRadioButton::clicked, this, &frmCrestCurve::optPVI_Click);
    connect(m_optPVCPVT, &QRadioButton::clicked, this, &frmCrestCurve::optPVCPVT_Click);

    for (const curve_layout::TextFieldPlace& place : curve_layout::kTextFields) {
        auto* field = new QLineEdit(this);
        field->setObjectName(Q(place.name));
        field->setToolTip(Q(place.tooltip));
        field->setAccessibleName(Q(place.accessibleName));
        field->setGeometry(place.rect);
        field->setFrame(true);
        field->installEventFilter(this);
        m_fields[place.name] = field;
        if (place.name.size() > 3 && place.name.substr(place.name.size() - 3) == "STA") {
            SetTypingLimit(*field, curve_layout::kWholeStationLimit);
        }
        OnUserEdit(*field, [this] { m_slots.State(m_slot).changed = true; });
    }

    auto label = [this](const char* name, const QString& text, const QRect& rect) {
        auto* l = new QLabel(text, this);
        l->setObjectName(QString::fromLatin1(name));
        l->setGeometry(rect);
        return l;
    };
    label("lblpercent1", QString::fromLatin1(curve_text::kPercent), curve_layout::kPercent1);
    label("lblpercent2", QString::fromLatin1(curve_text::kPercent), curve_layout::kPercent2);
    m_lblSDL = label("lblSDL", QString(), curve_layout::kLblSDL);
    m_lblSDL->setAccessibleName(tr("Sight distance kind"));
    m_lblMorF = label("lblMorF", QString(), curve_layout::kLblMorF);
    m_lblMorF->hide();
    m_picture->SetKindLabel(m_lblSDL);

    auto button = [this](const char* name, const QString& text, const QRect& rect) {
        auto* b = new QPushButton(text, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setGeometry(rect);
        b->setAutoDefault(false);
        return b;
    };
    m_cmdCalcP = button("cmdCalcP", QString(), curve_layout::kCmdCalcP);
    m_cmdClear = button("cmdClear", QString::fromLatin1(curve_text::kClear), curve_layout::kCmdClear);
    m_cmdClear->setToolTip(QString::fromLatin1(curve_text::kClearTip));
    m_cmdMoreTOS = button("cmdMoreTOS", QString::fromLatin1(curve_text::kMoreTOS), curve_layout::kCmdMoreTOS);
    connect(m_cmdCalcP, &QPushButton::clicked, this, &frmCrestCurve::cmdCalcP_Click);
    connect(m_cmdClear, &QPushButton::clicked, this, &frmCrestCurve::cmdClear_Click);
    connect(m_cmdMoreTOS, &QPushButton::clicked, this, &frmCrestCurve::cmdMoreTOS_Click);

    // The window sees every key before the control that has the focus.
    for (QWidget* w : {static_cast<QWidget*>(m_optPVI), static_cast<QWidget*>(m_optPVCPVT),
                       static_cast<QWidget*>(m_cmdCalcP), static_cast<QWidget*>(m_cmdClear),
                       static_cast<QWidget*>(m_cmdMoreTOS)}) {
        w->installEventFilter(this);
    }
}

void frmCrestCurve::WatchLeaveChecks() {
    auto* checks = new LeaveChecks(m_platform, *this);
    for (const auto& [name, field] : m_fields) {
        checks->Watch(*field, [this, name = name](QLineEdit&) {
            std::vector<QString> messages;
            if (const auto message = CheckCurveFieldOnLeave(GatherSheet(), CurveFieldNamed(name))) messages.push_back(Q(*message));
            return messages;
        });
    }
}

QString frmCrestCurve::UnitSystem() const { return m_lblMorF->text(); }

QLineEdit* frmCrestCurve::Field(std::string_view name) const {
    auto it = m_fields.find(name);
    return it == m_fields.end() ? nullptr : it->second;
}

CurveSheet frmCrestCurve::GatherSheet() const {
    CurveSheet sheet = NewCurveSheet(S(m_lblMorF->text()));
    for (const auto& [name, field] : m_fields) *sheet.Field(name) = S(field->text());
    sheet.lblSDL = S(m_lblSDL->text());
    sheet.optPVI = m_optPVI->isChecked();
    sheet.optPVCPVT = m_optPVCPVT->isChecked();
    sheet.elevations = m_slots.Elevations(m_slot);
    sheet.changed = m_slots.State(m_slot).changed;
    return sheet;
}

void frmCrestCurve::ScatterSheet(const CurveSheet& sheet) {
    for (const auto& [name, field] : m_fields) {
        const QString text = Q(*sheet.Field(name));
        // Leaves the cursor alone in fields the command did not touch.
        if (field->text() != text) field->setText(text);
    }
    m_lblSDL->setText(Q(sheet.lblSDL));
    m_slots.Elevations(m_slot) = sheet.elevations;
    m_slots.State(m_slot).changed = sheet.changed;
    m_picture->update();
}

void frmCrestCurve::ShowStoredCurve(const CurveSheet& sheet) {
    if (sheet.optPVCPVT) optPVCPVT_Click();
    m_lblMorF->setText(Q(sheet.lblMorF));
    m_picture->SetMetric(IsMetric(sheet.lblMorF));
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
    m_cmdCalcP->setText(QString::fromLatin1(pvi ? curve_text::kCalcInPVIMode : curve_text::kCalcInPVCPVTMode));
    m_cmdCalcP->setToolTip(
        QString::fromLatin1(pvi ? curve_text::kCalcTipInPVIMode : curve_text::kCalcTipInPVCPVTMode));

    QWidget* previous = nullptr;
    auto inputs = [&](const auto& names) {
        for (const auto& [name, field] : m_fields) {
            const bool input = Contains(names, name);
            if (name == "txtG1") {
                // An input in both modes whose colour is never touched.
            } else if (input) {
                StyleAsInput(*field);
            } else {
                StyleAsResult(*field);
            }
            // A plus field keeps its limit once it has been an input.
            if (input && name.size() > 4 && name.substr(name.size() - 4) == "STAM") {
                SetTypingLimit(*field, curve_layout::kPlusPartLimit);
            }
        }
        for (std::string_view name : names) {
            QWidget* field = Field(name);
            if (previous) setTabOrder(previous, field);
            previous = field;
        }
    };
    if (pvi) {
        inputs(curve_layout::kPVIInputs);
    } else {
        inputs(curve_layout::kPVCPVTInputs);
    }
    setTabOrder(previous, m_cmdCalcP);
    setTabOrder(m_cmdCalcP, m_cmdClear);
    setTabOrder(m_cmdClear, m_cmdMoreTOS);
    setTabOrder(m_cmdMoreTOS, m_optPVI);
    setTabOrder(m_optPVI, m_optPVCPVT);
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
    if (isVisible()) FocusFirstInput();
}

void frmCrestCurve::FocusFirstInput() {
    PutFocusBack(Field(m_optPVI->isChecked() ? "txtPVISTA" : "txtG1"));
}

void frmCrestCurve::cmdCalcP_Click() {
    CurveSheet sheet = GatherSheet();
    const Outcome outcome = Calculate(sheet);
    ScatterSheet(sheet);
    if (outcome) Report(*outcome);
}

void frmCrestCurve::cmdMoreTOS_Click() {
    cmdCalcP_Click();
    if (!IsNumericText(S(Field("txtPVCSTA")->text())) && !IsNumericText(S(Field("txtPVCSTAM")->text()))) return;
    if (ElevationsWindow* elevations = m_slots.ElevationsWindowOf(m_slot)) {
        m_platform.ShowModal(*elevations);
        // Nothing re-activates the curve's frame after the modal window when no
        // window manager runs.
        if (QWidget* frame = window()) frame->activateWindow();
    }
}

}  // namespace gw
