#pragma once
// frmInformation, "Measurement Info": asks for the unit system of a new curve. It is
// kept, hidden, for the whole run, so the next new curve starts from the last choice.

#include <QDialog>
#include <QString>

class QRadioButton;
class QPushButton;

namespace gw {

class frmInformation : public QDialog {
    Q_OBJECT

public:
    // Form_Load: Metric on.
    explicit frmInformation(QWidget* parent = nullptr);

    // The answer: "Metric,PVI", "English,PVI", or empty after Cancel.
    QString Tag() const { return m_tag; }
    bool MetricOn() const;
    bool EnglishOn() const;

    void cmdOK_Click();
    void cmdCancel_Click();

    // Escape and every other way of dismissing the dialog mean Cancel.
    void reject() override { cmdCancel_Click(); }

protected:
    // Every showing starts at the chosen option, so Enter means OK.
    void showEvent(QShowEvent* event) override;

private:
    QString m_tag;
    QRadioButton* m_optMetric = nullptr;
    QRadioButton* m_optEnglish = nullptr;
};

}  // namespace gw
