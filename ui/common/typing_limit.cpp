#include "ui/common/typing_limit.h"

#include <QLineEdit>
#include <algorithm>

namespace gw {
namespace {

class TypingLimiter final : public QObject {
public:
    TypingLimiter(QLineEdit& field, int limit)
        : QObject(&field), m_field(field), m_limit(limit), m_before(field.text()) {
        // textEdited comes for the user's changes only, before textChanged, which comes
        // for every change: until then the text before the edit is still at hand.
        connect(&field, &QLineEdit::textEdited, this, &TypingLimiter::Enforce);
        connect(&field, &QLineEdit::textChanged, this, [this] { m_before = m_field.text(); });
    }

private:
    void Enforce(const QString& now) {
        const QString before = m_before;
        if (now.size() <= m_limit || now.size() <= before.size()) return;
        // What the edit put in: the text between what it left at the start and at the end.
        qsizetype start = 0;
        while (start < before.size() && before.at(start) == now.at(start)) ++start;
        qsizetype end = 0;
        while (end < before.size() - start && before.at(before.size() - 1 - end) == now.at(now.size() - 1 - end)) ++end;
        const qsizetype kept = start + end;
        const qsizetype room = std::max<qsizetype>(0, m_limit - kept);
        const QString added = now.mid(start, now.size() - kept);
        m_field.setText(before.left(start) + added.left(room) + before.right(end));
        m_field.setCursorPosition(int(start + room));
    }

    QLineEdit& m_field;
    const int m_limit;
    QString m_before;
};

}  // namespace

void SetTypingLimit(QLineEdit& field, int limit) {
    if (limit > 0) new TypingLimiter(field, limit);
}

}  // namespace gw
