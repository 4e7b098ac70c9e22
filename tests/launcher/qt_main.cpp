// Entry of the launcher tests: one QApplication for the whole binary (the dialog is a
// widget) and the string table filled as at start-up, before any case runs.

#include <gtest/gtest.h>

#include <QApplication>

#include "str-table.h"

int main(int argc, char** argv) {
    // Headless also when CTest lists the cases at build time, outside the test environment.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
