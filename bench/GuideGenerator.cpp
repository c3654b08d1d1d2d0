#include "bench/GuideGenerator.h"

#include <array>
#include <charconv>
#include <lzma.h>
#include <span>
#include <stdexcept>
#include <string>

namespace vidora::bench {
namespace {

using Words = std::span<const std::string_view>;

/// What the programmes of a language are put together from.
struct Language
{
    std::string_view code;
    Words titles, subtitles, genres, words;
    std::string_view roles, director;
};

constexpr std::string_view croatianTitles[] = {"Dnevnik",
                                               "Vijesti",
                                               "Potjera",
                                               "Dobro jutro, Hrvatska",
                                               "Lud, zbunjen, normalan",
                                               "Zlatni dvori",
                                               "Tajne grada",
                                               "RUŽA VJETROVA",
                                               "Kod kuće je najljepše",
                                               "Nogomet: Liga prvaka, sažetak",
                                               "Gem, set, meč",
                                               "Velo misto (R)",
                                               "Regionalni dnevnik",
                                               "Crtani film",
                                               "More",
                                               "Plodovi zemlje",
                                               "Inspektor Brok, serija (4/12)",
                                               "Glazbena kutija"};
constexpr std::string_view croatianSubtitles[] = {"Noćna vožnja",
                                                  "(dramska serija)",
                                                  "Posljednji otok [igrani film, drama]",
                                                  "dokumentarni",
                                                  "12. epizoda",
                                                  "Povratak u selo",
                                                  "show",
                                                  "Kuća na kraju ulice [Krimi] [serija]",
                                                  "(humoristična serija)",
                                                  "Dječji kutak"};
constexpr std::string_view croatianGenres[] = {"film",         "serija",       "sport",  "glazba",
                                               "dokumentarni", "informativni", "zabava", "kriminalistički film",
                                               "obrazovanje",  "drama"};
constexpr std::string_view croatianWords[] = {
    "priča",    "o",          "obitelji", "koja",          "živi",        "na",       "otoku",  "i",
    "svaki",    "dan",        "susreće",  "nove",          "ljude",       "iz",       "grada",  "dok",
    "mladi",    "novinar",    "otkriva",  "tajnu",         "stare",       "kuće",     "u",      "kojoj",
    "se",       "nitko",      "ne",       "usuđuje",       "provesti",    "noć",      "jer",    "su",
    "godinama", "prije",      "nestali",  "njezini",       "vlasnici",    "emisija",  "donosi", "razgovore",
    "s",        "gostima",    "te",       "pregled",       "najvažnijih", "događaja", "iz",     "svijeta",
    "politike", "kulture",    "znanosti", "prijateljstvo", "ljubav",      "izdaja",   "put",    "prema",
    "sjeveru",  "željeznica", "rijeka"};
constexpr std::string_view serbianTitles[] = {"Vesti",
                                              "Slagalica",
                                              "Beogradska hronika",
                                              "Selo na brdu",
                                              "Porodica Marić",
                                              "Jutarnji program",
                                              "Kvadratura",
                                              "Žikina porodica, epizoda 7",
                                              "Noćni gost",
                                              "Fudbal: Superliga",
                                              "Kuvar u kući",
                                              "SVE ZA LJUBAV",
                                              "Muzički spomenar",
                                              "Put oko Balkana",
                                              "Istraga, serija (2/10)",
                                              "Dečija čarolija"};
constexpr std::string_view serbianSubtitles[] = {"komedija",         "Zaboravljeni most [film, avantura]",
                                                 "(triler)",         "Gosti iz daljine",
                                                 "domaća serija",    "3. deo",
                                                 "sportski pregled", "Tišina [Dramski film]",
                                                 "muzika",           "vestern"};
constexpr std::string_view serbianGenres[] = {"igrani film", "serija",  "sport",     "muzika",  "dokumentarni program",
                                              "vesti",       "zabavni", "reportage", "kultura", "akcija"};
constexpr std::string_view serbianWords[] = {
    "priča",     "prati",       "sudbinu",  "mladog",   "lekara",    "koji",          "se",         "posle",
    "rata",      "vraća",       "u",        "rodno",    "selo",      "gde",           "ga",         "čekaju",
    "otac",      "i",           "dve",      "sestre",   "u",         "emisiji",       "govorimo",   "o",
    "pitanjima", "koja",        "zanimaju", "gledaoce", "od",        "poljoprivrede", "do",         "umetnosti",
    "voditelj",  "poziva",      "goste",    "da",       "ispričaju", "šta",           "ih",         "je",
    "dovelo",    "do",          "uspeha",   "a",        "publika",   "odlučuje",      "ko",         "ide",
    "dalje",     "neočekivani", "obrt",     "menja",    "sve",       "zauvek",        "prijatelji", "moraju",
    "zajedno",   "reku",        "preći",    "pre",      "zore"};
constexpr std::string_view hungarianTitles[] = {"Híradó",
                                                "Időjárás",
                                                "Tények",
                                                "Barátok közt",
                                                "A falu doktora",
                                                "Konyhafőnök",
                                                "Mesék szárnyán",
                                                "Éjjeli őrjárat",
                                                "Sporthíradó",
                                                "Magyarország kincsei",
                                                "Kalandra fel",
                                                "ZENEI MOZAIK",
                                                "Nyomozók, 3. évad",
                                                "Riport"};
constexpr std::string_view hungarianSubtitles[] = {"magyar filmdráma [filmdráma]", "Az elveszett levél", "ismétlés",
                                                   "amerikai sorozat [sorozat]",   "A tenger hangja",    "(vígjáték)"};
constexpr std::string_view hungarianGenres[] = {"film", "sorozat", "sport", "zene", "dokumentumfilm", "hírműsor"};
constexpr std::string_view hungarianWords[] = {
    "a",           "fiatal",       "nyomozó", "egy",           "régi",     "ügy",      "nyomába",  "ered",
    "és",          "közben",       "rájön",   "hogy",          "barátai",  "sem",      "mondanak", "igazat",
    "műsorunkban", "bemutatjuk",   "az",      "ország",        "legszebb", "tájait",   "ahol",     "család",
    "nemzedékek",  "óta",          "őrzi",    "hagyományokat", "váratlan", "fordulat", "után",     "minden",
    "megváltozik", "tengerparton", "éjszaka", "vonat",         "indul",    "messzi",   "városba",  "senki",
    "nem",         "várja",        "őket"};
constexpr std::string_view romanianTitles[] = {"Ştiri",
                                               "Jurnalul de seară",
                                               "Vreau să fiu bucătar",
                                               "Episodul pierdut",
                                               "Sezonul doi",
                                               "Fotbal: Liga I",
                                               "Poveşti de familie",
                                               "Ţara mea",
                                               "Călătorii în lume",
                                               "MUZICĂ ŞI DANS",
                                               "Anchetatorii",
                                               "Desene animate"};
constexpr std::string_view romanianSubtitles[] = {
    "Secretul casei [Acţiune]", "dramă", "Noaptea cea lungă", "reluare", "(comedie)", "Drumul spre munte [Documentar]"};
constexpr std::string_view romanianGenres[] = {"film", "serial", "sport", "muzică", "documentar", "ştiri"};
constexpr std::string_view romanianWords[] = {
    "un",         "tânăr",     "avocat", "se",         "întoarce",   "în",      "oraşul",    "natal",
    "pentru",     "a",         "apăra",  "prietenul",  "acuzat",     "pe",      "nedrept",   "emisiunea",
    "prezintă",   "cele",      "mai",    "importante", "evenimente", "ale",     "zilei",     "invitaţi",
    "şi",         "reportaje", "din",    "toată",      "ţara",       "familia", "descoperă", "că",
    "moştenirea", "ascunde",   "o",      "taină",      "veche",      "drumul",  "spre",      "casă",
    "este",       "lung",      "dar",    "nimeni",     "nu",         "renunţă"};
constexpr std::string_view czechTitles[] = {
    "Zprávy",         "Počasí",           "Kriminálka Anděl", "Chalupáři",   "Pohádka pro děti",        "Vyprávěj",
    "Toulavá kamera", "Sportovní noviny", "Kuchařská show",   "SLÁVA NAŠIM", "Četnické příběhy (5/20)", "Objektiv"};
constexpr std::string_view czechSubtitles[] = {"Ztracený klíč [Seriál]", "Dům u řeky",     "repríza", "(komedie)",
                                               "Cesta domů [Akční]",     "pro děti [děti]"};
constexpr std::string_view czechGenres[] = {"film", "seriál", "sport", "hudba", "dokument", "zpravodajství"};
constexpr std::string_view czechWords[] = {
    "mladá",     "lékařka",   "přijíždí", "do",       "malé",      "vesnice", "kde",   "ji",       "nikdo",
    "nečeká",    "a",         "postupně", "odhaluje", "tajemství", "starého", "mlýna", "pořad",    "přináší",
    "rozhovory", "reportáže", "z",        "domova",   "i",         "ze",      "světa", "detektiv", "musí",
    "vyřešit",   "případ",    "dříve",    "než",      "pachatel",  "znovu",   "udeří", "přátelé",  "vyrážejí",
    "na",        "výlet",     "který",    "změní",    "jejich",    "život",   "navždy"};
constexpr std::string_view englishTitles[] = {"World News",
                                              "Discovery Hour",
                                              "Geo Adventures",
                                              "The Long Road",
                                              "Kitchen Heroes",
                                              "Late Night Show",
                                              "Football Weekly",
                                              "Mysteries of the Deep",
                                              "Viasat History Special",
                                              "Space Rangers, Part 2 (2/6)",
                                              "THE LAST HARBOUR",
                                              "Cartoon Time",
                                              "Antique Hunters",
                                              "Storm Watch (R)"};
constexpr std::string_view englishSubtitles[] = {"The Hidden Valley [Adventure]", "Episode 4",
                                                 "Fire and Ice [Sci-Fi]",         "(drama)",
                                                 "Beyond the Reef [Documentary]", "Live"};
constexpr std::string_view englishGenres[] = {"film", "series", "sports", "music", "documentary", "news"};
constexpr std::string_view englishWords[] = {
    "a",        "retired", "captain", "returns", "to",     "the",       "island", "where", "his",   "brother",
    "vanished", "and",     "finds",   "that",    "nobody", "remembers", "him",    "in",    "this",  "programme",
    "experts",  "explain", "how",     "ancient", "cities", "were",      "built",  "why",   "they",  "disappeared",
    "two",      "friends", "cross",   "desert",  "with",   "only",      "one",    "map",   "while", "rival",
    "team",     "follows", "their",   "every",   "step",   "before",    "winter", "comes"};

constexpr Language languages[] = {
    {"hr", croatianTitles, croatianSubtitles, croatianGenres, croatianWords, "Uloge: ", "Redatelj: "},
    {"sr", serbianTitles, serbianSubtitles, serbianGenres, serbianWords, "Uloge: ", "Režija: "},
    {"hu", hungarianTitles, hungarianSubtitles, hungarianGenres, hungarianWords, "", ""},
    {"ro", romanianTitles, romanianSubtitles, romanianGenres, romanianWords, "", ""},
    {"cs", czechTitles, czechSubtitles, czechGenres, czechWords, "", "Režija: "},
    {"en", englishTitles, englishSubtitles, englishGenres, englishWords, "", ""},
};
constexpr std::string_view firstNames[] = {"Ana",  "Marko",  "Ivana", "Petar", "Zsófia", "István", "Ion",  "Elena",
                                           "Jiří", "Tereza", "John",  "Mary",  "Đorđe",  "Šime",   "Luka", "Milica"};
constexpr std::string_view lastNames[] = {"Kovač",   "Horvat",  "Jovanović", "Nagy",  "Tóth",  "Popescu",
                                          "Ionescu", "Novák",   "Dvořák",    "Smith", "Marić", "Perić",
                                          "Szabó",   "Dumitru", "Brown",     "Babić"};
constexpr std::string_view descriptionMarks[] = {"Music",       "Sports",   "Drama", "News",
                                                 "Documentary", "Children", "Comedy"};

constexpr int programmesOfDay = 30;
constexpr int minutesOfProgramme = 24 * 60 / programmesOfDay;
constexpr std::size_t pieceLength = 256 * 1024;

/// Sequence of pseudo-random numbers (splitmix64), the same on every machine.
class Sequence
{
public:
    explicit Sequence(std::uint64_t seed)
        : m_state(seed)
    {
    }
    std::uint64_t next()
    {
        std::uint64_t z = (m_state += 0x9e3779b97f4a7c15u);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(next() % bound); }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    std::string_view pick(Words words) { return words[below(words.size())]; }

private:
    std::uint64_t m_state;
};

void appendNumber(std::string& text, std::uint64_t number)
{
    std::array<char, 20> digits;
    text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

void appendTwoDigits(std::string& text, unsigned number)
{
    text += static_cast<char>('0' + number / 10 % 10);
    text += static_cast<char>('0' + number % 10);
}

/// A date of the feed at an offset of one hour.
void appendDate(std::string& text, Instant instant)
{
    const auto local = std::chrono::floor<Seconds>(instant) + Seconds{3600};
    const auto day = std::chrono::floor<std::chrono::days>(local);
    const std::chrono::year_month_day date{day};
    const auto seconds = static_cast<unsigned>((local - day).count());
    appendNumber(text, static_cast<std::uint64_t>(static_cast<int>(date.year())));
    for (const unsigned part : {static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), seconds / 3600,
                                seconds / 60 % 60, seconds % 60})
        appendTwoDigits(text, part);
    text += " +0100";
}

class Guide
{
public:
    Guide(const GuideOptions& options, const std::function<void(std::string_view)>& sink)
        : m_options(options)
        , m_sequence(options.seed)
        , m_sink(sink)
    {
    }

