#include "listings/Page.h"
#include "listings/PageStream.h"
#include "listings/TextDecoder.h"

#include <future>
#include <gtest/gtest.h>
#include <lzma.h>
#include <zlib.h>

using namespace vidora;

namespace {

QByteArray gzip(const QByteArray& content)
{
    z_stream stream = {};
    deflateInit2(&stream, 9, Z_DEFLATED, 31, 9, Z_DEFAULT_STRATEGY);
    QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(content.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.data()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

QByteArray xz(const QByteArray& content, std::uint32_t preset = 1)
{
    QByteArray packed(static_cast<qsizetype>(lzma_stream_buffer_bound(static_cast<std::size_t>(content.size()))), '\0');
    std::size_t size = 0;
    lzma_easy_buffer_encode(preset, LZMA_CHECK_CRC64, nullptr, reinterpret_cast<const std::uint8_t*>(content.data()),
                            static_cast<std::size_t>(content.size()), reinterpret_cast<std::uint8_t*>(packed.data()),
                            &size, static_cast<std::size_t>(packed.size()));
    packed.truncate(static_cast<qsizetype>(size));
    return packed;
}

/// Bytes that do not compress away, the same at each run, as letters of the Latin alphabet and beyond.
QByteArray guide(int length)
{
    QByteArray text;
    std::uint32_t state = 1;
    while (text.size() < length) {
        state = state * 1664525 + 1013904223;
        text += QString(QChar(0x20 + (state >> 20))).toUtf8();
    }
    return text;
}

Page plain(QByteArray bytes, const char* charset)
{
    return Page::fromBytes(std::move(bytes), Page::Container::None, charset);
}

TEST(Page, ReadsFilesOfSeveralChunksWholeOrNotAtAll)
{
    const QByteArray content = guide(500'000);
    for (const auto container : {Page::Container::Xz, Page::Container::Gzip}) {
        const QByteArray file = container == Page::Container::Xz ? xz(content) : gzip(content);
        const Page page = Page::fromBytes(file, container, "UTF-8");
        EXPECT_EQ(page.text(), QString::fromUtf8(content));
        EXPECT_EQ(page.wireSize(), file.size());
        QByteArray pieces;
        int count = 0;
        EXPECT_EQ(page.readUtf8([&](std::string_view piece) {
            pieces.append(piece.data(), static_cast<qsizetype>(piece.size()));
            return ++count > 0;
        }),
                  Page::Outcome::Complete);
        EXPECT_EQ(pieces, content);
        EXPECT_GT(count, 3);
        EXPECT_EQ(page.readUtf8([](std::string_view) { return false; }), Page::Outcome::Stopped);

        QByteArray damaged = file;
        damaged[file.size() / 2] = static_cast<char>(damaged[file.size() / 2] ^ 0x55);
        EXPECT_FALSE(Page::fromBytes(damaged, container, "UTF-8").text());
        EXPECT_FALSE(Page::fromBytes(file.mid(5), container, "UTF-8").text());
        EXPECT_FALSE(Page::fromBytes(content, container, "UTF-8").text());
        EXPECT_FALSE(Page::fromBytes(container == Page::Container::Xz ? xz({}) : gzip({}), container, "UTF-8").text());
        const QByteArray twice = file + file;
        EXPECT_EQ(Page::fromBytes(twice, container, "UTF-8").text(), QString::fromUtf8(content)); // the first alone
    }
}

TEST(Page, TakesAGzipFileThatIsCutOffAsFarAsItGoes)
{
    const QByteArray content(300'000, 'x');
    const QByteArray file = gzip(content);
    const Page page = Page::fromBytes(file.chopped(20), Page::Container::Gzip, "UTF-8");
    ASSERT_TRUE(page.text());
    EXPECT_GT(page.text()->size(), 0);
    EXPECT_LE(page.text()->size(), content.size());
    EXPECT_FALSE(Page::fromBytes(xz(guide(300'000)).chopped(20), Page::Container::Xz, "UTF-8").text());
}

TEST(Page, RefusesAnXzFileThatHoldsMoreThan23TimesItsSize)
{
    // Content made so that the file stays just at or just above the limit.
    const QByteArray seed = guide(2000);
    const auto ratio = [&](int fill) {
        const QByteArray content = seed + QByteArray(fill, ' ');
        const QByteArray file = xz(content);
        const bool readable = Page::fromBytes(file, Page::Container::Xz, "UTF-8").text().has_value();
        EXPECT_EQ(readable, content.size() <= 23 * file.size()) << fill;
        return readable;
    };
    EXPECT_TRUE(ratio(20'000));
    EXPECT_FALSE(ratio(2'000'000));
    int low = 20'000, high = 2'000'000;
    while (high - low > 1)
        (ratio((low + high) / 2) ? low : high) = (low + high) / 2;
}

TEST(Page, ReadsCharacterSetsByTheirRegisteredNames)
{
    struct Case
    {
        const char* charset;
        QByteArray bytes;
        const char* expected; ///< null for bytes that do not fit or a name that is not known
    };
    const Case cases[] = {
        {"WINDOWS-1250", "\xE8\x9A\x9E\xF0\x80", "čšžđ€"},
        {"WINDOWS-1250", "a\x81", nullptr}, // undefined there
        {"WINDOWS-1251", "\xCF\xF0\xE8", "При"},
        {"ISO-8859-2", "\xBE\xB9\xE6", "žšć"},
        {"ISO-8859-1", "\xE9\x80", "é\xC2\x80"},
        {"US-ASCII", "caf\xE9", nullptr},
        {"SHIFT_JIS", "\x93\xFA\x96\x7B", "日本"},
        {"SHIFT_JIS", "\x93\xFA\x96", nullptr}, // ends within a character
        {"UTF-16", QByteArray("\xFE\xFF\x01\x0D\x00\x41", 6), "čA"},
        {"UTF-16LE", QByteArray("\x0D\x01\x3D\xD8\x00\xDE", 6), "č😀"},
        {"UTF-16LE", QByteArray("\x0D\x01\x3D\xD8", 4), nullptr},
        {"WINDOWS-1258", "\xD2", "\xCC\x89"}, // held back for a mark until the end
        {"UTF-8", "\xEF\xBB\xBF\xC4\x8D", "č"},
        {"UTF-8", "\xEF\xBB\xBF\xEF\xBB\xBF!", "\uFEFF!"}, // the second one is a character
        {"UTF-8; X=1", "a", nullptr},
        {"\"UTF-8\"", "a", nullptr},
        {"UTF-8//IGNORE", "a\xFF", nullptr},
        {"WCHAR_T", "a", nullptr},
        {"KLINGON-1", "a", nullptr},
        {"", "a", nullptr},
    };
    for (const Case& one : cases) {
        const auto text = plain(one.bytes, one.charset).text();
        EXPECT_EQ(text.has_value(), one.expected != nullptr) << one.charset;
        EXPECT_EQ(text.value_or(QString()).toUtf8(), QByteArray(one.expected)) << one.charset;
    }
}

TEST(Page, AcceptsExactlyWellFormedUtf8HoweverItIsCut)
{
    struct Case
    {
        std::string_view bytes;
        bool fits;
    };
    const Case cases[] = {
        {"\x7F\xC2\x80\xDF\xBF", true},
        {"\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF", true},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", true},
        {"\x80", false},
        {"\xC0\xAF", false},
        {"\xC1\xBF", false},
        {"\xC3", false},
        {"\xC3(", false},
        {"\xE0\x9F\xBF", false},
        {"\xED\xA0\x80", false},
        {"\xF0\x8F\xBF\xBF", false},
        {"\xF4\x90\x80\x80", false},
        {"\xF5\x80\x80\x80", false},
        {"\xE2\x82", false},
        {"\xFF", false},
    };
    for (const Case& one : cases) {
        for (const std::size_t lead : {0U, 1U, 31U, 32U, 33U}) { // on either side of what is looked at in one go
            const std::string bytes = std::string(lead, 'a') + std::string(one.bytes);
            const std::string longer = one.fits ? bytes + std::string(40, 'b') : bytes;
            for (std::size_t cut = 0; cut <= longer.size(); ++cut) {
                Utf8Validator validator;
                const std::string_view view = longer;
                const bool fits = validator.accepts(view.substr(0, cut)) && validator.accepts(view.substr(cut)) &&
                                  validator.atBoundary();
                EXPECT_EQ(fits, one.fits) << longer << " cut at " << cut;
            }
        }
    }
}

TEST(Page, DecodesCharactersThatAreCutByTheEndOfAPiece)
{
    const QByteArray bytes("\x93\xFA\x96\x7B", 4);
    for (qsizetype cut = 0; cut <= bytes.size(); ++cut) {
        QByteArray text;
        const Page::Sink sink = [&](std::string_view piece) {
            text.append(piece.data(), static_cast<qsizetype>(piece.size()));
            return true;
        };
        const auto japanese = TextDecoder::forCharset("SHIFT_JIS", sink);
        ASSERT_TRUE(japanese);
        EXPECT_EQ(japanese->decode({bytes.data(), static_cast<std::size_t>(cut)}), Page::Outcome::Complete);
        EXPECT_EQ(japanese->decode({bytes.data() + cut, static_cast<std::size_t>(bytes.size() - cut)}),
                  Page::Outcome::Complete);
        EXPECT_EQ(japanese->end(), Page::Outcome::Complete);
        EXPECT_EQ(text, QByteArray("日本"));
    }
}

// More than is decoded ahead, left at its first piece, while the other thread waits for room.
TEST(PageStream, MayBeLeftInTheMidstOfALongPage)
{
    constexpr int attempts = 10;
    const auto ended = std::make_shared<std::promise<int>>();
    DispatchQueue::global(QualityOfService::UserInitiated).async([ended] {
        const Page page = plain(guide(4'000'000), "UTF-8");
        int pieces = 0;
        for (int i = 0; i < attempts; ++i) {
            readUtf8Ahead(page, [&](std::string_view bytes) {
                uLong sum = 0; // takes longer than to decode all that there is room for
                for (int round = 0; round < 40; ++round)
                    sum = adler32(sum, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size()));
                pieces += sum != 0;
                return false;
            });
        }
        ended->set_value(pieces);
    });
    auto pieces = ended->get_future();
    ASSERT_EQ(pieces.wait_for(std::chrono::seconds(60)), std::future_status::ready) << "it hangs";
    EXPECT_EQ(pieces.get(), attempts);
}

} // namespace
