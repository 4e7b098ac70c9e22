// Extraction reports through Qt signals and reads the string table: both need the
// application object and the table in place before any test runs.
#include <QCoreApplication>
#include <gtest/gtest.h>

#include "str-table.h"

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
