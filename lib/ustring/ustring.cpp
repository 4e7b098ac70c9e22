// Buffers, construction, assignment and appending.
#include "ustring/ustring.h"

#include <cstdlib>
#include <cstring>
#include <istream>
#include <new>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace {

// The growth rule for either buffer: exact size, shrinking when more than twice the need.
template <typename T>
void resize_exact(T*& buf, size_t& capacity, size_t needed)
{
    if (capacity >= needed && capacity / 2 <= needed)
        return;
    // A failed realloc leaves the old buffer in place, so the object stays valid.
    void* p = std::realloc(buf, needed * sizeof(T));
    if (p == nullptr)
        throw std::bad_alloc();
    buf = static_cast<T*>(p);
    capacity = needed;
}

size_t bounded_strlen(const char* s, size_t n)
{
    return n == ustring::npos ? std::strlen(s) : strnlen(s, n);
}

size_t bounded_unitlen(const unsigned short* s, size_t n)
{
    size_t i = 0;
    while (i < n && s[i] != 0)
        ++i;
    return i;
}

}  // namespace

void ustring::init()
{
    data = nullptr;
    data_length = 0;
    data_capacity = 0;
    wdata = nullptr;
    wdata_length = 0;
    wdata_capacity = 0;
    realloc_data(4);
    try {
        realloc_wdata(4);
    } catch (...) {
        std::free(data);
        throw;
    }
    data[0] = 0;
    wdata[0] = 0;
}

void ustring::realloc_data(size_t bytes)
{
    resize_exact(data, data_capacity, bytes);
}

void ustring::realloc_wdata(size_t units) const
{
    resize_exact(wdata, wdata_capacity, units);
}

// The other constructors delegate, so the destructor frees the buffers if assignment throws.
ustring::ustring()
{
    init();
}

ustring::ustring(const ustring& s) : ustring()
{
    assign(s, 0, npos);
}

ustring::ustring(const char* s) : ustring()
{
    assign(s);
}

ustring::ustring(const unsigned short* s) : ustring()
{
    assign(s);
}

ustring::ustring(const std::string& s) : ustring()
{
    assign(s, 0, npos);
}

ustring::ustring(char c) : ustring()
{
    assign(c, 1);
}

ustring::~ustring()
{
    std::free(data);
    std::free(wdata);
    data = nullptr;
    wdata = nullptr;
}

void ustring::clear()
{
    clear_data();
    clear_wdata();
}

