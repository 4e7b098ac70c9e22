// Conversions between the two encodings, validity and normalization, all through ICU's C API.

// The UTF-16 buffer holds unsigned short units; let ICU's UChar be the same type so that
// no pointer casts between char16_t and unsigned short are needed.
#define UCHAR_TYPE uint16_t
#include "ustring/ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>
#include <unicode/utypes.h>

#include <climits>
#include <iostream>

namespace {

void warn(const char* function, UErrorCode status, int line)
{
    std::cerr << "Warning: " << function << ": error code " << static_cast<int>(status)
              << " at line " << line << std::endl;
}

// ICU counts in int32_t; a capacity beyond that is simply not used in full.
int32_t icu_capacity(size_t capacity)
{
    return capacity > INT32_MAX ? INT32_MAX : static_cast<int32_t>(capacity);
}

const UNormalization2Mode normalization_modes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};

}  // namespace

int ustring::convert_from_data() const
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    u_strFromUTF8(nullptr, 0, &length, data, -1, &status);
    status = U_ZERO_ERROR;  // the measuring call always reports overflow
    realloc_wdata(static_cast<size_t>(length) + 1);
    u_strFromUTF8(wdata, icu_capacity(wdata_capacity), &length, data, -1, &status);
    if (U_FAILURE(status)) {
        warn("u_strFromUTF8", status, __LINE__);
        clear_wdata();
        return -1;
    }
    wdata_length = static_cast<size_t>(length);
    wdata[length] = 0;
    return 0;
}

int ustring::convert_from_wdata()
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    u_strToUTF8(nullptr, 0, &length, wdata, -1, &status);
    status = U_ZERO_ERROR;
    realloc_data(static_cast<size_t>(length) + 1);
    u_strToUTF8(data, icu_capacity(data_capacity), &length, wdata, -1, &status);
    if (U_FAILURE(status)) {
        warn("u_strToUTF8", status, __LINE__);
        clear();
        return -1;
    }
    data_length = static_cast<size_t>(length);
    data[length] = 0;
    return 0;
}

bool ustring::is_valid(const ustring& s)
{
    if (s.data_length == 0)
        return true;
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    u_strFromUTF8(nullptr, 0, &length, s.data, -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

ustring ustring::normalize(const ustring& s, normalization_form f)
{
    ustring result;
    if (s.data_length == 0)
        return result;

    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* normalizer = nullptr;
    if (f == NFC || f == NFD)
        normalizer = unorm2_getInstance(nullptr, "nfc", normalization_modes[f], &status);
    else
        status = U_ILLEGAL_ARGUMENT_ERROR;
    if (normalizer == nullptr || U_FAILURE(status)) {
        warn("unorm2_getInstance", status, __LINE__);
        return result;
    }

    int32_t length = unorm2_normalize(normalizer, s.c_str_utf16(), -1, nullptr, 0, &status);
    result.realloc_wdata(static_cast<size_t>(length) + 1);
    status = U_ZERO_ERROR;
    length = unorm2_normalize(normalizer, s.c_str_utf16(), -1, result.wdata,
                              icu_capacity(result.wdata_capacity), &status);
    if (U_FAILURE(status)) {
        warn("unorm2_normalize", status, __LINE__);
        result.clear();
        return result;
    }
    result.wdata_length = static_cast<size_t>(length);
    result.wdata[length] = 0;
    result.convert_from_wdata();
    return result;
}

ustring ustring::normalize(normalization_form f) const
{
    return normalize(*this, f);
}
