#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>

namespace vidora::bench {

/// Texts of shows as feeds in Serbian, Croatian, Hungarian, Romanian, Czech and English give them. The same seed gives
/// the same texts on every machine.
class GuideTexts
{
public:
    explicit GuideTexts(std::uint32_t seed)
        : m_state(seed)
    {
    }

    struct Show
    {
        QString title, details, description;
    };

    /// A show whose three texts have about that many UTF-16 units together.
    Show show(qsizetype units)
    {
        const Language& language = pick(languages());
        Show show;
        show.title = sentence(language.words, 1 + below(4));
        show.details = pick(language.genres);
        if (below(3) == 0)
            show.details += QLatin1String(", ") + pick(language.genres);
        show.details += QLatin1String(", ") + QString::number(1950 + below(77));
        while (show.title.size() + show.details.size() + show.description.size() < units)
            show.description += sentence(language.words, 6 + below(12)) + QLatin1String(". ");
        return show;
    }

    std::uint32_t below(std::uint32_t bound)
    {
        m_state = m_state * 6364136223846793005u + 1442695040888963407u;
        return std::uint32_t((m_state >> 33) % bound);
    }

private:
    struct Language
    {
        QStringList words, genres;
    };

    template<typename List>
    const typename List::value_type& pick(const List& list)
    {
        return list[below(std::uint32_t(list.size()))];
    }

    QString sentence(const QStringList& words, std::uint32_t count)
    {
        QString text = pick(words);
        text[0] = text[0].toUpper();
        for (std::uint32_t i = 1; i < count; ++i)
            text += (below(9) == 0 ? QLatin1String(", ") : QLatin1String(" ")) + pick(words);
        return text;
    }

    static Language language(const char16_t* words, const char16_t* genres)
    {
        const auto split = [](const char16_t* text, char separator) {
            return QString::fromUtf16(text).split(QLatin1Char(separator));
        };
        return {split(words, ' '), split(genres, '|')};
    }

    static const std::array<Language, 6>& languages()
    {
        static const std::array<Language, 6> all = {
            language(
                u"grad reka leto porodica mladi policajac otkriva tajnu koja će promeniti život svih u selu i na kraju "
                u"dana čuveni glumac ljubav šuma put kuća srce noć godine posle rata đak žena traži istinu priča o "
                u"prijateljstvu između dva brata dok se polako vraća kući srpski film iz sezone",
                u"film, triler|igrana serija|dok. program|crtani film|sportski pregled|muz. emisija|vijesti|kviz"),
            language(
                u"otok more kapetan brod obitelj stara kuća uz rijeku gdje nitko nije živio već godinama prijatelj "
                u"susjed dolazi i kreće potraga za blagom u kojoj sudjeluju svi mještani dječak pas učiteljica škola "
                u"ljeto zaljubljen bez riječi odlazi u grad šarmantni detektiv žestoka utakmica",
                u"dram. film|humoristična serija|dokumentarni film|glazbeni program|nogomet|informativni program"),
            language(
                u"a fiatal nyomozó egy régi ügyet kap amelyet senki sem tudott megoldani és közben beleszeret városba "
                u"érkező lányba hegyek között élő család története őszi erdő csendes folyó barátság árnyék győzelem "
                u"főváros következő nap új műsor meglepő fordulat kutya gyerek álom",
                u"vígj. amerikai|akciófilm|krimisor. 5. rész|dokumentumf.|hírműsor|sporthírek|zene"),
            language(
                u"un tânăr polițist ajunge în oraș pentru a rezolva cazul dispariției unei fete din sat și descoperă "
                u"că nimic nu este ceea ce pare familie iubire război pădure munte prieten câine școală întâmplare "
                u"noapte drum casă viață fără să știe povestea adevărată a unui campion",
                u"film dramă|serial|documentar|comedie|fotbal|muzică|divertisment|știri"),
            language(
                u"mladý vyšetřovatel přijíždí do městečka kde před lety zmizela dívka a zjišťuje že každý něco skrývá "
                u"rodina láska válka řeka les hory přítel pes škola příběh noc cesta dům život bez toho aby věděl "
                u"skutečný osud jednoho šampiona kůň žlutý",
                u"akční film|seriál 7 díl|dokumentárny cyklus|pohádka|hokej|hudba|zábavný pořad"),
            language(
                u"the young detective comes back to town where nobody wants to remember what happened that summer and "
                u"finds a letter which changes everything family love war river forest mountain friend dog school "
                u"story "
                u"night road house life without knowing true fate of former champion café",
                u"movie, drama|series|documentary|animated comedy|football|news|quiz show|concert"),
        };
        return all;
    }

    std::uint64_t m_state;
};

} // namespace vidora::bench
