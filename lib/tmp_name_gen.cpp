#include "tmp_name_gen/tmp_name_gen.h"

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

const char TmpNameGen::map[64] = {
    '0', '1', '2', '3', '4', '5', '6', '7', '8', '9',
    'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k', 'l', 'm',
    'n', 'o', 'p', 'q', 'r', 's', 't', 'u', 'v', 'w', 'x', 'y', 'z',
    'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I', 'J', 'K', 'L', 'M',
    'N', 'O', 'P', 'Q', 'R', 'S', 'T', 'U', 'V', 'W', 'X', 'Y', 'Z',
    '-', '_',
};

namespace {
const int kKeySize = 256;
const int kNameBytes = 6;
const int kNameChars = 8;
}  // namespace

TmpNameGen* TmpNameGen::getInstance() {
    // The destructor is trivial, so nothing is registered to run at exit.
    static TmpNameGen tmp_name;
    return &tmp_name;
}

TmpNameGen::TmpNameGen() {
    pthread_mutex_init(&mutex, nullptr);
    get_key(key, sizeof(key));
    rc4_init(state, key);
}

void TmpNameGen::lock() {
    pthread_mutex_lock(&mutex);
}

void TmpNameGen::unlock() {
    pthread_mutex_unlock(&mutex);
}

void TmpNameGen::get_key(unsigned char* buf, unsigned long size) {
    size_t got = 0;
    const int dev = open("/dev/urandom", O_RDONLY | O_CLOEXEC);  // no program started inherits it
    if (dev >= 0) {
        const ssize_t n = read(dev, buf, kKeySize);
        got = n > 0 ? static_cast<size_t>(n) : 0;
        close(dev);
    }
    if (got < static_cast<size_t>(kKeySize)) {
        // Good enough to keep names apart; the names need not be secret.
        struct timeval tv;
        gettimeofday(&tv, nullptr);
        std::snprintf(reinterpret_cast<char*>(buf), size, "%lu-%lu",
                      static_cast<unsigned long>(tv.tv_sec),
                      static_cast<unsigned long>(tv.tv_usec));
    }
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key) {
    for (int i = 0; i < 256; ++i)
        state[i] = static_cast<unsigned char>(i);
    unsigned j = 0;
    for (int i = 0; i < 256; ++i) {
        j = (j + state[i] + key[i]) & 0xFF;
        std::swap(state[i], state[j]);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int n) {
    unsigned j = 0;
    for (int k = 0; k < n; ++k) {
        unsigned i = (k + 1) & 0xFF;
        j = (j + state[i]) & 0xFF;
        std::swap(state[i], state[j]);
        out[k] = state[(state[i] + state[j]) & 0xFF];
    }
}

ustring TmpNameGen::getTmpName() {
    char name[kNameChars + 1];
    lock();
    rc4_randomize(state, rand_bytes, kNameBytes);
    // Three bytes make four characters, six bits each, most significant first.
    for (int g = 0; g < 2; ++g) {
        const unsigned char* b = rand_bytes + 3 * g;
        char* c = name + 4 * g;
        c[0] = map[b[0] >> 2];
        c[1] = map[((b[0] & 0x03) << 4) | (b[1] >> 4)];
        c[2] = map[((b[1] & 0x0F) << 2) | (b[2] >> 6)];
        c[3] = map[b[2] & 0x3F];
    }
    unlock();
    name[kNameChars] = '\0';
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& dir) {
    return dir + "/" + getTmpName();
}
