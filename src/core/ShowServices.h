#pragma once

#include "content/ShowElement.h"
#include "platform/ViewControllers.h"

#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vidora {

// What screens ask about a show of those who know more than the lists. Each may be absent; a screen then shows what the
// lists hold.

/// One of the actions that a swipe on a show's row uncovers.
struct SwipeAction
{
    QString title;
    bool destructive = false;
    QString colour; ///< role of the background; empty for the usual one
    std::function<void()> perform;
    QString description{}; ///< what it does, for those who can't tell by the title
};

/// What favourites and alarms know of a show. Main thread.
class ShowMarks
{
public:
    virtual ~ShowMarks() = default;
    /// Minutes from the alarm of this broadcast to its start; negative without an alarm.
    virtual int alarmedEntry(const TVEntry& entry) const = 0;
    /// Whether a show of this raw title is a favourite.
    virtual bool containsFavoriteNamed(const QString& title) const = 0;
    virtual std::vector<SwipeAction> swipeActions(const Show& show, ViewController& screen) = 0;
};

/// A picture that is fitted and ready to be drawn.
struct ShowImage
{
    QString source;   ///< the address under which the window finds it; may be empty
    double width = 0; ///< in logical pixels; 0 for a show that is known to have no picture
    /// The picture stays in memory, and `source` good, for as long as somebody has this.
    std::shared_ptr<const void> held = {};
    friend bool operator==(const ShowImage&, const ShowImage&) = default;
};

/// Fetches and fits pictures of shows. What goes on when the window closes brings nothing any more.
class ShowPictures
{
public:
    using Received = std::function<void(const ShowImage& image)>;
    virtual ~ShowPictures() = default;
    /// Blocks until the picture is there; nothing when there is none. Never on the main thread. `load`: false looks
    /// into the cache alone.
    virtual std::optional<ShowImage> image100AtURL(const URL& url, bool load) = 0;
    /// Returns at once; `received` is called on the main queue, and not at all on a failure.
    virtual void asyncLoadOfShowImageAtURL(const URL& url, Received received) = 0;
    /// Returns at once. The picture fitted to `size`, in logical pixels, enlarged if need be. `mainBlock` is called on
    /// the main queue, with nothing for a picture that can't be decoded; not at all when no answer comes.
    virtual void imageAtURL(const URL& url, const QSize& size,
                            std::function<void(const std::optional<ShowImage>& image)> mainBlock) = 0;
};

/// What a show's own page gave. Parts are present from the front.
struct ShowDescription
{
    std::shared_ptr<const TVEntrySupplementalData> data;
    std::optional<Pictures> pictures;
    std::optional<std::uint32_t> categories;
};

/// Fetches and stores what the pages behind a show tell of it. Blocks; never on the main thread. Work that is under way
/// may outlast the window: who implements it refers to nothing that goes before.
class ShowDetails
{
public:
    virtual ~ShowDetails() = default;
    /// Nothing when the page gave nothing.
    virtual std::optional<ShowDescription> netDescriptionFor(const std::shared_ptr<const TVEntry>& entry) = 0;
    /// Looks the show up among films and stores its link and pictures with its list, if it is one.
    virtual void findFilm(const Show& show) = 0;
};

/// Those who are there.
struct ShowServices
{
    ShowMarks* marks = nullptr;
    std::shared_ptr<ShowPictures> pictures = nullptr; ///< shared with work that is under way on other threads
    std::shared_ptr<ShowDetails> details = nullptr;   ///< shared likewise
};

} // namespace vidora
