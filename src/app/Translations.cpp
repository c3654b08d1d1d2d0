#include "app/Translations.h"

#include "platform/DeviceSettings.h"
#include "platform/Log.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QLocale>

namespace vidora {

namespace {

QString fileOf(const QString& name)
{
    return QStringLiteral(":/translations/vidora_%1.qm").arg(name);
}

bool isCyrillic(const QString& language)
{
    if (language.contains(QLatin1String("Cyrl")))
        return true;
    // The territory may tell: Serbian of Montenegro is written in Latin letters.
    return QLocale(language).script() == QLocale::CyrillicScript;
}

/// Languages whose speakers read another one's translation without effort.
QString relativeOf(const QString& language)
{
    static const QHash<QString, QString> relatives{{QStringLiteral("sh"), QStringLiteral("sr_Latn")},
                                                   {QStringLiteral("cnr"), QStringLiteral("sr_Latn")},
                                                   {QStringLiteral("bs"), QStringLiteral("hr")},
                                                   {QStringLiteral("mo"), QStringLiteral("ro")}};
    return relatives.value(language, language);
}

QString translationFor(const QString& tag)
{
    const QString language = tag.section(QLatin1Char('-'), 0, 0);
    const bool isSerbian = language == QLatin1String("sr");
    if (isSerbian || language == QLatin1String("bs"))
        if (isCyrillic(tag))
            return QStringLiteral("sr");
    return isSerbian ? QStringLiteral("sr_Latn") : relativeOf(language);
}

} // namespace

QString Translations::bestFor(const QStringList& languages)
{
    for (const QString& language : languages) {
        const QString name = translationFor(language);
        if (name == QLatin1String("en"))
            return {};
        if (QFile::exists(fileOf(name)))
            return name;
    }
    return {};
}

Translations Translations::ofEnvironment()
{
    QLocale::setDefault(DeviceSettings::localeOfEnvironment());
    return Translations(DeviceSettings::languagesOfEnvironment());
}

Translations::Translations(const QStringList& languages)
{
    install(QStringLiteral("en"));
    const QString best = bestFor(languages);
    if (!best.isEmpty())
        install(best);
}

Translations::~Translations()
{
    for (const auto& translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
}

void Translations::install(const QString& name)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(fileOf(name)) || !QCoreApplication::installTranslator(translator.get())) {
        Log::line(QStringLiteral("texts: no translation %1").arg(name));
        return;
    }
    m_translators.push_back(std::move(translator));
}

} // namespace vidora
