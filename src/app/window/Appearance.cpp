#include "app/window/Appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace vidora {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString space = QStringLiteral("org.freedesktop.appearance");
const QString key = QStringLiteral("color-scheme");

} // namespace

Appearance::Appearance(std::function<void(bool)> changed)
    : m_changed(std::move(changed))
{
    qGuiApp->installEventFilter(this);
    m_changed(isPaletteDark());
    askPortal();
}

void Appearance::askPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, settings, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, settings, QStringLiteral("Read"));
    call << space << key;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* done) {
        const QDBusPendingReply<QDBusVariant> reply = *done;
        if (!reply.isError())
            take(reply.value().variant());
        done->deleteLater();
    });
}

void Appearance::settingChanged(const QString& changedSpace, const QString& changedKey, const QDBusVariant& value)
{
    if (changedSpace == space && changedKey == key)
        take(value.variant());
}

void Appearance::take(const QVariant& colourScheme)
{
    const QVariant plain = colourScheme.userType() == qMetaTypeId<QDBusVariant>()
                               ? colourScheme.value<QDBusVariant>().variant()
                               : colourScheme;
    constexpr uint preferDark = 1, preferLight = 2;
    const uint value = plain.toUInt();
    m_portalKnows = value == preferDark || value == preferLight;
    m_changed(m_portalKnows ? value == preferDark : isPaletteDark());
}

bool Appearance::isPaletteDark() const
{
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && !m_portalKnows)
        m_changed(isPaletteDark());
    return QObject::eventFilter(watched, event);
}

} // namespace vidora
