// A modal window that the window manager minimises, maximises or makes full screen
// is put back, so its owner never waits for a window out of sight.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>

#include "platform/modal_guard.h"

namespace gw {
namespace {

struct StateCase {
    const char* name;
    ModalSize size;
    Qt::WindowState state;
    bool putBack;
};

void PrintTo(const StateCase& c, std::ostream* os) { *os << c.name; }

class ModalGuardTest : public ::testing::TestWithParam<StateCase> {};

TEST_P(ModalGuardTest, PutsBackWhatWouldHideItOrMisshapeAFixedDialog) {
    const StateCase& c = GetParam();
    QDialog dialog;
    if (c.size == ModalSize::Fixed) dialog.setFixedSize(200, 100);
    GuardModal(dialog, c.size);
    GuardModal(dialog, c.size);  // once is enough
    dialog.show();
    dialog.setWindowState(c.state);
    QApplication::processEvents();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.windowState() == Qt::WindowNoState, c.putBack);
    EXPECT_EQ(dialog.findChildren<QObject*>("gwModalGuard").size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    States, ModalGuardTest,
    ::testing::Values(StateCase{"FixedMinimised", ModalSize::Fixed, Qt::WindowMinimized, true},
                      StateCase{"FixedMaximised", ModalSize::Fixed, Qt::WindowMaximized, true},
                      StateCase{"FixedFullScreen", ModalSize::Fixed, Qt::WindowFullScreen, true},
                      StateCase{"ResizableMinimised", ModalSize::Resizable, Qt::WindowMinimized, true},
                      StateCase{"ResizableMaximisedStays", ModalSize::Resizable, Qt::WindowMaximized, false}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace gw
