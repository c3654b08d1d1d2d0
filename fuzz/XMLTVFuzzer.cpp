// XMLTV documents of any bytes, in any container. The first byte chooses how the rest is read.
#include "listings/XMLTVToEntries.h"

#include <cstdlib>

using namespace vidora;

namespace {

const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");

/// Titles and descriptions of a document read in buffers of this size.
std::vector<std::optional<QString>> readInBuffers(std::string_view document, std::size_t size)
{
    const XMLTVSelection selection{{}, now, QStringLiteral("http://pictures.example/")};
    std::vector<std::optional<QString>> texts;
    XMLTVDocument reader{selection, [&](XMLTVProgramme&& programme) {
                             texts.insert(texts.end(), {programme.title, programme.subtitle, programme.description});
                         }};
    for (std::size_t position = 0; position < document.size(); position += size)
        reader.feed(document.substr(position, size));
    reader.finish();
    return texts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray body(reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(size - 1));
    const auto container = data[0] == 'x'   ? Page::Container::Xz
                           : data[0] == 'g' ? Page::Container::Gzip
                                            : Page::Container::None;
    const Endpoints endpoints;
    const ChannelItems all{{ObjectId{}, QStringLiteral("a.tv"), std::nullopt}};
    Drafts drafts;
    scanXMLTV({Page::fromBytes(body, container, data[0] == '2' ? "ISO-8859-2" : "UTF-8")}, all, now, endpoints, drafts);

    const std::string_view document{body.constData(), static_cast<std::size_t>(body.size())};
    if (readInBuffers(document, size) != readInBuffers(document, 1 + data[0] % 7))
        std::abort();
    return 0;
}
