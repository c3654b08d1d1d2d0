#include "screens/ChannelSearch.h"

#include "content/LatinFolding.h"
#include "content/TVEntry.h"

#include <QLocale>

namespace vidora {

namespace {

QStringList languagesOf(const QString& codes)
{
    return codes.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

QString nativeName(const QString& code)
{
    const QLocale locale(code);
    if (locale.language() == QLocale::C)
        return code;
    QString name = locale.nativeLanguageName();
    if (locale.language() == QLocale::English)
        name = QLocale::languageToString(QLocale::English); // not the variety of one country
    else if (!TVEntry::cyrillicDevice() && locale.language() == QLocale::Serbian)
        name = QLocale(QLocale::Serbian, QLocale::LatinScript, QLocale::Serbia).nativeLanguageName();
    name[0] = name[0].toUpper();
    return name;
}

} // namespace

QString languageNames(const QString& codes)
{
    QStringList names;
    for (const QString& code : languagesOf(codes))
        names << nativeName(code);
    return names.join(QLatin1String(", "));
}

ChannelSearch::ChannelSearch(const QString& pattern)
    : m_pattern(foldedInLatin(pattern))
{
}

bool ChannelSearch::isIn(const QString& text) const
{
    return foldedInLatin(text).contains(m_pattern);
}

bool ChannelSearch::finds(const OfferedChannel& channel) const
{
    if (isIn(channel.face.title) || isIn(channel.face.catalogueTitle) || isIn(channel.language))
        return true;
    for (const QString& code : languagesOf(channel.language)) {
        const QLocale::Language language = QLocale(code).language();
        if (language != QLocale::C && (isIn(QLocale::languageToString(language)) || isIn(nativeName(code))))
            return true;
    }
    return false;
}

} // namespace vidora
