// New curve: the units dialog, window slots and the first state of a new window.

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "shell/units_dialog.h"
#include "ui_fixture.h"

namespace gw::test {
namespace {

class NewCurveTest : public UiTest {};

TEST_F(NewCurveTest, FirstCurveOffersMetricAndOpensAnUntitledMetricWindow) {
    frmMain& main = Main();
    bool metricOffered = false;
    m_platform.AnswerDialog([&](QDialog& dialog) {
        metricOffered = dialog.findChild<QRadioButton*>(QStringLiteral("optMetric"))->isChecked();
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Measurement Info"));
        EXPECT_FALSE(dialog.windowFlags() & Qt::WindowCloseButtonHint);
        QTest::keyClick(&dialog, Qt::Key_Return);  // Enter = OK
    });
    main.mnuVerticalCrest_Click();
    Settle();

    EXPECT_TRUE(metricOffered);
    EXPECT_EQ(m_platform.ShownDialogs(), QStringList{QStringLiteral("frmInformation")});
    frmCrestCurve* curve = main.ActiveCurveWindow();
    ASSERT_NE(curve, nullptr);
    EXPECT_EQ(curve->windowTitle(), QStringLiteral("Vertical Curve - Metric: Untitled"));
    EXPECT_EQ(curve->Tag(), QStringLiteral("1"));
    EXPECT_EQ(curve->UnitSystem(), QStringLiteral("Metric"));
    EXPECT_FALSE(main.Slots().State(1).changed);
    EXPECT_FALSE(main.UnitsDialog().isVisible());
}

TEST_F(NewCurveTest, EnglishChoiceTitlesTheWindowAndIsOfferedNextTime) {
    frmCrestCurve& english = NewCurve(false);
    EXPECT_EQ(english.windowTitle(), QStringLiteral("Vertical Curve - English: Untitled"));
    EXPECT_EQ(english.UnitSystem(), QStringLiteral("English"));

    bool englishOffered = false;
    m_platform.AnswerDialog([&](QDialog& dialog) {
        englishOffered = dialog.findChild<QRadioButton*>(QStringLiteral("optEnglish"))->isChecked();
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    });
    Main().mnuVerticalCrest_Click();
    EXPECT_TRUE(englishOffered);
    EXPECT_EQ(Main().ActiveCurveWindow()->Tag(), QStringLiteral("2"));
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
    EXPECT_TRUE(main.UnitsDialog().Tag().isEmpty());
    EXPECT_FALSE(main.Slots().AnyCurveWindowOpen());

    main.mnuVerticalCrest_Click();
    ASSERT_NE(main.ActiveCurveWindow(), nullptr);
    EXPECT_EQ(main.ActiveCurveWindow()->Tag(), QStringLiteral("1"));
    EXPECT_EQ(main.ActiveCurveWindow()->UnitSystem(), QStringLiteral("English"));
}

INSTANTIATE_TEST_SUITE_P(
    Units, CancelTest,
    ::testing::Values(CancelWay{"Escape", [](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }},
                      CancelWay{"CancelButton",
                                [](QDialog& d) {
                                    QTest::mouseClick(d.findChild<QPushButton*>(QStringLiteral("cmdCancel")),
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
    EXPECT_TRUE(Main().Slots().State(2).free);

    EXPECT_EQ(NewCurve().Tag(), QStringLiteral("2"));
    EXPECT_EQ(NewCurve().Tag(), QStringLiteral("4"));
    EXPECT_EQ(Main().Slots().Count(), 5);  // slot 0 is never handed out
}

TEST_F(NewCurveTest, ReusedSlotStartsWithEmptyElevationsAndUnchanged) {
    frmCrestCurve& first = NewCurve();
    Main().Slots().Elevations(1).rows[3].txtTOTSTA1 = "12";
    Main().Slots().Elevations(1).txtXSlope = "2";
    ClickInto(first.Field("txtG1"));
    QTest::keyClick(first.Field("txtG1"), Qt::Key_5);
    m_platform.AnswerMessage(MessageButton::No);  // closed unsaved
    first.parentWidget()->close();
    Settle();

    frmCrestCurve& again = NewCurve();
    ASSERT_EQ(again.Tag(), QStringLiteral("1"));
    EXPECT_FALSE(Main().Slots().State(1).changed);
    EXPECT_TRUE(Main().Slots().Elevations(1).rows[3].txtTOTSTA1.empty());
    EXPECT_TRUE(Main().Slots().Elevations(1).txtXSlope.empty());
}

}  // namespace
}  // namespace gw::test