    void write()
    {
        m_text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE tv SYSTEM \"xmltv.dtd\">\n<tv>\n";
        for (int channel = 0; channel < m_options.channels; ++channel)
            addChannel(channel);
        const auto midnight = std::chrono::floor<std::chrono::days>(m_options.now + Seconds{3600}) - Seconds{3600};
        for (int channel = 0; channel < m_options.channels; ++channel) {
            for (int slot = 0; slot < m_options.days * programmesOfDay; ++slot) {
                addProgramme(channel, midnight + std::chrono::minutes{slot * minutesOfProgramme});
                if (m_text.size() >= pieceLength)
                    flush();
            }
        }
        m_text += "</tv>\n";
        flush();
    }

private:
    void flush()
    {
        m_sink(m_text);
        m_text.clear();
    }

    void addChannel(int channel)
    {
        const QByteArray id = guideChannelId(channel);
        m_text.append("  <channel id=\"").append(id).append("\">\n    <display-name>Channel ");
        appendNumber(m_text, static_cast<std::uint64_t>(channel) + 1);
        m_text.append("</display-name>\n    <icon src=\"http://guide.example/icons/").append(id);
        m_text += ".png\" />\n  </channel>\n";
    }

    void element(std::string_view name, std::string_view language, std::string_view text)
    {
        m_text.append("    <").append(name);
        if (!language.empty())
            m_text.append(" lang=\"").append(language).append("\"");
        m_text.append(">").append(text).append("</").append(name).append(">\n");
    }

