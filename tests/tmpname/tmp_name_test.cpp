// Temporary names: alphabet and encoding of the keystream, RC4 itself, the key.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <set>

#include "tmp_name_gen/tmp_name_gen.h"

class TmpNameGenProbe {  // friend of TmpNameGen
public:
    static const unsigned char* State() { return TmpNameGen::getInstance()->state; }
    // The first name that a child draws from a generator built as a new process builds its own.
    static std::string FirstNameInAChild() {
        int out[2];
        char name[8] = {};
        if (pipe(out) == 0 && fork() == 0) {
            static TmpNameGen fresh;  // in zeroed static storage
            _exit(write(out[1], fresh.getTmpName().c_str(), 8) == 8 ? 0 : 1);
        }
        close(out[1]);
        const bool got = read(out[0], name, 8) == 8;
        close(out[0]), wait(nullptr);
        return got ? std::string(name, 8) : "none";
    }
};

namespace {

TEST(TmpName, IsEightDistinctCharactersSpellingTheNextSixKeystreamBytesOfRc4) {
    const std::string abc = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    std::set<std::string> seen;
    for (int i = 0; i < 2000; ++i) {
        unsigned char state[256], bytes[6];
        std::memcpy(state, TmpNameGenProbe::State(), 256);
        TmpNameGen::rc4_randomize(state, bytes, 6);
        const std::string name = TmpNameGen::getInstance()->getTmpName().c_str();
        uint64_t spelled = 0, want = 0;
        for (size_t k = 0; k < 8; ++k) {
            spelled = spelled << 6 | (k < name.size() ? abc.find(name[k]) : 64);  // 64: not spelled
            want = k < 6 ? want << 8 | bytes[k] : want;
        }
        ASSERT_TRUE(name.size() == 8 && spelled == want && seen.insert(name).second)
            << name << ": new, six bits a character, first byte first";
    }
    const std::string first = TmpNameGenProbe::FirstNameInAChild(), second = TmpNameGenProbe::FirstNameInAChild();
    EXPECT_TRUE(first != "none" && first != second) << first << ", " << second << ": one key each";
    // The key comes from the device, and RC4 matches the known vector of key "Wiki".
    unsigned char a[256] = {}, b[256] = {}, key[256], state[256], out[5];
    TmpNameGen::get_key(a, sizeof(a)), TmpNameGen::get_key(b, sizeof(b));
    EXPECT_TRUE(std::memcmp(a, b, 8) != 0 && std::memcmp(a + 128, b + 128, 128) != 0) << "not from the device";
    for (int i = 0; i < 256; ++i)
        key[i] = "Wiki"[i % 4];  // as RC4 itself repeats a 4-byte key
    TmpNameGen::rc4_init(state, key), TmpNameGen::rc4_randomize(state, out, 5);
    for (int k = 0; k < 5; ++k)  // "pedia" encrypted gives 10 21 BF 04 20
        EXPECT_EQ(out[k] ^ static_cast<unsigned char>("pedia"[k]), "\x10\x21\xBF\x04\x20"[k] & 0xFF) << k;
}

}  // namespace
