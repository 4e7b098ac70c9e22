// ustring against std::string on the same data, and ustring::normalize against the same
// conversion and normalization done with ICU's C API by hand. Pairs are named X/ustring and
// X/reference so that the ratio can be read off directly (see bench/README.md).
#define UCHAR_TYPE uint16_t
#include "ustring/ustring.h"

#include <benchmark/benchmark.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <string>
#include <vector>

namespace {

// Path-like text with accented letters in both composed and decomposed spelling.
std::string sample_text(size_t bytes)
{
    static const char* const words[] = {"Documents/", "caf\xC3\xA9 ", "re\xCC\x81sume\xCC\x81 ",
                                        "\xED\x95\x9C\xEA\xB8\x80 ", "na\xC3\xAFve/",
                                        "photos-2024 "};
    std::string s;
    for (size_t i = 0; s.size() < bytes; ++i)
        s += words[i % 6];
    return s;
}

constexpr int kAppends = 256;

void Append_ustring(benchmark::State& state)
{
    for (auto _ : state) {
        ustring s;
        for (int i = 0; i < kAppends; ++i)
            s.append("segment/");
        benchmark::DoNotOptimize(s.c_str());
    }
}

void Append_reference(benchmark::State& state)
{
    for (auto _ : state) {
        std::string s;
        for (int i = 0; i < kAppends; ++i)
            s.append("segment/");
        benchmark::DoNotOptimize(s.c_str());
    }
}

const std::string& haystack()
{
    static const std::string text = sample_text(64 * 1024) + "needle-at-the-end";
    return text;
}

void Find_ustring(benchmark::State& state)
{
    const ustring text(haystack());
    for (auto _ : state)
        benchmark::DoNotOptimize(text.find("needle-at", 0));
}

void Find_reference(benchmark::State& state)
{
    const std::string& text = haystack();
    for (auto _ : state)
        benchmark::DoNotOptimize(text.find("needle-at", 0));
}

void FindFirstOf_ustring(benchmark::State& state)
{
    const ustring text(haystack());
    for (auto _ : state)
        benchmark::DoNotOptimize(text.find_first_of("-!", 0));
}

void FindFirstOf_reference(benchmark::State& state)
{
    const std::string& text = haystack();
    for (auto _ : state)
        benchmark::DoNotOptimize(text.find_first_of("-!", 0));
}

void Compare_ustring(benchmark::State& state)
{
    const ustring a(sample_text(4096)), b(sample_text(4096) + "x");
    for (auto _ : state)
        benchmark::DoNotOptimize(a.compare(b));
}

void Compare_reference(benchmark::State& state)
{
    const std::string a(sample_text(4096)), b(sample_text(4096) + "x");
    for (auto _ : state)
        benchmark::DoNotOptimize(a.compare(b));
}

void Normalize_ustring(benchmark::State& state)
{
    const auto form = static_cast<ustring::normalization_form>(state.range(0));
    const ustring text(sample_text(4096));
    for (auto _ : state) {
        text.clear_wdata();  // count the UTF-8 to UTF-16 conversion every time
        ustring r = text.normalize(form);
        benchmark::DoNotOptimize(r.c_str());
    }
}

// The same steps with ICU directly: measure and convert to UTF-16, measure and normalize,
// measure and convert back, each into a buffer of exactly the measured size.
void Normalize_reference(benchmark::State& state)
{
    const std::string text = sample_text(4096);
    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* norm = unorm2_getInstance(
        nullptr, "nfc", state.range(0) == 0 ? UNORM2_COMPOSE : UNORM2_DECOMPOSE, &status);
    for (auto _ : state) {
        int32_t n = 0;
        status = U_ZERO_ERROR;
        u_strFromUTF8(nullptr, 0, &n, text.c_str(), -1, &status);
        std::vector<UChar> utf16(n + 1);
        status = U_ZERO_ERROR;
        u_strFromUTF8(utf16.data(), n + 1, &n, text.c_str(), -1, &status);

        status = U_ZERO_ERROR;
        n = unorm2_normalize(norm, utf16.data(), -1, nullptr, 0, &status);
        std::vector<UChar> normal(n + 1);
        status = U_ZERO_ERROR;
        n = unorm2_normalize(norm, utf16.data(), -1, normal.data(), n + 1, &status);

        status = U_ZERO_ERROR;
        u_strToUTF8(nullptr, 0, &n, normal.data(), -1, &status);
        std::vector<char> utf8(n + 1);
        status = U_ZERO_ERROR;
        u_strToUTF8(utf8.data(), n + 1, &n, normal.data(), -1, &status);
        benchmark::DoNotOptimize(utf8.data());
    }
}

}  // namespace

BENCHMARK(Append_ustring);
BENCHMARK(Append_reference);
BENCHMARK(Find_ustring);
BENCHMARK(Find_reference);
BENCHMARK(FindFirstOf_ustring);
BENCHMARK(FindFirstOf_reference);
BENCHMARK(Compare_ustring);
BENCHMARK(Compare_reference);
BENCHMARK(Normalize_ustring)->Arg(ustring::NFC)->Arg(ustring::NFD);
BENCHMARK(Normalize_reference)->Arg(ustring::NFC)->Arg(ustring::NFD);
