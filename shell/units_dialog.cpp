#include "shell/units_dialog.h"

#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "core/stations.h"
#include "platform/texts.h"
#include "ui/common/controls.h"
#include "ui/common/layout.h"

namespace gw {

frmInformation::frmInformation(QWidget* parent) : QDialog(parent) {
    // Answered with OK or Cancel only: no close box.
    SetUpFixedDialog(*this, "frmInformation", QStringLiteral("Measurement Info"), Twips(0, 0, 1965, 2355).size(),
                     CloseBox::None);

    auto* frame = new QGroupBox(QStringLiteral("Units"), this);
    frame->setObjectName(QStringLiteral("frUnits"));
    frame->setGeometry(Twips(240, 240, 1335, 1335));
    m_optMetric = new QRadioButton(ToQString(kMetric), frame);
    m_optMetric->setObjectName(QStringLiteral("optMetric"));
    m_optMetric->setGeometry(Twips(120, 360, 1095, 255));
    m_optEnglish = new QRadioButton(ToQString(kEnglish), frame);
    m_optEnglish->setObjectName(QStringLiteral("optEnglish"));
    m_optEnglish->setGeometry(Twips(120, 720, 1095, 255));

    QPushButton* ok = &AddButton(*this, "cmdOK", QStringLiteral("&OK"), Twips(120, 1800, 735, 375));
    ok->setDefault(true);
    QPushButton* cancel = &AddButton(*this, "cmdCancel", QStringLiteral("&Cancel"), Twips(960, 1800, 735, 375));
    connect(ok, &QPushButton::clicked, this, &frmInformation::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &frmInformation::cmdCancel_Click);

    setTabOrder(m_optMetric, m_optEnglish);
    setTabOrder(m_optEnglish, ok);
    setTabOrder(ok, cancel);
    m_optMetric->setChecked(true);
}

bool frmInformation::MetricOn() const { return m_optMetric->isChecked(); }
bool frmInformation::EnglishOn() const { return m_optEnglish->isChecked(); }

void frmInformation::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    (MetricOn() ? m_optMetric : m_optEnglish)->setFocus(Qt::OtherFocusReason);
}

void frmInformation::cmdOK_Click() {
    if (MetricOn()) {
        m_tag = ToQString(kMetric) + QStringLiteral(",PVI");
    } else if (EnglishOn()) {
        m_tag = ToQString(kEnglish) + QStringLiteral(",PVI");
    }
    accept();
}

void frmInformation::cmdCancel_Click() {
    m_tag.clear();
    QDialog::reject();
}

}  // namespace gw
