#pragma once
// The platform seam for tests: answers are queued before the action that needs them,
// and everything shown is recorded. Nothing here blocks: a box or dialog that nobody
// queued an answer for is reported through the unexpected-event hook (the test
// fixture turns that into a failure) and answered with Cancel/OK.

#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

#include "platform.h"

namespace gw {

class ScriptedPlatform final : public Platform {
public:
    // Runs against the shown dialog; it must answer it (click a button, press a key).
    using DialogScript = std::function<void(QDialog&)>;

    struct PrintedLine {
        int page;
        QString text;
    };

    void OnUnexpected(std::function<void(const QString&)> report) { m_unexpected = std::move(report); }

    void AnswerMessage(MessageButton answer) { m_messageAnswers.push_back(answer); }
    void AnswerDialog(DialogScript script) { m_dialogScripts.push_back(std::move(script)); }
    void AnswerOpenFile(std::optional<QString> path) { m_openAnswers.push_back(std::move(path)); }
    void AnswerSaveFile(std::optional<QString> path) { m_saveAnswers.push_back(std::move(path)); }
    void AnswerPrintDialog(std::optional<int> copies) { m_printAnswers.push_back(copies); }
    void SetNow(const QDateTime& now) { m_now = now; }

    const std::vector<MessageRequest>& Messages() const { return m_messages; }
    QStringList MessageTexts() const;
    const QStringList& ShownDialogs() const { return m_shownDialogs; }  // objectNames
    const std::vector<FileDialogRequest>& OpenRequests() const { return m_openRequests; }
    const std::vector<FileDialogRequest>& SaveRequests() const { return m_saveRequests; }
    const std::vector<PrintedLine>& Printed() const { return m_printed; }
    const QStringList& OpenedUrls() const { return m_openedUrls; }
    bool Busy() const { return m_busy; }

    // Answers queued but never asked for: a test that expected a box it did not get.
    QStringList Unused() const;
    void ClearRecords();

    MessageButton ShowMessage(QWidget* owner, const MessageRequest& request) override;
    void ShowModal(QDialog& dialog) override;
    std::optional<QString> GetOpenFileName(QWidget* owner, const FileDialogRequest& request) override;
    std::optional<QString> GetSaveFileName(QWidget* owner, const FileDialogRequest& request) override;
    std::optional<int> ShowPrintDialog(QWidget* owner, int copies) override;
    std::unique_ptr<LinePrinter> StartPrintJob(const QString& documentName) override;
    void SetBusyCursor(bool busy) override { m_busy = busy; }
    QDateTime Now() const override;
    QLocale Locale() const override { return QLocale::c(); }
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
    bool m_busy = false;
};

}  // namespace gw
