#pragma once
// The platform seam for tests: answers are queued before the action that needs them,
// and everything shown is recorded. Nothing here blocks: a box or dialog that nobody
// queued an answer for is reported through the unexpected-event hook (the test
// fixture turns that into a failure) and answered with Cancel/OK.

#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

#include "platform/platform.h"

namespace gw {

class ScriptedPlatform final : public Platform {
public:
    // Runs against the shown dialog; it must answer it (click a button, press a key).
    using DialogScript = std::function<void(QDialog&)>;

    struct PrintedLine {
        int page;
        QString text;
    };

    ScriptedPlatform();
    ~ScriptedPlatform() override;

    void OnUnexpected(std::function<void(const QString&)> report) { m_unexpected = std::move(report); }

    void AnswerMessage(MessageButton answer) { m_messageAnswers.push_back(answer); }
    void AnswerDialog(DialogScript script) { m_dialogScripts.push_back(std::move(script)); }
    void AnswerOpenFile(std::optional<QString> path) { m_openAnswers.push_back(std::move(path)); }
    void AnswerSaveFile(std::optional<QString> path) { m_saveAnswers.push_back(std::move(path)); }
    void AnswerPrintDialog(std::optional<int> copies) { m_printAnswers.push_back(copies); }
    void SetNow(const QDateTime& now) { m_now = now; }
    void SetLocale(const QLocale& locale) { m_locale = locale; }

    const std::vector<MessageRequest>& Messages() const { return m_messages; }
    QStringList MessageTexts() const;
    const QStringList& ShownDialogs() const { return m_shownDialogs; }  // objectNames
    const std::vector<FileDialogRequest>& OpenRequests() const { return m_openRequests; }
    const std::vector<FileDialogRequest>& SaveRequests() const { return m_saveRequests; }
    const std::vector<PrintedLine>& Printed() const { return m_printed; }
    const QStringList& OpenedUrls() const { return m_openedUrls; }
    bool Busy() const { return m_busy; }
    // How often the busy pointer was put up, and how many boxes were shown under it
    // (a command must restore the pointer before it reports).
    int BusySpells() const { return m_busySpells; }
    int MessagesUnderBusyPointer() const { return m_messagesUnderBusy; }

    // Answers queued but never asked for: a test that expected a box it did not get.
    QStringList Unused() const;
    void ClearRecords();

    MessageButton ShowMessage(QWidget* owner, const MessageRequest& request) override;
    void ShowModal(QDialog& dialog) override;
    std::optional<QString> GetOpenFileName(QWidget* owner, const FileDialogRequest& request) override;
    std::optional<QString> GetSaveFileName(QWidget* owner, const FileDialogRequest& request) override;
    std::optional<int> ShowPrintDialog(QWidget* owner, int copies) override;
    std::unique_ptr<LinePrinter> StartPrintJob(const QString& documentName) override;
    // The store in the per-user configuration folder, as on the desktop: tests point
    // that folder (XDG_CONFIG_HOME) at a temporary one before the first use.
    SettingsStore& Settings() override;
    void SetBusyCursor(bool busy) override;
    QDateTime Now() const override;
    QLocale Locale() const override { return m_locale; }
    void OpenUrl(const QString& url) override { m_openedUrls << url; }

private:
    void Unexpected(const QString& what);

    std::function<void(const QString&)> m_unexpected;
    std::deque<MessageButton> m_messageAnswers;
    std::deque<DialogScript> m_dialogScripts;
    std::deque<std::optional<QString>> m_openAnswers, m_saveAnswers;
    std::deque<std::optional<int>> m_printAnswers;
    std::vector<MessageRequest> m_messages;
    QStringList m_shownDialogs;
    std::vector<FileDialogRequest> m_openRequests, m_saveRequests;
    std::vector<PrintedLine> m_printed;
    QStringList m_openedUrls;
    QDateTime m_now;
    QLocale m_locale = QLocale::c();
    std::unique_ptr<SettingsStore> m_settings;
    bool m_busy = false;
    int m_busySpells = 0;
    int m_messagesUnderBusy = 0;
};

}  // namespace gw
