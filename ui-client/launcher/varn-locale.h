#pragma once

#include <QMap>
#include <QString>

// Turns a locale name into one of the product's three-letter language codes, each of which
// names a compiled translation ":/<code>.qm" in the resource collection "texts".
class VarnLocale
{
public:
    // The one instance, built on the first call (thread-safe) and destroyed at process exit.
    static VarnLocale* getInstance();

    // The code for the system locale (QLocale::system()), read on every call.
    QString getDefaultLanguage();

    // The code for a locale name such as "fr_ca". Comparisons are exact and case-sensitive,
    // so callers pass lower-case names.
    QString getLanguageByLocale(const QString& locale);
    QString getPortugueseLanguage(const QString& locale);
    QString getChineseLanguage(const QString& locale);

    // Adds or replaces the code of a language (the part of a locale name before '_').
    void setLanguageMap(QString language, QString code);

    // Read access for callers that list the supported languages.
    const QMap<QString, QString>& languageMap() const { return language_map; }

    VarnLocale(const VarnLocale&) = delete;
    VarnLocale& operator=(const VarnLocale&) = delete;

private:
    VarnLocale();

    QMap<QString, QString> language_map;
    QString default_language;
};
