// Calculate Elevations through the real main window: the slot's elevations window,
// what it keeps while hidden and what empties it.

#include <QRadioButton>

#include "tests/ui/ui_fixture.h"
#include "ui/elevations/auto_station_dialog.h"

namespace gw::test {
namespace {

class ElevationsFlowTest : public UiTest {
protected:
    static void TypeRow(ElevationsWindow& e, int row, const char* whole, const char* plus) {
        QTest::keyClicks(e.RowField("txtTOTSTA1", row), whole);
        e.RowField("txtTOTSTAM1", row)->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(e.RowField("txtTOTSTAM1", row), plus);
    }
    static void Press(QWidget& w, const char* button) {
        w.findChild<QPushButton*>(button)->click();
        QApplication::processEvents();
    }
    static void PressOK(ElevationsWindow& e) { Press(e, "cmdOK"); }
    // Queues the auto-station dialog's answer, then presses AutoStationing.
    void AutoStation(ElevationsWindow& e, std::function<void(AutoStationDialog&)> answer) {
        m_platform.AnswerDialog([answer](QDialog& d) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&d));
            answer(static_cast<AutoStationDialog&>(d));
        });
        Press(e, "cmdAutoStation");
    }
    ElevationTable Rows(const frmCrestCurve& w) { return Main().Slots()[w.Slot()].elevationsWindow->Table(); }
};

TEST_F(ElevationsFlowTest, AnEmptySheetShowsCalcsFirstMessageAndNoWindow) {
    frmCrestCurve& w = NewCurve(false);
    m_platform.AnswerMessage(MessageButton::Ok);
    QTest::mouseClick(w.findChild<QPushButton*>("cmdMoreTOS"), Qt::LeftButton);
    Settle();
    EXPECT_EQ(Messages(), QStringList{"PVI Station needs to be entered."});
    EXPECT_EQ(m_platform.ShownDialogs(), QStringList{"frmInformation"});
}

TEST_F(ElevationsFlowTest, RowsTypedAndComputedStayWithTheCurveUntilAStationMoves) {
    frmCrestCurve& w = SolvedEnglishCurve();
    Main().Slots()[w.Slot()].changed = false;
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.Field("txtPVCSTA")->text(), "10");
        EXPECT_EQ(QApplication::focusWidget(), e.RowField("txtTOTSTA1", 0));
        TypeRow(e, 0, "11", "0");
        PressOK(e);
        EXPECT_FALSE(e.isVisible());
    });
    EXPECT_TRUE(Changed(w));  // typing in the elevations window
    EXPECT_EQ(Rows(w).rows[0].txtTotalTopSlab1, "101.5");

    // Calc again with nothing moved: the next showing still has the row.
    QTest::mouseClick(w.findChild<QPushButton*>("cmdCalcP"), Qt::LeftButton);
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.RowField("txtTotalTopSlab1", 0)->text(), "101.5");
        PressOK(e);
    });

    // A new length moves the PVC and PVT: the rows are gone and the ends are new.
    w.Field("txtLC")->setText("200");
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.RowField("txtTOTSTA1", 0)->text(), "");
        EXPECT_EQ(e.Field("txtPVCSTA")->text(), "11");
        TypeRow(e, 0, "11", "50");
        PressOK(e);
    });

    // Clear All of the curve window empties them too; a second curve has rows of its own.
    frmCrestCurve& second = NewCurve(true);
    EXPECT_EQ(Rows(second).rows[0].txtTOTSTA1, "");
    EXPECT_EQ(Rows(w).rows[0].txtTOTSTA1, "11");
    w.findChild<QPushButton*>("cmdClear")->click();
    EXPECT_EQ(Rows(w).rows[0].txtTOTSTA1, "");
}

TEST_F(ElevationsFlowTest, AFailedCalcStillOpensTheWindowWhenThePvcHoldsNumbers) {
    frmCrestCurve& w = SolvedEnglishCurve();
    w.Field("txtG2")->clear();
    m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(w, [](ElevationsWindow& e) { PressOK(e); });
    EXPECT_EQ(Messages(), QStringList{"G2 needs to be entered."});
    EXPECT_TRUE(m_platform.ShownDialogs().contains("frmTS"));
}

