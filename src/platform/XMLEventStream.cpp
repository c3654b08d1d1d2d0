#include "platform/XMLEventStream.h"

#include <expat.h>
#include <new>

namespace vidora {
namespace {

/// An open element costs memory, and nothing else.
constexpr int maximalDepth = 100'000;
/// Entities may refer to each other, which the parser follows by recursion.
constexpr int maximalEntities = 128;
constexpr std::size_t maximalPiece = 4 * 1024 * 1024;
/// The parser looks at an unfinished token anew with each buffer, so its length has to end somewhere.
constexpr std::int64_t maximalToken = 8 * 1024 * 1024;
constexpr std::size_t feedLength = 256 * 1024;

} // namespace

struct XMLEventStream::Handlers
{
    static XMLEventStream& stream(void* user) { return *static_cast<XMLEventStream*>(user); }

    static void XMLCALL startElement(void* user, const XML_Char* name, const XML_Char** attributes)
    {
        XMLEventStream& self = stream(user);
        self.flush();
        if (++self.m_depth > maximalDepth)
            self.stop();
        else
            self.m_receiver.startElement(name, attributes);
    }
    static void XMLCALL endElement(void* user, const XML_Char* name)
    {
        XMLEventStream& self = stream(user);
        self.flush();
        --self.m_depth;
        if (!self.m_ended)
            self.m_receiver.endElement(name);
    }
    static void XMLCALL text(void* user, const XML_Char* bytes, int length)
    {
        stream(user).addText({bytes, static_cast<std::size_t>(length)});
    }
    static void XMLCALL comment(void* user, const XML_Char*) { stream(user).flush(); }
    static void XMLCALL processingInstruction(void* user, const XML_Char*, const XML_Char*) { stream(user).flush(); }
    static void XMLCALL startCdata(void* user) { stream(user).m_insideCdata = true; }
    static void XMLCALL endCdata(void* user) { stream(user).m_insideCdata = false; }
    static void XMLCALL skippedEntity(void* user, const XML_Char*, int) { stream(user).flush(); }
    static void XMLCALL entityDeclaration(void* user, const XML_Char*, int, const XML_Char*, int, const XML_Char*,
                                          const XML_Char*, const XML_Char*, const XML_Char*)
    {
        if (++stream(user).m_entities > maximalEntities)
            stream(user).stop();
    }
    static int XMLCALL externalEntity(XML_Parser parser, const XML_Char*, const XML_Char*, const XML_Char*,
                                      const XML_Char*)
    {
        stream(XML_GetUserData(parser)).flush();
        return XML_STATUS_OK;
    }
};

void XMLEventStream::Release::operator()(XML_ParserStruct* parser) const
{
    XML_ParserFree(parser);
}

XMLEventStream::XMLEventStream(XMLEventReceiver& receiver)
    : m_receiver(receiver)
    , m_parser(XML_ParserCreate("UTF-8"))
{
    XML_Parser parser = m_parser.get();
    if (!parser)
        throw std::bad_alloc{};
    // The parser's own limit of what entities may expand to is on by default and stays so.
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, Handlers::startElement, Handlers::endElement);
    XML_SetCharacterDataHandler(parser, Handlers::text);
    XML_SetCommentHandler(parser, Handlers::comment);
    XML_SetProcessingInstructionHandler(parser, Handlers::processingInstruction);
    XML_SetCdataSectionHandler(parser, Handlers::startCdata, Handlers::endCdata);
    XML_SetSkippedEntityHandler(parser, Handlers::skippedEntity);
    XML_SetEntityDeclHandler(parser, Handlers::entityDeclaration);
    XML_SetExternalEntityRefHandler(parser, Handlers::externalEntity);
}

void XMLEventStream::setTextWanted(bool wanted)
{
    XML_SetCharacterDataHandler(m_parser.get(), wanted ? Handlers::text : nullptr);
}

void XMLEventStream::feed(std::string_view bytes)
{
    const std::size_t zero = bytes.find('\0');
    const std::string_view document = bytes.substr(0, zero);
    for (std::size_t position = 0; position < document.size() && !m_ended; position += feedLength)
        parse(document.substr(position, feedLength), false);
    if (zero != std::string_view::npos)
        finish();
}

void XMLEventStream::finish()
{
    if (!m_ended)
        parse({}, true);
    m_ended = true;
}

void XMLEventStream::parse(std::string_view bytes, bool last)
{
    XML_Parser parser = m_parser.get();
    m_fed += static_cast<std::int64_t>(bytes.size());
    if (XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), last) != XML_STATUS_OK ||
        m_fed - XML_GetCurrentByteIndex(parser) > maximalToken)
        m_ended = m_failed = true;
}

void XMLEventStream::stop()
{
    m_ended = m_failed = true;
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void XMLEventStream::addText(std::string_view bytes)
{
    XML_Parser parser = m_parser.get();
    int offset = 0, size = 0;
    const char* context = m_insideCdata ? nullptr : XML_GetInputContext(parser, &offset, &size);
    // In the document itself an ampersand begins a reference and nothing else.
    const std::int64_t reference = context && context[offset] == '&' ? XML_GetCurrentByteIndex(parser) : -1;
    if (reference != m_reference)
        flush();
    m_reference = reference;
    if (m_piece.size() + bytes.size() <= maximalPiece)
        m_piece.append(bytes);
}

void XMLEventStream::flush()
{
    m_reference = -1;
    if (m_piece.empty())
        return;
    m_receiver.text(m_piece);
    m_piece.clear();
}

} // namespace vidora
