// Byte searches, trimming and byte-order comparison over the UTF-8 text.
#include "ustring/ustring.h"

#include <cstring>
#include <string_view>

namespace {

// Which bytes occur in a search or trim set.
class ByteSet {
public:
    ByteSet(const char* set, size_t len)
    {
        for (size_t i = 0; i < len; ++i)
            member_[static_cast<unsigned char>(set[i])] = true;
    }
    bool has(char c) const { return member_[static_cast<unsigned char>(c)]; }

private:
    bool member_[256] = {};
};

// A char argument is one byte; the 0 byte is an empty argument.
size_t char_arg_length(char c)
{
    return c == 0 ? 0 : 1;
}

// The case-insensitive order folds ASCII letters only: entry i is i except 'A'..'Z'.
struct CaseFoldTable {
    unsigned char map[256];
    CaseFoldTable()
    {
        for (int i = 0; i < 256; ++i)
            map[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
    }
};
const CaseFoldTable str_case_cmp;

// Unsigned byte order over at most n bytes, up to the first difference or the terminator,
// with each byte mapped through the case-folding table when ignore_case is set.
int compare_bytes(const char* a, const char* b, size_t n, bool ignore_case)
{
    for (size_t i = 0; i < n; ++i) {
        unsigned char ca = static_cast<unsigned char>(a[i]);
        unsigned char cb = static_cast<unsigned char>(b[i]);
        if (ignore_case) {
            ca = str_case_cmp.map[ca];
            cb = str_case_cmp.map[cb];
        }
        if (ca != cb)
            return ca - cb;
        if (ca == 0)
            return 0;
    }
    return 0;
}

}  // namespace

// ---- searches ----

size_t ustring::find_bytes(const char* x, size_t xlen, size_t pos) const
{
    if (pos >= data_length)
        return npos;
    if (xlen == 0)
        return pos;
    return std::string_view(data, data_length).find(std::string_view(x, xlen), pos);
}

size_t ustring::rfind_bytes(const char* x, size_t xlen, size_t pos) const
{
    if (data_length == 0)
        return npos;
    const size_t start = pos >= data_length ? data_length - 1 : pos;
    if (xlen == 0)
        return start;
    return std::string_view(data, data_length).rfind(std::string_view(x, xlen), start);
}

size_t ustring::find_first_of_bytes(const char* x, size_t xlen, size_t pos, bool in_set) const
{
    if (pos >= data_length)
        return npos;
    if (xlen == 0)
        return in_set ? npos : pos;
    if (xlen == 1 && in_set) {
        const void* hit = std::memchr(data + pos, x[0], data_length - pos);
        return hit ? static_cast<const char*>(hit) - data : npos;
    }
    const ByteSet set(x, xlen);
    for (size_t i = pos; i < data_length; ++i) {
        if (set.has(data[i]) == in_set)
            return i;
    }
    return npos;
}

size_t ustring::find_last_of_bytes(const char* x, size_t xlen, size_t pos, bool in_set) const
{
    if (data_length == 0)
        return npos;
    const size_t start = pos >= data_length ? data_length - 1 : pos;
    if (xlen == 0)
        return in_set ? npos : start;
    const ByteSet set(x, xlen);
    for (size_t i = start + 1; i-- > 0;) {
        if (set.has(data[i]) == in_set)
            return i;
    }
    return npos;
}

size_t ustring::find(const std::string& s, size_t pos) const
{
    return find_bytes(s.c_str(), std::strlen(s.c_str()), pos);
}
size_t ustring::find(const char* s, size_t pos) const
{
    return find_bytes(s, std::strlen(s), pos);
}
size_t ustring::find(const ustring& s, size_t pos) const
{
    return find_bytes(s.data, std::strlen(s.data), pos);
}
size_t ustring::find(char c, size_t pos) const
{
    return find_bytes(&c, char_arg_length(c), pos);
}

size_t ustring::rfind(const std::string& s, size_t pos) const
{
    return rfind_bytes(s.c_str(), std::strlen(s.c_str()), pos);
}
size_t ustring::rfind(const char* s, size_t pos) const
{
    return rfind_bytes(s, std::strlen(s), pos);
}
size_t ustring::rfind(const ustring& s, size_t pos) const
{
    return rfind_bytes(s.data, std::strlen(s.data), pos);
}
size_t ustring::rfind(char c, size_t pos) const
{
    return rfind_bytes(&c, char_arg_length(c), pos);
}

size_t ustring::find_first_of(const std::string& s, size_t pos) const
{
    return find_first_of_bytes(s.c_str(), std::strlen(s.c_str()), pos, true);
}
size_t ustring::find_first_of(const char* s, size_t pos) const
{
    return find_first_of_bytes(s, std::strlen(s), pos, true);
}
size_t ustring::find_first_of(const ustring& s, size_t pos) const
{
    return find_first_of_bytes(s.data, std::strlen(s.data), pos, true);
}
size_t ustring::find_first_of(char c, size_t pos) const
{
    return find_first_of_bytes(&c, char_arg_length(c), pos, true);
}

size_t ustring::find_first_not_of(const std::string& s, size_t pos) const
{
    return find_first_of_bytes(s.c_str(), std::strlen(s.c_str()), pos, false);
}
size_t ustring::find_first_not_of(const char* s, size_t pos) const
{
    return find_first_of_bytes(s, std::strlen(s), pos, false);
}
size_t ustring::find_first_not_of(const ustring& s, size_t pos) const
{
    return find_first_of_bytes(s.data, std::strlen(s.data), pos, false);
}
size_t ustring::find_first_not_of(char c, size_t pos) const
{
    return find_first_of_bytes(&c, char_arg_length(c), pos, false);
}

size_t ustring::find_last_of(const std::string& s, size_t pos) const
{
    return find_last_of_bytes(s.c_str(), std::strlen(s.c_str()), pos, true);
}
size_t ustring::find_last_of(const char* s, size_t pos) const
{
    return find_last_of_bytes(s, std::strlen(s), pos, true);
}
size_t ustring::find_last_of(const ustring& s, size_t pos) const
{
    return find_last_of_bytes(s.data, std::strlen(s.data), pos, true);
}
size_t ustring::find_last_of(char c, size_t pos) const
{
    return find_last_of_bytes(&c, char_arg_length(c), pos, true);
}

size_t ustring::find_last_not_of(const std::string& s, size_t pos) const
{
    return find_last_of_bytes(s.c_str(), std::strlen(s.c_str()), pos, false);
}
size_t ustring::find_last_not_of(const char* s, size_t pos) const
{
    return find_last_of_bytes(s, std::strlen(s), pos, false);
}
size_t ustring::find_last_not_of(const ustring& s, size_t pos) const
{
    return find_last_of_bytes(s.data, std::strlen(s.data), pos, false);
}
size_t ustring::find_last_not_of(char c, size_t pos) const
{
    return find_last_of_bytes(&c, char_arg_length(c), pos, false);
}

// ---- trimming: in place, and only a real change empties the cache ----

void ustring::ltrim_bytes(const char* set, size_t setlen)
{
    if (data_length == 0 || setlen == 0)
        return;
    const ByteSet members(set, setlen);
    size_t cut = 0;
    while (cut < data_length && members.has(data[cut]))
        ++cut;
    if (cut == 0)
        return;
    data_length -= cut;
    std::memmove(data, data + cut, data_length);
    data[data_length] = 0;
    clear_wdata();
}

void ustring::rtrim_bytes(const char* set, size_t setlen)
{
    if (data_length == 0 || setlen == 0)
        return;
    const ByteSet members(set, setlen);
    size_t keep = data_length;
    while (keep > 0 && members.has(data[keep - 1]))
        --keep;
    if (keep == data_length)
        return;
    data_length = keep;
    data[data_length] = 0;
    clear_wdata();
}

void ustring::ltrim(const ustring& set) { ltrim_bytes(set.data, std::strlen(set.data)); }
void ustring::ltrim(const char* set) { ltrim_bytes(set, std::strlen(set)); }
void ustring::rtrim(const ustring& set) { rtrim_bytes(set.data, std::strlen(set.data)); }
void ustring::rtrim(const char* set) { rtrim_bytes(set, std::strlen(set)); }

void ustring::trim(const ustring& set)
{
    ltrim(set);
    rtrim(set);
}

void ustring::trim(const char* set)
{
    ltrim(set);
    rtrim(set);
}

void ustring::replace(char from, char to)
{
    for (size_t i = 0; i < data_length; ++i) {
        if (data[i] == from)
            data[i] = to;
    }
    clear_wdata();
}

// ---- comparison ----

int ustring::compare(const ustring& o) const
{
    return compare_bytes(data, o.data, npos, false);
}

int ustring::compare(const ustring& o, size_t n) const
{
    return compare_bytes(data, o.data, n, false);
}

int ustring::compare(const ustring& a, const ustring& b, bool ignore_case)
{
    return compare_bytes(a.data, b.data, npos, ignore_case);
}

bool operator==(const ustring& a, const ustring& b) { return a.compare(b) == 0; }
bool operator!=(const ustring& a, const ustring& b) { return a.compare(b) != 0; }
bool operator<(const ustring& a, const ustring& b) { return a.compare(b) < 0; }
bool operator>(const ustring& a, const ustring& b) { return a.compare(b) > 0; }
bool operator<=(const ustring& a, const ustring& b) { return a.compare(b) <= 0; }
bool operator>=(const ustring& a, const ustring& b) { return a.compare(b) >= 0; }
