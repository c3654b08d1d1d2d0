#include "app/window/Window.h"

#include "app/Commands.h"
#include "app/Device.h"
#include "app/Terminal.h"
#include "app/window/Appearance.h"
#include "app/window/ConnectivityMonitor.h"
#include "app/window/LauncherBadge.h"
#include "app/window/ShowPictureLoader.h"
#include "app/window/SingleInstance.h"
#include "app/window/WaitingNote.h"
#include "app/window/WindowImages.h"
#include "app/window/WindowLife.h"
#include "app/window/WindowModel.h"
#include "platform/Log.h"
#include "platform/MemoryWarnings.h"
#include "platform/Settings.h"

#include <QDirIterator>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QScreen>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>

namespace vidora {

namespace {

const QString modules = QStringLiteral("qrc:/qt/qml");
const QString files = QStringLiteral(":/qt/qml/Vidora");

} // namespace

void prepareEngine(QQmlEngine& engine)
{
    if (QQuickStyle::name() != QLatin1String("Basic")) // it can't be set again once it is in use
        QQuickStyle::setStyle(QStringLiteral("Basic"));
    engine.addImportPath(modules);
    engine.addImageProvider(QStringLiteral("symbols"), new SymbolImages);
    engine.addImageProvider(QStringLiteral("icons"), new IconImages);
}

namespace {

/// The open window, from its first frame to its last.
class OpenWindow
{
public:
    explicit OpenWindow(Device& device)
        : m_device(device)
        , m_pictures(std::make_shared<ShowPictureLoader>(delegate(), pictureLimit(),
                                                         QGuiApplication::primaryScreen()->devicePixelRatio()))
        , m_model(delegate())
        , m_appearance([this](bool dark) { m_model.setDark(chosenAppearance().value_or(dark)); })
        , m_memoryWarnings([this] { memoryWarning(); }, m_machineClock)
        , m_connectivity(m_device.connectivity())
    {
        ShowServices services = delegate().showServices();
        services.pictures = m_pictures;
        delegate().setShowServices(services);
        delegate().applicationIconBadge = [this](int count) { m_badge.setCount(count); };
        delegate().updateBadge();
        m_device.endRequested = [] { QCoreApplication::quit(); };
        prepareEngine(m_engine);
        m_engine.addImageProvider(QStringLiteral("pictures"), new ShowPictureImages(m_pictures->shelf()));
        m_engine.setInitialProperties({{QStringLiteral("app"), QVariant::fromValue<QObject*>(&m_model)}});
        m_engine.load(QUrl(modules + QLatin1String("/Vidora/Main.qml")));
        if (QQuickWindow* shown = window())
            m_life = std::make_unique<WindowLife>(delegate(), *shown, m_machineClock);
    }

    ~OpenWindow()
    {
        ShowServices services = delegate().showServices();
        services.pictures = nullptr;
        delegate().setShowServices(services);
        delegate().applicationIconBadge = {};
        m_device.endRequested = {};
        m_pictures->stop();
    }

    bool isOpen() const { return !m_engine.rootObjects().isEmpty(); }

    void receive(const QString& address)
    {
        if (QQuickWindow* shown = window()) {
            shown->show();
            shown->raise();
            shown->requestActivate();
        }
        m_model.openAddress(address);
    }

private:
    VidoraAppDelegate& delegate() { return m_device.delegate(); }
    QQuickWindow* window() { return qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0)); }

    /// What the user set by hand, whatever the desktop says.
    std::optional<bool> chosenAppearance()
    {
        const QString chosen = setting::appearance.text(delegate().defaults());
        if (chosen == QLatin1String("dark"))
            return true;
        return chosen == QLatin1String("light") ? std::optional(false) : std::nullopt;
    }

    /// What only the window has; the device tells the delegate. Icons and pictures out of sight are made anew on
    /// demand.
    void memoryWarning()
    {
        if (QQuickWindow* shown = window())
            shown->releaseResources();
        m_engine.trimComponentCache();
    }

    /// Longest side of a show's picture: a part of the screen, and no more than a row has room for.
    static double pictureLimit()
    {
        constexpr double part = 0.3125, roomOfRow = 99;
        const QSize screen = QGuiApplication::primaryScreen()->size();
        return std::min(std::min(screen.width(), screen.height()) * part - 1, roomOfRow);
    }

    Device& m_device;
    LauncherBadge m_badge;
    const std::shared_ptr<ShowPictureLoader> m_pictures;
    WindowModel m_model;
    Appearance m_appearance;
    const SystemClock m_machineClock;
    MemoryWarnings m_memoryWarnings;
    QQmlApplicationEngine m_engine;
    ConnectivityMonitor m_connectivity;
    std::unique_ptr<WindowLife> m_life;
};

/// Opens the window on an empty home, without a network, and closes it.
bool opensOnAnEmptyHome()
{
    const QTemporaryDir home;
    CommandLine line;
    line.home = home.path();
    Device device(line, Device::Access::Write, false);
    bool isOpen = false;
    {
        const OpenWindow window(device);
        QCoreApplication::processEvents();
        isOpen = window.isOpen();
    }
    device.quit();
    return isOpen;
}

QString homeOf(const CommandLine& line)
{
    return line.home ? QFileInfo(*line.home).absoluteFilePath() : QStringLiteral("user");
}

} // namespace

int runWindow(const CommandLine& line)
{
    const QString address = line.opensAddress() ? line.command : QString();
    if (line.log)
        Log::setSink(say);
    SingleInstance instance(homeOf(line));
    if (instance.handOver(address))
        return 0;
    std::optional<WaitingNote> note;
    Device device(line, Device::Access::Write, true, [&](const QString& reason) { note.emplace(reason); });
    int status = 1;
    {
        OpenWindow window(device);
        note.reset();
        if (window.isOpen()) {
            instance.listen([&](const QString& message) { window.receive(message); });
            DispatchQueue::main().async([&] { device.delegate().applicationDidBecomeActive(); });
            if (!address.isEmpty())
                DispatchQueue::main().async([&] { window.receive(address); });
            status = QCoreApplication::exec();
            instance.close(); // from here on a second start waits for the home instead
            device.endRequests();
        }
    }
    return device.end(status);
}

int testWindow()
{
    QQmlEngine engine;
    prepareEngine(engine);
    int tested = 0, wrong = 0;
    QDirIterator at(files, {QStringLiteral("*.qml")}, QDir::Files);
    while (at.hasNext()) {
        const QString path = at.next();
        if (path.endsWith(QLatin1String("/Theme.qml")))
            continue; // a singleton, which all the others load
        QQmlComponent component(&engine, QUrl(QLatin1String("qrc") + path));
        ++tested;
        if (component.isReady())
            continue;
        ++wrong;
        say(component.errorString());
    }
    return tested > 0 && wrong == 0 && opensOnAnEmptyHome() ? 0 : 1;
}

} // namespace vidora
