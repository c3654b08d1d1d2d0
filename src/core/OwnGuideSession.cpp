#include "core/OwnGuideSession.h"

#include <QRegularExpression>
#include <QUrl>

namespace vidora {

namespace {

constexpr int mostRedirects = 10;

std::optional<URL> redirectTarget(const URLResult& result, const URL& from)
{
    if (!result.response || result.response->statusCode < 300 || result.response->statusCode >= 400)
        return std::nullopt;
    const auto location = result.response->headerFields.value("Location");
    if (!location)
        return std::nullopt;
    const QUrl target = QUrl(from.text()).resolved(QUrl::fromEncoded(*location));
    // A server must not lead to a file of this machine.
    if (target.scheme() != QLatin1String("http") && target.scheme() != QLatin1String("https"))
        return std::nullopt;
    return URL::fromText(QString::fromLatin1(target.toEncoded()));
}

QByteArray declaredEncoding(const QByteArray& data)
{
    static const QRegularExpression declaration(
        QStringLiteral("^(?:\xEF\xBB\xBF)?<\\?xml[^>]*\\bencoding=[\"']([A-Za-z0-9._-]+)[\"']"));
    const auto match = declaration.match(QString::fromLatin1(data.left(200)));
    return match.hasMatch() ? match.captured(1).toLatin1() : QByteArray("utf-8");
}

} // namespace

void describeByContent(URLResponse& response, const QByteArray& data)
{
    const QByteArray given = response.headerFields.value("Content-Type").value_or(QByteArray());
    QByteArray type = "text/xml; charset=" + declaredEncoding(data);
    if (data.startsWith("\x1f\x8b"))
        type = "application/x-gzip";
    else if (data.startsWith(QByteArray("\xfd"
                                        "7zXZ\0",
                                        6)))
        type = "application/x-xz";
    else if (const qsizetype charset = given.toLower().indexOf("charset="); charset >= 0)
        type = "text/xml; charset=" + given.mid(charset + 8).split(';').front().trimmed().replace('"', "");
    response.headerFields.set("Content-Type", type);
}

OwnGuideSession::OwnGuideSession(URLSession& network, std::optional<URL> guide)
    : m_network(network)
    , m_guide(std::move(guide))
{
}

URLResult OwnGuideSession::perform(const URLRequest& request)
{
    if (!m_guide || request.url != *m_guide)
        return m_network.perform(request);
    URLRequest own = request;
    own.allowsFile = true;
    URLResult result = follow(std::move(own));
    if (result.response && result.data)
        describeByContent(*result.response, *result.data);
    return result;
}

URLResult OwnGuideSession::follow(URLRequest request)
{
    URLResult result = m_network.perform(request);
    for (int redirects = 0; redirects < mostRedirects; ++redirects) {
        const auto target = redirectTarget(result, request.url);
        if (!target)
            break;
        request.url = *target;
        request.allowsFile = false;
        result = m_network.perform(request);
    }
    return result;
}

} // namespace vidora