// The rules of the run and of auto-stationing are the core's; these show the windows
// keep or close on them and show the rows.
TEST_F(ElevationsFlowTest, AStationBeforeThePvcKeepsTheWindowOpenOnTheRow) {
    frmCrestCurve& w = SolvedEnglishCurve();
    m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(w, [](ElevationsWindow& e) {
        TypeRow(e, 0, "11", "0");
        e.RowField("txtTOTSTA1", 1)->setText("9");  // as a loaded curve could hold it
        e.RowField("txtTOTSTAM1", 1)->setText("50");
        PressOK(e);
        EXPECT_TRUE(e.isVisible());
        EXPECT_EQ(e.RowField("txtTotalTopSlab1", 0)->text(), "101.5");
        EXPECT_EQ(QApplication::focusWidget(), e.RowField("txtTOTSTAM1", 1));
        e.close();
    });
    EXPECT_EQ(Messages(), QStringList{"Top of Slab Station must be between PVC and PVT stations."});
}

TEST_F(ElevationsFlowTest, StationCopiesKeepEveryDigitSoTheRangeCheckHolds) {
    frmCrestCurve& w = NewCurve(false);
    for (auto [name, text] : {std::pair{"txtPVISTA", "99999"},
                              {"txtPVISTAM", "50"},
                              {"txtPVIEval", "104"},
                              {"txtG1", "2"},
                              {"txtG2", "-2"},
                              {"txtLC", "400"}}) {
        TypeInto(w.Field(name), text);
    }
    QTest::keyClick(w.Field("txtLC"), Qt::Key_Return);
    ASSERT_EQ(w.Field("txtPVTSTA")->text(), "100001");  // a result longer than anyone may type
    m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(w, [](ElevationsWindow& e) {
        EXPECT_EQ(e.Field("txtPVTSTA")->text(), "100001");
        TypeRow(e, 0, "100001", "60");  // ten feet past the PVT
        PressOK(e);
        EXPECT_TRUE(e.isVisible());
        EXPECT_EQ(e.RowField("txtTotalTopSlab1", 0)->text(), "");
        e.close();
    });
    EXPECT_EQ(Messages(), QStringList{"Top of Slab Station must be between PVC and PVT stations."});
}

TEST_F(ElevationsFlowTest, AutoStationingFillsTheRowsOnOkAndKeepsItsDialogOnARefusal) {
    frmCrestCurve& w = SolvedEnglishCurve();
    m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(w, [this](ElevationsWindow& e) {
        AutoStation(e, [](AutoStationDialog& d) {
            EXPECT_EQ(d.Field("txtPoints")->text(), "10");
            Press(d, "OKButton");
        });
        EXPECT_EQ(e.RowField("txtTOTSTA1", 9)->text(), "14");
        EXPECT_EQ(e.RowField("txtTotalTopSlab1", 9)->text(), "100.0");
        AutoStation(e, [](AutoStationDialog& d) {
            d.findChild<QRadioButton*>("optSpacing")->click();
            d.Field("txtIncSTAM")->setText("-5");
            Press(d, "OKButton");
            EXPECT_TRUE(d.isVisible());
            EXPECT_EQ(QApplication::focusWidget(), d.Field("txtIncSTA"));
            Press(d, "CancelButton");
        });
        EXPECT_EQ(e.RowField("txtTOTSTA1", 9)->text(), "14");  // Cancel leaves the rows
        PressOK(e);
    });
    EXPECT_EQ(Messages(), QStringList{"Increment must be greater than 0."});
}

TEST_F(ElevationsFlowTest, ARangeMessageOnOpeningComesOverTheShownWindow) {
    // A saved English crest curve, PVC 10+00, whose first row lies before the PVC.
    PutBytes(FilePath("before-pvc.gwf"),
             "\"SSD\",\"English\",,,,\"0\"\r\n"
             "\"104\",\"12\",\"-2\",\"2\",\"400\",\"100.0\",\"0.0\"\r\n"
             "\"14\",\"100.0\",\"0.0\",\"10\",\"364.5545\",\"2.0\"\r\n"
             "#TRUE#,#FALSE#,\"12\",\"0.0\"\r\n"
             "\"9\",\"11\"" +
                 QByteArray(",\"\"").repeated(18) +
                 "\r\n"
                 "\"50\",\"0\"" +
                 QByteArray(",\"\"").repeated(18) + "\r\n" + QByteArray("\"\"") + QByteArray(",\"\"").repeated(19) +
                 "\r\n"
                 "\"\",\"\",\"\"\r\n");
    frmCrestCurve* w = Open(FilePath("before-pvc.gwf"));
    ASSERT_NE(w, nullptr);
    m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(*w, [](ElevationsWindow& e) {
        QApplication::processEvents();
        EXPECT_TRUE(e.isVisible());
        EXPECT_EQ(QApplication::focusWidget(), e.RowField("txtTOTSTAM1", 0));
        e.close();
    });
    EXPECT_EQ(Messages(), QStringList{"Top of Slab Station must be between PVC and PVT stations."});
}

