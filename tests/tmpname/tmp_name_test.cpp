// Temporary names: alphabet and encoding of the keystream, RC4 itself, the key, threads.

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <thread>

#include "tmp_name_gen/tmp_name_gen.h"

class TmpNameGenProbe {  // friend of TmpNameGen
public:
    static const unsigned char* State() { return TmpNameGen::getInstance()->state; }
};

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

TEST(TmpName, IsEightDistinctCharactersSpellingTheNextSixKeystreamBytes) {
    std::set<std::string> seen;
    for (int i = 0; i < 2000; ++i) {
        unsigned char state[256], bytes[6];
        std::memcpy(state, TmpNameGenProbe::State(), 256);
        TmpNameGen::rc4_randomize(state, bytes, 6);
        const std::string name = TmpNameGen::getInstance()->getTmpName().c_str();
        ASSERT_EQ(name.size(), 8u) << name;
        uint64_t spelled = 0, want = 0;
        for (int k = 0; k < 8; ++k) {
            ASSERT_NE(kAlphabet.find(name[k]), std::string::npos) << name;
            spelled = spelled << 6 | kAlphabet.find(name[k]);
            want = k < 6 ? want << 8 | bytes[k] : want;
        }
        ASSERT_EQ(spelled, want) << name << ": six bits per character, first byte first";
        seen.insert(name);
    }
    EXPECT_EQ(seen.size(), 2000u);
}

TEST(TmpName, KeyComesFromTheDeviceAndRc4MatchesTheKnownVectorOfKeyWiki) {
    unsigned char a[256] = {}, b[256] = {}, key[256], state[256], out[5];
    TmpNameGen::get_key(a, sizeof(a));
    TmpNameGen::get_key(b, sizeof(b));
    EXPECT_NE(0, std::memcmp(a, b, 8)) << "both keys start alike: a time-of-day text?";
    EXPECT_NE(0, std::memcmp(a + 128, b + 128, 128)) << "the tail is not from the device";

    for (int i = 0; i < 256; ++i)
        key[i] = "Wiki"[i % 4];  // as RC4 itself repeats a 4-byte key
    TmpNameGen::rc4_init(state, key);
    TmpNameGen::rc4_randomize(state, out, 5);
    const unsigned char cipher[5] = {0x10, 0x21, 0xBF, 0x04, 0x20};  // "pedia" encrypted
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(out[k] ^ static_cast<unsigned char>("pedia"[k]), cipher[k]) << "byte " << k;
}

TEST(TmpName, TwoThreadsShareOneGeneratorWithoutCollisions) {
    std::set<std::string> names[2];
    auto make = [&names](int t) {
        for (int i = 0; i < 200000; ++i)
            names[t].insert(TmpNameGen::getInstance()->getTmpName().c_str());
    };
    std::thread other(make, 0);
    make(1);  // long enough to overlap the other thread
    other.join();
    names[0].insert(names[1].begin(), names[1].end());
    EXPECT_EQ(names[0].size(), 400000u);
}

}  // namespace