    void addSentences(const Language& language, std::size_t sentences)
    {
        for (std::size_t sentence = 0; sentence < sentences; ++sentence) {
            const std::size_t words = 6 + m_sequence.below(12);
            for (std::size_t word = 0; word < words; ++word)
                m_text.append(m_sequence.pick(language.words)).append(word + 1 < words ? " " : ". ");
            if (m_sequence.oneIn(4))
                m_text += '\n';
        }
    }

    void addName() { m_text.append(m_sequence.pick(firstNames)).append(" ").append(m_sequence.pick(lastNames)); }

    void addDescription(const Language& language)
    {
        m_text.append("    <desc lang=\"").append(language.code).append("\">");
        addSentences(language, 4 + m_sequence.below(6));
        if (!language.roles.empty() && m_sequence.oneIn(3)) {
            m_text.append("\n").append(language.roles);
            addName();
            m_text += ", ";
            addName();
            m_text.append("\n").append(language.director);
            addName();
        }
        m_text += m_sequence.oneIn(5) ? " Drama &amp; akcija.</desc>\n" : "</desc>\n";
    }

    void addCredits()
    {
        m_text += "    <credits>\n      <director>";
        addName();
        m_text += "</director>\n";
        for (std::size_t actor = 0; actor < 2 + m_sequence.below(3); ++actor) {
            m_text += "      <actor>";
            addName();
            m_text += "</actor>\n";
        }
        m_text += "    </credits>\n";
    }

