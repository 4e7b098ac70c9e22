// main() of the test binaries that need Qt: the application object (headless unless a
// platform is chosen), the compiled-in translations and the string table, as the launcher
// has them before it builds its dialog and starts its worker.
#include <gtest/gtest.h>

#include <QApplication>

#include "str-table.h"
#include "temp_dir.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Q_INIT_RESOURCE(texts);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    skelda_test::WatchDescriptors();
    return RUN_ALL_TESTS();
}
