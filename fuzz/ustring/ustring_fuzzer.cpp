// Random UTF-8 and UTF-16 through appends, searches, trimming, conversions and normalization.
// Checks: searches agree with std::string (with ustring's rules at the ends of the text),
// both encodings agree after every conversion, NFC of NFD equals NFC, and ICU's verdicts
// match an independent validity check.
#include "ustring/ustring.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <streambuf>
#include <vector>

namespace {

void check(bool ok, const char* what)
{
    if (!ok) {
        std::fprintf(stderr, "invariant broken: %s\n", what);
        std::abort();
    }
}

// Conversion warnings on std::cerr would drown libFuzzer's own output.
class NullBuffer : public std::streambuf {
protected:
    int overflow(int c) override { return c; }
};

bool well_formed_utf16(const std::u16string& s)
{
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] >= 0xD800 && s[i] <= 0xDBFF) {
            if (i + 1 == s.size() || s[i + 1] < 0xDC00 || s[i + 1] > 0xDFFF)
                return false;
            ++i;
        } else if (s[i] >= 0xDC00 && s[i] <= 0xDFFF) {
            return false;
        }
    }
    return true;
}

std::u16string utf16_of(const ustring& s)
{
    std::u16string r;
    for (const unsigned short* p = s.c_str_utf16(); *p != 0; ++p)
        r.push_back(static_cast<char16_t>(*p));
    return r;
}

// Both encodings of a valid text describe the same characters.
void check_round_trip(const ustring& s)
{
    const std::u16string units = utf16_of(s);
    check(units.empty() == s.empty(), "UTF-16 empty exactly when UTF-8 empty");
    const ustring back(s.c_str_utf16());
    check(back == s, "UTF-8 -> UTF-16 -> UTF-8 is the identity");
}

void check_searches(const ustring& u, const std::string& model, const std::string& arg,
                    size_t pos)
{
    const size_t len = model.size();
    const size_t fwd = pos >= len ? ustring::npos : pos;
    const size_t start = len == 0 ? 0 : (pos >= len ? len - 1 : pos);
    auto forward = [&](size_t r) { return fwd == ustring::npos ? ustring::npos : r; };
    auto backward = [&](size_t r) { return len == 0 ? ustring::npos : r; };
    const char* a = arg.c_str();
    check(u.find(a, pos) == forward(model.find(arg, fwd)), "find");
    check(u.find_first_of(a, pos) == forward(model.find_first_of(arg, fwd)), "find_first_of");
    check(u.find_first_not_of(a, pos) == forward(model.find_first_not_of(arg, fwd)),
          "find_first_not_of");
    check(u.rfind(a, pos) == backward(model.rfind(arg, start)), "rfind");
    check(u.find_last_of(a, pos) == backward(model.find_last_of(arg, start)), "find_last_of");
    check(u.find_last_not_of(a, pos) == backward(model.find_last_not_of(arg, start)),
          "find_last_not_of");
}

void check_trim(const std::string& text, const std::string& set)
{
    ustring u(text);
    u.trim(set.c_str());
    std::string model = text;
    if (!set.empty()) {
        const size_t first = model.find_first_not_of(set);
        model = first == std::string::npos ? "" : model.substr(first);
        model.erase(model.find_last_not_of(set) + 1);
    }
    check(u.length() == model.size() && model == u.c_str(), "trim");
}

void check_normalization(const ustring& s)
{
    const ustring nfc = s.normalize(ustring::NFC);
    const ustring nfd = s.normalize(ustring::NFD);
    if (!ustring::is_valid(s)) {
        check(nfc.empty() && nfd.empty(), "ill-formed text normalizes to nothing");
        return;
    }
    check(ustring::is_valid(nfc) && ustring::is_valid(nfd), "normal forms are well-formed");
    check(nfd.normalize(ustring::NFC) == nfc, "NFC of NFD equals NFC");
    check(nfc.normalize(ustring::NFD) == nfd, "NFD of NFC equals NFD");
    check(nfc.normalize(ustring::NFC) == nfc, "NFC is idempotent");
    check_round_trip(nfc);
    check_round_trip(nfd);
}

void fuzz_utf8(FuzzedDataProvider& in)
{
    // Texts count up to their first 0 byte, as every byte source of ustring does.
    const std::string text = in.ConsumeRandomLengthString(256).c_str();
    const std::string arg = in.ConsumeRandomLengthString(16).c_str();
    const size_t pos = in.ConsumeBool() ? ustring::npos
                                        : in.ConsumeIntegralInRange<size_t>(0, text.size() + 1);
    ustring u(text);
    check(u.length() == text.size() && text == u.c_str(), "construction");
    check_searches(u, text, arg, pos);
    check_trim(text, arg);

    ustring appended(u);
    appended.append(arg.c_str());
    appended += appended;
    check(appended.c_str() == text + arg + text + arg, "append and self-append");
    check(appended.substr(text.size(), arg.size()) == ustring(arg), "substr");
    const int sign = u.compare(ustring(arg));
    const int model_sign = std::strcmp(text.c_str(), arg.c_str());
    check((sign < 0) == (model_sign < 0) && (sign == 0) == (model_sign == 0), "compare");

    if (ustring::is_valid(u))
        check_round_trip(u);
    else
        check(u.convert_from_data() == -1 && u.c_str() == text, "ill-formed UTF-8 kept");
    check_normalization(u);
}

void fuzz_utf16(FuzzedDataProvider& in)
{
    const std::string prefix = in.ConsumeRandomLengthString(16).c_str();
    // The rest is little-endian UTF-16 up to its first 0 unit.
    const std::vector<uint8_t> raw = in.ConsumeRemainingBytes<uint8_t>();
    std::u16string units;
    for (size_t i = 0; i + 1 < raw.size() && units.size() < 128; i += 2) {
        const char16_t unit = static_cast<char16_t>(raw[i] | raw[i + 1] << 8);
        if (unit == 0)
            break;
        units.push_back(unit);
    }
    ustring u(prefix);
    u.append(reinterpret_cast<const unsigned short*>(units.c_str()));
    if (!well_formed_utf16(units)) {
        check(u.empty(), "unconvertible UTF-16 empties the string");
        return;
    }
    if (!ustring::is_valid(ustring(prefix))) {
        // The cache cannot be filled from ill-formed UTF-8, so the units replace the text.
        check(u == ustring(reinterpret_cast<const unsigned short*>(units.c_str())),
              "UTF-16 appended to ill-formed UTF-8 replaces it");
        return;
    }
    check(ustring::is_valid(u), "converted text is well-formed");
    check(u.length() >= prefix.size() && std::memcmp(u.c_str(), prefix.data(), prefix.size()) == 0,
          "UTF-16 append keeps the UTF-8 prefix");
    const ustring copy(u.c_str());  // a fresh object converts from UTF-8 again
    check(utf16_of(copy) == utf16_of(u), "UTF-16 survives the trip through UTF-8");
    check_normalization(u);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    static NullBuffer null_buffer;
    std::cerr.rdbuf(&null_buffer);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzedDataProvider in(data, size);
    if (in.ConsumeBool())
        fuzz_utf16(in);
    else
        fuzz_utf8(in);
    return 0;
}