    void addProgramme(int channel, Instant start)
    {
        const Language& language = languages[static_cast<std::size_t>(channel) % std::size(languages)];
        m_text += "  <programme start=\"";
        appendDate(m_text, start);
        m_text += "\" stop=\"";
        appendDate(m_text, start + std::chrono::minutes{minutesOfProgramme});
        m_text.append("\" channel=\"").append(guideChannelId(channel)).append("\">\n");
        element("title", language.code, m_sequence.pick(language.titles));
        if (m_sequence.below(10) < 7)
            element("sub-title", language.code, m_sequence.pick(language.subtitles));
        addDescription(language);
        if (m_sequence.oneIn(3))
            addCredits();
        if (m_sequence.oneIn(4))
            m_text.append("    <category desc=\"").append(m_sequence.pick(descriptionMarks)).append("\" />\n");
        element("category", language.code, m_sequence.pick(language.genres));
        if (m_sequence.oneIn(4)) {
            m_text += "    <icon src=\"http://guide.example/pictures/";
            appendNumber(m_text, m_sequence.next() % 100'000'000);
            m_text += ".jpg\" />\n";
        }
        if (m_sequence.oneIn(5)) {
            m_text += "    <episode-num system=\"onscreen\">S1E";
            appendNumber(m_text, 1 + m_sequence.below(24));
            m_text += "</episode-num>\n";
        }
        if (m_sequence.oneIn(10))
            m_text += "    <previously-shown />\n";
        m_text += "  </programme>\n";
    }

