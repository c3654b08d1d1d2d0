#pragma once

#include "core/ShowServices.h"
#include "core/VidoraAppDelegate.h"
#include "platform/DispatchQueue.h"

#include <QImage>
#include <QQuickImageProvider>

#include <memory>
#include <mutex>
#include <unordered_map>

namespace vidora {

/// The fitted pictures of shows that were received, by the key under which QML asks for them. Any thread.
class ShowPictureShelf
{
public:
    QString put(const QString& address, QImage image);
    QImage get(const QString& key) const;
    void clear();

private:
    /// What rows in sight and those near them need, many times over.
    static constexpr std::size_t most = 1'000;

    mutable std::mutex m_mutex;
    std::unordered_map<QString, QImage> m_images;
};

/// "image://pictures/KEY".
class ShowPictureImages final : public QQuickImageProvider
{
public:
    explicit ShowPictureImages(std::shared_ptr<const ShowPictureShelf> shelf);
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const std::shared_ptr<const ShowPictureShelf> m_shelf;
};

/// Fetches pictures through the shared response cache, refuses what is too large from its header, and keeps them
/// fitted.
class ShowPictureLoader final : public ShowPictures
{
public:
    /// The delegate outlives this object. `limit`: longest side of a fitted picture, in logical pixels; `scale`: of the
    /// screen.
    ShowPictureLoader(VidoraAppDelegate& delegate, double limit, double scale);
    /// On the main thread. Waits for the request that is under way.
    ~ShowPictureLoader() override;

    std::optional<ShowImage> image100AtURL(const URL& url, bool load) override;
    void asyncLoadOfShowImageAtURL(const URL& url, Received received) override;

    std::shared_ptr<ShowPictureShelf> shelf() const { return m_shelf; }

private:
    VidoraAppDelegate& m_delegate;
    const double m_limit, m_scale;
    const std::shared_ptr<ShowPictureShelf> m_shelf = std::make_shared<ShowPictureShelf>();
    const BlockOwner m_mainBlocks;
    std::shared_ptr<DispatchQueue> m_loadImageQueue;
};

} // namespace vidora
