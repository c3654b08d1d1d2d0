#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct XML_ParserStruct;

namespace vidora {

/// Receives the elements and the text of an XML document in the order of the document.
class XMLEventReceiver
{
public:
    virtual ~XMLEventReceiver() = default;
    /// `attributes`: names and values in turn, ended by a null pointer; valid during the call, as all arguments are.
    virtual void startElement(std::string_view name, const char* const* attributes) = 0;
    /// A piece of text. Pieces end at entity and character references and at markup, and nowhere else: not at a line
    /// end, not at a CDATA delimiter, not where a buffer happens to end. What a reference stands for is a piece of its
    /// own.
    virtual void text(std::string_view piece) = 0;
    virtual void endElement(std::string_view name) = 0;
};

/// A non-validating XML 1.0 reader that is fed bytes as they arrive. The bytes are UTF-8, whatever the document
/// declares, and end at their first zero byte. Names are qualified names. Nothing outside the document is ever read:
/// external entities stand for nothing. A document that is malformed, nested too deeply, holds a single piece of markup
/// beyond all measure or declares more entities than any guide needs is read up to that point, without a report. One
/// thread at a time.
class XMLEventStream
{
public:
    explicit XMLEventStream(XMLEventReceiver& receiver);
    XMLEventStream(const XMLEventStream&) = delete;
    XMLEventStream& operator=(const XMLEventStream&) = delete;

    /// Reads the next bytes and reports what they complete.
    void feed(std::string_view bytes);
    /// Tells that no more bytes come.
    void finish();
    /// After `finish`: whether the reading ended ahead of the document's end, or there was no document at all.
    bool failed() const { return m_failed; }
    /// Whether text is reported from here on; it is at the start. Text that nobody wants costs nothing. To be called
    /// from `startElement` or `endElement`.
    void setTextWanted(bool wanted);

private:
    struct Handlers;
    struct Release
    {
        void operator()(XML_ParserStruct* parser) const;
    };

    void parse(std::string_view bytes, bool last);
    void stop();
    void addText(std::string_view bytes);
    void flush();

    XMLEventReceiver& m_receiver;
    std::unique_ptr<XML_ParserStruct, Release> m_parser;
    std::string m_piece;
    std::int64_t m_reference = -1; ///< position of the reference that gave the present piece, or -1
    std::int64_t m_fed = 0;
    int m_depth = 0;
    int m_entities = 0;
    bool m_insideCdata = false;
    bool m_ended = false;
    bool m_failed = false;
};

} // namespace vidora
