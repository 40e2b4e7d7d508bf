#include "tests/ui/ui_fixture.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QRadioButton>
#include <QTest>

#include "shell/units_dialog.h"

namespace gw::test {

void UiTest::SetUp() {
    ASSERT_TRUE(m_settings.isValid());
    qputenv("XDG_CONFIG_HOME", m_settings.path().toUtf8());
    m_platform.OnUnexpected([](const QString& what) { ADD_FAILURE() << what.toStdString(); });
}

void UiTest::TearDown() {
    EXPECT_TRUE(m_platform.Unused().isEmpty())
        << "answers never asked for: " << m_platform.Unused().join(QStringLiteral(", ")).toStdString();
    m_main.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (QWidget* w : QApplication::topLevelWidgets()) {
        ADD_FAILURE() << "window left over: " << w->metaObject()->className() << " " << w->objectName().toStdString();
        delete w;
    }
    // The program's own settings file is the only thing it may keep per user.
    const QDir settings(m_settings.path());
    const QString own = settings.relativeFilePath(UserSettingsPath());
    QStringList written;
    QDirIterator it(m_settings.path(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString entry = settings.relativeFilePath(it.next());
        if (entry != own && !own.startsWith(entry + QLatin1Char('/'))) written << entry;
    }
    EXPECT_TRUE(written.isEmpty()) << "written per user: " << written.join(QStringLiteral(", ")).toStdString();
}

frmMain& UiTest::Main() {
    if (!m_main) {
        m_main = std::make_unique<frmMain>(m_platform);
        m_main->MDIForm_Load();
        m_main->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_main.get()));
    }
    return *m_main;
}

frmMain& UiTest::RestartMain() {
    m_main.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return Main();
}

frmCrestCurve& UiTest::NewCurve(bool metric) {
    frmMain& main = Main();
    m_platform.AnswerDialog([metric](QDialog& dialog) {
        auto* option =
            dialog.findChild<QRadioButton*>(metric ? QStringLiteral("optMetric") : QStringLiteral("optEnglish"));
        QTest::mouseClick(option, Qt::LeftButton);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    main.mnuVerticalCrest_Click();
    Settle();
    frmCrestCurve* curve = main.ActiveCurveWindow();
    if (!curve) throw std::runtime_error("New curve opened no window");
    return *curve;
}

void UiTest::Settle() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void UiTest::ClickInto(QWidget* widget) {
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(4, widget->height() / 2));
    Settle();
}

void UiTest::TypeInto(QLineEdit* field, const QString& text) {
    ClickInto(field);
    QTest::keyClicks(field, text);
}

}  // namespace gw::test
