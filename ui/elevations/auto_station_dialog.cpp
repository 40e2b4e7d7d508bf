#include "auto_station_dialog.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/platform.h"
#include "ui/common/field_style.h"
#include "ui/common/leave_checks.h"
#include "ui/common/typing_limit.h"
#include "ui/elevations/elevations_texts.h"

namespace gw {
namespace {

std::string S(const QString& text) { return text.toStdString(); }
QString Q(const std::string& text) { return QString::fromStdString(text); }

}  // namespace

AutoStationDialog::AutoStationDialog(Platform& platform, QWidget* parent) : QDialog(parent), m_platform(platform) {
    SetUpFixedDialog(*this, "dlgAuto", auto_station_text::kCaption, QSize(222, 222));
    m_checks = new LeaveChecks(platform, *this);
    BuildControls();
    for (QLineEdit* field : {m_txtPoints, m_txtBeginSTA, m_txtBeginSTAM, m_txtIncSTA, m_txtIncSTAM}) {
        m_checks->Watch(*field, [this](QLineEdit& f) {
            Gather();
            std::vector<QString> out;
            for (std::string_view m : m_state.CheckOnLeave(AutoStationFieldNamed(S(f.objectName())))) out.push_back(Q(std::string(m)));
            return out;
        });
    }
    optIncrements_Click();  // Form_Load
}

void AutoStationDialog::BuildControls() {
    using namespace auto_station_text;
    auto* frame = new QGroupBox(kFrame, this);
    frame->setObjectName("Frame1");
    frame->setGeometry(8, 16, 185, 41);
    m_optIncrements = new QRadioButton(kIncrements, this);
    m_optIncrements->setObjectName("optIncrements");
    m_optIncrements->setGeometry(24, 32, 73, 17);
    m_optSpacing = new QRadioButton(kSpacing, this);
    m_optSpacing->setObjectName("optSpacing");
    m_optSpacing->setGeometry(112, 32, 73, 17);
    connect(m_optIncrements, &QRadioButton::clicked, this, &AutoStationDialog::optIncrements_Click);
    connect(m_optSpacing, &QRadioButton::clicked, this, &AutoStationDialog::optSpacing_Click);

    auto label = [this](const char* name, const char* text, int l, int t, int w) {
        auto* lbl = new QLabel(text, this);
        lbl->setObjectName(name);
        lbl->setGeometry(l, t, w, 17);
    };
    auto field = [this](const char* name, int l, int t, int w, int maxLength, const char* tip) {
        auto* f = new QLineEdit(this);
        f->setObjectName(name);
        f->setAccessibleName(name);
        f->setGeometry(l, t, w, 19);
        // A limit on typing only: the beginning station the dialog proposes is the
        // curve's and keeps every digit.
        if (maxLength > 0) SetTypingLimit(*f, maxLength);
        if (tip) f->setToolTip(tip);
        return f;
    };
    label("lblPoints", kPoints, 16, 80, 105);
    m_txtPoints = field("txtPoints", 128, 80, 33, 2, kPointsTip);
    label("lblBeginSTA", kBegin, 8, 120, 89);
    m_txtBeginSTA = field("txtBeginSTA", 104, 120, 33, 5, kBeginTip);
    label("lblplus", "+", 144, 120, 9);
    m_txtBeginSTAM = field("txtBeginSTAM", 160, 120, 49, 0, kBeginTip);
    label("lblIncrement", kIncrement, 40, 152, 57);
    m_txtIncSTA = field("txtIncSTA", 104, 152, 33, 5, nullptr);
    label("lblplus1", "+", 144, 152, 9);
    m_txtIncSTAM = field("txtIncSTAM", 160, 152, 49, 0, nullptr);

    m_OKButton = new QPushButton(kOK, this);
    m_OKButton->setObjectName("OKButton");
    m_OKButton->setGeometry(88, 192, 57, 25);
    m_CancelButton = new QPushButton(kCancel, this);
    m_CancelButton->setObjectName("CancelButton");
    m_CancelButton->setGeometry(152, 192, 57, 25);
    // Cancel is both the default and the cancel button: Enter in a field cancels,
    // while a button that has the focus takes Enter itself.
    m_OKButton->setAutoDefault(true);
    m_CancelButton->setDefault(true);
    connect(m_OKButton, &QPushButton::clicked, this, &AutoStationDialog::OKButton_Click);
    connect(m_CancelButton, &QPushButton::clicked, this, &AutoStationDialog::CancelButton_Click);

    QWidget* order[] = {m_txtBeginSTA, m_txtPoints,  m_txtBeginSTAM,  m_txtIncSTA,
                        m_txtIncSTAM,  m_OKButton,   m_CancelButton,  m_optIncrements};
    for (size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

QLineEdit* AutoStationDialog::Field(std::string_view name) const {
    for (QLineEdit* f : {m_txtPoints, m_txtBeginSTA, m_txtBeginSTAM, m_txtIncSTA, m_txtIncSTAM}) {
        if (f->objectName() == QLatin1String(name.data(), int(name.size()))) return f;
    }
    return nullptr;
}

void AutoStationDialog::Prepare(const CurveSheet& sheet) {
    m_copies = sheet.elevations;
    m_state.unitSystem = sheet.lblMorF;
}

void AutoStationDialog::Gather() {
    for (std::string_view name : {"txtPoints", "txtBeginSTA", "txtBeginSTAM", "txtIncSTA", "txtIncSTAM"}) {
        *m_state.Field(name) = S(Field(name)->text());
    }
}

void AutoStationDialog::Scatter() {
    m_optIncrements->setChecked(!m_state.optSpacing);
    m_optSpacing->setChecked(m_state.optSpacing);
    for (std::string_view name : {"txtPoints", "txtBeginSTA", "txtBeginSTAM", "txtIncSTA", "txtIncSTAM"}) {
        Field(name)->setText(Q(*m_state.Field(name)));
    }
    const bool spacing = m_state.optSpacing;
    spacing ? StyleAsResult(*m_txtPoints) : StyleAsInput(*m_txtPoints);
    for (QLineEdit* f : {m_txtBeginSTA, m_txtBeginSTAM, m_txtIncSTA, m_txtIncSTAM}) {
        spacing ? StyleAsInput(*f) : StyleAsResult(*f);
    }
}

void AutoStationDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    optIncrements_Click();  // Form_Activate: every showing starts afresh
    m_txtPoints->setFocus(Qt::OtherFocusReason);
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
        ShowRefusal(m_platform, this, Q(refused->message));
        activateWindow();
        if (QLineEdit* f = Field(refused->field)) f->setFocus(Qt::OtherFocusReason);
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
