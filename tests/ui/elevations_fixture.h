#pragma once
// An elevations window over a solved English curve with PVC 10+00 at 100.0, G1 2,
// G2 -2 and 400 ft of curve (PVT 14+00), answered by the scripted platform.

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "core/curve_solver.h"
#include "tests/core/sheet_builders.h"
#include "platform/scripted_platform.h"
#include "ui/elevations/auto_station_dialog.h"
#include "ui/elevations/elevations_slot.h"
#include "ui/elevations/elevations_window.h"

namespace gw::test {

class FakeSlot final : public ElevationsSlot {
public:
    ElevationTable& Table() override { return table; }
    CurveSheet CurveFields() const override { return curve; }
    void MarkChanged() override { changed = true; }

    CurveSheet curve;
    ElevationTable table;
    bool changed = false;
};

class ElevationsFixture : public ::testing::Test {
protected:
    ElevationsFixture() {
        platform.OnUnexpected([](const QString& what) { ADD_FAILURE() << what.toStdString(); });
        slot.curve = PviSheet("English", "12", "0", "104", "2", "-2", "400");
        EXPECT_FALSE(Calculate(slot.curve));
    }

    ~ElevationsFixture() override {
        window.hide();
        dialog.hide();
        for (QWidget* w : QApplication::topLevelWidgets()) EXPECT_FALSE(w->isVisible()) << w->objectName().toStdString();
    }

    void Show() {
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    QLineEdit* Row(const char* name, int row) { return window.RowField(name, row); }
    QString Elevation(int row) { return Row("txtTotalTopSlab1", row)->text(); }
    QStringList Messages() const { return platform.MessageTexts(); }

    void TypeStation(int row, const char* whole, const char* plus) {
        QLineEdit* w = Row("txtTOTSTA1", row);
        w->setFocus();
        QTest::keyClicks(w, whole);
        QLineEdit* p = Row("txtTOTSTAM1", row);
        p->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(p, plus);
        QApplication::processEvents();
    }

    void Click(const char* button) {
        auto* b = window.findChild<QPushButton*>(button);
        ASSERT_NE(b, nullptr) << button;
        b->click();
        QApplication::processEvents();
    }

    ScriptedPlatform platform;
    FakeSlot slot;
    AutoStationDialog dialog{platform};
    ElevationsWindow window{slot, platform, dialog};
};

}  // namespace gw::test
