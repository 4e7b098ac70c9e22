// Per-component thresholds: 4 by default, set by the debug-level file.
#include <string>

#include "log_test_support.h"

namespace {

using namespace skelda_test;

bool Passes(const std::string& log, Logger::Level level, const char* component) {
    const size_t before = ReadFile(log).size();
    Logger::LogMsg(level, ustring(component), "[PROBE] t(%d): probe\n", 1);
    return ReadFile(log).size() > before;
}

using LogDefaultThreshold = LoggerTest;

TEST_F(LogDefaultThreshold, WarningAndWorsePassForEveryComponent) {
    const std::string log = StartFileLog("launcher.log", 50, path("no-such.debug"));
    for (const char* component : {"launcher_debug", "service_debug", "extractor_debug",
                                  "file_op_debug", "default_component", "unknown"}) {
        EXPECT_TRUE(Passes(log, Logger::ERROR, component)) << component;
        EXPECT_TRUE(Passes(log, Logger::WARNING, component)) << component;
        EXPECT_FALSE(Passes(log, Logger::NOTE, component)) << component;
        EXPECT_FALSE(Passes(log, Logger::INFO, component)) << component;
        EXPECT_FALSE(Passes(log, Logger::DEBUG, component)) << component;
    }
}

struct ThresholdRow {
    const char* name;
    const char* debug_file;
    const char* component;
    Logger::Level level;
    bool written;
};

class LogDebugLevelFile : public LoggerTest,
                          public ::testing::WithParamInterface<ThresholdRow> {};

TEST_P(LogDebugLevelFile, DecidesWhatPasses) {
    const ThresholdRow& row = GetParam();
    WriteFile(path("launcher.debug"), row.debug_file);
    const std::string log = StartFileLog("launcher.log", 50, path("launcher.debug"));
    EXPECT_EQ(Passes(log, row.level, row.component), row.written)
        << "debug file \"" << row.debug_file << "\", component " << row.component
        << ", level " << row.level;
}

const char kFileOp7[] = "file_op_debug=7\n";
const char kMalformed[] = "file_op_debug=7\nservice_debug=0\nnot a line\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, LogDebugLevelFile,
    ::testing::Values(
        ThresholdRow{"RaisedComponentPassesDebug", kFileOp7, "file_op_debug", Logger::DEBUG, true},
        ThresholdRow{"OthersStayAtWarning", kFileOp7, "service_debug", Logger::NOTE, false},
        ThresholdRow{"OthersStillPassWarning", kFileOp7, "service_debug", Logger::WARNING, true},
        ThresholdRow{"NonNumberSilencesError", "service_debug=abc\n", "service_debug",
                     Logger::ERROR, false},
        ThresholdRow{"ZeroSilencesError", "service_debug=0\n", "service_debug", Logger::ERROR,
                     false},
        ThresholdRow{"ZeroLeavesOthers", "service_debug=0\n", "launcher_debug",
                     Logger::WARNING, true},
        ThresholdRow{"NoteLevel", "extractor_debug=5\n", "extractor_debug", Logger::NOTE, true},
        ThresholdRow{"AboveNoteFiltered", "extractor_debug=5\n", "extractor_debug",
                     Logger::INFO, false},
        ThresholdRow{"CommentsAndBlanks", "# levels\n\nextractor_debug = 6 # info\n",
                     "extractor_debug", Logger::INFO, true},
        ThresholdRow{"LoweredBelowWarning", "file_op_debug=3\n", "file_op_debug",
                     Logger::WARNING, false},
        ThresholdRow{"LoweredStillPassesError", "file_op_debug=3\n", "file_op_debug",
                     Logger::ERROR, true},
        ThresholdRow{"NamesAreCaseSensitive", "File_op_debug=7\n", "file_op_debug",
                     Logger::DEBUG, false},
        ThresholdRow{"MalformedFileRaisesNothing", kMalformed, "file_op_debug", Logger::DEBUG,
                     false},
        ThresholdRow{"MalformedFileSilencesNothing", kMalformed, "service_debug",
                     Logger::ERROR, true}),
    [](const ::testing::TestParamInfo<ThresholdRow>& info) {
        return std::string(info.param.name);
    });

TEST_F(LogDefaultThreshold, EntriesOfAnEarlierInitializeStay) {
    WriteFile(path("launcher.debug"), kFileOp7);
    StartFileLog("first.log", 50, path("launcher.debug"));
    const std::string log = StartFileLog("second.log");
    EXPECT_TRUE(Passes(log, Logger::DEBUG, "file_op_debug"));
}

}  // namespace
