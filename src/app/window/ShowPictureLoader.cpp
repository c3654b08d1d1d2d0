#include "app/window/ShowPictureLoader.h"

#include "app/window/WindowImages.h"
#include "platform/WorkerPool.h"

#include <QCryptographicHash>
#include <QPainter>

namespace vidora {

ShowImage ShowPictureShelf::put(const QString& address, QImage image, double scale)
{
    const double width = image.width() / scale;
    const QString name = QStringLiteral("%1x%2 %3").arg(image.width()).arg(image.height()).arg(address);
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256);
    const QString key = QString::fromLatin1(digest.toHex().left(32));
    const auto held = std::make_shared<const QImage>(std::move(image));
    const std::lock_guard lock(m_mutex);
    if (m_images.size() >= m_tidyAt) {
        std::erase_if(m_images, [](const auto& entry) { return entry.second.expired(); });
        m_tidyAt = 2 * m_images.size() + 64;
    }
    m_images.insert_or_assign(key, held);
    return {QLatin1String("image://pictures/") + key, width, held};
}

QImage ShowPictureShelf::get(const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    const auto at = m_images.find(key);
    const auto image = at == m_images.end() ? nullptr : at->second.lock();
    return image ? *image : QImage();
}

ShowPictureImages::ShowPictureImages(std::shared_ptr<const ShowPictureShelf> shelf)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_shelf(std::move(shelf))
{
}

namespace {

/// Fills the size, with round corners: drawing without a graphics card can't clip to them.
QImage roundedTo(const QImage& image, QSize size)
{
    constexpr double radius = 7.0 / 96; // of the width
    QImage rounded(size, QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    const QSize filling = image.size().scaled(size, Qt::KeepAspectRatioByExpanding);
    const QPoint corner((size.width() - filling.width()) / 2, (size.height() - filling.height()) / 2);
    QPainter painter(&rounded);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QBrush brush(image);
    brush.setTransform(QTransform::fromTranslate(corner.x(), corner.y())
                           .scale(double(filling.width()) / image.width(), double(filling.height()) / image.height()));
    painter.setBrush(brush);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(rounded.rect(), radius * size.width(), radius * size.width());
    return rounded;
}

} // namespace

QImage ShowPictureImages::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    QImage image = m_shelf->get(id);
    if (!image.isNull() && !requestedSize.isEmpty())
        image = roundedTo(image, requestedSize.boundedTo(QSize(1024, 1024)));
    if (size)
        *size = image.size();
    return image;
}

namespace {

URLRequest requestFor(const URL& url, Seconds request, Seconds resource)
{
    URLRequest made(url);
    made.timeoutIntervalForRequest = request;
    made.timeoutIntervalForResource = resource;
    made.maximumBodySize = boundedImage::maximumBytes;
    return made;
}

URLRequest requestOfRow(const URL& url)
{
    return requestFor(url, Seconds{20}, Seconds{30});
}

} // namespace

ShowPictureLoader::ShowPictureLoader(VidoraAppDelegate& delegate, double limit, double scale)
    : m_delegate(delegate)
    , m_limit(limit)
    , m_scale(scale)
    , m_loadImageQueue(DispatchQueue::serial(QStringLiteral("ostrel.tv.image.load"), QualityOfService::UserInitiated))
{
}

void ShowPictureLoader::stop()
{
    *m_isStopped = true;
    std::unique_lock lock(m_mutex);
    m_idle.wait(lock, [this] { return m_running == 0; });
}

ShowPictureLoader::Body ShowPictureLoader::fetch(URLRequest request, Waiting waiting)
{
    {
        const std::lock_guard lock(m_mutex);
        if (*m_isStopped)
            return std::nullopt;
        ++m_running;
    }
    const BlockingScope blocking; // the pool's other work, the update pass among it, doesn't wait for a picture
    request.headerFields.set("User-Agent", m_delegate.userAgent().value());
    request.cancelled = m_isStopped;
    m_delegate.networkActivity().startNetworkActivity();
    URLResult result = m_delegate.session().perform(request);
    m_delegate.networkActivity().stopNetworkActivity();
    if (!result.data && result.error && waiting == Waiting::User && !*m_isStopped)
        m_delegate.networkAlerts().noRemoteHostAlert(*result.error);
    {
        const std::lock_guard lock(m_mutex);
        --m_running;
        m_idle.notify_all();
    }
    return std::move(result.data);
}

std::optional<ShowImage> ShowPictureLoader::fitted(const URL& url, const QByteArray& data) const
{
    const int side = static_cast<int>(m_limit * m_scale);
    auto image = boundedImage::fromData(data, QSize(side, side));
    return image ? std::optional(m_shelf->put(url.text(), std::move(*image), m_scale)) : std::nullopt;
}

void ShowPictureLoader::deliver(DispatchQueue::Block block) const
{
    DispatchQueue::main().async([stopped = m_isStopped, block = std::move(block)] {
        if (!*stopped)
            block();
    });
}

std::optional<ShowImage> ShowPictureLoader::image100AtURL(const URL& url, bool load)
{
    URLRequest request = requestOfRow(url);
    request.cachePolicy = load ? CachePolicy::ReturnCacheDataElseLoad : CachePolicy::ReturnCacheDataDontLoad;
    const Body data = fetch(std::move(request), Waiting::Nobody);
    return data ? fitted(url, *data) : std::nullopt;
}

void ShowPictureLoader::fetchInTurn(const URLRequest& request, Waiting waiting,
                                    std::function<void(const QByteArray&)> received)
{
    m_loadImageQueue->async([self = shared_from_this(), request, waiting, received = std::move(received)] {
        {
            const BlockingScope blocking;
            self->m_turns.acquire();
        }
        DispatchQueue::global(QualityOfService::UserInitiated).async([self, request, waiting, received] {
            const Body data = self->fetch(request, waiting);
            self->m_turns.release();
            if (data)
                DispatchQueue::global(QualityOfService::Background).async([received, data] { received(*data); });
        });
    });
}

void ShowPictureLoader::asyncLoadOfShowImageAtURL(const URL& url, Received received)
{
    fetchInTurn(requestOfRow(url), Waiting::Nobody, [self = shared_from_this(), url, received](const QByteArray& data) {
        if (const auto image = self->fitted(url, data))
            self->deliver([received, image] { received(*image); });
    });
}

void ShowPictureLoader::imageAtURL(const URL& url, const QSize& size,
                                   std::function<void(const std::optional<ShowImage>&)> mainBlock)
{
    fetchInTurn(requestFor(url, Seconds{10}, Seconds{20}), Waiting::User,
                [self = shared_from_this(), url, size, mainBlock](const QByteArray& data) {
                    auto image = boundedImage::fromData(data, size * self->m_scale, boundedImage::Enlarging::Allowed);
                    std::optional<ShowImage> fitted;
                    if (image)
                        fitted = self->m_shelf->put(url.text(), std::move(*image), self->m_scale);
                    self->deliver([mainBlock, fitted] { mainBlock(fitted); });
                });
}

} // namespace vidora
