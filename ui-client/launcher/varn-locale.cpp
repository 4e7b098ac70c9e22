#include "varn-locale.h"

#include <QLocale>

VarnLocale* VarnLocale::getInstance()
{
    static VarnLocale varn_locale;
    return &varn_locale;
}

VarnLocale::VarnLocale()
{
    // Portuguese and Chinese are absent on purpose: their code depends on the country.
    setLanguageMap("en", "enu");
    setLanguageMap("ja", "jpn");
    setLanguageMap("de", "ger");
    setLanguageMap("ko", "krn");
    setLanguageMap("fr", "fre");
    setLanguageMap("it", "ita");
    setLanguageMap("es", "spn");
    setLanguageMap("ru", "rus");
    setLanguageMap("da", "dan");
    setLanguageMap("no", "nor");
    setLanguageMap("nb", "nor");
    setLanguageMap("nn", "nor");
    setLanguageMap("sv", "sve");
    setLanguageMap("nl", "nld");
    setLanguageMap("pl", "plk");
    setLanguageMap("hu", "hun");
    setLanguageMap("tr", "trk");
    setLanguageMap("cs", "csy");
    default_language = "enu";
}

QString VarnLocale::getDefaultLanguage()
{
    return getLanguageByLocale(QLocale::system().name().toLower());
}

QString VarnLocale::getLanguageByLocale(const QString& locale)
{
    const QString language = locale.section('_', 0, 0);
    if (language == "pt")
        return getPortugueseLanguage(locale);
    if (language == "zh")
        return getChineseLanguage(locale);
    return language_map.value(language, default_language);
}

QString VarnLocale::getPortugueseLanguage(const QString& locale)
{
    if (locale == "pt" || locale == "pt_pt")
        return "ptg";
    return "ptb";
}

QString VarnLocale::getChineseLanguage(const QString& locale)
{
    if (locale == "zh_tw" || locale == "zh_hk" || locale == "zh_mo")
        return "cht";
    return "chs";
}

void VarnLocale::setLanguageMap(QString language, QString code)
{
    language_map.insert(language, code);
}
