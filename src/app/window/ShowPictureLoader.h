#pragma once

#include "core/ShowServices.h"
#include "core/VidoraAppDelegate.h"
#include "platform/DispatchQueue.h"

#include <QImage>
#include <QQuickImageProvider>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <semaphore>
#include <unordered_map>

namespace vidora {

/// The fitted pictures of shows, by the key under which QML asks for them: those that somebody still holds. Any thread.
class ShowPictureShelf
{
public:
    /// `scale`: physical pixels of the picture to a logical one.
    ShowImage put(const QString& address, QImage image, double scale);
    QImage get(const QString& key) const;

private:
    mutable std::mutex m_mutex;
    std::unordered_map<QString, std::weak_ptr<const QImage>> m_images;
    std::size_t m_tidyAt = 64; ///< when so many are known, those that are gone are struck off
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

/// Fetches pictures through the shared response cache, a few side by side, refuses what is too large before it is
/// decoded, and decodes and fits away from the main thread. Held by shared pointers.
class ShowPictureLoader final : public ShowPictures, public std::enable_shared_from_this<ShowPictureLoader>
{
public:
    /// `limit`: longest side of a fitted picture, in logical pixels; `scale`: of the screen. The delegate must live
    /// until `stop`.
    ShowPictureLoader(VidoraAppDelegate& delegate, double limit, double scale);

    /// Ends what is under way: nothing is fetched or received any more, and the delegate is not used. Main thread.
    void stop();

    std::optional<ShowImage> image100AtURL(const URL& url, bool load) override;
    void asyncLoadOfShowImageAtURL(const URL& url, Received received) override;
    void imageAtURL(const URL& url, const QSize& size,
                    std::function<void(const std::optional<ShowImage>& image)> mainBlock) override;

    std::shared_ptr<const ShowPictureShelf> shelf() const { return m_shelf; }

private:
    using Body = std::optional<QByteArray>;
    /// Whether somebody waits for the picture, and is told that its host is missing.
    enum class Waiting
    {
        Nobody, ///< it only adds to a row
        User
    };
    Body fetch(URLRequest request, Waiting waiting);
    /// Fetches in its turn; `received` is called on a queue of the background, and not at all when nothing came.
    void fetchInTurn(const URLRequest& request, Waiting waiting, std::function<void(const QByteArray& data)> received);
    std::optional<ShowImage> fitted(const URL& url, const QByteArray& data) const;
    void deliver(DispatchQueue::Block block) const;

    static constexpr std::ptrdiff_t sideBySide = 6;

    VidoraAppDelegate& m_delegate;
    const double m_limit, m_scale;
    const std::shared_ptr<ShowPictureShelf> m_shelf = std::make_shared<ShowPictureShelf>();
    const std::shared_ptr<DispatchQueue> m_loadImageQueue;
    const std::shared_ptr<std::atomic<bool>> m_isStopped = std::make_shared<std::atomic<bool>>(false);
    std::counting_semaphore<sideBySide> m_turns{sideBySide};
    std::mutex m_mutex;
    std::condition_variable m_idle;
    int m_running = 0; ///< requests that use the delegate
};

} // namespace vidora
