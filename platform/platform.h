#pragma once
// The one seam between the program and the desktop: every message box, modal dialog,
// file and print dialog, the printer, the busy cursor, the clock and the shell's
// open-address request go through here, so tests can answer them without a person.
// The per-user settings store is reached through here too, so tests can point it at
// a folder of their own.

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "files/settings_store.h"
#include "print/line_printer.h"

class QDialog;
class QWidget;

namespace gw {

enum class MessageButton { Ok, Yes, No, Cancel };
enum class MessageButtons { Ok, YesNoCancel };
enum class MessageIcon { None, Information, Exclamation, Critical };

struct MessageRequest {
    QString title;
    QString text;
    MessageButtons buttons = MessageButtons::Ok;
    MessageIcon icon = MessageIcon::None;
    MessageButton defaultButton = MessageButton::Ok;
};

// One entry of a file dialog's filter list: what the user reads and the pattern of
// names it shows ("*.*" meaning every file, whatever the platform's own convention).
struct FileFilter {
    QString description;
    QString pattern;
};

// The dialogs never ask before overwriting, never check that the chosen name exists
// and never add an extension: the commands decide what a chosen name means.
struct FileDialogRequest {
    QString title;  // empty: the platform's own title for an open or a save dialog
    QString folder;
    QString fileName;  // proposed name
    std::vector<FileFilter> filters;
    int selectedFilter = 0;  // index into filters
};

// Where the per-user settings live: "Gradewise" in the platform's per-user
// configuration folder.
QString UserSettingsPath();

class Platform {
public:
    virtual ~Platform() = default;

    virtual MessageButton ShowMessage(QWidget* owner, const MessageRequest& request) = 0;

    // Shows one of our own dialogs modally and returns once it has hidden itself;
    // the caller reads the dialog's answer from the dialog afterwards, so the dialog
    // must not delete itself on closing.
    virtual void ShowModal(QDialog& dialog) = 0;

    // The chosen path, or nothing when the user cancelled.
    virtual std::optional<QString> GetOpenFileName(QWidget* owner, const FileDialogRequest& request) = 0;
    virtual std::optional<QString> GetSaveFileName(QWidget* owner, const FileDialogRequest& request) = 0;

    // The number of copies the user asked for, or nothing when cancelled.
    virtual std::optional<int> ShowPrintDialog(QWidget* owner, int copies) = 0;
    // A job on the printer last chosen in the print dialog (or the default one).
    virtual std::unique_ptr<LinePrinter> StartPrintJob(const QString& documentName) = 0;

    // The per-user settings store, kept between runs.
    virtual SettingsStore& Settings() = 0;

    virtual void SetBusyCursor(bool busy) = 0;
    virtual QDateTime Now() const = 0;
    virtual QLocale Locale() const = 0;
    virtual void OpenUrl(const QString& url) = 0;
};

// A message with one OK button under the application title: how every field and
// command refusal is reported.
void ShowRefusal(Platform& platform, QWidget* owner, const QString& text);

}  // namespace gw
