// main() of the test binaries without Qt.
#include "temp_dir.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    skelda_test::WatchDescriptors();
    return RUN_ALL_TESTS();
}
