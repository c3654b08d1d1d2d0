#include "listings/XMLTVDocument.h"

#include "content/Utf8Text.h"
#include "listings/XMLTVDate.h"

#include <cstring>

namespace vidora {
namespace {

constexpr std::size_t maximalText = 4 * 1024 * 1024;
constexpr Seconds plus1Delay{3600};

const char* attribute(const char* const* attributes, std::string_view name)
{
    for (; *attributes; attributes += 2) {
        if (name == attributes[0])
            return attributes[1];
    }
    return nullptr;
}

std::optional<Instant> dateAttribute(const char* const* attributes, std::string_view name, bool isPlus1)
{
    const char* text = attribute(attributes, name);
    const auto date = text ? xmltvDate(std::string_view{text}) : std::nullopt;
    return date && isPlus1 ? *date - plus1Delay : date;
}

TVListingsCategory categoryOfDescription(std::string_view description)
{
    using namespace category;
    struct Row
    {
        std::string_view description;
        TVListingsCategory bits;
    };
    static constexpr Row rows[] = {
        {"Music", music},
        {"Sports", sports},
        {"Adventure", movies | adventure},
        {"Science fiction", movies | scienceFiction},
        {"Drama", movies | dramas},
        {"Entertainment", entertainment},
        {"Show", entertainment},
        {"Magazine", entertainment},
        {"News", news},
        {"Documentary", documentaries},
        {"History", documentaries},
        {"Educational", documentaries},
        {"Children", children},
        {"Comedy", movies | comedies},
        {"Romance", movies},
        {"Animated", movies},
    };
    for (const Row& row : rows) {
        if (row.description == description)
            return row.bits;
    }
    return 0;
}

} // namespace

XMLTVSelection::XMLTVSelection(const QStringList& channels, Instant now, std::optional<QString> pictureAddress)
    : m_now(now)
    , m_pictureAddress(std::move(pictureAddress))
{
    for (const QString& channel : channels)
        m_channels.insert(channel.toStdString());
}

bool XMLTVSelection::isWanted(std::string_view channel) const
{
    return m_channels.empty() || m_channels.contains(channel);
}

void XMLTVDocument::Text::append(std::string_view piece)
{
    isSet = true;
    if (utf8.size() + piece.size() <= maximalText)
        utf8.append(piece);
}

void XMLTVDocument::Text::clear()
{
    isSet = false;
    utf8.clear();
}

std::optional<QString> XMLTVDocument::Text::toString() const
{
    return isSet ? std::optional{textFromUtf8(utf8)} : std::nullopt;
}

XMLTVDocument::XMLTVDocument(const XMLTVSelection& selection, Receiver receiver)
    : m_selection(selection)
    , m_receiver(std::move(receiver))
    , m_stream(static_cast<XMLEventReceiver&>(*this))
{
    m_stream.setTextWanted(false);
}

XMLTVDocument::Inside XMLTVDocument::insideOf(std::string_view name)
{
    struct Row
    {
        std::string_view name;
        Inside inside;
    };
    static constexpr Row rows[] = {
        {"title", Inside::Title}, {"sub-title", Inside::Subtitle}, {"desc", Inside::Description},
        {"actor", Inside::Actor}, {"director", Inside::Director},  {"category", Inside::Category},
        {"image", Inside::Image},
    };
    for (const Row& row : rows) {
        if (row.name == name)
            return row.inside;
    }
    return Inside::Other;
}

void XMLTVDocument::startElement(std::string_view name, const char* const* attributes)
{
    if (name == "programme") {
        startProgramme(attributes);
        m_stream.setTextWanted(m_hasEntry);
    } else if (m_hasEntry) {
        m_inside = insideOf(name);
        startChild(name, attributes);
    }
}

void XMLTVDocument::startProgramme(const char* const* attributes)
{
    dropProgramme();
    m_ignoreTitle = false;
    const char* channel = attribute(attributes, "channel");
    if (!channel || !m_selection.isWanted(channel)) {
        m_inside = Inside::Nothing;
        return;
    }
    m_inside = Inside::Programme;
    const bool isPlus1 = std::strstr(channel, "Plus1");
    const auto stop = dateAttribute(attributes, "stop", isPlus1);
    if (!stop || m_selection.now() >= *stop)
        return;
    if (m_sourceId.isNull() || m_channel != channel) {
        m_channel = channel;
        m_sourceId = textFromUtf8(m_channel);
    }
    m_hasEntry = true;
    m_programme.sourceId = m_sourceId;
    m_programme.start = dateAttribute(attributes, "start", isPlus1);
    m_programme.stop = *stop;
}

void XMLTVDocument::startChild(std::string_view name, const char* const* attributes)
{
    if (m_inside == Inside::Actor && m_actors.isSet) {
        m_actors.append(", ");
    } else if (m_inside == Inside::Director && m_directors.isSet) {
        m_directors.append(", ");
    } else if (m_inside == Inside::Category) {
        if (const char* description = attribute(attributes, "desc"))
            m_programme.categories |= categoryOfDescription(description);
    } else if (name == "previously-shown") {
        m_programme.previouslyShown = true;
    } else if (name == "episode-num" || name == "seriesid") {
        m_programme.categories |= category::series;
    } else if (name == "icon") {
        if (const char* source = attribute(attributes, "src"))
            m_programme.icon = URL::fromText(textFromUtf8(source));
    }
}

void XMLTVDocument::text(std::string_view piece)
{
    if (!m_hasEntry)
        return;
    switch (m_inside) {
    case Inside::Title:
        if (!m_ignoreTitle)
            addToTitle(piece);
        break;
    case Inside::Subtitle:
        // Some feeds put an episode's number into an element of its own kind inside the text.
        if (piece.front() < '0' || piece.front() > '9')
            m_subtitle.append(piece);
        break;
    case Inside::Description:
        addToDescription(piece);
        break;
    case Inside::Actor:
        m_actors.append(piece);
        break;
    case Inside::Director:
        m_directors.append(piece);
        break;
    case Inside::Category:
        m_category.append(piece);
        break;
    case Inside::Image:
        if (m_selection.pictureAddress())
            m_programme.icon = URL::fromText(QString{*m_selection.pictureAddress() + textFromUtf8(piece)});
        break;
    case Inside::Nothing:
    case Inside::Programme:
    case Inside::Other:
        break;
    }
}

/// The title is rid of every backslash with an "n" as it grows, so a pair whose halves came in two pieces goes as well.
void XMLTVDocument::addToTitle(std::string_view piece)
{
    std::string& title = m_title.utf8;
    const std::size_t junction = title.empty() ? 0 : title.size() - 1;
    m_title.append(piece);
    const std::size_t found = title.find("\\n", junction);
    if (found == std::string::npos)
        return;
    std::size_t write = found;
    for (std::size_t read = found; read < title.size();) {
        if (title.compare(read, 2, "\\n") == 0)
            read += 2;
        else
            title[write++] = title[read++];
    }
    title.resize(write);
}

void XMLTVDocument::addToDescription(std::string_view piece)
{
    if (piece.find("  ") == std::string_view::npos) {
        m_description.append(piece);
        return;
    }
    m_folded.clear();
    for (const char c : piece) {
        if (c != ' ' || m_folded.empty() || m_folded.back() != ' ')
            m_folded += c;
    }
    m_description.append(m_folded);
}

void XMLTVDocument::endElement(std::string_view name)
{
    if (name == "programme") {
        if (m_hasEntry && m_title.isSet) {
            m_programme.title = m_title.toString();
            if (isPlaceholderTitle(*m_programme.title))
                return;
            finishProgramme();
        }
        m_inside = Inside::Nothing;
        m_ignoreTitle = false;
        m_stream.setTextWanted(m_hasEntry);
        return;
    }
    if (name == "title")
        m_ignoreTitle = true;
    if (m_inside != Inside::Nothing)
        m_inside = Inside::Programme;
}

void XMLTVDocument::finishProgramme()
{
    m_programme.subtitle = m_subtitle.toString();
    m_programme.description = m_description.toString();
    m_programme.roles = m_actors.toString();
    m_programme.directedBy = m_directors.toString();
    m_programme.category = m_category.toString();
    m_receiver(std::move(m_programme));
    dropProgramme();
}

void XMLTVDocument::dropProgramme()
{
    if (!m_hasEntry)
        return;
    m_hasEntry = false;
    m_programme = {};
    for (Text* text : {&m_title, &m_subtitle, &m_description, &m_actors, &m_directors, &m_category})
        text->clear();
}

} // namespace vidora
