#pragma once

#include "content/ObjectId.h"
#include "listings/GuideSummary.h"
#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/URLSession.h"

#include <QHash>
#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace vidora {

/// Told of each icon that was asked for, on any thread.
using IconProgress = std::function<void(std::size_t done, std::size_t of)>;

/// The icons of an imported guide, one file a channel in a folder of their own. Each is drawn at once from the
/// channel's title and stands until the guide's own picture has come, so that a guide waits for no icon. What was
/// asked for and what came of it is kept beside them; a picture that didn't come is asked for again after a day.
/// One process at a time; not on the main thread.
class GuideIcons
{
public:
    enum class Which
    {
        Missing,      ///< pictures that have not come yet
        MissingAndOld ///< and those that came more than a day ago
    };
    /// How the icons of the guide stand.
    struct Counts
    {
        std::size_t fetched = 0; ///< the guide's own
        std::size_t drawn = 0;
        std::size_t waiting = 0; ///< of the drawn ones: those whose picture the next `fetch` asks for
    };

    /// The clock outlives this object.
    GuideIcons(QString folder, const Clock& clock);

    /// The name of a channel's file, whatever kind of picture it holds.
    static QString fileName(const ObjectId& channel);

    /// Draws an icon for every channel that has no picture yet. Ahead of the catalogue that names them.
    FileResult draw(const std::vector<GuideChannel>& channels);
    /// From now on these are the guide's channels: forgets and removes the icons of all others.
    void adopt(const std::vector<GuideChannel>& channels);
    /// Fetches several pictures side by side, and none of a host that doesn't answer. Blocks until all have come or
    /// failed, or until `ended`; what was not begun then waits for the next time.
    void fetch(URLSession& network, Which which, std::shared_ptr<const std::atomic<bool>> ended,
               const IconProgress& progress);

    Counts counts() const;

private:
    struct Record
    {
        QString address; ///< empty: the guide names none
        std::optional<Instant> tried;
        bool fetched = false;
    };
    using Records = QHash<QString, Record>; // by file name

    bool isDue(const Record& record, Which which) const;
    QString path(const QString& name) const;
    void read();
    void write() const;

    const QString m_folder;
    const Clock& m_clock;
    Records m_records;
};

/// A small picture with the initials of a title, as SVG 1.1.
QByteArray drawnIcon(const QString& title);

/// Whether bytes begin as a picture of a kind that is shown.
bool isPicture(const QByteArray& bytes);

} // namespace vidora
