// Names, their encoding, the keystream and the singleton.

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "tmp_name_gen/tmp_name_gen.h"

// Friend of TmpNameGen: a look at the permutation and at the bytes behind the last name.
class TmpNameGenProbe {
public:
    static void CopyState(unsigned char* out) {
        std::memcpy(out, TmpNameGen::getInstance()->state, 256);
    }
    static void CopyRandBytes(unsigned char* out) {
        std::memcpy(out, TmpNameGen::getInstance()->rand_bytes, 6);
    }
};

namespace {

const std::string kAlphabet =
    "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// Reads a name back into its 48 bits, six per character.
uint64_t DecodeName(const std::string& name) {
    uint64_t bits = 0;
    for (char c : name) {
        size_t index = kAlphabet.find(c);
        EXPECT_NE(index, std::string::npos) << "character " << c << " of " << name;
        bits = (bits << 6) | index;
    }
    return bits;
}

uint64_t BigEndian48(const unsigned char* b) {
    uint64_t v = 0;
    for (int i = 0; i < 6; ++i)
        v = (v << 8) | b[i];
    return v;
}

TEST(TmpName, IsEightCharactersOfTheAlphabet) {
    std::set<std::string> seen;
    for (int i = 0; i < 2000; ++i) {
        std::string name = TmpNameGen::getInstance()->getTmpName().c_str();
        ASSERT_EQ(name.size(), 8u) << name;
        ASSERT_EQ(name.find_first_not_of(kAlphabet), std::string::npos) << name;
        seen.insert(name);
    }
    EXPECT_EQ(seen.size(), 2000u) << "48 random bits per name should not collide this soon";
}

TEST(TmpName, EncodesTheSixKeystreamBytesOfThePermutationTheLastCallLeft) {
    TmpNameGen* gen = TmpNameGen::getInstance();
    gen->getTmpName();
    unsigned char state[256];
    TmpNameGenProbe::CopyState(state);
    unsigned char expected[6];
    TmpNameGen::rc4_randomize(state, expected, 6);

    std::string name = gen->getTmpName().c_str();

    unsigned char used[6];
    TmpNameGenProbe::CopyRandBytes(used);
    EXPECT_EQ(0, std::memcmp(used, expected, 6)) << "keystream not continued from the last state";
    EXPECT_EQ(DecodeName(name), BigEndian48(expected)) << "name " << name;
    unsigned char after[256];
    TmpNameGenProbe::CopyState(after);
    EXPECT_EQ(0, std::memcmp(after, state, 256)) << "permutation after the name";
}

TEST(TmpNameRc4, MatchesTheKnownKeystreamOfKeyWiki) {
    // "Wiki" repeated fills the 256-byte key exactly as RC4 repeats a 4-byte key;
    // encrypting "pedia" with that key gives 10 21 BF 04 20.
    unsigned char key[256];
    for (int i = 0; i < 256; ++i)
        key[i] = "Wiki"[i % 4];
    unsigned char state[256];
    TmpNameGen::rc4_init(state, key);
    unsigned char out[5];
    TmpNameGen::rc4_randomize(state, out, 5);
    const unsigned char cipher[5] = {0x10, 0x21, 0xBF, 0x04, 0x20};
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(out[k] ^ static_cast<unsigned char>("pedia"[k]), cipher[k]) << "byte " << k;
}

TEST(TmpNameRc4, NothingHappensForZeroOrNegativeCounts) {
    unsigned char key[256] = {1, 2, 3};
    unsigned char state[256];
    TmpNameGen::rc4_init(state, key);
    unsigned char before[256];
    std::memcpy(before, state, 256);
    unsigned char out[1] = {0xAA};
    TmpNameGen::rc4_randomize(state, out, 0);
    TmpNameGen::rc4_randomize(state, out, -5);
    EXPECT_EQ(0, std::memcmp(before, state, 256));
    EXPECT_EQ(out[0], 0xAA);
}

struct TmpPathRow {
    const char* label;
    const char* dir;
    const char* prefix;
};

class TmpPath : public ::testing::TestWithParam<TmpPathRow> {};

TEST_P(TmpPath, IsTheFolderASlashAndAName) {
    std::string path = TmpNameGen::getInstance()->getTmpPath(GetParam().dir).c_str();
    std::string prefix = GetParam().prefix;
    ASSERT_EQ(path.size(), prefix.size() + 8) << path;
    EXPECT_EQ(path.substr(0, prefix.size()), prefix);
    EXPECT_EQ(path.find_first_not_of(kAlphabet, prefix.size()), std::string::npos) << path;
}

INSTANTIATE_TEST_SUITE_P(Rows, TmpPath,
                         ::testing::Values(TmpPathRow{"plain", "/var/x", "/var/x/"},
                                           TmpPathRow{"trailing_slash", "/var/x/", "/var/x//"},
                                           TmpPathRow{"empty", "", "/"}),
                         [](const auto& info) { return std::string(info.param.label); });

TEST(TmpNameGenSingleton, ConcurrentCallersShareOneGeneratorWithoutCollisions) {
    std::vector<std::vector<std::string>> names(4);
    std::vector<std::thread> threads;
    std::vector<TmpNameGen*> instances(4);
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            instances[t] = TmpNameGen::getInstance();
            for (int i = 0; i < 1000; ++i)
                names[t].push_back(instances[t]->getTmpName().c_str());
        });
    }
    for (auto& th : threads)
        th.join();
    std::set<std::string> all;
    for (int t = 0; t < 4; ++t) {
        EXPECT_EQ(instances[t], TmpNameGen::getInstance());
        all.insert(names[t].begin(), names[t].end());
    }
    EXPECT_EQ(all.size(), 4000u);
}

}  // namespace
