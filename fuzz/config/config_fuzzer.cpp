// Feeds arbitrary bytes to Config::parse (as one line) and Config::read (as a whole file)
// and checks what a successful result promises about keys and values.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

#include "config/config.h"

namespace {

bool IsKeyChar(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
           c == '_' || c == '-' || c == '.';
}

void Check(bool ok) {
    if (!ok)
        std::abort();
}

void CheckPair(const ustring& key, const ustring& value) {
    for (size_t i = 0; i < key.length(); ++i)
        Check(IsKeyChar(static_cast<unsigned char>(key[i])));
    for (size_t i = 0; i < value.length(); ++i) {
        unsigned char c = static_cast<unsigned char>(value[i]);
        Check(c >= 32 && c != 127);
    }
}

void FuzzParse(const uint8_t* data, size_t size) {
    std::string line(reinterpret_cast<const char*>(data), size);
    ustring key, value;
    Config config;
    int rc = config.parse(line.data(), static_cast<int>(line.size()), key, value);
    Check(rc >= 0 && rc <= 2);
    if (rc == 0)
        CheckPair(key, value);
}

void FuzzRead(const uint8_t* data, size_t size) {
    int fd = memfd_create("config-fuzz", 0);
    if (fd < 0)
        return;
    if (write(fd, data, size) == static_cast<ssize_t>(size)) {
        Config config;
        int rc = config.read(ustring(("/proc/self/fd/" + std::to_string(fd)).c_str()));
        Check(rc == 0 || (rc == -1 && config.empty()));
        for (const auto& entry : config)
            CheckPair(entry.first, entry.second);
    }
    close(fd);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzParse(data, size);
    FuzzRead(data, size);
    return 0;
}
