// New curve: the units dialog, window slots and the first state of a new window.

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "shell/units_dialog.h"
#include "tests/qt_test_printers.h"
#include "tests/ui/ui_fixture.h"

namespace gw::test {
namespace {

class NewCurveTest : public UiTest {};

TEST_F(NewCurveTest, TheUnitsDialogOffersTheLastChoiceAndTitlesTheWindowByIt) {
    frmMain& main = Main();
    QStringList offered;
    auto answer = [&](const char* choose) {
        m_platform.AnswerDialog([&offered, choose](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Measurement Info");
            EXPECT_FALSE(dialog.windowFlags() & Qt::WindowCloseButtonHint);
            for (auto* option : dialog.findChildren<QRadioButton*>()) {
                if (option->isChecked()) offered << option->objectName();
            }
            if (choose) QTest::mouseClick(dialog.findChild<QRadioButton*>(choose), Qt::LeftButton);
            QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
        });
        main.mnuVerticalCrest_Click();
        Settle();
        return main.ActiveCurveWindow();
    };
    frmCrestCurve* metric = answer(nullptr);
    ASSERT_NE(metric, nullptr);
    EXPECT_EQ(metric->windowTitle(), "Vertical Curve - Metric: Untitled");
    EXPECT_FALSE(main.Slots()[1].changed);
    answer("optEnglish");
    frmCrestCurve* english = answer(nullptr);
    EXPECT_EQ(english->windowTitle(), "Vertical Curve - English: Untitled");
    EXPECT_EQ(english->UnitSystem(), "English");
    EXPECT_EQ(offered, (QStringList{"optMetric", "optMetric", "optEnglish"}));
}

struct CancelWay {
    const char* name;
    std::function<void(QDialog&)> answer;
};

void PrintTo(const CancelWay& c, std::ostream* os) { *os << c.name; }

class CancelTest : public UiTest, public ::testing::WithParamInterface<CancelWay> {};

TEST_P(CancelTest, OpensNoWindowAndTakesNoSlot) {
    frmMain& main = Main();
    m_platform.AnswerDialog([](QDialog& dialog) {
        // The choice made before cancelling is still kept for next time.
        QTest::mouseClick(dialog.findChild<QRadioButton*>(QStringLiteral("optEnglish")), Qt::LeftButton);
        GetParam().answer(dialog);
    });
    m_platform.AnswerDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });

    main.mnuVerticalCrest_Click();
    EXPECT_TRUE(main.MdiArea().subWindowList().isEmpty());

    main.mnuVerticalCrest_Click();
    ASSERT_NE(main.ActiveCurveWindow(), nullptr);
    EXPECT_EQ(main.ActiveCurveWindow()->Tag(), QStringLiteral("1"));
    EXPECT_EQ(main.ActiveCurveWindow()->UnitSystem(), QStringLiteral("English"));
}

INSTANTIATE_TEST_SUITE_P(Units, CancelTest,
                         ::testing::Values(CancelWay{"Escape", [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }},
                                           CancelWay{"CancelButton",
                                                     [](QDialog& d) {
                                                         QTest::mouseClick(
                                                             d.findChild<QPushButton*>(QStringLiteral("cmdCancel")),
                                                             Qt::LeftButton);
                                                     }}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(NewCurveTest, ClosedSlotIsReusedLowestFirstThenTheTablesGrow) {
    NewCurve();
    frmCrestCurve& second = NewCurve();
    NewCurve();
    ASSERT_EQ(second.Tag(), QStringLiteral("2"));

    second.parentWidget()->close();  // the window's close box
    Settle();

    EXPECT_EQ(NewCurve().Tag(), QStringLiteral("2"));
    EXPECT_EQ(NewCurve().Tag(), QStringLiteral("4"));
    EXPECT_EQ(Main().Slots().Count(), 5);  // slot 0 is never handed out
}

}  // namespace
}  // namespace gw::test
