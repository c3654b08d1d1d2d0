// Containers and character sets. The first byte chooses how the rest is read.
#include "listings/Page.h"
#include "listings/PageFetcher.h"

#include <cstdlib>
#include <iterator>

using namespace vidora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr const char* contentTypes[] = {
        "application/x-xz",
        "application/x-gzip",
        "text/html; charset=utf-8",
        "text/html; charset=windows-1250",
        "text/html; charset=iso-8859-2",
        "text/html; charset=utf-16",
        "text/html; charset=utf-7",
        "text/html; charset=shift_jis",
        "text/html; charset=gb18030",
        "text/html; charset=windows-1258",
    };
    if (size == 0)
        return 0;
    QByteArray body(reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(size - 1));
    URLResponse response;
    const std::size_t choice = data[0] - std::size_t{'0'};
    if (choice < std::size(contentTypes)) {
        response.headerFields.set("Content-Type", contentTypes[choice]);
    } else { // the body's first line is the field itself
        const qsizetype line = std::max<qsizetype>(body.indexOf('\n'), 0);
        response.headerFields.set("Content-Type", body.left(line));
        body.remove(0, line);
    }
    const auto page = PageFetcher::pageFromData(body, response);
    if (!page)
        return 0;
    QByteArray pieces;
    const Page::Outcome outcome = page->readUtf8([&pieces](std::string_view piece) {
        pieces.append(piece.data(), static_cast<qsizetype>(piece.size()));
        return pieces.size() < 1 << 20;
    });
    if (outcome == Page::Outcome::Stopped)
        return 0;
    const auto text = page->text();
    if (text.has_value() != (outcome == Page::Outcome::Complete) || (text && text->toUtf8() != pieces))
        std::abort(); // whole and in pieces are two ways of reading one thing
    return 0;
}
