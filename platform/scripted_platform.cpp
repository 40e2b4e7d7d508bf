#include "platform/scripted_platform.h"

#include <QDialog>
#include <QWindow>

namespace gw {
namespace {

class RecordingPrinter final : public LinePrinter {
public:
    explicit RecordingPrinter(std::vector<ScriptedPlatform::PrintedLine>& out) : m_out(out) {}
    void SetFont(const QString&, double) override {}
    void PrintLine(const QString& text) override { m_out.push_back({m_page, text}); }
    void NewPage() override { ++m_page; }
    bool EndDoc() override { return true; }

private:
    std::vector<ScriptedPlatform::PrintedLine>& m_out;
    int m_page = 1;
};

// Moves the next queued answer into `out`; false when nothing is queued.
template <class T>
bool TakeNext(std::deque<T>& queue, T& out) {
    if (queue.empty()) return false;
    out = std::move(queue.front());
    queue.pop_front();
    return true;
}

}  // namespace

ScriptedPlatform::ScriptedPlatform() = default;
ScriptedPlatform::~ScriptedPlatform() = default;

void ScriptedPlatform::Unexpected(const QString& what) {
    if (m_unexpected) m_unexpected(what);
}

QStringList ScriptedPlatform::MessageTexts() const {
    QStringList texts;
    for (const MessageRequest& m : m_messages) texts << m.text;
    return texts;
}

QStringList ScriptedPlatform::Unused() const {
    QStringList unused;
    if (!m_messageAnswers.empty()) unused << QStringLiteral("%1 message answer(s)").arg(m_messageAnswers.size());
    if (!m_dialogScripts.empty()) unused << QStringLiteral("%1 dialog script(s)").arg(m_dialogScripts.size());
    if (!m_openAnswers.empty()) unused << QStringLiteral("%1 open-file answer(s)").arg(m_openAnswers.size());
    if (!m_saveAnswers.empty()) unused << QStringLiteral("%1 save-file answer(s)").arg(m_saveAnswers.size());
    if (!m_printAnswers.empty()) unused << QStringLiteral("%1 print answer(s)").arg(m_printAnswers.size());
    return unused;
}

void ScriptedPlatform::ClearRecords() {
    m_messages.clear();
    m_shownDialogs.clear();
    m_openRequests.clear();
    m_saveRequests.clear();
    m_printed.clear();
    m_openedUrls.clear();
}

MessageButton ScriptedPlatform::ShowMessage(QWidget* owner, const MessageRequest& request) {
    m_messages.push_back(request);
    // A box must come over its window, not before the window is on the screen.
    const QWindow* handle = owner ? owner->window()->windowHandle() : nullptr;
    if (owner && (!handle || !handle->isExposed())) {
        Unexpected(QStringLiteral("message box before its window is on the screen: \"%1\"").arg(request.text));
    }
    if (m_busy) ++m_messagesUnderBusy;
    MessageButton answer{};
    if (TakeNext(m_messageAnswers, answer)) return answer;
    Unexpected(QStringLiteral("unexpected message box: \"%1\"").arg(request.text));
    return request.buttons == MessageButtons::Ok ? MessageButton::Ok : MessageButton::Cancel;
}

void ScriptedPlatform::ShowModal(QDialog& dialog) {
    m_shownDialogs << dialog.objectName();
    // A real modal run frees such a dialog before its caller reads the answer.
    if (dialog.testAttribute(Qt::WA_DeleteOnClose)) {
        Unexpected(QStringLiteral("dialog deletes itself on closing: %1").arg(dialog.objectName()));
    }
    // Shown modelessly so the script's key clicks and focus changes reach real widgets;
    // the script answers it and we return, with no event loop of our own.
    dialog.show();
    dialog.activateWindow();
    DialogScript script;
    if (TakeNext(m_dialogScripts, script)) {
        script(dialog);
    } else {
        Unexpected(QStringLiteral("unexpected dialog: %1").arg(dialog.objectName()));
    }
    if (dialog.isVisible()) {
        if (script) Unexpected(QStringLiteral("dialog left open by its script: %1").arg(dialog.objectName()));
        dialog.reject();
    }
}

std::optional<QString> ScriptedPlatform::GetOpenFileName(QWidget*, const FileDialogRequest& request) {
    m_openRequests.push_back(request);
    std::optional<QString> answer;
    if (TakeNext(m_openAnswers, answer)) return answer;
    Unexpected(QStringLiteral("unexpected open-file dialog: %1").arg(request.title));
    return std::nullopt;
}

std::optional<QString> ScriptedPlatform::GetSaveFileName(QWidget*, const FileDialogRequest& request) {
    m_saveRequests.push_back(request);
    std::optional<QString> answer;
    if (TakeNext(m_saveAnswers, answer)) return answer;
    Unexpected(QStringLiteral("unexpected save-file dialog: %1").arg(request.title));
    return std::nullopt;
}

std::optional<int> ScriptedPlatform::ShowPrintDialog(QWidget*, int) {
    std::optional<int> answer;
    if (TakeNext(m_printAnswers, answer)) return answer;
    Unexpected(QStringLiteral("unexpected print dialog"));
    return std::nullopt;
}

std::unique_ptr<LinePrinter> ScriptedPlatform::StartPrintJob(const QString&) {
    return std::make_unique<RecordingPrinter>(m_printed);
}

SettingsStore& ScriptedPlatform::Settings() {
    if (!m_settings) m_settings = std::make_unique<SettingsStore>(UserSettingsPath().toStdString());
    return *m_settings;
}

void ScriptedPlatform::SetBusyCursor(bool busy) {
    if (busy && !m_busy) ++m_busySpells;
    m_busy = busy;
}

QDateTime ScriptedPlatform::Now() const {
    return m_now.isValid() ? m_now : QDateTime(QDate(2024, 3, 15), QTime(14, 30, 5));
}

}  // namespace gw
