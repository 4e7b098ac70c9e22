#pragma once

#include <QString>

// The built-in table of user-interface strings. A row's index is its string ID; the English
// text of a row is the source text that the installed translator looks up in context
// "global", so a missing translation yields the English text. Static only: never instantiated.
class StrTable
{
public:
    static constexpr int kStrCount = 312;

    // Fills stab and ktab. Called once at start-up, before any other operation of the table and
    // before other threads exist; afterwards both arrays are only read.
    static void InitStrTable();

    // The text of row id (0..kStrCount-1, not range checked) in the current language, with the
    // two-character sequences backslash-n and backslash-t turned into a line feed and a tab.
    static QString LoadStr(int id);

    // The first row whose key equals key ignoring ASCII case, or -1.
    static int LookupStrID(QString key);

    static const char* stab[kStrCount];  // English texts, UTF-8
    static const char* ktab[kStrCount];  // keys, lower-case ASCII

    StrTable() = delete;
};
