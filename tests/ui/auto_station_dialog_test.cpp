#include <QRadioButton>

#include "elevations_fixture.h"

namespace gw::test {
namespace {

class AutoStationTest : public ElevationsFixture {
protected:
    // Queues the dialog's answer, then presses AutoStationing.
    void AutoStation(std::function<void(AutoStationDialog&)> answer) {
        platform.AnswerDialog([answer](QDialog& d) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&d));
            answer(static_cast<AutoStationDialog&>(d));
        });
        Click("cmdAutoStation");
    }

    static void Set(AutoStationDialog& d, const char* field, const char* text) {
        QLineEdit* f = d.Field(field);
        f->setFocus();
        f->selectAll();
        QTest::keyClicks(f, text);
    }

    static void Spacing(AutoStationDialog& d, const char* bSta, const char* bStam, const char* iSta, const char* iStam) {
        d.findChild<QRadioButton*>("optSpacing")->click();
        Set(d, "txtBeginSTA", bSta);
        Set(d, "txtBeginSTAM", bStam);
        Set(d, "txtIncSTA", iSta);
        Set(d, "txtIncSTAM", iStam);
    }

    static void Press(AutoStationDialog& d, const char* button) { d.findChild<QPushButton*>(button)->click(); }

    QStringList Stations() {
        QStringList out;
        for (int i = 0; i < kRowCount; ++i) out << Row("txtTOTSTA1", i)->text() + "+" + Row("txtTOTSTAM1", i)->text();
        return out;
    }
};

TEST_F(AutoStationTest, TenPointsFromPvcToPvtWithElevations) {
    Show();
    AutoStation([](AutoStationDialog& d) {
        EXPECT_EQ(d.Field("txtPoints")->text(), "10");
        EXPECT_TRUE(d.Field("txtBeginSTA")->isReadOnly());
        Press(d, "OKButton");
    });
    EXPECT_EQ(Stations()[9], "14+0.0");  // the rows themselves are the core's
    EXPECT_EQ(Elevation(9), "100.0");
    EXPECT_TRUE(slot.changed);
    EXPECT_EQ(QApplication::focusWidget(), Row("txtTOTSTA1", 0));
}

TEST_F(AutoStationTest, SpacingProposesThePvcAndAcceptsBothEnds) {
    Show();
    AutoStation([](AutoStationDialog& d) {
        d.findChild<QRadioButton*>("optSpacing")->click();
        EXPECT_EQ(d.Field("txtBeginSTA")->text(), "10");
        EXPECT_TRUE(d.Field("txtPoints")->isReadOnly());
        Set(d, "txtBeginSTA", "14");
        Set(d, "txtIncSTAM", "5");
        Press(d, "OKButton");
    });
    EXPECT_EQ(Stations()[0], "14+0.0");
    EXPECT_EQ(Stations()[1], "+");
}

TEST_F(AutoStationTest, ANonPositiveIncrementKeepsTheDialogOpen) {
    Show();
    platform.AnswerMessage(MessageButton::Ok);
    AutoStation([](AutoStationDialog& d) {
        Spacing(d, "10", "0", "1", "-5");
        Press(d, "OKButton");
        EXPECT_TRUE(d.isVisible());
        EXPECT_EQ(QApplication::focusWidget(), d.Field("txtIncSTA"));
        Set(d, "txtIncSTA", "0");
        Set(d, "txtIncSTAM", "5");
        Press(d, "OKButton");
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_EQ(Messages(), QStringList{"Increment must be greater than 0."});
    EXPECT_EQ(Stations()[1], "10+5.0");
}

TEST_F(AutoStationTest, CancelEscapeAndEnterLeaveTheRowsAlone) {
    slot.table.rows[0] = {"11", "0", ""};
    Show();
    slot.changed = false;
    AutoStation([](AutoStationDialog& d) {
        Spacing(d, "10", "0", "0", "50");
        Press(d, "CancelButton");
    });
    AutoStation([](AutoStationDialog& d) { QTest::keyClick(d.Field("txtPoints"), Qt::Key_Escape); });
    AutoStation([](AutoStationDialog& d) {
        QTest::keyClick(d.Field("txtPoints"), Qt::Key_Return);
        EXPECT_FALSE(d.isVisible());
    });
    EXPECT_EQ(Stations()[1], "+");
    EXPECT_EQ(Elevation(0), "101.5");
}

TEST_F(AutoStationTest, EveryShowingStartsWithTenIncrements) {
    Show();
    AutoStation([](AutoStationDialog& d) {
        Spacing(d, "11", "0", "0", "5");
        Press(d, "CancelButton");
    });
    AutoStation([](AutoStationDialog& d) {
        EXPECT_TRUE(d.findChild<QRadioButton*>("optIncrements")->isChecked());
        EXPECT_EQ(d.Field("txtPoints")->text(), "10");
        Press(d, "CancelButton");
    });
}

TEST_F(AutoStationTest, TooManyPointsAreRefusedOnLeavingAndOnOk) {
    Show();
    platform.AnswerMessage(MessageButton::Ok);
    platform.AnswerMessage(MessageButton::Ok);
    AutoStation([](AutoStationDialog& d) {
        Set(d, "txtPoints", "25");
        QTest::keyClick(d.Field("txtPoints"), Qt::Key_Tab);
        QApplication::processEvents();
        Press(d, "OKButton");
        EXPECT_TRUE(d.isVisible());
        Press(d, "CancelButton");
    });
    EXPECT_EQ(Messages(), (QStringList{"Points can not be more than 20.", "Points can not be more than 20."}));
}

}  // namespace
}  // namespace gw::test
