#include "platform/SignificantTimeChange.h"

#include "platform/Clock.h"
#include "platform/DeviceSettings.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <array>
#include <cstring>
#include <ctime>
#include <sys/inotify.h>
#include <sys/timerfd.h>

namespace vidora {

namespace {

template<typename Function>
std::unique_ptr<QSocketNotifier> notifyWhenReadable(const Descriptor& descriptor, Function function)
{
    if (!descriptor)
        return nullptr;
    auto notifier = std::make_unique<QSocketNotifier>(descriptor.number(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, function);
    return notifier;
}

// A file that is replaced by renaming can only be watched through its folder.
Descriptor watchFolder(const QString& folder)
{
    Descriptor watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    if (watch)
        inotify_add_watch(watch.number(), QFile::encodeName(folder).constData(),
                          IN_CREATE | IN_MOVED_TO | IN_CLOSE_WRITE);
    return watch;
}

// inotify(7): a run of records of different lengths.
bool tellsOf(const QByteArray& name, const char* records, qsizetype length)
{
    bool found = false;
    for (qsizetype at = 0; at + qsizetype(sizeof(inotify_event)) <= length;) {
        inotify_event event;
        std::memcpy(&event, records + at, sizeof event);
        at += qsizetype(sizeof event);
        const qsizetype nameLength = qMin(qsizetype(event.len), length - at);
        found = found || name == QByteArray(records + at, qsizetype(qstrnlen(records + at, uint(nameLength))));
        at += nameLength;
    }
    return found;
}

} // namespace

SignificantTimeChange::Sources SignificantTimeChange::Sources::ofMachine()
{
    return {Descriptor(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)), QStringLiteral("/etc/localtime"),
            &DeviceSettings::timeZone};
}

SignificantTimeChange::SignificantTimeChange(Handler handler, Sources sources)
    : m_handler(std::move(handler))
    , m_sources(std::move(sources))
    , m_folder(watchFolder(QFileInfo(m_sources.zoneFile).path()))
    , m_timerNotifier(notifyWhenReadable(m_sources.timer, [this] { timerFired(); }))
    , m_folderNotifier(notifyWhenReadable(m_folder, [this] { folderChanged(); }))
{
    armTimer();
}

SignificantTimeChange::~SignificantTimeChange() = default;

Instant SignificantTimeChange::nextMidnight(Instant now, const QTimeZone& zone)
{
    const QDate today = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(now), zone).date();
    // A zone that changes its side of the date line leaves out a whole day.
    for (const int days : {1, 2}) {
        const QDateTime start = today.addDays(days).startOfDay(zone);
        if (start.isValid())
            return instantFromUnixMilliseconds(start.toMSecsSinceEpoch());
    }
    return now + dayStep;
}

// The machine's own clock counts here, not one that is passed in: it is the one that can be set.
void SignificantTimeChange::armTimer()
{
    const Instant midnight = nextMidnight(SystemClock().now(), m_sources.zone());
    itimerspec due{};
    due.it_value.tv_sec = unixSeconds(midnight);
    timerfd_settime(m_sources.timer.number(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &due, nullptr);
}

// A read that fails with ECANCELED is the notice that the clock was set.
void SignificantTimeChange::timerFired()
{
    std::uint64_t count = 0;
    [[maybe_unused]] const auto length = ::read(m_sources.timer.number(), &count, sizeof count);
    armTimer();
    m_handler();
}

void SignificantTimeChange::folderChanged()
{
    alignas(inotify_event) std::array<char, 4096> records;
    const auto length = ::read(m_folder.number(), records.data(), records.size());
    if (length <= 0 || !tellsOf(QFile::encodeName(QFileInfo(m_sources.zoneFile).fileName()), records.data(), length))
        return;
    tzset();
    armTimer();
    m_handler();
}

} // namespace vidora
