#pragma once
// The platform seam on the real desktop.

#include <memory>

#include "platform/platform.h"

class QPrinter;

namespace gw {

class QtPlatform final : public Platform {
public:
    QtPlatform();
    ~QtPlatform() override;

    MessageButton ShowMessage(QWidget* owner, const MessageRequest& request) override;
    void ShowModal(QDialog& dialog) override;
    std::optional<QString> GetOpenFileName(QWidget* owner, const FileDialogRequest& request) override;
    std::optional<QString> GetSaveFileName(QWidget* owner, const FileDialogRequest& request) override;
    std::optional<int> ShowPrintDialog(QWidget* owner, int copies) override;
    std::unique_ptr<LinePrinter> StartPrintJob(const QString& documentName) override;
    SettingsStore& Settings() override;
    void SetBusyCursor(bool busy) override;
    QDateTime Now() const override;
    QLocale Locale() const override;
    void OpenUrl(const QString& url) override;

private:
    QPrinter& Printer();

    // Kept between the print dialog and the job, as the one printer the user chose.
    std::unique_ptr<QPrinter> m_printer;
    std::unique_ptr<SettingsStore> m_settings;
    bool m_busy = false;
};

}  // namespace gw
