// ustring: one text held as UTF-8 (authoritative) with a UTF-16 copy made on demand.
//
// - Lengths and positions always count UTF-8 bytes.
// - The UTF-16 buffer is a cache: any change of the UTF-8 bytes empties it, and it is filled
//   again by c_str_utf16(), by any UTF-16 input and by normalization.
// - Every buffer is sized to exactly what the last step needed (terminator included); a buffer
//   shrinks when it is more than twice the need. There is no geometric growth and no
//   small-string buffer: even the empty text owns 4 bytes and 4 UTF-16 units.
// - Conversion failures never throw: they print a "Warning: <icu function>: error code ..."
//   line on standard error and leave the states documented below.
// - Not thread-safe, not even for two concurrent reads: the const accessors fill the cache.
#ifndef SKELDA_USTRING_USTRING_H
#define SKELDA_USTRING_USTRING_H

#include <cstddef>
#include <iosfwd>
#include <string>

class ustring {
public:
    enum normalization_form {
        NFC = 0,  // canonical composition
        NFD = 1,  // canonical decomposition
    };

    // As a count: up to the end of the text. As a result: nothing found.
    static constexpr size_t npos = static_cast<size_t>(-1);

    ustring();
    ustring(const ustring& s);
    ustring(const char* s);               // UTF-8 up to the terminator
    ustring(const unsigned short* s);     // UTF-16 up to the 0 unit
    ustring(const std::string& s);
    ustring(char c);
    ~ustring();

    void clear();              // both texts emptied; no buffer freed or resized
    void clear_data();         // UTF-8 side only
    void clear_wdata() const;  // UTF-16 side only
    void swap(ustring& o);     // exchanges the buffers; nothing is copied

    // Access, all without copying.
    const char* c_str() const { return data; }
    const char* c_str_utf8() const { return data; }
    const unsigned short* c_str_utf16() const;  // fills the cache when it is empty
    size_t length() const { return data_length; }
    size_t size() const { return data_length; }
    bool empty() const { return data_length == 0; }
    // No range test. Writing through the non-const form does not touch the UTF-16 cache.
    const char& operator[](size_t i) const { return data[i]; }
    char& operator[](size_t i) { return data[i]; }

    // Assignment. The object and std::string sources empty the target first, so when `pos`
    // is out of range (std::out_of_range) the target is left empty.
    ustring& assign(const ustring& s, size_t pos = 0, size_t n = npos);
    ustring& assign(const char* s);
    ustring& assign(const char* s, size_t n);
    ustring& assign(const unsigned short* s);
    ustring& assign(const unsigned short* s, size_t n);
    ustring& assign(const std::string& s, size_t pos = 0, size_t n = npos);
    ustring& assign(char c, size_t n);
    ustring& assign(unsigned short c, size_t n);
    ustring& operator=(const ustring& s);
    ustring& operator=(const std::string& s);
    ustring& operator=(const char* s);
    ustring& operator=(const unsigned short* s);
    ustring& operator=(char c);
    ustring& operator=(unsigned short c);

    // Appending. Byte and unit sources stop early at their terminator. UTF-16 input is
    // edited in the cache and converted back; input ICU cannot convert (an unpaired
    // surrogate, say) empties the whole text.
    ustring& append(const char* s);
    ustring& append(const char* s, size_t n);
    ustring& append(char c, size_t n);
    ustring& append(const unsigned short* s);
    ustring& append(const unsigned short* s, size_t n);
    ustring& append(unsigned short c, size_t n);
    ustring& append(const ustring& s, size_t pos = 0, size_t n = npos);
    ustring& append(const std::string& s, size_t pos = 0, size_t n = npos);
    ustring& operator+=(const ustring& s);  // appends a copy, so x += x doubles x
    ustring& operator+=(const std::string& s);
    ustring& operator+=(const char* s);
    ustring& operator+=(const unsigned short* s);
    ustring& operator+=(char c);
    ustring& operator+=(unsigned short c);

    // Throws std::out_of_range("substr") when pos > length(); pos == length() gives "".
    ustring substr(size_t pos = 0, size_t n = npos) const;

