// vidora-measure-window first-frame|pass|scroll|rest [--home DIR] [--clock TIME]
//
// Runs the real window and prints what its main thread did. Times are those of this thread alone: what it computed, or
// was kept waiting by others of the process, without what it waited for a processor that other work had. So the figures
// hold on a busy machine. tools/measure-window makes the homes and calls this program.
#include "app/CommandLine.h"
#include "app/window/Window.h"

#include <QAbstractItemModel>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <functional>
#include <map>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr double frame = 1000.0 / 60;

double milliseconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Milliseconds that the calling thread was ready to run and had no processor.
double starved()
{
    static const QString path = QStringLiteral("/proc/self/task/%1/schedstat").arg(syscall(SYS_gettid));
    static QFile file(path);
    if (!file.isOpen() && !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return 0;
    file.seek(0);
    return file.read(128).split(' ').value(1).toDouble() / 1e6;
}

/// A moment of the main thread.
struct Moment
{
    double wall = milliseconds(CLOCK_MONOTONIC), computed = milliseconds(CLOCK_THREAD_CPUTIME_ID), waited = starved();

    double ownSince(const Moment& before) const { return wall - before.wall - (waited - before.waited); }
};

/// Milliseconds since the process was started, loading its libraries included.
double sinceStart()
{
    QFile file(QStringLiteral("/proc/self/stat"));
    const QByteArray stat = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    constexpr qsizetype startTime = 19; // counted behind the name, which may hold blanks
    const double ticks = stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(startTime).toDouble();
    return milliseconds(CLOCK_BOOTTIME) - ticks * 1000 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Knocks at the main thread's event loop every millisecond, and measures how long it takes to open.
class Knocking : public QObject
{
public:
    Knocking()
        : m_thread([this] {
            while (!m_ends) {
                if (!m_isWaiting.exchange(true)) {
                    m_posted = milliseconds(CLOCK_MONOTONIC);
                    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        })
    {
    }
    ~Knocking() override
    {
        m_ends = true;
        m_thread.join();
    }

    void begin()
    {
        gaps.clear();
        m_last = {};
    }
    std::vector<double> gaps;

private:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        const Moment now;
        const double late = now.wall - m_posted - (now.waited - m_last.waited);
        gaps.push_back(std::max(late, now.computed - m_last.computed));
        m_last = now;
        m_isWaiting = false;
        return true;
    }

    Moment m_last;
    std::atomic<double> m_posted = 0;
    std::atomic<bool> m_isWaiting = false, m_ends = false;
    std::thread m_thread;
};

/// Remembers the longest events by receiver and kind.
class Application : public QGuiApplication
{
public:
    using QGuiApplication::QGuiApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (QThread::currentThread() != thread() || m_depth > 0)
            return QGuiApplication::notify(receiver, event);
        const QString name = QString::fromLatin1(receiver->metaObject()->className()) + QLatin1Char(' ') +
                             QString::number(event->type());
        const double before = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        ++m_depth;
        const bool done = QGuiApplication::notify(receiver, event);
        --m_depth;
        const double took = milliseconds(CLOCK_THREAD_CPUTIME_ID) - before;
        double& longest = m_longest[name];
        longest = std::max(longest, took);
        return done;
    }

    void begin() { m_longest.clear(); }
    void print() const
    {
        std::vector<std::pair<double, QString>> all;
        for (const auto& [name, took] : m_longest)
            all.emplace_back(took, name);
        std::sort(all.rbegin(), all.rend());
        for (std::size_t i = 0; i < std::min<std::size_t>(all.size(), 5); ++i)
            std::printf("longest_event %.1f ms %s\n", all[i].first, qPrintable(all[i].second));
    }

private:
    std::map<QString, double> m_longest;
    int m_depth = 0;
};

QQuickWindow* openWindow()
{
    const auto windows = QGuiApplication::topLevelWindows();
    return windows.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(windows.front());
}

QObject* object(const QObject* of, const char* property)
{
    return of ? of->property(property).value<QObject*>() : nullptr;
}

int rowsInSight()
{
    const QObject* rows = object(object(object(openWindow(), "app"), "visibleScreen"), "rows");
    const auto* model = qobject_cast<const QAbstractItemModel*>(rows);
    return model ? model->rowCount() : 0;
}

QQuickItem* listInSight(QQuickItem* item)
{
    if (!item->isVisible())
        return nullptr;
    if (item->inherits("QQuickListView") && item->property("count").toInt() > 0)
        return item;
    for (QQuickItem* child : item->childItems()) {
        if (QQuickItem* found = listInSight(child))
            return found;
    }
    return nullptr;
}

void printAge(const char* what)
{
    const Moment now;
    std::printf("%s %.0f ms after the start, %.0f without waiting for a processor\n", what, sinceStart(),
                sinceStart() - now.waited);
}

void printMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("peak_memory %.1f MiB\n", static_cast<double>(usage.ru_maxrss) / 1024);
}

void printSpread(const char* what, std::vector<double> values, double bound)
{
    if (values.empty())
        return;
    std::sort(values.begin(), values.end());
    const auto part = [&](double share) {
        return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
    };
    std::printf("%s n %zu median %.2f p99 %.2f longest %.2f ms, %td above %.1f\n", what, values.size(), part(0.5),
                part(0.99), values.back(), values.end() - std::upper_bound(values.begin(), values.end(), bound), bound);
}

/// One way to use the window, step by step, from `begin` on.
class Measurement
{
public:
    Measurement(Application& application, const QString& mode)
        : m_application(application)
        , m_mode(mode)
    {
        QObject::connect(&m_search, &QTimer::timeout, [this] { findWindow(); });
        m_search.start(0);
    }

private:
    void findWindow()
    {
        QQuickWindow* window = openWindow();
        if (!window)
            return;
        m_search.stop();
        QObject::connect(
            window, &QQuickWindow::beforeSynchronizing, window, [this] { m_hadRows = rowsInSight() > 0; },
            Qt::DirectConnection);
        QObject::connect(window, &QQuickWindow::frameSwapped, window, [this] { frameSwapped(); });
    }

    void frameSwapped()
    {
        if (m_step)
            return m_step();
        const bool wantsRows = m_mode != QLatin1String("first-frame-empty");
        if (!m_isShown)
            printAge("first_frame");
        m_isShown = true;
        if (m_isDone || (wantsRows && !m_hadRows))
            return;
        m_isDone = true;
        printAge("first_rows");
        if (m_mode.startsWith(QLatin1String("first-frame")))
            QCoreApplication::quit();
        else if (m_mode == QLatin1String("scroll"))
            QTimer::singleShot(settling, [this] { scroll(); });
        else if (m_mode == QLatin1String("rest"))
            QTimer::singleShot(2 * settling, [this] { end(); });
        else
            watchPass();
    }

    void watchPass()
    {
        m_application.begin();
        m_knocking = std::make_unique<Knocking>();
        QObject* progress = object(object(openWindow(), "app"), "progress");
        m_search.disconnect();
        QObject::connect(&m_search, &QTimer::timeout, [this, progress] {
            const bool isRunning = progress->property("running").toBool();
            m_hasRun |= isRunning;
            if (m_hasRun && !isRunning) {
                m_search.stop();
                QTimer::singleShot(settling, [this] { end(); });
            }
        });
        m_search.start(5);
    }

    void scroll()
    {
        QQuickItem* list = listInSight(openWindow()->contentItem());
        m_application.begin();
        m_last = {};
        m_step = [this, list] {
            const Moment now;
            m_frames.push_back(now.computed - m_last.computed);
            m_last = now;
            constexpr double pixels = 40; // 2400 a second
            constexpr std::size_t frames = 1'200;
            list->setProperty("contentY", list->property("contentY").toDouble() + pixels);
            if (m_frames.size() == frames) {
                m_step = {};
                end();
            }
        };
        openWindow()->update();
    }

    void end()
    {
        if (m_knocking)
            printSpread("loop_gap", m_knocking->gaps, 16);
        m_knocking.reset();
        printSpread("frame", m_frames, frame);
        m_application.print();
        printMemory();
        std::printf("rows %d\n", rowsInSight());
        QCoreApplication::quit();
    }

    static constexpr int settling = 2'000; // milliseconds

    Application& m_application;
    const QString m_mode;
    QTimer m_search;
    std::unique_ptr<Knocking> m_knocking;
    std::function<void()> m_step;
    std::vector<double> m_frames;
    Moment m_last;
    bool m_hadRows = false, m_isShown = false, m_isDone = false, m_hasRun = false;
};

} // namespace

int main(int argc, char** argv)
{
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const vidora::CommandLineResult read = vidora::readCommandLine(arguments.mid(2));
    if (arguments.size() < 2 || read.error) {
        std::fputs(
            "usage: vidora-measure-window first-frame|first-frame-empty|pass|scroll|rest [--home DIR] [--clock TIME]\n",
            stderr);
        return 2;
    }
    Measurement measurement(application, arguments.at(1));
    return vidora::runWindow(read.line);
}
