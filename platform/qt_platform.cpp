#include "platform/qt_platform.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QSettings>
#include <QUrl>

#include "platform/modal_guard.h"
#include "print/page_printer.h"

namespace gw {
namespace {

QMessageBox::StandardButton ToQt(MessageButton button) {
    switch (button) {
        case MessageButton::Ok: return QMessageBox::Ok;
        case MessageButton::Yes: return QMessageBox::Yes;
        case MessageButton::No: return QMessageBox::No;
        case MessageButton::Cancel: return QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon ToQt(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None: return QMessageBox::NoIcon;
        case MessageIcon::Information: return QMessageBox::Information;
        case MessageIcon::Exclamation: return QMessageBox::Warning;
        case MessageIcon::Critical: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

// A Qt name filter that shows `description` alone and filters by `pattern`; "*.*"
// means every file, which on this platform is "*" (names need not hold a dot).
QString QtNameFilter(const FileFilter& filter) {
    const QString pattern = filter.pattern == QLatin1String("*.*") ? QStringLiteral("*") : filter.pattern;
    return QStringLiteral("%1 (%2)").arg(filter.description, pattern);
}

std::optional<QString> RunFileDialog(QWidget* owner, const FileDialogRequest& request, QFileDialog::AcceptMode mode) {
    QFileDialog dialog(owner, request.title, request.folder);
    dialog.setAcceptMode(mode);
    // Any name may be chosen, existing or not: the commands report a missing file.
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOptions(QFileDialog::DontConfirmOverwrite | QFileDialog::HideNameFilterDetails);
    QStringList filters;
    for (const FileFilter& f : request.filters) filters << QtNameFilter(f);
    dialog.setNameFilters(filters);
    if (request.selectedFilter >= 0 && request.selectedFilter < filters.size()) {
        dialog.selectNameFilter(filters.at(request.selectedFilter));
    }
    if (!request.fileName.isEmpty()) dialog.selectFile(request.fileName);
    GuardModal(dialog, ModalSize::Resizable);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QStringList chosen = dialog.selectedFiles();
    if (chosen.isEmpty() || chosen.first().isEmpty()) return std::nullopt;
    return chosen.first();
}

// Each copy of the report is a page of its own, printed by the report itself: a
// page range, a set of odd or even pages, collating or reversing would pick or
// reorder copies. Where the printing system can select pages itself the dialog
// shows those choices whatever its options say, so they are hidden once it is up.
class PrintChoicesHider final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Show) {
            for (const char* name :
                 {"gbPrintRange", "pageSetLabel", "pageSetCombo", "collate", "reverse", "outputIcon"}) {
                if (auto* w = watched->findChild<QWidget*>(QString::fromLatin1(name))) w->hide();
            }
        }
        return false;
    }
};

void OfferOnlyPrinterAndCopies(QPrintDialog& dialog) { dialog.installEventFilter(new PrintChoicesHider(&dialog)); }

}  // namespace

QtPlatform::QtPlatform() {
    // Qt's own dialogs keep their state (the file dialog's last folder and history) in
    // Qt's settings; only the program's own store may be written per user, so Qt's
    // settings are sent where no file can be made, for root too.
    for (QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, QStringLiteral("/dev/null"));
    }
}
QtPlatform::~QtPlatform() = default;

MessageButton QtPlatform::ShowMessage(QWidget* owner, const MessageRequest& request) {
    QMessageBox box(ToQt(request.icon), request.title, request.text, QMessageBox::NoButton, owner);
    if (request.buttons == MessageButtons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
    } else {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    }
    box.setDefaultButton(ToQt(request.defaultButton));
    GuardModal(box, ModalSize::Fixed);
    switch (box.exec()) {
        case QMessageBox::Yes: return MessageButton::Yes;
        case QMessageBox::No: return MessageButton::No;
        case QMessageBox::Cancel: return MessageButton::Cancel;
        default: return request.buttons == MessageButtons::Ok ? MessageButton::Ok : MessageButton::Cancel;
    }
}

void QtPlatform::ShowModal(QDialog& dialog) {
    // Our own dialogs are all laid out at a fixed size.
    GuardModal(dialog, ModalSize::Fixed);
    dialog.exec();
}

std::optional<QString> QtPlatform::GetOpenFileName(QWidget* owner, const FileDialogRequest& request) {
    return RunFileDialog(owner, request, QFileDialog::AcceptOpen);
}

std::optional<QString> QtPlatform::GetSaveFileName(QWidget* owner, const FileDialogRequest& request) {
    return RunFileDialog(owner, request, QFileDialog::AcceptSave);
}

SettingsStore& QtPlatform::Settings() {
    if (!m_settings) m_settings = std::make_unique<SettingsStore>(UserSettingsPath().toStdString());
    return *m_settings;
}

QPrinter& QtPlatform::Printer() {
    if (!m_printer) m_printer = std::make_unique<QPrinter>();
    return *m_printer;
}

std::optional<int> QtPlatform::ShowPrintDialog(QWidget* owner, int copies) {
    QPrinter& printer = Printer();
    printer.setCopyCount(copies);
    QPrintDialog dialog(&printer, owner);
    // One page, no selection or page choices, and no printing to a file.
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
    dialog.setMinMax(1, 1);
    printer.setFromTo(1, 1);
    OfferOnlyPrinterAndCopies(dialog);
    GuardModal(dialog, ModalSize::Resizable);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    printer.setPrintRange(QPrinter::AllPages);
    printer.setPageOrder(QPrinter::FirstPageFirst);
    // The report prints each copy itself, so the printer must not repeat it.
    const int chosen = printer.copyCount();
    printer.setCopyCount(1);
    return chosen;
}

std::unique_ptr<LinePrinter> QtPlatform::StartPrintJob(const QString& documentName) {
    Printer().setDocName(documentName);
    return std::make_unique<PagePrinter>(Printer());
}

void QtPlatform::SetBusyCursor(bool busy) {
    if (busy == m_busy) return;
    m_busy = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

QDateTime QtPlatform::Now() const { return QDateTime::currentDateTime(); }

QLocale QtPlatform::Locale() const { return QLocale::system(); }

void QtPlatform::OpenUrl(const QString& url) { QDesktopServices::openUrl(QUrl(url)); }

}  // namespace gw
