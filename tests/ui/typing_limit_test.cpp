// A field's typing limit holds for every edit of the user and never cuts what the
// program writes.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>
#include <functional>

#include "ui/common/typing_limit.h"

namespace gw {
namespace {

struct EditCase {
    const char* name;
    const char* before;  // set by the program
    int cursor;
    std::function<void(QLineEdit&)> edit;
    const char* after;
};

void PrintTo(const EditCase& c, std::ostream* os) { *os << c.name; }

void Paste(QLineEdit& field, const char* text) {
    QApplication::clipboard()->setText(QString::fromLatin1(text));
    field.paste();
}

class TypingLimitTest : public ::testing::TestWithParam<EditCase> {};

TEST_P(TypingLimitTest, KeepsWhatFitsOfTheUsersEdit) {
    const EditCase& c = GetParam();
    QLineEdit field;
    SetTypingLimit(field, 5);
    field.setText(QString::fromLatin1(c.before));
    field.setCursorPosition(c.cursor);
    c.edit(field);
    EXPECT_EQ(field.text(), QString::fromLatin1(c.after));
}

INSTANTIATE_TEST_SUITE_P(
    Edits, TypingLimitTest,
    ::testing::Values(EditCase{"TypedPastTheLimit", "", 0, [](QLineEdit& f) { QTest::keyClicks(&f, "1234567"); },
                               "12345"},
                      EditCase{"PastedAtTheEnd", "12", 2, [](QLineEdit& f) { Paste(f, "987654321"); }, "12987"},
                      EditCase{"PastedInTheMiddle", "12", 1, [](QLineEdit& f) { Paste(f, "987654321"); }, "19872"},
                      EditCase{"PastedOverASelection", "12345", 1,
                               [](QLineEdit& f) {
                                   f.setSelection(1, 3);
                                   Paste(f, "abcdef");
                               },
                               "1abc5"},
                      EditCase{"ProgramTextIsNeverCut", "", 0, [](QLineEdit& f) { f.setText("100001"); }, "100001"},
                      EditCase{"NothingAddedToALongerProgramText", "100001", 6,
                               [](QLineEdit& f) { QTest::keyClicks(&f, "9"); }, "100001"},
                      EditCase{"DeletingFromALongerProgramText", "100001", 6,
                               [](QLineEdit& f) { QTest::keyClick(&f, Qt::Key_Backspace); }, "10000"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace gw
