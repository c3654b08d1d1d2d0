#include "app/window/ShowPictureLoader.h"

#include "app/window/WindowImages.h"

#include <QCryptographicHash>

namespace vidora {

QString ShowPictureShelf::put(const QString& address, QImage image)
{
    const QByteArray digest = QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha256);
    const QString key = QString::fromLatin1(digest.toHex().left(32));
    const std::lock_guard lock(m_mutex);
    if (m_images.size() >= most)
        m_images.erase(m_images.begin());
    m_images.insert_or_assign(key, std::move(image));
    return key;
}

QImage ShowPictureShelf::get(const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    const auto at = m_images.find(key);
    return at == m_images.end() ? QImage() : at->second;
}

void ShowPictureShelf::clear()
{
    const std::lock_guard lock(m_mutex);
    m_images.clear();
}

ShowPictureImages::ShowPictureImages(std::shared_ptr<const ShowPictureShelf> shelf)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_shelf(std::move(shelf))
{
}

QImage ShowPictureImages::requestImage(const QString& id, QSize* size, const QSize&)
{
    QImage image = m_shelf->get(id);
    if (size)
        *size = image.size();
    return image;
}

ShowPictureLoader::ShowPictureLoader(VidoraAppDelegate& delegate, double limit, double scale)
    : m_delegate(delegate)
    , m_limit(limit)
    , m_scale(scale)
    , m_loadImageQueue(DispatchQueue::serial(QStringLiteral("ostrel.tv.image.load"), QualityOfService::UserInitiated))
{
}

ShowPictureLoader::~ShowPictureLoader()
{
    m_loadImageQueue->sync([] {});
}

std::optional<ShowImage> ShowPictureLoader::image100AtURL(const URL& url, bool load)
{
    URLRequest request(url);
    request.cachePolicy = load ? CachePolicy::ReturnCacheDataElseLoad : CachePolicy::ReturnCacheDataDontLoad;
    request.timeoutIntervalForRequest = Seconds{20};
    request.timeoutIntervalForResource = Seconds{30};
    request.headerFields.set("User-Agent", m_delegate.userAgent().value());
    m_delegate.networkActivity().startNetworkActivity();
    const URLResult result = m_delegate.session().perform(request);
    m_delegate.networkActivity().stopNetworkActivity();
    if (!result.data) {
        if (load && result.error)
            m_delegate.networkAlerts().noRemoteHostAlert(*result.error);
        return std::nullopt;
    }
    const int side = static_cast<int>(m_limit * m_scale);
    auto image = boundedImage::fromData(*result.data, QSize(side, side));
    if (!image)
        return std::nullopt;
    const double width = image->width() / m_scale;
    const QString key = m_shelf->put(url.text(), std::move(*image));
    return ShowImage{QLatin1String("image://pictures/") + key, width};
}

void ShowPictureLoader::asyncLoadOfShowImageAtURL(const URL& url, Received received)
{
    m_loadImageQueue->async([this, url, received = m_mainBlocks.guarded(std::move(received))] {
        if (const auto image = image100AtURL(url, true))
            DispatchQueue::main().async([received, image] { received(*image); });
    });
}

} // namespace vidora
