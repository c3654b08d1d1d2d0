#include "listings/Page.h"

#include "listings/Decompression.h"
#include "listings/TextDecoder.h"
#include "platform/DeviceSettings.h"

#include <QStringDecoder>

#include <algorithm>

namespace vidora {

namespace {

constexpr qint64 highestXzRatio = 23;

Page::Outcome unpack(const QByteArray& body, Page::Container container, const Page::Sink& sink)
{
    const qint64 quarterOfMemory = DeviceSettings::physicalMemory() / 4;
    switch (container) {
    case Page::Container::Xz:
        return decodeXz(body, std::min(quarterOfMemory, highestXzRatio * body.size()), sink);
    case Page::Container::Gzip:
        return decodeGzip(body, quarterOfMemory, sink);
    case Page::Container::None:
        break;
    }
    const std::string_view bytes(body.constData(), static_cast<std::size_t>(body.size()));
    return sink(bytes) ? Page::Outcome::Complete : Page::Outcome::Stopped;
}

} // namespace

struct Page::Data
{
    QByteArray body;
    Container container = Container::None;
    QByteArray charset;
    std::optional<QString> text; ///< for a page that was text from the beginning
};

Page Page::fromText(QString text)
{
    Page page;
    page.m_data = std::make_shared<const Data>(Data{{}, Container::None, {}, std::move(text)});
    return page;
}

Page Page::fromBytes(QByteArray body, Container container, QByteArray charset)
{
    Page page;
    page.m_data = std::make_shared<const Data>(Data{std::move(body), container, std::move(charset), std::nullopt});
    return page;
}

bool Page::isKnownCharset(const QByteArray& charset)
{
    const Sink nobody = [](std::string_view) { return false; };
    return TextDecoder::forCharset(charset, nobody) != nullptr;
}

Page::Outcome Page::readUtf8(const Sink& sink) const
{
    if (m_data->text) {
        const QByteArray utf8 = m_data->text->toUtf8();
        return sink({utf8.constData(), static_cast<std::size_t>(utf8.size())}) ? Outcome::Complete : Outcome::Stopped;
    }
    const auto decoder = TextDecoder::forCharset(m_data->charset, sink);
    if (!decoder)
        return Outcome::Faulty;
    Outcome decoded = Outcome::Complete;
    const Outcome unpacked = unpack(m_data->body, m_data->container, [&](std::string_view bytes) {
        decoded = decoder->decode(bytes);
        return decoded == Outcome::Complete;
    });
    if (decoded != Outcome::Complete)
        return decoded;
    return unpacked == Outcome::Complete ? decoder->end() : unpacked;
}

std::optional<QString> Page::text() const
{
    if (m_data->text)
        return m_data->text;
    const bool inOnePiece = m_data->container == Container::None && m_data->charset == "UTF-8";
    QByteArray collected;
    QByteArrayView utf8;
    const Outcome outcome = readUtf8([&](std::string_view bytes) {
        if (!inOnePiece)
            collected.append(bytes.data(), static_cast<qsizetype>(bytes.size()));
        utf8 = inOnePiece ? QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())) : collected;
        return true;
    });
    if (outcome != Outcome::Complete)
        return std::nullopt;
    // The byte order mark is gone already; a second one is a character of the text.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return QString(decoder(utf8));
}

qsizetype Page::wireSize() const
{
    return m_data->text ? m_data->text->size() : m_data->body.size();
}

} // namespace vidora
