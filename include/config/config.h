#pragma once
// Reader of small key=value files (the logger's debug-level file, the client's pid file).
// A Config is the map itself: subscript it, iterate it in key order.
//
// Line format: optional whitespace, a key of [A-Za-z0-9_.-] (may be empty), optional
// whitespace, "=", optional whitespace, a value, then only whitespace and an optional
// "#" comment. A plain value ends at a blank, a control character or DEL (bytes from 128
// up belong to it, so UTF-8 stays whole); a quoted value ('...' or "...") may hold blanks.
// Blank lines and "#" lines are skipped; a later duplicate key wins. One malformed line
// fails the whole read and leaves the map empty, so nobody works on half a file.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <sstream>

#include "ustring/ustring.h"

class Config : public std::map<ustring, ustring> {
public:
    // When true, a quoted value keeps its quote character on both sides.
    bool keep_quotes = false;

    // 0 when the file was read (an empty file included), -1 when the path is empty, the
    // file cannot be opened, or a line is malformed (then the map is emptied).
    int read(const ustring& path) {
        if (path.empty())
            return -1;
        // Close-on-exec, so that no program started meanwhile gets it: O_CLOEXEC, not fopen's
        // "e", which glibc honours and macOS's C library is reported to ignore.
        const int fd = open(path.c_str_utf8(), O_RDONLY | O_CLOEXEC);
        FILE* fp = fd < 0 ? nullptr : fdopen(fd, "r");
        if (!fp) {
            if (fd >= 0)
                close(fd);
            return -1;
        }
        const int rc = read(fp);
        std::fclose(fp);
        return rc;
    }

    // The same for a stream that the caller opened (and closes), up to its end.
    int read(FILE* fp) {
        // A longer line is taken in pieces of 8191 bytes, each parsed as a line.
        char line[8192];
        ustring key;
        ustring value;
        while (std::fgets(line, sizeof line, fp)) {
            int rc = parse(line, static_cast<int>(std::strlen(line)), key, value);
            if (rc == 0) {
                (*this)[key] = value;
            } else if (rc == 2) {
                clear();
                return -1;
            }
        }
        return 0;
    }

    // Parses one NUL-terminated line in place (NUL bytes are written at the ends of the
    // key and the value). 0: key and value hold a pair; 1: nothing to store (blank,
    // comment, or a bare key before "#" or the end); 2: malformed. The scan is bounded by
    // the terminator; length is the line's byte count, for callers that have it.
    int parse(char* line, int /*length*/, ustring& key, ustring& value) {
        char* p = skip_space(line);
        char* key_begin = p;
        while (is_key_char(*p))
            ++p;
        char* key_end = p;
        if (*p == '\0' || *p == '#')
            return 1;
        p = skip_space(p);
        if (*p != '=')
            return 2;
        p = skip_space(p + 1);
        if (*p == '\0')
            return 2;
        char quote = (*p == '"' || *p == '\'') ? *p : '\0';
        char stop = quote ? quote : ' ';
        if (quote)
            ++p;
        char* value_begin = p;
        while (*p != stop && !is_control(*p))
            ++p;
        char* value_end = p;
        if (quote) {
            if (*p != quote)
                return 2;
            ++p;
        }
        p = skip_space(p);
        if (*p != '\0' && *p != '#')
            return 2;

        *key_end = '\0';
        *value_end = '\0';
        key = key_begin;
        value = value_begin;
        if (keep_quotes && quote) {
            ustring quoted(quote);
            quoted += value;
            quoted += quote;
            value = quoted;
        }
        return 0;
    }

    // The value of key as a signed decimal (stream extraction: leading whitespace and a
    // sign taken, stops at the first non-digit, clamped to 32 bits); 0 when there is no
    // number. A missing key is inserted with an empty value, as the subscript does.
    int get_int(const ustring& key) {
        std::istringstream in((*this)[key].c_str_utf8());
        int number = 0;
        in >> number;
        return number;
    }

private:
    static bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
    static bool is_control(char c) {
        unsigned char u = static_cast<unsigned char>(c);
        return u < 32 || u == 127;
    }
    static bool is_key_char(char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '-' || c == '.';
    }
    static char* skip_space(char* p) {
        while (is_space(*p))
            ++p;
        return p;
    }
};