void ustring::clear_data()
{
    data_length = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const
{
    wdata_length = 0;
    wdata[0] = 0;
}

void ustring::swap(ustring& o)
{
    std::swap(data, o.data);
    std::swap(data_length, o.data_length);
    std::swap(data_capacity, o.data_capacity);
    std::swap(wdata, o.wdata);
    std::swap(wdata_length, o.wdata_length);
    std::swap(wdata_capacity, o.wdata_capacity);
}

void swap(ustring& a, ustring& b)
{
    a.swap(b);
}

const unsigned short* ustring::c_str_utf16() const
{
    if (wdata_length == 0)
        convert_from_data();
    return wdata;
}

// ---- assignment ----

ustring& ustring::assign(const ustring& s, size_t pos, size_t n)
{
    if (&s == this) {
        const ustring part = substr(pos, n);
        return assign(part, 0, npos);
    }
    clear();
    return append(s, pos, n);
}

ustring& ustring::assign(const char* s)
{
    if (s == data)
        return *this;
    clear();
    return append(s);
}

ustring& ustring::assign(const char* s, size_t n)
{
    if (s != data) {
        clear();
        return append(s, n);
    }
    if (data_length > n) {
        data_length = n;
        data[n] = 0;
        clear_wdata();
    }
    return *this;
}

ustring& ustring::assign(const unsigned short* s)
{
    if (s == wdata)
        return *this;
    clear();
    return append(s);
}

ustring& ustring::assign(const unsigned short* s, size_t n)
{
    if (s != wdata) {
        clear();
        return append(s, n);
    }
    if (wdata_length > n) {
        wdata_length = n;
        wdata[n] = 0;
        convert_from_wdata();
    }
    return *this;
}

ustring& ustring::assign(const std::string& s, size_t pos, size_t n)
{
    clear();
    return append(std::string(s, pos, n).c_str());
}

ustring& ustring::assign(char c, size_t n)
{
    clear();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, size_t n)
{
    clear();
    return append(c, n);
}

ustring& ustring::operator=(const ustring& s) { return assign(s, 0, npos); }
ustring& ustring::operator=(const std::string& s) { return assign(s, 0, npos); }
ustring& ustring::operator=(const char* s) { return assign(s); }
ustring& ustring::operator=(const unsigned short* s) { return assign(s); }
ustring& ustring::operator=(char c) { return assign(c, 1); }
ustring& ustring::operator=(unsigned short c) { return assign(c, 1); }

// ---- appending UTF-8 ----

ustring& ustring::append_bytes(const char* s, size_t n)
{
    const bool self = (s == data);
    // Our own text is measured by its length; reading it again after the resize below
    // follows the buffer if it moved.
    const size_t count = self ? (n < data_length ? n : data_length) : bounded_strlen(s, n);
    realloc_data(data_length + count + 1);
    if (self)
        s = data;
    const size_t copied = self ? strnlen(s, count) : count;
    std::memcpy(data + data_length, s, copied);
    data_length += copied;
    data[data_length] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(const char* s)
{
    return append_bytes(s, npos);
}

ustring& ustring::append(const char* s, size_t n)
{
    return append_bytes(s, n);
}

ustring& ustring::append(char c, size_t n)
{
    realloc_data(data_length + n + 1);
    std::memset(data + data_length, c, n);
    data_length += n;
    data[data_length] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(const ustring& s, size_t pos, size_t n)
{
    if (pos > s.data_length)
        throw std::out_of_range("substr");
    if (&s == this) {
        // A pointer into the middle of our own buffer would dangle after a resize.
        const ustring part = s.substr(pos, n);
        return append_bytes(part.data, npos);
    }
    const size_t count = (n != npos && n <= s.data_length) ? n : s.data_length;
    return append_bytes(s.data + pos, count);
}

ustring& ustring::append(const std::string& s, size_t pos, size_t n)
{
    return append_bytes(std::string(s, pos, n).c_str(), npos);
}

ustring& ustring::operator+=(const ustring& s) { return append(s, 0, npos); }
ustring& ustring::operator+=(const std::string& s) { return append(s, 0, npos); }
ustring& ustring::operator+=(const char* s) { return append(s); }
ustring& ustring::operator+=(const unsigned short* s) { return append(s); }
ustring& ustring::operator+=(char c) { return append(c, 1); }
ustring& ustring::operator+=(unsigned short c) { return append(c, 1); }

// ---- appending UTF-16: edit the cache, then regenerate the UTF-8 text ----

ustring& ustring::append_units(const unsigned short* s, size_t n)
{
    if (wdata_length == 0 && data_length != 0)
        convert_from_data();
    const bool self = (s == wdata);
    const size_t count = self ? (n < wdata_length ? n : wdata_length) : bounded_unitlen(s, n);
    realloc_wdata(wdata_length + count + 1);
    if (self)
        s = wdata;
    const size_t copied = bounded_unitlen(s, count);
    std::memcpy(wdata + wdata_length, s, copied * sizeof(unsigned short));
    wdata_length += copied;
    wdata[wdata_length] = 0;
    convert_from_wdata();
    return *this;
}

ustring& ustring::append(const unsigned short* s)
{
    return append_units(s, npos);
}

ustring& ustring::append(const unsigned short* s, size_t n)
{
    return append_units(s, n);
}

ustring& ustring::append(unsigned short c, size_t n)
{
    if (wdata_length == 0 && data_length != 0)
        convert_from_data();
    realloc_wdata(wdata_length + n + 1);
    for (size_t i = 0; i < n; ++i)
        wdata[wdata_length + i] = c;
    wdata_length += n;
    wdata[wdata_length] = 0;
    convert_from_wdata();
    return *this;
}

ustring ustring::substr(size_t pos, size_t n) const
{
    if (pos > data_length)
        throw std::out_of_range("substr");
    const size_t count = (n != npos && n <= data_length) ? n : data_length;
    ustring result;
    result.append_bytes(data + pos, count);
    return result;
}

ustring operator+(const ustring& a, const ustring& b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, const char* b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, char b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, const unsigned short* b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, unsigned short b)
{
    ustring r(a);
    r += b;
    return r;
}

std::ostream& operator<<(std::ostream& os, const ustring& s)
{
    return os << s.c_str();
}

std::istream& operator>>(std::istream& is, ustring& s)
{
    std::string word;
    if (is >> word)
        s.assign(word, 0, ustring::npos);
    else
        s.assign("");
    return is;
}
