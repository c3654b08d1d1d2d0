#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace vidora {

/// One fetched document: its bytes as they came over the wire, and how they are to be read. A page turns into text only
/// when a reader wants it, so that a large compressed feed is never held decoded as a whole. Copies share the bytes.
/// May be read on any thread.
class Page
{
public:
    enum class Container
    {
        None,
        Xz,
        Gzip
    };
    /// Receives decoded bytes piece by piece; false ends the reading early.
    using Sink = std::function<bool(std::string_view bytes)>;
    enum class Outcome
    {
        Complete, ///< every byte was read and fits its encoding
        Stopped,  ///< the sink wanted no more
        Faulty    ///< broken container, size limit, or bytes that do not fit: nothing of this page may be used
    };

    /// A page of plain text, for tests and the inspection tool.
    static Page fromText(QString text);
    /// `charset` is the IANA name, in capitals; an unknown one gives a page that is always faulty.
    static Page fromBytes(QByteArray body, Container container, QByteArray charset);
    /// Whether bytes in this character set can be read.
    static bool isKnownCharset(const QByteArray& charset);

    /// The whole text; nothing for a faulty page.
    std::optional<QString> text() const;
    /// Hands the text over as UTF-8, decoded piece by piece as it is read, on the calling thread. A character may be
    /// cut by the end of a piece. What was handed over ahead of a fault must be dropped by the receiver.
    Outcome readUtf8(const Sink& sink) const;
    /// Size on the wire.
    qsizetype wireSize() const;

private:
    struct Data;
    std::shared_ptr<const Data> m_data;
};

} // namespace vidora
