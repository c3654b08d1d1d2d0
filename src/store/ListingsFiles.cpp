// The part of the store that brings lists to the disk.
#include "platform/Log.h"
#include "store/ShowArchive.h"
#include "store/TVListings.h"

#include <exception>

namespace vidora {

namespace {

constexpr int writeAttempts = 3;

/// Keeps the process alive for as long as it lives, or until the time that the system grants is up.
class BackgroundTask
{
public:
    static std::shared_ptr<BackgroundTask> begin(ApplicationLife& application)
    {
        auto task = std::make_shared<BackgroundTask>(application);
        const std::lock_guard lock(task->m_mutex);
        task->m_task = application.beginBackgroundTask([weak = std::weak_ptr(task)] {
            if (const auto running = weak.lock())
                running->end();
        });
        return task;
    }
    explicit BackgroundTask(ApplicationLife& application)
        : m_application(application)
    {
    }
    ~BackgroundTask() { end(); }

private:
    void end()
    {
        const std::lock_guard lock(m_mutex);
        if (m_task)
            m_application.endBackgroundTask(*m_task);
        m_task.reset();
    }

    ApplicationLife& m_application;
    std::mutex m_mutex;
    std::optional<ApplicationLife::Task> m_task;
};

} // namespace

void TVListings::addToSaveSchedule(const ObjectId& channel)
{
    m_fileIOQueue->async([this, channel] {
        m_scheduledForSaving.insert(channel);
        if (channel != ObjectId::popular())
            m_surroundings.channels.setTimeLoaded(channel, m_surroundings.clock.now());
        onMain([this] {
            if (m_surroundings.application.isInBackground())
                commitFiles();
        });
    });
}

bool TVListings::isScheduledForSaving(const ObjectId& channel)
{
    bool isScheduled = false;
    m_fileIOQueue->sync([&] { isScheduled = m_scheduledForSaving.contains(channel); });
    return isScheduled;
}

void TVListings::commitFiles()
{
    // Begun here and not on the file queue, so that the process can't end while the request is still on its way.
    auto task = BackgroundTask::begin(m_surroundings.application);
    m_listingsDictionaryAccessQueue->async([this, task = std::move(task)]() mutable {
        m_fileIOQueue->async([this, task = std::move(task)] { writeScheduledFiles(); });
    });
}

void TVListings::writeScheduledFiles()
{
    // Lists are put into the dictionary before they are scheduled, but by another queue: wait for those on their way.
    std::shared_ptr<const ListingsDictionary> lists;
    m_listingsDictionaryAccessQueue->sync([&] { lists = dictionary(); });
    for (const ObjectId& channel : m_scheduledForSaving)
        writeFile(channel, *lists);
    m_scheduledForSaving.clear();
}

void TVListings::writeFile(const ObjectId& channel, const ListingsDictionary& lists) const
{
    const Instant now = m_surroundings.clock.now();
    const SharedShowTable list = channel == ObjectId::popular()
                                     ? ShowTable::make(lists.popular() ? *lists.popular() : ShowList())
                                     : lists.list(channel);
    if (!list || list->firstEndingAfter(now) == list->end())
        return;
    for (int attempt = 0; attempt < writeAttempts; ++attempt) {
        try {
            const auto bytes = list->archived(list->firstEndingAfter(now));
            if (bytes && ShowArchive::writeFile(*bytes, listingsPath(channel), m_surroundings.files))
                list->moveTo(listingsPath(channel));
            return;
        } catch (const std::exception& exception) {
            Log::line(QStringLiteral("commitFiles: ") + QString::fromUtf8(exception.what()));
        }
    }
}

} // namespace vidora