    // Byte searches. An argument counts up to its first 0 byte; the char 0 is an empty
    // argument. Forward searches start at `pos`, backward ones at min(pos, length() - 1).
    size_t find(const std::string& s, size_t pos = 0) const;
    size_t find(const char* s, size_t pos = 0) const;
    size_t find(const ustring& s, size_t pos = 0) const;
    size_t find(char c, size_t pos = 0) const;
    size_t rfind(const std::string& s, size_t pos = npos) const;
    size_t rfind(const char* s, size_t pos = npos) const;
    size_t rfind(const ustring& s, size_t pos = npos) const;
    size_t rfind(char c, size_t pos = npos) const;
    size_t find_first_of(const std::string& s, size_t pos = 0) const;
    size_t find_first_of(const char* s, size_t pos = 0) const;
    size_t find_first_of(const ustring& s, size_t pos = 0) const;
    size_t find_first_of(char c, size_t pos = 0) const;
    size_t find_first_not_of(const std::string& s, size_t pos = 0) const;
    size_t find_first_not_of(const char* s, size_t pos = 0) const;
    size_t find_first_not_of(const ustring& s, size_t pos = 0) const;
    size_t find_first_not_of(char c, size_t pos = 0) const;
    size_t find_last_of(const std::string& s, size_t pos = npos) const;
    size_t find_last_of(const char* s, size_t pos = npos) const;
    size_t find_last_of(const ustring& s, size_t pos = npos) const;
    size_t find_last_of(char c, size_t pos = npos) const;
    size_t find_last_not_of(const std::string& s, size_t pos = npos) const;
    size_t find_last_not_of(const char* s, size_t pos = npos) const;
    size_t find_last_not_of(const ustring& s, size_t pos = npos) const;
    size_t find_last_not_of(char c, size_t pos = npos) const;

    // Remove leading / trailing bytes that occur in `set`, in place (no reallocation).
    void ltrim(const ustring& set);
    void ltrim(const char* set);
    void rtrim(const ustring& set);
    void rtrim(const char* set);
    void trim(const ustring& set);
    void trim(const char* set);

    void replace(char from, char to);  // byte for byte; empties the cache

    // Unsigned byte order up to the terminator at length(): the difference of the first
    // differing bytes, or 0.
    int compare(const ustring& o) const;
    int compare(const ustring& o, size_t n) const;  // at most n bytes
    // ignore_case folds ASCII A-Z only; bytes from 0x80 up compare unchanged.
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    static bool is_valid(const ustring& s);  // well-formed UTF-8; "" is valid
    // On an ICU failure the result is empty.
    static ustring normalize(const ustring& s, normalization_form f);
    ustring normalize(normalization_form f) const;

    // UTF-8 -> cache. On failure: warning, cache empty, UTF-8 kept, -1.
    int convert_from_data() const;
    // Cache -> UTF-8. On failure: warning, both texts empty, -1.
    int convert_from_wdata();

protected:
    // Protected rather than private so that tests can watch the growth rule from a subclass.
    void init();
    // The growth rule: keep the buffer when capacity >= needed && capacity / 2 <= needed,
    // otherwise reallocate to exactly `needed`. Throws std::bad_alloc, keeping the old buffer.
    void realloc_data(size_t bytes);
    void realloc_wdata(size_t units) const;

    char* data;
    size_t data_length;
    size_t data_capacity;
    mutable unsigned short* wdata;
    mutable size_t wdata_length;
    mutable size_t wdata_capacity;

private:
    ustring& append_bytes(const char* s, size_t n);
    ustring& append_units(const unsigned short* s, size_t n);
    size_t find_bytes(const char* x, size_t xlen, size_t pos) const;
    size_t rfind_bytes(const char* x, size_t xlen, size_t pos) const;
    size_t find_first_of_bytes(const char* x, size_t xlen, size_t pos, bool in_set) const;
    size_t find_last_of_bytes(const char* x, size_t xlen, size_t pos, bool in_set) const;
    void ltrim_bytes(const char* set, size_t setlen);
    void rtrim_bytes(const char* set, size_t setlen);
};

void swap(ustring& a, ustring& b);

ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

bool operator==(const ustring& a, const ustring& b);
bool operator!=(const ustring& a, const ustring& b);
bool operator<(const ustring& a, const ustring& b);
bool operator>(const ustring& a, const ustring& b);
bool operator<=(const ustring& a, const ustring& b);
bool operator>=(const ustring& a, const ustring& b);

// Writes the UTF-8 bytes up to the first 0 byte, unconverted.
std::ostream& operator<<(std::ostream& os, const ustring& s);
// Reads one whitespace-delimited word as into a std::string; on failure assigns "".
std::istream& operator>>(std::istream& is, ustring& s);

#endif  // SKELDA_USTRING_USTRING_H