    const GuideOptions& m_options;
    Sequence m_sequence;
    const std::function<void(std::string_view)>& m_sink;
    std::string m_text;
};

} // namespace

QByteArray guideChannelId(int channel)
{
    return "channel" + QByteArray::number(channel + 1) + ".example";
}

void writeGuide(const GuideOptions& options, const std::function<void(std::string_view)>& sink)
{
    Guide{options, sink}.write();
}

QByteArray guideAsXz(const GuideOptions& options)
{
    lzma_stream stream = LZMA_STREAM_INIT;
    if (lzma_easy_encoder(&stream, 2, LZMA_CHECK_CRC64) != LZMA_OK)
        throw std::runtime_error("xz encoder");
    QByteArray result;
    std::array<std::uint8_t, 65536> output;
    const auto code = [&](lzma_action action) {
        lzma_ret outcome = LZMA_OK;
        do {
            stream.next_out = output.data();
            stream.avail_out = output.size();
            outcome = lzma_code(&stream, action);
            result.append(QByteArrayView{output.data(), static_cast<qsizetype>(output.size() - stream.avail_out)});
        } while (outcome == LZMA_OK && (stream.avail_out == 0 || stream.avail_in > 0));
    };
    writeGuide(options, [&](std::string_view piece) {
        stream.next_in = reinterpret_cast<const std::uint8_t*>(piece.data());
        stream.avail_in = piece.size();
        code(LZMA_RUN);
    });
    code(LZMA_FINISH);
    lzma_end(&stream);
    return result;
}

} // namespace vidora::bench
