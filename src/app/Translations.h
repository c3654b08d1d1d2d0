#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace vidora {

/// The program in the user's language: its texts, and by QLocale's default its dates and times. Holds for as long as it
/// lives; there must be an application object. English plural forms are always there, below the language.
class Translations
{
public:
    /// In the language and the locale of the environment.
    static Translations ofEnvironment();

    /// In the first of these languages ("sr-Latn", "de-AT") that there is a translation for, or in English.
    explicit Translations(const QStringList& languages);
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// The name of the translation that serves these languages best ("sr_Latn"); empty for English.
    static QString bestFor(const QStringList& languages);

private:
    void install(const QString& name);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace vidora
