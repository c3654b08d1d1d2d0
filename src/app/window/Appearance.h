#pragma once

#include <QDBusVariant>
#include <QObject>

#include <functional>

namespace vidora {

/// Whether the desktop wants windows dark: by its portal (org.freedesktop.appearance, "color-scheme"), else by the
/// palette it gave the program. Main thread.
class Appearance final : public QObject
{
    Q_OBJECT

public:
    /// `changed` is called at once and with every change.
    explicit Appearance(std::function<void(bool dark)> changed);

private Q_SLOTS:
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void askPortal();
    void take(const QVariant& colourScheme);
    bool isPaletteDark() const;
    bool eventFilter(QObject* watched, QEvent* event) override;

    const std::function<void(bool)> m_changed;
    bool m_portalKnows = false;
};

} // namespace vidora
