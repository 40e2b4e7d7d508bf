#include "ui/elevations/auto_station_dialog.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <stdexcept>

#include "platform/platform.h"
#include "platform/texts.h"
#include "ui/common/controls.h"
#include "ui/common/field_style.h"
#include "ui/common/layout.h"
#include "ui/common/leave_checks.h"

namespace gw {
namespace {

// The labels before the fields, in pixels from the top left of the 222 x 222 client area.
struct Caption {
    const char* name;
    const char* text;
    QRect place;
};

constexpr Caption kCaptions[] = {
    {"lblPoints", "Increments on curve:", {16, 80, 105, 17}},
    {"lblBeginSTA", "Beginning Station:", {8, 120, 89, 17}},
    {"lblplus", "+", {144, 120, 9, 17}},
    {"lblIncrement", "Increment :", {40, 152, 57, 17}},
    {"lblplus1", "+", {144, 152, 9, 17}},
};

}  // namespace

AutoStationDialog::AutoStationDialog(Platform& platform, QWidget* parent) : QDialog(parent), m_platform(platform) {
    SetUpFixedDialog(*this, "dlgAuto", QStringLiteral("Auto Stationing"), QSize(222, 222));
    BuildControls();
    auto* checks = new LeaveChecks(platform, *this);
    for (const auto& [field, edit] : m_fields) {
        checks->Watch(*edit, [this, field = field](QLineEdit&) {
            Gather();
            std::vector<QString> out;
            for (std::string_view m : m_state.CheckOnLeave(*field)) out.push_back(ToQString(m));
            return out;
        });
    }
    optIncrements_Click();  // Form_Load
}

void AutoStationDialog::BuildControls() {
    auto* frame = new QGroupBox(QStringLiteral("Station Points"), this);
    frame->setObjectName("Frame1");
    frame->setGeometry(8, 16, 185, 41);
    m_optIncrements = new QRadioButton(QStringLiteral("Increments"), this);
    m_optIncrements->setObjectName("optIncrements");
    m_optIncrements->setGeometry(24, 32, 73, 17);
    m_optSpacing = new QRadioButton(QStringLiteral("Spacing"), this);
    m_optSpacing->setObjectName("optSpacing");
    m_optSpacing->setGeometry(112, 32, 73, 17);
    connect(m_optIncrements, &QRadioButton::clicked, this, &AutoStationDialog::optIncrements_Click);
    connect(m_optSpacing, &QRadioButton::clicked, this, &AutoStationDialog::optSpacing_Click);

    for (const Caption& c : kCaptions) AddLabel(*this, c.name, QString::fromLatin1(c.text), c.place);
    for (const AutoStationField& field : kAutoStationFields) {
        QLineEdit& edit = AddTextField(*this, field.name, field.place, field.tooltip, field.limit);
        edit.setAccessibleName(edit.objectName());
        m_fields.emplace_back(&field, &edit);
    }

    QPushButton* ok = &AddButton(*this, "OKButton", QStringLiteral("OK"), {88, 192, 57, 25});
    QPushButton* cancel = &AddButton(*this, "CancelButton", QStringLiteral("Cancel"), {152, 192, 57, 25});
    // Cancel is both the default and the cancel button: Enter in a field cancels,
    // while a button that has the focus takes Enter itself.
    ok->setAutoDefault(true);
    cancel->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &AutoStationDialog::OKButton_Click);
    connect(cancel, &QPushButton::clicked, this, &AutoStationDialog::CancelButton_Click);

    // The fields in table order, then the buttons.
    QWidget* previous = nullptr;
    for (const auto& [field, edit] : m_fields) {
        if (previous) setTabOrder(previous, edit);
        previous = edit;
    }
    for (QWidget* next : std::initializer_list<QWidget*>{ok, cancel, m_optIncrements}) {
        setTabOrder(previous, next);
        previous = next;
    }
}

QLineEdit* AutoStationDialog::ControlOf(const AutoStationField& field) const {
    for (const auto& [row, edit] : m_fields) {
        if (row == &field) return edit;
    }
    throw std::invalid_argument("no field " + std::string(field.name));
}

QLineEdit* AutoStationDialog::Field(std::string_view name) const { return ControlOf(AutoStationFieldNamed(name)); }

void AutoStationDialog::Prepare(const CurveSheet& sheet) {
    m_copies = sheet.elevations;
    m_state.unitSystem = sheet.lblMorF;
}

void AutoStationDialog::Gather() {
    for (const auto& [field, edit] : m_fields) m_state.*field->value = edit->text().toStdString();
}

void AutoStationDialog::Scatter() {
    m_optIncrements->setChecked(!m_state.optSpacing);
    m_optSpacing->setChecked(m_state.optSpacing);
    for (const auto& [field, edit] : m_fields) {
        edit->setText(ToQString(m_state.*field->value));
        IsInputIn(*field, m_state.optSpacing) ? StyleAsInput(*edit) : StyleAsResult(*edit);
    }
}

void AutoStationDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    optIncrements_Click();  // Form_Activate: every showing starts afresh
    ControlOf(RowOf(kAutoStationFields, &AutoStationing::txtPoints))->setFocus(Qt::OtherFocusReason);
}

void AutoStationDialog::optIncrements_Click() {
    m_state.ChooseIncrements();
    Scatter();
}

void AutoStationDialog::optSpacing_Click() {
    m_state.ChooseSpacing(m_copies);
    Scatter();
}

void AutoStationDialog::OKButton_Click() {
    Gather();
    if (Outcome refused = m_state.Accept()) {
        Refuse(m_platform, *this, {ToQString(refused->message)}, *Field(refused->field));
        return;
    }
    accept();
}

void AutoStationDialog::CancelButton_Click() {
    m_state.Cancel();
    QDialog::reject();
}

void AutoStationDialog::reject() {
    // Escape and the close box answer as Cancel does.
    CancelButton_Click();
}

}  // namespace gw
