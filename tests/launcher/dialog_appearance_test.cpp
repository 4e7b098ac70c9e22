// The progress dialog as the Launcher builds it: its fixed appearance, the percentages it
// shows for progress reports, and that nothing but the Launcher can take it off the screen.

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "launcher.h"
#include "launcher_probe.h"
#include "processing-progress-dialog.h"
#include "temp_dir.h"

namespace skelda_test {
namespace {

class DialogTest : public TempDirTest {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        launcher = std::make_unique<Launcher>();
        dialog = FindLauncherDialog();
        ASSERT_NE(dialog, nullptr) << "the Launcher made no ProcessingProgressDialog";
    }
    void TearDown() override {
        launcher.reset();
        TempDirTest::TearDown();
    }

    std::unique_ptr<Launcher> launcher;
    ProcessingProgressDialog* dialog = nullptr;
};

TEST_F(DialogTest, HasTheShippedAppearanceWithoutTranslation) {
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Skelda Backup"));
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Skelda Backup is initializing..."));
    // The dialog asks for the title and system-menu hints only (0x3000): no minimize,
    // maximize or close button hints. Qt itself adds the type Qt::Window to every widget
    // without a parent, whatever flags it is given.
    EXPECT_EQ(int(dialog->windowFlags() & ~Qt::WindowType_Mask), 0x3000);
    EXPECT_EQ(dialog->windowType(), Qt::Window);
    EXPECT_EQ(dialog->parentWidget(), nullptr);
    EXPECT_EQ(dialog->minimum(), 0);
    EXPECT_EQ(dialog->maximum(), 100);
    EXPECT_EQ(dialog->value(), 0);
    EXPECT_EQ(dialog->font().family(), QStringLiteral("Arial"));
    EXPECT_FALSE(dialog->font().italic());
    EXPECT_EQ(dialog->minimumWidth(), 400);
    EXPECT_EQ(dialog->maximumWidth(), 400);
    EXPECT_TRUE(dialog->isModal());
    EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
    const QString sheet = dialog->styleSheet();
    EXPECT_EQ(sheet.size(), 77);
    EXPECT_EQ(sheet, QStringLiteral(" QProgressDialog { background-color: WhiteSmoke; \n"
                                    "  vertical-align: middle } "));
    EXPECT_FALSE(dialog->isVisible()) << "hidden until an upgrade starts";
}

TEST_F(DialogTest, HasNoCancelButtonAndNoAutoReset) {
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
    EXPECT_FALSE(dialog->autoReset());
}

TEST_F(DialogTest, SevenReportsGiveTruncatedPercentagesAndStayVisibleAtTheTop) {
    dialog->show();
    std::vector<int> seen;
    for (int n = 1; n <= 7; ++n) {
        CallUpdateProgress(launcher.get(), 7, n);
        seen.push_back(dialog->value());
    }
    EXPECT_EQ(seen, (std::vector<int>{14, 28, 42, 57, 71, 85, 100}));
    // The worker reports 100 of 100 after the extractor's last report: no change, no reset.
    CallUpdateProgress(launcher.get(), 100, 100);
    EXPECT_EQ(dialog->value(), 100);
    EXPECT_TRUE(dialog->isVisible()) << "reaching 100 must not hide the dialog";
}

TEST_F(DialogTest, CloseRequestsAndEscapeLeaveItOnScreen) {
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
    CallUpdateProgress(launcher.get(), 3, 2);
    QSignalSpy canceled(dialog, &QProgressDialog::canceled);

    EXPECT_FALSE(dialog->close()) << "QWidget::close";
    ASSERT_NE(dialog->windowHandle(), nullptr);
    EXPECT_FALSE(dialog->windowHandle()->close()) << "a close from the window system";
    QCloseEvent close_event;
    QCoreApplication::sendEvent(dialog, &close_event);
    EXPECT_FALSE(close_event.isAccepted());
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCoreApplication::processEvents();

    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->value(), 66) << "a cancel would have reset the value";
    EXPECT_EQ(canceled.count(), 0);
    EXPECT_FALSE(dialog->wasCanceled());
}

TEST_F(DialogTest, ClosingTheLastWindowDoesNotEndTheEventLoop) {
    // Only LaunchDone may end the loop, after joining the worker thread. Any window that
    // closes while the Launcher exists (here a stand-in for a dialog closed behind the
    // launcher's back) must leave the loop running.
    QWidget other;
    other.show();
    QTimer::singleShot(0, &other, [&other] { other.close(); });
    QTimer::singleShot(200, [] { QCoreApplication::exit(7); });
    EXPECT_EQ(QApplication::exec(), 7) << "the loop ended when the last window closed";
}

}  // namespace
}  // namespace skelda_test
