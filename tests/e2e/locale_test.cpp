// The system locale chooses the translation that the dialog shows. The dialog is captured
// on a virtual X screen while an upgrade waits for a client ignoring SIGTERM, once per
// locale: French and Japanese must look different from English and from each other, and a
// language without a translation of its own (Finnish) exactly like English.

#include <gtest/gtest.h>

#include <unistd.h>

#include "e2e_fixture.h"

namespace skelda_test {
namespace {

class LocaleTest : public LauncherE2ETest {
protected:
    // Captures the dialog of an upgrade run under `locale`; returns the picture's path and
    // the window title in `title`.
    std::string CaptureDialog(const std::string& locale, std::string* title) {
        // Back to build 100 with a running client, so that the run upgrades and waits.
        WriteFile(app() + "/Contents/Resources/INFO", "[Version]\nbuild_version=100\n");
        const pid_t own = StartOwnClient(/*ignore_term=*/true);
        const std::string picture = path("dialog-" + locale + ".png");
        std::string out;
        const int rc = RunCommand(
            {"xvfb-run", "-a", "-s", "-screen 0 800x600x24", ToolsDir() + "/capture-dialog.sh",
             Executable(upgrade), picture},
            {"LANG=" + locale, "LC_ALL=" + locale, "XDG_RUNTIME_DIR=" + path("runtime")}, &out);
        EXPECT_EQ(rc, 0) << out;
        ReapOwnClient(own);
        EXPECT_NE(WaitClientPid(own), 0) << "the upgraded client was not started";
        StopLaunchedClient();
        unlink((user() + "/ui.pid").c_str());
        const size_t at = out.find("title: ");
        *title = at == std::string::npos ? "" : out.substr(at + 7, out.find('\n', at) - at - 7);
        return picture;
    }

    // The number of differing pixels, or -1 when the pictures are not even the same size.
    int DifferentPixels(const std::string& a, const std::string& b) {
        std::string out;
        const int rc = RunCommand({"compare", "-metric", "AE", a, b, "null:"}, {}, &out);
        if (rc != 0 && rc != 1)
            return -1;
        return std::atoi(out.c_str());
    }

    std::string upgrade;
};

TEST_F(LocaleTest, FrenchAndJapaneseLoadTheirOwnTranslations) {
    if (system("command -v xvfb-run >/dev/null && command -v import >/dev/null") != 0)
        GTEST_SKIP() << "needs xvfb-run and ImageMagick";
    InstallBuild("Old", "1.0.100");
    upgrade = MakeBundle("New", "1.0.200");
    ASSERT_FALSE(HasFailure());

    std::string title_en, title_fr, title_ja, title_fi;
    const std::string en = CaptureDialog("C", &title_en);
    const std::string fr = CaptureDialog("fr_FR.UTF-8", &title_fr);
    const std::string ja = CaptureDialog("ja_JP.UTF-8", &title_ja);
    const std::string fi = CaptureDialog("fi_FI.UTF-8", &title_fi);
    ASSERT_FALSE(HasFailure());

    EXPECT_EQ(title_en, "Skelda Backup");
    EXPECT_EQ(DifferentPixels(en, fi), 0) << "Finnish has no translation: English is shown";
    EXPECT_NE(DifferentPixels(en, fr), 0) << "the French label did not appear";
    EXPECT_NE(DifferentPixels(en, ja), 0) << "the Japanese label did not appear";
    EXPECT_NE(DifferentPixels(fr, ja), 0) << "French and Japanese show the same text";
    EXPECT_EQ(InstalledBuild(), "200");
}

}  // namespace
}  // namespace skelda_test
