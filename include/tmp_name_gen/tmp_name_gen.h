#pragma once
// Short random names for temporary files and folders.
//
// One process-wide generator: an RC4 keystream keyed once from /dev/urandom (or, when the
// device cannot be read, from the time of day). Each name is 8 characters from a 64-character
// alphabet that is safe in file names. Nothing is checked on disk: uniqueness there is the
// caller's concern.

#include <pthread.h>

#include "ustring/ustring.h"

class TmpNameGen {
public:
    // The one instance, built on the first call (thread-safe) and never destroyed.
    static TmpNameGen* getInstance();

    // A new 8-character name; every call permutes the generator further.
    ustring getTmpName();
    // dir + "/" + getTmpName(), whether or not dir already ends in "/".
    ustring getTmpPath(const ustring& dir);

    void lock();
    void unlock();

    // Fills buf (which must hold 256 bytes) with 256 bytes of /dev/urandom; when the device
    // cannot be opened or reads short, writes "<seconds>-<microseconds>" and its 0 byte from
    // the time of day instead, bounded by size. Bytes behind that text keep their value.
    static void get_key(unsigned char* buf, unsigned long size);
    // RC4 key schedule of a 256-entry state from a 256-byte key.
    static void rc4_init(unsigned char* state, unsigned char* key);
    // n keystream bytes into out, advancing state; i and j start from 0 on every call.
    static void rc4_randomize(unsigned char* state, unsigned char* out, int n);

    // The name alphabet: digits, lower case, upper case, '-' and '_'.
    static const char map[64];

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

private:
    // Leaves the arrays alone: the instance sits in zero-initialised static storage, and its
    // (trivial) destructor never has anything to do.
    TmpNameGen();
    friend class TmpNameGenProbe;  // tests look at the permutation and the last bytes

    pthread_mutex_t mutex;
    unsigned char state[256];
    unsigned char key[256];
    unsigned char rand_bytes[6];
};