TEST_F(ElevationsFlowTest, EnterClicksTheFocusedButtonElseCancel) {
    frmCrestCurve& w = SolvedEnglishCurve();
    CalculateElevations(w, [this](ElevationsWindow& e) {
        AutoStation(e, [](AutoStationDialog& d) {
            d.findChild<QPushButton*>("OKButton")->setFocus(Qt::TabFocusReason);
            d.Field("txtPoints")->setFocus(Qt::TabFocusReason);
            QTest::keyClick(d.Field("txtPoints"), Qt::Key_Return);  // in a field: Cancel
        });
        EXPECT_EQ(e.RowField("txtTOTSTA1", 0)->text(), "");
        AutoStation(e, [](AutoStationDialog& d) {
            QPushButton* ok = d.findChild<QPushButton*>("OKButton");
            ok->setFocus(Qt::TabFocusReason);
            QTest::keyClick(ok, Qt::Key_Return);
        });
        EXPECT_EQ(e.RowField("txtTOTSTA1", 9)->text(), "14");  // ten points from OK
        PressOK(e);
    });
}

// A click that leaves a bad field does nothing, however quickly it follows the
// typing: the field's messages show once each and the window stays, with the focus
// back in the field.
class QuickClickTest;

struct QuickClick {
    const char* name;
    void (*run)(QuickClickTest&, ElevationsWindow&);
    QStringList messages;
};

void PrintTo(const QuickClick& c, std::ostream* os) { *os << c.name; }

class QuickClickTest : public ElevationsFlowTest, public ::testing::WithParamInterface<QuickClick> {
public:
    static void TypeThenClick(QLineEdit* field, const char* text, QWidget& window, const char* button) {
        field->setFocus(Qt::MouseFocusReason);
        QTest::keyClicks(field, text);
        QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);  // no pause between
        QApplication::processEvents();
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(QApplication::focusWidget(), field);
        EXPECT_EQ(field->text(), QString::fromLatin1(text));
    }
    // In the auto-stationing dialog's Spacing mode; Cancel afterwards.
    void InSpacingMode(ElevationsWindow& e, void (*then)(AutoStationDialog&)) {
        AutoStation(e, [then](AutoStationDialog& d) {
            d.findChild<QRadioButton*>("optSpacing")->click();
            then(d);
            Press(d, "CancelButton");
        });
    }
};

TEST_P(QuickClickTest, NeverLosesTheFieldsMessage) {
    frmCrestCurve& w = SolvedEnglishCurve();
    for (int i = 0; i < GetParam().messages.size(); ++i) m_platform.AnswerMessage(MessageButton::Ok);
    CalculateElevations(w, [this](ElevationsWindow& e) {
        GetParam().run(*this, e);
        e.close();
    });
    EXPECT_EQ(Messages(), GetParam().messages);
}

INSTANTIATE_TEST_SUITE_P(Clicks, QuickClickTest,
                         ::testing::Values(QuickClick{"WholeStationThenOK",
                                                      [](QuickClickTest&, ElevationsWindow& e) {
                                                          QuickClickTest::TypeThenClick(e.RowField("txtTOTSTA1", 0),
                                                                                        "x", e, "cmdOK");
                                                      },
                                                      {"Must be numeric.", "Must be >= to PVCSTA."}},
                                           QuickClick{"PlusPartThenOK",
                                                      [](QuickClickTest&, ElevationsWindow& e) {
                                                          e.RowField("txtTOTSTA1", 0)->setText("11");
                                                          QuickClickTest::TypeThenClick(e.RowField("txtTOTSTAM1", 0),
                                                                                        "100", e, "cmdOK");
                                                      },
                                                      {"Measurement must be less than 100 feet."}},
                                           QuickClick{"WholeStationThenAutoStationing",
                                                      [](QuickClickTest&, ElevationsWindow& e) {
                                                          // No auto-stationing dialog is queued: opening one would fail
                                                          // the test.
                                                          QuickClickTest::TypeThenClick(e.RowField("txtTOTSTA1", 0),
                                                                                        "x", e, "cmdAutoStation");
                                                      },
                                                      {"Must be numeric.", "Must be >= to PVCSTA."}},
                                           QuickClick{"BeginningPlusPartThenOK",
                                                      [](QuickClickTest& t, ElevationsWindow& e) {
                                                          t.InSpacingMode(e, [](AutoStationDialog& d) {
                                                              d.Field("txtBeginSTAM")->clear();
                                                              QuickClickTest::TypeThenClick(d.Field("txtBeginSTAM"),
                                                                                            "99.995", d, "OKButton");
                                                          });
                                                      },
                                                      {"Measurement must be less than 100 feet."}}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace gw::test
