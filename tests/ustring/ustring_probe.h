// Test view of a ustring's buffers, for checking the growth rule and the cache rules.
#ifndef SKELDA_TESTS_USTRING_PROBE_H
#define SKELDA_TESTS_USTRING_PROBE_H

#include "ustring/ustring.h"

#include <string>

class UstringProbe : public ustring {
public:
    using ustring::ustring;
    using ustring::operator=;
    UstringProbe() = default;
    // Takes over another object's buffers (cache included), e.g. a normalization result.
    explicit UstringProbe(ustring&& s) { swap(s); }

    size_t dataCapacity() const { return data_capacity; }
    size_t wdataCapacity() const { return wdata_capacity; }
    size_t wdataLength() const { return wdata_length; }
    const unsigned short* rawWdata() const { return wdata; }
    void reallocData(size_t bytes) { realloc_data(bytes); }
    void reallocWdata(size_t units) const { realloc_wdata(units); }
};

// UTF-16 text of a u"" literal as the unit type ustring uses.
inline const unsigned short* units(const char16_t* s)
{
    return reinterpret_cast<const unsigned short*>(s);
}

inline std::u16string toU16(const unsigned short* s)
{
    std::u16string r;
    for (; *s != 0; ++s)
        r.push_back(static_cast<char16_t>(*s));
    return r;
}

#endif  // SKELDA_TESTS_USTRING_PROBE_H
