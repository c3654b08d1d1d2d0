#include "calendar/DAVMultistatus.h"

#include "platform/XMLEventStream.h"

#include <algorithm>
#include <cstring>

namespace vidora {

namespace {

constexpr std::size_t maximalResponses = 50'000;
constexpr std::size_t maximalElements = 64; ///< properties of a resource, and elements in one

QByteArray localName(std::string_view name)
{
    const std::size_t colon = name.rfind(':');
    if (colon != std::string_view::npos)
        name.remove_prefix(colon + 1);
    return QByteArray(name.data(), static_cast<qsizetype>(name.size()));
}

int statusOf(const QByteArray& line) // "HTTP/1.1 404 Not Found"
{
    return std::max(0, line.mid(line.indexOf(' ') + 1, 3).toInt());
}

class Reader final : public XMLEventReceiver
{
public:
    void startElement(std::string_view name, const char* const* attributes) override
    {
        const QByteArray element = localName(name);
        if (m_path.empty())
            m_right = element == "multistatus";
        m_path.push_back(element);
        m_text.clear();
        if (depth() == 2 && element == "response")
            m_response = {};
        else if (depth() == 3 && element == "propstat")
            m_properties = {};
        else if (inProperty())
            takeElement(element, attributes);
    }
    void text(std::string_view piece) override
    {
        const auto size = static_cast<qsizetype>(piece.size());
        m_text.append(piece.data(), size);
        if (inKnownProperty())
            m_properties.texts[m_path[4]].append(piece.data(), size);
    }
    void endElement(std::string_view) override
    {
        const QByteArray& element = m_path.back();
        if (depth() == 2 && element == "response")
            finishResponse();
        else if (depth() == 2 && element == "sync-token")
            m_result.syncToken = QString::fromUtf8(m_text.trimmed());
        else if (depth() == 3)
            finishPart(element);
        else if (depth() == 4 && m_path[2] == "propstat" && element == "status")
            m_properties.status = statusOf(m_text.trimmed());
        else if (inKnownProperty() && element == "href")
            takeLink();
        m_path.pop_back();
    }
    std::optional<DAVMultistatus> result()
    {
        if (!m_right || m_result.responses.size() > maximalResponses)
            return std::nullopt;
        return std::move(m_result);
    }

private:
    std::size_t depth() const { return m_path.size(); }
    bool inProperty() const
    {
        return m_path.size() >= 5 && m_path[1] == "response" && m_path[2] == "propstat" && m_path[3] == "prop";
    }
    bool inKnownProperty() const { return inProperty() && m_properties.texts.contains(m_path[4]); }
    void takeElement(const QByteArray& element, const char* const* attributes)
    {
        if (depth() == 5 && m_properties.texts.size() < maximalElements)
            m_properties.texts[element]; // an empty property is one that the server has
        if (depth() == 5 || !inKnownProperty())
            return;
        auto& elements = m_properties.elements[m_path[4]];
        if (elements.size() >= maximalElements)
            return;
        elements.insert(element);
        for (; *attributes; attributes += 2) {
            if (std::strcmp(attributes[0], "name") == 0)
                elements.insert(attributes[1]);
        }
    }
    void takeLink()
    {
        auto& links = m_properties.links[m_path[4]];
        if (links.size() < maximalElements)
            links.push_back(QString::fromUtf8(m_text.trimmed()));
    }
    void finishPart(const QByteArray& element)
    {
        if (element == "href" && m_response.href.isEmpty())
            m_response.href = QString::fromUtf8(m_text.trimmed());
        else if (element == "status")
            m_response.status = statusOf(m_text.trimmed());
        else if (element == "propstat" && m_properties.status / 100 == 2 && m_response.texts.size() < maximalElements) {
            m_response.texts.merge(m_properties.texts);
            m_response.elements.merge(m_properties.elements);
            m_response.links.merge(m_properties.links);
        }
    }
    void finishResponse()
    {
        if (!m_response.href.isEmpty() && m_result.responses.size() <= maximalResponses)
            m_result.responses.push_back(std::move(m_response));
    }

    DAVMultistatus m_result;
    DAVResponse m_response;
    DAVResponse m_properties; ///< of the present propstat
    std::vector<QByteArray> m_path;
    QByteArray m_text;
    bool m_right = false;
};

} // namespace

QByteArray DAVResponse::text(const QByteArray& property) const
{
    const auto found = texts.find(property);
    return found == texts.end() ? QByteArray() : found->second;
}

std::vector<QString> DAVResponse::linksOf(const QByteArray& property) const
{
    const auto found = links.find(property);
    return found == links.end() ? std::vector<QString>() : found->second;
}

bool DAVResponse::has(const QByteArray& property, const QByteArray& element) const
{
    const auto found = elements.find(property);
    return found != elements.end() && found->second.contains(element);
}

QByteArray DAVMultistatus::propfind(const QByteArray& properties)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<d:propfind xmlns:d=\"DAV:\" "
           "xmlns:c=\"urn:ietf:params:xml:ns:caldav\" xmlns:a=\"http://apple.com/ns/ical/\" "
           "xmlns:s=\"http://calendarserver.org/ns/\"><d:prop>" +
           properties + "</d:prop></d:propfind>";
}

std::optional<DAVMultistatus> DAVMultistatus::read(const QByteArray& body)
{
    Reader reader;
    XMLEventStream stream(reader);
    stream.feed({body.constData(), static_cast<std::size_t>(body.size())});
    stream.finish();
    return stream.failed() ? std::nullopt : reader.result();
}

} // namespace vidora
