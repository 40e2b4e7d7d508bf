// Every caption of every window is whole inside its control at its laid-out place,
// and no control runs into another.

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <functional>

#include "shell/about_box.h"
#include "shell/units_dialog.h"
#include "tests/ui/ui_fixture.h"
#include "ui/elevations/auto_station_dialog.h"

namespace gw::test {
namespace {

QString WithoutMnemonic(QString text) { return text.remove(QRegularExpression("&(?!&)")); }

// The width a control leaves its caption, and the caption's width.
struct Room {
    int needed;
    int available;
};

std::optional<Room> CaptionRoom(QWidget& w) {
    w.ensurePolished();
    const QFontMetrics metrics = w.fontMetrics();
    if (auto* label = qobject_cast<QLabel*>(&w)) {
        if (label->text().isEmpty() || label->wordWrap()) return std::nullopt;
        return Room{metrics.horizontalAdvance(WithoutMnemonic(label->text())), label->contentsRect().width()};
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&w)) {
        if (button->text().isEmpty()) return std::nullopt;
        QStyleOptionButton option;
        option.initFrom(button);
        // What the style puts round an empty caption: frame and margins, or the indicator.
        const QStyle::ContentsType type = qobject_cast<QRadioButton*>(button) ? QStyle::CT_RadioButton
                                          : qobject_cast<QCheckBox*>(button)  ? QStyle::CT_CheckBox
                                                                              : QStyle::CT_PushButton;
        const int around = button->style()->sizeFromContents(type, &option, QSize(0, 0), button).width();
        return Room{metrics.horizontalAdvance(WithoutMnemonic(button->text())), button->width() - around};
    }
    if (auto* group = qobject_cast<QGroupBox*>(&w)) {
        if (group->title().isEmpty()) return std::nullopt;
        return Room{metrics.horizontalAdvance(WithoutMnemonic(group->title())), group->width() - 2 * metrics.height()};
    }
    return std::nullopt;
}

struct WindowCase {
    const char* name;
    std::function<QWidget*(UiTest&, frmMain&)> make;
};

void PrintTo(const WindowCase& c, std::ostream* os) { *os << c.name; }

class CaptionsFitTest : public UiTest, public ::testing::WithParamInterface<WindowCase> {
public:
    frmCrestCurve& Curve() { return NewCurve(); }
    // Owned by the main window, which the fixture closes.
    QWidget* AutoStation() { return new AutoStationDialog(m_platform, &Main()); }
};

TEST_P(CaptionsFitTest, EveryCaptionIsWholeAndNoControlRunsIntoAnother) {
    QWidget* window = GetParam().make(*this, Main());
    ASSERT_NE(window, nullptr);
    const QList<QWidget*> controls = window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* c : window->findChildren<QWidget*>()) {
        if (!c->isVisibleTo(window)) continue;
        if (const std::optional<Room> room = CaptionRoom(*c)) {
            EXPECT_LE(room->needed, room->available)
                << c->objectName().toStdString() << " \"" << c->property("text").toString().toStdString() << "\"";
        }
    }
    for (QWidget* a : controls) {
        if (!a->isVisibleTo(window) || a->objectName() == "Picture1") continue;
        EXPECT_TRUE(window->rect().contains(a->geometry())) << a->objectName().toStdString();
        for (QWidget* b : controls) {
            if (a >= b || !b->isVisibleTo(window) || b->objectName() == "Picture1") continue;
            // A frame drawn round its options holds them.
            if (qobject_cast<QGroupBox*>(a) || qobject_cast<QGroupBox*>(b)) continue;
            EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                << a->objectName().toStdString() << " \"" << a->property("text").toString().toStdString() << "\" / "
                << b->objectName().toStdString() << " \"" << b->property("text").toString().toStdString() << "\"";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Windows, CaptionsFitTest,
    ::testing::Values(
        WindowCase{"CurveWindow",
                   [](UiTest& t, frmMain&) -> QWidget* { return &static_cast<CaptionsFitTest&>(t).Curve(); }},
        WindowCase{"ElevationsWindow",
                   [](UiTest& t, frmMain& main) -> QWidget* {
                       return main.Slots()[static_cast<CaptionsFitTest&>(t).Curve().Slot()].elevationsWindow.get();
                   }},
        WindowCase{"AutoStationingDialog",
                   [](UiTest& t, frmMain&) -> QWidget* { return static_cast<CaptionsFitTest&>(t).AutoStation(); }},
        WindowCase{"UnitsDialog", [](UiTest&, frmMain& main) -> QWidget* { return &main.UnitsDialog(); }},
        WindowCase{"AboutBox", [](UiTest&, frmMain& main) -> QWidget* { return new frmAbout(&main); }}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace gw::test
